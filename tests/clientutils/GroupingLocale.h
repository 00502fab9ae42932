// A locale that writes 1234567 as "1.234.567", set while the object exists.
#ifndef TESTS_CLIENTUTILS_GROUPINGLOCALE_H
#define TESTS_CLIENTUTILS_GROUPINGLOCALE_H

#include <clocale>
#include <locale>
#include <string>

class GroupingLocale {
public:
  GroupingLocale()
      : cLocale(std::setlocale(LC_ALL, nullptr)),
        locale(std::locale::global(std::locale(std::locale(), new Points))) {
    // None of these has to be installed; where one is, the C library groups too.
    for (char const* name : {"de_DE.UTF-8", "de_DE.utf8", "en_US.UTF-8", "en_US.utf8"})
      if (std::setlocale(LC_ALL, name) != nullptr)
        break;
  }
  ~GroupingLocale() {
    std::locale::global(locale);
    std::setlocale(LC_ALL, cLocale.c_str());
  }
  GroupingLocale(GroupingLocale const&) = delete;
  GroupingLocale& operator=(GroupingLocale const&) = delete;

private:
  struct Points : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::string cLocale;
  std::locale locale;
};

#endif
