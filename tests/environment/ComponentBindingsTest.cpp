// The bindings, on sibling libraries made for the tests (tests/components).
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "driver/ImportPatch.h"
#include "environment/NemEpdfDll.h"
#include "environment/NemPdfmDll.h"
#include "environment/NemPrintJob.h"
#include "environment/NemUpdateJob.h"
#include "environment/NemVdApiDll.h"
#include "support/ComponentFolder.h"
#include "support/CopiedFile.h"
#include "support/CurrentDirectory.h"

namespace {

constexpr wchar_t kPdf[] = L"NemPdf64.dll";
constexpr wchar_t kPrint[] = L"NemPrt64.dll";

// What the print component notes when the property "a" of its job is set to "b".
constexpr char kJobProperty[] = "NemPrJobSetProperty(job,a)\nNemPrJobSetProperty(a,b)\n";

// The calls that a component of the tests has noted, and forgets then.
std::string TakeCalls(HDllBase& component) {
  void* calls = nullptr;
  if (!component.GetProc(L"calls", calls)) return "no component";
  std::string result(static_cast<char*>(calls));
  *static_cast<char*>(calls) = '\0';
  return result;
}

template <class Binding>
std::string VersionText(const Binding& component) {
  CEString text("old");
  component.GetVersionText(text);
  return text.Text();
}

template <class Binding>
std::string Property(Binding& component, const char* name) {
  char buffer[64] = "";
  return component.GetProperty(name, buffer, sizeof buffer) ? buffer : "failed";
}

// The least that a component can be.
struct PlainDll : HDll {
  bool Load(int, const wchar_t* directory, const wchar_t* filename) override {
    return LoadFile(directory, filename, L"default.dll");
  }
};

int OpenJobs(HMODULE module) {
  return *reinterpret_cast<int*>(reinterpret_cast<void*>(GetProcAddress(module, "openJobs")));
}

}  // namespace

// --- HDllBase, HDll ----------------------------------------------------------------------------------------------

TEST(HDllBase, StartsUnloaded) {
  HDllBase dll;
  EXPECT_FALSE(dll.IsLoaded());
  EXPECT_EQ(nullptr, dll.GetModule());
  EXPECT_EQ(0u, dll.lastError);
  EXPECT_TRUE(dll.path.IsEmpty());
  EXPECT_TRUE(dll.FreeModule());
}

TEST(HDllBase, KeepsModuleAndFullPath) {
  const std::wstring file = ComponentFolder(L"complete") + L"NemEpdf64.dll";
  HDllBase dll;
  ASSERT_TRUE(dll.LoadLibrary(file.c_str()));
  EXPECT_EQ(GetModuleHandleW(L"NemEpdf64.dll"), dll.GetModule());
  EXPECT_EQ(0, lstrcmpiW(file.c_str(), dll.path.Text()));
  EXPECT_EQ(0u, dll.lastError);
}

TEST(HDllBase, StaysWithItsFile) {
  HDllBase dll;
  ASSERT_TRUE(dll.LoadLibrary((ComponentFolder(L"complete") + L"NemEpdf64.dll").c_str()));
  const HMODULE module = dll.GetModule();
  EXPECT_TRUE(dll.LoadLibrary(L"kernel32.dll"));
  EXPECT_EQ(module, dll.GetModule());
}

TEST(HDllBase, KeepsTheSystemsErrorOfAFailedLoad) {
  HDllBase dll;
  EXPECT_FALSE(dll.LoadLibrary(L"C:\\no such folder\\none.dll"));
  EXPECT_FALSE(dll.IsLoaded());
  EXPECT_TRUE(dll.lastError == ERROR_MOD_NOT_FOUND || dll.lastError == ERROR_PATH_NOT_FOUND) << dll.lastError;
}

// --- What a library needs in its turn ----------------------------------------------------------------------------

namespace {

constexpr wchar_t kNeeded[] = L"NemTestNeeded.dll";

std::wstring NeedingFile() { return ComponentFolder(L"needing") + kPdf; }

const auto realLoadLibrary = RealFunction("kernel32.dll", "LoadLibraryExW", &LoadLibraryExW);

// A system from before the flags that name folders.
HMODULE WINAPI LoadAsOldSystemsDo(const wchar_t* name, HANDLE file, DWORD flags) {
  if ((flags & LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR) == 0) return realLoadLibrary(name, file, flags);
  SetLastError(ERROR_INVALID_PARAMETER);
  return nullptr;
}

}  // namespace

TEST(HDllBase, FindsWhatAFileNeedsBesideIt) {
  HDllBase alone;
  EXPECT_FALSE(alone.LoadLibrary(NeedingFile().c_str()));
  const CopiedFile needed(ComponentFolder(L"needed") + kNeeded, ComponentFolder(L"needing") + kNeeded);
  HDllBase dll;
  EXPECT_TRUE(dll.LoadLibrary(NeedingFile().c_str())) << dll.lastError;
}

