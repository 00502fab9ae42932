#include "Suggest.h"

#include <algorithm>
#include <numeric>

namespace journalmsg {
namespace {

/// How many letters have to be inserted, deleted or replaced.
std::size_t distanceOf(std::string_view left, std::string_view right) {
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t line = 1; line <= left.size(); ++line) {
    auto diagonal = row[0];
    row[0] = line;
    for (std::size_t column = 1; column <= right.size(); ++column) {
      auto const replaced = diagonal + (left[line - 1] == right[column - 1] ? 0 : 1);
      diagonal = row[column];
      row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
    }
  }
  return row.back();
}

bool contains(std::vector<std::string> const& names, std::string const& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

std::string nearest(std::string_view name, std::vector<std::string> const& names) {
  std::string best;
  std::size_t least = name.size() / 2 + 1;
  for (auto const& one : names)
    if (auto const distance = distanceOf(name, one); distance < least) {
      best = one;
      least = distance;
    }
  return best;
}

std::vector<std::string> optionsOf(CLI::App const& command) {
  std::vector<std::string> names;
  for (auto const* const option : command.get_options()) {
    for (auto const& name : option->get_lnames())
      names.push_back("--" + name);
    for (auto const& name : option->get_snames())
      names.push_back("-" + name);
  }
  return names;
}

std::vector<std::string> commandsOf(CLI::App const& app) {
  std::vector<std::string> names;
  for (auto const* const command : app.get_subcommands([](CLI::App const*) { return true; }))
    names.push_back(command->get_name());
  return names;
}

std::string suggestionFor(CLI::App const& app, int argc, char** argv) {
  auto const commands = commandsOf(app);
  CLI::App const* command = &app;
  for (int at = 1; at < argc; ++at) {
    std::string const argument = argv[at];
    auto const name = argument.substr(0, argument.find('='));
    bool const option = name.size() > 1 && name[0] == '-' && (name[1] < '0' || name[1] > '9');
    auto const known = option ? optionsOf(*command) : commands;
    if (!option && command == &app && contains(commands, name))
      command = app.get_subcommand(name);
    else if (!contains(known, name) && (option || command == &app))
      if (auto const found = nearest(name, known); !found.empty())
        return "\nDid you mean " + found + "?";
  }
  return command == &app ? "\nRun journalmsg --help for the commands."
                         : "\nRun journalmsg " + command->get_name() + " --help for more.";
}

} // namespace journalmsg
