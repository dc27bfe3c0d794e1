#include "pages/CNemUIAttachmentsPage.h"

#include "driver/CommonDialogs.h"
#include "driver/ImportPatch.h"
#include "driver/Input.h"
#include "driver/SheetDriver.h"
#include "pages/CNemUIFormatPage.h"
#include "pages/CNemUILinksPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/ControlPictures.h"
#include "support/DropRecord.h"
#include "support/FileDialogSpy.h"
#include "support/TempFile.h"
#include "support/TracedThread.h"

namespace {

constexpr wchar_t kMissing[] = L"C:\\not there\\a.doc";

const PageTable kTable = {
    .name = "Attachments",
    .pageId = kAttachmentsPage,
    .rows = {CheckBox(L"EmbedFilenamesEnabled", IDC_ATTACHMENTS_USE)
                 .Given({{L"EmbedFilenames", L"\"C:\\not there\\a.doc\""}})
                 .Tracked<&AttachmentsCockpitValues::embedFilenamesEnabled>()},
};
const PageTableEntry entry(kTable);

using Values = PageUnderTest::Values;
using Texts = std::vector<std::wstring>;

std::wstring Quoted(const std::wstring& path) { return L'"' + path + L'"'; }

std::wstring FullPath(const TempFile& file) {
  wchar_t path[MAX_PATH];
  return {path, GetFullPathNameW(file.Name(), MAX_PATH, path, nullptr)};
}

class AttachmentsPage : public testing::Test {
 protected:
  AttachmentsPage() {
    for (TempFile* file : {&first_, &second_}) file->Put("x");
  }

