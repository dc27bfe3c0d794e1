// The exported functions from inside: what they do to the calling thread's error state and trace.
#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "DriverLIB/CError.h"
#include "DriverLIB/ModuleState.h"
#include "NemPdfUI.h"
#include "support/RegistryValue.h"
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
  };
  for (const auto& call : exports)
    OnFreshThread([&call] {
      EXPECT_EQ(nullptr, CurrentError());
      call();
      EXPECT_NE(nullptr, CurrentError());
    });
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
