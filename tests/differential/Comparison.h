// Runs the library and the reference on the same input and tells where they differ.
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

/// Whether a decoder is given empty outputs or such as hold something already.
enum class Outputs { fresh, filled };

/// The texts of one input in readable form, cut off where it gets long.
std::string readable(std::string const& text);

/// The names out of vocabulary::elementNames() of which the text holds a begin or close tag, each
/// once.
void namesIn(std::string const& text, std::vector<std::string const*>& names);

/// The extractors of one element: two at a cursor, five that search the whole message.
enum class Reading { textAtCursor, flagAtCursor, text, numberType, flag, number, cutOut };
constexpr int READINGS = 7;

/// One extractor; at a cursor from the start of the text and from the first begin tag on.
Difference compareElement(std::string const& text, std::string const& name, Reading reading);

/// All extractors of one element.
Difference compareElement(std::string const& text, std::string const& name);

/// What reads a whole message or finishes one.
enum class Whole { method, failure, setting, lastUniqueId, envelope, schema, success };
constexpr int WHOLES = 7;

/// One of these operations, or all of them.
Difference compareMessage(std::string const& text, Whole operation);
Difference compareMessage(std::string const& text);

/// What the utility library does with texts: there, back, and there and back again.
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

/// What a notification tells beside the entry, and a log beside the entries.
struct Notice {
  std::string uniqueIdToDelete;
  JournalServiceObserverIfc::ActionType action = JournalServiceObserverIfc::ENTRY_ADDED;
  unsigned int handle = 0;
};

/// The encoders of one kind; a log is written of no entry, of the entry once and twice.
enum class Writing { body, uniqueId, calls, notification, log };
constexpr int WRITINGS = 5;

/// One encoder, for the four kinds of entries.
template <class Item>
Difference compareEncoder(Item const& item, Notice const& notice, Writing writing);

/// All encoders.
template <class Item>
Difference compareEncoders(Item const& item, Notice const& notice);

/// The reading operations on one text: what reads whole messages, and the decoders of its own kind.
/// What would be too much for every text takes turns: one decoder of another kind, and of the
/// elements those that `about` names with one more of the text and one of the vocabulary.
/// @param about the part of the text that makes it a new one
/// @param turn counted up from text to text
Difference compareReading(std::string const& text, Kind own, std::string const& about,
                          unsigned int turn);

} // namespace comparison

#endif
