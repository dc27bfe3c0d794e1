#include "controls/CColourPicker.h"

#include <array>

#include "ColourPage.h"
#include "DriverLIB/MessageText.h"
#include "support/Accessible.h"
#include "support/MouseTrackings.h"

namespace {

constexpr UINT kChange = 2025, kDropDown = 2026, kCloseUp = 2027, kOk = 2028, kCancel = 2029;

TEST(CColourPicker, MessagesHaveTheirNumbers) {
  EXPECT_EQ(kChange, ColourSelChange);
  EXPECT_EQ(kDropDown, ColourDropDown);
  EXPECT_EQ(kCloseUp, ColourCloseUp);
  EXPECT_EQ(kOk, ColourSelEndOk);
  EXPECT_EQ(kCancel, ColourSelEndCancel);
  EXPECT_EQ(0x7ECu, ColourSelEndOk);
}

// --- Colour ---------------------------------------------------------------------------------------------------------

TEST(CColourPicker, HasNoColourAtFirst) {
  const CColourPicker picker;
  EXPECT_EQ(0xFF000000u, picker.GetColour());
  EXPECT_FALSE(picker.IsOpen());
}

TEST(CColourPicker, KeepsAColourWithoutAWindow) {
  CColourPicker picker;
  picker.SetColour(kForeign);
  EXPECT_EQ(kForeign, picker.GetColour());
}

TEST(CColourPicker, RedrawsWithANewColour) {
  ColourPage test;
  test.control.Redraw();
  test.picker->SetColour(kRed);
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
  EXPECT_EQ(kRed, test.picker->GetColour());
  EXPECT_TRUE(test.Told().empty()) << "only the user's doing is told";
}

TEST(CColourPicker, ExchangesItsColour) {
  ColourPage test;
  int32_t member = static_cast<int32_t>(kForeign);
  CDataExchange loading(test.page, false);
  ExchangeColour(loading, *test.picker, member);
  EXPECT_EQ(kForeign, test.picker->GetColour());
  test.picker->SetColour(kNoColour);
  CDataExchange saving(test.page, true);
  ExchangeColour(saving, *test.picker, member);
  EXPECT_EQ(0xFF000000u, static_cast<uint32_t>(member));

  test.picker->SetColour(kRed);
  CDataExchange failed(test.page, true);
  failed.Fail(1);
  ExchangeColour(failed, *test.picker, member);
  EXPECT_EQ(0xFF000000u, static_cast<uint32_t>(member)) << "steps behind a failed one do nothing";
}

// --- Size -----------------------------------------------------------------------------------------------------------

TEST(CColourPicker, TakesItsSize) {
  for (const int width : {150, 20}) {
    ColourPage test(ControlDialog::Layout::LeftToRight, width);
    const int side = std::max({5 * ::GetSystemMetrics(SM_CXEDGE), 5 * ::GetSystemMetrics(SM_CYEDGE),
                               ::GetSystemMetrics(SM_CXHTHUMB), ::GetSystemMetrics(SM_CYVTHUMB)});
    const int smallest = 2 * (side + ::GetSystemMetrics(SM_CXEDGE));
    const RECT rect = test.control.RectIn(test.page);
    EXPECT_EQ(70, rect.left);
    EXPECT_EQ(10, rect.top);
    EXPECT_EQ(std::max(width, smallest), rect.right - rect.left);
    EXPECT_EQ(side + 2 * ::GetSystemMetrics(SM_CYEDGE), rect.bottom - rect.top);
  }
}

TEST(CColourPicker, KeepsItsPlaceOnAMirroredPage) {
  ColourPage test(ControlDialog::Layout::RightToLeft, 20);
  EXPECT_EQ(70, test.control.RectIn(test.page).left) << "where lines begin";
}

TEST(CColourPicker, IsLargerAtAHigherDpi) {
  const ColourPage usual(ControlDialog::Layout::LeftToRight, 20);
  const RECT small = usual.control.ClientRect();
  const DpiScope dpi(192);
  const ColourPage test(ControlDialog::Layout::LeftToRight, 20);
  const RECT large = test.control.ClientRect();
  EXPECT_GT(large.bottom, small.bottom * 3 / 2);
  EXPECT_GT(large.right, small.right * 3 / 2);
}

TEST(CColourPicker, DrawsItselfWhateverTheTemplateSays) {
  ControlDialog page;
  const CWnd control = page.Add(L"BUTTON", L"", BS_PUSHBUTTON, kPickerId, {10, 10, 100, 30});
  CColourPicker picker;
  ASSERT_TRUE(picker.Attach(page, kPickerId));
  EXPECT_EQ(static_cast<DWORD>(BS_OWNERDRAW), control.Style() & BS_TYPEMASK);
}

// --- Opening and its messages ---------------------------------------------------------------------------------------

TEST(CColourPicker, OpensAtAClick) {
  ColourPage test;
  test.picker->SetColour(kRed);
  HWND capture = nullptr;
  bool open = false;
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message != kDropDown) return;
    capture = ::GetCapture();
    open = test.picker->IsOpen();
  };
  test.Click();
  ASSERT_TRUE(test.picker->Popup());
  test.ExpectTold({kDropDown}, kRed);
  EXPECT_TRUE(open);
  EXPECT_EQ(test.Popup().Handle(), capture) << "the popup is there when the parent hears of it";
  EXPECT_TRUE(::IsWindowVisible(test.Popup().Handle()));
  EXPECT_TRUE(test.page.Received(WM_COMMAND).empty()) << "the click itself is answered";
}

