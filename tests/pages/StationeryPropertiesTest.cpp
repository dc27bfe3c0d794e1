// Stationeries on the sheet: how they come into the list, and the dialog of their properties beside it.
#include "pages/CStationeryPropertiesDialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>

#include "driver/CommonDialogs.h"
#include "driver/DialogAudit.h"
#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUISheet.h"
#include "support/DropRecord.h"
#include "support/EnterIntoDialog.h"
#include "support/FailingMalloc.h"
#include "support/FakeSheet.h"
#include "support/FileDialogSpy.h"
#include "support/PostedMessages.h"
#include "support/PrintText.h"
#include "support/TempFile.h"
#include "ui/PageCatalogue.h"
#include "window/Controls.h"

namespace {

constexpr int kWatermark = 101, kGraphic = 108;
constexpr UINT kApplied = 0x84D, kCancelled = 0x84E, kOk = 0x84F, kModified = 0x850;

// Two entries: one of mode 2, and one without a description and of a mode that there is not.
constexpr wchar_t kList[] =
    L"{{NAME:\"Letter\";FILE:\"C:\\\\Paper\\\\z.pdf\";P:\"x\";TYPE:\"2\"}"
    L"{NAME:\"\";FILE:\"D:\\\\plain.pdf\";P:\"\";TYPE:\"7\"}}";

// A list of one entry.
std::wstring ListOfOne(const std::wstring& name, int mode) {
  return L"{{NAME:\"" + name + L"\";FILE:\"C:\\\\f.pdf\";P:\"\";TYPE:\"" + std::to_wstring(mode) + L"\"}}";
}

class StationerySheet : public testing::Test {
 protected:
  // The body runs on the shown page of a new sheet, which is cancelled behind it.
  void Run(const Sheet::Body& body) {
    sheet_ = std::make_unique<CNemUISheet>(AllPages());
    CDialogProperties& properties = sheet_->Properties();
    properties.MsgBoxTitle.SetString(L"Title");
    properties.StationeryInfos[0].SetString(kList);
    properties.StationeryEnabled[0].SetLong(1);
    if (prepare_) prepare_(properties);
    RunSheet([this] { return sheet_->Run(nullptr); },
             [&](Sheet& sheet) -> SheetTask {
               EXPECT_TRUE(sheet.SelectPage(kWatermark));
               co_await sheet.Settled();
               co_await body(sheet);
               if (IsWindow(dialog_)) DestroyWindow(dialog_);
               if (sheet.IsOpen()) sheet.PressCancel();
             });
  }
  CListCtrl List(Sheet& sheet) { return CListCtrl(sheet.Control(1291).Window()); }
  std::wstring Rows(Sheet& sheet) {
    std::wstring rows;
    for (int row = 0; row < List(sheet).Count(); ++row)
      rows += std::wstring(row ? L"," : L"") + List(sheet).CellText(row, 0).Text();
    return rows;
  }
  // The dialog that comes up next is the one of the properties.
  void Expect(Sheet& sheet, ControlRef::Location where = ControlRef::Location::current()) {
    sheet.ExpectDialog([this](HWND dialog) { dialog_ = dialog; }, where);
  }
  SheetTask OpenProperties(Sheet& sheet, int row = 0) {
    List(sheet).SelectRow(row);
    Expect(sheet);
    sheet.Control(1067).Click();
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
  }
  // A PDF is dropped on the list: its entry is new.
  SheetTask DropNew(Sheet& sheet) {
    Expect(sheet);
    Drop(sheet, 1291, {L"C:\\New\\fresh.one.PDF"});
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
  }
  void Drop(Sheet& sheet, int control, const std::vector<std::wstring>& files, POINT offset = {3, 3}) {
    const CWnd page(sheet.Page());
    const RECT area = page.Item(control).RectIn(page);
    DropFiles(page.Handle(), {area.left + offset.x, area.top + offset.y}, files);
  }
  bool IsOpen() const { return IsWindow(dialog_) && IsWindowVisible(dialog_); }
  static bool IsLocked(Sheet& sheet) { return !IsWindowEnabled(sheet.Window()); }
  ControlRef Item(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return {GetDlgItem(dialog_, id), id, where};
  }
  int Mode() {
    int mode = -1;
    for (int i = 0; i < 4; ++i)
      if (Item(kRadios[i]).IsChecked()) mode = mode == -1 ? i : 9;
    return mode;
  }
  std::wstring Stored() { return sheet_->Properties().StationeryInfos[0].GetString().Text(); }

