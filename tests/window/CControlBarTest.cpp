// Windows of the library's own class.
#include "window/CControlBar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>

#include "support/FakeSheet.h"

namespace {

constexpr UINT kQuestion = WM_APP + 30, kDefault = WM_APP + 31, kThrow = WM_APP + 32;

class Bar final : public CControlBar {
 public:
  ~Bar() override { Destroy(); }
  std::vector<UINT> seen;
  std::unique_ptr<Bar>* owner = nullptr;  // destroyed by kQuestion

 private:
  bool OnWindowMessage(WindowMessage& message) override {
    seen.push_back(message.message);
    switch (message.message) {
      case kQuestion:
        message.result = 42;
        if (auto* const self = owner) self->reset();
        return true;
      case kDefault: {
        WindowMessage text = message;
        text.message = WM_GETTEXTLENGTH;
        message.result = DefaultHandling(text);
        return true;
      }
      case kThrow:
        throw std::runtime_error("test");
      default:
        return false;
    }
  }
};

class ControlBar : public testing::Test {
 protected:
  PageParent parent_;
  Bar bar_;
};

TEST_F(ControlBar, IsAnEmptyVisibleChild) {
  ASSERT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, WS_TABSTOP));
  EXPECT_EQ(bar_.Handle(), GetDlgItem(parent_.Window(), 100));
  EXPECT_EQ(100, bar_.Id());
  EXPECT_EQ(DWORD{WS_CHILD | WS_VISIBLE | WS_TABSTOP}, bar_.Style() & (WS_CHILD | WS_VISIBLE | WS_TABSTOP));
  const RECT rect = bar_.ClientRect();
  EXPECT_EQ(0, rect.right);
  EXPECT_EQ(0, rect.bottom);
  EXPECT_EQ(ULONG_PTR{CS_DBLCLKS}, GetClassLongPtrW(bar_.Handle(), GCL_STYLE) & CS_DBLCLKS);
}

TEST_F(ControlBar, MessagesComeToTheObjectAndTheRestToTheDefault) {
  ASSERT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0));
  bar_.SetText(L"name");
  EXPECT_EQ(42, bar_.Send(kQuestion));
  EXPECT_EQ(4, bar_.Send(WM_GETTEXTLENGTH));
  EXPECT_EQ(4, bar_.Send(kDefault));
  EXPECT_EQ(0, bar_.Send(WM_APP + 33));
}

TEST_F(ControlBar, SeesItsCreation) {
  ASSERT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0));
  ASSERT_FALSE(bar_.seen.empty());
  EXPECT_EQ(UINT{WM_NCCREATE}, bar_.seen.front());
  EXPECT_NE(bar_.seen.end(), std::find(bar_.seen.begin(), bar_.seen.end(), UINT{WM_CREATE}));
}

TEST_F(ControlBar, ExceptionGivesTheDefaultAnswer) {
  ASSERT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0));
  EXPECT_EQ(0, bar_.Send(kThrow));
  EXPECT_TRUE(bar_.IsWindow());
}

TEST_F(ControlBar, WindowMayDieFirst) {
  {
    const PageParent gone;
    ASSERT_TRUE(bar_.Create(CWnd(gone.Window()), 100, 0));
  }
  EXPECT_EQ(nullptr, bar_.Handle());
  EXPECT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0)) << "it can be created again";
}

TEST_F(ControlBar, ObjectMayDieFirst) {
  HWND window = nullptr;
  {
    Bar bar;
    ASSERT_TRUE(bar.Create(CWnd(parent_.Window()), 100, 0));
    window = bar.Handle();
  }
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(ControlBar, ObjectMayDieInItsOwnHandler) {
  auto bar = std::make_unique<Bar>();
  bar->owner = &bar;
  ASSERT_TRUE(bar->Create(CWnd(parent_.Window()), 100, 0));
  const HWND window = bar->Handle();
  EXPECT_EQ(42, SendMessageW(window, kQuestion, 0, 0));
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(ControlBar, WithoutAParentThereIsNone) {
  EXPECT_FALSE(bar_.Create(CWnd(), 100, 0));
  EXPECT_EQ(nullptr, bar_.Handle());
}

// Each time the class is a new one, and the threads meet at it, on more than one processor where there are some.
TEST(ControlBars, ComeUpOnManyThreadsAtOnce) {
  constexpr int kThreads = 8, kRounds = 100;
  std::atomic<int> failed{0};
  for (int round = 0; round < kRounds; ++round) {
    CControlBar::UnregisterWindowClass();
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
      threads.emplace_back([&, i] {
        SetThreadAffinityMask(GetCurrentThread(),
                              DWORD_PTR{1} << (i % std::max(1u, std::thread::hardware_concurrency())));
        const PageParent parent;
        Bar bar;
        ++ready;
        while (ready < kThreads) SwitchToThread();
        if (!bar.Create(CWnd(parent.Window()), 100, 0)) ++failed;
      });
    for (std::thread& thread : threads) thread.join();
  }
  EXPECT_EQ(0, failed);
}

TEST_F(ControlBar, ClassServesAllThreadsAndCanBeGivenBack) {
  ASSERT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0));
  std::thread([] {
    const PageParent parent;
    Bar bar;
    EXPECT_TRUE(bar.Create(CWnd(parent.Window()), 100, 0));
  }).join();
  bar_.Destroy();
  CControlBar::UnregisterWindowClass();
  WNDCLASSW description;
  EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), L"NemPdfUIControlBar", &description));
  EXPECT_TRUE(bar_.Create(CWnd(parent_.Window()), 100, 0));
  EXPECT_TRUE(GetClassInfoW(GetModuleHandleW(nullptr), L"NemPdfUIControlBar", &description));
}

}  // namespace
