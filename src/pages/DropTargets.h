// Files that are dropped on a page count on some of its controls only.
#pragma once

#include <algorithm>
#include <initializer_list>

#include "window/CWnd.h"

// The title of the boxes that refuse a file of the wrong kind. English in every language, as their texts are: title and
// text of a box are in one language.
constexpr wchar_t kRefusedDropTitle[] = L"Error";

// Whether a point of the page lies on one of its controls that are shown; they need not be enabled.
inline bool IsOnControl(const CWnd& page, POINT point, std::initializer_list<int> controls) {
  return std::ranges::any_of(controls, [&](int id) {
    const RECT rect = page.Item(id).RectIn(page);
    return page.Item(id).IsShown() && ::PtInRect(&rect, point);
  });
}
