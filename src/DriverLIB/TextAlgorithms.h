// What the wide and the narrow string do alike.
#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string>

#include "DriverLIB/TextView.h"

namespace text {

// A length of text as the strings keep it. More than they can hold counts as exhausted memory.
inline int CheckedLength(uint64_t length, int maxLength) {
  if (length > static_cast<uint64_t>(maxLength)) throw std::bad_alloc();
  return static_cast<int>(length);
}

// A zeroed block for `capacity` characters and the terminator.
template <class Character>
std::unique_ptr<Character[]> AllocateBlock(int capacity) {
  return std::make_unique<Character[]>(static_cast<size_t>(capacity) + 1);
}

// The index of a search result, -1 for none.
constexpr int IndexOf(size_t position) { return position == std::string::npos ? -1 : static_cast<int>(position); }

// How many characters at the start, and at the end, satisfy `matches`.
template <class Character, class Predicate>
int CountLeading(std::basic_string_view<Character> text, Predicate matches) {
  size_t count = 0;
  while (count < text.size() && matches(text[count])) ++count;
  return static_cast<int>(count);
}

template <class Character, class Predicate>
int CountTrailing(std::basic_string_view<Character> text, Predicate matches) {
  size_t count = 0;
  while (count < text.size() && matches(text[text.size() - 1 - count])) ++count;
  return static_cast<int>(count);
}

// `text` with every `oldText`, which is not empty, replaced from left to right; replaced text is not looked into.
template <class Character>
std::basic_string<Character> ReplaceAll(std::basic_string_view<Character> text,
                                        std::basic_string_view<Character> oldText,
                                        std::basic_string_view<Character> newText) {
  std::basic_string<Character> result;
  size_t cursor = 0;
  for (size_t found; (found = text.find(oldText, cursor)) != text.npos; cursor = found + oldText.size()) {
    result.append(text, cursor, found - cursor);
    result.append(newText);
  }
  return result.append(text, cursor);
}

}  // namespace text
