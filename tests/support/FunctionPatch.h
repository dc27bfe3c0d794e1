// A function of a system library that leads to one of the test's own while this lives, whoever calls it and however its
// address was found.
#pragma once

#include <windows.h>

#include <cstring>

class FunctionPatch {
 public:
  FunctionPatch(const wchar_t* library, const char* name, void* replacement)
      : function_(reinterpret_cast<unsigned char*>(::GetProcAddress(::LoadLibraryW(library), name))) {
    // mov rax, replacement; jmp rax
    unsigned char jump[kLength] = {0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};
    std::memcpy(jump + 2, &replacement, sizeof replacement);
    std::memcpy(before_, function_, kLength);
    Write(jump);
  }
  ~FunctionPatch() { Write(before_); }
  FunctionPatch(const FunctionPatch&) = delete;
  FunctionPatch& operator=(const FunctionPatch&) = delete;

 private:
  static constexpr size_t kLength = 12;

  void Write(const unsigned char* bytes) {
    DWORD protection = 0;
    ::VirtualProtect(function_, kLength, PAGE_EXECUTE_READWRITE, &protection);
    std::memcpy(function_, bytes, kLength);
    ::VirtualProtect(function_, kLength, protection, &protection);
    ::FlushInstructionCache(::GetCurrentProcess(), function_, kLength);
  }

  unsigned char* const function_;
  unsigned char before_[kLength];
};
