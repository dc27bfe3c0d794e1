#include "DriverLIB/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "DriverLIB/CUString.h"
#include "pages/CBookmarkFormat.h"
#include "support/DecimalSignScope.h"

namespace {

struct DecimalSample {
  const wchar_t* text;
  int32_t value;
};

const DecimalSample kDecimals[] = {
    {L"0", 0},
    {L"85", 85},
    {L" \t\r\n 12", 12},
    {L"12 34", 12},
    {L"12x", 12},
    {L"+5", 5},
    {L"-5", -5},
    {L"- 5", 0},
    {L"+-5", 0},
    {L"--5", 0},
    {L"", 0},
    {L"x1", 0},
    {L"-", 0},
    {L"010", 10},
    {L"0x10", 0},
    {L"1.9", 1},
    {L"2147483646", 2147483646},
    {L"2147483647", 2147483647},
    {L"2147483648", 2147483647},
    {L"99999999999999999999999999999", 2147483647},
    {L"-2147483647", -2147483647},
    {L"-2147483648", INT32_MIN},
    {L"-2147483649", INT32_MIN},
    {L"-99999999999999999999999999999", INT32_MIN},
    {L"\x0661\x0662", 12},  // Arabic-Indic digits
    {L"\x06F9", 9},
    {L"1\xFF15", 15},
    {L"\x065F", 0},
    {L"\x066A", 0},
    {L"/", 0},
    {L":", 0},
};

// A locale whose decimal sign is a comma. A host may have chosen that of its user for the run-time library that is ours
// too.
class CommaLocale {
 public:
  CommaLocale()
      : before_(std::setlocale(LC_NUMERIC, nullptr)),
        isThere_(std::setlocale(LC_NUMERIC, "German") || std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) {}
  ~CommaLocale() { std::setlocale(LC_NUMERIC, before_.c_str()); }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  // Not every system has one.
  bool IsThere() const { return isThere_; }

 private:
  const std::string before_;
  const bool isThere_;
};

TEST(ParseDouble, TakesThePointForTheDecimalSignUnderEveryLocale) {
  const CommaLocale locale;
  if (!locale.IsThere()) GTEST_SKIP() << "no locale with a decimal comma here";
  EXPECT_EQ(10.5, ParseDouble("10.5"));
  EXPECT_EQ(10.0, ParseDouble("10,5"));
  CBookmarkFormat format;
  format.fontSize = 10.5;
  EXPECT_STREQ(L"10.5", format.GetSizeText().Text());
}

TEST(FormatDouble, ChangesNothingButTheDecimalSign) {
  for (const double number : {-10.5, 1.5e20, -2.5e-7, HUGE_VAL}) {
    CUString raw;
    raw.Format(L"%g", number);
    EXPECT_STREQ(raw.Text(), FormatDouble(L"%g", number).Text());
  }
}

#ifdef _WIN32
TEST(FormatDouble, WritesAPointForEachDecimalSign) {
  const DecimalSignScope slash('/');
  CUString raw;
  raw.Format(L"%.1f", 10.5);
  ASSERT_STREQ(L"10/5", raw.Text()) << "the sign does not count here";
  EXPECT_STREQ(L"10.5", FormatDouble(L"%g", 10.5).Text());
  EXPECT_STREQ(L"-10.5", FormatDouble(L"%g", -10.5).Text());
  EXPECT_STREQ(L"10", FormatDouble(L"%.0f", 10).Text());
  EXPECT_EQ(10.5, ParseDouble("10.5"));
  CBookmarkFormat format;
  format.fontSize = 10.5;
  EXPECT_STREQ(L"10.5", format.GetSizeText().Text());
}
#endif

}  // namespace

TEST(ParseDecimal, ReadsAsTheRunTimeLibraryDoes) {
  for (const DecimalSample& sample : kDecimals) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(sample.text)));
    EXPECT_EQ(sample.value, ParseDecimal(sample.text));
#ifdef _WIN32
    EXPECT_EQ(sample.value, _wtol(sample.text));
#endif
  }
}

TEST(ParseDecimal, TakesNullStringsAndViews) {
  EXPECT_EQ(0, ParseDecimal(nullptr));
  EXPECT_EQ(17, ParseDecimal(CUString(L"17")));
  EXPECT_EQ(17, ParseDecimal(WideView(L"1789", 2)));
  EXPECT_EQ(17, ParseDecimal(WideView(L"17\0"
                                      L"89",
                                      5)));
}

TEST(ParseDouble, ReadsTheNumberAtTheStart) {
  struct {
    const char* text;
    double value;
  } const kCases[] = {{"", 0},
                      {"0", 0},
                      {"1.5", 1.5},
                      {"-1.5", -1.5},
                      {"+2.25", 2.25},
                      {" \t 3.5mm", 3.5},
                      {"1,5", 1},
                      {".5", 0.5},
                      {"5.", 5},
                      {".", 0},
                      {"-", 0},
                      {"-.5e1", -5},
                      {"1e2", 100},
                      {"1E-2", 0.01},
                      {"1e+", 1},
                      {"1e", 1},
                      {"1ex", 1},
                      {"e5", 0},
                      {"0x10", 0},
                      {"inf", 0},
                      {"nan", 0},
                      {"1..5", 1},
                      {"- 1", 0},
                      {"+-1", 0},
                      {"\xA0"
                       "1",
                       0},
                      {"0.1", 0.1},
                      {"123456789.125", 123456789.125}};
  for (const auto& sample : kCases) EXPECT_EQ(sample.value, ParseDouble(sample.text)) << sample.text;
  EXPECT_EQ(0, ParseDouble(nullptr));
  EXPECT_EQ(1.5, ParseDouble(NarrowView("1.59", 3)));
  EXPECT_EQ(std::numeric_limits<double>::infinity(), ParseDouble("1e999"));
}

TEST(RoundDecimal, RoundsHalfUpToWholeNumbers) {
  for (const int digits : {0, -1, -5}) {
    EXPECT_EQ(3, RoundDecimal(2.5, digits));
    EXPECT_EQ(2, RoundDecimal(2.49, digits));
    EXPECT_EQ(-2, RoundDecimal(-2.5, digits));
    EXPECT_EQ(-3, RoundDecimal(-2.51, digits));
    EXPECT_EQ(0, RoundDecimal(-0.5, digits));
    EXPECT_EQ(1, RoundDecimal(0.5, digits));
    EXPECT_EQ(1230, RoundDecimal(1230.4, digits));  // never to tens
  }
}

TEST(RoundDecimal, RoundsHalfUpToDecimalPlaces) {
  EXPECT_DOUBLE_EQ(2.3, RoundDecimal(2.25, 1));
  EXPECT_DOUBLE_EQ(-2.2, RoundDecimal(-2.25, 1));
  EXPECT_DOUBLE_EQ(2.2, RoundDecimal(2.2499, 1));
  EXPECT_DOUBLE_EQ(1.13, RoundDecimal(1.125, 2));
  EXPECT_DOUBLE_EQ(1.125, RoundDecimal(1.125, 3));
  EXPECT_DOUBLE_EQ(10, RoundDecimal(9.999, 2));
}

TEST(RoundDecimal, LeavesWhatIsTooLargeForDigits) {
  EXPECT_EQ(1e300, RoundDecimal(1e300, 20));
  EXPECT_EQ(1.5, RoundDecimal(1.5, 400));
  EXPECT_EQ(std::numeric_limits<double>::infinity(), RoundDecimal(std::numeric_limits<double>::infinity(), 2));
}
