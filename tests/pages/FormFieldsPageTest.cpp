#include <algorithm>
#include <set>

#include "DriverLIB/MessageBoxes.h"
#include "pages/CFormFieldsPage.h"
#include "pages/FormatAccess.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/ControlPictures.h"

namespace {

using Values = FormFieldsCockpitValues;

const PageTable kTable = {
    .name = "FormFields",
    .pageId = kFormFieldsPage,
    .helpLink = IDC_FORM_FIELDS_HELP_LINK,
    .rows =
        {
            CheckBox(L"ShowFormfields", IDC_FORM_FIELDS_CONVERT)
                .Given({{L"FormFieldsEnabled", 1}})
                .Tracked<&Values::showFormfields>(),
            CheckBox(L"FormfieldUseAutoTextHeight", IDC_FORM_FIELDS_AUTO_HEIGHT)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}}),
            CheckBox(L"FormfieldUseDefaultTextWidth", IDC_FORM_FIELDS_TEXT_WIDTH)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}}),
            InvertedCheckBox(L"FormfieldUseDefaultTextMaxChars", IDC_FORM_FIELDS_TEXT_UNLIMITED)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}, {L"FormfieldUseDefaultTextWidth", 1}}),
            CheckBox(L"FormfieldUseInternalCharCount", IDC_FORM_FIELDS_UNIFORM_WIDTH)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}}),
            InvertedCheckBox(L"FormfieldUseInternalCharCountMaxChars", IDC_FORM_FIELDS_UNIFORM_UNLIMITED)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}, {L"FormfieldUseInternalCharCount", 1}}),
            Field(L"FormfieldInternalCharCount", IDC_FORM_FIELDS_CHARACTERS)
                .Given({{L"FormFieldsEnabled", 1}, {L"ShowFormfields", 1}, {L"FormfieldUseInternalCharCount", 1}})
                .Stores({{20, L"20", 20},
                         {1, L"1", 1},
                         {9999, L"9999", 9999},
                         {0, L"0", 15},
                         {10000, L"10000", 15},
                         {-1, L"65535", 15},
                         {65536 + 12, L"12", 12}})
                .Types({{L"12", L"12", 12},
                        {L"1", L"1", 1},
                        {L"9999", L"9999", 9999},
                        {L"10000", L"1000", 1000},  // the fifth digit has no room
                        {L"0", L"15", 15},
                        {L"-3", L"15", 15},
                        {L"", L"15", 15},
                        {L"abc", L"15", 15}}),
        },
};
const PageTableEntry entry(kTable);

using Ids = std::set<int>;

// What the conversion opens, and what two of these open.
const Ids kConversion = {1205, 1206, 1208, 1209, 1210, 1199, 1201};
constexpr int kConvert = 1195, kTextWidth = 1199, kTextUnlimited = 1200, kUniformWidth = 1201, kCharacters = 1202;
const Ids kUniform = {1202, 1207, 1203};
// Whatever is chosen.
const Ids kAlways = {1194, 1250, 1330, 1331, IDC_FORM_FIELDS_UNIFORM_LABEL};

Ids Sum(Ids ids, const Ids& more) {
  ids.insert(more.begin(), more.end());
  return ids;
}

Ids EnabledWith(bool mayConvert, bool convert, bool textWidth, bool uniform) {
  Ids ids = kAlways;
  if (mayConvert) ids.insert(kConvert);
  if (!mayConvert || !convert) return ids;
  ids = Sum(ids, kConversion);
  if (textWidth) ids.insert(kTextUnlimited);
  return uniform ? Sum(ids, kUniform) : ids;
}

// The page on a tab with the format page, which no user has opened.
class FormFieldsTest {
 public:
  explicit FormFieldsTest(int version = 14, int set = 0) : page(115, set) {
    page.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    format_ = MakeCataloguePage(&page.Sheet(), kFormatPage, set);
    page.Sheet().pages[kFormatPage] = format_.get();
    page.Set(L"PdfVersion", version);
    page.Set(L"FormFieldsEnabled", 1);
    page.Set(L"FormfieldInternalCharCount", 20);
  }

