#include "pages/CNemUILinksPage.h"

#include "MessageIds.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"

namespace {

const PageTable kTable = {
    .name = "Links",
    .pageId = kLinksPage,
    .rows = {CheckBox(L"UseHyperlinkRecognition", IDC_LINKS_RECOGNIZE)
                 .Tracked<&LinksCockpitValues::useHyperlinkRecognition>(),
             Choice(L"HyperlinkBorder", IDC_LINKS_BORDER,
                    {{L"No Border", 0},
                     {L"Underlined", 1},
                     {L"Rectangle", 2},
                     {L"Dashed rectangle", 3},
                     {L"Dotted rectangle", 4}})
                 .Given({{L"UseHyperlinkRecognition", 1}}),
             Choice(L"HyperlinkBorderWidth", IDC_LINKS_WIDTH,
                    {{L"\u00BD pt", 50},
                     {L"\u00BE pt", 75},
                     {L"1 pt", 100},
                     {L"1\u00BD pt", 150},
                     {L"2 pt", 200},
                     {L"2\u00BD pt", 250},
                     {L"3 pt", 300},
                     {L"4 pt", 400},
                     {L"5 pt", 500}})
                 .Given({{L"UseHyperlinkRecognition", 1}, {L"HyperlinkBorder", 1}})},
};
const PageTableEntry entry(kTable);

using Values = PageUnderTest::Values;

class LinksPage : public testing::Test {
 protected:
  LinksPage() { test.Set(L"HyperlinkBorderWidth", 100); }

  void Open(int use, int border) {
    test.Set(L"UseHyperlinkRecognition", use);
    test.Set(L"HyperlinkBorder", border);
    ASSERT_TRUE(test.Open());
  }
  std::vector<int> Enabled() {
    return test.Enabled(std::vector<int>{IDC_LINKS_BORDER, IDC_LINKS_WIDTH, IDC_LINKS_COLOR});
  }
  CColourPicker& Picker() {
    return dynamic_cast<CColourPicker&>(*CSubclassedControl::FromHandle(test.Control(IDC_LINKS_COLOR).Window()));
  }
  CNemUILinksPage& Page() { return test.As<CNemUILinksPage>(); }

  const std::vector<int> kNone, kBorder{IDC_LINKS_BORDER}, kAll{IDC_LINKS_BORDER, IDC_LINKS_WIDTH, IDC_LINKS_COLOR};
  PageUnderTest test{kLinksPage};
};

}  // namespace

// --- Rules ---------------------------------------------------------------------------------------------------------

TEST_F(LinksPage, WithoutLinksNothingIsChosen) {
  Open(0, 1);
  EXPECT_EQ(kNone, Enabled());
}

TEST_F(LinksPage, WithoutABorderThereIsNeitherWidthNorColour) {
  Open(1, 0);
  EXPECT_EQ(kBorder, Enabled());
}

TEST_F(LinksPage, EveryBorderHasWidthAndColour) {
  Open(1, 0);
  for (const int row : {1, 2, 3, 4}) {
    test.Control(IDC_LINKS_BORDER).Select(0);
    EXPECT_EQ(kBorder, Enabled());
    test.Control(IDC_LINKS_BORDER).Select(row);
    EXPECT_EQ(kAll, Enabled()) << row;
  }
}

TEST_F(LinksPage, TheSwitchOpensAndClosesAtOnce) {
  Open(0, 2);
  test.Control(IDC_LINKS_RECOGNIZE).Click();
  EXPECT_EQ(kAll, Enabled());
  test.Control(IDC_LINKS_RECOGNIZE).Click();
  EXPECT_EQ(kNone, Enabled());
}

TEST_F(LinksPage, TheCockpitsValueIsShownWithItsRules) {
  Open(1, 2);
  Page().SetCockpitValues({.useHyperlinkRecognition = 0});
  EXPECT_FALSE(test.Control(IDC_LINKS_RECOGNIZE).IsChecked());
  EXPECT_EQ(kNone, Enabled());
}

