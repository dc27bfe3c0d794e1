// Answers to the system's file, folder and colour dialogs, for ExpectDialog:
//
//   sheet.ExpectDialog([](HWND dialog) { ChooseFile(dialog, L"C:\\invoice.xml"); });
//
// A dialog that is to be cancelled takes DismissDialog.
#pragma once

#include <windows.h>

#include <string>

// Types the path and presses Open or Save. A question that follows (overwrite?) is a box to be expected behind it.
void ChooseFile(HWND dialog, const std::wstring& path);

// The file name that the dialog proposes.
std::wstring ProposedFile(HWND dialog);

void ChooseFolder(HWND dialog, const std::wstring& path);

void ChooseColour(HWND dialog, COLORREF colour);
