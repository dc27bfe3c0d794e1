#include "sheet/Help.h"

#include "DriverLIB/CUString.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "sheet/HelpTopics.h"

namespace {

constexpr UINT kDisplayContents = 1;  // shows the file, at the topic when the path names one

// The help library is loaded with the first help request and stays: its windows outlive the request.
HWND HtmlHelp(HWND caller, const wchar_t* path, UINT command) {
  using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
  const HMODULE library = ::LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (!library) return nullptr;
  const auto htmlHelp =
      reinterpret_cast<HtmlHelpFunction>(reinterpret_cast<void*>(::GetProcAddress(library, "HtmlHelpW")));
  return htmlHelp ? htmlHelp(caller, path, command, 0) : nullptr;
}

const wchar_t* FindTopic(const HELPINFO& help, HWND window) {
  const bool german = PRIMARYLANGID(GetUILanguage()) == LANG_GERMAN;
  const wchar_t* topic = nullptr;
  if (::IsWindow(::GetDlgItem(window, help.iCtrlId)))
    topic = FindHelpTopic(static_cast<uint32_t>(help.iCtrlId), german);
  return topic ? topic : FindHelpTopic(::GetWindowContextHelpId(window), german);
}

}  // namespace

HELPINFO HelpForControl(int controlId, HWND control) {
  HELPINFO help{};
  help.cbSize = sizeof help;
  help.iContextType = HELPINFO_WINDOW;
  help.iCtrlId = controlId;
  help.hItemHandle = control;
  help.dwContextId = static_cast<DWORD_PTR>(-1);
  return help;
}

bool ShowHelp(const HELPINFO& help, const wchar_t* file, HWND window, const wchar_t* title) {
  const bool hasWindow = ::IsWindow(window);
  CUString path(file);
  if (hasWindow) path.Append(FindTopic(help, window));
  if (HtmlHelp(static_cast<HWND>(help.hItemHandle), path.Text(), kDisplayContents)) return true;
  MsgBoxById(hasWindow ? window : nullptr, title ? title : L"", MSG_HELP_FILE_NOT_FOUND, MB_OK | MB_ICONERROR,
             file ? file : L"");
  return false;
}
