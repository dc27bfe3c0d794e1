#include "ui/Property.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <type_traits>
#include <vector>

#include "support/FailingNew.h"
#include "support/TracedThread.h"
#include "ui/CPropertySet.h"

namespace {

using Lines = std::vector<std::wstring>;

constexpr int32_t kMin = INT32_MIN;
constexpr int32_t kMax = INT32_MAX;

// A third kind of value that has nothing but what it must have: shows what the base does.
class CBareProperty final : public CProperty {
 public:
  CBareProperty(const wchar_t* name, CPropertySet& set) : CProperty(name, set, kPropertyAccess) {}
  void PrintValue() const override {}
  int GetValue(void*, int32_t) const override { return 0; }
  int SetValue(const void*) override { return 0; }
  void Assign(const CProperty&) override {}
  std::unique_ptr<CProperty> Clone(CPropertySet&) const override { return nullptr; }

  void FillLists() {
    for (const wchar_t* value : {L"0", L"1"}) values_.Add(value);
    for (const wchar_t* description : {L"off", L"on"}) descriptions_.Add(description);
  }
};

class Property : public testing::Test {
 protected:
  // The code that the last operation raised; the state is clean afterwards.
  uint32_t TakeCode() {
    const uint32_t code = thread_.Error().code;
    ResetError(&thread_.Error());
    return code;
  }

  TracedThread thread_;
  CPropertySet set_;
};

TEST_F(Property, BaseOperationsAreEmpty) {
  CBareProperty bare(L"Bare", set_);
  bare.SetString(L"x");
  bare.SetBool(1);
  bare.SetLong(1);
  bare.SetDouble(1.0);
  bare.SetSize(1);
  EXPECT_EQ(0, bare.SetValueText(L"1"));
  EXPECT_EQ(0, bare.GetBool());
  EXPECT_EQ(0, bare.GetLong());
  EXPECT_EQ(0.0, bare.GetDouble());
  EXPECT_EQ(0, bare.GetSize());
  EXPECT_TRUE(bare.GetTypeName().empty());
  EXPECT_TRUE(bare.GetString() == L"Bare");
}

TEST_F(Property, JoinsItsSetAtConstruction) {
  CLongProperty number(L"Number", set_, 7);
  EXPECT_EQ(&number, set_.Get(L"Number"));
  EXPECT_EQ(&set_, number.GetOwner());
  EXPECT_TRUE(number.GetName() == L"Number");
  EXPECT_TRUE(number.IsReadable());
  EXPECT_TRUE(number.IsWritable());
}

TEST_F(Property, BuiltWithoutANameIsEmptyAndInNoSet) {
  CLongProperty number;
  CStringProperty text;
  EXPECT_EQ(0, number.GetLong());
  EXPECT_TRUE(text.GetString().IsEmpty());
  EXPECT_TRUE(number.GetName().IsEmpty());
  EXPECT_EQ(nullptr, number.GetOwner());
  EXPECT_EQ(nullptr, set_.First());
}

TEST_F(Property, BindGivesNameOwnerAndRights) {
  CLongProperty number;
  number.Bind(L"Late", set_, kPropertyWritable);
  EXPECT_EQ(&number, set_.Get(L"Late"));
  EXPECT_EQ(&set_, number.GetOwner());
  EXPECT_FALSE(number.IsReadable());
  EXPECT_TRUE(number.IsWritable());
}

TEST_F(Property, TypeNamesAreFixed) {
  EXPECT_TRUE(CLongProperty().GetTypeName() == std::wstring_view(L"Long"));
  EXPECT_TRUE(CStringProperty().GetTypeName() == std::wstring_view(L"String"));
}

TEST_F(Property, IsNotCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<CLongProperty>);
  EXPECT_FALSE(std::is_copy_assignable_v<CStringProperty>);
}

