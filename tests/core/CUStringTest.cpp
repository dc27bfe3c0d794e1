#include "DriverLIB/CUString.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "support/PrintText.h"

namespace {

// Opens what is not for everyone: the step of growth, and the buffer as its owner sees it.
class OpenString : public CUString {
 public:
  using CUString::CUString;
  void SetGrowBy(int step) { growBy_ = step; }
};

std::wstring Repeat(wchar_t character, size_t count) { return std::wstring(count, character); }

}  // namespace

// --- Construction and copies ---------------------------------------------------------------------------------------

TEST(CUString, StartsWithoutBuffer) {
  const CUString text;
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_STREQ(L"", text.Text());
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_TRUE(text.IsEmpty());
}

TEST(CUString, FromTextHasTheCapacityOfItsLength) {
  const CUString text(L"seven..");
  EXPECT_EQ(7, text.Length());
  EXPECT_EQ(7, text.Capacity());
  EXPECT_STREQ(L"seven..", text.Text());
  EXPECT_FALSE(text.IsEmpty());
}

TEST(CUString, FromNullOrEmptyTextHasNoBuffer) {
  EXPECT_EQ(nullptr, CUString(static_cast<const wchar_t*>(nullptr)).Buffer());
  EXPECT_EQ(nullptr, CUString(nullptr).Buffer());
  EXPECT_EQ(nullptr, CUString(L"").Buffer());
  EXPECT_EQ(nullptr, CUString(std::wstring_view()).Buffer());
}

TEST(CUString, CopyKeepsTheCapacityOfItsSource) {
  CUString source(L"abc");
  source.EnsureCapacity(50);
  const CUString copy(source);
  EXPECT_EQ(50, copy.Capacity());
  EXPECT_EQ(L"abc", copy);
  EXPECT_NE(source.Text(), copy.Text());
}

TEST(CUString, CopyOfAnEmptySourceHasNoBuffer) {
  CUString source;
  source.EnsureCapacity(50);
  EXPECT_EQ(nullptr, CUString(source).Buffer());
}

TEST(CUString, CopiesAreDeep) {
  CUString source(L"abc");
  CUString copy(source);
  source.ReplaceChar(L'b', L'x');
  EXPECT_EQ(L"abc", copy);
  copy = source;
  source.Append(L"!");
  EXPECT_EQ(L"axc", copy);
}

TEST(CUString, MoveTakesTheBuffer) {
  CUString source(L"abc");
  const wchar_t* buffer = source.Buffer();
  CUString target(std::move(source));
  EXPECT_EQ(buffer, target.Buffer());
  CUString assigned(L"other");
  assigned = std::move(target);
  EXPECT_EQ(buffer, assigned.Buffer());
  EXPECT_EQ(L"abc", assigned);
  static_assert(std::is_nothrow_move_constructible_v<CUString> && std::is_nothrow_move_assignable_v<CUString>);
}

TEST(CUString, MovedFromIsEmptyAndUsable) {
  CUString source(L"abc");
  const CUString target(std::move(source));
  EXPECT_EQ(nullptr, source.Buffer());  // NOLINT: that is the point
  source.Append(L"again");
  EXPECT_EQ(L"again", source);
}

TEST(CUString, SwapExchangesEverything) {
  CUString left(L"left"), right;
  swap(left, right);
  EXPECT_EQ(nullptr, left.Buffer());
  EXPECT_EQ(L"left", right);
}

TEST(CUString, SelfAssignmentKeepsTheText) {
  CUString text(L"abc");
  CUString& alias = text;
  text = alias;
  EXPECT_EQ(L"abc", text);
  text = std::move(alias);
  EXPECT_EQ(L"abc", text);
}

TEST(CUString, ResetForgetsTheBufferWithoutFreeingIt) {
  CUString text(L"abc");
  wchar_t* buffer = text.Buffer();
  EXPECT_EQ(0, text.Reset());
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_EQ(0, text.Length());
  EXPECT_STREQ(L"abc", buffer);
  delete[] buffer;
}

TEST(CUString, IsConstructedFromWhatPeoplePass) {
  const std::wstring standard(L"text");
  CUString text = L"text";
  EXPECT_EQ(text, CUString(standard));
  EXPECT_EQ(text, CUString(std::wstring_view(standard)));
  EXPECT_EQ(text, CUString(WideView(L"text and more", 4)));
  text = std::wstring_view(L"view");
  EXPECT_EQ(L"view", text);
  text = L"pointer";
  EXPECT_EQ(L"pointer", text);
  EXPECT_EQ(L"pointer and view", text + L" and " + CUString(L"view"));
  text += L"!";
  EXPECT_EQ(L"pointer!", text);
}