TEST(CColourPicker, ItsOtherCellsHaveTextsUnlessToldOtherwise) {
  const ComScope com;
  ColourPage test;
  test.Click();
  const Accessible cells(test.Popup().Handle());
  ASSERT_EQ(42, cells.Count());
  EXPECT_EQ(L"Automatic", cells.Name(1));
  EXPECT_EQ(L"More Colors...", cells.Name(42));
}

TEST(CColourPicker, OpensByKeys) {
  const struct {
    const char* key;
    UINT message;
    WPARAM value;
    bool opens;
  } rows[] = {{"F4", WM_KEYDOWN, VK_F4, true},        {"Alt+Down", WM_SYSKEYDOWN, VK_DOWN, true},
              {"Alt+Up", WM_SYSKEYDOWN, VK_UP, true}, {"Down", WM_KEYDOWN, VK_DOWN, false},
              {"A", WM_KEYDOWN, 'A', false},          {"Alt+A", WM_SYSKEYDOWN, 'A', false}};
  for (const auto& row : rows) {
    ColourPage test;
    test.control.Send(row.message, row.value, 1);
    EXPECT_EQ(row.opens, test.picker->IsOpen()) << row.key;
  }
  ColourPage test;
  test.control.Send(WM_KEYDOWN, VK_SPACE, 1);
  test.control.Send(WM_KEYUP, VK_SPACE, 1);
  EXPECT_TRUE(test.picker->IsOpen()) << "the space bar";
}

TEST(CColourPicker, OpensOnce) {
  ColourPage test;
  test.Click();
  test.picker->Open();
  EXPECT_EQ(1, ColourPage::OpenPopups());
  EXPECT_EQ(1u, test.page.Received(kDropDown).size());
}

BOOL WINAPI NoMemory() { throw std::bad_alloc(); }

TEST(CColourPicker, OpensAgainWhenAnOpeningHasFailed) {
  const std::pair<const char*, const char*> steps[] = {{"gdi32.dll", "GetTextExtentPoint32W"},  // without a window yet
                                                       {"comctl32.dll", "SetWindowSubclass"}};
  for (const auto& [library, function] : steps) {
    ColourPage test;
    ASSERT_GT(PatchImport(library, function, reinterpret_cast<void*>(&NoMemory)), 0);
    EXPECT_THROW(test.picker->Open(), std::bad_alloc);
    RestoreImport(library, function);
    EXPECT_TRUE(test.IsOver()) << function;
    EXPECT_TRUE(test.control.HasFocus()) << function;
    EXPECT_TRUE(test.Told().empty()) << function;
    test.picker->Open();
    EXPECT_TRUE(test.picker->IsOpen()) << function;
  }
}

