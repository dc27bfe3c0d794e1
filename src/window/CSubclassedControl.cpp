#include "window/CSubclassedControl.h"

namespace {

constexpr UINT_PTR kSubclassId = 0x4E454D;  // "NEM"
constexpr wchar_t kObjectProperty[] = L"NemPdfUIControl";

}  // namespace

CSubclassedControl::~CSubclassedControl() {
  if (attached_) Release();
}

void CSubclassedControl::Release() {
  ::RemovePropW(attached_, kObjectProperty);
  ::RemoveWindowSubclass(attached_, SubclassProcedure, kSubclassId);
  attached_ = nullptr;
}

CSubclassedControl* CSubclassedControl::FromHandle(HWND control) {
  return static_cast<CSubclassedControl*>(control ? ::GetPropW(control, kObjectProperty) : nullptr);
}

bool CSubclassedControl::AttachTo(HWND control) {
  Detach();
  // A control has one object: a new one takes over from the one before.
  if (CSubclassedControl* previous = FromHandle(control)) previous->Detach();
  if (!control || !::SetWindowSubclass(control, SubclassProcedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this)))
    return false;
  ::SetPropW(control, kObjectProperty, this);
  attached_ = control;
  SetHandle(control);
  OnAttached();
  return true;
}

void CSubclassedControl::Detach() {
  if (!attached_) return;
  Release();
  SetHandle(nullptr);
}

LRESULT CSubclassedControl::DefaultHandling(const WindowMessage& message) {
  return ::DefSubclassProc(message.window, message.message, message.wParam, message.lParam);
}

LRESULT CALLBACK CSubclassedControl::SubclassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                                       UINT_PTR, DWORD_PTR data) {
  auto* self = reinterpret_cast<CSubclassedControl*>(data);
  WindowMessage current{window, message, wParam, lParam};
  if (message == WM_NCDESTROY) {
    self->OnDestroyed();
    self->Detach();
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
  // The handler may destroy the object: nothing of it is touched afterwards.
  if (GuardMessage("CSubclassedControl", *self, current)) return current.result;
  return ::DefSubclassProc(window, message, wParam, lParam);
}