TEST(HDllBase, FindsItThereOnOldSystemsToo) {
  const CopiedFile needed(ComponentFolder(L"needed") + kNeeded, ComponentFolder(L"needing") + kNeeded);
  HDllBase dll;
  ASSERT_GT(PatchImport("kernel32.dll", "LoadLibraryExW", reinterpret_cast<void*>(&LoadAsOldSystemsDo)), 0);
  const bool loaded = dll.LoadLibrary(NeedingFile().c_str());
  RestoreImport("kernel32.dll", "LoadLibraryExW");
  EXPECT_TRUE(loaded) << dll.lastError;
}

TEST(HDllBase, TakesNothingThatAFileNeedsFromTheCurrentDirectory) {
  const CurrentDirectory there(ComponentFolder(L"needed"));
  HDllBase dll;
  EXPECT_FALSE(dll.LoadLibrary(NeedingFile().c_str()));
  EXPECT_EQ(static_cast<DWORD>(ERROR_MOD_NOT_FOUND), dll.lastError);
}

TEST(HDllBase, StoresNullForAMissingFunction) {
  HDllBase dll;
  ASSERT_TRUE(dll.LoadLibrary(L"kernel32.dll"));
  void* pointer = &dll;
  EXPECT_FALSE(dll.GetProc(L"NoSuchFunction", pointer));
  EXPECT_EQ(nullptr, pointer);
  EXPECT_EQ(static_cast<DWORD>(ERROR_PROC_NOT_FOUND), dll.lastError);
  EXPECT_TRUE(dll.GetProc(L"GetTickCount", pointer));
  EXPECT_EQ(reinterpret_cast<void*>(GetProcAddress(dll.GetModule(), "GetTickCount")), pointer);
}

TEST(HDllBase, FreesItsLibraryAtTheEnd) {
  {
    HDllBase dll;
    ASSERT_TRUE(dll.LoadLibrary((ComponentFolder(L"complete") + L"NemPdfVdApi64.dll").c_str()));
    EXPECT_NE(nullptr, GetModuleHandleW(L"NemPdfVdApi64.dll"));
  }
  EXPECT_EQ(nullptr, GetModuleHandleW(L"NemPdfVdApi64.dll"));
}

TEST(HDllBase, ClearsTheModuleEvenWhenFreeingFails) {
  HDllBase dll;
  dll.module = reinterpret_cast<HMODULE>(0x10000);
  EXPECT_FALSE(dll.FreeModule());
  EXPECT_FALSE(dll.IsLoaded());
  EXPECT_NE(0u, dll.lastError);
}

TEST(HDllBase, InitForgetsWithoutFreeing) {
  const HMODULE module = LoadLibraryW((ComponentFolder(L"complete") + L"NemPdfVdApi64.dll").c_str());
  {
    HDllBase dll;
    dll.module = module;
    dll.path = L"x";
    dll.lastError = 5;
    dll.Init();
    EXPECT_FALSE(dll.IsLoaded());
    EXPECT_TRUE(dll.path.IsEmpty());
    EXPECT_EQ(0u, dll.lastError);
  }
  EXPECT_TRUE(FreeLibrary(module));
}

TEST(HDll, HasNoNameAndNoVersion) {
  PlainDll dll;
  CEString text("old");
  dll.GetName(text);
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ("", VersionText(dll));
}

TEST(HDll, PutsNothingBetweenDirectoryAndFile) {
  const std::wstring folder = ComponentFolder(L"complete");
  NemPdfmDll withSeparator, without;
  EXPECT_TRUE(withSeparator.Load(1, folder.c_str(), kPdf));
  EXPECT_FALSE(without.Load(1, folder.substr(0, folder.size() - 1).c_str(), kPdf));
  EXPECT_FALSE(without.IsLoaded());
  EXPECT_NE(0u, without.lastError);
}

TEST(HDll, TakesItsUsualFileForNullOrEmpty) {
  const std::wstring folder = ComponentFolder(L"complete");
  for (const wchar_t* filename : {static_cast<const wchar_t*>(nullptr), L""}) {
    NemEpdfDll epdf;
    NemVdApiDll vdApi;
    EXPECT_TRUE(epdf.Load(1, folder.c_str(), filename));
    EXPECT_TRUE(vdApi.Load(1, folder.c_str(), filename));
    // The other two have the names of 32-bit files, which are not there.
    NemPdfmDll pdf;
    NemPrintDll print;
    EXPECT_FALSE(pdf.Load(1, folder.c_str(), filename));
    EXPECT_FALSE(print.Load(1, folder.c_str(), filename));
    EXPECT_FALSE(pdf.IsLoaded() || print.IsLoaded());
  }
}