TEST_F(LinksPage, ListsWithoutASelectionFailTheSaveWhichGoesOn) {
  Open(1, 3);
  for (const int id : {IDC_LINKS_BORDER, IDC_LINKS_WIDTH})
    SendMessageW(test.Control(id).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  Picker().SetColour(0x00FF0000);
  EXPECT_FALSE(test.Page().UpdateData(true));
  EXPECT_EQ(0, Page().hyperlinkBorder);
  EXPECT_EQ(50, Page().hyperlinkBorderWidth);
  EXPECT_EQ(0x00FF0000u, Page().hyperlinkBorderColor);
}

// --- Colour --------------------------------------------------------------------------------------------------------

TEST_F(LinksPage, TheColourIsShownAndSaved) {
  test.Set(L"HyperlinkBorderColor", 0x00336699);
  Open(1, 1);
  EXPECT_EQ(COLORREF{0x00336699}, Picker().GetColour());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(std::to_wstring(0x00336699), test.Value(L"HyperlinkBorderColor"));
  Picker().SetColour(0x00FF0000);
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(std::to_wstring(0x00FF0000), test.Value(L"HyperlinkBorderColor"));
}

TEST_F(LinksPage, TheColourMayBeMixedAndNotLeftOut) {
  Open(1, 1);
  Picker().Open();
  const auto popup = Picker().Popup();
  ASSERT_TRUE(popup);
  const ComScope com;
  const Accessible cells(popup->Handle());
  ASSERT_EQ(41, cells.Count()) << "the palette and one cell more";
  EXPECT_EQ(L"More Colors...", cells.Name(41));
}

// --- The attachments that it holds ---------------------------------------------------------------------------------

TEST_F(LinksPage, WritesTheAttachmentsOfItsSetBackAsTheyWere) {
  for (const int set : {0, 1}) {
    PageUnderTest page(kLinksPage, set);
    page.Set(L"HyperlinkBorderWidth", 100);
    page.Set(L"EmbedFilenames", L"a;\"b\"");
    page.Set(L"EmbedFilenamesEnabled", 1);
    const Values before = page.AllValues();
    ASSERT_TRUE(page.Open());
    page.Set(L"EmbedFilenames", L"c");
    page.Set(L"EmbedFilenamesEnabled", 0);
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(Values(), page.ChangesSince(before)) << set;
  }
}

// It belongs to both tabs: the page that edits it may have written it meanwhile.
TEST_F(LinksPage, LeavesTheConfirmationAsItStands) {
  for (const int set : {0, 1}) {
    PageUnderTest page(kLinksPage, set);
    page.Set(L"HyperlinkBorderWidth", 100);
    ASSERT_TRUE(page.Open());
    CDialogProperties& properties = page.Sheet().properties;
    properties.EmbedfilenamesConfirmed[0].SetLong(2);
    properties.EmbedfilenamesOpen[0].SetLong(1);
    const Values before = page.AllValues();
    ASSERT_TRUE(page.Save());
    EXPECT_EQ(Values(), page.ChangesSince(before)) << set;
  }
}

TEST_F(LinksPage, ReadsTheConfirmationOfTheBasicSettings) {
  PageUnderTest page(kLinksPage, 1);
  CDialogProperties& properties = page.Sheet().properties;
  properties.EmbedfilenamesConfirmed[0].SetLong(2);
  properties.EmbedfilenamesOpen[0].SetLong(1);
  properties.EmbedfilenamesConfirmed[1].SetLong(1);
  page.Page().ReadProperties();
  const auto& links = page.As<CNemUILinksPage>();
  EXPECT_EQ(2, links.embedfilenamesConfirmed);
  EXPECT_EQ(1, links.embedfilenamesOpen);
  EXPECT_FALSE(links.confirmEditable);
  EXPECT_FALSE(links.openEditable);
  EXPECT_TRUE(Page().confirmEditable);
  EXPECT_TRUE(Page().openEditable);
}

TEST_F(LinksPage, ASwitchSetBeforeReadingGoesToTheProperty) {
  test.Set(L"EmbedFilenamesEnabled", 1);
  Page().SetEmbedFilenamesEnabled(0);
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
  EXPECT_FALSE(Page().IsLoaded());
}

TEST_F(LinksPage, ASwitchSetAfterReadingIsWrittenWithThePage) {
  test.Set(L"EmbedFilenamesEnabled", 1);
  Page().ReadProperties();
  Page().SetEmbedFilenamesEnabled(0);
  EXPECT_EQ(L"1", test.Value(L"EmbedFilenamesEnabled"));
  Page().WriteProperties();
  EXPECT_EQ(L"0", test.Value(L"EmbedFilenamesEnabled"));
}

TEST_F(LinksPage, WithoutASheetASwitchGoesNowhere) {
  CNemUILinksPage page(nullptr, {IDD_LINKS_PAGE, 0, MSG_PAGE_LINKS, 113, 0, 0}, 0);
  page.SetEmbedFilenamesEnabled(1);
  EXPECT_EQ(CLinksPage::kNotRead, page.embedFilenamesEnabled);
}
