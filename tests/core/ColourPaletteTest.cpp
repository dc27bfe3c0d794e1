#include "controls/ColourPalette.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "DriverLIB/MessageText.h"
#include "support/TestMessages.h"

namespace {

constexpr struct {
  uint32_t colour;
  const wchar_t* name;
} kRows[] = {
    {0x000000, L"Black"},
    {0x003399, L"Brown"},
    {0x003333, L"Olive Green"},
    {0x003300, L"Dark Green"},
    {0x663300, L"Dark Teal"},
    {0x800000, L"Dark blue"},
    {0x993333, L"Indigo"},
    {0x333333, L"Grey - 80"},
    {0x000080, L"Dark Red"},
    {0x0066FF, L"Orange"},
    {0x008080, L"Dark Yellow"},
    {0x008000, L"Green"},
    {0x808000, L"Teal"},
    {0xFF0000, L"Blue"},
    {0x996666, L"Blue-grey"},
    {0x808080, L"Grey - 50"},
    {0x0000FF, L"Red"},
    {0x0099FF, L"Light Orange"},
    {0x00CC99, L"Lime"},
    {0x669933, L"Sea Green"},
    {0xCCCC33, L"Aqua"},
    {0xFF6633, L"Light Blue"},
    {0x800080, L"Violet"},
    {0x999999, L"Grey - 40"},
    {0xFF00FF, L"Pink"},
    {0x00CCFF, L"Gold"},
    {0x00FFFF, L"Yellow"},
    {0x00FF00, L"Bright Green"},
    {0xFFFF00, L"Turquoise"},
    {0xFFCC00, L"Skyblue"},
    {0x663399, L"Plum"},
    {0xC0C0C0, L"Grey - 25"},
    {0xCC99FF, L"Rose"},
    {0x99CCFF, L"Tan"},
    {0xCCFFFF, L"Light Yellow"},
    {0xCCFFCC, L"Pale Green"},
    {0xFFFFCC, L"Pale Turquoise"},
    {0xFFCC99, L"Pale Blue"},
    {0xFF99CC, L"Lavender"},
    {0xFFFFFF, L"White"},
};

TEST(ColourPalette, HasTheseRows) {
  ASSERT_EQ(static_cast<size_t>(kPaletteSize), std::size(kRows));
  for (int row = 0; row < kPaletteSize; ++row) {
    EXPECT_EQ(kRows[row].colour, kPalette[row].colour) << row;
    EXPECT_EQ(std::wstring(kRows[row].name), kPalette[row].name) << row;
    EXPECT_EQ(0xC0011771 + static_cast<uint32_t>(row), kPalette[row].messageId) << row;
  }
  EXPECT_EQ(0xC0011798u, kPalette[39].messageId);
}

TEST(ColourPalette, FindsARowByItsExactColour) {
  std::set<uint32_t> colours;
  for (int row = 0; row < kPaletteSize; ++row) {
    EXPECT_EQ(row, PaletteRowOf(kPalette[row].colour));
    colours.insert(kPalette[row].colour);
  }
  EXPECT_EQ(40u, colours.size());
  for (const uint32_t colour : {0x123456u, 0x000001u, 0xFFFFFEu, 0x01000000u, kNoColour, 0xFFFFFFFFu})
    EXPECT_EQ(-1, PaletteRowOf(colour)) << std::hex << colour;
}

TEST(ColourPalette, NoColourIsNoBlack) {
  EXPECT_EQ(0xFF000000u, kNoColour);
  EXPECT_NE(kPalette[0].colour, kNoColour);
}

TEST(ColourPalette, TakesAColourApart) {
  EXPECT_EQ(86, RedOf(0x123456));
  EXPECT_EQ(52, GreenOf(0x123456));
  EXPECT_EQ(18, BlueOf(0x123456));
  EXPECT_EQ(255, BlueOf(0xFFFFFF));
  EXPECT_EQ(0, BlueOf(kNoColour));
}

// The texts come from a table of the test's own: the real one is read by the tests of the picker.
class ColourTexts : public testing::Test {
 protected:
  ColourTexts() : module_(ModuleInstance()) { SetModuleInstance(messages_.Module()); }
  ~ColourTexts() override { SetModuleInstance(module_); }

 private:
  TestMessages messages_{
      {0xC0011771, 9, L"First%0"},     {0xC0011782, 9, L"Light Orange%0"},
      {0xC0011778, 9, L"Grey-80%%%0"}, {0xC0011798, 9, L"Last%0"},
      {0xC0011799, 9, L"No Color%0"},  {0x4001F810, 9, L"User-defined (R: %1!d!, G: %2!d!, B: %3!d!)%0"},
  };
  void* module_;
};

TEST_F(ColourTexts, NameOfAColour) {
  const struct {
    uint32_t colour;
    const wchar_t* name;
  } rows[] = {{0x000000, L"First"},
              {0x0099FF, L"Light Orange"},
              {0x333333, L"Grey-80%"},
              {0xFFFFFF, L"Last"},
              {0xFF000000, L"No Color"},
              {0x123456, L"User-defined (R: 86, G: 52, B: 18)"},
              {0x0099FE, L"User-defined (R: 254, G: 153, B: 0)"}};
  for (const auto& row : rows)
    EXPECT_EQ(std::wstring(row.name), ColourName(row.colour).Text()) << std::hex << row.colour;
}

TEST_F(ColourTexts, PartsOfAColour) {
  EXPECT_EQ(std::wstring(L"R:86 G:52 B:18"), ColourParts(0x123456).Text());
  EXPECT_EQ(std::wstring(L"R:255 G:255 B:255"), ColourParts(0xFFFFFF).Text());
  EXPECT_EQ(std::wstring(L"R:0 G:0 B:0"), ColourParts(0).Text());
}

}  // namespace