  static constexpr int kRadios[] = {1340, 1337, 1338, 1339};
  LanguageScope english_{kEnglish};
  std::unique_ptr<CNemUISheet> sheet_;
  std::function<void(CDialogProperties&)> prepare_;
  HWND dialog_ = nullptr;
};

// --- The dialog ----------------------------------------------------------------------------------------------------

// Without memory the dialog cannot go over to an entry that has no description yet. What is typed counts all the same.
TEST(StationeryDialog, AFillingThatFailsIsOver) {
  const LanguageScope english(kEnglish);
  const auto first = std::make_shared<CStationeryFormat>(), second = std::make_shared<CStationeryFormat>();
  first->SetName(L"Letter");
  PageParent parent;
  CStationeryPropertiesDialog dialog(first);
  ASSERT_TRUE(dialog.Create(parent.Window()));
  second->SetFile(L"C:\\Paper\\plain.pdf");
  second->SetName(L"");
  bool failed = false;
  {
    const FailingMalloc exhausted(0);
    try {
      dialog.SetFormat(second);
    } catch (const std::bad_alloc&) {
      failed = true;
    }
  }
  ASSERT_TRUE(failed);
  EXPECT_FALSE(dialog.IsModified());
  CWnd(GetDlgItem(dialog.Handle(), IDC_STATIONERY_NAME)).SetText(L"typed");
  EXPECT_TRUE(dialog.IsModified());
}

TEST_F(StationerySheet, DialogShowsItsEntryAndIsNotModified) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await OpenProperties(sheet);
    EXPECT_EQ(L"Stationery properties", std::wstring(CWnd(dialog_).Text().Text()));
    EXPECT_EQ(L"Letter", Item(1341).Text());
    EXPECT_EQ(L"C:\\Paper\\z.pdf", Item(1319).Text());
    EXPECT_TRUE(GetWindowLongW(Item(1319).Window(), GWL_STYLE) & ES_READONLY);
    EXPECT_EQ(2, Mode());
    EXPECT_FALSE(Item(1343).IsEnabled());
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_EQ((Posted{{kModified, 0}}), PostedMessages::current->Take()) << "the dialog's own filling is told as well";
    EXPECT_EQ(dialog_, GetActiveWindow());
    EXPECT_EQ(sheet.Window(), GetWindow(dialog_, GW_OWNER));
  });
}

