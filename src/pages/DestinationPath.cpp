#include "pages/DestinationPath.h"

#include <algorithm>

namespace {

constexpr wchar_t kBackslash[] = L"\\";
constexpr wchar_t kFirstPrintable = 32;

// With their terminators: a zero is refused as well.
constexpr std::wstring_view kStrictlyRefused(L"<>:\"/\\|?*", 10);
constexpr std::wstring_view kRefused(L"<>\"|?*", 7);

}  // namespace

DestinationPath SplitDestination(const CUString& path) {
  const CEPathString whole(path);
  return {whole.GetDriveAndDirectory(), whole.GetNameAndExtension()};
}

CUString JoinDestination(const CUString& directory, const CUString& file) {
  const bool endsInSeparator = directory.IsEmpty() || directory.View().ends_with(kBackslash);
  return endsInSeparator ? directory + file : directory + kBackslash + file;
}

std::optional<DestinationPath> SplitChosenFile(const CUString& path, const CUString& file) {
  // A folder may have the same name: the last one is the file's.
  const int position = path.ReverseFindStr(file);
  if (file.IsEmpty() || position <= 0) return std::nullopt;
  return DestinationPath{path.Left(position - 1), file};
}

bool IsValidPathText(WideView text, PathTextRule rule) {
  const std::wstring_view refused = rule == PathTextRule::Strict ? kStrictlyRefused : kRefused;
  // Only the low byte is compared, on purpose: U+013C is refused as "<" is, and U+0100 as a zero.
  return std::ranges::none_of(text, [refused](wchar_t character) {
    return character < kFirstPrintable || refused.find(static_cast<wchar_t>(character & 0xFF)) != refused.npos;
  });
}
