// What is left of a text in memory that is given back.
#pragma once

#include <string>

// While it lives, counts the array blocks that still hold `secret` when they are freed. One at a time.
class FreedTextWatch {
 public:
  explicit FreedTextWatch(const wchar_t* secret);
  ~FreedTextWatch();
  FreedTextWatch(const FreedTextWatch&) = delete;
  FreedTextWatch& operator=(const FreedTextWatch&) = delete;

  int Count() const;
};
