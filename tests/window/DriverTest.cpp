// The test driver on trial: what it runs, what it waits for, and what it must not let pass.
#include <windows.h>
// behind windows.h
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "driver/ImportPatch.h"
#include "driver/SelfProcess.h"
#include "driver/SheetDriver.h"
#include "driver/Watchdog.h"
#include "DriverTestSheet.h"

using namespace driver_test;

namespace {

class Driver : public testing::Test {
 protected:
  SheetResult Run(const Sheet::Body& body) {
    return RunSheet([this] { return test_.Show(); }, body);
  }

  // The failures that running `body` makes, one text each.
  std::vector<std::string> FailuresOf(const Sheet::Body& body) {
    testing::TestPartResultArray results;
    {
      testing::ScopedFakeTestPartResultReporter reporter(
          testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &results);
      lastResult_ = Run(body).value;
    }
    std::vector<std::string> failures;
    for (int i = 0; i < results.size(); ++i) failures.push_back(results.GetTestPartResult(i).message());
    return failures;
  }

  void ExpectOneFailure(const std::string& part, const Sheet::Body& body) {
    const auto failures = FailuresOf(body);
    ASSERT_EQ(1u, failures.size()) << testing::PrintToString(failures);
    EXPECT_NE(std::string::npos, failures[0].find(part)) << failures[0];
  }

  TestSheet test_;
  INT_PTR lastResult_ = 0;
};

ExpectedBox DeleteBox(int button) {
  return {.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONWARNING, .button = button};
}

}  // namespace

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

TEST_F(Driver, DrivesAPlainDialogAndASheetOnSeveralThreads) {
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

// --- Boxes ------------------------------------------------------------------------------------------------------

TEST_F(Driver, PressesTheButtonOfAnExpectedBox) {
  for (int button : {IDYES, IDNO, IDCANCEL}) {
    const SheetResult result = Run([button](Sheet& sheet) -> SheetTask {
      sheet.ExpectBox(DeleteBox(button));
      sheet.Control(kBoxButton).Click();
      sheet.PressOk();
      co_return;
    });
    EXPECT_EQ(button, test_.lastBoxAnswer);
    ASSERT_EQ(1u, result.boxes.size());
    EXPECT_EQ((std::vector<int>{IDYES, IDNO, IDCANCEL}), result.boxes[0].buttons);
    EXPECT_EQ(IDNO, result.boxes[0].defaultButton);
    EXPECT_FALSE(result.boxes[0].rightToLeft);
  }
}

TEST_F(Driver, MeetsSeveralBoxesInTheirOrder) {
  Run([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = L"first", .icon = MB_ICONERROR});
    sheet.ExpectBox({.title = kBoxTitle, .text = L"second"});
    sheet.Control(kTwoBoxesButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, MeetsABoxThatAPostedClickBrings) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.Control(kBoxButton).ClickAt(5, 5);
    co_await sheet.Settled();
    EXPECT_EQ(IDYES, test_.lastBoxAnswer);
    sheet.PressOk();
  });
}

TEST_F(Driver, MeetsABoxBeforeTheSheetIsUp) {
  test_.boxAtStart = true;
  SheetDriver driver;
  driver.ExpectBox({.title = kBoxTitle, .text = L"at start"});
  const auto result = driver.Run([this] { return test_.Show(); }, [](Sheet& sheet) -> SheetTask {
    EXPECT_TRUE(sheet.IsPropertySheet());
    sheet.PressOk();
    co_return;
  });
  EXPECT_EQ(1, result.value);
}