TEST_F(StationerySheet, DialogStandsBesideTheSheet) {
  Run([&](Sheet& sheet) -> SheetTask {
    SetWindowPos(sheet.Window(), nullptr, 0, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    co_await OpenProperties(sheet);
    const RECT around = CWnd(sheet.Window()).WindowRect(), own = CWnd(dialog_).WindowRect();
    EXPECT_EQ(around.right, own.left);
    EXPECT_EQ((around.top + around.bottom) / 2 - (own.bottom - own.top) / 2, own.top);
  });
}

TEST_F(StationerySheet, EveryModeHasItsNumberAndItsRadio) {
  for (const auto& [stored, mode] : {std::pair{0, 0}, {1, 1}, {2, 2}, {3, 3}, {7, 0}, {-1, 0}}) {
    SCOPED_TRACE(stored);
    prepare_ = [&](CDialogProperties& properties) {
      properties.StationeryInfos[0].SetString(ListOfOne(L"n", stored).c_str());
    };
    Run([&](Sheet& sheet) -> SheetTask {
      co_await OpenProperties(sheet);
      EXPECT_EQ(mode, Mode());
      if (stored == mode) {
        Item(kRadios[mode == 2 ? 0 : 2]).Click();
        Item(kRadios[mode]).Click();
      }
      EXPECT_EQ(mode, Mode());
      Item(1342).Click();
      co_await sheet.Settled();
      EXPECT_FALSE(IsWindow(dialog_));
      co_await OpenProperties(sheet);
      EXPECT_EQ(mode, Mode());
      sheet.PressOk();
      co_await sheet.Settled();
    });
    EXPECT_EQ(ListOfOne(L"n", mode), Stored()) << "an unknown one is replaced by what was shown";
  }
}

TEST_F(StationerySheet, ChangesLockTheSheetAndOpenApply) {
  for (const int radio : {0, 1340, 1337, 1339})  // 0: by the text
    Run([&](Sheet& sheet) -> SheetTask {
      SCOPED_TRACE(radio);
      const PostedMessages posted;
      co_await OpenProperties(sheet);
      PostedMessages::current->Take();
      if (radio)
        Item(radio).Click();
      else
        Item(1341).SetText(L"New name");
      EXPECT_TRUE(Item(1343).IsEnabled());
      co_await sheet.Settled();
      EXPECT_TRUE(IsLocked(sheet));
      EXPECT_FALSE(PostedMessages::current->posted.empty());
      for (const auto& message : PostedMessages::current->Take()) EXPECT_EQ((std::pair{kModified, WPARAM{0}}), message);
      Item(1343).Click();
      EXPECT_FALSE(Item(1343).IsEnabled());
      co_await sheet.Settled();
      EXPECT_EQ((Posted{{kApplied, 0}, {kModified, 0}}), PostedMessages::current->Take());
      EXPECT_FALSE(IsLocked(sheet));
      EXPECT_TRUE(IsOpen());
      EXPECT_EQ(radio ? L"Letter," : L"New name,", Rows(sheet));
    });
}

TEST_F(StationerySheet, OkStoresAndCancelDoesNot) {
  for (const int button : {1342, 1344})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      co_await OpenProperties(sheet);
      Item(1341).SetText(L"Other");
      co_await sheet.Settled();
      PostedMessages::current->Take();
      Item(button).Click();
      co_await sheet.Settled();
      EXPECT_EQ((Posted{{button == 1342 ? kOk : kCancelled, 0}}), PostedMessages::current->Take());
      EXPECT_FALSE(IsWindow(dialog_));
      EXPECT_FALSE(IsLocked(sheet));
      EXPECT_EQ(button == 1342 ? L"Other," : L"Letter,", Rows(sheet));
      EXPECT_EQ(sheet.Window(), GetActiveWindow());
      EXPECT_TRUE(IsChild(sheet.Page(), GetFocus())) << "the keyboard is on the page";
    });
}

TEST_F(StationerySheet, EnterEscAndTheCloseBoxAreOkAndCancel) {
  for (const int way : {0, 1, 2})
    Run([&](Sheet& sheet) -> SheetTask {
      co_await OpenProperties(sheet);
      Item(1341).SetText(L"Other");
      co_await sheet.Settled();
      if (way == 2)
        PostMessageW(dialog_, WM_SYSCOMMAND, SC_CLOSE, 0);
      else
        sheet.Key(way == 0 ? VK_RETURN : VK_ESCAPE);
      co_await sheet.Settled();
      EXPECT_FALSE(IsWindow(dialog_));
      EXPECT_TRUE(sheet.IsOpen());
      EXPECT_EQ(way == 0 ? L"Other," : L"Letter,", Rows(sheet));
    });
}

TEST_F(StationerySheet, TabReachesAllAndChangesNothing) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    SetActiveWindow(dialog_);
    Item(1341).Focus();
    std::vector<int> stops;
    for (int i = 0; i < 5; ++i) {
      sheet.Key(VK_TAB);
      co_await sheet.Settled();
      stops.push_back(GetDlgCtrlID(GetFocus()));
    }
    EXPECT_EQ((std::vector<int>{1319, 1338, 1342, 1344, 1341}), stops);
    EXPECT_FALSE(IsLocked(sheet));
    Item(1337).Focus();  // a radio that is off tells a click then, unless it was told not to
    co_await sheet.Settled();
    EXPECT_FALSE(IsLocked(sheet));
    Item(1338).Focus();
    sheet.Key(VK_DOWN);
    co_await sheet.Settled();
    EXPECT_EQ(3, Mode());
    EXPECT_TRUE(IsLocked(sheet));
  });
}

