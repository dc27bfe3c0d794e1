// Whether the controls of a page lie in it, and beside each other.
#include <windows.h>
// behind windows.h
#include <algorithm>

#include "driver/AuditedControl.h"
#include "driver/DialogAudit.h"

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
    return (pair.first == first.id && pair.second == second.id) || (pair.first == second.id && pair.second == first.id);
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

}  // namespace audit
