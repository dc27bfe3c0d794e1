#include "controls/CListCtrlComboEdit.h"

#include "EditableListPage.h"
#include "support/Accessible.h"

namespace {

constexpr int kTextColumn = 1, kNumberColumn = 2;

// Notes what it is asked.
class RecordingList : public CListCtrlComboEdit {
 public:
  using Log = std::vector<std::wstring>;

  explicit RecordingList(Log& log) : CListCtrlComboEdit(kNumberColumn, kTextColumn), log_(log) {}

  void OnComboDone(const CUString& text) override {
    Note(L"combo ", ComboRow(), text);
    CListCtrlComboEdit::OnComboDone(text);
  }
  int OnEditDone(const CUString& text) override {
    Note(Edit() ? L"edit while open " : L"edit ", EditRow(), text);
    if (onEditDone) onEditDone();
    return CListCtrlComboEdit::OnEditDone(text);
  }
  void OnUsedChanged(bool checked) override { log_.push_back(checked ? L"used" : L"unused"); }
  void RemoveSelected() override {}
  void RemoveAll() override {}
  void RefreshRow(int, bool) override {}
  bool CanEditLevel(int) const override { return canEditLevel; }
  bool CanEditName(int) const override { return canEditName; }

  bool canEditLevel = true, canEditName = true;
  std::function<void()> onEditDone;

 protected:
  bool OnWindowMessage(WindowMessage& message) override {
    if (message.message == kCloseEditorsMessage) log_.push_back(L"close");
    return CListCtrlComboEdit::OnWindowMessage(message);
  }

 private:
  void Note(const wchar_t* what, int row, const CUString& text) {
    log_.push_back(what + std::to_wstring(row) + L" " + text.Text());
  }
  Log& log_;
};

class EditableList : public ReportPage {
 public:
  explicit EditableList(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight) : ReportPage(layout) {
    list = std::make_unique<RecordingList>(log);
    EXPECT_TRUE(list->Attach(page, kReportId));
    list->AddListStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    list->SetComboRange(1, 9);
    list->InsertColumn(0, L"", 60);
    list->InsertColumn(1, L"Name", 120);
    list->InsertColumn(2, L"Level", 60);
    const wchar_t* const rows[][2] = {{L"Alpha", L"1"}, {L"Beta", L"4"}, {L"Gamma", L"x"}};
    for (int row = 0; row < 3; ++row) {
      list->InsertRow(row, L"");
      list->SetCell(row, kTextColumn, rows[row][0]);
      list->SetCell(row, kNumberColumn, rows[row][1]);
    }
    log.clear();
  }

