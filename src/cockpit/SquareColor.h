// The colour of a row's square, as 0x00BBGGRR: the heavier the difference, the purer the blue.
#pragma once

#include <cstdint>
#include <limits>

constexpr uint32_t kNoFillColor = 0xFFFFFFFF;

// What is no heavier than the inaccuracy of a sum counts as nothing.
constexpr double kLeastWeight = std::numeric_limits<double>::epsilon();

constexpr uint32_t SquareColor(double weight) {
  if (!(weight > kLeastWeight && weight < 1.0 + kLeastWeight)) return kNoFillColor;
  const auto level = static_cast<uint8_t>(255 - weight * 255);
  return 0xFF0000u | static_cast<uint32_t>(level) << 8 | level;
}
