// Help, man page and completions: complete, and true.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "Program.h"

namespace {

std::vector<std::string> const commands{"identify", "decode", "encode",     "make",   "explain",
                                        "check",    "diff",   "watch",      "replay", "stats",
                                        "methods",  "schema", "completion", "report"};

std::string page() {
  static auto const text = run("cat \"" JOURNAL_SOURCE_DIR "/docs/man/journalmsg.1\"").out;
  return text;
}

TEST(Help, NamesEveryCommand) {
  auto const help = run("journalmsg --help").out;
  for (auto const& command : commands) {
    EXPECT_NE(help.find("\n  " + command + " "), std::string::npos) << command;
    EXPECT_NE(page().find(command), std::string::npos) << command;
  }
}

TEST(Help, OfEveryCommandHasTwoExamples) {
  for (auto const& command : commands) {
    auto const help = run("journalmsg " + command + " --help").out;
    auto const examples = help.find("Examples:");
    ASSERT_NE(examples, std::string::npos) << command;
    EXPECT_NE(help.find("\n  journalmsg " + command, help.find("\n  journalmsg ", examples) + 1),
              std::string::npos)
        << command;
  }
}

/// The options of a command's help: words that begin with a hyphen at the front of a line.
std::vector<std::string> optionsIn(std::string const& help) {
  std::vector<std::string> options;
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);)
    if (line.compare(0, 3, "  -") == 0) {
      std::istringstream words(line.substr(0, line.find_first_of(" {:", 3)));
      for (std::string word; std::getline(words, word, ',');)
        options.push_back(word.substr(word.find('-')));
    }
  return options;
}

TEST(Help, HasNoOptionThatTheManPageLacks) {
  for (auto const& command : commands)
    for (auto option : optionsIn(run("journalmsg " + command + " --help").out)) {
      for (auto at = option.find('-'); at != std::string::npos; at = option.find('-', at + 2))
        option.insert(at, "\\");
      EXPECT_NE(page().find(option), std::string::npos) << command << " " << option;
    }
}

TEST(Help, CompletionsAreValidAndComplete) {
  auto const result = run("journalmsg completion bash >c && bash -n c && . ./c && complete -p "
                          "journalmsg; COMP_WORDS=(journalmsg deco); COMP_CWORD=1; _journalmsg;"
                          "echo \"${COMPREPLY[@]}\"; COMP_WORDS=(journalmsg decode --form);"
                          "COMP_CWORD=2; _journalmsg; echo \"${COMPREPLY[@]}\"");
  EXPECT_EQ(result.out, "complete -o filenames -F _journalmsg journalmsg\ndecode\n--format\n");
  EXPECT_NE(run("journalmsg completion zsh").out.find("#compdef journalmsg"), std::string::npos);
  EXPECT_EQ(run("journalmsg completion fish").code, 2);
}

TEST(Help, EveryRuleIsExplained) {
  auto const result = run("journalmsg check --rules");
  EXPECT_NE(result.out.find("byte-order-mark (warning): a byte-order mark\n"), std::string::npos);
  EXPECT_EQ(result.code, 0);
}

/// What the README shows is what the program prints: each line with a $ is run in the source tree.
TEST(Help, ReadmeShowsRealOutput) {
  auto const readme = run("cat \"" JOURNAL_SOURCE_DIR "/README.md\"").out;
  int shown = 0;
  std::size_t at = 0;
  while ((at = readme.find("```console\n$ journalmsg ", at)) != std::string::npos) {
    at += std::string("```console\n$ ").size();
    auto const line = readme.find('\n', at);
    auto const end = readme.find("```", line);
    auto const command = readme.substr(at, line - at);
    auto const result = run("cd \"" JOURNAL_SOURCE_DIR "\"; " + command);
    EXPECT_EQ(result.out + result.err, readme.substr(line + 1, end - line - 1)) << command;
    ++shown;
  }
  EXPECT_GE(shown, 3);
}

} // namespace
