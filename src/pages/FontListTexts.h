// The two lists of fonts as texts, names with ";" between them. While the page runs both are kept; the settings have
// room for one, and a switch that says which.
#pragma once

#include "DriverLIB/CUString.h"

constexpr wchar_t kFontSeparator[] = L";";

// A list with as many characters has no room in the printer's record of settings.
constexpr int kFontListLimit = 1024;

struct StoredFontList {
  bool isEmbedList = false;
  CUString names;
};

struct FontListTexts {
  CUString embed, neverEmbed;

  static FontListTexts FromStored(const StoredFontList& stored);
  // The list of fonts never to embed comes first; no list at all is an empty text.
  StoredFontList Stored() const;

  // Both lists together would not fit. One of them may all the same.
  bool ExceedTheRecord() const;
  // Neither list fits.
  bool AreBothTooLong() const;
  // Drops the one list that is not to be stored: that of fonts to embed, unless the other does not fit. What is left is
  // a blank where it names no font, so that it can be told from no list.
  void KeepOne();
};
