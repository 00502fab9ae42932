// Commands that make messages: encode, make, methods.
#include <fmt/format.h>

#include "Commands.h"
#include "Input.h"
#include "Suggest.h"
#include "inspect/Json.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

using namespace inspect;

/// Takes JSON values one after another out of a stream, whatever is between them.
class JsonValues {
public:
  template <class Take>
  void push(std::string_view bytes, Take take) {
    for (char const character : bytes) {
      if (depth_ > 0 || character == '{' || character == '[')
        value_ += character;
      step(character);
      if (depth_ == 0 && !value_.empty()) {
        take(value_);
        value_.clear();
      } else if (depth_ == 0 && whitespace.find(character) == std::string_view::npos) {
        throw Misuse("the input is no JSON object");
      }
    }
  }
  bool isInside() const { return depth_ > 0; }

private:
  void step(char character) {
    if (inText_) {
      inText_ = escaped_ || character != '"';
      escaped_ = !escaped_ && character == '\\';
    } else if (character == '"') {
      inText_ = depth_ > 0;
    } else if (character == '{' || character == '[') {
      ++depth_;
    } else if (depth_ > 0 && (character == '}' || character == ']')) {
      --depth_;
    }
  }

  std::string value_;
  std::size_t depth_ = 0;
  bool inText_ = false;
  bool escaped_ = false;
};

class Encoding {
public:
  explicit Encoding(Options const& given) : options(given), output(given) {}

  int run() {
    auto files = options.files;
    if (files.empty())
      files.emplace_back("-");
    for (auto const& file : files) {
      JsonValues values;
      readPieces(file, [&](std::string_view piece) {
        values.push(piece, [&](std::string const& json) { write(json, file); });
      });
      if (values.isInside())
        throw Misuse(safeText(file) + ": the JSON ends too early");
    }
    return count == 0 ? nothing : fine;
  }

private:
  void write(std::string const& json, std::string const& file) {
    std::string error;
    auto const decoded = fromJson(json, error);
    if (!decoded)
      throw Misuse(fmt::format("{}: message {}: {}", safeText(file), count + 1, safeText(error)));
    if (count++ > 0)
      output.text("\n");
    output.data(encode(*decoded));
    if (output.isTerminal())
      output.text("\n");
  }

  Options const& options;
  Output output;
  std::size_t count = 0;
};

std::string argumentsOf(Takes takes) {
  constexpr std::string_view texts[] = {
      "", "ID", "[ID...]", "COUNT", "[ENTRY-JSON [ACTION [HANDLE [UNIQUE-ID-TO-DELETE]]]]", ""};
  return std::string(texts[static_cast<std::size_t>(takes)]);
}

int makeOne(Options const& options, std::vector<std::string> const& words) {
  std::string error;
  auto const message = make(words[0], {words.begin() + 1, words.end()}, error);
  if (message) {
    Output output(options);
    output.data(*message);
    if (output.isTerminal())
      output.text("\n");
    return fine;
  }
  std::vector<std::string> names;
  for (auto const& operation : operations())
    for (auto const name : {operation.name, operation.method})
      names.emplace_back(name);
  auto const near = nearest(words[0], names);
  bool const known = near == words[0];
  throw Misuse(safeText(words[0]) + ": " + safeText(error) +
               (known || near.empty() ? "" : "\nDid you mean " + near + "?"));
}

int listMethods(Options const& options) {
  std::vector<std::vector<std::string>> rows{
      {"operation", "method", "code", "kind", "log", "arguments"}};
  for (auto const& operation : operations())
    rows.push_back({std::string(operation.name),
                    operation.method.empty() ? "-" : std::string(operation.method),
                    operation.method.empty() ? "-" : std::to_string(operation.code),
                    std::string(nameOf(operation.kind)),
                    operation.log ? std::string(nameOf(*operation.log)) : "-",
                    argumentsOf(operation.takes)});
  Output(options).text(alignedRows(rows, ""));
  return fine;
}

} // namespace

void addEncode(Program const& program) {
  auto& options = program.options;
  auto* const command =
      program.add("encode", "Turn JSON as decode prints it back into messages.",
                  {"encode message.json > message.xml", "encode < messages.jsonl > messages.xml"},
                  [&options] { return Encoding(options).run(); });
  command
      ->add_option("FILE", options.files, "files with JSON; the standard input when there is none")
      ->type_name("");
}

void addMake(Program const& program) {
  auto& options = program.options;
  auto const words = std::make_shared<std::vector<std::string>>();
  auto* const command =
      program.add("make", "Make a message by the name of an operation or method (see methods).",
                  {"make reqDeleteMissedCallList 12 7",
                   "make obsReqMissedCallsUpdate '{\"uniqueId\":\"m-1\"}' 0 7"},
                  [&options, words] { return makeOne(options, *words); });
  command->add_option("NAME", *words, "the name, then ids or what else the operation takes")
      ->required()
      ->type_name("");
  command->positionals_at_end();
}

void addSchema(Program const& program) {
  auto& options = program.options;
  program.add("schema", "Print the JSON schema of messages.",
              {"schema > message.schema.json", "schema | jq .definitions.missedEntry"}, [&options] {
                Output(options).text(messageSchema());
                return fine;
              });
}

void addMethods(Program const& program) {
  auto& options = program.options;
  program.add("methods", "List what make can make.", {"methods", "methods | grep missed"},
              [&options] { return listMethods(options); });
}

} // namespace journalmsg
