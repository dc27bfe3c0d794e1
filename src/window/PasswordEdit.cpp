#include "window/PasswordEdit.h"

#include <algorithm>

namespace {

constexpr wchar_t kHidden = L'*';

// As long as the room that an edit has for Undo from its start. More would move that memory and leave the old behind.
constexpr int kFillerLength = 31;

void Replace(const CEdit& edit, int from, int to, const wchar_t* text, bool canUndo) {
  edit.Send(EM_SETSEL, static_cast<WPARAM>(from), to);
  edit.Send(EM_REPLACESEL, canUndo, reinterpret_cast<LPARAM>(text));
}

}  // namespace

void ShowPassword(const CEdit& edit, bool visible) {
  edit.SetPasswordCharacter(visible ? L'\0' : kHidden);
  edit.Invalidate();
}

void SetPassword(const CEdit& edit, const CSecretText& password) {
  CSecretText shown;
  shown = edit.Text();
  if (shown == password) return;
  WipePassword(edit);
  edit.SetText(password.Text());
}

void WipePassword(const CEdit& edit) {
  const int length = static_cast<int>(edit.Send(WM_GETTEXTLENGTH));
  const auto limit = static_cast<int>(edit.Send(EM_GETLIMITTEXT));
  edit.LimitText(0);  // as much as the edit can hold
  // One character at a time: the edit makes a copy of what is replaced.
  for (int i = 0; i < std::max(length, kFillerLength); ++i) Replace(edit, i, i < length ? i + 1 : i, L"*", false);
  // Taken away as the user does it, the filler goes where Undo keeps what was taken away last.
  Replace(edit, 0, -1, L"", true);
  edit.Send(EM_EMPTYUNDOBUFFER);
  edit.LimitText(limit);
}
