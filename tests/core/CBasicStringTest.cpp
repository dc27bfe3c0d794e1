// What the wide and the narrow string do alike.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>

#include "DriverLIB/CEString.h"
#include "DriverLIB/CUString.h"
#include "support/PrintText.h"

namespace {

template <class String>
using CharacterOf = std::remove_cvref_t<decltype(*std::declval<String&>().Buffer())>;

// A text of plain ASCII in the characters of `String`.
template <class String>
std::basic_string<CharacterOf<String>> T(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

template <class String>
class CBasicStringTest : public testing::Test {};

using BothStrings = testing::Types<CUString, CEString>;
TYPED_TEST_SUITE(CBasicStringTest, BothStrings);

// --- Construction and copies ---------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, StartsWithoutBuffer) {
  const TypeParam text;
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_STREQ(T<TypeParam>("").c_str(), text.Text());
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_TRUE(text.IsEmpty());
}

TYPED_TEST(CBasicStringTest, FromTextHasTheCapacityOfItsLength) {
  const TypeParam text(T<TypeParam>("seven.."));
  EXPECT_EQ(7, text.Length());
  EXPECT_EQ(7, text.Capacity());
  EXPECT_STREQ(T<TypeParam>("seven..").c_str(), text.Text());
  EXPECT_FALSE(text.IsEmpty());
}

TYPED_TEST(CBasicStringTest, FromNullOrEmptyTextHasNoBuffer) {
  using Character = CharacterOf<TypeParam>;
  EXPECT_EQ(nullptr, TypeParam(static_cast<const Character*>(nullptr)).Buffer());
  EXPECT_EQ(nullptr, TypeParam(nullptr).Buffer());
  EXPECT_EQ(nullptr, TypeParam(T<TypeParam>("").c_str()).Buffer());
  EXPECT_EQ(nullptr, TypeParam(std::basic_string_view<Character>()).Buffer());
}

TYPED_TEST(CBasicStringTest, IsMadeFromWhatPeoplePass) {
  using Character = CharacterOf<TypeParam>;
  const auto standard = T<TypeParam>("text");
  TypeParam text = standard.c_str();
  EXPECT_EQ(text, TypeParam(standard));
  EXPECT_EQ(text, TypeParam(std::basic_string_view<Character>(standard)));
  EXPECT_EQ(text, TypeParam(TextView<Character>(T<TypeParam>("text and more").c_str(), 4)));
  const auto view = T<TypeParam>("view");
  text = std::basic_string_view<Character>(view);
  EXPECT_EQ(view, text);
  const auto pointer = T<TypeParam>("pointer");
  text = pointer.c_str();
  EXPECT_EQ(pointer, text);
  text += T<TypeParam>("!");
  EXPECT_EQ(T<TypeParam>("pointer!"), text);
}

TYPED_TEST(CBasicStringTest, CopyKeepsTheCapacityOfItsSource) {
  TypeParam source(T<TypeParam>("abc"));
  source.EnsureCapacity(50);
  const TypeParam copy(source);
  EXPECT_EQ(50, copy.Capacity());
  EXPECT_EQ(T<TypeParam>("abc"), copy);
  EXPECT_NE(source.Text(), copy.Text());
}

TYPED_TEST(CBasicStringTest, CopyOfAnEmptySourceHasNoBuffer) {
  TypeParam source;
  source.EnsureCapacity(50);
  EXPECT_EQ(nullptr, TypeParam(source).Buffer());
  source.Assign(T<TypeParam>("abc"));
  source.Assign({});
  EXPECT_EQ(nullptr, TypeParam(source).Buffer());
}

TYPED_TEST(CBasicStringTest, CopiesAreDeep) {
  TypeParam source(T<TypeParam>("abc"));
  TypeParam copy(source);
  source.Buffer()[1] = 'x';
  EXPECT_EQ(T<TypeParam>("abc"), copy);
  copy = source;
  source.Append(T<TypeParam>("!"));
  EXPECT_EQ(T<TypeParam>("axc"), copy);
}

TYPED_TEST(CBasicStringTest, MoveTakesTheBuffer) {
  TypeParam source(T<TypeParam>("abc"));
  const auto* buffer = source.Buffer();
  TypeParam target(std::move(source));
  EXPECT_EQ(buffer, target.Buffer());
  TypeParam assigned(T<TypeParam>("other"));
  assigned = std::move(target);
  EXPECT_EQ(buffer, assigned.Buffer());
  EXPECT_EQ(T<TypeParam>("abc"), assigned);
  static_assert(std::is_nothrow_move_constructible_v<TypeParam> && std::is_nothrow_move_assignable_v<TypeParam>);
}

TYPED_TEST(CBasicStringTest, MovedFromIsEmptyAndUsable) {
  TypeParam source(T<TypeParam>("abc"));
  const TypeParam target(std::move(source));
  EXPECT_EQ(nullptr, source.Buffer());  // NOLINT: that is the point
  source.Append(T<TypeParam>("again"));
  EXPECT_EQ(T<TypeParam>("again"), source);
}

TYPED_TEST(CBasicStringTest, SwapExchangesEverything) {
  TypeParam left(T<TypeParam>("left")), right;
  const auto* buffer = left.Buffer();
  swap(left, right);
  EXPECT_EQ(nullptr, left.Buffer());
  EXPECT_EQ(0, left.Length());
  EXPECT_EQ(0, left.Capacity());
  EXPECT_EQ(buffer, right.Buffer());
  EXPECT_EQ(T<TypeParam>("left"), right);
}

TYPED_TEST(CBasicStringTest, SelfAssignmentKeepsTheText) {
  TypeParam text(T<TypeParam>("abc"));
  TypeParam& alias = text;
  text = alias;
  EXPECT_EQ(T<TypeParam>("abc"), text);
  text = std::move(alias);
  EXPECT_EQ(T<TypeParam>("abc"), text);
}

TYPED_TEST(CBasicStringTest, ResetForgetsTheBufferWithoutFreeingIt) {
  TypeParam text(T<TypeParam>("abc"));
  auto* buffer = text.Buffer();
  EXPECT_EQ(0, text.Reset());
  EXPECT_EQ(nullptr, text.Buffer());
  EXPECT_EQ(0, text.Capacity());
  EXPECT_EQ(0, text.Length());
  EXPECT_STREQ(T<TypeParam>("abc").c_str(), buffer);
  delete[] buffer;
}

// --- Assigning and appending -----------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, AssignEmptyZeroesTheTextAndKeepsTheBuffer) {
  const auto empty = T<TypeParam>("");
  for (const auto* source : {empty.c_str(), static_cast<decltype(empty.c_str())>(nullptr)}) {
    TypeParam text(T<TypeParam>("secret"));
    const auto* buffer = text.Buffer();
    text = source;
    EXPECT_EQ(buffer, text.Buffer());
    EXPECT_EQ(6, text.Capacity());
    EXPECT_EQ(0, text.Length());
    EXPECT_EQ(7, std::count(buffer, buffer + 7, 0));
  }
}

