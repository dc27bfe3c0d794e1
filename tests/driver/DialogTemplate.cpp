#include "driver/DialogTemplate.h"

namespace {

constexpr size_t kCountWord = 8;  // where the number of controls stands in the header, in words

}  // namespace

DialogTemplate::DialogTemplate(DWORD style, SIZE size, const std::wstring& caption, DWORD extendedStyle, DWORD helpId) {
  AddWord(1);       // version of the extended form
  AddWord(0xFFFF);  // its mark
  AddDword(helpId);
  AddDword(extendedStyle);
  AddDword(style | DS_SETFONT | DS_FIXEDSYS);
  AddWord(0);  // controls
  AddPlace(0, 0, size.cx, size.cy);
  AddWord(0);  // no menu
  AddWord(0);  // the dialog class
  AddText(caption);
  AddWord(8);  // points
  AddWord(FW_NORMAL);
  AddWord(MAKEWORD(0, DEFAULT_CHARSET));
  AddText(L"MS Shell Dlg");
}

DialogTemplate& DialogTemplate::Add(const wchar_t* className, int id, RECT placeAndSize, const std::wstring& text,
                                    DWORD style, DWORD extendedStyle) {
  if (words_.size() % 2) AddWord(0);
  const DWORD visible = style & kHidden ? 0 : WS_VISIBLE;
  AddDword(0);  // help id
  AddDword(extendedStyle);
  AddDword((style & ~kHidden) | WS_CHILD | visible);
  AddPlace(placeAndSize.left, placeAndSize.top, placeAndSize.right - placeAndSize.left,
           placeAndSize.bottom - placeAndSize.top);
  AddDword(static_cast<DWORD>(id));
  AddText(className);
  AddText(text);
  AddWord(0);  // no creation data
  ++words_[kCountWord];
  return *this;
}

void DialogTemplate::AddDword(DWORD value) {
  AddWord(LOWORD(value));
  AddWord(HIWORD(value));
}

void DialogTemplate::AddText(const std::wstring& text) {
  for (wchar_t character : text) AddWord(character);
  AddWord(0);
}

void DialogTemplate::AddPlace(int x, int y, int width, int height) {
  for (int value : {x, y, width, height}) AddWord(static_cast<WORD>(value));
}
