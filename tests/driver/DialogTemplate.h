// A dialog template built in memory, for tests that need a dialog of their own.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

// All places and sizes are in dialog units; the font is that of the product's pages, "MS Shell Dlg" of 8 points.
// The object must outlive the dialogs that are made from it.
class DialogTemplate {
 public:
  DialogTemplate(DWORD style, SIZE size, const std::wstring& caption = {}, DWORD extendedStyle = 0, DWORD helpId = 0);

  // A control; `style` goes beside WS_CHILD and WS_VISIBLE. Pass kHidden to leave the latter out.
  static constexpr DWORD kHidden = WS_DLGFRAME;
  DialogTemplate& Add(const wchar_t* className, int id, RECT placeAndSize, const std::wstring& text = {},
                      DWORD style = 0, DWORD extendedStyle = 0);

  const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }
  size_t Size() const { return words_.size() * sizeof(WORD); }  // in bytes

 private:
  void AddWord(WORD value) { words_.push_back(value); }
  void AddDword(DWORD value);
  void AddText(const std::wstring& text);
  void AddPlace(int x, int y, int width, int height);

  std::vector<WORD> words_;
};

// "placeAndSize" of a control from its left upper corner, width and height.
constexpr RECT At(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }
