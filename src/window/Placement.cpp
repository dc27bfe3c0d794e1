#include "window/Placement.h"

namespace {

// One axis. Both halves are integer divisions of their own.
int Center(int size, int referenceStart, int referenceEnd, int areaStart, int areaEnd) {
  const int start = (referenceStart + referenceEnd) / 2 - size / 2;
  if (start < areaStart || areaEnd - areaStart < size) return areaStart;
  if (start + size > areaEnd) return areaEnd - size;
  return start;
}

}  // namespace

IntPoint PlaceCentered(int width, int height, const IntRect& reference, const IntRect& area) {
  return {Center(width, reference.left, reference.right, area.left, area.right),
          Center(height, reference.top, reference.bottom, area.top, area.bottom)};
}

int PlaceBeside(int width, const IntRect& reference, const IntRect& area) {
  return reference.right + width > area.right ? reference.left - width : reference.right;
}
