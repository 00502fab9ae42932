// The dialled-call records of the golden messages.
#include "golden/GoldenRecords.h"

namespace golden {
namespace {

DialledCallItem::DialledCallInfo fullCall() {
  DialledCallItem::DialledCallInfo call;
  call.infoKey = "holder's key";
  call.targetLog = CallLogEntryEvent::OUT_ANSWERED;
  call.numberPresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.number = "0049891234";
  call.resolvedNumber = "+49891234";
  call.connectedNumberPriority = true;
  call.namePresentation = CallLogEntryEvent::ALLOWED;
  call.numberType = NumberType::BUSINESS1;
  call.connectedNumber = "+49895678";
  call.connectedNumberType = NumberType::MOBILE;
  call.connectedSurname = "Weiß & Sohn";
  call.connectedFirstName = "Jürgen &lt;J&gt;";
  call.duration = "00:03:21";
  call.timeFormat = CallLogEntryEvent::FORM_AM;
  call.timeDate = "2007-05-14 18:00:00";
  return call;
}

DialledCallItem::DialledCallInfo secondCall() {
  DialledCallItem::DialledCallInfo call;
  call.targetLog = CallLogEntryEvent::OUT_NO_ANSWER;
  call.numberPresentation = CallLogEntryEvent::ALLOWED;
  call.number = "*21#";
  call.namePresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.numberType = NumberType::PRIVATE;
  call.connectedNumberType = NumberType::BUSINESS2;
  call.duration = "0";
  call.timeFormat = CallLogEntryEvent::FORM_PM;
  call.timeDate = "2007-05-13 07:59:59";
  return call;
}

} // namespace

template <>
unsigned int const Records<DialledCallItem>::HANDLE = 0;

template <>
DialledCallItem Records<DialledCallItem>::full() {
  DialledCallItem item;
  item.uniqueId = "D-2001";
  item.entryId = "72&73";
  item.surname = "O'Brien";
  item.firstname = "Siobhán <Sí>";
  item.jsGroupBy = "day=2007-05-14&amp;week=20";
  item.callInfoList = {fullCall(), secondCall()};
  item.picture = "tel:72.jpg";
  return item;
}

template <>
DialledCallItem Records<DialledCallItem>::decodedFull() {
  DialledCallItem item = members::asRead(full());
  item.jsGroupBy = "day=2007-05-14&week=20";
  item.callInfoList.front().connectedFirstName = "Jürgen <J>";
  return item;
}

template <>
DialledCallItem Records<DialledCallItem>::sparse() {
  DialledCallItem item;
  item.firstname = "Ж";
  item.callInfoList.emplace_back();
  return item;
}

template <>
std::deque<DialledCallItem> Records<DialledCallItem>::log() {
  DialledCallItem named;
  named.surname = "</Entry>";
  named.firstname = "&lt;ñ&gt;";
  named.jsGroupBy = "g";
  return {sparse(), full(), named};
}

} // namespace golden
