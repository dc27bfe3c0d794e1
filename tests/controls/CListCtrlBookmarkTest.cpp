#include "controls/CListCtrlBookmark.h"

#include "EditableListPage.h"
#include "PlatformSpy.h"

namespace {

enum Kind { kStandard = 1, kUserDefined, kWordStandard, kWordUserDefined };

class Format final : public BookmarkListEntry {
 public:
  Format(int& living, const wchar_t* displayName, Kind formatKind = kUserDefined, int formatLevel = 1)
      : name(displayName), style(displayName), kind(formatKind), level(formatLevel), living_(living) {
    ++living_;
  }
  ~Format() override { --living_; }

  bool IsUsed() const override { return used; }
  void SetUsed(bool isUsed) override { used = isUsed; }
  CUString DisplayName() const override { return name; }
  void SetDisplayName(const CUString& newName) override { name = newName; }
  CUString StyleName() const override { return style; }
  int Level() const override { return level; }
  void SetLevel(int newLevel) override { level = newLevel; }
  CUString KindText() const override { return kind == kStandard ? L"Standard" : L"User Def."; }
  CUString FormatText() const override { return look; }
  bool CanRename() const override { return kind <= kUserDefined; }
  bool CanRemove() const override { return kind == kUserDefined; }

  CUString name, style, look = L"Arial, 10";
  Kind kind;
  int level;
  bool used = true;

 private:
  int& living_;
};

class BookmarkPage : public ReportPage, private BookmarkListListener {
 public:
  explicit BookmarkPage(bool wordMode = false) {
    list = std::make_unique<CListCtrlBookmark>();
    EXPECT_TRUE(list->Attach(page, kReportId));
    list->SetListener(this);
    list->SetWordMode(wordMode);
    list->InsertColumns(L"Name", L"Type", L"Format", L"Level");
  }

  virtual ~BookmarkPage() = default;

