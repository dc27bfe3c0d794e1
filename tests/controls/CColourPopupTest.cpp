#include "controls/CColourPopup.h"

#include "ColourPage.h"
#include "driver/CommonDialogs.h"
#include "driver/Popups.h"
#include "support/Accessible.h"
#include "support/FunctionPatch.h"

namespace {

constexpr UINT kChange = 2025, kCloseUp = 2027, kOk = 2028, kCancel = 2029;

// --- Opening --------------------------------------------------------------------------------------------------------

TEST(CColourPopup, StartsOnTheCellOfItsColour) {
  const struct {
    const char* rule;
    COLORREF colour;
    const wchar_t *defaultText, *customText;
    int cell;
  } rows[] = {
      {"no colour", kNoColour, L"Automatic", L"More", kDefaultCell},
      {"no colour without a default cell", kNoColour, L"", L"More", kCustomCell},
      {"a colour of the palette", kRed, L"Automatic", L"More", 16},
      {"another one", kForeign, L"Automatic", L"More", kCustomCell},
      {"another one without a custom cell", kForeign, L"Automatic", L"", kNoCell},
      {"nothing fits", kNoColour, L"", L"", kNoCell},
  };
  for (const auto& row : rows) {
    ColourPage test;
    test.Open(row.colour, row.defaultText, row.customText);
    EXPECT_EQ(row.cell, test.Popup().ChosenCell()) << row.rule;
    EXPECT_EQ(row.cell, test.Popup().HighlightedCell()) << row.rule;
    EXPECT_EQ(row.colour, test.Popup().ChosenColour()) << row.rule;
    EXPECT_TRUE(test.Told().empty()) << row.rule;
  }
}

TEST(CColourPopup, StandsBelowItsPicker) {
  ColourPage test;
  test.Open(kRed);
  const RECT picker = test.control.WindowRect(), popup = test.Popup().WindowRect();
  EXPECT_EQ(picker.left, popup.left);
  EXPECT_EQ(picker.bottom, popup.top);
  EXPECT_EQ(test.Popup().Layout().Width(), popup.right - popup.left);
  EXPECT_EQ(test.Popup().Layout().Height(), popup.bottom - popup.top);
  const RECT client = test.Popup().ClientRect();
  EXPECT_EQ(popup.right - popup.left, client.right) << "no border of the system";
}

TEST(CColourPopup, OpensAboveNearTheBottom) {
  ColourPage test;
  RECT work{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  test.page.Move({100, work.bottom - 60, 500, work.bottom});
  test.Open(kRed);
  const RECT picker = test.control.WindowRect(), popup = test.Popup().WindowRect();
  EXPECT_EQ(picker.top, popup.bottom);
  EXPECT_EQ(picker.left, popup.left);
}

TEST(CColourPopup, StaysOnTheScreen) {
  ColourPage test;
  RECT work{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  test.page.Move({work.right - 100, 100, work.right + 300, 400});
  test.Open(kRed);
  EXPECT_EQ(work.right, test.Popup().WindowRect().right);
  test.Press(VK_ESCAPE);
  test.page.Move({-150, 100, 250, 400});
  test.Open(kRed);
  EXPECT_EQ(work.left, test.Popup().WindowRect().left);
}

TEST(CColourPopup, OfAMirroredPageIsMirrored) {
  ColourPage test(ControlDialog::Layout::RightToLeft);
  test.Open(kRed, L"A text so long that the popup has to be wider than its grid of colours");
  const RECT picker = test.control.WindowRect(), popup = test.Popup().WindowRect();
  EXPECT_EQ(picker.right, popup.right);
  EXPECT_TRUE(test.Popup().IsMirrored());
}

LOGFONTW FontOfMessages() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return metrics.lfMessageFont;
}

TEST(CColourPopup, MeasuresItsTextsInTheFontOfMessages) {
  ColourPage test;
  const wchar_t* text = L"A text so long that the popup has to be wider than its grid of colours";
  test.Open(kRed, text);
  const LOGFONTW messages = FontOfMessages();
  const GdiFont font(::CreateFontIndirectW(&messages));
  const WindowDC dc(nullptr);
  const SelectScope selected(dc, font.Get());
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
  const int margin = ::GetSystemMetrics(SM_CXEDGE);
  EXPECT_EQ(size.cx + 4 * margin + 2, test.Popup().Layout().Width());
  EXPECT_EQ(size.cy + 2 * margin + 2, test.Popup().Layout().CellRect(kDefaultCell).Height());
}

TEST(CColourPopup, GrowsWithTheDpi) {
  const DpiScope dpi(192);
  ColourPage test;
  test.Open(kRed);
  EXPECT_EQ(36, test.Popup().Layout().Measures().boxSize);
  EXPECT_GT(test.Popup().Layout().CellRect(kDefaultCell).Height(), 30) << "the font is larger, too";
}

TEST(CColourPopup, HasMouseAndKeyboard) {
  ColourPage test;
  test.Open(kRed);
  EXPECT_EQ(test.Popup().Handle(), ::GetCapture());
  EXPECT_TRUE(test.Popup().HasFocus());
  EXPECT_EQ(test.page.Handle(), ::GetWindow(test.Popup().Handle(), GW_OWNER));
  EXPECT_TRUE(test.Popup().Send(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
}

TEST(CColourPopup, LeavesTheActiveLookToTheWindowOfItsPicker) {
  ColourPage test;
  test.page.received.clear();
  test.Click();
  const std::vector<WindowMessage> looks = test.page.Received(WM_NCACTIVATE);
  ASSERT_FALSE(looks.empty());
  EXPECT_EQ(static_cast<WPARAM>(TRUE), looks.back().wParam);
  test.Press(VK_ESCAPE);
  EXPECT_EQ(static_cast<WPARAM>(TRUE), test.page.Received(WM_NCACTIVATE).back().wParam) << "and gives it back";
}

TEST(CColourPopup, TakesTheActiveLookAlongWhenTheUserGoesElsewhere) {
  ControlDialog elsewhere;
  ColourPage test;
  test.Open(kForeign);
  const HWND popup = test.Popup().Handle();
  bool calledBack = false;
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message == WM_ACTIVATE && LOWORD(message.wParam) != WA_INACTIVE) calledBack = true;
  };
  ::SetActiveWindow(elsewhere.Handle());
  EXPECT_FALSE(calledBack);
  EXPECT_FALSE(::IsWindowVisible(popup));
  EXPECT_FALSE(test.picker->IsOpen());
  ASSERT_FALSE(test.page.Received(WM_NCACTIVATE).empty());
  EXPECT_EQ(static_cast<WPARAM>(FALSE), test.page.Received(WM_NCACTIVATE).back().wParam);
  RunPostedMessages();
  EXPECT_TRUE(test.IsOver());
  EXPECT_FALSE(calledBack);
  EXPECT_EQ(elsewhere.Handle(), ::GetActiveWindow()) << "it does not take the user back";
}

bool hasShadows = false;

BOOL WINAPI ShadowParameters(UINT action, UINT size, void* data, UINT flags) {
  if (action != SPI_GETDROPSHADOW)
    return RealFunction("user32.dll", "SystemParametersInfoW", &ShadowParameters)(action, size, data, flags);
  *static_cast<BOOL*>(data) = hasShadows;
  return TRUE;
}

TEST(CColourPopup, HasAShadowWhenTheSystemHas) {
  PatchImport("user32.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&ShadowParameters));
  for (const bool shadows : {false, true, false}) {
    hasShadows = shadows;
    ColourPage test;
    test.Open(kRed);
    EXPECT_EQ(shadows, (::GetClassLongPtrW(test.Popup().Handle(), GCL_STYLE) & CS_DROPSHADOW) != 0);
  }
  RestoreImport("user32.dll", "SystemParametersInfoW");
}

// --- Highlighting ---------------------------------------------------------------------------------------------------

TEST(CColourPopup, TellsOfEachHighlightedColour) {
  ColourPage test;
  test.Open(kForeign);
  for (int cell = 0; cell < kPaletteSize; ++cell) {
    test.page.received.clear();
    test.Popup().Highlight(cell);
    test.ExpectTold({kChange}, kPalette[cell].colour);
    EXPECT_EQ(cell, test.Popup().HighlightedCell());
    EXPECT_EQ(kPalette[cell].colour, test.Popup().ChosenColour());
  }
}

TEST(CColourPopup, TellsOfTheOtherCells) {
  ColourPage test;
  test.Open(kForeign);
  test.Popup().Highlight(kDefaultCell);
  test.ExpectTold({kChange}, 0xFF000000);
  EXPECT_EQ(0xFF000000u, test.Popup().ChosenColour());
  test.page.received.clear();
  test.Popup().Highlight(kCustomCell);
  test.ExpectTold({kChange}, kForeign);
  EXPECT_EQ(0xFF000000u, test.Popup().ChosenColour()) << "not chosen before the dialog";
  test.Popup().Highlight(3);
  test.page.received.clear();
  test.Popup().Highlight(40);
  test.ExpectTold({kChange}, kForeign);
  EXPECT_EQ(kCustomCell, test.Popup().HighlightedCell());
}

TEST(CColourPopup, RedrawsTheTwoCells) {
  ColourPage test;
  test.Open(kRed);
  Paint(test.Popup());
  test.Popup().Highlight(2);
  RECT update{};
  EXPECT_TRUE(::GetUpdateRect(test.Popup().Handle(), &update, FALSE));
  const IntRect from = test.Popup().Layout().CellRect(16), to = test.Popup().Layout().CellRect(2);
  EXPECT_EQ(to.top, update.top);
  EXPECT_EQ(from.bottom, update.bottom);
  EXPECT_EQ(from.left, update.left);
  EXPECT_EQ(to.right, update.right);
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

TEST(CColourPopup, HighlightsWhatIsUnderTheMouse) {
  ColourPage test;
  test.Open(kForeign);
  const ColourCells cells = test.Popup().Layout().Cells();
  for (int position = cells.Count(); position >= 1; --position) {
    const int cell = cells.CellAtPosition(position);
    test.MoveTo(test.Inside(cell));
    EXPECT_EQ(cell, test.Popup().HighlightedCell());
  }
  test.page.received.clear();
  test.MoveTo(test.Inside(kDefaultCell) + 1);
  EXPECT_TRUE(test.Told().empty()) << "it is highlighted already";
  for (const LPARAM point : {MAKELPARAM(-10, 30), MAKELPARAM(0, 0), MAKELPARAM(30, 1000)}) {
    test.MoveTo(point);
    EXPECT_EQ(kDefaultCell, test.Popup().HighlightedCell());
  }
  EXPECT_TRUE(test.Told().empty());
}

TEST(CColourPopup, AMouseThatStandsStillTakesNothingFromTheKeyboard) {
  ColourPage test;
  test.Open(kForeign);
  test.MoveTo(test.Inside(5));
  test.Press(VK_DOWN);
  EXPECT_EQ(13, test.Popup().HighlightedCell());
  test.MoveTo(test.Inside(5));
  EXPECT_EQ(13, test.Popup().HighlightedCell());
  test.MoveTo(test.Inside(5) + 1);
  EXPECT_EQ(5, test.Popup().HighlightedCell());
}

TEST(CColourPopup, AClickWithoutAMoveChoosesWhatItIsOn) {
  ColourPage test;
  test.Open(kForeign);
  test.MoveTo(test.Inside(5));
  test.Press(VK_DOWN);
  test.MoveTo(test.Inside(5));
  test.page.received.clear();
  test.Release(test.Inside(5));
  test.ExpectTold({kChange, kCloseUp, kOk}, kPalette[5].colour);
  test.Open(kForeign);  // on the custom cell
  const Popups popups;  // its dialog is not asked
  test.Release(test.Inside(16));
  test.ExpectTold({kChange, kCloseUp, kOk}, kRed);
  EXPECT_EQ(kRed, test.picker->GetColour());
  EXPECT_TRUE(test.IsOver());
}

TEST(CColourPopup, PickerMayEndAtTheHighlightOfAClick) {
  ColourPage test;
  test.Open(kForeign);
  const HWND popup = test.Popup().Handle();
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message == kChange) test.picker.reset();
  };
  const LPARAM point = test.Inside(16);
  ::SendMessageW(popup, WM_LBUTTONUP, 0, point);
  EXPECT_EQ(std::vector<UINT>{kChange}, test.Told());
  EXPECT_EQ(0, ColourPage::OpenPopups());
}

TEST(CColourPopup, EndsWithTheButton) {
  const struct {
    const char* rule;
    LPARAM point;
    UINT code;
    COLORREF colour;
  } rows[] = {{"in the corner: what is highlighted", MAKELPARAM(0, 0), kOk, kPalette[7].colour},
              {"left of it", MAKELPARAM(-1, 5), kCancel, kForeign},
              {"above it", MAKELPARAM(5, -1), kCancel, kForeign},
              {"far away", MAKELPARAM(2000, 2000), kCancel, kForeign}};
  for (const auto& row : rows) {
    ColourPage test;
    test.Open(kForeign);
    test.MoveTo(test.Inside(7));
    test.page.received.clear();
    test.Release(row.point);
    test.ExpectTold({kCloseUp, row.code}, row.colour);
    EXPECT_EQ(row.colour, test.picker->GetColour()) << row.rule;
    EXPECT_TRUE(test.IsOver()) << row.rule;
  }
}

TEST(CColourPopup, ChoosesEachCellOfThePalette) {
  for (int cell = 0; cell < kPaletteSize; ++cell) {
    ColourPage test;
    test.Open(kForeign);
    test.ClickCell(cell);
    EXPECT_EQ(kPalette[cell].colour, test.picker->GetColour()) << cell;
    test.ExpectTold({kChange, kCloseUp, kOk}, kPalette[cell].colour);
  }
}

TEST(CColourPopup, ChoosesNoColour) {
  ColourPage test;
  test.Open(kRed);
  test.ClickCell(kDefaultCell);
  test.ExpectTold({kChange, kCloseUp, kOk}, 0xFF000000);
  EXPECT_EQ(0xFF000000u, test.picker->GetColour());
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

TEST(CColourPopup, ArrowsHighlight) {
  constexpr int kDefault = kDefaultCell, kCustom = kCustomCell;
  const struct {
    const wchar_t *defaultText, *customText;
    int from;
    int down, up, right, left;
  } rows[] = {
      {L"d", L"c", 10, 18, 2, 11, 9},
      {L"d", L"c", 7, 15, kDefault, 8, 6},
      {L"d", L"c", 8, 16, 0, 9, 7},
      {L"d", L"c", 0, 8, kDefault, 1, kDefault},
      {L"d", L"c", 39, kCustom, 31, kCustom, 38},
      {L"d", L"c", kDefault, 0, kCustom, 0, kCustom},
      {L"d", L"c", kCustom, kDefault, 39, kDefault, 39},
      {L"d", L"", 39, kDefault, 31, kDefault, 38},
      {L"d", L"", kDefault, 0, 39, 0, 39},
      {L"", L"c", 0, 8, kCustom, 1, kCustom},
      {L"", L"c", kCustom, 0, 39, 0, 39},
      {L"", L"", 39, 0, 31, 0, 38},
      {L"", L"", 0, 8, 39, 1, 39},
  };
  for (const auto& row : rows) {
    const std::pair<WPARAM, int> keys[] = {
        {VK_DOWN, row.down}, {VK_UP, row.up}, {VK_RIGHT, row.right}, {VK_LEFT, row.left}};
    for (const auto& [key, cell] : keys) {
      ColourPage test;
      test.Open(kRed, row.defaultText, row.customText);
      test.Popup().Highlight(row.from);
      test.page.received.clear();
      test.Press(key);
      EXPECT_EQ(cell, test.Popup().HighlightedCell()) << row.from << " " << key;
      EXPECT_EQ(std::vector<UINT>{kChange}, test.Told());
    }
  }
}

TEST(CColourPopup, ArrowsFollowTheEyeInAMirroredPopup) {
  ColourPage test(ControlDialog::Layout::RightToLeft);
  test.Open(kRed);
  test.Press(VK_LEFT);
  EXPECT_EQ(17, test.Popup().HighlightedCell()) << "which stands left of it";
  test.Press(VK_RIGHT);
  EXPECT_EQ(16, test.Popup().HighlightedCell());
}

TEST(CColourPopup, EndsByKeys) {
  const struct {
    WPARAM key;
    UINT code;
    COLORREF colour;
  } rows[] = {{VK_ESCAPE, kCancel, kForeign}, {VK_RETURN, kOk, 0}, {VK_SPACE, kOk, 0}};
  for (const auto& row : rows) {
    ColourPage test;
    test.Open(kForeign);
    test.Popup().Highlight(0);
    test.page.received.clear();
    test.Press(row.key);
    test.ExpectTold({kCloseUp, row.code}, row.colour);
    EXPECT_EQ(row.colour, test.picker->GetColour());
    EXPECT_TRUE(test.IsOver());
    EXPECT_TRUE(test.control.HasFocus());
  }
}

TEST(CColourPopup, LeavesOtherKeysAlone) {
  ColourPage test;
  test.Open(kRed);
  for (const WPARAM key : {VK_TAB, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_F4, VK_BACK, int{'A'}}) test.Press(key);
  EXPECT_EQ(16, test.Popup().HighlightedCell());
  EXPECT_TRUE(test.Told().empty());
}

TEST(CColourPopup, EnterWithoutACellKeepsTheColour) {
  ColourPage test;
  test.Open(kForeign, L"Automatic", L"");
  test.Press(VK_RETURN);
  test.ExpectTold({kCloseUp, kOk}, kForeign);
}

TEST(CColourPopup, GoesIntoNoMenu) {
  ColourPage test;
  test.Open(kRed);
  test.Popup().Send(WM_SYSCOMMAND, SC_KEYMENU);
  EXPECT_TRUE(test.picker->IsOpen());
  EXPECT_EQ(test.Popup().Handle(), ::GetCapture());
}

// --- The dialog for colours -----------------------------------------------------------------------------------------

constexpr int kRedEdit = 706, kGreenEdit = 707, kBlueEdit = 708;
constexpr int kAddButton = 712, kOpenFullyButton = 719;

COLORREF ShownColour(HWND dialog) {
  const auto part = [&](int id) { return ::GetDlgItemInt(dialog, id, nullptr, FALSE); };
  return RGB(part(kRedEdit), part(kGreenEdit), part(kBlueEdit));
}

TEST(CColourPopup, EnterOnTheCustomCellAsksForAColour) {
  ColourPage test;
  test.Open(kForeign);
  Popups popups;
  popups.ExpectDialog([&](HWND dialog) {
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(test.page.Handle(), ::GetWindow(dialog, GW_OWNER));
    EXPECT_FALSE(test.page.IsEnabled());
    EXPECT_TRUE(::IsWindow(test.Popup().Handle())) << "it stays";
    EXPECT_TRUE(test.picker->IsOpen());
    EXPECT_TRUE(test.Told().empty());
    EXPECT_EQ(kForeign, ShownColour(dialog)) << "with the initial colour";
    EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, kOpenFullyButton))) << "it is fully open";
    ChooseColour(dialog, RGB(17, 34, 51));
  });
  test.Press(VK_RETURN);
  test.ExpectTold({kCloseUp, kOk}, RGB(17, 34, 51));
  EXPECT_EQ(RGB(17, 34, 51), test.picker->GetColour());
  EXPECT_TRUE(test.IsOver());
  EXPECT_TRUE(test.page.IsEnabled());
}

