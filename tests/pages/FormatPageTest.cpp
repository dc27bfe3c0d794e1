#include <gtest/gtest.h>

#include <new>
#include <set>
#include <utility>

#include "driver/SheetDriver.h"
#include "MessageIds.h"
#include "pages/CNemUIFormatPage.h"
#include "pages/EmbedFilenamesAccess.h"
#include "pages/SecurityAccess.h"
#include "pages/WatermarkAccess.h"
#include "pages/ZugferdAccess.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/ControlPictures.h"
#include "support/FakeSheet.h"
#include "support/InvalidDataBox.h"
#include "ui/PropertyAccess.h"

namespace {

constexpr PageDescription kDescription{IDD_FORMAT_PAGE, 0, MSG_PAGE_OUTPUT_FORMAT, 118, 284, 285};

// The values depend on each other and are tested below.
const PageTable kTable = {.name = "Format", .pageId = kFormatPage, .helpLink = IDC_FORMAT_MANUAL_LINK};
const PageTableEntry entry(kTable);

// In the order of the list.
constexpr int kVersions[] = {13, 14, 15, 16, 17, 18, 100, 101, 102, 103, 104, 105, 106, 107, 200};

int RowOf(int version) {
  return static_cast<int>(std::find(std::begin(kVersions), std::end(kVersions), version) - kVersions);
}

const std::wstring kDefaultsA1 =
    L"Default settings for PDF/A-1 will be activated:\r\n\r\n-PDF version 1.4\r\n-enabled font embedding\r\n"
    L"-no file attachments\r\n-no e.pdf conversion\r\n-no conversion of forms\r\n-no settings for PDF security\r\n"
    L"-no password protection against opening files\r\n-restricted transparency of pictures (also watermarks)";
const std::wstring kDefaultsA2 =
    L"Default settings for PDF/A-2 will be activated:\r\n\r\n-PDF version 1.7\r\n-enabled font embedding\r\n"
    L"-no file attachments\r\n-no e.pdf conversion\r\n-no conversion of forms\r\n-no settings for PDF security\r\n"
    L"-no password protection against opening files\r\n-restricted transparency of pictures (also watermarks)";
const std::wstring kDefaultsA3 =
    L"Default settings for PDF/A-3 will be activated:\r\n\r\n-PDF version 1.7\r\n-enabled font embedding\r\n"
    L"-no conversion of forms\r\n-no settings for PDF security\r\n-no password protection against opening files";
const std::wstring kDefaultsUA =
    L"Default settings for PDF/UA will be activated:\r\n\r\n-PDF version 1.7\r\n-enabled font embedding\r\n"
    L"-no stationery paper\r\n-RTF conversion";
const std::wstring kStationeryReminder =
    L"Please check, that the selected stationery paper is also in the PDF/A format.\r\n"
    L"Otherweise the output-PDF won't be PDF/A format compatible.";
const std::wstring kInvoiceQuestion =
    L"The embedding of a ZUGFeRD file needs output as pdf/a3. Is it ok to change to disable the ZUGFeRD-embedding?";
const std::wstring kRtfInformation =
    L"This conversion engine is necessary if you are working with Windows 95, 98 or ME\r\n"
    L"or if you are having problems converting links.\r\n"
    L"Moreover this engine has advantages when converting forms.\r\n"
    L"Please find more information in the manual.";

// What a version tells to those who come from a plain one; null for a plain one.
const std::wstring* NoticeOf(int version) {
  if (version == 100 || version == 101) return &kDefaultsA1;
  if (version >= 102 && version <= 104) return &kDefaultsA2;
  if (version >= 105 && version <= 107) return &kDefaultsA3;
  return version == 200 ? &kDefaultsUA : nullptr;
}

using Log = std::vector<std::string>;

// Another page of the tab: it notes what it is asked.
class OtherPage : public CNemUIPage {
 public:
  explicit OtherPage(Log& log) : CNemUIPage(PageDescription{}), log_(log) {}
  CUString GetHelpFilename() override { return {}; }
  CUString GetMsgBoxTitle() override { return {}; }
  bool ExchangeProperties(CDataExchange&) override { return true; }
  void ReadProperties() override { SetLoaded(); }
  void WriteProperties() override { log_.push_back("write"); }

 protected:
  void Note(const std::string& what) { log_.push_back(what); }

 private:
  Log& log_;
};

class FakeZugferdPage final : public OtherPage, public ZugferdAccess {
 public:
  using OtherPage::OtherPage;
  bool IsZugferdEnabled() override { return on; }
  void SetZugferd(int value) override { Note("invoice " + std::to_string(value)); }
  void ClearOverrides() override { Note("clear overrides"); }
  bool on = true;
};

class FakeSecurityPage final : public OtherPage, public SecurityAccess {
 public:
  using OtherPage::OtherPage;
  void SwitchPasswordsOff() override { Note("passwords off"); }
};

class FakeAttachmentsPage final : public OtherPage, public EmbedFilenamesAccess {
 public:
  FakeAttachmentsPage(Log& log, std::string name) : OtherPage(log), name_(std::move(name)) {}
  void SetEmbedFilenamesEnabled(int value) override { Note(name_ + ' ' + std::to_string(value)); }

 private:
  const std::string name_;
};

class FakeWatermarkPage final : public OtherPage, public WatermarkAccess {
 public:
  using OtherPage::OtherPage;
  bool IsStationeryEnabled() override { return on; }
  void SetColorspace(uint16_t) override {}
  bool on = true;
};

// Notes for which control help is asked, and has no memory for a box when it is told so.
class PageUnderTest final : public CNemUIFormatPage {
 public:
  using CNemUIFormatPage::CNemUIFormatPage;
  CUString GetMsgBoxTitle() override {
    if (std::exchange(failsOnce, false)) throw std::bad_alloc();
    return CNemUIFormatPage::GetMsgBoxTitle();
  }
  LRESULT ShowHelpForControl(WPARAM controlId, LPARAM) override {
    helpAskedFor = static_cast<int>(controlId);
    return 1;
  }
  int helpAskedFor = 0;
  bool failsOnce = false;
};

// While it lives: the buttons of the thread that are told to make no click of the focus.
class QuietRadios {
 public:
  QuietRadios() { ids_.clear(); }
  ~QuietRadios() { UnhookWindowsHookEx(hook_); }
  QuietRadios(const QuietRadios&) = delete;
  QuietRadios& operator=(const QuietRadios&) = delete;
  const std::set<int>& Ids() const { return ids_; }

 private:
  static LRESULT CALLBACK OnMessageSent(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent.message == BM_SETDONTCLICK && sent.wParam) ids_.insert(GetDlgCtrlID(sent.hwnd));
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline std::set<int> ids_;
  const HHOOK hook_ = SetWindowsHookExW(WH_CALLWNDPROC, OnMessageSent, nullptr, GetCurrentThreadId());
};

// The page alone, on a sheet without a window and without other pages.
class FormatPage : public testing::Test {
 protected:
  FormatPage() {
    properties().MsgBoxTitle.SetString(L"Title");
    for (const int set : {0, 1}) {
      properties().PdfVersion[set].SetLong(14);
      properties().SaveFormatEPdfEnabled[set].SetLong(1);
      properties().SaveFormat[set].SetLong(1);
      properties().SaveConversionEnabled[set].SetLong(1);
    }
  }

