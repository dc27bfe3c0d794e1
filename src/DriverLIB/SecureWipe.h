// Wiping of passwords from memory that is about to be given back.
#pragma once

#include <cstddef>
#include <cstring>

#include "DriverLIB/CUString.h"

// Overwrites memory with zeros. The compiler may not leave that out, though nobody reads the memory afterwards: to it
// the empty statement behind it reads all memory.
inline void SecureWipe(void* memory, size_t byteCount) {
  std::memset(memory, 0, byteCount);
  asm volatile("" : : "r"(memory) : "memory");
}

// Overwrites all that a text's buffer holds, what is left of earlier texts included, and leaves the text empty.
inline void WipeText(CUString& text) {
  if (!text.Buffer()) return;
  SecureWipe(text.Buffer(), static_cast<size_t>(text.Capacity()) * sizeof(wchar_t));
  text.SetLength(0);
}