TEST(CColourPopup, CancellingTheDialogCancels) {
  ColourPage test;
  test.Open(kForeign);
  test.Popup().Highlight(16);
  test.Popup().Highlight(kCustomCell);
  test.page.received.clear();
  Popups popups;
  popups.ExpectDialog(DismissDialog);
  test.Press(VK_SPACE);
  test.ExpectTold({kCloseUp, kCancel}, kForeign);
  EXPECT_EQ(kForeign, test.picker->GetColour());
}

TEST(CColourPopup, AClickOnTheCustomCellAsksForAColour) {
  ColourPage test;
  test.Open(kRed);
  Popups popups;
  popups.ExpectDialog([](HWND dialog) { ChooseColour(dialog, RGB(1, 2, 3)); });
  test.ClickCell(kCustomCell);
  EXPECT_EQ((std::vector<UINT>{kChange, kCloseUp, kOk}), test.Told());
  EXPECT_EQ(RGB(1, 2, 3), test.picker->GetColour());
}

TEST(CColourPopup, WhatHappensWhileTheDialogIsOpenDoesNotEndIt) {
  ColourPage test;
  test.Open(kForeign);
  Popups popups;
  popups.ExpectDialog([&](HWND dialog) {
    const CWnd popup(test.Popup().Handle());
    for (const UINT message : {WM_CANCELMODE, WM_CLOSE, WM_LBUTTONUP}) popup.Send(message);
    popup.Send(WM_ACTIVATEAPP, FALSE);
    popup.Send(WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(popup.IsWindow());
    EXPECT_TRUE(test.Told().empty());
    ChooseColour(dialog, RGB(1, 2, 3));
  });
  test.Press(VK_RETURN);
  test.ExpectTold({kCloseUp, kOk}, RGB(1, 2, 3));
}

TEST(CColourPopup, PickerMayEndWhileTheDialogIsOpen) {
  ColourPage test;
  test.Open(kForeign);
  const HWND popup = test.Popup().Handle();
  Popups popups;
  popups.ExpectDialog([&](HWND dialog) {
    test.picker.reset();
    ChooseColour(dialog, RGB(1, 2, 3));
  });
  ::SendMessageW(popup, WM_KEYDOWN, VK_RETURN, 1);
  EXPECT_EQ(0, ColourPage::OpenPopups());
  EXPECT_TRUE(test.Told().empty());
}

TEST(CColourPopup, DialogBeginsWithBlackForNoColour) {
  ColourPage test;
  test.Open(kNoColour, L"");
  Popups popups;
  popups.ExpectDialog([](HWND dialog) {
    EXPECT_EQ(0u, ShownColour(dialog));
    DismissDialog(dialog);
  });
  test.Press(VK_RETURN);
  test.ExpectTold({kCloseUp, kCancel}, 0xFF000000);
}

DWORD dialogFlags = 0;
BOOL WINAPI NoteFlags(CHOOSECOLORW* dialog) {
  dialogFlags = dialog->Flags;
  return FALSE;
}

TEST(CColourPopup, DialogIsFullyOpenForAnyColour) {
  const FunctionPatch patch(L"comdlg32.dll", "ChooseColorW", reinterpret_cast<void*>(&NoteFlags));
  CustomColours custom;
  COLORREF colour = kRed;
  EXPECT_FALSE(AskForColour(nullptr, colour, custom));
  EXPECT_EQ(DWORD{CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR}, dialogFlags);
}

TEST(CColourPopup, DialogKeepsTheUsersOwnColours) {
  CustomColours custom;
  COLORREF colour = kRed;
  Popups popups;
  popups.ExpectDialog([](HWND dialog) {
    ::SetDlgItemInt(dialog, kGreenEdit, 77, FALSE);
    ::SendMessageW(dialog, WM_COMMAND, kAddButton, reinterpret_cast<LPARAM>(::GetDlgItem(dialog, kAddButton)));
    DismissDialog(dialog);
  });
  EXPECT_FALSE(AskForColour(nullptr, colour, custom));
  EXPECT_EQ(kRed, colour);
  EXPECT_EQ(1, std::count(custom.fields.begin(), custom.fields.end(), RGB(255, 77, 0)));
}

TEST(CColourPopup, FieldsForTheUsersOwnColoursAreWhiteAtFirst) {
  const CustomColours custom;
  for (const COLORREF field : custom.fields) EXPECT_EQ(RGB(255, 255, 255), field);
}

// --- Ends by itself -------------------------------------------------------------------------------------------------

struct Interruption {
  const char* what;
  void (*happens)(ColourPage&);
};

constexpr Interruption kInterruptions[] = {
    {"another program is activated", [](ColourPage& test) { test.Popup().Send(WM_ACTIVATEAPP, FALSE); }},
    {"another window is activated", [](ColourPage& test) { ::SetActiveWindow(test.page.Handle()); }},
    {"the mouse is taken", [](ColourPage& test) { ::SetCapture(test.page.Handle()); }},
    {"the mouse is let go", [](ColourPage&) { ::ReleaseCapture(); }},
    {"a box comes up", [](ColourPage& test) { test.Popup().Send(WM_CANCELMODE); }},
    {"Alt+F4", [](ColourPage& test) { test.Popup().Send(WM_CLOSE); }},
    {"the page is disabled", [](ColourPage& test) { ::EnableWindow(test.page.Handle(), FALSE); }},
    {"the picker is disabled", [](ColourPage& test) { ::EnableWindow(test.control.Handle(), FALSE); }},
    {"the page is hidden", [](ColourPage& test) { ::ShowWindow(test.page.Handle(), SW_HIDE); }},
    {"the picker is hidden", [](ColourPage& test) { ::ShowWindow(test.control.Handle(), SW_HIDE); }},
    {"its window is destroyed", [](ColourPage& test) { ::DestroyWindow(test.Popup().Handle()); }},
};

TEST(CColourPopup, EndsWhenItIsInterrupted) {
  for (const Interruption& interruption : kInterruptions) {
    ColourPage test;
    test.Open(kForeign);
    const HWND popup = test.Popup().Handle();
    test.Popup().Highlight(16);
    test.page.received.clear();
    interruption.happens(test);
    EXPECT_FALSE(::IsWindowVisible(popup)) << interruption.what;
    test.ExpectTold({kCloseUp, kCancel}, kForeign);
    RunPostedMessages();
    EXPECT_TRUE(test.IsOver()) << interruption.what;
    EXPECT_EQ(kForeign, test.picker->GetColour()) << interruption.what;
    EXPECT_FALSE(::IsWindow(popup)) << interruption.what;
    EXPECT_NE(popup, ::GetCapture()) << interruption.what;
  }
}

TEST(CColourPopup, OpensAgainAfterEachInterruption) {
  for (const Interruption& interruption : kInterruptions) {
    ColourPage test;
    test.Open(kForeign);
    interruption.happens(test);
    ::ReleaseCapture();
    for (const HWND window : {test.page.Handle(), test.control.Handle()}) {
      ::EnableWindow(window, TRUE);
      ::ShowWindow(window, SW_SHOW);
    }
    test.Open(kForeign);
    ASSERT_TRUE(test.picker->IsOpen()) << interruption.what;
    test.ClickCell(16);
    EXPECT_EQ(kRed, test.picker->GetColour()) << interruption.what;
  }
}

HWND WINAPI RefuseFocus(HWND) { return nullptr; }

// What a popup's window sees last of its object.
struct LastSight {
  std::weak_ptr<CColourPopup> popup;
  bool wasThere = false;

  static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto& sight = *reinterpret_cast<LastSight*>(data);
    if (message == WM_NCDESTROY) sight.wasThere = !sight.popup.expired();
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
};

// One that is active would have ended before, when its window was hidden.
TEST(CColourPopup, LivesAsLongAsItsWindowThatIsDestroyed) {
  ColourPage test;
  PatchImport("user32.dll", "SetFocus", reinterpret_cast<void*>(&RefuseFocus));
  test.Open(kForeign);
  RestoreImport("user32.dll", "SetFocus");
  LastSight sight{test.picker->Popup()};
  const HWND window = test.Popup().Handle();
  ::SetWindowSubclass(window, LastSight::Watch, 1, reinterpret_cast<DWORD_PTR>(&sight));
  ::DestroyWindow(window);
  EXPECT_TRUE(sight.wasThere);
  EXPECT_TRUE(sight.popup.expired()) << "and no longer";
  test.ExpectTold({kCloseUp, kCancel}, kForeign);
  EXPECT_TRUE(test.IsOver());
}

TEST(CColourPopup, EndsWithThePageAroundIt) {
  auto outer = std::make_unique<ControlDialog>();
  ControlDialog page(ControlDialog::Layout::LeftToRight, outer->Handle());
  page.Add(L"BUTTON", L"", BS_OWNERDRAW, kPickerId, {10, 10, 100, 30});
  CColourPicker picker;
  ASSERT_TRUE(picker.Attach(page, kPickerId));
  for (const bool hide : {true, false}) {
    picker.Open();
    ASSERT_TRUE(picker.IsOpen());
    if (hide)
      ::ShowWindow(page.Handle(), SW_HIDE);
    else
      ::EnableWindow(outer->Handle(), FALSE);
    EXPECT_FALSE(picker.IsOpen());
    ::ShowWindow(page.Handle(), SW_SHOW);
    ::EnableWindow(outer->Handle(), TRUE);
  }
  picker.Open();
  ASSERT_TRUE(picker.IsOpen());
  outer.reset();
  EXPECT_FALSE(picker.IsOpen());
  EXPECT_EQ(0, ColourPage::OpenPopups());
  EXPECT_EQ(nullptr, ::GetCapture());
}

TEST(CColourPopup, LeavesNothingBehind) {
  ColourPage test;
  test.Open(kRed);
  test.Press(VK_ESCAPE);
  test.page.received.clear();
  ::EnableWindow(test.page.Handle(), FALSE);
  ::EnableWindow(test.page.Handle(), TRUE);
  ::ShowWindow(test.page.Handle(), SW_HIDE);
  EXPECT_TRUE(test.Told().empty());
}

// --- Look -----------------------------------------------------------------------------------------------------------

TEST(CColourPopupLook, CellsHaveTheirColours) {
  ColourPage test;
  test.Open(kForeign);
  const Picture picture = Paint(test.Popup());
  for (int cell = 0; cell < kPaletteSize; ++cell) {
    const IntRect swatch = test.Popup().Layout().SwatchRect(cell);
    EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNSHADOW)), picture.At(swatch.left, swatch.top)) << cell;
    EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNSHADOW)), picture.At(swatch.right - 1, swatch.bottom - 1)) << cell;
    for (int y = swatch.top + 1; y < swatch.bottom - 1; ++y)
      for (int x = swatch.left + 1; x < swatch.right - 1; ++x)
        EXPECT_EQ(PixelOf(kPalette[cell].colour), picture.At(x, y)) << cell;
    EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNFACE)), picture.At(swatch.left - 1, swatch.top)) << cell;
  }
}

