// The test driver's pictures and counters on trial.
#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <cstdio>

#include "driver/Picture.h"
#include "driver/ResourceCounts.h"
#include "DriverFixture.h"

using namespace driver_test;

namespace {

class DriverResources : public Driver {};

}  // namespace

TEST_F(DriverResources, CapturesTheSheetAndWritesAPng) {
  wchar_t path[MAX_PATH];
  GetTempPathW(MAX_PATH, path);
  const std::wstring file = std::wstring(path) + L"nempdf-driver-test.png";
  With([&file](Sheet& sheet) -> SheetTask {
    const Picture picture = Capture(sheet.Window());
    RECT bounds = {};
    GetWindowRect(sheet.Window(), &bounds);
    EXPECT_EQ(bounds.right - bounds.left, picture.width);
    EXPECT_GT(picture.ColourCount(), 20);
    EXPECT_TRUE(SavePng(picture, file));
    const Picture corner = Cut(picture, {picture.width - 3, -5, picture.width + 9, 2});
    EXPECT_EQ(3, corner.width);
    EXPECT_EQ(2, corner.height);
    EXPECT_EQ(picture.At(picture.width - 3, 0), corner.At(0, 0));
    co_return;
  });
  std::FILE* written = _wfopen(file.c_str(), L"rb");
  ASSERT_NE(nullptr, written);
  char signature[9] = {};
  EXPECT_EQ(8u, std::fread(signature, 1, 8, written));
  std::fclose(written);
  DeleteFileW(file.c_str());
  EXPECT_STREQ("\x89PNG\r\n\x1A\n", signature);
}

TEST(DriverResourceCounts, SeeEachKindOfResource) {
  const ResourceCounts before = Count();
  HBRUSH brushes[10];
  for (HBRUSH& brush : brushes) brush = CreateSolidBrush(5);
  HANDLE events[7];
  for (HANDLE& event : events) event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  const HWND window = CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  void* block = HeapAlloc(GetProcessHeap(), 0, 100000);
  const ResourceCounts held = Count() - before;
  HeapFree(GetProcessHeap(), 0, block);
  DestroyWindow(window);
  for (HANDLE event : events) CloseHandle(event);
  for (HBRUSH brush : brushes) DeleteObject(brush);
  const ResourceCounts after = Count() - before;

  EXPECT_EQ(10, held.gdiObjects);
  EXPECT_EQ(7, held.handles);
  EXPECT_EQ(1, held.windows);
  EXPECT_GE(held.heapBytes, 100000u);
  EXPECT_EQ(0, after.gdiObjects);
  EXPECT_EQ(0, after.handles);
  EXPECT_EQ(0, after.windows);
}

TEST_F(DriverResources, LeavesNothingBehind) {
  const auto run = [this] { With([](Sheet& sheet) -> SheetTask { co_await sheet.Settled(); }); };
  run();
  run();
  const ResourceCounts before = Count();
  for (int i = 0; i < 5; ++i) run();
  const ResourceCounts grown = Count() - before;
  EXPECT_EQ(0, grown.gdiObjects) << Describe(grown);
  EXPECT_EQ(0, grown.windows) << Describe(grown);
  EXPECT_EQ(0, grown.handles) << Describe(grown);
}
