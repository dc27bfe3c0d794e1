// Drives a modal sheet or dialog in a test, on one thread and without waiting for times.
//
//   const SheetResult result = RunSheet([&] { return NemPdfUIDoModal(dialog); }, [](Sheet& sheet) -> SheetTask {
//     EXPECT_TRUE(sheet.SelectPage(108));
//     co_await sheet.Settled();
//     sheet.Control(IDC_COMPRESSION).Select(2);
//     sheet.ExpectBox({.title = L"Host", .text = L"Go on?", .icon = MB_ICONQUESTION, .button = IDYES});
//     sheet.Control(IDC_REMOVE).Click();
//     sheet.PressOk();
//   });
//   EXPECT_EQ(1, result.value);
//
// The callable runs the modal window by the product's real entry. As soon as the window is up and idle, its own
// message loop runs the body. These are failures: a message box or dialog that nobody expected, an expected one that
// never came, a body that leaves the sheet open (the driver closes it), a callable that shows no sheet. A body that
// ends by an exception or a CO_ASSERT has failed already; the sheet is then closed without a word. A watchdog ends
// the process when a test hangs.
//
// A test that runs on several threads may drive a sheet on each.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "driver/Sheet.h"

struct SheetResult {
  INT_PTR value = 0;             // what the callable returned
  std::vector<BoxRecord> boxes;  // all message boxes that came up
};

// For tests that expect boxes or dialogs before the sheet's body runs; others call RunSheet.
class SheetDriver {
 public:
  using Location = std::source_location;

  explicit SheetDriver(int timeoutSeconds = Watchdog::kUsualSeconds) : popups_(timeoutSeconds) {}

  void ExpectBox(ExpectedBox box, Location where = Location::current()) { popups_.ExpectBox(std::move(box), where); }
  void ExpectDialog(std::function<void(HWND)> drive, Location where = Location::current()) {
    popups_.ExpectDialog(std::move(drive), where);
  }

  SheetResult Run(const std::function<INT_PTR()>& showModal, const Sheet::Body& body,
                  Location where = Location::current());

 private:
  Popups popups_;
};

inline SheetResult RunSheet(const std::function<INT_PTR()>& showModal, const Sheet::Body& body,
                            std::source_location where = std::source_location::current()) {
  return SheetDriver().Run(showModal, body, where);
}