TEST(CColourPopupLook, HasARaisedEdge) {
  const SystemColorScope colors({{COLOR_3DDKSHADOW, RGB(10, 20, 30)}, {COLOR_3DLIGHT, RGB(200, 210, 220)}});
  ColourPage test;
  test.Open(kForeign);
  const Picture picture = Paint(test.Popup());
  EXPECT_EQ(PixelOf(RGB(10, 20, 30)), picture.At(picture.width - 1, picture.height / 2));
  EXPECT_EQ(PixelOf(RGB(10, 20, 30)), picture.At(picture.width / 2, picture.height - 1));
  EXPECT_EQ(PixelOf(RGB(200, 210, 220)), picture.At(0, picture.height / 2));
}

TEST(CColourPopupLook, ChosenIsSunkAndHighlightedRaised) {
  const SystemColorScope colors({{COLOR_BTNSHADOW, RGB(10, 20, 30)},
                                 {COLOR_BTNHIGHLIGHT, RGB(240, 241, 242)},
                                 {COLOR_HIGHLIGHT, RGB(1, 2, 200)}});
  ColourPage test;
  test.Open(kRed);
  test.Popup().Highlight(2);
  const Picture picture = Paint(test.Popup());
  const IntRect chosen = test.Popup().Layout().CellRect(16), highlighted = test.Popup().Layout().CellRect(2),
                plain = test.Popup().Layout().CellRect(20);
  EXPECT_EQ(PixelOf(RGB(10, 20, 30)), picture.At(chosen.left, chosen.top + 5));
  EXPECT_EQ(PixelOf(RGB(240, 241, 242)), picture.At(chosen.right - 1, chosen.top + 5));
  EXPECT_EQ(PixelOf(RGB(240, 241, 242)), picture.At(highlighted.left, highlighted.top + 5));
  EXPECT_EQ(PixelOf(RGB(10, 20, 30)), picture.At(highlighted.right - 1, highlighted.top + 5));
  EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNFACE)), picture.At(plain.left, plain.top + 5));
  EXPECT_EQ(PixelOf(RGB(1, 2, 200)), picture.At(highlighted.left + 1, highlighted.top + 5)) << "well to be seen";
  EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNFACE)), picture.At(chosen.left + 1, chosen.top + 5));
}

