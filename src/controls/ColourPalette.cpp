#include "controls/ColourPalette.h"

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

const PaletteRow kPalette[kPaletteSize] = {
    {0x000000, L"Black", MSG_COLOUR_BLACK},
    {0x003399, L"Brown", MSG_COLOUR_BROWN},
    {0x003333, L"Olive Green", MSG_COLOUR_OLIVE_GREEN},
    {0x003300, L"Dark Green", MSG_COLOUR_DARK_GREEN},
    {0x663300, L"Dark Teal", MSG_COLOUR_DARK_TEAL},
    {0x800000, L"Dark blue", MSG_COLOUR_DARK_BLUE},
    {0x993333, L"Indigo", MSG_COLOUR_INDIGO},
    {0x333333, L"Grey - 80", MSG_COLOUR_GREY_80},
    {0x000080, L"Dark Red", MSG_COLOUR_DARK_RED},
    {0x0066FF, L"Orange", MSG_COLOUR_ORANGE},
    {0x008080, L"Dark Yellow", MSG_COLOUR_DARK_YELLOW},
    {0x008000, L"Green", MSG_COLOUR_GREEN},
    {0x808000, L"Teal", MSG_COLOUR_TEAL},
    {0xFF0000, L"Blue", MSG_COLOUR_BLUE},
    {0x996666, L"Blue-grey", MSG_COLOUR_BLUE_GREY},
    {0x808080, L"Grey - 50", MSG_COLOUR_GREY_50},
    {0x0000FF, L"Red", MSG_COLOUR_RED},
    {0x0099FF, L"Light Orange", MSG_COLOUR_LIGHT_ORANGE},
    {0x00CC99, L"Lime", MSG_COLOUR_LIME},
    {0x669933, L"Sea Green", MSG_COLOUR_SEA_GREEN},
    {0xCCCC33, L"Aqua", MSG_COLOUR_AQUA},
    {0xFF6633, L"Light Blue", MSG_COLOUR_LIGHT_BLUE},
    {0x800080, L"Violet", MSG_COLOUR_VIOLET},
    {0x999999, L"Grey - 40", MSG_COLOUR_GREY_40},
    {0xFF00FF, L"Pink", MSG_COLOUR_PINK},
    {0x00CCFF, L"Gold", MSG_COLOUR_GOLD},
    {0x00FFFF, L"Yellow", MSG_COLOUR_YELLOW},
    {0x00FF00, L"Bright Green", MSG_COLOUR_BRIGHT_GREEN},
    {0xFFFF00, L"Turquoise", MSG_COLOUR_TURQUOISE},
    {0xFFCC00, L"Skyblue", MSG_COLOUR_SKYBLUE},
    {0x663399, L"Plum", MSG_COLOUR_PLUM},
    {0xC0C0C0, L"Grey - 25", MSG_COLOUR_GREY_25},
    {0xCC99FF, L"Rose", MSG_COLOUR_ROSE},
    {0x99CCFF, L"Tan", MSG_COLOUR_TAN},
    {0xCCFFFF, L"Light Yellow", MSG_COLOUR_LIGHT_YELLOW},
    {0xCCFFCC, L"Pale Green", MSG_COLOUR_PALE_GREEN},
    {0xFFFFCC, L"Pale Turquoise", MSG_COLOUR_PALE_TURQUOISE},
    {0xFFCC99, L"Pale Blue", MSG_COLOUR_PALE_BLUE},
    {0xFF99CC, L"Lavender", MSG_COLOUR_LAVENDER},
    {0xFFFFFF, L"White", MSG_COLOUR_WHITE},
};

int PaletteRowOf(uint32_t colour) {
  for (int row = 0; row < kPaletteSize; ++row)
    if (kPalette[row].colour == colour) return row;
  return -1;
}

CUString ColourName(uint32_t colour) {
  if (colour == kNoColour) return MessageText(MSG_COLOUR_NONE);
  if (const int row = PaletteRowOf(colour); row >= 0) return MessageText(kPalette[row].messageId);
  return MessageText(MSG_COLOUR_USER_DEFINED, RedOf(colour), GreenOf(colour), BlueOf(colour));
}

CUString ColourParts(uint32_t colour) {
  CUString text;
  text.Format(L"R:%d G:%d B:%d", RedOf(colour), GreenOf(colour), BlueOf(colour));
  return text;
}
