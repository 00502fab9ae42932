#include "Program.h"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

std::string contentOf(fs::path const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Removed with all that is in it.
struct Folder {
  Folder() {
    std::string name = (fs::temp_directory_path() / "journalmsg-XXXXXX").string();
    path = mkdtemp(name.data());
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  Folder(Folder const&) = delete;
  Folder& operator=(Folder const&) = delete;
  fs::path path;
};

} // namespace

Result run(std::string const& command, std::string const& input) {
  Folder const folder;
  fs::create_directory(folder.path / "work");
  std::ofstream(folder.path / "input", std::ios::binary) << input;
  std::ofstream(folder.path / "command")
      << "cd " << folder.path / "work"
      << "\n"
      << "journalmsg() { \"" JOURNAL_PROGRAM "\" \"$@\"; }\n"
      << "golden=\"" JOURNAL_GOLDEN_DIR "\" samples=\"" JOURNAL_SAMPLES_DIR "\"\n"
      << "unset NO_COLOR; export LC_ALL=C.UTF-8\n"
      << command << "\n";
  auto const line = "timeout 60 bash " + (folder.path / "command").string() + " <" +
                    (folder.path / "input").string() + " >" + (folder.path / "out").string() +
                    " 2>" + (folder.path / "err").string();
  int const status = std::system(line.c_str());
  return {contentOf(folder.path / "out"), contentOf(folder.path / "err"), WEXITSTATUS(status)};
}
