// Commands that show messages: identify, decode, watch.
#include <fcntl.h>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <regex.h>
#include <unistd.h>

#include <thread>

#include "Commands.h"
#include "Input.h"
#include "Table.h"
#include "inspect/Json.h"
#include "inspect/Redact.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

using namespace inspect;

bool isRecognised(Decoded const& decoded) {
  return kindOf(decoded.message) != Kind::unknown;
}

struct Line {
  std::string text;
  bool recognised = false;
};

int identifyAll(Options const& options) {
  Output output(options);
  bool recognised = false;
  auto const work = [&](Item const& item) {
    auto const decoded = decode(item.text(), options.log);
    auto const identity = identify(item.text());
    Line line{{}, identity.kind != Kind::unknown};
    if (options.format == "jsonl") {
      appendJson(line.text, identity, decoded, item.text().size());
      line.text.pop_back();
      line.text += ",\"place\":" + toJson(std::string_view(item.place())) + "}\n";
    } else {
      line.text = lineOf(identity, decoded, item.text().size(), item.place()) + "\n";
    }
    return line;
  };
  bool const read = workOnMessages(options, work, [&](Line line) {
    output.data(line.text);
    recognised = recognised || line.recognised;
  });
  return exitCode(read, recognised);
}

/// @param path of the one value to print; empty for all
class Decoder {
public:
  Decoder(Options const& given, std::string const& wanted)
      : options(given), output(given), path(wanted) {}

  int run() {
    if (path.empty() && options.format == "csv")
      output.text(csvHeading());
    bool recognised = false;
    bool found = true;
    auto const work = [this](Item const& item) { return decoded(item); };
    bool const read = workOnMessages(options, work, [&](Line line) {
      if (path.empty() && options.format == "table")
        output.text(line.text);
      else
        output.data(line.text);
      recognised = recognised || line.recognised;
      found = found && !line.text.empty();
    });
    if (!found)
      throw Misuse("not every message has a value at " + safeText(path));
    return exitCode(read, recognised);
  }

private:
  Line decoded(Item const& item) const {
    auto const decoded = decode(item.text(), options.log);
    Line line{{}, isRecognised(decoded)};
    std::string error;
    if (!path.empty()) {
      if (auto const value = valueAt(toJson(decoded), path, error))
        line.text = *value + "\n";
    } else if (options.format == "jsonl")
      appendJson(line.text, decoded), line.text += '\n';
    else if (options.format == "json")
      line.text = indented(toJson(decoded)) + "\n";
    else if (options.format == "csv")
      line.text = csvOf(identify(item.text()), decoded, item.place());
    else
      line.text = tableOf(decoded, output);
    return line;
  }

  Options const& options;
  Output output;
  std::string path;
};

// ---- watch

struct Watching {
  std::string match;
  std::size_t limit = 0;
  bool follow = false;
};

std::string now() {
  auto const time = std::chrono::system_clock::now();
  auto const since = time.time_since_epoch();
  auto const part = std::chrono::duration_cast<std::chrono::milliseconds>(since).count() % 1000;
  return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}",
                     fmt::localtime(std::chrono::system_clock::to_time_t(time)), part);
}

struct Enough {};

/// An extended regular expression. std::regex takes a level of the stack for each character.
class Pattern {
public:
  explicit Pattern(std::string const& expression) {
    if (regcomp(&compiled_, expression.c_str(), REG_EXTENDED | REG_NOSUB) != 0)
      throw Misuse("--match takes an extended regular expression");
  }
  ~Pattern() { regfree(&compiled_); }
  Pattern(Pattern const&) = delete;
  Pattern& operator=(Pattern const&) = delete;

  /// Up to the first NUL.
  bool matches(std::string const& text) const {
    return regexec(&compiled_, text.c_str(), 0, nullptr, 0) == 0;
  }

private:
  regex_t compiled_;
};

class Watcher {
public:
  Watcher(Options const& given, Watching const& what)
      : options(given), watching(what), output(given), pattern(what.match), stream(streamed()) {}

  int run() {
    auto const file = options.files.empty() ? std::string("-") : options.files[0];
    place = std::make_shared<std::string const>(file);
    try {
      if (watching.follow)
        follow(file);
      readPieces(file, [this](std::string_view piece) { push(piece); });
      stream.finish();
      push({});
    } catch (Enough const&) {
    }
    return exitCode(true, recognised);
  }

private:
  Stream::Options streamed() const {
    Stream::Options streamOptions;
    streamOptions.scan = options.scan;
    streamOptions.limit = options.limit;
    return streamOptions;
  }

