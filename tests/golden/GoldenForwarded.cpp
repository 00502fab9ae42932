// The forwarded-call records of the golden messages.
#include "golden/GoldenRecords.h"

namespace golden {
namespace {

ForwardedCallItem::ForwardedCallInfo fullCall() {
  ForwardedCallItem::ForwardedCallInfo call;
  call.infoKey = "holder's key";
  call.number = "333";
  call.numberType = NumberType::MOBILE;
  call.connectedNumber = "444&555";
  call.connectedNumberType = NumberType::BUSINESS1;
  call.connectedSurname = "Черных & <Сын>";
  call.connectedFirstName = "D'Arc";
  call.duration = "00:00:59";
  call.timeDate = "2007-05-15 00:00:01";
  return call;
}

ForwardedCallItem::ForwardedCallInfo secondCall() {
  ForwardedCallItem::ForwardedCallInfo call;
  call.number = "334";
  call.numberType = NumberType::BUSINESS2;
  call.connectedNumberType = NumberType::PRIVATE;
  call.duration = "&lt;1 min";
  return call;
}

} // namespace

template <>
unsigned int const Records<ForwardedCallItem>::HANDLE = 4294967295; // written "-1"

template <>
ForwardedCallItem Records<ForwardedCallItem>::full() {
  ForwardedCallItem item;
  item.uniqueId = "F-4001";
  item.entryId = "75";
  item.surname = "Nováková";
  item.firstname = "Jiřina \"Jiří\"";
  item.picture = "75";
  item.callInfoList = {fullCall(), secondCall()};
  return item;
}

template <>
ForwardedCallItem Records<ForwardedCallItem>::decodedFull() {
  ForwardedCallItem item = members::asRead(full());
  item.callInfoList.back().duration = "<1 min";
  return item;
}

template <>
ForwardedCallItem Records<ForwardedCallItem>::sparse() {
  ForwardedCallItem item;
  item.surname = "&";
  item.callInfoList.emplace_back();
  return item;
}

template <>
std::deque<ForwardedCallItem> Records<ForwardedCallItem>::log() {
  ForwardedCallItem named;
  named.uniqueId = "F-4003";
  named.surname = "<LogList>Þór";
  return {full(), sparse(), named};
}

} // namespace golden
