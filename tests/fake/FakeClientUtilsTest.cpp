// Which texts pass through the utility library, and which do not: the library is linked with one
// that returns E(text) for an escaped text, U(text) for an unescaped one and I(number) for a
// number.
#include <vector>

#include "records/CursorModel.h"

using Helper = JournalServiceHelper;
using cursor_model::Sort;
using cursor_model::tagged;
using kinds::Dialled;
using kinds::Forwarded;
using kinds::Missed;
using kinds::Received;

namespace {

template <typename KindType>
class Marked : public ::testing::Test {
protected:
  using Item = typename KindType::Item;
  using Info = typename KindType::Info;

  // What a field holds when its element is present with this text.
  static std::string valueOf(Sort sort, std::string const& text) {
    return cursor_model::valueOf(sort, sort == Sort::FLAG ? text : "U(" + text + ")");
  }

  template <typename Record>
  static void expectField(Record const& record, std::string const& field,
                          std::string const& expected) {
    record_fields::Fields fields = record_fields::of(Record());
    for (auto& [name, value] : fields)
      if (name == field)
        value = expected;
    EXPECT_EQ(record_fields::of(record), fields) << field;
  }
};

TYPED_TEST_SUITE(Marked, kinds::All, kinds::KindNames);

// Once asked for, a member's text gives the same again; other texts are asked for each time.
TYPED_TEST(Marked, EqualTextsReadTwice) {
  std::string const item = "<Item><NumberType>MOBILE</NumberType></Item>"
                           "<Item><NumberType>[MOBILE]</NumberType></Item>"
                           "<Item><NumberType>[PRIVATE]</NumberType></Item>";
  typename TypeParam::InfoList list;
  TypeParam::readCalls(("<LogList>" + item + item + "</LogList>").c_str(), list);
  std::vector<NumberType::NT> types;
  for (auto const& call : list)
    types.push_back(call.numberType);
  EXPECT_EQ(types, (std::vector<NumberType::NT>{NumberType::NO_ICON, NumberType::MOBILE,
                                                NumberType::PRIVATE, NumberType::NO_ICON,
                                                NumberType::MOBILE, NumberType::PRIVATE}));
}

// One element present: its text is unescaped, an enumeration's too, so that it names no member. The
// texts of the missing elements stay empty.
TYPED_TEST(Marked, ElementsOfACallRead) {
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    std::string const text = cursor_model::sampleValue(element);
    for (char const* before : {"", "\n"}) {
      typename TypeParam::Info call;
      TypeParam::readCall((before + cursor_model::sample(element)).c_str(), call);
      if (element.sort == Sort::PASSED_OVER)
        this->expectField(call, "none", "");
      else
        this->expectField(call, element.name, this->valueOf(element.sort, text));
    }
  }
}

TYPED_TEST(Marked, EveryMemberOfAnEnumerationReadIsNone) {
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    if (element.sort == Sort::FLAG)
      continue;
    for (std::string const& member : cursor_model::membersOf(element.sort)) {
      typename TypeParam::Info call;
      TypeParam::readCall(tagged(element.name, member).c_str(), call);
      EXPECT_EQ(call, typename TypeParam::Info()) << element.name << " " << member;
    }
  }
}

// A member is what the unescaped text names. A flag is read from the text as it is.
TYPED_TEST(Marked, EveryMemberIsReadFromTheUnescapedText) {
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    if (element.sort == Sort::PRESENTATION_BETWEEN_BEGINS)
      continue;
    for (std::string const& member : cursor_model::membersOf(element.sort)) {
      typename TypeParam::Info call;
      TypeParam::readCall(tagged(element.name, "[" + member + "]").c_str(), call);
      this->expectField(call, element.name, element.sort == Sort::FLAG ? "False" : member);
    }
  }
}

TYPED_TEST(Marked, AnEmptyElementReadIsPresent) {
  typename TypeParam::Info call;
  TypeParam::readCall("<Number></Number>", call);
  EXPECT_EQ(call.number, "U()");
  TypeParam::readCall("<Number>", call);
  EXPECT_EQ(call.number, "");
}