TEST(CColourPicker, DoesNotOpenDisabledOrHidden) {
  ColourPage test;
  test.control.Enable(false);
  test.picker->Open();
  EXPECT_FALSE(test.picker->IsOpen());
  test.control.Enable(true);
  test.control.Show(false);
  test.picker->Open();
  EXPECT_FALSE(test.picker->IsOpen());
  test.control.Show(true);
  test.picker->Open();
  EXPECT_TRUE(test.picker->IsOpen());
}

TEST(CColourPicker, OpensAtTheSecondOfTwoQuickClicks) {
  ColourPage test;
  test.control.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  test.control.Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_TRUE(test.picker->IsOpen());
}

TEST(CColourPicker, PassesChoicesOn) {
  ColourPage test;
  test.Open(kForeign);
  test.ClickCell(16);
  EXPECT_EQ((std::vector<UINT>{kChange, kCloseUp, kOk}), test.Told());
  test.ExpectTold({kChange, kCloseUp, kOk}, kRed);
  EXPECT_EQ(kRed, test.picker->GetColour());
  EXPECT_TRUE(test.IsOver());
}

TEST(CColourPicker, HasItsColourWhenTheParentHears) {
  ColourPage test;
  test.Open(kForeign);
  const HWND popup = test.Popup().Handle();
  test.page.onMessage = [&](const WindowMessage& message) {
    if (message.message != kCloseUp && message.message != kOk) return;
    EXPECT_EQ(kRed, test.picker->GetColour());
    EXPECT_FALSE(test.picker->IsOpen());
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_TRUE(test.control.HasFocus());
    EXPECT_FALSE(::IsWindowVisible(popup)) << "nothing of it stands over what the parent may show";
  };
  test.ClickCell(16);
  EXPECT_EQ(1u, test.page.Received(kOk).size());
}

TEST(CColourPicker, PassesCancellingOn) {
  ColourPage test;
  test.Open(kForeign);
  test.Press(VK_DOWN);
  EXPECT_EQ(kForeign, test.picker->GetColour()) << "it tracks only when it is told to";
  test.page.received.clear();
  test.Press(VK_ESCAPE);
  test.ExpectTold({kCloseUp, kCancel}, kForeign);
  EXPECT_EQ(kForeign, test.picker->GetColour());
  EXPECT_TRUE(test.IsOver());
}

TEST(CColourPicker, TakesHighlightedColoursOnlyWhenItTracks) {
  for (const bool track : {false, true}) {
    ColourPage test;
    test.picker->SetTrackSelection(track);
    test.Open(kForeign);
    test.MoveTo(test.Inside(16));
    test.ExpectTold({kChange}, kRed);
    EXPECT_EQ(track ? kRed : kForeign, test.picker->GetColour());
    test.Press(VK_ESCAPE);
    EXPECT_EQ(kForeign, test.picker->GetColour()) << "given back";
  }
}

TEST(CColourPicker, TellsNobodyButItsParent) {
  ControlDialog outer;
  ControlDialog page(ControlDialog::Layout::LeftToRight, outer.Handle());
  page.Add(L"BUTTON", L"", BS_OWNERDRAW, kPickerId, {10, 10, 100, 30});
  CColourPicker picker;
  ASSERT_TRUE(picker.Attach(page, kPickerId));
  picker.Open();
  ASSERT_TRUE(picker.IsOpen());
  picker.Popup()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
  EXPECT_EQ(1u, page.Received(kDropDown).size());
  EXPECT_EQ(1u, page.Received(kCancel).size());
  for (const UINT number : {kDropDown, kCloseUp, kCancel}) EXPECT_TRUE(outer.Received(number).empty());
}

TEST(CColourPicker, HeldKeysOfThePopupDoNothingMore) {
  constexpr LPARAM kHeld = 1 | (LPARAM{KF_REPEAT} << 16);
  for (const WPARAM key : {VK_RETURN, VK_ESCAPE, VK_SPACE}) {
    ColourPage test;
    test.page.Add(L"BUTTON", L"OK", BS_DEFPUSHBUTTON, IDOK, {10, 40, 60, 60});
    test.Open(kRed);
    test.Press(key);
    EXPECT_TRUE(test.control.HasFocus());
    test.page.received.clear();
    MSG held{test.control.Handle(), WM_KEYDOWN, key, kHeld, 0, {}};
    EXPECT_TRUE(::IsDialogMessageW(test.page.Handle(), &held));
    test.control.Send(WM_KEYUP, key, kHeld);
    EXPECT_TRUE(test.page.Received(WM_COMMAND).empty()) << key;
    EXPECT_FALSE(test.picker->IsOpen()) << key;
    EXPECT_FALSE(test.control.Send(WM_GETDLGCODE) & DLGC_WANTMESSAGE) << "a fresh key is the dialog's";
  }
}

