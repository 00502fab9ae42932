// The nearest name to one that is unknown.
#ifndef JOURNALMSG_SUGGEST_H
#define JOURNALMSG_SUGGEST_H

#include <CLI/CLI.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace journalmsg {

/// The nearest of the names; empty when none is near.
std::string nearest(std::string_view name, std::vector<std::string> const& names);

/// What to add to the complaint about arguments that were not understood.
std::string suggestionFor(CLI::App const& app, int argc, char** argv);

/// All long and short options of a command, as they are typed.
std::vector<std::string> optionsOf(CLI::App const& command);
std::vector<std::string> commandsOf(CLI::App const& app);

} // namespace journalmsg

#endif
