// Every page of the sheet in every language and at every common dpi, looked at as a careful reviewer does.
//
// Language and dpi are those of a process: the library takes up its language when it is loaded, the system tells a
// process its dpi once. So each test sets them in the registry and runs itself again in a process of its own. Pages are
// audited as they exist: a page that has a template in the library has to come up.
#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <ostream>
#include <sstream>
#include <string_view>

#include "driver/DialogAudit.h"
#include "driver/Pages.h"
#include "driver/RowDialogs.h"
#include "driver/SelfProcess.h"
#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "support/HostDialog.h"
#include "support/RegistryValue.h"

namespace {

constexpr int kTimeoutSeconds = 120;
constexpr wchar_t kWorker[] = L"NEMPDF_AUDIT_WORKER";
constexpr char kInventoryMark[] = "inventory of ";

struct Language {
  const char* name;
  const wchar_t* id;  // as the product's registry value holds it
  bool mirrored;
};

constexpr Language kLanguages[] = {
    {"English", L"1033", false}, {"German", L"1031", false}, {"French", L"1036", false}, {"Arabic", L"1025", true}};

// How GoogleTest names the language of a test that failed.
void PrintTo(const Language& language, std::ostream* stream) { *stream << language.name; }

constexpr const Language& kEnglish = kLanguages[0];

// English captions are laid down with their access keys, double ones included. The translations have none.
constexpr struct {
  int pageId;
  const wchar_t* keys;
} kEnglishDoubleKeys[] = {{101, L"DU"}, {109, L"PS"}, {110, L"D"}, {115, L"C"}};

// The column of the levels, list and number: its width is laid down.
constexpr std::pair kBookmarkLevels{1290, 4};

AuditOptions OptionsFor(const Language& language, int dpi, const PageInfo* page) {
  AuditOptions options;
  options.mirrored = language.mirrored;
  options.dpi = dpi;
  options.size = page ? page->size : SIZE{275, 245};  // the placeholder is as large as most pages
  // A page gets the room of the host's tab control: 259 units less 4 pixels, a pixel or two short of the cockpit's 257.
  options.size.cy = std::min(options.size.cy, LONG{256});
  for (const auto& [pageId, keys] : kEnglishDoubleKeys)
    if (page && page->id == pageId && std::wstring_view(language.id) == kEnglish.id) options.allowedDoubleKeys = keys;
  options.narrowColumns = {kBookmarkLevels};
  return options;
}

std::string NameOf(const PageInfo* page, int tab) {
  return std::string(page ? page->name : "placeholder") + " page of tab " + std::to_string(tab);
}

bool HasTemplate(DWORD id) {
  return FindResourceW(GetModuleHandleW(L"NemPdfUI64.dll"), MAKEINTRESOURCEW(id), RT_DIALOG) != nullptr ||
         FindResourceExW(GetModuleHandleW(L"NemPdfUI64.dll"), RT_DIALOG, MAKEINTRESOURCEW(id), LANG_ENGLISH) != nullptr;
}

void Report(const std::string& page, const Findings& findings) {
  if (findings.empty()) return;
  std::string text = page + ":";
  for (const std::string& finding : findings) text += "\n  " + finding;
  ADD_FAILURE() << text;
}

void AuditDialog(const std::string& name, HWND dialog, const AuditOptions& options) {
  Report(name, AuditPage(dialog, options));
  std::printf("%s%s\n%s\n", kInventoryMark, name.c_str(), InventoryOf(dialog).c_str());
}

// --- In the process of its own ----------------------------------------------------------------------------------

// Goes through the commands of the navigation bar and audits each page that they bring up.
SheetTask AuditPages(Sheet& sheet, const Language& language, int dpi, int& count) {
  for (int tab = 0; tab < sheet.TabCount(); ++tab) {
    sheet.SelectTab(tab);
    co_await sheet.Settled();
    for (int id = 100; id <= 123; ++id) {
      const PageInfo* info = FindPageById(id);
      const HWND before = sheet.Page();
      const bool alreadyShown = info && sheet.PageId() == id;
      sheet.SelectPage(id);
      co_await sheet.Settled();
      const bool shown = alreadyShown || sheet.Page() != before;
      if (tab == 0 && info && HasTemplate(info->helpId)) {
        EXPECT_TRUE(shown && sheet.PageId() == id) << "the " << NameOf(info, tab) << " does not come up";
      }
      if (!shown) continue;

      const PageInfo* page = FindPageByHelpId(GetWindowContextHelpId(sheet.Page()));
      const std::string name = NameOf(page, tab);
      const AuditOptions options = OptionsFor(language, dpi, page);
      AuditDialog(name, sheet.Page(), options);
      Report(name, AuditSheet(sheet.Window(), sheet.HostPage(), sheet.Page(), options));
      ++count;
    }
  }
}

// The dialogs of the entries of lists, beside the sheet.
SheetTask AuditRowDialogs(Sheet& sheet, const Language& language, int dpi) {
  sheet.SelectTab(0);
  co_await sheet.Settled();
  for (const RowDialog& row : RowDialogs()) {
    HWND dialog = nullptr;
    co_await OpenRowDialog(sheet, row, dialog);
    CO_ASSERT_TRUE(IsWindow(dialog));
    AuditDialog(std::string(row.name) + " dialog", dialog, {language.mirrored, dpi, row.size});
    co_await CancelRowDialog(sheet, row, dialog);
  }
}

void AuditVersionDialog(const Language& language, int dpi) {
  SheetDriver(kTimeoutSeconds)
      .Run([] { return NemPdfUIShowVersion(); },
           [&](Sheet& dialog) -> SheetTask {
             co_await dialog.Settled();
             AuditDialog("version dialog", dialog.Window(), {language.mirrored, dpi, {205, 143}});
             dialog.PressOk();
           });
}

void AuditInThisProcess(const Language& language, int dpi) {
  SetProcessDPIAware();
  if (GetDpiForSystem() != static_cast<UINT>(dpi)) GTEST_SKIP() << "This system gives " << GetDpiForSystem() << " dpi.";
  HostDialog dialog;
  dialog.Set(NEMPDFUI_DOCUMENT, L"Used", 1);
  // The pages of form fields: open on the first tab; on the other one the first of them says why it is not.
  dialog.Set(0, L"FormFieldsEnabled", 1);
  for (const auto& [property, text] : FilledLists()) dialog.Set(0, property, text);
  for (const wchar_t* property : FilledListSwitches()) dialog.Set(0, property, 1);
  int count = 0;
  SheetDriver(kTimeoutSeconds)
      .Run([&dialog] { return dialog.DoModal(); },
           [&](Sheet& sheet) -> SheetTask {
             co_await AuditPages(sheet, language, dpi, count);
             co_await AuditRowDialogs(sheet, language, dpi);
             sheet.PressCancel();
           });
  EXPECT_GT(count, 0) << "no page came up";
  AuditVersionDialog(language, dpi);
}

// --- In the process of the test ---------------------------------------------------------------------------------

std::wstring RunningTest() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  return ToWide(std::string(test->test_suite_name()) + "." + test->name());
}

