// What the wide string does beyond the narrow one; CBasicStringTest.cpp has what both do.
#include "DriverLIB/CUString.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/PrintText.h"

namespace {

// Opens the step of growth.
class OpenString : public CUString {
 public:
  using CUString::CUString;
  void SetGrowBy(int step) { growBy_ = step; }
};

}  // namespace

// --- Assigning and appending -----------------------------------------------------------------------------------------

TEST(CUString, AssignNarrowConvertsFromTheAnsiCodePage) {
  CUString text(L"former");
  text.AssignNarrow(
      "Gr\xF6\xDF"
      "e \x80");
  EXPECT_EQ(
      L"Gr\x00F6\x00DF"
      L"e \x20AC",
      text);
  EXPECT_EQ(7, text.Length());  // the number of bytes
  text.AssignNarrow("");
  EXPECT_EQ(0, text.Length());
  EXPECT_NE(nullptr, text.Buffer());
  text.AssignNarrow(nullptr);
  EXPECT_EQ(0, text.Length());
}

TEST(CUString, AddingMakesANewText) {
  const CUString text(L"pointer");
  EXPECT_EQ(L"pointer and view", text + L" and " + CUString(L"view"));
  EXPECT_EQ(L"pointer", text);
}

TEST(CUString, HoldsMillionsOfCharacters) {
  CUString text(std::wstring(3'000'000, L'x'));
  text.Append(text);
  EXPECT_EQ(6'000'000, text.Length());
  EXPECT_EQ(-1, text.FindChar(L'y', 0));
  text.ReplaceStr(L"x", L"yz");
  EXPECT_EQ(12'000'000, text.Length());
  EXPECT_EQ(11'999'999, text.ReverseFind(L'z'));
}

TEST(CUString, StepOfGrowthDoesNotOverflow) {
  OpenString growing(L"abc");
  growing.SetGrowBy(INT32_MAX);
  EXPECT_THROW(growing.EnsureCapacity(-1), std::bad_alloc);
  EXPECT_THROW(growing.Append(L"d"), std::bad_alloc);
  EXPECT_EQ(L"abc", growing);
}

TEST(CUString, FormatTakesWideTextForS) {
  CUString text;
  EXPECT_EQ(21, text.Format(L"%s|%d|%hs|%04x|%c", L"wide", -7, "narrow", 0xAB, L'!'));
  EXPECT_EQ(L"wide|-7|narrow|00ab|!", text);
}

// --- Searching -------------------------------------------------------------------------------------------------------

TEST(CUString, FindFromCountsFromTheStartOfTheText) {
  const CUString text(L"abcabc");
  EXPECT_EQ(4, text.FindFrom(L"bc", 2));
  EXPECT_EQ(1, text.FindFrom(L"bc", 1));
  EXPECT_EQ(-1, text.FindFrom(L"bc", 5));
  EXPECT_EQ(-1, text.FindFrom(L"bc", 6));
  EXPECT_EQ(-1, text.FindFrom(L"bc", 60));
  EXPECT_EQ(-1, text.FindFrom(L"bc", -1));
}

TEST(CUString, FindCharCountsFromItsStart) {
  const CUString text(L"abcabc");
  EXPECT_EQ(2, text.FindChar(L'a', 1));
  EXPECT_EQ(0, text.FindChar(L'a', 0));
  EXPECT_EQ(0, text.FindChar(L'a', 3));
  EXPECT_EQ(-1, text.FindChar(L'a', 4));
  EXPECT_EQ(-1, text.FindChar(L'a', 6));
  EXPECT_EQ(-1, text.FindChar(L'a', -1));
  EXPECT_EQ(-1, CUString().FindChar(L'a', 0));
}

TEST(CUString, ReverseFindStrGivesTheLastOccurrence) {
  const CUString text(L"abcabc");
  EXPECT_EQ(4, text.ReverseFindStr(L"bc"));
  EXPECT_EQ(0, text.ReverseFindStr(L"abcabc"));
  EXPECT_EQ(-1, text.ReverseFindStr(L"cb"));
  EXPECT_EQ(2, CUString(L"aaaa").ReverseFindStr(L"aa"));
  EXPECT_EQ(-1, CUString().ReverseFindStr(L"a"));
  EXPECT_EQ(-1, CUString().ReverseFindStr(L""));
}

TEST(CUString, FindOneOfGivesTheFirstCharacterOfTheSet) {
  const CUString text(L"abcabc");
  EXPECT_EQ(1, text.FindOneOf(L"cb"));
  EXPECT_EQ(-1, text.FindOneOf(L"xyz"));
  EXPECT_EQ(-1, text.FindOneOf(L""));
  EXPECT_EQ(-1, text.FindOneOf(nullptr));
  EXPECT_EQ(-1, CUString().FindOneOf(L"a"));
}

// --- Changing --------------------------------------------------------------------------------------------------------

TEST(CUString, ReplaceCharReplacesEveryOccurrence) {
  CUString text(L"a/b/c");
  const wchar_t* buffer = text.Buffer();
  text.ReplaceChar(L'/', L'\\');
  EXPECT_EQ(L"a\\b\\c", text);
  EXPECT_EQ(buffer, text.Buffer());
  CUString empty;
  empty.ReplaceChar(L'a', L'b');
  EXPECT_EQ(nullptr, empty.Buffer());
}

TEST(CUString, TrimWithAnotherCharacterTakesOnlyThat) {
  CUString text(L"\"\" \"a\"b\" \"\"");
  text.TrimLeft(L'"');
  EXPECT_EQ(L" \"a\"b\" \"\"", text);
  text.TrimRight(L'"');
  EXPECT_EQ(L" \"a\"b\" ", text);
  text.TrimBoth(L'x');
  EXPECT_EQ(L" \"a\"b\" ", text);
}

