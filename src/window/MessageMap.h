// Dispatch of window messages. Every object behind a window is a CMessageTarget; beside the typed virtuals for the
// life cycle each class has one constant table of what else can happen to it. A page gives it by Messages, inside of
// which private handlers may be named:
//
//   MessageTable CPdfGraphicPage::Messages() const {
//     static constexpr MessageRow kMessages[] = {
//         OnClick<&CPdfGraphicPage::OnModeClicked>(IDC_GRAPHIC_BY_FILE_SIZE),
//         OnCommand<&CPdfGraphicPage::OnResolutionEdited>(IDC_GRAPHIC_RESOLUTION, CBN_EDITCHANGE),
//         OnMessage<&CPdfGraphicPage::OnScroll>(WM_HSCROLL),
//     };
//     return kMessages;
//   }
//
// A class that is no page looks its table up by itself, before its base class:
//
//   bool CPwdConfirmDialog::OnWindowMessage(WindowMessage& message) {
//     return DispatchMessages(kMessages, *this, message) || CDialog::OnWindowMessage(message);
//   }
//
// A handler takes nothing, the two arguments of the message, or the WindowMessage itself; it gives nothing or the
// answer.
#pragma once

#include <span>
#include <type_traits>

#include "window/Windows.h"

// A message on its way, and its answer.
struct WindowMessage {
  HWND window = nullptr;
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  LRESULT result = 0;

  // WM_COMMAND: the control or menu id, and the notification.
  int CommandId() const { return LOWORD(wParam); }
  int Notification() const { return HIWORD(wParam); }
  // WM_NOTIFY
  const NMHDR& Notify() const { return *reinterpret_cast<const NMHDR*>(lParam); }
};

class CMessageTarget {
 public:
  CMessageTarget() = default;
  CMessageTarget(const CMessageTarget&) = delete;
  CMessageTarget& operator=(const CMessageTarget&) = delete;

  // True when the message was answered, with the answer in `result`; false gives it to the default handling.
  virtual bool OnWindowMessage(WindowMessage&) { return false; }

  // OnWindowMessage threw. True with the answer that does no harm; false gives the message to the default handling.
  virtual bool OnHandlerFailed(WindowMessage&) { return false; }

 protected:
  virtual ~CMessageTarget() = default;
};

// An owner is sent this message to be asked how an entry of a bar stands: id in the first argument, a CCmdUI* in the
// second.
constexpr UINT kUpdateCommandMessage = WM_APP + 1;

// One row of a class's table. `code` is the notification of a WM_COMMAND or WM_NOTIFY; the ids are a range with both
// ends in it, and have no meaning for other messages.
struct MessageRow {
  UINT message;
  int code;
  int firstId;
  int lastId;
  bool (*handle)(CMessageTarget&, WindowMessage&);
};

namespace message_map {

template <class T>
struct MemberOf;
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...)> {
  using Class = C;
  using Result = R;
};

template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...) const> : MemberOf<R (C::*)(A...)> {};

// Calls the member with as much of the message as it asks for.
template <auto Handler, class Self>
decltype(auto) Call(Self& self, WindowMessage& message) {
  if constexpr (requires { (self.*Handler)(message); })
    return (self.*Handler)(message);
  else if constexpr (requires { (self.*Handler)(message.wParam, message.lParam); })
    return (self.*Handler)(message.wParam, message.lParam);
  else
    return (self.*Handler)();
}

// A handler that gives nothing answers 0.
template <auto Handler>
bool Invoke(CMessageTarget& target, WindowMessage& message) {
  using Member = MemberOf<decltype(Handler)>;
  auto& self = static_cast<typename Member::Class&>(target);
  if constexpr (std::is_void_v<typename Member::Result>)
    Call<Handler>(self, message);
  else
    message.result = static_cast<LRESULT>(Call<Handler>(self, message));
  return true;
}

}  // namespace message_map

using MessageTable = std::span<const MessageRow>;

template <auto Handler>
constexpr MessageRow OnMessage(UINT message) {
  return {message, 0, 0, 0, &message_map::Invoke<Handler>};
}
template <auto Handler>
constexpr MessageRow OnCommand(int id, int notification) {
  return {WM_COMMAND, notification, id, id, &message_map::Invoke<Handler>};
}
template <auto Handler>
constexpr MessageRow OnClick(int id) {
  return OnCommand<Handler>(id, BN_CLICKED);
}
template <auto Handler>
constexpr MessageRow OnClickRange(int firstId, int lastId) {
  return {WM_COMMAND, BN_CLICKED, firstId, lastId, &message_map::Invoke<Handler>};
}
template <auto Handler>
constexpr MessageRow OnNotify(int id, UINT code) {
  return {WM_NOTIFY, static_cast<int>(code), id, id, &message_map::Invoke<Handler>};
}
template <auto Handler>
constexpr MessageRow OnUpdateCommandRange(int firstId, int lastId) {
  return {kUpdateCommandMessage, 0, firstId, lastId, &message_map::Invoke<Handler>};
}

// Looks the message up in the table and calls the first row that fits; false when there is none.
bool DispatchMessages(MessageTable table, CMessageTarget& target, WindowMessage& message);

// Runs a handler at the border to the platform, which no exception may cross: a caught one is traced under `place`,
// and the target chooses the answer.
bool GuardMessage(const char* place, CMessageTarget& target, WindowMessage& message) noexcept;
