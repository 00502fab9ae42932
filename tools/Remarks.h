// Where a message differs from what writers write.
#ifndef TOOLS_REMARKS_H
#define TOOLS_REMARKS_H

#include <array>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

/// Topics of remarks. Only the first few of each are kept, so that the output for a damaged log
/// stays readable.
enum class Topic { NUL, METHOD, DECLARATION, TAGS, TEXT, ORDER, UNKNOWN, MISSING, VALUE, NUMBER };

class Remarks {
public:
  void add(Topic topic, std::size_t offset, std::string const& text);

  bool empty() const { return kept.empty(); }

  /// Prints them in the order of their offsets.
  void print(std::ostream& out) const;

private:
  static constexpr std::size_t mostOfATopic = 20;

  struct Remark {
    std::size_t offset;
    std::string text;
  };
  std::vector<Remark> kept;
  std::array<std::size_t, static_cast<std::size_t>(Topic::NUMBER) + 1> counts{};
};

#endif