  void Open(const std::wstring& files = L"", int enabled = 1) {
    test.Set(L"EmbedFilenames", files);
    test.Set(L"EmbedFilenamesEnabled", enabled);
    ASSERT_TRUE(test.Open());
  }
  CNemUIAttachmentsPage& Page() { return test.As<CNemUIAttachmentsPage>(); }
  ControlRef List() { return test.Control(IDC_ATTACHMENTS_LIST); }
  CListBoxST& ListBox() { return dynamic_cast<CListBoxST&>(*CSubclassedControl::FromHandle(List().Window())); }
  void SelectRow(int row) { SendMessageW(List().Window(), LB_SETSEL, TRUE, row); }
  std::wstring Saved() {
    EXPECT_TRUE(test.Save());
    return test.Value(L"EmbedFilenames");
  }
  void ExpectTooMany() { popups_.ExpectBox({.title = L"Error", .text = L"Too many attachments made", .icon = 0}); }
  void Drop(int control, const Texts& paths) { DropOn(test.Page().Handle(), control, paths); }
  std::vector<int> Enabled() {
    return test.Enabled(
        std::vector<int>{IDC_ATTACHMENTS_USE, IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_ADD, IDC_ATTACHMENTS_REMOVE});
  }
  // The format page of the same tab, with this version.
  void AddFormatPage(int version) {
    test.Set(L"PdfVersion", version);
    format_ = MakeCataloguePage(&test.Sheet(), kFormatPage, 0);
    test.Sheet().pages[kFormatPage] = format_.get();
  }
  // A double click as the mouse makes it, at a point of the list.
  void DoubleClick(POINT point) {
    POINT screen = point;
    ClientToScreen(List().Window(), &screen);
    SetCursorPos(screen.x, screen.y);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
      PostMessageW(List().Window(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(point.x, point.y));
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
  }
  POINT MiddleOf(int row) {
    RECT rect{};
    SendMessageW(List().Window(), LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }

  const std::vector<int> kNone, kSwitch{IDC_ATTACHMENTS_USE},
      kAll{IDC_ATTACHMENTS_USE, IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_ADD, IDC_ATTACHMENTS_REMOVE};
  TempFile first_{"first attachment.txt"}, second_{"second.txt"};
  const std::wstring path1_ = FullPath(first_), path2_ = FullPath(second_);
  Popups popups_;
  std::unique_ptr<CNemUIPage> format_;
  PageUnderTest test{kAttachmentsPage};
};

}  // namespace

// --- The list ------------------------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, RowsShowThePathsAndMarkWhatIsMissing) {
  Open(Quoted(path2_) + L";" + Quoted(kMissing) + L";" + Quoted(path1_));
  EXPECT_EQ((Texts{path2_, std::wstring(L"MISSING: ") + kMissing, path1_}), List().Rows());
  for (const int row : {0, 1, 2}) {
    EXPECT_EQ(row == 1 ? 1 : 0, ListBox().ItemImage(row)) << row;
    EXPECT_EQ(static_cast<uint32_t>(row), ListBox().ItemData(row));
  }
  EXPECT_TRUE(ListBox().HasImages());
  EXPECT_TRUE(Page().anyMissing);
}

TEST_F(AttachmentsPage, FoundAndMissingFilesHaveTheirPicturesSelectedOrNot) {
  constexpr ListPicture kPictures[] = {{502, 504}, {505, 507}, {503, 504}, {506, 507}};
  Open(Quoted(path1_) + L";" + Quoted(kMissing));
  for (const int row : {0, 1}) {
    SendMessageW(List().Window(), LB_SETSEL, FALSE, -1);
    SelectRow(row);
    const std::vector<uint32_t> before = Print(ListBox());
    ASSERT_TRUE(ListBox().SetImages(kPictures, SecondHalf::Selected));
    EXPECT_TRUE(Print(ListBox()) == before) << row;
  }
}

// A drive without a disk would bring up a box of the system.
TEST_F(AttachmentsPage, FilesAreLookedForWithoutABoxOfTheSystem) {
  static decltype(&FindFirstFileW) real;
  static DWORD modeOfSearch;
  real = RealFunction("kernel32.dll", "FindFirstFileW", &FindFirstFileW);
  HANDLE(WINAPI* const search)
  (LPCWSTR, WIN32_FIND_DATAW*) = [](LPCWSTR path, WIN32_FIND_DATAW* entry) {
    modeOfSearch = GetThreadErrorMode();
    return real(path, entry);
  };
  DWORD former = 0;
  SetThreadErrorMode(0, &former);
  PatchImport("kernel32.dll", "FindFirstFileW", reinterpret_cast<void*>(search));
  Open(Quoted(path1_));
  RestoreImport("kernel32.dll", "FindFirstFileW");
  EXPECT_EQ(DWORD{SEM_FAILCRITICALERRORS}, modeOfSearch);
  EXPECT_EQ(0u, GetThreadErrorMode()) << "the host's own again";
  SetThreadErrorMode(former, nullptr);
}

TEST_F(AttachmentsPage, WithoutAMissingFileNoneIsNoted) {
  Open(Quoted(path1_));
  EXPECT_FALSE(Page().anyMissing);
}

TEST_F(AttachmentsPage, AFileThatIsThereAgainIsMarkedNoMore) {
  second_.Delete();
  Open(Quoted(path2_));
  EXPECT_EQ(Texts{L"MISSING: " + path2_}, List().Rows());
  second_.Put("x");
  ASSERT_TRUE(test.Page().OnKillActive());
  for (int i = 0; i < 2; ++i) test.Page().OnSetActive();  // the first follows the start, which has filled the controls
  EXPECT_EQ(Texts{path2_}, List().Rows());
  EXPECT_FALSE(Page().anyMissing);
  EXPECT_EQ(Quoted(path2_), Saved());
}

TEST_F(AttachmentsPage, MissingFilesStayInTheListUnchanged) {
  const std::wstring files = Quoted(kMissing) + L";" + Quoted(path1_) + L";" + Quoted(L"MISSING: ");
  Open(files);
  EXPECT_EQ(files, Saved());
  EXPECT_EQ(files, Saved());
}

TEST_F(AttachmentsPage, AnotherLanguageMeanwhileLosesNothingOfAPath) {
  Open(Quoted(kMissing));
  const LanguageScope french(0x040C);
  EXPECT_EQ(Quoted(kMissing), Saved());
}

TEST_F(AttachmentsPage, PathsWithoutQuotesAreReadAndGetThem) {
  Open(path1_ + L";;" + kMissing + L";");
  EXPECT_EQ((Texts{path1_, std::wstring(L"MISSING: ") + kMissing}), List().Rows());
  EXPECT_EQ(Quoted(path1_) + L";" + Quoted(kMissing), Saved());
}

TEST_F(AttachmentsPage, ALongPathOfTheHostIsKept) {
  const std::wstring path = L"C:\\" + std::wstring(300, L'x');
  Open(Quoted(path) + L";" + Quoted(path1_));
  EXPECT_EQ(Quoted(path) + L";" + Quoted(path1_), Saved());
}

TEST_F(AttachmentsPage, ARowThatCannotBeAddedIsTraced) {
  TracedThread trace;
  Open();
  static WNDPROC real;
  real = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(List().Window(), GWLP_WNDPROC));
  const WNDPROC full = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
    return message == LB_ADDSTRING ? LB_ERRSPACE : CallWindowProcW(real, window, message, wParam, lParam);
  };
  SetWindowLongPtrW(List().Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(full));
  trace.Lines();
  Page().embedFilenames = Quoted(path1_).c_str();
  EXPECT_TRUE(test.Page().UpdateData(false));
  EXPECT_EQ(Texts{L"CFileAttachmentDialog::DoDataExchange: EmbedFilename " + path1_ + L" not added"}, trace.Lines());
  EXPECT_EQ(0, List().RowCount());
  SetWindowLongPtrW(List().Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(real));
}

