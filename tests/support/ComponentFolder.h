#pragma once

#include <windows.h>

#include <string>

// The folder of sibling libraries of that kind, with its trailing separator (tests/components/CMakeLists.txt).
inline std::wstring ComponentFolder(const std::wstring& kind) {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const std::wstring path(program);
  return path.substr(0, path.rfind(L'\\') + 1) + L"components\\" + kind + L"\\";
}
