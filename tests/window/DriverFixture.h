// What the tests of the driver's own rules have in common.
#pragma once

#include <windows.h>
// behind windows.h
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/SheetDriver.h"
#include "DriverTestSheet.h"

namespace driver_test {

class Driver : public testing::Test {
 protected:
  SheetResult Run(const Sheet::Body& body) {
    return RunSheet([this] { return test_.Show(); }, body);
  }

  // Runs the steps on an open sheet and closes it with OK.
  void With(const Sheet::Body& steps) {
    Run([&steps](Sheet& sheet) -> SheetTask {
      co_await steps(sheet);
      if (sheet.IsOpen()) sheet.PressOk();
    });
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

}  // namespace driver_test