  // Rows enough to scroll, and a column that does not fit.
  void MakeScrollable() const {
    for (int row = 3; row < 40; ++row) list->InsertRow(row, L"");
    list->InsertColumn(3, L"Wide", 500);
  }
  void OpenEdit(int row) {
    list->SelectRow(row);
    Click(row, kTextColumn);
    ASSERT_NE(nullptr, list->Edit());
    log.clear();
  }
  void OpenCombo(int row) {
    list->SelectRow(row);
    Click(row, kNumberColumn);
    ASSERT_NE(nullptr, list->Combo());
    log.clear();
  }
  CUString Cell(int row, int column) const { return control.CellText(row, column); }
  int Children() const {
    int count = 0;
    for (HWND child = ::GetWindow(control.Handle(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) ++count;
    return count;
  }

  RecordingList::Log log;
  std::unique_ptr<RecordingList> list;
};

using Log = RecordingList::Log;

// --- Mouse ----------------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, HasOneSelection) {
  EditableList test;
  EXPECT_TRUE(test.control.Style() & LVS_SINGLESEL);
  EXPECT_EQ(test.page.Handle(), test.list->Owner().Handle());
}

TEST(CListCtrlComboEdit, FirstClickSelects) {
  for (const int column : {kTextColumn, kNumberColumn}) {
    EditableList test;
    test.Click(1, column);
    EXPECT_EQ(1, test.list->SelectionMark());
    EXPECT_EQ(unsigned{LVIS_SELECTED | LVIS_FOCUSED}, test.list->RowState(1, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_TRUE(test.list->HasFocus());
    EXPECT_EQ(nullptr, test.list->Edit());
    EXPECT_EQ(nullptr, test.list->Combo());
    EXPECT_EQ(Log{L"unused"}, test.log);
    test.Click(1, column);
    EXPECT_EQ(column == kTextColumn, test.list->Edit() != nullptr);
    EXPECT_EQ(column == kNumberColumn, test.list->Combo() != nullptr);
    EXPECT_EQ(column == kTextColumn ? 1 : -1, test.list->EditRow());
    EXPECT_EQ(column == kNumberColumn ? 1 : -1, test.list->ComboRow());
    EXPECT_EQ(Log{L"unused"}, test.log) << "the click that opens an editor is no click on the check box";
  }
}

TEST(CListCtrlComboEdit, ClickBesideRowsSelectsNone) {
  EditableList test;
  test.list->SelectRow(1);
  test.Click({20, 120});
  EXPECT_EQ(-1, test.list->SelectionMark());
  EXPECT_EQ(0u, test.list->RowState(1, LVIS_SELECTED));
  EXPECT_TRUE(test.log.empty());
}

TEST(CListCtrlComboEdit, CheckBoxOfTheSelectedRowIsTold) {
  EditableList test;
  test.Click(test.CheckPoint(1));
  EXPECT_TRUE(test.list->IsChecked(1));
  EXPECT_EQ(1, test.list->SelectionMark());
  test.Click(test.CheckPoint(1));
  EXPECT_FALSE(test.list->IsChecked(1));
  test.Click(2, 0);
  EXPECT_EQ((Log{L"used", L"unused", L"unused"}), test.log);
}

TEST(CListCtrlComboEdit, DoubleClickTellsTheCheckBoxAsItStands) {
  EditableList test;
  test.list->SelectRow(1);
  test.Click(test.CheckPoint(1));
  test.Click(test.CheckPoint(1), WM_LBUTTONDBLCLK);
  ASSERT_EQ(2u, test.log.size());
  EXPECT_EQ(test.list->IsChecked(1) ? L"used" : L"unused", test.log[1]);
}

TEST(CListCtrlComboEdit, SpaceIsNotTold) {
  EditableList test;
  test.list->SelectRow(1);
  test.list->Focus();
  test.Press(VK_SPACE);
  EXPECT_TRUE(test.list->IsChecked(1));
  EXPECT_TRUE(test.log.empty());
}

// --- Edit box -------------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, EditBoxLiesOverItsCell) {
  for (const auto layout : {ControlDialog::Layout::LeftToRight, ControlDialog::Layout::RightToLeft}) {
    EditableList test(layout);
    EXPECT_EQ(layout == ControlDialog::Layout::RightToLeft, test.control.IsMirrored());
    test.OpenEdit(1);
    const CListEditBox& edit = *test.list->Edit();
    const RECT cell = test.control.CellRect(1, kTextColumn), rect = edit.RectIn(test.control);
    EXPECT_TRUE(::EqualRect(&cell, &rect));
    EXPECT_EQ(test.control.Handle(), ::GetParent(edit.Handle()));
    EXPECT_EQ(test.control.Font(), edit.Font());
    EXPECT_TRUE(::IsWindowVisible(edit.Handle()));
    EXPECT_TRUE(edit.HasFocus());
    EXPECT_TRUE(edit.Accepts());
    EXPECT_STREQ(L"Beta", edit.Text().Text());
    EXPECT_EQ(MAKELRESULT(0, 4), edit.Send(EM_GETSEL));
  }
}

TEST(CListCtrlComboEdit, EditBoxKeepsToTheList) {
  EditableList test;
  test.control.SetColumnWidth(kTextColumn, 900);
  test.OpenEdit(0);
  EXPECT_EQ(test.control.ClientRect().right, test.list->Edit()->RectIn(test.control).right);
}

TEST(CListCtrlComboEdit, EditBoxTakesAtMost254Characters) {
  EditableList test;
  test.list->SetCell(0, kTextColumn, std::wstring(254, L'a').c_str());
  test.OpenEdit(0);
  EXPECT_EQ(254, test.list->Edit()->Text().Length());
  test.list->SetCell(1, kTextColumn, std::wstring(300, L'a').c_str());
  test.OpenEdit(1);
  EXPECT_EQ(254, test.list->Edit()->Text().Length());
}

TEST(CListCtrlComboEdit, EditBoxHasABorderAndShowsItsCaret) {
  EditableList test;
  test.list->SetCell(0, kTextColumn, std::wstring(100, L'W').c_str());
  static LONG style;
  static int scrolls;
  style = scrolls = 0;
  const HOOKPROC watch = [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    // The control draws its border itself and takes the style back.
    if (sent.message == WM_NCCREATE) style = reinterpret_cast<const CREATESTRUCTW*>(sent.lParam)->style;
    if (sent.message == EM_SCROLLCARET) ++scrolls;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  };
  const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROC, watch, nullptr, ::GetCurrentThreadId());
  test.OpenEdit(0);
  ::UnhookWindowsHookEx(hook);
  EXPECT_TRUE(style & WS_BORDER);
  EXPECT_EQ(1, scrolls);
  const CListEditBox& edit = *test.list->Edit();
  EXPECT_LT(GET_X_LPARAM(edit.Send(EM_POSFROMCHAR, 99)), edit.ClientRect().right);
}

TEST(CListCtrlComboEdit, ReturnKeepsTheText) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.Press(VK_RETURN);
  EXPECT_EQ((Log{L"close", L"edit 1 New"}), test.log);
  EXPECT_STREQ(L"New", test.Cell(1, kTextColumn).Text());
  EXPECT_TRUE(test.list->HasFocus());
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_EQ(-1, test.list->EditRow());
  EXPECT_EQ(1, test.Children()) << "the head is left";
  EXPECT_FALSE(test.WasCommanded(IDOK));
}

TEST(CListCtrlComboEdit, EscapeDropsTheText) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.Press(VK_ESCAPE);
  EXPECT_EQ(Log{L"close"}, test.log);
  EXPECT_STREQ(L"Beta", test.Cell(1, kTextColumn).Text());
  EXPECT_TRUE(test.list->HasFocus());
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_EQ(-1, test.list->EditRow());
  EXPECT_FALSE(test.WasCommanded(IDCANCEL));
}

