// The missed-call records of the golden messages.
#include "golden/GoldenRecords.h"

namespace golden {
namespace {

MissedCallItem::MissedCallInfo fullCall() {
  MissedCallItem::MissedCallInfo call;
  call.infoKey = "holder's key";
  call.targetLog = CallLogEntryEvent::IN_NO_ANSWER;
  call.numberPresentation = CallLogEntryEvent::ALLOWED;
  call.number = "+4930901820";
  call.namePresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.numberType = NumberType::MOBILE;
  call.connectedNumber = "+4930901821";
  call.connectedNumberType = NumberType::BUSINESS1;
  call.connectedSurname = "Łukasiewicz";
  call.connectedFirstName = "Anna & Co";
  call.deflectNumberPresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.deflectNumber = "5559";
  call.deflectNumberType = NumberType::BUSINESS2;
  call.deflectNamePresentation = CallLogEntryEvent::ALLOWED;
  call.deflectName = "Zentrale <1>";
  call.timeFormat = CallLogEntryEvent::FORM_PM;
  call.timeDate = "2007-05-14 09:31:07";
  return call;
}

MissedCallItem::MissedCallInfo secondCall() {
  MissedCallItem::MissedCallInfo call;
  call.targetLog = CallLogEntryEvent::IN_GROUP_MISSED;
  call.numberPresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.number = "110";
  call.connectedNumberType = NumberType::PRIVATE;
  call.deflectNumberPresentation = CallLogEntryEvent::ALLOWED;
  call.deflectNumberType = NumberType::MOBILE;
  call.deflectNamePresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.timeFormat = CallLogEntryEvent::FORM_AM;
  call.timeDate = "14.05.2007 11:02";
  return call;
}

} // namespace

template <>
unsigned int const Records<MissedCallItem>::HANDLE = 7;

template <>
MissedCallItem Records<MissedCallItem>::full() {
  MissedCallItem item;
  item.uniqueId = "M-1001";
  item.entryId = "71";
  item.surname = "Müller & Söhne <\"Köln\">";
  item.firstname = "Zoë 'Z'";
  item.picture = "pics/71.png?a=1&amp;b=2";
  item.callInfoList = {fullCall(), secondCall()};
  item.viewed = true;
  return item;
}

template <>
MissedCallItem Records<MissedCallItem>::decodedFull() {
  MissedCallItem item = members::asRead(full());
  item.picture = "pics/71.png?a=1&b=2";
  return item;
}

template <>
MissedCallItem Records<MissedCallItem>::sparse() {
  MissedCallItem item;
  item.entryId = "8";
  item.callInfoList.emplace_back();
  return item;
}

template <>
std::deque<MissedCallItem> Records<MissedCallItem>::log() {
  MissedCallItem named;
  named.uniqueId = "M-1002";
  named.surname = "<b>李 & 王</b>";
  named.firstname = "</Firstname>😀";
  MissedCallItem viewed;
  viewed.viewed = true;
  return {full(), named, sparse(), viewed};
}

} // namespace golden