  template <class Holds>
  Ids ControlsThat(Holds holds) {
    Ids ids;
    for (HWND child = GetWindow(page.Page().Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      if (holds(child)) ids.insert(GetDlgCtrlID(child));
    return ids;
  }
  Ids Enabled() {
    return ControlsThat([](HWND child) { return IsWindowEnabled(child) != 0; });
  }
  Ids Visible() {
    return ControlsThat([](HWND child) { return IsWindowVisible(child) != 0; });
  }
  void SetVersion(int version) { dynamic_cast<FormatAccess&>(*format_).SetPdfVersion(version); }
  // The user goes elsewhere and comes back.
  void ShowAgain() {
    page.Page().OnSetActive();
    page.Page().OnSetActive();
  }
  LOGFONTW FontOf(int id) {
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(page.Control(id).Window(), WM_GETFONT, 0, 0)), sizeof font, &font);
    return font;
  }

  PageUnderTest page;

 private:
  std::unique_ptr<CNemUIPage> format_;
};

// --- What is open ---------------------------------------------------------------------------------------------------

TEST(FormFieldsPage, OpensWhatItsSwitchesAndTheVersionSay) {
  for (const int version : {0, 13, 14, 18, 99, 100, 103, 107, 108, 200}) {
    for (int switches = 0; switches < 8; ++switches) {
      const bool convert = switches & 1, textWidth = switches & 2, uniform = switches & 4;
      FormFieldsTest test(version);
      test.page.Set(L"ShowFormfields", convert);
      test.page.Set(L"FormfieldUseDefaultTextWidth", textWidth);
      test.page.Set(L"FormfieldUseInternalCharCount", uniform);
      ASSERT_TRUE(test.page.Open());
      const bool mayConvert = version < 100 || version > 107;
      EXPECT_EQ(EnabledWith(mayConvert, convert, textWidth, uniform), test.Enabled())
          << "version " << version << " switches " << switches;
    }
  }
}

TEST(FormFieldsPage, WithoutAFormatPageNoVersionForbidsTheConversion) {
  PageUnderTest test(kFormFieldsPage);
  test.Set(L"FormFieldsEnabled", 1);
  test.Set(L"PdfVersion", 100);
  ASSERT_TRUE(test.Open());
  EXPECT_TRUE(test.Control(kConvert).IsEnabled());
}

TEST(FormFieldsPage, EachTabObeysItsOwnVersion) {
  FormFieldsTest test(100, 1);
  test.page.Sheet().properties.PdfVersion[0].SetLong(14);
  ASSERT_TRUE(test.page.Open());
  EXPECT_FALSE(test.page.Control(kConvert).IsEnabled());
}

TEST(FormFieldsPage, EachTabOffersFieldsAsItsOwnSetSays) {
  for (const int set : {0, 1})
    for (const bool offered : {false, true}) {
      FormFieldsTest test(14, set);
      CDialogProperties& properties = test.page.Sheet().properties;
      properties.FormFieldsEnabled[set].SetLong(offered);
      properties.FormFieldsEnabled[1 - set].SetLong(!offered);
      ASSERT_TRUE(test.page.Open());
      EXPECT_EQ(offered, test.page.Control(kConvert).IsEnabled()) << set;
    }
}

TEST(FormFieldsPage, OpensAndClosesAtTheUsersClicks) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  bool convert = false, textWidth = false, uniform = false;
  for (const int id : {kConvert, kTextWidth, kTextWidth, kUniformWidth, kTextWidth, kConvert, kConvert, kUniformWidth,
                       kTextWidth, kConvert}) {
    test.page.Control(id).Click();
    bool& clicked = id == kConvert ? convert : id == kTextWidth ? textWidth : uniform;
    clicked = !clicked;
    EXPECT_EQ(EnabledWith(true, convert, textWidth, uniform), test.Enabled()) << id;
  }
}

TEST(FormFieldsPage, SwitchingTheConversionOffKeepsAllElse) {
  FormFieldsTest test;
  for (const wchar_t* name : {L"ShowFormfields", L"FormfieldUseAutoTextHeight", L"FormfieldUseDefaultTextWidth",
                              L"FormfieldUseDefaultTextMaxChars", L"FormfieldUseInternalCharCount"})
    test.page.Set(name, 1);
  const PageUnderTest::Values before = test.page.AllValues();
  ASSERT_TRUE(test.page.Open());
  test.page.Control(kConvert).Click();
  ASSERT_TRUE(test.page.Save());
  EXPECT_EQ((PageUnderTest::Values{{{0, L"ShowFormfields"}, L"0"}}), test.page.ChangesSince(before));
}

