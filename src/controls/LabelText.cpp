#include "controls/LabelText.h"

CUString WithoutMarks(const CUString& caption) {
  CUString text;
  text.EnsureCapacity(caption.Length());
  int length = 0;
  for (int i = 0; i < caption.Length(); ++i) {
    if (caption[i] == L'&' && ++i == caption.Length()) break;
    text.Buffer()[length++] = caption[i];
  }
  text.SetLength(length);
  return text;
}

CUString LabelBefore(const CWnd& control) {
  for (HWND window = ::GetWindow(control.Handle(), GW_HWNDPREV); window; window = ::GetWindow(window, GW_HWNDPREV)) {
    wchar_t className[16] = L"";
    ::GetClassNameW(window, className, static_cast<int>(std::size(className)));
    if (::lstrcmpiW(className, L"Static") != 0) continue;
    const CUString text = CWnd(window).Text();
    if (!text.IsEmpty()) return WithoutMarks(text);
  }
  return {};
}
