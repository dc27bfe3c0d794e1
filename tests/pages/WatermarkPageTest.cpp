#include "pages/CWatermarkPage.h"

#include "driver/SheetDriver.h"
#include "pages/CNemUIFormatPage.h"
#include "pages/CNemUIWatermarkPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "ShellSpy.h"
#include "support/ControlPictures.h"
#include "support/DropRecord.h"
#include "support/FileDialogSpy.h"
#include "support/FreedTextWatch.h"
#include "support/FunctionPatch.h"
#include "support/HelpSpy.h"
#include "support/InvalidDataBox.h"
#include "support/PrintText.h"

namespace {

constexpr int kPageId = kWatermarkPage;
using Values = WatermarkCockpitValues;

const std::wstring kLetter = L"{NAME:\"Letter\";FILE:\"C:\\\\Paper\\\\z.pdf\";P:\"secret\";TYPE:\"2\"}";
const std::wstring kBill = L"{NAME:\"bill\";FILE:\"D:\\\\a.pdf\";P:\"\";TYPE:\"7\"}";
const std::wstring kList = L"{" + kLetter + kBill + L"}";

// What the page needs beside the value that is looked at: without a stationery there is none to use, and without its
// file no watermark.
const std::vector<std::pair<std::wstring, PropertyValue>> kFilled = {
    {L"StationeryInfos", kList.c_str()}, {L"StationeryEnabled", 1}, {L"WatermarkEnabled", 1}};

const PageTable kTable = {
    .name = "Watermark",
    .pageId = kPageId,
    .helpLink = IDC_WATERMARK_HELP_LINK,
    .rows =
        {
            CheckBox(L"WatermarkEnabled", IDC_WATERMARK_USE)
                .Given({{L"StationeryInfos", kList.c_str()}})
                .LockedBy<&AdminSettings::WatermarkEnabled_Override>({IDC_WATERMARK_USE})
                .Tracked<&Values::watermarkEnabled>(),
            Field(L"WatermarkFilename", IDC_WATERMARK_FILE)
                .Stores({{L"C:\\mark.png", L"C:\\mark.png", L"C:\\mark.png"}, {L" ", L" ", L" "}})
                .Types({{L"x", L"x", L"x"},
                        {std::wstring(300, L'y'), std::wstring(259, L'y'),
                         PropertyValue(std::wstring(259, L'y').c_str())}})
                .Given(kFilled)
                .LockedBy<&AdminSettings::WatermarkFilename_Override>({IDC_WATERMARK_FILE, IDC_WATERMARK_BROWSE}),
            CheckBox(L"StationeryEnabled", IDC_STATIONERY_USE)
                .Given({{L"StationeryInfos", kList.c_str()}})
                .LockedBy<&AdminSettings::StationeryEnabled_Override>({IDC_STATIONERY_USE})
                .Tracked<&Values::stationeryEnabled>(),
            CheckBox(L"StationeryAsForeground", IDC_STATIONERY_FOREGROUND)
                .Given(kFilled)
                .LockedBy<&AdminSettings::StationeryAsForeground_Override>({IDC_STATIONERY_FOREGROUND}),
        },
};
const PageTableEntry entry(kTable);

constexpr int kWatermarkControls[] = {1062, 1063, 1064};
constexpr int kStationeryControls[] = {1066, 1291, 1071, 1067, 1069, 1070};

class WatermarkPage : public testing::Test {
 protected:
  WatermarkPage() { Fill(test_); }
  static void Fill(PageUnderTest& test) {
    test.Sheet().properties.MsgBoxTitle.SetString(L"Title");
    test.Set(L"StationeryInfos", kList);
    test.Set(L"StationeryEnabled", 1);
    test.Set(L"WatermarkEnabled", 1);
    test.Set(L"WatermarkFilename", L"mark.png");
  }
  ControlRef Control(int id) { return test_.Control(id); }
  std::vector<int> Enabled(std::span<const int> controls) { return test_.Enabled(controls); }
  std::vector<int> Enabled() {
    std::vector<int> all = Enabled(kWatermarkControls);
    for (const int id : Enabled(kStationeryControls)) all.push_back(id);
    return all;
  }
  CListCtrl List() { return CListCtrl(Control(1291).Window()); }
  std::wstring Rows(int column = 0) {
    std::wstring rows;
    for (int row = 0; row < List().Count(); ++row)
      rows += std::wstring(row ? L"," : L"") + List().CellText(row, column).Text();
    return rows;
  }
  std::wstring Saved(const wchar_t* property) {
    EXPECT_TRUE(test_.Save());
    return test_.Value(property);
  }

