// The dialog audit on trial: a sound page gives no finding, each flaw gives its own.
#include <windows.h>
// behind windows.h
#include <commctrl.h>
#include <gtest/gtest.h>
#include <oleacc.h>

#include "driver/DialogAudit.h"
#include "driver/DialogTemplate.h"

namespace {

constexpr DWORD kPageStyle = WS_POPUP | DS_CONTROL;
constexpr SIZE kPageSize = {200, 100};
constexpr DWORD kStop = WS_TABSTOP;

DialogTemplate EmptyPage(DWORD extendedStyle = 0) { return DialogTemplate(kPageStyle, kPageSize, L"", extendedStyle); }

DialogTemplate SoundPage() {
  DialogTemplate page = EmptyPage();
  page.Add(L"Button", 1, At(7, 7, 186, 60), L"&Group", BS_GROUPBOX);
  page.Add(L"Static", 2, At(14, 21, 40, 8), L"&Name:");
  page.Add(L"Edit", 3, At(60, 18, 60, 14), L"", WS_BORDER | kStop | ES_AUTOHSCROLL);
  page.Add(L"Button", 4, At(14, 36, 60, 10), L"&Check && go", BS_AUTOCHECKBOX | kStop);
  page.Add(L"Edit", 5, At(80, 34, 60, 14), L"", WS_BORDER | kStop | ES_AUTOHSCROLL);
  page.Add(L"Static", 6, At(14, 52, 40, 8), L"&Kind:");
  page.Add(L"ComboBox", 7, At(60, 50, 80, 60), L"", CBS_DROPDOWNLIST | WS_VSCROLL | kStop);
  page.Add(L"Button", 8, At(7, 75, 50, 14), L"&Press", kStop);
  page.Add(L"Static", 9, At(70, 71, 100, 16), L"A text that goes on in a second line");
  page.Add(L"Static", 10, At(70, 71, 100, 16), L"Hidden text over another", DialogTemplate::kHidden);
  return page;
}

class DriverAudit : public testing::Test {
 protected:
  DriverAudit() {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
  }
  ~DriverAudit() override { Close(); }

