// The strict queue of the message boxes and dialogs that a test expects.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <source_location>
#include <string>
#include <vector>

#include "driver/IdleLoop.h"
#include "driver/MessageBoxes.h"
#include "driver/Watchdog.h"

// A box that has to come up, and the button that the test then presses. The text has to be equal to the last
// character.
struct ExpectedBox {
  std::wstring title;
  std::wstring text;
  UINT icon = 0;                                   // MB_ICON..., 0 for none
  int button = IDOK;                               // IDOK, IDCANCEL, IDYES, ...
  std::optional<bool> rightToLeft = std::nullopt;  // not asked when left out
};

// While it lives, each message box and each dialog that comes up on the thread is compared with the queue, front
// first. A box that nobody expected is closed and is a failure, and so is an expectation that is left at the end.
//
// A watchdog ends the process when the test hangs. Alone it serves tests of single boxes; for sheets RunSheet has one
// inside:
//   Popups popups;
//   popups.ExpectBox({.title = L"Title", .text = L"Go on?", .icon = MB_ICONQUESTION, .button = IDYES});
//   EXPECT_EQ(IDYES, MsgBoxById(...));
class Popups {
 public:
  using Location = std::source_location;

  explicit Popups(int timeoutSeconds = Watchdog::kUsualSeconds);
  ~Popups();
  Popups(const Popups&) = delete;
  Popups& operator=(const Popups&) = delete;

  void ExpectBox(ExpectedBox box, Location where = Location::current());

  // A dialog of another kind: a file or colour dialog, one of the product's own. `drive` runs when the dialog is up
  // and its thread idle, and normally ends it.
  void ExpectDialog(std::function<void(HWND)> drive, Location where = Location::current());

  // All message boxes so far, in the order in which they came.
  const std::vector<BoxRecord>& Boxes() const { return boxes_; }

  // The first dialog that comes up is what the test is about, and no failure. `ready` is told when it is there.
  void TakeFirstDialog(std::function<void(HWND)> ready) { takeFirst_ = std::move(ready); }

  // Closes the dialogs that are still up, other than `except`. Returns what they were, for a failure message.
  std::vector<std::string> CloseOpenDialogs(HWND except);

  // Reports the expectations that nothing met, and forgets them.
  void CheckAllCame();

  IdleLoop& Loop() { return loop_; }

 private:
  struct Expectation {
    std::optional<ExpectedBox> box;
    std::function<void(HWND)> drive;
    Location where;
  };

  static LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK OnMessageSent(int code, WPARAM wParam, LPARAM lParam);
  void LookSoon(HWND window);
  void Look(HWND window);
  void MeetBox(HWND window);
  void MeetDialog(HWND window);
  void Compare(const Expectation& expected, const BoxRecord& box) const;

  Watchdog watchdog_;
  IdleLoop loop_;
  Popups* previous_;
  HHOOK creationHook_;
  HHOOK showHook_;
  std::deque<Expectation> expectations_;
  std::vector<BoxRecord> boxes_;
  std::set<HWND> seen_;  // dialogs that came up and are not yet destroyed
  std::function<void(HWND)> takeFirst_;
};

// Closes a dialog that a test cannot go on with.
void DismissDialog(HWND dialog);
