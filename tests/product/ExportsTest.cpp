// NemPdfUI64.dll as a host sees it: what it exports and imports, and each function's rules and edges.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "NemPdfUI.h"
#include "product/HeaderC.h"

namespace {

constexpr char kLibrary[] = "NemPdfUI64.dll";

// --- The file ----------------------------------------------------------------------------------------------------

// The loaded image's own tables.
class Image {
 public:
  Image() : base_(reinterpret_cast<const char*>(GetModuleHandleA(kLibrary))) {}

  template <class T>
  const T* At(DWORD address) const {
    return reinterpret_cast<const T*>(base_ + address);
  }
  const IMAGE_NT_HEADERS64& Headers() const {
    return *At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
  }
  const IMAGE_DATA_DIRECTORY& Directory(int index) const { return Headers().OptionalHeader.DataDirectory[index]; }

 private:
  const char* base_;
};

TEST(Library, ExportsNineFunctionsByNameAndNothingElse) {
  const Image image;
  const auto* exports = image.At<IMAGE_EXPORT_DIRECTORY>(image.Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress);
  EXPECT_EQ(9u, exports->NumberOfFunctions);
  std::set<std::string> names;
  for (DWORD i = 0; i < exports->NumberOfNames; ++i)
    names.insert(image.At<char>(image.At<DWORD>(exports->AddressOfNames)[i]));
  EXPECT_EQ((std::set<std::string>{"NemPdfUICreateDialog", "NemPdfUIFreeDialog", "NemPdfUIDoModal",
                                   "NemPdfUIShowVersion", "NemPdfUISetPropertyA", "NemPdfUISetPropertyW",
                                   "NemPdfUIGetPropertyA", "NemPdfUIGetPropertyW", "NemPdfUIGetVersion"}),
            names);
  EXPECT_STREQ(kLibrary, image.At<char>(exports->Name));
}

TEST(Library, ImportsFromWindowsOnly) {
  const Image image;
  wchar_t windows[MAX_PATH];  // some of its libraries lie side by side in folders of their own below it
  const UINT length = GetWindowsDirectoryW(windows, MAX_PATH);
  const auto* import = image.At<IMAGE_IMPORT_DESCRIPTOR>(image.Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress);
  int count = 0;
  for (; import->Name; ++import, ++count) {
    const char* name = image.At<char>(import->Name);
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(GetModuleHandleA(name), path, MAX_PATH);
    EXPECT_EQ(0, _wcsnicmp(windows, path, length)) << name << " is no library of Windows";
  }
  EXPECT_GT(count, 0);
  EXPECT_EQ(0u, image.Directory(IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT).VirtualAddress);
}

TEST(Library, IsForSixtyFourBitWindowsAndHardened) {
  const Image image;
  EXPECT_EQ(IMAGE_FILE_MACHINE_AMD64, image.Headers().FileHeader.Machine);
  const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                      IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA;
  EXPECT_EQ(wanted, image.Headers().OptionalHeader.DllCharacteristics & wanted);
}

// Of the resources of one type in the library.
DWORD SizeOfResources(LPCWSTR type) {
  DWORD size = 0;
  const auto add = [](HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR sum) -> BOOL {
    *reinterpret_cast<DWORD*>(sum) += SizeofResource(module, FindResourceW(module, name, type));
    return TRUE;
  };
  EnumResourceNamesW(GetModuleHandleA(kLibrary), type, add, reinterpret_cast<LONG_PTR>(&size));
  return size;
}

// A host loads it for its print dialog: it stays small.
TEST(Library, IsBelowOneMegabyteBesideItsPictures) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(GetModuleHandleA(kLibrary), path, MAX_PATH);
  WIN32_FILE_ATTRIBUTE_DATA file{};
  ASSERT_TRUE(GetFileAttributesExW(path, GetFileExInfoStandard, &file));
  const DWORD bitmaps = SizeOfResources(RT_BITMAP), icons = SizeOfResources(RT_ICON);
  EXPECT_GT(bitmaps, 0u);
  EXPECT_GT(icons, 0u);
  EXPECT_LT(file.nFileSizeLow - bitmaps - icons, 1u << 20);
}

TEST(Library, ServesAHostWrittenInC) { EXPECT_EQ(0, RunHostInC()); }

// --- Version -----------------------------------------------------------------------------------------------------

