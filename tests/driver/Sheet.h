// A modal window that is up: a property sheet, or a plain dialog, as a test's body meets it.
#pragma once

#include <windows.h>

#include <coroutine>
#include <functional>
#include <initializer_list>
#include <memory>
#include <source_location>
#include <string>
#include <vector>

#include "driver/ControlRef.h"
#include "driver/Popups.h"
#include "driver/SheetTask.h"

class Sheet {
 public:
  using Location = std::source_location;
  using Body = std::function<SheetTask(Sheet&)>;

  Sheet(HWND window, Popups& popups) : window_(window), popups_(popups) {}

  // --- Windows --------------------------------------------------------------------------------------------------

  HWND Window() const { return window_; }
  bool IsOpen() const { return IsWindow(window_); }
  bool IsPropertySheet() const;

  // The current tab's page of a property sheet; a plain dialog is its own.
  HWND HostPage() const;
  // The visible dialog within the host page, which carries the controls; the host page itself if there is none.
  HWND Page() const;
  // The number of the settings page shown, told by its context help id; 0 when that tells nothing.
  int PageId() const;

  ControlRef Control(int id, Location where = Location::current()) const;      // of the page
  ControlRef HostControl(int id, Location where = Location::current()) const;  // of the host page
  ControlRef SheetControl(int id, Location where = Location::current()) const;
  ControlRef Bar(Location where = Location::current()) const;  // the navigation bar

  // --- Tabs and pages -------------------------------------------------------------------------------------------

  int TabCount() const;
  int CurrentTab() const;
  std::wstring TabText(int tab) const;
  // Clicks on the tab. The sheet may refuse: see CurrentTab.
  void SelectTab(int tab, Location where = Location::current()) const;

  // Sends the command of the page's entry as the navigation bar does. The host's answer: false means refused.
  bool SelectPage(int id) const;

  // --- Buttons of the sheet -------------------------------------------------------------------------------------

  void PressOk(Location where = Location::current()) const { Press(IDOK, where); }
  void PressCancel(Location where = Location::current()) const { Press(IDCANCEL, where); }
  void PressHelp(Location where = Location::current()) const { Press(IDHELP, where); }
  void Press(int button, Location where = Location::current()) const;
  void Close() const;  // the close box

  // --- Keyboard -------------------------------------------------------------------------------------------------

  // Posted to the window with the focus; see Input.h. They arrive with the next Settled.
  void Key(WORD key, std::initializer_list<WORD> modifiers = {}) const;
  void Type(const std::wstring& text) const;
  // The control that has the focus; for a combo box the combo itself.
  int FocusedId() const;

  // --- Time -----------------------------------------------------------------------------------------------------

  class Idle {
   public:
    Idle(IdleLoop& loop, std::function<bool()> condition) : loop_(loop), condition_(std::move(condition)) {}
    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> body) {
      loop_.WhenIdle([body] { body.resume(); }, std::move(condition_));
    }
    void await_resume() const noexcept {}

   private:
    IdleLoop& loop_;
    std::function<bool()> condition_;
  };

  // `co_await sheet.Settled()`: posted messages, input, paints and slides have happened.
  Idle Settled() const { return Idle(popups_.Loop(), {}); }
  // The same, and `condition` holds. It is asked after each message; the watchdog ends a wait that never does.
  Idle Until(std::function<bool()> condition) const { return Idle(popups_.Loop(), std::move(condition)); }

  // --- Boxes and dialogs ----------------------------------------------------------------------------------------

  void ExpectBox(ExpectedBox box, Location where = Location::current()) { popups_.ExpectBox(std::move(box), where); }
  void ExpectDialog(std::function<void(HWND)> drive, Location where = Location::current()) {
    popups_.ExpectDialog(std::move(drive), where);
  }
  // A dialog that takes more than one step; the body that expects it goes on when this one has ended. A modal dialog
  // that it leaves open is closed and is a failure.
  void ExpectDialog(Body body, Location where = Location::current());

  const std::vector<BoxRecord>& Boxes() const { return popups_.Boxes(); }
  Popups& Queue() { return popups_; }

 private:
  HWND TabControl() const;

  HWND window_;
  Popups& popups_;
};

// Starts `task` and lets it run by itself. `finished` gets the exception that ended it, or null.
void StartTask(SheetTask task, std::function<void(std::exception_ptr)> finished);

// Reports an exception that ended a body; does nothing for null.
void ReportException(std::exception_ptr exception);
