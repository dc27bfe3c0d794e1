#include <functional>

#include "cockpit/CompareCategory.h"
#include "pages/CFormFieldsColorPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/Canvas.h"
#include "support/PrintText.h"

namespace {

// A switch and its colour depend on each other and are tested below.
const PageTable kTable = {.name = "FormFieldsColor", .pageId = kFormFieldsColorPage};
const PageTableEntry entry(kTable);

constexpr int32_t kNone = static_cast<int32_t>(0xFF000000);
constexpr COLORREF kNoneInPreview = 0xFFFFFFFF;
constexpr int32_t kRed = 0x0000FF;      // row 16 of the palette
constexpr int32_t kForeign = 0x123456;  // in no row

using Values = FormFieldsColorCockpitValues;

struct ColorRow {
  const wchar_t* use;
  const wchar_t* color;
  int pickerId;
  int previewId;
  bool isBackground;
  uint16_t Values::*cockpitUse;
  uint32_t Values::*cockpitColor;
};

constexpr ColorRow kRows[] = {
    {L"FormfieldUseTextfieldBorder", L"FormfieldTextfieldBorderColor", 1211, 1212, false, &Values::useTextfieldBorder,
     &Values::textfieldBorderColor},
    {L"FormfieldUseTextfieldBackColor", L"FormfieldTextfieldBackColor", 1214, 1212, true,
     &Values::useTextfieldBackColor, &Values::textfieldBackColor},
    {L"FormfieldUseCheckboxBorder", L"FormfieldCheckboxBorderColor", 1218, 1213, false, &Values::useCheckboxBorder,
     &Values::checkboxBorderColor},
    {L"FormfieldUseCheckboxBackColor", L"FormfieldCheckboxBackColor", 1221, 1213, true, &Values::useCheckboxBackColor,
     &Values::checkboxBackColor},
    {L"FormfieldUseDropdownBorder", L"FormfieldDropdownBorderColor", 1225, 1215, false, &Values::useDropdownBorder,
     &Values::dropdownBorderColor},
    {L"FormfieldUseDropdownBackColor", L"FormfieldDropdownBackColor", 1228, 1215, true, &Values::useDropdownBackColor,
     &Values::dropdownBackColor},
};

class FormColors {
 public:
  explicit FormColors(int set = 0) : page(116, set) { page.Set(L"FormFieldsEnabled", 1); }

  template <class Control>
  Control& Object(int id) {
    return dynamic_cast<Control&>(*CSubclassedControl::FromHandle(page.Control(id).Window()));
  }
  CColourPicker& Picker(int id) { return Object<CColourPicker>(id); }
  CFormFieldsPreview& Preview(int id) { return Object<CFormFieldsPreview>(id); }
  COLORREF InPreview(const ColorRow& row) {
    const CFormFieldsPreview& preview = Preview(row.previewId);
    return row.isBackground ? preview.BackgroundColour() : preview.BorderColour();
  }
  // The user opens a picker, goes to a cell and ends.
  void Choose(int pickerId, int cell, UINT code = ColourSelEndOk) {
    page.Control(pickerId).Click();
    const auto popup = Picker(pickerId).Popup();
    ASSERT_TRUE(popup);
    popup->Highlight(cell);
    popup->End(code);
  }
  // The items that the cockpit names.
  CUString Marked() {
    CCockpitSettings baseline(true), current(true);
    page.As<CFormFieldsColorPage>().GetCockpitValues(current.formFieldsColor);
    CUString label, detail;
    int32_t lineCount = 0, width = 0;
    CompareCategory(baseline, current, 16, label, detail, lineCount, width);
    return label;
  }
  // The host's factory state.
  void SetFactoryState() {
    const CCockpitSettings factory(true);
    for (const ColorRow& row : kRows) {
      page.Set(row.use, factory.formFieldsColor.*row.cockpitUse);
      page.Set(row.color, factory.formFieldsColor.*row.cockpitUse
                              ? static_cast<int32_t>(factory.formFieldsColor.*row.cockpitColor)
                              : kNone);
    }
  }

