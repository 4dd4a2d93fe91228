#ifndef TSXPORT_TESTS_SUPPORT_SCOPEDLOCALE_H_
#define TSXPORT_TESTS_SUPPORT_SCOPEDLOCALE_H_

#include <clocale>
#include <locale>
#include <stdexcept>
#include <string>

namespace test {

// Sets the C library's locale for one scope. The tests' locales are "de_DE.UTF-8",
// "de_DE.ISO-8859-1" (comma as decimal character), "ja_JP.EUC-JP" and "ps_AF.UTF-8" (a decimal
// character of two bytes).
class ScopedLocale {
 public:
  explicit ScopedLocale(const char* name, int category = LC_ALL)
      : before_(std::setlocale(LC_ALL, nullptr)) {
    if (std::setlocale(category, name) == nullptr) {
      throw std::runtime_error(std::string("no locale ") + name + "; is LOCPATH set?");
    }
  }
  ~ScopedLocale() { std::setlocale(LC_ALL, before_.c_str()); }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

 private:
  std::string before_;
};

// Digits in groups of three, and a comma as decimal character.
class GroupingPunct : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// Makes a grouping locale the global C++ locale for one scope.
class ScopedGroupingCxxLocale {
 public:
  ScopedGroupingCxxLocale()
      : before_(std::locale::global(std::locale(std::locale::classic(), new GroupingPunct))) {}
  ~ScopedGroupingCxxLocale() { std::locale::global(before_); }
  ScopedGroupingCxxLocale(const ScopedGroupingCxxLocale&) = delete;
  ScopedGroupingCxxLocale& operator=(const ScopedGroupingCxxLocale&) = delete;

 private:
  std::locale before_;
};

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_SCOPEDLOCALE_H_