  PageUnderTest test_{kPageId};
  Popups popups_;
};

// --- Watermark -----------------------------------------------------------------------------------------------------

TEST_F(WatermarkPage, ForegroundIsTheOppositeOfTheBackground) {
  for (const auto& [stored, checked, saved] :
       {std::tuple{0, true, L"0"}, {1, false, L"1"}, {2, false, L"1"}, {-1, false, L"1"}, {65536, true, L"0"}}) {
    PageUnderTest test(kPageId);
    Fill(test);
    test.Set(L"WatermarkAsBackground", stored);
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(checked, test.Control(1064).IsChecked()) << stored;
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(saved, test.Value(L"WatermarkAsBackground")) << stored;
    test.Control(1064).Click();
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(checked ? L"1" : L"0", test.Value(L"WatermarkAsBackground")) << stored;
  }
}

TEST_F(WatermarkPage, WatermarkNeedsItsFile) {
  ASSERT_TRUE(test_.Open());
  Control(1062).SetText(L"");
  popups_.ExpectBox(
      {.title = L"Title", .text = L"The watermark file name entered is invalid!", .icon = MB_ICONEXCLAMATION});
  Control(1064).Click();
  EXPECT_FALSE(test_.Page().OnKillActive());
  EXPECT_TRUE(Control(1062).HasFocus());
  EXPECT_EQ(0, test_.As<CWatermarkPage>().watermarkAsBackground) << "nothing behind the failure is taken";
  // Where the user cannot get at it, it may be empty.
  Control(1065).Click();
  EXPECT_EQ(L"", Saved(L"WatermarkFilename"));
  Control(1065).Click();
  test_.Page().Show(false);
  EXPECT_EQ(L"1", Saved(L"WatermarkEnabled"));
  EXPECT_EQ(1u, popups_.Boxes().size());
}

TEST_F(WatermarkPage, FilesOf260CharactersAreTakenAndRefused) {
  test_.Set(L"WatermarkFilename", std::wstring(259, L'a'));
  ASSERT_TRUE(test_.Open());
  EXPECT_TRUE(test_.Page().UpdateData(true));
  Control(1062).Focus();
  SetWindowTextW(Control(1062).Window(), std::wstring(260, L'b').c_str());
  Control(1068).Click();
  EXPECT_FALSE(test_.Page().UpdateData(true));
  EXPECT_EQ(260, test_.As<CWatermarkPage>().watermarkFilename.Length());
  EXPECT_EQ(0, test_.As<CWatermarkPage>().stationeryEnabled) << "the rest is taken all the same";
  popups_.ExpectBox(InvalidDataBox(L"Title"));
  EXPECT_FALSE(test_.Page().OnKillActive());
  EXPECT_TRUE(Control(1062).HasFocus());
}

TEST_F(WatermarkPage, WatermarkControlsFollowTheirSwitch) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ((std::vector<int>{1062, 1063, 1064}), Enabled(kWatermarkControls));
  Control(1065).Click();
  EXPECT_EQ(std::vector<int>(), Enabled(kWatermarkControls));
  Control(1065).Click();
  EXPECT_EQ((std::vector<int>{1062, 1063, 1064}), Enabled(kWatermarkControls));
}

TEST_F(WatermarkPage, AnOverrideOfThePlaceLocksItsCheckBox) {
  test_.Admin().WatermarkAsBackground_Override = 0;
  ASSERT_TRUE(test_.Open());
  for (int times = 0; times < 2; ++times) {
    EXPECT_EQ((std::vector<int>{1062, 1063}), Enabled(kWatermarkControls));
    Control(1065).Click();
    Control(1065).Click();
  }
}

