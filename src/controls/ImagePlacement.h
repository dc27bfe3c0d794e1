// Where a picture stands inside its control.
#pragma once

#include <cstdint>

#include "window/Placement.h"

constexpr uint32_t kAlignRight = 2;
constexpr uint32_t kAlignMiddle = 4;  // vertically
constexpr uint32_t kAlignBottom = 8;
constexpr uint32_t kAlignCenter = 16;  // horizontally

// The picture's rectangle. The margin is its distance from the left and the top edge unless a flag moves it; a picture
// that is too large for being centred stays at the margin.
IntRect PlaceImage(int imageWidth, int imageHeight, const IntRect& client, uint32_t flags, int margin);