TEST_F(StationerySheet, DescriptionMayNotBeEmpty) {
  for (const int button : {1342, 1343})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      co_await OpenProperties(sheet);
      Item(1339).Click();
      Item(1341).SetText(L"");
      co_await sheet.Settled();
      PostedMessages::current->Take();
      sheet.ExpectBox(
          {.title = L"NEM pdf AddIn UI", .text = L"The description is not allowed to be empty", .icon = MB_ICONERROR});
      Item(button).Click();
      EXPECT_TRUE(IsOpen());
      EXPECT_TRUE(IsLocked(sheet));
      EXPECT_TRUE(Item(1341).HasFocus());
      co_await sheet.Settled();
      EXPECT_EQ(Posted(), PostedMessages::current->Take());
      Item(1341).SetText(L" ");
      Item(button).Click();
      co_await sheet.Settled();
      EXPECT_EQ(L" ,", Rows(sheet)) << "blanks are a description";
    });
}

TEST_F(StationerySheet, DescriptionsAreTypedWith30Characters) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    Item(1341).SetText(std::wstring(40, L'n'));
    EXPECT_EQ(std::wstring(30, L'n'), Item(1341).Text());
  });
}

// From a host, or after its file.
TEST_F(StationerySheet, ALongerDescriptionShowsWholeAndStays) {
  const std::wstring name(40, L'n');
  prepare_ = [&](CDialogProperties& properties) {
    properties.StationeryInfos[0].SetString(ListOfOne(name, 2).c_str());
  };
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    EXPECT_EQ(name, Item(1341).Text());
    Item(1339).Click();
    Item(1342).Click();
    co_await sheet.Settled();
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_EQ(ListOfOne(name, 3), Stored());
}

TEST_F(StationerySheet, AnEntryWithoutADescriptionGetsOneAndCountsAsNew) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await OpenProperties(sheet, 1);
    EXPECT_EQ(L"plain", Item(1341).Text());
    EXPECT_EQ(0, Mode()) << "a mode that there is not";
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_FALSE(Item(1343).IsEnabled());
    PostedMessages::current->Take();
    Item(1344).Click();
    co_await sheet.Settled();
    EXPECT_EQ((Posted{{kCancelled, 2101}}), PostedMessages::current->Take());
    EXPECT_EQ(L"Letter", Rows(sheet)) << "Cancel takes it away";
    EXPECT_FALSE(IsLocked(sheet));
  });
}

TEST_F(StationerySheet, AnOpenDialogGoesOverToAnotherEntry) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet, 0);
    const HWND before = dialog_;
    List(sheet).SelectRow(1);
    sheet.Control(1067).Click();
    co_await sheet.Settled();
    EXPECT_EQ(before, dialog_);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"plain", Item(1341).Text());
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_EQ(dialog_, GetActiveWindow()) << "the sheet cannot have the keyboard";
    Item(1342).Click();
    co_await sheet.Settled();
    EXPECT_EQ(L"Letter,plain", Rows(sheet));
  });
}

TEST_F(StationerySheet, GoingOverToAnotherEntryDropsWhatWasNotApplied) {
  prepare_ = [](CDialogProperties& properties) {
    properties.StationeryInfos[0].SetString(
        L"{{NAME:\"Letter\";FILE:\"z.pdf\";P:\"\";TYPE:\"2\"}{NAME:\"Bill\";FILE:\"b.pdf\";P:\"\";TYPE:\"1\"}}");
  };
  for (const bool fromNew : {false, true})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      if (fromNew) {
        co_await DropNew(sheet);
      } else {
        co_await OpenProperties(sheet);
        Item(1341).SetText(L"not applied");
      }
      co_await sheet.Settled();
      EXPECT_TRUE(IsLocked(sheet));
      PostedMessages::current->Take();
      List(sheet).SelectRow(1);
      SendMessageW(sheet.Page(), WM_COMMAND, 1067, reinterpret_cast<LPARAM>(sheet.Control(1067).Window()));
      EXPECT_EQ(L"Bill", Item(1341).Text());
      EXPECT_EQ(1, Mode());
      EXPECT_FALSE(Item(1343).IsEnabled());
      co_await sheet.Settled();
      EXPECT_EQ((Posted{{kModified, 0}, {kModified, 0}}), PostedMessages::current->Take()) << "itself, and its filling";
      EXPECT_FALSE(IsLocked(sheet));
      Item(1344).Click();
      co_await sheet.Settled();
      EXPECT_EQ((Posted{{kCancelled, 0}}), PostedMessages::current->Take());
      EXPECT_EQ(fromNew ? L"Letter,Bill,fresh.one" : L"Letter,Bill", Rows(sheet));
    });
}

