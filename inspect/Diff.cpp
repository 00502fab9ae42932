#include "inspect/Diff.h"

#include <algorithm>
#include <map>

namespace inspect {
namespace {

using Action = JournalServiceObserverIfc;

class Comparison {
public:
  explicit Comparison(std::vector<std::string> const& names) : ignored(names) {}

  std::vector<Difference> run(Message const& left, Message const& right) {
    compare({}, "kind", std::string(nameOf(kindOf(left))), std::string(nameOf(kindOf(right))));
    if (logOf(left) && logOf(right))
      compare({}, "log", std::string(nameOf(*logOf(left))), std::string(nameOf(*logOf(right))));
    if (!differences.empty())
      return std::move(differences);
    std::visit(
        [&](auto const& message) {
          compareOwn(message, std::get<std::decay_t<decltype(message)>>(right));
        },
        left);
    compareEntries(entriesOf(left), entriesOf(right));
    return std::move(differences);
  }

  /// Two messages with what is appended to them.
  std::vector<Difference> run(Decoded const& left, Decoded const& right) {
    compare({}, "outcome", outcomeOf(left), outcomeOf(right));
    auto outcomes = std::move(differences);
    differences.clear();
    auto all = run(left.message, right.message);
    all.insert(all.end(), outcomes.begin(), outcomes.end());
    return all;
  }

private:
  using Text = std::optional<std::string>;

  static Text outcomeOf(Decoded const& decoded) {
    if (!decoded.outcome)
      return std::nullopt;
    return JournalServiceHelper::respBool(*decoded.outcome);
  }

  bool isIgnored(std::string_view name) const {
    return std::find(ignored.begin(), ignored.end(), name) != ignored.end();
  }

  void compare(std::string const& entry, std::string const& field, Text left, Text right) {
    if (left != right && !isIgnored(field))
      differences.push_back({entry, field, std::move(left), std::move(right)});
  }

  static std::string joined(std::vector<std::string> const& texts) {
    std::string all;
    for (auto const& text : texts)
      all += (all.empty() ? "" : ",") + text;
    return all;
  }

  // ---- What each kind holds besides entries

  void compareOwn(Unknown const& left, Unknown const& right) {
    compare({}, "text", left.text, right.text);
  }
  void compareOwn(Request const& left, Request const& right) {
    compare({}, "method", left.method, right.method);
    compare({}, "entryIds", joined(left.entryIds), joined(right.entryIds));
  }
  void compareOwn(ListResponse const& left, ListResponse const& right) {
    compare({}, "handle", std::to_string(left.handle), std::to_string(right.handle));
  }
  void compareOwn(EntryNotification const& left, EntryNotification const& right) {
    auto const action = [](EntryNotification const& message) {
      return message.action ? Text(std::to_string(*message.action)) : Text();
    };
    compare({}, "uniqueIdToDelete", left.uniqueIdToDelete, right.uniqueIdToDelete);
    compare({}, "action", action(left), action(right));
    compare({}, "handle", std::to_string(left.handle), std::to_string(right.handle));
  }
  void compareOwn(CounterNotification const& left, CounterNotification const& right) {
    compare({}, "method", left.method, right.method);
    compare({}, "value", std::to_string(left.value), std::to_string(right.value));
  }
  void compareOwn(StoreRequest const& left, StoreRequest const& right) {
    compare({}, "schema", left.schema, right.schema);
    compare({}, "reason", left.reason, right.reason);
  }
  void compareOwn(Outcome const& left, Outcome const& right) {
    compare({}, "method", left.method, right.method);
    compare({}, "entryIds", joined(left.entryIds), joined(right.entryIds));
    compare({}, "ok", std::string(left.ok ? "true" : "false"), right.ok ? "true" : "false");
  }
  void compareOwn(Setting const& left, Setting const& right) {
    compare({}, "callLogEnabled", std::string(left.enabled ? "true" : "false"),
            right.enabled ? "true" : "false");
  }
  void compareOwn(LastDialled const&, LastDialled const&) {}
  void compareOwn(BareEntry const&, BareEntry const&) {}

  // ---- Entries

  static std::string const& idOf(RecordView entry) {
    return entryFieldsOf(entry.log).begin()->text(static_cast<void const*>(entry.record));
  }

