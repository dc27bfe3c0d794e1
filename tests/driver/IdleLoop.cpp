#include "driver/IdleLoop.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "driver/ShortTimers.h"

namespace {

constexpr UINT kRunStep = WM_APP + 1;
constexpr UINT kPing = WM_APP + 2;

// A pending paint or input normally brings the next ping itself. This is for the ones that the platform drops.
constexpr UINT_PTR kDroppedWork = 1;
constexpr UINT kDroppedWorkMilliseconds = 20;

constexpr ULONGLONG kLongestSlideMilliseconds = 5000;

constexpr wchar_t kClassName[] = L"NemPdfTestIdleLoop";

thread_local IdleLoop* current = nullptr;

}  // namespace

IdleLoop::IdleLoop() : previous_(current) {
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  RegisterClassW(&windowClass);  // fails from the second time on, which is fine
  window_ =
      CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  hook_ = SetWindowsHookExW(WH_GETMESSAGE, OnMessageTaken, nullptr, GetCurrentThreadId());
  WatchShortTimers();
  current = this;
}

IdleLoop::~IdleLoop() {
  UnhookWindowsHookEx(hook_);
  DestroyWindow(window_);
  current = previous_;
}

void IdleLoop::Post(std::function<void()> step) {
  posted_.push_back(std::move(step));
  PostMessageW(window_, kRunStep, 0, 0);
}

void IdleLoop::WhenIdle(std::function<void()> step, std::function<bool()> condition) {
  waiting_.push_back({std::move(step), std::move(condition), GetTickCount64()});
  Ping();
}

void IdleLoop::RunUntil(const std::function<bool()>& finished) {
  MSG message;
  while (!finished() && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

LRESULT CALLBACK IdleLoop::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* loop = reinterpret_cast<IdleLoop*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  switch (message) {
    case kRunStep: {
      const std::function<void()> step = std::move(loop->posted_.front());
      loop->posted_.pop_front();
      step();
      return 0;
    }
    case WM_TIMER:
      KillUnseenTimer(window, kDroppedWork);
      loop->OnPing();
      return 0;
    case kPing:
      loop->pinged_ = false;
      loop->OnPing();
      return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK IdleLoop::OnMessageTaken(int code, WPARAM wParam, LPARAM lParam) {
  const auto* message = reinterpret_cast<const MSG*>(lParam);
  if (code == HC_ACTION && wParam == PM_REMOVE && current && current->watching_ && message->hwnd != current->window_)
    current->Ping();
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void IdleLoop::Ping() {
  if (pinged_) return;
  pinged_ = true;
  watching_ = false;
  PostMessageW(window_, kPing, 0, 0);
}

void IdleLoop::OnPing() {
  if (waiting_.empty() || !IsIdle()) return;
  if (waiting_.back().condition && !waiting_.back().condition()) {
    watching_ = true;
    return;
  }
  const Waiting next = std::move(waiting_.back());
  waiting_.pop_back();
  next.step();
  if (!waiting_.empty()) Ping();
}

bool IdleLoop::IsIdle() {
  const UINT queued = HIWORD(GetQueueStatus(QS_ALLINPUT));
  if (queued & (QS_POSTMESSAGE | QS_SENDMESSAGE)) {
    Ping();
    return false;
  }
  // Input and paint come behind posted messages: a ping at once would keep them waiting for ever.
  if (queued & (QS_INPUT | QS_PAINT)) {
    watching_ = true;
    SetUnseenTimer(window_, kDroppedWork, kDroppedWorkMilliseconds);
    return false;
  }
  std::string timer;
  if (ShortTimerRuns(&timer)) {
    if (GetTickCount64() - waiting_.back().since < kLongestSlideMilliseconds) {
      watching_ = true;
      return false;
    }
    ADD_FAILURE() << "Never idle: " << timer << " has been running for seconds.";
  }
  return true;
}
