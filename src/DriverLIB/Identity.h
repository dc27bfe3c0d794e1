// Who this component is: in the banner of every trace, the version query, and the registry.
#pragma once

#include <cstdint>

constexpr wchar_t kComponentName[] = L"NEM pdf AddIn UI";
constexpr wchar_t kVersionText[] = L"2.10.4 M7";
// One byte major version, one byte minor version whose hexadecimal digits are read as decimal ones, 16 bits patch
// level.
constexpr uint32_t kVersionNumber = 0x2100004;

// The product, and its version as a user reads it.
constexpr wchar_t kProductName[] = L"NEM pdf vonder";
constexpr wchar_t kProductVersion[] = L"2.10.4";

// The product's registry key.
constexpr wchar_t kProductKey[] = L"Software\\NEM software GmbH\\NEM pdf vonder";
