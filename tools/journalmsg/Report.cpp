// The command that makes a report: the page in the browser with messages inside.
#include <fmt/format.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "Commands.h"
#include "Input.h"
#include "inspect/Text.h"

namespace journalmsg {
namespace {

namespace fs = std::filesystem;

/// Where the page has its messages: behind this tag, a message a line, OFFSET LINE BASE64.
constexpr std::string_view slot = R"(<script id="capture" type="text/plain" data-name="">)";

/// The page is installed with this program, wherever both are.
std::string installedPage() {
  std::error_code error;
  auto const program = fs::read_symlink("/proc/self/exe", error);
  return (program.parent_path().parent_path() / JOURNALMSG_PAGE).string();
}

std::string base64(std::string_view bytes) {
  constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    auto const group = bytes.substr(at, 3);
    unsigned value = 0;
    for (std::size_t index = 0; index < 3; ++index)
      value = value << 8 | (index < group.size() ? static_cast<unsigned char>(group[index]) : 0u);
    for (std::size_t index = 0; index < 4; ++index)
      text += index <= group.size() ? digits[value >> (18 - 6 * index) & 63] : '=';
  }
  return text;
}

/// Fit for an attribute in quotes.
std::string escaped(std::string_view text) {
  std::string result;
  for (char const character : inspect::safeText(text))
    if (character == '&' || character == '"' || character == '<')
      result += fmt::format("&#{};", static_cast<int>(character));
    else
      result += character;
  return result;
}

class Report {
public:
  Report(Options const& given, std::string const& path) : options(given), target(path) {}

  int run(std::string const& pagePath) {
    if (std::error_code error; !fs::exists(pagePath, error))
      throw Failure("there is no page at " + inspect::safeText(pagePath) + " (see --page)");
    auto const page = readAll(pagePath);
    auto const place = page.find(slot);
    if (place == page.npos)
      throw Failure(inspect::safeText(pagePath) + " is not the page of journalmsg");
    refuseInput();
    file.open(target, std::ios::binary | std::ios::trunc);
    if (!file)
      failWriting();
    auto const inside = place + slot.size();
    file << std::string_view(page).substr(0, inside - 2) << names() << "\">";
    bool const read = writeMessages();
    file << std::string_view(page).substr(inside);
    file.close();
    if (!file)
      failWriting();
    return exitCode(read, recognised);
  }

private:
  [[noreturn]] void failWriting() const {
    throw Failure(fmt::format("cannot write {}: {}", inspect::safeText(target),
                              std::generic_category().message(errno)));
  }

  /// Opening the report would empty it.
  void refuseInput() const {
    for (auto const& path : options.files)
      if (std::error_code error; fs::equivalent(path, target, error))
        throw Misuse("the report would replace its input " + inspect::safeText(path));
  }

  std::string names() const {
    std::string names;
    for (auto const& path : options.files)
      names += (names.empty() ? "" : ", ") + escaped(fs::path(path).filename().string());
    return names;
  }

  bool writeMessages() {
    return forEachMessage(options, [this](Item const& item) {
      recognised = recognised || inspect::identify(item.text()).kind != inspect::Kind::unknown;
      file << item.found.offset << ' ' << item.found.line << ' ' << base64(item.text()) << '\n';
    });
  }

  Options const& options;
  std::string target;
  std::ofstream file;
  bool recognised = false;
};

} // namespace

void addReport(Program const& program) {
  auto& options = program.options;
  struct Paths {
    std::string report;
    std::string page = installedPage();
  };
  auto const paths = std::make_shared<Paths>();
  auto* const command = program.add(
      "report", "Write one HTML file that shows the messages in any browser, to attach and send.",
      {"report capture.log -o report.html", "report --redact capture.log -o report.html"},
      [&options, paths] { return Report(options, paths->report).run(paths->page); });
  program.addFiles(command);
  command->add_option("-o,--output", paths->report, "the report to write")
      ->type_name("FILE")
      ->required();
  command->add_option("--page", paths->page, "the page to put the messages into")
      ->type_name("FILE");
}

} // namespace journalmsg
