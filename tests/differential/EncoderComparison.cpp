// The comparison of the encoders of entries, of the service's messages and of the requests.
#include <set>

#include "differential/Comparison.h"
#include "differential/KindOperations.h"
#include "differential/Shown.h"
#include "members/Equality.h"
#include "reference/Reference.h"

namespace comparison {

std::string readable(std::string const& text) {
  static char const digits[] = "0123456789abcdef";
  constexpr std::size_t longest = 4000;
  std::string all = "\"";
  for (char const c : text.substr(0, longest)) {
    auto const byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7f && c != '"' && c != '\\')
      all += c;
    else
      all.append("\\x").append(1, digits[byte / 16]).append(1, digits[byte % 16]);
  }
  return all + (text.size() > longest ? "\"..." : "\"");
}

namespace {

template <class Item>
class Encoders {
  using Library = KindOperations<Item, JournalServiceHelper>;
  using Oracle = KindOperations<Item, Reference>;

public:
  static Difference compare(Item const& item, Notice const& notice, Writing writing) {
    switch (writing) {
    case Writing::body:
      return told("body", item, body<Library>(item, false), body<Oracle>(item, false));
    case Writing::uniqueId:
      return told("unique id", item, body<Library>(item, true), body<Oracle>(item, true));
    case Writing::calls:
      return told("calls", item, calls<Library>(item), calls<Oracle>(item));
    case Writing::notification:
      return told("notification", item, notify<Library>(item, notice),
                  notify<Oracle>(item, notice));
    case Writing::log:
      return compareLogs(item, notice);
    }
    return {};
  }

private:
  static Difference told(char const* what, Item const& item, std::string const& library,
                         std::string const& reference) {
    if (library == reference)
      return {};
    return std::string(Library::NAME) + " " + what + " of " + shown(item) +
           "\n  library:   " + readable(library) + "\n  reference: " + readable(reference) + "\n";
  }

  static Difference compareLogs(Item const& item, Notice const& notice) {
    for (std::size_t const count : {0U, 1U, 2U}) {
      std::deque<Item> const items(count, item);
      if (auto found = told("log", item, Library::respond(items, notice.handle),
                            Oracle::respond(items, notice.handle));
          !found.empty())
        return found;
    }
    return {};
  }

  template <class Operations>
  static std::string body(Item const& item, bool uniqueIdOnly) {
    std::string out = "before";
    Operations::writeBody(item, out, uniqueIdOnly);
    return out;
  }

  template <class Operations>
  static std::string calls(Item const& item) {
    std::string out = "before";
    Operations::writeCalls(item, out);
    return out;
  }

  template <class Operations>
  static std::string notify(Item const& item, Notice const& notice) {
    return Operations::notify(item, notice.uniqueIdToDelete, notice.action, notice.handle);
  }
};

struct Request {
  char const* name;
  std::string (*library)();
  std::string (*reference)();
};

struct RequestForOne {
  char const* name;
  std::string (*library)(std::string const&);
  std::string (*reference)(std::string const&);
};

struct RequestForSeveral {
  char const* name;
  std::string (*library)(std::set<std::string> const&);
  std::string (*reference)(std::set<std::string> const&);
};

#define JOURNAL_BOTH(NAME)                                                                         \
  { #NAME, &JournalServiceHelper::NAME, &Reference::NAME }

constexpr Request requests[] = {
    JOURNAL_BOTH(reqGetMissedCallList),    JOURNAL_BOTH(reqGetDialledCallList),
    JOURNAL_BOTH(reqGetReceivedCallList),  JOURNAL_BOTH(reqGetForwardedCallList),
    JOURNAL_BOTH(reqGetLastDialledNumber), JOURNAL_BOTH(reqSubscribe),
    JOURNAL_BOTH(reqUnsubscribe),          JOURNAL_BOTH(reqRefreshCallLog),
    JOURNAL_BOTH(readEnabledState),        JOURNAL_BOTH(readMissedCallList),
    JOURNAL_BOTH(deleteMissedCallList),    JOURNAL_BOTH(readDialledCallList),
    JOURNAL_BOTH(deleteDialledCallList),   JOURNAL_BOTH(readReceivedCallList),
    JOURNAL_BOTH(deleteReceivedCallList),  JOURNAL_BOTH(readForwardedCallList),
    JOURNAL_BOTH(deleteForwardedCallList),
};

constexpr RequestForOne requestsForOne[] = {
    JOURNAL_BOTH(reqDeleteMissedCall),
    JOURNAL_BOTH(reqDeleteDialledCall),
    JOURNAL_BOTH(reqDeleteReceivedCall),
    JOURNAL_BOTH(reqDeleteForwardedCall),
};

constexpr RequestForSeveral requestsForSeveral[] = {
    JOURNAL_BOTH(reqSetMissedCallListAsViewed), JOURNAL_BOTH(reqDeleteMissedCallList),
    JOURNAL_BOTH(reqDeleteDialledCallList),     JOURNAL_BOTH(reqDeleteReceivedCallList),
    JOURNAL_BOTH(reqDeleteForwardedCallList),   JOURNAL_BOTH(createXMLEntryIDList),
};

} // namespace

Difference compareRequests(std::string const& id, std::set<std::string> const& ids) {
  for (auto const& [name, library, reference] : requests)
    if (library() != reference())
      return difference(name, "", library(), reference());
  for (auto const& [name, library, reference] : requestsForOne)
    if (library(id) != reference(id))
      return difference(name, id, library(id), reference(id));
  for (auto const& [name, library, reference] : requestsForSeveral)
    if (library(ids) != reference(ids))
      return difference(name, id, library(ids), reference(ids));
  return {};
}

template <class Item>
Difference compareEncoder(Item const& item, Notice const& notice, Writing writing) {
  return Encoders<Item>::compare(item, notice, writing);
}

template <class Item>
Difference compareEncoders(Item const& item, Notice const& notice) {
  auto const copy = item;
  for (int writing = 0; writing < WRITINGS; ++writing)
    if (auto found = compareEncoder(item, notice, static_cast<Writing>(writing)); !found.empty())
      return found;
  return members::equal(item, copy) ? Difference() : "An encoder changed the record " + shown(copy);
}

template Difference compareEncoder(MissedCallItem const&, Notice const&, Writing);
template Difference compareEncoder(DialledCallItem const&, Notice const&, Writing);
template Difference compareEncoder(ReceivedCallItem const&, Notice const&, Writing);
template Difference compareEncoder(ForwardedCallItem const&, Notice const&, Writing);
template Difference compareEncoders(MissedCallItem const&, Notice const&);
template Difference compareEncoders(DialledCallItem const&, Notice const&);
template Difference compareEncoders(ReceivedCallItem const&, Notice const&);
template Difference compareEncoders(ForwardedCallItem const&, Notice const&);

} // namespace comparison
