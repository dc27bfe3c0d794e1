// What other pages ask of the format page, whether it has been shown or not.
#pragma once

#include "pages/FindPageAs.h"
#include "sheet/PageNumbers.h"

class FormatAccess {
 public:
  // The PDF version as it stands on the page, before OK as well (pages/PdfVersions.h).
  virtual int GetPdfVersion() = 0;
  // Takes a version as if it had been loaded: page, list and property of the page's settings set have it.
  virtual void SetPdfVersion(int version) = 0;
  // The save format, normalised (pages/SaveFormat.h). No page of this library asks for it yet.
  virtual int GetSaveFormat() = 0;

 protected:
  ~FormatAccess() = default;
};

// The PDF version that `asking` has to obey; 0 when there is no format page on its tab.
inline int PdfVersionFor(CNemUIPage& asking) {
  FormatAccess* format = FindPageAs<FormatAccess>(asking, kFormatPage);
  return format ? format->GetPdfVersion() : 0;
}
