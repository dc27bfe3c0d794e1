#include "TestSheet.h"

#include <algorithm>

#include "driver/ImportPatch.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"

namespace sheet_test {
namespace {

// The sheet whose pages are being made: what makes them takes no argument of ours.
thread_local TestSheet* making = nullptr;

decltype(&PropertySheetW) realPropertySheet = nullptr;

INT_PTR WINAPI SayOne(LPCPROPSHEETHEADERW header) {
  realPropertySheet(header);
  return 1;
}

// Runs a function of the script; one that is not there agrees.
bool Ask(const std::function<bool(TestPage&)>& step, TestPage& page) { return !step || step(page); }

}  // namespace

TestPage::TestPage(SheetServices* sheet, const PageDescription& description, int settingsIndex)
    : CNemUIPage(description), sheet_(sheet), settingsIndex_(settingsIndex), test_(*making) {}

void TestPage::Note(const char* what) {
  test_.log.push_back(std::to_string(settingsIndex_) + '/' + std::to_string(GetPageId()) + ' ' + what);
}

PageScript& TestPage::Script() { return test_.Script(settingsIndex_, GetPageId()); }

CLongProperty& TestPage::Property() {
  CDialogProperties& properties = sheet_->Properties();
  return GetPageId() == 108 ? properties.GraphicResolution[settingsIndex_] : properties.Scale[settingsIndex_];
}

bool TestPage::ExchangeProperties(CDataExchange& exchange) {
  if (exchange.IsSaving())
    WriteProperties();
  else
    ReadProperties();
  return Ask(exchange.IsSaving() ? Script().onWrite : Script().onRead, *this);
}

void TestPage::ReadProperties() {
  if (IsLoaded()) return;
  Note("read");
  value = Property().GetLong();
  SetLoaded();
}

void TestPage::WriteProperties() {
  Note("write");
  Property().SetLong(value);
}

BOOL TestPage::OnInitDialog() {
  Note("init");
  const auto add = [this](int id, DWORD style, int top, int height) {
    CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 10, top, 100, height, Handle(),
                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  };
  add(kValueEdit, ES_AUTOHSCROLL, 150, 20);
  add(kNotesEdit, ES_MULTILINE, 180, 60);
  if (!Ask(Script().onInit, *this)) {
    EndDialog(-1);
    return FALSE;
  }
  return CNemUIPage::OnInitDialog();
}

void TestPage::DoDataExchange(CDataExchange& exchange) {
  Note(exchange.IsSaving() ? "save" : "load");
  exchange.Number(kValueEdit, value);
  if (!Ask(exchange.IsSaving() ? Script().onSave : Script().onLoad, *this)) exchange.Fail(kValueEdit);
}

bool TestPage::OnSetActive() {
  Note("set active");
  return Ask(Script().onSetActive, *this) && CNemUIPage::OnSetActive();
}

bool TestPage::OnKillActive() {
  Note("kill active");
  return Ask(Script().onKillActive, *this) && CNemUIPage::OnKillActive();
}

bool TestPage::OnApply() {
  Note("apply");
  return CNemUIPage::OnApply();
}

bool TestPage::OnHelpInfo(const HELPINFO& help) {
  Note(("help " + std::to_string(help.iCtrlId)).c_str());
  return CNemUIPage::OnHelpInfo(help);
}

PageCatalogueRow Row(int pageId, bool onDocument) {
  static const std::map<int, uint32_t> titles = {{100, MSG_PAGE_PAPER},
                                                 {101, MSG_PAGE_WATERMARK},
                                                 {102, MSG_PAGE_ACTIONS},
                                                 {103, MSG_PAGE_SAVING},
                                                 {104, MSG_PAGE_MAIL},
                                                 {105, MSG_PAGE_DOCUMENT_INFO},
                                                 {106, MSG_PAGE_INFO},
                                                 {107, MSG_PAGE_LANGUAGE},
                                                 {108, MSG_PAGE_GRAPHICAL_OPTIMIZATION},
                                                 {109, MSG_PAGE_DISPLAY},
                                                 {110, MSG_PAGE_FONTS},
                                                 {111, MSG_PAGE_COLORSPACE},
                                                 {112, MSG_PAGE_ZUGFERD_INVOICE},
                                                 {113, MSG_PAGE_LINKS},
                                                 {114, MSG_PAGE_ATTACHMENTS},
                                                 {115, MSG_PAGE_FIELDS},
                                                 {116, MSG_PAGE_COLOR_SETTINGS},
                                                 {117, MSG_PAGE_PDF_SECURITY},
                                                 {118, MSG_PAGE_OUTPUT_FORMAT},
                                                 {119, MSG_PAGE_BOOKMARK},
                                                 {120, MSG_PAGE_COCKPIT},
                                                 {121, MSG_PAGE_UPDATE},
                                                 {123, MSG_PAGE_STATISTICS}};
  return {{IDD_NO_DOC_SETTINGS_PAGE, 0, titles.at(pageId), pageId, 321, 322},
          MakePage<TestPage>,
          onDocument ? MakePage<TestPage> : nullptr};
}

std::vector<PageCatalogueRow> UsualRows() { return {Row(100), Row(108), Row(120), Row(121, false)}; }

TestSheet::TestSheet(const std::vector<PageCatalogueRow>& rows) : language_(kEnglish) {
  TestSheet* const outer = std::exchange(making, this);
  sheet_ = std::make_unique<CNemUISheet>(rows);
  making = outer;
  Properties().SheetTitle.SetString(L"Settings");
  Properties().MsgBoxTitle.SetString(kTitle);
}

int TestSheet::Count(const std::string& event) const {
  return static_cast<int>(std::count(log.begin(), log.end(), event));
}

PlatformSaysOne::PlatformSaysOne() {
  realPropertySheet = RealFunction("comctl32.dll", "PropertySheetW", &PropertySheetW);
  PatchImport("comctl32.dll", "PropertySheetW", reinterpret_cast<void*>(&SayOne));
}

PlatformSaysOne::~PlatformSaysOne() { RestoreImport("comctl32.dll", "PropertySheetW"); }

}  // namespace sheet_test
