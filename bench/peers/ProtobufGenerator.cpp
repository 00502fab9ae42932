// Generates the Protobuf schema of the records, logs.proto, and LogConversion.h with the functions
// that convert a record to a message and back, from the list of members.
//
// usage: journal_bench_protobuf_generator FOLDER
#include <algorithm>
#include <cctype>
#include <fstream>
#include <string>
#include <type_traits>

#include "Fields.h"

namespace {

template <class Member>
constexpr bool isText(Member const&) {
  return std::is_same_v<typename Member::Value, std::string>;
}

template <class Member>
constexpr bool isFlag(Member const&) {
  return std::is_same_v<typename Member::Value, bool>;
}

class Generator {
public:
  explicit Generator(std::string const& folder)
      : proto_(folder + "/logs.proto"), conversion_(folder + "/LogConversion.h") {
    proto_ << "syntax = \"proto3\";\npackage bench.pb;\n"
           << "option optimize_for = SPEED;\noption cc_enable_arenas = true;\n";
    conversion_ << "#include \"Kinds.h\"\n#include \"logs.pb.h\"\nnamespace bench::protobuf {\n";
  }

  template <class Entry>
  void addKind(std::string const& kind) {
    addRecord<members::CallOf<Entry>>(kind, "Call");
    addRecord<Entry>(kind, "Item");
    proto_ << "message " << kind << "Log { repeated " << kind
           << "Item entries = 1; uint32 handle = 2; }\n";
    conversion_ << "inline pb::" << kind << "Log messageOf(" << kind << ") { return {}; }\n";
  }

  bool finish() {
    conversion_ << "}\n";
    return proto_.flush() && conversion_.flush();
  }

private:
  template <class Record>
  void addRecord(std::string const& kind, std::string const& record) {
    addMessage<Record>(kind, record);
    addReader<Record>("pb::" + kind + record + " const& from, " + kind + "::" + record + "& to");
    addWriter<Record>(kind + "::" + record + " const& from, pb::" + kind + record + "& to");
  }

  // Texts are bytes: the records hold byte strings, and Protobuf does not check bytes for UTF-8.
  // Enumerations are int32, which is encoded in the same bytes as a Protobuf enumeration. Texts get
  // the first field numbers: a number above 15 takes one more byte, and the enumerations at the end
  // are usually 0, which is not written.
  template <class Record>
  void addMessage(std::string const& kind, std::string const& record) {
    int number = 0;
    auto const add = [&](std::string const& type, std::string_view name) {
      proto_ << "  " << type << ' ' << name << " = " << ++number << ";\n";
    };
    proto_ << "message " << kind << record << " {\n";
    bench::forEachElement<Record>([&](auto const& member) {
      if (isText(member))
        add("bytes", member.name);
    });
    bench::forEachElement<Record>([&](auto const& member) {
      if (!isText(member))
        add(isFlag(member) ? "bool" : "int32", member.name);
    });
    if (members::isEntry<Record>)
      add("repeated " + kind + "Call", "calls");
    proto_ << "}\n";
  }

  template <class Record>
  void addReader(std::string const& parameters) {
    conversion_ << "template <class Texts> void read(Texts texts, " << parameters << ") {\n";
    bench::forEachElement<Record>([this](auto const& member) {
      std::string const field = "to." + std::string(member.name);
      std::string const value = "from." + accessor(member.name) + "()";
      if (!bench::isStored(member))
        return;
      if (isText(member))
        conversion_ << "  texts.take(" << field << ", " << value << ");\n";
      else
        conversion_ << "  " << field << " = static_cast<decltype(" << field << ")>(" << value
                    << ");\n";
    });
    if (members::isEntry<Record>)
      conversion_ << "  for (auto const& call : from.calls())\n"
                     "    read(texts, call, to.callInfoList.emplace_back());\n";
    conversion_ << "}\n";
  }

  // Empty texts are not set, as the library does not write them.
  template <class Record>
  void addWriter(std::string const& parameters) {
    conversion_ << "inline void write(" << parameters << ") {\n";
    bench::forEachElement<Record>([this](auto const& member) {
      std::string const field = "from." + std::string(member.name);
      if (isText(member))
        conversion_ << "  if (!" << field << ".empty())\n  ";
      conversion_ << "  to.set_" << accessor(member.name) << '(' << field << ");\n";
    });
    if (members::isEntry<Record>)
      conversion_ << "  for (auto const& call : from.callInfoList)\n"
                     "    write(call, *to.add_calls());\n";
    conversion_ << "}\n";
  }

  /// Protobuf's accessors have the name of their field in lower case.
  static std::string accessor(std::string_view name) {
    std::string text(name);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
  }

  std::ofstream proto_;
  std::ofstream conversion_;
};

} // namespace

int main(int argc, char** argv) {
  if (argc != 2)
    return 2;
  Generator generator(argv[1]);
  generator.addKind<MissedCallItem>("Missed");
  generator.addKind<DialledCallItem>("Dialled");
  generator.addKind<ReceivedCallItem>("Received");
  generator.addKind<ForwardedCallItem>("Forwarded");
  return generator.finish() ? 0 : 1;
}