TEST(Version, IsTwoTenFour) {
  uint32_t version = 0;
  EXPECT_EQ(1, NemPdfUIGetVersion(&version));
  EXPECT_EQ(0x2100004u, version);
  EXPECT_EQ(uint32_t{NEMPDFUI_VERSION}, version);
}

TEST(Version, WithoutAPlaceFailsAndTheNextPropertyCallAnswersForIt) {
  NemPdfUIHandle handle = nullptr;
  NemPdfUICreateDialog(&handle);
  const int32_t value = 7;
  int32_t read = 77;
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  EXPECT_EQ(0, NemPdfUISetPropertyW(handle, 0, L"Scale", &value));
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle, 0, L"Scale", &value));
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  EXPECT_EQ(0, NemPdfUIGetPropertyA(handle, 0, "Scale", &read, 4));
  EXPECT_EQ(77, read);
  EXPECT_EQ(1, NemPdfUIGetPropertyA(handle, 0, "Scale", &read, 4));
  EXPECT_EQ(7, read);
  NemPdfUIFreeDialog(&handle);
}

// --- Handles -----------------------------------------------------------------------------------------------------

class Handles : public testing::Test {
 protected:
  // What every function says to a handle that is none.
  static void ExpectRefused(NemPdfUIHandle handle) {
    const int32_t value = 7;
    int32_t read = 77;
    EXPECT_EQ(2, NemPdfUISetPropertyA(handle, 0, "Scale", &value));
    EXPECT_EQ(2, NemPdfUISetPropertyW(handle, 0, L"Scale", &value));
    EXPECT_EQ(2, NemPdfUISetPropertyA(handle, 0, nullptr, nullptr));
    EXPECT_EQ(2, NemPdfUISetPropertyW(handle, 5, L"", nullptr));
    EXPECT_EQ(0, NemPdfUIGetPropertyA(handle, 0, "Scale", &read, 4));
    EXPECT_EQ(0, NemPdfUIGetPropertyW(handle, -1, L"HwndParent", &read, 4));
    EXPECT_EQ(77, read);
    EXPECT_EQ(-1, NemPdfUIDoModal(handle));
    NemPdfUIHandle variable = handle;
    EXPECT_EQ(0, NemPdfUIFreeDialog(&variable));
    EXPECT_EQ(handle, variable);
  }

  static NemPdfUIHandle AsHandle(const void* pointer) {
    return reinterpret_cast<NemPdfUIHandle>(const_cast<void*>(pointer));
  }
};

TEST_F(Handles, LiveFromCreateToFree) {
  NemPdfUIHandle handle = nullptr;
  EXPECT_EQ(1, NemPdfUICreateDialog(&handle));
  ASSERT_NE(nullptr, handle);
  EXPECT_EQ(0, memcmp(handle, "IUEN", 4));
  EXPECT_EQ(1, NemPdfUIFreeDialog(&handle));
  EXPECT_EQ(nullptr, handle);
  EXPECT_EQ(0, NemPdfUIFreeDialog(&handle));
}

TEST_F(Handles, NeedAPlace) {
  EXPECT_EQ(0, NemPdfUICreateDialog(nullptr));
  EXPECT_EQ(0, NemPdfUIFreeDialog(nullptr));
}

TEST_F(Handles, NullIsRefused) { ExpectRefused(nullptr); }

TEST_F(Handles, ForeignObjectsAreRefused) {
  alignas(16) static unsigned char zeros[65536] = {};
  alignas(16) static unsigned char almost[64] = "IUEM";
  alignas(16) static unsigned char turned[64] = "NEUI";
  for (const void* object : {static_cast<const void*>(zeros), static_cast<const void*>(almost),
                             static_cast<const void*>(turned), reinterpret_cast<const void*>(&NemPdfUIDoModal)})
    ExpectRefused(AsHandle(object));
}

TEST_F(Handles, FreedObjectsAreRefused) {
  NemPdfUIHandle handle = nullptr;
  NemPdfUICreateDialog(&handle);
  const NemPdfUIHandle freed = handle;
  NemPdfUIFreeDialog(&handle);
  ExpectRefused(freed);
}

