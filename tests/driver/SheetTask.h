// The body of a sheet test: a coroutine that the message loop of the sheet itself carries on.
//
//   [](Sheet& sheet) -> SheetTask {
//     sheet.Control(IDC_COMPRESSION).Select(2);
//     co_await sheet.Settled();
//     sheet.PressOk();
//   }
//
// A task does nothing until it is awaited or handed to RunSheet. Tasks may await tasks, so steps that many tests
// share are written once: `co_await TypePasswords(sheet, L"secret");`. An exception travels to the awaiting task.
//
// The macros of GoogleTest that return on a failure do not compile in a coroutine; CO_ASSERT_... stand in for them.
// They end the task that they stand in.
#pragma once

#include <gtest/gtest.h>

#include <coroutine>
#include <exception>
#include <utility>

class [[nodiscard]] SheetTask {
 public:
  struct promise_type;
  using Handle = std::coroutine_handle<promise_type>;

  // Hands control back to whoever awaited the finished task.
  struct FinalAwaiter {
    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(Handle finished) const noexcept;
    void await_resume() const noexcept {}
  };

  struct promise_type {
    std::coroutine_handle<> continuation = std::noop_coroutine();
    std::exception_ptr failure;

    SheetTask get_return_object() { return SheetTask(Handle::from_promise(*this)); }
    std::suspend_always initial_suspend() const noexcept { return {}; }
    FinalAwaiter final_suspend() const noexcept { return {}; }
    void return_void() const noexcept {}
    void unhandled_exception() { failure = std::current_exception(); }
  };

  SheetTask(SheetTask&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  SheetTask& operator=(SheetTask&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~SheetTask() {
    if (handle_) handle_.destroy();
  }

  bool await_ready() const noexcept { return !handle_ || handle_.done(); }
  std::coroutine_handle<> await_suspend(std::coroutine_handle<> awaiting) noexcept {
    handle_.promise().continuation = awaiting;
    return handle_;
  }
  void await_resume() const {
    if (handle_ && handle_.promise().failure) std::rethrow_exception(handle_.promise().failure);
  }

 private:
  explicit SheetTask(Handle handle) : handle_(handle) {}

  Handle handle_;
};

inline std::coroutine_handle<> SheetTask::FinalAwaiter::await_suspend(Handle finished) const noexcept {
  return finished.promise().continuation;
}

// How often a CO_ASSERT has failed on this thread. The driver closes the sheet of such a body without a word.
inline thread_local int coAssertFailures = 0;

#define CO_FATAL_FAILURE_(message) \
  co_return ++coAssertFailures, GTEST_MESSAGE_(message, ::testing::TestPartResult::kFatalFailure)
#define CO_ASSERT_TRUE(condition) GTEST_TEST_BOOLEAN_(condition, #condition, false, true, CO_FATAL_FAILURE_)
#define CO_ASSERT_FALSE(condition) GTEST_TEST_BOOLEAN_(!(condition), #condition, true, false, CO_FATAL_FAILURE_)
#define CO_ASSERT_EQ(left, right) \
  GTEST_PRED_FORMAT2_(::testing::internal::EqHelper::Compare, left, right, CO_FATAL_FAILURE_)
#define CO_ASSERT_NE(left, right) GTEST_PRED_FORMAT2_(::testing::internal::CmpHelperNE, left, right, CO_FATAL_FAILURE_)