TEST(HDll, HasTheUsual32BitFileNamesOfPdfAndPrint) {
  const std::wstring folder = ComponentFolder(L"complete"), own = ComponentFolder(L"renamed");
  CreateDirectoryW(own.c_str(), nullptr);
  for (const auto& [from, to] : {std::pair(kPdf, L"NemPdf32.dll"), std::pair(kPrint, L"NemPrt32.dll")})
    ASSERT_TRUE(CopyFileW((folder + from).c_str(), (own + to).c_str(), FALSE));
  {
    NemPdfmDll pdf;
    NemPrintDll print;
    EXPECT_TRUE(pdf.Load(1, own.c_str(), nullptr));
    EXPECT_TRUE(print.Load(1, own.c_str(), nullptr));
    ASSERT_TRUE(SetDllDirectoryW(own.c_str()));
    NemPrintJob job;
    EXPECT_TRUE(job.LoadDefault());
    EXPECT_NE(nullptr, job.jobHandle);
    SetDllDirectoryW(nullptr);
  }
  for (const wchar_t* file : {L"NemPdf32.dll", L"NemPrt32.dll"}) DeleteFileW((own + file).c_str());
  RemoveDirectoryW(own.c_str());
}

TEST(HDll, LeavesTheSearchToThePlatformWithoutADirectory) {
  for (const wchar_t* directory : {static_cast<const wchar_t*>(nullptr), L""}) {
    NemEpdfDll before;
    EXPECT_FALSE(before.Load(1, directory, nullptr));
    ASSERT_TRUE(SetDllDirectoryW(ComponentFolder(L"complete").c_str()));
    NemEpdfDll found;
    EXPECT_TRUE(found.Load(1, directory, nullptr));
    SetDllDirectoryW(nullptr);
  }
}

// --- All bindings ------------------------------------------------------------------------------------------------

template <class Binding>
void ExpectNames(const char* name, const char* shortName) {
  const Binding component;
  CEString text;
  component.GetName(text);
  EXPECT_STREQ(name, text.Text());
  component.GetShortName(text);
  EXPECT_STREQ(shortName, text.Text());
}

TEST(Bindings, HaveTheirNames) {
  ExpectNames<NemVdApiDll>("NEM Tiff vonder API", "NEM Pdf vonder API");
  ExpectNames<NemEpdfDll>("NEM pdf toolbox", "Epdf");
  ExpectNames<NemPdfmDll>("NEM pdf toolbox", "Pdftoolbox");
  ExpectNames<NemPrintDll>("NEM print", "Print");
}

template <class Binding>
void ExpectNothingBeforeLoad() {
  Binding component;
  char buffer[8] = "";
  uint32_t number = 0;
  EXPECT_EQ(0, component.SetProperty("a", "b"));
  EXPECT_EQ(0, component.GetProperty("a", buffer, sizeof buffer));
  EXPECT_EQ(0, component.GetLastError(&number));
  EXPECT_EQ(0, component.GetLastErrorText(buffer, sizeof buffer));
  EXPECT_EQ(0, component.GetErrorText(5, buffer, sizeof buffer));
  EXPECT_EQ(0, component.GetVersion(&number));
  EXPECT_EQ("n/a", VersionText(component));
}

TEST(Bindings, AnswerNothingBeforeTheyAreLoaded) {
  ExpectNothingBeforeLoad<NemVdApiDll>();
  ExpectNothingBeforeLoad<NemEpdfDll>();
  ExpectNothingBeforeLoad<NemPdfmDll>();
  ExpectNothingBeforeLoad<NemPrintDll>();
  ExpectNothingBeforeLoad<NemPrintJobDll>();
  ExpectNothingBeforeLoad<NemPrintJob>();
  NemPrintJob job;
  EXPECT_EQ(0, job.LoadJob("f") + job.SaveJob("f") + job.MailSendJob("f") + job.Print("f"));
}

TEST(Bindings, OnlyPrintHasAPropertyTable) {
  EXPECT_EQ(nullptr, NemVdApiDll().GetPropertyTable());
  EXPECT_EQ(nullptr, NemEpdfDll().GetPropertyTable());
  EXPECT_EQ(nullptr, NemPdfmDll().GetPropertyTable());
  EXPECT_EQ(kPrintPropertyTable, NemPrintDll().GetPropertyTable());
  EXPECT_EQ(kPrintPropertyTable, NemPrintJob().GetPropertyTable());
}