TEST_F(Handles, AddressesWithoutMemoryAreRefused) {
  void* page = VirtualAlloc(nullptr, 8192, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  DWORD before;
  VirtualProtect(static_cast<char*>(page) + 4096, 4096, PAGE_NOACCESS, &before);
  ExpectRefused(AsHandle(static_cast<char*>(page) + 4096));
  // The last eight bytes that can be read: four of them are.
  ExpectRefused(AsHandle(static_cast<char*>(page) + 4096 - 8));
  VirtualFree(page, 0, MEM_RELEASE);
  for (const uintptr_t address :
       {uintptr_t{1}, uintptr_t{4}, uintptr_t{8}, uintptr_t{0xFFF8}, uintptr_t{0x10001}, uintptr_t{0x7FFFFFFF0000},
        uintptr_t{0xDEADBEEFDEADBEE8}, ~uintptr_t{0}, ~uintptr_t{7}})
    ExpectRefused(reinterpret_cast<NemPdfUIHandle>(address));
}

// It may be the one below the stack of another thread, which cannot grow without it.
TEST_F(Handles, AGuardedPageIsRefusedAndKeepsItsGuard) {
  void* page = VirtualAlloc(nullptr, 4096, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE | PAGE_GUARD);
  ExpectRefused(AsHandle(page));
  MEMORY_BASIC_INFORMATION information = {};
  VirtualQuery(page, &information, sizeof information);
  EXPECT_EQ(DWORD{PAGE_READWRITE | PAGE_GUARD}, information.Protect);
  VirtualFree(page, 0, MEM_RELEASE);
}

// --- Properties --------------------------------------------------------------------------------------------------

// In both forms: the parameter is true for the wide one.
class Properties : public testing::TestWithParam<bool> {
 protected:
  Properties() { NemPdfUICreateDialog(&handle_); }
  ~Properties() override { NemPdfUIFreeDialog(&handle_); }

  int Set(int32_t index, const std::string& name, const void* value) {
    return GetParam() ? NemPdfUISetPropertyW(handle_, index, std::wstring(name.begin(), name.end()).c_str(), value)
                      : NemPdfUISetPropertyA(handle_, index, name.c_str(), value);
  }
  int SetNumber(int32_t index, const std::string& name, int32_t value) { return Set(index, name, &value); }
  int SetText(int32_t index, const std::string& name, const std::string& value) {
    if (!GetParam()) return Set(index, name, value.c_str());
    return Set(index, name, std::wstring(value.begin(), value.end()).c_str());
  }
  int Get(int32_t index, const std::string& name, void* buffer, int32_t size) {
    return GetParam()
               ? NemPdfUIGetPropertyW(handle_, index, std::wstring(name.begin(), name.end()).c_str(), buffer, size)
               : NemPdfUIGetPropertyA(handle_, index, name.c_str(), buffer, size);
  }
  int32_t Number(int32_t index, const std::string& name) {
    int32_t value = 4711;
    EXPECT_EQ(1, Get(index, name, &value, 4)) << name;
    return value;
  }
  std::wstring Text(int32_t index, const std::string& name) {
    wchar_t buffer[256];
    EXPECT_EQ(1, Get(index, name, buffer, 256)) << name;
    return buffer;
  }
  // The reset, whose name is null or empty.
  int Reset(int32_t index, bool null) {
    if (GetParam()) return NemPdfUISetPropertyW(handle_, index, null ? nullptr : L"", nullptr);
    return NemPdfUISetPropertyA(handle_, index, null ? nullptr : "", nullptr);
  }

  NemPdfUIHandle handle_ = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Forms, Properties, testing::Bool(), [](const auto& info) { return info.param ? "W" : "A"; });

TEST_P(Properties, StartAtZeroAndEmpty) {
  EXPECT_EQ(0, Number(-1, "HwndParent"));
  EXPECT_EQ(L"", Text(-1, "SheetTitle"));
  for (const int32_t index : {0, 1}) {
    EXPECT_EQ(0, Number(index, "Used"));
    EXPECT_EQ(L"", Text(index, "Keywords"));
  }
}

TEST_P(Properties, NumbersComeBackUnchanged) {
  for (const int32_t value : {0, 60, 85, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(1, SetNumber(0, "GraphicJpegQuality", value));
    EXPECT_EQ(value, Number(0, "GraphicJpegQuality"));
  }
}

TEST_P(Properties, TextsComeBackWide) {
  EXPECT_EQ(1, SetText(1, "Title", "Quarterly report"));
  EXPECT_EQ(L"Quarterly report", Text(1, "Title"));
}

TEST_P(Properties, TheFormsMayBeMixed) {
  EXPECT_EQ(1, SetText(0, "Author", "me"));
  wchar_t buffer[8];
  EXPECT_EQ(1, NemPdfUIGetPropertyA(handle_, 0, "Author", buffer, 8));
  EXPECT_STREQ(L"me", buffer);
  EXPECT_EQ(1, NemPdfUIGetPropertyW(handle_, 0, L"Author", buffer, 8));
  EXPECT_STREQ(L"me", buffer);
}

TEST_P(Properties, NullValuesStoreZeroAndEmpty) {
  SetNumber(0, "Scale", 7);
  SetText(0, "Title", "x");
  EXPECT_EQ(1, Set(0, "Scale", nullptr));
  EXPECT_EQ(1, Set(0, "Title", nullptr));
  EXPECT_EQ(0, Number(0, "Scale"));
  EXPECT_EQ(L"", Text(0, "Title"));
}

TEST_P(Properties, UnknownNamesAndIndexesFail) {
  const int32_t value = 1;
  int32_t read[64] = {77};
  const struct {
    int32_t index;
    const char* name;
  } cases[] = {{0, "PrinterName"}, {1, "PrinterName"}, {-1, "Scale"},
               {0, "scale"},       {0, "Nonsense"},    {5, "Scale"},
               {2, "Scale"},       {-2, "HwndParent"}, {0, "EmbedFilenamesConfirmed"}};
  for (const auto& [index, name] : cases) {
    EXPECT_EQ(0, Set(index, name, &value)) << name;
    EXPECT_EQ(0, Get(index, name, read, 64)) << name;
    EXPECT_EQ(77, read[0]) << name;
  }
}

TEST_P(Properties, SizesAreLookedAt) {
  SetText(0, "Title", "0123456789");
  SetNumber(0, "Scale", 7);
  wchar_t buffer[32];
  for (const int32_t size : {11, 1, 0, -1, INT32_MIN}) {
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    EXPECT_EQ(0, Get(0, "Title", buffer, size)) << size;
    EXPECT_TRUE(std::all_of(std::begin(buffer), std::end(buffer), [](wchar_t c) { return c == L'#'; })) << size;
  }
  for (const int32_t size : {12, 32, INT32_MAX}) {
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    EXPECT_EQ(1, Get(0, "Title", buffer, size)) << size;
    EXPECT_STREQ(L"0123456789", buffer) << size;
    EXPECT_EQ(size == 12 ? L'\0' : L'#', buffer[11]) << size;
    EXPECT_EQ(size == 32 ? L'\0' : L'#', buffer[31]) << size;
  }
  int32_t number[2] = {77, 77};
  for (const int32_t size : {3, 0, -1, INT32_MIN}) EXPECT_EQ(0, Get(0, "Scale", number, size)) << size;
  EXPECT_EQ(77, number[0]);
  EXPECT_EQ(1, Get(0, "Scale", number, INT32_MAX));
  EXPECT_EQ(7, number[0]);
  EXPECT_EQ(77, number[1]);
}

TEST_P(Properties, AnEmptyTextNeedsTwoCharacters) {
  wchar_t buffer[2] = {L'#', L'#'};
  EXPECT_EQ(0, Get(0, "Title", buffer, 1));
  EXPECT_EQ(L'#', buffer[0]);
  EXPECT_EQ(1, Get(0, "Title", buffer, 2));
  EXPECT_EQ(L'\0', buffer[0]);
}

TEST_P(Properties, NullNamesAndBuffersCannotBeRead) {
  int32_t read = 77;
  EXPECT_EQ(0, NemPdfUIGetPropertyA(handle_, 0, nullptr, &read, 4));
  EXPECT_EQ(0, NemPdfUIGetPropertyW(handle_, 0, nullptr, &read, 4));
  EXPECT_EQ(0, Get(0, "Scale", nullptr, 4));
  EXPECT_EQ(77, read);
  EXPECT_EQ(0, Get(0, "", &read, 4));
}

TEST_P(Properties, EmptyAndNullNamesResetOneSet) {
  for (const bool null : {true, false})
    for (const int32_t reset : {-1, 0, 1}) {
      SetNumber(-1, "HwndParent", 5);
      for (const int32_t index : {0, 1}) SetNumber(index, "Scale", 5);
      EXPECT_EQ(1, Reset(reset, null));
      EXPECT_EQ(reset == -1 ? 0 : 5, Number(-1, "HwndParent"));
      EXPECT_EQ(reset == 0 ? 0 : 5, Number(0, "Scale"));
      EXPECT_EQ(reset == 1 ? 0 : 5, Number(1, "Scale"));
    }
  SetNumber(0, "Scale", 5);
  for (const bool null : {true, false}) EXPECT_EQ(1, Reset(5, null));
  EXPECT_EQ(5, Number(0, "Scale"));
}

TEST_P(Properties, MillionCharactersAreNoTrouble) {
  const std::string million(1'000'000, 'x');
  EXPECT_EQ(1, SetText(0, "Title", million));
  std::wstring buffer(1'000'002, L'#');
  EXPECT_EQ(1, Get(0, "Title", buffer.data(), 1'000'002));
  EXPECT_EQ(std::wstring::npos, buffer.substr(0, 1'000'000).find_first_not_of(L'x'));
  const int32_t value = 1;
  EXPECT_EQ(0, Set(0, million, &value));
  EXPECT_EQ(0, Get(0, million, buffer.data(), 4));
}

TEST_F(Handles, AWideNameWithAZeroByteInFrontResets) {
  NemPdfUIHandle handle = nullptr;
  NemPdfUICreateDialog(&handle);
  int32_t value = 5;
  NemPdfUISetPropertyW(handle, 1, L"Scale", &value);
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle, 1, L"\x0100", nullptr));
  EXPECT_EQ(1, NemPdfUIGetPropertyW(handle, 1, L"Scale", &value, 4));
  EXPECT_EQ(0, value);
  EXPECT_EQ(0, NemPdfUISetPropertyW(handle, 5, L"\x0100", nullptr));
  NemPdfUIFreeDialog(&handle);
}

