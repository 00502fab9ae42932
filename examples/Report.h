// Prints what happens in the round trip, and which steps differ from what they should be.
#ifndef EXAMPLES_REPORT_H
#define EXAMPLES_REPORT_H

#include <ostream>
#include <string>

/// Prints the steps, and counts those that differ from what they should be.
class Report {
public:
  /// @param steps receives the steps
  /// @param differences receives a line for each step that differs
  Report(std::ostream& steps, std::ostream& differences) : out(steps), err(differences) {}

  /// Begins a section; differences in it are reported under its title.
  void section(std::string const& title) {
    current = title;
    out << '\n' << title << '\n';
  }

  /// Prints who calls which operation, and what came of it.
  void step(std::string const& who, std::string const& operation, std::string const& outcome) {
    out << "  " << padded(who, 9) << padded(operation, 33) << outcome << '\n';
  }

  /// Counts the check, and reports the step if it differs.
  void check(bool asItShouldBe, std::string const& step) {
    ++checks;
    if (asItShouldBe)
      return;
    ++differing;
    err << "roundtrip: step differs: " << current << ": " << step << '\n';
  }

  std::ostream& stream() { return out; }
  std::size_t checkCount() const { return checks; }
  std::size_t differenceCount() const { return differing; }

private:
  static std::string padded(std::string text, std::size_t width) {
    text.resize(text.size() < width ? width : text.size() + 1, ' ');
    return text;
  }

  std::ostream& out;
  std::ostream& err;
  std::string current;
  std::size_t checks = 0;
  std::size_t differing = 0;
};

#endif
