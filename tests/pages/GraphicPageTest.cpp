#include <gtest/gtest.h>

#include "driver/SheetDriver.h"
#include "MessageIds.h"
#include "pages/CNemUIPdfGraphicPage.h"
#include "PageTable.h"
#include "Pictures.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/ControlPictures.h"
#include "support/FailingMalloc.h"
#include "support/FakeSheet.h"
#include "ui/PropertyAccess.h"

namespace {

constexpr int kPageId = kGraphicPage;
constexpr PageDescription kDescription{IDD_GRAPHIC_PAGE, 0, MSG_PAGE_GRAPHICAL_OPTIMIZATION, kPageId, 251, 252};

constexpr wchar_t kHintReduced[] =
    L"Graphics data with a higher resolution than 300 dpi will be permanently reduced. The graphics qualtity might be "
    L"worse in some circumstances.";
constexpr wchar_t kHintOriginal[] =
    L"To enable a loss-free reprocessing in Word, original graphics data will be embedded in the e.pdf file. Thus the "
    L"e.pdf file will be larger.";

using Values = GraphicCockpitValues;

// The first values are those of no preset, so that all lists are open.
const PageTable kTable = {
    .name = "Graphic",
    .pageId = kPageId,
    .helpLink = IDC_GRAPHIC_HELP_LINK,
    .rows =
        {
            Field(L"GraphicResolution", IDC_GRAPHIC_RESOLUTION)
                .Stores({{601, L"601 dpi", 601},
                         {300, L"300 dpi (Printer, low)", 300},
                         {0, L"Do not change", 0},
                         {9999, L"2400 dpi", 2400}})
                .LockedBy<&AdminSettings::GraphicResolution_Override>(
                    {IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_BY_FILE_SIZE})
                .Tracked<&Values::resolution>(),
            Field(L"GraphicJpegQuality", IDC_GRAPHIC_QUALITY)
                .Stores({{86, L"86%", 86}, {60, L"60% low - medium", 60}, {150, L"100% maximum", 100}})
                .Given({{L"GraphicCompressMethod", 1}})
                .LockedBy<&AdminSettings::GraphicJpegQuality_Override>(
                    {IDC_GRAPHIC_QUALITY, IDC_GRAPHIC_QUALITY_BAR, IDC_GRAPHIC_BY_FILE_SIZE})
                .Tracked<&Values::jpegQuality>(),
            Choice(L"GraphicCompressMethod", IDC_GRAPHIC_COMPRESSION,
                   {{L"loss-free, ZIP only", 0},
                    {L"JPEG", 1},
                    {L"JPEG and ZIP", 3},
                    {L"JPEG automatically", 2},
                    {L"JPEG automatically and ZIP", 4}})
                .LockedBy<&AdminSettings::GraphicCompressMethod_Override>(
                    {IDC_GRAPHIC_COMPRESSION, IDC_GRAPHIC_BY_FILE_SIZE})
                .Tracked<&Values::compressMethod>(),
            Choice(L"GraphicColorReduction", IDC_GRAPHIC_COLOR_DEPTH,
                   {{L"Do not change", 0}, {L"Reduce, if loss-free", 1}})
                .LockedBy<&AdminSettings::GraphicColorReduction_Override>(
                    {IDC_GRAPHIC_COLOR_DEPTH, IDC_GRAPHIC_BY_FILE_SIZE})
                .Tracked<&Values::colorReduction>(),
        },
};
const PageTableEntry entry(kTable);

// The page alone, on a sheet without a window.
class GraphicPage : public testing::Test {
 protected:
  GraphicPage() { Store(600, 4, 85, 1, 0); }

  void Store(int resolution, int compression, int quality, int colors, int replacements) {
    properties().GraphicResolution[0].SetLong(resolution);
    properties().GraphicCompressMethod[0].SetLong(compression);
    properties().GraphicJpegQuality[0].SetLong(quality);
    properties().GraphicColorReduction[0].SetLong(colors);
    properties().EnhancedPdfReplacements[0].SetLong(replacements);
  }
  void Open() {
    ASSERT_TRUE(page_.Create(parent_.Window()));
    page_.Show(true);
  }
  void OpenWith(int resolution, int compression, int quality, int colors, int replacements = 0) {
    Store(resolution, compression, quality, colors, replacements);
    Open();
  }