TEST(FormFieldsPage, TheVersionCountsAnewEachTimeThePageIsShown) {
  FormFieldsTest test;
  test.page.Set(L"ShowFormfields", 1);
  ASSERT_TRUE(test.page.Open());
  for (const int version : {101, 17, 107, 200}) {
    test.SetVersion(version);
    test.ShowAgain();
    EXPECT_EQ(EnabledWith(version < 100 || version > 107, true, false, false), test.Enabled()) << version;
    EXPECT_TRUE(test.page.Control(kConvert).IsChecked()) << version;
  }
}

// --- PDF/A ----------------------------------------------------------------------------------------------------------

TEST(FormFieldsPage, PdfAKeepsTheStoredSwitch) {
  for (const int version : {100, 101, 102, 103, 104, 105, 106, 107}) {
    for (const int stored : {0, 1, 7, -1}) {
      FormFieldsTest test(version);
      test.page.Set(L"ShowFormfields", stored);
      const PageUnderTest::Values before = test.page.AllValues();
      ASSERT_TRUE(test.page.Open());
      EXPECT_EQ(stored != 0, test.page.Control(kConvert).IsChecked());
      EXPECT_FALSE(test.page.Control(kConvert).IsEnabled());
      ASSERT_TRUE(test.page.Save());
      test.ShowAgain();
      ASSERT_TRUE(test.page.Save());
      EXPECT_EQ(PageUnderTest::Values(), test.page.ChangesSince(before)) << version << " " << stored;
    }
  }
}

TEST(FormFieldsPage, TheUsersChoiceOutlivesAVersionThatForbidsIt) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  test.page.Control(kConvert).Click();
  ASSERT_TRUE(test.page.Page().OnKillActive());
  test.SetVersion(100);
  ASSERT_TRUE(test.page.Save());
  EXPECT_EQ(L"1", test.page.Value(L"ShowFormfields"));
  test.ShowAgain();
  test.SetVersion(14);
  test.ShowAgain();
  EXPECT_TRUE(test.page.Control(kConvert).IsChecked());
  EXPECT_TRUE(test.page.Control(kConvert).IsEnabled());
}

TEST(FormFieldsPage, TheCockpitSetsTheSwitchUnderPdfAToo) {
  FormFieldsTest test(100);
  test.page.Set(L"ShowFormfields", 1);
  ASSERT_TRUE(test.page.Open());
  test.page.As<CFormFieldsPage>().SetCockpitValues({});
  EXPECT_FALSE(test.page.Control(kConvert).IsChecked());
  ASSERT_TRUE(test.page.Save());
  EXPECT_EQ(L"0", test.page.Value(L"ShowFormfields"));
}

// --- Without the add-in ---------------------------------------------------------------------------------------------

TEST(FormFieldsPage, WithoutTheAddInThereIsNothingButTheReason) {
  FormFieldsTest test;
  test.page.Set(L"FormFieldsEnabled", 0);
  test.page.Set(L"ShowFormfields", 1);
  test.page.Set(L"FormfieldUseInternalCharCount", 1);
  ASSERT_TRUE(test.page.Open());
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ((Ids{1330, 1331}), test.Visible());
    EXPECT_EQ(Ids(), test.Enabled());
    test.ShowAgain();
  }
  EXPECT_EQ(L"Generating formfiels is only possible by using the NEM pdf vonder add-in in Microsoft\u00AE Word.",
            test.page.Control(1331).Text());
}

TEST(FormFieldsPage, WithTheAddInNeitherTheReasonNorItsPictureShow) {
  for (const int enabled : {1, 2, -1}) {
    FormFieldsTest test;
    test.page.Set(L"FormFieldsEnabled", enabled);
    ASSERT_TRUE(test.page.Open());
    const Ids visible = test.Visible();
    EXPECT_FALSE(visible.contains(1330) || visible.contains(1331)) << enabled;
    EXPECT_TRUE(visible.contains(1195) && visible.contains(1250)) << enabled;
    EXPECT_EQ(14u, visible.size()) << enabled;
  }
}

