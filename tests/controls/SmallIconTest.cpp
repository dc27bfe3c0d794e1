// The icon in a title bar, at several dpi.
#include "window/SmallIcon.h"

#include <gtest/gtest.h>

#include "PlatformSpy.h"
#include "resources/ResourceIds.h"
#include "support/IconPixels.h"
#include "window/SystemMetrics.h"

namespace {

TEST(SmallIcon, HasTheSizeOfTheWindowsDpi) {
  const CWnd window(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr));
  for (const UINT dpi : {96u, 192u, 144u, 96u}) {
    const DpiScope scope(dpi);
    const GdiIcon icon = SetSmallIcon(window, IDI_PRODUCT);
    ASSERT_TRUE(icon);
    EXPECT_EQ(reinterpret_cast<LRESULT>(icon.Get()), window.Send(WM_GETICON, ICON_SMALL));
    const std::vector<DWORD> pixels = IconPixels(icon.Get());
    const auto size = static_cast<DWORD>(SystemMetric(SM_CXSMICON, static_cast<int>(dpi)));
    ASSERT_LT(2u, pixels.size());
    EXPECT_EQ(size, pixels[0]) << dpi;
    EXPECT_EQ(size, pixels[1]) << dpi;
    window.Send(WM_SETICON, ICON_SMALL);
  }
  ::DestroyWindow(window.Handle());
}

TEST(SmallIcon, BelongsToOneWindow) {
  const CWnd window(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr));
  const GdiIcon first = SetSmallIcon(window, IDI_PRODUCT), second = SetSmallIcon(window, IDI_PRODUCT);
  EXPECT_NE(first.Get(), second.Get()) << "a shared one keeps the size of its first load";
  ::DestroyWindow(window.Handle());
}

}  // namespace
