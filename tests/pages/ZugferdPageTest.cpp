#include "pages/CNemUIZugferdPage.h"

#include "driver/CommonDialogs.h"
#include "driver/SheetDriver.h"
#include "pages/CNemUIFormatPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "ShellSpy.h"
#include "support/DropRecord.h"
#include "support/FileDialogSpy.h"
#include "support/HelpSpy.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"

namespace {

const std::wstring kPath260 = L"C:\\" + std::wstring(257, L'x');

const PageTable kTable = {
    .name = "Zugferd",
    .pageId = kZugferdPage,
    .rows = {CheckBox(L"ZUGFeRD", IDC_ZUGFERD_CREATE)
                 .LockedBy<&AdminSettings::ZUGFeRD_Override>({})
                 .Tracked<&ZugferdCockpitValues::zugferd>(),
             Radios(L"ZUGFeRDCreationMethod", {IDC_ZUGFERD_FROM_FILE, IDC_ZUGFERD_FROM_CONTENT})
                 .Stores({{2, L"", 65535}, {-1, L"", 65535}, {65536, L"0", 0}})
                 .Given({{L"ZUGFeRD", 1}})
                 .LockedBy<&AdminSettings::ZUGFeRDCreationMethod_Override>({})
                 .Tracked<&ZugferdCockpitValues::creationMethod>(),
             CheckBox(L"ZUGFeRDDeleteAfterEmbedding", IDC_ZUGFERD_DELETE)
                 .Given({{L"ZUGFeRD", 1}, {L"ZUGFeRDCreationMethod", 0}})
                 .LockedBy<&AdminSettings::ZUGFeRDDeleteAfterEmbedding_Override>({})
                 .Tracked<&ZugferdCockpitValues::deleteAfterEmbedding>(),
             CheckBox(L"ZUGFeRDShowAfterCreation", IDC_ZUGFERD_SHOW)
                 .Given({{L"ZUGFeRD", 1}, {L"ZUGFeRDCreationMethod", 1}})
                 .Tracked<&ZugferdCockpitValues::showAfterCreation>(),
             Field(L"ZUGFeRDXml", IDC_ZUGFERD_XML_FILE)
                 .Stores({{L"", L"", L""},
                          {L"C:\\a.xml", L"C:\\a.xml", L"C:\\a.xml"},
                          {kPath260.c_str(), kPath260, kPath260.c_str()},
                          {(kPath260 + L"y").c_str(), kPath260 + L"y", kPath260.c_str()}})
                 .Tracked<&ZugferdCockpitValues::xml>()},
};
const PageTableEntry entry(kTable);

using Values = PageUnderTest::Values;

class ZugferdPage : public testing::Test {
 protected:
  explicit ZugferdPage(int set = 0) : test(112, set) { test.Sheet().properties.MsgBoxTitle.SetString(L"Title"); }

  void Open(int zugferd, int method, const wchar_t* xml = L"") {
    test.Set(L"ZUGFeRD", zugferd);
    test.Set(L"ZUGFeRDCreationMethod", method);
    test.Set(L"ZUGFeRDXml", xml);
    ASSERT_TRUE(test.Open());
  }
  CNemUIZugferdPage& Page() { return test.As<CNemUIZugferdPage>(); }
  ControlRef XmlFile() { return test.Control(IDC_ZUGFERD_XML_FILE); }
  void AddFormatPage(int version) {
    test.Set(L"PdfVersion", version);
    format_ = MakeCataloguePage(&test.Sheet(), kFormatPage, 0);
    test.Sheet().pages = {{112, &test.Page()}, {118, format_.get()}};
  }
  int Version() { return dynamic_cast<FormatAccess&>(*format_).GetPdfVersion(); }
  void Drop(int control, const std::vector<std::wstring>& paths) { DropOn(test.Page().Handle(), control, paths); }
  std::vector<int> Enabled() { return test.Enabled(std::vector<int>{1452, 1524, 1525, 1472, 1479, 1474, 1453, 1527}); }

  const std::vector<int> kOff{1452}, kNoMethod{1452, 1524, 1525}, kFile{1452, 1524, 1525, 1472, 1479, 1474, 1453},
      kContent{1452, 1524, 1525, 1527};
  Popups popups_;
  std::unique_ptr<CNemUIPage> format_;
  PageUnderTest test;
};

class ZugferdPageOfDocument : public ZugferdPage {
 protected:
  ZugferdPageOfDocument() : ZugferdPage(1) {}
};

}  // namespace

