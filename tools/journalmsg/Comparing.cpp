// Commands that take several messages together: diff, replay, stats.
#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "Commands.h"
#include "Input.h"
#include "Suggest.h"
#include "inspect/Diff.h"
#include "inspect/Explain.h"
#include "inspect/Json.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

using namespace inspect;

std::vector<Item> messagesIn(std::string const& path, Options options) {
  std::vector<Item> items;
  options.files = {path};
  if (!forEachMessage(options, [&](Item item) { items.push_back(std::move(item)); }))
    throw Failure(safeText(path) + " was not read");
  return items;
}

// ---- diff

std::string sideOf(std::optional<std::string> const& side) {
  return side ? '"' + shown(*side) + '"' : std::string("nothing");
}

std::string lineOf(Difference const& difference, Output const& output) {
  std::string line = difference.entry.empty() ? "" : "entry " + shown(difference.entry) + " ";
  if (difference.field.empty())
    return line +
           (difference.left ? output.colored("only left", red)
                            : output.colored("only right", cyan)) +
           "\n";
  return line + difference.field + ": " + output.colored(sideOf(difference.left), red) + " -> " +
         output.colored(sideOf(difference.right), cyan) + "\n";
}

struct Comparing {
  std::vector<std::string> files;
  std::vector<std::string> ignored;
};

void rejectUnknownFields(std::vector<std::string> const& ignored) {
  auto const fields = comparedFields();
  for (auto const& name : ignored)
    if (std::find(fields.begin(), fields.end(), name) == fields.end()) {
      auto const near = nearest(name, fields);
      throw Misuse("there is no field " + safeText(name) +
                   (near.empty() ? "" : "; did you mean " + near + "?"));
    }
}

int diffBoth(Options const& options, Comparing const& comparing) {
  rejectUnknownFields(comparing.ignored);
  Output output(options);
  auto const left = messagesIn(comparing.files[0], options);
  auto const right = messagesIn(comparing.files[1], options);
  if (left.empty() || right.empty())
    return nothing;
  std::vector<Difference> all;
  for (std::size_t at = 0; at < std::min(left.size(), right.size()); ++at) {
    auto const found = diff(decode(left[at].text(), options.log),
                            decode(right[at].text(), options.log), comparing.ignored);
    if (!found.empty() && options.format != "json" && left.size() > 1)
      output.text(left[at].place() + " and " + right[at].place() + "\n");
    if (options.format != "json")
      for (Difference const& difference : found)
        output.text(lineOf(difference, output));
    all.insert(all.end(), found.begin(), found.end());
  }
  if (left.size() != right.size()) {
    all.push_back({{}, "messages", std::to_string(left.size()), std::to_string(right.size())});
    if (options.format != "json")
      output.text(lineOf(all.back(), output));
  }
  if (options.format == "json")
    output.data(toJson(all) + "\n");
  return all.empty() ? fine : findings;
}

// ---- replay

int replayAll(Options const& options) {
  if (options.files.size() < 2)
    throw Misuse("replay takes a list and notifications");
  auto const lists = messagesIn(options.files[0], options);
  auto log = lists.empty() ? Decoded() : decode(lists[0].text());
  auto* const list = std::get_if<ListResponse>(&log.message);
  if (list == nullptr || lists.size() > 1)
    throw Misuse(safeText(options.files[0]) + " holds no list, or more than one message");
  bool fits = true;
  auto notifications = options;
  notifications.files.erase(notifications.files.begin());
  bool const read = forEachMessage(notifications, [&](Item const& item) {
    auto const decoded = decode(item.text());
    auto const* const one = std::get_if<EntryNotification>(&decoded.message);
    auto const problem = one != nullptr ? apply(*one, *list)
                                        : "is no entry notification but " +
                                              std::string(nameOf(kindOf(decoded.message)));
    if (!problem.empty())
      complain(item.place() + ": " + problem);
    fits = fits && problem.empty();
  });
  log.written.clear(); // entries have moved
  Output output(options);
  if (options.format == "json")
    output.data(indented(toJson(log)) + "\n");
  else if (options.format == "message")
    output.data(encode(log));
  else
    output.text(tableOf(log, output));
  return exitCode(read, true, !fits);
}

// ---- stats

using Counts = std::map<std::string, std::uint64_t>;

struct Numbers {
  std::uint64_t messages = 0;
  std::uint64_t bytes = 0;
  std::uint64_t largest = 0;
  std::uint64_t entries = 0;
  std::uint64_t calls = 0;
  Counts kinds, methods, days, rules;

  void add(Numbers const& other) {
    messages += other.messages;
    bytes += other.bytes;
    largest = std::max(largest, other.largest);
    entries += other.entries;
    calls += other.calls;
    for (auto const counts : {&Numbers::kinds, &Numbers::methods, &Numbers::days, &Numbers::rules})
      for (auto const& [name, count] : other.*counts)
        (this->*counts)[name] += count;
  }
};

