// Every golden message and sample log: decoded to JSON and back, it is the same bytes; and nothing
// that writers write gives a finding.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "inspect/Json.h"

namespace {

using namespace inspect;

std::vector<std::filesystem::path> messages() {
  std::vector<std::filesystem::path> files;
  for (auto const* const folder : {JOURNAL_GOLDEN_DIR, JOURNAL_SAMPLES_DIR})
    for (auto const& entry : std::filesystem::directory_iterator(folder))
      if (entry.path().extension() == ".xml")
        files.push_back(entry.path());
  return files;
}

std::string contentOf(std::filesystem::path const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(GoldenRoundTrip, GivesTheSameBytes) {
  ASSERT_FALSE(messages().empty());
  for (auto const& path : messages()) {
    auto const text = contentOf(path);
    auto const json = toJson(decode(text));
    std::string error;
    auto const back = fromJson(json, error);
    ASSERT_TRUE(back) << path << ": " << error << "\n" << json;
    EXPECT_EQ(encode(*back), text) << path << "\n" << json;
  }
}

TEST(GoldenRoundTrip, GivesNoFindings) {
  for (auto const& path : messages()) {
    auto const text = contentOf(path);
    EXPECT_EQ(toJson(check(text)), "[]") << path;
  }
}

TEST(GoldenRoundTrip, ExplainsEveryElement) {
  for (auto const& path : messages()) {
    auto const text = contentOf(path);
    for (auto const& piece : explain(text).pieces)
      EXPECT_TRUE(piece.form != Piece::Form::leaf || piece.stored || !piece.reasons.empty())
          << path << " " << piece.element;
  }
}

} // namespace