  // A new page, as in a new sheet.
  PageUnderTest& Open(int set = 0) {
    page_ = std::make_unique<PageUnderTest>(&sheet_, kDescription, set);
    EXPECT_TRUE(page_->Create(parent_.Window()));
    page_->Show(true);
    return *page_;
  }
  PageUnderTest& OpenWith(int version, int set = 0) {
    properties().PdfVersion[set].SetLong(version);
    return Open(set);
  }

  CDialogProperties& properties() { return sheet_.properties; }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return {GetDlgItem(page_->Handle(), id), id, where};
  }
  void Choose(int version, ControlRef::Location where = ControlRef::Location::current()) {
    Control(IDC_FORMAT_VERSION, where).Select(RowOf(version));
  }
  int Shown() { return kVersions[Control(IDC_FORMAT_VERSION).SelectedRow()]; }
  bool Save() { return page_->UpdateData(true) && page_->UpdateDataSuper(true); }
  int StoredVersion(int set = 0) { return properties().PdfVersion[set].GetLong(); }
  int StoredFormat() { return properties().SaveFormat[0].GetLong(); }
  int StoredConversion() { return properties().SaveConversion[0].GetLong(); }

  void ExpectNotice(const std::wstring& text, ControlRef::Location where = ControlRef::Location::current()) {
    popups_.ExpectBox({.title = L"Title", .text = text, .icon = MB_ICONINFORMATION}, where);
  }
  void ExpectQuestion(int button, ControlRef::Location where = ControlRef::Location::current()) {
    popups_.ExpectBox({.title = L"Title", .text = kInvoiceQuestion, .icon = MB_ICONQUESTION, .button = button}, where);
  }
  size_t BoxCount() const { return popups_.Boxes().size(); }

  // The radio that is on, of those three or two; 0 when none or more than one is.
  int CheckedOf(std::initializer_list<int> radios) {
    int checked = 0;
    for (const int id : radios)
      if (Control(id).IsChecked()) checked = checked ? -1 : id;
    return std::max(checked, 0);
  }
  int SaveRadio() { return CheckedOf({1267, 1268, 1269}); }
  int EngineRadio() { return CheckedOf({1272, 1273}); }

  std::vector<int> Enabled() {
    return EnabledAmong(page_->Handle(), std::vector<int>{1017, 1263, 1270, 1267, 1268, 1269, 1264, 1271, 1272, 1273});
  }

  // Puts all pages that the format page asks beside it.
  void AddOtherPages() {
    sheet_.pages = {{112, &zugferd_}, {113, &links_}, {114, &attachments_}, {117, &security_}};
    zugferd_.on = false;
  }
  Log TakeLog() { return std::exchange(log_, {}); }

  const std::vector<int> kAll{1017, 1263, 1270, 1267, 1268, 1269, 1264, 1271, 1272, 1273};
  const std::vector<int> kWithoutEPdf{1017, 1263, 1264, 1271, 1272, 1273};
  const std::vector<int> kWithoutEngine{1017, 1263, 1270, 1267, 1268, 1269, 1264};
  const std::vector<int> kNeither{1017, 1263, 1264};

  LanguageScope english_{kEnglish};
  Log log_;
  FakeZugferdPage zugferd_{log_};
  FakeSecurityPage security_{log_};
  FakeAttachmentsPage attachments_{log_, "attachments"}, links_{log_, "links"};
  FakeSheet sheet_;
  PageParent parent_;
  Popups popups_;
  std::unique_ptr<PageUnderTest> page_;
};

// --- Versions ------------------------------------------------------------------------------------------------------

TEST_F(FormatPage, RowsShowTheVersions) {
  Open();
  EXPECT_EQ(
      (std::vector<std::wstring>{
          L"PDF/1.3 (Acrobat 4 or higher - 40bit encryption)", L"PDF/1.4 (Acrobat 5 or higher - 128bit RC4-encryption)",
          L"PDF/1.5 (Acrobat 6 or higher - 128bit RC4-encryption)",
          L"PDF/1.6 (Acrobat 7 or higher - 128bit AES-encryption)",
          L"PDF/1.7 (Acrobat 8 or higher - 128bit AES-encryption)",
          L"PDF/1.7 EL3 (Acrobat 9 or higher - 256bit AES-encryption)", L"PDF/A1-a (Acrobat 5 or higher)",
          L"PDF/A1-b (Acrobat 5 or higher)", L"PDF/A2-a (Acrobat 8 or higher)", L"PDF/A2-b (Acrobat 8 or higher)",
          L"PDF/A2-u (Acrobat 8 or higher)", L"PDF/A3-a (Acrobat 8 or higher)", L"PDF/A3-b (Acrobat 8 or higher)",
          L"PDF/A3-u (Acrobat 8 or higher)", L"PDF/UA (Acrobat 8 or higher - PDF for universal accessibility)"}),
      Control(IDC_FORMAT_VERSION).Rows());
}

TEST_F(FormatPage, EveryVersionIsShownAndKept) {
  for (const int version : kVersions) {
    OpenWith(version);
    EXPECT_EQ(version, Shown());
    ASSERT_TRUE(Save());
    EXPECT_EQ(version, StoredVersion());
  }
}

TEST_F(FormatPage, EveryRowStoresItsVersion) {
  for (const int version : kVersions) {
    OpenWith(version == 14 ? 15 : 14);
    if (const std::wstring* notice = NoticeOf(version)) ExpectNotice(*notice);
    Choose(version);
    EXPECT_EQ(version, page_->GetPdfVersion()) << "before it is saved";
    ASSERT_TRUE(Save());
    EXPECT_EQ(version, StoredVersion());
  }
}

TEST_F(FormatPage, AVersionWithoutARowShowsTheFirstAndIsKept) {
  for (const int version : {0, 12, 19, 99, 108, 150, 199, 201, 0xFFFE}) {
    OpenWith(version);
    EXPECT_EQ(13, Shown());
    EXPECT_EQ(version, page_->GetPdfVersion());
    ASSERT_TRUE(Save());
    EXPECT_EQ(version, StoredVersion());
  }
}

TEST_F(FormatPage, AVersionWithoutARowGivesWayToAChoice) {
  OpenWith(99);
  Choose(16);
  Choose(13);
  ASSERT_TRUE(Save());
  EXPECT_EQ(13, StoredVersion());
}

// Sixteen bits of it are the mark of a version that has not been read.
TEST_F(FormatPage, AVersionLikeTheMarkOfNoneIsAskedOfItsProperty) {
  for (const int version : {-1, 0xFFFF}) {
    OpenWith(version);
    EXPECT_EQ(13, Shown());
    EXPECT_EQ(version, page_->GetPdfVersion());
  }
}

TEST_F(FormatPage, LeavingAndComingBackKeepsWhatWasChosen) {
  OpenWith(99);
  Choose(17);
  ASSERT_TRUE(page_->OnKillActive());
  page_->OnSetActive();
  page_->OnSetActive();
  EXPECT_EQ(17, Shown());
  ASSERT_TRUE(Save());
  EXPECT_EQ(17, StoredVersion());
}