// --- What is open --------------------------------------------------------------------------------------------------

TEST_F(ZugferdPage, WhatIsOpenFollowsSwitchAndMethod) {
  const struct {
    int zugferd, method;
    const std::vector<int>& enabled;
  } rows[] = {{0, 0, kOff},  {0, 1, kOff},      {1, 0, kFile}, {1, 1, kContent},
              {7, 0, kFile}, {1, 2, kNoMethod}, {0, 2, kOff},  {1, 0xFFFF, kNoMethod}};
  for (const auto& row : rows) {
    PageUnderTest page(kZugferdPage);
    page.Set(L"ZUGFeRD", row.zugferd);
    page.Set(L"ZUGFeRDCreationMethod", row.method);
    ASSERT_TRUE(page.Open());
    std::vector<int> enabled;
    for (const int id : {1452, 1524, 1525, 1472, 1479, 1474, 1453, 1527})
      if (page.Control(id).IsEnabled()) enabled.push_back(id);
    EXPECT_EQ(row.enabled, enabled) << row.zugferd << ' ' << row.method;
  }
}

TEST_F(ZugferdPage, TheSwitchOpensAndClosesAtOnce) {
  Open(0, 0);
  test.Control(IDC_ZUGFERD_CREATE).Click();
  EXPECT_EQ(kFile, Enabled());
  EXPECT_EQ(1, Page().zugferd);
  test.Control(IDC_ZUGFERD_CREATE).Click();
  EXPECT_EQ(kOff, Enabled());
  EXPECT_EQ(0, Page().zugferd);
}

TEST_F(ZugferdPage, TheMethodOpensItsOwn) {
  Open(1, 2);
  EXPECT_EQ(kNoMethod, Enabled());
  test.Control(IDC_ZUGFERD_FROM_CONTENT).Click();
  EXPECT_EQ(kContent, Enabled());
  EXPECT_EQ(1, Page().creationMethod);
  test.Control(IDC_ZUGFERD_FROM_FILE).Click();
  EXPECT_EQ(kFile, Enabled());
  EXPECT_EQ(0, Page().creationMethod);
}

TEST_F(ZugferdPage, ANoticeOfNoMethodChangesNothing) {
  Open(1, 1);
  const HWND radio = test.Control(IDC_ZUGFERD_FROM_CONTENT).Window();
  SendMessageW(radio, BM_SETCHECK, BST_UNCHECKED, 0);
  SendMessageW(test.Page().Handle(), WM_COMMAND, MAKEWPARAM(IDC_ZUGFERD_FROM_CONTENT, BN_CLICKED),
               reinterpret_cast<LPARAM>(radio));
  EXPECT_EQ(1, Page().creationMethod);
  EXPECT_EQ(kContent, Enabled());
}

TEST_F(ZugferdPage, ClicksReachTheMembersAtOnce) {
  Open(1, 0);
  test.Control(IDC_ZUGFERD_DELETE).Click();
  EXPECT_EQ(1, Page().deleteAfterEmbedding);
  test.Control(IDC_ZUGFERD_FROM_CONTENT).Click();
  test.Control(IDC_ZUGFERD_SHOW).Click();
  EXPECT_EQ(1, Page().showAfterCreation);
}

TEST_F(ZugferdPage, TheFileIsForReadingOnly) {
  Open(1, 0);
  EXPECT_TRUE(GetWindowLongW(XmlFile().Window(), GWL_STYLE) & ES_READONLY);
}

TEST_F(ZugferdPage, APathReadsFromLeftToRightInAMirroredPageToo) {
  const LanguageScope arabic(0x0401);
  Open(1, 0, L"C:\\a\\b.xml");
  EXPECT_TRUE(CWnd(test.Page().Handle()).IsMirrored());
  EXPECT_FALSE(CWnd(XmlFile().Window()).IsMirrored());
}

