// Whether each text of a page has room in its control.
#include <windows.h>
// behind windows.h
#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "driver/AuditedControl.h"
#include "driver/DialogAudit.h"
#include "driver/Text.h"

namespace audit {
namespace {

// Room that the platform itself takes within a control, in pixels at 96 dpi.
constexpr int kButtonMargin = 4;        // on each side, up and down half of it
constexpr int kCheckMark = 13 + 4;      // the mark and the gap behind it
constexpr int kGroupCaptionMargin = 9;  // on each side
constexpr int kListMargin = 4;          // both sides together
constexpr int kColumnMargin = 12;       // both sides together

class TextMeter {
 public:
  explicit TextMeter(const AuditedControl& control) : window_(control.window), dc_(GetDC(window_)) {
    previous_ = SelectObject(dc_, reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0)));
  }
  ~TextMeter() {
    SelectObject(dc_, previous_);
    ReleaseDC(window_, dc_);
  }
  TextMeter(const TextMeter&) = delete;
  TextMeter& operator=(const TextMeter&) = delete;

  // In one line, or broken into lines of at most `width` pixels.
  SIZE Measure(const std::wstring& text, UINT flags, int width = 0) const {
    RECT bounds = {0, 0, width, 0};
    if (width > 0) flags |= DT_WORDBREAK;
    DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &bounds, flags | DT_CALCRECT | DT_EXPANDTABS);
    return {bounds.right, bounds.bottom};
  }
  int LineHeight() const {
    TEXTMETRICW metrics = {};
    GetTextMetricsW(dc_, &metrics);
    return metrics.tmHeight;
  }

 private:
  HWND window_;
  HDC dc_;
  HGDIOBJ previous_;
};

