// Bookmark formats on the sheet: how they are made and changed, and the dialog for one of them beside it.
#include "pages/CBookmarkFormatDialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "driver/CommonDialogs.h"
#include "driver/DialogAudit.h"
#include "driver/SheetDriver.h"
#include "pages/CBookmarkPage.h"
#include "Pictures.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUISheet.h"
#include "support/Accessible.h"
#include "support/EnterIntoDialog.h"
#include "support/FakeSheet.h"
#include "support/IconPixels.h"
#include "support/InvalidDataBox.h"
#include "support/PostedMessages.h"
#include "support/PrintText.h"
#include "support/WordHost.h"
#include "ui/PageCatalogue.h"
#include "window/AlphaImage.h"

namespace {

using Names = std::vector<std::wstring>;

constexpr int kBookmark = 119, kGraphic = 108;
constexpr UINT kApplied = 0x84D, kCancelled = 0x84E, kOk = 0x84F, kModified = 0x851;
constexpr int kName = 1318, kLevel = 1321, kFont = 1307, kSize = 1308, kBold = 1313, kItalic = 1314, kUnderline = 1315,
              kColour = 1309, kDescription = 1328, kOkButton = 1324, kApply = 1322, kCancel = 1323;

// Two of the user's own beside the three headings: rows 3 and 4.
constexpr wchar_t kFormats[] = L"{STYLE:own;4;{FONT:Courier New;10.5;Italic;0.0.255}};{STYLE:plain;2;{FONT:Arial;8}};";

struct TestFont {
  const wchar_t* name;
  uint32_t kinds = kTrueTypeFont;
  int characterSet = 0;
};
using TestFonts = std::vector<TestFont>;

const TestFonts kFonts = {{L"Zeta"},        {L"Arial Black"},
                          {L"Arial"},       {L"@Arial"},
                          {L"Raster", 1},   {L"Apple", kTrueTypeFont, kMacintoshCharacterSet},
                          {L"Courier New"}, {L"Times New Roman"},
                          {L"Arial"},       {L"Printer", kDeviceFont}};

class BookmarkSheet : public testing::Test {
 protected:
  // The body runs on the shown page of a new sheet, which is cancelled behind it.
  void Run(const Sheet::Body& body) {
    sheet_ = std::make_unique<CNemUISheet>(AllPages());
    CDialogProperties& properties = sheet_->Properties();
    properties.MsgBoxTitle.SetString(L"Title");
    properties.OutlineStylesEnabled[0].SetLong(1);
    properties.OutlineFormats[0].SetString(formats_.c_str());
    properties.InternalUse[0].SetLong(internalUse_);
    RunSheet([this] { return sheet_->Run(nullptr); },
             [&](Sheet& sheet) -> SheetTask {
               dynamic_cast<CBookmarkPage&>(*sheet_->FindPage(kBookmark)).enumerateFonts =
                   [this](HDC, const FontVisitor& visit) {
                     for (const TestFont& font : fonts_) visit({font.name, font.characterSet, font.kinds, {}});
                   };
               EXPECT_TRUE(sheet.SelectPage(kBookmark));
               co_await sheet.Settled();
               co_await body(sheet);
               if (IsWindow(dialog_)) DestroyWindow(dialog_);
               if (sheet.IsOpen()) sheet.PressCancel();
             });
  }
  CListCtrl List(Sheet& sheet) { return CListCtrl(sheet.Control(1290).Window()); }
  std::wstring Column(Sheet& sheet, int column) {
    std::wstring rows;
    for (int row = 0; row < List(sheet).Count(); ++row)
      rows += std::wstring(row ? L"|" : L"") + List(sheet).CellText(row, column).Text();
    return rows;
  }
  std::wstring RowNames(Sheet& sheet) { return Column(sheet, 1); }
  std::wstring Row(Sheet& sheet, int row) {
    std::wstring text;
    for (int column = 1; column < 5; ++column)
      text += std::wstring(column > 1 ? L"|" : L"") + List(sheet).CellText(row, column).Text();
    return text;
  }
  // The dialog that comes up next is the one of a format.
  void Expect(Sheet& sheet, ControlRef::Location where = ControlRef::Location::current()) {
    sheet.ExpectDialog([this](HWND dialog) { dialog_ = dialog; }, where);
  }
  SheetTask Press(Sheet& sheet, int button) {
    Expect(sheet);
    sheet.Control(button).Click();
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
  }
  SheetTask Edit(Sheet& sheet, int row = 3) {
    sheet.Control(1290).Select(row);
    co_await Press(sheet, 1311);
  }
  SheetTask New(Sheet& sheet) { co_await Press(sheet, 1310); }
  SheetTask PressInDialog(Sheet& sheet, int button) {
    Item(button).Click();
    co_await sheet.Settled();
  }
  void ExpectComplaint(Sheet& sheet, const std::wstring& text,
                       ControlRef::Location where = ControlRef::Location::current()) {
    sheet.ExpectBox({.title = L"NEM pdf AddIn UI", .text = text, .icon = MB_ICONERROR}, where);
  }
  bool IsOpen() const { return IsWindow(dialog_) && IsWindowVisible(dialog_); }
  static bool IsLocked(Sheet& sheet) { return !IsWindowEnabled(sheet.Window()); }
  ControlRef Item(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return {GetDlgItem(dialog_, id), id, where};
  }
  std::wstring Description() { return Item(kDescription).Text(); }
  const CFontPreview& Preview() {
    return dynamic_cast<CFontPreview&>(*CSubclassedControl::FromHandle(GetDlgItem(dialog_, 1327)));
  }
  // The next colour of the palette.
  void ChooseNextColour() {
    Item(kColour).Click();
    for (const WPARAM key : {VK_RIGHT, VK_RETURN}) SendMessageW(GetFocus(), WM_KEYDOWN, key, 1);
  }
  std::wstring Stored() { return sheet_->Properties().OutlineFormats[0].GetString().Text(); }

