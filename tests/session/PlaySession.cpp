// play_session PICTURES HOST.exe [arguments...]
//
// Starts a host and plays a short session with its sheet, by mouse and keyboard from outside as a user would: opens the
// page "Graphical Optimization", chooses "Userdefined setting", picks a quality of 60 %, looks at the cockpit if
// there is one, and presses OK. Pictures of the steps go to the folder PICTURES. Ends with the host's exit code, or
// with 1 when the sheet does not do what it should.
#include <windows.h>
// behind windows.h
#include <shlwapi.h>

#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>

#include "driver/Picture.h"

namespace {

constexpr DWORD kPatienceMilliseconds = 60000;  // a cold start included

constexpr int kBarId = 100;
constexpr int kUserDefinedRadio = 1142;
constexpr int kQualityCombo = 1049;

// The bar's folders are buttons of 24 pixels at 96 dpi, stacked at its bottom. A click on one shows its first page.
constexpr int kFolderHeight = 24;
constexpr int kFolderCount = 7;
constexpr int kCockpitFolder = 0;
constexpr int kFileSizeFolder = 1;

class CSession {
 public:
  CSession(wchar_t* commandLine, std::wstring pictureFolder) : pictureFolder_(std::move(pictureFolder)) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (!CreateProcessW(nullptr, commandLine, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process_))
      throw std::runtime_error("the host cannot be started");
  }

  ~CSession() {
    TerminateProcess(process_.hProcess, 1);  // nothing happens when it has ended
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  CSession(const CSession&) = delete;
  CSession& operator=(const CSession&) = delete;

  // Returns the host's exit code.
  int Play() {
    if (!WaitFor([this] { return (sheet_ = FindSheet()) != nullptr && FindControl(kBarId); },
                 "the sheet does not open"))
      return ExitCode();  // a host that refuses its settings opens none
    TakePicture(L"1-opened");

    ClickFolder(kFileSizeFolder);
    Require([this] { return FindControl(kUserDefinedRadio) != nullptr; }, "the graphic page does not come up");
    TakePicture(L"2-graphic");

    Click(FindControl(kUserDefinedRadio), 6);
    Require([this] { return IsUsable(kQualityCombo); }, "the quality cannot be chosen");
    ChooseQuality(L"60%");
    TakePicture(L"3-quality");

    ClickFolder(kCockpitFolder);
    if (!FindControl(kQualityCombo)) TakePicture(L"4-cockpit");

    Click(GetDlgItem(sheet_, IDOK), -1);
    if (WaitFor([] { return false; }, "the sheet does not close")) return 1;
    return ExitCode();
  }

 private:
  // False when the host ended first.
  bool WaitFor(const std::function<bool()>& condition, const char* complaint) {
    for (DWORD begin = GetTickCount(); GetTickCount() - begin < kPatienceMilliseconds;) {
      if (condition()) return true;
      if (WaitForSingleObject(process_.hProcess, 20) == WAIT_OBJECT_0) return false;
    }
    Fail(complaint);
  }

  void Require(const std::function<bool()>& condition, const char* complaint) {
    if (!WaitFor(condition, complaint)) Fail("the host ended by itself");
  }

  [[noreturn]] void Fail(const char* complaint) {
    if (sheet_) SavePicture(L"failed");
    throw std::runtime_error(complaint);
  }

  int ExitCode() {
    DWORD code = 1;
    GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
  }

  HWND FindSheet() {
    struct Search {
      DWORD process;
      HWND found;
    } search = {process_.dwProcessId, nullptr};
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
          auto* search = reinterpret_cast<Search*>(parameter);
          DWORD process = 0;
          GetWindowThreadProcessId(window, &process);
          if (process != search->process || !IsWindowVisible(window) || !GetDlgItem(window, IDOK)) return TRUE;
          search->found = window;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  // The visible control of this id, on whatever page.
  HWND FindControl(int id) {
    struct Search {
      int id;
      HWND found;
    } search = {id, nullptr};
    EnumChildWindows(
        sheet_,
        [](HWND window, LPARAM parameter) -> BOOL {
          auto* search = reinterpret_cast<Search*>(parameter);
          if (GetDlgCtrlID(window) != search->id || !IsWindowVisible(window)) return TRUE;
          search->found = window;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  bool IsUsable(int id) {
    const HWND control = FindControl(id);
    return control && IsWindowEnabled(control);
  }

  // Lets the sheet finish what it does: slides, and paints behind them.
  void Settle() {
    DWORD_PTR ignored;
    SendMessageTimeoutW(sheet_, WM_NULL, 0, 0, SMTO_NORMAL, kPatienceMilliseconds, &ignored);
    Sleep(200);
  }

  void TakePicture(const std::wstring& name) {
    Settle();
    if (!SavePicture(name)) Fail("a picture cannot be saved");
  }

  bool SavePicture(const std::wstring& name) {
    return SavePng(Capture(sheet_), pictureFolder_ + L"\\" + name + L".png");
  }

  void ClickFolder(int folder) {
    const HWND bar = FindControl(kBarId);
    RECT place;
    GetWindowRect(bar, &place);
    const int height = MulDiv(kFolderHeight, static_cast<int>(GetDpiForWindow(bar)), USER_DEFAULT_SCREEN_DPI);
    ClickAt(place.left + (place.right - place.left) / 3, place.bottom - height * (kFolderCount - folder) + height / 2);
  }

  // Clicks `inset` pixels from the left edge, or in the middle with -1; at half the height.
  void Click(HWND control, int inset) {
    RECT place;
    GetWindowRect(control, &place);
    ClickAt(inset < 0 ? (place.left + place.right) / 2 : place.left + inset, (place.top + place.bottom) / 2);
  }

  void ClickAt(int x, int y) {
    INPUT inputs[3] = {};
    for (INPUT& input : inputs) input.type = INPUT_MOUSE;
    const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    inputs[0].mi.dx = (x * 65536 + width - 1) / width;  // the screen is 65536 units wide and high
    inputs[0].mi.dy = (y * 65536 + height - 1) / height;
    inputs[0].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[2].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(3, inputs, sizeof(INPUT));
    Settle();
  }

  void Press(WORD key) {
    INPUT inputs[2] = {};
    for (INPUT& input : inputs) {
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = key;
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof(INPUT));
    Settle();
  }

  // Walks through the combo's list with the arrow keys to the row that begins with `text`.
  void ChooseQuality(const std::wstring& text) {
    const HWND combo = FindControl(kQualityCombo);
    const LRESULT row =
        SendMessageW(combo, CB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
    if (row == CB_ERR) Fail("the quality is not in the list");
    Click(combo, 20);
    for (int keys = 0; SendMessageW(combo, CB_GETCURSEL, 0, 0) != row; ++keys) {
      if (keys == 20) Fail("the arrow keys do not reach the quality");
      Press(SendMessageW(combo, CB_GETCURSEL, 0, 0) > row ? VK_UP : VK_DOWN);
    }
  }

  PROCESS_INFORMATION process_ = {};
  HWND sheet_ = nullptr;
  std::wstring pictureFolder_;
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) {
    std::fputs("play_session PICTURES HOST.exe [arguments...]\n", stderr);
    return 2;
  }
  try {
    wchar_t* hostCommandLine = PathGetArgsW(PathGetArgsW(GetCommandLineW()));
    return CSession(hostCommandLine, argv[1]).Play();
  } catch (const std::exception& exception) {
    std::fprintf(stderr, "play_session: %s\n", exception.what());
    return 1;
  }
}
