// What stands in the navigation bar, and the order of the pages behind it.
#include "sheet/BarContents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>
#include <vector>

#include "MessageIds.h"
#include "sheet/PageNumbers.h"

namespace {

struct Entry {
  int pageId;
  uint32_t textId, imageId, maskId;
};
struct Folder {
  uint32_t textId, imageId, maskId;
  std::vector<Entry> entries;
};

const std::vector<Folder> kExpected = {
    {0x4001083F, 321, 322, {{120, 0x4001083F, 321, 322}}},
    {0x4001083C, 249, 250, {{108, MSG_PAGE_GRAPHICAL_OPTIMIZATION, 251, 252}}},
    {0x4001083D,
     253,
     254,
     {{100, MSG_PAGE_PAPER, 263, 264},
      {109, MSG_PAGE_DISPLAY, 235, 236},
      {110, MSG_PAGE_FONTS, 269, 271},
      {101, 0x4001082E, 233, 234},
      {113, MSG_PAGE_LINKS, 261, 262},
      {114, MSG_PAGE_ATTACHMENTS, 343, 344},
      {119, MSG_PAGE_BOOKMARK, 286, 287}}},
    {0x40010878,
     284,
     285,
     {{103, MSG_PAGE_SAVING, 255, 256},
      {118, MSG_PAGE_OUTPUT_FORMAT, 284, 285},
      {102, MSG_PAGE_ACTIONS, 237, 238},
      {104, MSG_PAGE_MAIL, 243, 244},
      {111, MSG_PAGE_COLORSPACE, 239, 240},
      {112, MSG_PAGE_ZUGFERD_INVOICE, 286, 287}}},
    {0x40010843, 247, 248, {{115, MSG_PAGE_FIELDS, 245, 246}, {116, MSG_PAGE_COLOR_SETTINGS, 239, 240}}},
    {0x40010844, 265, 266, {{117, 0x40010844, 267, 268}, {105, MSG_PAGE_DOCUMENT_INFO, 241, 242}}},
    {0x400107D7,
     257,
     258,
     {{106, 0x400107D7, 257, 258},
      {107, MSG_PAGE_LANGUAGE, 319, 318},
      {121, MSG_PAGE_UPDATE, 328, 330},
      {123, MSG_PAGE_STATISTICS, 257, 258}}},
};

TEST(BarContents, FoldersAndEntriesHaveTheirTextsPagesAndPictures) {
  ASSERT_EQ(kExpected.size(), BarFolders().size());
  for (size_t f = 0; f < kExpected.size(); ++f) {
    SCOPED_TRACE(testing::Message() << "folder " << f);
    const Folder& expected = kExpected[f];
    const BarFolderRow& folder = BarFolders()[f];
    EXPECT_EQ(std::tuple(expected.textId, expected.imageId, expected.maskId),
              std::tuple(folder.textId, folder.imageId, folder.maskId));
    ASSERT_EQ(expected.entries.size(), folder.entries.size());
    for (size_t e = 0; e < expected.entries.size(); ++e) {
      const BarEntryRow& entry = folder.entries[e];
      EXPECT_EQ(std::tuple(expected.entries[e].pageId, expected.entries[e].textId, expected.entries[e].imageId,
                           expected.entries[e].maskId),
                std::tuple(entry.pageId, entry.textId, entry.imageId, entry.maskId))
          << "entry " << e;
    }
  }
}

TEST(BarContents, EveryPageOfTheTabOrderHasOneEntry) {
  std::multiset<int> inBar;
  for (const BarFolderRow& folder : BarFolders())
    for (const BarEntryRow& entry : folder.entries) inBar.insert(entry.pageId);
  EXPECT_EQ(inBar, std::multiset<int>(TabOrder().begin(), TabOrder().end()));
  for (int id = kFirstPageId; id <= kLastPageId; ++id) EXPECT_EQ(id == 122 ? 0u : 1u, inBar.count(id)) << id;
  EXPECT_EQ(23u, inBar.size());
}

}  // namespace
