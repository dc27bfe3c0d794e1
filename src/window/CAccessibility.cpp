#include "window/CAccessibility.h"

#include "window/CAccessibleObject.h"
#include "window/SystemFunction.h"

namespace {

// Until the end of the process, whatever the host frees. A counted reference would not do: to give it back would be the
// last act of code that is gone then.
void KeepLibraryLoaded() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<const wchar_t*>(reinterpret_cast<void*>(&KeepLibraryLoaded)), &module);
}

}  // namespace

bool CanBeUsed(HWND control) {
  return ::IsWindowEnabled(control) && ::IsWindowEnabled(::GetAncestor(control, GA_ROOT));
}

bool CAccessibility::OnMessage(CAccessibleSource& source, WindowMessage& message) {
  switch (message.message) {
    case WM_GETOBJECT:
      return static_cast<LONG>(message.lParam) == OBJID_CLIENT && OnGetObject(source, message);
    case kAccessibleActionMessage: {
      const int part = static_cast<int>(message.wParam);
      if (CanBeUsed(source.AccessibleWindow()) && part >= CAccessibleSource::kSelf && part <= source.PartCount() &&
          source.HasPartAction(part))
        source.DoPartAction(part);
      return true;
    }
    case kAccessibleQuestionMessage:
      if (object_) object_->AnswerCarried();
      return true;
    default:
      return false;
  }
}

bool CAccessibility::OnGetObject(CAccessibleSource& source, WindowMessage& message) {
  static const auto resultOf = SystemFunction<decltype(::LresultFromObject)>(L"oleacc.dll", "LresultFromObject");
  if (!resultOf) return false;
  if (!object_) object_ = new CAccessibleObject(source);
  message.result = resultOf(__uuidof(IAccessible), message.wParam, static_cast<IAccessible*>(object_));
  return true;
}

void CAccessibility::Disconnect() {
  if (!object_) return;
  object_->Disconnect();
  // Readers in other processes let go now: the library's code may be gone before they ask again.
  static const auto disconnect = SystemFunction<decltype(::CoDisconnectObject)>(L"ole32.dll", "CoDisconnectObject");
  if (disconnect) disconnect(static_cast<IAccessible*>(object_), 0);
  // Readers within the host's process may hold on to it.
  if (object_->Release() > 0) KeepLibraryLoaded();
  object_ = nullptr;
}

void NotifyAccessibleEvent(DWORD event, HWND window, int part) { ::NotifyWinEvent(event, window, OBJID_CLIENT, part); }
