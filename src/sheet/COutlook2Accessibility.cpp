#include "sheet/COutlook2Accessibility.h"

#include <algorithm>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "sheet/COL2CCmdUI.h"
#include "sheet/COutlook2Ctrl.h"
// behind Windows.h
#include <oleacc.h>

namespace {

int RoleOf(BarEntryKind kind) {
  switch (kind) {
    case BarEntryKind::Radio:
      return ROLE_SYSTEM_RADIOBUTTON;
    case BarEntryKind::Link:
      return ROLE_SYSTEM_LINK;
    case BarEntryKind::Check:
      return ROLE_SYSTEM_CHECKBUTTON;
    default:
      return ROLE_SYSTEM_LISTITEM;
  }
}

int StateOf(const COL2SubItem& entry) {
  const bool checked = (entry.probeBits & (COL2CCmdUI::kChecked | COL2CCmdUI::kRadio)) != 0;
  switch (entry.kind) {
    case BarEntryKind::Plain:
      return STATE_SYSTEM_SELECTABLE | (checked ? STATE_SYSTEM_SELECTED : 0);
    case BarEntryKind::Link:
      return STATE_SYSTEM_LINKED;
    default:
      return checked ? STATE_SYSTEM_CHECKED : 0;
  }
}

}  // namespace

BarTarget COutlook2Accessibility::TargetOf(int part) const {
  return part == kSelf ? BarTarget() : bar_.Model().Targets()[static_cast<size_t>(part) - 1];
}

int COutlook2Accessibility::PartOf(const BarTarget& target) const {
  const std::vector<BarTarget> targets = bar_.Model().Targets();
  const auto found = std::find(targets.begin(), targets.end(), target);
  return found == targets.end() ? kSelf : static_cast<int>(found - targets.begin()) + 1;
}

HWND COutlook2Accessibility::AccessibleWindow() const { return bar_.Handle(); }

int COutlook2Accessibility::PartCount() const { return static_cast<int>(bar_.Model().Targets().size()); }

CUString COutlook2Accessibility::PartName(int part) const {
  const BarTarget target = TargetOf(part);
  if (target.hit == BarHit::Folder) return bar_.Model().Folder(target.folder)->text;
  if (target.hit == BarHit::Entry) {
    const COL2SubItem& entry = *bar_.Model().Entry(target);
    return entry.window ? CWnd(static_cast<HWND>(entry.window)).Text() : entry.text;
  }
  const CUString name = bar_.Text();
  return name.IsEmpty() ? bar_.Model().Title() : name;
}

int COutlook2Accessibility::PartRole(int part) const {
  const BarTarget target = TargetOf(part);
  if (target.hit == BarHit::Folder) return ROLE_SYSTEM_PUSHBUTTON;
  if (target.hit == BarHit::Nothing) return ROLE_SYSTEM_LIST;
  const COL2SubItem& entry = *bar_.Model().Entry(target);
  return entry.window ? ROLE_SYSTEM_WINDOW : RoleOf(entry.kind);
}

int COutlook2Accessibility::PartState(int part) const {
  const BarTarget target = TargetOf(part);
  if (target.hit == BarHit::Nothing) return 0;
  int state = STATE_SYSTEM_FOCUSABLE | (bar_.HotElement() == target ? STATE_SYSTEM_HOTTRACKED : 0);
  if (target.hit == BarHit::Folder)
    state |= target.folder == bar_.Model().OpenFolder() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
  else
    state |= StateOf(*bar_.Model().Entry(target));
  return state;
}

RECT COutlook2Accessibility::PartRect(int part) const {
  const IntRect rect = bar_.Model().RectOf(TargetOf(part));
  return {rect.left, rect.top, rect.right, rect.bottom};
}

CUString COutlook2Accessibility::PartAction(int part) const {
  return HasPartAction(part) ? MessageText(MSG_BAR_ACTION) : CUString();
}

void COutlook2Accessibility::DoPartAction(int part) { bar_.Click(TargetOf(part)); }

int COutlook2Accessibility::FocusedPart() const { return PartOf(bar_.FocusedElement()); }

void COutlook2Accessibility::FocusPart(int part) { bar_.FocusElement(TargetOf(part)); }
