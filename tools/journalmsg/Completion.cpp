// Completions for shells, made from the commands and options themselves.
#include <fmt/format.h>

#include "Commands.h"
#include "Suggest.h"

namespace journalmsg {
namespace {

std::string joined(std::vector<std::string> const& names) {
  std::string text;
  for (auto const& name : names)
    text += (text.empty() ? "" : " ") + name;
  return text;
}

std::string casesOf(CLI::App const& app) {
  std::string cases;
  for (auto const& name : commandsOf(app))
    cases +=
        fmt::format("    {}) words='{}' ;;\n", name, joined(optionsOf(*app.get_subcommand(name))));
  return cases;
}

std::string bashFor(CLI::App const& app) {
  return "# bash completion for journalmsg\n"
         "_journalmsg() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} words=\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    words='" +
         joined(commandsOf(app)) + " " + joined(optionsOf(app)) +
         "'\n"
         "  elif [[ $current == -* ]]; then\n"
         "    case ${COMP_WORDS[1]} in\n" +
         casesOf(app) +
         "    esac\n"
         "  else\n"
         "    COMPREPLY=($(compgen -f -- \"$current\"))\n"
         "    return\n"
         "  fi\n"
         "  COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
         "}\n"
         "complete -o filenames -F _journalmsg journalmsg\n";
}

std::string zshFor(CLI::App const& app) {
  return "#compdef journalmsg\n"
         "_journalmsg() {\n"
         "  local command=$words[2] words=\n"
         "  if (( CURRENT == 2 )); then\n"
         "    compadd -- " +
         joined(commandsOf(app)) + " " + joined(optionsOf(app)) +
         "\n"
         "  elif [[ $PREFIX == -* ]]; then\n"
         "    case $command in\n" +
         casesOf(app) +
         "    esac\n"
         "    compadd -- ${=words}\n"
         "  else\n"
         "    _files\n"
         "  fi\n"
         "}\n"
         "_journalmsg \"$@\"\n";
}

} // namespace

void addCompletion(Program const& program) {
  auto& app = program.app;
  auto& options = program.options;
  auto const shell = std::make_shared<std::string>();
  auto* const command =
      program.add("completion", "Print a completion script for a shell.",
                  {"completion bash > /etc/bash_completion.d/journalmsg",
                   "completion zsh > ~/.zfunc/_journalmsg"},
                  [&app, &options, shell] {
                    Output(options).text(*shell == "bash" ? bashFor(app) : zshFor(app));
                    return fine;
                  });
  command->add_option("SHELL", *shell, "bash or zsh")
      ->required()
      ->check(CLI::IsMember({"bash", "zsh"}))
      ->type_name("");
}

} // namespace journalmsg