TEST(CColourPopupLook, ShowsTheFocusOnEachCell) {
  ColourPage test;
  test.Open(kNoColour);
  const ColourCells cells = test.Popup().Layout().Cells();
  for (int position = 1; position <= cells.Count(); ++position) {
    const int cell = cells.CellAtPosition(position);
    test.Popup().Highlight(cell);
    const IntRect rect = test.Popup().Layout().CellRect(cell);
    EXPECT_EQ(PixelOf(::GetSysColor(COLOR_HIGHLIGHT)), Paint(test.Popup()).At(rect.left + 1, rect.top + 8)) << cell;
  }
}

TEST(CColourPopupLook, TextsAreCentred) {
  const SystemColorScope colors({{COLOR_BTNTEXT, RGB(1, 2, 3)}});
  ColourPage test;
  test.Open(kRed, L"none", L"more & more");
  const TextSpy spy;
  const Picture picture = Paint(test.Popup());
  ASSERT_EQ(2u, spy.Drawn().size());
  const struct {
    int cell;
    const wchar_t* text;
  } rows[] = {{kDefaultCell, L"none"}, {kCustomCell, L"more & more"}};
  for (size_t i = 0; i < 2; ++i) {
    const TextSpy::Text& drawn = spy.Drawn()[i];
    EXPECT_EQ(rows[i].text, drawn.text);
    const IntRect rect = test.Popup().Layout().CellRect(rows[i].cell);
    EXPECT_EQ(rect, (IntRect{drawn.rect.left, drawn.rect.top, drawn.rect.right, drawn.rect.bottom}));
    EXPECT_EQ(static_cast<UINT>(DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX), drawn.format);
    EXPECT_GT(CountPixels(Cut(picture, drawn.rect), RGB(1, 2, 3)), 10);
  }
}

