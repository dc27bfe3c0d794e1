#include "driver/DialogAudit.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "driver/AuditedControl.h"
#include "driver/Text.h"

namespace {

constexpr int kFontPoints = 8;

bool IsMirrored(HWND window) { return GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL; }

void CheckMirrored(HWND window, const char* what, const AuditOptions& options, Findings& findings) {
  if (IsMirrored(window) == options.mirrored) return;
  findings.push_back(std::string("the ") + what + (options.mirrored ? " is not mirrored" : " is mirrored"));
}

int FontHeight(HWND window) {
  LOGFONTW font = {};
  const auto handle = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  return handle && GetObjectW(handle, sizeof font, &font) ? std::abs(font.lfHeight) : 0;
}

bool ShowsTextInItsFont(const AuditedControl& control) {
  switch (control.kind) {
    case ControlKind::kPicture:
    case ControlKind::kFrame:
    case ControlKind::kOwnerButton:
    case ControlKind::kCustom: return false;
    default: return control.visible && !control.text.empty();
  }
}

void CheckFonts(HWND page, const audit::Controls& controls, const AuditOptions& options, Findings& findings) {
  const int expected = MulDiv(kFontPoints, options.dpi, 72), height = FontHeight(page);
  if (std::abs(height - expected) > 1)
    findings.push_back("the page's font is " + std::to_string(height) + " pixels high, at this dpi it should be " +
                       std::to_string(expected));
  for (const AuditedControl& control : controls) {
    if (ShowsTextInItsFont(control) && FontHeight(control.window) + 1 < expected)
      findings.push_back(Describe(control) + ": its font is smaller than the page's");
  }
}

// The host gives a page all the room that it has, which may be more than the template asks for.
void CheckSize(HWND page, const AuditOptions& options, Findings& findings) {
  RECT needed = {0, 0, options.size.cx, options.size.cy}, client = {};
  MapDialogRect(page, &needed);
  GetClientRect(page, &client);
  if (client.right < needed.right || client.bottom < needed.bottom)
    findings.push_back("the page measures " + std::to_string(client.right) + " by " + std::to_string(client.bottom) +
                       " pixels, its template " + std::to_string(needed.right) + " by " +
                       std::to_string(needed.bottom));
}

void CheckIds(const audit::Controls& controls, Findings& findings) {
  std::map<int, int> counts;
  for (const AuditedControl& control : controls) {
    if (static_cast<short>(control.id) == -1)
      findings.push_back(Describe(control) + ": it has no id of its own");
    else if (++counts[control.id] == 2)
      findings.push_back(Describe(control) + ": another control has the same id");
  }
}

}  // namespace

Findings AuditPage(HWND page, const AuditOptions& options) {
  const audit::Controls controls = ControlsOf(page);
  Findings findings;
  CheckMirrored(page, "page", options, findings);
  CheckSize(page, options, findings);
  CheckFonts(page, controls, options, findings);
  CheckIds(controls, findings);
  audit::CheckTexts(controls, options, findings);
  audit::CheckPlaces(page, controls, options, findings);
  audit::CheckAccessKeys(controls, options, findings);
  audit::CheckOrder(controls, findings);
  audit::CheckNames(controls, findings);
  return findings;
}

Findings AuditSheet(HWND sheet, HWND host, HWND page, const AuditOptions& options) {
  Findings findings;
  CheckMirrored(sheet, "sheet", options, findings);
  CheckMirrored(host, "host page", options, findings);
  RECT room = {};
  GetWindowRect(host, &room);
  for (const AuditedControl& control : ControlsOf(page)) {
    RECT place = {};
    GetWindowRect(control.window, &place);
    if (control.visible && !Contains(room, place))
      findings.push_back(Describe(control) + ": it reaches out of the host page");
  }
  return findings;
}

std::string InventoryOf(HWND page) {
  std::string inventory;
  for (const AuditedControl& control : ControlsOf(page))
    inventory += std::to_string(control.id) + " " + ToUtf8(control.className) + "\n";
  return inventory;
}

// --- Places -----------------------------------------------------------------------------------------------------