TEST_F(Property, ListsAreCopiedByTheirNames) {
  CBareProperty bare(L"Bare", set_);
  bare.FillLists();
  for (const auto& [list, first, second] :
       {std::array{L"PropValues", L"0", L"1"}, std::array{L"PropValueDescription", L"off", L"on"}}) {
    CUStringArray array;
    array.Add(L"old");
    EXPECT_EQ(1, bare.GetList(list, array));
    ASSERT_EQ(2, array.Count());
    EXPECT_TRUE(array.GetAt(0) == first);
    EXPECT_TRUE(array.GetAt(1) == second);
  }
}

TEST_F(Property, TheKindsOfTheLibraryFillNoList) {
  CLongProperty number(L"Number", set_);
  for (const wchar_t* list : {L"PropValues", L"PropValueDescription"}) {
    CUStringArray array;
    array.Add(L"old");
    EXPECT_EQ(1, number.GetList(list, array));
    EXPECT_EQ(0, array.Count());
  }
}

TEST_F(Property, UnknownListIsNoFailureAndLeavesTheArray) {
  CLongProperty number(L"Number", set_);
  for (const wchar_t* list : {L"propvalues", L"", static_cast<const wchar_t*>(nullptr)}) {
    CUStringArray array;
    array.Add(L"old");
    EXPECT_EQ(1, number.GetList(list, array));
    EXPECT_EQ(1, array.Count());
  }
}

// --- Long --------------------------------------------------------------------------------------------------------

class LongProperty : public Property {
 protected:
  CLongProperty number_{L"Number", set_, 5};
};

TEST_F(LongProperty, KeepsEveryThirtyTwoBitValue) {
  for (const int32_t value : {0, 1, -1, 85, kMin, kMax}) {
    int32_t read = 12345;
    EXPECT_EQ(1, number_.SetValue(&value));
    EXPECT_EQ(1, number_.GetValue(&read, sizeof read));
    EXPECT_EQ(value, read);
    EXPECT_EQ(value, number_.GetLong());
  }
}

TEST_F(LongProperty, NullStoresZero) {
  EXPECT_EQ(1, number_.SetValue(nullptr));
  EXPECT_EQ(0, number_.GetLong());
}

TEST_F(LongProperty, SizeBelowFourIsTooSmallAndWritesNothing) {
  for (const int32_t size : {3, 1, 0, -1, kMin}) {
    int32_t read = 77;
    EXPECT_EQ(0, number_.GetValue(&read, size)) << size;
    EXPECT_EQ(47u, TakeCode()) << size;
    EXPECT_EQ(77, read);
  }
}

TEST_F(LongProperty, WritesFourBytesWhateverTheSize) {
  for (const int32_t size : {4, 5, kMax}) {
    std::array<unsigned char, 8> buffer;
    buffer.fill(0xCC);
    EXPECT_EQ(1, number_.GetValue(buffer.data(), size));
    EXPECT_EQ((std::array<unsigned char, 8>{5, 0, 0, 0, 0xCC, 0xCC, 0xCC, 0xCC}), buffer);
  }
}

TEST_F(LongProperty, TakesPointersAtAnyAddress) {
  unsigned char bytes[8] = {0, 0x78, 0x56, 0x34, 0x12};
  EXPECT_EQ(1, number_.SetValue(bytes + 1));
  EXPECT_EQ(0x12345678, number_.GetLong());
  unsigned char read[8] = {};
  EXPECT_EQ(1, number_.GetValue(read + 3, 4));
  EXPECT_EQ(0x78, read[3]);
  EXPECT_EQ(0x12, read[6]);
}

TEST_F(LongProperty, NullBufferIsAnInvalidArgument) {
  EXPECT_EQ(0, number_.GetValue(nullptr, 4));
  EXPECT_EQ(29u, TakeCode());
  EXPECT_EQ(0, number_.GetValue(nullptr, 3));
  EXPECT_EQ(47u, TakeCode());  // the size is looked at first
}