TEST(CColourPopupLook, TextsAreInTheFontOfMessages) {
  const LOGFONTW messages = FontOfMessages();
  for (const int dpi : {96, 192}) {
    const DpiScope scope(static_cast<UINT>(dpi));
    ColourPage test;
    test.Open(kRed);
    const TextSpy spy;
    Paint(test.Popup());
    ASSERT_EQ(2u, spy.Drawn().size());
    for (const TextSpy::Text& drawn : spy.Drawn()) {
      EXPECT_STREQ(messages.lfFaceName, drawn.font.lfFaceName);
      EXPECT_EQ(messages.lfHeight * dpi / 96, drawn.font.lfHeight);
      EXPECT_EQ(messages.lfWeight, drawn.font.lfWeight);
    }
  }
}

TEST(CColourPopupLook, IsMirrored) {
  ColourPage test(ControlDialog::Layout::RightToLeft);
  test.Open(kForeign);
  const Picture picture = Paint(test.Popup());
  const IntRect red = test.Popup().Layout().SwatchRect(16);
  EXPECT_EQ(PixelOf(kRed), picture.At(picture.width - 1 - (red.left + 4), red.top + 4));
}

std::vector<COLORREF> realized;
int WINAPI PaletteCaps(HDC dc, int index) {
  const int caps = RealFunction("gdi32.dll", "GetDeviceCaps", &PaletteCaps)(dc, index);
  return index == RASTERCAPS ? caps | RC_PALETTE : caps;
}
UINT WINAPI NoteRealized(HDC dc) {
  PALETTEENTRY entries[64];
  const auto palette = static_cast<HPALETTE>(::GetCurrentObject(dc, OBJ_PAL));
  const UINT count = ::GetPaletteEntries(palette, 0, 64, entries);
  realized.clear();
  for (UINT i = 0; i < count; ++i) realized.push_back(RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue));
  return 0;
}