template <class Binding>
void ExpectPassesOn(Binding& component, const char* prefix) {
  char buffer[64] = "";
  uint32_t number = 0;
  EXPECT_EQ(1, component.SetProperty("name", "value"));
  EXPECT_EQ(std::string(prefix) + "SetProperty(name,value)\n", TakeCalls(component));
  EXPECT_EQ("asked", Property(component, "asked"));
  EXPECT_EQ(1, component.GetLastError(&number));
  EXPECT_EQ(5u, number);
  EXPECT_EQ(1, component.GetLastErrorText(buffer, sizeof buffer));
  EXPECT_STREQ("last", buffer);
  EXPECT_EQ(1, component.GetErrorText(5, buffer, sizeof buffer));
  EXPECT_STREQ("fifth", buffer);
  EXPECT_EQ(0, component.GetErrorText(6, buffer, sizeof buffer));
}

TEST(Bindings, PassArgumentsAndAnswersOn) {
  const std::wstring folder = ComponentFolder(L"complete");
  NemEpdfDll epdf;
  NemPdfmDll pdf;
  NemPrintDll print;
  ASSERT_TRUE(epdf.Load(1, folder.c_str(), nullptr));
  ASSERT_TRUE(pdf.Load(1, folder.c_str(), kPdf));
  ASSERT_TRUE(print.Load(1, folder.c_str(), kPrint));
  ExpectPassesOn(epdf, "NemEpdf");
  ExpectPassesOn(pdf, "NemPdf");
  ExpectPassesOn(print, "NemPr");
}

TEST(NemVdApiDll, PassesOnNothingButTheVersion) {
  NemVdApiDll vdApi;
  ASSERT_TRUE(vdApi.Load(1, ComponentFolder(L"complete").c_str(), nullptr));
  char buffer[8] = "";
  uint32_t code = 0;
  EXPECT_EQ("1.0.0", VersionText(vdApi));
  EXPECT_EQ(0, vdApi.SetProperty("a", "b"));
  EXPECT_EQ(0, vdApi.GetProperty("a", buffer, sizeof buffer));
  EXPECT_EQ(0, vdApi.GetLastError(&code));
  EXPECT_EQ(0, vdApi.GetLastErrorText(buffer, sizeof buffer));
  EXPECT_EQ(0, vdApi.GetErrorText(5, buffer, sizeof buffer));
  EXPECT_EQ("", TakeCalls(vdApi));
}

TEST(NemEpdfDll, CallsEachFunctionUnderItsName) {
  NemEpdfDll epdf;
  ASSERT_TRUE(epdf.Load(1, ComponentFolder(L"complete").c_str(), nullptr));
  EXPECT_EQ("3.5.12", VersionText(epdf));
  EXPECT_EQ(1, epdf.IsEPdf("f"));
  EXPECT_EQ(1, epdf.IsEncryptedPdf("g"));
  EXPECT_EQ("NemEpdfIsEPdf(f,)\nNemEpdfIsEncryptedPdf(g,)\n", TakeCalls(epdf));
  EXPECT_EQ(1, epdf.IsPasswordValid("f", "p"));
  EXPECT_EQ("NemEpdfIsPasswordValid(f,p)\n", TakeCalls(epdf));
  EXPECT_EQ(1, epdf.GetEPdf("f", "p", "t"));
  EXPECT_EQ("NemEpdfGetEPdf(f,p)\nNemEpdfGetEPdf(p,t)\n", TakeCalls(epdf));
  EXPECT_EQ(1, epdf.GetEmbeddedFile("f", "p", "t"));
  EXPECT_EQ("NemEpdfGetEmbeddedFile(f,p)\nNemEpdfGetEmbeddedFile(p,t)\n", TakeCalls(epdf));
  for (const auto& [size, info] : {std::pair{64, "info"}, {3, "in"}}) {
    char buffer[64] = "", settings[64] = "";
    EXPECT_EQ(1, epdf.GetEPdfInfo("f", "p", buffer, size));
    EXPECT_STREQ(info, buffer);
    EXPECT_EQ(1, epdf.GetEPdfSettings("f", "p", settings, size));
    EXPECT_STREQ(info, settings);
    EXPECT_EQ("NemEpdfGetEPdfInfo(f,p)\nNemEpdfGetEPdfSettings(f,p)\n", TakeCalls(epdf));
  }
}

// --- Look-ups ----------------------------------------------------------------------------------------------------

