#include "window/MessageMap.h"

#include "DriverLIB/NEMPrintMemoryException.h"
#include "DriverLIB/Trace.h"

namespace {

bool Fits(const MessageRow& row, const WindowMessage& message) {
  if (row.message != message.message) return false;
  switch (message.message) {
    case WM_COMMAND:
      return row.code == message.Notification() && row.firstId <= message.CommandId() &&
             message.CommandId() <= row.lastId;
    case WM_NOTIFY: {
      const int id = static_cast<int>(message.Notify().idFrom);
      return row.code == static_cast<int>(message.Notify().code) && row.firstId <= id && id <= row.lastId;
    }
    case kUpdateCommandMessage: {
      const int id = static_cast<int>(message.wParam);
      return row.firstId <= id && id <= row.lastId;
    }
    default:
      return true;
  }
}

}  // namespace

bool DispatchMessages(MessageTable table, CMessageTarget& target, WindowMessage& message) {
  for (const MessageRow& row : table)
    if (Fits(row, message)) return row.handle(target, message);
  return false;
}

bool GuardMessage(const char* place, CMessageTarget& target, WindowMessage& message) noexcept {
  try {
    return target.OnWindowMessage(message);
  } catch (NEMPrintMemoryException* exception) {
    delete exception;
  } catch (...) {
  }
  TraceError("%hs: caught throwed exception", place);
  // Without its window the object may be gone as well.
  if (!::IsWindow(message.window)) return false;
  try {
    return target.OnHandlerFailed(message);
  } catch (...) {
    return false;
  }
}
