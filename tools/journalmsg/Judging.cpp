// Commands that judge messages: explain, check.
#include <fmt/format.h>

#include "Commands.h"
#include "Input.h"
#include "inspect/Explain.h"
#include "inspect/Json.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

using namespace inspect;

std::string_view colorOf(Severity severity) {
  switch (severity) {
  case Severity::error:
    return red;
  case Severity::warning:
    return yellow;
  case Severity::note:
    return cyan;
  default:
    return faint;
  }
}

// ---- explain

/// The element as it starts in the text, indented by its depth.
std::string elementOf(Piece const& piece) {
  auto const indent = std::string(2 * piece.depth, ' ');
  auto const name = std::string(piece.element);
  switch (piece.form) {
  case Piece::Form::declaration:
    return indent + "<?xml?>";
  case Piece::Form::text:
    return indent + "(text)";
  case Piece::Form::end:
    return indent + "</" + name + ">";
  case Piece::Form::closeTag:
    return indent + "</" + name + ">";
  default:
    return indent + "<" + name + ">";
  }
}

std::string reasonsOf(Piece const& piece, Output const& output) {
  std::string text;
  for (RuleId const reason : piece.reasons)
    text += (text.empty() ? "" : "; ") +
            output.colored(ruleOf(reason).what, colorOf(ruleOf(reason).severity));
  return text;
}

std::string explained(Explanation const& explanation, Output const& output) {
  std::vector<std::vector<std::string>> rows{{"offset", "element", "raw", "stored", "why"}};
  for (Piece const& piece : explanation.pieces) {
    if (piece.form == Piece::Form::end && piece.reasons.empty())
      continue;
    bool const valued =
        piece.form == Piece::Form::leaf || piece.form == Piece::Form::text || !piece.raw.empty();
    rows.push_back({fmt::format("{:>6}", piece.offset), safeText(elementOf(piece)),
                    valued ? '"' + shown(piece.raw, 30) + '"' : std::string(),
                    piece.stored ? '"' + shown(*piece.stored, 30) + '"' : std::string(),
                    reasonsOf(piece, output)});
  }
  return alignedRows(rows, "");
}

/// What is not about one of the pieces.
std::string otherFindings(Explanation const& explanation, Output const& output) {
  std::string text;
  for (Finding const& finding : explanation.findings)
    if (finding.rule == RuleId::missing || finding.element.empty())
      text += fmt::format(
          "{:>6}  {}{}{}\n", finding.offset,
          output.colored(ruleOf(finding.rule).what, colorOf(ruleOf(finding.rule).severity)),
          finding.element.empty() ? "" : ": ", safeText(finding.element));
  return text;
}

int explainAll(Options const& options) {
  Output output(options);
  bool recognised = false;
  struct Result {
    std::string text;
    bool recognised;
  };
  auto const work = [&](Item const& item) {
    auto const explanation = explain(item.text(), options.log);
    Result result{{}, explanation.identity.kind != Kind::unknown};
    if (options.format == "json")
      result.text = toJson(explanation) + "\n";
    else
      result.text = output.colored(item.place(), bold) + "  " +
                    std::string(nameOf(explanation.identity.kind)) + " " +
                    std::string(explanation.identity.method) + "\n" +
                    explained(explanation, output) + otherFindings(explanation, output);
    return result;
  };
  bool const read = workOnMessages(options, work, [&](Result const& result) {
    if (options.format == "json")
      output.data(result.text);
    else
      output.text(result.text);
    recognised = recognised || result.recognised;
  });
  return exitCode(read, recognised);
}

// ---- check

struct Judgement {
  std::string text;
  bool recognised = false;
  bool broken = false;
};

/// Whether the text of a finding is our own word about a place, not what the message holds.
bool isPlace(RuleId rule) {
  return rule == RuleId::missing || rule == RuleId::misplaced || rule == RuleId::order ||
         rule == RuleId::whiteSpace;
}

std::string lineOf(Finding const& finding, std::string const& place, Output const& output) {
  Rule const& rule = ruleOf(finding.rule);
  std::string line = fmt::format("{}: offset {}: {}: {} [{}]", place, finding.offset,
                                 output.colored(nameOf(rule.severity), colorOf(rule.severity)),
                                 rule.what, rule.id);
  if (!finding.element.empty())
    line += fmt::format(": {}", safeText(finding.element));
  if (!finding.text.empty() && finding.text != finding.element)
    line += (isPlace(finding.rule) ? " " + finding.text : " \"" + shown(finding.text) + '"');
  if (!finding.instead.empty())
    line += fmt::format(", readers get \"{}\"", shown(finding.instead));
  return line + "\n";
}

int checkAll(Options const& options, bool strict) {
  Output output(options);
  bool recognised = false;
  bool broken = false;
  auto const work = [&](Item const& item) {
    auto const explanation = explain(item.text(), options.log);
    Judgement judgement{{}, explanation.identity.kind != Kind::unknown, false};
    for (Finding const& finding : explanation.findings) {
      judgement.broken =
          judgement.broken || strict || ruleOf(finding.rule).severity != Severity::note;
      if (options.format != "jsonl")
        judgement.text += lineOf(finding, item.place(), output);
    }
    if (options.format == "jsonl")
      judgement.text = "{\"place\":" + toJson(std::string_view(item.place())) +
                       ",\"findings\":" + toJson(explanation.findings) + "}\n";
    return judgement;
  };
  bool const read = workOnMessages(options, work, [&](Judgement const& judgement) {
    if (options.format == "jsonl")
      output.data(judgement.text);
    else
      output.text(judgement.text);
    recognised = recognised || judgement.recognised;
    broken = broken || judgement.broken;
  });
  return exitCode(read, recognised || broken, broken);
}

int listRules(Options const& options) {
  Output output(options);
  if (options.format == "jsonl") {
    output.text(toJson(rules()) + "\n");
    return fine;
  }
  for (Rule const& rule : rules()) {
    auto const severity = rule.severity == Severity::none ? std::string_view("explained only")
                                                          : nameOf(rule.severity);
    output.text(fmt::format("{} ({}): {}\n    {}\n", output.colored(rule.id, bold),
                            output.colored(severity, colorOf(rule.severity)), rule.what, rule.why));
  }
  return fine;
}

} // namespace

void addExplain(Program const& program) {
  auto& options = program.options;
  auto* const command = program.add(
      "explain", "Explain messages element by element: what is there, what readers store.",
      {"explain damaged.xml", "explain --format json damaged.xml | jq .pieces"},
      [&options] { return explainAll(options); });
  program.addFiles(command);
  program.addJobs(command);
  program.addKind(command);
  program.addFormat(command, {"table", "json"});
}

void addCheck(Program const& program) {
  auto& options = program.options;
  auto const strict = std::make_shared<bool>(false);
  auto const list = std::make_shared<bool>(false);
  auto* const command =
      program.add("check", "Find where messages differ from what writers write.",
                  {"check capture.log", "check --rules"}, [&options, strict, list] {
                    return *list ? listRules(options) : checkAll(options, *strict);
                  });
  program.addFiles(command);
  program.addJobs(command);
  program.addKind(command);
  program.addFormat(command, {"text", "jsonl"});
  command->add_flag("--strict", *strict, "notes count as findings too, for the exit code");
  command->add_flag("--rules", *list, "explain every rule");
}

} // namespace journalmsg
