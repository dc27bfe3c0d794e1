#include "window/CSubclassedControl.h"

#include <unordered_map>
#include <utility>

#include "DriverLIB/WindowThreadState.h"

// The window procedure is exchanged as frameworks do it, with the objects in a map of the thread. SetWindowSubclass
// would look up its chain among the window's properties twice a message. Each look is a call of the server under Wine:
// a fifth of the calls that opening the sheet makes.
namespace {

struct Attachment {
  CSubclassedControl* object;  // null once it has let go, while a procedure above ours still calls this one
  WNDPROC previous;            // what stood before ours
};
using Attachments = std::unordered_map<HWND, Attachment>;

Attachments* CurrentAttachments() {
  const WindowThreadState* state = CurrentWindowThreadState();
  return state ? static_cast<Attachments*>(state->controls) : nullptr;
}

Attachment* Find(HWND window) {
  Attachments* attachments = CurrentAttachments();
  if (!attachments) return nullptr;
  const auto found = attachments->find(window);
  return found == attachments->end() ? nullptr : &found->second;
}

void Forget(HWND window) {
  Attachments* attachments = CurrentAttachments();
  if (!attachments || !attachments->erase(window) || !attachments->empty()) return;
  CurrentWindowThreadState()->controls = nullptr;
  delete attachments;
}

WNDPROC ProcedureOf(HWND window) { return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC)); }

WNDPROC ExchangeProcedure(HWND window, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

}  // namespace

CSubclassedControl::~CSubclassedControl() {
  if (attached_) Release();
}

// A procedure that somebody has put above ours stays, and goes on calling ours: that one hands on from now on.
void CSubclassedControl::Release() {
  const HWND window = std::exchange(attached_, nullptr);
  Attachment* attachment = Find(window);
  if (!attachment) return;
  attachment->object = nullptr;
  const WNDPROC procedure = ProcedureOf(window);
  if (procedure == Procedure) ExchangeProcedure(window, attachment->previous);
  if (!procedure || procedure == Procedure) Forget(window);
}

CSubclassedControl* CSubclassedControl::FromHandle(HWND control) {
  const Attachment* attachment = Find(control);
  return attachment ? attachment->object : nullptr;
}

bool CSubclassedControl::AttachTo(HWND control) {
  Detach();
  // A control has one object: a new one takes over from the one before.
  if (CSubclassedControl* previous = FromHandle(control)) previous->Detach();
  WindowThreadState* state = CurrentWindowThreadState();
  if (!state || ::GetWindowThreadProcessId(control, nullptr) != ::GetCurrentThreadId()) return false;
  if (!state->controls) state->controls = new Attachments;
  Attachment& attachment = (*static_cast<Attachments*>(state->controls))[control];
  if (!attachment.previous) attachment.previous = ExchangeProcedure(control, Procedure);
  if (!attachment.previous) {
    Forget(control);
    return false;
  }
  attachment.object = this;
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
  const Attachment* attachment = Find(message.window);
  const WNDPROC procedure = attachment ? attachment->previous : ProcedureOf(message.window);
  return procedure ? ::CallWindowProcW(procedure, message.window, message.message, message.wParam, message.lParam) : 0;
}

LRESULT CALLBACK CSubclassedControl::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const Attachment* attachment = Find(window);
  if (!attachment) return ::DefWindowProcW(window, message, wParam, lParam);
  // The handler may destroy object and attachment: nothing of them is touched afterwards.
  const WNDPROC previous = attachment->previous;
  CSubclassedControl* self = attachment->object;
  if (message == WM_NCDESTROY) {
    if (self) {
      self->OnDestroyed();
      self->Detach();
    }
    Forget(window);
  } else if (self) {
    WindowMessage current{window, message, wParam, lParam};
    if (GuardMessage("CSubclassedControl", *self, current)) return current.result;
    if (!::IsWindow(window)) return 0;
  }
  return ::CallWindowProcW(previous, window, message, wParam, lParam);
}