  HWND Open(const DialogTemplate& dialog) {
    Close();
    page_ = CreateDialogIndirectParamW(
        nullptr, dialog.Get(), nullptr, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    return page_;
  }
  void Close() {
    if (page_) DestroyWindow(page_);
    page_ = nullptr;
  }
  Findings Audit(const DialogTemplate& dialog, const AuditOptions& options = {}) {
    return AuditPage(Open(dialog), options);
  }
  void ExpectFinding(const std::string& expected, const DialogTemplate& dialog, const AuditOptions& options = {}) {
    ExpectOnly(expected, Audit(dialog, options));
  }
  static void ExpectOnly(const std::string& expected, const Findings& findings) {
    ASSERT_EQ(1u, findings.size()) << testing::PrintToString(findings) << "\nexpected: " << expected;
    EXPECT_NE(std::string::npos, findings[0].find(expected)) << findings[0] << "\nexpected: " << expected;
  }

  HWND page_ = nullptr;
};

}  // namespace

TEST_F(DriverAudit, SoundPageGivesNoFinding) { EXPECT_EQ(Findings(), Audit(SoundPage(), {.size = kPageSize})); }

TEST_F(DriverAudit, InventoryListsIdsAndClassesInOrder) {
  EXPECT_EQ("2 Static\n3 Edit\n", InventoryOf(Open(EmptyPage()
                                                       .Add(L"Static", 2, At(7, 7, 40, 8), L"Name:")
                                                       .Add(L"Edit", 3, At(50, 5, 60, 14), L"", WS_BORDER | kStop))));
}

// --- Texts ------------------------------------------------------------------------------------------------------

TEST_F(DriverAudit, FindsTextsThatAreWiderOrHigherThanTheirControl) {
  const std::wstring longText = L"A caption that has far too many words";
  const struct {
    const wchar_t* className;
    RECT place;
    DWORD style;
  } kCases[] = {
      {L"Static", At(7, 7, 60, 8), 0},
      {L"Static", At(7, 7, 60, 8), SS_LEFTNOWORDWRAP},
      {L"Static", At(7, 7, 60, 40), SS_CENTERIMAGE},
      {L"Button", At(7, 7, 60, 14), kStop},
      {L"Button", At(7, 7, 60, 14), kStop | BS_MULTILINE},
      {L"Button", At(7, 7, 60, 10), kStop | BS_AUTOCHECKBOX},
      {L"Button", At(7, 7, 60, 10), kStop | BS_AUTORADIOBUTTON},
      {L"Button", At(7, 7, 60, 40), BS_GROUPBOX},
  };
  for (const auto& [className, place, style] : kCases)
    ExpectFinding("the text \"A caption that has far too many words\" needs",
                  EmptyPage().Add(className, 1, place, longText, style));
  // A check mark takes room that a plain text does not.
  const int width = 60;
  EXPECT_EQ(Findings(), Audit(EmptyPage().Add(L"Static", 1, At(7, 7, width, 8), L"Fifteen letters")));
  ExpectFinding("needs",
                EmptyPage().Add(L"Button", 1, At(7, 7, width, 10), L"Fifteen letters", BS_AUTOCHECKBOX | kStop));
  // A doubled ampersand is one letter, a single one none.
  EXPECT_EQ(Findings(), Audit(EmptyPage().Add(L"Button", 1, At(7, 7, 40, 14), L"&aaaaaa", kStop)));
  ExpectFinding("needs", EmptyPage().Add(L"Button", 1, At(7, 7, 40, 14), L"a&&a&&a&&a&&a&&a", kStop));
}

TEST_F(DriverAudit, FindsRowsThatAreWiderThanTheirCombo) {
  const auto audit = [this](DWORD style, int rows) {
    const HWND page = Open(EmptyPage()
                               .Add(L"Static", 1, At(7, 9, 40, 8), L"Kind:")
                               .Add(L"ComboBox", 2, At(50, 7, 60, 50), L"", style | kStop | WS_VSCROLL));
    for (int row = 0; row < rows; ++row)
      SendDlgItemMessageW(page, 2, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"short"));
    SendDlgItemMessageW(page, 2, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"a row that is far too long for it"));
    return AuditPage(page, {});
  };
  for (DWORD style : {CBS_DROPDOWNLIST, CBS_DROPDOWN}) {
    ExpectOnly("of a dropped row \"a row that is far too long for it\"", audit(style, 1));
    ExpectOnly("of a dropped row", audit(style, 40));
  }
  // A list that is dropped wider shows the row, but the field does not.
  const HWND page = Open(EmptyPage()
                             .Add(L"Static", 1, At(7, 9, 40, 8), L"Kind:")
                             .Add(L"ComboBox", 2, At(50, 7, 60, 50), L"", CBS_DROPDOWNLIST | kStop));
  SendDlgItemMessageW(page, 2, CB_SETDROPPEDWIDTH, 300, 0);
  SendDlgItemMessageW(page, 2, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"a row that is far too long for it"));
  ExpectOnly("of a chosen row", AuditPage(page, {}));
}

TEST_F(DriverAudit, FindsRowsAndColumnsThatAreCut) {
  const HWND page = Open(EmptyPage()
                             .Add(L"Static", 1, At(7, 9, 40, 8), L"Kind:")
                             .Add(L"ListBox", 2, At(50, 7, 60, 40), L"", WS_BORDER | kStop));
  SendDlgItemMessageW(page, 2, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"a row that is far too long for it"));
  ExpectOnly("of a row \"a row that is far too long for it\"", AuditPage(page, {}));

  const HWND second = Open(EmptyPage()
                               .Add(L"Static", 1, At(7, 9, 40, 8), L"Kind:")
                               .Add(WC_LISTVIEWW, 2, At(50, 7, 140, 40), L"", LVS_REPORT | WS_BORDER | kStop));
  LVCOLUMNW column = {};
  column.mask = LVCF_WIDTH | LVCF_TEXT;
  column.cx = 60;
  column.pszText = const_cast<wchar_t*>(L"Description of it");
  ListView_InsertColumn(GetDlgItem(second, 2), 0, &column);
  ExpectOnly("of a column's head \"Description of it\"", AuditPage(second, {}));
}