  CDialogProperties& properties() { return sheet_.properties; }
  AdminSettings& admin() { return sheet_.properties.adminSettings; }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return {GetDlgItem(page_.Handle(), id), id, where};
  }
  bool IsShown(int id) { return CWnd(page_.Handle()).Item(id).IsShown(); }
  void ChooseUserDefined() { Control(IDC_GRAPHIC_USER_DEFINED).Click(); }
  // What the slider tells of a movement of the user to this position.
  void MoveSlider(int position, int code) {
    const HWND slider = Control(IDC_GRAPHIC_SLIDER).Window();
    SendMessageW(slider, TBM_SETPOS, TRUE, position);
    page_.Send(WM_HSCROLL, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(slider));
  }
  // OK: what the controls hold goes into the properties.
  bool Save() { return page_.UpdateData(true) && page_.UpdateDataSuper(true); }
  void MoveMouse(int id) {
    const RECT area = CWnd(page_.Handle()).Item(id).RectIn(page_);
    page_.Send(WM_MOUSEMOVE, 0, MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2));
  }
  void MoveMouseTo(POINT screen) {
    const POINT point = CWnd(page_.Handle()).ScreenToClient(screen);
    page_.Send(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
  }
  std::vector<int> EnabledControls() {
    return EnabledAmong(page_.Handle(),
                        std::vector<int>{IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED, IDC_GRAPHIC_SLIDER,
                                         IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_COMPRESSION,
                                         IDC_GRAPHIC_QUALITY, IDC_GRAPHIC_QUALITY_BAR, IDC_GRAPHIC_COLOR_DEPTH});
  }

  LanguageScope english_{kEnglish};
  FakeSheet sheet_;
  PageParent parent_;
  CNemUIPdfGraphicPage page_{&sheet_, kDescription, 0};
};

// --- Value tables --------------------------------------------------------------------------------------------------

TEST_F(GraphicPage, ResolutionRowsStoreTheirValues) {
  const std::pair<const wchar_t*, int> rows[] = {{L"Do not change", 0},
                                                 {L"50 dpi", 50},
                                                 {L"96 dpi (Screen)", 96},
                                                 {L"150 dpi", 150},
                                                 {L"300 dpi (Printer, low)", 300},
                                                 {L"450 dpi", 450},
                                                 {L"600 dpi (Printer, medium) - Default", 600},
                                                 {L"900 dpi", 900},
                                                 {L"1200 dpi (Printer, high)", 1200},
                                                 {L"2400 dpi", 2400}};
  OpenWith(601, 1, 33, 1);
  ASSERT_EQ(std::size(rows), static_cast<size_t>(Control(IDC_GRAPHIC_RESOLUTION).RowCount()));
  for (size_t row = 0; row < std::size(rows); ++row) {
    EXPECT_EQ(rows[row].first, Control(IDC_GRAPHIC_RESOLUTION).Row(static_cast<int>(row)));
    Control(IDC_GRAPHIC_RESOLUTION).Select(static_cast<int>(row));
    EXPECT_EQ(rows[row].second, Control(IDC_GRAPHIC_RESOLUTION_BAR).Position()) << row;
    ASSERT_TRUE(Save());
    EXPECT_EQ(rows[row].second, properties().GraphicResolution[0].GetLong()) << row;
  }
}

TEST_F(GraphicPage, QualityRowsStoreTheirValues) {
  const std::pair<const wchar_t*, int> rows[] = {
      {L"50% low", 50},           {L"60% low - medium", 60}, {L"75% medium (Default)", 75},
      {L"80% medium - high", 80}, {L"85% high", 85},         {L"100% maximum", 100}};
  OpenWith(601, 1, 33, 1);
  ASSERT_EQ(std::size(rows), static_cast<size_t>(Control(IDC_GRAPHIC_QUALITY).RowCount()));
  for (size_t row = 0; row < std::size(rows); ++row) {
    EXPECT_EQ(rows[row].first, Control(IDC_GRAPHIC_QUALITY).Row(static_cast<int>(row)));
    Control(IDC_GRAPHIC_QUALITY).Select(static_cast<int>(row));
    EXPECT_EQ(rows[row].second, Control(IDC_GRAPHIC_QUALITY_BAR).Position()) << row;
    ASSERT_TRUE(Save());
    EXPECT_EQ(rows[row].second, properties().GraphicJpegQuality[0].GetLong()) << row;
  }
}

TEST_F(GraphicPage, AFailedSaveStoresNothingBehindTheFailure) {
  OpenWith(601, 1, 33, 1);
  Control(IDC_GRAPHIC_QUALITY).SetText(L"44");
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"55");
  SendMessageW(Control(IDC_GRAPHIC_COMPRESSION).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  EXPECT_FALSE(page_.UpdateData(true));
  EXPECT_EQ(33, page_.jpegQuality);
  EXPECT_EQ(601, page_.resolution);
}