TEST_F(FormatPage, WithoutASelectionSavingFails) {
  for (const bool touched : {false, true}) {
    OpenWith(99);
    if (touched) Choose(17);
    page_->saveFormat = 2;
    SendMessageW(Control(IDC_FORMAT_VERSION).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_FALSE(page_->UpdateData(true));
    EXPECT_EQ(touched ? 13 : 99, page_->version);
    EXPECT_EQ(2, page_->saveFormat) << "the step behind the failed one is not done";
    popups_.ExpectBox(InvalidDataBox(L"Title"));
    EXPECT_FALSE(page_->OnKillActive());
  }
}

TEST_F(FormatPage, ANoticeOfNoSelectionChangesNothing) {
  OpenWith(17);
  const HWND combo = Control(IDC_FORMAT_VERSION).Window();
  SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  page_->Send(WM_COMMAND, MAKEWPARAM(IDC_FORMAT_VERSION, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
  EXPECT_EQ(17, page_->GetPdfVersion());
  SendMessageW(combo, CB_SETCURSEL, 0, 0);
  ASSERT_TRUE(Save());
  EXPECT_EQ(17, StoredVersion()) << "the list counts as untouched";
}

// --- Notices -------------------------------------------------------------------------------------------------------

TEST_F(FormatPage, DefaultsAreToldToThoseWhoComeFromElsewhere) {
  const struct {
    int from, to;
    bool told;
  } rows[] = {
      {99, 100, true},   {101, 100, false}, {102, 100, true},  {107, 100, true},  {100, 101, false}, {200, 101, true},
      {14, 102, true},   {101, 102, true},  {103, 102, false}, {104, 102, true},  {106, 102, true},  {107, 102, false},
      {200, 102, true},  {102, 103, false}, {104, 103, true},  {107, 103, false}, {102, 104, false}, {105, 104, true},
      {107, 104, false}, {14, 105, true},   {104, 105, true},  {106, 105, false}, {107, 105, false}, {105, 106, false},
      {103, 106, true},  {102, 107, true},  {106, 107, false}, {14, 200, true},   {107, 200, true},  {14, 17, false},
      {200, 17, false},
  };
  for (const auto& row : rows) {
    OpenWith(row.from);
    const size_t before = BoxCount();
    if (row.told) ExpectNotice(*NoticeOf(row.to));
    Choose(row.to);
    EXPECT_EQ(row.told ? 1u : 0u, BoxCount() - before) << row.from << " to " << row.to;
  }
}

// The row that is selected already can be selected again.
TEST_F(FormatPage, PdfUAIsToldThoseWhoComeFromItToo) {
  OpenWith(200);
  const HWND combo = Control(IDC_FORMAT_VERSION).Window();
  ExpectNotice(kDefaultsUA);
  for (int i = 0; i < 2; ++i)
    page_->Send(WM_COMMAND, MAKEWPARAM(IDC_FORMAT_VERSION, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
  EXPECT_EQ(1u, BoxCount());
}

TEST_F(FormatPage, EachNoticeComesOnceInThePagesLife) {
  OpenWith(14);
  const std::pair<int, const std::wstring*> families[] = {
      {100, &kDefaultsA1}, {102, &kDefaultsA2}, {105, &kDefaultsA3}, {200, &kDefaultsUA}};
  for (const auto& [version, notice] : families) {
    ExpectNotice(*notice);
    Choose(version);
    Choose(14);
  }
  for (const auto& [version, notice] : families) {
    Choose(version);
    Choose(14);
  }
  EXPECT_EQ(4u, BoxCount());
}

TEST_F(FormatPage, ANoticeThatWasNotNeededIsNotUsedUp) {
  OpenWith(107);
  Choose(102);
  EXPECT_EQ(0u, BoxCount());
  Choose(14);
  ExpectNotice(kDefaultsA2);
  Choose(102);
  EXPECT_EQ(1u, BoxCount());
}

TEST_F(FormatPage, StationeryPaperIsRemindedOfOnceBehindTheNotice) {
  properties().StationeryEnabled[0].SetLong(1);
  const std::pair<int, const std::wstring*> families[] = {
      {101, &kDefaultsA1}, {104, &kDefaultsA2}, {106, &kDefaultsA3}};
  for (const auto& [version, notice] : families) {
    OpenWith(14);
    const size_t before = BoxCount();
    ExpectNotice(*notice);
    ExpectNotice(kStationeryReminder);
    Choose(version);
    EXPECT_EQ(2u, BoxCount() - before);
    Choose(14);
    Choose(version);
    EXPECT_EQ(2u, BoxCount() - before) << "both were told";
  }
}

TEST_F(FormatPage, StationeryPaperIsRemindedOfWithoutANoticeToo) {
  properties().StationeryEnabled[0].SetLong(1);
  OpenWith(100);
  ExpectNotice(kStationeryReminder);
  Choose(101);
  EXPECT_EQ(1u, BoxCount());
}

TEST_F(FormatPage, OtherVersionsRemindOfNoStationeryPaper) {
  properties().StationeryEnabled[0].SetLong(1);
  OpenWith(14);
  ExpectNotice(kDefaultsUA);
  Choose(200);
  Choose(17);
  EXPECT_EQ(1u, BoxCount());
}

TEST_F(FormatPage, StationeryOfTheOtherSetCountsForNothing) {
  properties().StationeryEnabled[1].SetLong(1);
  OpenWith(14);
  ExpectNotice(kDefaultsA1);
  Choose(100);
  EXPECT_EQ(1u, BoxCount());
}

// What the user has switched on the watermark page since this page read its properties.
TEST_F(FormatPage, StationeryOfTheWatermarkPageIsTheOneThatCounts) {
  FakeWatermarkPage watermark(log_);
  sheet_.pages[kWatermarkPage] = &watermark;
  for (const bool on : {false, true}) {
    properties().StationeryEnabled[0].SetLong(on ? 0 : 1);
    watermark.on = !on;
    OpenWith(100);
    watermark.on = on;
    const size_t before = BoxCount();
    if (on) ExpectNotice(kStationeryReminder);
    Choose(101);
    EXPECT_EQ(on ? 1u : 0u, BoxCount() - before);
  }
}

TEST_F(FormatPage, StationeryPaperIsRemindedOfOnceForAllFamilies) {
  properties().StationeryEnabled[0].SetLong(1);
  OpenWith(14);
  ExpectNotice(kDefaultsA1);
  ExpectNotice(kStationeryReminder);
  Choose(101);
  ExpectNotice(kDefaultsA2);
  Choose(102);
  ExpectNotice(kDefaultsA3);
  Choose(105);
  EXPECT_EQ(4u, BoxCount());
}

TEST_F(FormatPage, TheReminderWaitsForStationery) {
  FakeWatermarkPage watermark(log_);
  sheet_.pages[kWatermarkPage] = &watermark;
  watermark.on = false;
  OpenWith(101);
  Choose(100);
  EXPECT_EQ(0u, BoxCount());
  watermark.on = true;
  ExpectNotice(kStationeryReminder);
  Choose(101);
  EXPECT_EQ(1u, BoxCount());
}

// The owner of the sheet may go away under a box.
TEST_F(FormatPage, ABoxThatEndsThePageIsTheLast) {
  AddOtherPages();
  properties().StationeryEnabled[0].SetLong(1);
  auto parent = std::make_unique<PageParent>();
  PageUnderTest page(&sheet_, kDescription, 0);
  ASSERT_TRUE(page.Create(parent->Window()));
  const HWND combo = GetDlgItem(page.Handle(), IDC_FORMAT_VERSION);
  SendMessageW(combo, CB_SETCURSEL, RowOf(100), 0);
  PostMessageW(parent->Window(), WM_CLOSE, 0, 0);
  page.Send(WM_COMMAND, MAKEWPARAM(IDC_FORMAT_VERSION, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
  EXPECT_FALSE(page.IsWindow());
  EXPECT_EQ(0u, BoxCount());
  EXPECT_EQ(Log{}, log_);
}

TEST_F(FormatPage, WithoutTheAddInNoVersionWithTagsIsTaken) {
  for (const int version : kVersions) {
    const bool refused = std::set{100, 102, 104, 105, 107, 200}.contains(version);
    OpenWith(version == 14 ? 15 : 14);
    page_->hasAddIn = false;
    if (refused)
      ExpectNotice(L"Please use the Word-Addin to create a pdf of this version.");
    else if (const std::wstring* notice = NoticeOf(version))
      ExpectNotice(*notice);
    Choose(version);
    EXPECT_EQ(refused ? 14 : version, Shown());
    EXPECT_EQ(refused ? 14 : version, page_->GetPdfVersion());
  }
}

// --- Invoice -------------------------------------------------------------------------------------------------------

TEST_F(FormatPage, AnInvoiceThatIsKeptBringsTheVersionBack) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  OpenWith(106);
  ExpectQuestion(IDCANCEL);
  Choose(17);
  EXPECT_EQ((std::vector<int>{IDOK, IDCANCEL}), popups_.Boxes().front().buttons);
  EXPECT_EQ(106, Shown());
  EXPECT_EQ(106, page_->GetPdfVersion());
  EXPECT_EQ(Log{}, TakeLog());
  ASSERT_TRUE(Save());
  EXPECT_EQ(106, StoredVersion());
}

TEST_F(FormatPage, AVersionWithoutARowSurvivesTheQuestion) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  OpenWith(99);
  ExpectQuestion(IDCANCEL);
  Choose(17);
  EXPECT_EQ(13, Shown());
  ASSERT_TRUE(Save());
  EXPECT_EQ(99, StoredVersion());
}

TEST_F(FormatPage, AnInvoiceThatIsGivenUpIsSwitchedOffWithWhatFixedIt) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  OpenWith(106);
  ExpectQuestion(IDOK);
  Choose(17);
  EXPECT_EQ((Log{"clear overrides", "invoice 0"}), TakeLog());
  EXPECT_EQ(17, Shown());
  ASSERT_TRUE(Save());
  EXPECT_EQ(17, StoredVersion());
}

TEST_F(FormatPage, TheQuestionComesBeforeTheNotice) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  OpenWith(106);
  ExpectQuestion(IDOK);
  ExpectNotice(kDefaultsA1);
  Choose(101);
  EXPECT_EQ(2u, BoxCount());
}

TEST_F(FormatPage, OnlyPdfA3LeavesAnInvoiceAlone) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  for (const int version : kVersions) {
    const bool allowed = version >= 105 && version <= 107;
    OpenWith(version == 106 ? 105 : 106);
    const size_t before = BoxCount();
    if (!allowed) ExpectQuestion(IDCANCEL);
    Choose(version);
    EXPECT_EQ(allowed ? 0u : 1u, BoxCount() - before) << version;
  }
}

TEST_F(FormatPage, WithoutAnInvoiceNothingIsAsked) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  zugferd_.on = false;
  OpenWith(106);
  Choose(17);
  EXPECT_EQ(0u, BoxCount());
  EXPECT_EQ(Log{}, TakeLog());
  EXPECT_EQ(17, Shown());
}

TEST_F(FormatPage, APageUnderTheBoxOfTheQuestionMayEnd) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  properties().PdfVersion[0].SetLong(106);
  auto parent = std::make_unique<PageParent>();
  PageUnderTest page(&sheet_, kDescription, 0);
  ASSERT_TRUE(page.Create(parent->Window()));
  const HWND combo = GetDlgItem(page.Handle(), IDC_FORMAT_VERSION);
  SendMessageW(combo, CB_SETCURSEL, RowOf(17), 0);
  PostMessageW(parent->Window(), WM_CLOSE, 0, 0);
  page.Send(WM_COMMAND, MAKEWPARAM(IDC_FORMAT_VERSION, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo));
  EXPECT_FALSE(page.IsWindow());
  EXPECT_EQ(106, page.version);
  EXPECT_EQ(Log{}, log_);
}