TEST(CListCtrlComboEdit, HeldKeysOfTheEditorDoNotReachTheDialog) {
  EditableList test;
  for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
    test.OpenEdit(1);
    test.Press(key);
    test.Press(key, kHeldKey);
    EXPECT_FALSE(test.WasCommanded(IDOK));
    EXPECT_FALSE(test.WasCommanded(IDCANCEL));
    EXPECT_EQ(0, test.Count(NM_RETURN));
    EXPECT_EQ(nullptr, test.list->Edit());
  }
}

TEST(CListCtrlComboEdit, OtherKeysAreTheEditBoxs) {
  EditableList test;
  test.OpenEdit(1);
  test.Press(VK_END);
  test.Press(VK_LEFT);
  EXPECT_EQ(MAKELRESULT(3, 3), test.list->Edit()->Send(EM_GETSEL));
  test.Press(VK_DELETE);
  test.Type(L"\t");
  test.Press(VK_TAB);
  ASSERT_NE(nullptr, test.list->Edit());
  EXPECT_STREQ(L"Bet", test.list->Edit()->Text().Text());
  EXPECT_EQ(3, test.list->Count()) << "the key was not the list's";
}

TEST(CListCtrlComboEdit, ClickElsewhereAppliesTheText) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.Click(2, kTextColumn);
  EXPECT_STREQ(L"New", test.Cell(1, kTextColumn).Text());
  EXPECT_EQ(2, test.list->SelectionMark());
  EXPECT_EQ(nullptr, test.list->Edit());
  test.OpenEdit(1);
  test.Type(L"Newer");
  test.Click(1, 0);
  EXPECT_STREQ(L"Newer", test.Cell(1, kTextColumn).Text());
  EXPECT_EQ(nullptr, test.list->Edit());
  test.OpenEdit(1);
  test.Type(L"Newest");
  test.other.Focus();
  EXPECT_STREQ(L"Newest", test.Cell(1, kTextColumn).Text());
  EXPECT_TRUE(test.other.HasFocus());
}

