#include "driver/SheetDriver.h"

#include <prsht.h>

#include "driver/Text.h"

namespace {

// Grows when an assertion ends a body, or a function that the body called.
int FatalFailures() { return coAssertFailures + (testing::Test::HasFatalFailure() ? 1 : 0); }

// One modal run. Steps that wait in the message loop hold it, since some may outlast the modal call.
class ModalRun : public std::enable_shared_from_this<ModalRun> {
 public:
  ModalRun(Popups& popups, const Sheet::Body& body, std::source_location where)
      : popups_(popups), body_(body), where_(where) {}

  void WaitForSheet() {
    popups_.TakeFirstDialog([self = shared_from_this()](HWND window) {
      self->sheet_ = std::make_unique<Sheet>(window, self->popups_);
      self->popups_.Loop().WhenIdle([self] { self->StartBody(); });
    });
  }

  // The modal call has returned; a body that waits for something goes on without its sheet.
  void End(const SheetResult& result) {
    const DWORD error = GetLastError();
    ended_ = true;
    popups_.TakeFirstDialog({});
    if (!sheet_)
      return Fail("No sheet came up: the call gave " + std::to_string(result.value) + ", the system's last error is " +
                  std::to_string(error) + '.');
    popups_.Loop().RunUntil([this] { return finished_; });
  }

 private:
  void StartBody() {
    const int failuresBefore = FatalFailures();
    StartTask(body_(*sheet_), [self = shared_from_this(), failuresBefore](std::exception_ptr exception) {
      ReportException(exception);
      self->failed_ = exception || FatalFailures() != failuresBefore;
      self->finished_ = true;
      if (!self->ended_) self->popups_.Loop().WhenIdle([self] { self->CheckClosed(); });
    });
  }

  void CheckClosed() {
    if (ended_) return;
    for (const std::string& dialog : popups_.CloseOpenDialogs(sheet_->Window()))
      Fail("The body left a dialog open: " + dialog);
    if (sheet_->IsOpen() && IsWindowVisible(sheet_->Window())) {
      if (!failed_) Fail("The body left the sheet open: " + DescribeWindow(sheet_->Window()));
      failed_ = true;
    }
    Close();
    popups_.Loop().WhenIdle([self = shared_from_this()] { self->CheckClosed(); });
  }

  // Each time by a stronger means. If even the last one fails, the watchdog has to speak.
  void Close() {
    const HWND window = sheet_->Window();
    const bool propertySheet = sheet_->IsPropertySheet();
    switch (attempt_++) {
      case 0:
        if (propertySheet)
          PostMessageW(window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        else
          PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        break;
      case 1:
        PostMessageW(window, WM_CLOSE, 0, 0);
        break;
      case 2:
        if (propertySheet)
          DestroyWindow(window);
        else
          EndDialog(window, 0);
        break;
    }
  }

  void Fail(const std::string& text) const {
    ADD_FAILURE_AT(where_.file_name(), static_cast<int>(where_.line())) << text;
  }

  Popups& popups_;
  const Sheet::Body& body_;
  std::source_location where_;
  std::unique_ptr<Sheet> sheet_;
  bool finished_ = false;  // the body
  bool failed_ = false;    // the body, so that its sheet may be left open
  bool ended_ = false;     // the modal call
  int attempt_ = 0;
};

}  // namespace

SheetResult SheetDriver::Run(const std::function<INT_PTR()>& showModal, const Sheet::Body& body, Location where) {
  const size_t boxesBefore = popups_.Boxes().size();
  const auto run = std::make_shared<ModalRun>(popups_, body, where);
  run->WaitForSheet();
  SheetResult result;
  result.value = showModal();
  run->End(result);
  popups_.CheckAllCame();
  result.boxes.assign(popups_.Boxes().begin() + static_cast<ptrdiff_t>(boxesBefore), popups_.Boxes().end());
  return result;
}
