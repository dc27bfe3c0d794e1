#include "driver/MessageBoxes.h"

#include <algorithm>
#include <map>

#include "driver/ImportPatch.h"
#include "driver/Text.h"

namespace {

constexpr int kTextId = 0xFFFF;
constexpr int kLastButtonId = IDCONTINUE;
constexpr UINT kUnknownIcon = ~0u;

// The style that this thread's latest message box was opened with; boxes that come up are read at once.
thread_local UINT latestStyle = 0;
thread_local bool latestStyleKnown = false;

auto* const realMessageBox = RealFunction("user32.dll", "MessageBoxW", &MessageBoxW);
auto* const realMessageBoxEx = RealFunction("user32.dll", "MessageBoxExW", &MessageBoxExW);
auto* const realMessageBoxIndirect = RealFunction("user32.dll", "MessageBoxIndirectW", &MessageBoxIndirectW);

void Note(UINT style) {
  latestStyle = style;
  latestStyleKnown = true;
}

int WINAPI NotedMessageBox(HWND owner, LPCWSTR text, LPCWSTR title, UINT style) {
  Note(style);
  return realMessageBox(owner, text, title, style);
}

int WINAPI NotedMessageBoxEx(HWND owner, LPCWSTR text, LPCWSTR title, UINT style, WORD language) {
  Note(style);
  return realMessageBoxEx(owner, text, title, style, language);
}

int WINAPI NotedMessageBoxIndirect(const MSGBOXPARAMSW* parameters) {
  Note(parameters->dwStyle);
  return realMessageBoxIndirect(parameters);
}

bool IsIconStatic(HWND window) {
  return HasClass(window, L"Static") && (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

UINT ReadIcon(HWND iconStatic) {
  static const struct {
    LPCWSTR name;
    UINT icon;
  } kIcons[] = {{IDI_ERROR, MB_ICONERROR},
                {IDI_QUESTION, MB_ICONQUESTION},
                {IDI_WARNING, MB_ICONWARNING},
                {IDI_INFORMATION, MB_ICONINFORMATION}};
  const auto handle = reinterpret_cast<HICON>(SendMessageW(iconStatic, STM_GETICON, 0, 0));
  if (!handle) return 0;
  for (const auto& [name, icon] : kIcons)
    if (handle == LoadIconW(nullptr, name)) return icon;
  return latestStyleKnown ? latestStyle & MB_ICONMASK : kUnknownIcon;
}

template <typename Action>
void ForEachChild(HWND parent, Action action) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) action(child);
}

bool BelongsToSystem(HWND dialog) {
  const auto procedure = reinterpret_cast<LPCWSTR>(GetWindowLongPtrW(dialog, DWLP_DLGPROC));
  HMODULE module = nullptr;
  // An address that belongs to no module is a handle, which the platform gives out for procedures of its own.
  return !GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             procedure, &module) ||
         module == GetModuleHandleW(L"user32.dll");
}

}  // namespace

void WatchMessageBoxes() {
  PatchImport("user32.dll", "MessageBoxW", reinterpret_cast<void*>(&NotedMessageBox));
  PatchImport("user32.dll", "MessageBoxExW", reinterpret_cast<void*>(&NotedMessageBoxEx));
  PatchImport("user32.dll", "MessageBoxIndirectW", reinterpret_cast<void*>(&NotedMessageBoxIndirect));
}

bool IsMessageBox(HWND window) {
  if (!HasClass(window, L"#32770") || !GetDlgItem(window, kTextId)) return false;
  bool plain = BelongsToSystem(window);
  ForEachChild(window, [&plain](HWND child) {
    const int id = GetDlgCtrlID(child);
    const bool button = HasClass(child, L"Button") && id > 0 && id <= kLastButtonId;
    plain = plain && (button || HasClass(child, L"Static"));
  });
  return plain;
}

BoxRecord ReadMessageBox(HWND box) {
  BoxRecord record;
  record.title = WindowText(box);
  record.text = WindowText(GetDlgItem(box, kTextId));
  record.owner = GetWindow(box, GW_OWNER);
  record.rightToLeft = (latestStyleKnown && (latestStyle & MB_RTLREADING)) ||
                       (GetWindowLongW(box, GWL_EXSTYLE) & (WS_EX_RTLREADING | WS_EX_LAYOUTRTL));
  ForEachChild(box, [&record](HWND child) {
    if (!(GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)) return;
    if (IsIconStatic(child)) record.icon = ReadIcon(child);
    if (!HasClass(child, L"Button")) return;
    record.buttons.push_back(GetDlgCtrlID(child));
    if ((GetWindowLongW(child, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
      record.defaultButton = GetDlgCtrlID(child);
  });
  latestStyleKnown = false;
  return record;
}

bool PressBoxButton(HWND box, int button) {
  HWND window = GetDlgItem(box, button);
  if (!window && button == IDOK) {
    int count = 0;
    ForEachChild(box, [&](HWND child) {
      if (!HasClass(child, L"Button")) return;
      window = child;
      ++count;
    });
    if (count != 1) return false;
  }
  if (!window) return false;
  SendMessageW(box, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), BN_CLICKED), reinterpret_cast<LPARAM>(window));
  return true;
}

void DismissBox(HWND box) {
  for (int button : {IDCANCEL, IDNO, IDABORT, IDOK})
    if (PressBoxButton(box, button)) return;
  EndDialog(box, IDCANCEL);
}

std::string IconName(UINT icon) {
  switch (icon) {
    case 0:
      return "none";
    case MB_ICONERROR:
      return "error";
    case MB_ICONQUESTION:
      return "question";
    case MB_ICONWARNING:
      return "warning";
    case MB_ICONINFORMATION:
      return "information";
  }
  return "unknown";
}

std::string Describe(const BoxRecord& box) {
  return "title \"" + ToUtf8(box.title) + "\", text \"" + ToUtf8(box.text) + "\", icon " + IconName(box.icon);
}