TEST(CListCtrlComboEdit, FromTheTextToTheNumber) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.Click(1, kNumberColumn);
  EXPECT_EQ(Log{L"edit 1 New"}, test.log);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_NE(nullptr, test.list->Combo());
  test.Click(1, kTextColumn);
  EXPECT_NE(nullptr, test.list->Edit());
  test.RunDialog();
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_NE(nullptr, test.list->Edit()) << "the combo box that ends behind its message leaves the edit box alone";
}

TEST(CListCtrlComboEdit, TextThatCannotBeEdited) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.list->canEditName = false;
  test.Click(1, kTextColumn);
  EXPECT_STREQ(L"New", test.Cell(1, kTextColumn).Text());
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_TRUE(test.list->HasFocus());
  EXPECT_FALSE(test.list->OpenEdit(1, test.control.CellRect(1, kTextColumn)));
  test.list->canEditLevel = false;
  test.Click(1, kNumberColumn);
  EXPECT_EQ(nullptr, test.list->Combo());
}

// --- Combo box ------------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, ComboBoxOffersTheNumbers) {
  EditableList test;
  test.OpenCombo(1);
  const CListComboBox& combo = *test.list->Combo();
  EXPECT_EQ(9, combo.Count());
  EXPECT_STREQ(L"1", combo.RowText(0).Text());
  EXPECT_STREQ(L"9", combo.RowText(8).Text());
  EXPECT_EQ(3, combo.Selection());
  EXPECT_TRUE(combo.Send(CB_GETDROPPEDSTATE));
  EXPECT_TRUE(combo.HoldsFocus());
  EXPECT_TRUE(::IsWindowVisible(combo.Handle()));
  EXPECT_EQ(DWORD{CBS_DROPDOWNLIST}, combo.Style() & CBS_DROPDOWNLIST);
  EXPECT_EQ(test.control.Font(), combo.Font());
  EXPECT_EQ(test.control.Handle(), ::GetParent(combo.Handle()));
  const RECT cell = test.control.CellRect(1, kNumberColumn), rect = combo.RectIn(test.control);
  EXPECT_EQ(cell.left, rect.left);
  EXPECT_EQ(cell.top, rect.top);
  EXPECT_EQ(cell.right, rect.right);
  RECT dropped{};
  combo.Send(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
  // The platform takes the box's own row and frame off.
  const LONG row = cell.bottom - cell.top;
  EXPECT_NEAR(31 * row, dropped.bottom - dropped.top, 2 * row);
}

TEST(CListCtrlComboEdit, ComboBoxKeepsToTheListAtItsSides) {
  EditableList test;
  test.control.SetColumnWidth(kNumberColumn, 900);
  test.OpenCombo(0);
  EXPECT_EQ(test.control.ClientRect().right, test.list->Combo()->RectIn(test.control).right);
}

TEST(CListCtrlComboEdit, ComboBoxScrollsManyNumbers) {
  EditableList test;
  test.list->SetComboRange(1, 90);
  test.OpenCombo(0);
  EXPECT_EQ(90, test.list->Combo()->Count());
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  ASSERT_TRUE(::GetComboBoxInfo(test.list->Combo()->Handle(), &info));
  EXPECT_TRUE(CWnd(info.hwndList).Style() & WS_VSCROLL);
}

TEST(CListCtrlComboEdit, ComboBoxSearchesByBeginning) {
  EditableList test;
  test.list->SetComboRange(10, 24);
  test.list->SetCell(0, kNumberColumn, L"2");
  test.OpenCombo(0);
  EXPECT_STREQ(L"20", test.list->Combo()->SelectedRowText().Text());
}

TEST(CListCtrlComboEdit, ComboBoxTakesAtMost254Characters) {
  EditableList test;
  for (const int length : {254, 255, 300}) {
    test.list->SetCell(0, kNumberColumn, std::wstring(static_cast<size_t>(length), L'a').c_str());
    test.OpenCombo(0);
    EXPECT_EQ(254, test.list->Combo()->Text().Length()) << length;
  }
}

TEST(CListCtrlComboEdit, AChoiceIsApplied) {
  EditableList test;
  test.OpenCombo(1);
  test.Press(VK_DOWN);
  test.Press(VK_RETURN);
  ASSERT_FALSE(test.log.empty());
  EXPECT_EQ(L"combo 1 5", test.log[0]);
  EXPECT_STREQ(L"5", test.Cell(1, kNumberColumn).Text());
  EXPECT_TRUE(test.list->HasFocus());
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_EQ(-1, test.list->ComboRow());
  EXPECT_EQ(1, test.Children());
  EXPECT_FALSE(test.WasCommanded(IDOK));
}