  void push(std::string_view piece) {
    stream.push(piece);
    Item item{{}, place};
    while (stream.next(item.found))
      show(item);
    if (stream.isTooLarge())
      throw Failure(fmt::format("a message is larger than {} bytes (see --limit)", options.limit));
    output.flush();
  }

  void show(Item& item) {
    if (options.redact)
      item.found.text = redacted(std::move(item.found.text));
    if (!watching.match.empty() && !pattern.matches(item.text()))
      return;
    auto const decoded = decode(item.text(), options.log);
    recognised = recognised || isRecognised(decoded);
    output.text(now() + "  ");
    output.data(lineOf(identify(item.text()), decoded, item.text().size(), item.place()) + "\n");
    output.flush();
    if (++shownMessages == watching.limit)
      throw Enough();
  }

  /// Never returns: reads on at the end of the file, and from the front when it was cut.
  [[noreturn]] void follow(std::string const& path) {
    int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
      throw Failure("cannot read " + safeText(path));
    std::string piece(1 << 16, '\0');
    off_t at = 0;
    while (true) {
      auto const size = pread(file, piece.data(), piece.size(), at);
      if (size < 0)
        throw Failure("cannot read " + safeText(path));
      push(std::string_view(piece).substr(0, static_cast<std::size_t>(size)));
      at += size;
      if (size > 0)
        continue;
      if (lseek(file, 0, SEEK_END) < at)
        at = 0;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
  }

  Options const& options;
  Watching watching;
  Output output;
  Pattern pattern;
  Stream stream;
  std::shared_ptr<std::string const> place;
  std::size_t shownMessages = 0;
  bool recognised = false;
};

} // namespace

std::string lineOf(Identity const& identity, Decoded const& decoded, std::size_t bytes,
                   std::string const& place) {
  auto const handle = handleOf(decoded.message);
  auto const entries = entriesOf(decoded.message).size();
  auto const* const notification = std::get_if<EntryNotification>(&decoded.message);
  auto const method = identity.method.empty() ? "-" : identity.method;
  return fmt::format("{:<19}  {:<25}  code {:>2}  entries {:>5}  handle {:>10}  {:>8} bytes  {}{}",
                     nameOf(identity.kind), method, static_cast<unsigned>(identity.code), entries,
                     handle ? std::to_string(*handle) : "-", bytes, place,
                     notification != nullptr ? "  action " + actionText(notification->action) : "");
}

void addIdentify(Program const& program) {
  auto& options = program.options;
  auto* const command =
      program.add("identify", "Tell what each message is, a line each.",
                  {"identify capture.log", "identify --format jsonl - < messages.xml"},
                  [&options] { return identifyAll(options); });
  program.addFiles(command);
  program.addJobs(command);
  program.addKind(command);
  program.addFormat(command, {"line", "jsonl"});
}

void addDecode(Program const& program) {
  auto& options = program.options;
  auto const path = std::make_shared<std::string>();
  auto* const command = program.add(
      "decode", "Print the records of messages, as readers get them.",
      {"decode missed.xml", "decode --get 'entries[0].surname' missed.xml"}, [&options, path] {
        if (options.format.empty())
          options.format = "table";
        return Decoder(options, *path).run();
      });
  program.addFiles(command);
  program.addJobs(command);
  program.addKind(command);
  program.addFormat(command, {"table", "json", "jsonl", "csv"});
  command->add_option("--get", *path, "print one value, such as entries[0].callInfoList[1].number")
      ->type_name("PATH");
}

void addWatch(Program const& program) {
  auto& options = program.options;
  auto const watching = std::make_shared<Watching>();
  auto* const command = program.add(
      "watch", "Print a line for each message as it comes.",
      {"watch --follow --match CallsUpdate traffic.log", "watch --limit-messages 10 < /dev/ttyS0"},
      [&options, watching] {
        if (options.files.size() > 1)
          throw Misuse("watch reads one file");
        return Watcher(options, *watching).run();
      });
  program.addFiles(command);
  program.addKind(command);
  command
      ->add_option("--match", watching->match,
                   "only messages with a match of this extended expression")
      ->type_name("REGEX");
  command->add_option("-n,--limit-messages", watching->limit, "end after so many messages")
      ->type_name("N");
  command->add_flag("--follow", watching->follow, "wait for what is appended to the file");
}

} // namespace journalmsg
