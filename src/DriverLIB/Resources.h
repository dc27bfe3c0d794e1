// Resources of a module in a language of choice.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

// A pointer to the resource of `module` (an HMODULE), and its size in bytes if asked for; null when there is none.
// `name` and `type` may be numbers made by MAKEINTRESOURCEW. A `language` of 0 is the UI language. What that language
// lacks comes in its primary language, else in English, else in what belongs to no language; the thread's and process's
// languages have no say. The memory belongs to the module.
const void* LockResourceLang(void* module, const wchar_t* name, const wchar_t* type, uint16_t language,
                             size_t* size = nullptr);
