// A control whose messages this object sees first. Object and control may end in either order: the object lets go when
// the control dies, and at its own end when that comes first. Both belong to one thread.
//
//   class CImageStatic : public CSubclassed<CStatic> { ... };
//   logo_.Attach(*this, IDC_LOGO);
#pragma once

#include "window/Controls.h"
#include "window/MessageMap.h"

class CSubclassedControl : public CMessageTarget {
 public:
  // The object that is attached to `control`, or null.
  static CSubclassedControl* FromHandle(HWND control);

  // What the control's parent was sent on the control's behalf: scrolling, owner-drawing, colours, a WM_COMMAND or
  // WM_NOTIFY of the control. True when the control answered it for good; false lets the parent handle it as well.
  virtual bool OnReflected(WindowMessage&) { return false; }

 protected:
  ~CSubclassedControl() override;

  bool AttachTo(HWND control);
  void Detach();
  // What the control itself does with the message.
  LRESULT DefaultHandling(const WindowMessage& message);

  virtual void OnAttached() {}
  virtual void OnDestroyed() {}
  // The CWnd of the derived class follows the attached handle.
  virtual void SetHandle(HWND control) = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM);

  void Release();

  HWND attached_ = nullptr;
};

// A control view with identity: it cannot be copied.
template <class View>
class CSubclassed : public View, public CSubclassedControl {
 public:
  CSubclassed() = default;
  CSubclassed(const CSubclassed&) = delete;
  CSubclassed& operator=(const CSubclassed&) = delete;

  // False when the dialog has no such control.
  bool Attach(const CWnd& dialog, int id) { return this->AttachTo(::GetDlgItem(dialog.Handle(), id)); }

 private:
  void SetHandle(HWND control) final { this->window_ = control; }
};
