// The colours of links, as 0x00BBGGRR.
#pragma once

#include <cstdint>

constexpr uint32_t kHoverLinkColor = 0x0000FF;
constexpr uint32_t kLinkColor = 0xFF0000;
constexpr uint32_t kVisitedLinkColor = 0x8F2205;

constexpr uint32_t LinkColor(bool hover, bool visited) {
  if (visited) return kVisitedLinkColor;  // under the mouse as well
  return hover ? kHoverLinkColor : kLinkColor;
}