SIZE ClientSize(HWND window) {
  RECT client = {};
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

class TextCheck {
 public:
  TextCheck(const AuditedControl& control, const AuditOptions& options, Findings& findings)
      : control_(control), options_(options), findings_(findings), meter_(control), room_(ClientSize(control.window)) {}

  void Run() {
    switch (control_.kind) {
      case ControlKind::kLabel:
        return CheckLabel();
      case ControlKind::kPushButton:
        return CheckCaption(2 * kButtonMargin, kButtonMargin);
      case ControlKind::kCheck:
        return CheckCaption(kCheckMark, 0);
      case ControlKind::kGroupBox:
        return CheckCaption(2 * kGroupCaptionMargin, 0);
      case ControlKind::kEdit:
        return CheckLineHeight();
      case ControlKind::kCombo:
        return CheckCombo();
      case ControlKind::kListBox:
        return CheckListBox();
      case ControlKind::kListView:
        return CheckColumns();
      default:
        return;
    }
  }

 private:
  int Scaled(int pixels) const { return MulDiv(pixels, options_.dpi, 96); }

  void Expect(SIZE needed, SIZE room, const std::wstring& text, const char* where) {
    if (needed.cx <= room.cx && needed.cy <= room.cy) return;
    findings_.push_back(Describe(control_) + ": the text " + where + "\"" + ToUtf8(text) + "\" needs " +
                        std::to_string(needed.cx) + " by " + std::to_string(needed.cy) + " pixels and has " +
                        std::to_string(room.cx) + " by " + std::to_string(room.cy));
  }

  void CheckLabel() {
    const DWORD type = control_.style & SS_TYPEMASK;
    const bool oneLine = type == SS_SIMPLE || type == SS_LEFTNOWORDWRAP || (control_.style & SS_CENTERIMAGE);
    const UINT flags = control_.style & SS_NOPREFIX ? DT_NOPREFIX : 0;
    if (control_.style & SS_ELLIPSISMASK) return;  // made for texts of any length
    Expect(meter_.Measure(control_.text, flags, oneLine ? 0 : room_.cx), room_, control_.text, "");
  }

  void CheckCaption(int marginAcross, int marginDown) {
    if (control_.text.empty() || (control_.style & (BS_BITMAP | BS_ICON))) return;
    const SIZE inside = {room_.cx - Scaled(marginAcross), room_.cy - Scaled(marginDown)};
    const bool wraps = (control_.style & BS_MULTILINE) && control_.kind != ControlKind::kGroupBox;
    const SIZE needed = meter_.Measure(control_.text, wraps ? 0 : DT_SINGLELINE, wraps ? inside.cx : 0);
    Expect(needed, inside, control_.text, "");
  }

  void CheckLineHeight() {
    if (room_.cy < meter_.LineHeight())
      findings_.push_back(Describe(control_) + ": it is " + std::to_string(room_.cy) + " pixels high inside, a line " +
                          std::to_string(meter_.LineHeight()));
  }

  void CheckCombo() {
    if (control_.style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE)) return;
    const HWND combo = control_.window;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    GetComboBoxInfo(combo, &info);
    RECT list = {};
    SendMessageW(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&list));
    const auto rows = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    const auto rowHeight = static_cast<int>(SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0));
    const bool scrolls = rows * rowHeight > list.bottom - list.top - control_.Height();

    const LONG field = info.rcItem.right - info.rcItem.left - Scaled(kListMargin) / 2;
    const LONG dropped = static_cast<LONG>(SendMessageW(combo, CB_GETDROPPEDWIDTH, 0, 0)) - Scaled(kListMargin) -
                         (scrolls ? GetSystemMetrics(SM_CXVSCROLL) : 0);
    for (int row = 0; row < rows; ++row) {
      std::wstring text(static_cast<size_t>(SendMessageW(combo, CB_GETLBTEXTLEN, row, 0)) + 1, L'\0');
      text.resize(static_cast<size_t>(SendMessageW(combo, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()))));
      const SIZE needed = {meter_.Measure(text, DT_SINGLELINE | DT_NOPREFIX).cx, 0};
      if (needed.cx > dropped)
        Expect(needed, {dropped, 0}, text, "of a dropped row ");
      else
        Expect(needed, {field, 0}, text, "of a chosen row ");
    }
    if (info.rcItem.bottom - info.rcItem.top < meter_.LineHeight())
      findings_.push_back(Describe(control_) + ": its field is lower than a line of text");
  }

  void CheckListBox() {
    if (control_.style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE | WS_HSCROLL)) return;
    const auto rows = static_cast<int>(SendMessageW(control_.window, LB_GETCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
      std::wstring text(static_cast<size_t>(SendMessageW(control_.window, LB_GETTEXTLEN, row, 0)) + 1, L'\0');
      text.resize(
          static_cast<size_t>(SendMessageW(control_.window, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()))));
      const SIZE needed = {meter_.Measure(text, DT_SINGLELINE | DT_NOPREFIX).cx, 0};
      Expect(needed, {room_.cx - Scaled(kListMargin) / 2, 0}, text, "of a row ");
    }
  }

  void CheckColumns() {
    const HWND header = ListView_GetHeader(control_.window);
    if ((control_.style & LVS_TYPEMASK) != LVS_REPORT || (control_.style & LVS_NOCOLUMNHEADER) || !header) return;
    for (int column = 0; column < Header_GetItemCount(header); ++column) {
      if (std::ranges::count(options_.narrowColumns, std::pair(control_.id, column))) continue;
      wchar_t text[256] = L"";
      HDITEMW item = {};
      item.mask = HDI_TEXT | HDI_WIDTH;
      item.pszText = text;
      item.cchTextMax = ARRAYSIZE(text);
      Header_GetItem(header, column, &item);
      const SIZE needed = {meter_.Measure(text, DT_SINGLELINE | DT_NOPREFIX).cx + Scaled(kColumnMargin), 0};
      Expect(needed, {item.cxy, 0}, text, "of a column's head ");
    }
  }

  const AuditedControl& control_;
  const AuditOptions& options_;
  Findings& findings_;
  TextMeter meter_;
  SIZE room_;
};

}  // namespace

void CheckTexts(const Controls& controls, const AuditOptions& options, Findings& findings) {
  for (const AuditedControl& control : controls)
    if (control.visible) TextCheck(control, options, findings).Run();
}

}  // namespace audit
