// The error numbers that this library shares with its sibling components. Number n has the text with message id
// 0xC0000000 + n, except where noted. The library itself raises those of the first group; the others pass through.
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

constexpr uint32_t kErrorInvalidInputFile = 9;
constexpr uint32_t kErrorNotEnoughMemory = 10;
constexpr uint32_t kErrorInputFileLocked = 15;
constexpr uint32_t kErrorInternal = 28;
constexpr uint32_t kErrorInvalidPath = 54;
constexpr uint32_t kErrorNoPrintId = 750;
constexpr uint32_t kErrorNoDefaultPrinter = 751;
constexpr uint32_t kErrorDefaultPrinterNotSet = 752;
constexpr uint32_t kErrorPrinterSettingsNotRead = 753;
constexpr uint32_t kErrorPrinterSettingsNotSet = 754;
constexpr uint32_t kErrorCorruptPrintLink = 755;
constexpr uint32_t kErrorInvalidPrinterName = 756;
constexpr uint32_t kErrorApplicationSettingsNotSet = 757;
constexpr uint32_t kErrorTransactionStateNotSet = 758;
constexpr uint32_t kErrorApplicationSettingsMissing = 759;
constexpr uint32_t kErrorPrintJobNotDeleted = 760;
constexpr uint32_t kErrorPrinterDriverNotInitialized = 761;
constexpr uint32_t kErrorInvalidPrinter = 762;
constexpr uint32_t kErrorPrinting = 764;