  LanguageScope english_{kEnglish};
  std::unique_ptr<CNemUISheet> sheet_;
  TestFonts fonts_ = kFonts;
  std::wstring formats_ = kFormats;
  int internalUse_ = 0;
  HWND dialog_ = nullptr;
};

std::wstring InvalidSize(const std::wstring& text) {
  return L"'" + text + L"' is not a valid font size. Please enter a number 1-999.";
}
std::wstring InvalidName(const std::wstring& name) {
  return L"'" + name +
         L"' is not a valid name. Please choose a nonempty string, which contains none of following characters "
         L"',;.:{}()'";
}
std::wstring Taken(const std::wstring& name) {
  return L"The name '" + name + L"' is already used for another bookmark format. Please choose a unambiguous name.";
}
std::wstring SameAs(const std::wstring& name) {
  return L"The bookmark format '" + name +
         L"' has the same properties. There cannot be two bookmark formats with the same properties. Please change at "
         L"least one porpety.";
}

// --- What it shows -------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, DialogShowsItsFormatAndIsNotModified) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await Edit(sheet);
    EXPECT_EQ(L"Bookmark format", std::wstring(CWnd(dialog_).Text().Text()));
    EXPECT_EQ(L"own", Item(kName).Text());
    EXPECT_EQ(L"4", Item(kLevel).Text());
    EXPECT_EQ((Names{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"}), Item(kLevel).Rows());
    EXPECT_EQ(L"Courier New", Item(kFont).Text());
    EXPECT_EQ((Names{L"Arial", L"Arial Black", L"Courier New", L"Printer", L"Times New Roman", L"Zeta"}),
              Item(kFont).Rows());
    EXPECT_EQ(L"10.5", Item(kSize).Text());
    EXPECT_EQ((Names{L"8", L"9", L"10", L"11", L"12", L"14", L"16", L"18", L"20", L"22", L"24", L"26", L"28", L"36",
                     L"48", L"72"}),
              Item(kSize).Rows());
    EXPECT_FALSE(Item(kBold).IsChecked());
    EXPECT_TRUE(Item(kItalic).IsChecked());
    EXPECT_FALSE(Item(kUnderline).IsChecked());
    EXPECT_EQ(L"Courier New, 10.5pt, Italic, Blue", Description());
    EXPECT_EQ(L"Example", std::wstring(Preview().sampleText.Text()));
    EXPECT_EQ(L"Courier New", std::wstring(Preview().faceName.Text()));
    EXPECT_EQ(10.5, Preview().pointSize);
    EXPECT_TRUE(!Preview().bold && Preview().italic && !Preview().underline);
    EXPECT_EQ(0xFF0000u, Preview().colour);
    EXPECT_FALSE(Item(kApply).IsEnabled());
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_FALSE(sheet.Control(1311).IsEnabled()) << "one dialog";
    for (const auto& [message, mark] : PostedMessages::current->Take()) EXPECT_EQ(kModified, message);
    EXPECT_EQ(dialog_, GetActiveWindow());
    EXPECT_EQ(sheet.Window(), GetWindow(dialog_, GW_OWNER));
  });
}

TEST_F(BookmarkSheet, DialogStandsBesideTheSheet) {
  Run([&](Sheet& sheet) -> SheetTask {
    SetWindowPos(sheet.Window(), nullptr, 0, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    co_await Edit(sheet);
    EXPECT_EQ(CWnd(sheet.Window()).WindowRect().right, CWnd(dialog_).WindowRect().left);
  });
}

TEST_F(BookmarkSheet, AllButTheUnderlineCanBeChangedOutsideWord) {
  for (const int row : {0, 3})  // a standard format too
    Run([&](Sheet& sheet) -> SheetTask {
      co_await Edit(sheet, row);
      for (const int id : {kName, kLevel, kFont, kSize, kColour, kBold, kItalic}) EXPECT_TRUE(Item(id).IsEnabled());
      EXPECT_FALSE(Item(kUnderline).IsEnabled());
    });
}

TEST_F(BookmarkSheet, StyleButtonsShowTheirPictures) {
  for (const uint16_t language : {0x409, 0x401}) {
    const LanguageScope scope(language);
    Run([&](Sheet& sheet) -> SheetTask {
      co_await Edit(sheet);
      for (const auto& [id, picture] :
           {std::pair{kBold, Pictures::kBold}, {kItalic, Pictures::kItalic}, {kUnderline, Pictures::kUnderline}}) {
        const auto icon = reinterpret_cast<HICON>(SendMessageW(Item(id).Window(), BM_GETIMAGE, IMAGE_ICON, 0));
        AlphaImage image;
        EXPECT_TRUE(image.Load(static_cast<UINT>(picture.bitmap), static_cast<UINT>(picture.mask), 96));
        EXPECT_TRUE(IconPixels(image.MakeIcon(image.Width(), image.Height()).Get()) == IconPixels(icon)) << id;
        EXPECT_FALSE(CWnd(Item(id).Window()).IsMirrored()) << "letters are not turned round";
      }
    });
  }
}

TEST_F(BookmarkSheet, SizesAndFontsAreFoundByTheirBeginning) {
  formats_ = L"{STYLE:a;1;{FONT:Ari;7}};{STYLE:b;1;{FONT:Courier New;12}};{STYLE:c;12;{FONT:Gone;1000.5}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 3);
    EXPECT_EQ(L"Arial", Item(kFont).Text());
    EXPECT_EQ(L"72", Item(kSize).Text());
    sheet.Control(1290).Select(5);
    co_await sheet.Settled();
    EXPECT_EQ(L"Gone", Item(kFont).Text()) << "a font that is not installed stays";
    EXPECT_EQ(7, Item(kFont).RowCount());
    EXPECT_EQ(L"12", Item(kLevel).Text());
    EXPECT_EQ(L"1000.5", Item(kSize).Text());
    sheet.Control(1290).Select(4);
    co_await sheet.Settled();
    EXPECT_EQ(6, Item(kFont).RowCount()) << "and is offered to no other format";
    EXPECT_EQ(9, Item(kLevel).RowCount());
    EXPECT_EQ(L"12", Item(kSize).Text());
    EXPECT_EQ(4, Item(kSize).SelectedRow());
  });
}

