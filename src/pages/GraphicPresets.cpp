#include "pages/GraphicPresets.h"

#include "MessageIds.h"
#include "resources/ResourceIds.h"

namespace {

constexpr GraphicPreset kPresets[] = {
    {IDC_GRAPHIC_PICTURE_COMPACT,
     MSG_GRAPHIC_PRESET_USER_DEFINED,
     MSG_GRAPHIC_PRESET_USER_DEFINED,
     MSG_GRAPHIC_PRESET_USER_DEFINED,
     {}},
    {IDC_GRAPHIC_PICTURE_MINIMUM,
     MSG_GRAPHIC_PRESET_1_FILE_SIZE,
     MSG_GRAPHIC_PRESET_1_QUALITY,
     MSG_GRAPHIC_PRESET_1_OPTIMIZED_FOR,
     {96, 4, 50, 1, 0}},
    {IDC_GRAPHIC_PICTURE_SMALL,
     MSG_GRAPHIC_PRESET_2_FILE_SIZE,
     MSG_GRAPHIC_PRESET_2_QUALITY,
     MSG_GRAPHIC_PRESET_2_OPTIMIZED_FOR,
     {150, 4, 60, 1, 0}},
    {IDC_GRAPHIC_PICTURE_COMPACT,
     MSG_GRAPHIC_PRESET_3_FILE_SIZE,
     MSG_GRAPHIC_PRESET_3_QUALITY,
     MSG_GRAPHIC_PRESET_3_OPTIMIZED_FOR,
     {300, 4, 75, 1, 0}},
    {IDC_GRAPHIC_PICTURE_BIG,
     MSG_GRAPHIC_PRESET_4_FILE_SIZE,
     MSG_GRAPHIC_PRESET_4_QUALITY,
     MSG_GRAPHIC_PRESET_4_OPTIMIZED_FOR,
     {600, 4, 85, 1, 0}},
    {IDC_GRAPHIC_PICTURE_MAXIMUM,
     MSG_GRAPHIC_PRESET_5_FILE_SIZE,
     MSG_GRAPHIC_PRESET_5_QUALITY,
     MSG_GRAPHIC_PRESET_5_OPTIMIZED_FOR,
     {0, 0, 100, 0, 0}},
};

}  // namespace

const GraphicPreset& GetGraphicPreset(int number) { return kPresets[number]; }

int FindGraphicPreset(const GraphicValues& values) {
  for (int number = kFirstPreset; number <= kLastPreset; ++number)
    if (kPresets[number].values == values) return number;
  return kUserDefinedPreset;
}
