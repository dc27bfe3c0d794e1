#include "pages/InstalledFont.h"

namespace {

// The table's field "fsType", big-endian.
constexpr size_t kPermissionOffset = 8;
constexpr unsigned kRestrictedLicence = 0x0002;
constexpr unsigned kPreviewAndPrint = 0x0004;
constexpr unsigned kEditable = 0x0008;
constexpr unsigned kBitmapOnly = 0x0200;

}  // namespace

bool IsOffered(const InstalledFont& font) {
  if (font.characterSet == kMacintoshCharacterSet || font.name.starts_with(L'@')) return false;
  return (font.kinds & (kTrueTypeFont | kDeviceFont)) != 0;
}

FontPermission PermissionOf(const InstalledFont& font) {
  if (!(font.kinds & kTrueTypeFont)) return FontPermission::DeviceFont;
  return PermissionInOs2Table(font.readOs2Table());
}

// Of several bits the most generous one counts. The restriction is none when another bit stands beside it.
FontPermission PermissionInOs2Table(std::span<const uint8_t> table) {
  if (table.size() < kPermissionOffset + 2) return FontPermission::Unrestricted;
  const unsigned permission = table[kPermissionOffset] * 0x100u + table[kPermissionOffset + 1];
  if (permission & kEditable) return FontPermission::Unrestricted;
  if (permission & kPreviewAndPrint) return FontPermission::PreviewAndPrint;
  if (permission & kBitmapOnly) return FontPermission::BitmapOnly;
  return permission == kRestrictedLicence ? FontPermission::Restricted : FontPermission::Unrestricted;
}
