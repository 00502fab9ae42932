// The round trip: a client asks for each log, the service answers and later notifies it of a
// change; then the missed-call counter and the call-log setting.
#include "Scenario.h"

#include <string>

#include "Client.h"
#include "LogTable.h"
#include "Losses.h"
#include "ReadFile.h"
#include "Service.h"
#include "members/Equality.h"

namespace {

using Helper = JournalServiceHelper;

// The colleague who takes the call that changes an entry.
constexpr char const* colleagueSurname = "Fuchs & Jäger";
constexpr char const* colleagueEscaped = "Fuchs &amp; Jäger";

std::string counted(std::size_t count, std::string const& what) {
  return std::to_string(count) + " " + what;
}

std::string codeText(Helper::MethodCode code, std::string const& meaning) {
  return "code " + std::to_string(code) + ": " + meaning;
}

std::string actionText(unsigned int action) {
  switch (action) {
  case JournalServiceObserverIfc::ENTRY_ADDED:
    return "entry added";
  case JournalServiceObserverIfc::ENTRY_CHANGED:
    return "entry changed";
  case JournalServiceObserverIfc::ENTRY_DELETED:
    return "entry deleted";
  default:
    return "action " + std::to_string(action);
  }
}

std::string handleText(unsigned int handle) {
  return "handle " + std::to_string(handle);
}

std::size_t occurrences(std::string const& text, std::string const& word) {
  std::size_t count = 0;
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + word.size()))
    ++count;
  return count;
}

template <class Log>
std::size_t callCount(Log const& log) {
  std::size_t count = 0;
  for (auto const& item : log)
    count += item.callInfoList.size();
  return count;
}

/// The client subscribes: from now on the service notifies it of every change.
void playSubscription(Report& report) {
  report.section("Subscription");
  std::string const request = Helper::reqSubscribe();
  report.step("client", "reqSubscribe", counted(request.size(), "bytes"));
  auto const code = Helper::getMethodFromXMLMsg(request);
  report.step("service", "getMethodFromXMLMsg", codeText(code, "subscribe"));
  report.check(code == Helper::SUBSCRIBE, "the service recognises the request");

  std::string response;
  Helper::addSuccessResp(response);
  report.step("service", "addSuccessResp", counted(response.size(), "bytes"));
  bool const accepted = Helper::isNonFailureResponse(response);
  report.step("client", "isNonFailureResponse", accepted ? "accepted" : "refused");
  report.check(accepted, "the client reads that it is subscribed");
}

/// The service takes its log from the store.
template <class Kind>
Service<Kind> load(std::string const& stored, Report& report) {
  Service<Kind> service(stored);
  report.step("service", "loads " + std::string(Kind::sample),
              counted(stored.size(), "bytes, ") + counted(service.log().size(), "entries, ") +
                  counted(callCount(service.log()), "calls; reading drops ") +
                  droppedElements<typename Kind::Item>());
  report.check(!service.log().empty(), "the stored log holds entries");
  report.check(service.log().size() == occurrences(stored, Helper::ENTRY_XML_BEGIN),
               "every stored entry is loaded");
  report.check(callCount(service.log()) == occurrences(stored, Helper::ITEM_XML_BEGIN),
               "every stored call is loaded");
  return service;
}

/// The client asks, the service recognises the request.
template <class Kind>
std::string ask(Client<Kind> const& client, Report& report) {
  std::string const request = client.request();
  report.step("client", "reqGet" + std::string(Kind::name) + "CallList",
              counted(request.size(), "bytes"));
  auto const code = Helper::getMethodFromXMLMsg(request);
  report.step("service", "getMethodFromXMLMsg", codeText(code, "list request"));
  report.check(code == Kind::listCode, "the service recognises the request");
  return request;
}

/// The service answers with its whole log, the client reads the answer.
template <class Kind>
void answer(Service<Kind> const& service, std::string const& request, std::string const& stored,
            Client<Kind>& client, Report& report) {
  std::string const message = service.answer(request);
  report.step("service", "respGet" + std::string(Kind::name) + "CallList",
              counted(message.size(), "bytes, ") + handleText(service.handle()));
  using Item = typename Kind::Item;
  report.check(asOldAs<Item>(stored, message) == asWrittenAgain<Item>(stored),
               "the answer is the stored log, byte for byte, except for what reading drops");

  client.readAnswer(message);
  report.step("client", "parseXML" + std::string(Kind::name) + "CallList",
              counted(client.log().size(), "entries, ") +
                  counted(callCount(client.log()), "calls, ") + handleText(client.handle()));
  report.check(members::equal(client.log(), members::asRead(service.log())),
               "the client reads what the service holds");
  report.check(client.handle() == service.handle(), "the client reads the handle");
}

/// The next event: the party of the last entry calls, or is called, again.
template <class Kind>
typename Kind::Call anotherCall(Service<Kind> const& service) {
  typename Kind::Call call = service.log().back().callInfoList.front();
  call.infoKey = "noted by the service, for itself";
  call.timeDate = "2025-11-14 17:03";
  call.connectedNumber = "21";
  call.connectedSurname = colleagueSurname;
  call.connectedFirstName = "Éva";
  if constexpr (Kind::hasPresentations) {
    call.namePresentation = CallLogEntryEvent::ALLOWED;
    call.timeFormat = CallLogEntryEvent::FORM_24;
  }
  return call;
}

