// The received-call records of the golden messages.
#include "golden/GoldenRecords.h"

namespace golden {
namespace {

ReceivedCallItem::ReceivedCallInfo fullCall() {
  ReceivedCallItem::ReceivedCallInfo call;
  call.infoKey = "holder's key";
  call.targetLog = CallLogEntryEvent::IN_ANSWERED;
  call.numberPresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.number = "5551234";
  call.namePresentation = CallLogEntryEvent::ALLOWED;
  call.numberType = NumberType::BUSINESS2;
  call.deflectNumberPresentation = CallLogEntryEvent::ALLOWED;
  call.connectedNumber = "5551235";
  call.deflectNumber = "5551236";
  call.connectedNumberType = NumberType::PRIVATE;
  call.connectedSurname = "Smith & Wesson";
  call.connectedFirstName = "<Ann>";
  call.deflectNumberType = NumberType::MOBILE;
  call.deflectNamePresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.deflectName = "Büro";
  call.duration = "65 s";
  call.timeFormat = CallLogEntryEvent::FORM_PM;
  call.timeDate = "2007-05-14 20:15:00";
  return call;
}

ReceivedCallItem::ReceivedCallInfo secondCall() {
  ReceivedCallItem::ReceivedCallInfo call;
  call.targetLog = CallLogEntryEvent::IN_BUSY;
  call.numberPresentation = CallLogEntryEvent::ALLOWED;
  call.number = "0";
  call.namePresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.numberType = NumberType::MOBILE;
  call.deflectNumberPresentation = CallLogEntryEvent::NOT_ALLOWED;
  call.connectedNumberType = NumberType::BUSINESS1;
  call.deflectNumberType = NumberType::PRIVATE;
  call.deflectNamePresentation = CallLogEntryEvent::ALLOWED;
  call.duration = "1";
  call.timeFormat = CallLogEntryEvent::FORM_AM;
  return call;
}

} // namespace

template <>
unsigned int const Records<ReceivedCallItem>::HANDLE = 2147483647;

template <>
ReceivedCallItem Records<ReceivedCallItem>::full() {
  ReceivedCallItem item;
  item.uniqueId = "R-3001";
  item.entryId = "74";
  item.surname = "Ångström";
  item.firstname = "Åsa \"Å\" &amp;";
  item.picture = "74.bmp";
  item.callInfoList = {fullCall(), secondCall()};
  return item;
}

template <>
ReceivedCallItem Records<ReceivedCallItem>::decodedFull() {
  ReceivedCallItem item = members::asRead(full());
  return item;
}

template <>
ReceivedCallItem Records<ReceivedCallItem>::sparse() {
  ReceivedCallItem item;
  item.uniqueId = "0";
  item.callInfoList.emplace_back();
  return item;
}

template <>
std::deque<ReceivedCallItem> Records<ReceivedCallItem>::log() {
  ReceivedCallItem named;
  named.entryId = "9";
  named.firstname = "Ἀθηνᾶ '<Handle>1</Handle>'";
  return {ReceivedCallItem(), full(), sparse(), named};
}

} // namespace golden
