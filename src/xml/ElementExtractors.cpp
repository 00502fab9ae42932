// The public readers of single elements, at a cursor and from a whole message.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "ClientUtils.h"
#include "JournalServiceHelper.h"
#include "vocabulary/Words.h"
#include "xml/Cursor.h"
#include "xml/Text.h"

using namespace journal;

namespace {

// Where an element is in a whole message: the first begin tag and the first close tag, searched
// independently. Positions are compared as signed 32-bit numbers, in which an absent tag counts as
// position -1; so an absent begin tag does not rule out a value.
struct Place {
  std::size_t begin; // npos when the begin tag is absent
  std::size_t value; // in that case, wraps to the begin tag's length less one
  std::size_t close;
  std::size_t behind; // behind the close tag
};

constexpr std::int32_t signed32(std::size_t position) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(position));
}

Place placeOf(std::string const& text, std::string const& name) {
  auto const begin = JournalServiceHelper::createXMLBegin(name);
  auto const close = JournalServiceHelper::createXMLClose(name);
  Place place;
  place.begin = text.find(begin);
  place.value = place.begin + begin.size();
  place.close = text.find(close);
  place.behind = place.close + close.size();
  return place;
}

bool holdsValue(Place const& place) {
  return signed32(place.value) < signed32(place.close);
}

std::string valueAt(Place const& place, std::string const& text) {
  return text.substr(place.value, place.close - place.value);
}

// Reads at a cursor, passes the raw value on (absent when a tag is) and returns the new cursor.
template <class Take>
char const* readAt(char const* text, std::string const& begin, std::string const& close,
                   Take take) {
  auto const view = viewOf(text);
  Cursor cursor(view);
  take(cursor.read(begin, close));
  return text + (view.size() - cursor.rest().size());
}

} // namespace

char const* JournalServiceHelper::getXMLValue(char const* text, std::string const& begin,
                                              std::string const& close, std::string& value) {
  return readAt(text, begin, close, [&value](std::string_view raw) { value = unescaped(raw); });
}

char const* JournalServiceHelper::getXMLValue(char const* text, std::string const& begin,
                                              std::string const& close, bool& value) {
  return readAt(text, begin, close, [&value](std::string_view raw) { value = raw == word::TRUE; });
}

bool JournalServiceHelper::getXMLValue(std::string const& text, std::string const& name,
                                       std::string& value) {
  auto const place = placeOf(text, name);
  if (!holdsValue(place))
    return false;
  value = ClientUtils::unescapeXMLString(valueAt(place, text));
  return true;
}

bool JournalServiceHelper::getXMLValue(std::string const& text, std::string const& name,
                                       NumberType::NT& value) {
  std::string read;
  if (!getXMLValue(text, name, read))
    return false;
  value = convertNumberType(read);
  return true;
}

bool JournalServiceHelper::getXMLValue(std::string const& text, std::string const& name,
                                       bool& value) {
  std::string read;
  if (!getXMLValue(text, name, read))
    return false;
  value = read == word::TRUE;
  return true;
}

bool JournalServiceHelper::getXMLValue(std::string const& text, std::string const& name,
                                       unsigned int& value) {
  value = 0;
  std::string read;
  if (!getXMLValue(text, name, read))
    return false;
  value = static_cast<unsigned int>(numberAtFrontOf(read));
  return true;
}

bool JournalServiceHelper::getAndRemoveXMLValue(std::string& text, std::string const& name,
                                                std::string& value) {
  auto const place = placeOf(text, name);
  if (!holdsValue(place) || signed32(place.begin) >= signed32(place.behind))
    return false;
  auto cut = valueAt(place, text);
  text = text.substr(0, place.begin) + text.substr(place.behind);
  value = std::move(cut);
  return true;
}
