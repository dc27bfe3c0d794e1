// The two texts in which bookmark formats travel:
//
//   OutlineStyles   the formats in use, as style and level in turn: heading 1;1;heading 2;2
//   OutlineFormats  all formats: {STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;Underline;0.0.255}};
#pragma once

#include <string>

#include "DriverLIB/CIntArray.h"
#include "DriverLIB/CUStringArray.h"
#include "pages/CBookmarkFormatArray.h"

// The formats in use. Styles and levels that are empty are left out each by itself: a text that has such brings the two
// lists out of step. A style without level reads as level 0.
struct OutlineStyles {
  CUStringArray names;
  CIntArray levels;
};

// Reads OutlineStyles; what `styles` held goes.
void ReadOutlineStyles(WideView text, OutlineStyles& styles);

// Reads OutlineFormats behind what `formats` holds. An entry that breaks the grammar is left out. A format that stands
// in `styles` is in use and has the level that it has there.
void ReadOutlineFormats(WideView text, const OutlineStyles& styles, bool wordMode, CBookmarkFormatArray& formats);

// Writes both texts, format by format.
class COutlineWriter {
 public:
  // The storage of the printer's settings takes no more. Each pair is counted with three characters for separator and
  // level, whatever the level.
  static constexpr size_t kMaxStylesLength = 250;

  void Add(const CBookmarkFormat& format);

  CUString Styles() const { return CUString(styles_); }
  CUString Formats() const { return CUString(formats_); }
  // False when a format in use found no room in OutlineStyles. It stands in OutlineFormats all the same.
  bool AllStylesFit() const { return allStylesFit_; }

 private:
  std::wstring styles_, formats_;
  bool allStylesFit_ = true;
};