TYPED_TEST(CBasicStringTest, AssignGrowsToTheTextAndNeverShrinks) {
  TypeParam text;
  text.Assign(T<TypeParam>("abcdef"));
  EXPECT_EQ(6, text.Capacity());
  text.Assign(T<TypeParam>("xy"));
  EXPECT_EQ(6, text.Capacity());
  EXPECT_EQ(2, text.Length());
  EXPECT_STREQ(T<TypeParam>("xy").c_str(), text.Text());
}

TYPED_TEST(CBasicStringTest, AssignTakesAPartOfItself) {
  TypeParam text(T<TypeParam>("abcdef"));
  text.Assign(text.CharPtr(2));
  EXPECT_EQ(T<TypeParam>("cdef"), text);
  text.Assign(text.View().substr(1, 2));
  EXPECT_EQ(T<TypeParam>("de"), text);
}

TYPED_TEST(CBasicStringTest, AppendNullOrEmptyChangesNothing) {
  TypeParam text;
  text.Append(nullptr);
  text.Append(T<TypeParam>(""));
  text.Append(TypeParam());
  EXPECT_EQ(nullptr, text.Buffer());
}

TYPED_TEST(CBasicStringTest, AppendGrowsToExactlyTheSizeNeeded) {
  TypeParam text;
  text.Append(T<TypeParam>("ab"));
  EXPECT_EQ(2, text.Capacity());
  text.Append(TypeParam(T<TypeParam>("cde")));
  EXPECT_EQ(5, text.Capacity());
  EXPECT_EQ(T<TypeParam>("abcde"), text);
}

