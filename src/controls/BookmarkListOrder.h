// The order of the styles of a Word document in the list of bookmark formats.
#pragma once

#include "DriverLIB/TextView.h"

// 1 to 9 for the style text of one of Word's headings, which may have another name behind a comma; 0 for any other.
int HeadingNumber(WideView styleText);

struct BookmarkOrderKey {
  WideView styleText;
  WideView displayName;
};

// Headings come first, by their number; all others follow by the name that the user knows.
bool ComesBeforeInDocument(const BookmarkOrderKey& left, const BookmarkOrderKey& right);
