#include "pages/CInfoPage.h"

#include <winspool.h>
// behind winspool.h
#include <gtest/gtest.h>

#include <optional>

#include "driver/CommonDialogs.h"
#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "driver/SelfProcess.h"
#include "driver/Text.h"
#include "support/ComponentFolder.h"
#include "support/ControlPictures.h"
#include "support/InstalledProduct.h"
#include "support/LinkAddress.h"
#include "support/PageUnderTest.h"
#include "support/RegistryValue.h"
#include "support/TempFile.h"
#include "support/TestPrinter.h"
#include "support/TracedThread.h"

namespace {

constexpr int kPage = kInfoPage;
constexpr int kLogo = 1111, kNotice = 1132, kVersions = 1183, kVideo = 1171;

constexpr wchar_t kDefaultFolder[] = L"C:\\NEMpdfVonderTrace";
constexpr wchar_t kDefaultFile[] = L"C:\\NEMpdfVonderTrace\\NEMpdfVonder.log";

using Lines = std::vector<std::wstring>;

class InfoPage : public testing::Test {
 protected:
  InfoPage() { test.Sheet().properties.MsgBoxTitle.SetString(L"Title"); }

  void Open() { ASSERT_TRUE(test.Open()); }
  std::wstring Text(int id) { return test.Control(id).Text(); }

  Popups popups;
  PageUnderTest test{kPage};
};

}  // namespace

// --- What it shows -------------------------------------------------------------------------------------------------

TEST_F(InfoPage, ShowsTheVersion) {
  Open();
  EXPECT_EQ(L"NEM pdf vonder:", Text(1087));
  EXPECT_EQ(L"2.10.4", Text(1038));
  ExpectPictures(test.Page(), {{kLogo, Pictures::kLogo}});
  EXPECT_EQ(157, Pictures::kLogo.bitmap);
  EXPECT_EQ(300, Pictures::kLogo.mask);
}

TEST_F(InfoPage, LinksLeadToTheMakersSite) {
  Open();
  EXPECT_EQ(L"https://www.nem-software.example/nem-pdf-vonder", LinkAddress(test.Control(1186)));
  EXPECT_EQ(LinkAddress(test.Control(1186)), Text(1186)) << "the address is the text";
  EXPECT_EQ(L"https://www.nem-software.example/faq", LinkAddress(test.Control(1168)));
  EXPECT_EQ(L"https://www.nem-software.example/forum", LinkAddress(test.Control(1169)));
  EXPECT_EQ(L"https://www.nem-software.example/newsletter", LinkAddress(test.Control(1170)));
  SetUILanguage(0x0407);
  test.Page().UpdateData(false);
  EXPECT_EQ(L"https://www.nem-software.example/de/nem-pdf-vonder", LinkAddress(test.Control(1186)));
  EXPECT_EQ(LinkAddress(test.Control(1186)), Text(1186)) << "in the language of the moment";
}

TEST_F(InfoPage, LinksHaveTheAddressesOfTheLanguage) {
  SetUILanguage(0x0407);
  Open();
  EXPECT_EQ(L"https://www.nem-software.example/de/faq", LinkAddress(test.Control(1168)));
  EXPECT_EQ(L"https://www.nem-software.example/de/video", LinkAddress(test.Control(kVideo)));
}

TEST_F(InfoPage, TheVideoIsForGermanAlone) {
  const std::pair<uint16_t, bool> languages[] = {{kEnglish, false}, {0x0407, true}, {0x0C07, false}, {0x040C, false}};
  for (const auto& [language, shown] : languages) {
    PageUnderTest page(kPage);
    SetUILanguage(language);
    ASSERT_TRUE(page.Open());
    EXPECT_EQ(shown, page.Control(kVideo).IsVisible()) << language;
    SetUILanguage(shown ? kEnglish : 0x0407);  // the language page may change it
    page.Page().UpdateData(false);
    if (!shown) {
      EXPECT_EQ(L"https://www.nem-software.example/de/video", LinkAddress(page.Control(kVideo)));
    }
    EXPECT_EQ(!shown, page.Control(kVideo).IsVisible()) << language;
  }
}