TEST_F(DriverAudit, FindsAnEditThatIsTooLow) {
  ExpectFinding("pixels high inside, a line", EmptyPage()
                                                  .Add(L"Static", 1, At(7, 9, 40, 8), L"Name:")
                                                  .Add(L"Edit", 2, At(50, 7, 60, 8), L"", WS_BORDER | kStop));
}

// --- Places -----------------------------------------------------------------------------------------------------

TEST_F(DriverAudit, FindsControlsOutsideThePage) {
  for (RECT place : {At(170, 7, 31, 14), At(-1, 7, 40, 14), At(7, 90, 40, 14), At(7, -2, 40, 14)})
    ExpectFinding("it reaches out of the page", EmptyPage().Add(L"Button", 1, place, L"Go", kStop));
}

TEST_F(DriverAudit, FindsOverlaps) {
  const auto two = [](RECT first, RECT second, DWORD firstStyle = 0) {
    return EmptyPage().Add(L"Static", 1, first, L"One", firstStyle).Add(L"Static", 2, second, L"Two");
  };
  EXPECT_EQ(Findings(), Audit(two(At(7, 7, 40, 8), At(7, 15, 40, 8))));
  ExpectFinding("1 Static \"One\": it overlaps 2 Static \"Two\"", two(At(7, 7, 40, 8), At(7, 14, 40, 8)));
  EXPECT_EQ(Findings(), Audit(two(At(7, 7, 40, 8), At(7, 14, 40, 8)), {.allowedOverlaps = {{2, 1}}}));
  EXPECT_EQ(Findings(), Audit(two(At(7, 7, 80, 40), At(17, 17, 40, 8), SS_GRAYFRAME)));
}

TEST_F(DriverAudit, GroupBoxHoldsOnlyWholeControlsBelowItsCaption) {
  const auto group = [](RECT inner) {
    return EmptyPage().Add(L"Button", 1, At(7, 7, 100, 50), L"Group", BS_GROUPBOX).Add(L"Static", 2, inner, L"In");
  };
  EXPECT_EQ(Findings(), Audit(group(At(14, 20, 40, 8))));
  ExpectFinding("it overlaps 2", group(At(14, 52, 40, 8)));
  ExpectFinding("it overlaps 2", group(At(80, 20, 40, 8)));
  ExpectFinding("it overlaps 2", group(At(60, 8, 40, 8)));
}

// --- Keys, order, names -----------------------------------------------------------------------------------------

TEST_F(DriverAudit, FindsAnAccessKeyThatTwoControlsHave) {
  const auto page = EmptyPage()
                        .Add(L"Button", 1, At(7, 7, 40, 14), L"&Go", kStop)
                        .Add(L"Button", 2, At(7, 25, 40, 14), L"Be&gin", kStop)
                        .Add(L"Static", 3, At(7, 43, 40, 8), L"&Gone", SS_NOPREFIX)
                        .Add(L"Button", 4, At(7, 60, 40, 14), L"Hi&gh", kStop | DialogTemplate::kHidden);
  ExpectFinding("2 Button \"Be&gin\": its access key G is also that of 1 Button \"&Go\"", page);
  EXPECT_EQ(Findings(), Audit(page, {.allowedDoubleKeys = L"G"}));
}

TEST_F(DriverAudit, FindsAnOrderAgainstTheReading) {
  ExpectFinding("2 Button \"Two\": the Tab key comes to it behind 1 Button \"One\", but it stands before that",
                EmptyPage()
                    .Add(L"Button", 1, At(60, 7, 40, 14), L"One", kStop)
                    .Add(L"Button", 2, At(7, 7, 40, 14), L"Two", kStop));
  ExpectFinding("stands before that", EmptyPage()
                                          .Add(L"Button", 1, At(7, 27, 40, 14), L"One", kStop)
                                          .Add(L"Button", 2, At(7, 7, 40, 14), L"Two", kStop));
  EXPECT_EQ(Findings(), Audit(EmptyPage()
                                  .Add(L"Button", 1, At(7, 27, 40, 14), L"One", kStop)
                                  .Add(L"Button", 2, At(60, 7, 40, 14), L"Two", kStop)))
      << "a second column begins at its top";
}

