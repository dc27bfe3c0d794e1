#include "driver/Input.h"

#include <array>
#include <vector>

namespace {

using KeyboardState = std::array<BYTE, 256>;

KeyboardState CurrentState() {
  KeyboardState state = {};
  GetKeyboardState(state.data());
  return state;
}

void SetModifiers(const std::vector<WORD>& modifiers, bool down) {
  KeyboardState state = CurrentState();
  for (WORD modifier : modifiers) state[modifier] = down ? 0x80 : 0;
  SetKeyboardState(state.data());
}

LPARAM KeyData(WORD key, bool up, bool alt) {
  const LPARAM scanCode = MapVirtualKeyW(key, MAPVK_VK_TO_VSC);
  return 1 | (scanCode << 16) | (alt ? 1LL << 29 : 0) | (up ? 3LL << 30 : 0);
}

bool Contains(const std::vector<WORD>& keys, WORD key) {
  for (WORD candidate : keys)
    if (candidate == key) return true;
  return false;
}

HWND KeyboardTarget() {
  const HWND focus = GetFocus();
  return focus ? focus : GetActiveWindow();
}

void Send(std::vector<INPUT>& inputs) { SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)); }

INPUT KeyInput(WORD key, WORD scanCode, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = scanCode;
  input.ki.dwFlags = flags;
  return input;
}

INPUT MouseInput(POINT screen, DWORD flags) {
  const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = (screen.x * 65536 + width - 1) / width;
  input.mi.dy = (screen.y * 65536 + height - 1) / height;
  input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
  return input;
}

}  // namespace

// The keyboard's state is set and taken back by steps of their own, in the queue around the key: posted messages do
// not change it themselves.
void PostKey(IdleLoop& loop, WORD key, std::initializer_list<WORD> modifiers) {
  const std::vector<WORD> held = modifiers;
  const bool alt = Contains(held, VK_MENU) && !Contains(held, VK_CONTROL);
  loop.Post([held, key, alt, &loop] {
    SetModifiers(held, true);
    const HWND target = KeyboardTarget();
    PostMessageW(target, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, KeyData(key, false, alt));
    loop.Post([held, target, key, alt] {
      PostMessageW(target, alt ? WM_SYSKEYUP : WM_KEYUP, key, KeyData(key, true, alt));
      SetModifiers(held, false);
    });
  });
}

void PostText(IdleLoop& loop, const std::wstring& text) {
  for (wchar_t character : text)
    loop.Post([character] { PostMessageW(KeyboardTarget(), WM_CHAR, character == L'\n' ? L'\r' : character, 1); });
}

namespace real_input {

void Key(WORD key, std::initializer_list<WORD> modifiers) {
  const auto scanCode = [](WORD virtualKey) { return static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)); };
  std::vector<INPUT> inputs;
  for (WORD modifier : modifiers) inputs.push_back(KeyInput(modifier, scanCode(modifier), 0));
  inputs.push_back(KeyInput(key, scanCode(key), 0));
  inputs.push_back(KeyInput(key, scanCode(key), KEYEVENTF_KEYUP));
  for (WORD modifier : modifiers) inputs.push_back(KeyInput(modifier, scanCode(modifier), KEYEVENTF_KEYUP));
  Send(inputs);
}

void Text(const std::wstring& text) {
  std::vector<INPUT> inputs;
  for (wchar_t character : text) {
    inputs.push_back(KeyInput(0, character, KEYEVENTF_UNICODE));
    inputs.push_back(KeyInput(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
  }
  Send(inputs);
}

void MoveMouse(POINT screen) {
  std::vector<INPUT> inputs = {MouseInput(screen, MOUSEEVENTF_MOVE)};
  Send(inputs);
}

void Click(POINT screen) {
  std::vector<INPUT> inputs = {MouseInput(screen, MOUSEEVENTF_MOVE), MouseInput(screen, MOUSEEVENTF_LEFTDOWN),
                               MouseInput(screen, MOUSEEVENTF_LEFTUP)};
  Send(inputs);
}

}  // namespace real_input
