// A message ends where another one starts. In scanned text it also ends where its elements do.
#include "inspect/Stream.h"

#include <algorithm>

#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "inspect/Text.h"
#include "vocabulary/Tags.h"

namespace inspect {
namespace {

namespace word = journal::word;
using journal::element;
constexpr auto npos = std::string_view::npos;
constexpr std::size_t longestTag = 160; ///< enough to tell what starts at a bracket
constexpr std::string_view declaration = "<?xml ";
constexpr std::string_view separators{" \t\n\v\f\r\0", 7};

bool isAt(std::string_view text, std::size_t at, std::string_view tag) {
  return text.compare(at, tag.size(), tag) == 0;
}

/// Whether a declaration starts here and a message follows it.
bool isDeclaration(std::string_view text, std::size_t at) {
  if (!isAt(text, at, declaration))
    return false;
  auto const end = text.substr(at, longestTag).find("?>");
  auto const next = end == npos ? npos : text.find_first_not_of(whitespace, at + end + 2);
  return next != npos && (isAt(text, next, element<word::METHOD>.begin()) ||
                          isAt(text, next, word::SCHEMA_NAMED_BEGIN));
}

/// Whether a message can start here between other text.
bool isStart(std::string_view text, std::size_t at) {
  return isAt(text, at, element<word::METHOD>.begin()) || isDeclaration(text, at) ||
         isAt(text, at, word::SCHEMA_NAMED_BEGIN) ||
         isAt(text, at, element<word::CALL_LOG_ENABLED>.begin()) ||
         isAt(text, at, element<word::ENTRY>.begin()) ||
         isAt(text, at, element<word::UNIQUEID>.begin()) ||
         isAt(text, at, "<Value>Success</Value>") || isAt(text, at, "<Value>Failure</Value>");
}

bool isKnown(std::string_view text, std::size_t at) {
  if (isAt(text, at, declaration))
    return true;
  Tag const tag = tagAt(text, at);
  return tag && findElement(tag.name) != nullptr;
}

} // namespace

Stream::Stream(Options options) : options_(options) {}

void Stream::push(std::string_view bytes) {
  if (head_ > text_.size() / 2) {
    for (auto* const position : {&from_, &start_, &lastEnd_, &walkedTo_})
      *position -= std::min(*position, head_);
    text_.erase(0, head_);
    head_ = 0;
  }
  unpacker_.push(bytes, text_);
}

void Stream::finish() {
  finished_ = true;
  unpacker_.finish(text_);
}

bool Stream::next(Found& found) {
  if (tooLarge_ || (!scan_ && !decideScan()))
    return false;
  while (inMessage_ || findStart()) {
    Step result = step();
    while (result == Step::goOn)
      result = step();
    auto const size = (result == Step::wait ? text_.size() : end_) - start_;
    tooLarge_ = size > options_.limit;
    if (tooLarge_ || result == Step::wait)
      return false;
    emit(found);
    // A tag alone in other text is no message.
    if (!found.text.empty() && (!*scan_ || found.text.find("</") != npos))
      return true;
  }
  return false;
}

bool Stream::decideScan() {
  scan_ = options_.scan;
  auto front = std::string_view(text_);
  if (front.substr(0, byteOrderMark.size()) == byteOrderMark)
    front.remove_prefix(byteOrderMark.size());
  auto const first = front.find_first_not_of(separators);
  if (scan_ || first == npos)
    return scan_.has_value();
  bool const decidable = finished_ || front[first] != '<' || findChar(front, '>', first) != npos ||
                         front.size() - first > longestTag;
  if (decidable)
    scan_ = front[first] != '<' || !isKnown(front, first);
  return decidable;
}

/// Whether what a tag is can be told from what is there.
bool Stream::isWhole(std::size_t at) const {
  if (finished_ || text_.size() - at >= longestTag)
    return true;
  auto const bracket = findChar(text_, '>', at);
  bool const two = text_.size() > at + 1 && (text_[at + 1] == '?' || text_[at + 1] == 'V');
  return bracket != npos && (!two || findChar(text_, '>', bracket + 1) != npos);
}

bool Stream::findStart() {
  if (!*scan_) {
    auto const first = text_.find_first_not_of(separators, from_);
    if (first == npos || (!finished_ && isCutMark(first)))
      return false;
    begin(first);
    return true;
  }
  for (from_ = findChar(text_, '<', from_); from_ != npos;
       from_ = findChar(text_, '<', from_ + 1)) {
    if (!isWhole(from_))
      break;
    if (isStart(text_, from_)) {
      begin(from_);
      return true;
    }
  }
  from_ = std::min(from_, text_.size());
  discard(from_);
  return false;
}

/// Whether the text ends inside a byte-order mark.
bool Stream::isCutMark(std::size_t at) const {
  auto const rest = std::string_view(text_).substr(at);
  return rest.size() < byteOrderMark.size() && byteOrderMark.substr(0, rest.size()) == rest;
}

void Stream::begin(std::size_t at) {
  start_ = from_ = lastEnd_ = at;
  seen_ = Seen();
  if (isAt(text_, at, byteOrderMark))
    from_ = lastEnd_ = at + byteOrderMark.size();
  else
    seen_.body = text_[at] != '<';
  inMessage_ = true;
}

Stream::Step Stream::foundUpTo(std::size_t end) {
  end_ = end;
  return Step::found;
}

/// Goes over one tag, or finds the end of the message in front of it.
Stream::Step Stream::step() {
  auto const at = findChar(text_, '<', from_);
  bool const isEnd = at == npos;
  auto const between = std::string_view(text_).substr(from_, (isEnd ? text_.size() : at) - from_);
  bool const separated = between.find_first_of(std::string_view("\n\0", 2)) != npos;
  if (from_ == lastEnd_ && seen_.any && endsBefore(between, separated))
    return foundUpTo(lastEnd_);
  if (isEnd)
    return endOfText();
  if (!isWhole(at))
    return Step::wait;
  if ((seen_.any || seen_.body) && startsNew(at, separated)) {
    auto const line = *scan_ ? between.find('\n') : npos; // what is behind it is not the message's
    auto last = text_.find_last_not_of(separators, line == npos ? at - 1 : from_ + line);
    if (last >= start_ + byteOrderMark.size() && // the next one's, in files that were joined
        isAt(text_, last + 1 - byteOrderMark.size(), byteOrderMark))
      last = text_.find_last_not_of(separators, last - byteOrderMark.size());
    return foundUpTo(std::max(last + 1, start_));
  }
  if (*scan_ && seen_.any && isForeign(at))
    return foundUpTo(lastEnd_);
  seen_.lines = seen_.lines || separated;
  take(at);
  if (seen_.inEntry && !seen_.inValue)
    skipEntry();
  return Step::goOn;
}

/// Goes over an entry at once when nothing in it can start or end a message. Each byte is searched
/// once: where an entry has to be walked through, that is kept.
void Stream::skipEntry() {
  if (from_ < walkedTo_)
    return;
  auto const end = findText(text_, element<word::ENTRY>.close(), from_);
  walkedTo_ = std::min(end, text_.size());
  if (end == npos)
    return;
  auto const entry = std::string_view(text_).substr(0, end);
  bool const lines = findChar(entry, '\n', from_) != npos || findChar(entry, '\0', from_) != npos;
  if (lines || findText(entry, element<word::METHOD>.begin(), from_) != npos ||
      findText(entry, declaration, from_) != npos)
    return;
  from_ = end;
  take(end);
}

/// One line end or NUL behind the last message is none of its bytes.
Stream::Step Stream::endOfText() {
  if (!finished_)
    return Step::wait;
  if (*scan_)
    return foundUpTo(lastEnd_);
  auto end = text_.size();
  if (text_[end - 1] == '\n' || text_[end - 1] == '\0')
    --end;
  if (end > start_ && end < text_.size() && text_[end - 1] == '\r')
    --end;
  return foundUpTo(std::max(end, start_));
}

/// Whether the bytes behind a tag end the message: a line end or NUL when it is complete, so that
/// one message a line is found without waiting for the next; in scanned text any other text.
bool Stream::endsBefore(std::string_view between, bool separated) const {
  auto const first = between.find_first_not_of(" \t\r");
  if (separated && !seen_.lines && isComplete() && first != npos &&
      (between[first] == '\n' || between[first] == '\0'))
    return true;
  bool const blank = between.find_first_not_of(separators) == npos;
  return *scan_ && !blank && !seen_.inValue && (separated || !seen_.inEntry);
}

/// Whether nothing more has to come in a message of its kind.
bool Stream::isComplete() const {
  bool const inside = seen_.inMethod || seen_.inEntry || seen_.inCalls || seen_.inValue;
  return !inside &&
         (seen_.last || (seen_.declared && seen_.method && !seen_.awaitsMore && !seen_.body));
}

bool Stream::startsNew(std::size_t at, bool separated) const {
  bool const apart = separated && isComplete();
  switch (at + 1 < text_.size() ? text_[at + 1] : '\0') {
  case '?':
    return isAt(text_, at, declaration);
  case 'M':
    return (seen_.method || seen_.body || seen_.last) &&
           isAt(text_, at, element<word::METHOD>.begin());
  case 'S':
    return (seen_.method || seen_.body || seen_.schema) &&
           isAt(text_, at, word::SCHEMA_NAMED_BEGIN);
  case 'U': // a bare entry behind another
    return seen_.uniqueId && !seen_.inEntry && !seen_.method && !seen_.schema &&
           isAt(text_, at, element<word::UNIQUEID>.begin());
  case 'V':
    return apart && isAt(text_, at, element<word::VALUE>.begin());
  case 'C':
    return apart && isAt(text_, at, element<word::CALL_LOG_ENABLED>.begin());
  case 'E':
    return apart && isAt(text_, at, element<word::ENTRY>.begin());
  default:
    return false;
  }
}

/// Whether a tag in scanned text is none of the message.
bool Stream::isForeign(std::size_t at) const {
  return !seen_.inMethod && !seen_.inEntry && !seen_.inValue && !isKnown(text_, at);
}

/// Keeps what the tag tells about the message.
void Stream::take(std::size_t at) {
  auto const text = std::string_view(text_);
  seen_.any = true;
  auto const bracket = text.substr(0, at + longestTag).find_first_of("<>", at + 1);
  bool const isTag = bracket != npos && text[bracket] == '>' && bracket > at + 1;
  from_ = isTag ? bracket + 1 : at + 1;
  if (!isTag)
    return;
  lastEnd_ = from_;
  bool const close = text[at + 1] == '/';
  auto const name = text.substr(at + (close ? 2 : 1), bracket - at - (close ? 2 : 1));
  // A tag that readers do not know is part of the value around it.
  seen_.inValue = seen_.inValue && !isKnown(text, at);
  if (name == word::METHOD) {
    seen_.method = true;
    seen_.inMethod = !close;
  } else if (seen_.inMethod) {
    auto const* const method = findMethod(name);
    seen_.awaitsMore = method != nullptr && method->takes != Takes::nothing;
  } else if (name.substr(0, 1) == "?") {
    seen_.declared = true;
  } else if (isAt(text, at, word::SCHEMA_NAMED_BEGIN)) {
    seen_.schema = true;
  } else if (name == word::ENTRY) {
    seen_.inEntry = !close;
    seen_.inCalls = false;
    seen_.body = true;
  } else if (name == word::LOGLIST) {
    seen_.inCalls = !close;
    seen_.body = true;
    // The body of an entry ends with its calls.
    seen_.last = seen_.last || (close && !seen_.inEntry && !seen_.method);
  } else if (name == word::ITEM) {
    seen_.body = true;
  } else if (close) {
    seen_.last = seen_.last || (!seen_.inEntry && !seen_.inCalls &&
                                (name == word::HANDLE || name == word::VALUE ||
                                 name == word::CALL_LOG_ENABLED || name == word::SCHEMA));
  } else {
    seen_.inValue = true;
    seen_.awaitsMore = false;
    seen_.uniqueId = seen_.uniqueId || name == word::UNIQUEID;
    seen_.body = seen_.body || (name != word::ENTRYID && name != word::UNIQUEID);
  }
}

void Stream::emit(Found& found) {
  discard(start_);
  found.text.assign(text_, start_, end_ - start_);
  found.offset = offset_;
  found.line = line_;
  inMessage_ = false;
  // What begins like a message and holds no whole tag is passed over, or it would be found again.
  from_ = std::max(end_, start_ + 1);
  discard(from_);
}

void Stream::discard(std::size_t end) {
  auto const taken = std::string_view(text_).substr(0, end);
  for (auto at = findChar(taken, '\n', head_); at != npos; at = findChar(taken, '\n', at + 1))
    ++line_;
  offset_ += end - head_;
  head_ = end;
}

} // namespace inspect