// Written in the writer's order, as a whole message: the same texts on the quick way.
TYPED_TEST(Marked, ALogRead) {
  std::string entry;
  for (auto const& element : cursor_model::entryOrder(TypeParam()))
    entry += cursor_model::sample(element);
  std::string item;
  for (auto const& element : cursor_model::callOrder(TypeParam()))
    item += tagged(element.name, cursor_model::sampleValue(element));
  entry += "<LogList><Item>" + item + "</Item></LogList>";

  typename TypeParam::Log log;
  TypeParam::readLog("<Entry>" + entry + "</Entry><Entry>" + entry + "</Entry>", log);
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(log[0], log[1]);
  auto fields = record_fields::of(log[0]);
  for (auto const& element : cursor_model::entryOrder(TypeParam())) {
    std::string const expected = this->valueOf(element.sort, cursor_model::sampleValue(element));
    for (auto const& [name, value] : fields)
      if (name == element.name) {
        EXPECT_EQ(value, expected) << name;
      }
  }
  ASSERT_EQ(log[0].callInfoList.size(), 1U);
  fields = record_fields::of(log[0].callInfoList.front());
  for (auto const& element : cursor_model::callOrder(TypeParam())) {
    for (auto const& [name, value] : fields)
      if (name == element.name && element.sort != Sort::PASSED_OVER) {
        EXPECT_EQ(value, this->valueOf(element.sort, cursor_model::sampleValue(element))) << name;
      }
  }
}

TYPED_TEST(Marked, ElementsOfAnEntryRead) {
  for (auto const& element : cursor_model::entryOrder(TypeParam())) {
    for (char const* before : {"", "\n"}) {
      typename TypeParam::Item item;
      TypeParam::readItem((before + cursor_model::sample(element)).c_str(), item);
      this->expectField(item, element.name,
                        this->valueOf(element.sort, cursor_model::sampleValue(element)));
    }
  }
}

// The handle's text is unescaped before it is read as a number.
TYPED_TEST(Marked, AHandleRead) {
  typename TypeParam::Log log;
  unsigned int handle = 99;
  TypeParam::readLogAndHandle("<Handle>42</Handle>", log, handle);
  EXPECT_EQ(handle, 0U);
  TypeParam::readLogAndHandle("<Handle>[42]</Handle>", log, handle);
  EXPECT_EQ(handle, 42U);
}

TYPED_TEST(Marked, AHandleWritten) {
  auto const response = TypeParam::respond({}, 4294967295U);
  EXPECT_EQ(response.substr(response.find("<Handle>")), "<Handle>I(-1)</Handle>");
  auto const notification =
      TypeParam::notify({}, "a&b", JournalServiceObserverIfc::ENTRY_CHANGED, 7);
  EXPECT_EQ(notification.substr(notification.find("<UniqueIdToDelete>")),
            "<UniqueIdToDelete>a&b</UniqueIdToDelete><ActionType>1</ActionType>"
            "<Handle>I(7)</Handle>");
}

// Whether an escaped field is empty is asked of the escaped text.
TYPED_TEST(Marked, AFreshEntryWritten) {
  std::string out;
  TypeParam::writeBody({}, out, false);
  bool const missed = std::is_same_v<TypeParam, Missed>;
  EXPECT_EQ(out, std::string("<Surname>E()</Surname><Firstname>E()</Firstname>") +
                     (missed ? "<Viewed>False</Viewed>" : "") + "<LogList></LogList>");
  out.clear();
  TypeParam::writeBody({}, out, true);
  EXPECT_EQ(out, "");
}

TYPED_TEST(Marked, TheUniqueIdWrittenAlone) {
  typename TypeParam::Item item;
  item.uniqueId = "a";
  std::string out;
  TypeParam::writeBody(item, out, true);
  EXPECT_EQ(out, "<UniqueId>a</UniqueId>");
}

