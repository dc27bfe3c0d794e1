// The test driver on trial: what it runs, what it waits for, and bodies that fail.
#include <windows.h>
// behind windows.h
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "driver/SelfProcess.h"
#include "driver/Watchdog.h"
#include "DriverFixture.h"

using namespace driver_test;

// --- The run ----------------------------------------------------------------------------------------------------

TEST_F(Driver, GivesTheResultOfTheModalCall) {
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
                 sheet.PressOk();
                 co_return;
               }).value);
  EXPECT_TRUE(test_.Saw("apply 0"));
  EXPECT_EQ(0, Run([](Sheet& sheet) -> SheetTask {
                 sheet.PressCancel();
                 co_return;
               }).value);
}

TEST_F(Driver, CloseBoxCancels) {
  EXPECT_EQ(0, Run([](Sheet& sheet) -> SheetTask {
                 sheet.Close();
                 co_await sheet.Settled();
                 EXPECT_FALSE(sheet.IsOpen());
               }).value);
  EXPECT_FALSE(test_.Saw("apply 0"));
}

TEST_F(Driver, BodyThatWaitsGoesOnWhenTheSheetHasClosed) {
  bool wentOn = false;
  Run([&wentOn](Sheet& sheet) -> SheetTask {
    sheet.PressOk();
    co_await sheet.Settled();
    EXPECT_FALSE(sheet.IsOpen());
    wentOn = true;
  });
  EXPECT_TRUE(wentOn);
}

TEST_F(Driver, RefusedOkLeavesTheSheetToTheBody) {
  test_.refuseKillActive = true;
  EXPECT_EQ(1, Run([this](Sheet& sheet) -> SheetTask {
                 sheet.PressOk();
                 co_await sheet.Settled();
                 EXPECT_TRUE(sheet.IsOpen());
                 test_.refuseKillActive = false;
                 sheet.PressOk();
               }).value);
  EXPECT_EQ(2, test_.Count("kill active 0"));
}

TEST_F(Driver, TasksAwaitTasks) {
  const auto step = [](Sheet& sheet, int& steps) -> SheetTask {
    co_await sheet.Settled();
    ++steps;
  };
  int steps = 0;
  Run([&](Sheet& sheet) -> SheetTask {
    co_await step(sheet, steps);
    co_await step(sheet, steps);
    sheet.PressOk();
  });
  EXPECT_EQ(2, steps);
}

TEST_F(Driver, DrivesAPlainDialog) {
  const auto result = RunSheet([] { return TestSheet::ShowDialog(); },
                               [](Sheet& dialog) -> SheetTask {
                                 EXPECT_FALSE(dialog.IsPropertySheet());
                                 EXPECT_EQ(dialog.Window(), dialog.Page());
                                 dialog.Control(kEdit).SetText(L"abc");
                                 co_await dialog.Settled();
                                 dialog.PressOk();
                               });
  EXPECT_EQ(1003, result.value);
  EXPECT_NONFATAL_FAILURE(
      EXPECT_EQ(0, RunSheet([] { return TestSheet::ShowDialog(true); }, [](Sheet&) -> SheetTask { co_return; }).value),
      "The body left the sheet open: #32770 \"Own dialog\"");
}

TEST_F(Driver, DrivesASheetOnEachOfSeveralThreads) {
  INT_PTR results[2] = {};
  std::thread threads[2];
  for (int i = 0; i < 2; ++i) {
    threads[i] = std::thread([&result = results[i]] {
      TestSheet test;
      result = RunSheet([&test] { return test.Show(); },
                        [](Sheet& sheet) -> SheetTask {
                          for (int round = 0; round < 3; ++round) co_await sheet.Settled();
                          sheet.PressOk();
                        })
                   .value;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(1, results[0]);
  EXPECT_EQ(1, results[1]);
}

// --- Settled ----------------------------------------------------------------------------------------------------

TEST_F(Driver, SettledComesBehindPostedMessagesAndPaints) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kPostButton).Click();
    EXPECT_FALSE(test_.Saw("posted 3"));
    co_await sheet.Settled();
    EXPECT_TRUE(test_.Saw("posted 3"));
    EXPECT_TRUE(test_.Saw("posted 1"));
    EXPECT_TRUE(test_.painted);
    sheet.PressOk();
  });
}