  PageUnderTest page;
};

// --- Shown and saved ------------------------------------------------------------------------------------------------

TEST(FormFieldsColorPage, ShowsAndSavesEachColourWithItsSwitch) {
  const struct {
    int32_t use, color, shown, savedUse, savedColor;
  } cases[] = {{1, kForeign, kForeign, 1, kForeign},
               {1, 0, 0, 1, 0},
               {1, 0xFFFFFF, 0xFFFFFF, 1, 0xFFFFFF},
               {0, kForeign, kNone, 0, kNone},
               {0, kNone, kNone, 0, kNone},
               {1, kNone, kNone, 0, kNone},
               {7, kRed, kRed, 1, kRed},
               {-1, kRed, kRed, 1, kRed},
               {65536, kRed, kNone, 0, kNone}};  // a switch has 16 bits
  for (const int set : {0, 1}) {
    for (const ColorRow& row : kRows) {
      for (const auto& each : cases) {
        SCOPED_TRACE(std::to_string(row.pickerId) + " " + std::to_string(each.use) + " " + std::to_string(each.color));
        FormColors test(set);
        test.SetFactoryState();
        test.page.Set(row.use, each.use);
        test.page.Set(row.color, each.color);
        const PageUnderTest::Values before = test.page.AllValues();
        ASSERT_TRUE(test.page.Open());
        EXPECT_EQ(static_cast<COLORREF>(each.shown), test.Picker(row.pickerId).GetColour());
        EXPECT_EQ(each.shown == kNone ? kNoneInPreview : static_cast<COLORREF>(each.shown), test.InPreview(row));
        EXPECT_EQ(PageUnderTest::Values(), test.page.ChangesSince(before)) << "showing changes nothing";
        PageUnderTest::Values expected;
        if (each.savedUse != each.use) expected[{set, row.use}] = std::to_wstring(each.savedUse);
        if (each.savedColor != each.color) expected[{set, row.color}] = std::to_wstring(each.savedColor);
        for (int times = 0; times < 2; ++times) {
          ASSERT_TRUE(test.page.Save());
          EXPECT_EQ(expected, test.page.ChangesSince(before));
        }
      }
    }
  }
}

TEST(FormFieldsColorPage, SavesTheUsersChoice) {
  for (const ColorRow& row : kRows) {
    for (const bool used : {false, true}) {
      FormColors test;
      test.page.Set(row.use, used);
      test.page.Set(row.color, used ? kForeign : kNone);
      ASSERT_TRUE(test.page.Open());
      test.Choose(row.pickerId, used ? kDefaultCell : PaletteRowOf(kRed));
      ASSERT_TRUE(test.page.Save());
      EXPECT_EQ(used ? L"0" : L"1", test.page.Value(row.use)) << row.pickerId;
      EXPECT_EQ(std::to_wstring(used ? kNone : kRed), test.page.Value(row.color)) << row.pickerId;
    }
  }
}

TEST(FormFieldsColorPage, NeverWritesWhetherFieldsAreOffered) {
  for (const int offered : {0, 0x10001}) {
    FormColors test;
    test.page.Set(L"FormFieldsEnabled", offered);
    ASSERT_TRUE(test.page.Open());
    ASSERT_TRUE(test.page.Save());
    EXPECT_EQ(std::to_wstring(offered), test.page.Value(L"FormFieldsEnabled")) << "not even the 16 bits of it";
  }
}

TEST(FormFieldsColorPage, ReadsEachPropertyOnce) {
  for (const ColorRow& row : kRows) {
    FormColors test;
    test.page.Set(row.use, 1);
    test.page.Set(row.color, kRed);
    test.page.Page().ReadProperties();
    test.page.Set(row.use, 0);
    test.page.Set(row.color, kForeign);
    test.page.Page().ReadProperties();
    test.page.Page().WriteProperties();
    EXPECT_EQ(L"1", test.page.Value(row.use));
    EXPECT_EQ(std::to_wstring(kRed), test.page.Value(row.color));
  }
}

// --- Previews -------------------------------------------------------------------------------------------------------

TEST(FormFieldsColorPage, AChoiceShowsInItsPreview) {
  for (const ColorRow& row : kRows) {
    FormColors test;
    test.SetFactoryState();
    ASSERT_TRUE(test.page.Open());
    test.Choose(row.pickerId, PaletteRowOf(kRed));
    EXPECT_EQ(static_cast<COLORREF>(kRed), test.InPreview(row)) << row.pickerId;
    test.Choose(row.pickerId, kDefaultCell);
    EXPECT_EQ(kNoneInPreview, test.InPreview(row)) << row.pickerId;
  }
}

// Both colours of the preview are taken from the pickers, and no other preview is touched.
TEST(FormFieldsColorPage, AChoiceRefreshesItsPreviewAlone) {
  for (const ColorRow& chosen : kRows) {
    FormColors test;
    ASSERT_TRUE(test.page.Open());
    for (const ColorRow& row : kRows) test.Picker(row.pickerId).SetColour(kForeign);
    test.Choose(chosen.pickerId, PaletteRowOf(kRed));
    for (const ColorRow& row : kRows) {
      const COLORREF expected = row.pickerId == chosen.pickerId     ? kRed
                                : row.previewId == chosen.previewId ? kForeign
                                                                    : kNoneInPreview;
      EXPECT_EQ(expected, test.InPreview(row)) << chosen.pickerId << " " << row.pickerId;
    }
  }
}

TEST(FormFieldsColorPage, WhatIsNotChosenShowsInNoPreview) {
  for (const ColorRow& row : kRows) {
    FormColors test;
    ASSERT_TRUE(test.page.Open());
    test.page.Control(row.pickerId).Click();
    const auto popup = test.Picker(row.pickerId).Popup();
    ASSERT_TRUE(popup);
    popup->Highlight(PaletteRowOf(kRed));
    EXPECT_EQ(kNoneInPreview, test.InPreview(row)) << "only highlighted";
    popup->End(ColourSelEndCancel);
    EXPECT_EQ(kNoneInPreview, test.InPreview(row));
    EXPECT_EQ(static_cast<COLORREF>(kNone), test.Picker(row.pickerId).GetColour());
  }
}

// A text, a cross, and a text with a button: a cross covers the corners of its box, a button the right edge.
TEST(FormFieldsColorPage, EachPreviewShowsItsKind) {
  FormColors test;
  ASSERT_TRUE(test.page.Open());
  const COLORREF window = GetSysColor(COLOR_WINDOW);
  for (const int id : {1212, 1213, 1215}) {
    const CWnd preview(test.page.Control(id).Window());
    const RECT client = preview.ClientRect();
    const Canvas canvas(client.right, client.bottom, RGB(1, 2, 3));
    preview.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(static_cast<HDC>(canvas)), PRF_CLIENT);
    const int inset = preview.Scale(5);
    const bool cross = canvas.At(inset, inset) != window && canvas.At(client.right - inset - 1, inset) != window;
    EXPECT_EQ(id == 1213, cross) << id;
    EXPECT_EQ(id == 1215, canvas.At(client.right - preview.Scale(4), client.bottom / 2) != window) << id;
  }
}

