// Plays the round trip of the call logs between a client and the service, or prints a list message
// of your own. Start reading at playScenario in Scenario.cpp.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "LogTable.h"
#include "ReadFile.h"
#include "Report.h"
#include "Scenario.h"

namespace {

enum ExitCode : int {
  OK = 0,
  STEP_DIFFERS = 1,
  CANNOT_READ = 2, // wrong use as well
  NO_LOG = 3,
  CANNOT_WRITE = 4
};

char const* const usage =
    R"(usage: roundtrip                 play the round trip with the sample logs
       roundtrip --samples DIR   play it with missed.xml, dialled.xml, received.xml and
                                 forwarded.xml of that folder
       roundtrip FILE            print the call log in a list message of your own
       roundtrip --help          print this

exit code: 0  all went well
           1  a step differs from what it should be
           2  wrong use, or a file cannot be read
           3  FILE is no list message or holds no entry
           4  the output cannot be written
)";

ExitCode complain(ExitCode code, std::string const& text) {
  std::cerr << "roundtrip: " << text << '\n';
  return code;
}

ExitCode playSamples(std::string const& folder) {
  Report report(std::cout, std::cerr);
  std::cout << "Round trip of the four call logs between a client and the service\n";
  playScenario(folder, report);
  std::cout << '\n'
            << report.checkCount() << " checks, " << report.differenceCount() << " differ\n";
  return report.differenceCount() == 0 ? OK : STEP_DIFFERS;
}

/// Notes which parts of the message could not be read.
void noteLosses(std::string const& message, std::size_t entryCount) {
  auto const end = message.find('\0');
  if (end != std::string::npos)
    std::cerr << "roundtrip: note: the message ends at the NUL byte at offset " << end << '\n';
  std::size_t begun = 0;
  std::string const& tag = JournalServiceHelper::ENTRY_XML_BEGIN;
  for (auto at = message.find(tag); at < end; at = message.find(tag, at + tag.size()))
    ++begun;
  if (begun != entryCount)
    std::cerr << "roundtrip: note: " << begun - entryCount << " of " << begun
              << " entries are empty or cut off\n";
}

template <class Kind>
ExitCode printMessage(std::string const& path, std::string const& message) {
  typename Kind::Log log;
  unsigned int handle = 0;
  Kind::readLog(message, log, handle);
  noteLosses(message, log.size());
  if (log.empty())
    return complain(NO_LOG, path + " holds no entry");
  std::cout << Kind::name << " calls: " << log.size()
            << (log.size() == 1 ? " entry, " : " entries, ") << message.size() << " bytes, handle "
            << handle << "\n\n";
  printLog<Kind>(std::cout, log);
  return OK;
}

ExitCode printFile(std::string const& path) {
  std::string const message = readFile(path);
  switch (JournalServiceHelper::getMethodFromXMLMsg(message)) {
  case Missed::listCode:
    return printMessage<Missed>(path, message);
  case Dialled::listCode:
    return printMessage<Dialled>(path, message);
  case Received::listCode:
    return printMessage<Received>(path, message);
  case Forwarded::listCode:
    return printMessage<Forwarded>(path, message);
  default:
    return complain(NO_LOG, path + " is no list message: its Method element names none of the "
                                   "four call lists");
  }
}

ExitCode run(std::vector<std::string> const& arguments) {
  if (arguments.empty())
    return playSamples(JOURNAL_EXAMPLE_SAMPLES);
  if (arguments.size() == 2 && arguments[0] == "--samples")
    return playSamples(arguments[1]);
  if (arguments.size() == 1 && arguments[0] == "--help") {
    std::cout << usage;
    return OK;
  }
  if (arguments.size() == 1 && arguments[0].rfind('-', 0) != 0)
    return printFile(arguments[0]);
  std::cerr << usage;
  return CANNOT_READ;
}

} // namespace

int main(int argc, char** argv) {
  try {
    ExitCode const code = run(std::vector<std::string>(argv + 1, argv + argc));
    if (!std::cout.flush())
      return complain(CANNOT_WRITE, "the output cannot be written");
    return code;
  } catch (std::exception const& error) {
    return complain(CANNOT_READ, error.what());
  }
}
