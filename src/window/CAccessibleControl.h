// A control that draws itself and answers a screen reader as one part: itself. A derived class says name, role and
// state, and hands its messages on first:
//
//   bool CDrawnButton::OnWindowMessage(WindowMessage& message) {
//     if (AnswerReader(message)) return true;
#pragma once

#include "window/CAccessibility.h"
#include "window/CSubclassedControl.h"

template <class View>
class CAccessibleControl : public CSubclassed<View>, protected CAccessibleSource {
 protected:
  // True when the message was a reader's, and is answered.
  bool AnswerReader(WindowMessage& message) { return accessibility_.OnMessage(*this, message); }

  // At the control's end; a derived class that overrides it calls it.
  void OnDestroyed() override { accessibility_.Disconnect(); }

 private:
  HWND AccessibleWindow() const final { return this->Handle(); }
  RECT PartRect(int) const final { return {}; }

  CAccessibility accessibility_;
};