// --- What is open ---------------------------------------------------------------------------------------------------

TEST(FormFieldsColorPage, IsOpenWithTheAddInAlone) {
  for (const int offered : {0, 1, 2, -1}) {
    FormColors test;
    test.page.Set(L"FormFieldsEnabled", offered);
    ASSERT_TRUE(test.page.Open());
    for (int times = 0; times < 2; ++times) {
      int count = 0;
      for (HWND child = GetWindow(test.page.Page().Handle(), GW_CHILD); child;
           child = GetWindow(child, GW_HWNDNEXT), ++count)
        EXPECT_EQ(offered != 0, IsWindowEnabled(child) != 0) << GetDlgCtrlID(child) << " " << offered;
      EXPECT_EQ(18, count);
      for (int shown = 0; shown < 2; ++shown) test.page.Page().OnSetActive();
    }
  }
}

TEST(FormFieldsColorPage, EachTabIsOpenAsItsOwnSetSays) {
  for (const int set : {0, 1})
    for (const bool offered : {false, true}) {
      FormColors test(set);
      CDialogProperties& properties = test.page.Sheet().properties;
      properties.FormFieldsEnabled[set].SetLong(offered);
      properties.FormFieldsEnabled[1 - set].SetLong(!offered);
      ASSERT_TRUE(test.page.Open());
      EXPECT_EQ(offered, test.page.Control(1211).IsEnabled()) << set;
    }
}

TEST(FormFieldsColorPage, PdfADoesNotConcernIt) {
  FormColors test;
  const auto format = MakeCataloguePage(&test.page.Sheet(), kFormatPage, 0);
  test.page.Sheet().pages[kFormatPage] = format.get();
  test.page.Set(L"PdfVersion", 100);
  ASSERT_TRUE(test.page.Open());
  EXPECT_TRUE(test.page.Control(1211).IsEnabled());
}

TEST(FormFieldsColorPage, ThePickersOfferToUseNoColourAndMoreColours) {
  const ComScope com;
  for (const ColorRow& row : kRows) {
    FormColors test;
    ASSERT_TRUE(test.page.Open());
    EXPECT_EQ(L"do not use", Accessible(test.page.Control(row.pickerId).Window()).Value(0));
    test.page.Control(row.pickerId).Click();
    const auto popup = test.Picker(row.pickerId).Popup();
    ASSERT_TRUE(popup);
    EXPECT_EQ(kDefaultCell, popup->ChosenCell());
    {
      const Accessible cells(popup->Handle());
      EXPECT_EQ(42, cells.Count());
      EXPECT_EQ(L"do not use", cells.Name(1));
      EXPECT_EQ(L"More Colors...", cells.Name(42));
    }
    popup->End(ColourSelEndCancel);
  }
}

