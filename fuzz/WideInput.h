#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// The input as wide text: ASCII bytes are characters; any other byte is the upper half of one, with the next as its
// lower half. There are no zeros inside, since texts of a host end there.
inline std::wstring WideInput(const uint8_t* data, size_t size) {
  std::wstring text;
  for (size_t i = 0; i < size; ++i) {
    auto character = static_cast<wchar_t>(data[i]);
    if (data[i] >= 0x80 && i + 1 < size) character = static_cast<wchar_t>(data[i] << 8 | data[i + 1]);
    if (data[i] >= 0x80) ++i;
    if (character) text += character;
  }
  return text;
}