// --- Death ----------------------------------------------------------------------------------------------------------

// What the user does, up to the message in which the parent ends the picker.
void DoUntil(const ColourPage& test, HWND control, UINT message) {
  ::SendMessageW(control, BM_CLICK, 0, 0);
  if (message == kDropDown) return;
  HWND popup = nullptr;
  if (test.picker) popup = test.picker->Popup()->Handle();
  ::SendMessageW(popup, WM_KEYDOWN, VK_DOWN, 1);
  if (message != kChange) ::SendMessageW(popup, WM_KEYDOWN, message == kCancel ? VK_ESCAPE : VK_RETURN, 1);
}

TEST(CColourPicker, ItsControlMayEndInEachMessage) {
  for (const UINT number : {kChange, kDropDown, kCloseUp, kOk, kCancel}) {
    ColourPage test;
    test.picker->SetColour(kRed);
    test.page.onMessage = [&](const WindowMessage& message) {
      if (message.message == number) ::DestroyWindow(test.control.Handle());
    };
    DoUntil(test, test.control.Handle(), number);
    EXPECT_EQ(nullptr, test.picker->Handle()) << number;
    EXPECT_TRUE(test.IsOver()) << number;
    EXPECT_EQ(nullptr, ::GetCapture()) << number;
    // A control that is destroyed is hidden first, which ends an open popup.
    const bool wasOpen = number == kChange || number == kDropDown;
    EXPECT_EQ(wasOpen ? kCancel : number, test.Told().back());
    EXPECT_EQ(wasOpen ? 1u : number == kCancel ? 1u : 0u, test.page.Received(kCancel).size());
  }
}

TEST(CColourPicker, ItsObjectMayEndInEachMessage) {
  for (const UINT number : {kChange, kDropDown, kCloseUp, kOk, kCancel}) {
    ColourPage test;
    test.picker.reset();
    alignas(CColourPicker) std::array<unsigned char, sizeof(CColourPicker)> memory;
    auto* picker = new (memory.data()) CColourPicker();
    ASSERT_TRUE(picker->Attach(test.page, kPickerId));
    bool ended = false;
    test.page.onMessage = [&](const WindowMessage& message) {
      if (message.message != number || ended) return;
      ended = true;
      picker->~CColourPicker();
      memory.fill(0xCC);
    };
    test.control.Send(BM_CLICK);
    if (number != kDropDown) {
      const HWND popup = picker->Popup()->Handle();
      ::SendMessageW(popup, WM_KEYDOWN, VK_DOWN, 1);
      if (number != kChange) ::SendMessageW(popup, WM_KEYDOWN, number == kCancel ? VK_ESCAPE : VK_RETURN, 1);
    }
    EXPECT_TRUE(ended) << number;
    EXPECT_EQ(static_cast<std::ptrdiff_t>(memory.size()), std::count(memory.begin(), memory.end(), 0xCC)) << number;
    EXPECT_EQ(0, ColourPage::OpenPopups()) << number;
    EXPECT_EQ(nullptr, ::GetCapture()) << number;
    if (!ended) picker->~CColourPicker();
  }
}

TEST(CColourPicker, ItsPageMayEndWhileThePopupIsOpen) {
  auto test = std::make_unique<ColourPage>();
  test->Click();
  ASSERT_EQ(1, ColourPage::OpenPopups());
  test->page.Destroy();
  EXPECT_TRUE(test->IsOver());
  EXPECT_EQ(nullptr, ::GetCapture());
  EXPECT_EQ(nullptr, test->picker->Handle());
}

