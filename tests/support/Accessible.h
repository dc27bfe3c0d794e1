// A control as a screen reader meets it.
#pragma once

#include <iterator>
#include <string>

#include "window/SystemFunction.h"
// behind Windows.h
#include <oleacc.h>

// COM for the test's thread; readers have it, and the platform's road to them needs it.
class ComScope {
 public:
  ComScope() { ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~ComScope() { ::CoUninitialize(); }
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;
};

// The text of the static control directly before a control, hidden or not: that is the name of a control that gives
// none itself. Empty when another control stands there.
inline std::wstring TextBefore(HWND control) {
  const HWND previous = ::GetWindow(control, GW_HWNDPREV);
  wchar_t className[16] = L"", text[256] = L"";
  ::GetClassNameW(previous, className, static_cast<int>(std::size(className)));
  if (::lstrcmpiW(className, L"Static") == 0) ::GetWindowTextW(previous, text, static_cast<int>(std::size(text)));
  return text;
}

class Accessible {
 public:
  // Asks the window for its client area; null inside when it does not answer for itself.
  explicit Accessible(HWND window) {
    const LRESULT answer = ::SendMessageW(window, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
    const auto fromResult = SystemFunction<decltype(::ObjectFromLresult)>(L"oleacc.dll", "ObjectFromLresult");
    if (answer > 0) fromResult(answer, __uuidof(IAccessible), 0, reinterpret_cast<void**>(&object_));
  }
  ~Accessible() {
    if (object_) object_->Release();
  }
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  explicit operator bool() const { return object_ != nullptr; }
  IAccessible* operator->() const { return object_; }

  static VARIANT Part(LONG part) {
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = part;
    return value;
  }
  // -1 stands for none.
  static LONG Number(const VARIANT& value) { return value.vt == VT_I4 ? value.lVal : -1; }

  LONG Count() const {
    LONG count = -1;
    object_->get_accChildCount(&count);
    return count;
  }
  std::wstring Name(LONG part) const { return Text(&IAccessible::get_accName, part); }
  std::wstring Value(LONG part) const { return Text(&IAccessible::get_accValue, part); }
  std::wstring Action(LONG part) const { return Text(&IAccessible::get_accDefaultAction, part); }
  LONG Role(LONG part) const {
    VARIANT role{};
    object_->get_accRole(Part(part), &role);
    return Number(role);
  }
  LONG State(LONG part) const {
    VARIANT state{};
    object_->get_accState(Part(part), &state);
    return Number(state);
  }
  LONG Focus() const {
    VARIANT focus{};
    object_->get_accFocus(&focus);
    return Number(focus);
  }
  LONG Selection() const {
    VARIANT selection{};
    object_->get_accSelection(&selection);
    return Number(selection);
  }
  LONG Navigate(LONG direction, LONG from) const {
    VARIANT end{};
    object_->accNavigate(direction, Part(from), &end);
    return Number(end);
  }
  LONG HitTest(POINT screen) const {
    VARIANT part{};
    object_->accHitTest(screen.x, screen.y, &part);
    return Number(part);
  }
  RECT Location(LONG part) const {
    LONG left = 0, top = 0, width = 0, height = 0;
    object_->accLocation(&left, &top, &width, &height, Part(part));
    return {left, top, left + width, top + height};
  }

 private:
  std::wstring Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*), LONG part) const {
    BSTR text = nullptr;
    (object_->*get)(Part(part), &text);
    const std::wstring result = text ? text : L"";
    static const auto free = SystemFunction<decltype(::SysFreeString)>(L"oleaut32.dll", "SysFreeString");
    free(text);
    return result;
  }

  IAccessible* object_ = nullptr;
};
