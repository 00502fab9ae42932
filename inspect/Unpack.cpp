#include "inspect/Unpack.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "ClientUtils.h"
#include "inspect/Text.h"

namespace inspect {
namespace {

constexpr auto npos = std::string_view::npos;
constexpr std::size_t mostOfFront = 4096; ///< a form is recognised within it
constexpr std::size_t leastDigits = 16;   ///< in the first line of a packed text

int hexDigit(char character) {
  if (character >= '0' && character <= '9')
    return character - '0';
  if (character >= 'a' && character <= 'f')
    return character - 'a' + 10;
  if (character >= 'A' && character <= 'F')
    return character - 'A' + 10;
  return -1;
}

int base64Digit(char character) {
  if (character >= 'A' && character <= 'Z')
    return character - 'A';
  if (character >= 'a' && character <= 'z')
    return character - 'a' + 26;
  if (character >= '0' && character <= '9')
    return character - '0' + 52;
  if (character == '+' || character == '-')
    return 62;
  if (character == '/' || character == '_')
    return 63;
  return -1;
}

bool isBlank(char character) {
  return whitespace.find(character) != npos;
}

/// Whether an unpacked text begins like a message.
bool beginsWithTag(std::string_view text) {
  if (text.substr(0, byteOrderMark.size()) == byteOrderMark)
    text.remove_prefix(byteOrderMark.size());
  auto const first = text.find_first_not_of(whitespace);
  return first != npos && text[first] == '<';
}

/// Takes whole pairs of digits; an odd one is held. Blanks are skipped, anything else is a line
/// end.
void takeHex(std::string& held, std::string& out) {
  std::string high;
  for (char const character : held) {
    int const digit = hexDigit(character);
    if (digit < 0 && isBlank(character))
      continue;
    if (digit >= 0 && high.empty()) {
      high = character;
      continue;
    }
    out += digit < 0 ? '\n' : static_cast<char>(hexDigit(high.front()) << 4 | digit);
    high.clear();
  }
  held = high;
}

/// Appends the bytes of up to four digits.
void appendGroup(std::string_view digits, std::string& out) {
  std::uint32_t bits = 0;
  for (std::size_t at = 0; at < 4; ++at)
    bits =
        bits << 6 | (at < digits.size() ? static_cast<std::uint32_t>(base64Digit(digits[at])) : 0u);
  for (std::size_t byte = 1; byte < digits.size(); ++byte)
    out += static_cast<char>(bits >> (24 - 8 * byte) & 0xFF);
}

/// Takes whole groups of four digits and what ends at a '='; the rest is held.
void takeBase64(std::string& held, std::string& out) {
  std::string group;
  for (char const character : held) {
    if (base64Digit(character) >= 0)
      group += character;
    if (group.size() == 4 || character == '=') {
      appendGroup(group, out);
      group.clear();
    }
  }
  held = group;
}

std::size_t digitsAtFront(std::string_view line) {
  std::size_t count = 0;
  while (count < line.size() && hexDigit(line[count]) >= 0)
    ++count;
  return count;
}

/// Appends the bytes of a line of a dump: an offset, the bytes, the same as text.
/// @return whether it is such a line
bool takeDumpLine(std::string_view line, std::string& out) {
  auto at = digitsAtFront(line);
  if (at < 4 || at > 16 || at >= line.size())
    return false;
  bool const colon = line[at] == ':';
  at += colon ? 1 : 0;
  if (at >= line.size() || line[at] != ' ')
    return false;
  auto bytes = line.substr(at);
  bytes.remove_prefix(std::min(bytes.find_first_not_of(' '), bytes.size()));
  bytes = bytes.substr(0, colon ? bytes.find("  ") : bytes.find('|'));
  if (bytes.find_first_not_of("0123456789abcdefABCDEF \r") != npos)
    return false;
  std::string held(bytes);
  auto const before = out.size();
  takeHex(held, out);
  return out.size() > before && held.empty();
}

/// A dump from offset 0 with a full row may hold any text; any other has to begin with a message.
bool isDump(std::string_view line) {
  std::string bytes;
  auto const offset = line.substr(0, digitsAtFront(line));
  bool const fromStart = offset.size() >= 7 && offset.find_first_not_of('0') == npos;
  return takeDumpLine(line, bytes) &&
         ((fromStart && bytes.size() >= leastDigits) || beginsWithTag(bytes));
}

template <class Take, class IsPacked>
bool isPacked(std::string_view front, Take take, IsPacked isDigit) {
  std::string digits;
  for (char const character : front)
    if (isDigit(character))
      digits += character;
    else if (!isBlank(character))
      return false;
  std::string bytes;
  take(digits, bytes);
  return digits.size() < leastDigits && bytes.size() >= leastDigits / 2 && beginsWithTag(bytes);
}

constexpr std::string_view plainStarts[] = {
    "<?xml", "<Method>", "<Schema", "<Entry>", "<CallLogEnabled>", "<Value>", "<UniqueId>"};
constexpr std::string_view escapedStarts[] = {
    "&lt;?xml",      "&lt;Method&gt;",  "&lt;Schema", "&lt;Entry&gt;", "&lt;CallLogEnabled&gt;",
    "&lt;Value&gt;", "&lt;UniqueId&gt;"};

template <class Starts>
std::size_t firstOf(std::string_view text, Starts const& starts) {
  std::size_t first = npos;
  for (auto const start : starts)
    first = std::min(first, text.find(start));
  return first;
}

} // namespace

std::string_view nameOf(Capture capture) {
  constexpr std::string_view names[] = {"plain", "hex", "dump", "base64", "escaped"};
  return names[static_cast<std::size_t>(capture)];
}

void Unpacker::push(std::string_view bytes, std::string& out) {
  if (capture_ == Capture::plain) {
    out.append(bytes);
    return;
  }
  held_.append(bytes);
  if (!capture_)
    recognise(out, false);
  unpack(out, false);
}

void Unpacker::finish(std::string& out) {
  if (!capture_)
    recognise(out, true);
  unpack(out, true);
}

/// By the first line that is not blank, which must be complete or long.
void Unpacker::recognise(std::string& out, bool final) {
  auto const blank = std::min(held_.find_first_not_of(whitespace), held_.size());
  out.append(held_, 0, blank);
  held_.erase(0, blank);
  if (held_.empty() && !final)
    return;
  auto const front = std::string_view(held_).substr(0, mostOfFront);
  if (front.empty() || beginsWithTag(front)) {
    capture_ = Capture::plain;
    return;
  }
  auto const line = front.substr(0, front.find('\n'));
  bool const whole = final || front.size() == mostOfFront || line.size() < front.size();
  if (!whole)
    return;
  if (isDump(line))
    capture_ = Capture::dump;
  else if (isPacked(line, takeHex, [](char c) { return hexDigit(c) >= 0; }))
    capture_ = Capture::hex;
  else if (isPacked(line, takeBase64, [](char c) { return base64Digit(c) >= 0 || c == '='; }))
    capture_ = Capture::base64;
  else if (auto const escaped = firstOf(held_, escapedStarts); escaped != npos)
    capture_ = escaped < firstOf(held_, plainStarts) ? Capture::escaped : Capture::plain;
  else if (final || front.size() == mostOfFront || firstOf(held_, plainStarts) != npos)
    capture_ = Capture::plain;
}

void Unpacker::unpack(std::string& out, bool final) {
  if (!capture_)
    return;
  switch (*capture_) {
  case Capture::hex:
    return takeHex(held_, out);
  case Capture::dump:
    return unpackDump(out, final);
  case Capture::base64:
    if (final)
      held_ += '='; // which writers may leave out
    return takeBase64(held_, out);
  case Capture::escaped:
    return unpackEscaped(out, final);
  default:
    out.append(held_);
    held_.clear();
  }
}

void Unpacker::unpackDump(std::string& out, bool final) {
  std::size_t done = 0;
  while (done < held_.size()) {
    auto const end = held_.find('\n', done);
    if (end == npos && !final && held_.size() - done < mostOfFront) // no line of a dump is longer
      break;
    unpackDumpLine(std::string_view(held_).substr(done, end - done), out);
    done = end == npos ? held_.size() : end + 1;
  }
  held_.erase(0, done);
}

/// Dumps squeeze repetitions of a line: a '*', then the offset behind them.
void Unpacker::unpackDumpLine(std::string_view line, std::string& out) {
  if (line.substr(0, 1) == "*") {
    squeezed_ = true;
    return;
  }
  std::uint64_t offset = 0;
  auto const digits = line.substr(0, digitsAtFront(line));
  auto const [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), offset, 16);
  if (error != std::errc())
    return;
  if (std::exchange(squeezed_, false) && !row_.empty())
    for (rowOffset_ += row_.size(); rowOffset_ < offset && squeezable_ >= row_.size();
         rowOffset_ += row_.size(), squeezable_ -= row_.size())
      out += row_;
  auto const before = out.size();
  if (takeDumpLine(line, out)) {
    row_.assign(out, before);
    rowOffset_ = offset;
  }
}

/// An entity may be cut at the end of what is there.
void Unpacker::unpackEscaped(std::string& out, bool final) {
  constexpr std::size_t longestEntity = 6;
  auto const ampersand = held_.rfind('&');
  bool const cut = !final && ampersand != npos && held_.size() - ampersand < longestEntity;
  auto const size = cut ? ampersand : held_.size();
  out += ClientUtils::unescapeXMLString(held_.substr(0, size));
  held_.erase(0, size);
}

} // namespace inspect
