#include "pages/CColorsPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"

namespace {

const PageTable kTable = {
    .name = "Colors",
    .pageId = kColorsPage,
    .helpLink = IDC_COLORS_HELP_LINK,
    .rows = {Radios(L"Colorspace", {IDC_COLORS_RGB, IDC_COLORS_CMYK})
                 .Stores({{2, L"", 1}, {-1, L"", 1}, {65536, L"0", 0}})
                 .LockedBy<&AdminSettings::Colorspace_Override>({IDC_COLORS_RGB, IDC_COLORS_CMYK})
                 .Tracked<&ColorsCockpitValues::colorspace>()},
};
const PageTableEntry entry(kTable);

TEST(ColorsPage, EveryValueOfTheOverrideLocks) {
  for (const auto& [value, open] : {std::pair{kUnsetNumber, true}, {0, false}, {1, false}, {kUnsetBoolean, false}}) {
    PageUnderTest test(kColorsPage);
    test.Admin().Colorspace_Override = value;
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(open, test.Control(IDC_COLORS_RGB).IsEnabled()) << value;
    EXPECT_EQ(open, test.Control(IDC_COLORS_CMYK).IsEnabled()) << value;
  }
}

TEST(ColorsPage, AValueOfNeitherKindIsStoredAsCmykUnderAnOverrideToo) {
  PageUnderTest test(kColorsPage);
  test.Set(L"Colorspace", 2);
  test.Admin().Colorspace_Override = 0;
  ASSERT_TRUE(test.Open());
  EXPECT_FALSE(test.Control(IDC_COLORS_RGB).IsChecked());
  EXPECT_FALSE(test.Control(IDC_COLORS_CMYK).IsChecked());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"1", test.Value(L"Colorspace"));
}

// The watermark page puts back what it read over a choice, and not over a restored value; what is fixed is not
// restored.
TEST(ColorsPage, ARestoredValueReachesTheWatermarkPage) {
  struct Row {
    bool watermarkHasRead;
    int32_t fixed;
    const wchar_t* afterRestoring;
  };
  for (const Row& row : {Row{true, kUnsetNumber, L"0"}, Row{false, kUnsetNumber, L"0"}, Row{true, 1, L"7"}}) {
    PageUnderTest test(kColorsPage);
    test.Set(L"Colorspace", 7);
    test.Admin().Colorspace_Override = row.fixed;
    const auto watermark = MakeCataloguePage(&test.Sheet(), kWatermarkPage, 0);
    test.Sheet().pages[kWatermarkPage] = watermark.get();
    if (row.watermarkHasRead) watermark->ReadProperties();
    ASSERT_TRUE(test.Open());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(L"1", test.Value(L"Colorspace"));
    if (row.watermarkHasRead) {
      watermark->WriteProperties();
      EXPECT_EQ(L"7", test.Value(L"Colorspace"));
    }
    test.As<CColorsPage>().SetCockpitValues({0});
    watermark->ReadProperties();
    watermark->WriteProperties();
    EXPECT_EQ(row.afterRestoring, test.Value(L"Colorspace")) << row.watermarkHasRead << ' ' << row.fixed;
  }
}

// A radio that gets the keyboard may take itself for chosen.
TEST(ColorsPage, TheKeyboardAloneChoosesNothing) {
  PageUnderTest test(kColorsPage);
  test.Set(L"Colorspace", 1);
  ASSERT_TRUE(test.Open());
  test.Control(IDC_COLORS_HELP_LINK).Focus();
  const HWND stop = GetNextDlgTabItem(test.Page().Handle(), test.Control(IDC_COLORS_HELP_LINK).Window(), FALSE);
  EXPECT_EQ(IDC_COLORS_CMYK, GetDlgCtrlID(stop));
  SetFocus(stop);
  EXPECT_TRUE(test.Control(IDC_COLORS_CMYK).IsChecked());
}

}  // namespace
