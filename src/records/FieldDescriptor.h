// Field descriptors: which element of a message carries which member of a record. All differences
// between the kinds of records are in their descriptors.
#ifndef JOURNAL_RECORDS_FIELDDESCRIPTOR_H
#define JOURNAL_RECORDS_FIELDDESCRIPTOR_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "CallLogEntryEvent.h"
#include "NumberType.h"
#include "convert/EnumTexts.h"
#include "vocabulary/Tags.h"

namespace journal {

/// What a member holds, and so how it is written and read.
enum class Content : std::uint8_t { text, flag, numberType, targetLog, presentation, timeFormat };

template <class Value>
inline constexpr Content contentOf = Content::text;
template <>
inline constexpr Content contentOf<bool> = Content::flag;
template <>
inline constexpr Content contentOf<NumberType::NT> = Content::numberType;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_LogTarget> = Content::targetLog;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_PresentationValue> = Content::presentation;
template <>
inline constexpr Content contentOf<CallLogEntryEvent::_TFormat> = Content::timeFormat;

/// The enumeration of every content except text.
inline constexpr Enumeration const* enumerations[] = {nullptr,     &flags,         &numberTypes,
                                                      &targetLogs, &presentations, &timeFormats};
constexpr Enumeration const& enumerationOf(Content content) {
  return *enumerations[static_cast<std::size_t>(content)];
}

/// The value of a member of any of the enumerations, which are all 32-bit.
using MemberValue [[gnu::may_alias]] = Enumeration::Value;

/// How an element is read.
enum class Reading : std::uint8_t {
  stored,
  discarded, // read, which may move the cursor, but its member keeps its value
  unclosed   // its begin tag is also searched for as its close tag, so what we write is never found
};

/// One element and the member that it carries. Descriptors know no record types, so one loop serves
/// all of them.
class FieldDescriptor {
public:
  /// @param offset of the member in its record
  constexpr FieldDescriptor(Element element, std::size_t offset, Content content)
      : tags_(element.offset()), nameSize_(element.nameSize()), content_(content),
        offset_(static_cast<std::uint16_t>(offset)), reading_(Reading::stored), escaped_(false),
        joined_(false) {}

  // ---- How a kind's field differs. Each returns the changed descriptor.

  /// Written escaped. Every text is unescaped when it is read.
  constexpr FieldDescriptor escaped() const {
    auto field = *this;
    field.escaped_ = true;
    return field;
  }
  constexpr FieldDescriptor discarded() const {
    auto field = *this;
    field.reading_ = Reading::discarded;
    return field;
  }
  constexpr FieldDescriptor unclosed() const {
    auto field = *this;
    field.reading_ = Reading::unclosed;
    return field;
  }

  // ---- What most records hold: literal runs, which a strict parser built for speed compares at
  // once. They never change a result.

  /// Most records hold this value.
  constexpr FieldDescriptor expected(int value) const {
    auto field = *this;
    field.expected_ = static_cast<std::int8_t>(value);
    return field;
  }
  /// Compared together with the field before. Most records that have the expected value there also
  /// have this field's, or no such element if it has no expected value.
  constexpr FieldDescriptor joined() const {
    auto field = *this;
    field.joined_ = true;
    return field;
  }

  // The element's tags.
  constexpr std::string_view begin() const { return Element(tags_, nameSize_).begin(); }
  constexpr std::string_view close() const { return Element(tags_, nameSize_).close(); }
  constexpr std::size_t nameSize() const { return nameSize_; }
  constexpr std::size_t tagsSize() const { return Element(tags_, nameSize_).size(); }
  constexpr Content content() const { return content_; }
  constexpr bool isEscaped() const { return escaped_; }
  constexpr Reading reading() const { return reading_; }
  constexpr bool isJoined() const { return joined_; }
  constexpr bool isExpected() const { return expected_ != none; }

  /// The tag that ends the element for a search.
  constexpr std::string_view searchedClose() const {
    return reading_ == Reading::unclosed ? begin() : close();
  }
  /// The expected value as text; absent when there is none.
  constexpr std::string_view expectedText() const {
    if (expected_ == none)
      return {};
    return enumerationOf(content_).textOf(expected_);
  }

  /// Where the member is in a record.
  void const* in(void const* record) const { return static_cast<char const*>(record) + offset_; }
  void* in(void* record) const { return static_cast<char*>(record) + offset_; }

private:
  static constexpr std::int8_t none = -1;

  std::uint16_t tags_;
  std::uint8_t nameSize_;
  Content content_;
  std::uint16_t offset_;
  Reading reading_ : 2;
  bool escaped_ : 1;
  bool joined_ : 1;
  std::int8_t expected_ = none;
};
static_assert(sizeof(FieldDescriptor) == 8);

} // namespace journal

#endif