// --- Assigning -------------------------------------------------------------------------------------------------------

TEST(CUString, AssignEmptyZeroesTheTextAndKeepsTheBuffer) {
  for (const wchar_t* empty : {L"", static_cast<const wchar_t*>(nullptr)}) {
    CUString text(L"secret");
    const wchar_t* buffer = text.Buffer();
    text.Assign(empty);
    EXPECT_EQ(buffer, text.Buffer());
    EXPECT_EQ(6, text.Capacity());
    EXPECT_EQ(0, text.Length());
    EXPECT_EQ(std::wstring(7, L'\0'), std::wstring(buffer, 7));
  }
}

TEST(CUString, AssignGrowsToTheTextAndNeverShrinks) {
  CUString text;
  text.Assign(L"abcdef");
  EXPECT_EQ(6, text.Capacity());
  text.Assign(L"xy");
  EXPECT_EQ(6, text.Capacity());
  EXPECT_EQ(2, text.Length());
  EXPECT_STREQ(L"xy", text.Text());
}

TEST(CUString, AssignTakesAPartOfItself) {
  CUString text(L"abcdef");
  text.Assign(text.CharPtr(2));
  EXPECT_EQ(L"cdef", text);
  text.Assign(text.View().substr(1, 2));
  EXPECT_EQ(L"de", text);
}

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

// --- Appending -------------------------------------------------------------------------------------------------------

TEST(CUString, AppendNullOrEmptyChangesNothing) {
  CUString text;
  text.Append(nullptr);
  text.Append(L"");
  text.Append(CUString());
  EXPECT_EQ(nullptr, text.Buffer());
}

TEST(CUString, AppendGrowsToExactlyTheSizeNeeded) {
  CUString text;
  text.Append(L"ab");
  EXPECT_EQ(2, text.Capacity());
  text.Append(CUString(L"cde"));
  EXPECT_EQ(5, text.Capacity());
  EXPECT_EQ(L"abcde", text);
}

TEST(CUString, AppendFitsIntoWhatIsThere) {
  CUString text(L"ab");
  text.EnsureCapacity(20);
  const wchar_t* buffer = text.Buffer();
  text.Append(L"cdefgh");
  EXPECT_EQ(buffer, text.Buffer());
  EXPECT_STREQ(L"abcdefgh", text.Text());
}

TEST(CUString, AppendTakesItself) {
  CUString text(L"ab");
  for (int i = 0; i < 10; ++i) text.Append(text);
  EXPECT_EQ(2048, text.Length());
  EXPECT_EQ(0, text.FindFrom(L"ab", 0));
  EXPECT_EQ(2046, text.ReverseFindStr(L"ab"));
  text.Append(text.CharPtr(2045));
  EXPECT_EQ(L"babbab", text.Mid(2045));
}

TEST(CUString, AppendTakesItselfWithoutGrowing) {
  CUString text(L"abc");
  text.EnsureCapacity(10);
  text.Append(text.CharPtr(1));
  EXPECT_EQ(L"abcbc", text);
}

TEST(CUString, HoldsMillionsOfCharacters) {
  CUString text(Repeat(L'x', 3'000'000));
  text.Append(text);
  EXPECT_EQ(6'000'000, text.Length());
  EXPECT_EQ(-1, text.FindChar(L'y', 0));
  text.ReplaceStr(L"x", L"yz");
  EXPECT_EQ(12'000'000, text.Length());
  EXPECT_EQ(11'999'999, text.ReverseFind(L'z'));
}

TEST(CUString, SizesDoNotOverflow) {
  CUString text(L"abc");
  EXPECT_THROW(text.EnsureCapacity(INT32_MAX), std::bad_alloc);
  EXPECT_THROW(text.Append(WideView(text.Text(), size_t{UINT32_MAX} - 1)), std::bad_alloc);
  EXPECT_THROW(text.Assign(WideView(text.Text(), size_t{UINT32_MAX} + 2)), std::bad_alloc);
  EXPECT_EQ(L"abc", text);
  OpenString growing(L"abc");
  growing.SetGrowBy(INT32_MAX);
  EXPECT_THROW(growing.EnsureCapacity(-1), std::bad_alloc);
  EXPECT_THROW(growing.Append(L"d"), std::bad_alloc);
  EXPECT_EQ(L"abc", growing);
}

// --- Format ----------------------------------------------------------------------------------------------------------