TEST(CListCtrlComboEdit, EscapeLeavesTheNumber) {
  EditableList test;
  test.OpenCombo(1);
  test.Press(VK_DOWN);
  test.Press(VK_ESCAPE);
  EXPECT_STREQ(L"4", test.Cell(1, kNumberColumn).Text());
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_TRUE(test.list->HasFocus());
  EXPECT_FALSE(test.WasCommanded(IDCANCEL));
}

TEST(CListCtrlComboEdit, TextOfNoRowStandsInTheBox) {
  EditableList test;
  test.OpenCombo(2);
  EXPECT_EQ(-1, test.list->Combo()->Selection());
  EXPECT_STREQ(L"x", test.list->Combo()->Text().Text());
  test.list->Combo()->Send(CB_SHOWDROPDOWN, FALSE);
  test.RunDialog();
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_EQ(Log{L"close"}, test.log);
  EXPECT_STREQ(L"x", test.Cell(2, kNumberColumn).Text());
}

TEST(CListCtrlComboEdit, TextOfNoRowIsDrawn) {
  EditableList test;
  test.list->SetCell(0, kNumberColumn, L"");
  const auto picture = [&](int row) {
    test.OpenCombo(row);
    const CWnd combo(*test.list->Combo());
    return Paint(combo).pixels;
  };
  const auto empty = picture(0);
  EXPECT_NE(empty, picture(2));
}

TEST(CListCtrlComboEdit, ComboBoxEndsBehindTheMessageThatTookItsFocus) {
  EditableList test;
  test.OpenCombo(1);
  const HWND combo = test.list->Combo()->Handle();
  test.other.Focus();
  EXPECT_TRUE(test.other.HasFocus());
  EXPECT_TRUE(::IsWindow(combo));
  EXPECT_FALSE(::IsWindowVisible(combo));
  test.RunDialog();
  EXPECT_FALSE(::IsWindow(combo));
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_STREQ(L"4", test.Cell(1, kNumberColumn).Text());
  EXPECT_TRUE(test.other.HasFocus());
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, KeysOpenTheEditors) {
  EditableList test;
  test.list->Focus();
  test.list->SetSelectionMark(-1);
  test.Press(VK_F2);
  EXPECT_EQ(nullptr, test.list->Edit()) << "no row is selected";
  test.list->SelectRow(1);
  test.Press(VK_F2);
  ASSERT_NE(nullptr, test.list->Edit());
  EXPECT_EQ(1, test.list->EditRow());
  test.Press(VK_ESCAPE);
  for (const UINT message : {WM_KEYDOWN, WM_SYSKEYDOWN}) {
    test.Press(message == WM_KEYDOWN ? VK_F4 : VK_DOWN, message == WM_KEYDOWN ? 1 : 1 | 1 << 29, message);
    ASSERT_NE(nullptr, test.list->Combo()) << message;
    EXPECT_EQ(1, test.list->ComboRow());
    test.Press(VK_ESCAPE);
    EXPECT_EQ(nullptr, test.list->Combo());
  }
  test.list->canEditName = false;
  test.Press(VK_F2);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_NE(nullptr, test.list->Combo());
}

TEST(CListCtrlComboEdit, KeysBringTheCellIntoView) {
  EditableList test;
  test.control.SetColumnWidth(0, 500);
  test.list->SelectRow(1);
  test.list->Focus();
  test.Press(VK_F2);
  ASSERT_NE(nullptr, test.list->Edit());
  const RECT cell = test.control.CellRect(1, kTextColumn), client = test.control.ClientRect();
  EXPECT_GE(cell.left, 0);
  EXPECT_LE(cell.right, client.right);
  const RECT rect = test.list->Edit()->RectIn(test.control);
  EXPECT_TRUE(::EqualRect(&cell, &rect));
}

