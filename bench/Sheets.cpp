#include "window/Windows.h"
// behind Windows.h
#include "Sheets.h"

#include <functional>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "pages/CNemUIPdfFontsPage.h"
#include "pages/CNemUIPdfGraphicPage.h"
#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"
#include "support/HostDialog.h"
#include "window/CActivationContext.h"
#include "window/DialogTemplate.h"

namespace {

using Clock = std::chrono::steady_clock;

// Waits for the next top-level dialog of the thread, paints it as soon as its message loop runs, tells, and presses OK.
class SheetStopwatch {
 public:
  explicit SheetStopwatch(std::function<void()> whenPainted = {}) : whenPainted_(std::move(whenPainted)) {
    current_ = this;
    messages_ = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(messages_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnMessage));
    hook_ = SetWindowsHookExW(WH_CBT, OnCreate, nullptr, GetCurrentThreadId());
    start_ = Clock::now();
  }
  ~SheetStopwatch() {
    if (hook_) UnhookWindowsHookEx(hook_);
    DestroyWindow(messages_);
    current_ = nullptr;
  }
  double Time() const { return Microseconds(painted_ - start_); }

 private:
  static LRESULT CALLBACK OnCreate(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && !current_->sheet_ &&
        GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG)) {
      current_->sheet_ = window;
      PostMessageW(current_->messages_, WM_APP, 0, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }
  static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_APP) return DefWindowProcW(window, message, wParam, lParam);
    RedrawWindow(current_->sheet_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    current_->painted_ = Clock::now();
    if (current_->whenPainted_) current_->whenPainted_();
    SendMessageW(current_->sheet_, PSM_PRESSBUTTON, PSBTN_OK, 0);
    return 0;
  }

  static inline SheetStopwatch* current_ = nullptr;
  std::function<void()> whenPainted_;
  HWND messages_ = nullptr, sheet_ = nullptr;
  HHOOK hook_ = nullptr;
  Clock::time_point start_, painted_;
};

INT_PTR CALLBACK PlainProcedure(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

HWND CreatePlainDialog(UINT templateId, HWND parent) {
  const std::vector<BYTE> dialog = LoadDialogTemplate(templateId);
  return CreateDialogIndirectParamW(GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(dialog.data()),
                                    parent, PlainProcedure, 0);
}

INT_PTR CALLBACK HostProcedure(HWND window, UINT message, WPARAM, LPARAM) {
  if (message != WM_INITDIALOG) return FALSE;
  ShowWindow(CreatePlainDialog(IDD_COCKPIT_PAGE, window), SW_SHOW);
  return TRUE;
}

double TimeBareSheet() {
  const std::vector<BYTE> host = LoadDialogTemplate(IDD_HOST_PAGE);
  PROPSHEETPAGEW page{};
  page.dwSize = sizeof page;
  page.dwFlags = PSP_DLGINDIRECT;
  page.hInstance = GetModuleHandleW(nullptr);
  page.pResource = reinterpret_cast<const DLGTEMPLATE*>(host.data());
  page.pfnDlgProc = HostProcedure;
  PROPSHEETHEADERW header{};
  header.dwSize = sizeof header;
  header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
  header.hInstance = GetModuleHandleW(nullptr);
  header.pszCaption = L"Settings";
  header.nPages = 1;
  header.ppsp = &page;
  const CActivationScope look;
  const SheetStopwatch watch;
  PropertySheetW(&header);
  return watch.Time();
}

double TimeSheet() {
  const HostDialog dialog;
  const SheetStopwatch watch;
  dialog.DoModal();
  return watch.Time();
}

size_t HeapBytes() {
  size_t bytes = 0;
  HANDLE heaps[64];
  const DWORD count = GetProcessHeaps(64, heaps);
  for (DWORD i = 0; i < count && i < 64; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry))
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
  }
  return bytes;
}

void ShowAndPaint(HWND window) {
  ShowWindow(window, SW_SHOW);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

}  // namespace

Comparison BenchOpeningSheet(int rounds) { return Compare(rounds, TimeSheet, TimeBareSheet); }

Comparison BenchFirstShowOfGraphicPage(int rounds) {
  const PageParent parent;
  constexpr PageDescription kDescription{IDD_GRAPHIC_PAGE, 0, MSG_PAGE_GRAPHICAL_OPTIMIZATION, 108, 251, 252};
  FakeSheet sheet;
  sheet.properties.GraphicResolution[0].SetLong(600);
  sheet.properties.GraphicCompressMethod[0].SetLong(4);
  sheet.properties.GraphicJpegQuality[0].SetLong(85);
  sheet.properties.GraphicColorReduction[0].SetLong(1);
  const auto ours = [&] {
    CNemUIPdfGraphicPage page(&sheet, kDescription, 0);
    return TimeOf([&] {
      page.Create(parent.Window());
      ShowAndPaint(page.Handle());
    });
  };
  const auto floor = [&] {
    HWND dialog = nullptr;
    const double time = TimeOf([&] {
      const CActivationScope look;
      dialog = CreatePlainDialog(IDD_GRAPHIC_PAGE, parent.Window());
      ShowAndPaint(dialog);
    });
    DestroyWindow(dialog);
    return time;
  };
  return Compare(rounds, ours, floor);
}

Comparison BenchFontsPage(int rounds) {
  const PageParent parent;
  constexpr PageDescription kDescription{IDD_FONTS_PAGE, 0, MSG_PAGE_FONTS, 110, 269, 271};
  constexpr uint16_t kSelective = 2;
  FakeSheet sheet;
  sheet.properties.FontsEmbedded[0].SetLong(kSelective);
  // Each second font changes its list at the start.
  std::wstring names;
  for (int i = 0; i < 1000; i += 2) names += L"Font " + std::to_wstring(i) + L";";
  sheet.properties.FontsEmbeddedOrNoEmbeddedList[0].SetString(names.c_str());
  const auto timeWith = [&](int fonts) {
    CNemUIPdfFontsPage page(&sheet, kDescription, 0);
    page.enumerateFonts = [fonts](HDC, const FontVisitor& visit) {
      for (int i = 0; i < fonts; ++i) {
        const std::wstring name = L"Font " + std::to_wstring(i);
        visit({name, 0, kTrueTypeFont, [] { return std::vector<uint8_t>(96); }});
      }
    };
    return TimeOf([&] {
      page.Create(parent.Window());
      ShowAndPaint(page.Handle());
    });
  };
  return Compare(
      rounds, [&] { return timeWith(1000); }, [&] { return timeWith(100); });
}

size_t MemoryOfOpenSheet() {
  TimeSheet();  // what the first sheet loads stays
  const size_t before = HeapBytes();
  size_t open = 0;
  const HostDialog dialog;
  const SheetStopwatch watch([&] { open = HeapBytes(); });
  dialog.DoModal();
  return open - before;
}