// --- Presets -------------------------------------------------------------------------------------------------------

struct PresetCase {
  int number, picture;
  const wchar_t *fileSize, *quality, *optimizedFor;
  int resolution, compression, jpegQuality, colors;
};

const PresetCase kPresets[] = {
    {1, 1153, L"minimum", L"small", L"Display, e-mail", 96, 4, 50, 1},
    {2, 1152, L"small", L"sufficiently", L"Internet", 150, 4, 60, 1},
    {3, 1151, L"compact", L"satified", L"Printer, low", 300, 4, 75, 1},
    {4, 1149, L"big", L"good", L"Printer, medium", 600, 4, 85, 1},
    {5, 1150, L"maximum", L"optimum", L"max. quality", 0, 0, 100, 0},
};

class GraphicPresetPage : public GraphicPage, public testing::WithParamInterface<PresetCase> {
 protected:
  void ExpectPresetShown(const PresetCase& preset) {
    EXPECT_EQ(preset.fileSize, Control(1155).Text());
    EXPECT_EQ(preset.quality, Control(1157).Text());
    EXPECT_EQ(preset.optimizedFor, Control(1159).Text());
    for (int picture = 1149; picture <= 1153; ++picture)
      EXPECT_EQ(picture == preset.picture, IsShown(picture)) << picture;
    EXPECT_TRUE(Control(1141).IsChecked());
    EXPECT_FALSE(Control(1142).IsChecked());
    EXPECT_EQ(preset.number, Control(1146).Position());
  }
};

TEST_P(GraphicPresetPage, IsRecognisedByItsValues) {
  const PresetCase& preset = GetParam();
  OpenWith(preset.resolution, preset.compression, preset.jpegQuality, preset.colors);
  ExpectPresetShown(preset);
}

TEST_P(GraphicPresetPage, SliderStoresItsValues) {
  const PresetCase& preset = GetParam();
  const PresetCase& other = kPresets[preset.number % 5];
  OpenWith(other.resolution, other.compression, other.jpegQuality, other.colors);
  MoveSlider(preset.number, TB_THUMBTRACK);
  ExpectPresetShown(preset);
  ASSERT_TRUE(Save());
  EXPECT_EQ(preset.resolution, properties().GraphicResolution[0].GetLong());
  EXPECT_EQ(preset.compression, properties().GraphicCompressMethod[0].GetLong());
  EXPECT_EQ(preset.jpegQuality, properties().GraphicJpegQuality[0].GetLong());
  EXPECT_EQ(preset.colors, properties().GraphicColorReduction[0].GetLong());
  EXPECT_EQ(0, properties().EnhancedPdfReplacements[0].GetLong());
}

INSTANTIATE_TEST_SUITE_P(AllPresets, GraphicPresetPage, testing::ValuesIn(kPresets),
                         [](const auto& info) { return "Preset" + std::to_string(info.param.number); });

TEST_F(GraphicPage, EveryValueTakesPartInRecognition) {
  for (int changed = 0; changed < 5; ++changed) {
    const int delta[] = {changed == 0, changed == 1, changed == 2, changed == 3, changed == 4};
    EXPECT_EQ(kUserDefinedPreset,
              FindGraphicPreset({static_cast<uint16_t>(600 + delta[0]), static_cast<uint16_t>(4 - delta[1]),
                                 static_cast<uint16_t>(85 + delta[2]), static_cast<uint16_t>(1 - delta[3]),
                                 static_cast<uint16_t>(delta[4])}))
        << changed;
  }
  EXPECT_EQ(4, FindGraphicPreset({600, 4, 85, 1, 0}));
}

TEST_F(GraphicPage, OtherValuesAreUserDefined) {
  OpenWith(600, 4, 86, 1);
  EXPECT_TRUE(Control(IDC_GRAPHIC_USER_DEFINED).IsChecked());
  EXPECT_FALSE(Control(IDC_GRAPHIC_BY_FILE_SIZE).IsChecked());
  EXPECT_EQ(3, Control(IDC_GRAPHIC_SLIDER).Position());
  for (const int caption : {1155, 1157, 1159}) EXPECT_EQ(L"userdefined", Control(caption).Text());
  for (int picture = 1149; picture <= 1153; ++picture) EXPECT_EQ(picture == 1151, IsShown(picture)) << picture;
  EXPECT_EQ(L"86%", Control(IDC_GRAPHIC_QUALITY).Text());
  EXPECT_EQ(-1, Control(IDC_GRAPHIC_QUALITY).SelectedRow());
  EXPECT_EQ(86, Control(IDC_GRAPHIC_QUALITY_BAR).Position());
}

