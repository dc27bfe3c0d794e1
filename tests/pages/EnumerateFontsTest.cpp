// The real enumeration, with fonts of the tests' own: copies of an installed free font under other names and with other
// permissions, which this process alone has.
#include "pages/EnumerateFonts.h"

#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string_view>

#include "support/PageUnderTest.h"
#include "support/PrintText.h"
#include "window/Gdi.h"

namespace {

constexpr char kOriginal[] = "C:\\windows\\Fonts\\tahoma.ttf";
constexpr std::wstring_view kOriginalName = L"Tahoma";

// A copy of the original; the name has as many letters.
class PrivateFont {
 public:
  PrivateFont(std::string_view name, unsigned permission) : path_(testing::TempDir() + std::string(name) + ".ttf") {
    std::ifstream original(kOriginal, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(original), {}};
    if (bytes.size() < 12) return;
    const auto number = [&](size_t at, int count) {
      size_t value = 0;
      for (int i = 0; i < count; ++i) value = value << 8 | static_cast<uint8_t>(bytes[at + static_cast<size_t>(i)]);
      return value;
    };
    for (size_t i = 0, row = 12; i < number(4, 2); ++i, row += 16) {
      const std::string_view tag(bytes.data() + row, 4);
      const size_t table = number(row + 8, 4), length = number(row + 12, 4);
      if (tag == "OS/2") {
        bytes[table + 8] = static_cast<char>(permission >> 8);
        bytes[table + 9] = static_cast<char>(permission);
      } else if (tag == "name") {
        Rename(bytes, table, length, name);
      }
    }
    std::ofstream(path_, std::ios::binary) << bytes;
    const std::wstring path(path_.begin(), path_.end());
    added_ = AddFontResourceExW(path.c_str(), FR_PRIVATE, nullptr) > 0;
  }
  ~PrivateFont() {
    const std::wstring path(path_.begin(), path_.end());
    if (added_) RemoveFontResourceExW(path.c_str(), FR_PRIVATE, nullptr);
    std::remove(path_.c_str());
  }
  PrivateFont(const PrivateFont&) = delete;
  PrivateFont& operator=(const PrivateFont&) = delete;

  bool IsAdded() const { return added_; }

 private:
  // The names of both systems: in two bytes a letter, and in one.
  static void Rename(std::string& bytes, size_t begin, size_t length, std::string_view name) {
    for (size_t at = begin; at < begin + length; ++at) {
      for (const size_t width : {2, 1}) {
        bool equal = at + width * kOriginalName.size() <= begin + length;
        for (size_t i = 0; equal && i < kOriginalName.size(); ++i)
          equal = bytes[at + i * width + width - 1] == static_cast<char>(kOriginalName[i]) &&
                  (width == 1 || bytes[at + i * width] == 0);
        for (size_t i = 0; equal && i < kOriginalName.size(); ++i) bytes[at + i * width + width - 1] = name[i];
      }
    }
  }

  const std::string path_;
  bool added_ = false;
};

class EnumerateFontsTest : public testing::Test {
 protected:
  EnumerateFontsTest() {
    for (const PrivateFont* font : {&free_, &restricted_, &bitmap_, &preview_, &both_}) EXPECT_TRUE(font->IsAdded());
  }

  PrivateFont free_{"Zzfree", 0x0000};
  PrivateFont restricted_{"Zzrstr", 0x0002};
  PrivateFont bitmap_{"Zzbitm", 0x0200};
  PrivateFont preview_{"Zzprev", 0x0204};
  PrivateFont both_{"Zzboth", 0x000A};
};

const std::map<std::wstring, FontPermission> kPermissions = {
    {L"Zzfree", FontPermission::Unrestricted}, {L"Zzrstr", FontPermission::Restricted},
    {L"Zzbitm", FontPermission::BitmapOnly},   {L"Zzprev", FontPermission::PreviewAndPrint},
    {L"Zzboth", FontPermission::Unrestricted},
};

TEST_F(EnumerateFontsTest, FontsAreVisitedWithWhatTheirMakerAllows) {
  std::map<std::wstring, FontPermission> found;
  std::set<std::wstring> all;
  const WindowDC dc(nullptr);
  EnumerateFonts(dc, [&](const InstalledFont& font) {
    const std::wstring name(font.name);
    all.insert(name);
    if (!kPermissions.contains(name)) return;
    EXPECT_TRUE(IsOffered(font));
    EXPECT_TRUE(font.kinds & kTrueTypeFont);
    EXPECT_GE(font.readOs2Table().size(), 68u);
    const auto [place, isNew] = found.emplace(name, PermissionOf(font));
    EXPECT_EQ(place->second, PermissionOf(font)) << "the same in each character set";
  });
  EXPECT_EQ(kPermissions, found);
  EXPECT_TRUE(all.contains(L"Tahoma"));
}

TEST_F(EnumerateFontsTest, FontsOfAllCharacterSetsAreVisited) {
  std::set<int> characterSets;
  const WindowDC dc(nullptr);
  EnumerateFonts(dc, [&](const InstalledFont& font) { characterSets.insert(font.characterSet); });
  EXPECT_TRUE(characterSets.contains(ANSI_CHARSET));
  EXPECT_LT(1u, characterSets.size());
}

TEST_F(EnumerateFontsTest, WhatTheVisitorThrowsEndsTheVisits) {
  const WindowDC dc(nullptr);
  int visits = 0;
  EXPECT_THROW(EnumerateFonts(dc,
                              [&](const InstalledFont&) {
                                ++visits;
                                throw std::runtime_error("enough");
                              }),
               std::runtime_error);
  EXPECT_EQ(1, visits);
}

TEST_F(EnumerateFontsTest, TheFontOfTheDeviceContextStays) {
  const WindowDC dc(nullptr);
  const HGDIOBJ before = GetCurrentObject(dc, OBJ_FONT);
  EnumerateFonts(dc, [](const InstalledFont& font) { font.readOs2Table(); });
  EXPECT_EQ(before, GetCurrentObject(dc, OBJ_FONT));
}

TEST_F(EnumerateFontsTest, ThePageListsThem) {
  PageUnderTest test(kFontsPage);
  test.Set(L"FontsEmbedded", 2);
  ASSERT_TRUE(test.Open());
  const auto ours = [&](int list) {
    std::vector<std::wstring> names;
    for (const std::wstring& name : test.Control(list).Rows())
      if (name.starts_with(L"Zz")) names.push_back(name);
    return names;
  };
  EXPECT_EQ((std::vector<std::wstring>{L"Zzboth", L"Zzfree", L"Zzprev"}), ours(1032));
  EXPECT_EQ((std::vector<std::wstring>{L"Zzbitm", L"Zzrstr"}), ours(1053));
}

}  // namespace
