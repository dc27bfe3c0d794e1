// What a control that draws itself tells a screen reader.
//
//   class CFontListBox : public CListBoxST, private CAccessibleSource { ... CAccessibility accessibility_; };
//
//   bool CFontListBox::OnWindowMessage(WindowMessage& message) {
//     return accessibility_.OnMessage(*this, message) || CListBoxST::OnWindowMessage(message);
//   }
//
// The control answers for itself as part 0, and for its parts from 1 to PartCount(). Parts are plain: they have no
// parts of their own.
#pragma once

#include "DriverLIB/CUString.h"
#include "window/MessageMap.h"

class CAccessibleSource {
 public:
  static constexpr int kSelf = 0;

  // The window that the coordinates belong to; null once it is gone.
  virtual HWND AccessibleWindow() const = 0;
  virtual int PartCount() const { return 0; }

  // `part` is always one of those that are there.
  virtual CUString PartName(int part) const = 0;
  virtual int PartRole(int part) const = 0;   // ROLE_SYSTEM_...
  virtual int PartState(int part) const = 0;  // STATE_SYSTEM_...; focusable and focused of part 0 are added
  virtual CUString PartValue(int) const { return {}; }
  // In client coordinates. Not asked for part 0, which is the window.
  virtual RECT PartRect(int part) const = 0;
  // The word for what a click does ("Press"), or an empty text.
  virtual CUString PartAction(int) const { return {}; }
  virtual bool HasPartAction(int) const { return false; }
  // Does it, as a click would: only while the control can be used. It may end the control.
  virtual void DoPartAction(int) {}
  // The part that has the keyboard's focus while the control has it.
  virtual int FocusedPart() const { return kSelf; }
  // Moves the focus to the part; the control has it already, and can be used.
  virtual void FocusPart(int) {}

 protected:
  ~CAccessibleSource() = default;
};

class CAccessibleObject;

// A control's side of the connection: makes the object when one is asked for, and cuts it off in time. A reader may
// keep the object for longer than the control lives: then the library stays loaded for good, since the object's code
// is still to be called.
class CAccessibility {
 public:
  CAccessibility() = default;
  ~CAccessibility() { Disconnect(); }
  CAccessibility(const CAccessibility&) = delete;
  CAccessibility& operator=(const CAccessibility&) = delete;

  // True when the message was a reader's, and is answered.
  bool OnMessage(CAccessibleSource& source, WindowMessage& message);
  // At the window's end.
  void Disconnect();

 private:
  bool OnGetObject(CAccessibleSource& source, WindowMessage& message);

  CAccessibleObject* object_ = nullptr;
};

// Neither the control nor the root around it is disabled. A box that lies over a control disables the root, and leaves
// the control as it is.
bool CanBeUsed(HWND control);

// A reader's action, posted to the control's window with the part in the first argument: the reader is not kept waiting
// while the action shows a box.
constexpr UINT kAccessibleActionMessage = WM_APP + 2;

// A question of a reader on another thread, sent to the control's window, which answers it by the object.
constexpr UINT kAccessibleQuestionMessage = WM_APP + 4;

// Tells the system's listeners that something happened to a part (EVENT_OBJECT_FOCUS, ...).
void NotifyAccessibleEvent(DWORD event, HWND window, int part);
