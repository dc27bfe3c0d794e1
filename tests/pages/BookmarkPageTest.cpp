// The bookmark page without its dialog, which has a test of its own.
#include "pages/CBookmarkPage.h"

#include "driver/Popups.h"
#include "PageTable.h"
#include "support/PrintText.h"
#include "support/WordHost.h"

namespace {

constexpr int kPageId = kBookmarkPage;

// Three headings, which no host has to give.
constexpr wchar_t kHeadings[] =
    L"{STYLE:heading 1;1;{FONT:Arial;16;Bold;0.0.0}};{STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;0.0.0}};"
    L"{STYLE:heading 3;3;{FONT:Arial;13;Bold;0.0.0}};";
const std::wstring kOwn = L"{STYLE:own;4;{FONT:Tahoma;10.5;Italic;0.0.255}};{STYLE:plain;2;{FONT:Tahoma;8}};";

const PageTable kTable = {
    .name = "Bookmark",
    .pageId = kPageId,
    .helpLink = IDC_BOOKMARK_HELP_LINK,
    .rows =
        {
            CheckBox(L"OutlineStylesEnabled", IDC_BOOKMARK_USE).Tracked<&BookmarkCockpitValues::outlineStylesEnabled>(),
            Unshown(L"OutlineStyles")
                .Stores({{L"", L"", L""},
                         {L"heading 1;1", L"", L"heading 1;1"},
                         {L"heading 3;3;heading 2;2", L"", L"heading 2;2;heading 3;3"},
                         {L" heading 2 ; 2 ;", L"", L"heading 2;2"},
                         {L"nobody's;4", L"", L""}}),
            Unshown(L"OutlineFormats")
                .Stores({{kHeadings, L"", kHeadings},
                         {L"", L"", kHeadings},
                         {L"nonsense", L"", kHeadings},
                         {L"{STYLE:x;4;{FONT:Tahoma;10,5}};{STYLE:broken};", L"",
                          (kHeadings + std::wstring(L"{STYLE:x;4;{FONT:Tahoma;10.5}};")).c_str()}}),
            Unshown(L"OutlineStyleNames").Stores({{L"as it is", L"", L"as it is"}}),
        },
};
const PageTableEntry entry(kTable);

constexpr int kControls[] = {1290, 1310, 1312, 1311, 1305, 1306};

class BookmarkPage : public testing::Test {
 protected:
  BookmarkPage() {
    test_.Set(L"OutlineStylesEnabled", 1);
    test_.Sheet().properties.MsgBoxTitle.SetString(L"Title");
  }
  ControlRef Control(int id) { return test_.Control(id); }
  CListCtrlBookmark& List() {
    return dynamic_cast<CListCtrlBookmark&>(*CSubclassedControl::FromHandle(Control(1290).Window()));
  }
  std::wstring Row(int row) {
    std::wstring text = List().IsChecked(row) ? L"+" : L"-";
    for (int column = 1; column < 5; ++column) text += std::wstring(L"|") + List().CellText(row, column).Text();
    return text;
  }
  std::wstring Names() {
    std::wstring names;
    for (int row = 0; row < List().Count(); ++row)
      names += std::wstring(row ? L"," : L"") + List().CellText(row, 1).Text();
    return names;
  }
  std::vector<int> Enabled() { return test_.Enabled(kControls); }
  // What the user types into the cell of the selected row; the edit stays open.
  void StartTyping(const wchar_t* name) {
    List().Focus();
    List().Send(WM_KEYDOWN, VK_F2, 1);
    ASSERT_NE(nullptr, List().Edit());
    List().Edit()->SetText(name);
  }
  void TypeName(const wchar_t* name) {
    ASSERT_NO_FATAL_FAILURE(StartTyping(name));
    List().Edit()->Send(WM_KEYDOWN, VK_RETURN, 1);
  }
  void ExpectQuestion(int answer) {
    popups_.ExpectBox({.title = L"Title",
                       .text = L"Do you really want to remove all user-defined bookmark formats?",
                       .icon = MB_ICONQUESTION,
                       .button = answer});
    if (answer == IDYES)
      popups_.ExpectBox(
          {.title = L"Title",
           .text = L"All user-defined styles were deleted. The standard-styles were deactivated but not deleted.",
           .icon = MB_ICONINFORMATION});
  }
  void ExpectTaken(const std::wstring& name) {
    popups_.ExpectBox({.title = L"Title",
                       .text = L"The name '" + name +
                               L"' is already used for another bookmark format. Please choose a unambiguous name.",
                       .icon = MB_ICONERROR});
  }
  void Command(int id) {
    test_.Page().Send(WM_COMMAND, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(Control(id).Window()));
  }
  std::wstring Saved(const wchar_t* property) {
    EXPECT_TRUE(test_.Save());
    return test_.Value(property);
  }

