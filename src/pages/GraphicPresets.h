// The presets of the graphic page: five combinations of values between the smallest file and the best quality.
#pragma once

#include <cstdint>

struct GraphicValues {
  uint16_t resolution = 0;  // dpi; 0 leaves images as they are
  uint16_t compressMethod = 0;
  uint16_t jpegQuality = 0;  // per cent
  uint16_t colorReduction = 0;
  uint16_t enhancedReplacements = 0;

  bool operator==(const GraphicValues&) const = default;
};

struct GraphicPreset {
  int pictureId;                                   // control of its picture
  uint32_t fileSizeId, qualityId, optimizedForId;  // messages
  GraphicValues values;                            // of no meaning for the user-defined one
};

constexpr int kUserDefinedPreset = 0;
constexpr int kFirstPreset = 1;
constexpr int kLastPreset = 5;
// Where the slider stands while no preset fits.
constexpr int kMiddlePreset = 3;

// Presets 0 (user-defined) to 5.
const GraphicPreset& GetGraphicPreset(int number);

// The first preset that has exactly these values, or kUserDefinedPreset.
int FindGraphicPreset(const GraphicValues& values);
