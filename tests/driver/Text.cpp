#include "driver/Text.h"

std::string ToUtf8(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  std::string result(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()), nullptr,
                      nullptr);
  return result;
}

std::wstring ToWide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  std::wstring result(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, result.data(), static_cast<int>(result.size()));
  return result;
}

std::wstring WindowText(HWND window) {
  std::wstring text(static_cast<size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
  text.resize(static_cast<size_t>(
      SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(text.size()), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

std::wstring ClassNameOf(HWND window) {
  wchar_t name[128] = L"";
  GetClassNameW(window, name, ARRAYSIZE(name));
  return name;
}

bool HasClass(HWND window, const wchar_t* className) { return _wcsicmp(ClassNameOf(window).c_str(), className) == 0; }

std::string DescribeWindow(HWND window) {
  if (!IsWindow(window)) return "(no window)";
  std::string text = ToUtf8(ClassNameOf(window)) + " \"" + ToUtf8(WindowText(window)) + "\"";
  if (!(GetWindowLongW(window, GWL_STYLE) & WS_CHILD)) return text;
  return std::to_string(static_cast<short>(GetDlgCtrlID(window))) + " (" + text + ")";
}
