// The exported functions from inside: what they do to the calling thread's error state and trace.
#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "driver/ImportPatch.h"
#include "driver/Popups.h"
#include "DriverLIB/CError.h"
#include "DriverLIB/ModuleState.h"
#include "NemPdfUI.h"
#include "support/FailingMalloc.h"
#include "support/FailingNew.h"
#include "support/RegistryValue.h"
#include "support/TracedThread.h"
#include "ui/PropertyAccess.h"

namespace {

// Runs `body` on a thread that the library has not seen, and takes the thread's state back afterwards.
void OnFreshThread(std::function<void()> body) {
  const HANDLE thread = CreateThread(
      nullptr, 0,
      [](void* parameter) -> DWORD {
        (*static_cast<std::function<void()>*>(parameter))();
        FreeThreadState();
        return 0;
      },
      &body, 0, nullptr);
  ASSERT_NE(nullptr, thread);
  EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(thread, 60'000));
  CloseHandle(thread);
}

BOOL WINAPI NoValue(DWORD, void*) { return FALSE; }

class NemUI : public testing::Test {
 protected:
  NemUI() { NemPdfUICreateDialog(&handle_); }
  ~NemUI() override { NemPdfUIFreeDialog(&handle_); }

  CDialogProperties& Dialog() { return *DialogFromHandle(handle_); }

  NemPdfUIHandle handle_ = nullptr;
};

TEST_F(NemUI, EveryExportTakesUpItsThread) {
  const std::function<void()> exports[] = {
      [] { NemPdfUICreateDialog(nullptr); },
      [] { NemPdfUIFreeDialog(nullptr); },
      [] { NemPdfUIDoModal(nullptr); },
      [] { NemPdfUISetPropertyA(nullptr, 0, nullptr, nullptr); },
      [] { NemPdfUISetPropertyW(nullptr, 0, nullptr, nullptr); },
      [] { NemPdfUIGetPropertyA(nullptr, 0, nullptr, nullptr, 0); },
      [] { NemPdfUIGetPropertyW(nullptr, 0, nullptr, nullptr, 0); },
      [] { NemPdfUIGetVersion(nullptr); },
      [] {
        Popups popups;
        popups.ExpectDialog(DismissDialog);
        NemPdfUIShowVersion();
      },
  };
  for (const auto& call : exports)
    OnFreshThread([&call] {
      EXPECT_EQ(nullptr, CurrentError());
      call();
      EXPECT_NE(nullptr, CurrentError());
    });
}

// Each call would give something else than 0, or change something, if the thread could come in.
TEST_F(NemUI, AThreadThatCannotBeTakenUpGetsZero) {
  const auto untouched = reinterpret_cast<NemPdfUIHandle>(uintptr_t{0x10});
  const NemPdfUIHandle handle = handle_;
  NemPdfUIHandle created = untouched;
  uint32_t version = 77;
  int32_t number = 77;
  const struct {
    const char* name;
    std::function<int()> call;
  } rows[] = {
      {"CreateDialog", [&] { return NemPdfUICreateDialog(&created); }},
      {"FreeDialog", [&] { return NemPdfUIFreeDialog(&handle_); }},
      {"DoModal", [] { return NemPdfUIDoModal(nullptr); }},
      {"SetPropertyA", [] { return NemPdfUISetPropertyA(nullptr, 0, "Scale", nullptr); }},
      {"SetPropertyW", [] { return NemPdfUISetPropertyW(nullptr, 0, L"Scale", nullptr); }},
      {"GetPropertyA", [&] { return NemPdfUIGetPropertyA(handle_, 0, "Scale", &number, 4); }},
      {"GetPropertyW", [&] { return NemPdfUIGetPropertyW(handle_, 0, L"Scale", &number, 4); }},
      {"GetVersion", [&] { return NemPdfUIGetVersion(&version); }},
      {"ShowVersion", [] { return NemPdfUIShowVersion(); }},
  };
  for (const auto& row : rows) {
    int result = -7;
    OnFreshThread([&] {
      PatchImport("kernel32.dll", "TlsSetValue", reinterpret_cast<void*>(NoValue));
      result = row.call();
      RestoreImport("kernel32.dll", "TlsSetValue");
      EXPECT_EQ(nullptr, CurrentError()) << row.name;
    });
    EXPECT_EQ(0, result) << row.name;
  }
  EXPECT_EQ(untouched, created);
  EXPECT_EQ(handle, handle_);
  EXPECT_EQ(77, number);
  EXPECT_EQ(77u, version);
}

TEST_F(NemUI, WithoutMemoryForTheObjectANullHandleIsASuccess) {
  auto created = reinterpret_cast<NemPdfUIHandle>(uintptr_t{0x10});
  const FailingNew exhausted;
  EXPECT_EQ(1, NemPdfUICreateDialog(&created));
  EXPECT_EQ(nullptr, created);
}

// The first grant is the object's own memory; what its constructor asks for is refused at each place in turn.
TEST_F(NemUI, WithoutMemoryInTheConstructorTheExceptionPassesOnAndTheHandleIsNull) {
  int failures = 0;
  for (int granted = 1; failures == granted - 1; ++granted) {
    auto created = reinterpret_cast<NemPdfUIHandle>(uintptr_t{0x10});
    int result = 0, left = 0;
    {
      const FailingMalloc exhausted(granted);
      try {
        result = NemPdfUICreateDialog(&created);
      } catch (const std::bad_alloc&) {
        ++failures;
      }
      left = exhausted.BlocksLeft();
    }
    if (result == 1) {
      EXPECT_EQ(1, NemPdfUIFreeDialog(&created));
      continue;
    }
    EXPECT_EQ(nullptr, created) << granted;
    EXPECT_EQ(0, left) << granted << ": what was granted is given back";
  }
  EXPECT_LT(250, failures) << "every property has asked for memory";
}

TEST_F(NemUI, VersionWithoutAPlaceLeavesItsErrorPending) {
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  EXPECT_EQ(29u, CurrentError()->code);
  uint32_t version = 0;
  EXPECT_EQ(1, NemPdfUIGetVersion(&version));  // asks for no clean state
  EXPECT_EQ(0x2100004u, version);
  EXPECT_EQ(29u, CurrentError()->code);
  const int32_t value = 5;
  EXPECT_EQ(0, NemPdfUISetPropertyW(handle_, 0, L"Scale", &value));  // answers for it
  EXPECT_EQ(0u, CurrentError()->code);
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 0, L"Scale", &value));
}

