// Which fonts are offered, and what the maker of each allows.
#include "pages/InstalledFont.h"

#include <gtest/gtest.h>

namespace {

using enum FontPermission;

// A table as long as today's, with this permission in it.
std::vector<uint8_t> TableWith(unsigned permission) {
  std::vector<uint8_t> table(96, 0xFF);
  table[8] = static_cast<uint8_t>(permission >> 8);
  table[9] = static_cast<uint8_t>(permission);
  return table;
}

InstalledFont Font(WideView name, uint32_t kinds, unsigned permission = 0, int characterSet = 0) {
  return {name, characterSet, kinds, [=] { return TableWith(permission); }};
}

TEST(InstalledFont, PermissionsOfTheTable) {
  const std::pair<unsigned, FontPermission> rows[] = {
      {0x0000, Unrestricted},    {0x0001, Unrestricted},    {0x0002, Restricted},   {0x0003, Unrestricted},
      {0x0004, PreviewAndPrint}, {0x0006, PreviewAndPrint}, {0x0008, Unrestricted}, {0x000A, Unrestricted},
      {0x000C, Unrestricted},    {0x0100, Unrestricted},    {0x0102, Unrestricted}, {0x0200, BitmapOnly},
      {0x0202, BitmapOnly},      {0x0204, PreviewAndPrint}, {0x0208, Unrestricted}, {0x020A, Unrestricted},
      {0x0400, Unrestricted},    {0x0800, Unrestricted},    {0x8002, Unrestricted}, {0xFFFF, Unrestricted},
      {0xFFF7, PreviewAndPrint}, {0xFFF3, BitmapOnly},
  };
  for (const auto& [bits, permission] : rows)
    EXPECT_EQ(permission, PermissionInOs2Table(TableWith(bits))) << std::hex << bits;
}

TEST(InstalledFont, ATableThatIsTooShortRestrictsNothing) {
  const std::vector<uint8_t> table = TableWith(2);
  for (size_t size = 0; size < 10; ++size)
    EXPECT_EQ(Unrestricted, PermissionInOs2Table(std::span(table).first(size))) << size;
  EXPECT_EQ(Restricted, PermissionInOs2Table(std::span(table).first(10)));
}

TEST(InstalledFont, TrueTypeAndDeviceFontsAreOffered) {
  for (const uint32_t kinds : {0u, 1u, 8u}) EXPECT_FALSE(IsOffered(Font(L"Arial", kinds))) << kinds;
  for (const uint32_t kinds : {2u, 3u, 4u, 5u, 6u, 7u}) EXPECT_TRUE(IsOffered(Font(L"Arial", kinds))) << kinds;
}

TEST(InstalledFont, MacintoshAndVerticalFontsAreNotOffered) {
  for (const uint32_t kinds : {2u, 4u}) {
    EXPECT_FALSE(IsOffered(Font(L"Arial", kinds, 0, 77)));
    EXPECT_TRUE(IsOffered(Font(L"Arial", kinds, 0, 76)));
    EXPECT_FALSE(IsOffered(Font(L"@Arial", kinds)));
    EXPECT_TRUE(IsOffered(Font(L"Ari@l", kinds)));
    EXPECT_TRUE(IsOffered(Font(L"", kinds)));
  }
}

TEST(InstalledFont, OnlyTrueTypeFontsAreAskedForTheirTable) {
  EXPECT_EQ(Restricted, PermissionOf(Font(L"Arial", 4, 2)));
  EXPECT_EQ(Restricted, PermissionOf(Font(L"Arial", 4 | 2, 2)));
  InstalledFont device{L"Courier", 0, 2, [] {
                         ADD_FAILURE() << "asked for a table";
                         return std::vector<uint8_t>();
                       }};
  EXPECT_EQ(DeviceFont, PermissionOf(device));
}

TEST(InstalledFont, ATableThatCannotBeReadRestrictsNothing) {
  EXPECT_EQ(Unrestricted, PermissionOf({L"Arial", 0, 4, [] { return std::vector<uint8_t>(); }}));
}

TEST(InstalledFont, RestrictedAndBitmapFontsMayNotBeEmbedded) {
  for (const FontPermission permission : {Unrestricted, DeviceFont, PreviewAndPrint})
    EXPECT_TRUE(MayBeEmbedded(permission)) << static_cast<int>(permission);
  for (const FontPermission permission : {Restricted, BitmapOnly})
    EXPECT_FALSE(MayBeEmbedded(permission)) << static_cast<int>(permission);
}

// The pictures of the lists are numbered by them.
TEST(InstalledFont, PermissionsHaveTheirNumbers) {
  int number = 0;
  for (const FontPermission permission : {Unrestricted, DeviceFont, Restricted, BitmapOnly, PreviewAndPrint})
    EXPECT_EQ(number++, static_cast<int>(permission));
}

}  // namespace