TEST_F(ZugferdPageOfDocument, TheSwitchStaysClosedAndTheRestFollowsTheValues) {
  Open(1, 0);
  const std::vector<int> fileWithoutSwitch(kFile.begin() + 1, kFile.end());
  EXPECT_EQ(fileWithoutSwitch, Enabled());
  test.Page().OnSetActive();
  test.Page().OnSetActive();
  test.Page().ReadProperties();
  EXPECT_EQ(fileWithoutSwitch, Enabled());
  test.Control(IDC_ZUGFERD_FROM_CONTENT).Click();
  Page().SetZugferd(1);
  EXPECT_EQ((std::vector<int>{1524, 1525, 1527}), Enabled());
}

// --- What an administrator has fixed -------------------------------------------------------------------------------

TEST_F(ZugferdPage, OnlyAnInvoiceThatIsFixedAsOnLocks) {
  for (const auto& [value, locked] : {std::pair{1, true}, {0, false}, {255, false}, {-1, false}, {2, false}}) {
    PageUnderTest page(kZugferdPage);
    page.Admin().ZUGFeRD_Override = value;
    page.Set(L"ZUGFeRD", 1);
    page.Set(L"ZUGFeRDCreationMethod", 0);
    ASSERT_TRUE(page.Open());
    for (int i = 0; i < 3; ++i) {
      for (const int id : {1452, 1524, 1525, 1474}) EXPECT_EQ(!locked, page.Control(id).IsEnabled()) << value << id;
      for (const int id : {1472, 1479, 1453}) EXPECT_TRUE(page.Control(id).IsEnabled()) << value << ' ' << id;
      page.Page().OnSetActive();
    }
  }
}

TEST_F(ZugferdPage, ALockedInvoiceShowsWhatItsMethodHas) {
  test.Admin().ZUGFeRD_Override = 1;
  Open(1, 1);
  EXPECT_EQ(std::vector<int>{1527}, Enabled());
}

// An inconsistent configuration leaves the other mark of what is not set.
TEST_F(ZugferdPage, BothMarksOfAnUnsetBooleanLeaveTheCockpitItsValues) {
  for (const int mark : {255, -1}) {
    PageUnderTest page(kZugferdPage);
    page.Admin().ZUGFeRD_Override = page.Admin().ZUGFeRDDeleteAfterEmbedding_Override = mark;
    auto& zugferd = page.As<CNemUIZugferdPage>();
    zugferd.SetCockpitValues({.zugferd = 1, .xml = L"a.xml", .deleteAfterEmbedding = 1, .creationMethod = 1});
    EXPECT_EQ(1, zugferd.zugferd) << mark;
    EXPECT_EQ(1, zugferd.deleteAfterEmbedding) << mark;
    EXPECT_EQ(1, zugferd.creationMethod) << mark;
    EXPECT_EQ(L"a.xml", zugferd.xmlFile) << mark;
  }
}

TEST_F(ZugferdPage, AFixedFileTakesThePlaceOfTheHosts) {
  test.Admin().ZUGFeRDXml_Override = L"C:\\fixed.xml";
  Open(1, 0, L"C:\\host.xml");
  EXPECT_EQ(L"C:\\fixed.xml", XmlFile().Text());
  Page().SetCockpitValues({.zugferd = 1, .xml = L"C:\\cockpit.xml"});
  EXPECT_EQ(L"C:\\fixed.xml", Page().xmlFile);
  EXPECT_EQ(L"C:\\fixed.xml", XmlFile().Text());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"C:\\fixed.xml", test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, OverridesCanBeForgotten) {
  AdminSettings& admin = test.Admin();
  admin.ZUGFeRD_Override = 1;
  admin.ZUGFeRDCreationMethod_Override = 0;
  admin.ZUGFeRDDeleteAfterEmbedding_Override = 1;
  admin.ZUGFeRDXml_Override = L"C:\\fixed.xml";
  Open(1, 0);
  Page().ClearOverrides();
  EXPECT_FALSE(Page().zugferdOverride.IsSet());
  EXPECT_FALSE(Page().creationMethodOverride.IsSet());
  EXPECT_FALSE(Page().deleteOverride.IsSet());
  EXPECT_FALSE(Page().xmlOverride.IsSet());
  EXPECT_EQ(1, admin.ZUGFeRD_Override) << "the administrator's record stays";
  Page().SetZugferd(0);
  EXPECT_EQ(kOff, Enabled());
  Page().SetCockpitValues({.zugferd = 1, .xml = L"b.xml", .creationMethod = 1});
  EXPECT_EQ(1, Page().zugferd);
  EXPECT_EQ(1, Page().creationMethod);
  EXPECT_EQ(0, Page().deleteAfterEmbedding);
  EXPECT_EQ(L"b.xml", Page().xmlFile);
}

