// The list of attachments: any text, against a second reading; and what is read comes back from what is written.
#include <string>
#include <vector>

#include "pages/EmbedFilenames.h"
#include "Require.h"
#include "WideInput.h"

namespace {

using Text = std::wstring;
using Texts = std::vector<Text>;

// Pieces of `text` between the separators.
Texts Split(const Text& text, const Text& separator) {
  Texts pieces;
  size_t begin = 0;
  for (size_t end; (end = text.find(separator, begin)) != text.npos; begin = end + separator.size())
    pieces.push_back(text.substr(begin, end - begin));
  pieces.push_back(text.substr(begin));
  return pieces;
}

Texts Read(const Text& text) {
  Texts paths;
  for (Text piece : Split(text, L"\";")) {
    if (piece.empty()) continue;
    Texts found{piece};
    if (piece.front() == L'"' || piece.back() == L'"') {
      while (!found[0].empty() && found[0].front() == L'"') found[0].erase(0, 1);
      while (!found[0].empty() && found[0].back() == L'"') found[0].pop_back();
    } else {
      found = Split(piece, L";");
    }
    for (const Text& path : found)
      if (!path.empty()) paths.push_back(path);
  }
  return paths;
}

void RequireSame(const Texts& expected, const CUStringArray& paths) {
  REQUIRE(static_cast<size_t>(paths.Count()) == expected.size());
  for (size_t i = 0; i < expected.size(); ++i) REQUIRE(paths[static_cast<int>(i)].View() == expected[i]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Text text = WideInput(data, size);
  const Texts expected = Read(text);
  CUStringArray paths;
  ReadEmbedFilenames(text, paths);
  RequireSame(expected, paths);
  const CUString written = EmbedFilenamesText(paths);
  CUStringArray longer(paths);
  longer.Add(L"C:\\more.pdf");
  REQUIRE(EmbedFilenameFits(paths, L"C:\\more.pdf") ==
          (EmbedFilenamesText(longer).Length() <= kMaxEmbedFilenamesLength));
  // No path on Windows has a quotation mark, and no whole one begins with a separator: these may not come back.
  for (const Text& path : expected)
    if (path.find(L'"') != path.npos || path.front() == L';') return 0;
  ReadEmbedFilenames(written, paths);
  RequireSame(expected, paths);
  REQUIRE(EmbedFilenamesText(paths) == written);
  return 0;
}