TEST(CUString, FormatTakesWideTextForS) {
  CUString text;
  EXPECT_EQ(21, text.Format(L"%s|%d|%hs|%04x|%c", L"wide", -7, "narrow", 0xAB, L'!'));
  EXPECT_EQ(L"wide|-7|narrow|00ab|!", text);
}

TEST(CUString, FormatCutsAt2047Characters) {
  CUString text;
  EXPECT_GT(0, text.Format(L"%s", Repeat(L'x', 5000).c_str()));
  EXPECT_EQ(2047, text.Length());
  EXPECT_EQ(Repeat(L'x', 2047), std::wstring(text.View()));
  EXPECT_GT(0, text.Format(L"%s", Repeat(L'x', 2048).c_str()));
  EXPECT_EQ(2047, text.Length());
  EXPECT_EQ(2047, text.Format(L"%s", Repeat(L'x', 2047).c_str()));
  EXPECT_EQ(2047, text.Length());
}

TEST(CUString, FormatMayTakeItself) {
  CUString text(L"abc");
  EXPECT_EQ(7, text.Format(L"%s-%s", text.Text(), text.Text()));
  EXPECT_EQ(L"abc-abc", text);
}

TEST(CUString, FormatWithoutFormatIsEmpty) {
  CUString text(L"abc");
  EXPECT_EQ(0, text.Format(nullptr));
  EXPECT_EQ(0, text.Length());
}

// --- Searching -------------------------------------------------------------------------------------------------------

TEST(CUString, FindGivesTheFirstOccurrence) {
  const CUString text(L"abcabc");
  EXPECT_EQ(1, text.Find(L"bc"));
  EXPECT_EQ(-1, text.Find(L"cb"));
  EXPECT_EQ(-1, text.Find(L"BC"));
  EXPECT_EQ(-1, text.Find(L"abcabcd"));
  EXPECT_EQ(-1, CUString().Find(L"a"));
  EXPECT_EQ(-1, CUString().Find(L""));
  EXPECT_EQ(0, text.Find(nullptr));  // the empty text is everywhere
}

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

