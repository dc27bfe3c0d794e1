// A dialog of the library: modal, or created as a child or modeless window. The object outlives its window; the
// window, once destroyed, can be created again.
#pragma once

#include "window/CDataExchange.h"
#include "window/MessageMap.h"

class CDialog : public CWnd, public CMessageTarget {
 public:
  explicit CDialog(UINT templateId) : templateId_(templateId) {}
  CDialog(const CDialog&) = delete;
  CDialog& operator=(const CDialog&) = delete;

  UINT TemplateId() const { return templateId_; }

  // Runs the dialog modally and gives the value that EndDialog was called with; -1 when it could not be created or its
  // start threw. An owner that is no window any more counts as none. The object may be destroyed in the run, which
  // ends it.
  INT_PTR DoModal(HWND owner);
  // Creates the dialog as a child of `parent` (by the template's styles), or modeless. False when the window could
  // not be created or its start failed or threw; then no window is left.
  bool Create(HWND parent);
  void Destroy();
  // Ends a modal dialog. On a dialog that was created it marks the start as failed.
  void EndDialog(INT_PTR result);

  // Runs the control exchange. False when a step failed; the control of that step has the focus then, if the user can
  // see it.
  bool UpdateData(bool saving);

 protected:
  ~CDialog() override;

  // The window exists, its controls are still empty. The answer TRUE lets the platform choose the focus.
  // The base fills the controls by a loading exchange.
  virtual BOOL OnInitDialog();
  virtual void DoDataExchange(CDataExchange&) {}
  // OK and Cancel of a modal dialog: OK saves and ends it, unless the exchange fails.
  virtual void OnOK();
  virtual void OnCancel();
  // A command is to wait until the message that is being handled has been dealt with: it is posted again.
  virtual bool PostponesCommands() const { return false; }
  // F1, or the dialog's own help control. False leaves it to the parent.
  virtual bool OnHelpInfo(const HELPINFO&) { return false; }

  bool OnWindowMessage(WindowMessage& message) override;
  // A start that throws has failed.
  bool OnHandlerFailed(WindowMessage& message) override;

  // Leads a click on OK or Cancel, or the key that stands for it, to the two above; false for other commands.
  bool OnEndCommand(const WindowMessage& message);

  // Controls are being filled by code: their notifications are not the user's and are dropped.
  bool IsFilling() const { return filling_ > 0; }

  // While one stands, the notifications of the dialog's controls are dropped.
  class FillingScope {
   public:
    explicit FillingScope(CDialog& dialog) : dialog_(dialog) { ++dialog_.filling_; }
    ~FillingScope() { --dialog_.filling_; }
    FillingScope(const FillingScope&) = delete;
    FillingScope& operator=(const FillingScope&) = delete;

   private:
    CDialog& dialog_;
  };

  // Binds the object to its window, and hands the window's messages to the bound object.
  void BindWindow(HWND window);
  static INT_PTR Process(HWND, UINT, WPARAM, LPARAM);

 private:
  // The dialog procedure; the creation parameter is the object.
  static INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM);

  const UINT templateId_;
  int filling_ = 0;
  bool modal_ = false;  // how the window was made, or is being made
  bool creating_ = false;
  bool startFailed_ = false;
};