// --- Changes -------------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, EachChangeLocksTheSheetShowsAndOpensApply) {
  struct Look {
    std::wstring face = L"Courier New";
    double size = 10.5;
    bool bold = false, italic = true;
    bool operator==(const Look&) const = default;
  };
  struct Change {
    const char* what;
    std::function<void()> make;
    std::wstring description, applied;
    Look preview = {};
  };
  const std::wstring before = L"Courier New, 10.5pt, Italic, Blue";
  const Change changes[] = {
      {"name", [&] { Item(kName).SetText(L"New name"); }, before,
       L"New name|User Def.|Courier New, 10.5, Italic, Blue|4"},
      {"level", [&] { Item(kLevel).Select(L"9"); }, before, L"own|User Def.|Courier New, 10.5, Italic, Blue|9"},
      {"font",
       [&] { Item(kFont).Select(L"Zeta"); },
       L"Zeta, 10.5pt, Italic, Blue",
       L"own|User Def.|Zeta, 10.5, Italic, Blue|4",
       {.face = L"Zeta"}},
      {"size of a row",
       [&] { Item(kSize).Select(L"24"); },
       L"Courier New, 24pt, Italic, Blue",
       L"own|User Def.|Courier New, 24, Italic, Blue|4",
       {.size = 24}},
      {"size",
       [&] { Item(kSize).SetText(L"12,5"); },
       L"Courier New, 12.5pt, Italic, Blue",
       L"own|User Def.|Courier New, 12.5, Italic, Blue|4",
       {.size = 12.5}},
      {"bold",
       [&] { Item(kBold).Click(); },
       L"Courier New, 10.5pt, Bold, Italic, Blue",
       L"own|User Def.|Courier New, 10.5, Bold, Italic, Blue|4",
       {.bold = true}},
      {"italic",
       [&] { Item(kItalic).Click(); },
       L"Courier New, 10.5pt, Blue",
       L"own|User Def.|Courier New, 10.5, Blue|4",
       {.italic = false}},
  };
  for (const Change& change : changes)
    Run([&](Sheet& sheet) -> SheetTask {
      SCOPED_TRACE(change.what);
      const PostedMessages posted;
      co_await Edit(sheet);
      PostedMessages::current->Take();
      change.make();
      EXPECT_EQ(change.description, Description());
      const CFontPreview& shown = Preview();
      EXPECT_TRUE((change.preview == Look{shown.faceName.Text(), shown.pointSize, shown.bold, shown.italic}));
      EXPECT_TRUE(Item(kApply).IsEnabled());
      co_await sheet.Settled();
      EXPECT_TRUE(IsLocked(sheet));
      EXPECT_FALSE(PostedMessages::current->posted.empty());
      for (const auto& [message, mark] : PostedMessages::current->Take()) {
        EXPECT_EQ(kModified, message);
        EXPECT_EQ(0u, mark);
      }
      EXPECT_EQ(L"own|User Def.|Courier New, 10.5, Italic, Blue|4", Row(sheet, 3)) << "the row is the page's";
      co_await PressInDialog(sheet, kApply);
      EXPECT_EQ((Posted{{kApplied, 0}, {kModified, 0}}), PostedMessages::current->Take());
      EXPECT_EQ(change.applied, Row(sheet, 3));
      EXPECT_FALSE(Item(kApply).IsEnabled());
      EXPECT_FALSE(IsLocked(sheet));
      EXPECT_TRUE(IsOpen());
    });
}

TEST_F(BookmarkSheet, ColoursAreChosenFromThePalette) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    ChooseNextColour();
    co_await sheet.Settled();
    EXPECT_NE(L"Courier New, 10.5pt, Italic, Blue", Description());
    EXPECT_EQ(0u, Description().find(L"Courier New, 10.5pt, Italic, "));
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_NE(0xFF0000u, Preview().colour);
    auto& picker = dynamic_cast<CColourPicker&>(*CSubclassedControl::FromHandle(Item(kColour).Window()));
    EXPECT_EQ(picker.GetColour(), Preview().colour);
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(std::wstring::npos, Row(sheet, 3).find(L"Blue|"));
  });
}

TEST_F(BookmarkSheet, ThePickerOffersToUseNoColourAndMoreColours) {
  const ComScope com;
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 4);
    EXPECT_EQ(L"do not use", Accessible(Item(kColour).Window()).Value(0));
    Item(kColour).Click();
    const auto popup = dynamic_cast<CColourPicker&>(*CSubclassedControl::FromHandle(Item(kColour).Window())).Popup();
    CO_ASSERT_TRUE(popup);
    {
      const Accessible cells(popup->Handle());
      EXPECT_EQ(L"do not use", cells.Name(1));
      EXPECT_EQ(L"More Colors...", cells.Name(cells.Count()));
    }
    popup->End(ColourSelEndCancel);
  });
}

// By access key: the edit is told of only when the new format is there already.
TEST_F(BookmarkSheet, AFormatThatEndsAnEditIsNew) {
  for (const int button : {1310, 1312})
    Run([&](Sheet& sheet) -> SheetTask {
      sheet.Control(1290).Select(3);
      List(sheet).Focus();
      sheet.Key(VK_F2);
      co_await sheet.Settled();
      co_await Press(sheet, button);
      EXPECT_TRUE(Item(kApply).IsEnabled()) << button;
      EXPECT_TRUE(IsLocked(sheet)) << button;
      EXPECT_EQ(6, List(sheet).Count());
      co_await PressInDialog(sheet, kCancel);
      EXPECT_EQ(5, List(sheet).Count()) << button;
    });
}

TEST_F(BookmarkSheet, PreviewCutsTheSizeThatIsStored) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    Item(kSize).SetText(L"12,5");
    EXPECT_EQ(12.5, Preview().pointSize) << "cut where it is drawn";
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"own|User Def.|Courier New, 12.5, Italic, Blue|4", Row(sheet, 3));
  });
}

TEST_F(BookmarkSheet, OkStoresAndCancelDoesNot) {
  for (const int button : {kOkButton, kCancel})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      co_await Edit(sheet);
      Item(kName).SetText(L"Other");
      co_await sheet.Settled();
      PostedMessages::current->Take();
      co_await PressInDialog(sheet, button);
      const Posted taken = PostedMessages::current->Take();
      CO_ASSERT_FALSE(taken.empty());
      EXPECT_EQ((Posted::value_type{button == kOkButton ? kOk : kCancelled, 0}), taken.front());
      EXPECT_FALSE(IsWindow(dialog_));
      EXPECT_FALSE(IsLocked(sheet));
      EXPECT_EQ(button == kOkButton ? L"Heading 1|Heading 2|Heading 3|Other|plain"
                                    : L"Heading 1|Heading 2|Heading 3|own|plain",
                RowNames(sheet));
      EXPECT_TRUE(sheet.Control(1311).IsEnabled());
      EXPECT_EQ(sheet.Window(), GetActiveWindow());
      EXPECT_TRUE(IsChild(sheet.Page(), GetFocus())) << "the keyboard is on the page";
    });
}

TEST_F(BookmarkSheet, OkWithoutAChangeIsACancel) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await Edit(sheet);
    PostedMessages::current->Take();
    co_await PressInDialog(sheet, kOkButton);
    const Posted taken = PostedMessages::current->Take();
    CO_ASSERT_FALSE(taken.empty());
    EXPECT_EQ((Posted::value_type{kCancelled, 0}), taken.front());
    EXPECT_FALSE(IsWindow(dialog_));
  });
}

TEST_F(BookmarkSheet, EnterEscAndTheCloseBoxAreOkAndCancel) {
  const auto close = [&](bool isNew, int way) {
    Run([&](Sheet& sheet) -> SheetTask {
      if (isNew)
        co_await New(sheet);
      else
        co_await Edit(sheet);
      Item(kName).SetText(L"Other");
      co_await sheet.Settled();
      if (way == 2)
        PostMessageW(dialog_, WM_SYSCOMMAND, SC_CLOSE, 0);
      else
        sheet.Key(way == 0 ? VK_RETURN : VK_ESCAPE);
      co_await sheet.Settled();
      EXPECT_FALSE(IsWindow(dialog_));
      EXPECT_TRUE(sheet.IsOpen());
      const Names rows = way     ? Names{L"own", L"plain"}
                         : isNew ? Names{L"own", L"plain", L"Other"}
                                 : Names{L"Other", L"plain"};
      Names found;
      for (int row = 3; row < List(sheet).Count(); ++row) found.emplace_back(List(sheet).CellText(row, 1).Text());
      EXPECT_EQ(rows, found) << isNew << way;
    });
  };
  for (const bool isNew : {false, true})
    for (const int way : {0, 1, 2}) close(isNew, way);
}

TEST_F(BookmarkSheet, TabReachesAllAndChangesNothing) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    Item(kName).Focus();
    std::vector<int> stops;
    for (int i = 0; i < 9; ++i) {
      sheet.Key(VK_TAB);
      co_await sheet.Settled();
      stops.push_back(sheet.FocusedId());
    }
    EXPECT_EQ((std::vector<int>{kLevel, kFont, kSize, kBold, kItalic, kColour, kOkButton, kCancel, kName}), stops);
    EXPECT_FALSE(IsLocked(sheet));
  });
}

TEST_F(BookmarkSheet, AStandardFormatKeepsItsStyle) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 0);
    Item(kName).SetText(L"Chapter");
    Item(kLevel).Select(L"3");
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"Chapter|Standard|Arial, 16, Bold, Black|3", Row(sheet, 0));
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_EQ(0u, Stored().find(L"{STYLE:heading 1,Chapter;3;{FONT:Arial;16;Bold;0.0.0}};"));
}

TEST_F(BookmarkSheet, ApplyEndsTheOrderOfTheRows) {
  Run([&](Sheet& sheet) -> SheetTask {
    auto& list = dynamic_cast<CListCtrlBookmark&>(*CSubclassedControl::FromHandle(sheet.Control(1290).Window()));
    EXPECT_EQ(1, list.Sorting().column);
    co_await Edit(sheet);
    Item(kBold).Click();
    co_await PressInDialog(sheet, kApply);
    EXPECT_EQ(-1, list.Sorting().column);
  });
}

// --- What is refused -----------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, SizesAreCheckedAtOkAndApply) {
  for (const int button : {kOkButton, kApply})
    Run([&](Sheet& sheet) -> SheetTask {
      const PostedMessages posted;
      co_await Edit(sheet);
      for (const wchar_t* size : {L"1000", L"0.5", L"999.5", L"12pt", L"x", L"", L"10.25", L"1.0.5", L"."}) {
        Item(kSize).SetText(size);
        co_await sheet.Settled();
        PostedMessages::current->Take();
        ExpectComplaint(sheet, InvalidSize(size));
        Item(button).Click();
        EXPECT_TRUE(IsOpen());
        EXPECT_TRUE(Item(kSize).HasFocus());
        co_await sheet.Settled();
        EXPECT_EQ(Posted(), PostedMessages::current->Take());
        EXPECT_TRUE(IsLocked(sheet));
      }
      Item(kSize).SetText(L"999");
      co_await PressInDialog(sheet, button);
      EXPECT_EQ(L"own|User Def.|Courier New, 999, Italic, Blue|4", Row(sheet, 3));
    });
}

TEST_F(BookmarkSheet, BadNamesAreRefused) {
  for (const int button : {kOkButton, kApply})
    Run([&](Sheet& sheet) -> SheetTask {
      co_await Edit(sheet);
      for (const wchar_t* name : {L"", L"a,b", L"a;b", L"a.b", L"a:b", L"a{b", L"a}b", L"a(b", L"a)b", L"a\"b"}) {
        Item(kName).SetText(L" " + std::wstring(name));
        ExpectComplaint(sheet, InvalidName(name));
        co_await PressInDialog(sheet, button);
        EXPECT_TRUE(IsOpen());
        EXPECT_TRUE(IsLocked(sheet));
      }
      for (const wchar_t* name : {L"plain", L"Heading 3", L"heading 3"}) {
        Item(kName).SetText(std::wstring(name) + L"  ");
        ExpectComplaint(sheet, Taken(name));
        co_await PressInDialog(sheet, button);
        EXPECT_TRUE(IsOpen());
      }
      EXPECT_EQ(L"Heading 1|Heading 2|Heading 3|own|plain", RowNames(sheet));
      Item(kName).SetText(L"  Plain ");
      co_await PressInDialog(sheet, button);
      EXPECT_EQ(L"Heading 1|Heading 2|Heading 3|Plain|plain", RowNames(sheet));
    });
}

// A host may store a name twice. The lower one can be changed under a name of its own only.
TEST_F(BookmarkSheet, OfTwoEqualNamesTheUpperStays) {
  formats_ = L"{STYLE:a;1;{FONT:Arial;8}};{STYLE:a;2;{FONT:Arial;9}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 3);
    Item(kBold).Click();
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"a|User Def.|Arial, 8, Bold, No Color|1", Row(sheet, 3));
    co_await Edit(sheet, 4);
    Item(kBold).Click();
    ExpectComplaint(sheet, Taken(L"a"));
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_TRUE(IsOpen());
  });
}

TEST_F(BookmarkSheet, TwoFormatsMayNotLookAlike) {
  formats_ = L"{STYLE:a;1;{FONT:Arial;8}};{STYLE:b;9;{FONT:Arial;8}};{STYLE:c;1;{FONT:Arial;9}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 5);
    Item(kSize).SetText(L"8");
    ExpectComplaint(sheet, SameAs(L"a"));
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"c|User Def.|Arial, 9, No Color|1", Row(sheet, 5));
    Item(kBold).Click();
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"c|User Def.|Arial, 8, Bold, No Color|1", Row(sheet, 5));
  });
}

// --- New formats ---------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, ANewFormatIsUsedSelectedAndToBeFinished) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await New(sheet);
    EXPECT_EQ(L"Heading 1|Heading 2|Heading 3|own|plain|Style 1", RowNames(sheet));
    EXPECT_EQ(L"Style 1|User Def.|Times New Roman, 10, Black|1", Row(sheet, 5));
    EXPECT_TRUE(List(sheet).IsChecked(5));
    EXPECT_EQ(5, List(sheet).SelectionMark());
    EXPECT_EQ(5, List(sheet).FocusedRow());
    EXPECT_EQ(5, sheet.Control(1290).SelectedRow());
    EXPECT_EQ(L"Style 1", Item(kName).Text());
    DWORD begin = 0, end = 0;
    SendMessageW(Item(kName).Window(), EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(std::pair(0ul, 7ul), std::pair(begin, end)) << "ready to be typed over";
    EXPECT_TRUE(Item(kApply).IsEnabled()) << "at once";
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_EQ(dialog_, GetActiveWindow());
    PostedMessages::current->Take();
    co_await PressInDialog(sheet, kOkButton);
    const Posted taken = PostedMessages::current->Take();
    CO_ASSERT_FALSE(taken.empty());
    EXPECT_EQ((Posted::value_type{kOk, 2101}), taken.front()) << "the first OK counts as a change";
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_EQ(6, List(sheet).Count());
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_NE(std::wstring::npos, Stored().find(L"{STYLE:Style 1;1;{FONT:Times New Roman;10;0.0.0}};"));
  EXPECT_EQ(L"Style 1;1", std::wstring(sheet_->Properties().OutlineStyles[0].GetString().Text()));
}

TEST_F(BookmarkSheet, NewNamesAreNumbered) {
  formats_ = L"{STYLE:style 1;1;{FONT:Arial;8}};{STYLE:STYLE 3;1;{FONT:Arial;9}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await New(sheet);
    EXPECT_EQ(L"Style 2", Item(kName).Text());
    co_await PressInDialog(sheet, kOkButton);
    co_await New(sheet);
    EXPECT_EQ(L"Style 4", Item(kName).Text());
    ExpectComplaint(sheet, SameAs(L"Style 2"));
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_TRUE(IsOpen());
    Item(kSize).SetText(L"20");
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_EQ(7, List(sheet).Count());
  });
}

