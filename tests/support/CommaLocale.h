// A locale whose decimal sign is a comma. A host may have chosen that of its user for the run-time library that is ours
// too.
#pragma once

#include <clocale>
#include <string>

class CommaLocale {
 public:
  CommaLocale()
      : before_(std::setlocale(LC_NUMERIC, nullptr)),
        isThere_(std::setlocale(LC_NUMERIC, "German") || std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) {}
  ~CommaLocale() { std::setlocale(LC_NUMERIC, before_.c_str()); }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  // Not every system has one.
  bool IsThere() const { return isThere_; }

 private:
  const std::string before_;
  const bool isThere_;
};
