// The table of pictures and the drawings behind it: what the bar and the pages ask for is there, and of one hand.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

const std::string kFolder = std::string(NEMPDF_SOURCE_DIR) + "/src/resources/pictures/";
constexpr unsigned long kDoubleSizeOffset = 0x6000;

struct Row {
  unsigned long bitmap = 0;
  std::string maskText;
  unsigned long mask = 0;  // 0 for an icon
  std::set<int> sizes;
  std::string drawing;  // without its state
  std::string mirrored;

  bool IsIcon() const { return maskText == "icon"; }
};

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Row> ReadTable() {
  std::vector<Row> rows;
  std::istringstream table(ReadFile(kFolder + "Pictures.txt"));
  for (std::string line; std::getline(table, line);) {
    std::istringstream fields(line.substr(0, line.find('#')));
    std::string bitmap;
    if (!(fields >> bitmap)) continue;
    Row row;
    std::string sizes;
    std::string extra;
    EXPECT_TRUE(fields >> row.maskText >> sizes >> row.drawing >> row.mirrored) << line;
    EXPECT_FALSE(fields >> extra) << line;
    row.bitmap = std::stoul(bitmap, nullptr, 0);
    if (!row.IsIcon()) row.mask = std::stoul(row.maskText, nullptr, 0);
    std::istringstream list(sizes);
    for (std::string size; std::getline(list, size, ',');) row.sizes.insert(std::stoi(size));
    row.drawing = row.drawing.substr(0, row.drawing.find('.'));
    rows.push_back(row);
  }
  return rows;
}

class Pictures : public testing::Test {
 protected:
  const std::vector<Row> rows_ = ReadTable();

  void SetUp() override { ASSERT_FALSE(rows_.empty()) << kFolder; }
};

TEST_F(Pictures, EveryRowHasADrawingAndEveryDrawingARow) {
  std::set<std::string> used;
  for (const Row& row : rows_) used.insert(row.drawing + ".svg");
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".svg") present.insert(entry.path().filename().string());
  }
  EXPECT_EQ(used, present);
}

TEST_F(Pictures, NumbersHaveOneMeaning) {
  std::set<unsigned long> bitmaps;
  std::set<unsigned long> icons;
  std::set<unsigned long> masks;
  for (const Row& row : rows_) {
    EXPECT_TRUE((row.IsIcon() ? icons : bitmaps).insert(row.bitmap).second) << row.bitmap << " stands there twice";
    EXPECT_GT(row.bitmap, 0u);
    EXPECT_LT(row.bitmap, kDoubleSizeOffset) << row.drawing;
    EXPECT_LT(row.mask, kDoubleSizeOffset) << row.drawing;
    if (!row.IsIcon()) masks.insert(row.mask);
  }
  for (unsigned long mask : masks) {
    EXPECT_NE(mask, 0u);
    EXPECT_EQ(bitmaps.count(mask), 0u) << mask << " is both a bitmap and a mask";
  }
}

TEST_F(Pictures, SizesAreKnownAndMirroringIsYesOrNo) {
  const std::set<int> kSizes = {16, 24, 32, 48, 64};
  for (const Row& row : rows_) {
    EXPECT_TRUE(row.mirrored == "0" || row.mirrored == "1") << row.drawing;
    if (row.IsIcon()) continue;
    ASSERT_EQ(row.sizes.size(), 1u) << row.drawing;
    EXPECT_EQ(kSizes.count(*row.sizes.begin()), 1u) << row.drawing;
  }
}

TEST_F(Pictures, PicturesWithOneMaskHaveOneSizeAndOneMirroring) {
  std::map<unsigned long, const Row*> first;
  for (const Row& row : rows_) {
    if (row.IsIcon()) continue;
    const Row& other = *first.emplace(row.mask, &row).first->second;
    EXPECT_EQ(row.sizes, other.sizes) << row.drawing;
    EXPECT_EQ(row.mirrored, other.mirrored) << row.drawing;
  }
}

struct Pair {
  const char* where;
  unsigned long bitmap;
  unsigned long mask;  // 0: any
  int size;
};