TEST_F(LongProperty, UnreadableIsRefusedBeforeTheBufferIsLookedAt) {
  CLongProperty hidden(L"Hidden", set_, 5, kPropertyWritable);
  EXPECT_EQ(0, hidden.GetValue(nullptr, 0));
  EXPECT_EQ(2u, TakeCode());
}

TEST_F(LongProperty, UnwritableKeepsItsValue) {
  CLongProperty fixed(L"Fixed", set_, 5, kPropertyReadable);
  const int32_t value = 6;
  EXPECT_EQ(0, fixed.SetValue(&value));
  EXPECT_EQ(3u, TakeCode());
  EXPECT_EQ(0, fixed.SetValueText(L"6"));
  EXPECT_EQ(3u, TakeCode());
  EXPECT_EQ(5, fixed.GetLong());
}

TEST_F(LongProperty, ReadsADecimalText) {
  const struct {
    const wchar_t* text;
    int32_t value;
  } cases[] = {{L"42", 42},
               {L" \t-17x", -17},
               {L"+3", 3},
               {L"", 0},
               {L"abc", 0},
               {nullptr, 0},
               {L"2147483647", kMax},
               {L"-2147483648", kMin},
               {L"99999999999999999999", kMax},
               {L"-99999999999999999999", kMin}};
  for (const auto& [text, value] : cases) {
    number_.SetLong(1234);
    EXPECT_EQ(1, number_.SetValueText(text));
    EXPECT_EQ(value, number_.GetLong());
  }
}

TEST_F(LongProperty, AssignAsksForNoRights) {
  CPropertySet other;
  CLongProperty fixed(L"Number", other, 9, 0);
  number_.Assign(fixed);
  EXPECT_EQ(9, number_.GetLong());
  number_.SetLong(10);
  fixed.Assign(number_);
  EXPECT_EQ(10, fixed.GetLong());
}

TEST_F(LongProperty, CloneHasNameAndValueInItsOwnSet) {
  CPropertySet other;
  const std::unique_ptr<CProperty> copy = number_.Clone(other);
  ASSERT_NE(nullptr, copy);
  EXPECT_EQ(copy.get(), other.Get(L"Number"));
  EXPECT_EQ(&number_, set_.Get(L"Number"));
  EXPECT_EQ(5, copy->GetLong());
  EXPECT_EQ(&other, copy->GetOwner());
}

TEST_F(LongProperty, CloneIsNullWhenMemoryIsExhausted) {
  CPropertySet other;
  {
    const FailingNew exhausted;
    EXPECT_EQ(nullptr, number_.Clone(other));
  }
  EXPECT_EQ(nullptr, other.First());
}

TEST_F(LongProperty, GivesItsNameAsText) { EXPECT_TRUE(number_.GetString() == L"Number"); }

TEST_F(LongProperty, TracesNameAndValue) {
  number_.SetLong(-5);
  number_.PrintValue();
  CLongProperty nameless;
  nameless.PrintValue();
  EXPECT_EQ((Lines{L"Property Number = -5", L"Property (null) = 0"}), thread_.Lines());
}

TEST_F(LongProperty, UnreadableIsNotTraced) {
  CLongProperty hidden(L"Hidden", set_, 5, kPropertyWritable);
  hidden.PrintValue();
  EXPECT_EQ((Lines{L"Protected Property = Kein Zugriff"}), thread_.Lines());
}

// --- String ------------------------------------------------------------------------------------------------------

class StringProperty : public Property {
 protected:
  // A buffer with marks behind what the property is told of.
  std::wstring Read(int32_t size, size_t real = 32) {
    std::wstring buffer(real, L'#');
    result_ = text_.GetValue(buffer.data(), size);
    return buffer;
  }

  CStringProperty text_{L"Text", set_};
  int result_ = -1;
};

