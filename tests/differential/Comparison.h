// Runs the library and the reference on the same input and describes how they differ.
//
// Each function returns an empty text when both agree in everything: results, outputs, how far a
// cursor moved, and that the input is unchanged (or, where a byte is written, changed alike).
// Otherwise it returns what differs, on which input. The tests and the fuzz targets share this.
#ifndef TESTS_DIFFERENTIAL_COMPARISON_H
#define TESTS_DIFFERENTIAL_COMPARISON_H

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "JournalServiceHelper.h"

namespace comparison {

using Difference = std::string;

enum class Kind { missed, dialled, received, forwarded };
constexpr int KINDS = 4;

/// The decoders of one kind, from one call up to a whole log.
enum class Level { call, calls, item, itemText, log, logAndHandle };
constexpr int LEVELS = 6;

/// Whether the outputs given to a decoder are empty or hold something already.
enum class Outputs { fresh, filled };

/// A text in readable form, truncated when it is long.
std::string readable(std::string const& text);

/// The names out of vocabulary::elementNames() of which the text holds a begin or close tag, each
/// once.
void namesIn(std::string const& text, std::vector<std::string const*>& names);

/// The extractors of one element: two at a cursor, five that search the whole message.
enum class Reading { textAtCursor, flagAtCursor, text, numberType, flag, number, cutOut };
constexpr int READINGS = 7;

/// One extractor. Those at a cursor start at the text's front and at the first begin tag.
Difference compareElement(std::string const& text, std::string const& name, Reading reading);

/// All extractors of one element.
Difference compareElement(std::string const& text, std::string const& name);

/// The operations that read a whole message or complete one.
enum class Whole { method, failure, setting, lastUniqueId, envelope, schema, success };
constexpr int WHOLES = 7;

/// One of these operations, or all of them.
Difference compareMessage(std::string const& text, Whole operation);
Difference compareMessage(std::string const& text);

/// Escaping, unescaping, and one after the other.
Difference compareEscaped(std::string const& text);
Difference compareUnescaped(std::string const& text);
Difference compareEscaping(std::string const& text);

/// The text as a word or a value: conversions, escaping, and elements built from it.
Difference compareWord(std::string const& text);

/// Numbers and other values as enumerations, numbers and flags.
Difference compareNumber(int value);

/// Requests with an id and with a set of ids, and the requests without any.
Difference compareRequests(std::string const& id, std::set<std::string> const& ids);

/// One decoder.
Difference compareDecoder(std::string const& text, Kind kind, Level level, Outputs outputs);

/// All decoders of a kind.
Difference compareDecoders(std::string const& text, Kind kind, Outputs outputs);

/// What a notification holds besides the entry, and a log besides its entries.
struct Notice {
  std::string uniqueIdToDelete;
  JournalServiceObserverIfc::ActionType action = JournalServiceObserverIfc::ENTRY_ADDED;
  unsigned int handle = 0;
};

/// The encoders of one kind; logs are written with the entry not at all, once and twice.
enum class Writing { body, uniqueId, calls, notification, log };
constexpr int WRITINGS = 5;

/// One encoder, for the four kinds of entries.
template <class Item>
Difference compareEncoder(Item const& item, Notice const& notice, Writing writing);

/// All encoders.
template <class Item>
Difference compareEncoders(Item const& item, Notice const& notice);

/// The reading operations on one text: those on whole messages, the decoders of its own kind, one
/// decoder of another kind, and the extractors of some elements: those named in `about`, one more
/// of the text and one of the vocabulary. The choice changes from text to text.
/// @param about the part of the text that an edit has changed
/// @param turn the number of the text
Difference compareReading(std::string const& text, Kind own, std::string const& about,
                          unsigned int turn);

} // namespace comparison

#endif
