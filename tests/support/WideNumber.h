#pragma once

#include <string>

// A number as wide text: where wide characters are narrow, the standard library's own gives something else.
inline std::wstring WideNumber(int number) {
  const std::string text = std::to_string(number);
  return {text.begin(), text.end()};
}
