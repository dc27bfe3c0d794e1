// A modeless dialog beside a sheet. It belongs to one of the sheet's pages, which owns the object, is told by posted
// messages what the user did, and ends the dialog.
//
//   bool IsModified() const override { return modified_; }
//   ...
//   if (!dialog->Open(*this)) dialog.reset();   // the page
//
// While the dialog holds changes the sheet around the page is locked: the user finishes the dialog first. However the
// dialog comes to its end or vanishes from the screen, the sheet is open again before.
#pragma once

#include "window/CDialog.h"

class CModelessDialog : public CDialog {
 public:
  using CDialog::CDialog;

  // Creates the dialog over the sheet of `page`, centred on it and then moved beside it, and shows it. False when it
  // could not be created.
  bool Open(const CWnd& page);
  // Makes it the active window: the keyboard is in the dialog.
  void Activate() const;
  // Opens the sheet and destroys the window. The object can be destroyed afterwards, also while one of its handlers
  // has a box up: a handler touches nothing of the object behind a box unless the window is still there.
  void Close();

  // The rule of the lock: the page runs it when the dialog says that its state has changed, and after anything else
  // that opens windows by itself.
  void UpdateLock();

  // There is something to finish.
  virtual bool IsModified() const = 0;

 protected:
  ~CModelessDialog() override;

  // Enter where no button is the default one; Esc, the close box and the system menu.
  void OnOK() override {}
  void OnCancel() override {}

  void PostToPage(UINT message, WPARAM wParam = 0) const { page_.Post(message, wParam); }

  bool OnWindowMessage(WindowMessage& message) override;
  bool PostponesCommands() const override { return translating_; }

 private:
  static LRESULT CALLBACK KeyHook(int code, WPARAM wParam, LPARAM lParam);
  bool Translate(MSG& message);
  void StartKeys();
  void StopKeys();
  void PlaceBesideOwner() const;
  void Unlock();

  CWnd page_;
  CWnd locked_;  // the sheet while it is locked
  HHOOK keyHook_ = nullptr;
  void* before_ = nullptr;  // the modeless dialog that was the newest one before this
  bool translating_ = false;
};

// While one stands, the user cannot work in the modeless dialog: a box or a picker of its page is up, whose end would
// open what the dialog has locked meanwhile.
class DialogPause {
 public:
  explicit DialogPause(CModelessDialog* dialog);
  ~DialogPause();
  DialogPause(const DialogPause&) = delete;
  DialogPause& operator=(const DialogPause&) = delete;

 private:
  const CWnd window_;
};
