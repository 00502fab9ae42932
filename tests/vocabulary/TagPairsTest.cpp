// Begin and close tags and the element names they belong to.
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "JournalServiceHelper.h"

namespace {

using J = JournalServiceHelper;

struct Pair {
  std::string const* name;
  std::string const* begin;
  std::string const* close;
  char const* literal;
};

// clang-format off
constexpr Pair regularPairs[] = {
    {&J::REASONFORMESSAGE, &J::REASONFORMESSAGE_XML_BEGIN, &J::REASONFORMESSAGE_XML_CLOSE, "ReasonForMessage"},
    {&J::METHOD, &J::METHOD_XML_BEGIN, &J::METHOD_XML_CLOSE, "Method"},
    {&J::ENTRY, &J::ENTRY_XML_BEGIN, &J::ENTRY_XML_CLOSE, "Entry"},
    {&J::LOGLIST, &J::LOGLIST_XML_BEGIN, &J::LOGLIST_XML_CLOSE, "LogList"},
    {&J::ITEM, &J::ITEM_XML_BEGIN, &J::ITEM_XML_CLOSE, "Item"},
    {&J::ACTIONTYPE, &J::ACTIONTYPE_XML_BEGIN, &J::ACTIONTYPE_XML_CLOSE, "ActionType"},
    {&J::UNIQUEIDTODELETE, &J::UNIQUEIDTODELETE_XML_BEGIN, &J::UNIQUEIDTODELETE_XML_CLOSE, "UniqueIdToDelete"},
    {&J::UNIQUEID, &J::UNIQUEID_XML_BEGIN, &J::UNIQUEID_XML_CLOSE, "UniqueId"},
    {&J::ENTRYID, &J::ENTRYID_XML_BEGIN, &J::ENTRYID_XML_CLOSE, "EntryId"},
    {&J::SURNAME, &J::SURNAME_XML_BEGIN, &J::SURNAME_XML_CLOSE, "Surname"},
    {&J::FIRSTNAME, &J::FIRSTNAME_XML_BEGIN, &J::FIRSTNAME_XML_CLOSE, "Firstname"},
    {&J::PICTURE, &J::PICTURE_XML_BEGIN, &J::PICTURE_XML_CLOSE, "Picture"},
    {&J::JSGROUPBY, &J::JSGROUPBY_XML_BEGIN, &J::JSGROUPBY_XML_CLOSE, "JSGroupBy"},
    {&J::NUMBER, &J::NUMBER_XML_BEGIN, &J::NUMBER_XML_CLOSE, "Number"},
    {&J::NUMBERTYPE, &J::NUMBERTYPE_XML_BEGIN, &J::NUMBERTYPE_XML_CLOSE, "NumberType"},
    {&J::RESOLVEDNUMBER, &J::RESOLVEDNUMBER_XML_BEGIN, &J::RESOLVEDNUMBER_XML_CLOSE, "ResolvedNumber"},
    {&J::CONNECTEDNUMBER, &J::CONNECTEDNUMBER_XML_BEGIN, &J::CONNECTEDNUMBER_XML_CLOSE, "ConnectedNumber"},
    {&J::CONNECTEDNUMBERPRIORITY, &J::CONNECTEDNUMBERPRIORITY_XML_BEGIN, &J::CONNECTEDNUMBERPRIORITY_XML_CLOSE, "ConnectedNumberPriority"},
    {&J::CONNECTEDNUMBERTYPE, &J::CONNECTEDNUMBERTYPE_XML_BEGIN, &J::CONNECTEDNUMBERTYPE_XML_CLOSE, "ConnectedNumberType"},
    {&J::CONNECTEDSURNAME, &J::CONNECTEDSURNAME_XML_BEGIN, &J::CONNECTEDSURNAME_XML_CLOSE, "ConnectedSurname"},
    {&J::CONNECTEDFIRSTNAME, &J::CONNECTEDFIRSTNAME_XML_BEGIN, &J::CONNECTEDFIRSTNAME_XML_CLOSE, "ConnectedFirstName"},
    {&J::TIMEDATE, &J::TIMEDATE_XML_BEGIN, &J::TIMEDATE_XML_CLOSE, "TimeDate"},
    {&J::DURATION, &J::DURATION_XML_BEGIN, &J::DURATION_XML_CLOSE, "Duration"},
    {&J::TARGETLOG, &J::TARGETLOG_XML_BEGIN, &J::TARGETLOG_XML_CLOSE, "TargetLog"},
    {&J::NUMBERPRESENTATION, &J::NUMBERPRESENTATION_XML_BEGIN, &J::NUMBERPRESENTATION_XML_CLOSE, "NumberPresentation"},
    {&J::NAMEPRESENTATION, &J::NAMEPRESENTATION_XML_BEGIN, &J::NAMEPRESENTATION_XML_CLOSE, "NamePresentation"},
    {&J::TIMEFORMAT, &J::TIMEFORMAT_XML_BEGIN, &J::TIMEFORMAT_XML_CLOSE, "TimeFormat"},
    {&J::VIEWED, &J::VIEWED_XML_BEGIN, &J::VIEWED_XML_CLOSE, "Viewed"},
    {&J::DEFLECTNUMBERPRESENTATION, &J::DEFLECTNUMBERPRESENTATION_XML_BEGIN, &J::DEFLECTNUMBERPRESENTATION_XML_CLOSE, "DeflectNumberPresentation"},
    {&J::DEFLECTNUMBER, &J::DEFLECTNUMBER_XML_BEGIN, &J::DEFLECTNUMBER_XML_CLOSE, "DeflectNumber"},
    {&J::DEFLECTNUMBERTYPE, &J::DEFLECTNUMBERTYPE_XML_BEGIN, &J::DEFLECTNUMBERTYPE_XML_CLOSE, "DeflectNumberType"},
    {&J::DEFLECTNAMEPRESENTATION, &J::DEFLECTNAMEPRESENTATION_XML_BEGIN, &J::DEFLECTNAMEPRESENTATION_XML_CLOSE, "DeflectNamePresentation"},
    {&J::DEFLECTNAME, &J::DEFLECTNAME_XML_BEGIN, &J::DEFLECTNAME_XML_CLOSE, "DeflectName"},
};
// clang-format on

static_assert(std::size(regularPairs) == 33, "two of the 35 pairs are irregular");

TEST(TagPairs, HoldTheirElementNameInBrackets) {
  for (Pair const& pair : regularPairs) {
    std::string const name = pair.literal;
    EXPECT_EQ(name, *pair.name);
    EXPECT_EQ("<" + name + ">", *pair.begin);
    EXPECT_EQ("</" + name + ">", *pair.close);
  }
}

TEST(TagPairs, AreWhatTheBuildersMakeOfTheirElementName) {
  for (Pair const& pair : regularPairs) {
    EXPECT_EQ(*pair.begin, J::createXMLBegin(*pair.name));
    EXPECT_EQ(*pair.close, J::createXMLClose(*pair.name));
  }
}

// The name constant of this pair is called otherwise than the pair.
TEST(TagPairs, EnabledGoesWithCallLogEnabled) {
  EXPECT_EQ("<CallLogEnabled>", J::ENABLED_XML_BEGIN);
  EXPECT_EQ("</CallLogEnabled>", J::ENABLED_XML_CLOSE);
  EXPECT_EQ(J::ENABLED_XML_BEGIN, J::createXMLBegin(J::CALL_LOG_ENABLED));
  EXPECT_EQ(J::ENABLED_XML_CLOSE, J::createXMLClose(J::CALL_LOG_ENABLED));
}

// This pair has no name constant at all.
TEST(TagPairs, HandleStandsAlone) {
  EXPECT_EQ("<Handle>", J::HANDLE_XML_BEGIN);
  EXPECT_EQ("</Handle>", J::HANDLE_XML_CLOSE);
}

} // namespace