TEST_F(DriverAudit, WhatBelongsToARadioButtonComesBehindItsGroup) {
  const auto page = [](int third) {
    return EmptyPage()
        .Add(L"Button", 1, At(7, 27, 60, 10), L"One", BS_AUTORADIOBUTTON | kStop | WS_GROUP)
        .Add(L"Button", 2, At(7, 57, 60, 10), L"Two", BS_AUTORADIOBUTTON)
        .Add(L"Button", 3, At(16, third, 40, 14), L"For one", kStop | WS_GROUP);
  };
  EXPECT_EQ(Findings(), Audit(page(40)));
  ExpectFinding("3 Button \"For one\": the Tab key comes to it behind 1 Button", page(7));
}

TEST_F(DriverAudit, SliderMayHaveItsLabelBelow) {
  const auto page = [](const wchar_t* className) {
    return EmptyPage()
        .Add(L"Static", 1, At(7, 30, 60, 8), L"File size:")
        .Add(className, 2, At(7, 10, 100, 15), L"", kStop);
  };
  EXPECT_EQ(Findings(), Audit(page(TRACKBAR_CLASSW)));
  ExpectFinding("no label", page(L"Edit"));
}

TEST_F(DriverAudit, FindsALabelWhoseKeyLeadsNowhere) {
  ExpectFinding("its access key leads to no field",
                EmptyPage().Add(L"Static", 1, At(7, 9, 40, 8), L"&Name:").Add(L"Static", 2, At(7, 30, 40, 8), L"Note"));
}

TEST_F(DriverAudit, FindsFieldsWithoutALabelDirectlyBeforeThem) {
  const char* kExpected = "no label stands directly before it, and it answers with no name";
  const std::initializer_list<const wchar_t*> kClasses = {L"Edit", L"ComboBox", L"ListBox", TRACKBAR_CLASSW,
                                                          L"ScrollBar"};
  for (const wchar_t* className : kClasses) {
    const DWORD style = kStop | (_wcsicmp(className, L"ComboBox") == 0 ? CBS_DROPDOWNLIST : 0);
    ExpectFinding(kExpected, EmptyPage().Add(className, 1, At(50, 7, 60, 14), L"", style));
    EXPECT_EQ(
        Findings(),
        Audit(
            EmptyPage().Add(L"Static", 1, At(7, 9, 40, 8), L"Name:").Add(className, 2, At(50, 7, 60, 14), L"", style)));
  }
  ExpectFinding(kExpected, EmptyPage()  // the label stands behind its field
                               .Add(L"Static", 1, At(120, 9, 40, 8), L"Name:")
                               .Add(L"Edit", 2, At(50, 7, 60, 14), L"", kStop));
  ExpectFinding(kExpected, EmptyPage()  // the label comes behind its field in the order
                               .Add(L"Edit", 2, At(50, 7, 60, 14), L"", kStop)
                               .Add(L"Static", 1, At(7, 9, 40, 8), L"Name:"));
  ExpectFinding(kExpected, EmptyPage().Add(L"Button", 1, At(7, 7, 20, 20), L"", kStop | BS_OWNERDRAW));
}

// A label may be hidden where a field's place alone tells the eye what it is for.
TEST_F(DriverAudit, TakesAHiddenLabelDirectlyBeforeItsField) {
  const auto page = [](int hiddenLabels) {
    auto made = EmptyPage();
    made.Add(L"Static", 1, At(7, 9, 40, 8), L"Name:").Add(L"Edit", 2, At(50, 7, 60, 14), L"", kStop);
    for (int i = 0; i < hiddenLabels; ++i)
      made.Add(L"Static", 3 + i, At(7, 27 + 60 * i, 40, 8), L"Second:", DialogTemplate::kHidden);
    return made.Add(L"Edit", 5, At(50, 25, 60, 14), L"", kStop);
  };
  EXPECT_EQ(Findings(), Audit(page(1)));
  ExpectFinding("5 Edit: no label", page(0));
  ExpectFinding("5 Edit: no label", page(2));  // the nearest one stands elsewhere
}