TYPED_TEST(CBasicStringTest, AppendFitsIntoWhatIsThere) {
  TypeParam text(T<TypeParam>("ab"));
  text.EnsureCapacity(20);
  const auto* buffer = text.Buffer();
  text.Append(T<TypeParam>("cdefgh"));
  EXPECT_EQ(buffer, text.Buffer());
  EXPECT_STREQ(T<TypeParam>("abcdefgh").c_str(), text.Text());
}

TYPED_TEST(CBasicStringTest, AppendTakesItself) {
  TypeParam text(T<TypeParam>("ab"));
  auto expected = T<TypeParam>("ab");
  for (int i = 0; i < 10; ++i) {
    text.Append(text);
    expected += expected;
  }
  EXPECT_EQ(2048, text.Length());
  EXPECT_EQ(expected, text);
  text.Append(text.CharPtr(2045));
  EXPECT_EQ(expected + T<TypeParam>("bab"), text);
}

TYPED_TEST(CBasicStringTest, AppendTakesItselfWithoutGrowing) {
  TypeParam text(T<TypeParam>("abc"));
  text.EnsureCapacity(10);
  text.Append(text.CharPtr(1));
  EXPECT_EQ(T<TypeParam>("abcbc"), text);
}

TYPED_TEST(CBasicStringTest, SizesDoNotOverflow) {
  using View = TextView<CharacterOf<TypeParam>>;
  TypeParam text(T<TypeParam>("abc"));
  EXPECT_THROW(text.EnsureCapacity(INT32_MAX), std::bad_alloc);
  EXPECT_THROW(text.Append(View(text.Text(), size_t{UINT32_MAX} - 1)), std::bad_alloc);
  EXPECT_THROW(text.Assign(View(text.Text(), size_t{UINT32_MAX} + 2)), std::bad_alloc);
  EXPECT_EQ(T<TypeParam>("abc"), text);
  EXPECT_EQ(3, text.Capacity());
}

TYPED_TEST(CBasicStringTest, FormatCutsAt2047Characters) {
  const auto format = T<TypeParam>("%s");
  const auto xs = [](size_t count) { return T<TypeParam>(std::string(count, 'x')); };
  TypeParam text;
  EXPECT_GT(0, text.Format(format.c_str(), xs(5000).c_str()));
  EXPECT_EQ(2047, text.Length());
  EXPECT_EQ(xs(2047), text);
  EXPECT_GT(0, text.Format(format.c_str(), xs(2048).c_str()));
  EXPECT_EQ(2047, text.Length());
  text = nullptr;
  EXPECT_EQ(2047, text.Format(format.c_str(), xs(2047).c_str()));
  EXPECT_EQ(2047, text.Length());
}

TYPED_TEST(CBasicStringTest, FormatMayTakeItself) {
  TypeParam text(T<TypeParam>("abc"));
  EXPECT_EQ(7, text.Format(T<TypeParam>("%s-%s").c_str(), text.Text(), text.Text()));
  EXPECT_EQ(T<TypeParam>("abc-abc"), text);
}

TYPED_TEST(CBasicStringTest, FormatWithoutFormatIsEmpty) {
  TypeParam text(T<TypeParam>("abc"));
  EXPECT_EQ(0, text.Format(nullptr));
  EXPECT_EQ(0, text.Length());
}

// --- Searching -------------------------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, FindGivesTheFirstOccurrence) {
  const TypeParam text(T<TypeParam>("abcabc"));
  EXPECT_EQ(1, text.Find(T<TypeParam>("bc")));
  EXPECT_EQ(-1, text.Find(T<TypeParam>("cb")));
  EXPECT_EQ(-1, text.Find(T<TypeParam>("BC")));
  EXPECT_EQ(-1, text.Find(T<TypeParam>("abcabcd")));
  EXPECT_EQ(-1, TypeParam().Find(T<TypeParam>("a")));
  EXPECT_EQ(-1, TypeParam().Find(T<TypeParam>("")));
  EXPECT_EQ(0, text.Find(nullptr));  // the empty text is everywhere
}