TEST_F(StringProperty, NeedsTheLengthPlusTwo) {
  text_.SetString(L"0123456789");
  EXPECT_EQ(std::wstring(32, L'#'), Read(11));
  EXPECT_EQ(0, result_);
  EXPECT_EQ(47u, TakeCode());
  EXPECT_EQ(std::wstring(L"0123456789\0\0", 12) + std::wstring(20, L'#'), Read(12));
  EXPECT_EQ(1, result_);
}

TEST_F(StringProperty, EmptyTextNeedsTwo) {
  for (const int32_t size : {1, 0, -1, kMin}) {
    EXPECT_EQ(std::wstring(32, L'#'), Read(size));
    EXPECT_EQ(0, result_);
    EXPECT_EQ(47u, TakeCode());
  }
  EXPECT_EQ(std::wstring(1, L'\0') + std::wstring(31, L'#'), Read(2));  // the first position only
  EXPECT_EQ(1, result_);
  EXPECT_EQ(std::wstring(1, L'\0') + std::wstring(31, L'#'), Read(20));
}

TEST_F(StringProperty, TerminatesTheTextAndTheBuffer) {
  text_.SetString(L"abc");
  std::wstring expected(32, L'#');
  expected.replace(0, 4, std::wstring(L"abc\0", 4));
  expected[19] = 0;
  EXPECT_EQ(expected, Read(20));
}

TEST_F(StringProperty, SizeThatNoBufferHasWritesNothingBehindTheText) {
  text_.SetString(L"abc");
  for (const int32_t size : {kMax, kMax - 1, kUnboundedSize}) {
    EXPECT_EQ(std::wstring(L"abc\0", 4) + std::wstring(28, L'#'), Read(size));
    EXPECT_EQ(1, result_);
  }
}

TEST_F(StringProperty, NullBufferIsAnInvalidArgument) {
  EXPECT_EQ(0, text_.GetValue(nullptr, 10));
  EXPECT_EQ(29u, TakeCode());
  EXPECT_EQ(0, text_.GetValue(nullptr, 1));
  EXPECT_EQ(47u, TakeCode());  // the size is looked at first
}

TEST_F(StringProperty, UnreadableIsRefusedBeforeTheBufferIsLookedAt) {
  CStringProperty hidden(L"Hidden", set_, L"x", kPropertyWritable);
  EXPECT_EQ(0, hidden.GetValue(nullptr, 0));
  EXPECT_EQ(2u, TakeCode());
}

TEST_F(StringProperty, UnwritableKeepsItsText) {
  CStringProperty fixed(L"Fixed", set_, L"old", kPropertyReadable);
  EXPECT_EQ(0, fixed.SetValue(L"new"));
  EXPECT_EQ(3u, TakeCode());
  EXPECT_EQ(0, fixed.SetValueText(L"new"));
  EXPECT_EQ(3u, TakeCode());
  EXPECT_TRUE(fixed.GetString() == L"old");
}

TEST_F(StringProperty, NullStoresTheEmptyText) {
  text_.SetString(L"abc");
  EXPECT_EQ(1, text_.SetValue(nullptr));
  EXPECT_TRUE(text_.GetString().IsEmpty());
  text_.SetString(L"abc");
  EXPECT_EQ(1, text_.SetValueText(nullptr));
  EXPECT_TRUE(text_.GetString().IsEmpty());
}

TEST_F(StringProperty, KeepsLoneSurrogatesAndLongTexts) {
  std::wstring odd = {wchar_t{0xDC00}, L'a', wchar_t{0xD800}};
  EXPECT_EQ(1, text_.SetValue(odd.c_str()));
  EXPECT_TRUE(text_.GetString().View() == odd);
  const std::wstring million(1'000'000, L'x');
  EXPECT_EQ(1, text_.SetValue(million.c_str()));
  EXPECT_EQ(million, Read(1'000'002, 1'000'002).substr(0, million.size()));
  EXPECT_EQ(1, result_);
}

