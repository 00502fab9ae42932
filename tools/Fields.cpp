// The fields of the four records, in the order in which messages carry them.
#include "Fields.h"

#include <ostream>
#include <string>

#include "JournalServiceHelper.h"
#include "SafeText.h"

namespace {

using J = JournalServiceHelper;

std::string wordOf(std::string const& text) {
  return safeText(text);
}
std::string wordOf(bool flag) {
  return flag ? "true" : "false";
}
std::string wordOf(NumberType::NT type) {
  return J::convertNumberType(type);
}
std::string wordOf(CallLogEntryEvent::_TFormat format) {
  return J::convertTimeFormat(format);
}
std::string wordOf(CallLogEntryEvent::_LogTarget target) {
  return J::convertTargetLog(target);
}
std::string wordOf(CallLogEntryEvent::_PresentationValue presentation) {
  return J::convertPresentationValue(presentation);
}

/// Takes the fields of one record, each by its name and its member.
template <class Record>
class Fields {
public:
  Fields(std::ostream& stream, char const* indentation, Record const& source)
      : out(stream), indent(indentation), record(source) {}

  template <class Member>
  Fields& operator()(char const* name, Member Record::*member) {
    out << indent << name << ": " << wordOf(record.*member) << '\n';
    return *this;
  }

private:
  std::ostream& out;
  char const* indent;
  Record const& record;
};

template <class Call>
void connected(Fields<Call>& fields) {
  fields("connectedNumberType", &Call::connectedNumberType)(
      "connectedSurname", &Call::connectedSurname)("connectedFirstName", &Call::connectedFirstName);
}

template <class Call>
void presentations(Fields<Call>& fields) {
  fields("targetLog", &Call::targetLog)("numberPresentation", &Call::numberPresentation)(
      "namePresentation", &Call::namePresentation)("timeFormat", &Call::timeFormat);
}

template <class Call>
void deflection(Fields<Call>& fields) {
  fields("deflectNumberPresentation", &Call::deflectNumberPresentation)(
      "deflectNumber", &Call::deflectNumber)("deflectNumberType", &Call::deflectNumberType)(
      "deflectNamePresentation", &Call::deflectNamePresentation)("deflectName", &Call::deflectName);
}

template <class Call>
void common(Fields<Call>& fields) {
  fields("number", &Call::number)("numberType", &Call::numberType)("timeDate", &Call::timeDate)(
      "connectedNumber", &Call::connectedNumber);
  connected(fields);
}

void own(Fields<MissedCallItem::MissedCallInfo>& fields) {
  presentations(fields);
  deflection(fields);
}

void own(Fields<DialledCallItem::DialledCallInfo>& fields) {
  using Call = DialledCallItem::DialledCallInfo;
  fields("resolvedNumber", &Call::resolvedNumber)(
      "connectedNumberPriority", &Call::connectedNumberPriority)("duration", &Call::duration);
  presentations(fields);
}

void own(Fields<ReceivedCallItem::ReceivedCallInfo>& fields) {
  fields("duration", &ReceivedCallItem::ReceivedCallInfo::duration);
  presentations(fields);
  deflection(fields);
}

void own(Fields<ForwardedCallItem::ForwardedCallInfo>& fields) {
  fields("duration", &ForwardedCallItem::ForwardedCallInfo::duration);
}

void own(Fields<MissedCallItem>& fields) {
  fields("viewed", &MissedCallItem::viewed);
}
void own(Fields<DialledCallItem>& fields) {
  fields("jsGroupBy", &DialledCallItem::jsGroupBy);
}
template <class Item>
void own(Fields<Item>&) {}

template <class Call>
void printCall(std::ostream& out, std::size_t number, Call const& call) {
  out << "    call " << number << '\n';
  Fields<Call> fields(out, "      ", call);
  common(fields);
  own(fields);
}

template <class Item>
void print(std::ostream& out, std::size_t number, Item const& item) {
  out << "  entry " << number << '\n';
  Fields<Item> fields(out, "    ", item);
  fields("uniqueId", &Item::uniqueId)("entryId", &Item::entryId)("surname", &Item::surname)(
      "firstname", &Item::firstname)("picture", &Item::picture);
  own(fields);
  std::size_t calls = 0;
  for (auto const& call : item.callInfoList)
    printCall(out, ++calls, call);
}

} // namespace

void printEntry(std::ostream& out, std::size_t number, MissedCallItem const& item) {
  print(out, number, item);
}
void printEntry(std::ostream& out, std::size_t number, DialledCallItem const& item) {
  print(out, number, item);
}
void printEntry(std::ostream& out, std::size_t number, ReceivedCallItem const& item) {
  print(out, number, item);
}
void printEntry(std::ostream& out, std::size_t number, ForwardedCallItem const& item) {
  print(out, number, item);
}
