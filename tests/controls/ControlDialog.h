// A small dialog of the test's own, to which a test adds the controls that it wants, and what tests of controls need.
#pragma once

#include "window/Windows.h"
// behind Windows.h
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "driver/ImportPatch.h"
#include "driver/Picture.h"
#include "window/CActivationContext.h"
#include "window/CDialog.h"
#include "window/Gdi.h"

class ControlDialog : public CDialog {
 public:
  enum class Layout { LeftToRight, RightToLeft };

  explicit ControlDialog(Layout layout = Layout::LeftToRight, HWND parent = nullptr) : CDialog(0) {
    const CActivationScope look;
    struct {
      DLGTEMPLATE head;
      WORD menu, className, title;
      WORD points;
      wchar_t face[13];
    } dialog{{static_cast<DWORD>(DS_SETFONT | WS_VISIBLE | (parent ? WS_CHILD | DS_CONTROL : WS_POPUP)),
              static_cast<DWORD>(layout == Layout::RightToLeft ? WS_EX_LAYOUTRTL : 0), 0, 0, 0, 200, 120},
             0,
             0,
             0,
             8,
             L"MS Shell Dlg"};
    ::CreateDialogIndirectParamW(::GetModuleHandleW(nullptr), &dialog.head, parent, Procedure,
                                 reinterpret_cast<LPARAM>(this));
    if (!parent) ::SetForegroundWindow(Handle());
  }
  ~ControlDialog() override { Destroy(); }

  // Adds a visible control; the rectangle is one in pixels. A plain control is one of the system's old ones, which draw
  // in other ways than those of common controls 6.
  enum class Kind { Themed, Plain };
  CWnd Add(const wchar_t* className, const wchar_t* text, DWORD style, int id, const RECT& rect,
           Kind kind = Kind::Themed) {
    std::optional<CActivationScope> look;
    if (kind == Kind::Themed) look.emplace();
    const HWND control = ::CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                                           rect.right - rect.left, rect.bottom - rect.top, Handle(),
                                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    CWnd(control).SetFont(Font());
    return CWnd(control);
  }

  // The messages of this number that the dialog was sent.
  std::vector<WindowMessage> Received(UINT number) const {
    std::vector<WindowMessage> found;
    for (const WindowMessage& message : received)
      if (message.message == number) found.push_back(message);
    return found;
  }

  std::vector<WindowMessage> received;  // all that reached the dialog's own handlers
  std::function<void(const WindowMessage&)> onMessage;
  std::optional<COLORREF> ground;  // the dialog's colour, if not the system's
  HBRUSH brush = nullptr;          // or its brush

 protected:
  bool OnWindowMessage(WindowMessage& message) override {
    received.push_back(message);
    if ((ground || brush) && (message.message == WM_CTLCOLORDLG || message.message == WM_CTLCOLORBTN ||
                              message.message == WM_CTLCOLORSTATIC)) {
      if (ground) groundBrush_ = GdiBrush(::CreateSolidBrush(*ground));
      message.result = reinterpret_cast<LRESULT>(ground ? groundBrush_.Get() : brush);
      return true;
    }
    if (onMessage) onMessage(message);
    return CDialog::OnWindowMessage(message);
  }

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) reinterpret_cast<ControlDialog*>(lParam)->BindWindow(window);
    return Process(window, message, wParam, lParam);
  }

  GdiBrush groundBrush_;
};

// --- Pictures -------------------------------------------------------------------------------------------------------

constexpr COLORREF kMarkedGround = RGB(200, 230, 180);  // no colour of the system

// A colour as it stands in a picture.
constexpr uint32_t PixelOf(COLORREF color) {
  return 0xFF000000u | (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

// The control as it has painted itself.
inline Picture Paint(const CWnd& control) {
  control.Invalidate();
  control.Redraw();
  return Capture(control.Handle());
}

// Whether the control draws the same when it is asked to print itself, whatever stood there.
inline bool PrintsWhatItPaints(const CWnd& control) {
  const Picture painted = Paint(control);
  const WindowDC dc(control.Handle());
  const RECT client = control.ClientRect();
  ::FillRect(dc, &client, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
  control.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)), PRF_CLIENT);
  return painted.pixels == Capture(control.Handle()).pixels;
}

// The smallest rectangle that holds all pixels of another colour; empty when there are none.
inline RECT Inked(const Picture& picture, COLORREF ground) {
  RECT inked{picture.width, picture.height, 0, 0};
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x)
      if (picture.At(x, y) != PixelOf(ground)) {
        inked.left = std::min<LONG>(inked.left, x);
        inked.right = std::max<LONG>(inked.right, x + 1);
        inked.top = std::min<LONG>(inked.top, y);
        inked.bottom = std::max<LONG>(inked.bottom, y + 1);
      }
  return inked.left < inked.right ? inked : RECT{};
}

inline int CountPixels(const Picture& picture, COLORREF color) {
  return static_cast<int>(std::count(picture.pixels.begin(), picture.pixels.end(), PixelOf(color)));
}

// --- Surroundings ---------------------------------------------------------------------------------------------------

// For its life the system says that the user runs a high-contrast scheme.
class HighContrastScope {
 public:
  HighContrastScope() {
    PatchImport("user32.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&SystemParameters));
  }
  ~HighContrastScope() { RestoreImport("user32.dll", "SystemParametersInfoW"); }
  HighContrastScope(const HighContrastScope&) = delete;
  HighContrastScope& operator=(const HighContrastScope&) = delete;

 private:
  static BOOL WINAPI SystemParameters(UINT action, UINT size, void* data, UINT flags) {
    if (action != SPI_GETHIGHCONTRAST)
      return RealFunction("user32.dll", "SystemParametersInfoW", &SystemParameters)(action, size, data, flags);
    static_cast<HIGHCONTRASTW*>(data)->dwFlags = HCF_HIGHCONTRASTON;
    return TRUE;
  }
};

// For its life some of the system's colours are others.
class SystemColorScope {
 public:
  explicit SystemColorScope(const std::map<int, COLORREF>& colors) {
    for (const auto& [index, color] : colors) {
      previous_[index] = ::GetSysColor(index);
      ::SetSysColors(1, &index, &color);
    }
  }
  ~SystemColorScope() {
    for (const auto& [index, color] : previous_) ::SetSysColors(1, &index, &color);
  }
  SystemColorScope(const SystemColorScope&) = delete;
  SystemColorScope& operator=(const SystemColorScope&) = delete;

 private:
  std::map<int, COLORREF> previous_;
};

// Lets the control know whether keyboard cues are shown. Not every system keeps that state, so it is kept here.
inline void ShowKeyboardCues(const CWnd& control, bool show) {
  const auto answer = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                         DWORD_PTR state) -> LRESULT {
    return message == WM_QUERYUISTATE ? static_cast<LRESULT>(state)
                                      : ::DefSubclassProc(window, message, wParam, lParam);
  };
  ::SetWindowSubclass(control.Handle(), answer, 1, show ? 0 : UISF_HIDEFOCUS);
  control.Send(WM_UPDATEUISTATE, MAKEWPARAM(show ? UIS_CLEAR : UIS_SET, UISF_HIDEFOCUS));
}

inline LOGFONTW DescribeFont(const CWnd& control) {
  LOGFONTW description{};
  ::GetObjectW(control.Font(), sizeof description, &description);
  return description;
}

// Runs what has been posted.
inline void RunPostedMessages() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}
