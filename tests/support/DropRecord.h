// The record of files that the user has dropped on a window, as the shell makes it for WM_DROPFILES. Who is sent it
// frees it.
#pragma once

#include <windows.h>
// behind windows.h
#include <shlobj.h>

#include <cstring>
#include <string>
#include <vector>

inline HGLOBAL MakeDropRecord(POINT point, const std::vector<std::wstring>& paths) {
  std::wstring list;
  for (const std::wstring& path : paths) list += path + L'\0';
  list += L'\0';
  const HGLOBAL record = GlobalAlloc(GHND | GMEM_SHARE, sizeof(DROPFILES) + list.size() * sizeof(wchar_t));
  auto* head = static_cast<DROPFILES*>(GlobalLock(record));
  head->pFiles = sizeof(DROPFILES);
  head->pt = point;
  head->fWide = TRUE;
  std::memcpy(head + 1, list.data(), list.size() * sizeof(wchar_t));
  GlobalUnlock(record);
  return record;
}

// Lets files fall on a point of the window's client area.
inline void DropFiles(HWND window, POINT point, const std::vector<std::wstring>& paths) {
  SendMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(MakeDropRecord(point, paths)), 0);
}

// Lets files fall on the middle of a control of a page.
inline void DropOn(HWND page, int controlId, const std::vector<std::wstring>& paths) {
  RECT rect{};
  GetWindowRect(GetDlgItem(page, controlId), &rect);
  MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&rect), 2);
  const POINT middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  DropFiles(page, middle, paths);
}