TEST_F(GraphicPage, EnhancedReplacementsMatchNoPresetAndAreLost) {
  OpenWith(600, 4, 85, 1, 1);
  EXPECT_TRUE(Control(IDC_GRAPHIC_USER_DEFINED).IsChecked());
  ASSERT_TRUE(Save());
  EXPECT_EQ(0, properties().EnhancedPdfReplacements[0].GetLong());
}

TEST_F(GraphicPage, UserDefinedStaysChosenThoughTheValuesEqualAPreset) {
  Open();
  ChooseUserDefined();
  EXPECT_TRUE(Control(IDC_GRAPHIC_USER_DEFINED).IsChecked());
  EXPECT_EQ(L"userdefined", Control(1155).Text());
  EXPECT_TRUE(Control(IDC_GRAPHIC_QUALITY).IsEnabled());
  ASSERT_TRUE(Save());
  EXPECT_EQ(600, properties().GraphicResolution[0].GetLong());
  EXPECT_EQ(4, properties().GraphicCompressMethod[0].GetLong());
  EXPECT_EQ(85, properties().GraphicJpegQuality[0].GetLong());
  EXPECT_EQ(1, properties().GraphicColorReduction[0].GetLong());
}

TEST_F(GraphicPage, PresetModeTakesTheSlidersPreset) {
  OpenWith(601, 1, 33, 0);
  Control(IDC_GRAPHIC_BY_FILE_SIZE).Click();
  EXPECT_EQ(L"compact", Control(1155).Text());  // the slider stood on the middle
  ASSERT_TRUE(Save());
  EXPECT_EQ(300, properties().GraphicResolution[0].GetLong());
  EXPECT_EQ(75, properties().GraphicJpegQuality[0].GetLong());
}

// Without memory a preset cannot be shown. The next movement counts again.
TEST_F(GraphicPage, AMovementThatFailsSwallowsNotTheNextOne) {
  Open();
  {
    const FailingMalloc exhausted(0);
    MoveSlider(1, TB_THUMBTRACK);
  }
  EXPECT_EQ(600, page_.resolution);
  MoveSlider(1, TB_THUMBTRACK);
  EXPECT_EQ(96, page_.resolution);
}

TEST_F(GraphicPage, SliderMovedInTheUserDefinedStateChoosesPresets) {
  OpenWith(601, 1, 33, 0);
  MoveMouse(IDC_GRAPHIC_SLIDER);
  MoveSlider(5, TB_THUMBTRACK);
  EXPECT_TRUE(Control(IDC_GRAPHIC_BY_FILE_SIZE).IsChecked());
  EXPECT_EQ(5, Control(IDC_GRAPHIC_SLIDER).Position());
  EXPECT_EQ(L"maximum", Control(1155).Text());
  EXPECT_EQ(L"Do not change", Control(IDC_GRAPHIC_RESOLUTION).Text());
  EXPECT_FALSE(Control(IDC_GRAPHIC_RESOLUTION).IsEnabled());
}

TEST_F(GraphicPage, EveryMovementOfTheSliderAppliesItsPreset) {
  Open();
  for (const int code : {TB_LINEUP, TB_LINEDOWN, TB_PAGEUP, TB_PAGEDOWN, TB_THUMBTRACK, TB_TOP, TB_BOTTOM}) {
    page_.SetCockpitValues({4, 85, 600, 1});
    MoveSlider(1, code);
    EXPECT_EQ(L"minimum", Control(1155).Text()) << code;
    EXPECT_EQ(96, page_.resolution) << code;
  }
}

TEST_F(GraphicPage, ThumbPositionAndEndOfScrollApplyNothing) {
  for (const int code : {TB_THUMBPOSITION, TB_ENDTRACK}) {
    page_.Destroy();
    Open();
    MoveSlider(1, code);
    EXPECT_EQ(L"big", Control(1155).Text()) << code;
  }
}

// --- Edits and bars ------------------------------------------------------------------------------------------------

