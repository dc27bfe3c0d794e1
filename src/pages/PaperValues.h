// What the paper page does with its values and needs no window for. They are those of a printer's device mode, in its
// units and with its mask.
#pragma once

#include <cstdint>

#include "environment/PaperTable.h"

// The mask: which values a device mode has.
constexpr uint32_t kOrientationField = 0x1;
constexpr uint32_t kPaperSizeField = 0x2;
constexpr uint32_t kPaperLengthField = 0x4;
constexpr uint32_t kPaperWidthField = 0x8;
constexpr uint32_t kScaleField = 0x10;
constexpr uint32_t kDefaultSourceField = 0x200;

constexpr uint16_t kPortraitOrientation = 1;
constexpr uint16_t kLandscapeOrientation = 2;

constexpr uint16_t kSimplex = 1;
constexpr uint16_t kDuplexLongEdge = 2;
constexpr uint16_t kDuplexUpperEdge = 3;

constexpr uint16_t kFullScale = 100;  // per cent

// A bin of the printer. A list of bins ends at one without a name.
struct PaperBin {
  wchar_t name[24];  // not terminated when it has that many letters
  uint16_t number;
};

// The paper that the values name; null when they name none, or none that the table knows.
const PaperRow* FindStoredPaper(uint32_t fields, uint16_t number);

// The paper of that size in millimetres, or else the user-defined one.
const PaperRow& PaperOfSize(double width, double height);

bool IsLandscape(uint32_t fields, uint16_t orientation);

// The mask that says what the page stores: a length and a width of its own with the user-defined paper alone.
uint32_t StoredFields(uint32_t fields, uint16_t paperNumber);

// A value has 16 bits: of a number that is cut off behind its point, the lower ones.
uint16_t ToStoredValue(double number);

// Tenths of a millimetre, rounded half up.
uint16_t ToTenths(double millimetres);
double ToMillimetres(uint16_t tenths);

constexpr uint16_t DuplexOf(bool duplex, bool upperEdge) {
  if (!duplex) return kSimplex;
  return upperEdge ? kDuplexUpperEdge : kDuplexLongEdge;
}