namespace {

using Names = std::vector<std::string>;

const auto realGetProcAddress = RealFunction("kernel32.dll", "GetProcAddress", &GetProcAddress);

Names lookedUp;
size_t missing;  // the look-up that fails, from 0

FARPROC WINAPI NoteLookUp(HMODULE module, const char* name) {
  // Taking the patch back looks something up too.
  if (reinterpret_cast<ULONG_PTR>(name) <= 0xFFFF || !std::string_view(name).starts_with("Nem"))
    return realGetProcAddress(module, name);
  lookedUp.emplace_back(name);
  if (lookedUp.size() <= missing) return realGetProcAddress(module, name);
  SetLastError(ERROR_PROC_NOT_FOUND);
  return nullptr;
}

template <class Binding>
bool LoadNoted(Binding& component, int mode, const wchar_t* folder, const wchar_t* filename, size_t missingName) {
  lookedUp.clear();
  missing = missingName;
  PatchImport("kernel32.dll", "GetProcAddress", reinterpret_cast<void*>(&NoteLookUp));
  const bool loaded = component.Load(mode, ComponentFolder(folder).c_str(), filename);
  RestoreImport("kernel32.dll", "GetProcAddress");
  return loaded;
}

// The names are looked up in this order, and each of them is needed. A second load changes nothing about that.
template <class Binding>
void ExpectLookUps(int mode, const wchar_t* folder, const wchar_t* filename, const Names& names) {
  for (size_t missingName = 0; missingName < names.size(); ++missingName) {
    Binding component;
    EXPECT_FALSE(LoadNoted(component, mode, folder, filename, missingName)) << names[missingName];
    EXPECT_EQ(Names(names.begin(), names.begin() + static_cast<int>(missingName) + 1), lookedUp);
    EXPECT_TRUE(component.IsLoaded()) << names[missingName];
    EXPECT_EQ(static_cast<DWORD>(ERROR_PROC_NOT_FOUND), component.lastError) << names[missingName];
    EXPECT_TRUE(LoadNoted(component, mode, folder, filename, missingName)) << "is loaded already";
    EXPECT_EQ(Names{}, lookedUp) << names[missingName];
  }
  Binding component;
  EXPECT_TRUE(LoadNoted(component, mode, folder, filename, names.size()));
  EXPECT_EQ(names, lookedUp);
}

Names Joined(const Names& first, const Names& second) {
  Names joined = first;
  joined.insert(joined.end(), second.begin(), second.end());
  return joined;
}

}  // namespace

TEST(LookUps, OfTheJobInterface) {
  ExpectLookUps<NemVdApiDll>(
      1, L"complete", nullptr,
      {"NemPdfVdAPIGetVersion", "NemPdfVdJobSetPropertyA", "NemPdfVdJobSetPropertyW", "NemPdfVdJobGetPropertyA",
       "NemPdfVdJobGetPropertyW", "NemPdfVdJobGetError", "NemPdfVdJobGetErrorTextA", "NemPdfVdJobCreate",
       "NemPdfVdJobFree", "NemPdfVdJobStart", "NemPdfVdJobPrint", "NemPdfVdJobWaitFor",
       "NemPdfVdJobInitDevModeProperty", "NemPdfVdJobShowDevModeProperty", "NemPdfVdJobSaveDevModeProperty"});
}

TEST(LookUps, OfTheUpdater) {
  ExpectLookUps<NemUpdateJob>(
      1, L"newer", nullptr,
      {"NemUpdatorJobCreate", "NemUpdatorJobFree", "NemUpdatorJobGetPropertyW", "NemUpdatorJobSetPropertyW",
       "NemUpdatorJobGetLastErrorTextW", "NemUpdatorJobSearchForUpdate", "NemUpdatorJobDownloadUpdate"});
}

TEST(LookUps, OfEnhancedPdf) {
  ExpectLookUps<NemEpdfDll>(
      1, L"complete", nullptr,
      {"NemEpdfGetErrorText", "NemEpdfGetVersion", "NemEpdfSetProperty", "NemEpdfGetProperty", "NemEpdfGetLastError",
       "NemEpdfGetLastErrorText", "NemEpdfIsEPdf", "NemEpdfIsEncryptedPdf", "NemEpdfIsPasswordValid", "NemEpdfGetEPdf",
       "NemEpdfGetEmbeddedFile", "NemEpdfGetEPdfInfo", "NemEpdfGetEPdfSettings"});
}

TEST(LookUps, OfThePdfTool) {
  ExpectLookUps<NemPdfmDll>(1, L"complete", kPdf,
                            {"NemPdfGetErrorText", "NemPdfGetVersion", "NemPdfSetProperty", "NemPdfGetProperty",
                             "NemPdfGetLastError", "NemPdfGetLastErrorText", "NemPdfMerge", "NemPdfJoin"});
}

