// How squares and the link of the cockpit are drawn, how a keyboard and a screen reader meet them, and how the whole
// page looks in every language with all rows marked.
#include "CockpitTest.h"

#include "controls/ControlDialog.h"
#include "driver/DialogAudit.h"
#include "driver/Text.h"
#include "support/Accessible.h"

namespace cockpit_test {
namespace {

constexpr COLORREF kBlue = 0xFF0000, kFrame = 0x3C3C3C;

class CockpitLook : public CockpitTest {
 protected:
  CockpitLook() { settings_.values.graphic.jpegQuality = 60; }
};

void ExpectFrame(const Picture& picture, COLORREF color) {
  for (int x = 0; x < picture.width; ++x) {
    ASSERT_EQ(PixelOf(color), picture.At(x, 0)) << x;
    ASSERT_EQ(PixelOf(color), picture.At(x, picture.height - 1)) << x;
  }
  for (int y = 0; y < picture.height; ++y) {
    ASSERT_EQ(PixelOf(color), picture.At(0, y)) << y;
    ASSERT_EQ(PixelOf(color), picture.At(picture.width - 1, y)) << y;
  }
}

// The one colour within the frame; fails when there is more than one.
uint32_t Inside(const Picture& picture) {
  for (int y = 1; y < picture.height - 1; ++y)
    for (int x = 1; x < picture.width - 1; ++x) EXPECT_EQ(picture.At(1, 1), picture.At(x, y)) << x << ", " << y;
  return picture.At(1, 1);
}

TEST_F(CockpitLook, SquaresAreSquare) {
  Open();
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    const RECT client = Square(category).ClientRect();
    EXPECT_EQ(client.right, client.bottom) << category;
  }
}

TEST_F(CockpitLook, AMarkedSquareIsBlueAndAnotherHasTheColorOfWindows) {
  const SystemColorScope colors({{COLOR_WINDOW, RGB(250, 240, 230)}});
  Open();
  const Picture marked = Paint(Square(1)), empty = Paint(Square(2));
  ExpectFrame(marked, kFrame);
  ExpectFrame(empty, kFrame);
  EXPECT_EQ(PixelOf(kBlue), Inside(marked));
  EXPECT_EQ(PixelOf(RGB(250, 240, 230)), Inside(empty));
}

TEST_F(CockpitLook, ASquareIsDrawnAnewWhenItsRowChanges) {
  Open();
  Paint(Square(1));
  settings_.values.graphic.jpegQuality = 85;
  Refresh();
  Square(1).Redraw();
  EXPECT_NE(PixelOf(kBlue), Inside(Capture(Square(1).Handle())));
}

TEST_F(CockpitLook, ASquareAnswersARequestToDrawItself) {
  Open();
  const CCockpitDiff& square = Square(1);
  const RECT client = square.ClientRect();
  const HDC screen = GetDC(nullptr);
  const HDC dc = CreateCompatibleDC(screen);
  const GdiBitmap bitmap(CreateCompatibleBitmap(screen, client.right, client.bottom));
  {
    const SelectScope scope(dc, bitmap.Get());
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = static_cast<UINT>(square.Id());
    item.hwndItem = square.Handle();
    item.hDC = dc;
    item.rcItem = client;
    EXPECT_EQ(TRUE, page_.Send(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(kFrame, GetPixel(dc, 0, 0));
    EXPECT_EQ(kBlue, GetPixel(dc, client.right / 2, client.bottom / 2));
  }
  DeleteDC(dc);
  ReleaseDC(nullptr, screen);
}

TEST_F(CockpitLook, TheFocusShowsWithinTheSquare) {
  Open();
  for (const int category : {1, 2}) {
    const CCockpitDiff& square = Square(category);
    ShowKeyboardCues(square, true);
    square.Focus();
    const Picture picture = Paint(square);
    ExpectFrame(picture, kFrame);
    const COLORREF ground = category == 1 ? kBlue : GetSysColor(COLOR_WINDOW);
    const RECT dots = Inked(Cut(picture, {1, 1, picture.width - 1, picture.height - 1}), ground);
    EXPECT_EQ(1, dots.left);
    EXPECT_EQ(1, dots.top);
    EXPECT_EQ(picture.width - 3, dots.right);
    EXPECT_EQ(picture.height - 3, dots.bottom);
    ShowKeyboardCues(square, false);
    Inside(Paint(square));
  }
}

TEST_F(CockpitLook, InHighContrastTheColorsAreTheSystems) {
  const SystemColorScope colors(
      {{COLOR_WINDOW, RGB(1, 2, 3)}, {COLOR_HIGHLIGHT, RGB(4, 5, 6)}, {COLOR_WINDOWTEXT, RGB(250, 251, 252)}});
  const HighContrastScope contrast;
  Open();
  const Picture marked = Paint(Square(1)), empty = Paint(Square(2));
  ExpectFrame(marked, RGB(250, 251, 252));
  EXPECT_EQ(PixelOf(RGB(4, 5, 6)), Inside(marked));
  EXPECT_EQ(PixelOf(RGB(1, 2, 3)), Inside(empty));
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

TEST_F(CockpitLook, TabGoesThroughTheLinkAndAllRows) {
  Open();
  std::vector<int> expected{1444};
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    expected.push_back(SquareId(category));
    expected.push_back(LinkId(category));
  }
  std::vector<int> stops;
  HWND stop = nullptr;
  for (size_t i = 0; i < expected.size(); ++i) {
    stop = GetNextDlgTabItem(page_.Handle(), stop, FALSE);
    stops.push_back(GetDlgCtrlID(stop));
  }
  EXPECT_EQ(expected, stops);
}

TEST_F(CockpitLook, EnterOnASquareOrLinkLeadsToItsPage) {
  Open();
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    for (const int id : {SquareId(category), LinkId(category)}) {
      const CWnd control = Item(id);
      MSG key{control.Handle(), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
      EXPECT_TRUE(control.Send(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&key)) & DLGC_WANTMESSAGE) << id;
      sheet_.activatedPage = 0;
      control.Send(WM_KEYDOWN, VK_RETURN, 1);
      EXPECT_EQ(kRows[category - 1].pageId, sheet_.activatedPage) << id;
      sheet_.activatedPage = 0;
      control.Send(WM_KEYDOWN, VK_RETURN, 0x40000001);
      EXPECT_EQ(0, sheet_.activatedPage) << "a held key counts once";
    }
  }
}

TEST_F(CockpitLook, SpaceOnASquareOrLinkLeadsToItsPage) {
  Open();
  for (const int id : {SquareId(5), LinkId(5)}) {
    sheet_.activatedPage = 0;
    const CWnd control = Item(id);
    control.Focus();
    control.Send(WM_KEYDOWN, VK_SPACE, 1);
    control.Send(WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(101, sheet_.activatedPage) << id;
  }
}

// A dialog gives and takes the look of its default button to and from what it holds for a push button; a button that
// draws itself would lose its style by that.
TEST_F(CockpitLook, NoDialogTakesASquareForItsDefaultButton) {
  Open();
  for (const int id : {SquareId(1), 1444}) {
    EXPECT_EQ(DLGC_BUTTON, Item(id).Send(WM_GETDLGCODE)) << id;
    MSG key{Item(id).Handle(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(DLGC_BUTTON, Item(id).Send(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&key))) << id;
  }
}

// --- Screen readers -------------------------------------------------------------------------------------------------

TEST_F(CockpitLook, AScreenReaderHearsHowEachRowStands) {
  settings_.values.paper.paperSize = 8;
  settings_.values.paper.border = 1;
  Open();
  const ComScope com;
  for (int category = 1; category <= kCockpitCategoryCount; ++category) {
    const std::wstring link = kRows[category - 1].caption;
    const Accessible square(Item(SquareId(category)).Handle());
    ASSERT_TRUE(square) << category;
    EXPECT_EQ(category == 1   ? link + L", changed: PDF size"
              : category == 2 ? link + L", changed: Page size, Margins"
                              : link + L", default settings",
              square.Name(CHILDID_SELF));
    EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, square.Role(CHILDID_SELF));
    EXPECT_EQ(L"Follow", square.Action(CHILDID_SELF));
    const Accessible linkObject(Item(LinkId(category)).Handle());
    ASSERT_TRUE(linkObject);
    EXPECT_EQ(link, linkObject.Name(CHILDID_SELF));
    EXPECT_EQ(ROLE_SYSTEM_LINK, linkObject.Role(CHILDID_SELF));
  }
  const Accessible restore(Item(1444).Handle());
  ASSERT_TRUE(restore);
  EXPECT_EQ(L"Restore defaults", restore.Name(CHILDID_SELF));
  EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, restore.Role(CHILDID_SELF));
  EXPECT_EQ(L"Press", restore.Action(CHILDID_SELF));
}

TEST_F(CockpitLook, AScreenReaderCanFollowASquare) {
  Open();
  const ComScope com;
  const Accessible square(Item(SquareId(6)).Handle());
  ASSERT_EQ(S_OK, square->accDoDefaultAction(Accessible::Part(CHILDID_SELF)));
  RunPostedMessages();
  EXPECT_EQ(113, sheet_.activatedPage);
}

TEST_F(CockpitLook, AScreenReaderIsToldThatARowHasChanged) {
  Open();
  static std::vector<HWND> told;
  told.clear();
  const auto listen = [](HWINEVENTHOOK, DWORD, HWND window, LONG, LONG, DWORD, DWORD) { told.push_back(window); };
  const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_NAMECHANGE, nullptr, +listen,
                                             GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
  ASSERT_NE(nullptr, hook);
  settings_.values.fonts.fontsEmbedded = 0;
  Refresh();
  RunPostedMessages();
  UnhookWinEvent(hook);
  EXPECT_EQ(1, std::count(told.begin(), told.end(), Item(SquareId(4)).Handle()));
  EXPECT_EQ(0, std::count(told.begin(), told.end(), Item(SquareId(1)).Handle())) << "it stands as before";
}

// --- All marked, in all languages -----------------------------------------------------------------------------------

struct Language {
  uint16_t id;
  const wchar_t* firstRow;
  const wchar_t* firstText;
  const wchar_t* spoken;
  const wchar_t* restore;
};

constexpr Language kLanguages[] = {
    {0x0409, L"Graphical Optimization", L"(PDF size)", L"Graphical Optimization, changed: PDF size",
     L"Restore defaults"},
    {0x0407, L"Grafikoptimierung", L"(PDF-Größe)", L"Grafikoptimierung, geändert: PDF-Größe",
     L"Standard wiederherstellen"},
    {0x040C, L"Optimisation graphique", L"(Taille du PDF)", L"Optimisation graphique, modifié\u00A0: Taille du PDF",
     L"Rétablir les valeurs par défaut"},
    {0x0401, L"تحسين الرسومات", L"(حجم PDF)", L"تحسين الرسومات، تم تغيير: حجم PDF", L"استعادة الافتراضيات"},
};

TEST_F(CockpitLook, SpeaksEveryLanguage) {
  const ComScope com;
  for (const Language& language : kLanguages) {
    const LanguageScope scope(language.id);
    CNemUICockpitPage page(&sheet_, kCockpit, 0);
    Open(page);
    const CWnd dialog(page.Handle());
    EXPECT_EQ(dialog.Item(LinkId(1)).Text(), language.firstRow);
    EXPECT_EQ(dialog.Item(TextId(1)).Text(), language.firstText);
    EXPECT_EQ(language.spoken, Accessible(dialog.Item(SquareId(1)).Handle()).Name(CHILDID_SELF));
    EXPECT_EQ(dialog.Item(1444).Text(), language.restore);
  }
}

TEST_F(CockpitLook, IsSoundWithAllRowsMarkedInEveryLanguage) {
  ChangeAll();
  for (const Language& language : kLanguages) {
    const LanguageScope scope(language.id);
    CNemUICockpitPage page(&sheet_, kCockpit, 0);
    Open(page);
    EXPECT_EQ(Findings(), AuditPage(page.Handle(), {.mirrored = language.id == 0x0401, .size = {275, 257}}))
        << language.id;
  }
}

// The dialog audit lets a drawn button pass: its caption is measured here.
TEST_F(CockpitLook, TheRestoreLinkHasRoomInEveryLanguage) {
  for (const Language& language : kLanguages) {
    const LanguageScope scope(language.id);
    CNemUICockpitPage page(&sheet_, kCockpit, 0);
    Open(page);
    const CWnd link = CWnd(page.Handle()).Item(1444);
    const WindowDC dc(link.Handle());
    const SelectScope font(dc, link.Font());
    RECT needed{};
    DrawTextW(dc, language.restore, -1, &needed, DT_SINGLELINE | DT_CALCRECT);
    EXPECT_LE(needed.right, link.ClientRect().right) << language.id;
    EXPECT_LE(needed.bottom, link.ClientRect().bottom) << language.id;
  }
}

}  // namespace
}  // namespace cockpit_test
