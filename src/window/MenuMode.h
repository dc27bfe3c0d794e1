// Menus, and moving a window by keys: they run in loops of their own, whose keys come to the thread's hooks as well.
#pragma once

#include "window/Windows.h"

inline bool HasMenuUp() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  constexpr DWORD kOwnLoops = GUI_INMENUMODE | GUI_SYSTEMMENUMODE | GUI_POPUPMENUMODE | GUI_INMOVESIZE;
  return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & kOwnLoops);
}