template <typename KindType>
void setEntryTexts(typename KindType::Item& item) {
  item.uniqueId = "u";
  item.entryId = "e";
  item.surname = "s";
  item.firstname = "f";
  item.picture = "p";
  item.callInfoList.emplace_back();
  auto& call = item.callInfoList.back();
  call.infoKey = "never";
  call.number = "n";
  call.connectedNumber = "c";
  call.connectedSurname = "cs";
  call.connectedFirstName = "cf";
  call.timeDate = "t";
}

template <typename KindType>
std::string written(typename KindType::Item const& item) {
  std::string out;
  KindType::writeBody(item, out, false);
  return out;
}

std::string const NAMED_ENTRY = "<UniqueId>u</UniqueId><EntryId>e</EntryId>"
                                "<Surname>E(s)</Surname><Firstname>E(f)</Firstname>"
                                "<Picture>p</Picture>";

TEST(MarkedEntryWritten, Missed) {
  MissedCallItem item;
  setEntryTexts<Missed>(item);
  item.callInfoList.back().deflectNumber = "d";
  item.callInfoList.back().deflectName = "dn";
  EXPECT_EQ(written<Missed>(item),
            NAMED_ENTRY +
                "<Viewed>False</Viewed><LogList><Item><Number>n</Number>"
                "<NumberType>NO_ICON</NumberType><ConnectedNumber>c</ConnectedNumber>"
                "<ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                "<ConnectedSurname>cs</ConnectedSurname>"
                "<ConnectedFirstName>cf</ConnectedFirstName><TimeDate>t</TimeDate>"
                "<TargetLog>OUT_BUSY</TargetLog>"
                "<NumberPresentation>NOT_AVAILABLE</NumberPresentation>"
                "<NamePresentation>NOT_AVAILABLE</NamePresentation>"
                "<DeflectNumberPresentation>NOT_AVAILABLE</DeflectNumberPresentation>"
                "<DeflectNumber>d</DeflectNumber><DeflectNumberType>NO_ICON</DeflectNumberType>"
                "<DeflectNamePresentation>NOT_AVAILABLE</DeflectNamePresentation>"
                "<DeflectName>dn</DeflectName><TimeFormat>FORM_24</TimeFormat></Item></LogList>");
}

TEST(MarkedEntryWritten, Dialled) {
  DialledCallItem item;
  setEntryTexts<Dialled>(item);
  item.jsGroupBy = "g";
  item.callInfoList.back().resolvedNumber = "r";
  item.callInfoList.back().duration = "du";
  EXPECT_EQ(written<Dialled>(item),
            NAMED_ENTRY + "<JSGroupBy>g</JSGroupBy><LogList><Item><Number>n</Number>"
                          "<NumberType>NO_ICON</NumberType><ResolvedNumber>r</ResolvedNumber>"
                          "<ConnectedNumber>c</ConnectedNumber>"
                          "<ConnectedNumberPriority>False</ConnectedNumberPriority>"
                          "<ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                          "<ConnectedSurname>cs</ConnectedSurname>"
                          "<ConnectedFirstName>cf</ConnectedFirstName><TimeDate>t</TimeDate>"
                          "<Duration>du</Duration><TargetLog>OUT_BUSY</TargetLog>"
                          "<NumberPresentation>NOT_AVAILABLE</NumberPresentation>"
                          "<NamePresentation>NOT_AVAILABLE</NamePresentation>"
                          "<TimeFormat>FORM_24</TimeFormat></Item></LogList>");
}