  PageUnderTest test_{kPageId};
  Popups popups_;
};

// --- The list ------------------------------------------------------------------------------------------------------

TEST_F(BookmarkPage, AFreshPageShowsTheHeadings) {
  ASSERT_TRUE(test_.Open());
  ASSERT_EQ(3, List().Count());
  EXPECT_EQ(L"-|Heading 1|Standard|Arial, 16, Bold, Black|1", Row(0));
  EXPECT_EQ(L"-|Heading 2|Standard|Arial, 14, Bold, Italic, Black|2", Row(1));
  EXPECT_EQ(L"-|Heading 3|Standard|Arial, 13, Bold, Black|3", Row(2));
  EXPECT_EQ(-1, List().SelectionMark());
  EXPECT_EQ((std::vector<int>{1290, 1310}), Enabled());
  ASSERT_NE(nullptr, List().Hint());
  EXPECT_STREQ(
      L"You can adjust the standard formats by pressing 'Edit'. Please press 'New' or 'Copy' to create a user defined "
      L"format.",
      List().Hint()->NoteText().Text());
  EXPECT_NE(0, List().Send(LVM_GETHEADER));
  EXPECT_EQ(5, List().ColumnCount());
}

TEST_F(BookmarkPage, ColumnsHaveTheirTitles) {
  ASSERT_TRUE(test_.Open());
  const wchar_t* titles[] = {L"", L"Name", L"Type", L"Format", L"Level"};
  for (int column = 0; column < 5; ++column) {
    wchar_t title[32] = L"?";
    LVCOLUMNW info{};
    info.mask = LVCF_TEXT;
    info.pszText = title;
    info.cchTextMax = 32;
    List().Send(LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&info));
    EXPECT_STREQ(titles[column], title);
  }
}

TEST_F(BookmarkPage, FormatsShowWithTheirLevelsInUse) {
  test_.Set(L"OutlineFormats", kOwn);
  test_.Set(L"OutlineStyles", L"plain;5");
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,own,plain", Names());
  EXPECT_EQ(L"-|own|User Def.|Tahoma, 10.5, Italic, Blue|4", Row(3));
  EXPECT_EQ(L"+|plain|User Def.|Tahoma, 8, No Color|5", Row(4));
  EXPECT_EQ(nullptr, List().Hint());
  EXPECT_EQ(CListCtrlBookmark::kNameColumn, List().Sorting().column);
  EXPECT_TRUE(List().Sorting().ascending);
  EXPECT_EQ(L"plain;5", Saved(L"OutlineStyles"));
  EXPECT_EQ(
      kHeadings + std::wstring(L"{STYLE:own;4;{FONT:Tahoma;10.5;Italic;0.0.255}};{STYLE:plain;5;{FONT:Tahoma;8}};"),
      test_.Value(L"OutlineFormats"));
}

TEST_F(BookmarkPage, ShowingAgainRebuildsTheRows) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  List().SortByColumn(CListCtrlBookmark::kLevelColumn, false);
  List().SelectRow(1);
  test_.Page().OnSetActive();
  test_.Page().OnSetActive();
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,own,plain", Names());
  EXPECT_EQ(-1, List().SelectionMark());
  EXPECT_EQ(5, List().ColumnCount());
}

TEST_F(BookmarkPage, RowsAreSavedInTheirOrder) {
  test_.Set(L"OutlineFormats", kHeadings);
  test_.Set(L"OutlineStyles", L"heading 1;1;heading 3;3");
  ASSERT_TRUE(test_.Open());
  List().SortByColumn(CListCtrlBookmark::kNameColumn, false);
  EXPECT_EQ(L"heading 3;3;heading 1;1", Saved(L"OutlineStyles"));
}