TEST_F(NemUI, FailuresKeepTheirCode) {
  const int32_t value = 5;
  int32_t read = 0;
  wchar_t text[4];
  EXPECT_EQ(0, NemPdfUISetPropertyA(handle_, 5, "Scale", &value));
  EXPECT_EQ(99u, CurrentError()->lastCode);
  EXPECT_EQ(0, NemPdfUISetPropertyW(handle_, 0, L"PrinterName", L"x"));
  EXPECT_EQ(99u, CurrentError()->lastCode);
  EXPECT_EQ(0, NemPdfUIGetPropertyW(handle_, 0, L"Scale", &read, 3));
  EXPECT_EQ(47u, CurrentError()->lastCode);
  EXPECT_EQ(1, NemPdfUISetPropertyA(handle_, 0, "Title", "abc"));
  EXPECT_EQ(0, NemPdfUIGetPropertyA(handle_, 0, "Title", text, 4));
  EXPECT_EQ(47u, CurrentError()->lastCode);
  EXPECT_EQ(0, NemPdfUIGetPropertyA(handle_, 0, "Title", nullptr, 4));
  EXPECT_EQ(29u, CurrentError()->lastCode);
}

TEST_F(NemUI, BadHandlesRecordNoErrorWhenSetting) {
  ResetError(CurrentError());
  EXPECT_EQ(2, NemPdfUISetPropertyW(nullptr, 0, L"Scale", nullptr));
  EXPECT_EQ(-1, NemPdfUIDoModal(nullptr));
  EXPECT_EQ(0u, CurrentError()->code);
  EXPECT_EQ(0u, CurrentError()->lastCode);
}

TEST_F(NemUI, AnObjectWhoseSheetIsShownIsNotFreed) {
  const NemPdfUIHandle handle = handle_;
  Dialog().running = true;
  EXPECT_EQ(0, NemPdfUIFreeDialog(&handle_));
  EXPECT_EQ(handle, handle_);
  Dialog().running = false;
  EXPECT_EQ(1, NemPdfUIFreeDialog(&handle_));
}

TEST_F(NemUI, TheAnsiFormConvertsWithTheCodePageOfTheProcess) {
  const char source[] = "\xE4\xF6\xFC \x80";
  wchar_t expected[16] = {};
  MultiByteToWideChar(CP_ACP, 0, source, -1, expected, 16);
  EXPECT_EQ(1, NemPdfUISetPropertyA(handle_, 0, "Title", source));
  wchar_t read[16] = {};
  EXPECT_EQ(1, NemPdfUIGetPropertyA(handle_, 0, "Title", read, 16));
  EXPECT_STREQ(expected, read);
}