// By use: the bar with the pages' own pictures, the lists, and what single pages show.
constexpr Pair kNeeded[] = {
    {"bar: cockpit", 321, 322, 16},
    {"bar: file size", 249, 250, 16},
    {"bar: graphical optimization", 251, 252, 16},
    {"bar: layout", 253, 254, 16},
    {"bar: page", 263, 264, 16},
    {"bar: display", 235, 236, 16},
    {"bar: fonts; font without a restriction", 269, 271, 16},
    {"bar: stationery", 233, 234, 16},
    {"bar: links", 261, 262, 16},
    {"bar: attachments", 343, 344, 16},
    {"bar: bookmark, ZUGFeRD", 286, 287, 16},
    {"bar: output", 284, 285, 16},
    {"bar: saving", 255, 256, 16},
    {"bar: actions", 237, 238, 16},
    {"bar: e-mail", 243, 244, 16},
    {"bar: colour space, colour settings", 239, 240, 16},
    {"bar: form", 247, 248, 16},
    {"bar: fields", 245, 246, 16},
    {"bar: security folder", 265, 266, 16},
    {"bar: security", 267, 268, 16},
    {"bar: document info", 241, 242, 16},
    {"bar: info, statistics", 257, 258, 16},
    {"bar: language", 319, 318, 16},
    {"bar: update", 328, 330, 16},
    {"fonts: device font", 272, 274, 16},
    {"fonts: restricted", 275, 277, 16},
    {"fonts: bitmap embedding only", 278, 280, 16},
    {"fonts: preview and print", 281, 283, 16},
    {"fonts: no restriction, disabled", 270, 271, 16},
    {"fonts: device font, disabled", 273, 274, 16},
    {"fonts: restricted, disabled", 276, 277, 16},
    {"fonts: bitmap embedding only, disabled", 279, 280, 16},
    {"fonts: preview and print, disabled", 282, 283, 16},
    {"attachments: found", 502, 504, 16},
    {"attachments: missing", 505, 507, 16},
    {"attachments: found, selected", 503, 504, 16},
    {"attachments: missing, selected", 506, 507, 16},
    {"bookmark format: bold", 290, 0, 16},
    {"bookmark format: italic", 292, 0, 16},
    {"bookmark format: underline", 294, 0, 16},
    {"language: English", 311, 320, 24},
    {"language: German", 313, 320, 24},
    {"language: French", 314, 320, 24},
    {"language: Arabic", 315, 320, 24},
    {"info, versions: logo", 157, 300, 64},
    {"watermark: illustration", 162, 163, 48},
    {"graphic: preset 1", 0x5100, 0x5101, 48},
    {"graphic: preset 2", 0x5102, 0x5103, 48},
    {"graphic: preset 3, user-defined", 0x5104, 0x5105, 48},
    {"graphic: preset 4", 0x5106, 0x5107, 48},
    {"graphic: preset 5", 0x5108, 0x5109, 48},
    {"notes: warning", 0x510A, 0x510B, 32},
    {"notes: information", 0x510C, 0x510D, 32},
    {"short notes: warning", 0x510E, 0x510F, 16},
    {"short notes: information", 0x5110, 0x5111, 16},
    {"graphic: illustration", 0x5112, 0x5113, 32},
    {"page: portrait", 0x5114, 0x5115, 32},
    {"page: landscape", 0x5116, 0x5117, 32},
    {"fonts: embedded", 0x5118, 0x5119, 32},
    {"fonts: never embedded", 0x511A, 0x511B, 32},
    {"security: illustration", 0x511C, 0x511D, 32},
    {"passwords: illustration", 0x511E, 0x511F, 32},
    {"fields: illustration", 0x5120, 0x5121, 32},
    {"fields: no add-in", 0x5122, 0x5123, 32},
    {"passwords: equal", 0x5124, 0x5125, 16},
    {"passwords: different", 0x5126, 0x5127, 16},
};

TEST_F(Pictures, WhatBarAndPagesNeedIsThere) {
  std::map<unsigned long, const Row*> byNumber;
  for (const Row& row : rows_) {
    if (!row.IsIcon()) byNumber[row.bitmap] = &row;
  }
  for (const Pair& needed : kNeeded) {
    SCOPED_TRACE(needed.where);
    ASSERT_EQ(byNumber.count(needed.bitmap), 1u);
    const Row& row = *byNumber[needed.bitmap];
    EXPECT_TRUE(needed.mask == 0 || row.mask == needed.mask) << row.mask;
    EXPECT_EQ(row.sizes, std::set<int>{needed.size});
  }
  EXPECT_EQ(byNumber.size(), std::size(kNeeded)) << "a picture that nobody asks for";
}

TEST_F(Pictures, SheetAndTabsHaveTheirIcons) {
  const std::map<unsigned long, std::set<int>> kNeededIcons = {{221, {16, 32}}, {222, {16, 32}}, {512, {16, 32, 48}}};
  std::map<unsigned long, std::set<int>> icons;
  for (const Row& row : rows_) {
    if (row.IsIcon()) icons[row.bitmap] = row.sizes;
  }
  ASSERT_EQ(icons.size(), kNeededIcons.size());
  for (const auto& [number, sizes] : kNeededIcons) {
    for (int size : sizes) EXPECT_EQ(icons[number].count(size), 1u) << "icon " << number << ", " << size << " pixels";
  }
}

// The shared look: one grid, one stroke, one set of colours. Flags have their own colours, marks a red and a green.
TEST_F(Pictures, DrawingsAreOfOneHand) {
  const std::string kRoot =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\" fill=\"none\" stroke=\"#4A7CB0\" "
      "stroke-width=\"1.5\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
  const std::set<std::string> kColours = {"4A7CB0", "EAF1F8", "A9C4DE", "E0771F", "FFFFFF"};
  const std::map<std::string, std::set<std::string>> kOwnColours = {
      {"mark-good", {"2C9158"}},
      {"mark-bad", {"CF4B4B"}},
      {"flag-english", {"1F3F87", "CF2B37"}},
      {"flag-german", {"CF2B37", "26282B", "F2C230"}},
      {"flag-french", {"1F3F87", "CF2B37"}},
      {"flag-arabic", {"1E7A46"}},
  };
  for (const Row& row : rows_) {
    SCOPED_TRACE(row.drawing);
    const std::string svg = ReadFile(kFolder + row.drawing + ".svg");
    EXPECT_EQ(svg.substr(0, kRoot.size()), kRoot);
    EXPECT_EQ(svg.find("<text"), std::string::npos)
        << "letters are drawn, not set: fonts differ from machine to machine";
    EXPECT_EQ(svg.find("<image"), std::string::npos);
    const auto own = kOwnColours.find(row.drawing);
    for (size_t at = svg.find("\"#"); at != std::string::npos; at = svg.find("\"#", at + 1)) {
      const std::string colour = svg.substr(at + 2, 6);
      EXPECT_TRUE(kColours.count(colour) || (own != kOwnColours.end() && own->second.count(colour))) << colour;
    }
  }
}

}  // namespace
