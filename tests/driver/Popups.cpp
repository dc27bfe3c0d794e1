#include "driver/Popups.h"

#include <utility>

#include "driver/Text.h"

namespace {

thread_local Popups* current = nullptr;

bool IsTopLevelDialog(HWND window) {
  return !(GetWindowLongW(window, GWL_STYLE) & WS_CHILD) && HasClass(window, L"#32770");
}

void Fail(const std::source_location& where, const std::string& text) {
  ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << text;
}

}  // namespace

Popups::Popups(int timeoutSeconds) : watchdog_(timeoutSeconds), previous_(current) {
  WatchMessageBoxes();
  creationHook_ = SetWindowsHookExW(WH_CBT, OnComputerBasedTraining, nullptr, GetCurrentThreadId());
  showHook_ = SetWindowsHookExW(WH_CALLWNDPROC, OnMessageSent, nullptr, GetCurrentThreadId());
  current = this;
}

Popups::~Popups() {
  CheckAllCame();
  UnhookWindowsHookEx(showHook_);
  UnhookWindowsHookEx(creationHook_);
  current = previous_;
}

void Popups::ExpectBox(ExpectedBox box, Location where) { expectations_.push_back({std::move(box), {}, where}); }

void Popups::ExpectDialog(std::function<void(HWND)> drive, Location where) {
  expectations_.push_back({std::nullopt, std::move(drive), where});
}

LRESULT CALLBACK Popups::OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  if (current && code == HCBT_DESTROYWND) current->seen_.erase(window);
  if (current && code == HCBT_CREATEWND) {
    const CREATESTRUCTW& creation = *reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs;
    if (!(creation.style & WS_CHILD) && HasClass(window, L"#32770")) current->LookSoon(window);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A dialog that runs messages before it shows itself is looked at again when it does.
LRESULT CALLBACK Popups::OnMessageSent(int code, WPARAM wParam, LPARAM lParam) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (code == HC_ACTION && current && sent.message == WM_WINDOWPOSCHANGED &&
      (reinterpret_cast<const WINDOWPOS*>(sent.lParam)->flags & SWP_SHOWWINDOW) && IsTopLevelDialog(sent.hwnd))
    current->LookSoon(sent.hwnd);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A window is looked at only from the message loop that it brings along: then its controls and texts are in place.
void Popups::LookSoon(HWND window) {
  if (!seen_.contains(window)) loop_.Post([this, window] { Look(window); });
}

void Popups::Look(HWND window) {
  if (!IsWindow(window) || !IsWindowVisible(window) || !seen_.insert(window).second) return;
  if (IsMessageBox(window))
    MeetBox(window);
  else if (takeFirst_)
    std::exchange(takeFirst_, nullptr)(window);
  else
    MeetDialog(window);
}

void Popups::MeetBox(HWND window) {
  const BoxRecord box = ReadMessageBox(window);
  boxes_.push_back(box);
  if (expectations_.empty() || !expectations_.front().box) {
    ADD_FAILURE() << "A message box that nobody expected: " << Describe(box);
    DismissBox(window);
    return;
  }
  const Expectation expected = std::move(expectations_.front());
  expectations_.pop_front();
  Compare(expected, box);
  if (PressBoxButton(window, expected.box->button)) return;
  Fail(expected.where, "The message box has no button " + std::to_string(expected.box->button) + ": " + Describe(box));
  DismissBox(window);
}

void Popups::MeetDialog(HWND window) {
  if (expectations_.empty() || expectations_.front().box) {
    ADD_FAILURE() << "A dialog that nobody expected: " << DescribeWindow(window);
    DismissDialog(window);
    loop_.WhenIdle([window] {
      if (IsWindow(window) && IsWindowVisible(window)) EndDialog(window, IDCANCEL);
    });
    return;
  }
  auto drive = std::move(expectations_.front().drive);
  expectations_.pop_front();
  loop_.WhenIdle([drive = std::move(drive), window] { drive(window); });
}

void Popups::Compare(const Expectation& expected, const BoxRecord& box) const {
  const BoxRecord wanted{.title = expected.box->title, .text = expected.box->text, .icon = expected.box->icon};
  if (box.title != wanted.title || box.text != wanted.text || box.icon != wanted.icon)
    Fail(expected.where,
         "A message box came up with\n  " + Describe(box) + "\nbut expected was\n  " + Describe(wanted));
  if (expected.box->rightToLeft && box.rightToLeft != *expected.box->rightToLeft)
    Fail(expected.where, "The message box reads from " +
                             std::string(box.rightToLeft ? "right to left" : "left to right") + ": " + Describe(box));
}

void Popups::CheckAllCame() {
  for (const Expectation& expected : std::exchange(expectations_, {})) {
    if (!expected.box) {
      Fail(expected.where, "An expected dialog never came.");
      continue;
    }
    const BoxRecord wanted{.title = expected.box->title, .text = expected.box->text, .icon = expected.box->icon};
    Fail(expected.where, "An expected message box never came: " + Describe(wanted));
  }
}

std::vector<std::string> Popups::CloseOpenDialogs(HWND except) {
  std::vector<std::string> closed;
  for (HWND window : std::set(seen_)) {
    if (window == except || !IsWindow(window) || !IsWindowVisible(window)) continue;
    closed.push_back(DescribeWindow(window));
    DismissDialog(window);
  }
  return closed;
}

void DismissDialog(HWND dialog) {
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDCANCEL)));
  if (IsWindow(dialog) && IsWindowVisible(dialog)) PostMessageW(dialog, WM_CLOSE, 0, 0);
}