TEST_F(GraphicPage, BarsEndAtTheirHighestValue) {
  Open();
  EXPECT_EQ(0, Control(IDC_GRAPHIC_RESOLUTION_BAR).Minimum());
  EXPECT_EQ(2400, Control(IDC_GRAPHIC_RESOLUTION_BAR).Maximum());
  EXPECT_EQ(0, Control(IDC_GRAPHIC_QUALITY_BAR).Minimum());
  EXPECT_EQ(100, Control(IDC_GRAPHIC_QUALITY_BAR).Maximum());
  EXPECT_EQ(1, Control(IDC_GRAPHIC_SLIDER).Minimum());
  EXPECT_EQ(5, Control(IDC_GRAPHIC_SLIDER).Maximum());
}

struct TypedCase {
  int combo;
  const wchar_t* typed;
  const wchar_t* shown;  // when the combo has lost the focus
  int position;
  int row;  // that is then selected
};

TEST_F(GraphicPage, LeavingAComboNormalisesWhatWasTyped) {
  const TypedCase cases[] = {
      {IDC_GRAPHIC_RESOLUTION, L"700", L"700 dpi", 700, -1},
      {IDC_GRAPHIC_RESOLUTION, L"300", L"300 dpi (Printer, low)", 300, 4},
      {IDC_GRAPHIC_RESOLUTION, L"9999", L"2400 dpi", 2400, 9},
      {IDC_GRAPHIC_RESOLUTION, L"abc", L"Do not change", 0, 0},
      {IDC_GRAPHIC_RESOLUTION, L"", L"Do not change", 0, 0},
      {IDC_GRAPHIC_RESOLUTION, L"-5", L"Do not change", 0, 0},
      {IDC_GRAPHIC_QUALITY, L"86", L"86%", 86, -1},
      {IDC_GRAPHIC_QUALITY, L"60", L"60% low - medium", 60, 1},
      {IDC_GRAPHIC_QUALITY, L"150", L"100% maximum", 100, 5},
      {IDC_GRAPHIC_QUALITY, L"x", L"0%", 0, -1},
  };
  OpenWith(601, 1, 33, 1);
  for (const TypedCase& typed : cases) {
    Control(typed.combo).Focus();
    Control(typed.combo).SetText(typed.typed);
    const int bar = typed.combo == IDC_GRAPHIC_RESOLUTION ? IDC_GRAPHIC_RESOLUTION_BAR : IDC_GRAPHIC_QUALITY_BAR;
    EXPECT_EQ(typed.position, Control(bar).Position()) << "the bar follows the typing: " << typed.typed;
    Control(IDC_GRAPHIC_COLOR_DEPTH).Focus();
    EXPECT_EQ(typed.shown, Control(typed.combo).Text()) << typed.typed;
    EXPECT_EQ(typed.position, Control(bar).Position()) << typed.typed;
    EXPECT_EQ(typed.row, Control(typed.combo).SelectedRow()) << typed.typed;
  }
}

TEST_F(GraphicPage, TypingIsLimitedToFourAndThreeCharacters) {
  OpenWith(601, 1, 33, 1);
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"12345");
  EXPECT_EQ(L"1234", Control(IDC_GRAPHIC_RESOLUTION).Text());
  Control(IDC_GRAPHIC_QUALITY).SetText(L"9876");
  EXPECT_EQ(L"987", Control(IDC_GRAPHIC_QUALITY).Text());
}

TEST_F(GraphicPage, SavingStoresTheNumberAsItStands) {
  OpenWith(601, 1, 33, 1);
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"9999");
  ASSERT_TRUE(Save());
  EXPECT_EQ(9999, properties().GraphicResolution[0].GetLong());
  Control(IDC_GRAPHIC_QUALITY).SetText(L"150");
  ASSERT_TRUE(Save());
  EXPECT_EQ(150, properties().GraphicJpegQuality[0].GetLong());
  EXPECT_EQ(2400, properties().GraphicResolution[0].GetLong()) << "left in between, so normalised";
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"abc");
  ASSERT_TRUE(Save());
  EXPECT_EQ(0, properties().GraphicResolution[0].GetLong());
}

TEST_F(GraphicPage, TheBarsLimitWhatIsLoaded) {
  OpenWith(5000, 1, 150, 1);
  EXPECT_EQ(L"2400 dpi", Control(IDC_GRAPHIC_RESOLUTION).Text());
  EXPECT_EQ(2400, Control(IDC_GRAPHIC_RESOLUTION_BAR).Position());
  EXPECT_EQ(L"100% maximum", Control(IDC_GRAPHIC_QUALITY).Text());
  EXPECT_EQ(100, Control(IDC_GRAPHIC_QUALITY_BAR).Position());
}