  void compareEntries(std::vector<RecordView> const& left, std::vector<RecordView> const& right) {
    std::multimap<std::string, std::size_t> places; // entries of one id keep their order
    for (std::size_t at = 0; at < right.size(); ++at)
      places.emplace(idOf(right[at]), at);
    std::size_t behind = 0;
    bool moved = false;
    for (auto const entry : left) {
      auto const found = places.find(idOf(entry));
      if (found == places.end()) {
        differences.push_back({idOf(entry), {}, "present", {}});
        continue;
      }
      moved = moved || found->second < behind;
      behind = std::max(behind, found->second);
      compareRecords(entry, right[found->second]);
      places.erase(found);
    }
    std::vector<std::size_t> added;
    for (auto const& [id, at] : places)
      added.push_back(at);
    std::sort(added.begin(), added.end());
    for (auto const at : added)
      differences.push_back({idOf(right[at]), {}, {}, "present"});
    if (moved)
      compare({}, "order", std::string("as left"), "other");
  }

  void compareFields(std::string const& id, std::string const& prefix, Fields fields,
                     void const* left, void const* right) {
    for (Field const& field : fields) {
      auto one = valueOf(field, left);
      auto other = valueOf(field, right);
      if (one != other && !isIgnored(field.name))
        compare(id, prefix + std::string(field.name), std::move(one), std::move(other));
    }
  }

  void compareRecords(RecordView left, RecordView right) {
    auto const id = idOf(left);
    compareFields(id, {}, entryFieldsOf(left.log), left.record, right.record);
    if (isIgnored("callInfoList"))
      return;
    auto const calls = [](RecordView entry) {
      std::vector<void*> all;
      forEachCall(entry, [&](void* call) { all.push_back(call); });
      return all;
    };
    auto const ours = calls(left);
    auto const theirs = calls(right);
    for (std::size_t at = 0; at < std::max(ours.size(), theirs.size()); ++at) {
      auto const name = "callInfoList[" + std::to_string(at) + "]";
      if (at < ours.size() && at < theirs.size())
        compareFields(id, name + ".", callFieldsOf(left.log), ours[at], theirs[at]);
      else
        compare(id, name, at < ours.size() ? Text("present") : Text(),
                at < theirs.size() ? Text("present") : Text());
    }
  }

  std::vector<std::string> const& ignored;
  std::vector<Difference> differences;
};

template <class Item>
auto findEntry(std::deque<Item>& log, std::string const& id) {
  return std::find_if(log.begin(), log.end(),
                      [&](Item const& entry) { return entry.uniqueId == id; });
}

template <class Item>
std::string put(std::deque<Item>& log, Item const& entry, std::uint32_t action) {
  auto const found = findEntry(log, entry.uniqueId);
  bool const there = found != log.end();
  if (action == Action::ENTRY_DELETED) {
    if (there)
      log.erase(found);
    return there ? "" : "deletes an entry that is not there";
  }
  if (there)
    *found = entry;
  else
    log.push_front(entry);
  if (action == Action::ENTRY_ADDED)
    return there ? "adds an entry that is already there" : "";
  return there ? "" : "changes an entry that is not there";
}

template <class Item>
std::string applyTo(std::deque<Item>& log, Item const& entry, EntryNotification const& message) {
  std::string problem;
  auto const add = [&](std::string const& more) {
    problem += (problem.empty() || more.empty() ? "" : "; ") + more;
  };
  if (!message.uniqueIdToDelete.empty()) {
    auto const replaced = findEntry(log, message.uniqueIdToDelete);
    if (replaced == log.end())
      add("replaces an entry that is not there");
    else
      log.erase(replaced);
  }
  if (!message.action)
    add("has no action");
  else if (*message.action > Action::ENTRY_DELETED)
    add("has action " + std::to_string(*message.action) + ", which has no meaning of its own");
  else
    add(put(log, entry, *message.action));
  return problem;
}

} // namespace

std::vector<Difference> diff(Decoded const& left, Decoded const& right,
                             std::vector<std::string> const& ignored) {
  return Comparison(ignored).run(left, right);
}

std::vector<std::string> comparedFields() {
  std::vector<std::string> names{"kind",   "log",   "outcome",          "text",
                                 "method", "value", "entryIds",         "handle",
                                 "action", "order", "uniqueIdToDelete", "schema",
                                 "reason", "ok",    "callLogEnabled",   "callInfoList"};
  for (Log const log : allLogs)
    for (Fields const fields : {entryFieldsOf(log), callFieldsOf(log)})
      for (Field const& field : fields)
        names.emplace_back(field.name);
  return names;
}

std::string apply(EntryNotification const& notification, ListResponse& list) {
  if (logOf(notification.entry) != logOf(list.entries))
    return "belongs to the log of " + std::string(nameOf(logOf(notification.entry))) + " calls";
  list.handle = notification.handle;
  return std::visit(
      [&](auto& log) {
        using Item = typename std::decay_t<decltype(log)>::value_type;
        return applyTo(log, std::get<Item>(notification.entry), notification);
      },
      list.entries);
}

} // namespace inspect