TYPED_TEST(CBasicStringTest, ReverseFindGivesTheLastOccurrence) {
  const TypeParam text(T<TypeParam>("abcabc"));
  EXPECT_EQ(3, text.ReverseFind('a'));
  EXPECT_EQ(5, text.ReverseFind('c'));
  EXPECT_EQ(-1, text.ReverseFind('x'));
  EXPECT_EQ(-1, TypeParam().ReverseFind('a'));
}

// --- Changing --------------------------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, ReplaceStrReplacesFromLeftToRightWithoutRescanning) {
  struct {
    const char *text, *oldText, *newText, *result;
  } const kCases[] = {{"abcabc", "bc", "x", "axax"},  {"aaa", "aa", "b", "ba"},     {"aaa/aa", "aa", "b", "ba/b"},
                      {"aba", "a", "aa", "aabaa"},    {"abc", "abc", "xyz", "xyz"}, {"abc", "x", "y", "abc"},
                      {"x", "x", "longer", "longer"}, {"\"", "\"", "\"\"", "\"\""}, {"a\nb", "\n", "\r\n", "a\r\nb"}};
  for (const auto& sample : kCases) {
    TypeParam text(T<TypeParam>(sample.text));
    text.ReplaceStr(T<TypeParam>(sample.oldText), T<TypeParam>(sample.newText));
    EXPECT_EQ(text, T<TypeParam>(sample.result)) << sample.text;
    EXPECT_EQ(static_cast<int>(std::string_view(sample.result).size()), text.Length());
  }
}

TYPED_TEST(CBasicStringTest, ReplaceStrCannotRemove) {
  const auto b = T<TypeParam>("b"), x = T<TypeParam>("x"), nothing = T<TypeParam>("");
  TypeParam text(T<TypeParam>("abc"));
  text.ReplaceStr(b, nothing);
  text.ReplaceStr(b, nullptr);
  text.ReplaceStr(nothing, x);
  text.ReplaceStr(nullptr, x);
  EXPECT_EQ(T<TypeParam>("abc"), text);
  TypeParam empty;
  empty.ReplaceStr(b, x);
  EXPECT_EQ(nullptr, empty.Buffer());
}

TYPED_TEST(CBasicStringTest, ReplaceStrTakesPartsOfItself) {
  TypeParam text(T<TypeParam>("ab-a-b"));
  text.ReplaceStr(text.View().substr(0, 1), text.View().substr(2, 1));
  EXPECT_EQ(T<TypeParam>("-b---b"), text);
}

TYPED_TEST(CBasicStringTest, TrimTakesAllWhiteSpace) {
  TypeParam text(T<TypeParam>(" \t\r\n\v\f abc \t\r\n\v\f "));
  text.TrimLeft();
  EXPECT_EQ(T<TypeParam>("abc \t\r\n\v\f "), text);
  text.TrimRight();
  EXPECT_EQ(T<TypeParam>("abc"), text);
  EXPECT_EQ(3, text.Length());
  text = T<TypeParam>("\t x ");
  text.TrimBoth();
  EXPECT_EQ(T<TypeParam>("x"), text);
}

TYPED_TEST(CBasicStringTest, TrimToNothingFreesTheBuffer) {
  using Trim = void (*)(TypeParam&);
  for (const Trim trim :
       {Trim([](TypeParam& text) { text.TrimLeft(); }), Trim([](TypeParam& text) { text.TrimRight(); }),
        Trim([](TypeParam& text) { text.TrimBoth(); })}) {
    TypeParam text(T<TypeParam>(" \t  "));
    trim(text);
    EXPECT_EQ(nullptr, text.Buffer());
    EXPECT_EQ(0, text.Capacity());
    EXPECT_EQ(0, text.Length());
    text.Append(T<TypeParam>("new"));
    EXPECT_EQ(T<TypeParam>("new"), text);
    EXPECT_EQ(3, text.Capacity());
    text.Assign({});
    EXPECT_NE(nullptr, text.Buffer());
    trim(text);  // an empty string keeps what it has
    EXPECT_NE(nullptr, text.Buffer());
  }
}

