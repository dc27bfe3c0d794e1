// Where a picture stands inside its control.
#pragma once

#include <cstdint>

#include "window/Placement.h"

constexpr uint32_t kAlignRight = 2;
constexpr uint32_t kAlignMiddle = 4;  // vertically
constexpr uint32_t kAlignBottom = 8;
constexpr uint32_t kAlignCenter = 16;  // horizontally

// The picture's rectangle; the picture keeps its size. Without a flag it stands `margin` away from the left and the top
// edge. To the right it keeps the margin as well; at the bottom it touches the edge, but never comes nearer to the top
// than the margin. Centring needs room for the whole picture and knows no margin: without room the other flag of that
// axis counts.
IntRect PlaceImage(int imageWidth, int imageHeight, const IntRect& client, uint32_t flags, int margin);
