// Objects on controls: either may outlive the other.
#include "window/CSubclassedControl.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <thread>

#include "DriverLIB/ModuleState.h"
#include "DriverLIB/WindowThreadState.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"

namespace {

constexpr UINT kQuestion = WM_APP + 30;
enum : int { kFirst = 100, kSecond };

class Watcher final : public CSubclassed<CEdit> {
 public:
  std::vector<UINT> seen;
  std::string life;
  std::unique_ptr<Watcher>* owner = nullptr;  // destroyed by kQuestion
  bool endsControl = false;                   // so does kQuestion, and lets it through
  bool throws = false;
  bool answersText = false;
  using CSubclassedControl::Detach;

 private:
  void OnAttached() override { life += IsWindow() ? "attached " : "attached without a handle "; }
  void OnDestroyed() override { life += IsWindow() ? "destroyed " : "destroyed without a handle "; }
  bool OnWindowMessage(WindowMessage& message) override {
    seen.push_back(message.message);
    if (throws) throw std::runtime_error("test");
    if (message.message == kQuestion && endsControl) {
      DestroyWindow(message.window);
      return false;
    }
    if (message.message == kQuestion) {
      message.result = 42;
      if (auto* const self = owner) self->reset();
      return true;
    }
    if (message.message == WM_GETTEXTLENGTH && answersText) {
      message.result = DefaultHandling(message) + 100;
      return true;
    }
    return false;
  }
};

class SubclassedControl : public testing::Test {
 protected:
  SubclassedControl() {
    for (const int id : {int{kFirst}, int{kSecond}})
      CreateWindowExW(0, L"EDIT", L"text", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, parent_.Window(),
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  }
  HWND Control(int id) const { return GetDlgItem(parent_.Window(), id); }
  CWnd Dialog() const { return CWnd(parent_.Window()); }

  PageParent parent_;
};

TEST_F(SubclassedControl, AttachesByIdAndIsFoundByHandle) {
  Watcher watcher;
  EXPECT_FALSE(watcher.Attach(Dialog(), 999));
  EXPECT_EQ(nullptr, watcher.Handle());
  EXPECT_EQ("", watcher.life);
  ASSERT_TRUE(watcher.Attach(Dialog(), kFirst));
  EXPECT_EQ(Control(kFirst), watcher.Handle());
  EXPECT_EQ("attached ", watcher.life);
  EXPECT_EQ(&watcher, CSubclassedControl::FromHandle(Control(kFirst)));
  EXPECT_EQ(nullptr, CSubclassedControl::FromHandle(Control(kSecond)));
  EXPECT_EQ(nullptr, CSubclassedControl::FromHandle(nullptr));
}

TEST_F(SubclassedControl, SeesMessagesFirstAndLetsTheOthersThrough) {
  Watcher watcher;
  watcher.Attach(Dialog(), kFirst);
  EXPECT_EQ(42, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(L"text", watcher.Text());
  EXPECT_EQ((std::vector<UINT>{kQuestion, WM_GETTEXTLENGTH, WM_GETTEXT}), watcher.seen);
}

TEST_F(SubclassedControl, DefaultHandlingIsTheControlsOwn) {
  Watcher watcher;
  watcher.answersText = true;
  watcher.Attach(Dialog(), kFirst);
  EXPECT_EQ(104, watcher.Send(WM_GETTEXTLENGTH));
}

TEST_F(SubclassedControl, ControlMayDieFirst) {
  Watcher watcher;
  watcher.Attach(Dialog(), kFirst);
  DestroyWindow(Control(kFirst));
  EXPECT_EQ(nullptr, watcher.Handle());
  EXPECT_EQ("attached destroyed ", watcher.life);
  EXPECT_TRUE(watcher.Attach(Dialog(), kSecond)) << "the object is free for another control";
}

TEST_F(SubclassedControl, ObjectMayDieFirst) {
  { Watcher().Attach(Dialog(), kFirst); }
  EXPECT_TRUE(IsWindow(Control(kFirst)));
  EXPECT_EQ(nullptr, CSubclassedControl::FromHandle(Control(kFirst)));
  EXPECT_EQ(0, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(L"text", Dialog().Item(kFirst).Text());
}

TEST_F(SubclassedControl, ObjectMayDieInItsOwnHandler) {
  auto watcher = std::make_unique<Watcher>();
  watcher->owner = &watcher;
  watcher->Attach(Dialog(), kFirst);
  EXPECT_EQ(42, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(nullptr, watcher);
  EXPECT_EQ(L"text", Dialog().Item(kFirst).Text());
}

WNDPROC belowAll = nullptr;
std::vector<UINT> seenBelow;
LRESULT CALLBACK BelowAll(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  seenBelow.push_back(message);
  return CallWindowProcW(belowAll, window, message, wParam, lParam);
}

TEST_F(SubclassedControl, AMessageThatEndsTheControlGoesNoFurther) {
  seenBelow.clear();
  belowAll = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(Control(kFirst), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BelowAll)));
  Watcher watcher;
  watcher.endsControl = true;
  watcher.Attach(Dialog(), kFirst);
  EXPECT_EQ(0, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(nullptr, watcher.Handle());
  EXPECT_EQ(1, std::count(seenBelow.begin(), seenBelow.end(), UINT{WM_NCDESTROY}));
  EXPECT_EQ(0, std::count(seenBelow.begin(), seenBelow.end(), kQuestion)) << "for a window that is gone";
}

TEST_F(SubclassedControl, LetsGoOfTheControlBefore) {
  Watcher watcher;
  watcher.Attach(Dialog(), kFirst);
  watcher.Attach(Dialog(), kSecond);
  EXPECT_EQ(nullptr, CSubclassedControl::FromHandle(Control(kFirst)));
  EXPECT_EQ(0, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(42, SendMessageW(Control(kSecond), kQuestion, 0, 0));
  watcher.Detach();
  EXPECT_EQ(nullptr, watcher.Handle());
  EXPECT_EQ(0, SendMessageW(Control(kSecond), kQuestion, 0, 0));
  watcher.Detach();
}

TEST_F(SubclassedControl, NewObjectTakesOverFromTheOneBefore) {
  Watcher second;
  {
    Watcher first;
    first.Attach(Dialog(), kFirst);
    ASSERT_TRUE(second.Attach(Dialog(), kFirst));
    EXPECT_EQ(nullptr, first.Handle());
    EXPECT_EQ(&second, CSubclassedControl::FromHandle(Control(kFirst)));
  }
  EXPECT_EQ(&second, CSubclassedControl::FromHandle(Control(kFirst)));
  EXPECT_EQ(42, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(std::vector<UINT>{kQuestion}, second.seen);
}

LRESULT CALLBACK AboveAll(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  return DefSubclassProc(window, message, wParam, lParam) + (message == kQuestion ? 1000 : 0);
}

// Readers and the popup of a colour picker do that.
TEST_F(SubclassedControl, AProcedureAboveItsOwnMayStayLonger) {
  auto watcher = std::make_unique<Watcher>();
  watcher->Attach(Dialog(), kFirst);
  ASSERT_TRUE(SetWindowSubclass(Control(kFirst), AboveAll, 1, 0));
  EXPECT_EQ(1042, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  watcher.reset();
  EXPECT_EQ(1000, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(L"text", Dialog().Item(kFirst).Text());
  Watcher next;
  ASSERT_TRUE(next.Attach(Dialog(), kFirst));
  EXPECT_EQ(1042, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  EXPECT_EQ(std::vector<UINT>{kQuestion}, next.seen) << "once, though its procedure was still there";
  RemoveWindowSubclass(Control(kFirst), AboveAll, 1);
  EXPECT_EQ(42, SendMessageW(Control(kFirst), kQuestion, 0, 0));
  DestroyWindow(Control(kFirst));
  EXPECT_EQ("attached destroyed ", next.life);
}

TEST_F(SubclassedControl, AControlThatEndsUnderAnotherProcedureLeavesNothing) {
  for (const int id : {int{kFirst}, int{kSecond}}) {
    auto watcher = std::make_unique<Watcher>();
    watcher->Attach(Dialog(), id);
    ASSERT_TRUE(SetWindowSubclass(Control(id), AboveAll, 1, 0));
    if (id == kSecond) watcher.reset();  // the object may have ended before
    EXPECT_NE(nullptr, CurrentWindowThreadState()->controls) << id;
    DestroyWindow(Control(id));
    EXPECT_EQ(nullptr, CurrentWindowThreadState()->controls) << id;
  }
}

TEST_F(SubclassedControl, AControlOfAnotherThreadIsRefused) {
  Watcher watcher;
  bool attached = true;
  std::thread([&] {
    InitThreadState(GetModuleHandleW(nullptr));
    attached = watcher.Attach(Dialog(), kFirst);
    FreeThreadState();
  }).join();
  EXPECT_FALSE(attached);
  EXPECT_EQ(0, SendMessageW(Control(kFirst), kQuestion, 0, 0));
}

TEST_F(SubclassedControl, TheThreadKeepsNothingBehindTheLastObject) {
  {
    Watcher first, second;
    first.Attach(Dialog(), kFirst);
    second.Attach(Dialog(), kSecond);
    EXPECT_NE(nullptr, CurrentWindowThreadState()->controls);
    DestroyWindow(Control(kSecond));
    EXPECT_NE(nullptr, CurrentWindowThreadState()->controls);
  }
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->controls);
}

TEST_F(SubclassedControl, ExceptionGivesTheControlsOwnAnswer) {
  Watcher watcher;
  watcher.throws = true;
  watcher.Attach(Dialog(), kFirst);
  EXPECT_EQ(4, SendMessageW(Control(kFirst), WM_GETTEXTLENGTH, 0, 0));
  EXPECT_EQ(std::vector<UINT>{WM_GETTEXTLENGTH}, watcher.seen);
}

}  // namespace