TEST(CColourPicker, MayEndWhileThePopupIsOpen) {
  ColourPage test;
  test.Click();
  test.page.received.clear();
  test.picker.reset();
  EXPECT_EQ(0, ColourPage::OpenPopups());
  EXPECT_EQ(nullptr, ::GetCapture());
  EXPECT_TRUE(test.control.HasFocus());
  EXPECT_TRUE(test.Told().empty());
}

TEST(CColourPicker, ClosesThePopupOfAControlThatItLeaves) {
  ColourPage test;
  test.page.Add(L"BUTTON", L"", BS_OWNERDRAW, 5, {70, 60, 170, 80});
  test.Open(kRed);
  ASSERT_TRUE(test.picker->Attach(test.page, 5));
  EXPECT_TRUE(test.IsOver());
  test.picker->Open();
  test.page.received.clear();
  test.Press(VK_ESCAPE);
  ASSERT_EQ(1u, test.page.Received(kCancel).size());
  EXPECT_EQ(5, test.page.Received(kCancel)[0].lParam);
}

// --- Look -----------------------------------------------------------------------------------------------------------

// Where the parts lie, by the same arithmetic.
PickerParts PartsOf(const CWnd& control, bool arrow = true) {
  const RECT client = control.ClientRect();
  const PickerMeasures measures{::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE),
                                ::GetSystemMetrics(SM_CXHTHUMB), ::GetSystemMetrics(SM_CYVTHUMB)};
  return LayOutPicker(measures, {0, 0, client.right, client.bottom}, arrow);
}

uint32_t MiddleOf(const Picture& picture, const IntRect& rect) {
  return picture.At((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

Picture TextPart(const CWnd& control) {
  const IntRect text = PartsOf(control).text;
  return Cut(Paint(control), {text.left, text.top, text.right, text.bottom});
}

TEST(CColourPickerLook, SwatchHasTheColour) {
  ColourPage test;
  const IntRect swatch = PartsOf(test.control).swatch;
  EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNFACE)), MiddleOf(Paint(test.control), swatch)) << "no colour";
  for (const COLORREF colour : {kRed, kForeign, COLORREF{0}, COLORREF{0xFFFFFF}}) {
    test.picker->SetColour(colour);
    const Picture picture = Paint(test.control);
    EXPECT_EQ(PixelOf(colour), MiddleOf(picture, swatch));
    EXPECT_EQ(PixelOf(colour), picture.At(swatch.left + 1, swatch.top + 1));
    EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNTEXT)), picture.At(swatch.left, swatch.top)) << "framed";
  }
  test.picker->SetDefaultColour(kForeign);
  test.picker->SetColour(kNoColour);
  EXPECT_EQ(PixelOf(kForeign), MiddleOf(Paint(test.control), swatch));
}

TEST(CColourPickerLook, SwatchOfNoColourFollowsTheSystem) {
  ColourPage test;
  const SystemColorScope colors({{COLOR_BTNFACE, RGB(1, 20, 30)}});
  EXPECT_EQ(PixelOf(RGB(1, 20, 30)), MiddleOf(Paint(test.control), PartsOf(test.control).swatch));
}

TEST(CColourPickerLook, ArrowHasTheColourOfText) {
  const SystemColorScope colors({{COLOR_BTNTEXT, RGB(1, 2, 3)}, {COLOR_GRAYTEXT, RGB(111, 112, 113)}});
  ColourPage test;
  const IntRect arrow = PartsOf(test.control).arrow;
  EXPECT_EQ(PixelOf(RGB(1, 2, 3)), MiddleOf(Paint(test.control), arrow));
  test.control.Enable(false);
  EXPECT_EQ(PixelOf(RGB(111, 112, 113)), MiddleOf(Paint(test.control), arrow));
  test.control.Enable(true);
  test.picker->SetStyle(true, false, true);
  EXPECT_EQ(PixelOf(::GetSysColor(COLOR_BTNFACE)), MiddleOf(Paint(test.control), arrow));
}

