#include <gtest/gtest.h>

#include "host/Text.h"

using namespace host;

namespace {

struct EscapeCase {
  std::wstring text, line;
};

const EscapeCase kEscapes[] = {
    {L"", L""},
    {L"C:\\new\\table", L"C:\\new\\table"},
    {L"\"a;b\" # = 'c'", L"\"a;b\" # = 'c'"},
    {L"first\r\nsecond\tthird", L"first^r^nsecond^tthird"},
    {L"2^10", L"2^^10"},
    {L" ", L"^s"},
    {L" two words ", L"^stwo words^s"},
    {L"   ", L"^s ^s"},
    {L"\x1\x1F\x7F", L"^u0001^u001F^u007F"},
    {L"\x0645\x0631\x062D\x0628\x0627 PDF \x200F", L"\x0645\x0631\x062D\x0628\x0627 PDF \x200F"},
    {L"\xD83D\xDE00", L"\xD83D\xDE00"},
    {L"a\xD83D", L"a^uD83D"},
    {L"\xDE00\xD83D", L"^uDE00^uD83D"},
    {L"\xFEFF", L"^uFEFF"},
};

TEST(HostText, EscapesWhatALineCannotHold) {
  for (const EscapeCase& row : kEscapes) EXPECT_EQ(EscapeText(row.text), row.line);
}

TEST(HostText, UnescapesToTheSameText) {
  for (const EscapeCase& row : kEscapes) EXPECT_EQ(UnescapeText(row.line), row.text);
}

TEST(HostText, EveryUnitAndPairRoundTripsThroughUtf8) {
  for (uint32_t unit = 1; unit <= 0xFFFF; ++unit) {
    const wchar_t character = static_cast<wchar_t>(unit);
    for (const std::wstring& text : {std::wstring{character}, std::wstring{L'a', character, L'b'},
                                     std::wstring{static_cast<wchar_t>(0xD83D), character}}) {
      const DecodedText decoded = DecodeText(" " + EncodeUtf8(EscapeText(text)) + "\t");
      ASSERT_TRUE(decoded.complete) << unit;
      ASSERT_EQ(UnescapeText(TrimBlanks(decoded.text)), text) << unit;
    }
  }
}

TEST(HostText, RefusesUnknownEscapes) {
  for (const wchar_t* line : {L"^", L"a^", L"^x", L"^N", L"^u", L"^u1", L"^u123", L"^u12G4", L"^u0000", L"^u-123"})
    EXPECT_FALSE(UnescapeText(line)) << EncodeUtf8(line);
}

TEST(HostText, TakesExactlyFourDigitsBehindU) { EXPECT_EQ(UnescapeText(L"^u00419^u00e4"), L"A9\x00E4"); }

TEST(HostText, ParsesNumbersOf32Bits) {
  const struct {
    const wchar_t* text;
    int32_t number;
  } rows[] = {
      {L"0", 0},
      {L"85", 85},
      {L"007", 7},
      {L"-1", -1},
      {L"2147483647", INT32_MAX},
      {L"-2147483648", INT32_MIN},
      {L"0x21F", 0x21F},
      {L"0Xff", 0xFF},
      {L"0xC0C0C0", 0xC0C0C0},
      {L"0xFFFFFFFF", -1},
      {L"0xFF000000", static_cast<int32_t>(0xFF000000)},
  };
  for (const auto& row : rows) EXPECT_EQ(ParseNumber(row.text), row.number) << EncodeUtf8(row.text);
}

TEST(HostText, RefusesWhatIsNo32BitNumber) {
  for (const wchar_t* text : {L"", L"-", L"+1", L"x", L"8 5", L"85%", L"1.5", L"0x", L"0xG", L"-0x1", L"2147483648",
                              L"-2147483649", L"0x100000000", L"99999999999999999999", L"\x0664"})
    EXPECT_FALSE(ParseNumber(text)) << EncodeUtf8(text);
}

TEST(HostText, FormatsNumbersAsTheyAreParsed) {
  for (int32_t number : {0, 7, -1, INT32_MAX, INT32_MIN}) EXPECT_EQ(ParseNumber(FormatNumber(number)), number);
}

TEST(HostText, DecodesUtf8WithAndWithoutMark) {
  for (std::string_view bytes : {"\xEF\xBB\xBFgr\xC3\xBC\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80",
                                 "gr\xC3\xBC\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80"}) {
    const DecodedText decoded = DecodeText(bytes);
    EXPECT_TRUE(decoded.complete);
    EXPECT_EQ(decoded.text, L"gr\x00FC\x00DF\x20AC\xD83D\xDE00");
  }
}

TEST(HostText, DecodesLittleEndianUtf16) {
  const DecodedText decoded = DecodeText(std::string_view("\xFF\xFE\xFC\x00\xAC\x20\x3D\xD8", 8));
  EXPECT_TRUE(decoded.complete);
  EXPECT_EQ(decoded.text, L"\x00FC\x20AC\xD83D");
}

TEST(HostText, StopsBeforeTheFirstBadByte) {
  const std::string_view bad[] = {
      "ab\x80",              // a following byte alone
      "ab\xC3",              // cut
      "ab\xC3(",             // no following byte
      "ab\xC0\xAF",          // overlong
      "ab\xE0\x80\xAF",      // overlong
      "ab\xED\xA0\x80",      // half of a surrogate pair
      "ab\xF4\x90\x80\x80",  // beyond Unicode
      "ab\xF8\x88\x80\x80\x80",
      "ab\xFF",
  };
  for (std::string_view bytes : bad) {
    const DecodedText decoded = DecodeText(bytes);
    EXPECT_FALSE(decoded.complete);
    EXPECT_EQ(decoded.text, L"ab");
  }
}

TEST(HostText, OddUtf16IsIncomplete) { EXPECT_FALSE(DecodeText(std::string_view("\xFF\xFE\x41\x00\x42", 5)).complete); }

TEST(HostText, EncodesHalfAPairAsReplacementCharacter) {
  EXPECT_EQ(EncodeUtf8(L"a\xD83D"), "a\xEF\xBF\xBD");
  EXPECT_EQ(EncodeUtf8(L"\xDE00z"), "\xEF\xBF\xBDz");
}

TEST(HostText, TrimsSpacesAndTabsOnly) {
  EXPECT_EQ(TrimBlanks(L" \t a b\t "), L"a b");
  EXPECT_EQ(TrimBlanks(L"\x00A0x\x00A0"), L"\x00A0x\x00A0");
  EXPECT_EQ(TrimBlanks(L" \t "), L"");
}

}  // namespace
