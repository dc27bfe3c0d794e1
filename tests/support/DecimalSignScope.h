// Another decimal sign for numbers, as a host's locale brings it: in Persian it is a slash, say. No such locale has to
// be installed: on Windows the run-time library writes by the very record that it hands out.
#pragma once

#include <clocale>
#include <utility>

class DecimalSignScope {
 public:
  explicit DecimalSignScope(char sign)
      : sign_{sign, '\0'}, before_(std::exchange(std::localeconv()->decimal_point, sign_)) {}
  ~DecimalSignScope() { std::localeconv()->decimal_point = before_; }
  DecimalSignScope(const DecimalSignScope&) = delete;
  DecimalSignScope& operator=(const DecimalSignScope&) = delete;

 private:
  char sign_[2];
  char* const before_;
};