TEST(FormFieldsPage, WithoutTheAddInThePageIsSavedAsEver) {
  FormFieldsTest test;
  test.page.Set(L"FormFieldsEnabled", 0);
  test.page.Set(L"ShowFormfields", -1);
  test.page.Set(L"FormfieldInternalCharCount", 0);
  const PageUnderTest::Values before = test.page.AllValues();
  ASSERT_TRUE(test.page.Open());
  ASSERT_TRUE(test.page.Save());
  EXPECT_EQ((PageUnderTest::Values{{{0, L"ShowFormfields"}, L"1"}, {{0, L"FormfieldInternalCharCount"}, L"15"}}),
            test.page.ChangesSince(before));
}

TEST(FormFieldsPage, NeverWritesWhetherFieldsAreOffered) {
  FormFieldsTest test;
  test.page.Set(L"FormFieldsEnabled", 0x10001);
  ASSERT_TRUE(test.page.Open());
  ASSERT_TRUE(test.page.Save());
  EXPECT_EQ(L"65537", test.page.Value(L"FormFieldsEnabled")) << "not even the 16 bits of it";
}

// --- The number of characters ---------------------------------------------------------------------------------------

TEST(FormFieldsPage, TakesFourCharacters) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  EXPECT_EQ(4, SendMessageW(test.page.Control(kCharacters).Window(), EM_GETLIMITTEXT, 0, 0));
}

TEST(FormFieldsPage, AWrongNumberIsCorrectedWithoutAWord) {
  FormFieldsTest test;
  test.page.Set(L"ShowFormfields", 1);
  test.page.Set(L"FormfieldUseInternalCharCount", 1);
  ASSERT_TRUE(test.page.Open());
  const unsigned boxes = MessageBoxCount();
  const ControlRef characters = test.page.Control(kCharacters);
  characters.Focus();
  characters.SetText(L"0");
  EXPECT_TRUE(test.page.Page().OnKillActive());
  EXPECT_EQ(L"15", characters.Text());
  characters.SetText(L"x");
  test.page.TakeFocusAway();
  EXPECT_EQ(L"15", characters.Text());
  // Longer than the user can type.
  SetWindowTextW(characters.Window(), L"10000");
  EXPECT_TRUE(test.page.Page().OnKillActive());
  EXPECT_EQ(L"15", characters.Text());
  EXPECT_EQ(boxes, MessageBoxCount());
}

// --- Look -----------------------------------------------------------------------------------------------------------

TEST(FormFieldsPage, HeadingsAreBoldAndTheNoteIsLarge) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  LOGFONTW usual = test.FontOf(kConvert);
  EXPECT_EQ(FW_NORMAL, usual.lfWeight);
  for (const int id : {1205, 1206}) {
    const LOGFONTW heading = test.FontOf(id);
    EXPECT_EQ(FW_BOLD, heading.lfWeight) << id;
    EXPECT_EQ(usual.lfHeight, heading.lfHeight) << id;
    EXPECT_STREQ(usual.lfFaceName, heading.lfFaceName) << id;
  }
  EXPECT_EQ(15, test.FontOf(1331).lfHeight);
  EXPECT_EQ(FW_BOLD, test.FontOf(1331).lfWeight);
}

TEST(FormFieldsPage, EachPictureStandsInItsControl) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  ExpectPictures(test.page.Page(), {{1250, Pictures::kForm32}, {1330, Pictures::kFormUnavailable}});
}

// A screen reader names an edit by the static text directly before it, hidden or not.
TEST(FormFieldsPage, TheNumberHasANameForScreenReaders) {
  FormFieldsTest test;
  ASSERT_TRUE(test.page.Open());
  EXPECT_EQ(L"Use uniform width for text fields:", TextBefore(test.page.Control(kCharacters).Window()));
}

TEST(FormFieldsPage, IsNotReadBeforeItIsAsked) {
  PageUnderTest test(kFormFieldsPage);
  EXPECT_EQ(0xFFFFFFFFu, test.As<CFormFieldsPage>().convert);
  EXPECT_EQ(0u, test.As<CFormFieldsPage>().characters);
  EXPECT_EQ(1u, test.As<CFormFieldsPage>().formFieldsEnabled);
}

}  // namespace