TEST_F(BookmarkSheet, CancelTakesANewFormatAway) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await New(sheet);
    PostedMessages::current->Take();
    Item(kCancel).Click();
    Item(kCancel).Click();
    co_await sheet.Settled();
    const Posted taken = PostedMessages::current->Take();
    CO_ASSERT_TRUE(taken.size() >= 2);
    EXPECT_EQ((Posted::value_type{kCancelled, 2101}), taken[0]);
    EXPECT_EQ(L"Heading 1|Heading 2|Heading 3|own|plain", RowNames(sheet)) << "the second Cancel takes no other one";
    EXPECT_FALSE(IsLocked(sheet));
    EXPECT_FALSE(IsWindow(dialog_));
  });
}

TEST_F(BookmarkSheet, AnAppliedFormatIsNoLongerNew) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await New(sheet);
    PostedMessages::current->Take();
    co_await PressInDialog(sheet, kApply);
    EXPECT_EQ((Posted{{kApplied, 2101}, {kModified, 0}}), PostedMessages::current->Take());
    EXPECT_FALSE(Item(kApply).IsEnabled());
    EXPECT_FALSE(IsLocked(sheet));
    co_await PressInDialog(sheet, kCancel);
    EXPECT_EQ(6, List(sheet).Count());
  });
}

TEST_F(BookmarkSheet, ACopyHasTheLookAndNeedsAnother) {
  Run([&](Sheet& sheet) -> SheetTask {
    sheet.Control(1290).Select(0);
    co_await Press(sheet, 1312);
    EXPECT_EQ(L"Style 1|User Def.|Arial, 16, Bold, Black|1", Row(sheet, 5));
    EXPECT_TRUE(List(sheet).IsChecked(5)) << "though the original is not";
    ExpectComplaint(sheet, SameAs(L"Heading 1"));
    co_await PressInDialog(sheet, kApply);
    EXPECT_TRUE(IsLocked(sheet));
    co_await PressInDialog(sheet, kCancel);
    EXPECT_EQ(5, List(sheet).Count());
    co_await Press(sheet, 1312);
    Item(kFont).Select(L"Zeta");
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(6, List(sheet).Count());
  });
}

TEST_F(BookmarkSheet, AnOpenDialogGoesOverToANewFormat) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    SetActiveWindow(sheet.Window());
    sheet.Control(1310).Click();
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"Style 1", Item(kName).Text());
    EXPECT_EQ(L"Style 1|User Def.|Times New Roman, 10, Black|1", Row(sheet, 5)) << "no copy of the selected one";
    EXPECT_TRUE(IsLocked(sheet));
    EXPECT_EQ(dialog_, GetActiveWindow());
    co_await PressInDialog(sheet, kCancel);
    EXPECT_EQ(5, List(sheet).Count());
  });
}

TEST_F(BookmarkSheet, ACopyOfNothingIsANewFormat) {
  Run([&](Sheet& sheet) -> SheetTask {
    Expect(sheet);
    PostMessageW(sheet.Page(), WM_COMMAND, 1312, 0);
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"Style 1|User Def.|Times New Roman, 10, Black|1", Row(sheet, 5));
  });
}

TEST_F(BookmarkSheet, TheDefaultFontIsTheFirstOfThreeOrOfAll) {
  const struct {
    TestFonts fonts;
    const wchar_t* font;
  } samples[] = {{{{L"Zeta"}, {L"courier"}, {L"ARIAL"}, {L"times new roman"}}, L"times new roman"},
                 {{{L"Zeta"}, {L"courier"}, {L"ARIAL"}}, L"ARIAL"},
                 {{{L"Zeta"}, {L"courier"}}, L"courier"},
                 {{{L"Zeta"}, {L"Alpha"}}, L"Zeta"},
                 {{}, L""}};
  for (const auto& sample : samples) {
    fonts_ = sample.fonts;
    Run([&](Sheet& sheet) -> SheetTask {
      co_await New(sheet);
      EXPECT_EQ(sample.font, Item(kFont).Text());
      EXPECT_EQ(sample.font + std::wstring(L", 10pt, Black"), Description());
    });
  }
}

// --- Dialog and list -----------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, DialogFollowsTheSelection) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    const HWND before = dialog_;
    sheet.Control(1290).Select(4);
    co_await sheet.Settled();
    EXPECT_EQ(L"plain", Item(kName).Text());
    EXPECT_EQ(L"2", Item(kLevel).Text());
    EXPECT_EQ(L"Arial, 8pt, No Color", Description());
    Item(kBold).Click();
    co_await sheet.Settled();
    EXPECT_TRUE(IsLocked(sheet));
    List(sheet).SelectRow(0);  // by a screen reader, say
    co_await sheet.Settled();
    EXPECT_EQ(before, dialog_);
    EXPECT_EQ(L"Heading 1", Item(kName).Text());
    EXPECT_FALSE(Item(kApply).IsEnabled());
    EXPECT_FALSE(IsLocked(sheet)) << "what was not applied is lost";
    EXPECT_EQ(L"plain|User Def.|Arial, 8, No Color|2", Row(sheet, 4));
    Item(kName).SetText(L"One");
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"One|Heading 2|Heading 3|own|plain", RowNames(sheet));
  });
}