TEST_F(AttachmentsPage, AListWithoutRowsIsSavedAsOff) {
  Open(L"", 1);
  EXPECT_TRUE(test.Control(IDC_ATTACHMENTS_USE).IsChecked());
  EXPECT_EQ(L"", Saved());
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
}

// --- Confirmation and showing --------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, ConfirmationIsChosenFromItsRows) {
  Open(Quoted(path1_));
  const ControlRef confirm = test.Control(IDC_ATTACHMENTS_CONFIRM);
  EXPECT_EQ((Texts{L"NEVER confirm embedding of file attachments", L"ALWAYS confirm embedding of file attachments",
                   L"only confirm missing file attachments"}),
            confirm.Rows());
  for (const int row : {2, 1, 0}) {
    confirm.Select(row);
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(std::to_wstring(row), test.Value(L"EmbedfilenamesConfirmed"));
  }
}

TEST_F(AttachmentsPage, StoredConfirmationIsShownAndAnUnknownOneIsTheFirst) {
  const std::pair<int, int> rows[] = {{0, 0}, {1, 1}, {2, 2}, {3, 0}, {-1, 0}, {65537, 0}};
  for (const auto& [stored, row] : rows) {
    PageUnderTest page(kAttachmentsPage);
    page.Set(L"EmbedfilenamesConfirmed", stored);
    ASSERT_TRUE(page.Open());
    EXPECT_EQ(row, page.Control(IDC_ATTACHMENTS_CONFIRM).SelectedRow()) << stored;
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(std::to_wstring(row), page.Value(L"EmbedfilenamesConfirmed")) << stored;
  }
}