TEST_F(StationerySheet, AnOpenDialogGoesOverToANewEntry) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await OpenProperties(sheet);
    const HWND before = dialog_;
    Drop(sheet, 1291, {L"C:\\New\\fresh.pdf"});
    co_await sheet.Settled();
    EXPECT_EQ(before, dialog_);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"C:\\New\\fresh.pdf", Item(1319).Text());
    EXPECT_TRUE(IsLocked(sheet));
    PostedMessages::current->Take();
    Item(1344).Click();
    co_await sheet.Settled();
    EXPECT_EQ((Posted{{kCancelled, 2101}}), PostedMessages::current->Take());
    EXPECT_EQ(L"Letter,", Rows(sheet));
  });
}

TEST_F(StationerySheet, NobodyWorksInTheDialogWhileThePageAsks) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    sheet.Control(1065).Click();
    FileDialogSpy spy;
    spy.whileUp = [&] { EXPECT_FALSE(IsWindowEnabled(dialog_)); };
    for (const int button : {1063, 1066}) {
      sheet.Control(button).Click();
      EXPECT_TRUE(IsWindowEnabled(dialog_)) << button;
    }
    EXPECT_EQ(2u, spy.calls.size());
    bool asked = false;
    sheet.Queue().Loop().Post([&] {
      asked = true;
      EXPECT_FALSE(IsWindowEnabled(dialog_));
    });
    sheet.ExpectBox({.title = L"Error", .text = L"Only pdf can be used as a stationery file!"});
    Drop(sheet, 1291, {L"C:\\a.txt"});
    EXPECT_TRUE(asked);
    EXPECT_TRUE(IsWindowEnabled(dialog_));
    co_await sheet.Settled();
  });
}

TEST_F(StationerySheet, DoubleClickAndEnterOpenTheProperties) {
  Run([&](Sheet& sheet) -> SheetTask {
    const RECT row = List(sheet).RowRect(0);
    Expect(sheet);
    sheet.Control(1291).DoubleClickAt(row.left + 20, (row.top + row.bottom) / 2);
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(0, List(sheet).SelectionMark());
    Item(1344).Click();
    co_await sheet.Settled();
    sheet.Control(1291).DoubleClickAt(row.left + 20, row.bottom + 60);
    co_await sheet.Settled();
    EXPECT_FALSE(IsOpen()) << "no row was hit";
    List(sheet).Focus();
    List(sheet).SelectRow(0);
    Expect(sheet);
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(sheet.IsOpen());
    co_await ExpectEnterLeadsBack(sheet, List(sheet), dialog_);
  });
}

// --- New entries ---------------------------------------------------------------------------------------------------

TEST_F(StationerySheet, AddingAsksForAFileAndOpensItsProperties) {
  TempFile file("stationery.test.pdf");
  file.Put("%PDF");
  wchar_t path[MAX_PATH];
  GetFullPathNameW(file.Name(), MAX_PATH, path, nullptr);
  Run([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([&](HWND picker) { ChooseFile(picker, path); });
    Expect(sheet);
    sheet.Control(1066).Click();
    co_await sheet.Settled();
    EXPECT_EQ(L"Letter,,stationery.test", Rows(sheet));
    EXPECT_EQ(L"stationery.test.pdf", std::wstring(List(sheet).CellText(2, 1).Text()));
    EXPECT_EQ(2, List(sheet).SelectionMark());
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(path, Item(1319).Text());
    EXPECT_EQ(0, Mode());
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_EQ(dialog_, GetActiveWindow());
    Item(1342).Click();
    co_await sheet.Settled();
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_EQ(L"Letter,,stationery.test", Rows(sheet));
  });
}

TEST_F(StationerySheet, ACancelledPickerAddsNothing) {
  Run([&](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog(DismissDialog);
    sheet.Control(1066).Click();
    co_await sheet.Settled();
    EXPECT_EQ(L"Letter,", Rows(sheet));
    sheet.Control(1065).Click();
    sheet.Control(1062).SetText(L"old.png");
    sheet.ExpectDialog(DismissDialog);
    sheet.Control(1063).Click();
    EXPECT_EQ(L"old.png", sheet.Control(1062).Text());
  });
}

