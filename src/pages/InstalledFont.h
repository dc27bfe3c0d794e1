// A font as the system lists it, and what its maker allows: that stands in the font itself.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "DriverLIB/TextView.h"

// The numbers are those of the pictures that stand before the fonts.
enum class FontPermission { Unrestricted, DeviceFont, Restricted, BitmapOnly, PreviewAndPrint };

// Whether a PDF may hold the font.
constexpr bool MayBeEmbedded(FontPermission permission) {
  return permission != FontPermission::Restricted && permission != FontPermission::BitmapOnly;
}

// Kinds of fonts, bits.
constexpr uint32_t kDeviceFont = 2;
constexpr uint32_t kTrueTypeFont = 4;

constexpr int kMacintoshCharacterSet = 77;

struct InstalledFont {
  WideView name;  // of the face; lives as long as the visit
  int characterSet = 0;
  uint32_t kinds = 0;
  // The raw table "OS/2", empty when it cannot be read. Costs a font that is made for it.
  std::function<std::vector<uint8_t>()> readOs2Table;
};

// Whoever lists the fonts is called with each; the same face may come several times.
using FontVisitor = std::function<void(const InstalledFont& font)>;

// Fonts that lie on their side, those of the other system and those of other kinds are not offered to the user.
bool IsOffered(const InstalledFont& font);

// Of a font that is offered.
FontPermission PermissionOf(const InstalledFont& font);

// What the table says. One that is too short says nothing, which is no restriction.
FontPermission PermissionInOs2Table(std::span<const uint8_t> table);
