// An array that owns its bookmark formats.
#pragma once

#include <memory>

#include "DriverLIB/CPointerArray.h"
#include "pages/CBookmarkFormat.h"

class CBookmarkFormatArray : public CPointerArray {
 public:
  CBookmarkFormatArray() noexcept = default;
  ~CBookmarkFormatArray() override;

  void RemoveAll() override;  // deletes every format

  int Add(std::unique_ptr<CBookmarkFormat> format);  // returns its index
  // The format, or null where there is none.
  CBookmarkFormat* GetAt(int index) const { return PointerAt<CBookmarkFormat>(index); }
  // The first index of a format of that style, or -1.
  int FindStyle(WideView styleName) const;

  // Adds those of the three standard headings that are not there, unused. For use outside Word mode.
  void AddDefaultFormats();
};