TEST(CColourPopupLook, RealizesItsPaletteWhereThereIsOne) {
  ColourPage test;
  test.Open(kRed);
  PatchImport("gdi32.dll", "RealizePalette", reinterpret_cast<void*>(&NoteRealized));
  realized.clear();
  Paint(test.Popup());
  EXPECT_TRUE(realized.empty()) << "not on a display of true colours";
  PatchImport("gdi32.dll", "GetDeviceCaps", reinterpret_cast<void*>(&PaletteCaps));
  Paint(test.Popup());
  RestoreImport("gdi32.dll", "GetDeviceCaps");
  RestoreImport("gdi32.dll", "RealizePalette");
  std::vector<COLORREF> table;
  for (const PaletteRow& row : kPalette) table.push_back(row.colour);
  EXPECT_EQ(table, realized);
}

TEST(CColourPopupLook, RedrawsWhenThePaletteChangesElsewhere) {
  ColourPage test;
  test.Open(kRed);
  Paint(test.Popup());
  test.Popup().Send(WM_PALETTECHANGED, reinterpret_cast<WPARAM>(test.Popup().Handle()));
  EXPECT_FALSE(::GetUpdateRect(test.Popup().Handle(), nullptr, FALSE));
  test.Popup().Send(WM_PALETTECHANGED, reinterpret_cast<WPARAM>(test.page.Handle()));
  EXPECT_TRUE(::GetUpdateRect(test.Popup().Handle(), nullptr, FALSE));
}

