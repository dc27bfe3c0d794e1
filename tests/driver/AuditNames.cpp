// Whether each control that takes the focus has a name that a screen reader can say.
#include <windows.h>
// behind windows.h
#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "driver/AuditedControl.h"
#include "driver/DialogAudit.h"

namespace audit {
namespace {

// 'oleacc.dll' is asked for at run time: not every compiler has an import library of it.
IAccessible* AccessibleFrom(LRESULT answer) {
  static constexpr GUID kAccessible = {0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};
  using Convert = HRESULT WINAPI(LRESULT, REFIID, WPARAM, void**);
  static auto* const convert = reinterpret_cast<Convert*>(
      reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"oleacc.dll"), "ObjectFromLresult")));
  void* object = nullptr;
  return convert && SUCCEEDED(convert(answer, kAccessible, 0, &object)) ? static_cast<IAccessible*>(object) : nullptr;
}

// The control's own answer, not that of the platform's stand-in for controls that give none.
std::wstring AccessibleName(HWND window) {
  const LRESULT answer = SendMessageW(window, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
  IAccessible* accessible = answer > 0 ? AccessibleFrom(answer) : nullptr;
  if (!accessible) return {};
  VARIANT self = {};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  std::wstring result;
  if (accessible->get_accName(self, &name) == S_OK && name) {
    result = name;
    SysFreeString(name);
  }
  accessible->Release();
  return result;
}

bool NamesItself(const AuditedControl& control) {
  switch (control.kind) {
    case ControlKind::kLabel:
    case ControlKind::kPushButton:
    case ControlKind::kCheck:
    case ControlKind::kOwnerButton:
      return !control.text.empty();
    default:
      return false;
  }
}

// The label stands above its field or before it in the row; a slider may have it below. For what a check box switches,
// that box is the label.
bool Labels(const AuditedControl& label, const AuditedControl& field) {
  if (label.text.empty() || (label.kind != ControlKind::kLabel && label.kind != ControlKind::kCheck)) return false;
  if (InOneRow(label.place, field.place)) return label.place.right <= field.place.left;
  const bool sameColumn = label.place.left < field.place.right && field.place.left < label.place.right;
  const bool below = label.place.top >= field.place.bottom;
  return sameColumn && (label.place.bottom <= field.place.top || (below && field.kind == ControlKind::kSlider));
}

}  // namespace

void CheckNames(const Controls& controls, Findings& findings) {
  const AuditedControl* previous = nullptr;
  const AuditedControl* hidden = nullptr;  // a label for readers alone, behind the previous control
  for (const AuditedControl& control : controls) {
    if (!control.visible) {
      hidden = control.kind == ControlKind::kLabel ? &control : nullptr;
      continue;
    }
    const AuditedControl* label = std::exchange(previous, &control);
    const AuditedControl* unseen = std::exchange(hidden, nullptr);
    if (!control.IsTabStop() || NamesItself(control)) continue;
    if (label && Labels(*label, control)) continue;
    if (unseen && Labels(*unseen, control)) continue;
    if (!AccessibleName(control.window).empty()) continue;
    findings.push_back(Describe(control) + ": no label stands directly before it, and it answers with no name");
  }
}

}  // namespace audit