ProcessResult RunInOwnProcess(const Language& language, int dpi, const std::wstring& test) {
  ProductValue languageId(HKEY_CURRENT_USER, L"LanguageID");
  languageId.Set(language.id);
  ProductValue schedule(HKEY_CURRENT_USER, L"UpdateType");  // stored whenever the update page is left
  RegistryValue pixels(HKEY_CURRENT_USER, L"Control Panel\\Desktop", L"LogPixels");
  const DWORD value = static_cast<DWORD>(dpi);
  pixels.SetBytes(REG_DWORD, &value, sizeof value);
  return RunSelf(L"--gtest_filter=" + test, {{kWorker, L"1"}});
}

class DialogAudit : public testing::TestWithParam<std::tuple<Language, int>> {};

std::string ParameterName(const testing::TestParamInfo<DialogAudit::ParamType>& info) {
  return std::string(std::get<0>(info.param).name) + std::to_string(std::get<1>(info.param)) + "Dpi";
}

// The controls of each page by the page's name, from the output of a process.
std::map<std::string, std::string> ReadInventories(const std::string& output) {
  std::map<std::string, std::string> inventories;
  for (size_t mark = output.find(kInventoryMark); mark != std::string::npos;) {
    const size_t next = output.find(kInventoryMark, mark + 1);
    const std::string part = output.substr(mark, next - mark);
    const size_t line = part.find('\n');
    const size_t end = part.find("\n\n");
    inventories[part.substr(sizeof kInventoryMark - 1, line - sizeof kInventoryMark + 1)] =
        part.substr(line + 1, end - line);
    mark = next;
  }
  return inventories;
}

// What went wrong in a process: neither its inventories nor the lines that count tests, which are no tests of ours.
std::string Complaints(std::string output) {
  for (size_t mark; (mark = output.find(kInventoryMark)) != std::string::npos;) {
    const size_t end = output.find("\n\n", mark);
    output.erase(mark, end == std::string::npos ? end : end + 2 - mark);
  }
  std::istringstream lines(output);
  std::string complaints;
  for (std::string line; std::getline(lines, line);)
    if (!line.starts_with('[') && !line.starts_with("Note: ") && !line.empty() && !line.ends_with("FAILED TEST"))
      complaints += line + "\n";
  return complaints;
}

}  // namespace

TEST_P(DialogAudit, EveryPageIsSound) {
  const auto& [language, dpi] = GetParam();
  if (!EnvironmentValue(kWorker).empty()) return AuditInThisProcess(language, dpi);
  const ProcessResult result = RunInOwnProcess(language, dpi, RunningTest());
  if (result.exitCode == 0 && result.output.find("[  SKIPPED ]") != std::string::npos)
    GTEST_SKIP() << "This system gives no " << dpi << " dpi to a new process.";
  EXPECT_EQ(0u, result.exitCode) << Complaints(result.output);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogAudit,
                         testing::Combine(testing::ValuesIn(kLanguages), testing::Values(96, 144, 192)), ParameterName);

TEST(DialogAuditAcrossLanguages, PagesHaveTheSameControls) {
  const auto inventories = [](const Language& language) {
    const std::string test = std::string("Languages/DialogAudit.EveryPageIsSound/") + language.name + "96Dpi";
    return ReadInventories(RunInOwnProcess(language, 96, ToWide(test)).output);
  };
  const auto english = inventories(kEnglish);
  ASSERT_FALSE(english.empty());
  for (const Language& language : kLanguages) {
    if (&language == &kEnglish) continue;
    EXPECT_EQ(english, inventories(language)) << language.name;
  }
}
