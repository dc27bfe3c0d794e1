// A control as the dialog audit looks at it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

enum class ControlKind {
  kLabel,    // static text
  kPicture,  // static bitmap, icon, owner-drawn static, or one without text
  kFrame,    // frame, rectangle or line: others may stand within it
  kGroupBox,
  kPushButton,
  kCheck,        // check box or radio button
  kOwnerButton,  // draws itself
  kEdit,
  kCombo,
  kListBox,
  kListView,
  kSlider,
  kScrollBar,
  kSpin,
  kCustom,  // any other class
};

struct AuditedControl {
  HWND window;
  int id;
  std::wstring className;
  std::wstring text;
  DWORD style;
  RECT place;  // in the page's client area, pixels, left < right also on a mirrored page
  ControlKind kind;
  bool visible;

  int Width() const { return place.right - place.left; }
  int Height() const { return place.bottom - place.top; }
  bool IsTabStop() const { return style & WS_TABSTOP; }
  // Takes the focus by itself or as one of a group of radio buttons.
  bool IsFocusable() const;
  bool IsRadio() const;
};

// The direct children of a page in their order, hidden ones included.
std::vector<AuditedControl> ControlsOf(HWND page);

// "1141 Button \"&PDF file size\""
std::string Describe(const AuditedControl& control);

bool Overlap(const RECT& left, const RECT& right);
bool Contains(const RECT& outer, const RECT& inner);
// True when the two share more than half of the lower one's height.
bool InOneRow(const RECT& left, const RECT& right);