TEST(LookUps, OfPrintByModeAndVersion) {
  const Names common = {"NemPrSetProperty", "NemPrGetProperty", "NemPrGetLastError", "NemPrGetLastErrorText",
                        "NemPrGetErrorText"};
  const Names dialogs = {"NemPrShowPrintDialog", "NemPrShowPrintSetupDialog"};
  const Names behind = Joined(Joined(dialogs, common), {"NemMailSend"});
  const Names usual = Joined({"NemPrGetVersion", "NemPrLoad", "NemPrSave", "NemPrPrint"}, behind);
  const Names job = {"NemPrJobCreate",      "NemPrJobFree",     "NemPrJobLoad",         "NemPrJobSave",
                     "NemPrJobPrint",       "NemPrJobConvert",  "NemPrJobMailSend",     "NemPrJobSetProperty",
                     "NemPrJobGetProperty", "NemPrJobGetError", "NemPrJobGetErrorText", "NemPrGetVersionText"};
  ExpectLookUps<NemPrintDll>(1, L"complete", kPrint, usual);
  const Names second = {"NemPrGetVersion", "NemPrLoad2", "NemPrSave2", "NemPrPrint2"};
  ExpectLookUps<NemPrintDll>(2, L"complete", kPrint, Joined(second, behind));
  ExpectLookUps<NemPrintDll>(2, L"minor0second", kPrint, Joined(Joined(second, {"NemPrShowPrintDialog"}), common));
  ExpectLookUps<NemPrintDll>(1, L"minor0", kPrint,
                             Joined({"NemPrGetVersion", "NemPrPrint", "NemPrShowPrintDialog"}, common));
  ExpectLookUps<NemPrintJobDll>(1, L"complete", kPrint, Joined(usual, job));
  ExpectLookUps<NemPrintJob>(1, L"complete", kPrint, Joined(usual, job));
}

// --- PDF ---------------------------------------------------------------------------------------------------------

TEST(NemPdfmDll, CallsEachFunctionUnderItsName) {
  NemPdfmDll pdf;
  ASSERT_TRUE(pdf.Load(1, ComponentFolder(L"complete").c_str(), kPdf));
  EXPECT_EQ("2.10.4", VersionText(pdf));
  EXPECT_EQ(1, pdf.Merge("a", "b", "c"));
  EXPECT_EQ("NemPdfMerge(a,b)\nNemPdfMerge(b,c)\n", TakeCalls(pdf));
  EXPECT_EQ(1, pdf.Join("a", "b", "c"));
  EXPECT_EQ("NemPdfJoin(a,b)\nNemPdfJoin(b,c)\n", TakeCalls(pdf));
}

TEST(NemPdfmDll, KeepsWhatItFoundInFrontOfAMissingExport) {
  NemPdfmDll pdf;
  const std::wstring folder = ComponentFolder(L"lacking");
  EXPECT_FALSE(pdf.Load(1, folder.c_str(), kPdf));
  EXPECT_TRUE(pdf.IsLoaded());
  EXPECT_EQ(static_cast<DWORD>(ERROR_PROC_NOT_FOUND), pdf.lastError);
  char buffer[64] = "";
  EXPECT_EQ(1, pdf.GetErrorText(5, buffer, sizeof buffer));
  EXPECT_STREQ("fifth", buffer);
  EXPECT_EQ("2.10.4", VersionText(pdf));
  EXPECT_EQ(0, pdf.SetProperty("a", "b"));
  EXPECT_EQ(0, pdf.Merge("a", "b", "c")) << "stands behind the missing one";
  EXPECT_TRUE(pdf.Load(1, folder.c_str(), kPdf)) << "is loaded already";
}

TEST(NemPdfmDll, HasNoVersionWhenTheComponentTellsNone) {
  NemPdfmDll pdf;
  ASSERT_TRUE(pdf.Load(1, ComponentFolder(L"silent").c_str(), kPdf));
  EXPECT_EQ("n/a", VersionText(pdf));
}

// --- Print -------------------------------------------------------------------------------------------------------

namespace {

std::string PrintCalls(NemPrintDll& print) {
  print.LoadSettings("l");
  print.SaveSettings("s");
  print.Print("p");
  return TakeCalls(print);
}

}  // namespace

TEST(NemPrintDll, BindsTheSecondFormInMode2Only) {
  const std::wstring folder = ComponentFolder(L"complete");
  for (const int mode : {0, 1, 2, 3}) {
    NemPrintDll print;
    ASSERT_TRUE(print.Load(mode, folder.c_str(), kPrint));
    EXPECT_EQ(0x2100004u, print.version);
    const std::string calls = PrintCalls(print);
    EXPECT_NE(std::string::npos, calls.find(mode == 2 ? "NemPrLoad2(l,)" : "NemPrLoad(l,)"));
    EXPECT_NE(std::string::npos, calls.find(mode == 2 ? "NemPrSave2(s,)" : "NemPrSave(s,)"));
    EXPECT_NE(std::string::npos, calls.find(mode == 2 ? "NemPrPrint2(p,)" : "NemPrPrint(p,)"));
  }
}

