// Keyboard and mouse, posted to the focus window or put into the system's input.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

#include "driver/IdleLoop.h"

// The second argument of a WM_KEYDOWN that comes because the key is still held.
constexpr LPARAM kHeldKey = 1 | static_cast<LPARAM>(KF_REPEAT) << 16;

// Messages of keys as the keyboard makes them, through the thread's own message loop, so that the loop's dialog
// handling sees Tab, Enter, Esc, arrows and access keys. They go to the window that has the focus when it is their
// turn. Modifiers (VK_CONTROL, VK_SHIFT, VK_MENU) are seen by GetKeyState. No input queue of the system is needed.
void PostKey(IdleLoop& loop, WORD key, std::initializer_list<WORD> modifiers = {});
void PostText(IdleLoop& loop, const std::wstring& text);

// The same by the system's input, for tests that have a screen: the foreground window gets it.
namespace real_input {

void Key(WORD key, std::initializer_list<WORD> modifiers = {});
void Text(const std::wstring& text);
void MoveMouse(POINT screen);
void Click(POINT screen);

}  // namespace real_input
