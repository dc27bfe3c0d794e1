#include "window/CAccessibility.h"

#include "window/CAccessibleObject.h"
#include "window/SystemFunction.h"

bool CAccessibility::OnMessage(CAccessibleSource& source, WindowMessage& message) {
  switch (message.message) {
    case WM_GETOBJECT:
      return static_cast<LONG>(message.lParam) == OBJID_CLIENT && OnGetObject(source, message);
    case kAccessibleActionMessage: {
      const int part = static_cast<int>(message.wParam);
      if (part >= CAccessibleSource::kSelf && part <= source.PartCount() && source.HasPartAction(part))
        source.DoPartAction(part);
      return true;
    }
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
  object_->Release();
  object_ = nullptr;
}

void NotifyAccessibleEvent(DWORD event, HWND window, int part) { ::NotifyWinEvent(event, window, OBJID_CLIENT, part); }
