// A reader without a parser, as a user of the C library would write and ship it: one strstr() for
// each tag, always forward from the last element found. It copies the message and cuts the copy
// into entries and calls with NULs, so that no search leaves its record.
//
// It expects the order of a message. An element in front of its predecessor is lost.
#ifndef BENCH_PEERS_STRSTRPEER_H
#define BENCH_PEERS_STRSTRPEER_H

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "Fields.h"
#include "Values.h"

namespace bench {

namespace text {

struct Tags {
  std::string begin, close;
};

/// The tags of a record's elements, in order.
template <class Record>
std::vector<Tags> makeTags() {
  std::vector<Tags> tags;
  forEachElement<Record>([&](auto const& member) {
    std::string const name(member.element);
    tags.push_back({"<" + name + ">", "</" + name + ">"});
  });
  return tags;
}
template <class Record>
inline std::vector<Tags> const TAGS = makeTags<Record>();

inline Tags const ENTRY{"<Entry>", "</Entry>"};
inline Tags const CALLS{"<LogList>", "</LogList>"};
inline Tags const CALL{"<Item>", "</Item>"};

/// Cuts out the next piece between two tags.
/// @param cursor moves behind it
/// @return the piece, now ended by a NUL; nullptr if there is none
inline char* cutPiece(char*& cursor, Tags const& tags) {
  char* const begin = std::strstr(cursor, tags.begin.c_str());
  char* const close = begin ? std::strstr(begin, tags.close.c_str()) : nullptr;
  if (!close)
    return nullptr;
  *begin = *close = '\0';
  cursor = close + tags.close.size();
  return begin + tags.begin.size();
}

/// Replaces the entity at the front of the text.
/// @return its length, 0 if there is none
inline std::size_t appendEntity(std::string_view text, std::string& out) {
  static constexpr struct {
    std::string_view entity;
    char character;
  } ENTITIES[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
  for (auto const& known : ENTITIES)
    if (text.substr(0, known.entity.size()) == known.entity) {
      out += known.character;
      return known.entity.size();
    }
  return 0;
}

inline void assignText(std::string& field, std::string_view text) {
  std::size_t ampersand = text.find('&');
  field.assign(text.substr(0, ampersand));
  while (ampersand != std::string_view::npos) {
    text.remove_prefix(ampersand);
    std::size_t const length = appendEntity(text, field);
    text.remove_prefix(length);
    ampersand = text.find('&', length == 0 ? 1 : 0);
    field += text.substr(0, ampersand);
  }
}
template <class Value>
void assignText(Value& field, std::string_view text) {
  assign(field, text); // the words of enumerations and flags hold no entities
}

/// Reads one element at or behind the cursor, which moves behind it.
template <class Value>
void readElement(char const*& cursor, Tags const& tags, Value& field) {
  char const* const begin = std::strstr(cursor, tags.begin.c_str());
  if (!begin)
    return;
  char const* const value = begin + tags.begin.size();
  char const* const close = std::strstr(value, tags.close.c_str());
  if (!close)
    return;
  assignText(field, {value, static_cast<std::size_t>(close - value)});
  cursor = close + tags.close.size();
}

template <class Record>
void readElements(char const* cursor, Record& record) {
  Tags const* tags = TAGS<Record>.data();
  forEachElement<Record>([&](auto const& member) {
    if (isStored(member))
      readElement(cursor, *tags, member.in(record));
    ++tags;
  });
}

} // namespace text

template <class Kind>
class StrstrDecoder {
public:
  explicit StrstrDecoder(std::string const& message)
      : message_(message), text_(message_.size() + 1) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    std::memcpy(text_.data(), message_.c_str(), text_.size());
    char* cursor = text_.data();
    while (char* const entry = text::cutPiece(cursor, text::ENTRY))
      readEntry(entry, log.emplace_back());
    return log;
  }

private:
  static void readEntry(char* entry, typename Kind::Item& item) {
    char* cursor = entry;
    char* calls = text::cutPiece(cursor, text::CALLS); // what is before them is the entry's own
    text::readElements(entry, item);
    while (char* const call = calls ? text::cutPiece(calls, text::CALL) : nullptr)
      text::readElements(call, item.callInfoList.emplace_back());
  }

  std::string const& message_;
  std::vector<char> text_;
};

} // namespace bench

#endif