TEST_F(StringProperty, SetValueTextStoresTheText) {
  EXPECT_EQ(1, text_.SetValueText(L"12"));
  EXPECT_TRUE(text_.GetString() == L"12");
}

TEST_F(StringProperty, MayBeSetToItsOwnText) {
  for (const bool secret : {false, true}) {
    if (secret) text_.MarkSecret();
    text_.SetString(L"hello world");
    text_.SetString(text_.GetString());
    EXPECT_TRUE(text_.GetString() == L"hello world");
    text_.SetValue(text_.GetString().Text() + 6);
    EXPECT_TRUE(text_.GetString() == L"world");
    text_.Assign(text_);
    EXPECT_TRUE(text_.GetString() == L"world");
  }
}

TEST_F(StringProperty, AZeroInsideEndsTheText) {
  text_.SetString(std::wstring_view(L"ab\0cd", 5));
  EXPECT_TRUE(text_.GetString() == L"ab");
  EXPECT_EQ(2, text_.GetString().Length());
}

TEST_F(StringProperty, AssignAsksForNoRightsAndTakesNamesOfOtherKinds) {
  CPropertySet other;
  CStringProperty fixed(L"Text", other, L"fixed", 0);
  text_.Assign(fixed);
  EXPECT_TRUE(text_.GetString() == L"fixed");
  text_.SetString(L"new");
  fixed.Assign(text_);
  EXPECT_TRUE(fixed.GetString() == L"new");
  CLongProperty number(L"Number", other, 3);
  text_.Assign(number);  // a number gives its name as text
  EXPECT_TRUE(text_.GetString() == L"Number");
}

TEST_F(StringProperty, CloneHasNameValueAndSecrecy) {
  text_.SetString(L"abc");
  text_.MarkSecret();
  CPropertySet other;
  const std::unique_ptr<CProperty> copy = text_.Clone(other);
  ASSERT_NE(nullptr, copy);
  EXPECT_EQ(copy.get(), other.Get(L"Text"));
  EXPECT_TRUE(copy->GetString() == L"abc");
  EXPECT_TRUE(static_cast<CStringProperty&>(*copy).IsSecret());
}

TEST_F(StringProperty, CloneIsNullWhenMemoryIsExhausted) {
  CPropertySet other;
  {
    const FailingNew exhausted;
    EXPECT_EQ(nullptr, text_.Clone(other));
  }
  EXPECT_EQ(nullptr, other.First());
}

TEST_F(StringProperty, TracesShortTextsWholeAndLongOnesCut) {
  const std::wstring head = L"Property Text = ";
  for (const int length : {449, 450, 451, 5000}) {
    const std::wstring text(length, L'x');
    text_.SetString(text);
    text_.PrintValue();
    EXPECT_EQ((Lines{length < 450 ? head + text : head + text.substr(0, 450) + L"..."}), thread_.Lines()) << length;
  }
}

TEST_F(StringProperty, TracesWhatIsMissingAsNull) {
  CStringProperty nameless;
  nameless.PrintValue();
  text_.PrintValue();
  EXPECT_EQ((Lines{L"Property (null) = (null)", L"Property Text = (null)"}), thread_.Lines());
}

TEST_F(StringProperty, UnreadableIsNotTraced) {
  CStringProperty hidden(L"Hidden", set_, L"x", kPropertyWritable);
  hidden.PrintValue();
  EXPECT_EQ((Lines{L"Protected Property = Kein Zugriff"}), thread_.Lines());
}

TEST_F(StringProperty, ASecretIsNotTraced) {
  text_.MarkSecret();
  for (const std::wstring& value : {std::wstring(L"swordfish"), std::wstring(600, L'p'), std::wstring()}) {
    text_.SetString(value);
    text_.PrintValue();
    EXPECT_EQ((Lines{L"Property Text = ***"}), thread_.Lines());
  }
}

}  // namespace
