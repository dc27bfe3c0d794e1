// A window of the library's own class that is a child of a dialog: it draws itself and takes its own input. The object
// outlives its window.
#pragma once

#include "window/CWnd.h"
#include "window/MessageMap.h"

class CControlBar : public CWnd, public CMessageTarget {
 public:
  CControlBar() = default;
  CControlBar(const CControlBar&) = delete;
  CControlBar& operator=(const CControlBar&) = delete;

  // Creates the window, empty and visible, as child `id` of `parent`. `style` is added to that of a visible child.
  bool Create(const CWnd& parent, int id, DWORD style);
  void Destroy();

  // Gives the window class back; at the library's detach, when no window of it is left.
  static void UnregisterWindowClass();

 protected:
  ~CControlBar() override;

  // What a window without a class of its own does with the message.
  LRESULT DefaultHandling(const WindowMessage& message);

 private:
  static LRESULT CALLBACK WindowProcedure(HWND, UINT, WPARAM, LPARAM);
};