TEST_F(BookmarkSheet, TheRowBehindANewFormatIsNotNew) {
  Run([&](Sheet& sheet) -> SheetTask {
    const PostedMessages posted;
    co_await New(sheet);
    List(sheet).SelectRow(3);
    co_await sheet.Settled();
    EXPECT_EQ(L"own", Item(kName).Text());
    EXPECT_FALSE(Item(kApply).IsEnabled());
    EXPECT_FALSE(IsLocked(sheet));
    PostedMessages::current->Take();
    co_await PressInDialog(sheet, kCancel);
    const Posted taken = PostedMessages::current->Take();
    CO_ASSERT_FALSE(taken.empty());
    EXPECT_EQ((Posted::value_type{kCancelled, 0}), taken.front());
    EXPECT_EQ(L"Heading 1|Heading 2|Heading 3|own|plain|Style 1", RowNames(sheet));
  });
}

TEST_F(BookmarkSheet, ALostSelectionClosesTheDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    const RECT last = List(sheet).RowRect(4);
    sheet.Control(1290).ClickAt(last.left + 20, last.bottom + 20);
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_EQ(-1, List(sheet).SelectionMark());
    EXPECT_FALSE(sheet.Control(1311).IsEnabled());
  });
}

TEST_F(BookmarkSheet, RemovingShowsTheNextFormat) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    sheet.Control(1305).Click();
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"plain", Item(kName).Text());
    sheet.ExpectBox({.title = L"Title",
                     .text = L"Do you really want to remove all user-defined bookmark formats?",
                     .icon = MB_ICONQUESTION,
                     .button = IDYES});
    sheet.ExpectBox(
        {.title = L"Title",
         .text = L"All user-defined styles were deleted. The standard-styles were deactivated but not deleted.",
         .icon = MB_ICONINFORMATION});
    sheet.Control(1306).Click();
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_)) << "its format has gone";
    EXPECT_EQ(L"Heading 1|Heading 2|Heading 3", RowNames(sheet));
  });
}

TEST_F(BookmarkSheet, DialogRestsWhileThePageAsks) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    bool wasEnabled = true;
    sheet.Queue().Loop().Post([&] { wasEnabled = IsWindowEnabled(dialog_); });
    sheet.ExpectBox({.title = L"Title",
                     .text = L"Do you really want to remove all user-defined bookmark formats?",
                     .icon = MB_ICONQUESTION,
                     .button = IDNO});
    sheet.Control(1306).Click();
    EXPECT_FALSE(wasEnabled);
    EXPECT_TRUE(IsWindowEnabled(dialog_));
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
  });
}

TEST_F(BookmarkSheet, EditsInTheListReachTheDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    SetActiveWindow(sheet.Window());
    List(sheet).Focus();
    sheet.Key(VK_F2);
    co_await sheet.Settled();
    sheet.Type(L"typed");
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_EQ(L"typed", Item(kName).Text());
    EXPECT_FALSE(IsLocked(sheet));
    sheet.Key(VK_F4);
    co_await sheet.Settled();
    sheet.Key(VK_DOWN);
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_EQ(L"5", Item(kLevel).Text());
    EXPECT_EQ(L"typed|User Def.|Courier New, 10.5, Italic, Blue|5", Row(sheet, 3));
  });
}

TEST_F(BookmarkSheet, SortingTakesTheFormatAlong) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    auto& list = dynamic_cast<CListCtrlBookmark&>(*CSubclassedControl::FromHandle(sheet.Control(1290).Window()));
    list.SortByColumn(CListCtrlBookmark::kNameColumn, false);
    co_await sheet.Settled();
    EXPECT_EQ(L"plain|own|Heading 3|Heading 2|Heading 1", RowNames(sheet));
    Item(kBold).Click();  // its own name is not taken
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_EQ(L"own|User Def.|Courier New, 10.5, Bold, Italic, Blue|4", Row(sheet, 1));
  });
}

TEST_F(BookmarkSheet, DoubleClickAndEnterOpenTheDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    const RECT row = List(sheet).RowRect(4), type = List(sheet).CellRect(4, 2);
    Expect(sheet);
    sheet.Control(1290).DoubleClickAt(type.left + 5, (row.top + row.bottom) / 2);
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(L"plain", Item(kName).Text());
    co_await PressInDialog(sheet, kCancel);
    sheet.Control(1290).DoubleClickAt(type.left + 5, row.bottom + 30);
    co_await sheet.Settled();
    EXPECT_FALSE(IsOpen()) << "no row was hit";
    List(sheet).Focus();
    List(sheet).SelectRow(1);
    Expect(sheet);
    sheet.Key(VK_RETURN);
    co_await sheet.Settled();
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(sheet.IsOpen());
    EXPECT_EQ(L"Heading 2", Item(kName).Text());
    co_await ExpectEnterLeadsBack(sheet, List(sheet), dialog_);
  });
}

// --- Word ----------------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, UnderWordTheLevelAloneIsChanged) {
  if (!IsInWord()) return RunInWord();
  internalUse_ = 2;
  formats_ = L"{STYLE:heading 1;1;{FONT:Arial;8;Underline}};{STYLE:a,b;1;{FONT:Arial;8;Underline}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 0);
    for (const int id : {kName, kFont, kSize, kColour, kBold, kItalic, kUnderline}) EXPECT_FALSE(Item(id).IsEnabled());
    EXPECT_TRUE(Item(kLevel).IsEnabled());
    EXPECT_TRUE(Item(kUnderline).IsChecked());
    EXPECT_TRUE(Preview().underline);
    Item(kLevel).Select(L"6");
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_FALSE(IsWindow(dialog_)) << "nobody asks for names or for formats that look alike";
    EXPECT_EQ(L"Heading 1|Word std.|Arial, 8, Underlined, No Color|6", Row(sheet, 0));
    sheet.PressOk();
    co_await sheet.Settled();
  });
  EXPECT_EQ(0u, Stored().find(L"{STYLE:heading 1;6;{FONT:Arial;8;Underline}};{STYLE:a,b;1;"));
}

