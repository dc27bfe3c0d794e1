#include "driver/Bar.h"

#include "driver/Pages.h"

namespace {

// In pixels at 96 dpi: the title, then the frame and a gap, then the entries, each with a line before it but the
// first. The folders' buttons are stacked at the bottom.
constexpr int kTitleHeight = 35;
constexpr int kFirstGap = 1 + 2;
constexpr int kEntryHeight = 21;
constexpr int kEntryPitch = kEntryHeight + 7;
constexpr int kFolderHeight = 24;
constexpr int kAcross = 60;

int Scale(HWND window, int pixels) { return MulDiv(pixels, static_cast<int>(GetDpiForWindow(window)), 96); }

SheetTask ClickInBar(Sheet& sheet, POINT point) {
  const ControlRef bar = sheet.Bar();
  bar.ClickAt(point.x, point.y);
  bar.MoveMouseTo(-1, -1);
  co_await sheet.Settled();
}

}  // namespace

POINT BarFolderPoint(HWND bar, int folder) {
  RECT client = {};
  GetClientRect(bar, &client);
  const int above = kFolderHeight * (kBarFolderCount - folder) - kFolderHeight / 2;
  return {Scale(bar, kAcross), client.bottom - Scale(bar, above)};
}

POINT BarEntryPoint(HWND bar, int entry) {
  return {Scale(bar, kAcross), Scale(bar, kTitleHeight + kFirstGap + kEntryPitch * entry + kEntryHeight / 2)};
}

SheetTask ClickPage(Sheet& sheet, int pageId, bool& shown) {
  const PageInfo* page = FindPageById(pageId);
  CO_ASSERT_NE(nullptr, page);
  const HWND first = sheet.Page();
  co_await ClickInBar(sheet, BarFolderPoint(sheet.Bar().Window(), page->folder));
  const HWND second = sheet.Page();
  co_await ClickInBar(sheet, BarEntryPoint(sheet.Bar().Window(), page->entry));

  // A page that tells no number is known by its coming up: at the click on the folder if it is the first there.
  const int now = sheet.PageId();
  const HWND before = page->entry == 0 ? first : second;
  shown = now == pageId || (now == 0 && sheet.Page() != before);
}