TEST(CListCtrlComboEdit, EnterIsToldOfARow) {
  EditableList test;
  test.list->Focus();
  test.list->SelectRow(1);
  test.Press(VK_RETURN);
  EXPECT_EQ(1, test.Count(NM_RETURN));
  EXPECT_FALSE(test.WasCommanded(IDOK));
  test.Press(VK_DELETE);
  EXPECT_GE(test.Count(LVN_KEYDOWN), 1);
  test.Press(VK_ESCAPE);
  EXPECT_TRUE(test.WasCommanded(IDCANCEL)) << "Esc stays the dialog's";
  test.list->DeleteAllRows();
  test.Press(VK_RETURN);
  EXPECT_EQ(1, test.Count(NM_RETURN));
  EXPECT_TRUE(test.WasCommanded(IDOK)) << "without rows Enter is the dialog's";
}

// --- Ends -----------------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, ScrollingClosesTheEditors) {
  const struct {
    UINT message;
    WPARAM wParam;
  } scrolls[] = {{WM_VSCROLL, SB_LINEDOWN},
                 {WM_HSCROLL, SB_LINERIGHT},
                 {WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA))},
                 {WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA)},
                 {LVM_SCROLL, 5},
                 {WM_SIZE, SIZE_RESTORED}};
  for (const auto& scroll : scrolls) {
    EditableList test;
    test.MakeScrollable();
    test.OpenEdit(1);
    test.Type(L"New");
    test.control.Send(scroll.message, scroll.wParam);
    EXPECT_EQ(nullptr, test.list->Edit()) << scroll.message;
    EXPECT_EQ(Log{L"edit 1 New"}, test.log) << scroll.message;
    EXPECT_STREQ(L"New", test.Cell(1, kTextColumn).Text());
    test.control.Send(LVM_ENSUREVISIBLE, 0, FALSE);
    test.control.Send(LVM_SCROLL, static_cast<WPARAM>(-200));
    test.OpenCombo(1);
    test.list->Combo()->Select(7);
    test.control.Send(scroll.message, scroll.wParam);
    EXPECT_EQ(nullptr, test.list->Combo()) << scroll.message;
    test.RunDialog();
    EXPECT_STREQ(L"4", test.Cell(1, kNumberColumn).Text()) << scroll.message;
  }
}

TEST(CListCtrlComboEdit, AScrollIsStillDone) {
  EditableList test;
  test.MakeScrollable();
  test.OpenEdit(1);
  test.control.Send(WM_VSCROLL, SB_LINEDOWN);
  EXPECT_EQ(1, test.control.Send(LVM_GETTOPINDEX));
}

TEST(CListCtrlComboEdit, PrivateMessageClosesBoth) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.control.Send(0x8B2);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_EQ((Log{L"close", L"edit 1 New"}), test.log);
  test.OpenCombo(1);
  test.control.Send(0x8B2);
  EXPECT_EQ(nullptr, test.list->Combo());
  EXPECT_STREQ(L"4", test.Cell(1, kNumberColumn).Text());
  EXPECT_TRUE(test.list->HasFocus());
}

TEST(CListCtrlComboEdit, DisablingAppliesTheText) {
  EditableList test;
  test.OpenEdit(1);
  test.Type(L"New");
  test.control.Enable(false);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_STREQ(L"New", test.Cell(1, kTextColumn).Text());
  EXPECT_TRUE(test.other.HasFocus()) << "the keyboard goes on";
  test.control.Enable(true);
  test.OpenEdit(1);
  test.Type(L"Newer");
  ::EnableWindow(test.control.Handle(), FALSE);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_STREQ(L"Newer", test.Cell(1, kTextColumn).Text());
}

TEST(CListCtrlComboEdit, RemovedRowsTakeTheEditorAlong) {
  EditableList test;
  for (const UINT message : {LVM_DELETEITEM, LVM_DELETEALLITEMS}) {
    test.OpenEdit(1);
    test.Type(L"New");
    test.control.Send(message);
    EXPECT_EQ(nullptr, test.list->Edit());
    EXPECT_TRUE(test.log.empty());
    EXPECT_EQ(-1, test.list->EditRow());
  }
}