// --- The PDF version -----------------------------------------------------------------------------------------------

TEST_F(ZugferdPage, AnInvoiceSetsPdfA3WithoutAWord) {
  const std::pair<int, int> versions[] = {{13, 106},  {14, 106},  {17, 106},  {99, 106},  {100, 106}, {104, 106},
                                          {105, 105}, {106, 106}, {107, 107}, {108, 106}, {200, 106}};
  for (const auto& [before, after] : versions) {
    PageUnderTest page(kZugferdPage);
    page.Set(L"PdfVersion", before);
    const auto format = MakeCataloguePage(&page.Sheet(), kFormatPage, 0);
    page.Sheet().pages[kFormatPage] = format.get();
    ASSERT_TRUE(page.Open());
    page.Control(IDC_ZUGFERD_CREATE).Click();
    EXPECT_EQ(after, dynamic_cast<FormatAccess&>(*format).GetPdfVersion()) << before;
    page.Control(IDC_ZUGFERD_CREATE).Click();
    EXPECT_EQ(after, dynamic_cast<FormatAccess&>(*format).GetPdfVersion()) << "stays without the invoice";
  }
  EXPECT_EQ(0u, popups_.Boxes().size());
}

TEST_F(ZugferdPage, TheFormatPageShowsTheVersionAtOnce) {
  AddFormatPage(17);
  const PageParent parent;
  ASSERT_TRUE(format_->Create(parent.Window()));
  Open(0, 1);
  test.Control(IDC_ZUGFERD_CREATE).Click();
  EXPECT_EQ(L"PDF/A3-b (Acrobat 8 or higher)", CWnd(format_->Item(IDC_FORMAT_VERSION)).Text().View());
  format_->WriteProperties();
  EXPECT_EQ(L"106", test.Value(L"PdfVersion"));
}

TEST_F(ZugferdPage, WithoutAFormatPageNothingIsAsked) {
  Open(0, 1);
  test.Control(IDC_ZUGFERD_CREATE).Click();
  EXPECT_EQ(kContent, Enabled());
}

TEST_F(ZugferdPage, AnotherVersionSwitchesTheInvoiceOffWithWhatFixedIt) {
  test.Admin().ZUGFeRD_Override = 1;
  AddFormatPage(106);
  Open(1, 0);
  const PageParent parent;
  ASSERT_TRUE(format_->Create(parent.Window()));
  const CComboBox versions(format_->Item(IDC_FORMAT_VERSION));
  for (const int button : {IDCANCEL, IDOK}) {
    popups_.ExpectBox({.title = L"Title",
                       .text = L"The embedding of a ZUGFeRD file needs output as pdf/a3. Is it ok to change to disable "
                               L"the ZUGFeRD-embedding?",
                       .icon = MB_ICONQUESTION,
                       .button = button});
    versions.Select(4);
    format_->Send(WM_COMMAND, MAKEWPARAM(IDC_FORMAT_VERSION, CBN_SELCHANGE),
                  reinterpret_cast<LPARAM>(versions.Handle()));
    EXPECT_EQ(button == IDOK ? 17 : 106, Version());
    EXPECT_EQ(button != IDOK, Page().IsZugferdEnabled());
    EXPECT_EQ(button != IDOK, test.Control(IDC_ZUGFERD_CREATE).IsChecked());
  }
  EXPECT_EQ(kOff, Enabled());
  test.Control(IDC_ZUGFERD_CREATE).Click();
  EXPECT_EQ(106, Version());
}

// --- What other pages set ------------------------------------------------------------------------------------------

