#include "driver/CommonDialogs.h"

#include <shlobj.h>
// behind shlobj.h
#include <dlgs.h>

#include "driver/Text.h"

namespace {

constexpr int kRedEdit = 706, kGreenEdit = 707, kBlueEdit = 708;

void PressOk(HWND dialog) { SendDlgItemMessageW(dialog, IDOK, BM_CLICK, 0, 0); }

HWND FileName(HWND dialog) {
  const HWND combo = GetDlgItem(dialog, cmb13);
  return combo ? combo : GetDlgItem(dialog, edt1);
}

}  // namespace

void ChooseFile(HWND dialog, const std::wstring& path) {
  SetWindowTextW(FileName(dialog), path.c_str());
  PressOk(dialog);
}

std::wstring ProposedFile(HWND dialog) { return WindowText(FileName(dialog)); }

void ChooseFolder(HWND dialog, const std::wstring& path) {
  SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
  PressOk(dialog);
}

void ChooseColour(HWND dialog, COLORREF colour) {
  SetDlgItemInt(dialog, kRedEdit, GetRValue(colour), FALSE);
  SetDlgItemInt(dialog, kGreenEdit, GetGValue(colour), FALSE);
  SetDlgItemInt(dialog, kBlueEdit, GetBValue(colour), FALSE);
  PressOk(dialog);
}