TEST(NemPrintDll, CallsDialogsAndMail) {
  NemPrintDll print;
  ASSERT_TRUE(print.Load(1, ComponentFolder(L"complete").c_str(), kPrint));
  EXPECT_EQ(1, print.ShowPrintDialog(GetDesktopWindow()));
  EXPECT_EQ(1, print.ShowPrintSetupDialog(nullptr));
  EXPECT_EQ("NemPrShowPrintDialog(owner,)\nNemPrShowPrintSetupDialog(,)\n", TakeCalls(print));
  EXPECT_EQ(1, print.MailSend("m"));
  EXPECT_EQ("NemMailSend(m,)\n", TakeCalls(print));
}

TEST(NemPrintDll, Minor0NeedsNeitherFilesNorSetUpNorMail) {
  const std::wstring folder = ComponentFolder(L"minor0");
  NemPrintDll print;
  ASSERT_TRUE(print.Load(1, folder.c_str(), kPrint));
  EXPECT_EQ(0x2000004u, print.version);
  EXPECT_EQ("2.0.4", VersionText(print));
  EXPECT_EQ(0, print.LoadSettings("l"));
  EXPECT_EQ(0, print.SaveSettings("s"));
  EXPECT_EQ(0, print.ShowPrintSetupDialog(nullptr));
  EXPECT_EQ(0, print.MailSend("m"));
  EXPECT_EQ(1, print.Print("p"));
  EXPECT_EQ(1, print.ShowPrintDialog(nullptr));
  EXPECT_EQ(1, print.SetProperty("a", "b")) << "stands behind the ones left out";

  NemPrintDll second;
  EXPECT_FALSE(second.Load(2, folder.c_str(), kPrint)) << "the second form is needed in any version";
}

TEST(NemPrintJobDll, RoutesPropertiesToTheJobIfThereIsOne) {
  NemPrintJobDll print;
  ASSERT_TRUE(print.Load(1, ComponentFolder(L"complete").c_str(), kPrint));
  EXPECT_EQ(nullptr, print.jobHandle);
  ExpectPassesOn(print, "NemPr");

  ASSERT_EQ(1, print.JobCreate(&print.jobHandle));
  EXPECT_EQ("of the job", Property(print, "asked"));
  EXPECT_EQ(1, print.SetProperty("a", "b"));
  EXPECT_EQ(kJobProperty, TakeCalls(print));
  uint32_t code = 0;
  char buffer[64] = "";
  EXPECT_EQ(1, print.GetLastError(&code));
  EXPECT_EQ(77u, code);
  EXPECT_EQ(1, print.GetLastErrorText(buffer, sizeof buffer));
  EXPECT_STREQ("error of the job", buffer);
  EXPECT_EQ(1, print.GetErrorText(5, buffer, sizeof buffer));
  EXPECT_STREQ("fifth", buffer) << "belongs to the component";
  EXPECT_EQ(1, print.JobFree(&print.jobHandle));
}

TEST(NemPrintJobDll, CallsEachFunctionUnderItsName) {
  NemPrintJobDll print;
  ASSERT_TRUE(print.Load(1, ComponentFolder(L"complete").c_str(), kPrint));
  NemPrintJobDllInterface& face = print;
  EXPECT_TRUE(face.IsLoaded());
  NemPrintJobDllInterface::JobHandle job = nullptr;
  ASSERT_EQ(1, face.JobCreate(&job));
  face.JobLoad(job, "1");
  face.JobSave(job, "2");
  face.JobPrint(job, "3");
  face.JobConvert(job, "4");
  print.JobMailSend(job, "5");
  EXPECT_EQ(
      "NemPrJobLoad(job,1)\nNemPrJobSave(job,2)\nNemPrJobPrint(job,3)\nNemPrJobConvert(job,4)\n"
      "NemPrJobMailSend(job,5)\n",
      TakeCalls(print));
  char buffer[64] = "";
  EXPECT_EQ(1, face.GetVersionTextRaw(buffer, sizeof buffer));
  EXPECT_STREQ("2.10.4 raw", buffer);
  uint32_t version = 0;
  EXPECT_EQ(1, face.GetVersionValue(&version));
  EXPECT_EQ(0x2100004u, version);
  EXPECT_EQ(1, face.JobFree(&job));
}

