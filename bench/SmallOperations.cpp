// The small operations: each request, each method recognised, one notification of each kind; the
// library against the plain oracle.
#include <set>
#include <string>

#include "Samples.h"
#include "Timing.h"

namespace bench {

namespace {

using Helper = JournalServiceHelper;

constexpr double SECONDS_PER_ROUND = 0.003; // enough for operations of nanoseconds

/// Times the same operation of the library and of the oracle, which must give the same result.
template <class Operation, class OracleOperation>
void add(std::string const& what, std::string const& which, std::size_t size, Operation operation,
         OracleOperation oracle) {
  auto const same = [=] { return operation() == oracle(); };
  auto const addOne = [&](char const* who, auto timed) {
    std::string const name = nameOf(what, which, size, who);
    registerTiming(name, size, [=](benchmark::State& state) {
      timeProven(state, name, timed, same);
    })->MinTime(SECONDS_PER_ROUND);
  };
  addOne("library", operation);
  addOne("oracle", oracle);
}

// ---- Requests

struct PlainRequest {
  char const* name;
  std::string (*build)();
  std::string (*oracle)();
};

#define BENCH_REQUEST(name)                                                                        \
  { #name, &Helper::name, &Reference::name }

PlainRequest const PLAIN_REQUESTS[] = {
    BENCH_REQUEST(reqGetMissedCallList),    BENCH_REQUEST(reqGetDialledCallList),
    BENCH_REQUEST(reqGetLastDialledNumber), BENCH_REQUEST(reqGetReceivedCallList),
    BENCH_REQUEST(reqGetForwardedCallList), BENCH_REQUEST(reqSubscribe),
    BENCH_REQUEST(reqUnsubscribe),          BENCH_REQUEST(reqRefreshCallLog)};

PlainRequest const STORE_REQUESTS[] = {
    BENCH_REQUEST(readEnabledState),       BENCH_REQUEST(readMissedCallList),
    BENCH_REQUEST(deleteMissedCallList),   BENCH_REQUEST(readDialledCallList),
    BENCH_REQUEST(deleteDialledCallList),  BENCH_REQUEST(readReceivedCallList),
    BENCH_REQUEST(deleteReceivedCallList), BENCH_REQUEST(readForwardedCallList),
    BENCH_REQUEST(deleteForwardedCallList)};

struct EntryRequest {
  char const* name;
  std::string (*build)(std::string const&);
  std::string (*oracle)(std::string const&);
};

EntryRequest const ENTRY_REQUESTS[] = {
    BENCH_REQUEST(reqDeleteMissedCall), BENCH_REQUEST(reqDeleteDialledCall),
    BENCH_REQUEST(reqDeleteReceivedCall), BENCH_REQUEST(reqDeleteForwardedCall)};

struct EntriesRequest {
  char const* name;
  std::string (*build)(std::set<std::string> const&);
  std::string (*oracle)(std::set<std::string> const&);
};

EntriesRequest const ENTRIES_REQUESTS[] = {
    BENCH_REQUEST(reqSetMissedCallListAsViewed), BENCH_REQUEST(reqDeleteMissedCallList),
    BENCH_REQUEST(reqDeleteDialledCallList), BENCH_REQUEST(reqDeleteReceivedCallList),
    BENCH_REQUEST(reqDeleteForwardedCallList)};

#undef BENCH_REQUEST

void addRequests() {
  std::string const id = "70042";
  std::set<std::string> ids;
  for (int at = 0; at < 10; ++at)
    ids.insert(std::to_string(70000 + 3 * at));
  for (auto const& request : PLAIN_REQUESTS)
    add("request", request.name, 0, request.build, request.oracle);
  for (auto const& request : ENTRY_REQUESTS)
    add(
        "request", request.name, 1, [=] { return request.build(id); },
        [=] { return request.oracle(id); });
  for (auto const& request : ENTRIES_REQUESTS)
    add(
        "request", request.name, ids.size(), [=] { return request.build(ids); },
        [=] { return request.oracle(ids); });
  for (auto const& request : STORE_REQUESTS)
    add("store", request.name, 0, request.build, request.oracle);
}

// ---- Recognition

void addRecognition(std::string const& what, std::string const& which, std::size_t size,
                    std::string const& message) {
  add(
      what, which, size, [=] { return Helper::getMethodFromXMLMsg(message); },
      [=] { return Reference::getMethodFromXMLMsg(message); });
}

void addRecognitionOfEachMethod() {
  // In the order of the search for a method; the last is unknown.
  std::string const* const methods[] = {&Helper::GETMISSEDCALLLIST_XML,
                                        &Helper::SETMISSEDCALLLISTASVIEWED_XML,
                                        &Helper::DELETEMISSEDCALL_XML,
                                        &Helper::DELETEMISSEDCALLLIST_XML,
                                        &Helper::GETDIALLEDCALLLIST_XML,
                                        &Helper::DELETEDIALLEDCALL_XML,
                                        &Helper::DELETEDIALLEDCALLLIST_XML,
                                        &Helper::GETLASTDIALLEDNUMBER_XML,
                                        &Helper::GETRECEIVEDCALLLIST_XML,
                                        &Helper::DELETERECEIVEDCALL_XML,
                                        &Helper::DELETERECEIVEDCALLLIST_XML,
                                        &Helper::GETFORWARDEDCALLLIST_XML,
                                        &Helper::DELETEFORWARDEDCALL_XML,
                                        &Helper::DELETEFORWARDEDCALLLIST_XML,
                                        &Helper::SUBSCRIBE_XML,
                                        &Helper::UNSUBSCRIBE_XML,
                                        &Helper::REFRESHCALLLOG_XML,
                                        &Helper::MISSEDCALLSUPDATE_XML,
                                        &Helper::MISSEDCALLSCOUNTUPDATE_XML,
                                        &Helper::DIALLEDCALLSUPDATE_XML,
                                        &Helper::RECEIVEDCALLSUPDATE_XML,
                                        &Helper::FORWARDEDCALLSUPDATE_XML,
                                        &Helper::MISSEDGROUPCALLSUPDATE_XML};
  for (std::string const* const method : methods)
    addRecognition("recognise", method->substr(1, method->size() - 2), 0,
                   Helper::XMLHEADER + "<Method>" + *method + "</Method>");
}

template <class Kind>
void addRecognitionInLargeMessages() {
  std::string const& message = sampleOf<Kind>(COMPARED_SIZE).message;
  std::string const body = message.substr(message.find("<Entry>"));
  addRecognition("recognise-large", Kind::name, COMPARED_SIZE, message);
  addRecognition("recognise-none", Kind::name, COMPARED_SIZE, body);
}

// ---- Notifications

template <class Kind>
void addNotification() {
  // An entry of medium size.
  auto const& log = sampleOf<Kind>(COMPARED_SIZE).log;
  auto const* item = &log.front();
  for (auto const& candidate : log)
    if (candidate.callInfoList.size() == 3 && !candidate.surname.empty()) {
      item = &candidate;
      break;
    }
  auto const action = JournalServiceObserverIfc::ENTRY_CHANGED;
  add(
      "notify", Kind::name, 1, [=] { return Kind::notify(*item, "1004", action, 7); },
      [=] { return Kind::oracleNotify(*item, "1004", action, 7); });
}

void addCounters() {
  add(
      "notify", "missedCount", 0, [] { return Helper::obsReqMissedCallsCountUpdate(12); },
      [] { return Reference::obsReqMissedCallsCountUpdate(12); });
  add(
      "notify", "missedGroupCount", 0, [] { return Helper::obsReqMissedGroupCallsUpdate(12); },
      [] { return Reference::obsReqMissedGroupCallsUpdate(12); });
}

} // namespace

void registerSmallOperations() {
  addRequests();
  addRecognitionOfEachMethod();
  forEachKind([](auto kind) {
    using Kind = decltype(kind);
    addRecognitionInLargeMessages<Kind>();
    addNotification<Kind>();
  });
  addCounters();
}

} // namespace bench
