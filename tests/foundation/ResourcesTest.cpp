#include <windows.h>

#include "DriverLIB/Resources.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "DriverLIB/MessageText.h"

namespace {

// A copy of the program whose only resources are texts of the test.
class ResourcesTest : public testing::Test {
 protected:
  ResourcesTest() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    CopyFileW(program, kFile, FALSE);
    const HANDLE update = BeginUpdateResourceW(kFile, TRUE);
    const auto add = [&](int id, WORD language, std::string_view text) {
      UpdateResourceW(update, RT_RCDATA, MAKEINTRESOURCEW(id), language, const_cast<char*>(text.data()),
                      static_cast<DWORD>(text.size()));
    };
    for (WORD language : {7, 9, 12, 1}) add(100, language, "100 in " + std::to_string(language));
    add(100, 0x0807, "100 in Swiss German");
    add(101, 9, "101 in 9");
    add(102, 0x0409, "102 in 1033");
    add(103, 0, "103 neutral");
    add(104, 12, "104 in 12");
    EndUpdateResourceW(update, FALSE);
    module = LoadLibraryExW(kFile, nullptr, LOAD_LIBRARY_AS_DATAFILE);
  }
  ~ResourcesTest() override {
    FreeLibrary(module);
    DeleteFileW(kFile);
    SetUILanguage(outerLanguage);
  }

  std::string In(uint16_t language, int id) const {
    size_t size = 99;
    const void* data = LockResourceLang(module, MAKEINTRESOURCEW(id), RT_RCDATA, language, &size);
    if (!data) return size == 0 ? "none" : "none, but a size";
    return {static_cast<const char*>(data), size};
  }

  static constexpr wchar_t kFile[] = L"test_resources.dll";
  const uint16_t outerLanguage = GetUILanguage();
  HMODULE module = nullptr;
};

}  // namespace

TEST_F(ResourcesTest, TheExactLanguageGoesBeforeItsFamily) {
  EXPECT_EQ("100 in Swiss German", In(0x0807, 100));
  EXPECT_EQ("100 in 7", In(0x0407, 100));
  EXPECT_EQ("100 in 12", In(0x0C0C, 100));
  EXPECT_EQ("100 in 1", In(0x0801, 100));
  EXPECT_EQ("100 in 9", In(0x0409, 100));
}

TEST_F(ResourcesTest, EnglishServesOtherLanguages) {
  EXPECT_EQ("100 in 9", In(0x0410, 100));
  EXPECT_EQ("101 in 9", In(0x0407, 101));
  EXPECT_EQ("102 in 1033", In(0x0407, 102));
  EXPECT_EQ("102 in 1033", In(0x0809, 102));
}

TEST_F(ResourcesTest, WhatBelongsToNoLanguageServesAll) {
  for (uint16_t language : {0x0409, 0x0407, 0x0411}) EXPECT_EQ("103 neutral", In(language, 103));
}

TEST_F(ResourcesTest, AnotherLanguageIsNeverTaken) {
  EXPECT_EQ("104 in 12", In(0x040C, 104));
  // Not even where it is that of the thread.
  const LANGID thread = GetThreadUILanguage();
  SetThreadUILanguage(0x040C);
  EXPECT_EQ("none", In(0x0407, 104));
  SetThreadUILanguage(thread);
  EXPECT_EQ("none", In(0x0409, 999));
}

TEST_F(ResourcesTest, LanguageZeroIsTheUILanguage) {
  SetUILanguage(0x0407);
  EXPECT_EQ("100 in 7", In(0, 100));
  SetUILanguage(0x0401);
  EXPECT_EQ("100 in 1", In(0, 100));
}

TEST_F(ResourcesTest, TheSizeNeedNotBeAskedFor) {
  EXPECT_NE(nullptr, LockResourceLang(module, MAKEINTRESOURCEW(103), RT_RCDATA, 0));
  EXPECT_EQ(nullptr, LockResourceLang(module, MAKEINTRESOURCEW(999), RT_RCDATA, 0));
}