TEST_F(BookmarkPage, OneBoxTellsThatStylesAreTooMany) {
  std::wstring styles, formats;
  for (int i = 0; i < 4; ++i) {
    const std::wstring name = std::wstring(100, L'a') + std::to_wstring(i);
    styles += name + L";1;";
    formats += L"{STYLE:" + name + L";1;{FONT:Arial;" + std::to_wstring(i + 1) + L"}};";
  }
  test_.Set(L"OutlineStyles", styles);
  test_.Set(L"OutlineFormats", formats);
  ASSERT_TRUE(test_.Open());
  popups_.ExpectBox({.title = L"NEM pdf AddIn UI",
                     .text = L"Unable to save all used bookmark styles. Please reduce the number of styles that should "
                             L"be used to generate bookmarks.",
                     .icon = MB_ICONEXCLAMATION});
  EXPECT_EQ(std::wstring(100, L'a') + L"0;1;" + std::wstring(100, L'a') + L"1;1", Saved(L"OutlineStyles"));
  EXPECT_NE(std::wstring::npos, test_.Value(L"OutlineFormats").find(L"aaa3;1"));
}

TEST_F(BookmarkPage, EveryFormatComesBackAsItWas) {
  const std::wstring colours = L"{STYLE:a;1;{FONT:x;1.5;Bold;Italic;Underline;1.2.3}};{STYLE:b;9;{FONT:x;999}};";
  const std::wstring renamed = L"{STYLE:heading 2,My name;2;{FONT:Arial;14;Bold;Italic;0.0.0}};";
  test_.Set(L"OutlineFormats", colours + renamed);
  test_.Set(L"OutlineStyles", L"heading 2,My name;7");
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"Heading 1,Heading 3,My name,a,b", Names());
  EXPECT_EQ(L"+|My name|Standard|Arial, 14, Bold, Italic, Black|7", Row(2));
  EXPECT_EQ(L"heading 2,My name;7", Saved(L"OutlineStyles"));
  const std::wstring saved = test_.Value(L"OutlineFormats");
  EXPECT_NE(std::wstring::npos, saved.find(colours));
  EXPECT_NE(std::wstring::npos, saved.find(L"{STYLE:heading 2,My name;7;"));
}

// --- What is enabled -----------------------------------------------------------------------------------------------

TEST_F(BookmarkPage, ControlsFollowSwitchAndSelection) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ((std::vector<int>{1290, 1310, 1306}), Enabled());
  Control(1290).Select(0);
  EXPECT_EQ((std::vector<int>{1290, 1310, 1312, 1311, 1306}), Enabled()) << "a standard format stays";
  Control(1290).Select(3);
  EXPECT_EQ((std::vector<int>{1290, 1310, 1312, 1311, 1305, 1306}), Enabled());
  Control(1285).Click();
  EXPECT_EQ(std::vector<int>(), Enabled());
  Control(1285).Click();
  EXPECT_EQ((std::vector<int>{1290, 1310, 1312, 1311, 1305, 1306}), Enabled());
}

TEST_F(BookmarkPage, SelectionByKeyCounts) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(2);
  List().Send(WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(3, List().SelectionMark());
  EXPECT_TRUE(Control(1305).IsEnabled());
  List().Send(WM_KEYDOWN, VK_UP, 1);
  EXPECT_EQ(2, List().SelectionMark());
  EXPECT_FALSE(Control(1305).IsEnabled());
}

TEST_F(BookmarkPage, HintNeedsThreeRowsAndTheSwitch) {
  ASSERT_TRUE(test_.Open());
  EXPECT_NE(nullptr, List().Hint());
  Control(1285).Click();
  EXPECT_EQ(nullptr, List().Hint());
  Control(1285).Click();
  EXPECT_NE(nullptr, List().Hint());
}

TEST_F(BookmarkPage, SelectAllIsHiddenAndKeepsItsCommand) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  EXPECT_FALSE(CWnd(Control(1329).Window()).IsShown());
  EXPECT_FALSE(Control(1329).IsChecked());
  for (const bool use : {false, true}) {
    Control(1285).Click();
    EXPECT_EQ(use, Control(1329).IsEnabled());
  }
  for (const bool all : {true, false}) {
    CButton(Control(1329).Window()).SetCheck(all);
    Command(1329);
    for (int row = 0; row < 5; ++row) EXPECT_EQ(all, List().IsChecked(row));
    EXPECT_EQ(all, Control(1329).IsChecked());
    EXPECT_EQ(all ? L"heading 1;1;heading 2;2;heading 3;3;own;4;plain;2" : L"", Saved(L"OutlineStyles"));
    EXPECT_FALSE(CWnd(Control(1329).Window()).IsShown());
  }
  for (int row = 0; row < 5; ++row) Control(1290).CheckRow(row, true);
  EXPECT_TRUE(Control(1329).IsChecked()) << "it says whether all are checked";
  Control(1290).CheckRow(2, false);
  EXPECT_FALSE(Control(1329).IsChecked());
}

