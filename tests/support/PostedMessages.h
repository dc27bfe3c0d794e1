// Notes what a modeless dialog posts to its page: the messages that dialogs use among themselves.
//
//   const PostedMessages posted;
//   ...
//   EXPECT_EQ((Posted{{0x84D, 0}}), PostedMessages::current->Take());
#pragma once

#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include <utility>
#include <vector>

// Message and first argument; none has a second one.
using Posted = std::vector<std::pair<UINT, WPARAM>>;

struct PostedMessages {
  static constexpr UINT kFirst = 0x84D, kLast = 0x851;

  PostedMessages() {
    current = this;
    hook = SetWindowsHookExW(WH_GETMESSAGE, Note, nullptr, GetCurrentThreadId());
  }
  ~PostedMessages() { UnhookWindowsHookEx(hook); }
  PostedMessages(const PostedMessages&) = delete;
  PostedMessages& operator=(const PostedMessages&) = delete;

  static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam) {
    const MSG& message = *reinterpret_cast<const MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message.message >= kFirst && message.message <= kLast) {
      current->posted.emplace_back(message.message, message.wParam);
      EXPECT_EQ(0, message.lParam);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }
  Posted Take() { return std::exchange(posted, {}); }

  static inline PostedMessages* current;
  HHOOK hook;
  Posted posted;
};
