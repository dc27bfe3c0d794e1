#include "ui/CPropertySet.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

std::vector<const CProperty*> Walk(const CPropertySet& set) {
  std::vector<const CProperty*> found;
  for (auto position = set.First(); position;) found.push_back(set.Next(position));
  return found;
}

TEST(CPropertySet, FindsNamesExactly) {
  CPropertySet set;
  CLongProperty number(L"EmbedfilenamesConfirmed", set);
  EXPECT_TRUE(set.Contains(L"EmbedfilenamesConfirmed"));
  EXPECT_EQ(&number, set.Get(L"EmbedfilenamesConfirmed"));
  for (const wchar_t* name : {L"EmbedFilenamesConfirmed", L"EmbedfilenamesConfirme", L"EmbedfilenamesConfirmed ", L"",
                              static_cast<const wchar_t*>(nullptr)}) {
    EXPECT_FALSE(set.Contains(name));
    EXPECT_EQ(nullptr, set.Get(name));
  }
}

TEST(CPropertySet, TheSameNameReplaces) {
  CPropertySet set;
  CLongProperty first(L"Name", set, 1);
  CStringProperty second(L"Name", set, L"2");
  EXPECT_EQ(&second, set.Get(L"Name"));
  EXPECT_EQ(1u, Walk(set).size());
  set.Add(first);
  EXPECT_EQ(&first, set.Get(L"Name"));
}

TEST(CPropertySet, EmptySetHasNoFirst) {
  CPropertySet set;
  EXPECT_EQ(nullptr, set.First());
  EXPECT_EQ(nullptr, set.Get(L"Name"));
}

TEST(CPropertySet, WalksOverEachPropertyOnce) {
  CPropertySet set;
  std::vector<std::unique_ptr<CLongProperty>> properties;
  std::multiset<const CProperty*> expected;
  for (int i = 0; i < 100; ++i) {
    const std::string digits = std::to_string(i);
    const std::wstring name = L"Property" + std::wstring(digits.begin(), digits.end());
    properties.push_back(std::make_unique<CLongProperty>(name.c_str(), set, i));
    expected.insert(properties.back().get());
  }
  const auto found = Walk(set);
  EXPECT_EQ(expected, std::multiset<const CProperty*>(found.begin(), found.end()));
}

// With 29 buckets by h * 33 + character: one-letter names stand in the buckets of their codes.
TEST(CPropertySet, WalksInTheOrderOfItsTwentyNineBuckets) {
  CPropertySet set;
  CLongProperty z(L"z", set);  // 122 % 29 = 6
  CLongProperty a(L"a", set);  // 97 % 29 = 10
  CLongProperty W(L"W", set);  // 87 % 29 = 0
  CLongProperty t(L"t", set);  // 116 % 29 = 0, the newer one of its bucket
  EXPECT_EQ((std::vector<const CProperty*>{&t, &W, &z, &a}), Walk(set));
}

TEST(CPropertySet, AnotherTableSizeGivesAnotherOrder) {
  CPropertySet set(17);
  CLongProperty z(L"z", set);  // 122 % 17 = 3
  CLongProperty a(L"a", set);  // 97 % 17 = 12
  CLongProperty W(L"W", set);  // 87 % 17 = 2
  EXPECT_EQ((std::vector<const CProperty*>{&W, &z, &a}), Walk(set));
}

TEST(CPropertySet, DoesNotOwnItsProperties) {
  CLongProperty number;
  {
    CPropertySet set;
    number.Bind(L"Number", set);
  }
  number.SetLong(4);
  EXPECT_EQ(4, number.GetLong());
}

TEST(CPropertySet, CopiesWhatBothKnow) {
  CPropertySet source, target;
  CLongProperty sourceNumber(L"Number", source, 7), targetNumber(L"Number", target, 1);
  CStringProperty sourceText(L"Text", source, L"new"), targetText(L"Text", target, L"old");
  CLongProperty onlySource(L"OnlySource", source, 2), onlyTarget(L"OnlyTarget", target, 3);
  target.CopyFrom(source);
  EXPECT_EQ(7, targetNumber.GetLong());
  EXPECT_TRUE(targetText.GetString() == L"new");
  EXPECT_EQ(3, onlyTarget.GetLong());
  EXPECT_FALSE(target.Contains(L"OnlySource"));
  EXPECT_EQ(7, sourceNumber.GetLong());
}

TEST(CPropertySet, CopyAsksForNoRights) {
  CPropertySet source, target;
  CLongProperty from(L"Number", source, 7, 0), to(L"Number", target, 1, 0);
  target.CopyFrom(source);
  EXPECT_EQ(7, to.GetLong());
}

TEST(CPropertySet, EmptySetsTakePartInCopies) {
  CPropertySet empty, set;
  CLongProperty number(L"Number", set, 7);
  empty.CopyFrom(set);
  EXPECT_EQ(nullptr, empty.First());
  set.CopyFrom(empty);
  EXPECT_EQ(7, number.GetLong());
  set.CopyFrom(set);
  EXPECT_EQ(7, number.GetLong());
}

}  // namespace
