#include "pages/OutlineTexts.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "DriverLIB/Numbers.h"
#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"
#include "pages/FontSizeText.h"

namespace {

constexpr wchar_t kPartEnd = L';';
constexpr wchar_t kKeyEnd = L':';
constexpr wchar_t kBrace = L'}';
constexpr std::wstring_view kStyleKey = L"{STYLE", kFontKey = L"{FONT";
constexpr std::wstring_view kBold = L"Bold", kItalic = L"Italic", kUnderline = L"Underline";

// Without the white space at both ends, as CUString::TrimBoth has it.
std::wstring_view Trimmed(std::wstring_view text) {
  text.remove_suffix(static_cast<size_t>(text::CountTrailing(text, platform::IsNarrowSpace)));
  text.remove_prefix(static_cast<size_t>(text::CountLeading(text, platform::IsWideSpace)));
  return text;
}

// Cuts a text into parts from its start.
class PartReader {
 public:
  explicit PartReader(std::wstring_view text) : rest_(text) {}

  bool Has(wchar_t end) const { return rest_.find(end) != rest_.npos; }

  // The text in front of the next `end`, trimmed; reading goes on behind that. Empty, and nothing is read, when there
  // is none.
  std::wstring_view UpTo(wchar_t end) {
    const size_t length = rest_.find(end);
    if (length == rest_.npos) return {};
    const std::wstring_view part = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return Trimmed(part);
  }

  // The part up to the next ";" or, behind the last one, up to the brace. `isLast` says which it was.
  std::wstring_view UpToPartEnd(bool& isLast) {
    isLast = !Has(kPartEnd);
    return UpTo(isLast ? kBrace : kPartEnd);
  }

 private:
  std::wstring_view rest_;
};

// Red, green and blue with points between, of which the low bytes count.
uint32_t ParseColour(std::wstring_view text) {
  const size_t first = text.find(L'.');
  if (first == text.npos || first == 0) return CBookmarkFormat::kNoColour;
  const size_t second = std::min(text.find(L'.', first + 1), text.size());
  const auto low = [](std::wstring_view number) { return static_cast<uint32_t>(ParseDecimal(number)) & 0xFF; };
  return low(text.substr(0, first)) | low(text.substr(first + 1, second - first - 1)) << 8 |
         low(text.substr(std::min(second + 1, text.size()))) << 16;
}

// Sets the flags of the words at the start of what is left, and the colour that may stand behind them.
void ReadLook(PartReader& reader, CBookmarkFormat& format) {
  for (bool isLast = false; !isLast;) {
    const std::wstring_view part = reader.UpToPartEnd(isLast);
    if (part == kBold) {
      format.bold = 1;
    } else if (part == kItalic) {
      format.italic = 1;
    } else if (part == kUnderline) {
      format.underline = 1;
    } else {
      format.colour = ParseColour(part);
      return;
    }
  }
}

// Reads an entry without its last brace. False when it breaks the grammar.
bool ReadEntry(std::wstring_view entry, std::wstring_view& styleText, CBookmarkFormat& format) {
  PartReader reader(entry);
  if (reader.UpTo(kKeyEnd) != kStyleKey) return false;
  styleText = reader.UpTo(kPartEnd);
  if (styleText.empty()) return false;
  const std::wstring_view level = reader.UpTo(kPartEnd);
  if (level.empty()) return false;
  if (reader.UpTo(kKeyEnd) != kFontKey) return false;
  const std::wstring_view font = reader.UpTo(kPartEnd);
  if (font.empty()) return false;
  bool isLast = false;
  const std::wstring_view size = reader.UpToPartEnd(isLast);
  if (size.empty()) return false;
  format.level = ParseDecimal(level);
  format.fontName = font;
  format.fontSize = ParseFontSize(size);
  format.colour = CBookmarkFormat::kNoColour;
  if (!isLast) ReadLook(reader, format);
  return true;
}

// The text in front of the second brace of `text`, which is cut behind the separator that follows. False at the end.
bool NextEntry(std::wstring_view& text, std::wstring_view& entry) {
  const size_t first = text.find(kBrace);
  const size_t second = first == text.npos ? first : text.find(kBrace, first + 1);
  if (second == text.npos) return false;
  entry = text.substr(0, second);
  text.remove_prefix(std::min(second + 2, text.size()));
  return true;
}

// The indexes of the styles in use; of equal ones the first.
using StyleIndex = std::unordered_map<std::wstring_view, int>;

StyleIndex IndexOf(const OutlineStyles& styles) {
  StyleIndex index;
  for (int i = 0; i < styles.names.Count(); ++i) index.emplace(styles.names[i].View(), i);
  return index;
}

void ApplyStyle(std::wstring_view styleText, const OutlineStyles& styles, const StyleIndex& index,
                CBookmarkFormat& format) {
  const auto found = index.find(styleText);
  format.used = found != index.end();
  if (format.used) format.level = static_cast<int32_t>(styles.levels.GetAt(found->second));
}

void ApplyName(std::wstring_view styleText, bool wordMode, CBookmarkFormat& format) {
  format.displayName = GetStyleDisplayName(styleText, wordMode, format.kind);
  format.styleName = format.kind == kBookmarkStandard ? styleText.substr(0, StyleNameLength(styleText)) : styleText;
}

}  // namespace

void ReadOutlineStyles(WideView text, OutlineStyles& styles) {
  styles.names.RemoveAll();
  styles.levels.RemoveAll();
  bool isName = true;
  for (std::wstring_view rest = text; !rest.empty(); isName = !isName) {
    const size_t length = std::min(rest.find(kPartEnd), rest.size());
    const std::wstring_view part = Trimmed(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
    if (part.empty()) continue;
    if (isName) {
      styles.names.Add(part);
    } else {
      styles.levels.Add(intptr_t{ParseDecimal(part)});
    }
  }
}

void ReadOutlineFormats(WideView text, const OutlineStyles& styles, bool wordMode, CBookmarkFormatArray& formats) {
  const StyleIndex index = IndexOf(styles);
  std::wstring_view rest = text;
  for (std::wstring_view entry, styleText; NextEntry(rest, entry);) {
    auto format = std::make_unique<CBookmarkFormat>();
    if (!ReadEntry(entry, styleText, *format)) continue;
    ApplyStyle(styleText, styles, index, *format);
    ApplyName(styleText, wordMode, *format);
    formats.Add(std::move(format));
  }
}

void COutlineWriter::Add(const CBookmarkFormat& format) {
  constexpr size_t kSeparatorAndLevel = 3;
  const CUString style = format.GetStyleText(), level = format.GetLevelText(), colour = format.GetColourText();
  if (format.used) {
    const size_t length = styles_.size() + (styles_.empty() ? 0 : 1) + style.View().size() + kSeparatorAndLevel;
    if (length > kMaxStylesLength) {
      allStylesFit_ = false;
    } else {
      if (!styles_.empty()) styles_ += kPartEnd;
      styles_.append(style.View()).append(L";").append(level.View());
    }
  }
  formats_.append(L"{STYLE:").append(style.View()).append(L";").append(level.View());
  formats_.append(L";{FONT:").append(format.fontName.View()).append(L";").append(format.GetSizeText().View());
  if (format.bold) formats_.append(L";").append(kBold);
  if (format.italic) formats_.append(L";").append(kItalic);
  if (format.underline) formats_.append(L";").append(kUnderline);
  if (!colour.IsEmpty()) formats_.append(L";").append(colour.View());
  formats_.append(L"}};");
}
