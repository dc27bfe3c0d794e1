#include "controls/BookmarkListOrder.h"

#include "controls/ListSorting.h"

int HeadingNumber(WideView styleText) {
  constexpr std::wstring_view kHeading = L"heading ";
  const std::wstring_view style = styleText.substr(0, styleText.find(L','));
  if (style.size() != kHeading.size() + 1 || style.substr(0, kHeading.size()) != kHeading) return 0;
  const wchar_t digit = style.back();
  return digit >= L'1' && digit <= L'9' ? digit - L'0' : 0;
}

bool ComesBeforeInDocument(const BookmarkOrderKey& left, const BookmarkOrderKey& right) {
  const int leftNumber = HeadingNumber(left.styleText), rightNumber = HeadingNumber(right.styleText);
  if (leftNumber && rightNumber) return leftNumber < rightNumber;
  if (leftNumber || rightNumber) return leftNumber != 0;
  return CompareCodeUnits(left.displayName, right.displayName) < 0;
}