TEST_F(AttachmentsPage, WithoutAConfirmationSavingFailsAndGoesOn) {
  test.Set(L"EmbedfilenamesConfirmed", 2);
  Open(Quoted(path1_));
  SendMessageW(test.Control(IDC_ATTACHMENTS_CONFIRM).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  test.Control(IDC_ATTACHMENTS_SHOW).Click();
  test.Control(IDC_ATTACHMENTS_USE).Click();
  EXPECT_FALSE(test.Page().UpdateData(true));
  EXPECT_EQ(0, Page().embedfilenamesConfirmed);
  EXPECT_EQ(1, Page().embedfilenamesOpen);
  EXPECT_EQ(0, Page().embedFilenamesEnabled);
}

TEST_F(AttachmentsPage, OpeningIsAnyNumberAndSavedAsOneOrNone) {
  for (const int stored : {0, 1, 7}) {
    PageUnderTest page(kAttachmentsPage);
    page.Set(L"EmbedfilenamesOpen", stored);
    ASSERT_TRUE(page.Open());
    EXPECT_EQ(stored != 0, page.Control(IDC_ATTACHMENTS_SHOW).IsChecked());
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(stored ? L"1" : L"0", page.Value(L"EmbedfilenamesOpen"));
    page.Control(IDC_ATTACHMENTS_SHOW).Click();
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(stored ? L"0" : L"1", page.Value(L"EmbedfilenamesOpen"));
  }
}

TEST_F(AttachmentsPage, TheDocumentShowsThemAsTheBasicSettingsHaveThemAndLeavesThemAlone) {
  PageUnderTest page(kAttachmentsPage, 1);
  CDialogProperties& properties = page.Sheet().properties;
  properties.EmbedfilenamesConfirmed[1].SetLong(1);
  properties.EmbedfilenamesConfirmed[0].SetLong(2);
  page.Set(L"EmbedFilenames", Quoted(path1_));
  page.Set(L"EmbedFilenamesEnabled", 1);
  page.Page().ReadProperties();
  properties.EmbedfilenamesOpen[0].SetLong(1);  // the other tab has changed it meanwhile
  ASSERT_TRUE(page.Open());
  EXPECT_EQ(2, page.Control(IDC_ATTACHMENTS_CONFIRM).SelectedRow());
  EXPECT_TRUE(page.Control(IDC_ATTACHMENTS_SHOW).IsChecked());
  EXPECT_FALSE(page.Control(IDC_ATTACHMENTS_CONFIRM).IsEnabled());
  EXPECT_FALSE(page.Control(IDC_ATTACHMENTS_SHOW).IsEnabled());
  EXPECT_TRUE(page.Control(IDC_ATTACHMENTS_LIST).IsEnabled());
  properties.EmbedfilenamesConfirmed[0].SetLong(0);
  const Values before = page.AllValues();
  ASSERT_TRUE(page.Save());
  EXPECT_EQ(Values(), page.ChangesSince(before));
}

TEST_F(AttachmentsPage, TheBasicSettingsOfferThem) {
  Open();
  EXPECT_TRUE(test.Control(IDC_ATTACHMENTS_CONFIRM).IsEnabled());
  EXPECT_TRUE(test.Control(IDC_ATTACHMENTS_SHOW).IsEnabled());
}

// --- What is open --------------------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, TheSwitchOpensTheList) {
  Open(L"", 0);
  EXPECT_EQ(kSwitch, Enabled());
  test.Control(IDC_ATTACHMENTS_USE).Click();
  EXPECT_EQ(kAll, Enabled());
  test.Control(IDC_ATTACHMENTS_USE).Click();
  EXPECT_EQ(kSwitch, Enabled());
}

TEST_F(AttachmentsPage, VersionsThatAllowNoAttachmentsCloseEverything) {
  for (const int version : {0, 13, 14, 18, 99, 100, 101, 102, 103, 104, 105, 106, 107, 200}) {
    PageUnderTest page(kAttachmentsPage);
    page.Set(L"PdfVersion", version);
    page.Set(L"EmbedFilenamesEnabled", 1);
    const auto format = MakeCataloguePage(&page.Sheet(), kFormatPage, 0);
    page.Sheet().pages[kFormatPage] = format.get();
    ASSERT_TRUE(page.Open());
    const bool allowed = version < 100 || version > 104;
    for (const int id : {IDC_ATTACHMENTS_USE, IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_ADD, IDC_ATTACHMENTS_REMOVE})
      EXPECT_EQ(allowed, page.Control(id).IsEnabled()) << version << ' ' << id;
    EXPECT_TRUE(page.Control(IDC_ATTACHMENTS_USE).IsChecked());
  }
}

TEST_F(AttachmentsPage, AVersionThatWasChangedCountsFromTheNextShowing) {
  AddFormatPage(104);
  Open(Quoted(path1_));
  EXPECT_EQ(kNone, Enabled());
  dynamic_cast<FormatAccess&>(*format_).SetPdfVersion(105);
  for (int i = 0; i < 2; ++i) test.Page().OnSetActive();
  EXPECT_EQ(kAll, Enabled());
}

// --- Adding --------------------------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, EachWayToAddAsksForAFileThatIsThere) {
  const std::function<void()> ways[] = {
      [this] { test.Control(IDC_ATTACHMENTS_ADD).Click(); },
      [this] {
        DoubleClick({MiddleOf(0).x, MiddleOf(0).y * 5});
      },
      [this] { SendMessageW(List().Window(), WM_KEYDOWN, VK_INSERT, 0); },
  };
  Open(L"a");
  FileDialogSpy spy;
  for (const auto& way : ways) {
    spy.calls.clear();
    spy.chosen = L"D:\\papers\\b.pdf";
    way();
    EXPECT_EQ((FileDialogSpy::Calls{
                  {.owner = test.Page().Handle(), .filter = L"All Files(*.*)|*.*|", .pathRoom = 260, .flags = 0x1804}}),
              spy.calls);
  }
  EXPECT_EQ((Texts{L"MISSING: a", L"D:\\papers\\b.pdf", L"D:\\papers\\b.pdf", L"D:\\papers\\b.pdf"}), List().Rows());
}