/// The day of a call: what its time begins with, where that looks like a date.
std::string dayOf(RecordView entry, void const* call) {
  for (Field const& field : callFieldsOf(entry.log))
    if (field.element == "TimeDate") {
      auto const day = field.text(call).substr(0, 10);
      bool const date = day.size() == 10 && day.find_first_not_of("0123456789-./") == day.npos;
      return date ? day : "other";
    }
  return "other";
}

Numbers numbersOf(Item const& item, Options const& options) {
  auto const explanation = explain(item.text(), options.log);
  auto const decoded = decode(item.text(), options.log);
  Numbers numbers;
  numbers.messages = 1;
  numbers.bytes = numbers.largest = item.text().size();
  ++numbers.kinds[std::string(nameOf(explanation.identity.kind))];
  if (!explanation.identity.method.empty())
    ++numbers.methods[std::string(explanation.identity.method)];
  for (auto const entry : entriesOf(decoded.message)) {
    ++numbers.entries;
    forEachCall(entry, [&](void* call) {
      ++numbers.calls;
      ++numbers.days[dayOf(entry, call)];
    });
  }
  for (Finding const& finding : explanation.findings)
    ++numbers.rules[std::string(ruleOf(finding.rule).id)];
  return numbers;
}

std::string jsonOf(Counts const& counts) {
  std::string json;
  for (auto const& [name, count] : counts)
    json += fmt::format("{}{}:{}", json.empty() ? "" : ",", toJson(std::string_view(name)), count);
  return "{" + json + "}";
}

std::string tableOf(char const* title, Counts const& counts) {
  std::vector<std::vector<std::string>> rows{{title, "count"}};
  for (auto const& [name, count] : counts)
    rows.push_back({safeText(name), std::to_string(count)});
  return counts.empty() ? std::string() : alignedRows(rows, "");
}

int statsOfAll(Options const& options) {
  Numbers all;
  bool const read = workOnMessages(
      options, [&](Item const& item) { return numbersOf(item, options); },
      [&](Numbers const& numbers) { all.add(numbers); });
  Output output(options);
  if (options.format == "json") {
    output.data(
        fmt::format("{{\"messages\":{},\"bytes\":{},\"largest\":{},\"entries\":{},"
                    "\"calls\":{},\"kinds\":{},\"methods\":{},\"days\":{},\"findings\":{}}}\n",
                    all.messages, all.bytes, all.largest, all.entries, all.calls, jsonOf(all.kinds),
                    jsonOf(all.methods), jsonOf(all.days), jsonOf(all.rules)));
  } else {
    output.text(fmt::format("{} messages, {} bytes, largest {}, {} entries, {} calls\n",
                            all.messages, all.bytes, all.largest, all.entries, all.calls));
    output.text(tableOf("kind", all.kinds) + tableOf("method", all.methods) +
                tableOf("day", all.days) + tableOf("finding", all.rules));
  }
  return exitCode(read, all.messages > all.kinds["unknown"]);
}

} // namespace

void addDiff(Program const& program) {
  auto& options = program.options;
  auto const comparing = std::make_shared<Comparing>();
  auto* const command =
      program.add("diff", "Tell what differs between two messages, entry by entry.",
                  {"diff before.xml after.xml", "diff --ignore handle --ignore viewed a.xml b.xml"},
                  [&options, comparing] { return diffBoth(options, *comparing); });
  command->add_option("FILES", comparing->files, "two files, each with messages")
      ->required()
      ->expected(2)
      ->type_name("");
  command->add_option("--ignore", comparing->ignored, "a field that is not compared; repeatable")
      ->type_name("FIELD")
      ->allow_extra_args(false);
  program.addKind(command);
  program.addColor(command);
  program.addFormat(command, {"text", "json"});
}

void addReplay(Program const& program) {
  auto& options = program.options;
  auto* const command =
      program.add("replay", "Apply notifications to a list and print the result.",
                  {"replay missed.xml traffic.log", "replay --format json missed.xml update.xml"},
                  [&options] { return replayAll(options); });
  program.addFiles(command);
  program.addFormat(command, {"table", "json", "message"});
}

void addStats(Program const& program) {
  auto& options = program.options;
  auto* const command = program.add("stats", "Count messages by kind, method, day and findings.",
                                    {"stats captures/", "stats -j 0 --format json traffic.log.gz"},
                                    [&options] { return statsOfAll(options); });
  program.addFiles(command);
  program.addJobs(command);
  program.addKind(command);
  program.addFormat(command, {"text", "json"});
}

} // namespace journalmsg