// What is read back is the text, so the texts of all languages begin with their number.
TEST_F(GraphicPage, NumbersComeBackInEveryLanguage) {
  for (const int language : {0x0409, 0x0407, 0x040C, 0x0401})
    for (const auto& [resolution, quality] : {std::pair{601, 33}, {600, 85}, {0, 100}}) {
      const LanguageScope scope(static_cast<uint16_t>(language));
      Store(resolution, 1, quality, 0, 0);
      CNemUIPdfGraphicPage page(&sheet_, kDescription, 0);
      ASSERT_TRUE(page.Create(parent_.Window()));
      page.resolution = page.jpegQuality = 7;
      ASSERT_TRUE(page.UpdateData(true));
      EXPECT_EQ(resolution, page.resolution) << language;
      EXPECT_EQ(quality, page.jpegQuality) << language;
    }
}

TEST_F(GraphicPage, TypingOverASelectedRowCountsMoreThanTheRow) {
  OpenWith(600, 1, 33, 1);
  Control(IDC_GRAPHIC_RESOLUTION).Focus();
  Control(IDC_GRAPHIC_RESOLUTION).Select(L"300 dpi (Printer, low)");
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"77");
  Control(IDC_GRAPHIC_COLOR_DEPTH).Focus();
  EXPECT_EQ(L"77 dpi", Control(IDC_GRAPHIC_RESOLUTION).Text());
  ASSERT_TRUE(Save());
  EXPECT_EQ(77, properties().GraphicResolution[0].GetLong());
}

TEST_F(GraphicPage, BarsWriteTheirPosition) {
  OpenWith(601, 1, 84, 1);
  Control(IDC_GRAPHIC_RESOLUTION_BAR).Scroll(SB_LINEUP);
  EXPECT_EQ(L"600 dpi (Printer, medium) - Default", Control(IDC_GRAPHIC_RESOLUTION).Text());
  Control(IDC_GRAPHIC_RESOLUTION_BAR).Scroll(SB_PAGEDOWN);
  EXPECT_EQ(L"700 dpi", Control(IDC_GRAPHIC_RESOLUTION).Text());
  Control(IDC_GRAPHIC_QUALITY_BAR).Scroll(SB_LINEDOWN);
  EXPECT_EQ(L"85% high", Control(IDC_GRAPHIC_QUALITY).Text());
  Control(IDC_GRAPHIC_QUALITY_BAR).Scroll(SB_PAGEUP);
  EXPECT_EQ(L"80% medium - high", Control(IDC_GRAPHIC_QUALITY).Text());
  ASSERT_TRUE(Save());
  EXPECT_EQ(700, properties().GraphicResolution[0].GetLong());
  EXPECT_EQ(80, properties().GraphicJpegQuality[0].GetLong());
}

TEST_F(GraphicPage, HintFollowsTheResolution) {
  OpenWith(301, 1, 84, 1);
  Control(IDC_GRAPHIC_RESOLUTION_BAR).Scroll(SB_LINEUP);
  EXPECT_EQ(kHintReduced, Control(IDC_GRAPHIC_HINT).Text());
  EXPECT_TRUE(IsShown(IDC_GRAPHIC_SIGN_WARNING));
  EXPECT_FALSE(IsShown(IDC_GRAPHIC_SIGN_INFORMATION));
  Control(IDC_GRAPHIC_RESOLUTION).Select(0);
  EXPECT_EQ(kHintOriginal, Control(IDC_GRAPHIC_HINT).Text());
  EXPECT_FALSE(IsShown(IDC_GRAPHIC_SIGN_WARNING));
  EXPECT_TRUE(IsShown(IDC_GRAPHIC_SIGN_INFORMATION));
  Control(IDC_GRAPHIC_RESOLUTION).SetText(L"300");
  EXPECT_EQ(kHintReduced, Control(IDC_GRAPHIC_HINT).Text());
}

TEST_F(GraphicPage, ResolutionZeroShowsDoNotChange) {
  OpenWith(0, 1, 84, 1);
  EXPECT_EQ(L"Do not change", Control(IDC_GRAPHIC_RESOLUTION).Text());
  EXPECT_EQ(0, Control(IDC_GRAPHIC_RESOLUTION_BAR).Position());
  EXPECT_EQ(kHintOriginal, Control(IDC_GRAPHIC_HINT).Text());
}

// --- What is enabled -----------------------------------------------------------------------------------------------

TEST_F(GraphicPage, PresetModeEnablesTheSliderAlone) {
  Open();
  EXPECT_EQ((std::vector<int>{IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED, IDC_GRAPHIC_SLIDER}),
            EnabledControls());
}