TEST(CListCtrlComboEdit, TheEndOfTheListAppliesNothing) {
  enum class End { List, Page, Object, Hidden };
  for (const End end : {End::List, End::Page, End::Object, End::Hidden}) {
    EditableList test;
    test.OpenEdit(1);
    test.Type(L"New");
    const HWND edit = test.list->Edit()->Handle();
    if (end == End::List) ::DestroyWindow(test.control.Handle());
    if (end == End::Page) test.page.Destroy();
    if (end == End::Object) test.list.reset();
    if (end == End::Hidden) {
      ::ShowWindow(test.page.Handle(), SW_HIDE);
      ::SetFocus(nullptr);
    }
    EXPECT_FALSE(::IsWindow(edit)) << static_cast<int>(end);
    EXPECT_TRUE(std::find(test.log.begin(), test.log.end(), L"edit 1 New") == test.log.end()) << static_cast<int>(end);
  }
  for (const End end : {End::List, End::Page, End::Object}) {
    EditableList test;
    test.OpenCombo(1);
    const HWND combo = test.list->Combo()->Handle();
    if (end == End::List) ::DestroyWindow(test.control.Handle());
    if (end == End::Page) test.page.Destroy();
    if (end == End::Object) test.list.reset();
    EXPECT_FALSE(::IsWindow(combo)) << static_cast<int>(end);
    test.RunDialog();
    EXPECT_TRUE(std::find(test.log.begin(), test.log.end(), L"combo 1 4") == test.log.end()) << static_cast<int>(end);
  }
}

TEST(CListCtrlComboEdit, ATextMayEndTheList) {
  const std::function<void(EditableList&)> leaves[] = {
      [](EditableList& test) { test.Press(VK_RETURN); },
      [](EditableList& test) { test.control.Send(0x8B2); },
      [](EditableList& test) { test.Click(2, 0); },
      [](EditableList& test) { test.control.Send(WM_VSCROLL, SB_LINEDOWN); },
      [](EditableList& test) { test.other.Focus(); },
      [](EditableList& test) { test.control.Enable(false); },
  };
  for (const auto& leave : leaves) {
    EditableList test;
    test.OpenEdit(1);
    test.list->onEditDone = [&test] { ::DestroyWindow(test.control.Handle()); };
    leave(test);
    EXPECT_FALSE(::IsWindow(test.control.Handle()));
    EXPECT_EQ(nullptr, test.list->Handle());
    test.RunDialog();
  }
}

// --- Screen readers -------------------------------------------------------------------------------------------------

TEST(CListCtrlComboEdit, RowsAreSpokenWithAllTheirCells) {
  const ComScope com;
  EditableList test;
  const CWnd label = test.page.Add(L"STATIC", L"&Formats:", 0, 1, {0, 0, 50, 9});
  label.PlaceBehind(HWND_TOP);
  test.list->SelectRow(1);
  test.list->SetCheck(1, true);
  test.list->Focus();
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(3, reader.Count());
  EXPECT_EQ(L"Formats:", reader.Name(CHILDID_SELF));
  EXPECT_EQ(ROLE_SYSTEM_LIST, reader.Role(CHILDID_SELF));
  EXPECT_EQ(L"Beta, 4", reader.Name(2));
  EXPECT_EQ(ROLE_SYSTEM_LISTITEM, reader.Role(2));
  EXPECT_EQ(2, reader.Focus());
  const LONG plain = STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
  EXPECT_EQ(plain | STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_CHECKED, reader.State(2));
  EXPECT_EQ(plain, reader.State(1));
  test.MakeScrollable();
  EXPECT_EQ(plain | STATE_SYSTEM_OFFSCREEN, reader.State(40));
  ::EnableWindow(test.control.Handle(), FALSE);
  EXPECT_EQ(STATE_SYSTEM_UNAVAILABLE, reader.State(1));
  ::EnableWindow(test.control.Handle(), TRUE);
  const int marked = test.list->SelectionMark();
  for (const HWND window : {test.control.Handle(), ::GetAncestor(test.control.Handle(), GA_ROOT)}) {
    ::EnableWindow(window, FALSE);
    reader->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(3));
    EXPECT_EQ(marked, test.list->SelectionMark());
    ::EnableWindow(window, TRUE);
  }
  reader->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(3));
  EXPECT_EQ(2, test.list->SelectionMark());
  ::DestroyWindow(test.control.Handle());
  LONG count = 0;
  EXPECT_TRUE(FAILED(reader->get_accChildCount(&count))) << "nobody is there any more";
}

}  // namespace