TYPED_TEST(CBasicStringTest, LeftGivesTheFirstCharacters) {
  const TypeParam text(T<TypeParam>("abcdef"));
  EXPECT_EQ(T<TypeParam>("ab"), text.Left(2));
  EXPECT_EQ(T<TypeParam>("abcdef"), text.Left(6));
  EXPECT_EQ(T<TypeParam>("abcdef"), text.Left(7));
  EXPECT_EQ(T<TypeParam>(""), text.Left(0));
  EXPECT_EQ(0, text.Left(-1).Length());
  EXPECT_EQ(0, TypeParam().Left(3).Length());
}

TYPED_TEST(CBasicStringTest, CharPtrPointsIntoTheText) {
  const TypeParam text(T<TypeParam>("abc"));
  EXPECT_EQ(nullptr, text.CharPtr(-1));
  EXPECT_STREQ(T<TypeParam>("abc").c_str(), text.CharPtr(0));
  EXPECT_STREQ(T<TypeParam>("c").c_str(), text.CharPtr(2));
  EXPECT_EQ(text.Text() + 3, text.CharPtr(3));
  EXPECT_EQ(text.Text() + 3, text.CharPtr(100));
  EXPECT_STREQ(T<TypeParam>("").c_str(), TypeParam().CharPtr(1));
}

// --- Comparing -------------------------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, EqualsLooksAtCase) {
  const TypeParam text(T<TypeParam>("Abc"));
  EXPECT_TRUE(text.Equals(T<TypeParam>("Abc")));
  EXPECT_FALSE(text.Equals(T<TypeParam>("abc")));
  EXPECT_FALSE(text.Equals(T<TypeParam>("Ab")));
  EXPECT_FALSE(text.Equals(T<TypeParam>("Abcd")));
  EXPECT_FALSE(text.Equals(nullptr));
}

TYPED_TEST(CBasicStringTest, NoBufferEqualsNullAndEmpty) {
  TypeParam text;
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(text.Equals(nullptr));
    EXPECT_TRUE(text.Equals(T<TypeParam>("")));
    EXPECT_FALSE(text.Equals(T<TypeParam>("a")));
    text.Assign(T<TypeParam>("x"));
    text.Assign({});  // now with a buffer
  }
}

TYPED_TEST(CBasicStringTest, ComparingEndsAtATerminatorInside) {
  TypeParam text(T<TypeParam>("abc"));
  text.EnsureCapacity(8);
  text.SetLength(6);  // as converting from a double-byte code page leaves it
  EXPECT_TRUE(text.Equals(T<TypeParam>("abc")));
  EXPECT_TRUE(text == T<TypeParam>("abc"));
  EXPECT_TRUE(TypeParam(T<TypeParam>("abc")) == text);
  EXPECT_TRUE(text == TypeParam(text));
  EXPECT_EQ(6, TypeParam(text).Length());
  EXPECT_FALSE(text.Equals(T<TypeParam>("ab")));
  text.SetLength(3);
  text.Append(T<TypeParam>(std::string_view("\0def", 4)));
  EXPECT_EQ(7, text.Length());
  EXPECT_TRUE(text.Equals(T<TypeParam>("abc")));
}

TYPED_TEST(CBasicStringTest, OperatorsCompareText) {
  using Character = CharacterOf<TypeParam>;
  const auto standard = T<TypeParam>("abc");
  const Character* const pointer = standard.c_str();
  const TypeParam text(standard);
  EXPECT_TRUE(text == pointer);
  EXPECT_TRUE(pointer == text);
  EXPECT_TRUE(text == TypeParam(standard));
  EXPECT_TRUE(text == standard);
  EXPECT_TRUE(text == std::basic_string_view<Character>(standard));
  EXPECT_TRUE(text == TextView<Character>(standard));
  EXPECT_TRUE(text != T<TypeParam>("abd"));
  EXPECT_TRUE(TypeParam() == nullptr);
  EXPECT_TRUE(TypeParam() == TypeParam(T<TypeParam>("")));
  EXPECT_TRUE(text.View() == pointer);  // and stay out of the way of the standard ones
  EXPECT_TRUE(TextView<Character>(pointer) == pointer);
}

