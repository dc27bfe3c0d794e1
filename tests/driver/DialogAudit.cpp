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
    case ControlKind::kCustom:
      return false;
    default:
      return control.visible && !control.text.empty();
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
