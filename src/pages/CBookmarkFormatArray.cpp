#include "pages/CBookmarkFormatArray.h"

namespace {

struct DefaultFormat {
  const wchar_t* styleName;
  int32_t level;
  double fontSize;
  int32_t bold, italic;
};

constexpr wchar_t kDefaultFont[] = L"Arial";

constexpr DefaultFormat kDefaultFormats[] = {
    {L"heading 1", 1, 16, 1, 0},
    {L"heading 2", 2, 14, 1, 1},
    {L"heading 3", 3, 13, 1, 0},
};

}  // namespace

CBookmarkFormatArray::~CBookmarkFormatArray() { CBookmarkFormatArray::RemoveAll(); }

void CBookmarkFormatArray::RemoveAll() {
  for (int i = 0; i < Count(); ++i) delete GetAt(i);
  CPointerArray::RemoveAll();
}

int CBookmarkFormatArray::Add(std::unique_ptr<CBookmarkFormat> format) {
  const int index = CPointerArray::Add(format.get());
  format.release();  // the array's from here on
  return index;
}

int CBookmarkFormatArray::FindStyle(WideView styleName) const {
  for (int i = 0; i < Count(); ++i)
    if (GetAt(i) && GetAt(i)->styleName.Equals(styleName)) return i;
  return -1;
}

void CBookmarkFormatArray::AddDefaultFormats() {
  for (const DefaultFormat& row : kDefaultFormats) {
    if (FindStyle(row.styleName) >= 0) continue;
    auto format = std::make_unique<CBookmarkFormat>();
    format->used = 0;
    format->styleName = row.styleName;
    format->displayName = GetStyleDisplayName(row.styleName, false, format->kind);
    format->level = row.level;
    format->fontName = kDefaultFont;
    format->fontSize = row.fontSize;
    format->bold = row.bold;
    format->italic = row.italic;
    Add(std::move(format));
  }
}
