// The operations that build messages, by name.
#include <array>
#include <charconv>
#include <set>
#include <variant>

#include "inspect/Format.h"
#include "inspect/Json.h"
#include "vocabulary/Words.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
namespace word = journal::word;

using Ids = std::set<std::string>;
using Plain = std::string (*)();
using WithId = std::string (*)(std::string const&);
using WithIds = std::string (*)(Ids const&);
using WithCount = std::string (*)(unsigned int);
/// What follows from the type: how the operation is called, and so what it takes.
using Build = std::variant<Plain, WithId, WithIds, WithCount, std::monostate>;

struct Builder {
  std::string_view name;
  std::string_view tag; ///< with brackets
  Kind kind;
  Api::MethodCode code;
  std::optional<Log> log;
  Build build;
};

constexpr auto noLog = std::optional<Log>();

template <bool ok>
std::string outcome() {
  return Api::createXMLField(std::string(word::VALUE), Api::respBool(ok));
}

// Requests first: a request and its answer share a method.
Builder const rows[] = {
#define REQUEST(name, METHOD, log)                                                                 \
  { #name, word::METHOD##_XML, Kind::request, Api::METHOD, log, &Api::name }
    REQUEST(reqGetMissedCallList, GETMISSEDCALLLIST, Log::missed),
    REQUEST(reqSetMissedCallListAsViewed, SETMISSEDCALLLISTASVIEWED, Log::missed),
    REQUEST(reqDeleteMissedCall, DELETEMISSEDCALL, Log::missed),
    REQUEST(reqDeleteMissedCallList, DELETEMISSEDCALLLIST, Log::missed),
    REQUEST(reqGetDialledCallList, GETDIALLEDCALLLIST, Log::dialled),
    REQUEST(reqDeleteDialledCall, DELETEDIALLEDCALL, Log::dialled),
    REQUEST(reqDeleteDialledCallList, DELETEDIALLEDCALLLIST, Log::dialled),
    REQUEST(reqGetLastDialledNumber, GETLASTDIALLEDNUMBER, Log::dialled),
    REQUEST(reqGetReceivedCallList, GETRECEIVEDCALLLIST, Log::received),
    REQUEST(reqDeleteReceivedCall, DELETERECEIVEDCALL, Log::received),
    REQUEST(reqDeleteReceivedCallList, DELETERECEIVEDCALLLIST, Log::received),
    REQUEST(reqGetForwardedCallList, GETFORWARDEDCALLLIST, Log::forwarded),
    REQUEST(reqDeleteForwardedCall, DELETEFORWARDEDCALL, Log::forwarded),
    REQUEST(reqDeleteForwardedCallList, DELETEFORWARDEDCALLLIST, Log::forwarded),
    REQUEST(reqSubscribe, SUBSCRIBE, noLog),
    REQUEST(reqUnsubscribe, UNSUBSCRIBE, noLog),
    REQUEST(reqRefreshCallLog, REFRESHCALLLOG, noLog),
#undef REQUEST
#define NOTIFICATION(name, METHOD, log)                                                            \
  { #name, word::METHOD##_XML, Kind::entryNotification, Api::METHOD, log, std::monostate() }
    NOTIFICATION(obsReqMissedCallsUpdate, MISSEDCALLSUPDATE, Log::missed),
    NOTIFICATION(obsReqDialledCallsUpdate, DIALLEDCALLSUPDATE, Log::dialled),
    NOTIFICATION(obsReqReceivedCallsUpdate, RECEIVEDCALLSUPDATE, Log::received),
    NOTIFICATION(obsReqForwardedCallsUpdate, FORWARDEDCALLSUPDATE, Log::forwarded),
#undef NOTIFICATION
    {"obsReqMissedCallsCountUpdate", word::MISSEDCALLSCOUNTUPDATE_XML, Kind::counterNotification,
     Api::MISSEDCALLSCOUNTUPDATE, Log::missed, &Api::obsReqMissedCallsCountUpdate},
    // Sent, but getMethodFromXMLMsg does not recognise it: only its tag identifies it.
    {"obsReqMissedGroupCallsUpdate", word::MISSEDGROUPCALLSUPDATE_XML, Kind::counterNotification,
     Api::UNKNOWN_METHOD, Log::missed, &Api::obsReqMissedGroupCallsUpdate},
#define STORE(name, log)                                                                           \
  { #name, {}, Kind::storeRequest, Api::UNKNOWN_METHOD, log, Plain(&Api::name) }
    STORE(readEnabledState, noLog),
    STORE(readMissedCallList, Log::missed),
    STORE(readDialledCallList, Log::dialled),
    STORE(readReceivedCallList, Log::received),
    STORE(readForwardedCallList, Log::forwarded),
    STORE(deleteMissedCallList, Log::missed),
    STORE(deleteDialledCallList, Log::dialled),
    STORE(deleteReceivedCallList, Log::received),
    STORE(deleteForwardedCallList, Log::forwarded),
#undef STORE
    {"success", {}, Kind::outcome, Api::UNKNOWN_METHOD, noLog, Plain(&outcome<true>)},
    {"failure", {}, Kind::outcome, Api::UNKNOWN_METHOD, noLog, Plain(&outcome<false>)},
};

constexpr Takes taken[] = {Takes::nothing, Takes::id, Takes::ids, Takes::count, Takes::entry};

Operation operationOf(Builder const& row) {
  auto const tag = row.tag;
  return {row.name, tag.empty() ? tag : tag.substr(1, tag.size() - 2),
          row.kind, row.code,
          row.log,  taken[row.build.index()]};
}

std::optional<std::uint32_t> numberOf(std::string const& text) {
  std::uint32_t number = 0;
  auto const* const end = text.data() + text.size();
  auto const [at, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || at != end)
    return {};
  return number;
}

std::optional<std::string> makeNotification(Log log, std::vector<std::string> const& arguments,
                                            std::string& error) {
  EntryNotification message{entryOf(log), {}, 0, 0};
  if (arguments.size() > 4) {
    error = "takes the JSON of an entry, an action, a handle and a unique id to delete";
    return {};
  }
  if (!arguments.empty() && !entryFromJson(arguments[0], message.entry, error))
    return {};
  for (std::size_t at = 1; at < arguments.size() && at < 3; ++at)
    if (!numberOf(arguments[at])) {
      error = '"' + arguments[at] + "\" is no number from 0 to 4294967295";
      return {};
    }
  if (arguments.size() > 1)
    message.action = numberOf(arguments[1]);
  if (arguments.size() > 2)
    message.handle = *numberOf(arguments[2]);
  if (arguments.size() > 3)
    message.uniqueIdToDelete = arguments[3];
  return encode({message, {}, true, {}});
}

struct Call {
  Builder const& row;
  std::vector<std::string> const& arguments;
  std::string& error;

  bool takes(std::size_t least, std::size_t most, char const* what) {
    bool const right = arguments.size() >= least && arguments.size() <= most;
    if (!right)
      error = std::string("takes ") + what;
    return right;
  }
  std::optional<std::string> operator()(Plain build) {
    if (!takes(0, 0, "no arguments"))
      return {};
    return build();
  }
  std::optional<std::string> operator()(WithId build) {
    if (!takes(1, 1, "one id"))
      return {};
    return build(arguments[0]);
  }
  std::optional<std::string> operator()(WithIds build) {
    return build(Ids(arguments.begin(), arguments.end()));
  }
  std::optional<std::string> operator()(WithCount build) {
    auto const count = arguments.size() == 1 ? numberOf(arguments[0]) : std::nullopt;
    if (count)
      return build(*count);
    error = "takes one number from 0 to 4294967295";
    return {};
  }
  std::optional<std::string> operator()(std::monostate) {
    return makeNotification(*row.log, arguments, error);
  }
};

} // namespace

std::vector<Operation> const& operations() {
  static auto const all = [] {
    std::vector<Operation> made;
    for (Builder const& row : rows)
      made.push_back(operationOf(row));
    return made;
  }();
  return all;
}

Operation const* findMethod(std::string_view name) {
  for (Operation const& operation : operations())
    if (!operation.method.empty() && operation.method == name)
      return &operation;
  return nullptr;
}

Operation const* findMethod(Api::MethodCode code) {
  for (Operation const& operation : operations())
    if (operation.code == code && code != Api::UNKNOWN_METHOD)
      return &operation;
  return nullptr;
}

std::optional<std::string> make(std::string_view name, std::vector<std::string> const& arguments,
                                std::string& error) {
  // A store request and a method share a name: the operation's own name comes first.
  for (auto const named : {&Operation::name, &Operation::method})
    for (std::size_t at = 0; at < std::size(rows); ++at)
      if (!name.empty() && operations()[at].*named == name)
        return std::visit(Call{rows[at], arguments, error}, rows[at].build);
  error = "there is no operation of this name";
  return {};
}

} // namespace inspect