TEST_F(Driver, TellsABoxThatReadsFromRightToLeft) {
  const SheetResult result = Run([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONINFORMATION, .rightToLeft = true});
    sheet.Control(kArabicBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
  EXPECT_TRUE(result.boxes.at(0).rightToLeft);
}

TEST_F(Driver, BoxesAloneNeedNoSheet) {
  Popups popups;
  popups.ExpectBox({.title = L"T", .text = L"Go on?", .icon = MB_ICONQUESTION, .button = IDNO});
  EXPECT_EQ(IDNO, MessageBoxW(nullptr, L"Go on?", L"T", MB_YESNO | MB_ICONQUESTION));
}

TEST_F(Driver, UnexpectedBoxIsClosedAndAFailure) {
  ExpectOneFailure("A message box that nobody expected: title \"NEM test\", text \"Delete the profile",
                   [](Sheet& sheet) -> SheetTask {
                     sheet.Control(kBoxButton).Click();
                     sheet.PressOk();
                     co_return;
                   });
  EXPECT_EQ(IDCANCEL, test_.lastBoxAnswer);
  EXPECT_EQ(1, lastResult_);
}

TEST_F(Driver, SecondBoxIsUnexpectedWhenOneIs) {
  ExpectOneFailure("nobody expected: title \"NEM test\", text \"second\"", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = L"first", .icon = MB_ICONERROR});
    sheet.Control(kTwoBoxesButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, BoxThatDiffersFromTheExpectedOneIsAFailure) {
  const ExpectedBox wrongBoxes[] = {
      {.title = L"NEM Test", .text = kBoxText, .icon = MB_ICONWARNING, .button = IDYES},
      {.title = kBoxTitle, .text = std::wstring(kBoxText) + L" ", .icon = MB_ICONWARNING, .button = IDYES},
      {.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONERROR, .button = IDYES},
      {.title = kBoxTitle, .text = kBoxText, .icon = 0, .button = IDYES},
  };
  for (const ExpectedBox& wrong : wrongBoxes) {
    ExpectOneFailure("A message box came up with", [&wrong](Sheet& sheet) -> SheetTask {
      sheet.ExpectBox(wrong);
      sheet.Control(kBoxButton).Click();
      sheet.PressOk();
      co_return;
    });
    EXPECT_EQ(IDYES, test_.lastBoxAnswer);
  }
}

TEST_F(Driver, WrongReadingOrderIsAFailure) {
  ExpectOneFailure("reads from right to left", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox({.title = kBoxTitle, .text = kBoxText, .icon = MB_ICONINFORMATION, .rightToLeft = false});
    sheet.Control(kArabicBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, BoxWithoutTheButtonIsAFailure) {
  ExpectOneFailure("has no button", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDRETRY));
    sheet.Control(kBoxButton).Click();
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, ExpectedBoxThatNeverCameIsAFailure) {
  ExpectOneFailure("An expected message box never came: title \"NEM test\"", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.PressOk();
    co_return;
  });
}

// --- Dialogs ----------------------------------------------------------------------------------------------------

TEST_F(Driver, DrivesAnExpectedDialogByAFunction) {
  Run([this](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](HWND dialog) { SendMessageW(dialog, WM_COMMAND, IDOK, 0); });
    sheet.Control(kDialogButton).Click();
    EXPECT_EQ(1000, test_.dialogAnswer);
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, DrivesAnExpectedDialogByABodyOfItsOwn) {
  for (bool posted : {false, true}) {
    Run([this, posted](Sheet& sheet) -> SheetTask {
      sheet.ExpectDialog([](Sheet& dialog) -> SheetTask {
        EXPECT_FALSE(dialog.IsPropertySheet());
        dialog.Control(kEdit).SetText(L"abc");
        co_await dialog.Settled();
        dialog.PressOk();
      });
      if (posted)
        sheet.Control(kDialogButton).ClickAt(5, 5);
      else
        sheet.Control(kDialogButton).Click();
      co_await sheet.Settled();
      EXPECT_EQ(1003, test_.dialogAnswer);
      sheet.PressOk();
    });
  }
}

TEST_F(Driver, UnexpectedDialogIsClosedAndAFailure) {
  for (int button : {kDialogButton, kStubbornButton})
    ExpectOneFailure("A dialog that nobody expected: #32770 \"Own dialog\"", [button](Sheet& sheet) -> SheetTask {
      sheet.Control(button).Click();
      sheet.PressOk();
      co_return;
    });
}

TEST_F(Driver, ExpectedDialogThatNeverCameIsAFailure) {
  ExpectOneFailure("An expected dialog never came.", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](HWND) {});
    sheet.PressOk();
    co_return;
  });
}

TEST_F(Driver, DialogWhereABoxIsExpectedIsAFailure) {
  const auto failures = FailuresOf([](Sheet& sheet) -> SheetTask {
    sheet.ExpectBox(DeleteBox(IDYES));
    sheet.Control(kDialogButton).Click();
    sheet.PressOk();
    co_return;
  });
  ASSERT_EQ(2u, failures.size());
  EXPECT_NE(std::string::npos, failures[0].find("A dialog that nobody expected"));
  EXPECT_NE(std::string::npos, failures[1].find("never came"));
}

TEST_F(Driver, DialogThatItsBodyLeavesOpenIsAFailure) {
  ExpectOneFailure("The body left the dialog open", [](Sheet& sheet) -> SheetTask {
    sheet.ExpectDialog([](Sheet& dialog) -> SheetTask { co_await dialog.Settled(); });
    sheet.Control(kDialogButton).Click();
    sheet.PressOk();
    co_return;
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
  EXPECT_NONFATAL_FAILURE(RunSheet([] { return 5; }, [](Sheet&) -> SheetTask { co_return; }), "No sheet came up.");
}

// --- Watchdog ---------------------------------------------------------------------------------------------------

TEST(DriverWatchdog, EndsAHungTestAndPrintsItsWindows) {
  if (!EnvironmentValue(L"NEMPDF_HANG").empty()) {
    TestSheet test;
    RunSheet([&test] { return test.Show(); },
             [](Sheet& sheet) -> SheetTask { co_await sheet.Until([] { return false; }); });
    return;
  }
  const ProcessResult child = RunSelf(L"--gtest_filter=DriverWatchdog.*",
                                      {{L"NEMPDF_HANG", L"1"}, {L"NEMPDF_TEST_TIMEOUT", L"1"}});
  EXPECT_EQ(Watchdog::kExitCode, child.exitCode);
  for (const char* part : {"no end after 1 seconds in DriverWatchdog.EndsAHungTestAndPrintsItsWindows",
                           "#32770 \"Driver test\"", "page \"Child\", graphic"})
    EXPECT_NE(std::string::npos, child.output.find(part)) << part << " is not in:\n" << child.output;
}
