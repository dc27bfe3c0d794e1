// Drawing from image lists.
#pragma once

#include "window/Gdi.h"

// Draws an image of the list at its own size, or nothing when there is no such image. In a mirrored window the place
// is mirrored and the image is not. `disabled` takes the colours out.
void DrawListImage(HIMAGELIST images, int index, HDC dc, POINT leftTop, bool disabled);