TEST_F(Driver, SettledComesBehindTheLastStepOfASlide) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.Control(kSlideButton).Click();
    co_await sheet.Settled();
    EXPECT_EQ(4, test_.slideSteps);
    sheet.PressOk();
  });
}

TEST_F(Driver, UntilWaitsForItsCondition) {
  Run([this](Sheet& sheet) -> SheetTask {
    SetTimer(sheet.Page(), 7, 150, nullptr);  // longer than a slide
    co_await sheet.Settled();
    EXPECT_EQ(0, test_.slideSteps);
    co_await sheet.Until([this] { return test_.slideSteps == 2; });
    KillTimer(sheet.Page(), 7);
    EXPECT_EQ(2, test_.slideSteps);
    sheet.PressOk();
  });
}

// --- Bodies that fail -------------------------------------------------------------------------------------------

TEST_F(Driver, BodyThatLeavesTheSheetOpenIsAFailure) {
  ExpectOneFailure("The body left the sheet open: #32770 \"Driver test\"",
                   [](Sheet& sheet) -> SheetTask { co_await sheet.Settled(); });
  EXPECT_EQ(0, lastResult_);
}

TEST_F(Driver, ExceptionClosesTheSheet) {
  ExpectOneFailure("The body threw: on purpose", [](Sheet& sheet) -> SheetTask {
    co_await sheet.Settled();
    throw std::runtime_error("on purpose");
  });
  EXPECT_EQ(0, lastResult_);
}

TEST_F(Driver, ExceptionTravelsToTheAwaitingTask) {
  bool caught = false;
  Run([&caught](Sheet& sheet) -> SheetTask {
    const auto fails = [](Sheet& sheet) -> SheetTask {
      co_await sheet.Settled();
      throw std::runtime_error("on purpose");
    };
    try {
      co_await fails(sheet);
    } catch (const std::runtime_error&) {
      caught = true;
    }
    sheet.PressOk();
  });
  EXPECT_TRUE(caught);
}

TEST_F(Driver, AssertionClosesTheSheet) {
  ExpectOneFailure("2", [](Sheet& sheet) -> SheetTask {
    co_await sheet.Settled();
    CO_ASSERT_EQ(1, 2) << "on purpose";
    sheet.PressOk();
  });
  EXPECT_EQ(0, lastResult_);
}

TEST_F(Driver, CallWithoutASheetIsAFailure) {
  EXPECT_NONFATAL_FAILURE(RunSheet([] { return 5; }, [](Sheet&) -> SheetTask { co_return; }),
                          "No sheet came up: the call gave 5");
}

// --- Watchdog ---------------------------------------------------------------------------------------------------

TEST(DriverWatchdog, EndsAHungTestAndPrintsItsWindows) {
  if (!EnvironmentValue(L"NEMPDF_HANG").empty()) {
    TestSheet test;
    RunSheet([&test] { return test.Show(); },
             [](Sheet& sheet) -> SheetTask { co_await sheet.Until([] { return false; }); });
    return;
  }
  const ProcessResult child =
      RunSelf(L"--gtest_filter=DriverWatchdog.*", {{L"NEMPDF_HANG", L"1"}, {L"NEMPDF_TEST_TIMEOUT", L"1"}});
  EXPECT_EQ(Watchdog::kExitCode, child.exitCode);
  for (const char* part : {"no end after 1 seconds in DriverWatchdog.EndsAHungTestAndPrintsItsWindows",
                           "#32770 \"Driver test\"", "page \"Child\", graphic"})
    EXPECT_NE(std::string::npos, child.output.find(part)) << part << " is not in:\n" << child.output;
}
