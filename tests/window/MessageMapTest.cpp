// The message tables of the window layer, and its border to the platform.
#include "window/MessageMap.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/FailingMalloc.h"
#include "support/FakeSheet.h"
#include "support/TracedThread.h"

namespace {

constexpr UINT kOwn = WM_APP + 40, kOther = WM_APP + 41, kThird = WM_APP + 42, kFourth = WM_APP + 43;

class Target final : public CMessageTarget {
 public:
  std::string called;
  bool answersFailure = false;

  void OnNothing() { called += "nothing "; }
  int OnArguments(WPARAM wParam, LPARAM lParam) {
    called += "arguments ";
    return static_cast<int>(wParam) * 10 + static_cast<int>(lParam);
  }
  void OnWhole(WindowMessage& message) {
    called += "whole ";
    message.result = 33;
  }
  bool OnConst() const { return true; }
  void OnFirst() { called += "first "; }
  void OnSecond() { called += "second "; }
  void OnThrow() { throw std::runtime_error("test"); }

  bool OnWindowMessage(WindowMessage& message) override;
  bool OnHandlerFailed(WindowMessage& message) override {
    called += "failed ";
    message.result = 7;
    return answersFailure;
  }
};

constexpr MessageRow kTable[] = {
    OnMessage<&Target::OnNothing>(kOwn),
    OnMessage<&Target::OnArguments>(kOther),
    OnMessage<&Target::OnWhole>(kThird),
    OnMessage<&Target::OnConst>(kFourth),
    OnClick<&Target::OnFirst>(100),
    OnCommand<&Target::OnSecond>(100, EN_CHANGE),
    OnClickRange<&Target::OnSecond>(110, 112),
    OnClick<&Target::OnFirst>(111),
    OnNotify<&Target::OnFirst>(120, static_cast<UINT>(NM_CLICK)),
    OnUpdateCommandRange<&Target::OnSecond>(130, 131),
    OnMessage<&Target::OnThrow>(WM_APP + 50),
};

bool Target::OnWindowMessage(WindowMessage& message) { return DispatchMessages(kTable, *this, message); }

class MessageMap : public testing::Test {
 protected:
  // What was called, and whether the message was answered.
  std::string Dispatch(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    target_.called.clear();
    current_ = {parent_.Window(), message, wParam, lParam};
    const bool answered = target_.OnWindowMessage(current_);
    return target_.called + (answered ? "answered" : "default");
  }
  std::string Notify(int id, int code) {
    NMHDR header{nullptr, static_cast<UINT_PTR>(id), static_cast<UINT>(code)};
    return Dispatch(WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&header));
  }

  PageParent parent_;
  Target target_;
  WindowMessage current_;
};

TEST_F(MessageMap, HandlersTakeAsMuchOfTheMessageAsTheyAskFor) {
  EXPECT_EQ("nothing answered", Dispatch(kOwn, 1, 2));
  EXPECT_EQ(0, current_.result) << "a handler that gives nothing answers 0";
  EXPECT_EQ("arguments answered", Dispatch(kOther, 4, 2));
  EXPECT_EQ(42, current_.result);
  EXPECT_EQ("whole answered", Dispatch(kThird));
  EXPECT_EQ(33, current_.result);
  EXPECT_EQ("answered", Dispatch(kFourth));
  EXPECT_EQ(1, current_.result);
  EXPECT_EQ("default", Dispatch(WM_APP + 49));
}

TEST_F(MessageMap, CommandsFitByIdAndNotification) {
  EXPECT_EQ("first answered", Dispatch(WM_COMMAND, MAKEWPARAM(100, BN_CLICKED)));
  EXPECT_EQ("second answered", Dispatch(WM_COMMAND, MAKEWPARAM(100, EN_CHANGE)));
  EXPECT_EQ("default", Dispatch(WM_COMMAND, MAKEWPARAM(100, EN_UPDATE)));
  EXPECT_EQ("default", Dispatch(WM_COMMAND, MAKEWPARAM(101, BN_CLICKED)));
}

TEST_F(MessageMap, RangesHoldBothEndsAndTheFirstRowWins) {
  for (int id = 109; id <= 113; ++id)
    EXPECT_EQ(id >= 110 && id <= 112 ? "second answered" : "default", Dispatch(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED)))
        << id;
  for (int id = 129; id <= 132; ++id)
    EXPECT_EQ(id == 130 || id == 131 ? "second answered" : "default",
              Dispatch(kUpdateCommandMessage, static_cast<WPARAM>(id)))
        << id;
}

TEST_F(MessageMap, NotificationsFitByIdAndCode) {
  EXPECT_EQ("first answered", Notify(120, NM_CLICK));
  EXPECT_EQ("default", Notify(120, NM_DBLCLK));
  EXPECT_EQ("default", Notify(121, NM_CLICK));
}

TEST_F(MessageMap, GuardPassesAnswersOn) {
  WindowMessage message{parent_.Window(), kOther, 1, 1};
  EXPECT_TRUE(GuardMessage("Test", target_, message));
  EXPECT_EQ(11, message.result);
  message.message = WM_APP + 49;
  EXPECT_FALSE(GuardMessage("Test", target_, message));
}

TEST_F(MessageMap, GuardTracesWhatIsThrownAndAsksTheTargetForTheAnswer) {
  TracedThread trace;
  for (const bool answers : {false, true}) {
    target_.called.clear();
    target_.answersFailure = answers;
    WindowMessage message{parent_.Window(), WM_APP + 50};
    EXPECT_EQ(answers, GuardMessage("Place", target_, message));
    EXPECT_EQ("failed ", target_.called);
    EXPECT_EQ(7, message.result);
    const std::vector<std::wstring> lines = trace.Lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_NE(std::wstring::npos, lines[0].find(L"Place: caught throwed exception"));
  }
}

TEST_F(MessageMap, GuardHoldsWithoutMemoryForItsLine) {
  TracedThread trace;
  target_.answersFailure = true;
  WindowMessage message{parent_.Window(), WM_APP + 50};
  bool answered = false;
  {
    const FailingMalloc noMemory(0);
    answered = GuardMessage("Place", target_, message);
  }
  EXPECT_TRUE(answered);
  EXPECT_EQ(7, message.result);
  EXPECT_EQ(std::vector<std::wstring>{}, trace.Lines()) << "the line is left out";
}

TEST_F(MessageMap, GuardLeavesATargetAloneWhoseWindowIsGone) {
  target_.answersFailure = true;
  WindowMessage message{nullptr, WM_APP + 50};
  EXPECT_FALSE(GuardMessage("Place", target_, message));
  EXPECT_EQ("", target_.called);
}

}  // namespace