TEST_F(AttachmentsPage, AFileIsChosenAndAddedAtTheEnd) {
  Open(Quoted(kMissing));
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  test.Control(IDC_ATTACHMENTS_ADD).Click();
  ASSERT_EQ(2, List().RowCount());
  EXPECT_EQ(path1_, List().Row(1));
  EXPECT_EQ(0, ListBox().ItemImage(1));
  EXPECT_EQ(Quoted(kMissing) + L";" + Quoted(path1_), Saved());
}

TEST_F(AttachmentsPage, TheSameFileMayComeTwice) {
  Open(Quoted(path1_));
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  test.Control(IDC_ATTACHMENTS_ADD).Click();
  EXPECT_EQ(Quoted(path1_) + L";" + Quoted(path1_), Saved());
}

TEST_F(AttachmentsPage, CancelAddsNothing) {
  Open(Quoted(kMissing));
  popups_.ExpectDialog(DismissDialog);
  test.Control(IDC_ATTACHMENTS_ADD).Click();
  EXPECT_EQ(Quoted(kMissing), Saved());
}

TEST_F(AttachmentsPage, TheListHasALimit) {
  // The text has a separator and two marks more.
  const std::wstring room(760 - 3 - 2 - path1_.size(), L'x');
  Open(Quoted(room));
  Drop(IDC_ATTACHMENTS_LIST, {path1_});
  EXPECT_EQ(2, List().RowCount()) << "760 characters fit";
}

TEST_F(AttachmentsPage, BeyondTheLimitAChosenFileIsRefused) {
  Open(Quoted(std::wstring(760 - 3 - 2 + 1 - path1_.size(), L'x')));
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  ExpectTooMany();
  test.Control(IDC_ATTACHMENTS_ADD).Click();
  EXPECT_EQ(1u, popups_.Boxes().size());
  EXPECT_EQ(1, List().RowCount());
}

TEST_F(AttachmentsPage, TheMarkOfAMissingFileTakesNoRoom) {
  Open(Quoted(std::wstring(750, L'x')));
  Drop(IDC_ATTACHMENTS_LIST, {L"yyyyy"});
  EXPECT_EQ(2, List().RowCount());
}

TEST_F(AttachmentsPage, TheFileDialogMayEndThePage) {
  auto parent = std::make_unique<PageParent>();
  CNemUIAttachmentsPage page(&test.Sheet(), test.Page().Description(), 0);
  ASSERT_TRUE(page.Create(parent->Window()));
  popups_.ExpectDialog([&](HWND dialog) {
    parent.reset();
    ChooseFile(dialog, path1_);
  });
  SendMessageW(page.Handle(), WM_COMMAND, MAKEWPARAM(IDC_ATTACHMENTS_ADD, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(page.Handle(), IDC_ATTACHMENTS_ADD)));
  EXPECT_FALSE(page.IsWindow());
  EXPECT_EQ(0u, popups_.Boxes().size());
}