// --- The cockpit ----------------------------------------------------------------------------------------------------

TEST(FormFieldsColorPage, TheCockpitReadsAPageThatWasNeverShown) {
  for (const ColorRow& row : kRows) {
    FormColors test;
    test.page.Set(row.use, 3);
    test.page.Set(row.color, kForeign);
    Values values;
    test.page.As<CFormFieldsColorPage>().GetCockpitValues(values);
    EXPECT_EQ(3, values.*row.cockpitUse) << row.pickerId;
    EXPECT_EQ(static_cast<uint32_t>(kForeign), values.*row.cockpitColor) << row.pickerId;
    EXPECT_FALSE(test.page.Page().IsWindow());
  }
}

TEST(FormFieldsColorPage, TheCockpitSetsAndShowsEachValue) {
  for (const ColorRow& row : kRows) {
    for (const bool open : {false, true}) {
      SCOPED_TRACE(std::to_string(row.pickerId) + (open ? " open" : " never shown"));
      FormColors test;
      test.SetFactoryState();
      const PageUnderTest::Values before = test.page.AllValues();
      if (open) {
        ASSERT_TRUE(test.page.Open());
      }
      auto& page = test.page.As<CFormFieldsColorPage>();
      Values values;
      page.GetCockpitValues(values);
      values.*row.cockpitUse = 1;
      values.*row.cockpitColor = kRed;
      page.SetCockpitValues(values);
      if (open) {
        EXPECT_EQ(static_cast<COLORREF>(kRed), test.Picker(row.pickerId).GetColour());
        EXPECT_EQ(static_cast<COLORREF>(kRed), test.InPreview(row));
      }
      page.WriteProperties();
      PageUnderTest::Values expected = {{{0, row.color}, std::to_wstring(kRed)}};
      if (before.at({0, row.use}) != L"1") expected[{0, row.use}] = L"1";
      EXPECT_EQ(expected, test.page.ChangesSince(before));
    }
  }
}

TEST(FormFieldsColorPage, TheFactoryStateMarksNothingHoweverOftenItIsShown) {
  FormColors test;
  test.SetFactoryState();
  EXPECT_EQ(L"", test.Marked());
  ASSERT_TRUE(test.page.Open());
  ASSERT_TRUE(test.page.Page().OnKillActive());
  EXPECT_EQ(L"", test.Marked());
}

TEST(FormFieldsColorPage, ABorderThatWasNotUsedMarksNothingWhenItIsChosenAgain) {
  for (const int pickerId : {1211, 1225}) {
    FormColors test;
    test.SetFactoryState();
    ASSERT_TRUE(test.page.Open());
    test.Choose(pickerId, kDefaultCell);
    ASSERT_TRUE(test.page.Page().OnKillActive());
    EXPECT_EQ(L"", test.Marked()) << pickerId;
  }
}

// The colour of such a border is compared by nobody: its switch alone marks the row.
TEST(FormFieldsColorPage, TheSwitchOfABorderMarksAndItsColourDoesNot) {
  for (const auto& [pickerId, item] : {std::pair{1211, L"Textboxes"}, {1225, L"Dropdown elements"}}) {
    FormColors test;
    test.SetFactoryState();
    ASSERT_TRUE(test.page.Open());
    test.Choose(pickerId, PaletteRowOf(kRed));
    ASSERT_TRUE(test.page.Page().OnKillActive());
    EXPECT_EQ(item, test.Marked());
    test.Choose(pickerId, kDefaultCell);
    ASSERT_TRUE(test.page.Page().OnKillActive());
    EXPECT_EQ(L"", test.Marked());
  }
}

TEST(FormFieldsColorPage, AColourThatIsNoLongerUsedMarksItsKind) {
  for (const auto& [pickerId, item] :
       {std::pair{1214, L"Textboxes"}, {1218, L"Checkboxes"}, {1221, L"Checkboxes"}, {1228, L"Dropdown elements"}}) {
    FormColors test;
    test.SetFactoryState();
    ASSERT_TRUE(test.page.Open());
    test.Choose(pickerId, kDefaultCell);
    ASSERT_TRUE(test.page.Page().OnKillActive());
    EXPECT_EQ(item, test.Marked()) << pickerId;
  }
}

TEST(FormFieldsColorPageAlone, TakesTheHostForOneWithFormFieldsUntilItIsAsked) {
  PageUnderTest test(kFormFieldsColorPage);
  EXPECT_EQ(1, test.As<CFormFieldsColorPage>().formFieldsEnabled);
}

}  // namespace