TEST_F(StationerySheet, BrowsingPutsTheFileIntoItsField) {
  TempFile file("mark.png");
  file.Put("png");
  wchar_t path[MAX_PATH];
  GetFullPathNameW(file.Name(), MAX_PATH, path, nullptr);
  Run([&](Sheet& sheet) -> SheetTask {
    sheet.Control(1065).Click();
    sheet.Control(1062).SetText(L"start.png");
    sheet.ExpectDialog([&](HWND picker) {
      EXPECT_EQ(L"start.png", ProposedFile(picker));
      ChooseFile(picker, path);
    });
    sheet.Control(1063).Click();
    EXPECT_EQ(path, sheet.Control(1062).Text());
    co_return;
  });
}

TEST_F(StationerySheet, CancelTakesANewEntryAwayAlsoAfterApply) {
  for (const bool apply : {false, true})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      co_await DropNew(sheet);
      EXPECT_EQ(L"Letter,,fresh.one", Rows(sheet));
      if (apply) {
        Item(1341).SetText(L"kept?");
        co_await sheet.Settled();
        PostedMessages::current->Take();
        Item(1343).Click();
        co_await sheet.Settled();
        EXPECT_EQ((Posted{{kApplied, 2101}, {kModified, 0}}), PostedMessages::current->Take());
        EXPECT_EQ(L"Letter,,kept?", Rows(sheet));
        EXPECT_TRUE(IsLocked(sheet)) << "it is still new";
      }
      PostedMessages::current->Take();
      Item(1344).Click();
      Item(1344).Click();
      co_await sheet.Settled();
      EXPECT_EQ((Posted{{kCancelled, 2101}, {kCancelled, 2101}}), PostedMessages::current->Take());
      EXPECT_EQ(L"Letter,", Rows(sheet)) << "the second Cancel takes no other one";
      EXPECT_FALSE(IsLocked(sheet));
      EXPECT_FALSE(IsWindow(dialog_));
    });
}

TEST_F(StationerySheet, OkKeepsANewEntry) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await DropNew(sheet);
    PostedMessages::current->Take();
    Item(1342).Click();
    co_await sheet.Settled();
    EXPECT_EQ((Posted{{kOk, 2101}}), PostedMessages::current->Take());
    EXPECT_EQ(L"Letter,,fresh.one", Rows(sheet));
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_FALSE(IsLocked(sheet));
  });
}

TEST_F(StationerySheet, DeletingClosesTheDialogOfItsEntryAlone) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    sheet.Control(1070).Click();
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_EQ(L"", Rows(sheet));
    EXPECT_EQ(1, List(sheet).Count());
  });
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    List(sheet).SelectRow(1);
    sheet.Control(1070).Click();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"Letter", Rows(sheet));
  });
}

// --- Drops ---------------------------------------------------------------------------------------------------------