TEST_F(BookmarkSheet, UnderWordASizeIsCheckedAllTheSame) {
  if (!IsInWord()) return RunInWord();
  internalUse_ = 2;
  formats_ = L"{STYLE:heading 1;1;{FONT:Arial;0.5}};";
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet, 0);
    Item(kLevel).Select(L"6");
    ExpectComplaint(sheet, InvalidSize(L"0.5"));
    co_await PressInDialog(sheet, kOkButton);
    EXPECT_TRUE(IsOpen());
  });
}

// --- Ends ----------------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, LeavingThePageClosesAnUnchangedDialog) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    EXPECT_TRUE(sheet.SelectPage(kGraphic));
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
    EXPECT_EQ(kGraphic, sheet.PageId());
    EXPECT_FALSE(IsLocked(sheet));
  });
}

TEST_F(BookmarkSheet, ADialogWithChangesKeepsThePage) {
  for (const bool isNew : {false, true})
    Run([&](Sheet& sheet) -> SheetTask {
      if (isNew) {
        co_await New(sheet);
      } else {
        co_await Edit(sheet);
        Item(kBold).Click();
        co_await sheet.Settled();
      }
      sheet.ExpectBox(InvalidDataBox(L"Title"));
      EXPECT_FALSE(sheet.SelectPage(kGraphic));
      co_await sheet.Settled();
      EXPECT_TRUE(IsOpen());
      EXPECT_EQ(kBookmark, sheet.PageId());
      EXPECT_TRUE(IsLocked(sheet));
    });
}

TEST_F(BookmarkSheet, CancelOfTheSheetTakesAnUnchangedDialogAlong) {
  Run([&](Sheet& sheet) -> SheetTask {
    co_await Edit(sheet);
    sheet.PressCancel();
    co_await sheet.Settled();
    EXPECT_FALSE(IsWindow(dialog_));
  });
  EXPECT_EQ(kFormats, Stored());
}

// Whatever dies first, and whatever the dialog holds, no window stays locked.
TEST_F(BookmarkSheet, NoEndLeavesTheSheetLocked) {
  enum class State { Unchanged, Changed, New };
  enum class Victim { Dialog, List, Page, HiddenDialog };
  for (const State state : {State::Unchanged, State::Changed, State::New})
    for (const Victim victim : {Victim::Dialog, Victim::List, Victim::Page, Victim::HiddenDialog}) {
      SCOPED_TRACE(std::to_string(static_cast<int>(state)) + std::to_string(static_cast<int>(victim)));
      Run([&](Sheet& sheet) -> SheetTask {
        if (state == State::New)
          co_await New(sheet);
        else
          co_await Edit(sheet);
        if (state == State::Changed) Item(kName).SetText(L"changed");
        co_await sheet.Settled();
        EXPECT_EQ(state != State::Unchanged, IsLocked(sheet));
        switch (victim) {
          case Victim::Dialog:
            DestroyWindow(dialog_);
            break;
          case Victim::List:
            DestroyWindow(sheet.Control(1290).Window());
            Item(kOkButton).Click();  // its row is gone
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
          EXPECT_TRUE(sheet.Control(1311).IsEnabled());
          co_await Edit(sheet);  // works again
          EXPECT_FALSE(IsLocked(sheet));
        }
      });
    }
}

TEST_F(BookmarkSheet, SheetMayDieInEveryState) {
  for (const bool changed : {false, true})
    for (const bool withBox : {false, true})
      Run([&](Sheet& sheet) -> SheetTask {
        co_await Edit(sheet);
        if (changed) Item(kBold).Click();
        co_await sheet.Settled();
        if (withBox) {
          SetWindowTextW(Item(kSize).Window(), L"x");
          ExpectComplaint(sheet, InvalidSize(L"x"));
          Item(kOkButton).Click();
        }
        DestroyWindow(sheet.Window());
        co_await sheet.Settled();
        EXPECT_FALSE(IsWindow(dialog_));
      });
}

// The page ends the dialog while a box of it is up: one of its own, or one that the page has it show.
TEST_F(BookmarkSheet, DialogMayEndUnderItsBoxes) {
  for (const bool ownBox : {true, false})
    Run([&](Sheet& sheet) -> SheetTask {
      co_await Edit(sheet);
      const HWND page = sheet.Page();
      if (ownBox)
        Item(kSize).SetText(L"x");
      else
        Item(kName).SetText(L"plain");
      co_await sheet.Settled();
      // The box of the page's answer comes up in the handling of a posted message: this one is behind it.
      if (ownBox) sheet.Queue().Loop().Post([page] { DestroyWindow(page); });
      SendMessageW(dialog_, WM_COMMAND, kOkButton, 0);
      if (!ownBox) {
        sheet.Queue().Loop().Post([page] { DestroyWindow(page); });
        co_await sheet.Settled();
      }
      EXPECT_FALSE(IsWindow(dialog_));
      EXPECT_FALSE(IsLocked(sheet));
      co_await sheet.Settled();
    });
}

// --- Look ----------------------------------------------------------------------------------------------------------

TEST_F(BookmarkSheet, DialogIsSoundInEveryLanguage) {
  for (const uint16_t language : {0x409, 0x407, 0x40C, 0x401}) {
    SCOPED_TRACE(language);
    const LanguageScope scope(language);
    Run([&](Sheet& sheet) -> SheetTask {
      co_await Edit(sheet);
      EXPECT_EQ(Findings(), AuditPage(dialog_, {.mirrored = language == 0x401, .size = {236, 194}}));
    });
  }
}

}  // namespace