TEST_F(Handles, OddSurrogatesTravel) {
  NemPdfUIHandle handle = nullptr;
  NemPdfUICreateDialog(&handle);
  const wchar_t odd[] = {0xDC00, L'x', 0xD800, 0};
  wchar_t buffer[8];
  EXPECT_EQ(1, NemPdfUISetPropertyW(handle, 0, L"Title", odd));
  EXPECT_EQ(1, NemPdfUIGetPropertyW(handle, 0, L"Title", buffer, 8));
  EXPECT_STREQ(odd, buffer);
  EXPECT_EQ(0, NemPdfUISetPropertyW(handle, 0, odd + 1, odd));
  NemPdfUIFreeDialog(&handle);
}

// --- Threads -----------------------------------------------------------------------------------------------------

DWORD WINAPI WorkWithAnObject(void* seed) {
  const auto value = static_cast<int32_t>(reinterpret_cast<intptr_t>(seed));
  for (int round = 0; round < 50; ++round) {
    NemPdfUIHandle handle = nullptr;
    if (NemPdfUICreateDialog(&handle) != 1) return 1;
    for (int32_t index : {0, 1}) {
      const std::wstring text = std::to_wstring(value + index);
      const int32_t number = value + index;
      if (NemPdfUISetPropertyW(handle, index, L"Title", text.c_str()) != 1) return 2;
      if (NemPdfUISetPropertyA(handle, index, "Scale", &number) != 1) return 3;
      if (NemPdfUISetPropertyA(handle, index, "Nonsense", &number) != 0) return 4;
    }
    for (int32_t index : {0, 1}) {
      wchar_t text[32];
      int32_t number = 0;
      if (NemPdfUIGetPropertyA(handle, index, "Title", text, 32) != 1) return 5;
      if (NemPdfUIGetPropertyW(handle, index, L"Scale", &number, 4) != 1) return 6;
      if (number != value + index || std::to_wstring(value + index) != text) return 7;
    }
    if (NemPdfUIFreeDialog(&handle) != 1) return 8;
  }
  return 0;
}

TEST(Threads, WorkOnTheirOwnObjectsAtTheSameTime) {
  HANDLE threads[8];
  for (intptr_t i = 0; i < 8; ++i)
    threads[i] = CreateThread(nullptr, 0, WorkWithAnObject, reinterpret_cast<void*>(i * 1000), 0, nullptr);
  EXPECT_EQ(WAIT_OBJECT_0, WaitForMultipleObjects(8, threads, TRUE, 60'000));
  for (const HANDLE thread : threads) {
    DWORD result = 99;
    GetExitCodeThread(thread, &result);
    EXPECT_EQ(0u, result);
    CloseHandle(thread);
  }
}

}  // namespace
