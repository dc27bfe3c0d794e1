// The error numbers that this library shares with its sibling components. Number n has the text with message id
// 0xC0000000 + n, except where noted. Only those that the library itself raises have a name here.
#pragma once

#include <cstdint>

constexpr uint32_t kErrorNone = 0;
constexpr uint32_t kErrorTraceNotOpened = 1;  // without a text
constexpr uint32_t kErrorCannotReadProperty = 2;
constexpr uint32_t kErrorCannotChangeProperty = 3;
constexpr uint32_t kErrorInvalidFunctionArgument = 29;
constexpr uint32_t kErrorBufferTooSmall = 47;
constexpr uint32_t kErrorInvalidPropertyName = 99;
constexpr uint32_t kErrorPathOperation = 118;  // without a text
