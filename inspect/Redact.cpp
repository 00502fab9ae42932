#include "inspect/Redact.h"

#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "inspect/Text.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

namespace word = journal::word;
constexpr auto npos = std::string_view::npos;

/// Elements whose texts tell nothing about a person.
bool isHarmless(std::string_view name) {
  Row const* const row = findElement(name);
  if (row == nullptr)
    return false;
  if (row->content != Content::text)
    return row->content != Content::part;
  return name == word::UNIQUEID || name == word::ENTRYID || name == word::UNIQUEIDTODELETE ||
         name == word::TIMEDATE || name == word::DURATION;
}

constexpr std::string_view entities[] = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};

std::size_t entityAt(std::string_view text, std::size_t at) {
  for (auto const entity : entities)
    if (text.compare(at, entity.size(), entity) == 0)
      return entity.size();
  return 0;
}

void mask(std::string& text, std::size_t at, std::size_t end) {
  while (at < end) {
    if (auto const size = text[at] == '&' ? entityAt(text, at) : 0) {
      at += size;
      continue;
    }
    char& byte = text[at++];
    if (byte >= '0' && byte <= '9')
      byte = '0';
    else if (whitespace.find(byte) == npos && byte != '\0')
      byte = 'x';
  }
}

/// Known tags, and the declaration, stay.
Tag nextKnown(std::string_view text, std::size_t from) {
  Tag tag = nextTag(text, from);
  while (tag && findElement(tag.name) == nullptr && findMethod(tag.name) == nullptr)
    tag = nextTag(text, tag.end);
  return tag;
}

/// Whether the next tag of any kind closes this one, so that nothing else is in its value.
bool isClosedNext(std::string_view text, Tag const& tag) {
  Tag const next = nextTag(text, tag.end);
  return next && next.close && next.name == tag.name;
}

} // namespace

std::string redacted(std::string text) {
  std::size_t from = 0;
  if (text.compare(0, byteOrderMark.size(), byteOrderMark) == 0)
    from = byteOrderMark.size();
  if (text.compare(from, word::XMLHEADER.size(), word::XMLHEADER) == 0)
    from += word::XMLHEADER.size();
  bool harmless = false;
  while (true) {
    std::string_view const view(text);
    Tag const tag = nextKnown(view, from);
    auto const end = tag ? tag.offset : text.size();
    bool const begins = tag && !tag.close;
    bool const next = begins && isHarmless(tag.name) && isClosedNext(view, tag);
    auto const behind = tag.end;
    bool const more = static_cast<bool>(tag);
    if (!harmless)
      mask(text, from, end);
    if (!more)
      return text;
    harmless = next;
    from = behind;
  }
}

} // namespace inspect
