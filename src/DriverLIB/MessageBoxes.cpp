#include <windows.h>

#include "DriverLIB/MessageBoxes.h"

#include "DriverLIB/ATraceFile.h"
#include "DriverLIB/Identity.h"
#include "DriverLIB/ProductValue.h"
#include "DriverLIB/WindowThreadState.h"

int MsgBoxByIdV(HWND window, void* module, const wchar_t* title, uint32_t id, UINT flags,
                const MessageInserts& inserts) {
  CUString text;
  LoadMsgTextV(text, module, id, inserts);
  return MsgBox(window, title, text.Text(), flags);
}

int MsgBox(HWND window, const wchar_t* title, const wchar_t* text, UINT flags) {
  if (!title) title = kComponentName;
  CountAsMessageBox();
  if (LogMessageBox(title, text)) return IDOK;
  if (IsRightToLeft(GetUILanguage())) flags |= MB_RIGHT | MB_RTLREADING;
  return MessageBoxW(window, text, title, flags);
}

void CountAsMessageBox() {
  if (WindowThreadState* state = CurrentWindowThreadState()) ++state->messageBoxCount;
}

unsigned MessageBoxCount() {
  const WindowThreadState* state = CurrentWindowThreadState();
  return state ? state->messageBoxCount : 0;
}

bool LogMessageBox(const wchar_t* title, const wchar_t* text) {
  AFile log(ReadProductText(kProductKey, L"LogMsgFile").Text());
  if (log.fileName.IsEmpty()) return false;
  wchar_t stamp[kTimeStampSize];
  FormatTimeStamp(stamp);
  CUString line(stamp);
  line.Append(L"TITEL: \"");
  line.Append(title);
  line.Append(L"\" MESSAGE: \"");
  line.Append(text);
  line.Append(L"\"");
  if (log.OpenAppend()) log.WriteLine(line.Text(), true);
  return true;
}
