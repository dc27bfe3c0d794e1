// A text that holds a password. Its characters are wiped wherever a buffer of it is given back: when the text changes
// and when it dies.
#pragma once

#include <utility>

#include "DriverLIB/SecureWipe.h"

class CSecretText {
 public:
  CSecretText() = default;
  CSecretText(const CSecretText& other) : text_(other.text_) {}
  ~CSecretText() { WipeText(text_); }

  // Takes the text over with its buffer, so that no copy is left with whoever gave it.
  CSecretText& operator=(CUString&& text) noexcept {
    WipeText(text_);
    text_ = std::move(text);
    return *this;
  }
  CSecretText& operator=(const CUString& text) { return *this = CUString(text); }
  CSecretText& operator=(const CSecretText& other) { return *this = CUString(other.text_); }

  const wchar_t* Text() const { return text_.Text(); }
  bool IsEmpty() const { return text_.IsEmpty(); }
  operator WideView() const { return text_; }
  friend bool operator==(const CSecretText& left, const CSecretText& right) { return left.text_ == right.text_; }

  // Leaves at most `length` characters.
  void CutTo(int length) {
    if (text_.Length() <= length) return;
    SecureWipe(text_.Buffer() + length, static_cast<size_t>(text_.Length() - length) * sizeof(wchar_t));
    text_.SetLength(length);
  }

 private:
  CUString text_;
};
