// The values inside the elements of a written entry: members of enumerations, flags, markup.
#include <climits>
#include <vector>

#include "records/TestedKinds.h"

using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;

namespace {

template <typename KindType>
std::string bodyOf(typename KindType::Item const& item) {
  std::string out;
  KindType::writeBody(item, out, false);
  return out;
}

template <typename KindType>
std::string callsOf(typename KindType::Info const& call) {
  typename KindType::Item item;
  item.callInfoList.push_back(call);
  std::string out;
  KindType::writeCalls(item, out);
  return out;
}

struct Written {
  int value;
  char const* text;
};

std::vector<Written> const NUMBER_TYPES = {
    {0, "NO_ICON"}, {1, "PRIVATE"},  {2, "BUSINESS1"},     {3, "BUSINESS2"},    {4, "MOBILE"},
    {5, "NO_ICON"}, {-1, "NO_ICON"}, {INT_MAX, "NO_ICON"}, {INT_MIN, "NO_ICON"}};
std::vector<Written> const TARGET_LOGS = {
    {0, "IN_ANSWERED"},  {1, "IN_NO_ANSWER"},   {2, "IN_BUSY"},       {3, "IN_GROUP_MISSED"},
    {4, "OUT_ANSWERED"}, {5, "OUT_NO_ANSWER"},  {6, "OUT_BUSY"},      {7, "OUT_BUSY"},
    {-1, "OUT_BUSY"},    {INT_MAX, "OUT_BUSY"}, {INT_MIN, "OUT_BUSY"}};
std::vector<Written> const PRESENTATIONS = {{0, "NOT_AVAILABLE"},      {1, "ALLOWED"},
                                            {2, "NOT_ALLOWED"},        {3, "NOT_AVAILABLE"},
                                            {-1, "NOT_AVAILABLE"},     {INT_MAX, "NOT_AVAILABLE"},
                                            {INT_MIN, "NOT_AVAILABLE"}};
std::vector<Written> const TIME_FORMATS = {
    {0, "FORM_24"},  {1, "FORM_AM"},       {2, "FORM_PM"},      {3, "FORM_24"},
    {-1, "FORM_24"}, {INT_MAX, "FORM_24"}, {INT_MIN, "FORM_24"}};

std::vector<Written> const& writtenFor(NumberType::NT) {
  return NUMBER_TYPES;
}
std::vector<Written> const& writtenFor(CallLogEntryEvent::_LogTarget) {
  return TARGET_LOGS;
}
std::vector<Written> const& writtenFor(CallLogEntryEvent::_PresentationValue) {
  return PRESENTATIONS;
}
std::vector<Written> const& writtenFor(CallLogEntryEvent::_TFormat) {
  return TIME_FORMATS;
}

// Every value is written once, in its element; the other elements stay as for a fresh call.
template <typename KindType, typename Enumeration>
void expectWritten(std::string const& element, Enumeration KindType::Info::*member) {
  typename KindType::Info call;
  std::string const fresh = callsOf<KindType>(call);
  std::string const begin = "<" + element + ">";
  auto const at = fresh.find(begin);
  ASSERT_NE(at, std::string::npos) << element;
  auto const valueAt = at + begin.size();
  auto const valueEnd = fresh.find("</" + element + ">", valueAt);
  for (Written const& row : writtenFor(Enumeration())) {
    call.*member = static_cast<Enumeration>(row.value);
    EXPECT_EQ(callsOf<KindType>(call), fresh.substr(0, valueAt) + row.text + fresh.substr(valueEnd))
        << element << " " << row.value;
  }
}

TEST(EncodedEnumerations, Missed) {
  using Info = Missed::Info;
  expectWritten<Missed>("NumberType", &Info::numberType);
  expectWritten<Missed>("ConnectedNumberType", &Info::connectedNumberType);
  expectWritten<Missed>("TargetLog", &Info::targetLog);
  expectWritten<Missed>("NumberPresentation", &Info::numberPresentation);
  expectWritten<Missed>("NamePresentation", &Info::namePresentation);
  expectWritten<Missed>("DeflectNumberPresentation", &Info::deflectNumberPresentation);
  expectWritten<Missed>("DeflectNumberType", &Info::deflectNumberType);
  expectWritten<Missed>("DeflectNamePresentation", &Info::deflectNamePresentation);
  expectWritten<Missed>("TimeFormat", &Info::timeFormat);
}

TEST(EncodedEnumerations, Dialled) {
  using Info = Dialled::Info;
  expectWritten<Dialled>("NumberType", &Info::numberType);
  expectWritten<Dialled>("ConnectedNumberType", &Info::connectedNumberType);
  expectWritten<Dialled>("TargetLog", &Info::targetLog);
  expectWritten<Dialled>("NumberPresentation", &Info::numberPresentation);
  expectWritten<Dialled>("NamePresentation", &Info::namePresentation);
  expectWritten<Dialled>("TimeFormat", &Info::timeFormat);
}

TEST(EncodedEnumerations, Received) {
  using Info = Received::Info;
  expectWritten<Received>("NumberType", &Info::numberType);
  expectWritten<Received>("ConnectedNumberType", &Info::connectedNumberType);
  expectWritten<Received>("TargetLog", &Info::targetLog);
  expectWritten<Received>("NumberPresentation", &Info::numberPresentation);
  expectWritten<Received>("NamePresentation", &Info::namePresentation);
  expectWritten<Received>("DeflectNumberPresentation", &Info::deflectNumberPresentation);
  expectWritten<Received>("DeflectNumberType", &Info::deflectNumberType);
  expectWritten<Received>("DeflectNamePresentation", &Info::deflectNamePresentation);
  expectWritten<Received>("TimeFormat", &Info::timeFormat);
}

TEST(EncodedEnumerations, Forwarded) {
  using Info = Forwarded::Info;
  expectWritten<Forwarded>("NumberType", &Info::numberType);
  expectWritten<Forwarded>("ConnectedNumberType", &Info::connectedNumberType);
}

TEST(EncodedFlags, ViewedIsWrittenForMissedEntriesAlone) {
  MissedCallItem item;
  EXPECT_EQ(bodyOf<Missed>(item), "<Viewed>False</Viewed><LogList></LogList>");
  item.viewed = true;
  EXPECT_EQ(bodyOf<Missed>(item), "<Viewed>True</Viewed><LogList></LogList>");
  EXPECT_EQ(bodyOf<Dialled>(Dialled::full()).find("Viewed"), std::string::npos);
  EXPECT_EQ(bodyOf<Received>(Received::full()).find("Viewed"), std::string::npos);
  EXPECT_EQ(bodyOf<Forwarded>(Forwarded::full()).find("Viewed"), std::string::npos);
}

TEST(EncodedFlags, PriorityIsWrittenWithoutConnectedNumberToo) {
  DialledCallItem::DialledCallInfo call;
  EXPECT_NE(callsOf<Dialled>(call).find("<NumberType>NO_ICON</NumberType>"
                                        "<ConnectedNumberPriority>False</ConnectedNumberPriority>"),
            std::string::npos);
  call.connectedNumberPriority = true;
  EXPECT_NE(callsOf<Dialled>(call).find("<NumberType>NO_ICON</NumberType>"
                                        "<ConnectedNumberPriority>True</ConnectedNumberPriority>"),
            std::string::npos);
}

std::string const MARKUP = "A&B <C> \"D\" 'E' &amp; &lt;";
std::string const ESCAPED = "A&amp;B &lt;C&gt; &quot;D&quot; &apos;E&apos; &amp;amp; &amp;lt;";

template <typename Record>
struct MarkupRow {
  std::string element;
  std::string Record::*text;
  bool escaped;
};

template <typename KindType>
void expectMarkup(std::vector<MarkupRow<typename KindType::Item>> const& rows) {
  for (auto const& row : rows) {
    typename KindType::Item item;
    std::string const fresh = bodyOf<KindType>(item);
    item.*row.text = MARKUP;
    // Every text stands in front of what a fresh entry consists of.
    EXPECT_EQ(bodyOf<KindType>(item), "<" + row.element + ">" + (row.escaped ? ESCAPED : MARKUP) +
                                          "</" + row.element + ">" + fresh);
  }
}

template <typename KindType>
void expectCallMarkup(std::vector<MarkupRow<typename KindType::Info>> const& rows) {
  for (auto const& row : rows) {
    typename KindType::Info call;
    std::string const fresh = callsOf<KindType>(call);
    call.*row.text = MARKUP;
    std::string const element =
        "<" + row.element + ">" + (row.escaped ? ESCAPED : MARKUP) + "</" + row.element + ">";
    std::string written = callsOf<KindType>(call);
    auto const at = written.find(element);
    ASSERT_NE(at, std::string::npos) << row.element << "\n" << written;
    EXPECT_EQ(written.erase(at, element.size()), fresh) << row.element;
  }
}

TEST(EncodedMarkup, MissedEntry) {
  using Item = MissedCallItem;
  expectMarkup<Missed>({{"UniqueId", &Item::uniqueId, false},
                        {"EntryId", &Item::entryId, false},
                        {"Surname", &Item::surname, true},
                        {"Firstname", &Item::firstname, true},
                        {"Picture", &Item::picture, false}});
}

TEST(EncodedMarkup, DialledEntry) {
  using Item = DialledCallItem;
  expectMarkup<Dialled>({{"UniqueId", &Item::uniqueId, false},
                         {"EntryId", &Item::entryId, false},
                         {"Surname", &Item::surname, true},
                         {"Firstname", &Item::firstname, true},
                         {"Picture", &Item::picture, false},
                         {"JSGroupBy", &Item::jsGroupBy, false}});
}

TEST(EncodedMarkup, ReceivedEntry) {
  using Item = ReceivedCallItem;
  expectMarkup<Received>({{"UniqueId", &Item::uniqueId, false},
                          {"EntryId", &Item::entryId, false},
                          {"Surname", &Item::surname, true},
                          {"Firstname", &Item::firstname, true},
                          {"Picture", &Item::picture, false}});
}

TEST(EncodedMarkup, ForwardedEntry) {
  using Item = ForwardedCallItem;
  expectMarkup<Forwarded>({{"UniqueId", &Item::uniqueId, false},
                           {"EntryId", &Item::entryId, false},
                           {"Surname", &Item::surname, true},
                           {"Firstname", &Item::firstname, true},
                           {"Picture", &Item::picture, false}});
}

TEST(EncodedMarkup, MissedCall) {
  using Info = Missed::Info;
  expectCallMarkup<Missed>({{"Number", &Info::number, false},
                            {"ConnectedNumber", &Info::connectedNumber, false},
                            {"ConnectedSurname", &Info::connectedSurname, false},
                            {"ConnectedFirstName", &Info::connectedFirstName, false},
                            {"TimeDate", &Info::timeDate, false},
                            {"DeflectNumber", &Info::deflectNumber, false},
                            {"DeflectName", &Info::deflectName, false}});
}

TEST(EncodedMarkup, DialledCall) {
  using Info = Dialled::Info;
  expectCallMarkup<Dialled>({{"Number", &Info::number, false},
                             {"ResolvedNumber", &Info::resolvedNumber, false},
                             {"ConnectedNumber", &Info::connectedNumber, false},
                             {"ConnectedSurname", &Info::connectedSurname, false},
                             {"ConnectedFirstName", &Info::connectedFirstName, false},
                             {"TimeDate", &Info::timeDate, false},
                             {"Duration", &Info::duration, false}});
}

TEST(EncodedMarkup, ReceivedCall) {
  using Info = Received::Info;
  expectCallMarkup<Received>({{"Number", &Info::number, false},
                              {"ConnectedNumber", &Info::connectedNumber, false},
                              {"ConnectedSurname", &Info::connectedSurname, false},
                              {"ConnectedFirstName", &Info::connectedFirstName, false},
                              {"TimeDate", &Info::timeDate, false},
                              {"Duration", &Info::duration, false},
                              {"DeflectNumber", &Info::deflectNumber, false},
                              {"DeflectName", &Info::deflectName, false}});
}

TEST(EncodedMarkup, OnlyForwardedCallsEscapeTheConnectedNames) {
  using Info = Forwarded::Info;
  expectCallMarkup<Forwarded>({{"Number", &Info::number, false},
                               {"ConnectedNumber", &Info::connectedNumber, false},
                               {"ConnectedSurname", &Info::connectedSurname, true},
                               {"ConnectedFirstName", &Info::connectedFirstName, true},
                               {"TimeDate", &Info::timeDate, false},
                               {"Duration", &Info::duration, false}});
}

// NUL and other control characters are bytes like any other.
TEST(EncodedMarkup, BytesAreCopied) {
  MissedCallItem item;
  item.uniqueId = std::string("a\0b", 3);
  item.surname = std::string("\0\n\xff", 3);
  EXPECT_EQ(bodyOf<Missed>(item), "<UniqueId>" + item.uniqueId + "</UniqueId><Surname>" +
                                      item.surname +
                                      "</Surname><Viewed>False</Viewed><LogList></LogList>");
}

} // namespace