TEST_F(StationerySheet, DropsOfOneFileOnTheWatermarkGoIntoItsField) {
  Run([&](Sheet& sheet) -> SheetTask {
    EXPECT_TRUE(GetWindowLongW(sheet.Page(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
    Drop(sheet, 1062, {L"C:\\a.png"});
    EXPECT_EQ(L"C:\\a.png", sheet.Control(1062).Text()) << "the check box is off and stays so";
    EXPECT_FALSE(sheet.Control(1065).IsChecked());
    Drop(sheet, 1523, {L"C:\\b.txt"});
    EXPECT_EQ(L"C:\\b.txt", sheet.Control(1062).Text());
    Drop(sheet, 1065, {L"C:\\b.png"});
    EXPECT_EQ(L"C:\\b.png", sheet.Control(1062).Text()) << "the group is in front of its controls";
    Drop(sheet, 1523, {L"C:\\b.txt"});
    Drop(sheet, 1062, {L"C:\\c.png", L"C:\\d.png"});
    Drop(sheet, 1178, {L"C:\\e.png"});
    Drop(sheet, 1523, {L"C:\\f.png"}, {-3, 3});
    EXPECT_EQ(L"C:\\b.txt", sheet.Control(1062).Text());
    EXPECT_EQ(L"Letter,", Rows(sheet));
    co_return;
  });
}

TEST_F(StationerySheet, DropsOfOnePdfOnTheListAddAStationery) {
  for (const int target : {1291, 5014, 1066})
    Run([&](Sheet& sheet) -> SheetTask {
      Drop(sheet, target, {L"C:\\a.pdf", L"C:\\b.pdf"});
      EXPECT_EQ(L"Letter,", Rows(sheet));
      for (const wchar_t* file : {L"C:\\a.txt", L"C:\\pdf", L"C:\\a.pdf.png", L"C:\\a.pdfx"}) {
        sheet.ExpectBox({.title = L"Error", .text = L"Only pdf can be used as a stationery file!"});
        Drop(sheet, target, {file});
        EXPECT_EQ(L"Letter,", Rows(sheet));
      }
      Expect(sheet);
      Drop(sheet, target, {L"C:\\A.PdF"});
      co_await sheet.Settled();
      EXPECT_EQ(L"Letter,,A", Rows(sheet));
      EXPECT_TRUE(IsLocked(sheet));
      Drop(sheet, target, {L"C:\\B.pdf"});
      EXPECT_EQ(L"Letter,,A", Rows(sheet)) << "one that is being edited is finished first";
      Drop(sheet, 1062, {L"C:\\c.png"});
      EXPECT_EQ(L"", sheet.Control(1062).Text()) << "the sheet is locked";
    });
}

TEST_F(StationerySheet, ADropOpensTheGroupThoughTheSwitchIsOff) {
  prepare_ = [](CDialogProperties& properties) { properties.StationeryEnabled[0].SetLong(0); };
  Run([&](Sheet& sheet) -> SheetTask {
    EXPECT_FALSE(sheet.Control(1291).IsEnabled());
    co_await DropNew(sheet);
    for (const int id : {1066, 1291, 1071, 1067, 1069, 1070}) EXPECT_TRUE(sheet.Control(id).IsEnabled()) << id;
    EXPECT_FALSE(sheet.Control(1068).IsChecked());
    Item(1344).Click();
    co_await sheet.Settled();
    EXPECT_EQ(L"Letter,", Rows(sheet));
    for (const int id : {1066, 1291, 1071, 1067, 1069, 1070}) EXPECT_TRUE(sheet.Control(id).IsEnabled()) << id;
  });
}

TEST_F(StationerySheet, DropsLeaveAloneWhatIsFixed) {
  prepare_ = [](CDialogProperties& properties) {
    properties.adminSettings.WatermarkFilename_Override = L"fixed";
    properties.adminSettings.StationerySelected_Override = 0;
    properties.adminSettings.StationeryInfos_Override = L"{}";
  };
  Run([&](Sheet& sheet) -> SheetTask {
    Drop(sheet, 1062, {L"C:\\a.png"});
    Drop(sheet, 1291, {L"C:\\a.pdf"});
    EXPECT_EQ(L"", sheet.Control(1062).Text());
    EXPECT_EQ(L"Letter,", Rows(sheet));
    co_return;
  });
}

// --- Ends ----------------------------------------------------------------------------------------------------------

TEST_F(StationerySheet, LeavingThePageClosesAnUnchangedDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    EXPECT_TRUE(sheet.SelectPage(kGraphic));
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_EQ(kGraphic, sheet.PageId());
    EXPECT_FALSE(IsLocked(sheet));
  });
}

TEST_F(StationerySheet, SavingClosesADialogWithItsChanges) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    Item(1341).SetText(L"x");
    co_await sheet.Settled();
    EXPECT_TRUE(sheet_->FindPage(kWatermark)->UpdateData(true));
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_EQ(L"Letter,", Rows(sheet));
  });
}

TEST_F(StationerySheet, ALeavingThatIsRefusedTouchesNeitherDialogNorList) {
  prepare_ = [](CDialogProperties& properties) { properties.WatermarkEnabled[0].SetLong(1); };
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    sheet.ExpectBox(
        {.title = L"Title", .text = L"The watermark file name entered is invalid!", .icon = MB_ICONEXCLAMATION});
    EXPECT_FALSE(sheet.SelectPage(kGraphic));
    co_await sheet.Settled();
    EXPECT_EQ(kWatermark, sheet.PageId());
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"Letter,", Rows(sheet));
    EXPECT_EQ(kList, Stored());
  });
}

TEST_F(StationerySheet, CancelOfTheSheetTakesAnUnchangedDialogAlong) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    sheet.PressCancel();
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
  });
  EXPECT_EQ(kList, Stored());
}