TEST_F(WatermarkPage, PictureStandsInItsControl) {
  ASSERT_TRUE(test_.Open());
  auto* picture = dynamic_cast<CImageStatic*>(CSubclassedControl::FromHandle(Control(1138).Window()));
  ASSERT_TRUE(picture);
  EXPECT_TRUE(picture->IsLoaded());
  ExpectPictures(test_.Page(), {{1138, Pictures::kWatermark}});
}

TEST_F(WatermarkPage, PickersAskForTheirKindOfFile) {
  struct Row {
    int button;
    const wchar_t *filter, *startName;
  };
  ASSERT_TRUE(test_.Open());
  for (const Row& row : {Row{1063, L"All files(*.*)|*.*|", L"mark.png"},
                         Row{1066, L"PDF-Files(*.pdf)|*.pdf|All files(*.*)|*.*|", L""}}) {
    FileDialogSpy spy;
    Control(row.button).Click();
    EXPECT_EQ((FileDialogSpy::Calls{{.owner = test_.Page().Handle(),
                                     .filter = row.filter,
                                     .startName = row.startName,
                                     .pathRoom = 260,
                                     .flags = 0x1804}}),
              spy.calls)
        << row.button;
  }
  EXPECT_EQ(L"mark.png", Control(1062).Text());
  EXPECT_EQ(L"Letter,bill", Rows());
}

TEST_F(WatermarkPage, ThePageMayEndWhileAPickerIsUp) {
  for (const int button : {1063, 1066}) {
    PageUnderTest test(kPageId);
    Fill(test);
    ASSERT_TRUE(test.Open());
    FileDialogSpy spy;
    spy.chosen = L"C:\\a.pdf";
    spy.whileUp = [&] { test.Page().Destroy(); };
    SendMessageW(test.Page().Handle(), WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(test.Control(button).Window()));
    EXPECT_EQ(1u, spy.calls.size());
    EXPECT_FALSE(test.Page().IsWindow());
  }
}

TEST_F(WatermarkPage, ThePathReadsFromLeftToRightInAMirroredPageToo) {
  const LanguageScope arabic(0x0401);
  ASSERT_TRUE(test_.Open());
  EXPECT_TRUE(CWnd(test_.Page().Handle()).IsMirrored());
  EXPECT_TRUE(Control(1062).ReadsLeftToRight());
}

// --- The list ------------------------------------------------------------------------------------------------------

TEST_F(WatermarkPage, ListShowsDescriptionsAndFiles) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(L"Letter,bill", Rows());
  EXPECT_EQ(L"z.pdf,a.pdf", Rows(1));
  ASSERT_EQ(2, List().ColumnCount());
  wchar_t title[32];
  for (const auto& [column, text] : {std::pair{0, L"Description"}, {1, L"Filename"}}) {
    LVCOLUMNW info{};
    info.mask = LVCF_TEXT | LVCF_WIDTH;
    info.pszText = title;
    info.cchTextMax = 32;
    List().Send(LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&info));
    EXPECT_STREQ(text, title);
    EXPECT_EQ(List().Scale(180), info.cx);
  }
  EXPECT_TRUE(List().Send(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_FULLROWSELECT);
  EXPECT_EQ(0u, List().Style() & WS_HSCROLL) << "both columns can be seen";
  test_.Page().OnSetActive();
  test_.Page().OnSetActive();
  EXPECT_EQ(L"Letter,bill", Rows());
  EXPECT_EQ(2, List().ColumnCount());
}

TEST_F(WatermarkPage, ListComesBackUnchangedWithPasswordsAndUnknownModes) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ(kList, Saved(L"StationeryInfos"));
}