/// An entry changes, the service notifies its observers, the client follows.
template <class Kind>
void change(Service<Kind>& service, Client<Kind>& client, Report& report) {
  std::string const message = service.addCall(service.log().size() - 1, anotherCall(service));
  report.step("service", "obsReq" + std::string(Kind::name) + "CallsUpdate",
              counted(message.size(), "bytes, ") + handleText(service.handle()));

  auto const sent = Helper::createXMLField(
      Helper::CONNECTEDSURNAME, Kind::escapesConnectedNames ? colleagueEscaped : colleagueSurname);
  report.check(message.find(sent) != std::string::npos, "the connected name is sent");

  auto const code = Helper::getMethodFromXMLMsg(message);
  report.step("client", "getMethodFromXMLMsg", codeText(code, "one entry changed"));
  report.check(code == Kind::updateCode, "the client recognises the notification");
  report.check(client.readNotification(message), "the client takes the notification");
  report.step("client", "parseXML" + std::string(Kind::name) + "CallItem",
              actionText(client.lastAction()) + ", " + handleText(client.handle()));
  report.check(client.lastAction() == JournalServiceObserverIfc::ENTRY_CHANGED,
               "the client reads the kind of change");
  report.check(client.handle() == service.handle(), "the client reads the new handle");
  report.check(members::equal(client.log(), members::asRead(service.log())),
               "the client's log follows the service's");
}

/// The round trip of one log.
/// @return the service's log at the end
template <class Kind>
typename Kind::Log playLog(std::string const& folder, Report& report) {
  report.section(std::string(Kind::name) + " calls");
  std::string const stored = readFile(folder + "/" + Kind::sample);
  Service<Kind> service = load<Kind>(stored, report);
  Client<Kind> client;
  std::string const request = ask(client, report);
  answer(service, request, stored, client, report);
  report.stream() << '\n';
  printLog<Kind>(report.stream(), client.log());
  if (service.log().empty() || service.log().back().callInfoList.empty())
    return service.log(); // nobody can call again

  report.stream() << '\n';
  change(service, client, report);
  report.stream() << '\n';
  printLog<Kind>(report.stream(), {client.log().front()});
  return service.log();
}

/// The service sends the number of missed calls that the user has not seen.
void playCounter(Missed::Log const& log, Report& report) {
  report.section("Missed-call counter");
  unsigned int unseen = 0;
  for (MissedCallItem const& item : log)
    unseen += item.viewed ? 0 : 1;
  std::string const message = Helper::obsReqMissedCallsCountUpdate(unseen);
  report.step("service", "obsReqMissedCallsCountUpdate", counted(message.size(), "bytes"));

  auto const code = Helper::getMethodFromXMLMsg(message);
  report.step("client", "getMethodFromXMLMsg", codeText(code, "count of missed calls"));
  report.check(code == Helper::MISSEDCALLSCOUNTUPDATE, "the client recognises the counter");
  unsigned int count = 0;
  bool const found = Helper::getXMLValue(message, Helper::VALUE, count);
  report.step("client", "getXMLValue", counted(count, "not seen yet"));
  report.check(found && count == unseen, "the client reads the counter");
}

/// The store's answer about the setting. It says "true" and "false", not "True" and "False".
std::string storeAnswer(bool enabled) {
  std::string message =
      Helper::createXMLField(Helper::CALL_LOG_ENABLED, enabled ? "true" : "false");
  Helper::addSuccessResp(message);
  Helper::addXMLHeaderFooter(message, Helper::SETTINGS_SCHEMA);
  return message;
}

/// The client asks the settings store whether calls are logged at all.
void playSetting(Report& report) {
  report.section("Call-log setting");
  std::string const request = Helper::readEnabledState();
  report.step("client", "readEnabledState", counted(request.size(), "bytes"));
  report.check(request.find(Helper::SETTINGS_SCHEMA) != std::string::npos,
               "the request names the settings");
  for (bool const enabled : {true, false}) {
    std::string const message = storeAnswer(enabled);
    report.step("store", "answers", counted(message.size(), "bytes"));
    report.check(Helper::isNonFailureResponse(message), "the client reads no failure");
    bool const read = Helper::parseXMLEnabledStateItem(message);
    report.step("client", "parseXMLEnabledStateItem",
                read ? "calls are logged" : "calls are not logged");
    report.check(read == enabled, "the client reads the setting");
  }
}

} // namespace

void playScenario(std::string const& sampleFolder, Report& report) {
  playSubscription(report);
  Missed::Log const missed = playLog<Missed>(sampleFolder, report);
  playLog<Dialled>(sampleFolder, report);
  playLog<Received>(sampleFolder, report);
  playLog<Forwarded>(sampleFolder, report);
  playCounter(missed, report);
  playSetting(report);
}