// --- Dropping ------------------------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, FilesAreAcceptedFromTheStart) {
  Open();
  EXPECT_TRUE(GetWindowLongW(test.Page().Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
}

TEST_F(AttachmentsPage, DroppedFilesAreAddedInOrder) {
  for (const auto& [target, enabled] :
       {std::pair{IDC_ATTACHMENTS_LIST, 1}, {IDC_ATTACHMENTS_GROUP, 1}, {IDC_ATTACHMENTS_LIST, 0}}) {
    PageUnderTest page(kAttachmentsPage);
    page.Set(L"EmbedFilenamesEnabled", enabled);
    ASSERT_TRUE(page.Open());
    DropOn(page.Page().Handle(), target, {path2_, L"C:\\b.pdf", path1_});
    EXPECT_EQ((Texts{path2_, L"C:\\b.pdf", path1_}), page.Control(IDC_ATTACHMENTS_LIST).Rows());
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(Quoted(path2_) + L";\"C:\\b.pdf\";" + Quoted(path1_), page.Value(L"EmbedFilenames"));
  }
}

TEST_F(AttachmentsPage, TheWholeGroupTakesFilesAndNothingElseDoes) {
  Open();
  RECT group{};
  GetWindowRect(test.Control(IDC_ATTACHMENTS_GROUP).Window(), &group);
  MapWindowPoints(nullptr, test.Page().Handle(), reinterpret_cast<POINT*>(&group), 2);
  const std::pair<POINT, bool> places[] = {
      {{group.left, group.top}, true},      {{group.right - 1, group.bottom - 1}, true},
      {{group.left - 1, group.top}, false}, {{group.left, group.bottom}, false},
      {{group.right, group.top}, false},    {{-10, -10}, false}};
  int rows = 0;
  for (const auto& [point, taken] : places) {
    SendMessageW(test.Page().Handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(MakeDropRecord(point, {path1_})), 0);
    if (taken) ++rows;
    EXPECT_EQ(rows, List().RowCount()) << point.x << ' ' << point.y;
  }
  Drop(IDC_ATTACHMENTS_CONFIRM, {path1_});
  EXPECT_EQ(rows, List().RowCount());
}

TEST_F(AttachmentsPage, AHiddenControlTakesNoFiles) {
  Open();
  for (const int id : {IDC_ATTACHMENTS_LIST, IDC_ATTACHMENTS_GROUP}) Page().Item(id).Show(false);
  Drop(IDC_ATTACHMENTS_LIST, {path1_});
  EXPECT_EQ(0, List().RowCount());
}

TEST_F(AttachmentsPage, ALargeDropAddsWhatFitsAndRefusesEachOtherFile) {
  Open(Quoted(std::wstring(700, L'x')));
  ExpectTooMany();
  ExpectTooMany();
  Drop(IDC_ATTACHMENTS_LIST,
       {std::wstring(20, L'a'), std::wstring(60, L'b'), std::wstring(20, L'c'), std::wstring(60, L'd')});
  EXPECT_EQ((Texts{L"MISSING: " + std::wstring(700, L'x'), std::wstring(20, L'a'), std::wstring(20, L'c')}),
            List().Rows());
  EXPECT_EQ(2u, popups_.Boxes().size());
}

TEST_F(AttachmentsPage, ABoxMayEndThePage) {
  auto parent = std::make_unique<PageParent>();
  test.Set(L"EmbedFilenames", Quoted(std::wstring(755, L'x')));
  CNemUIAttachmentsPage page(&test.Sheet(), test.Page().Description(), 0);
  ASSERT_TRUE(page.Create(parent->Window()));
  PostMessageW(parent->Window(), WM_CLOSE, 0, 0);
  DropOn(page.Handle(), IDC_ATTACHMENTS_LIST, {path1_, path2_});
  EXPECT_FALSE(page.IsWindow());
  EXPECT_EQ(0u, popups_.Boxes().size()) << "the second file has none any more";
}

// --- Removing, double clicks and keys ------------------------------------------------------------------------------

TEST_F(AttachmentsPage, SelectedRowsAreRemovedWithoutAQuestion) {
  Open(L"a;b;c;d;e");
  for (const int row : {0, 2, 3}) SelectRow(row);
  test.Control(IDC_ATTACHMENTS_REMOVE).Click();
  EXPECT_EQ((Texts{L"MISSING: b", L"MISSING: e"}), List().Rows());
  EXPECT_EQ(L"\"b\";\"e\"", Saved());
}

TEST_F(AttachmentsPage, WithoutASelectionNothingIsRemoved) {
  Open(L"a;b");
  test.Control(IDC_ATTACHMENTS_REMOVE).Click();
  EXPECT_EQ(2, List().RowCount());
}

TEST_F(AttachmentsPage, WithTheLastRowGoesTheSwitch) {
  Open(L"a");
  SelectRow(0);
  test.Control(IDC_ATTACHMENTS_REMOVE).Click();
  EXPECT_EQ(L"", Saved());
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
}

TEST_F(AttachmentsPage, ADoubleClickOnARowRemovesIt) {
  Open(L"a;b;c");
  DoubleClick(MiddleOf(1));
  EXPECT_EQ((Texts{L"MISSING: a", L"MISSING: c"}), List().Rows());
}

TEST_F(AttachmentsPage, ADoubleClickBelowTheRowsAdds) {
  Open(L"a");
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  const POINT row = MiddleOf(0);
  DoubleClick({row.x, row.y * 4});
  EXPECT_EQ((Texts{L"MISSING: a", path1_}), List().Rows());
}

TEST_F(AttachmentsPage, ADoubleClickInAnEmptyListAdds) {
  Open();
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  DoubleClick({20, 20});
  EXPECT_EQ(Texts{path1_}, List().Rows());
}

TEST_F(AttachmentsPage, TheListHasItsKeys) {
  Open(L"a;b");
  List().Focus();
  SelectRow(0);
  SendMessageW(List().Window(), WM_KEYDOWN, VK_DELETE, 0);
  EXPECT_EQ(Texts{L"MISSING: b"}, List().Rows());
  popups_.ExpectDialog([this](HWND dialog) { ChooseFile(dialog, path1_); });
  SendMessageW(List().Window(), WM_KEYDOWN, VK_INSERT, 0);
  EXPECT_EQ((Texts{L"MISSING: b", path1_}), List().Rows());
  SendMessageW(List().Window(), WM_KEYDOWN, VK_END, 0);
  EXPECT_EQ(std::vector<int>{1}, ListBox().SelectedRows()) << "other keys are the list's own";
}

// --- Other pages ---------------------------------------------------------------------------------------------------

TEST_F(AttachmentsPage, ASwitchSetBeforeReadingGoesToTheProperty) {
  test.Set(L"EmbedFilenamesEnabled", 1);
  Page().SetEmbedFilenamesEnabled(0);
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
  EXPECT_EQ(CAttachmentsPage::kNotRead, Page().embedFilenamesEnabled);
}

TEST_F(AttachmentsPage, ASwitchThatWasReadAsNotReadGoesToThePropertyToo) {
  test.Set(L"EmbedFilenamesEnabled", 0xFFFF);
  Page().ReadProperties();
  Page().SetEmbedFilenamesEnabled(0);
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
  EXPECT_EQ(CAttachmentsPage::kNotRead, Page().embedFilenamesEnabled);
}

TEST_F(AttachmentsPage, ASwitchSetLaterIsShownWithItsRules) {
  Open(Quoted(path1_));
  Page().SetEmbedFilenamesEnabled(0);
  EXPECT_FALSE(test.Control(IDC_ATTACHMENTS_USE).IsChecked());
  EXPECT_EQ(kSwitch, Enabled());
  EXPECT_EQ(L"1", test.Value(L"EmbedFilenamesEnabled"));
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
}

TEST_F(AttachmentsPage, TheFormatPageSwitchesBothPagesOff) {
  AddFormatPage(17);
  const auto links = MakeCataloguePage(&test.Sheet(), kLinksPage, 0);
  test.Sheet().pages[kLinksPage] = links.get();
  test.Sheet().pages[kAttachmentsPage] = &test.Page();
  Open(Quoted(path1_));
  links->ReadProperties();
  test.Set(L"PdfVersion", 102);
  const PageParent parent;
  ASSERT_TRUE(format_->Create(parent.Window()));
  EXPECT_EQ(0, Page().embedFilenamesEnabled);
  EXPECT_EQ(0, dynamic_cast<CLinksPage&>(*links).embedFilenamesEnabled);
  EXPECT_EQ(kNone, Enabled());
}

TEST_F(AttachmentsPage, TheLinksPageHearsOfTheSwitch) {
  const auto links = MakeCataloguePage(&test.Sheet(), kLinksPage, 0);
  test.Sheet().pages[kLinksPage] = links.get();
  const auto& switchOfLinks = dynamic_cast<CLinksPage&>(*links).embedFilenamesEnabled;
  Open(Quoted(path1_));
  links->ReadProperties();
  test.Control(IDC_ATTACHMENTS_USE).Click();
  ASSERT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(0, switchOfLinks);
  test.Control(IDC_ATTACHMENTS_USE).Click();
  SelectRow(0);
  test.Control(IDC_ATTACHMENTS_REMOVE).Click();
  ASSERT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(0, switchOfLinks) << "a list without rows is off";
}

TEST_F(AttachmentsPage, TheLinksPageHearsWhatTheCockpitRestores) {
  const auto links = MakeCataloguePage(&test.Sheet(), kLinksPage, 0);
  test.Sheet().pages[kLinksPage] = links.get();
  test.Set(L"EmbedFilenamesEnabled", 1);
  links->ReadProperties();
  Page().SetCockpitValues({.embedFilenamesEnabled = 0});
  Page().WriteProperties();
  links->WriteProperties();
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
  AttachmentsCockpitValues values;
  links->WriteProperties();
  Page().GetCockpitValues(values);
  EXPECT_EQ(0, values.embedFilenamesEnabled);
}
