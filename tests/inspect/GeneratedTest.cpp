// Generated messages of every kind: byte for byte back from JSON, and without findings.
#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/schema.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "inspect/Diff.h"
#include "inspect/Json.h"

namespace {

using namespace inspect;

class Generator {
public:
  explicit Generator(unsigned seed) : random(seed) {}

  std::size_t below(std::size_t limit) { return random() % limit; }

  /// Without markup: what a writer copies raw must not become a tag.
  std::string text() {
    static std::string const pieces[] = {"a",  "Z", "7",    " ",  "&",   "&amp;", "&lt;", "'",
                                         "\"", "ü", "\x01", "李", "+49", "-",     "\\"};
    std::string made;
    for (auto size = below(6); size > 0; --size)
      made += pieces[below(std::size(pieces))];
    return made;
  }

  void fill(Fields fields, void* record) {
    for (Field const& field : fields)
      if (field.travel == members::Travel::never)
        continue;
      else if (field.type == Type::text)
        field.text(record) = text();
      else
        setNumber(field, record, static_cast<std::int32_t>(below(namesOf(field.type).size)));
  }
  void fill(RecordView entry) {
    fill(entryFieldsOf(entry.log), entry.record);
    for (auto calls = below(3); calls > 0; --calls)
      fill(callFieldsOf(entry.log), addCall(entry));
  }
  Entry entry() {
    Entry made = entryOf(allLogs[below(logs)]);
    fill(viewOf(made));
    return made;
  }

  Decoded message() {
    Decoded made;
    auto const number = static_cast<std::uint32_t>(random());
    switch (below(5)) {
    case 0: {
      ListResponse list{entriesOf(allLogs[below(logs)]), number};
      for (auto entries = below(4); entries > 0; --entries)
        fill(addEntry(list.entries));
      made.message = std::move(list);
      if (below(4) == 0)
        made.outcome = below(2) == 0;
      break;
    }
    case 1:
      made.message =
          EntryNotification{entry(), text(), static_cast<std::uint32_t>(below(10)), number};
      break;
    case 2:
      return decode(operation());
    default:
      made.message = StoreRequest{"CallLogSettings", "read_request"};
    }
    made.declared = isDeclared(kindOf(made.message));
    return made;
  }

  /// A message of any operation that takes no entry.
  std::string operation() {
    std::string error;
    auto const& one = operations()[below(operations().size())];
    std::vector<std::string> arguments;
    if (one.takes == Takes::id)
      arguments = {"i" + text()};
    else if (one.takes == Takes::ids)
      arguments = {"1" + text(), "2" + text()};
    else if (one.takes == Takes::count)
      arguments = {std::to_string(random())};
    return make(one.name, arguments, error).value_or("none: " + error);
  }

private:
  std::mt19937 random;
};

TEST(Generated, MessagesComeBackFromJsonByteForByte) {
  Generator generator(1);
  for (int count = 0; count < 100000; ++count) {
    auto const text = encode(generator.message());
    auto const json = toJson(decode(text));
    std::string error;
    auto const back = fromJson(json, error);
    ASSERT_TRUE(back) << error << "\n" << json;
    ASSERT_EQ(encode(*back), text) << json;
    ASSERT_EQ(toJson(*back), json);
  }
}

std::string schemaInTheTree() {
  std::ifstream file(JOURNAL_SCHEMA, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Generated, SchemaIsTheOneInTheTree) {
  EXPECT_EQ(messageSchema(), schemaInTheTree())
      << "journalmsg schema > inspect/message.schema.json";
}

TEST(Generated, MessagesFollowTheSchema) {
  rapidjson::Document schema;
  schema.Parse(schemaInTheTree().c_str());
  ASSERT_FALSE(schema.HasParseError());
  rapidjson::SchemaDocument const rules(schema);
  auto const follows = [&](std::string const& json) {
    rapidjson::Document document;
    document.Parse(json.c_str());
    rapidjson::SchemaValidator validator(rules);
    return document.Accept(validator);
  };
  Generator generator(3);
  for (int count = 0; count < 2000; ++count) {
    auto const json = toJson(decode(encode(generator.message())));
    ASSERT_TRUE(follows(json)) << json;
  }
  EXPECT_TRUE(follows(toJson(decode("\xFF"))));
  EXPECT_TRUE(follows(toJson(decode("<CallLogEnabled>x</CallLogEnabled>"))));
  EXPECT_FALSE(follows("{}"));
  EXPECT_FALSE(follows(R"({"kind":"setting"})"));
  EXPECT_FALSE(follows(R"({"kind":"setting","callLogEnabled":true,"more":1})"));
}

TEST(Generated, EveryDifferenceHasAFieldThatCanBeIgnored) {
  auto const fields = comparedFields();
  Generator generator(4);
  for (int count = 0; count < 20000; ++count) {
    auto const left = decode(encode(generator.message()));
    for (auto const& found : diff(left, decode(encode(generator.message())))) {
      auto const name = found.field.substr(found.field.rfind('.') + 1);
      auto const field = name.substr(0, name.find('[')); // callInfoList[0]
      ASSERT_TRUE(field.empty() || std::count(fields.begin(), fields.end(), field) != 0)
          << found.field;
    }
  }
}

TEST(Generated, MessagesGiveNoFindings) {
  Generator generator(2);
  for (int count = 0; count < 10000; ++count) {
    auto const text = encode(generator.message());
    ASSERT_EQ(toJson(check(text)), "[]") << text;
  }
}

} // namespace
