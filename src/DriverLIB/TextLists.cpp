#include "DriverLIB/TextLists.h"

#include <algorithm>

namespace {

constexpr wchar_t kQuotationMark = L'"';

// Calls `take` with every piece of `text` that is not empty.
template <class Take>
void ForEachPiece(std::wstring_view text, std::wstring_view separator, Take take) {
  while (!text.empty()) {
    const size_t length = separator.empty() ? text.size() : std::min(text.find(separator), text.size());
    if (length > 0) take(text.substr(0, length));
    text.remove_prefix(std::min(length + separator.size(), text.size()));
  }
}

std::wstring_view StripQuotationMarks(std::wstring_view text) {
  const size_t first = text.find_first_not_of(kQuotationMark);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kQuotationMark) - first + 1);
}

}  // namespace

void SplitList(WideView text, CUStringArray& array, WideView separator) {
  CUStringArray pieces;
  ForEachPiece(text, separator, [&](std::wstring_view piece) { pieces.Add(piece); });
  array.Swap(pieces);
}

void SplitQuotedList(WideView text, CUStringArray& array, WideView separator) {
  const CUString quotedSeparator = CUString(L"\"") + separator;
  CUStringArray elements;
  const auto add = [&](std::wstring_view element) { elements.Add(element); };
  ForEachPiece(text, quotedSeparator, [&](std::wstring_view piece) {
    if (piece.front() == kQuotationMark || piece.back() == kQuotationMark) {
      add(StripQuotationMarks(piece));
    } else {
      ForEachPiece(piece, separator, add);
    }
  });
  array.Swap(elements);
}