TEST_F(WatermarkPage, BrokenListsShowWhatCanBeRead) {
  struct Row {
    std::wstring text, rows, saved;
  };
  for (const Row& row : {Row{L"", L"", L"{}"}, Row{L"{}", L"", L"{}"}, Row{L"nonsense", L"", L"{}"},
                         Row{L"{" + kLetter + kBill, L"Letter", L"{" + kLetter + L"}"},
                         Row{L"{" + kLetter + L"x}", L"Letter", L"{" + kLetter + L"}"}}) {
    PageUnderTest test(kPageId);
    Fill(test);
    test.Set(L"StationeryInfos", row.text);
    ASSERT_TRUE(test.Open());
    std::wstring rows;
    const CListCtrl list(test.Control(1291).Window());
    for (int i = 0; i < list.Count(); ++i) rows += list.CellText(i, 0).Text();
    EXPECT_EQ(row.rows, rows);
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(row.saved, test.Value(L"StationeryInfos"));
  }
}

TEST_F(WatermarkPage, SelectionIsTheRowOfTheList) {
  for (const auto& [stored, row, saved] :
       {std::tuple{0, 0, L"0"}, {1, 1, L"1"}, {2, -1, L"0"}, {-1, -1, L"0"}, {65537, 1, L"1"}}) {
    PageUnderTest test(kPageId);
    Fill(test);
    test.Set(L"StationerySelected", stored);
    ASSERT_TRUE(test.Open());
    const CListCtrl list(test.Control(1291).Window());
    EXPECT_EQ(row, static_cast<int>(list.Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED))) << stored;
    EXPECT_EQ(row, list.SelectionMark()) << stored;
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(saved, test.Value(L"StationerySelected")) << stored;
  }
}

