// Files that are dropped on a page count on some of its controls only.
#pragma once

#include <algorithm>
#include <initializer_list>

#include "window/CWnd.h"

// Whether a point of the page lies on one of its controls that are shown; they need not be enabled.
inline bool IsOnControl(const CWnd& page, POINT point, std::initializer_list<int> controls) {
  return std::ranges::any_of(controls, [&](int id) {
    const RECT rect = page.Item(id).RectIn(page);
    return page.Item(id).IsShown() && ::PtInRect(&rect, point);
  });
}