// --- With a trace ------------------------------------------------------------------------------------------------

TEST_F(NemUI, EachErrorIsTracedWithItsPlace) {
  TracedThread thread;
  CPropertySet set;
  CLongProperty number(L"Number", set), hiddenNumber(L"HiddenNumber", set, 0, 0);
  CStringProperty text(L"Text", set), hiddenText(L"HiddenText", set, nullptr, 0);
  wchar_t buffer[8];
  const struct {
    std::function<int()> call;
    const wchar_t* line;
  } rows[] = {
      {[] { return NemPdfUIGetVersion(nullptr); }, L"Error: Setze Fehler 29 in ..\\NemUI(282)"},
      {[&] { return NemPdfUISetPropertyW(handle_, 0, L"No", nullptr); },
       L"Error: Setze Fehler 99(No) in ..\\NemUI(207)"},
      {[&] { return NemPdfUIGetPropertyW(handle_, 0, nullptr, buffer, 8); },
       L"Error: Setze Fehler 29 in ..\\NemUI(220)"},
      {[&] { return NemPdfUIGetPropertyW(handle_, 0, L"No", buffer, 8); },
       L"Error: Setze Fehler 99(No) in ..\\NemUI(275)"},
      {[&] { return hiddenText.GetValue(buffer, 8); }, L"Error: Setze Fehler 2 in ..\\Property(430)"},
      {[&] { return text.GetValue(buffer, 1); }, L"Error: Setze Fehler 47 in ..\\Property(434)"},
      {[&] { return text.GetValue(nullptr, 8); }, L"Error: Setze Fehler 29 in ..\\Property(455)"},
      {[&] { return hiddenText.SetValue(nullptr); }, L"Error: Setze Fehler 3 in ..\\Property(469)"},
      {[&] { return hiddenNumber.GetValue(buffer, 4); }, L"Error: Setze Fehler 2 in ..\\Property(713)"},
      {[&] { return number.GetValue(buffer, 3); }, L"Error: Setze Fehler 47 in ..\\Property(716)"},
      {[&] { return number.GetValue(nullptr, 4); }, L"Error: Setze Fehler 29 in ..\\Property(723)"},
      {[&] { return hiddenNumber.SetValue(nullptr); }, L"Error: Setze Fehler 3 in ..\\Property(743)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(0, row.call());
    const std::vector<std::wstring> lines = thread.Lines();
    EXPECT_EQ(row.line, lines.empty() ? std::wstring() : lines.back());
    ResetError(&thread.Error());
  }
}

TEST_F(NemUI, ATraceThatCannotBeOpenedFailsTheFirstCallOnly) {
  ProductValue trace(HKEY_CURRENT_USER, L"TraceFilename");
  trace.Set(L"C:\\no such folder\\trace.log");
  OnFreshThread([this] {
    const int32_t value = 5;
    EXPECT_EQ(0, NemPdfUISetPropertyW(handle_, 0, L"Scale", &value));
    EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 0, L"Scale", &value));
  });
}

TEST_F(NemUI, NoPasswordReachesTheTraceFile) {
  wchar_t folder[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  const std::wstring base = std::wstring(folder) + L"nempdf_exports";
  ProductValue trace(HKEY_CURRENT_USER, L"TraceFilename");
  trace.Set(base + L".log");
  std::wstring fileName;
  OnFreshThread([this, &base, &fileName] {
    wchar_t buffer[64];
    for (const wchar_t* name : {L"EncryptUserPassword", L"EncryptOwnerPassword", L"EncryptEnhancedPdfPassword"}) {
      const std::string narrow(name, name + wcslen(name));
      EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, 0, name, L"hunter2"));
      EXPECT_EQ(1, NemPdfUISetPropertyA(handle_, 1, narrow.c_str(), "hunter2"));
      EXPECT_EQ(0, NemPdfUISetPropertyW(handle_, -1, name, L"hunter2"));
      EXPECT_EQ(1, NemPdfUIGetPropertyW(handle_, 0, name, buffer, 64));
      EXPECT_EQ(0, NemPdfUIGetPropertyA(handle_, 1, narrow.c_str(), buffer, 8));
    }
    fileName = base + L"-AddInUI-t" + std::to_wstring(GetCurrentThreadId()) + L".log";
  });
  std::ifstream file(std::string(fileName.begin(), fileName.end()), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  file.close();
  DeleteFileW(fileName.c_str());
  const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
  EXPECT_NE(std::wstring::npos, text.find(L"Getting Property \"EncryptOwnerPassword\""));
  EXPECT_EQ(std::wstring::npos, text.find(L"hunter"));
}

}  // namespace
