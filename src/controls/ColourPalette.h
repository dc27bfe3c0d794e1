// The colours that a picker offers, and what colours are called.
#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

// A colour is 0x00BBGGRR, as a COLORREF. This value stands for none: what it means is said by the picker's text for it
// ("Automatic", "do not use"). It is no black.
constexpr uint32_t kNoColour = 0xFF000000;

constexpr int RedOf(uint32_t colour) { return static_cast<int>(colour & 0xFF); }
constexpr int GreenOf(uint32_t colour) { return static_cast<int>(colour >> 8 & 0xFF); }
constexpr int BlueOf(uint32_t colour) { return static_cast<int>(colour >> 16 & 0xFF); }

struct PaletteRow {
  uint32_t colour;
  const wchar_t* name;  // for code; users read the message, which differs from it in places
  uint32_t messageId;
};

constexpr int kPaletteSize = 40;
extern const PaletteRow kPalette[kPaletteSize];

// The row with exactly that colour, or -1.
int PaletteRowOf(uint32_t colour);

// The colour in words: the display name of its row, "No Color", or its parts as numbers.
CUString ColourName(uint32_t colour);

// The colour's parts alone, the same in all languages: "R:51 G:153 B:255".
CUString ColourParts(uint32_t colour);
