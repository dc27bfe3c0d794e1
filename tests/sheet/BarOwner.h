// A dialog that owns a navigation bar, as a host page does, and keeps a record of what the bar asks of it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "sheet/COutlook2Ctrl.h"
#include "support/Canvas.h"
#include "window/CCmdUI.h"

class BarOwner {
 public:
  static constexpr int kBarId = 100;
  static constexpr int kButtonId = 7;

  // A visible dialog with the bar and a button, both tab stops.
  explicit BarOwner(bool mirrored = false) {
    struct alignas(4) {
      DLGTEMPLATE head;
      WORD menu = 0, windowClass = 0, title = 0;
    } dialogTemplate{};
    dialogTemplate.head.style = WS_POPUP | WS_VISIBLE | DS_CONTROL;
    dialogTemplate.head.dwExtendedStyle = mirrored ? WS_EX_LAYOUTRTL : 0;
    window = ::CreateDialogIndirectParamW(::GetModuleHandleW(nullptr), &dialogTemplate.head, nullptr, Procedure,
                                          reinterpret_cast<LPARAM>(this));
    ::SetWindowPos(window, nullptr, 20, 20, 400, 500, SWP_NOZORDER);
    bar = std::make_unique<COutlook2Ctrl>();
    bar->SetSlide(COutlook2Ctrl::Slide::Never);
    bar->Create(CWnd(window), kBarId, WS_TABSTOP);
    bar->Move({10, 10, 159, 430});
    button = ::CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 300, 10, 80, 30, window,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(kButtonId)), nullptr, nullptr);
    // No dialog hides the focus while no key has been pressed.
    ::SendMessageW(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
  }
  ~BarOwner() {
    if (::IsWindow(window)) ::DestroyWindow(window);
  }
  BarOwner(const BarOwner&) = delete;
  BarOwner& operator=(const BarOwner&) = delete;

  // Three folders. Commands: 100 in the first, 110 to 112 in the second, each in a group of its own, 120 in the third.
  void FillLikeASheet() {
    bar->AddFolder(L"First", 0, 100);
    Add(100);
    bar->AddFolder(L"Second", 0, 110);
    for (int command = 110; command < 113; ++command) Add(command);
    bar->AddFolder(L"Third", 0, 120);
    Add(120);
    Settle();
  }
  void Add(int command, BarEntryKind kind = BarEntryKind::Plain) {
    bar->AddGroup(L"", 0);
    bar->AddEntry((L"Entry " + std::to_wstring(command)).c_str(), 0, kind, command);
  }

  // Selecting a page: the command becomes the checked one, unless it is refused.
  void Select(int command) {
    checked = command;
    bar->UpdateEntries();
  }
  // Paints what is to be painted, and forgets what was asked for that.
  void Settle() {
    ::UpdateWindow(window);
    ::UpdateWindow(bar->Handle());
    probes.clear();
  }

  static POINT Middle(const IntRect& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }
  POINT FolderPoint(int folder) const { return Middle(bar->Model().Folder(folder)->rect); }
  POINT EntryPoint(int folder, int group, int entry = 0) const {
    return Middle(bar->Model().Entry(folder, group, entry)->rect);
  }
  void Mouse(UINT message, POINT point) const { bar->Send(message, 0, MAKELPARAM(point.x, point.y)); }
  void Click(POINT point) const { Mouse(WM_LBUTTONDOWN, point); }
  void Press(WPARAM key) const { bar->Send(WM_KEYDOWN, key, 0); }

  // The bar as it stands on the screen.
  std::unique_ptr<Canvas> Picture() const {
    const RECT client = bar->ClientRect();
    auto canvas = std::make_unique<Canvas>(client.right, client.bottom, RGB(255, 0, 255));
    const WindowDC dc(bar->Handle());
    ::SetLayout(dc, 0);
    ::BitBlt(*canvas, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    return canvas;
  }
  RECT PendingPaint() const {
    RECT rect{};
    ::GetUpdateRect(bar->Handle(), &rect, FALSE);
    return rect;
  }

  HWND window = nullptr, button = nullptr;
  std::unique_ptr<COutlook2Ctrl> bar;

  HFONT font = nullptr;
  int checked = 0;
  std::set<int> refused;
  std::vector<int> commands;             // in the order in which they came
  std::vector<int> probes;               // the same
  std::function<void(int)> onCommand;    // instead of selecting
  std::function<void(CCmdUI&)> onProbe;  // instead of SetCheck
  LPARAM lastSender = 0;
  int lastNotification = -1;

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
      ::SetWindowLongPtrW(window, DWLP_USER, lParam);
      return FALSE;
    }
    auto* self = reinterpret_cast<BarOwner*>(::GetWindowLongPtrW(window, DWLP_USER));
    if (!self) return FALSE;
    if (message == WM_COMMAND) {
      const int accepted = self->OnCommand(LOWORD(wParam), HIWORD(wParam), lParam);
      if (::IsWindow(window)) ::SetWindowLongPtrW(window, DWLP_MSGRESULT, accepted);
      return TRUE;
    }
    if (message == WM_GETFONT) {
      ::SetWindowLongPtrW(window, DWLP_MSGRESULT, reinterpret_cast<LONG_PTR>(self->font));
      return TRUE;
    }
    if (message == kUpdateCommandMessage) {
      CCmdUI& probe = *reinterpret_cast<CCmdUI*>(lParam);
      self->probes.push_back(static_cast<int>(wParam));
      if (self->onProbe)
        self->onProbe(probe);
      else
        probe.SetCheck(probe.Id() == self->checked);
      return TRUE;
    }
    return FALSE;
  }

  int OnCommand(int command, int notification, LPARAM sender) {
    commands.push_back(command);
    lastNotification = notification;
    lastSender = sender;
    if (onCommand) {
      onCommand(command);
      return 1;
    }
    if (refused.count(command)) return 0;
    checked = command;
    return 1;
  }
};
