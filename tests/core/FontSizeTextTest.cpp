#include "pages/FontSizeText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FontSizeText, HasADecimalPointOrComma) {
  EXPECT_EQ(12.0, ParseFontSize(L"12"));
  EXPECT_EQ(10.5, ParseFontSize(L"10.5"));
  EXPECT_EQ(10.5, ParseFontSize(L"10,5"));
  EXPECT_EQ(8.0, ParseFontSize(L" 8pt"));
  EXPECT_EQ(0.0, ParseFontSize(L"x"));
  EXPECT_EQ(0.0, ParseFontSize(nullptr));
}

TEST(FontSizeText, ValidSizesAreHalvesFrom1To999) {
  for (const wchar_t* text : {L"1", L"1.0", L"999", L"999.0", L"12,5", L"10.5", L"10.50", L"10.", L"10,", L"10.5999",
                              L"10.0625", L"007", L"1.05", L"00000000000000000012"})
    EXPECT_TRUE(IsValidFontSize(text)) << testing::PrintToString(std::wstring(text));
}

TEST(FontSizeText, AnythingElseIsNot) {
  for (const wchar_t* text : {L"",       L"0",
                              L"0.5",    L".5",
                              L",",      L".",
                              L"0.95",   L"999.5",
                              L"1000",   L"10.25",
                              L"10.1",   L"10,9",
                              L"1.5.0",  L"1,5,0",
                              L"1.5,0",  L"1..5",
                              L"-5",     L"+5",
                              L" 5",     L"5 ",
                              L"12pt",   L"1e2",
                              L"0x10",   L"5\x0665",
                              L"\xFF15", L"99999999999999999999"})
    EXPECT_FALSE(IsValidFontSize(text)) << testing::PrintToString(std::wstring(text));
  EXPECT_FALSE(IsValidFontSize(nullptr));
}

}  // namespace