  Format& Add(const wchar_t* name, Kind kind = kUserDefined, int level = 1) {
    auto format = std::make_unique<Format>(living, name, kind, level);
    Format& added = *format;
    const int row = list->Count();
    EXPECT_EQ(row, list->AddEntry(std::move(format)));
    list->RefreshRow(list->Count() - 1, false);
    return added;
  }
  void AddHeadings() {
    for (const wchar_t* name : {L"heading 1", L"heading 2", L"heading 3"}) Add(name, kStandard).used = false;
    for (int row = 0; row < 3; ++row) list->RefreshRow(row, false);
  }
  Format& At(int row) const { return static_cast<Format&>(*list->Entry(row)); }
  std::wstring Row(int row) const {
    std::wstring text = list->IsChecked(row) ? L"+" : L"-";
    for (int column = 1; column < 5; ++column) text += std::wstring(L"|") + list->CellText(row, column).Text();
    return text;
  }
  std::wstring Names() const {
    std::wstring names;
    for (int row = 0; row < list->Count(); ++row) {
      EXPECT_EQ(At(row).name, list->CellText(row, 1));
      names += std::wstring(row ? L"," : L"") + At(row).name.Text();
    }
    return names;
  }
  int Edits() {
    RunDialog();
    const int edits = static_cast<int>(page.Received(0x8B3).size());
    page.received.clear();
    return edits;
  }
  void OpenEdit(int row) {
    list->SelectRow(row);
    Click(row, 1);
    ASSERT_NE(nullptr, list->Edit());
  }
  // The column heads tell the list about one of them.
  void Notify(UINT code, int column = 0) const {
    NMHEADERW notice{};
    notice.hdr = {reinterpret_cast<HWND>(control.Send(LVM_GETHEADER)), 0, code};
    notice.iItem = column;
    control.Send(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
  }

  int living = 0;
  std::vector<std::wstring> asked, told;
  bool accepts = true;
  std::function<void()> whileAsked, whileTold;
  std::unique_ptr<CListCtrlBookmark> list;

 private:
  bool AcceptsName(int row, const CUString& name) override {
    asked.push_back((list->Edit() ? L"open " : L"") + std::to_wstring(row) + L" " + name.Text());
    const bool answer = accepts;
    if (whileAsked) whileAsked();
    return answer;
  }
  void TellRefusal(const CUString& name) override {
    told.push_back((list->Edit() ? L"open " : L"") + std::wstring(name.Text()));
    if (whileTold) whileTold();
  }
};

int Width(const CListCtrl& list, int column) { return static_cast<int>(list.Send(LVM_GETCOLUMNWIDTH, column)); }

// --- Rows -----------------------------------------------------------------------------------------------------------

TEST(CListCtrlBookmark, HasItsColumns) {
  for (const UINT dpi : {96u, 144u, 192u})
    for (const bool wordMode : {false, true}) {
      const DpiScope scope(dpi);
      BookmarkPage test(wordMode);
      const int widths[] = {20, 100, wordMode ? 80 : 50, wordMode ? 120 : 160, 30};
      ASSERT_EQ(5, test.list->ColumnCount());
      for (int column = 0; column < 5; ++column)
        EXPECT_EQ(::MulDiv(widths[column], static_cast<int>(dpi), 96), Width(*test.list, column)) << column;
      EXPECT_EQ(LRESULT{LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT},
                test.control.Send(LVM_GETEXTENDEDLISTVIEWSTYLE) & (LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    }
}

TEST(CListCtrlBookmark, ShowsItsEntries) {
  BookmarkPage test;
  Format& format = test.Add(L"Style 1", kUserDefined, 7);
  EXPECT_EQ(L"+|Style 1|User Def.|Arial, 10|7", test.Row(0));
  format.used = false;
  format.name = L"Other";
  format.look = L"Tahoma, 8";
  format.level = 2;
  test.list->SortByColumn(1, true);
  test.list->RefreshRow(0, false);
  EXPECT_EQ(L"-|Other|User Def.|Tahoma, 8|2", test.Row(0));
  EXPECT_EQ(1, test.list->Sorting().column);
  test.list->RefreshRow(0, true);
  EXPECT_EQ(-1, test.list->Sorting().column);
  test.list->RefreshRow(5, false);
  EXPECT_EQ(nullptr, test.list->Entry(5));
  EXPECT_EQ(nullptr, test.list->Entry(-1));
}

TEST(CListCtrlBookmark, OwnsItsEntries) {
  BookmarkPage test;
  for (const wchar_t* name : {L"a", L"b", L"c", L"d"}) test.Add(name);
  EXPECT_EQ(4, test.living);
  test.control.DeleteRow(1);
  EXPECT_EQ(3, test.living);
  EXPECT_EQ(L"a,c,d", test.Names());
  test.list->SortByColumn(1, true);
  test.list->Clear();
  EXPECT_EQ(0, test.living);
  EXPECT_EQ(0, test.list->Count());
  EXPECT_EQ(-1, test.list->Sorting().column);
  test.Add(L"e");
  ::DestroyWindow(test.control.Handle());
  EXPECT_EQ(0, test.living);
  BookmarkPage other;
  other.Add(L"f");
  other.list.reset();
  EXPECT_EQ(0, other.living);
}

TEST(CListCtrlBookmark, FindsNames) {
  BookmarkPage test;
  test.Add(L"a").style = L"s";
  test.Add(L"b");
  test.Add(L"s");
  EXPECT_EQ(0, test.list->RowOfName(L"a"));
  EXPECT_EQ(0, test.list->RowOfName(L"s")) << "the first one";
  EXPECT_EQ(1, test.list->RowOfName(L"b"));
  EXPECT_EQ(-1, test.list->RowOfName(L"B"));
  EXPECT_EQ(-1, test.list->RowOfName(L""));
}

TEST(CListCtrlBookmark, OnlyTheUsersFormatsAreRemoved) {
  BookmarkPage test;
  test.AddHeadings();
  test.Add(L"x");
  test.Add(L"y");
  test.list->SelectRow(1);
  test.list->RemoveSelected();
  EXPECT_EQ(L"heading 1,heading 2,heading 3,x,y", test.Names());
  test.list->SelectRow(3);
  test.list->RemoveSelected();
  EXPECT_EQ(L"heading 1,heading 2,heading 3,y", test.Names());
  EXPECT_EQ(3, test.list->SelectionMark());
  EXPECT_TRUE(test.list->RowState(3, LVIS_SELECTED));
  test.list->RemoveSelected();
  EXPECT_EQ(L"heading 1,heading 2,heading 3", test.Names());
  EXPECT_EQ(2, test.list->SelectionMark());
  EXPECT_TRUE(test.list->RowState(2, LVIS_SELECTED));
  EXPECT_EQ(3, test.living);
}

TEST(CListCtrlBookmark, RemoveAllLeavesUncheckedStandards) {
  BookmarkPage test;
  test.Add(L"x");
  test.AddHeadings();
  test.Add(L"y");
  for (int row = 0; row < 5; ++row) {
    test.At(row).used = true;
    test.list->RefreshRow(row, false);
  }
  test.list->RemoveAll();
  EXPECT_EQ(L"heading 1,heading 2,heading 3", test.Names());
  for (int row = 0; row < 3; ++row) {
    EXPECT_FALSE(test.At(row).used);
    EXPECT_FALSE(test.list->IsChecked(row));
  }
}

// --- Order ----------------------------------------------------------------------------------------------------------

TEST(CListCtrlBookmark, SortsByEachColumn) {
  BookmarkPage test;
  Format& b = test.Add(L"b", kUserDefined, 3);
  Format& a = test.Add(L"a", kStandard, 2);
  Format& upper = test.Add(L"C", kUserDefined, 1);
  b.used = false;
  a.look = L"x";
  b.look = L"y";
  upper.look = L"z";
  const struct {
    int column;
    const wchar_t *ascending, *descending;
  } rows[] = {{1, L"C,a,b", L"b,a,C"},
              {0, L"b,a,C", L"a,C,b"},
              {2, L"a,b,C", nullptr},
              {3, L"a,b,C", L"C,b,a"},
              {4, L"C,a,b", L"b,a,C"}};
  for (const auto& row : rows) {
    test.list->SortByColumn(1, false);
    ASSERT_EQ(L"b,a,C", test.Names());
    if (row.column == 1) test.list->RefreshRow(0, true);
    test.ClickHead(row.column, 1);
    EXPECT_EQ(L"b,a,C", test.Names()) << "only the left button counts";
    test.ClickHead(row.column);
    EXPECT_EQ(row.ascending, test.Names()) << row.column;
    EXPECT_EQ(row.column, test.list->Sorting().column);
    if (!row.descending) continue;
    test.ClickHead(row.column);
    EXPECT_EQ(row.descending, test.Names()) << row.column;
  }
}

TEST(CListCtrlBookmark, EqualRowsKeepTheirOrder) {
  BookmarkPage test;
  for (const wchar_t* name : {L"c", L"a", L"d", L"b"}) test.Add(name, kUserDefined, 1);
  for (const bool ascending : {true, false}) {
    test.list->SortByColumn(4, ascending);
    EXPECT_EQ(L"c,a,d,b", test.Names());
  }
}

TEST(CListCtrlBookmark, SelectionGoesWithItsRow) {
  BookmarkPage test;
  for (const wchar_t* name : {L"c", L"a", L"b"}) test.Add(name);
  test.list->SelectRow(0);
  test.list->SortByColumn(1, true);
  EXPECT_EQ(2, test.list->SelectionMark());
  EXPECT_TRUE(test.list->RowState(2, LVIS_SELECTED));
}

TEST(CListCtrlBookmark, DocumentOrderHasHeadingsFirst) {
  BookmarkPage test(true);
  for (const wchar_t* name : {L"Title", L"heading 2", L"Body Text", L"heading 1"}) test.Add(name, kWordStandard);
  test.list->SortByColumn(1, true);
  test.list->SortInDocumentOrder();
  EXPECT_EQ(L"heading 1,heading 2,Body Text,Title", test.Names());
  EXPECT_EQ(-1, test.list->Sorting().column);
}

TEST(CListCtrlBookmark, SortingEndsTheEditFirst) {
  BookmarkPage test;
  test.Add(L"a");
  test.Add(L"b");
  test.OpenEdit(0);
  test.Type(L"z");
  test.ClickHead(1);
  EXPECT_EQ(L"b,z", test.Names());
  EXPECT_EQ(nullptr, test.list->Edit());
  test.OpenEdit(0);
  test.Type(L"zz");
  test.accepts = false;
  test.ClickHead(1);
  EXPECT_EQ(L"b,z", test.Names()) << "the user is back in the box";
  EXPECT_NE(nullptr, test.list->Edit());
  EXPECT_TRUE(test.list->Sorting().ascending);
}

// --- Edits ----------------------------------------------------------------------------------------------------------

TEST(CListCtrlBookmark, NameIsStrippedAndTold) {
  BookmarkPage test;
  test.Add(L"a");
  test.Add(L"b");
  test.OpenEdit(1);
  test.Type(L"  New name \x00A0 ");
  test.list->SortByColumn(0, true);  // ends the edit
  EXPECT_EQ(1u, test.asked.size());
  EXPECT_EQ(0u, test.asked[0].find(L"1 New name"));
  EXPECT_EQ(1, test.Edits());
  test.OpenEdit(1);
  test.Type(L"  Newer  ");
  test.Press(VK_RETURN);
  EXPECT_EQ(L"1 Newer", test.asked.back());
  EXPECT_EQ(L"a,Newer", test.Names());
  EXPECT_EQ(1, test.Edits());
  EXPECT_EQ(0, test.list->Sorting().column) << "only an order of names is lost";
  test.list->SortByColumn(1, true);
  test.OpenEdit(0);
  test.Press(VK_RETURN);
  EXPECT_EQ(-1, test.list->Sorting().column);
  test.OpenEdit(0);
  test.Type(L"x");
  test.Edits();
  test.Press(VK_ESCAPE);
  EXPECT_EQ(0, test.Edits());
}

TEST(CListCtrlBookmark, RefusedNameIsBackInTheBox) {
  BookmarkPage test;
  test.Add(L"a");
  test.Add(L"b");
  test.accepts = false;
  test.OpenEdit(1);
  test.Type(L"a:");
  test.Press(VK_RETURN);
  EXPECT_EQ(L"1 a:", test.asked.back()) << "asked with no box open";
  EXPECT_EQ(std::vector<std::wstring>{L"a:"}, test.told);
  ASSERT_NE(nullptr, test.list->Edit());
  EXPECT_EQ(1, test.list->EditRow());
  EXPECT_STREQ(L"b", test.list->Edit()->Text().Text());
  EXPECT_TRUE(test.list->Edit()->HasFocus());
  EXPECT_EQ(L"a,b", test.Names());
  EXPECT_EQ(0, test.Edits());
  test.Type(L"c:");
  test.Click(0, 2);
  EXPECT_NE(nullptr, test.list->Edit()) << "the click is not taken";
  EXPECT_EQ(1, test.list->SelectionMark());
  test.Type(L"d:");
  test.control.Send(WM_VSCROLL, SB_LINEDOWN);
  EXPECT_NE(nullptr, test.list->Edit());
  test.Press(VK_ESCAPE);
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_EQ(L"a,b", test.Names());
  EXPECT_EQ(3u, test.asked.size());
  EXPECT_EQ((std::vector<std::wstring>{L"a:", L"c:", L"d:"}), test.told);
}

// A list with a refused name in its box, which has just lost the focus.
class RefusedName : public testing::Test {
 protected:
  RefusedName() {
    test.Add(L"a");
    test.Add(L"b");
    test.accepts = false;
    test.OpenEdit(1);
    test.Type(L" x: ");
  }
  void IsBackInTheBox() {
    EXPECT_EQ(std::vector<std::wstring>{L"x:"}, test.told);
    ASSERT_NE(nullptr, test.list->Edit());
    EXPECT_TRUE(test.list->Edit()->HasFocus());
    EXPECT_STREQ(L"b", test.list->Edit()->Text().Text());
    EXPECT_EQ(1, test.list->EditRow());
  }

  BookmarkPage test;
};

TEST_F(RefusedName, IsToldOfWhenTheFocusHasMoved) {
  test.other.Focus();
  EXPECT_EQ(std::vector<std::wstring>{L"1 x:"}, test.asked);
  EXPECT_TRUE(test.told.empty()) << "no box while the focus is on its way";
  EXPECT_EQ(nullptr, test.list->Edit());
  EXPECT_TRUE(test.other.HasFocus());
  test.RunDialog();
  IsBackInTheBox();
  EXPECT_EQ(L"a,b", test.Names());
}

TEST_F(RefusedName, LeavesTheClickedButtonUnpressed) {
  HWND captured = test.other.Handle();
  test.whileTold = [&captured] { captured = GetCapture(); };
  const LPARAM middle = MAKELPARAM(20, 10);
  test.other.Send(WM_LBUTTONDOWN, MK_LBUTTON, middle);
  EXPECT_TRUE(test.other.Send(BM_GETSTATE) & BST_PUSHED) << "the click goes on without waiting for a box";
  EXPECT_TRUE(test.told.empty());
  test.RunDialog();
  IsBackInTheBox();
  EXPECT_EQ(nullptr, captured) << "the box has the mouse";
  EXPECT_FALSE(test.other.Send(BM_GETSTATE) & BST_PUSHED);
  test.other.Send(WM_LBUTTONUP, 0, middle);
  EXPECT_FALSE(test.WasCommanded(kOtherId));
}

TEST_F(RefusedName, IsToldOfAtOnceBeforeTheRowsAreReadOrMoved) {
  const std::function<void()> steps[] = {
      [this] { test.list->CloseEditors(); },
      [this] { test.list->SortByColumn(1, false); },
      [this] { test.control.Send(WM_VSCROLL, SB_LINEDOWN); },
      [this] { test.list->OpenEdit(0, test.control.CellRect(0, 1)); },
      [this] { test.Click(0, 2); },
  };
  for (const auto& step : steps) {
    test.other.Focus();
    step();
    IsBackInTheBox();
    test.RunDialog();
    IsBackInTheBox();
    EXPECT_EQ(L"a,b", test.Names());
    test.told.clear();
    test.Type(L" x: ");
  }
}

TEST_F(RefusedName, OpensNoBoxInADisabledList) {
  test.control.Enable(false);
  EXPECT_TRUE(test.told.empty());
  test.RunDialog();
  EXPECT_EQ(std::vector<std::wstring>{L"x:"}, test.told);
  EXPECT_EQ(nullptr, test.list->Edit());
}

TEST_F(RefusedName, IsForgottenWithItsRow) {
  test.other.Focus();
  test.list->Clear();
  test.Add(L"c");
  test.Add(L"d");
  test.RunDialog();
  EXPECT_TRUE(test.told.empty());
  EXPECT_EQ(nullptr, test.list->Edit());
}

TEST_F(RefusedName, IsNotToldOfInAHiddenList) {
  test.other.Focus();
  test.control.Show(false);
  test.RunDialog();
  EXPECT_TRUE(test.told.empty());
}

TEST(CListCtrlBookmark, TheQuestionMayEndListAndRow) {
  for (const bool accepts : {true, false})
    for (const bool wholeList : {true, false}) {
      BookmarkPage test;
      test.Add(L"a");
      test.accepts = accepts;
      (accepts ? test.whileAsked : test.whileTold) = [&] {
        wholeList ? static_cast<void>(::DestroyWindow(test.control.Handle())) : test.list->Clear();
      };
      test.OpenEdit(0);
      test.Type(L"b");
      test.Press(VK_RETURN);
      EXPECT_EQ(0, test.living);
      EXPECT_EQ(nullptr, test.list->Edit());
      EXPECT_EQ(0, test.Edits());
    }
}

TEST(CListCtrlBookmark, OnlyNamesOfNoStyleOfWordCanBeEdited) {
  BookmarkPage test;
  for (const Kind kind : {kStandard, kUserDefined, kWordStandard, kWordUserDefined}) test.Add(L"a", kind);
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(row < 2, test.list->CanEditName(row));
    EXPECT_TRUE(test.list->CanEditLevel(row));
  }
  EXPECT_FALSE(test.list->CanEditName(-1));
}

TEST(CListCtrlBookmark, LevelIsChosen) {
  BookmarkPage test;
  Format& format = test.Add(L"a", kUserDefined, 2);
  test.list->SortByColumn(1, true);
  test.list->SelectRow(0);
  test.Click(0, 4);
  ASSERT_NE(nullptr, test.list->Combo());
  EXPECT_EQ(9, test.list->Combo()->Count());
  EXPECT_EQ(1, test.list->Combo()->Selection());
  test.Press(VK_DOWN);
  test.Press(VK_RETURN);
  EXPECT_EQ(3, format.level);
  EXPECT_STREQ(L"3", test.list->CellText(0, 4).Text());
  EXPECT_EQ(-1, test.list->Sorting().column);
  EXPECT_EQ(1, test.Edits());
}

TEST(CListCtrlBookmark, EditsAreToldToTheOwner) {
  BookmarkPage test;
  test.Add(L"a");
  test.list->SetOwner(test.other);
  test.OpenEdit(0);
  test.Press(VK_RETURN);
  EXPECT_EQ(0, test.Edits());
}

TEST(CListCtrlBookmark, CheckBoxReachesTheRecordByMouseOnly) {
  BookmarkPage test;
  Format& format = test.Add(L"a");
  test.Add(L"b");
  test.list->SortByColumn(0, true);
  test.Click(test.CheckPoint(0));
  EXPECT_FALSE(format.used);
  EXPECT_EQ(-1, test.list->Sorting().column);
  test.list->SortByColumn(1, true);
  test.list->Focus();
  test.Press(VK_SPACE);
  EXPECT_TRUE(test.list->IsChecked(0));
  EXPECT_FALSE(format.used);
  test.Click(0, 2);
  EXPECT_TRUE(format.used) << "the next click takes it along";
  EXPECT_EQ(1, test.list->Sorting().column);
}

TEST(CListCtrlBookmark, DraggedColumnClosesTheEditors) {
  for (const UINT code : {static_cast<UINT>(HDN_ENDTRACKW), static_cast<UINT>(HDN_ENDTRACKA)}) {
    BookmarkPage test;
    test.Add(L"a");
    test.OpenEdit(0);
    test.Type(L"b");
    test.Notify(code);
    EXPECT_EQ(nullptr, test.list->Edit());
    EXPECT_EQ(L"b", test.Names());
  }
}

// The double click on a divider takes no focus from the editor.
TEST(CListCtrlBookmark, ColumnThatBecomesAsWideAsItsTextsClosesTheEditors) {
  for (const bool accepts : {true, false}) {
    BookmarkPage test;
    test.Add(L"a");
    test.OpenEdit(0);
    test.Type(L"b");
    test.accepts = accepts;
    const int width = Width(*test.list, 1);
    test.Notify(HDN_DIVIDERDBLCLICKW, 1);
    EXPECT_EQ(accepts, test.list->Edit() == nullptr);
    EXPECT_EQ(accepts, Width(*test.list, 1) != width) << "a refused text keeps the user and the column";
    EXPECT_EQ(accepts ? L"b" : L"a", test.Names());
  }
}

// --- Hint -----------------------------------------------------------------------------------------------------------

TEST(CListCtrlBookmark, HintStandsBelowTheRows) {
  for (const UINT dpi : {96u, 192u})
    for (const bool wordMode : {false, true}) {
      const DpiScope scope(dpi);
      BookmarkPage test(wordMode);
      if (!wordMode) test.AddHeadings();
      test.list->UpdateHint(true);
      ASSERT_NE(nullptr, test.list->Hint());
      EXPECT_STREQ(CTextBox(true, wordMode).NoteText().Text(), test.list->Hint()->NoteText().Text());
      const int scale = static_cast<int>(dpi) / 96;
      const int top = wordMode ? 25 * scale : static_cast<int>(test.control.RowRect(2).bottom) + 10 * scale;
      const RECT rect = test.list->Hint()->RectIn(test.control);
      EXPECT_EQ(0, rect.left);
      EXPECT_EQ(top, rect.top);
      EXPECT_EQ(test.control.ClientRect().right, rect.right);
      EXPECT_EQ(top + 50 * scale, rect.bottom);
      test.list->UpdateHint(false);
      EXPECT_EQ(nullptr, test.list->Hint());
    }
}

TEST(CListCtrlBookmark, HintIsForThreeRowsOrNone) {
  for (const bool wordMode : {false, true}) {
    BookmarkPage test(wordMode);
    for (int rows = 0; rows < 5; ++rows) {
      test.list->UpdateHint(true);
      EXPECT_EQ(rows == (wordMode ? 0 : 3), test.list->Hint() != nullptr) << rows;
      test.Add(L"a");
    }
  }
}

TEST(CListCtrlBookmark, AHintThatStandsIsLeftAlone) {
  BookmarkPage test;
  test.AddHeadings();
  test.list->UpdateHint(true);
  ASSERT_NE(nullptr, test.list->Hint());
  const HWND before = test.list->Hint()->Handle();
  test.list->UpdateHint(true);
  ASSERT_NE(nullptr, test.list->Hint());
  EXPECT_EQ(before, test.list->Hint()->Handle());
  test.list->SetWordMode(true);
  EXPECT_EQ(nullptr, test.list->Hint()) << "its text has changed";
}

TEST(CListCtrlBookmark, HintFollowsTheList) {
  BookmarkPage test;
  test.AddHeadings();
  test.list->UpdateHint(true);
  test.control.Move({10, 10, 250, 160});
  ASSERT_NE(nullptr, test.list->Hint());
  EXPECT_EQ(test.control.ClientRect().right, test.list->Hint()->RectIn(test.control).right);
  const HWND before = test.list->Hint()->Handle();
  for (const UINT message : {WM_HSCROLL, WM_VSCROLL}) {
    test.control.Send(message, SB_LINERIGHT);
    ASSERT_NE(nullptr, test.list->Hint());
    EXPECT_EQ(0, test.list->Hint()->RectIn(test.control).left);
  }
  EXPECT_FALSE(::IsWindow(before));
  const Picture picture = Paint(*test.list->Hint());
  EXPECT_GT(CountPixels(picture, RGB(0, 0, 0)), 10) << "the list lets it draw itself";
}

}  // namespace
