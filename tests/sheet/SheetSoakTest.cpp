// Many sheets one after the other leave nothing behind.
#include <gtest/gtest.h>

#include "driver/ResourceCounts.h"
#include "driver/SheetDriver.h"
#include "support/FakeSheet.h"
#include "support/HostDialog.h"

namespace {

void OpenAndCloseOne(bool ok) {
  HostDialog host;
  host.Set(1, L"Used", 1);
  RunSheet([&host] { return host.DoModal(); },
           [ok](Sheet& sheet) -> SheetTask {
             sheet.SelectPage(108);
             sheet.SelectTab(0);
             sheet.SelectPage(108);
             co_await sheet.Settled();
             sheet.Press(ok ? IDOK : IDCANCEL);
           });
}

TEST(SheetSoak, SheetsLeaveNothingBehind) {
  constexpr int kSheets = 200;
  const LanguageScope english(kEnglish);
  for (int i = 0; i < 4; ++i) OpenAndCloseOne(i % 2);  // caches of the platform fill
  const ResourceCounts before = Count();
  const ULONGLONG start = GetTickCount64();
  for (int i = 0; i < kSheets; ++i) OpenAndCloseOne(i % 2);
  const ResourceCounts left = Count() - before;
  std::printf("%llu ms, %s\n", GetTickCount64() - start, Describe(left).c_str());
  EXPECT_EQ(0, left.gdiObjects);
  EXPECT_EQ(0, left.windows);
  EXPECT_EQ(0, left.handles);
  EXPECT_LT(static_cast<ptrdiff_t>(left.heapBytes), kSheets * 16) << "bytes a sheet would be a leak";
}

}  // namespace