TEST_F(InfoPage, TouchesNoProperty) {
  Open();
  const auto before = test.AllValues();
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(PageUnderTest::Values{}, test.ChangesSince(before));
}

TEST_F(InfoPage, HasItsNumberAsHelpId) {
  Open();
  EXPECT_EQ(146u, GetWindowContextHelpId(test.Page().Handle()));
}

TEST_F(InfoPage, ButtonShowsTheVersions) {
  Open();
  popups.ExpectDialog([&](HWND dialog) {
    EXPECT_EQ(L"NEM pdf version info", WindowText(dialog));
    EXPECT_EQ(GetAncestor(test.Page().Handle(), GA_ROOT), GetWindow(dialog, GW_OWNER));
    DismissDialog(dialog);
  });
  test.Control(kVersions).Click();
}

// --- The printer's notice ------------------------------------------------------------------------------------------

namespace {

void SetNotice(const TestPrinter& printer, std::wstring text) {
  SetPrinterDataW(printer.Handle(), const_cast<wchar_t*>(L"NoticeText"), REG_SZ, reinterpret_cast<BYTE*>(text.data()),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

TEST_F(InfoPage, ShowsWhatThePrinterHasToSay) {
  const TestDriver driver;
  const TestPrinter printer(L"Alpha");
  SetNotice(printer, L"Licensed for\\nHouse A\\n\\nback \\slash \\");
  test.Sheet().properties.PrinterName.SetString(L"Alpha");
  TracedThread thread;
  Open();
  EXPECT_EQ(L"Licensed for\r\nHouse A\r\n\r\nback \\slash \\", Text(kNotice));
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(InfoPage, APrinterWithoutANoticeLeavesItsPlaceEmpty) {
  const TestDriver driver;
  const TestPrinter printer(L"Alpha");
  test.Sheet().properties.PrinterName.SetString(L"Alpha");
  TracedThread thread;
  Open();
  EXPECT_EQ(L"", Text(kNotice));
  EXPECT_EQ(Lines{L"GetPrinterRegData: GetPrinterData(NoticeText) not found"}, thread.Lines());
}

TEST_F(InfoPage, WithoutAPrinterThePageGoesOn) {
  for (const wchar_t* name : {L"", L"No such printer"}) {
    PageUnderTest page(kPage);
    page.Sheet().properties.PrinterName.SetString(name);
    TracedThread thread;
    ASSERT_TRUE(page.Open());
    EXPECT_EQ(Lines{L"NemUIInfoPage::OnInitDialog: Invalid printer handle 0"}, thread.Lines());
    EXPECT_EQ(0, thread.Error().trace->errorCount);
    EXPECT_EQ(L"", page.Control(kNotice).Text());
  }
}

// The spooler is bound at its first use: one of the test's needs a process of its own.
namespace {

int opened, closed;
const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);

BOOL WINAPI OpenAny(wchar_t*, HANDLE* printer, PRINTER_DEFAULTSW*) {
  ++opened;
  *printer = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(1234));
  return TRUE;
}
BOOL WINAPI CloseAny(HANDLE) {
  ++closed;
  return TRUE;
}
BOOL WINAPI GetNoPrinter(HANDLE, DWORD, BYTE*, DWORD, DWORD*) {
  SetLastError(ERROR_INVALID_HANDLE);
  return FALSE;
}
FARPROC WINAPI GetSpoolerProc(HMODULE module, const char* name) {
  if (reinterpret_cast<ULONG_PTR>(name) > 0xFFFF) {
    const std::string_view wanted(name);
    if (wanted == "OpenPrinterW") return reinterpret_cast<FARPROC>(&OpenAny);
    if (wanted == "ClosePrinter") return reinterpret_cast<FARPROC>(&CloseAny);
    if (wanted == "GetPrinterW") return reinterpret_cast<FARPROC>(&GetNoPrinter);
  }
  return realGetProcAddress(module, name);
}

}  // namespace

TEST_F(InfoPage, DISABLED_WithASpoolerWhosePrintersAreNotValid) {
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&GetSpoolerProc));
  for (const auto& [name, openings] : {std::pair{L"", 0}, {L"Alpha", 1}}) {
    PageUnderTest page(kPage);
    page.Sheet().properties.PrinterName.SetString(name);
    TracedThread thread;
    ASSERT_TRUE(page.Open());
    EXPECT_EQ(openings, opened) << "a printer without a name would be the computer";
    EXPECT_EQ(opened, closed);
    EXPECT_EQ(Lines{openings ? L"NemUIInfoPage::OnInitDialog: Invalid printer handle 1234"
                             : L"NemUIInfoPage::OnInitDialog: Invalid printer handle 0"},
              thread.Lines());
    EXPECT_EQ(L"", page.Control(kNotice).Text());
  }
}