TEST(MarkedEntryWritten, Received) {
  ReceivedCallItem item;
  setEntryTexts<Received>(item);
  item.callInfoList.back().deflectNumber = "d";
  item.callInfoList.back().deflectName = "dn";
  item.callInfoList.back().duration = "du";
  EXPECT_EQ(written<Received>(item),
            NAMED_ENTRY +
                "<LogList><Item><Number>n</Number>"
                "<NumberType>NO_ICON</NumberType><ConnectedNumber>c</ConnectedNumber>"
                "<ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                "<ConnectedSurname>cs</ConnectedSurname>"
                "<ConnectedFirstName>cf</ConnectedFirstName><TimeDate>t</TimeDate>"
                "<Duration>du</Duration><TargetLog>OUT_BUSY</TargetLog>"
                "<NumberPresentation>NOT_AVAILABLE</NumberPresentation>"
                "<NamePresentation>NOT_AVAILABLE</NamePresentation>"
                "<DeflectNumberPresentation>NOT_AVAILABLE</DeflectNumberPresentation>"
                "<DeflectNumber>d</DeflectNumber><DeflectNumberType>NO_ICON</DeflectNumberType>"
                "<DeflectNamePresentation>NOT_AVAILABLE</DeflectNamePresentation>"
                "<DeflectName>dn</DeflectName><TimeFormat>FORM_24</TimeFormat></Item></LogList>");
}

TEST(MarkedEntryWritten, Forwarded) {
  ForwardedCallItem item;
  setEntryTexts<Forwarded>(item);
  item.callInfoList.back().duration = "du";
  item.callInfoList.emplace_back();
  EXPECT_EQ(written<Forwarded>(item),
            NAMED_ENTRY + "<LogList><Item><Number>n</Number><NumberType>NO_ICON</NumberType>"
                          "<ConnectedNumber>c</ConnectedNumber>"
                          "<ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                          "<ConnectedSurname>E(cs)</ConnectedSurname>"
                          "<ConnectedFirstName>E(cf)</ConnectedFirstName><TimeDate>t</TimeDate>"
                          "<Duration>du</Duration></Item>"
                          "<Item><NumberType>NO_ICON</NumberType>"
                          "<ConnectedNumberType>NO_ICON</ConnectedNumberType>"
                          "<ConnectedSurname>E()</ConnectedSurname>"
                          "<ConnectedFirstName>E()</ConnectedFirstName></Item></LogList>");
}

TEST(MarkedMessage, TextsReadFromAMessage) {
  std::string value = "before";
  EXPECT_TRUE(Helper::getXMLValue("<Number>1</Number>", "Number", value));
  EXPECT_EQ(value, "U(1)");
  EXPECT_FALSE(Helper::getXMLValue("<Number></Number>", "Number", value));
  EXPECT_EQ(value, "U(1)");

  Helper::getXMLValue("<Number>2</Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "U(2)");
  Helper::getXMLValue("<Number></Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "U()");
  Helper::getXMLValue("<Number>", "<Number>", "</Number>", value);
  EXPECT_EQ(value, "");

  DialledCallItem last;
  Helper::parseXMLGetLastDialledNumber("<EntryId>9</EntryId>", last);
  EXPECT_EQ(last.entryId, "U(9)");

  std::string message = "<Entry><UniqueId>7</UniqueId></Entry>";
  EXPECT_TRUE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "U(7)");
  message = "<Entry><UniqueId></UniqueId></Entry>";
  EXPECT_TRUE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "U()");
}

// The values that are made from a text are made from the unescaped one.
TEST(MarkedMessage, ValuesReadFromAMessage) {
  auto type = NumberType::PRIVATE;
  EXPECT_TRUE(Helper::getXMLValue("<NumberType>MOBILE</NumberType>", "NumberType", type));
  EXPECT_EQ(type, NumberType::NO_ICON);
  bool flag = true;
  EXPECT_TRUE(Helper::getXMLValue("<Viewed>True</Viewed>", "Viewed", flag));
  EXPECT_FALSE(flag);
  unsigned int number = 99;
  EXPECT_TRUE(Helper::getXMLValue("<Value>42</Value>", "Value", number));
  EXPECT_EQ(number, 0U);
  EXPECT_TRUE(Helper::getXMLValue("<NumberType>[MOBILE]</NumberType>", "NumberType", type));
  EXPECT_EQ(type, NumberType::MOBILE);
  EXPECT_TRUE(Helper::getXMLValue("<Viewed>[True]</Viewed>", "Viewed", flag));
  EXPECT_TRUE(flag);
  EXPECT_TRUE(Helper::getXMLValue("<Value>[42]</Value>", "Value", number));
  EXPECT_EQ(number, 42U);
  std::string value = "before";
  std::string message = "<Entry><UniqueId>[]</UniqueId></Entry>";
  EXPECT_FALSE(Helper::parseLastUniqueId(message, value));
  EXPECT_EQ(value, "before");
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>[true]</CallLogEnabled>"));
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>[]</CallLogEnabled>"));
  EXPECT_FALSE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>true</CallLogEnabled>"));
  EXPECT_FALSE(Helper::parseXMLEnabledStateItem("<CallLogEnabled></CallLogEnabled>"));
  EXPECT_TRUE(Helper::parseXMLEnabledStateItem("<CallLogEnabled>"));
}