namespace audit {
namespace {

int CaptionHeight(const AuditedControl& groupBox) {
  const HDC dc = GetDC(groupBox.window);
  const HGDIOBJ previous = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(groupBox.window, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, previous);
  ReleaseDC(groupBox.window, dc);
  return groupBox.text.empty() ? 0 : metrics.tmHeight;
}

// A group box or a frame may hold others, but only whole, and below its caption.
bool Holds(const AuditedControl& outer, const AuditedControl& inner) {
  if (outer.kind == ControlKind::kFrame) return Contains(outer.place, inner.place);
  if (outer.kind != ControlKind::kGroupBox) return false;
  RECT inside = outer.place;
  inside.top += CaptionHeight(outer);
  return Contains(inside, inner.place);
}

bool IsAllowed(const AuditedControl& first, const AuditedControl& second, const AuditOptions& options) {
  // A spin control lies over the edit that it belongs to.
  if (first.kind == ControlKind::kSpin || second.kind == ControlKind::kSpin) return true;
  return std::any_of(options.allowedOverlaps.begin(), options.allowedOverlaps.end(), [&](const auto& pair) {
    return (pair.first == first.id && pair.second == second.id) ||
           (pair.first == second.id && pair.second == first.id);
  });
}

}  // namespace

void CheckPlaces(HWND page, const Controls& controls, const AuditOptions& options, Findings& findings) {
  RECT client = {};
  GetClientRect(page, &client);
  for (size_t i = 0; i < controls.size(); ++i) {
    const AuditedControl& control = controls[i];
    if (!control.visible) continue;
    if (!Contains(client, control.place)) findings.push_back(Describe(control) + ": it reaches out of the page");
    for (size_t k = i + 1; k < controls.size(); ++k) {
      const AuditedControl& other = controls[k];
      if (!other.visible || !Overlap(control.place, other.place)) continue;
      if (Holds(control, other) || Holds(other, control) || IsAllowed(control, other, options)) continue;
      findings.push_back(Describe(control) + ": it overlaps " + Describe(other));
    }
  }
}

// --- Access keys ------------------------------------------------------------------------------------------------

wchar_t AccessKeyOf(const AuditedControl& control) {
  const bool label = control.kind == ControlKind::kLabel;
  const bool button = _wcsicmp(control.className.c_str(), L"Button") == 0;
  if ((!label && !button) || (label && (control.style & SS_NOPREFIX))) return 0;
  for (size_t i = 0; i + 1 < control.text.size(); ++i) {
    if (control.text[i] != L'&') continue;
    if (control.text[++i] == L'&') continue;
    return static_cast<wchar_t>(reinterpret_cast<UINT_PTR>(
        CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(control.text[i])))));
  }
  return 0;
}

void CheckAccessKeys(const Controls& controls, const AuditOptions& options, Findings& findings) {
  std::map<wchar_t, const AuditedControl*> owners;
  for (const AuditedControl& control : controls) {
    const wchar_t key = control.visible ? AccessKeyOf(control) : 0;
    if (!key || options.allowedDoubleKeys.find(key) != std::wstring::npos) continue;
    const auto [entry, fresh] = owners.emplace(key, &control);
    if (!fresh)
      findings.push_back(Describe(control) + ": its access key " + ToUtf8(std::wstring(1, key)) +
                         " is also that of " + Describe(*entry->second));
  }
}

// --- Order ------------------------------------------------------------------------------------------------------

namespace {

// A step of the Tab key may go right, down, or to the top of a column further right.
bool GoesBack(const AuditedControl& from, const AuditedControl& to) {
  if (InOneRow(from.place, to.place)) return to.place.right <= from.place.left;
  return to.place.bottom <= from.place.top && to.place.left < from.place.right;
}

}  // namespace

void CheckOrder(const Controls& controls, Findings& findings) {
  const AuditedControl* previous = nullptr;  // of a run of radio buttons the first
  bool inRadios = false;
  for (size_t i = 0; i < controls.size(); ++i) {
    const AuditedControl& control = controls[i];
    if (!control.visible) continue;
    if (control.kind == ControlKind::kLabel && AccessKeyOf(control) && !control.IsFocusable()) {
      // The key goes to what follows, whether that is shown or not.
      const AuditedControl* next = i + 1 < controls.size() ? &controls[i + 1] : nullptr;
      if (!next || !next->IsFocusable())
        findings.push_back(Describe(control) + ": its access key leads to no field, because none follows it");
    }
    if (!control.IsFocusable()) continue;
    if (previous && GoesBack(*previous, control))
      findings.push_back(Describe(control) + ": the Tab key comes to it behind " + Describe(*previous) +
                         ", but it stands before that");
    // Radio buttons of a group follow each other, so that the arrow keys stay among them. What belongs to the first of
    // them comes behind the last, though it may stand between.
    if (!inRadios || !control.IsRadio()) previous = &control;
    inRadios = control.IsRadio();
  }
}

}  // namespace audit
