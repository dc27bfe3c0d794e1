#include "driver/AuditedControl.h"

#include <commctrl.h>

#include <algorithm>

#include "driver/Text.h"

namespace {

ControlKind StaticKind(DWORD style, const std::wstring& text) {
  switch (style & SS_TYPEMASK) {
    case SS_BLACKRECT:
    case SS_GRAYRECT:
    case SS_WHITERECT:
    case SS_BLACKFRAME:
    case SS_GRAYFRAME:
    case SS_WHITEFRAME:
    case SS_ETCHEDHORZ:
    case SS_ETCHEDVERT:
    case SS_ETCHEDFRAME:
      return ControlKind::kFrame;
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
      return text.empty() ? ControlKind::kPicture : ControlKind::kLabel;
  }
  return ControlKind::kPicture;
}

ControlKind ButtonKind(DWORD style) {
  switch (style & BS_TYPEMASK) {
    case BS_GROUPBOX:
      return ControlKind::kGroupBox;
    case BS_OWNERDRAW:
      return ControlKind::kOwnerButton;
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      return style & BS_PUSHLIKE ? ControlKind::kPushButton : ControlKind::kCheck;
  }
  return ControlKind::kPushButton;
}

ControlKind KindOf(HWND window, DWORD style, const std::wstring& text) {
  static constexpr struct {
    const wchar_t* className;
    ControlKind kind;
  } kKinds[] = {{L"Edit", ControlKind::kEdit},           {L"ComboBox", ControlKind::kCombo},
                {L"ListBox", ControlKind::kListBox},     {WC_LISTVIEWW, ControlKind::kListView},
                {TRACKBAR_CLASSW, ControlKind::kSlider}, {L"ScrollBar", ControlKind::kScrollBar},
                {UPDOWN_CLASSW, ControlKind::kSpin}};
  if (HasClass(window, L"Static")) return StaticKind(style, text);
  if (HasClass(window, L"Button")) return ButtonKind(style);
  for (const auto& [className, kind] : kKinds)
    if (HasClass(window, className)) return kind;
  return ControlKind::kCustom;
}

RECT PlaceIn(HWND page, HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&place), 2);
  if (place.left > place.right) std::swap(place.left, place.right);
  return place;
}

}  // namespace

bool AuditedControl::IsRadio() const {
  const DWORD type = style & BS_TYPEMASK;
  return kind == ControlKind::kCheck && (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON);
}

bool AuditedControl::IsFocusable() const { return IsTabStop() || IsRadio(); }

std::vector<AuditedControl> ControlsOf(HWND page) {
  std::vector<AuditedControl> controls;
  for (HWND window = GetWindow(page, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
    const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    const std::wstring text = WindowText(window);
    controls.push_back({window, GetDlgCtrlID(window), ClassNameOf(window), text, style, PlaceIn(page, window),
                        KindOf(window, style, text), (style & WS_VISIBLE) != 0});
  }
  return controls;
}

std::string Describe(const AuditedControl& control) {
  std::string description = std::to_string(control.id) + " " + ToUtf8(control.className);
  if (!control.text.empty()) description += " \"" + ToUtf8(control.text) + "\"";
  return description;
}

bool Overlap(const RECT& left, const RECT& right) {
  RECT common;
  return IntersectRect(&common, &left, &right);
}

bool Contains(const RECT& outer, const RECT& inner) {
  return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
         inner.bottom <= outer.bottom;
}

bool InOneRow(const RECT& left, const RECT& right) {
  const LONG common = std::min(left.bottom, right.bottom) - std::max(left.top, right.top);
  const LONG lower = std::min(left.bottom - left.top, right.bottom - right.top);
  return common * 2 > lower;
}
