#include "pages/EmbedFilenames.h"

#include <string>

#include "DriverLIB/TextLists.h"

namespace {

constexpr wchar_t kSeparator[] = L";";
constexpr wchar_t kQuote = L'"';

// Collects the paths in the text that is given back once: a CUString would grow anew with every path.
void AppendPath(std::wstring& text, std::wstring_view path) {
  if (!text.empty()) text += kSeparator;
  text += kQuote;
  text += path;
  text += kQuote;
}

std::wstring ListText(const CUStringArray& paths) {
  std::wstring text;
  for (int i = 0; i < paths.Count(); ++i) AppendPath(text, paths[i].View());
  return text;
}

}  // namespace

void ReadEmbedFilenames(WideView text, CUStringArray& paths) {
  CUStringArray pieces, found;
  SplitQuotedList(text, pieces, kSeparator);
  for (int i = 0; i < pieces.Count(); ++i)
    if (!pieces[i].IsEmpty()) found.Add(pieces[i]);
  paths.Swap(found);
}

CUString EmbedFilenamesText(const CUStringArray& paths) { return CUString(ListText(paths)); }

bool EmbedFilenameFits(const CUStringArray& paths, WideView path) {
  std::wstring text = ListText(paths);
  AppendPath(text, path);
  return text.size() <= kMaxEmbedFilenamesLength;
}
