// A bookmark format: at which level of the outline the paragraphs of one style of a document enter the PDF's bookmarks,
// and how they look there.
#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

// Where a bookmark format comes from.
enum BookmarkKind : int32_t {
  kBookmarkStandard = 1,        // one of the three headings that are always there, outside Word mode
  kBookmarkUserDefined = 2,     // made by the user: the style is named as the format is
  kBookmarkWordStandard = 3,    // a style of Word's own, in Word mode
  kBookmarkWordUserDefined = 4  // any other style, in Word mode
};

struct CBookmarkFormat {
  static constexpr uint32_t kNoColour = 0xFF000000;

  int32_t used = 1;      // it takes part in making bookmarks
  CUString styleName;    // as the converter knows the style
  CUString displayName;  // as the user does
  int32_t level = 1;     // 1 to 9
  CUString fontName;
  double fontSize = 10.0;  // points
  int32_t bold = 0;
  int32_t italic = 0;
  int32_t underline = 0;
  uint32_t colour = 0;  // 0x00BBGGRR, or kNoColour
  int32_t kind = kBookmarkUserDefined;

  // What the user gets from a copy: a format of their own, in use.
  CBookmarkFormat UserCopy() const;

  // The columns of the list. The colour is described by the caller, since that is the colour controls' business.
  CUString GetFormatText(WideView colourName) const;
  // The same for the dialog of a format: with the unit of the size.
  CUString GetDescription(WideView colourName) const;
  CUString GetKindText() const;

  // The parts of the texts in which formats travel.
  CUString GetStyleText() const;  // a standard heading that got another name has that behind a comma
  CUString GetLevelText() const;
  CUString GetSizeText() const;    // one decimal if it has a fraction, else none
  CUString GetColourText() const;  // "red.green.blue", empty for no colour

 private:
  CUString DescribeWith(WideView sizeUnit, WideView colourName) const;
};

// True when both make bookmarks look alike. Names, kinds and levels do not count.
bool SameProperties(const CBookmarkFormat& left, const CBookmarkFormat& right);

// A name that breaks none of the texts in which formats travel.
bool IsValidBookmarkName(WideView name);

// What the user reads for a style, and the kind of its format. A style text may have another name behind a comma.
CUString GetStyleDisplayName(WideView styleText, bool wordMode, int32_t& kind);

// The number of characters of a style text in front of its first comma.
size_t StyleNameLength(WideView styleText);