TEST(NemPrintJob, OwnsItsJob) {
  HDllBase keep;
  const std::wstring folder = ComponentFolder(L"complete");
  ASSERT_TRUE(keep.LoadLibrary((folder + kPrint).c_str()));
  {
    NemPrintJob job;
    ASSERT_TRUE(job.Load(1, folder.c_str(), kPrint));
    EXPECT_NE(nullptr, job.jobHandle);
    EXPECT_EQ(1, OpenJobs(keep.GetModule()));
    EXPECT_TRUE(job.Load(1, folder.c_str(), kPrint));
    EXPECT_EQ(1, OpenJobs(keep.GetModule())) << "a second load makes no second job";
    EXPECT_EQ("of the job", Property(job, "asked"));
    TakeCalls(keep);
    EXPECT_EQ(1, job.LoadJob("1"));
    EXPECT_EQ(1, job.SaveJob("2"));
    EXPECT_EQ(1, job.MailSendJob("3"));
    EXPECT_EQ("NemPrJobLoad(job,1)\nNemPrJobSave(job,2)\nNemPrJobMailSend(job,3)\n", TakeCalls(keep));
    EXPECT_EQ(1, job.SetProperty("a", "b"));
    EXPECT_EQ(kJobProperty, TakeCalls(keep));
  }
  EXPECT_EQ(0, OpenJobs(keep.GetModule()));
  keep.FreeModule();
  EXPECT_EQ(nullptr, GetModuleHandleW(kPrint)) << "the job's library was freed too";
}

TEST(NemPrintJob, HasNoPropertiesWithoutAJob) {
  for (const wchar_t* folder : {L"createfails", L"nohandle"}) {
    NemPrintJob job;
    EXPECT_FALSE(job.Load(1, ComponentFolder(folder).c_str(), kPrint));
    EXPECT_TRUE(job.IsLoaded());
    EXPECT_EQ(nullptr, job.jobHandle);
    EXPECT_EQ(0u, job.lastError);
    EXPECT_EQ("failed", Property(job, "asked"));
    EXPECT_EQ(0, job.SetProperty("a", "b"));
    EXPECT_EQ(0, job.LoadJob("f"));
    EXPECT_EQ(0, job.SaveJob("f"));
    EXPECT_EQ(0, job.MailSendJob("f"));
    EXPECT_EQ("", TakeCalls(job));
    uint32_t code = 0;
    EXPECT_EQ(1, job.GetLastError(&code)) << "the component's own";
    EXPECT_EQ(5u, code);
    EXPECT_EQ("2.10.4", VersionText(job));
  }
}

// --- FormatComponentError ----------------------------------------------------------------------------------------

namespace {

std::string FormattedError(TavexDll& component, uint32_t* code, uint32_t base) {
  std::string result;
  const auto keep = [](const char* text, void* userData) { *static_cast<std::string*>(userData) += text; };
  EXPECT_EQ(0, component.FormatComponentError(code, keep, &result, base));
  return result;
}

}  // namespace

TEST(FormatComponentError, TellsTheSystemsErrorFirst) {
  NemPdfmDll pdf;
  ASSERT_TRUE(pdf.Load(1, ComponentFolder(L"complete").c_str(), kPdf));
  pdf.lastError = 126;
  uint32_t code = 99;
  EXPECT_EQ("Systemfehler 126.\n", FormattedError(pdf, &code, 1000));
  EXPECT_EQ(99u, code);
}

TEST(FormatComponentError, AsksTheComponentOtherwise) {
  NemPdfmDll pdf;
  ASSERT_TRUE(pdf.Load(1, ComponentFolder(L"complete").c_str(), kPdf));
  uint32_t code = 99;
  EXPECT_EQ(" 5: fifth\n", FormattedError(pdf, &code, 0));
  EXPECT_EQ(5u, code);
  EXPECT_EQ("Unbekannter Fehler 1005.\n", FormattedError(pdf, &code, 1000));
  EXPECT_EQ(1005u, code);
  EXPECT_EQ(" 5: fifth\n", FormattedError(pdf, nullptr, 0));
  EXPECT_EQ(0, pdf.FormatComponentError(&code, nullptr, nullptr, 0));
}

TEST(FormatComponentError, TakesATextOf256Bytes) {
  struct Talkative : NemPdfmDll {
    int GetLastError(uint32_t* code) override {
      *code = 5;
      return 1;
    }
    int GetErrorText(uint32_t, char* buffer, int size) override {
      room = size;
      std::fill_n(buffer, size, 'x');  // without a terminator
      return 1;
    }
    int room = 0;
  } component;
  uint32_t code = 0;
  EXPECT_EQ(" 5: " + std::string(255, 'x') + "\n", FormattedError(component, &code, 0));
  EXPECT_EQ(256, component.room);
}

TEST(FormatComponentError, KnowsWhenNothingIsKnown) {
  NemPdfmDll pdf;
  uint32_t code = 99;
  EXPECT_EQ("Unbekannter Fehler. Fehlernummer unbekannt.\n", FormattedError(pdf, &code, 1000));
  EXPECT_EQ(99u, code);
}