TEST(CUString, ReverseFindGivesTheLastOccurrence) {
  const CUString text(L"abcabc");
  EXPECT_EQ(3, text.ReverseFind(L'a'));
  EXPECT_EQ(-1, text.ReverseFind(L'x'));
  EXPECT_EQ(-1, CUString().ReverseFind(L'a'));
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

TEST(CUString, ReplaceStrReplacesFromLeftToRightWithoutRescanning) {
  struct {
    const wchar_t *text, *oldText, *newText, *result;
  } const kCases[] = {{L"abcabc", L"bc", L"x", L"axax"},    {L"aaa", L"aa", L"b", L"ba"},
                      {L"aba", L"a", L"aa", L"aabaa"},      {L"abc", L"abc", L"xyz", L"xyz"},
                      {L"abc", L"x", L"y", L"abc"},         {L"x", L"x", L"longer", L"longer"},
                      {L"a\nb", L"\n", L"\r\n", L"a\r\nb"}, {L"\"", L"\"", L"\"\"", L"\"\""}};
  for (const auto& sample : kCases) {
    CUString text(sample.text);
    text.ReplaceStr(sample.oldText, sample.newText);
    EXPECT_EQ(text, sample.result) << testing::PrintToString(std::wstring(sample.text));
    EXPECT_EQ(static_cast<int>(std::wstring_view(sample.result).size()), text.Length());
  }
}

TEST(CUString, ReplaceStrCannotRemove) {
  CUString text(L"abc");
  text.ReplaceStr(L"b", L"");
  text.ReplaceStr(L"b", nullptr);
  text.ReplaceStr(L"", L"x");
  text.ReplaceStr(nullptr, L"x");
  EXPECT_EQ(L"abc", text);
  CUString empty;
  empty.ReplaceStr(L"b", L"x");
  EXPECT_EQ(nullptr, empty.Buffer());
}

TEST(CUString, ReplaceStrTakesPartsOfItself) {
  CUString text(L"ab-a-b");
  text.ReplaceStr(text.View().substr(0, 1), text.View().substr(2, 1));
  EXPECT_EQ(L"-b---b", text);
}

TEST(CUString, TrimWithABlankTakesAllWhiteSpace) {
  CUString text(L" \t\r\n\v\f abc \t\r\n\v\f ");
  text.TrimLeft();
  EXPECT_EQ(L"abc \t\r\n\v\f ", text);
  text.TrimRight(L' ');
  EXPECT_EQ(L"abc", text);
  EXPECT_EQ(3, text.Length());
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

TEST(CUString, TrimToNothingFreesTheBuffer) {
  using Trim = void (*)(CUString&);
  for (const Trim trim : {Trim([](CUString& text) { text.TrimLeft(); }), Trim([](CUString& text) { text.TrimRight(); }),
                          Trim([](CUString& text) { text.TrimBoth(); })}) {
    CUString text(L" \t  ");
    trim(text);
    EXPECT_EQ(nullptr, text.Buffer());
    EXPECT_EQ(0, text.Capacity());
    EXPECT_EQ(0, text.Length());
    text.Append(L"new");
    EXPECT_EQ(L"new", text);
    EXPECT_EQ(3, text.Capacity());
    text.Assign(L"");
    EXPECT_NE(nullptr, text.Buffer());
    trim(text);  // an empty string keeps what it has
    EXPECT_NE(nullptr, text.Buffer());
  }
}

TEST(CUString, LeftGivesTheFirstCharacters) {
  const CUString text(L"abcdef");
  EXPECT_EQ(L"ab", text.Left(2));
  EXPECT_EQ(L"abcdef", text.Left(6));
  EXPECT_EQ(L"abcdef", text.Left(7));
  EXPECT_EQ(L"", text.Left(0));
  EXPECT_EQ(0, text.Left(-1).Length());
  EXPECT_EQ(0, CUString().Left(3).Length());
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

TEST(CUString, CharPtrPointsIntoTheText) {
  const CUString text(L"abc");
  EXPECT_EQ(nullptr, text.CharPtr(-1));
  EXPECT_STREQ(L"abc", text.CharPtr(0));
  EXPECT_STREQ(L"c", text.CharPtr(2));
  EXPECT_EQ(text.Text() + 3, text.CharPtr(3));
  EXPECT_EQ(text.Text() + 3, text.CharPtr(100));
  EXPECT_STREQ(L"", CUString().CharPtr(1));
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

TEST(CUString, EqualsLooksAtCase) {
  const CUString text(L"Abc");
  EXPECT_TRUE(text.Equals(L"Abc"));
  EXPECT_FALSE(text.Equals(L"abc"));
  EXPECT_FALSE(text.Equals(L"Ab"));
  EXPECT_FALSE(text.Equals(L"Abcd"));
  EXPECT_FALSE(text.Equals(nullptr));
}

TEST(CUString, EqualsNoCaseDoesNot) {
  const CUString text(L"Abc");
  EXPECT_TRUE(text.EqualsNoCase(L"aBC"));
  EXPECT_FALSE(text.EqualsNoCase(L"aB"));
  EXPECT_FALSE(text.EqualsNoCase(L"aBCd"));
  EXPECT_FALSE(text.EqualsNoCase(L"aBd"));
  EXPECT_FALSE(CUString(L"[").EqualsNoCase(L"{"));
  EXPECT_FALSE(text.EqualsNoCase(nullptr));
}

TEST(CUString, NoBufferEqualsNullAndEmpty) {
  CUString text;
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(text.Equals(nullptr));
    EXPECT_TRUE(text.Equals(L""));
    EXPECT_TRUE(text.EqualsNoCase(nullptr));
    EXPECT_TRUE(text.EqualsNoCase(L""));
    EXPECT_FALSE(text.Equals(L"a"));
    EXPECT_FALSE(text.EqualsNoCase(L"a"));
    text.Assign(L"x");
    text.Assign(L"");  // now with a buffer
  }
}

TEST(CUString, ComparingEndsAtATerminatorInside) {
  CUString text(L"abc");
  text.EnsureCapacity(8);
  text.SetLength(6);  // as converting from a double-byte code page leaves it
  EXPECT_TRUE(text.Equals(L"abc"));
  EXPECT_TRUE(text.EqualsNoCase(L"ABC"));
  EXPECT_TRUE(text == L"abc");
  EXPECT_TRUE(CUString(L"abc") == text);
  EXPECT_TRUE(text == CUString(text));
  EXPECT_EQ(6, CUString(text).Length());
  EXPECT_FALSE(text.Equals(L"ab"));
  text.SetLength(3);
  text.Append(WideView(L"\0def", 4));
  EXPECT_TRUE(text.Equals(L"abc"));
}

TEST(CUString, OperatorsCompareText) {
  const CUString text(L"abc");
  EXPECT_TRUE(text == L"abc");
  EXPECT_TRUE(L"abc" == text);
  EXPECT_TRUE(text == CUString(L"abc"));
  EXPECT_TRUE(text == std::wstring(L"abc"));
  EXPECT_TRUE(text == std::wstring_view(L"abc"));
  EXPECT_TRUE(text == WideView(L"abc"));
  EXPECT_TRUE(text != L"abd");
  EXPECT_TRUE(CUString() == nullptr);
  EXPECT_TRUE(CUString() == CUString(L""));
  const wchar_t* const pointer = L"abc";
  EXPECT_TRUE(text.View() == pointer);  // and stay out of the way of the standard ones
  EXPECT_TRUE(WideView(pointer) == pointer);
}

// --- Direct access to the buffer -------------------------------------------------------------------------------------

TEST(CUString, EnsureCapacityGrowsAsTold) {
  struct {
    const wchar_t* text;
    int growBy, count, capacity;
  } const kCases[] = {
      {L"", -1, 0, 8},          // nothing asked of an empty string: one step
      {L"abc", -1, 0, 8},       // below 8: to the step
      {L"abcdefgh", -1, 0, 8},  // 8 are enough
      {L"", -1, 1, 1},          // exactly what is asked
      {L"", -1, 100, 100},      //
      {L"abc", -1, 3, 3},       // fits
      {L"abc", -1, 2, 3},       // fits
      {L"abc", -1, 4, 4},       //
      {L"", -1, -1, 8},         // forced: one step more
      {L"abc", -1, -5, 11},     //
      {L"", 20, 0, 20},         // the step is the string's own when it is 8 or more
      {L"abc", 20, -1, 23},     //
      {L"abc", 7, -1, 11},      // below 8 it is 8
      {L"abc", 20, 4, 23},      // at least the string's own step
      {L"abc", 20, 50, 50},     //
      {L"abc", 2, 4, 5},        // also a small one
  };
  for (const auto& sample : kCases) {
    OpenString text(sample.text);
    text.SetGrowBy(sample.growBy);
    EXPECT_EQ(1, text.EnsureCapacity(sample.count));
    EXPECT_EQ(sample.capacity, text.Capacity()) << sample.growBy << " " << sample.count;
    EXPECT_EQ(text, sample.text);
  }
}

TEST(CUString, EnsureCapacityZeroesTheRest) {
  CUString text(L"abc");
  text.EnsureCapacity(64);
  for (int i = 3; i <= 64; ++i) EXPECT_EQ(L'\0', text.Text()[i]) << i;
}

TEST(CUString, EnsureCapacityWithRoomKeepsTheBlock) {
  CUString text(L"abcdefghij");
  const wchar_t* buffer = text.Buffer();
  EXPECT_EQ(1, text.EnsureCapacity(10));
  EXPECT_EQ(1, text.EnsureCapacity(0));
  EXPECT_EQ(buffer, text.Buffer());
  text.EnsureCapacity(-1);
  EXPECT_EQ(18, text.Capacity());
}

TEST(CUString, TextMayBeWrittenIntoTheBuffer) {
  CUString text;
  text.EnsureCapacity(10);
  text.Buffer()[0] = L'a';
  text.Buffer()[1] = L'b';
  text.ReleaseBuffer();
  EXPECT_EQ(2, text.Length());
  EXPECT_EQ(L"ab", text);
  text.Buffer()[2] = L'c';
  text.ReleaseBuffer(1);
  EXPECT_EQ(L"a", text);
  text.ReleaseBuffer(0);
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(10, text.Capacity());
}

TEST(CUString, ReleaseBufferCountsNoFurtherThanTheCapacity) {
  CUString text;
  text.EnsureCapacity(8);
  for (int i = 0; i <= 8; ++i) text.Buffer()[i] = L'x';  // the terminator too
  text.ReleaseBuffer();
  EXPECT_EQ(8, text.Length());
  EXPECT_STREQ(L"xxxxxxxx", text.Text());
}

TEST(CUString, ReleaseBufferWithoutBufferGivesLengthZero) {
  CUString text;
  text.ReleaseBuffer();
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(nullptr, text.Buffer());
}

TEST(CUString, SetLengthTerminates) {
  CUString text(L"abcdef");
  text.SetLength(2);
  EXPECT_EQ(2, text.Length());
  EXPECT_STREQ(L"ab", text.Text());
  text.SetLength(20);  // makes the room it needs
  EXPECT_EQ(20, text.Length());
  EXPECT_EQ(L'\0', text.Text()[20]);
  text.SetLength(0);
  EXPECT_STREQ(L"", text.Text());
  text.SetLength(-3);
  EXPECT_EQ(0, text.Length());
  CUString empty;
  empty.SetLength(0);
  EXPECT_EQ(nullptr, empty.Buffer());
}
