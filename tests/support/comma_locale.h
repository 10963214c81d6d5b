// A locale that writes 1.2.3.4,5, in C++ streams and in the C library, for the length of a scope.
#pragma once

#include <stdlib.h>

#include <clocale>
#include <locale>
#include <string>

#include "support/temp_dir.h"

class CommaLocale {
 public:
  /// Takes an installed locale, or has one made. The system offers no more than that: ask `is_in_force`.
  CommaLocale() : m_saved(std::setlocale(LC_ALL, nullptr)) {
    set_c_locale();
    m_saved_global = std::locale::global(std::locale(std::locale::classic(), new Punctuation));
  }
  CommaLocale(CommaLocale const&) = delete;
  CommaLocale& operator=(CommaLocale const&) = delete;
  ~CommaLocale() {
    std::locale::global(m_saved_global);
    std::setlocale(LC_ALL, m_saved.c_str());
  }

  static bool is_in_force() { return std::localeconv()->decimal_point == std::string(","); }

 private:
  struct Punctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
  };

  static void set_c_locale() {
    for (char const* const name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) return;
    }
    const TempDir directory;
    const std::string make =
        "localedef -i de_DE -f UTF-8 '" + directory.path("de_DE.UTF-8") + "' >/dev/null 2>&1";
    if (std::system(make.c_str()) != 0) return;
    setenv("LOCPATH", directory.path().c_str(), 1);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    unsetenv("LOCPATH");
  }

  std::string m_saved;
  std::locale m_saved_global;
};
