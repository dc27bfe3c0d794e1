// The library's life in a process: what loading, threads, unloading and the end of the process leave in the trace.
#include <windows.h>
// behind windows.h
#include <psapi.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "support/RegistryValue.h"
#include "support/TempFile.h"

namespace {

// The program itself has the library loaded from its start, so a copy is loaded and unloaded.
constexpr wchar_t kCopy[] = L"attach_copy.dll";

std::string TraceName(DWORD thread) { return "attach-AddInUI-t" + std::to_string(thread) + ".log"; }

bool EndsIn(const std::wstring& text, std::wstring_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

std::wstring FullPath(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  return {path, GetFullPathNameW(name, MAX_PATH, path, nullptr)};
}

class Event {
 public:
  ~Event() { CloseHandle(handle_); }
  void Set() const { SetEvent(handle_); }
  void Wait() const { WaitForSingleObject(handle_, 60000); }

 private:
  HANDLE handle_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
};

class AttachTest : public testing::Test {
 protected:
  AttachTest() {
    wchar_t library[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"NemPdfUI64.dll"), library, MAX_PATH);
    CopyFileW(library, kCopy, FALSE);
    user.Set(FullPath(L"attach.log"));
  }
  ~AttachTest() override { DeleteFileW(kCopy); }

  ProductValue machine{HKEY_LOCAL_MACHINE, L"TraceFilename"};
  ProductValue user{HKEY_CURRENT_USER, L"TraceFilename"};
};

}  // namespace

TEST_F(AttachTest, LoadingOpensAndUnloadingClosesTheTrace) {
  TempFile trace(TraceName(GetCurrentThreadId()));
  HMODULE library = LoadLibraryW(kCopy);
  ASSERT_NE(nullptr, library);
  EXPECT_NE(std::wstring::npos, trace.Text().find(L"NEM pdf AddIn UI Version 2.10.4 M7 (0x02100004) vom "));
  EXPECT_FALSE(EndsIn(trace.Text(), L"Trace closed.\r\n"));
  EXPECT_TRUE(FreeLibrary(library));
  EXPECT_TRUE(EndsIn(trace.Text(), L"Trace closed.\r\n"));
  EXPECT_EQ(0, std::rename(TraceName(GetCurrentThreadId()).c_str(), "attach_free.log"));  // nobody holds it
  std::remove("attach_free.log");
}

TEST_F(AttachTest, EachThreadHasATraceForItsLife) {
  DWORD id = 0;
  std::wstring during;
  std::thread([&] {
    id = GetCurrentThreadId();
    during = TempFile::TextOf(TraceName(id));
  }).join();
  TempFile trace(TraceName(id), TempFile::Keep{});
  EXPECT_NE(std::wstring::npos, during.find(L"NEM pdf AddIn UI Version"));
  EXPECT_FALSE(EndsIn(during, L"Trace closed.\r\n"));
  EXPECT_TRUE(EndsIn(trace.Text(), L"Trace closed.\r\n"));
}

TEST_F(AttachTest, AThreadFromBeforeTheLoadIsTakenUpByItsFirstCall) {
  const std::wstring name = *user.Text();
  user.Delete();
  const Event started, loaded;
  HMODULE library = nullptr;
  DWORD id = 0;
  bool before = true, after = false;
  std::thread thread([&] {
    id = GetCurrentThreadId();
    started.Set();
    loaded.Wait();
    before = TempFile::ExistsNamed(TraceName(id));
    void* handle = nullptr;
    reinterpret_cast<int(WINAPI*)(void**)>(GetProcAddress(library, "NemPdfUICreateDialog"))(&handle);
    after = TempFile::ExistsNamed(TraceName(id));
    reinterpret_cast<int(WINAPI*)(void**)>(GetProcAddress(library, "NemPdfUIFreeDialog"))(&handle);
  });
  started.Wait();
  user.Set(name);
  TempFile own(TraceName(GetCurrentThreadId()));
  library = LoadLibraryW(kCopy);
  loaded.Set();
  thread.join();
  TempFile trace(TraceName(id), TempFile::Keep{});
  EXPECT_FALSE(before);
  EXPECT_TRUE(after);
  EXPECT_TRUE(EndsIn(trace.Text(), L"Trace closed.\r\n"));
  FreeLibrary(library);
}

TEST_F(AttachTest, TheEndOfTheProcessClosesTheTrace) {
  // This program once more, which has the library from its start to its end.
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(program) + L"\" --gtest_list_tests";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;  // none: it is silent
  PROCESS_INFORMATION process{};
  ASSERT_TRUE(
      CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
  EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(process.hProcess, 60000));
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  TempFile cleanUp(TraceName(process.dwThreadId), TempFile::Keep{});
  const std::wstring text = cleanUp.Text();
  EXPECT_TRUE(EndsIn(text, L"Trace closed.\r\n"));
  EXPECT_EQ(text.find(L"Trace closed."), text.rfind(L"Trace closed."));
}

// Whatever a library loads from its DllMain or before costs every host, and runs under the loader's lock.
TEST_F(AttachTest, LoadingBringsInNoOtherLibrary) {
  user.Delete();
  const auto modules = [] {
    HMODULE handles[256];
    DWORD bytes = 0;
    EXPECT_TRUE(K32EnumProcessModules(GetCurrentProcess(), handles, sizeof handles, &bytes));
    return bytes / sizeof handles[0];
  };
  const size_t before = modules();
  HMODULE library = LoadLibraryW(kCopy);
  EXPECT_EQ(before + 1, modules());
  FreeLibrary(library);
}

TEST_F(AttachTest, LoadingAndUnloadingLeavesNothingBehind) {
  user.Delete();
  const auto cycle = [] {
    HMODULE library = LoadLibraryW(kCopy);
    EXPECT_NE(nullptr, library);
    EXPECT_TRUE(FreeLibrary(library));
  };
  for (int i = 0; i < 5; ++i) cycle();
  // Few thread slots are left, so that each has to come back.
  std::vector<DWORD> slots;
  for (DWORD slot; (slot = TlsAlloc()) != TLS_OUT_OF_INDEXES;) slots.push_back(slot);
  constexpr size_t kLeft = 8;
  ASSERT_GT(slots.size(), kLeft);
  for (size_t i = 0; i < kLeft; ++i) TlsFree(slots[i]);
  slots.erase(slots.begin(), slots.begin() + kLeft);

  DWORD before = 0, after = 0;
  GetProcessHandleCount(GetCurrentProcess(), &before);
  for (int i = 0; i < 20; ++i) cycle();
  GetProcessHandleCount(GetCurrentProcess(), &after);
  EXPECT_EQ(before, after);
  for (DWORD slot : slots) TlsFree(slot);
}

TEST_F(AttachTest, WithoutAThreadSlotTheLoadFails) {
  user.Delete();
  std::vector<DWORD> slots;
  for (DWORD slot; (slot = TlsAlloc()) != TLS_OUT_OF_INDEXES;) slots.push_back(slot);
  EXPECT_EQ(nullptr, LoadLibraryW(kCopy));
  for (DWORD slot : slots) TlsFree(slot);
  HMODULE library = LoadLibraryW(kCopy);
  EXPECT_NE(nullptr, library);
  FreeLibrary(library);
}
