// Whether the keyboard finds its way over a page: access keys and the order of the Tab key.
#include <windows.h>
// behind windows.h
#include <map>

#include "driver/AuditedControl.h"
#include "driver/DialogAudit.h"
#include "driver/Text.h"

namespace audit {

wchar_t AccessKeyOf(const AuditedControl& control) {
  const bool label = control.kind == ControlKind::kLabel;
  const bool button = _wcsicmp(control.className.c_str(), L"Button") == 0;
  if ((!label && !button) || (label && (control.style & SS_NOPREFIX))) return 0;
  for (size_t i = 0; i + 1 < control.text.size(); ++i) {
    if (control.text[i] != L'&') continue;
    if (control.text[++i] == L'&') continue;
    return static_cast<wchar_t>(
        reinterpret_cast<UINT_PTR>(CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(control.text[i])))));
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
      findings.push_back(Describe(control) + ": its access key " + ToUtf8(std::wstring(1, key)) + " is also that of " +
                         Describe(*entry->second));
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
