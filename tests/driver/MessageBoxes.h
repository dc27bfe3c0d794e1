// What a message box on the screen says.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

struct BoxRecord {
  std::wstring title;
  std::wstring text;
  UINT icon = 0;                  // MB_ICONERROR, MB_ICONQUESTION, MB_ICONWARNING, MB_ICONINFORMATION, or 0 for none
  std::vector<int> buttons = {};  // command ids in the order of the keyboard
  int defaultButton = 0;
  HWND owner = nullptr;
  bool rightToLeft = false;  // asked for with MB_RTLREADING
};

// From now on the style of each message box that a module of ours opens is noted. The right-to-left order cannot be
// read from the box itself on every platform.
void WatchMessageBoxes();

// True for a box of MessageBoxW and its relatives, false for any other dialog.
bool IsMessageBox(HWND window);

// Only for a box that is up, on its own thread.
BoxRecord ReadMessageBox(HWND box);

// Presses a button as the user does. False when the box has no such button. IDOK stands for the only button of a box
// that has but one, since the platform may number that differently.
bool PressBoxButton(HWND box, int button);

// Gets rid of a box by the mildest button that it has.
void DismissBox(HWND box);

// "error", "question", "warning", "information", "none"
std::string IconName(UINT icon);

std::string Describe(const BoxRecord& box);