// --- Removing ------------------------------------------------------------------------------------------------------

TEST_F(BookmarkPage, ButtonAndKeyRemoveTheUsersFormats) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  Control(1305).Click();
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,plain", Names());
  EXPECT_TRUE(Control(1306).IsEnabled());
  EXPECT_EQ(3, List().SelectionMark());
  EXPECT_TRUE(List().RowState(3, LVIS_SELECTED));
  List().Focus();
  List().Send(WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3", Names());
  EXPECT_EQ((std::vector<int>{1290, 1310, 1312, 1311}), Enabled()) << "a standard format is selected";
  EXPECT_NE(nullptr, List().Hint());
  List().Send(WM_KEYDOWN, VK_DELETE, 1);
  Command(1305);
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3", Names());
  EXPECT_EQ(kHeadings, Saved(L"OutlineFormats"));
}

TEST_F(BookmarkPage, RemovingAllAsksAndLeavesUnusedStandards) {
  for (const int answer : {IDNO, IDYES}) {
    PageUnderTest test(kPageId);
    test.Set(L"OutlineStylesEnabled", 1);
    test.Set(L"OutlineFormats", kHeadings + kOwn);
    test.Set(L"OutlineStyles", L"own;4;heading 2;2");
    test.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    ASSERT_TRUE(test.Open());
    ExpectQuestion(answer);
    test.Control(1290).Select(3);
    test.Control(1306).Click();
    EXPECT_EQ(answer == IDYES ? 3 : 5, test.Control(1290).RowCount());
    EXPECT_EQ(answer == IDNO, test.Control(1290).IsRowChecked(1));
    EXPECT_EQ(answer == IDNO, test.Control(1306).IsEnabled());
    EXPECT_EQ(answer == IDNO, test.Control(1311).IsEnabled()) << "nothing is selected any more";
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(answer == IDYES ? L"" : L"heading 2;2;own;4", test.Value(L"OutlineStyles"));
  }
  EXPECT_EQ((std::vector<int>{IDYES, IDNO}), popups_.Boxes()[0].buttons);
}

TEST_F(BookmarkPage, RemovingAllLeavesTheSelectionOfARowThatStays) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(1);
  ExpectQuestion(IDYES);
  Control(1306).Click();
  EXPECT_EQ(3, List().Count());
  EXPECT_EQ(1, List().SelectionMark());
  EXPECT_TRUE(Control(1311).IsEnabled());
}

// The user closes the whole sheet, as it were, while the question is up.
TEST_F(BookmarkPage, PageMayEndInTheQuestion) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  popups_.Loop().Post([&] { DestroyWindow(test_.Page().Handle()); });
  popups_.ExpectBox({.title = L"Title",
                     .text = L"Do you really want to remove all user-defined bookmark formats?",
                     .icon = MB_ICONQUESTION,
                     .button = IDYES});
  SendMessageW(test_.Page().Handle(), WM_COMMAND, 1306, 0);
  EXPECT_FALSE(test_.Page().IsWindow());
}

// --- Edits in place ------------------------------------------------------------------------------------------------

TEST_F(BookmarkPage, NamesAreEditedInTheList) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  TypeName(L"  My own ");
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,My own,plain", Names());
  Control(1290).Select(0);
  TypeName(L"Chapter");
  EXPECT_EQ(L"Chapter,Heading 2,Heading 3,My own,plain", Names());
  EXPECT_EQ(-1, List().Sorting().column);
  const std::wstring saved = Saved(L"OutlineFormats");
  EXPECT_NE(std::wstring::npos, saved.find(L"{STYLE:My own;4;")) << "a user's style is named alike";
  EXPECT_NE(std::wstring::npos, saved.find(L"{STYLE:heading 1,Chapter;1;")) << "a standard style is not";
}

TEST_F(BookmarkPage, BadNamesAreRefused) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  for (const std::wstring name : {L"", L"a,b", L"a;b", L"a.b", L"a:b", L"a{b", L"a}b", L"a(b", L"a)b", L"a\"b"}) {
    popups_.ExpectBox({.title = L"Title",
                       .text = L"'" + name +
                               L"' is not a valid name. Please choose a nonempty string, which contains none of "
                               L"following characters ',;.:{}()'",
                       .icon = MB_ICONERROR});
    TypeName((L" " + name).c_str());
    ASSERT_NE(nullptr, List().Edit()) << "the user is back in the box";
    EXPECT_STREQ(L"own", List().Edit()->Text().Text());
    List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
  }
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,own,plain", Names());
}

