// Functions of system libraries that are bound at first use, because few runs need them.
#pragma once

#include <windows.h>

//   static const auto resultOf = SystemFunction<decltype(::LresultFromObject)>(L"oleacc.dll", "LresultFromObject");
//
// Null when the system has no such library or function. The library stays loaded.
template <class Function>
Function* SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE module = ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return module ? reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module, name))) : nullptr;
}
