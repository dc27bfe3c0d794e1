#include "environment/DroppedFiles.h"

#include <gtest/gtest.h>

#include "support/DropRecord.h"
#include "support/PrintText.h"

TEST(DroppedFiles, TellsWhereAndWhatInTheUsersOrder) {
  const std::wstring longPath = L"C:\\" + std::wstring(400, L'x') + L"\\b.doc";
  const HGLOBAL record = MakeDropRecord({-3, 456}, {L"C:\\z.pdf", longPath, L"\u0627.xml"});
  const DroppedFiles files = TakeDroppedFiles(reinterpret_cast<WPARAM>(record));
  EXPECT_EQ(-3, files.point.x);
  EXPECT_EQ(456, files.point.y);
  ASSERT_EQ(3, files.paths.Count());
  EXPECT_EQ(files.paths[0], L"C:\\z.pdf");
  EXPECT_EQ(files.paths[1], longPath);
  EXPECT_EQ(files.paths[2], L"\u0627.xml");
}

TEST(DroppedFiles, FreesTheRecord) {
  const HGLOBAL record = MakeDropRecord({}, {L"a"});
  EXPECT_NE(UINT{GMEM_INVALID_HANDLE}, GlobalFlags(record));
  TakeDroppedFiles(reinterpret_cast<WPARAM>(record));
  EXPECT_EQ(UINT{GMEM_INVALID_HANDLE}, GlobalFlags(record));
}

TEST(DroppedFiles, NoRecordIsNoFiles) { EXPECT_EQ(0, TakeDroppedFiles(0).paths.Count()); }