TEST_F(WatermarkPage, SortingTakesTheSelectionAlongAndTheSavedOrder) {
  ASSERT_TRUE(test_.Open());
  const auto clickHead = [&](int column) {
    const CWnd header(reinterpret_cast<HWND>(List().Send(LVM_GETHEADER)));
    NMHEADERW click{};
    click.hdr = {header.Handle(), static_cast<UINT_PTR>(header.Id()), static_cast<UINT>(HDN_ITEMCLICKW)};
    click.iItem = column;
    List().Send(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
  };
  clickHead(0);
  EXPECT_EQ(L"bill,Letter", Rows());
  EXPECT_EQ(L"1", Saved(L"StationerySelected"));
  EXPECT_EQ(L"{" + kBill + kLetter + L"}", test_.Value(L"StationeryInfos"));
  clickHead(1);
  EXPECT_EQ(L"Letter,bill", Rows()) << "by whole paths";
}

TEST_F(WatermarkPage, StationeryIsUsedOnlyWithOneInTheList) {
  test_.Set(L"StationeryInfos", L"{}");
  ASSERT_TRUE(test_.Open());
  EXPECT_TRUE(Control(1068).IsChecked());
  EXPECT_EQ((std::vector<int>{1066, 1291, 1071}), Enabled(kStationeryControls));
  EXPECT_EQ(L"0", Saved(L"StationeryEnabled"));
}

TEST_F(WatermarkPage, StationeryControlsFollowTheirSwitch) {
  ASSERT_TRUE(test_.Open());
  EXPECT_EQ((std::vector<int>{1066, 1291, 1071, 1067, 1069, 1070}), Enabled(kStationeryControls));
  Control(1068).Click();
  EXPECT_EQ(std::vector<int>(), Enabled(kStationeryControls));
  Control(1068).Click();
  EXPECT_EQ((std::vector<int>{1066, 1291, 1071, 1067, 1069, 1070}), Enabled(kStationeryControls));
}

TEST_F(WatermarkPage, PdfUaClosesTheGroupAndKeepsTheChoice) {
  CNemUIFormatPage format(&test_.Sheet(), PageDescription{}, 0);
  test_.Sheet().pages[kFormatPage] = &format;
  for (const int version : {13, 107, 199, 200, 201}) {
    test_.Set(L"PdfVersion", version);
    PageUnderTest test(kPageId);
    Fill(test);
    test.Sheet().pages[kFormatPage] = &format;
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(version != 200, test.Control(1068).IsEnabled()) << version;
    for (const int id : kStationeryControls) EXPECT_EQ(version != 200, test.Control(id).IsEnabled()) << version;
    EXPECT_TRUE(test.Control(1068).IsChecked());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(L"1", test.Value(L"StationeryEnabled"));
  }
  test_.Set(L"PdfVersion", 200);
  ASSERT_TRUE(test_.Open());
  EXPECT_FALSE(Control(1068).IsEnabled());
  test_.Set(L"PdfVersion", 14);
  test_.Page().OnSetActive();
  test_.Page().OnSetActive();
  EXPECT_TRUE(Control(1068).IsEnabled()) << "the version is asked at each showing";
}

TEST_F(WatermarkPage, ListIsFixedByBothOverridesTogether) {
  for (const auto& [selected, infos] : {std::pair{true, false}, {false, true}, {true, true}}) {
    PageUnderTest test(kPageId);
    Fill(test);
    if (selected) test.Admin().StationerySelected_Override = 1;
    if (infos) test.Admin().StationeryInfos_Override = L"{}";
    ASSERT_TRUE(test.Open());
    for (int times = 0; times < 2; ++times) {
      for (const int id : kStationeryControls) EXPECT_EQ(!(selected && infos), test.Control(id).IsEnabled()) << id;
      EXPECT_TRUE(test.Control(1068).IsEnabled());
      test.Control(1068).Click();
      test.Control(1068).Click();
    }
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(kList, test.Value(L"StationeryInfos")) << "the host's list shows and stays";
  }
}

TEST_F(WatermarkPage, DeletingNeedsNoQuestion) {
  ASSERT_TRUE(test_.Open());
  Control(1070).Click();
  EXPECT_EQ(L"bill", Rows());
  EXPECT_EQ(0, List().SelectionMark());
  Control(1070).Click();
  EXPECT_EQ(L"", Rows());
  EXPECT_EQ((std::vector<int>{1066, 1291, 1071}), Enabled(kStationeryControls));
  EXPECT_EQ(L"{}", Saved(L"StationeryInfos"));
  EXPECT_EQ(L"0", test_.Value(L"StationeryEnabled"));
}

TEST_F(WatermarkPage, DeletingTheLastRowSelectsNone) {
  test_.Set(L"StationerySelected", 1);
  ASSERT_TRUE(test_.Open());
  Control(1070).Click();
  EXPECT_EQ(L"Letter", Rows());
  EXPECT_EQ(L"0", Saved(L"StationerySelected"));
}

TEST_F(WatermarkPage, DeleteKeyDeletesAsTheButtonDoes) {
  ASSERT_TRUE(test_.Open());
  List().Focus();
  List().Send(WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(L"bill", Rows());
  EnableWindow(Control(1070).Window(), FALSE);
  List().Send(WM_KEYDOWN, VK_DELETE, 1);
  EXPECT_EQ(L"bill", Rows());
}

TEST_F(WatermarkPage, DisplayOpensTheFileOfTheSelection) {
  shellCalls.clear();
  test_.Set(L"StationerySelected", 1);
  ASSERT_TRUE(test_.Open());
  Control(1069).Click();
  ASSERT_EQ(1u, shellCalls.size());
  EXPECT_EQ(L"open", shellCalls[0].verb);
  EXPECT_EQ(L"D:\\a.pdf", shellCalls[0].target);
  EXPECT_EQ(SW_SHOWNORMAL, shellCalls[0].show);
  List().SetSelectionMark(-1);
  Control(1069).Click();
  EXPECT_EQ(1u, shellCalls.size());
}

TEST_F(WatermarkPage, TheRefusalOfADropIsEnglishInEachLanguage) {
  ASSERT_TRUE(test_.Open());
  const LanguageScope german(0x0407);
  popups_.ExpectBox({.title = L"Error", .text = L"Only pdf can be used as a stationery file!", .icon = 0});
  DropOn(test_.Page().Handle(), 1291, {L"a.txt"});
}

TEST_F(WatermarkPage, TheVariantForTiffHasNoStationery) {
  test_.Page().tiffVariant = true;
  ASSERT_TRUE(test_.Open());
  for (const int id : {5014, 1068, 1291, 1066, 1067, 1069, 1070, 1071, 1178})
    EXPECT_FALSE(CWnd(Control(id).Window()).IsShown()) << id;
  for (const int id : {1523, 1065, 1062, 1177}) EXPECT_TRUE(CWnd(Control(id).Window()).IsShown()) << id;
}

TEST_F(WatermarkPage, HelpOnStationeryIsThatOfThePage) {
  test_.Sheet().properties.HelpFilename.SetString(L"help.chm");
  ASSERT_TRUE(test_.Open());
  LOGFONTW font{};
  GetObjectW(CWnd(Control(1178).Window()).Font(), sizeof font, &font);
  EXPECT_TRUE(font.lfUnderline);
  HelpSpy spy;
  Control(1178).Click();
  EXPECT_EQ(L"help.chm::/Watermark_properties.htm", spy.TakePath());
}

// --- Properties ----------------------------------------------------------------------------------------------------

TEST_F(WatermarkPage, ADocumentWithoutAListShowsThatOfTheBasicSettings) {
  PageUnderTest test(kPageId, 1);
  Fill(test);
  test.Set(L"StationeryInfos", L"");
  test.Sheet().properties.StationeryInfos[0].SetString(kList.c_str());
  ASSERT_TRUE(test.Open());
  EXPECT_EQ(2, CListCtrl(test.Control(1291).Window()).Count());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(kList, test.Value(L"StationeryInfos"));
  EXPECT_EQ(kList, test.Sheet().properties.StationeryInfos[0].GetString());

  PageUnderTest own(kPageId, 1);
  Fill(own);
  own.Set(L"StationeryInfos", L"{}");
  own.Sheet().properties.StationeryInfos[0].SetString(kList.c_str());
  ASSERT_TRUE(own.Open());
  EXPECT_EQ(0, CListCtrl(own.Control(1291).Window()).Count()) << "an empty list is a list";
}

TEST_F(WatermarkPage, ColourSpaceIsWrittenBackAsItWasRead) {
  for (const auto& [stored, saved] : {std::pair{0, L"0"}, {1, L"1"}, {7, L"7"}, {-1, L"65535"}, {65536, L"0"}}) {
    PageUnderTest test(kPageId);
    Fill(test);
    test.Set(L"Colorspace", stored);
    ASSERT_TRUE(test.Open());
    test.Set(L"Colorspace", 3);
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(saved, test.Value(L"Colorspace"));
  }
}

TEST_F(WatermarkPage, NoPasswordStaysInMemory) {
  FreedTextWatch watch(L"ret\";TYPE");  // of the password's end
  {
    PageUnderTest test(kPageId);
    Fill(test);
    test.Admin().StationeryInfos_Override = kList.c_str();
    ASSERT_TRUE(test.Open());
    ASSERT_TRUE(test.Save());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(kList, test.Value(L"StationeryInfos"));
    test.Page().OnSetActive();
    test.Page().OnSetActive();
  }
  EXPECT_EQ(0, watch.Count());
}

// --- What other pages ask ------------------------------------------------------------------------------------------

TEST(WatermarkAccess, StationeryIsKnownBeforeThePageIsShownAndStandsOnItBeforeOk) {
  for (const int set : {0, 1}) {
    PageUnderTest test(kPageId, set);
    test.Set(L"StationeryInfos", kList);
    auto& page = test.As<CNemUIWatermarkPage>();
    EXPECT_FALSE(page.IsStationeryEnabled());
    test.Set(L"StationeryEnabled", 1);
    EXPECT_TRUE(page.IsStationeryEnabled());
    EXPECT_FALSE(page.IsLoaded());
    ASSERT_TRUE(test.Open());
    test.Control(IDC_STATIONERY_USE).Click();
    ASSERT_TRUE(page.OnKillActive());
    EXPECT_FALSE(page.IsStationeryEnabled());
    EXPECT_EQ(L"1", test.Value(L"StationeryEnabled"));
  }
  EXPECT_FALSE(CNemUIWatermarkPage(nullptr, {}, 0).IsStationeryEnabled());
}

}  // namespace
