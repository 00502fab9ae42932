// journalmsg: see, make, check and compare messages of the journal service.
#include <csignal>

#include <algorithm>
#include <iostream>
#include <thread>

#include "Commands.h"
#include "JournalServiceHelper.h"
#include "Suggest.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

char const* const exitCodes = "Exit codes:\n"
                              "  0  fine\n"
                              "  1  findings or differences\n"
                              "  2  wrong use\n"
                              "  3  input or output failed\n"
                              "  4  nothing recognised";

inspect::Log logNamed(std::string const& name) {
  return *inspect::logOf(name);
}

std::vector<std::string> logNames() {
  std::vector<std::string> names;
  for (auto const log : inspect::allLogs)
    names.emplace_back(inspect::nameOf(log));
  return names;
}

} // namespace

CLI::App* Program::add(std::string const& name, std::string const& does,
                       std::vector<std::string> const& examples,
                       std::function<int()> action) const {
  auto* const command = app.add_subcommand(name, does);
  std::string footer = "Examples:";
  for (auto const& example : examples)
    footer += "\n  journalmsg " + example;
  command->footer(footer);
  command->callback([&run = run, action = std::move(action)] { run = action; });
  return command;
}

void Program::addFiles(CLI::App* command) const {
  command
      ->add_option("FILE", options.files,
                   "files and folders with messages, gzip too; the standard input when there is "
                   "none, or for -")
      ->type_name("");
  command->add_flag(
      "--scan,!--no-scan", [&options = options](std::int64_t count) { options.scan = count > 0; },
      "find messages between other text; on by default when a text does not begin with one");
  command
      ->add_option("--limit", options.limit,
                   "most bytes of one message; a number, or one with K, M or G")
      ->transform(CLI::AsSizeValue(false))
      ->transform(CLI::Validator(
          [](std::string& text) {
            return text.substr(0, 1) == "-" ? std::string("must not be negative") : std::string();
          },
          {}))
      ->type_name("SIZE")
      ->default_str("64M");
  command->add_flag("--redact", options.redact, "mask numbers and names; lengths are kept");
  addColor(command);
}

void Program::addJobs(CLI::App* command) const {
  command->add_option("-j,--jobs", options.jobs, "how many threads work; 0 for one a processor")
      ->type_name("N")
      ->each([&options = options](std::string const& text) {
        if (text == "0")
          options.jobs = std::max(1u, std::thread::hardware_concurrency());
      });
}

void Program::addKind(CLI::App* command) const {
  command
      ->add_option_function<std::string>(
          "--kind", [&options = options](std::string const& name) { options.log = logNamed(name); },
          "the log of bare entries that do not tell it")
      ->check(CLI::IsMember(logNames()))
      ->type_name("LOG");
}

void Program::addColor(CLI::App* command) const {
  command->add_option("--color", options.color, "colours: always, never, or auto on a terminal")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->type_name("WHEN");
}

void Program::addFormat(CLI::App* command, std::vector<std::string> const& formats) const {
  std::string names;
  for (auto const& format : formats)
    names += (names.empty() ? "" : ", ") + format;
  command->add_option("--format", options.format, "one of: " + names)
      ->check(CLI::IsMember(formats))
      ->type_name("FORMAT")
      ->default_str(formats[0]);
}

int exitCode(bool read, bool recognised, bool anyFinding) {
  if (!read)
    return failed;
  if (!recognised)
    return nothing;
  return anyFinding ? findings : fine;
}

namespace {

int runProgram(int argc, char** argv) {
  CLI::App app("See, make, check and compare messages of the journal service, one or a million.",
               "journalmsg");
  app.footer(std::string("journalmsg COMMAND --help tells about a command.\n\n") + exitCodes);
  app.set_version_flag("--version", std::string("journalmsg ") + JOURNALSERVICEHELPER_VERSION,
                       "print the version");
  app.require_subcommand(1);
  Options options;
  Run run;
  Program const program{app, options, run};
  for (auto const add :
       {addIdentify, addDecode, addEncode, addMake, addExplain, addCheck, addDiff, addWatch,
        addReport, addReplay, addStats, addMethods, addSchema, addCompletion})
    add(program);
  try {
    app.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    if (error.get_exit_code() == 0) {
      app.exit(error);
      std::cout.flush();
      return std::cout ? fine : failed;
    }
    complain(inspect::safeText(error.what()) + suggestionFor(app, argc, argv));
    return usage;
  }
  int const code = run();
  Output(options).flush();
  return code;
}

} // namespace
} // namespace journalmsg

int main(int argc, char** argv) {
  using namespace journalmsg;
  std::signal(SIGPIPE, SIG_IGN);
  try {
    return runProgram(argc, argv);
  } catch (Misuse const& misuse) {
    complain(misuse.what());
    return usage;
  } catch (std::exception const& error) {
    complain(error.what());
    return failed;
  }
}