TEST(CColourPickerLook, LabelIsTheDefaultTextOrTheParts) {
  const struct {
    const wchar_t* defaultText;
    COLORREF colour;
    bool colourText;
    const wchar_t* label;
  } rows[] = {{L"Automatic", kNoColour, true, L"Automatic"},
              {L"do not use", kNoColour, true, L"do not use"},
              {L"do not use", kNoColour, false, L"do not use"},
              {L"", kNoColour, true, L""},
              {L"Automatic", 0x123456, true, L"R:86 G:52 B:18"},
              {L"Automatic", kRed, true, L"R:255 G:0 B:0"},
              {L"Automatic", kRed, false, L""}};
  for (const auto& row : rows) {
    ColourPage test;
    test.picker->SetDefaultText(row.defaultText);
    test.picker->SetColour(row.colour);
    test.picker->SetStyle(true, true, row.colourText);
    const TextSpy spy;
    const Picture text = TextPart(test.control);
    ASSERT_EQ(1u, spy.Drawn().size());
    EXPECT_EQ(row.label, spy.Drawn()[0].text);
    const RECT inked = Inked(text, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(*row.label != 0, inked.right > 20) << "and it is there";
  }
}

TEST(CColourPickerLook, ShowsTheColourAsTextUnlessToldOtherwise) {
  ColourPage test;
  test.picker->SetColour(kRed);
  const TextSpy spy;
  TextPart(test.control);
  ASSERT_EQ(1u, spy.Drawn().size());
  EXPECT_EQ(L"R:255 G:0 B:0", spy.Drawn()[0].text);
}

TEST(CColourPickerLook, GreyWhenDisabled) {
  const SystemColorScope colors({{COLOR_BTNTEXT, RGB(1, 2, 3)}, {COLOR_GRAYTEXT, RGB(111, 112, 113)}});
  ColourPage test;
  EXPECT_GT(CountPixels(TextPart(test.control), RGB(1, 2, 3)), 0);
  test.control.Enable(false);
  EXPECT_GT(CountPixels(TextPart(test.control), RGB(111, 112, 113)), 0);
  EXPECT_EQ(0, CountPixels(TextPart(test.control), RGB(1, 2, 3)));
}

TEST(CColourPickerLook, FollowsTheMouse) {
  ColourPage test;
  const Picture quiet = Paint(test.control);
  test.control.Redraw();
  test.control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
  EXPECT_NE(quiet.pixels, Paint(test.control).pixels);
  test.control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
  EXPECT_FALSE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE)) << "only the first move changes it";
  test.control.Send(WM_MOUSELEAVE);
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
  EXPECT_EQ(quiet.pixels, Paint(test.control).pixels);
}

