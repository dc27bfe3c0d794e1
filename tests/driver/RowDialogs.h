// The modeless dialogs that pages open for an entry of their list, as a test from outside knows them.
#pragma once

#include <windows.h>

#include <span>
#include <utility>

#include "driver/Sheet.h"

struct RowDialog {
  const char* name;  // English, for file names and messages
  int pageId;
  int list, open;  // controls of the page
  int cancel;      // of the dialog
  SIZE size;       // of its template, in dialog units
};

std::span<const RowDialog> RowDialogs();

// Texts of the host by which these lists have entries, and the switches that open them.
std::span<const std::pair<const wchar_t*, const wchar_t*>> FilledLists();
std::span<const wchar_t* const> FilledListSwitches();

// Shows the page of the current tab and selects the first entry.
SheetTask SelectFirstRow(Sheet& sheet, const RowDialog& row);
// The same, and opens its dialog; null when it did not come up.
SheetTask OpenRowDialog(Sheet& sheet, const RowDialog& row, HWND& dialog);
SheetTask CancelRowDialog(Sheet& sheet, const RowDialog& row, HWND dialog);
