// Lists and the operations of CUString, against the standard library's string.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "DriverLIB/CUString.h"
#include "DriverLIB/CUStringArray.h"
#include "DriverLIB/Numbers.h"
#include "DriverLIB/TextLists.h"
#include "Require.h"

namespace {

using Text = std::wstring;
using Texts = std::vector<Text>;

// The input as a stream of choices and texts.
class Input {
 public:
  Input(const uint8_t* data, size_t size) : data_(data), size_(size) {}

  bool IsEmpty() const { return position_ >= size_; }
  uint8_t Byte() { return IsEmpty() ? 0 : data_[position_++]; }
  int Index() { return static_cast<int8_t>(Byte()); }

  // Few different characters, so that finds are many; now and then any.
  wchar_t Character() {
    constexpr wchar_t kUsual[] = L"aab;;;\"\"  \t|=A\u00E4\u00A0\u0130\u2003";
    const uint8_t choice = Byte();
    if (choice < 240) return kUsual[choice % (std::size(kUsual) - 1)];
    const auto character = static_cast<wchar_t>(Byte() << 8 | Byte());
    return character ? character : L'x';
  }
  Text String() {
    Text text(Byte() % 24, L'\0');
    for (wchar_t& character : text) character = Character();
    return text;
  }

 private:
  const uint8_t* data_;
  size_t size_;
  size_t position_ = 0;
};

// --- Lists
// -------------------------------------------------------------------------------------------------------------

void AddPieces(const Text& text, const Text& separator, Texts& pieces) {
  Text piece;
  for (size_t i = 0; i < text.size();) {
    if (!separator.empty() && text.compare(i, separator.size(), separator) == 0) {
      if (!piece.empty()) pieces.push_back(piece);
      piece.clear();
      i += separator.size();
    } else {
      piece += text[i++];
    }
  }
  if (!piece.empty()) pieces.push_back(piece);
}

Texts Split(const Text& text, const Text& separator) {
  Texts pieces;
  AddPieces(text, separator, pieces);
  return pieces;
}

Texts SplitQuoted(const Text& text, const Text& separator) {
  Texts elements;
  for (Text piece : Split(text, L"\"" + separator)) {
    if (piece.front() != L'"' && piece.back() != L'"') {
      AddPieces(piece, separator, elements);
      continue;
    }
    while (!piece.empty() && piece.front() == L'"') piece.erase(0, 1);
    while (!piece.empty() && piece.back() == L'"') piece.pop_back();
    elements.push_back(piece);
  }
  return elements;
}

void RequireSame(const Texts& expected, const CUStringArray& array) {
  REQUIRE(static_cast<size_t>(array.Count()) == expected.size());
  for (size_t i = 0; i < expected.size(); ++i) REQUIRE(array[static_cast<int>(i)].View() == expected[i]);
}

void TestLists(Input& input) {
  const Text separator = input.String().substr(0, 3), text = input.String() + input.String() + input.String();
  CUStringArray array;
  array.Add(L"before");
  SplitList(text, array, separator);
  RequireSame(Split(text, separator), array);
  SplitQuotedList(text, array, separator);
  RequireSame(SplitQuoted(text, separator), array);
  // A list without the separator in its elements can be joined and split again.
  if (separator.empty()) return;
  SplitList(text, array, separator);
  Text joined;
  for (int i = 0; i < array.Count(); ++i) joined += Text(array[i].View()) + separator;
  CUStringArray again;
  SplitList(joined, again, separator);
  if (Split(joined, separator) == Split(text, separator)) RequireSame(Split(text, separator), again);
}

// --- Strings -------------------------------------------------------------------------------------------------------

int Found(size_t position) { return position == Text::npos ? -1 : static_cast<int>(position); }

Text Replaced(const Text& text, const Text& oldText, const Text& newText) {
  if (oldText.empty() || newText.empty()) return text;
  Text result;
  for (size_t i = 0; i < text.size();) {
    const bool here = text.compare(i, oldText.size(), oldText) == 0;
    result += here ? newText : text.substr(i, 1);
    i += here ? oldText.size() : 1;
  }
  return result;
}

bool IsSpaceBelow100(wchar_t character) { return (character >= 9 && character <= 13) || character == L' '; }

void TestSearch(const CUString& string, const Text& text, Input& input) {
  const Text part = input.String();
  const int from = input.Index();
  const bool inside = from >= 0 && from < static_cast<int>(text.size());
  const wchar_t character = input.Character();
  REQUIRE(string.Find(part) == (text.empty() ? -1 : Found(text.find(part))));
  REQUIRE(string.FindFrom(part, from) == (inside ? Found(text.find(part, static_cast<size_t>(from))) : -1));
  REQUIRE(string.FindChar(character, from) ==
          (inside ? Found(text.substr(static_cast<size_t>(from)).find(character)) : -1));
  REQUIRE(string.ReverseFind(character) == Found(text.rfind(character)));
  REQUIRE(string.ReverseFindStr(part) == (text.empty() ? -1 : Found(text.rfind(part))));
  REQUIRE(string.FindOneOf(part) == Found(text.find_first_of(part)));
  REQUIRE(string.Equals(part) == (text == part));
  REQUIRE(string[from] == (inside ? text[static_cast<size_t>(from)] : L'\0'));
}

void TestParts(const CUString& string, const Text& text, Input& input) {
  const int start = input.Index(), count = input.Index();
  const Text left = count <= 0 ? Text() : text.substr(0, static_cast<size_t>(count));
  REQUIRE(string.Left(count).View() == left);
  const bool inside = start >= 0 && start < static_cast<int>(text.size());
  const size_t length = count < 0 ? Text::npos : static_cast<size_t>(count);
  REQUIRE(string.Mid(start, count).View() == (inside ? text.substr(static_cast<size_t>(start), length) : Text()));
}

void Trim(Text& text, wchar_t character, bool left, bool right) {
  const auto goes = [character](wchar_t candidate) {
    return character == L' ' ? IsSpaceBelow100(candidate) : candidate == character;
  };
  while (right && !text.empty() && goes(text.back())) text.pop_back();
  while (left && !text.empty() && goes(text.front())) text.erase(0, 1);
}

bool HasSpaceAbove(const Text& text) {
  return std::any_of(text.begin(), text.end(), [](wchar_t character) { return character > 0xFF; });
}

// One change to both.
void Change(CUString& string, Text& text, Input& input) {
  const Text other = input.String();
  const int index = input.Index();
  switch (input.Byte() % 13) {
    case 0:
      string.Assign(other);
      text = other;
      break;
    case 1:
      string.Append(other);
      text += other;
      break;
    case 2:  // a part of its own
      string.Append(string.Mid(index));
      if (index >= 0 && index < static_cast<int>(text.size())) text += text.substr(static_cast<size_t>(index));
      break;
    case 3:
      string.Append(string.View());
      text += Text(text);
      break;
    case 4:
      string = string.CharPtr(std::max(index, 0));
      text = text.substr(std::min(static_cast<size_t>(std::max(index, 0)), text.size()));
      break;
    case 5: {
      const wchar_t from = input.Character(), to = input.Character();
      string.ReplaceChar(from, to);
      std::replace(text.begin(), text.end(), from, to);
      break;
    }
    case 6: {
      // Short, so that a text of one letter over and over does not take all the time.
      const Text oldText = other.substr(0, 2), newText = input.String().substr(0, 8);
      string.ReplaceStr(oldText, newText);
      text = Replaced(text, oldText, newText);
      break;
    }
    case 7:
    case 8:
    case 9: {
      wchar_t character = input.Character();
      if (character == L' ' && HasSpaceAbove(text)) character = L'a';  // white space beyond Latin is the platform's
      const int sides = input.Byte() % 3;
      if (sides == 0) string.TrimLeft(character);
      if (sides == 1) string.TrimRight(character);
      if (sides == 2) string.TrimBoth(character);
      Trim(text, character, sides != 1, sides != 0);
      break;
    }
    case 10: {
      const bool inside = index >= 0 && index < static_cast<int>(text.size());
      if (inside) text.erase(static_cast<size_t>(index), 1);
      REQUIRE(string.DeleteAt(index) == (inside ? static_cast<int>(text.size()) : -1));
      break;
    }
    case 11: {
      CUString copy(string), taken(std::move(copy));
      string = L"gone";
      string = std::move(taken);
      break;
    }
    case 12:
      string.EnsureCapacity(index);
      string.ReleaseBuffer();
      break;
  }
  if (text.size() > 4096) {
    text.resize(4096);
    string.SetLength(4096);
  }
}

void RequireWhole(const CUString& string, const Text& text) {
  REQUIRE(string.View() == text);
  REQUIRE(string.Length() == static_cast<int>(text.size()));
  REQUIRE(string.Capacity() >= string.Length());
  REQUIRE(string.Text()[string.Length()] == L'\0');
  REQUIRE(string.IsEmpty() == text.empty());
}

void TestString(Input& input) {
  CUString string;
  Text text;
  while (!input.IsEmpty()) {
    Change(string, text, input);
    RequireWhole(string, text);
    TestSearch(string, text, input);
    TestParts(string, text, input);
    CUString other(text);
    REQUIRE(other == string);
    REQUIRE(other.EqualsNoCase(string));
  }
}

// --- Numbers
// -----------------------------------------------------------------------------------------------------------

// Decimal numbers in ASCII, against 64-bit arithmetic on what is left of the text.
void TestNumber(Input& input) {
  Text text;
  const int count = input.Byte() % 16;
  for (int i = 0; i < count; ++i) text += L"0123456789999+- \ta;"[input.Byte() % 19];
  size_t i = 0;
  while (i < text.size() && IsSpaceBelow100(text[i])) ++i;
  const bool negative = i < text.size() && text[i] == L'-';
  if (i < text.size() && (text[i] == L'-' || text[i] == L'+')) ++i;
  int64_t value = 0;
  for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) value = value * 10 + (text[i] - L'0');
  value = std::clamp<int64_t>(negative ? -value : value, INT32_MIN, INT32_MAX);
  REQUIRE(ParseDecimal(text) == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Input input(data, size);
  switch (input.Byte() % 4) {
    case 0:
      TestLists(input);
      break;
    case 1:
      TestNumber(input);
      break;
    default:
      TestString(input);
      break;
  }
  return 0;
}
