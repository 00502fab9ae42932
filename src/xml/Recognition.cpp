// Reads a whole message: its method, the unique id of its first entry, the call-log setting.
#include <cstdint>
#include <string_view>
#include <utility>

#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "vocabulary/Words.h"
#include "xml/Cursor.h"
#include "xml/Text.h"

using namespace journal;

namespace {

// A method in four bytes.
class Method {
public:
  constexpr Method(std::string_view tag, JournalServiceHelper::MethodCode code)
      : offset_(static_cast<std::uint16_t>(tag.data() - word::texts)),
        size_(static_cast<std::uint8_t>(tag.size())), code_(static_cast<std::uint8_t>(code)) {}

  std::string_view tag() const { return {word::texts + offset_, size_}; }
  JournalServiceHelper::MethodCode code() const {
    return static_cast<JournalServiceHelper::MethodCode>(code_);
  }

private:
  std::uint16_t offset_;
  std::uint8_t size_;
  std::uint8_t code_;
};

// In the order of the search, which differs from that of the codes and decides when a damaged
// message holds several tags. The group calls update is not here: it is sent, but never recognised.
constexpr Method methods[] = {
    {word::GETMISSEDCALLLIST_XML, JournalServiceHelper::GETMISSEDCALLLIST},
    {word::SETMISSEDCALLLISTASVIEWED_XML, JournalServiceHelper::SETMISSEDCALLLISTASVIEWED},
    {word::DELETEMISSEDCALL_XML, JournalServiceHelper::DELETEMISSEDCALL},
    {word::DELETEMISSEDCALLLIST_XML, JournalServiceHelper::DELETEMISSEDCALLLIST},
    {word::GETDIALLEDCALLLIST_XML, JournalServiceHelper::GETDIALLEDCALLLIST},
    {word::DELETEDIALLEDCALL_XML, JournalServiceHelper::DELETEDIALLEDCALL},
    {word::DELETEDIALLEDCALLLIST_XML, JournalServiceHelper::DELETEDIALLEDCALLLIST},
    {word::GETLASTDIALLEDNUMBER_XML, JournalServiceHelper::GETLASTDIALLEDNUMBER},
    {word::GETRECEIVEDCALLLIST_XML, JournalServiceHelper::GETRECEIVEDCALLLIST},
    {word::DELETERECEIVEDCALL_XML, JournalServiceHelper::DELETERECEIVEDCALL},
    {word::DELETERECEIVEDCALLLIST_XML, JournalServiceHelper::DELETERECEIVEDCALLLIST},
    {word::GETFORWARDEDCALLLIST_XML, JournalServiceHelper::GETFORWARDEDCALLLIST},
    {word::DELETEFORWARDEDCALL_XML, JournalServiceHelper::DELETEFORWARDEDCALL},
    {word::DELETEFORWARDEDCALLLIST_XML, JournalServiceHelper::DELETEFORWARDEDCALLLIST},
    {word::SUBSCRIBE_XML, JournalServiceHelper::SUBSCRIBE},
    {word::UNSUBSCRIBE_XML, JournalServiceHelper::UNSUBSCRIBE},
    {word::REFRESHCALLLOG_XML, JournalServiceHelper::REFRESHCALLLOG},
    {word::MISSEDCALLSUPDATE_XML, JournalServiceHelper::MISSEDCALLSUPDATE},
    {word::MISSEDCALLSCOUNTUPDATE_XML, JournalServiceHelper::MISSEDCALLSCOUNTUPDATE},
    {word::DIALLEDCALLSUPDATE_XML, JournalServiceHelper::DIALLEDCALLSUPDATE},
    {word::RECEIVEDCALLSUPDATE_XML, JournalServiceHelper::RECEIVEDCALLSUPDATE},
    {word::FORWARDEDCALLSUPDATE_XML, JournalServiceHelper::FORWARDEDCALLSUPDATE},
};

} // namespace

JournalServiceHelper::MethodCode
JournalServiceHelper::getMethodFromXMLMsg(std::string const& message) {
  auto const begin = message.find(element<word::METHOD>.begin());
  auto const close = message.find(element<word::METHOD>.close());
  if (begin == std::string::npos || close == std::string::npos)
    return UNKNOWN_METHOD;
  // With the close tag before the begin tag the difference wraps, and the search runs to the end of
  // the message.
  auto const searched = std::string_view(message).substr(begin, close - begin);
  for (auto const& method : methods)
    if (searched.find(method.tag()) != std::string_view::npos)
      return method.code();
  return UNKNOWN_METHOD;
}

bool JournalServiceHelper::parseLastUniqueId(std::string const& message, std::string& uniqueId) {
  auto const text = viewOf(message.c_str());
  auto const begin = text.find(element<word::ENTRY>.begin());
  if (begin == std::string_view::npos)
    return false;
  auto const entry = begin + element<word::ENTRY>.begin().size();
  auto const close = text.find(element<word::ENTRY>.close(), entry);
  if (close == std::string_view::npos)
    return false;
  // Written into the caller's text on purpose: some clients rely on the text ending here
  // afterwards.
  const_cast<char&>(message[close]) = '\0';
  auto value = unescaped(readFirst(text.substr(entry, close - entry), element<word::UNIQUEID>));
  if (value.empty())
    return false;
  uniqueId = std::move(value);
  return true;
}

bool JournalServiceHelper::parseXMLEnabledStateItem(std::string const& message) {
  auto const value = unescaped(readFirst(viewOf(message.c_str()), element<word::CALL_LOG_ENABLED>));
  return value.empty() || value == word::ENABLED_TRUE;
}