// --- Direct access to the buffer -------------------------------------------------------------------------------------

TYPED_TEST(CBasicStringTest, EnsureCapacityGrowsAsTold) {
  struct {
    const char* text;
    int count, capacity;
  } const kCases[] = {
      {"", 0, 8},          // nothing asked of an empty string: one step
      {"abc", 0, 8},       // below 8: to the step
      {"abcdefgh", 0, 8},  // 8 are enough
      {"", 1, 1},          // exactly what is asked
      {"", 100, 100},      //
      {"abc", 3, 3},       // fits
      {"abc", 2, 3},       // fits
      {"abc", 4, 4},       //
      {"", -1, 8},         // forced: one step more
      {"abc", -7, 11},     //
  };
  for (const auto& sample : kCases) {
    TypeParam text(T<TypeParam>(sample.text));
    EXPECT_EQ(1, text.EnsureCapacity(sample.count));
    EXPECT_EQ(sample.capacity, text.Capacity()) << sample.count;
    EXPECT_EQ(text, T<TypeParam>(sample.text));
  }
}

TYPED_TEST(CBasicStringTest, EnsureCapacityZeroesTheRest) {
  TypeParam text(T<TypeParam>("abc"));
  text.EnsureCapacity(64);
  EXPECT_EQ(62, std::count(text.Text() + 3, text.Text() + 65, 0));
}

TYPED_TEST(CBasicStringTest, EnsureCapacityWithRoomKeepsTheBlock) {
  TypeParam text(T<TypeParam>("abcdefghij"));
  const auto* buffer = text.Buffer();
  EXPECT_EQ(1, text.EnsureCapacity(10));
  EXPECT_EQ(1, text.EnsureCapacity(0));
  EXPECT_EQ(buffer, text.Buffer());
  text.EnsureCapacity(-1);
  EXPECT_EQ(18, text.Capacity());
}

TYPED_TEST(CBasicStringTest, TextMayBeWrittenIntoTheBuffer) {
  TypeParam text;
  text.EnsureCapacity(10);
  text.Buffer()[0] = 'a';
  text.Buffer()[1] = 'b';
  text.ReleaseBuffer();
  EXPECT_EQ(2, text.Length());
  EXPECT_EQ(T<TypeParam>("ab"), text);
  text.Buffer()[2] = 'c';
  text.ReleaseBuffer(1);
  EXPECT_EQ(T<TypeParam>("a"), text);
  text.ReleaseBuffer(0);
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(10, text.Capacity());
}

TYPED_TEST(CBasicStringTest, ReleaseBufferCountsNoFurtherThanTheCapacity) {
  TypeParam text;
  text.EnsureCapacity(8);
  for (int i = 0; i <= 8; ++i) text.Buffer()[i] = 'x';  // the terminator too
  text.ReleaseBuffer();
  EXPECT_EQ(8, text.Length());
  EXPECT_STREQ(T<TypeParam>("xxxxxxxx").c_str(), text.Text());
}

TYPED_TEST(CBasicStringTest, ReleaseBufferWithoutBufferGivesLengthZero) {
  TypeParam text;
  text.ReleaseBuffer();
  EXPECT_EQ(0, text.Length());
  EXPECT_EQ(nullptr, text.Buffer());
}

TYPED_TEST(CBasicStringTest, SetLengthTerminates) {
  TypeParam text(T<TypeParam>("abcdef"));
  text.SetLength(2);
  EXPECT_EQ(2, text.Length());
  EXPECT_STREQ(T<TypeParam>("ab").c_str(), text.Text());
  text.SetLength(20);  // makes the room it needs
  EXPECT_EQ(20, text.Length());
  EXPECT_EQ(0, text.Text()[20]);
  text.SetLength(0);
  EXPECT_STREQ(T<TypeParam>("").c_str(), text.Text());
  text.SetLength(-3);
  EXPECT_EQ(0, text.Length());
  TypeParam empty;
  empty.SetLength(0);
  EXPECT_EQ(nullptr, empty.Buffer());
}

}  // namespace