TEST_F(GraphicPage, UserDefinedModeEnablesTheValues) {
  Open();
  ChooseUserDefined();
  EXPECT_EQ((std::vector<int>{IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED, IDC_GRAPHIC_RESOLUTION,
                              IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_COMPRESSION, IDC_GRAPHIC_QUALITY,
                              IDC_GRAPHIC_QUALITY_BAR, IDC_GRAPHIC_COLOR_DEPTH}),
            EnabledControls());
}

TEST_F(GraphicPage, OnlyJpegHasAQuality) {
  OpenWith(601, 1, 86, 1);
  for (int row = 0; row < 5; ++row) {
    Control(IDC_GRAPHIC_COMPRESSION).Select(row);
    EXPECT_EQ(row != 0, Control(IDC_GRAPHIC_QUALITY).IsEnabled()) << row;
    EXPECT_EQ(row != 0, Control(IDC_GRAPHIC_QUALITY_BAR).IsEnabled()) << row;
    EXPECT_EQ(L"86%", Control(IDC_GRAPHIC_QUALITY).Text()) << row;
  }
}

TEST_F(GraphicPage, WithoutACompressionThereIsNoQuality) {
  OpenWith(601, 1, 86, 1);
  SendMessageW(Control(IDC_GRAPHIC_COMPRESSION).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  ChooseUserDefined();
  EXPECT_EQ((std::vector<int>{IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_USER_DEFINED, IDC_GRAPHIC_RESOLUTION,
                              IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_COMPRESSION, IDC_GRAPHIC_COLOR_DEPTH}),
            EnabledControls());
}

TEST_F(GraphicPage, MouseOverTheSliderOpensItInTheUserDefinedState) {
  OpenWith(601, 1, 86, 1);
  EXPECT_FALSE(Control(IDC_GRAPHIC_SLIDER).IsEnabled());
  MoveMouse(IDC_GRAPHIC_SLIDER);
  EXPECT_TRUE(Control(IDC_GRAPHIC_SLIDER).IsEnabled());
  MoveMouse(IDC_GRAPHIC_HINT);
  EXPECT_FALSE(Control(IDC_GRAPHIC_SLIDER).IsEnabled());
}

TEST_F(GraphicPage, MouseMeetsTheSliderWhereItStandsInAMirroredPage) {
  const LanguageScope arabic(0x0401);
  OpenWith(601, 1, 86, 1);
  RECT slider{};
  GetWindowRect(Control(IDC_GRAPHIC_SLIDER).Window(), &slider);
  const LONG y = (slider.top + slider.bottom) / 2;
  const std::pair<LONG, bool> places[] = {
      {slider.left + 3, true}, {slider.left - 3, false}, {slider.right - 4, true}, {slider.right + 3, false}};
  for (const auto& [x, over] : places) {
    MoveMouseTo({x, y});
    EXPECT_EQ(over, Control(IDC_GRAPHIC_SLIDER).IsEnabled()) << x;
  }
}

TEST_F(GraphicPage, MouseElsewhereLeavesTheSliderOfPresetModeAlone) {
  Open();
  MoveMouse(IDC_GRAPHIC_HINT);
  EXPECT_TRUE(Control(IDC_GRAPHIC_SLIDER).IsEnabled());
}

TEST_F(GraphicPage, EachOverrideLocksAPresetThatIsOn) {
  void (*const fixes[])(AdminSettings&) = {
      [](AdminSettings& admin) { admin.GraphicResolution_Override = 0; },
      [](AdminSettings& admin) { admin.GraphicJpegQuality_Override = 50; },
      [](AdminSettings& admin) { admin.GraphicCompressMethod_Override = 1; },
      [](AdminSettings& admin) { admin.GraphicColorReduction_Override = 0; },
  };
  for (const auto& fix : fixes) {
    FakeSheet sheet;
    CopyAllSets(sheet.properties, properties());
    fix(sheet.properties.adminSettings);
    CNemUIPdfGraphicPage page(&sheet, kDescription, 0);
    ASSERT_TRUE(page.Create(parent_.Window()));
    const CWnd dialog(page.Handle());
    const auto number = &fix - fixes;
    EXPECT_TRUE(CButton(dialog.Item(IDC_GRAPHIC_BY_FILE_SIZE)).IsChecked()) << number;
    EXPECT_FALSE(dialog.Item(IDC_GRAPHIC_BY_FILE_SIZE).IsEnabled()) << number;
    EXPECT_FALSE(dialog.Item(IDC_GRAPHIC_SLIDER).IsEnabled()) << number;
    EXPECT_TRUE(dialog.Item(IDC_GRAPHIC_USER_DEFINED).IsEnabled()) << number;
  }
}

TEST_F(GraphicPage, OverridesHoldThroughEveryEventThatEnables) {
  admin().GraphicCompressMethod_Override = 1;
  Open();
  EXPECT_FALSE(Control(IDC_GRAPHIC_SLIDER).IsEnabled()) << "a preset would change the fixed value";
  ChooseUserDefined();
  EXPECT_FALSE(Control(IDC_GRAPHIC_COMPRESSION).IsEnabled());
  EXPECT_TRUE(Control(IDC_GRAPHIC_RESOLUTION).IsEnabled());
  MoveMouse(IDC_GRAPHIC_SLIDER);
  EXPECT_FALSE(Control(IDC_GRAPHIC_SLIDER).IsEnabled());
  page_.OnSetActive();
  page_.OnSetActive();
  EXPECT_FALSE(Control(IDC_GRAPHIC_COMPRESSION).IsEnabled());
}

// --- Properties and cockpit ----------------------------------------------------------------------------------------

TEST_F(GraphicPage, CockpitLeavesTheReplacementsAlone) {
  Store(600, 4, 85, 1, 1);
  page_.SetCockpitValues({4, 85, 600, 1});
  EXPECT_EQ(1, page_.enhancedReplacements);
}

TEST_F(GraphicPage, CockpitShowsWhatItSets) {
  Open();
  page_.SetCockpitValues({4, 60, 150, 1});
  EXPECT_EQ(L"small", Control(1155).Text());
  EXPECT_EQ(2, Control(IDC_GRAPHIC_SLIDER).Position());
}

// --- Links and captions --------------------------------------------------------------------------------------------

TEST_F(GraphicPage, CaptionsOfThePresetAreBold) {
  Open();
  LOGFONTW expected{};
  GetObjectW(CWnd(page_.Handle()).Font(), sizeof expected, &expected);
  ASSERT_NE(FW_BOLD, expected.lfWeight);
  expected.lfWeight = FW_BOLD;
  for (const int caption : {1155, 1157, 1159}) {
    LOGFONTW font{};
    GetObjectW(CWnd(Control(caption).Window()).Font(), sizeof font, &font);
    EXPECT_EQ(0, memcmp(&expected, &font, offsetof(LOGFONTW, lfFaceName))) << caption;
    EXPECT_STREQ(expected.lfFaceName, font.lfFaceName) << caption;
  }
}

TEST_F(GraphicPage, VideoLinkShowsInGermanOnly) {
  const std::pair<int, bool> languages[] = {{0x0409, false}, {0x0407, true},  {0x0807, false},  // German elsewhere
                                            {0x0C07, false}, {0x040C, false}, {0x0401, false}};
  for (const auto& [language, shown] : languages) {
    const LanguageScope scope(static_cast<uint16_t>(language));
    CNemUIPdfGraphicPage page(&sheet_, kDescription, 0);
    ASSERT_TRUE(page.Create(parent_.Window()));
    EXPECT_EQ(shown, CWnd(page.Handle()).Item(IDC_GRAPHIC_VIDEO_LINK).IsShown()) << language;
    SetUILanguage(shown ? kEnglish : 0x0407);  // the language page may change it
    page.UpdateData(false);
    EXPECT_EQ(!shown, CWnd(page.Handle()).Item(IDC_GRAPHIC_VIDEO_LINK).IsShown()) << language;
  }
}

TEST_F(GraphicPage, VideoLinkLeadsToTheAddressOfItsText) {
  const ComScope com;
  const LanguageScope german(0x0407);
  Open();
  const Accessible link(Control(IDC_GRAPHIC_VIDEO_LINK).Window());
  ASSERT_TRUE(link);
  EXPECT_EQ(L"https://www.nem-software.example/de/video", link.Value(CHILDID_SELF));
}

TEST_F(GraphicPage, EachPictureStandsInItsControl) {
  Open();
  ExpectPictures(page_, {{1153, Pictures::kPresetMinimum},
                         {1152, Pictures::kPresetSmall},
                         {1151, Pictures::kPresetCompact},
                         {1149, Pictures::kPresetBig},
                         {1150, Pictures::kPresetMaximum},
                         {1161, Pictures::kSignWarning16},
                         {1162, Pictures::kSignInformation16}});
}

}  // namespace
