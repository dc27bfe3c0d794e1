// What strings and readers of text do with lengths and ends.
#pragma once

#include <cstdint>
#include <new>
#include <string_view>

namespace text {

// A length of text as the strings keep it. More than they can hold counts as exhausted memory.
inline int CheckedLength(uint64_t length, int maxLength) {
  if (length > static_cast<uint64_t>(maxLength)) throw std::bad_alloc();
  return static_cast<int>(length);
}

// The index of a search result, -1 for none.
constexpr int IndexOf(size_t position) { return position == std::string_view::npos ? -1 : static_cast<int>(position); }

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

}  // namespace text