TEST_F(BookmarkPage, TakenNamesAreRefused) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  for (const std::wstring name : {L"plain", L"Heading 1", L"heading 1"}) {  // display names and styles
    ExpectTaken(name);
    TypeName(name.c_str());
    ASSERT_NE(nullptr, List().Edit());
    List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
  }
  TypeName(L"own");
  TypeName(L"Plain");
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,Plain,plain", Names()) << "case counts, and one's own name is free";
}

TEST_F(BookmarkPage, OfTwoEqualNamesTheUpperStays) {
  test_.Set(L"OutlineFormats", L"{STYLE:a;1;{FONT:Arial;8}};{STYLE:a;2;{FONT:Arial;9}};");
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  TypeName(L" a ");
  EXPECT_EQ(nullptr, List().Edit());
  Control(1290).Select(4);
  ExpectTaken(L"a");
  TypeName(L" a ");
  ASSERT_NE(nullptr, List().Edit());
  List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
}

// The user is back in the edit, and nothing else has happened.
TEST_F(BookmarkPage, ARefusedNameComesBeforeEveryCommand) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  for (const int id : {1310, 1312, 1311, 1305, 1306}) {
    ASSERT_NO_FATAL_FAILURE(StartTyping(L"plain"));
    ExpectTaken(L"plain");
    Command(id);
    popups_.CheckAllCame();
    ASSERT_NE(nullptr, List().Edit()) << id;
    EXPECT_EQ(5, List().Count()) << id;
    EXPECT_TRUE(Control(1311).IsEnabled()) << "no dialog by " << id;
    List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
  }
}

TEST_F(BookmarkPage, SavingTakesAnOpenEditAlong) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  ASSERT_NO_FATAL_FAILURE(StartTyping(L"typed"));
  EXPECT_NE(std::wstring::npos, Saved(L"OutlineFormats").find(L"{STYLE:typed;"));

  ASSERT_NO_FATAL_FAILURE(StartTyping(L"a:b"));
  popups_.ExpectBox({.title = L"Title",
                     .text = L"'a:b' is not a valid name. Please choose a nonempty string, which contains none of "
                             L"following characters ',;.:{}()'",
                     .icon = MB_ICONERROR});
  EXPECT_FALSE(test_.Page().OnKillActive()) << "a refused name keeps the user there";
  EXPECT_NE(nullptr, List().Edit());
  List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
}

TEST_F(BookmarkPage, ARefusedNameThatHasLostTheFocusIsToldOfBeforeSaving) {
  test_.Set(L"OutlineFormats", kOwn);
  ASSERT_TRUE(test_.Open());
  Control(1290).Select(3);
  ASSERT_NO_FATAL_FAILURE(StartTyping(L"plain"));
  Control(1310).Focus();
  EXPECT_TRUE(popups_.Boxes().empty()) << "no box while the focus is on its way";
  EXPECT_EQ(nullptr, List().Edit());
  ExpectTaken(L"plain");
  EXPECT_FALSE(test_.Page().OnKillActive());
  ASSERT_NE(nullptr, List().Edit());
  List().Edit()->Send(WM_KEYDOWN, VK_ESCAPE, 1);
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,own,plain", Names());
}

TEST_F(BookmarkPage, CheckBoxesAreSaved) {
  ASSERT_TRUE(test_.Open());
  List().SelectRow(1);
  const RECT row = List().RowRect(1);
  POINT box{row.left + 6, (row.top + row.bottom) / 2};
  List().Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(box.x, box.y));
  List().Send(WM_LBUTTONUP, 0, MAKELPARAM(box.x, box.y));
  ASSERT_TRUE(List().IsChecked(1));
  EXPECT_EQ(L"heading 2;2", Saved(L"OutlineStyles"));
}

// --- Word ----------------------------------------------------------------------------------------------------------

constexpr wchar_t kWordFormats[] =
    L"{STYLE:Title;1;{FONT:Arial;20}};{STYLE:heading 2;2;{FONT:Arial;14}};{STYLE:Mine;3;{FONT:Arial;9}};"
    L"{STYLE:heading 1;1;{FONT:Arial;16}};";