TEST(InfoPageAlone, APrinterThatIsNotValidSaysNothing) {
  const ProcessResult result =
      RunSelf(L"--gtest_also_run_disabled_tests --gtest_filter=InfoPage.DISABLED_WithASpoolerWhosePrintersAreNotValid");
  EXPECT_EQ(0u, result.exitCode) << result.output;
  EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
}

// --- The switch for trace files ------------------------------------------------------------------------------------

namespace {

constexpr wchar_t kAskOn[] = L"Should the creation of trace files be activated?";
constexpr wchar_t kAskOff[] = L"Should the creation of trace files be deactivated?";
constexpr wchar_t kOff[] = L"The creation of trace files has been deactivated.";
constexpr wchar_t kNotRestarted[] =
    L"The printer queue could not be restarted. Please quit the program and restart the printer queue.";

std::wstring NowOn(const std::wstring& folder) {
  return L"The creation of trace files has been activated. They will be written to the folder \"" + folder +
         L"\".\r\n\r\nPlease proceed as follows:\r\n1. Please resstart the program from which you print.\r\n"
         L"2. Repeat the steps that lead to the problem.\r\n"
         L"3. Deactivate the creation of trace files by another click on the logo.\r\n"
         L"4. Send all files of the folder to the NEM support.\r\n\r\nThank you very much for your support!";
}

std::wstring NotChanged(const std::wstring& root) {
  return L"The registry entry \"" + root +
         L"\\Software\\NEM software GmbH\\NEM pdf vonder\\TraceFilename\" could not be modified. \r\nPlease verify, if "
         L"you're holding all appropriate security rights or log on as administrator!";
}

// Which roots a user may write to: the page asks the machine's first.
bool machineDenied, userDenied;
int attempts;
const auto realSetValue = RealFunction("advapi32.dll", "RegSetValueExW", &RegSetValueExW);
const auto realDeleteValue = RealFunction("advapi32.dll", "RegDeleteValueW", &RegDeleteValueW);

bool IsDenied() { return attempts++ == 0 ? machineDenied : userDenied; }

LSTATUS WINAPI SetWithRights(HKEY key, const wchar_t* name, DWORD reserved, DWORD type, const BYTE* data, DWORD size) {
  return IsDenied() ? ERROR_ACCESS_DENIED : realSetValue(key, name, reserved, type, data, size);
}
LSTATUS WINAPI DeleteWithRights(HKEY key, const wchar_t* name) {
  return IsDenied() ? ERROR_ACCESS_DENIED : realDeleteValue(key, name);
}
BOOL WINAPI CreateNoDirectory(const wchar_t*, SECURITY_ATTRIBUTES*) {
  SetLastError(ERROR_ACCESS_DENIED);
  return FALSE;
}

class TraceSwitch : public InfoPage {
 protected:
  TraceSwitch() { SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", record.Name()); }
  ~TraceSwitch() override {
    SetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", nullptr);
    RemoveDirectoryW(kDefaultFolder);
  }

  void SwitchOn() {
    machine.Set(kDefaultFile);
    user.Set(kDefaultFile);
  }
  void ExpectBox(const std::wstring& text, UINT icon, int button = IDOK) {
    popups.ExpectBox({.title = L"Title", .text = text, .icon = icon, .button = button});
  }
  void ExpectQuestion(const std::wstring& text, int button = IDYES) { ExpectBox(text, MB_ICONQUESTION, button); }
  void ExpectPicker(std::function<void(HWND)> drive) { popups.ExpectDialog(std::move(drive)); }
  void ClickLogo() { test.Control(kLogo).Click(); }

  // With the rights of a user who may write to these roots alone.
  void ClickLogoWithRights(bool forMachine, bool forUser) {
    machineDenied = !forMachine;
    userDenied = !forUser;
    attempts = 0;
    PatchImport("advapi32.dll", "RegSetValueExW", reinterpret_cast<void*>(&SetWithRights));
    PatchImport("advapi32.dll", "RegDeleteValueW", reinterpret_cast<void*>(&DeleteWithRights));
    ClickLogo();
    RestoreImport("advapi32.dll", "RegSetValueExW");
    RestoreImport("advapi32.dll", "RegDeleteValueW");
  }

  bool WasSpoolerRestarted() {
    return record.Exists() && record.Text().find(L" --RestartSpooler") != std::wstring::npos;
  }

  ProductValue machine{HKEY_LOCAL_MACHINE, L"TraceFilename"}, user{HKEY_CURRENT_USER, L"TraceFilename"};
  InstalledProduct product{ComponentFolder(L"admin")};
  TempFile record{"nempdf_info_record.txt"};
};

bool IsDirectory(const wchar_t* path) {
  const DWORD attributes = GetFileAttributesW(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

TEST_F(TraceSwitch, AsksFirstAndDoesNothingWithoutAYes) {
  Open();
  ExpectQuestion(kAskOn, IDNO);
  ClickLogo();
  EXPECT_EQ((std::vector<int>{IDYES, IDNO}), popups.Boxes()[0].buttons);
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(std::nullopt, user.Text());
  SwitchOn();
  ExpectQuestion(kAskOff, IDNO);
  ClickLogo();
  EXPECT_EQ(kDefaultFile, machine.Text());
  EXPECT_FALSE(record.Exists());
}

TEST_F(TraceSwitch, OnTakesTheFolderOfThePicker) {
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker([&](HWND dialog) {
    EXPECT_EQ(GetAncestor(test.Page().Handle(), GA_ROOT), GetWindow(dialog, GW_OWNER));
    bool titled = false;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      titled |= WindowText(child) ==
                L"You can choose a directory, that should be used to write the Trace-Files.\r\nCancel: "
                L"\"C:\\NEMpdfVonderTrace\" will be used.";
    EXPECT_TRUE(titled);
    ChooseFolder(dialog, L"C:\\windows\\temp");
  });
  std::wstring folder = L"C:\\windows\\temp";
  ExpectBox(NowOn(folder), MB_ICONINFORMATION);
  // Nothing is to be made of a folder that is there: on a network it would be made in the wrong place.
  PatchImport("kernel32.dll", "CreateDirectoryW", reinterpret_cast<void*>(&CreateNoDirectory));
  ClickLogo();
  RestoreImport("kernel32.dll", "CreateDirectoryW");
  EXPECT_EQ(folder + L"\\NEMpdfVonder.log", machine.Text());
  EXPECT_EQ(folder + L"\\NEMpdfVonder.log", user.Text());
  EXPECT_TRUE(WasSpoolerRestarted());
  EXPECT_FALSE(IsDirectory(kDefaultFolder));
}

TEST_F(TraceSwitch, OnTakesTheDefaultFolderWhenThePickerIsCancelled) {
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker(DismissDialog);
  ExpectBox(NowOn(kDefaultFolder), MB_ICONINFORMATION);
  ClickLogo();
  EXPECT_EQ(kDefaultFile, machine.Text());
  EXPECT_EQ(kDefaultFile, user.Text());
  EXPECT_TRUE(IsDirectory(kDefaultFolder));
  EXPECT_TRUE(WasSpoolerRestarted());
}

TEST_F(TraceSwitch, OffDeletesBothValues) {
  SwitchOn();
  Open();
  ExpectQuestion(kAskOff);
  ExpectBox(kOff, MB_ICONINFORMATION);
  ClickLogo();
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(std::nullopt, user.Text());
  EXPECT_TRUE(WasSpoolerRestarted());
  EXPECT_FALSE(IsDirectory(kDefaultFolder));
}

TEST_F(TraceSwitch, OneRootAloneIsEnoughToBeOn) {
  Open();
  for (ProductValue* root : {&user, &machine}) {
    root->Set(L"trace");  // without a folder
    ExpectQuestion(kAskOff);
    ExpectBox(kOff, MB_ICONINFORMATION);
    ClickLogo();
    EXPECT_EQ(std::nullopt, root->Text());
  }
}

TEST_F(TraceSwitch, AUserWithoutRightsOnTheMachineCanSwitchOnAndNotOff) {
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker(DismissDialog);
  ExpectBox(NowOn(kDefaultFolder), MB_ICONINFORMATION);
  ClickLogoWithRights(false, true);
  EXPECT_EQ(std::nullopt, machine.Text());
  EXPECT_EQ(kDefaultFile, user.Text());

  machine.Set(kDefaultFile);
  record.Delete();
  ExpectQuestion(kAskOff);
  ExpectBox(NotChanged(L"HKEY_LOCAL_MACHINE"), MB_ICONERROR);
  ClickLogoWithRights(false, true);
  EXPECT_EQ(kDefaultFile, machine.Text());
  EXPECT_FALSE(record.Exists()) << "that is where it ends";
}

TEST_F(TraceSwitch, TellsTheLastValueThatCouldNotBeWritten) {
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker(DismissDialog);
  ExpectBox(NotChanged(L"HKEY_CURRENT_USER"), MB_ICONERROR);
  ClickLogoWithRights(false, false);
  EXPECT_FALSE(record.Exists());
  EXPECT_FALSE(IsDirectory(kDefaultFolder));
}

TEST_F(TraceSwitch, AnyOtherFailureIsToldAndTheRestGoesOn) {
  product.Install(ComponentFolder(L"complete"));  // which has no tool for the administrator
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker(DismissDialog);
  ExpectBox(kNotRestarted, MB_ICONWARNING);
  ExpectBox(L"The folder \"\" could not be created.", MB_ICONWARNING);
  ExpectBox(NowOn(kDefaultFolder), MB_ICONINFORMATION);
  PatchImport("kernel32.dll", "CreateDirectoryW", reinterpret_cast<void*>(&CreateNoDirectory));
  ClickLogo();
  RestoreImport("kernel32.dll", "CreateDirectoryW");
  EXPECT_EQ(kDefaultFile, user.Text());
  ExpectQuestion(kAskOff);
  ExpectBox(kNotRestarted, MB_ICONWARNING);
  ExpectBox(kOff, MB_ICONINFORMATION);
  ClickLogo();
  EXPECT_EQ(std::nullopt, user.Text());
}

// While boxes go into a log, the question counts as answered with OK, which is no Yes.
TEST_F(TraceSwitch, AQuestionThatIsOnlyLoggedSwitchesNothing) {
  TempFile log("nempdf_info_boxes.log");
  ProductValue setting(HKEY_CURRENT_USER, L"LogMsgFile");
  setting.Set(log.Name());
  Open();
  ClickLogo();
  EXPECT_NE(std::wstring::npos, log.Text().find(kAskOn));
  EXPECT_EQ(std::nullopt, user.Text());
}

TEST_F(TraceSwitch, APageThatEndsMeanwhileSwitchesNothing) {
  Open();
  ExpectQuestion(kAskOn);
  ExpectPicker([this](HWND dialog) {
    test.Page().Destroy();
    DismissDialog(dialog);
  });
  ClickLogo();
  EXPECT_EQ(std::nullopt, user.Text());
  EXPECT_FALSE(record.Exists());
}