TEST_F(FormatPage, AnInvoiceOfADocumentAsksAsWell) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  OpenWith(106, 1);
  ExpectQuestion(IDCANCEL);
  Choose(17);
  EXPECT_EQ(106, Shown());
  EXPECT_EQ(Log{}, TakeLog());
  ExpectQuestion(IDOK);
  Choose(17);
  EXPECT_EQ((Log{"clear overrides", "invoice 0"}), TakeLog());
  ASSERT_TRUE(Save());
  EXPECT_EQ(17, StoredVersion(1));
  EXPECT_EQ(14, StoredVersion(0));
}

TEST_F(FormatPage, SavingLetsTheInvoicePageWriteWhatItHasRead) {
  for (const int set : {0, 1}) {
    FakeZugferdPage zugferd(log_);
    sheet_.pages[kZugferdPage] = &zugferd;
    Open(set);
    ASSERT_TRUE(page_->UpdateData(true));
    EXPECT_EQ(Log{}, TakeLog()) << "it has read nothing, and would write over what the host has set";
    zugferd.ReadProperties();
    ASSERT_TRUE(page_->UpdateData(true));
    EXPECT_EQ(Log{"write"}, TakeLog()) << set;
    SendMessageW(Control(IDC_FORMAT_VERSION).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_FALSE(page_->UpdateData(true));
    EXPECT_EQ(Log{"write"}, TakeLog()) << set << ": in front of the step that fails";
    sheet_.pages.erase(kZugferdPage);
  }
}

// --- What a version switches off on other pages --------------------------------------------------------------------

Log ExpectedAsks(int version) {
  Log asks;
  if ((version >= 100 && version <= 107) || version == 200) asks.push_back("passwords off");
  if (version >= 100 && version <= 104) asks.insert(asks.end(), {"attachments 0", "links 0"});
  return asks;
}

TEST_F(FormatPage, LoadingSwitchesOffWhatTheVersionForbids) {
  AddOtherPages();
  for (const int set : {0, 1})
    for (const int version : {13, 14, 15, 16, 17, 18, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 150, 200, 201}) {
      OpenWith(version, set);
      EXPECT_EQ(ExpectedAsks(version), TakeLog()) << version << " of set " << set;
      ASSERT_TRUE(page_->UpdateData(false));
      EXPECT_EQ(ExpectedAsks(version), TakeLog()) << version << " at each loading";
    }
}

TEST_F(FormatPage, ChoosingAVersionSwitchesOffWhatItForbids) {
  AddOtherPages();
  for (const int version : kVersions) {
    OpenWith(version == 14 ? 15 : 14);
    if (const std::wstring* notice = NoticeOf(version)) ExpectNotice(*notice);
    TakeLog();
    Choose(version);
    EXPECT_EQ(ExpectedAsks(version), TakeLog()) << version;
  }
}

TEST_F(FormatPage, ARefusedVersionSwitchesNothingOff) {
  AddOtherPages();
  zugferd_.on = true;
  OpenWith(17);
  ExpectQuestion(IDCANCEL);
  Choose(100);
  EXPECT_EQ(Log{}, TakeLog());
}

TEST_F(FormatPage, PagesThatOfferNothingArePassedOver) {
  OtherPage plain(log_);
  sheet_.pages = {{112, &plain}, {113, &plain}, {114, &plain}, {117, &plain}};
  OpenWith(100);
  Choose(101);
  Choose(17);
  EXPECT_EQ(Log{}, TakeLog());
  EXPECT_EQ(17, Shown());
}

// --- Kind of file --------------------------------------------------------------------------------------------------

TEST_F(FormatPage, KindOfFileIsShown) {
  const std::pair<int, int> rows[] = {{0, 1269},     {1, 1267},     {2, 1268},     {3, 1268}, {4, 1267},
                                      {0x100, 1269}, {0x101, 1269}, {0x102, 1269}, {6, 1268}};
  for (const auto& [format, radio] : rows) {
    properties().SaveFormat[0].SetLong(format);
    Open();
    EXPECT_EQ(radio, SaveRadio()) << format;
  }
}

TEST_F(FormatPage, KindOfFileIsStoredByItsRadio) {
  struct Row {
    int stored, clicked, result;  // clicked 0: nothing
  };
  const Row rows[] = {
      {0, 0, 0x102},     {1, 0, 1},         {2, 0, 2},         {3, 0, 3},        {4, 0, 1},
      {0x100, 0, 0x102}, {0x101, 0, 0x103}, {0x102, 0, 0x102}, {0x102, 1267, 1}, {0x102, 1268, 0x102},
      {1, 1268, 3},      {1, 1269, 0x103},  {2, 1267, 1},      {2, 1269, 0x102}, {0, 1268, 2},
  };
  for (const Row& row : rows) {
    properties().SaveFormat[0].SetLong(row.stored);
    Open();
    if (row.clicked) {
      Control(row.clicked).Click();
      EXPECT_EQ(row.result, page_->GetSaveFormat()) << "at once: " << row.stored << ' ' << row.clicked;
    }
    ASSERT_TRUE(Save());
    EXPECT_EQ(row.result, StoredFormat()) << row.stored << ' ' << row.clicked;
    ASSERT_TRUE(Save());
    EXPECT_EQ(row.result, StoredFormat()) << "again: " << row.stored << ' ' << row.clicked;
  }
}

TEST_F(FormatPage, AskingIsLeftByWayOfPdfOnly) {
  properties().SaveFormat[0].SetLong(0x102);
  Open();
  Control(1268).Click();
  ASSERT_TRUE(Save());
  page_->UpdateData(false);
  EXPECT_EQ(1269, SaveRadio());
  Control(1267).Click();
  Control(1268).Click();
  page_->UpdateData(false);
  EXPECT_EQ(1268, SaveRadio());
}

TEST_F(FormatPage, NoRadioMeansPdf) {
  properties().SaveFormat[0].SetLong(0x102);
  Open();
  SendMessageW(Control(1269).Window(), BM_SETCHECK, BST_UNCHECKED, 0);
  ASSERT_TRUE(Save());
  EXPECT_EQ(1, StoredFormat());
}

TEST_F(FormatPage, WithoutEPdfOnlyAPdfIsLeft) {
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  for (const int format : {0, 1, 2, 3, 0x100, 0x102}) {
    properties().SaveFormat[0].SetLong(format);
    Open();
    EXPECT_EQ(1267, SaveRadio()) << format;
    ASSERT_TRUE(Save());
    EXPECT_EQ(1, StoredFormat()) << format;
  }
}

TEST_F(FormatPage, SpecialVersionsShowPdfAndPlainOnesWhatWasChosen) {
  properties().SaveFormat[0].SetLong(0x102);
  for (const int version : {100, 101, 102, 103, 104, 105, 106, 107, 200}) {
    OpenWith(14);
    ExpectNotice(*NoticeOf(version));
    Choose(version);
    EXPECT_EQ(1267, SaveRadio()) << version;
    Choose(17);
    EXPECT_EQ(1269, SaveRadio()) << version;
    ASSERT_TRUE(Save());
    EXPECT_EQ(0x102, StoredFormat()) << version;
  }
}

// Whether there is something to tell or not.
TEST_F(FormatPage, AFamilyThatIsKnownAlreadyShowsPdfToo) {
  properties().SaveFormat[0].SetLong(0x102);
  OpenWith(101);
  EXPECT_EQ(1269, SaveRadio());
  Choose(100);
  EXPECT_EQ(0u, BoxCount());
  EXPECT_EQ(1267, SaveRadio());
  ASSERT_TRUE(Save());
  EXPECT_EQ(1, StoredFormat());
}

TEST_F(FormatPage, ASpecialVersionThatIsSavedLeavesAPdf) {
  properties().SaveFormat[0].SetLong(2);
  OpenWith(14);
  ExpectNotice(kDefaultsUA);
  Choose(200);
  ASSERT_TRUE(Save());
  EXPECT_EQ(1, StoredFormat());
}

// --- Conversion engine ---------------------------------------------------------------------------------------------

TEST_F(FormatPage, EngineIsShown) {
  for (const auto& [stored, radio] : {std::pair{0, 1272}, {1, 1273}, {2, 1272}}) {
    properties().SaveConversion[0].SetLong(stored);
    Open();
    EXPECT_EQ(radio, EngineRadio()) << stored;
    ASSERT_TRUE(Save());
    EXPECT_EQ(stored, StoredConversion());
  }
}

TEST_F(FormatPage, VersionsWithTagsShowTheRtfConversionAndStoreNothing) {
  for (const int version : kVersions) {
    const bool forced = std::set{100, 102, 104, 105, 107, 200}.contains(version);
    OpenWith(version);
    EXPECT_EQ(forced ? 1273 : 1272, EngineRadio()) << version;
    for (const int id : {1271, 1272, 1273}) EXPECT_EQ(!forced, Control(id).IsEnabled()) << version << ' ' << id;
    ASSERT_TRUE(Save());
    EXPECT_EQ(0, StoredConversion()) << version;
  }
}

TEST_F(FormatPage, ChosenVersionsForceTheEngineAsStoredOnes) {
  OpenWith(14);
  ExpectNotice(kDefaultsA2);
  Choose(102);
  EXPECT_EQ(1273, EngineRadio());
  EXPECT_FALSE(Control(1272).IsEnabled());
  Choose(103);
  EXPECT_EQ(1272, EngineRadio());
  EXPECT_TRUE(Control(1272).IsEnabled());
  ASSERT_TRUE(Save());
  EXPECT_EQ(0, StoredConversion());
}

TEST_F(FormatPage, ChoosingTheRtfConversionInforms) {
  Open();
  ExpectNotice(kRtfInformation);
  Control(1273).Click();
  EXPECT_EQ(1, page_->saveConversion);
  Control(1272).Click();
  EXPECT_EQ(0, page_->saveConversion);
  EXPECT_EQ(1u, BoxCount());
  ExpectNotice(kRtfInformation);
  Control(1273).Click();
  EXPECT_EQ(2u, BoxCount()) << "each time";
  ASSERT_TRUE(Save());
  EXPECT_EQ(1, StoredConversion());
}

TEST_F(FormatPage, ARadioThatTellsItsClickUnderTheBoxInformsNoSecondTime) {
  Open();
  ExpectNotice(kRtfInformation);
  page_->Post(WM_COMMAND, MAKEWPARAM(1273, BN_CLICKED), reinterpret_cast<LPARAM>(Control(1273).Window()));
  Control(1273).Click();
  EXPECT_EQ(1u, BoxCount());
}

TEST_F(FormatPage, ABoxThatFailsIsNoReasonToInformNoMore) {
  Open().failsOnce = true;
  Control(1273).Click();
  EXPECT_EQ(0u, BoxCount());
  ExpectNotice(kRtfInformation);
  Control(1273).Click();
  EXPECT_EQ(1u, BoxCount());
}

// A radio that is off and gets the focus otherwise tells a click, in front of an arrow key's own one. Not every system
// has that, so the order to leave it is looked at, too.
TEST_F(FormatPage, ARadioThatGetsTheFocusIsNotChosen) {
  properties().SaveConversion[0].SetLong(1);
  properties().SaveFormat[0].SetLong(0);
  const QuietRadios quiet;
  Open();
  EXPECT_EQ((std::set<int>{1267, 1268, 1269, 1272, 1273}), quiet.Ids());
  for (const int id : {1272, 1273, 1267, 1268, 1269}) {
    Control(id).Focus();
    EXPECT_TRUE(Control(id).HasFocus()) << id;
    EXPECT_EQ(1, page_->saveConversion) << id;
    EXPECT_EQ(0, page_->GetSaveFormat()) << id;
  }
  EXPECT_EQ(0u, BoxCount());
}

// --- What is enabled -----------------------------------------------------------------------------------------------

TEST_F(FormatPage, BasicSettingsOfAPlainVersionAreOpen) {
  Open();
  EXPECT_EQ(kAll, Enabled());
}

TEST_F(FormatPage, EPdfNeedsAPlainVersionAndAHostThatOffersIt) {
  properties().PrintOutput[0].SetLong(1);
  Open();
  EXPECT_EQ(kWithoutEPdf, Enabled());
  properties().PrintOutput[0].SetLong(2);
  Open();
  EXPECT_EQ(kAll, Enabled());
  properties().PrintOutput[0].SetLong(3);
  Open();
  EXPECT_EQ(kWithoutEPdf, Enabled());
  properties().PrintOutput[0].SetLong(0);
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  Open();
  EXPECT_EQ(kWithoutEPdf, Enabled());
  properties().SaveFormatEPdfEnabled[0].SetLong(1);
  for (const int version : kVersions) {
    OpenWith(version);
    for (const int id : {1270, 1267, 1268, 1269}) EXPECT_EQ(version < 100, Control(id).IsEnabled()) << version;
  }
  OpenWith(150);
  EXPECT_EQ(kAll, Enabled()) << "the row shown counts";
}

TEST_F(FormatPage, EngineNeedsAVersionWithoutTagsAndAHostThatOffersIt) {
  properties().SaveConversionEnabled[0].SetLong(0);
  Open();
  EXPECT_EQ(kWithoutEngine, Enabled());
  Choose(17);
  EXPECT_EQ(kWithoutEngine, Enabled()) << "another version does not bring it";
  OpenWith(100);
  EXPECT_EQ(kNeither, Enabled());
  properties().SaveConversionEnabled[0].SetLong(1);
  OpenWith(100);
  EXPECT_EQ(kNeither, Enabled());
  OpenWith(101);
  EXPECT_EQ(kWithoutEPdf, Enabled());
}

TEST_F(FormatPage, ChoosingAVersionOpensAndClosesAsLoadingDoes) {
  for (const int version : kVersions) {
    OpenWith(version == 14 ? 15 : 14);
    if (const std::wstring* notice = NoticeOf(version)) ExpectNotice(*notice);
    Choose(version);
    const std::vector<int> chosen = Enabled();
    OpenWith(version);
    EXPECT_EQ(Enabled(), chosen) << version;
  }
}

TEST_F(FormatPage, DocumentSettingsHaveTheVersionAlone) {
  for (const int version : {13, 18, 99, 100, 101, 106, 200}) {
    OpenWith(version, 1);
    EXPECT_EQ(std::vector<int>{1017}, Enabled()) << version;
    Choose(17);
    EXPECT_EQ(std::vector<int>{1017}, Enabled()) << version;
    EXPECT_EQ(1268, SaveRadio()) << version;
  }
}

TEST_F(FormatPage, AnAdministratorsVersionLocksTheListAndShowsTheHosts) {
  properties().adminSettings.PdfVersion_Override = 100;
  Open();
  EXPECT_EQ(14, Shown());
  EXPECT_EQ((std::vector<int>{1263, 1270, 1267, 1268, 1269, 1264, 1271, 1272, 1273}), Enabled());
  page_->OnSetActive();
  page_->OnSetActive();
  EXPECT_FALSE(Control(1017).IsEnabled());
  page_->SetPdfVersion(15);
  page_->SetCockpitValues({16, 2, 1});
  EXPECT_FALSE(Control(1017).IsEnabled());
  ASSERT_TRUE(Save());
  EXPECT_EQ(15, StoredVersion());
  Open(1);
  EXPECT_EQ(std::vector<int>{}, Enabled());
}

TEST_F(FormatPage, AdministratorsPdfAHasNoEffectHere) {
  properties().adminSettings.PdfAEnabled_Override = 1;
  Open();
  EXPECT_EQ(kAll, Enabled());
}

// --- Document settings ---------------------------------------------------------------------------------------------

TEST_F(FormatPage, DocumentSettingsTakeNoSpecialVersion) {
  sheet_.pages[kZugferdPage] = &zugferd_;
  for (const int version : {101, 102, 103, 104, 105, 106, 107, 200}) {
    OpenWith(100, 1);
    EXPECT_EQ(100, Shown());
    Choose(version);
    EXPECT_EQ(100, Shown()) << version;
    EXPECT_EQ(100, page_->GetPdfVersion()) << version;
    ASSERT_TRUE(Save());
    EXPECT_EQ(100, StoredVersion(1)) << version;
  }
  EXPECT_EQ(0u, BoxCount());
}

TEST_F(FormatPage, DocumentSettingsTakePlainVersions) {
  OpenWith(100, 1);
  Choose(17);
  EXPECT_EQ(17, Shown());
  ASSERT_TRUE(Save());
  EXPECT_EQ(17, StoredVersion(1));
  EXPECT_EQ(14, StoredVersion(0));
}

TEST_F(FormatPage, DocumentSettingsStoreTheVersionAlone) {
  properties().SaveFormat[0].SetLong(0x102);
  properties().SaveFormat[1].SetLong(1);
  properties().SaveConversion[0].SetLong(0);
  properties().SaveConversion[1].SetLong(1);
  Open(1);
  EXPECT_EQ(1268, SaveRadio());
  EXPECT_EQ(1273, EngineRadio());
  ASSERT_TRUE(Save());
  EXPECT_EQ(0x102, properties().SaveFormat[0].GetLong());
  EXPECT_EQ(1, properties().SaveFormat[1].GetLong());
  EXPECT_EQ(0, properties().SaveConversion[0].GetLong());
  EXPECT_EQ(1, properties().SaveConversion[1].GetLong());
}

// --- Properties ----------------------------------------------------------------------------------------------------

struct RoundTrip {
  int version, saveFormat, saveConversion;              // as the host gives them
  int versionBack, saveFormatBack, saveConversionBack;  // after the saving of an untouched page
};

constexpr RoundTrip kRoundTrips[] = {
    {13, 1, 0, 13, 1, 0},
    {18, 2, 1, 18, 2, 1},
    {100, 0x102, 0, 100, 0x102, 0},
    {107, 1, 1, 107, 1, 1},
    {200, 2, 0, 200, 2, 0},
    // Without a row; kinds of file that stand for asking and for none.
    {12, 0, 2, 12, 0x102, 2},
    {99, 0x100, 0xFFFE, 99, 0x102, 0xFFFE},
    {201, 4, 3, 201, 1, 3},
    {0, 3, 0, 0, 3, 0},
    // The page holds sixteen bits of each.
    {-1, 0x10001, 0x10001, 0xFFFF, 1, 1},
    {0x1000E, 0x10002, -1, 14, 2, 0xFFFF},
};

TEST_F(FormatPage, UntouchedPagesGiveBackWhatTheyWereGiven) {
  for (const RoundTrip& trip : kRoundTrips)
    for (const int set : {0, 1}) {
      properties().PdfVersion[set].SetLong(trip.version);
      properties().SaveFormat[set].SetLong(trip.saveFormat);
      properties().SaveConversion[set].SetLong(trip.saveConversion);
      Open(set);
      ASSERT_TRUE(Save());
      EXPECT_EQ(trip.versionBack, StoredVersion(set)) << trip.version;
      EXPECT_EQ(set == 0 ? trip.saveFormatBack : trip.saveFormat, properties().SaveFormat[set].GetLong());
      EXPECT_EQ(set == 0 ? trip.saveConversionBack : trip.saveConversion, properties().SaveConversion[set].GetLong());
    }
}

TEST_F(FormatPage, PropertiesAreReadOnce) {
  Open();
  properties().PdfVersion[0].SetLong(17);
  properties().SaveFormat[0].SetLong(2);
  page_->ReadProperties();
  EXPECT_EQ(14, page_->version);
  EXPECT_EQ(1, page_->saveFormat);
}

TEST_F(FormatPage, BasicSettingsStoreThreeValuesOfTheirSetAndTheSameEachTime) {
  CDialogProperties before;
  properties().SaveConversion[0].SetLong(1);
  for (const int set : {0, 1}) {
    properties().PrintOutput[set].SetLong(2);
    properties().StationeryEnabled[set].SetLong(1);
  }
  CopyAllSets(before, properties());
  Open();
  page_->version = 16;
  page_->saveFormat = 3;
  page_->saveConversion = 0;
  for (int i = 0; i < 3; ++i) {
    page_->WriteProperties();
    EXPECT_EQ(16, StoredVersion());
    EXPECT_EQ(3, StoredFormat());
    EXPECT_EQ(0, StoredConversion());
  }
  for (const int set : {0, 1}) {
    EXPECT_EQ(2, properties().PrintOutput[set].GetLong());
    EXPECT_EQ(1, properties().SaveFormatEPdfEnabled[set].GetLong());
    EXPECT_EQ(1, properties().SaveConversionEnabled[set].GetLong());
    EXPECT_EQ(1, properties().StationeryEnabled[set].GetLong());
  }
  for (const auto property :
       {&CDialogProperties::PdfVersion, &CDialogProperties::SaveFormat, &CDialogProperties::SaveConversion})
    EXPECT_EQ((before.*property)[1].GetLong(), (properties().*property)[1].GetLong());
}

TEST_F(FormatPage, ReadsTheKindOfFileFromTheBasicSettingsAndTheRestFromItsOwn) {
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  properties().SaveConversion[1].SetLong(1);
  properties().PdfVersion[1].SetLong(16);
  properties().PrintOutput[1].SetLong(3);
  properties().SaveConversionEnabled[1].SetLong(0);
  Open(1);
  EXPECT_EQ(0, page_->saveFormatEPdfEnabled);
  EXPECT_EQ(0, page_->saveConversion) << "without e.pdf there is no choice of it";
  EXPECT_EQ(16, page_->version);
  EXPECT_EQ(3, page_->printOutput);
  EXPECT_EQ(0, page_->saveConversionEnabled);
  properties().SaveFormatEPdfEnabled[0].SetLong(1);
  properties().SaveFormatEPdfEnabled[1].SetLong(0);
  Open(1);
  EXPECT_EQ(1, page_->saveFormatEPdfEnabled);
  EXPECT_EQ(1, page_->saveConversion);
}

TEST_F(FormatPage, WithoutEPdfTheEngineIsThePrinterDriver) {
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  properties().SaveConversion[0].SetLong(1);
  Open();
  EXPECT_EQ(1272, EngineRadio());
  ASSERT_TRUE(Save());
  EXPECT_EQ(0, StoredConversion());
}

TEST_F(FormatPage, WithoutASheetThePropertyExchangeFails) {
  CNemUIFormatPage page(nullptr, kDescription, 0);
  EXPECT_FALSE(page.UpdateDataSuper(false));
  EXPECT_FALSE(page.UpdateDataSuper(true));
  EXPECT_FALSE(page.Create(parent_.Window()));
  EXPECT_EQ(0, page.GetPdfVersion());
  EXPECT_EQ(0, page.GetSaveFormat());
  page.SetPdfVersion(17);
  EXPECT_EQ(0, page.GetPdfVersion());
}

// --- What other pages ask ------------------------------------------------------------------------------------------

TEST_F(FormatPage, TheVersionIsKnownBeforeThePageIsShown) {
  properties().PdfVersion[1].SetLong(106);
  CNemUIFormatPage page(&sheet_, kDescription, 1);
  EXPECT_EQ(106, page.GetPdfVersion());
  EXPECT_FALSE(page.IsLoaded());
  page.ReadProperties();
  properties().PdfVersion[1].SetLong(13);
  EXPECT_EQ(106, page.GetPdfVersion());
}

TEST_F(FormatPage, AVersionThatAnotherPageSetsIsThereAtTheFirstShowing) {
  CNemUIFormatPage page(&sheet_, kDescription, 1);
  page.SetPdfVersion(106);
  EXPECT_EQ(106, StoredVersion(1));
  EXPECT_EQ(14, StoredVersion(0));
  EXPECT_FALSE(page.IsLoaded());
  ASSERT_TRUE(page.Create(parent_.Window()));
  EXPECT_EQ(RowOf(106), CComboBox(page.Item(IDC_FORMAT_VERSION)).Selection());
}

TEST_F(FormatPage, AVersionThatAnotherPageSetsIsNotUndoneByAnUntouchedPage) {
  OpenWith(14);
  page_->SetPdfVersion(106);
  EXPECT_EQ(106, StoredVersion());
  EXPECT_EQ(106, page_->GetPdfVersion());
  EXPECT_EQ(106, Shown());
  EXPECT_EQ(0u, BoxCount());
  ASSERT_TRUE(Save());
  EXPECT_EQ(106, StoredVersion());
}

TEST_F(FormatPage, AVersionThatAnotherPageSetsReplacesAChosenOne) {
  OpenWith(14);
  Choose(17);
  page_->SetPdfVersion(106);
  ASSERT_TRUE(Save());
  EXPECT_EQ(106, StoredVersion());
}

TEST_F(FormatPage, AVersionThatAnotherPageSetsReachesAPageThatReadWithoutAWindow) {
  CNemUIFormatPage page(&sheet_, kDescription, 0);
  page.ReadProperties();
  page.SetPdfVersion(106);
  EXPECT_EQ(106, page.GetPdfVersion());
  page.WriteProperties();
  EXPECT_EQ(106, StoredVersion());
}

TEST_F(FormatPage, TheKindOfFileIsKnownBeforeThePageIsShown) {
  properties().SaveFormat[0].SetLong(0x102);
  properties().SaveFormat[1].SetLong(1);
  for (const int set : {0, 1}) {
    CNemUIFormatPage page(&sheet_, kDescription, set);
    EXPECT_EQ(0x102, page.GetSaveFormat()) << set;
    EXPECT_FALSE(page.IsLoaded());
  }
  properties().SaveFormat[0].SetLong(0);
  EXPECT_EQ(0, CNemUIFormatPage(&sheet_, kDescription, 0).GetSaveFormat());
  EXPECT_EQ(1, CNemUIFormatPage(&sheet_, kDescription, 1).GetSaveFormat());
  properties().SaveFormat[0].SetLong(0x102);
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  EXPECT_EQ(1, CNemUIFormatPage(&sheet_, kDescription, 0).GetSaveFormat());
}

TEST_F(FormatPage, TheKindOfFileOfAShownPageIsItsOwn) {
  properties().SaveFormat[0].SetLong(0x102);
  Open();
  EXPECT_EQ(0x102, page_->GetSaveFormat());
  Control(1267).Click();
  EXPECT_EQ(1, page_->GetSaveFormat());
  Open(1);
  EXPECT_EQ(2, page_->GetSaveFormat());
}

TEST_F(FormatPage, TheKindOfFileOfAShownPageIsAPdfWithoutEPdf) {
  properties().SaveFormatEPdfEnabled[0].SetLong(0);
  Open(1);
  EXPECT_EQ(2, page_->saveFormat);
  EXPECT_EQ(1, page_->GetSaveFormat());
  CNemUIFormatPage page(&sheet_, kDescription, 0);
  page.SetCockpitValues({14, 0, 0});
  EXPECT_EQ(0, page.saveFormat);
  EXPECT_EQ(1, page.GetSaveFormat());
}

TEST_F(FormatPage, OtherPagesFindTheVersionByTheNumberOfThePage) {
  CNemUIFormatPage format(&sheet_, kDescription, 0), asking(&sheet_, kDescription, 0);
  EXPECT_EQ(0, PdfVersionFor(asking)) << "there is no such page";
  sheet_.pages[kFormatPage] = &security_;
  EXPECT_EQ(0, PdfVersionFor(asking)) << "a page that does not offer it";
  sheet_.pages[kFormatPage] = &format;
  EXPECT_EQ(14, PdfVersionFor(asking));
}

// --- Cockpit -------------------------------------------------------------------------------------------------------

TEST_F(FormatPage, CockpitReadsAPageThatWasNeverShown) {
  properties().PdfVersion[0].SetLong(17);
  properties().SaveFormat[0].SetLong(0x102);
  properties().SaveConversion[0].SetLong(1);
  CNemUIFormatPage page(&sheet_, kDescription, 0);
  FormatCockpitValues values;
  page.GetCockpitValues(values);
  EXPECT_EQ(17, values.pdfVersion);
  EXPECT_EQ(0x102, values.saveFormat);
  EXPECT_EQ(1, values.saveConversion);
  EXPECT_FALSE(page.IsWindow());
}

TEST_F(FormatPage, CockpitSetsAllButWhatIsFixedAndWhatDocumentsHaveNot) {
  struct Row {
    int set;
    int32_t fixedVersion;
    FormatCockpitValues expected;
  };
  const Row rows[] = {
      {0, kUnsetNumber, {17, 0, 1}},
      {0, 100, {14, 0, 1}},
      {1, kUnsetNumber, {17, 2, 0}},
      {1, 100, {14, 2, 0}},
  };
  for (const Row& row : rows) {
    properties().adminSettings.PdfVersion_Override = row.fixedVersion;
    CNemUIFormatPage page(&sheet_, kDescription, row.set);
    page.SetCockpitValues({17, 0, 1});
    EXPECT_EQ(row.expected.pdfVersion, page.version) << row.set << ' ' << row.fixedVersion;
    EXPECT_EQ(row.expected.saveFormat, page.saveFormat) << row.set << ' ' << row.fixedVersion;
    EXPECT_EQ(row.expected.saveConversion, page.saveConversion) << row.set << ' ' << row.fixedVersion;
  }
}

TEST_F(FormatPage, CockpitShowsWhatItSets) {
  OpenWith(17);
  page_->SetCockpitValues({14, 2, 1});
  EXPECT_EQ(14, Shown());
  EXPECT_EQ(1268, SaveRadio());
  EXPECT_EQ(1273, EngineRadio());
  EXPECT_EQ(0u, BoxCount());
  ASSERT_TRUE(Save());
  EXPECT_EQ(14, StoredVersion());
}

// --- Captions, sign and link ---------------------------------------------------------------------------------------

TEST_F(FormatPage, HintStandsBesideItsSign) {
  Open();
  EXPECT_EQ(L"\r\nThe selected PDF version affects the available settings for PDF security.", Control(1274).Text());
  EXPECT_TRUE(Control(1275).IsVisible());
  EXPECT_FALSE(Control(1276).IsVisible());
  for (const int id : {1275, 1276}) {
    auto* sign = dynamic_cast<CImageStatic*>(CSubclassedControl::FromHandle(Control(id).Window()));
    ASSERT_TRUE(sign) << id;
    EXPECT_TRUE(sign->IsLoaded()) << id;
  }
  ExpectPictures(*page_, {{1275, Pictures::kSignInformation32}, {1276, Pictures::kSignWarning32}});
}

TEST_F(FormatPage, CaptionsThatNoTemplateCanHoldAreThere) {
  Open();
  EXPECT_EQ(L"Additional features for PDF conversion when using MS Word\u00AE Add-in", Control(1263).Text());
  EXPECT_EQ(L"RTF conversion of MS\u00AE Word document", Control(1273).Text());
}

TEST_F(FormatPage, ManualOpensTheHelpOfItsLink) {
  Open();
  Control(1249).Click();
  EXPECT_EQ(1249, page_->helpAskedFor);
}

}  // namespace
