#include "pages/CStatisticsPage.h"

#include <gtest/gtest.h>

#include <map>

#include "support/LinkAddress.h"
#include "support/PageUnderTest.h"
#include "support/RegistryValue.h"

namespace {

constexpr int kPage = kStatisticsPage;

const std::wstring kProduct = kProductKey;

// The counters of one part of the product key.
struct Counters {
  explicit Counters(const std::wstring& key) : key_(key) {}

  void Set(const wchar_t* value, const wchar_t* text) {
    values_.try_emplace(value, HKEY_CURRENT_USER, key_.c_str(), value).first->second.Set(text);
  }

 private:
  const std::wstring key_;
  std::map<std::wstring, RegistryValue> values_;
};

struct CounterCase {
  const wchar_t* value;
  int total, month;
};

constexpr CounterCase kCounters[] = {
    {L"GeneratedDocumentCount", 1484, 1507},      {L"GeneratedZugferdCount", 1487, 1508},
    {L"GeneratedEpdfCount", 1490, 1509},          {L"GeneratedStationeryCount", 1493, 1510},
    {L"GeneratedPasswordOwnerCount", 1496, 1511},
};

class StatisticsPage : public testing::Test {
 protected:
  ~StatisticsPage() override {
    for (const wchar_t* part : {L"\\TotalData", L"\\MonthlyData"})
      RegDeleteKeyW(HKEY_CURRENT_USER, (kProduct + part).c_str());  // while it holds nothing
  }

  std::wstring Text(int id) { return test.Control(id).Text(); }

  Counters total{kProduct + L"\\TotalData"}, month{kProduct + L"\\MonthlyData"};
  PageUnderTest test{kPage};
};

}  // namespace

// Their last digits stand one above the other.
TEST_F(StatisticsPage, NumbersReadFromLeftToRightInAMirroredPageToo) {
  const LanguageScope arabic(0x0401);
  ASSERT_TRUE(test.Open());
  EXPECT_TRUE(CWnd(test.Page().Handle()).IsMirrored());
  for (const CounterCase& row : kCounters)
    for (const int id : {row.total, row.month}) {
      EXPECT_TRUE(test.Control(id).ReadsLeftToRight()) << id;
      EXPECT_EQ(SS_RIGHT, GetWindowLongW(test.Control(id).Window(), GWL_STYLE) & SS_TYPEMASK) << id;
    }
}

TEST_F(StatisticsPage, WithoutCountersAllNumbersAreZero) {
  ASSERT_TRUE(test.Open());
  for (const CounterCase& row : kCounters) {
    EXPECT_EQ(L"0", Text(row.total));
    EXPECT_EQ(L"0", Text(row.month));
  }
}

TEST_F(StatisticsPage, EachCounterHasItsPlace) {
  int number = 100;
  for (const CounterCase& row : kCounters) {
    total.Set(row.value, std::to_wstring(++number).c_str());
    month.Set(row.value, std::to_wstring(++number).c_str());
  }
  ASSERT_TRUE(test.Open());
  number = 100;
  for (const CounterCase& row : kCounters) {
    EXPECT_EQ(std::to_wstring(++number), Text(row.total));
    EXPECT_EQ(std::to_wstring(++number), Text(row.month));
  }
}

TEST_F(StatisticsPage, CountersHave16BitsAndNoSign) {
  const std::pair<const wchar_t*, const wchar_t*> numbers[] = {
      {L"32768", L"32768"}, {L"65535", L"65535"}, {L"65536", L"0"}, {L"65543", L"7"}, {L"-1", L"65535"}, {L"x", L"0"}};
  for (const auto& [stored, shown] : numbers) {
    total.Set(L"GeneratedDocumentCount", stored);
    PageUnderTest fresh(kPage);
    ASSERT_TRUE(fresh.Open());
    EXPECT_EQ(shown, fresh.Control(1484).Text()) << testing::PrintToString(stored);
  }
}

TEST_F(StatisticsPage, CountersOfOtherKeysAreNotShown) {
  const std::wstring totals = kProduct + L"\\TotalData";
  Counters product(kProduct), year(kProduct + L"\\YearlyData");
  RegistryValue machine(HKEY_LOCAL_MACHINE, totals.c_str(), L"GeneratedDocumentCount");
  product.Set(L"GeneratedDocumentCount", L"11");
  year.Set(L"GeneratedDocumentCount", L"12");
  machine.Set(L"13");
  EXPECT_TRUE(test.Open());
  EXPECT_EQ(L"0", Text(1484));
  EXPECT_EQ(L"0", Text(1507));
  RegDeleteKeyW(HKEY_CURRENT_USER, (kProduct + L"\\YearlyData").c_str());
  RegDeleteKeyW(HKEY_LOCAL_MACHINE, totals.c_str());
}

// Whenever the page is shown or left.
TEST_F(StatisticsPage, NumbersAreReadAfresh) {
  total.Set(L"GeneratedDocumentCount", L"1");
  ASSERT_TRUE(test.Open());
  total.Set(L"GeneratedDocumentCount", L"2");
  EXPECT_EQ(L"1", Text(1484));
  EXPECT_TRUE(test.Page().OnSetActive());  // the first showing
  EXPECT_EQ(L"1", Text(1484));
  EXPECT_TRUE(test.Page().OnSetActive());
  EXPECT_EQ(L"2", Text(1484));
  total.Set(L"GeneratedDocumentCount", L"3");
  EXPECT_TRUE(test.Page().OnKillActive());
  EXPECT_EQ(L"3", Text(1484));
}

TEST_F(StatisticsPage, WritesNothing) {
  ASSERT_TRUE(test.Open());
  const auto before = test.AllValues();
  ASSERT_TRUE(test.Save());
  EXPECT_EQ(PageUnderTest::Values{}, test.ChangesSince(before));
  HKEY key = nullptr;
  EXPECT_EQ(ERROR_FILE_NOT_FOUND,
            RegOpenKeyExW(HKEY_CURRENT_USER, (kProduct + L"\\TotalData").c_str(), 0, KEY_READ, &key));
}

TEST_F(StatisticsPage, HidesWhatHasNoUse) {
  ASSERT_TRUE(test.Open());
  for (const int id : {1500, 1501, 1506, 1512, 1513, 1514, 1515, 1516, 1453}) {
    EXPECT_TRUE(test.Control(id).Exists()) << id;
    EXPECT_FALSE(test.Control(id).IsVisible()) << id;
  }
  for (const CounterCase& row : kCounters) EXPECT_TRUE(test.Control(row.month).IsVisible()) << row.month;
}

TEST_F(StatisticsPage, LinksLeadToTheMakersSite) {
  ASSERT_TRUE(test.Open());
  EXPECT_EQ(L"https://www.nem-software.example/nem-zentoX", LinkAddress(test.Control(1486)));
  EXPECT_EQ(L"https://www.nem-software.example/nem-binderY", LinkAddress(test.Control(1489)));
  EXPECT_EQ(L"https://www.nem-software.example/briefpapier", LinkAddress(test.Control(1520)));
}

TEST_F(StatisticsPage, DoesNotStartWithoutASheet) {
  const PageParent parent;
  const auto alone = MakeCataloguePage(nullptr, kPage, 0);
  EXPECT_FALSE(alone->Create(parent.Window()));
}

TEST_F(StatisticsPage, HasItsNumberAsHelpId) {
  ASSERT_TRUE(test.Open());
  EXPECT_EQ(347u, GetWindowContextHelpId(test.Page().Handle()));
}