TEST_F(ZugferdPage, ValuesSetBeforeReadingGoToTheProperties) {
  test.Set(L"ZUGFeRD", 1);
  Page().SetZugferd(0);
  Page().SetDeleteAfterEmbedding(1);
  Page().SetShowAfterCreation(1);
  Page().SetCreationMethod(1);
  Page().SetXmlFile(L"a.xml");
  EXPECT_FALSE(Page().IsLoaded());
  EXPECT_EQ(CZugferdPage::kNotRead, Page().zugferd);
  EXPECT_EQ(L"0", test.Value(L"ZUGFeRD"));
  EXPECT_EQ(L"1", test.Value(L"ZUGFeRDDeleteAfterEmbedding"));
  EXPECT_EQ(L"1", test.Value(L"ZUGFeRDShowAfterCreation"));
  EXPECT_EQ(L"1", test.Value(L"ZUGFeRDCreationMethod"));
  EXPECT_EQ(L"a.xml", test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, ValuesSetLaterAreShownAndWrittenWithThePage) {
  Open(0, 0);
  const Values before = test.AllValues();
  Page().SetZugferd(1);
  Page().SetDeleteAfterEmbedding(1);
  Page().SetShowAfterCreation(1);
  EXPECT_EQ(kFile, Enabled());
  Page().SetCreationMethod(1);
  EXPECT_EQ(kContent, Enabled());
  EXPECT_TRUE(test.Control(IDC_ZUGFERD_CREATE).IsChecked());
  EXPECT_TRUE(test.Control(IDC_ZUGFERD_DELETE).IsChecked());
  EXPECT_TRUE(test.Control(IDC_ZUGFERD_SHOW).IsChecked());
  EXPECT_TRUE(test.Control(IDC_ZUGFERD_FROM_CONTENT).IsChecked());
  EXPECT_EQ(Values(), test.ChangesSince(before));
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(4u, test.ChangesSince(before).size());
}

TEST_F(ZugferdPage, AMethodThatNoRadioShowsIsSetInTheProperty) {
  Open(1, 0xFFFF);
  Page().SetCreationMethod(1);
  EXPECT_EQ(L"1", test.Value(L"ZUGFeRDCreationMethod"));
  EXPECT_EQ(CZugferdPage::kNotRead, Page().creationMethod);
}

TEST_F(ZugferdPage, AFileThatIsSetGoesToThePropertyInAnyCase) {
  Open(1, 0);
  Page().SetXmlFile(L"a.xml");
  EXPECT_EQ(L"a.xml", Page().xmlFile);
  EXPECT_EQ(L"a.xml", XmlFile().Text());
  EXPECT_EQ(L"a.xml", test.Value(L"ZUGFeRDXml"));
  Page().SetXmlFile(L"");
  EXPECT_EQ(L"a.xml", Page().xmlFile) << "an empty one is not taken over";
  EXPECT_EQ(L"", test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, AFileThatStandsThereSurvivesARefresh) {
  Open(1, 0, L"host.xml");
  Page().SetXmlFile(L"other.xml");
  EXPECT_EQ(L"host.xml", XmlFile().Text());
  test.Page().OnSetActive();
  test.Page().OnSetActive();
  EXPECT_EQ(L"host.xml", XmlFile().Text());
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"host.xml", test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, WhetherTheInvoiceIsOnIsKnownBeforeAndAfterReading) {
  test.Set(L"ZUGFeRD", 7);
  EXPECT_TRUE(Page().IsZugferdEnabled());
  Page().ReadProperties();
  test.Set(L"ZUGFeRD", 0);
  EXPECT_TRUE(Page().IsZugferdEnabled());
  Page().SetZugferd(0);
  test.Set(L"ZUGFeRD", 1);
  EXPECT_FALSE(Page().IsZugferdEnabled());
}

TEST_F(ZugferdPage, WithoutASheetNothingIsOnAndNothingSet) {
  CNemUIZugferdPage page(nullptr, test.Page().Description(), 0);
  page.SetZugferd(1);
  page.SetXmlFile(L"a.xml");
  EXPECT_FALSE(page.IsZugferdEnabled());
}

// --- The cockpit ---------------------------------------------------------------------------------------------------

TEST_F(ZugferdPage, WhetherTheInvoiceIsShownIsTheCockpitsUnderEveryOverride) {
  AdminSettings& admin = test.Admin();
  admin.ZUGFeRD_Override = 1;
  admin.ZUGFeRDCreationMethod_Override = 0;
  admin.ZUGFeRDDeleteAfterEmbedding_Override = 1;
  admin.ZUGFeRDXml_Override = L"fixed.xml";
  Page().SetCockpitValues(
      {.zugferd = 1, .xml = L"a.xml", .deleteAfterEmbedding = 1, .showAfterCreation = 1, .creationMethod = 1});
  EXPECT_EQ(0, Page().zugferd);
  EXPECT_EQ(0, Page().deleteAfterEmbedding);
  EXPECT_EQ(1, Page().showAfterCreation);
  EXPECT_EQ(0, Page().creationMethod);
  EXPECT_EQ(L"fixed.xml", Page().xmlFile);
}

TEST_F(ZugferdPage, TheCockpitsFileTakesThePlaceOfTheOneThatStandsThere) {
  Open(1, 0, L"host.xml");
  for (const wchar_t* path : {L"other.xml", L"", L"host.xml", L""}) {
    Page().SetCockpitValues({.zugferd = 1, .xml = path});
    EXPECT_EQ(path, XmlFile().Text());
    test.Page().OnSetActive();
    EXPECT_EQ(path, XmlFile().Text());
    ASSERT_TRUE(test.Save());
    EXPECT_EQ(path, test.Value(L"ZUGFeRDXml"));
  }
}

// --- The XML file --------------------------------------------------------------------------------------------------

TEST_F(ZugferdPage, BrowsingAsksForAnXmlFileThatIsThere) {
  const std::wstring path = L"C:\\" + std::wstring(293, L'x') + L".xml";
  Open(1, 0, L"host.xml");
  FileDialogSpy spy;
  spy.chosen = path;
  test.Control(IDC_ZUGFERD_BROWSE).Click();
  EXPECT_EQ((FileDialogSpy::Calls{
                {.owner = test.Page().Handle(), .filter = L"xml|*.xml|", .pathRoom = 520, .flags = 0x1800}}),
            spy.calls);
  EXPECT_EQ(path, XmlFile().Text());
  EXPECT_EQ(path, Page().xmlFile);
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(path.substr(0, 260), test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, TheUserChoosesAFile) {
  TempFile file("chosen.xml");
  file.Put("<x/>");
  wchar_t path[MAX_PATH];
  GetFullPathNameW(file.Name(), MAX_PATH, path, nullptr);
  Open(1, 0, L"host.xml");
  popups_.ExpectDialog([&](HWND dialog) { ChooseFile(dialog, path); });
  test.Control(IDC_ZUGFERD_BROWSE).Click();
  EXPECT_EQ(path, XmlFile().Text());
  EXPECT_EQ(path, Page().xmlFile);
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(path, test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, CancelForgetsTheFormerFile) {
  Open(1, 0, L"host.xml");
  popups_.ExpectDialog(DismissDialog);
  test.Control(IDC_ZUGFERD_BROWSE).Click();
  EXPECT_EQ(L"", XmlFile().Text());
  EXPECT_EQ(L"", Page().xmlFile);
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(L"", test.Value(L"ZUGFeRDXml"));
}

TEST_F(ZugferdPage, ADialogThatOutlivesThePageChangesNothing) {
  auto parent = std::make_unique<PageParent>();
  test.Set(L"ZUGFeRDXml", L"host.xml");
  CNemUIZugferdPage page(&test.Sheet(), test.Page().Description(), 0);
  ASSERT_TRUE(page.Create(parent->Window()));
  popups_.ExpectDialog([&](HWND dialog) {
    parent.reset();
    DismissDialog(dialog);
  });
  SendMessageW(page.Handle(), WM_COMMAND, MAKEWPARAM(IDC_ZUGFERD_BROWSE, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(page.Handle(), IDC_ZUGFERD_BROWSE)));
  EXPECT_FALSE(page.IsWindow());
  EXPECT_EQ(L"host.xml", page.xmlFile);
}

TEST_F(ZugferdPage, ADroppedFileIsTaken) {
  for (const int target : {IDC_ZUGFERD_XML_FILE, IDC_ZUGFERD_XML_FILE_LABEL}) {
    PageUnderTest page(kZugferdPage);
    page.Set(L"ZUGFeRD", 1);
    page.Set(L"ZUGFeRDXml", L"host.xml");
    ASSERT_TRUE(page.Open());
    EXPECT_TRUE(GetWindowLongW(page.Page().Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES);
    DropOn(page.Page().Handle(), target, {L"C:\\b.pdf\\A.XML"});
    EXPECT_EQ(L"C:\\b.pdf\\A.XML", page.Control(IDC_ZUGFERD_XML_FILE).Text());
    EXPECT_EQ(L"C:\\b.pdf\\A.XML", page.As<CZugferdPage>().xmlFile);
  }
}

TEST_F(ZugferdPage, ADroppedFileOfAnotherKindIsRefused) {
  Open(1, 0, L"host.xml");
  for (const wchar_t* path : {L"C:\\a.xml.txt", L"C:\\xml"}) {
    popups_.ExpectBox({.title = L"Error", .text = L"Invalid ZuFGERD xml filename!", .icon = 0});
    Drop(IDC_ZUGFERD_XML_FILE, {path});
  }
  EXPECT_EQ(2u, popups_.Boxes().size());
  EXPECT_EQ(L"host.xml", XmlFile().Text());
  EXPECT_EQ(L"host.xml", Page().xmlFile);
}

TEST_F(ZugferdPage, TheRefusalIsEnglishInEachLanguage) {
  Open(1, 0);
  const LanguageScope german(0x0407);
  popups_.ExpectBox({.title = L"Error", .text = L"Invalid ZuFGERD xml filename!", .icon = 0});
  Drop(IDC_ZUGFERD_XML_FILE, {L"a.txt"});
}

TEST_F(ZugferdPage, OtherDropsCountForNothing) {
  Open(1, 0);
  Drop(IDC_ZUGFERD_BROWSE, {L"a.xml"});
  Drop(IDC_ZUGFERD_XML_FILE, {L"a.xml", L"b.xml"});
  Drop(IDC_ZUGFERD_XML_FILE, {L"a.txt", L"b.txt"});
  EXPECT_EQ(L"", XmlFile().Text());
  test.Control(IDC_ZUGFERD_FROM_CONTENT).Click();
  Drop(IDC_ZUGFERD_XML_FILE, {L"a.xml"});
  Drop(IDC_ZUGFERD_XML_FILE_LABEL, {L"a.txt"});
  EXPECT_EQ(L"", XmlFile().Text()) << "the file is closed";
  EXPECT_EQ(0u, popups_.Boxes().size());
}

// --- The link ------------------------------------------------------------------------------------------------------

namespace {

constexpr wchar_t kUpgradeKey[] =
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UpgradeCodes\\00112233445566778899AABBCCDDEEFF";
constexpr wchar_t kInstallKey[] =
    L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products\\"
    L"FFEEDDCCBBAA99887766554433221100";

void RecordProduct() {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, kUpgradeKey, L"FFEEDDCCBBAA99887766554433221100", REG_SZ, L"", 2);
}

}  // namespace

TEST_F(ZugferdPage, WithoutARecordedFolderTheLinkDoesNothing) {
  const RegistryTree upgrade(HKEY_LOCAL_MACHINE, kUpgradeKey), product(HKEY_LOCAL_MACHINE, kInstallKey);
  Open(0, 1);
  const HelpSpy help;
  shellCalls.clear();
  for (const bool recorded : {false, true}) {
    if (recorded) RecordProduct();
    test.Control(IDC_ZUGFERD_HELP_LINK).Click();
    EXPECT_EQ(0u, help.calls.size());
    EXPECT_EQ(0u, shellCalls.size()) << recorded;
  }
}

TEST_F(ZugferdPage, TheLinkOpensTheManualInPlaceOfTheHelp) {
  const RegistryTree upgrade(HKEY_LOCAL_MACHINE, kUpgradeKey), product(HKEY_LOCAL_MACHINE, kInstallKey);
  RecordProduct();
  const std::wstring folder = L"C:\\Program Files\\NEM";
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (std::wstring(kInstallKey) + L"\\InstallProperties").c_str(), L"InstallLocation",
                  REG_SZ, folder.c_str(), static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t)));
  Open(0, 1);
  const HelpSpy help;
  shellCalls.clear();
  test.Control(IDC_ZUGFERD_HELP_LINK).Click();
  EXPECT_EQ(0u, help.calls.size());
  ASSERT_EQ(1u, shellCalls.size());
  EXPECT_EQ(test.Page().Handle(), shellCalls[0].owner);
  EXPECT_FALSE(shellCalls[0].verb);
  EXPECT_EQ(L"C:\\\\Program Files\\\\NEM\\\\NEMtagwell.pdf", shellCalls[0].target);
  EXPECT_EQ(5, shellCalls[0].show);
}