TEST(CColourPickerLook, AsksToHearWhenTheMouseLeaves) {
  ColourPage test;
  const MouseTrackings trackings("comctl32.dll", "_TrackMouseEvent");
  for (const size_t times : {1u, 2u}) {
    test.control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    test.control.Send(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    EXPECT_EQ(std::vector<HWND>(times, test.control.Handle()), trackings.Askers()) << "once for each stay";
    test.control.Send(WM_MOUSELEAVE);
  }
}

TEST(CColourPickerLook, IsPressedWhileOpen) {
  ColourPage test;
  const Picture closed = Paint(test.control);
  test.picker->Open();
  EXPECT_NE(closed.pixels, Paint(test.control).pixels);
  test.Press(VK_ESCAPE);
  EXPECT_EQ(closed.pixels, Paint(test.control).pixels);
}

TEST(CColourPickerLook, IsAFrameOfTheSystemWhenNotFlat) {
  ColourPage test;
  const Picture flat = Paint(test.control);
  test.picker->SetStyle(false, true, true);
  EXPECT_NE(flat.pixels, Paint(test.control).pixels);
}

TEST(CColourPickerLook, ShowsTheFocus) {
  ColourPage test;
  const CWnd other = test.page.Add(L"BUTTON", L"", 0, 100, {10, 60, 60, 80});
  ShowKeyboardCues(test.control, true);
  test.control.Focus();
  const Picture focused = Paint(test.control);
  other.Focus();
  const Picture left = Paint(test.control);
  EXPECT_NE(focused.pixels, left.pixels);
  const int edge = ::GetSystemMetrics(SM_CXEDGE);
  const RECT client = test.control.ClientRect();
  int differing = 0;
  for (int x = edge; x < client.right - edge; ++x) differing += focused.At(x, edge) != left.At(x, edge);
  EXPECT_GT(differing, (client.right - 2 * edge) / 3) << "a dotted line inside the edge";
}

TEST(CColourPickerLook, IsMirrored) {
  ColourPage test(ControlDialog::Layout::RightToLeft);
  test.picker->SetColour(kRed);
  const Picture picture = Paint(test.control);
  const IntRect swatch = PartsOf(test.control).swatch;
  EXPECT_EQ(PixelOf(kRed), picture.At(picture.width - 1 - (swatch.left + swatch.right) / 2, 10));
}

TEST(CColourPickerLook, SystemColorsAreFollowed) {
  const SystemColorScope colors({{COLOR_BTNFACE, RGB(0, 0, 0)}, {COLOR_BTNTEXT, RGB(255, 255, 0)}});
  ColourPage test;
  const Picture picture = TextPart(test.control);
  EXPECT_GT(CountPixels(picture, RGB(0, 0, 0)), picture.width * picture.height / 2);
  EXPECT_GT(CountPixels(picture, RGB(255, 255, 0)), 0);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

TEST(CColourPickerAccess, TellsItsColour) {
  const ComScope com;
  ColourPage test;
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(L"Color:", reader.Name(0)) << "its label";
  EXPECT_EQ(ROLE_SYSTEM_BUTTONDROPDOWNGRID, reader.Role(0));
  EXPECT_EQ(L"Open", reader.Action(0));
  EXPECT_EQ(L"Automatic", reader.Value(0));
  test.picker->SetDefaultText(L"");
  EXPECT_EQ(L"No Color", reader.Value(0));
  const struct {
    COLORREF colour;
    const wchar_t* value;
  } rows[] = {{0x0099FF, L"Light Orange"},
              {0x123456, L"User-defined (R: 86, G: 52, B: 18)"},
              {0x333333, L"Grey-80%"},
              {0x999999, L"Grey-40%"}};
  for (const auto& row : rows) {
    test.picker->SetColour(row.colour);
    EXPECT_EQ(row.value, reader.Value(0));
  }
  test.control.SetText(L"&Frame colour");
  EXPECT_EQ(L"Frame colour", reader.Name(0)) << "its own text";
}

TEST(CColourPickerAccess, TellsItsState) {
  const ComScope com;
  ColourPage test;
  const Accessible reader(test.control.Handle());
  EXPECT_TRUE(reader.State(0) & STATE_SYSTEM_HASPOPUP);
  EXPECT_TRUE(reader.State(0) & STATE_SYSTEM_COLLAPSED);
  EXPECT_TRUE(reader.State(0) & STATE_SYSTEM_FOCUSED);
  test.picker->Open();
  EXPECT_TRUE(reader.State(0) & STATE_SYSTEM_EXPANDED);
  EXPECT_FALSE(reader.State(0) & STATE_SYSTEM_COLLAPSED);
}

TEST(CColourPickerAccess, IsOpenedByAReader) {
  const ComScope com;
  ColourPage test;
  const Accessible reader(test.control.Handle());
  EXPECT_EQ(S_OK, reader->accDoDefaultAction(Accessible::Part(0)));
  EXPECT_FALSE(test.picker->IsOpen()) << "the reader does not wait for it";
  RunPostedMessages();
  EXPECT_TRUE(test.picker->IsOpen());
}

// --- Texts ----------------------------------------------------------------------------------------------------------

TEST(ColourTexts, EachColourHasItsNameInEachLanguage) {
  const uint16_t before = GetUILanguage();
  for (const uint16_t language : {uint16_t{0x407}, uint16_t{0x409}, uint16_t{0x40C}, uint16_t{0x401}}) {
    SetUILanguage(language);
    std::map<std::wstring, int> names;
    for (const PaletteRow& row : kPalette) ++names[ColourName(row.colour).Text()];
    EXPECT_EQ(40u, names.size()) << "no two are the same in " << language;
    EXPECT_FALSE(names.contains(L""));
    const std::wstring parts = ColourName(0x123456).Text();
    for (const wchar_t* number : {L"86", L"52", L"18"}) EXPECT_NE(std::wstring::npos, parts.find(number)) << language;
    EXPECT_EQ(L"R:86 G:52 B:18", ColourParts(0x123456)) << "the same everywhere";
  }
  SetUILanguage(before);
}

}  // namespace
