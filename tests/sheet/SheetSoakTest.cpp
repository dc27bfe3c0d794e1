// Many sheets one after the other leave nothing behind.
#include <gtest/gtest.h>

#include "driver/ResourceCounts.h"
#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"
#include "support/HostDialog.h"
#include "window/CActivationContext.h"
#include "window/DialogTemplate.h"

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

INT_PTR CALLBACK PlainProcedure(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

// The platform's own sheet with two pages of the graphic page's template.
void OpenAndCloseBareOne() {
  const std::vector<BYTE> dialog = LoadDialogTemplate(IDD_GRAPHIC_PAGE);
  PROPSHEETPAGEW pages[2]{};
  for (PROPSHEETPAGEW& page : pages) {
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DLGINDIRECT;
    page.hInstance = GetModuleHandleW(nullptr);
    page.pResource = reinterpret_cast<const DLGTEMPLATE*>(dialog.data());
    page.pfnDlgProc = PlainProcedure;
  }
  PROPSHEETHEADERW header{};
  header.dwSize = sizeof header;
  header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
  header.hInstance = GetModuleHandleW(nullptr);
  header.nPages = 2;
  header.ppsp = pages;
  const CActivationScope look;
  RunSheet([&header] { return PropertySheetW(&header); },
           [](Sheet& sheet) -> SheetTask {
             sheet.SelectTab(1);
             co_await sheet.Settled();
             sheet.PressOk();
           });
}

// What `count` sheets leave behind, once the platform's caches are full.
template <class OpenAndClose>
ResourceCounts LeftBy(int count, OpenAndClose openAndClose) {
  for (int i = 0; i < 4; ++i) openAndClose(i);
  const ResourceCounts before = Count();
  for (int i = 0; i < count; ++i) openAndClose(i);
  return Count() - before;
}

TEST(SheetSoak, SheetsLeaveNothingBehind) {
  constexpr int kSheets = 200, kBareSheets = 40;
  const LanguageScope english(kEnglish);
  const ResourceCounts bare = LeftBy(kBareSheets, [](int) { OpenAndCloseBareOne(); });
  const ResourceCounts left = LeftBy(kSheets, [](int i) { OpenAndCloseOne(i % 2); });
  std::printf("bare: %s\nours: %s\n", Describe(bare).c_str(), Describe(left).c_str());
  EXPECT_EQ(0, left.gdiObjects);
  EXPECT_EQ(0, left.windows);
  EXPECT_EQ(0, left.handles);
  // The platform's own sheet may keep some memory each time; Wine's does.
  const auto perBareSheet = static_cast<ptrdiff_t>(bare.heapBytes) / kBareSheets;
  EXPECT_LT(static_cast<ptrdiff_t>(left.heapBytes) / kSheets, perBareSheet + 16) << "bytes a sheet are a leak";
}

}  // namespace
