// Bookmark formats: the first line of the input is the list of those in use, the rest is the list of all. Any text,
// against a second reading; and what is read and written is read as the same.
#include <cstdlib>

#include "OutlineModel.h"
#include "pages/OutlineTexts.h"
#include "Require.h"
#include "WideInput.h"

namespace {

using namespace outline_model;

struct Format {
  Text style, font;
  int32_t level = 0;
  double size = 0;
  bool bold = false, italic = false, underline = false, used = false;
  uint32_t colour = 0xFF000000;
};

// Takes what stands in front of `end`; false when there is none.
bool Take(Text& text, wchar_t end, Text& part) {
  const size_t at = text.find(end);
  if (at == text.npos) return false;
  part = Trimmed(text.substr(0, at));
  text.erase(0, at + 1);
  return true;
}

// Takes a part that ends at ";" or else at "}".
bool TakeLast(Text& text, Text& part, wchar_t& end) {
  end = L';';
  if (Take(text, end, part)) return true;
  end = L'}';
  return Take(text, end, part);
}

double Size(Text text) {
  std::string number;
  for (const wchar_t character : text) {
    if (character > 0x7F) break;
    number += character == L',' ? '.' : static_cast<char>(character);
  }
  // A number alone: no words, no hexadecimal digits.
  const size_t word = number.find_first_of("abcdfghijklmnopqrstuvwxyzABCDFGHIJKLMNOPQRSTUVWXYZ");
  return std::atof(number.substr(0, word).c_str());
}

uint32_t Colour(const Text& text) {
  const size_t point = text.find(L'.');
  if (point == text.npos || point == 0) return 0xFF000000;
  const size_t second = text.find(L'.', point + 1);
  const Text red = text.substr(0, point), green = text.substr(point + 1, second - point - 1),
             blue = second == text.npos ? Text() : text.substr(second + 1);
  const auto low = [](const Text& number) { return static_cast<uint32_t>(Number(number) & 0xFF); };
  return low(red) | low(green) << 8 | low(blue) << 16;
}

bool ReadEntry(Text text, Format& format) {
  Text part;
  wchar_t end;
  if (!Take(text, L':', part) || part != L"{STYLE") return false;
  if (!Take(text, L';', format.style) || format.style.empty()) return false;
  if (!Take(text, L';', part) || part.empty()) return false;
  format.level = Number(part);
  if (!Take(text, L':', part) || part != L"{FONT") return false;
  if (!Take(text, L';', format.font) || format.font.empty()) return false;
  if (!TakeLast(text, part, end) || part.empty()) return false;
  format.size = Size(part);
  while (end == L';' && TakeLast(text, part, end)) {
    if (part == L"Bold") {
      format.bold = true;
    } else if (part == L"Italic") {
      format.italic = true;
    } else if (part == L"Underline") {
      format.underline = true;
    } else {
      format.colour = Colour(part);
      break;
    }
  }
  return true;
}

std::vector<Format> ReadFormats(Text text, const Styles& styles) {
  std::vector<Format> formats;
  for (size_t brace; (brace = text.find(L'}')) != text.npos && (brace = text.find(L'}', brace + 1)) != text.npos;) {
    Format format;
    if (ReadEntry(text.substr(0, brace), format)) {
      const auto found = std::find(styles.names.begin(), styles.names.end(), format.style);
      const auto index = static_cast<size_t>(found - styles.names.begin());
      format.used = found != styles.names.end();
      if (format.used) format.level = index < styles.levels.size() ? styles.levels[index] : 0;
      formats.push_back(format);
    }
    text.erase(0, brace + 2);
  }
  return formats;
}

void RequireSame(const Format& expected, const CBookmarkFormat& format, bool wordMode) {
  const bool hasExtra =
      expected.style.find(L',') + 1 < expected.style.size() && expected.style.find(L',') != Text::npos;
  const Text style = expected.style.substr(0, expected.style.find(L','));
  const bool isHeading = style == L"heading 1" || style == L"heading 2" || style == L"heading 3";
  const bool isStandard = !wordMode && (hasExtra || isHeading);
  REQUIRE((format.kind == kBookmarkStandard) == isStandard);
  REQUIRE(format.styleName.View() == (isStandard ? style : expected.style));
  if (!wordMode && hasExtra) REQUIRE(format.displayName.View() == expected.style.substr(style.size() + 1));
  REQUIRE(format.fontName.View() == expected.font);
  REQUIRE(format.level == expected.level);
  REQUIRE(format.fontSize == expected.size);
  REQUIRE((format.bold == 1) == expected.bold);
  REQUIRE((format.italic == 1) == expected.italic);
  REQUIRE((format.underline == 1) == expected.underline);
  REQUIRE((format.used == 1) == expected.used);
  REQUIRE(format.colour == expected.colour);
}

CUString Written(const CBookmarkFormatArray& formats) {
  COutlineWriter writer;
  for (int i = 0; i < formats.Count(); ++i) writer.Add(*formats.GetAt(i));
  return writer.Formats();
}

void Read(const Text& text, const OutlineStyles& styles, bool wordMode, CBookmarkFormatArray& formats) {
  formats.RemoveAll();
  ReadOutlineFormats(text, styles, wordMode, formats);
}

// Names that hold a brace or a colon, and sizes whose digits are cut, do not come back; after one round nothing changes
// any more.
void RequireComesBack(const CBookmarkFormatArray& formats, bool wordMode) {
  CBookmarkFormatArray again;
  const CUString once = Written(formats);
  Read(Text(once.View()), OutlineStyles(), wordMode, again);
  const CUString twice = Written(again);
  Read(Text(twice.View()), OutlineStyles(), wordMode, again);
  const CUString thrice = Written(again);
  Read(Text(thrice.View()), OutlineStyles(), wordMode, again);
  for (int i = 0; i < formats.Count(); ++i) {
    const CBookmarkFormat& format = *formats.GetAt(i);
    const CUString names = format.GetStyleText() + format.fontName;
    if (names.FindOneOf(L"{}:") >= 0 || format.GetStyleText().IsEmpty()) return;
  }
  REQUIRE(again.Count() == formats.Count());
  REQUIRE(Written(again) == thrice);
}

void Test(const Text& styleText, const Text& formatText, bool wordMode) {
  OutlineStyles styles;
  ReadOutlineStyles(styleText, styles);
  CBookmarkFormatArray formats;
  Read(formatText, styles, wordMode, formats);
  const std::vector<Format> expected = ReadFormats(formatText, ReadStyles(styleText));
  REQUIRE(static_cast<size_t>(formats.Count()) == expected.size());
  for (size_t i = 0; i < expected.size(); ++i) RequireSame(expected[i], *formats.GetAt(static_cast<int>(i)), wordMode);
  RequireComesBack(formats, wordMode);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Text text = WideInput(data, size);
  CBookmarkFormatArray any;
  Read(text, OutlineStyles(), false, any);  // of any script
  RequireComesBack(any, false);
  DropOtherScripts(text);
  const size_t line = std::min(text.find(L'\n'), text.size());
  const Text formats = text.substr(std::min(line + 1, text.size()));
  Test(text.substr(0, line), formats, false);
  Test(text.substr(0, line), formats, true);
  return 0;
}
