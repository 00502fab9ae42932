// The commands. Each adds itself to the program: its options, its help, and what it does.
#ifndef JOURNALMSG_COMMANDS_H
#define JOURNALMSG_COMMANDS_H

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

#include "Common.h"

namespace journalmsg {

/// What runs once the arguments are read.
using Run = std::function<int()>;

struct Program {
  CLI::App& app;
  Options& options;
  Run& run;

  /// Adds a command that calls `action`.
  /// @param examples two lines of arguments, as they are typed behind the program's name
  CLI::App* add(std::string const& name, std::string const& does,
                std::vector<std::string> const& examples, std::function<int()> action) const;

  void addFiles(CLI::App* command) const; ///< FILE..., --scan, --limit, --redact
  void addJobs(CLI::App* command) const;
  void addKind(CLI::App* command) const;
  void addColor(CLI::App* command) const;
  void addFormat(CLI::App* command, std::vector<std::string> const& formats) const;
};

void addIdentify(Program const& program);
void addDecode(Program const& program);
void addEncode(Program const& program);
void addMake(Program const& program);
void addExplain(Program const& program);
void addCheck(Program const& program);
void addDiff(Program const& program);
void addWatch(Program const& program);
void addReport(Program const& program);
void addReplay(Program const& program);
void addStats(Program const& program);
void addSchema(Program const& program);
void addMethods(Program const& program);
void addCompletion(Program const& program);

/// A line about a message: kind, method and code, entries, handle, bytes, place.
std::string lineOf(inspect::Identity const& identity, inspect::Decoded const& decoded,
                   std::size_t bytes, std::string const& place);

/// The records of a message as a table.
std::string tableOf(inspect::Decoded const& decoded, Output const& output);

/// The only message of an input.
inspect::Decoded decodedFrom(std::string const& path, Options const& options);

/// Of a command that went over messages.
int exitCode(bool read, bool recognised, bool anyFinding = false);

} // namespace journalmsg

#endif
