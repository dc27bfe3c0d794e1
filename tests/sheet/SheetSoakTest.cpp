// Many sheets one after the other leave nothing behind.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "driver/Pages.h"
#include "driver/ResourceCounts.h"
#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"
#include "support/HostDialog.h"
#include "window/CActivationContext.h"
#include "window/DialogTemplate.h"

namespace {

// Shows a page, the next one each time, on one tab or the other.
void OpenAndCloseOne(int number) {
  const PageInfo& page = BarPages()[static_cast<size_t>(number) % BarPages().size()];
  HostDialog host;
  host.Set(1, L"Used", 1);
  RunSheet([&host] { return host.DoModal(); },
           [&page, number](Sheet& sheet) -> SheetTask {
             if (number % 2) sheet.SelectTab(0);
             sheet.SelectPage(page.id);
             co_await sheet.Settled();
             sheet.Press(number % 3 ? IDOK : IDCANCEL);
           });
}

INT_PTR CALLBACK PlainProcedure(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

// The platform's own sheet with the same pages: the cockpit and the graphic page, of two tabs.
void OpenAndCloseBareOne() {
  constexpr UINT kTemplates[] = {IDD_COCKPIT_PAGE, IDD_GRAPHIC_PAGE, IDD_COCKPIT_PAGE, IDD_GRAPHIC_PAGE};
  std::vector<BYTE> dialogs[std::size(kTemplates)];
  PROPSHEETPAGEW pages[std::size(kTemplates)]{};
  for (size_t i = 0; i < std::size(pages); ++i) {
    dialogs[i] = LoadDialogTemplate(kTemplates[i]);
    PROPSHEETPAGEW& page = pages[i];
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DLGINDIRECT;
    page.hInstance = GetModuleHandleW(nullptr);
    page.pResource = reinterpret_cast<const DLGTEMPLATE*>(dialogs[i].data());
    page.pfnDlgProc = PlainProcedure;
  }
  PROPSHEETHEADERW header{};
  header.dwSize = sizeof header;
  header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
  header.hInstance = GetModuleHandleW(nullptr);
  header.nPages = static_cast<UINT>(std::size(pages));
  header.ppsp = pages;
  const CActivationScope look;
  RunSheet([&header] { return PropertySheetW(&header); },
           [](Sheet& sheet) -> SheetTask {
             for (int tab = 1; tab < sheet.TabCount(); ++tab) {
               sheet.SelectTab(tab);
               co_await sheet.Settled();
             }
             sheet.PressOk();
           });
}

// What `count` sheets leave behind, once the first ones have filled the platform's caches.
template <class OpenAndClose>
ResourceCounts LeftBy(int count, int first, OpenAndClose openAndClose) {
  for (int i = 0; i < first; ++i) openAndClose(i);
  const ResourceCounts before = Count();
  for (int i = 0; i < count; ++i) openAndClose(i);
  return Count() - before;
}

// ./test --soak asks for more.
int SheetsToOpen() {
  const char* asked = std::getenv("NEMPDF_SOAK_SHEETS");
  return asked ? std::max(1, std::atoi(asked)) : 200;
}

TEST(SheetSoak, ManySheetsLeaveNothingBehind) {
  constexpr int kBareSheets = 40;
  const int sheets = SheetsToOpen();
  const LanguageScope english(kEnglish);
  const ResourceCounts bare = LeftBy(kBareSheets, 4, [](int) { OpenAndCloseBareOne(); });
  const ResourceCounts left =
      LeftBy(sheets, 4 * static_cast<int>(BarPages().size()), [](int i) { OpenAndCloseOne(i); });
  std::printf("%d bare: %s\n%d of ours: %s\n", kBareSheets, Describe(bare).c_str(), sheets, Describe(left).c_str());
  EXPECT_EQ(0, left.gdiObjects);
  EXPECT_EQ(0, left.windows);
  EXPECT_EQ(0, left.handles);
  // The platform's own sheet may keep some memory each time; Wine's does.
  const auto perBareSheet = static_cast<ptrdiff_t>(bare.heapBytes) / kBareSheets;
  EXPECT_LT(static_cast<ptrdiff_t>(left.heapBytes) / sheets, perBareSheet + 16) << "bytes a sheet are a leak";
}

}  // namespace
