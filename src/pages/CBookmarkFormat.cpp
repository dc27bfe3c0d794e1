#include "pages/CBookmarkFormat.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "DriverLIB/MessageText.h"
#include "DriverLIB/Numbers.h"
#include "MessageIds.h"
#include "pages/WordStyles.h"

namespace {

constexpr wchar_t kNameSeparator[] = L",";
constexpr wchar_t kPartSeparator[] = L", ";
constexpr wchar_t kSizeUnit[] = L"pt";
constexpr std::wstring_view kForbiddenInNames = L",;.:{}()\"";

struct Heading {
  std::wstring_view style;
  uint32_t messageId;
};

constexpr Heading kStandardHeadings[] = {
    {L"heading 1", MSG_WORD_STYLE_HEADING_1},
    {L"heading 2", MSG_WORD_STYLE_HEADING_2},
    {L"heading 3", MSG_WORD_STYLE_HEADING_3},
};

const Heading* FindStandardHeading(std::wstring_view style) {
  const auto found = std::ranges::find(kStandardHeadings, style, &Heading::style);
  return found == std::end(kStandardHeadings) ? nullptr : found;
}

CUString StandardHeadingName(std::wstring_view style) {
  const Heading* heading = FindStandardHeading(style);
  return heading ? MessageText(heading->messageId) : CUString();
}

}  // namespace

CBookmarkFormat CBookmarkFormat::UserCopy() const {
  CBookmarkFormat copy(*this);
  copy.used = 1;
  copy.kind = kBookmarkUserDefined;
  return copy;
}

CUString CBookmarkFormat::GetFormatText(WideView colourName) const { return DescribeWith(L"", colourName); }

CUString CBookmarkFormat::GetDescription(WideView colourName) const { return DescribeWith(kSizeUnit, colourName); }

CUString CBookmarkFormat::DescribeWith(WideView sizeUnit, WideView colourName) const {
  CUString text = fontName + kPartSeparator + GetSizeText() + sizeUnit;
  if (bold) text += CUString(kPartSeparator) + MessageText(MSG_BOOKMARK_BOLD);
  if (italic) text += CUString(kPartSeparator) + MessageText(MSG_BOOKMARK_ITALIC);
  if (underline) text += CUString(kPartSeparator) + MessageText(MSG_BOOKMARK_UNDERLINED);
  return text + kPartSeparator + colourName;
}

CUString CBookmarkFormat::GetKindText() const {
  switch (kind) {
    case kBookmarkStandard:
      return MessageText(MSG_BOOKMARK_KIND_STANDARD);
    case kBookmarkUserDefined:
      return MessageText(MSG_BOOKMARK_KIND_USER_DEFINED);
    case kBookmarkWordStandard:
      return MessageText(MSG_BOOKMARK_KIND_WORD_STANDARD);
    case kBookmarkWordUserDefined:
      return MessageText(MSG_BOOKMARK_KIND_WORD_USER_DEFINED);
    default:
      return {};
  }
}

CUString CBookmarkFormat::GetStyleText() const {
  if (kind != kBookmarkStandard || StandardHeadingName(styleName.View()) == displayName) return styleName;
  return styleName + kNameSeparator + displayName;
}

CUString CBookmarkFormat::GetLevelText() const {
  CUString text;
  text.Format(L"%d", level);
  return text;
}

CUString CBookmarkFormat::GetSizeText() const {
  return FormatDouble(fontSize == std::floor(fontSize) ? L"%.0f" : L"%.1f", fontSize);
}

CUString CBookmarkFormat::GetColourText() const {
  CUString text;
  if (colour != kNoColour) text.Format(L"%d.%d.%d", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
  return text;
}

bool SameProperties(const CBookmarkFormat& left, const CBookmarkFormat& right) {
  return left.fontName == right.fontName && left.fontSize == right.fontSize && left.bold == right.bold &&
         left.italic == right.italic && left.underline == right.underline && left.colour == right.colour;
}

bool IsValidBookmarkName(WideView name) { return !name.empty() && name.find_first_of(kForbiddenInNames) == name.npos; }

size_t StyleNameLength(WideView styleText) { return std::min(styleText.find(kNameSeparator), styleText.size()); }

CUString GetStyleDisplayName(WideView styleText, bool wordMode, int32_t& kind) {
  const size_t length = StyleNameLength(styleText);
  const std::wstring_view style = styleText.substr(0, length);
  const std::wstring_view extra = styleText.substr(std::min(length + 1, styleText.size()));
  if (!wordMode) {
    const Heading* heading = FindStandardHeading(style);
    kind = heading || !extra.empty() ? kBookmarkStandard : kBookmarkUserDefined;
    if (!extra.empty()) return extra;
    return heading ? MessageText(heading->messageId) : CUString(style);
  }
  const WordStyle* known = FindWordStyle(style);
  kind = known ? kBookmarkWordStandard : kBookmarkWordUserDefined;
  CUString name = known ? MessageText(known->messageId) : CUString(style);
  if (!extra.empty()) name += CUString(kNameSeparator) + extra;
  return name;
}