TEST(CUString, TrimBothEndsAgreeOnLatinCharacters) {
  for (int character = 1; character <= 0xFF; ++character) {
    const wchar_t candidate = static_cast<wchar_t>(character);
    const std::wstring sample = std::wstring(1, candidate) + L"x" + candidate;
    CUString left(sample), right(sample);
    left.TrimLeft();
    right.TrimRight();
    EXPECT_EQ(left.Length(), right.Length()) << character;
    const bool white = character == L' ' || (character >= 9 && character <= 13);
    EXPECT_EQ(white ? 2 : 3, left.Length()) << character;
  }
}

TEST(CUString, MidGivesTheRestOfTheText) {
  const CUString text(L"abcdef");
  EXPECT_EQ(L"cd", text.Mid(2, 2));
  EXPECT_EQ(L"cdef", text.Mid(2, -1));
  EXPECT_EQ(L"cdef", text.Mid(2));
  EXPECT_EQ(L"cdef", text.Mid(2, 100));
  EXPECT_EQ(L"cdef", text.Mid(2, INT32_MAX));
  EXPECT_EQ(L"f", text.Mid(5, 1));
  EXPECT_EQ(0, text.Mid(2, 0).Length());
  for (const int count : {-1, 0, 1, 6}) {
    EXPECT_EQ(0, text.Mid(6, count).Length());
    EXPECT_EQ(0, text.Mid(7, count).Length());
    EXPECT_EQ(0, text.Mid(-1, count).Length());
  }
}

TEST(CUString, IndexGivesZeroOutsideTheText) {
  const CUString text(L"abc");
  EXPECT_EQ(L'b', text[1]);
  EXPECT_EQ(L'\0', text[3]);
  EXPECT_EQ(L'\0', text[-1]);
  EXPECT_EQ(L'\0', CUString()[0]);
}

TEST(CUString, DeleteAtRemovesOneCharacter) {
  CUString text(L"abc");
  EXPECT_EQ(2, text.DeleteAt(1));
  EXPECT_EQ(L"ac", text);
  EXPECT_EQ(-1, text.DeleteAt(2));
  EXPECT_EQ(-1, text.DeleteAt(-1));
  EXPECT_EQ(1, text.DeleteAt(0));
  EXPECT_EQ(0, text.DeleteAt(0));
  EXPECT_STREQ(L"", text.Text());
  EXPECT_EQ(-1, text.DeleteAt(0));
  EXPECT_EQ(-1, CUString().DeleteAt(0));
}

TEST(CUString, MakeUpperWorksInPlace) {
  CUString text(L"abc-XYZ_09z");
  const wchar_t* buffer = text.Buffer();
  text.MakeUpper();
  EXPECT_EQ(L"ABC-XYZ_09Z", text);
  EXPECT_EQ(buffer, text.Buffer());
  CUString empty;
  empty.MakeUpper();
  EXPECT_EQ(nullptr, empty.Buffer());
}

// --- Comparing -------------------------------------------------------------------------------------------------------

TEST(CUString, EqualsNoCaseDoesNot) {
  const CUString text(L"Abc");
  EXPECT_TRUE(text.EqualsNoCase(L"aBC"));
  EXPECT_FALSE(text.EqualsNoCase(L"aB"));
  EXPECT_FALSE(text.EqualsNoCase(L"aBCd"));
  EXPECT_FALSE(text.EqualsNoCase(L"aBd"));
  EXPECT_FALSE(CUString(L"[").EqualsNoCase(L"{"));
  EXPECT_FALSE(text.EqualsNoCase(nullptr));
}

TEST(CUString, NoBufferEqualsNullAndEmptyWithoutCase) {
  CUString text;
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(text.EqualsNoCase(nullptr));
    EXPECT_TRUE(text.EqualsNoCase(L""));
    EXPECT_FALSE(text.EqualsNoCase(L"a"));
    text.Assign(L"x");
    text.Assign(L"");  // now with a buffer
  }
}

TEST(CUString, ComparingWithoutCaseEndsAtATerminatorInside) {
  CUString text(L"abc");
  text.SetLength(6);  // as converting from a double-byte code page leaves it
  EXPECT_TRUE(text.EqualsNoCase(L"ABC"));
  EXPECT_FALSE(text.EqualsNoCase(L"AB"));
}

// --- Direct access to the buffer -------------------------------------------------------------------------------------

TEST(CUString, EnsureCapacityGrowsByTheStringsOwnStep) {
  struct {
    const wchar_t* text;
    int growBy, count, capacity;
  } const kCases[] = {
      {L"", 20, 0, 20},      // the step is the string's own when it is 8 or more
      {L"abc", 20, -1, 23},  //
      {L"abc", 7, -1, 11},   // below 8 it is 8
      {L"abc", 20, 4, 23},   // at least the string's own step
      {L"abc", 20, 50, 50},  //
      {L"abc", 2, 4, 5},     // also a small one
  };
  for (const auto& sample : kCases) {
    OpenString text(sample.text);
    text.SetGrowBy(sample.growBy);
    EXPECT_EQ(1, text.EnsureCapacity(sample.count));
    EXPECT_EQ(sample.capacity, text.Capacity()) << sample.growBy << " " << sample.count;
    EXPECT_EQ(text, sample.text);
  }
}

TEST(CUString, StepOfGrowthGoesWithAMoveAndNotWithACopy) {
  OpenString source(L"abc");
  source.SetGrowBy(20);
  CUString copy(source), moved(std::move(source));
  copy.EnsureCapacity(-1);
  moved.EnsureCapacity(-1);
  EXPECT_EQ(11, copy.Capacity());
  EXPECT_EQ(23, moved.Capacity());
}
