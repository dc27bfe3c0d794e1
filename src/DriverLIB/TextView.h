// Borrowed text: the argument type of everything that takes a text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Somebody else's text, made from a literal, a pointer (null is the empty text), a string of this library or one of
// the standard library. A view owns nothing: its text must outlive it.
template <class Character>
class TextView : public std::basic_string_view<Character> {
 public:
  using Base = std::basic_string_view<Character>;

  constexpr TextView() = default;
  constexpr TextView(const Character* text) : Base(text ? Base(text) : Base()) {}
  constexpr TextView(const Character* text, size_t count) : Base(text, count) {}
  constexpr TextView(Base text) : Base(text) {}
  TextView(const std::basic_string<Character>& text) : Base(text) {}

  // The text up to the first terminator inside, which is as far as a reader of terminated text gets.
  constexpr TextView Terminated() const { return this->substr(0, this->find(Character())); }
};

using WideView = TextView<wchar_t>;
using NarrowView = TextView<char>;  // text in the ANSI code page