TEST(MarkedMessage, RawReading) {
  bool flag = false;
  Helper::getXMLValue("<Viewed>True</Viewed>", "<Viewed>", "</Viewed>", flag);
  EXPECT_TRUE(flag);
  Helper::getXMLValue("<Viewed>[True]</Viewed>", "<Viewed>", "</Viewed>", flag);
  EXPECT_FALSE(flag);
  std::string text = "<Number>1</Number>";
  std::string value;
  EXPECT_TRUE(Helper::getAndRemoveXMLValue(text, "Number", value));
  EXPECT_EQ(value, "1");
  EXPECT_EQ(text, "");
  EXPECT_EQ(Helper::getMethodFromXMLMsg("<Method><subscribe></Method>"), 18U);
  EXPECT_TRUE(Helper::isNonFailureResponse("<Value>Success</Value>"));
}

TEST(MarkedMessage, RawWriting) {
  std::string const declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
  EXPECT_EQ(Helper::createXMLField("Surname", std::string("&")), "<Surname>&</Surname>");
  EXPECT_EQ(Helper::createXMLField("Surname", "&"), "<Surname>&</Surname>");
  EXPECT_EQ(Helper::createXMLField("Value", 4294967295U), "<Value>-1</Value>");
  EXPECT_EQ(Helper::createXMLField("Viewed", true), "<Viewed>True</Viewed>");
  EXPECT_EQ(Helper::createXMLBegin("&"), "<&>");
  EXPECT_EQ(Helper::createXMLClose("&"), "</&>");
  EXPECT_EQ(Helper::createXMLSchemaField("&"), "<Schema>&");
  EXPECT_EQ(Helper::createXMLEntryIDList({"&"}), "<EntryId>&</EntryId>");
  EXPECT_EQ(Helper::convertNumberType(NumberType::MOBILE), "MOBILE");
  EXPECT_EQ(Helper::convertNumberType("MOBILE"), NumberType::MOBILE);
  EXPECT_EQ(Helper::reqDeleteMissedCall("&"),
            declaration + "<Method><deleteMissedCall></Method><EntryId>&</EntryId>");
  EXPECT_EQ(Helper::reqDeleteForwardedCallList({"&"}),
            declaration + "<Method><deleteForwardedCallList></Method><EntryId>&</EntryId>");
  EXPECT_EQ(Helper::readEnabledState(),
            declaration + "<Schema name=\"CallLogSettings\">"
                          "<ReasonForMessage>read_request</ReasonForMessage></Schema>");
  EXPECT_EQ(Helper::obsReqMissedCallsCountUpdate(3),
            declaration + "<Method><missedCallsCountUpdate></Method><Value>3</Value>");
  EXPECT_EQ(Helper::obsReqMissedGroupCallsUpdate(3),
            declaration + "<Method><missedGroupCallsUpdate></Method><Value>3</Value>");
  std::string message = "&";
  Helper::addXMLHeaderFooter(message, "&");
  EXPECT_EQ(message, declaration + "<Schema name=\"&\">&</Schema>");
  EXPECT_TRUE(Helper::addSuccessResp(message = ""));
  EXPECT_EQ(message, "<Value>Success</Value>");
}

} // namespace
