// A page with a colour picker, and the popup that it opens.
#pragma once

#include <memory>

#include "ControlDialog.h"
#include "controls/CColourPicker.h"
#include "PlatformSpy.h"

constexpr int kPickerId = 1309;
constexpr COLORREF kForeign = 0x123456;  // in no row of the palette
constexpr COLORREF kRed = 0x0000FF;      // row 16

// What was drawn as text since the spy came.
class TextSpy {
 public:
  struct Text {
    std::wstring text;
    RECT rect;
    UINT format;
    COLORREF color;
    LOGFONTW font;
  };

  TextSpy() {
    drawn_.clear();
    PatchImport("user32.dll", "DrawTextW", reinterpret_cast<void*>(&Note));
  }
  ~TextSpy() { RestoreImport("user32.dll", "DrawTextW"); }
  TextSpy(const TextSpy&) = delete;
  TextSpy& operator=(const TextSpy&) = delete;

  static const std::vector<Text>& Drawn() { return drawn_; }

 private:
  static int WINAPI Note(HDC dc, const wchar_t* text, int length, RECT* rect, UINT format) {
    LOGFONTW font{};
    ::GetObjectW(::GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
    drawn_.push_back({std::wstring(text, static_cast<size_t>(length)), *rect, format, ::GetTextColor(dc), font});
    return RealFunction("user32.dll", "DrawTextW", &Note)(dc, text, length, rect, format);
  }
  static inline std::vector<Text> drawn_;
};

class ColourPage {
 public:
  explicit ColourPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight, int width = 150)
      : page(layout) {
    page.Move({100, 100, 500, 400});
    page.Add(L"STATIC", L"&Color:", 0, kPickerId - 1, {10, 10, 60, 25});
    control = page.Add(L"BUTTON", L"", BS_OWNERDRAW | WS_TABSTOP, kPickerId, {70, 10, 70 + width, 30});
    picker = std::make_unique<CColourPicker>();
    EXPECT_TRUE(picker->Attach(page, kPickerId));
    control.Focus();
  }
  ~ColourPage() {
    picker.reset();
    ::ReleaseCapture();
  }

  void Click() const { control.Send(BM_CLICK); }
  // Opens with a colour and these texts, and forgets the messages until then.
  void Open(COLORREF colour, const wchar_t* defaultText = L"Automatic", const wchar_t* customText = L"More Colors...") {
    picker->SetColour(colour);
    picker->SetDefaultText(defaultText);
    picker->SetCustomText(customText);
    Click();
    page.received.clear();
  }
  CColourPopup& Popup() const { return *picker->Popup(); }
  void Press(WPARAM key) const { Popup().Send(WM_KEYDOWN, key, 1); }
  LPARAM Inside(int cell) const {
    const IntRect rect = Popup().Layout().CellRect(cell);
    return MAKELPARAM(rect.left + 1, rect.top + 1);
  }
  void MoveTo(LPARAM point) const { Popup().Send(WM_MOUSEMOVE, 0, point); }
  void Release(LPARAM point) const { Popup().Send(WM_LBUTTONUP, 0, point); }
  void ClickCell(int cell) const {
    const LPARAM point = Inside(cell);
    MoveTo(point);
    Release(point);
  }
  bool IsOver() const { return !picker->IsOpen() && !picker->Popup() && OpenPopups() == 0; }

  // Windows of popups on this thread.
  static int OpenPopups() {
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM counter) -> BOOL {
          wchar_t name[64] = L"";
          ::GetClassNameW(window, name, 64);
          if (std::wstring(name).starts_with(L"NemPdfUIColourPopup")) ++*reinterpret_cast<int*>(counter);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
  }

  // What the parent was told: the numbers of the messages in their order.
  std::vector<UINT> Told() const {
    std::vector<UINT> numbers;
    for (const WindowMessage& message : page.received)
      if (message.message >= 2025 && message.message <= 2029) numbers.push_back(message.message);
    return numbers;
  }
  void ExpectTold(std::vector<UINT> numbers, COLORREF colour) const {
    EXPECT_EQ(numbers, Told());
    for (const WindowMessage& message : page.received)
      if (message.message >= 2025 && message.message <= 2029) {
        EXPECT_EQ(colour, static_cast<COLORREF>(message.wParam)) << message.message;
        EXPECT_EQ(kPickerId, message.lParam) << message.message;
      }
  }

  ControlDialog page;
  CWnd control;
  std::unique_ptr<CColourPicker> picker;
};
