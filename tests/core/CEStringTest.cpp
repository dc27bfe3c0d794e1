#include "DriverLIB/CEString.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/PrintText.h"

TEST(CEString, StartsWithoutBuffer) {
  const CEString text;
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_STREQ("", text.Text());
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(nullptr, CEString(nullptr).Buffer());
  EXPECT_EQ(nullptr, CEString("").Buffer());
}

TEST(CEString, ConstructorsFollowTheWideString) {
  CEString source("abc");
  EXPECT_EQ(3, source.Capacity());
  source.EnsureCapacity(50);
  const CEString copy(source);
  EXPECT_EQ(50, copy.Capacity());
  EXPECT_EQ("abc", copy);
  EXPECT_NE(source.Text(), copy.Text());
  source.Assign("");
  EXPECT_EQ(nullptr, CEString(source).Buffer());
  EXPECT_EQ("view", CEString(std::string_view("view of more", 4)));
}

TEST(CEString, MovesAndSwaps) {
  CEString source("abc");
  const char* buffer = source.Buffer();
  CEString target(std::move(source));
  EXPECT_EQ(buffer, target.Buffer());
  CEString other("x");
  other = std::move(target);
  EXPECT_EQ(buffer, other.Buffer());
  CEString empty;
  swap(empty, other);
  EXPECT_EQ(buffer, empty.Buffer());
  EXPECT_EQ(nullptr, other.Buffer());
}

TEST(CEString, ResetForgetsTheBufferWithoutFreeingIt) {
  CEString text("abc");
  char* buffer = text.Buffer();
  EXPECT_EQ(0, text.Reset());
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_EQ(0, text.Length());
  EXPECT_STREQ("abc", buffer);
  delete[] buffer;
}

TEST(CEString, AssignEmptyZeroesTheTextAndKeepsTheBuffer) {
  for (const char* empty : {"", static_cast<const char*>(nullptr)}) {
    CEString text("secret");
    const char* buffer = text.Buffer();
    text = empty;
    EXPECT_EQ(buffer, text.Buffer());
    EXPECT_EQ(0, text.Length());
    EXPECT_EQ(std::string(7, '\0'), std::string(buffer, 7));
  }
}

TEST(CEString, AssignTakesAPartOfItself) {
  CEString text("abcdef");
  text.Assign(text.CharPtr(2));
  EXPECT_EQ("cdef", text);
  CEString& alias = text;
  text = alias;
  EXPECT_EQ("cdef", text);
}

TEST(CEString, AssignWideConvertsToTheAnsiCodePage) {
  CEString text("former");
  text.AssignWide(
      L"Gr\x00F6\x00DF"
      L"e \x20AC");
  EXPECT_EQ(
      "Gr\xF6\xDF"
      "e \x80",
      text);
  EXPECT_EQ(7, text.Length());
  text.AssignWide(L"\x0416");  // no place in the code page
  EXPECT_EQ("?", text);
  text.AssignWide(nullptr);
  EXPECT_EQ(0, text.Length());
  EXPECT_NE(nullptr, text.Buffer());
}

TEST(CEString, AppendGrowsToExactlyTheSizeNeeded) {
  CEString text;
  text.Append(nullptr);
  text.Append("");
  EXPECT_EQ(nullptr, text.Buffer());
  text.Append("ab");
  EXPECT_EQ(2, text.Capacity());
  text += CEString("cde");
  EXPECT_EQ(5, text.Capacity());
  EXPECT_EQ("abcde", text);
  text.Append(text);
  EXPECT_EQ("abcdeabcde", text);
}

TEST(CEString, FormatCutsAt2047Bytes) {
  CEString text;
  EXPECT_EQ(11, text.Format("%s|%d|%04x", "text", 7, 0xAB));
  EXPECT_EQ("text|7|00ab", text);
  EXPECT_GT(0, text.Format("%s", std::string(5000, 'x').c_str()));
  EXPECT_EQ(std::string(2047, 'x'), std::string(text.View()));
  EXPECT_EQ(2047, text.Format("%s", std::string(2047, 'y').c_str()));
  EXPECT_EQ(0, text.Format(nullptr));
  EXPECT_EQ(0, text.Length());
}

TEST(CEString, Finds) {
  const CEString text("abcabc");
  EXPECT_EQ(1, text.Find("bc"));
  EXPECT_EQ(-1, text.Find("cb"));
  EXPECT_EQ(-1, CEString().Find("a"));
  EXPECT_EQ(-1, CEString().Find(""));
  EXPECT_EQ(5, text.ReverseFind('c'));
  EXPECT_EQ(-1, text.ReverseFind('x'));
  EXPECT_EQ(-1, CEString().ReverseFind('x'));
}