TEST_F(BookmarkPage, AnyOtherHostIsNotWord) {
  test_.Set(L"InternalUse", 2);
  test_.Set(L"OutlineFormats", kWordFormats);
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"Heading 1,Heading 2,Heading 3,Mine,Title", Names());
  EXPECT_EQ(nullptr, GetDlgItem(test_.Page().Handle(), IDC_BOOKMARK_NOTE));
  EXPECT_TRUE(CWnd(Control(1310).Window()).IsShown());
}

TEST_F(BookmarkPage, WordNeedsItsBit) {
  if (!IsInWord()) return RunInWord();
  test_.Set(L"InternalUse", ~2);
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(3, List().Count());
}

TEST_F(BookmarkPage, UnderWordTheStylesOfTheDocumentStand) {
  if (!IsInWord()) return RunInWord();
  test_.Set(L"InternalUse", 2 | 4);
  test_.Set(L"OutlineFormats", kWordFormats);
  test_.Set(L"OutlineStyles", L"heading 1;1");
  ASSERT_TRUE(test_.Open());
  ASSERT_EQ(4, List().Count()) << "no defaults";
  EXPECT_EQ(L"+|Heading 1|Word std.|Arial, 16, No Color|1", Row(0));
  EXPECT_EQ(L"-|Heading 2|Word std.|Arial, 14, No Color|2", Row(1));
  EXPECT_EQ(L"-|Mine|Word User Def.|Arial, 9, No Color|3", Row(2));
  EXPECT_EQ(L"-|Title|Word std.|Arial, 20, No Color|1", Row(3));
  EXPECT_EQ(List().Scale(80), static_cast<int>(List().Send(LVM_GETCOLUMNWIDTH, 2)));
  EXPECT_EQ(List().Scale(120), static_cast<int>(List().Send(LVM_GETCOLUMNWIDTH, 3)));
  for (const int id : {1310, 1312, 1305, 1306}) EXPECT_FALSE(CWnd(Control(id).Window()).IsShown()) << id;
  Control(1290).Select(2);
  EXPECT_EQ((std::vector<int>{1290, 1311}), Enabled());
  EXPECT_FALSE(List().CanEditName(2));
  EXPECT_TRUE(List().CanEditLevel(2));
  List().Send(WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(4, List().Count());
  EXPECT_EQ(L"heading 1;1", Saved(L"OutlineStyles"));
}

TEST_F(BookmarkPage, UnderWordANoteStandsBelow) {
  if (!IsInWord()) return RunInWord();
  test_.Set(L"InternalUse", 2);
  test_.Set(L"OutlineFormats", kWordFormats);
  ASSERT_TRUE(test_.Open());
  const CWnd note = Control(IDC_BOOKMARK_NOTE).Window() ? CWnd(Control(IDC_BOOKMARK_NOTE).Window()) : CWnd();
  ASSERT_TRUE(note.IsWindow());
  EXPECT_EQ(0u, std::wstring(note.Text().Text()).find(L"In the summary window all styles included in Word are shown."));
  const CWnd page(test_.Page().Handle());
  const RECT place = note.RectIn(page), size = page.Item(1480).RectIn(page);
  EXPECT_EQ(page.Scale(20), place.left);
  EXPECT_EQ(page.ClientRect().bottom * 70 / 100, place.top);
  EXPECT_EQ(size.right - size.left, place.right - place.left);
  EXPECT_EQ(size.bottom - size.top, place.bottom - place.top);
  EXPECT_LT(place.right, page.ClientRect().right);
  EXPECT_LT(place.bottom, page.Item(1284).RectIn(page).top);
  test_.Page().OnSetActive();
  test_.Page().OnSetActive();
  EXPECT_EQ(note.Handle(), Control(IDC_BOOKMARK_NOTE).Window()) << "once";
}

TEST_F(BookmarkPage, UnderWordAnEmptyListSaysWhy) {
  if (!IsInWord()) return RunInWord();
  test_.Set(L"InternalUse", 2);
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(0, List().Count());
  ASSERT_NE(nullptr, List().Hint());
  EXPECT_STREQ(L"No styles could be read from the document. Perhaps the document protection type is too high.",
               List().Hint()->NoteText().Text());
  EXPECT_FALSE(Control(1329).IsEnabled());
  Control(1285).Click();
  EXPECT_EQ(nullptr, List().Hint());
}

}  // namespace