// --- Screen readers -------------------------------------------------------------------------------------------------

TEST(CColourPopupAccess, SaysEachCell) {
  const ComScope com;
  ColourPage test;
  test.Open(kRed);
  const Accessible reader(test.Popup().Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(L"Color:", reader.Name(0)) << "as its picker";
  EXPECT_EQ(ROLE_SYSTEM_LIST, reader.Role(0));
  ASSERT_EQ(42, reader.Count());
  EXPECT_EQ(L"Automatic", reader.Name(1));
  EXPECT_EQ(L"Black", reader.Name(2));
  EXPECT_EQ(L"Grey-80%", reader.Name(9));
  EXPECT_EQ(L"White", reader.Name(41));
  EXPECT_EQ(L"More Colors...", reader.Name(42));
  for (int part = 1; part <= 42; ++part) {
    EXPECT_EQ(ROLE_SYSTEM_LISTITEM, reader.Role(part));
    EXPECT_EQ(L"Choose", reader.Action(part));
    EXPECT_TRUE(reader.State(part) & STATE_SYSTEM_FOCUSABLE) << part;
    EXPECT_EQ(part == 18, (reader.State(part) & STATE_SYSTEM_SELECTED) != 0) << part;
  }
  EXPECT_EQ(L"Red", reader.Name(18));
  EXPECT_EQ(18, reader.Selection());
}

TEST(CColourPopupAccess, FollowsTheKeyboard) {
  const ComScope com;
  ColourPage test;
  test.Open(kRed);
  const Accessible reader(test.Popup().Handle());
  EXPECT_EQ(18, reader.Focus());
  test.Press(VK_RIGHT);
  EXPECT_EQ(19, reader.Focus());
  EXPECT_TRUE(reader.State(19) & STATE_SYSTEM_FOCUSED);
  EXPECT_EQ(18, reader.Selection()) << "the chosen one is still the same";
  EXPECT_EQ(S_OK, reader->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(1)));
  EXPECT_EQ(kDefaultCell, test.Popup().HighlightedCell());
}

TEST(CColourPopupAccess, PlacesItsCells) {
  const ComScope com;
  ColourPage test;
  test.Open(kRed);
  const Accessible reader(test.Popup().Handle());
  const RECT window = test.Popup().WindowRect();
  const IntRect cell = test.Popup().Layout().CellRect(16);
  const RECT place = reader.Location(18);
  EXPECT_EQ(window.left + cell.left, place.left);
  EXPECT_EQ(window.top + cell.bottom, place.bottom);
  EXPECT_EQ(18, reader.HitTest({place.left + 1, place.top + 1}));
}

TEST(CColourPopupAccess, IsChosenFromByAReader) {
  const ComScope com;
  ColourPage test;
  test.Open(kForeign);
  const Accessible reader(test.Popup().Handle());
  EXPECT_EQ(S_OK, reader->accDoDefaultAction(Accessible::Part(18)));
  RunPostedMessages();
  EXPECT_EQ((std::vector<UINT>{kChange, kCloseUp, kOk}), test.Told());
  EXPECT_EQ(kRed, test.picker->GetColour());
  VARIANT role{};
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, reader->get_accRole(Accessible::Part(0), &role)) << "it is gone";
}

}  // namespace