TEST(CEString, TrimsWhiteSpaceOnly) {
  CEString text(" \t\r\n\v\f abc\xA0 \t\r\n\v\f ");
  text.TrimLeft();
  EXPECT_EQ("abc\xA0 \t\r\n\v\f ", text);
  text.TrimRight();
  EXPECT_EQ("abc\xA0", text);
  text = "\t x ";
  text.TrimBoth();
  EXPECT_EQ("x", text);
}

TEST(CEString, TrimToNothingFreesTheBuffer) {
  using Trim = void (*)(CEString&);
  for (const Trim trim : {Trim([](CEString& text) { text.TrimLeft(); }), Trim([](CEString& text) { text.TrimRight(); }),
                          Trim([](CEString& text) { text.TrimBoth(); })}) {
    CEString text("  \t");
    trim(text);
    EXPECT_EQ(nullptr, text.Buffer());
    EXPECT_EQ(0, text.Capacity());
  }
}

TEST(CEString, ReplaceStrFollowsTheWideString) {
  CEString text("aaa/aa");
  text.ReplaceStr("aa", "b");
  EXPECT_EQ("ba/b", text);
  text.ReplaceStr("b", "");
  text.ReplaceStr("", "x");
  text.ReplaceStr("b", nullptr);
  EXPECT_EQ("ba/b", text);
}

TEST(CEString, LeftAndCharPtr) {
  const CEString text("abc");
  EXPECT_EQ("ab", text.Left(2));
  EXPECT_EQ("abc", text.Left(3));
  EXPECT_EQ("abc", text.Left(4));
  EXPECT_EQ(0, text.Left(-1).Length());
  EXPECT_EQ(nullptr, text.CharPtr(-1));
  EXPECT_STREQ("c", text.CharPtr(2));
  EXPECT_EQ(text.Text() + 3, text.CharPtr(9));
}

TEST(CEString, EqualsLooksAtCaseAndTakesNull) {
  EXPECT_TRUE(CEString("Abc").Equals("Abc"));
  EXPECT_FALSE(CEString("Abc").Equals("abc"));
  EXPECT_TRUE(CEString().Equals(nullptr));
  EXPECT_TRUE(CEString().Equals(""));
  EXPECT_FALSE(CEString("a").Equals(nullptr));
}

TEST(CEString, ComparingEndsAtATerminatorInside) {
  CEString text("abc");
  text.Append(NarrowView("\0def", 4));
  EXPECT_EQ(7, text.Length());
  EXPECT_TRUE(text.Equals("abc"));
  EXPECT_TRUE(text == CEString("abc"));
  EXPECT_FALSE(text.Equals("ab"));
}

TEST(CEString, EnsureCapacityGrowsAsTold) {
  struct {
    const char* text;
    int count, capacity;
  } const kCases[] = {{"", 0, 8},  {"abc", 0, 8}, {"abcdefgh", 0, 8}, {"", 1, 1},
                      {"", -1, 8}, {"abc", 3, 3}, {"abc", 4, 4},      {"abc", -7, 11}};
  for (const auto& sample : kCases) {
    CEString text(sample.text);
    EXPECT_EQ(1, text.EnsureCapacity(sample.count));
    EXPECT_EQ(sample.capacity, text.Capacity()) << sample.count;
    EXPECT_EQ(text, sample.text);
    for (int i = text.Length(); i <= text.Capacity(); ++i) EXPECT_EQ('\0', text.Text()[i]);
  }
  CEString text("abc");
  EXPECT_THROW(text.EnsureCapacity(INT32_MAX), std::bad_alloc);
  EXPECT_EQ("abc", text);
}

TEST(CEString, TextMayBeWrittenIntoTheBuffer) {
  CEString text;
  text.EnsureCapacity(8);
  for (int i = 0; i <= 8; ++i) text.Buffer()[i] = 'x';
  text.ReleaseBuffer();
  EXPECT_EQ("xxxxxxxx", text);
  text.ReleaseBuffer(3);
  EXPECT_EQ("xxx", text);
  text.SetLength(1);
  EXPECT_STREQ("x", text.Text());
  text.SetLength(30);
  EXPECT_EQ(30, text.Length());
  CEString empty;
  empty.ReleaseBuffer();
  EXPECT_EQ(nullptr, empty.Buffer());
}