// A control that answers WM_GETOBJECT has the name that it gives there.
TEST_F(DriverAudit, TakesTheNameThatAControlAnswers) {
  const HMODULE library = LoadLibraryW(L"oleacc.dll");
  ASSERT_NE(nullptr, library);
  using Create = HRESULT WINAPI(HWND, LONG, REFIID, void**);
  using Convert = LRESULT WINAPI(REFIID, WPARAM, IUnknown*);
  static const auto create =
      reinterpret_cast<Create*>(reinterpret_cast<void*>(GetProcAddress(library, "CreateStdAccessibleObject")));
  static const auto convert =
      reinterpret_cast<Convert*>(reinterpret_cast<void*>(GetProcAddress(library, "LresultFromObject")));
  static constexpr GUID kAccessible = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};
  CoInitialize(nullptr);

  WNDCLASSW named = {};
  named.lpszClassName = L"NemPdfTestNamed";
  named.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
    if (message != WM_GETOBJECT || static_cast<LONG>(lParam) != OBJID_CLIENT)
      return DefWindowProcW(window, message, wParam, lParam);
    IUnknown* object = nullptr;
    if (FAILED(create(window, OBJID_CLIENT, kAccessible, reinterpret_cast<void**>(&object)))) return 0;
    const LRESULT answer = convert(kAccessible, wParam, object);
    object->Release();
    return answer;
  };
  RegisterClassW(&named);
  const auto page = [](const wchar_t* text) {
    return EmptyPage().Add(L"NemPdfTestNamed", 1, At(7, 7, 40, 14), text, kStop);
  };
  EXPECT_EQ(Findings(), Audit(page(L"Squares")));
  ExpectFinding("it answers with no name", page(L""));
  Close();
  UnregisterClassW(named.lpszClassName, nullptr);
  CoUninitialize();
}

// --- The page itself --------------------------------------------------------------------------------------------

TEST_F(DriverAudit, FindsAPageThatIsNotMirroredAsItsLanguageWants) {
  ExpectFinding("the page is not mirrored", EmptyPage(), {.mirrored = true});
  ExpectFinding("the page is mirrored", EmptyPage(WS_EX_LAYOUTRTL));
  auto mirrored = EmptyPage(WS_EX_LAYOUTRTL);
  mirrored.Add(L"Static", 2, At(14, 21, 40, 8), L"&Name:");
  mirrored.Add(L"Edit", 3, At(60, 18, 60, 14), L"", WS_BORDER | kStop | ES_AUTOHSCROLL);
  EXPECT_EQ(Findings(), Audit(mirrored, {.mirrored = true})) << "the label stands on the right, before its field";
}

TEST_F(DriverAudit, FindsTooSmallAPageAndAnUnscaledFont) {
  ExpectFinding("the page measures 300 by 163 pixels, its template 300 by 164", EmptyPage(), {.size = {200, 101}});
  ExpectFinding("the page measures", EmptyPage(), {.size = {201, 100}});
  EXPECT_EQ(Findings(), Audit(EmptyPage(), {.size = {150, 90}}));
  ExpectFinding("the page's font is 11 pixels high, at this dpi it should be 21", EmptyPage(), {.dpi = 192});
}

TEST_F(DriverAudit, FindsMissingAndDoubleIds) {
  ExpectFinding("it has no id of its own", EmptyPage().Add(L"Static", -1, At(7, 9, 40, 8), L"Name:"));
  ExpectFinding("another control has the same id",
                EmptyPage().Add(L"Static", 5, At(7, 9, 40, 8), L"Name:").Add(L"Static", 5, At(7, 29, 40, 8), L"Name:"));
}

TEST_F(DriverAudit, FindsControlsThatReachOutOfTheHost) {
  const HWND page = Open(EmptyPage()
                             .Add(L"Static", 1, At(7, 7, 100, 50), L"", SS_GRAYFRAME)
                             .Add(L"Button", 2, At(14, 14, 94, 14), L"Go", kStop));
  EXPECT_EQ(Findings(), AuditSheet(page, page, page, {}));
  ExpectOnly("2 Button \"Go\": it reaches out of the host page", AuditSheet(page, GetDlgItem(page, 1), page, {}));
  EXPECT_EQ((Findings{"the sheet is not mirrored", "the host page is not mirrored"}),
            AuditSheet(page, page, page, {.mirrored = true}));
}