// The page stands behind the one for colours in the host's exchange.
TEST_F(StationerySheet, ColourSpaceKeepsWhatThisPageHasRead) {
  Run([&](Sheet& sheet) -> SheetTask {
    EXPECT_TRUE(sheet.SelectPage(111));
    co_await sheet.Settled();
    sheet.Control(IDC_COLORS_CMYK).Click();
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_EQ(0, sheet_->Properties().Colorspace[0].GetLong());
}

TEST_F(StationerySheet, OkOfTheSheetStoresWhatWasApplied) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    Item(1341).SetText(L"Applied");
    Item(1343).Click();
    co_await sheet.Settled();
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_NE(std::wstring::npos, Stored().find(L"NAME:\"Applied\""));
  EXPECT_NE(std::wstring::npos, Stored().find(L"P:\"x\"")) << "the password stays";
}

// Whatever dies first, and whatever the dialog holds, no window stays locked.
TEST_F(StationerySheet, NoEndLeavesTheSheetLocked) {
  enum class State { Unchanged, Changed, New };
  enum class Victim { Dialog, List, Page, HiddenDialog };
  for (const State state : {State::Unchanged, State::Changed, State::New})
    for (const Victim victim : {Victim::Dialog, Victim::List, Victim::Page, Victim::HiddenDialog}) {
      SCOPED_TRACE(std::to_string(static_cast<int>(state)) + std::to_string(static_cast<int>(victim)));
      Run([&](Sheet& sheet) -> SheetTask {
        if (state == State::New)
          co_await DropNew(sheet);
        else
          co_await OpenProperties(sheet);
        if (state == State::Changed) Item(1341).SetText(L"changed");
        co_await sheet.Settled();
        EXPECT_EQ(state != State::Unchanged, IsLocked(sheet));
        switch (victim) {
          case Victim::Dialog:
            DestroyWindow(dialog_);
            break;
          case Victim::List:
            DestroyWindow(sheet.Control(1291).Window());
            Item(1342).Click();  // its entry is gone
            break;
          case Victim::Page:
            DestroyWindow(sheet.Page());
            break;
          case Victim::HiddenDialog:
            ShowWindow(dialog_, SW_HIDE);
            break;
        }
        co_await sheet.Settled();
        EXPECT_FALSE(IsLocked(sheet));
        EXPECT_EQ(victim == Victim::HiddenDialog, IsWindow(dialog_) != FALSE);
        if (victim == Victim::Dialog) {
          co_await OpenProperties(sheet);  // works again
          EXPECT_FALSE(IsLocked(sheet));
        }
      });
    }
}

TEST_F(StationerySheet, SheetMayDieInEveryState) {
  for (const bool changed : {false, true})
    for (const bool withBox : {false, true})
      Run([&](Sheet& sheet) -> SheetTask {
        co_await OpenProperties(sheet);
        if (changed) Item(1341).SetText(L"changed");
        co_await sheet.Settled();
        if (withBox) {
          SetWindowTextW(Item(1341).Window(), L"");
          sheet.ExpectBox({.title = L"NEM pdf AddIn UI",
                           .text = L"The description is not allowed to be empty",
                           .icon = MB_ICONERROR});
          Item(1342).Click();
        }
        DestroyWindow(sheet.Window());
        co_await sheet.Settled();
        EXPECT_FALSE(IsWindow(dialog_));
      });
}

// The page ends the dialog while a box of it is up.
TEST_F(StationerySheet, DialogMayEndUnderItsBox) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await OpenProperties(sheet);
    Item(1341).SetText(L"");
    co_await sheet.Settled();
    const HWND page = sheet.Page();
    sheet.Queue().Loop().Post([page] { DestroyWindow(page); });
    SendMessageW(dialog_, WM_COMMAND, 1342, 0);
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_FALSE(IsLocked(sheet));
    co_await sheet.Settled();
  });
}

// --- Look ----------------------------------------------------------------------------------------------------------

TEST_F(StationerySheet, DialogIsSoundInEveryLanguage) {
  for (const uint16_t language : {0x409, 0x407, 0x40C, 0x401}) {
    SCOPED_TRACE(language);
    const LanguageScope scope(language);
    Run([&](Sheet& sheet) -> SheetTask {
      co_await OpenProperties(sheet);
      EXPECT_EQ(Findings(), AuditPage(dialog_, {.mirrored = language == 0x401, .size = {222, 211}}));
      EXPECT_TRUE(Item(1319).ReadsLeftToRight());
    });
  }
}

}  // namespace
