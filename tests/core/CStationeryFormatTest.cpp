#include "pages/CStationeryFormat.h"

#include <gtest/gtest.h>

#include <string>

#include "DriverLIB/SecureWipe.h"
#include "support/FreedTextWatch.h"
#include "support/PrintText.h"

namespace {

// What is left of `text` when an entry was read from it; the text itself when there was none.
std::wstring Read(CStationeryFormat& format, const std::wstring& text, int expected) {
  CUString rest(text);
  EXPECT_EQ(expected, format.FromString(rest)) << testing::PrintToString(text);
  return std::wstring(rest.View());
}

void ExpectRefused(const std::wstring& text) {
  CStationeryFormat format;
  format.SetFile(L"former.pdf");
  format.SetPassword(L"p");
  format.SetType(2);
  EXPECT_TRUE(Read(format, text, 0) == text) << testing::PrintToString(text);
  EXPECT_EQ(format.GetFile(), L"former.pdf");
  EXPECT_EQ(format.GetName(), L"former");
  EXPECT_EQ(format.GetPassword(), L"p");
  EXPECT_EQ(format.GetType(), 2);
}

void ExpectFields(const CStationeryFormat& format, const wchar_t* name, const wchar_t* file, const wchar_t* password,
                  int type) {
  EXPECT_EQ(format.GetName(), name);
  EXPECT_EQ(format.GetFile(), file);
  EXPECT_EQ(format.GetPassword(), password);
  EXPECT_EQ(format.GetType(), type);
}

}  // namespace

TEST(StationeryFormat, BeginsEmpty) {
  const CStationeryFormat format;
  ExpectFields(format, L"", L"", L"", 0);
  EXPECT_EQ(format.ToString(), LR"({NAME:"";FILE:"";P:"";TYPE:"0"})");
}

TEST(StationeryFormat, SettersGiveOne) {
  CStationeryFormat format;
  EXPECT_EQ(1, format.SetName(L"n"));
  EXPECT_EQ(1, format.SetFile(L"f"));
  EXPECT_EQ(1, format.SetPassword(L"p"));
  EXPECT_EQ(1, format.SetType(-7));
  ExpectFields(format, L"n", L"f", L"p", -7);
}

TEST(StationeryFormat, IsNamedAfterItsFile) {
  const struct {
    const wchar_t *file, *name;
  } samples[] = {
      {LR"(C:\Paper\letter.pdf)", L"letter"},
      {LR"(C:\Paper\letter.v2.pdf)", L"letter.v2"},
      {L"letter", L"letter"},
      {LR"(C:\Paper\letter)", L"letter"},
      // The dot is looked for in the whole path, so one in a folder takes more than an extension.
      {LR"(C:\Paper.old\letter)", L"Paper"},
      {LR"(C:\Paper\.pdf)", L""},
      {L"C:/Paper/letter.pdf", L"C:/Paper/letter"},
      {L"", L""},
  };
  for (const auto& sample : samples) {
    CStationeryFormat format;
    format.SetFile(sample.file);
    ExpectFields(format, sample.name, sample.file, L"", 0);
  }
}

TEST(StationeryFormat, ANameStaysWhenTheFileChanges) {
  CStationeryFormat format;
  format.SetName(L"My paper");
  format.SetFile(L"letter.pdf");
  ExpectFields(format, L"My paper", L"letter.pdf", L"", 0);
}

TEST(StationeryFormat, ATextMayBeItsOwn) {
  CStationeryFormat format;
  format.SetFile(L"a.pdf");
  format.SetFile(format.GetFile().Text() + 1);
  EXPECT_EQ(format.GetFile(), L".pdf");
  format.SetName(format.GetName());
  EXPECT_EQ(format.GetName(), L"a");
  format.SetPassword(L"secret");
  format.SetPassword(format.GetPassword().Text() + 3);
  EXPECT_EQ(format.GetPassword(), L"ret");
}

TEST(StationeryFormat, WritesItsFieldsEscaped) {
  CStationeryFormat format;
  format.SetName(LR"(Re "2" \)");
  format.SetFile(LR"(C:\Pa"per)");  // no Windows path has a quotation mark, so it is not escaped
  format.SetPassword(LR"(\";})");
  format.SetType(3);
  EXPECT_EQ(format.ToString(), LR"({NAME:"Re \"2\" \\";FILE:"C:\\Pa"per";P:"\\\";}";TYPE:"3"})");
  format.SetType(-1);
  EXPECT_EQ(format.ToString(), LR"({NAME:"Re \"2\" \\";FILE:"C:\\Pa"per";P:"\\\";}";TYPE:"-1"})");
}

TEST(StationeryFormat, ReadsAnEntryAndLeavesWhatFollows) {
  CStationeryFormat format;
  const std::wstring entry = LR"({NAME:"Re \"2\"";FILE:"C:\\Paper\\b.pdf";P:"x";TYPE:"3"})";
  EXPECT_TRUE(Read(format, entry + L"}", 1) == L"}");
  ExpectFields(format, LR"(Re "2")", LR"(C:\Paper\b.pdf)", L"x", 3);
  EXPECT_TRUE(Read(format, entry + L"{NAME:", 1) == L"{NAME:");
}

TEST(StationeryFormat, AnEntryAloneIsRefused) {
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:"";TYPE:"0"})");
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:"";TYPE:"0")");
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:"";TYPE:"0)");
}

TEST(StationeryFormat, FieldsStandInAnyOrder) {
  CStationeryFormat format;
  EXPECT_TRUE(Read(format, LR"({P:"";TYPE:"1";FILE:"a.pdf";NAME:"n"}})", 1) == L"}");
  ExpectFields(format, L"n", L"a.pdf", L"", 1);
}

TEST(StationeryFormat, AnEmptyNameEndsEmpty) {
  CStationeryFormat format;
  Read(format, LR"({NAME:"";FILE:"C:\\a.pdf";P:"";TYPE:"0"}})", 1);
  ExpectFields(format, L"", LR"(C:\a.pdf)", L"", 0);
}

TEST(StationeryFormat, ASeparatorMayStandBeforeTheFirstFieldAndMustBetweenFields) {
  CStationeryFormat format;
  EXPECT_TRUE(Read(format, LR"({;NAME:"n";FILE:"f";P:"";TYPE:"0"}x)", 1) == L"x");
  ExpectRefused(LR"({;;NAME:"n";FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({NAME:"n"FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({NAME:"n";;FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({NAME:"n" ;FILE:"f";P:"";TYPE:"0"}x)");
}

TEST(StationeryFormat, AfterFourFieldsAnUnknownKeyEndsTheEntry) {
  CStationeryFormat format;
  EXPECT_TRUE(Read(format, LR"({NAME:"n";FILE:"f";P:"";TYPE:"0";NEW:"1"}})", 1) == LR"(NEW:"1"}})");
  ExpectFields(format, L"n", L"f", L"", 0);
  EXPECT_TRUE(Read(format, LR"({NAME:"n";FILE:"f";P:"";TYPE:"0";}})", 1) == L"}}");
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:"";NEW:"1";TYPE:"0"}})");
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:""}})");
  ExpectRefused(LR"({}})");
}

TEST(StationeryFormat, AKeyCountsOnlyWithACharacterBehindIt) {
  const std::wstring entry = LR"({NAME:"n";FILE:"f";P:"";TYPE:"0";)";
  CStationeryFormat format;
  EXPECT_TRUE(Read(format, entry + LR"(P:")", 1) == LR"(P:")");
  ExpectRefused(entry + LR"(P:"x)");
}

TEST(StationeryFormat, AFieldComesAgainOnlyBehindAnEmptyOne) {
  ExpectRefused(LR"({NAME:"n";NAME:"m";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({FILE:"n";FILE:"m";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({P:"n";P:"";NAME:"";TYPE:"0"}x)");
  ExpectRefused(LR"({TYPE:"0";TYPE:"0";P:"";NAME:""}x)");
  CStationeryFormat format;
  // It counts, so an entry of four fields lacks another one.
  Read(format, LR"({NAME:"";NAME:"m";P:"";P:"y"}x)", 1);
  ExpectFields(format, L"m", L"", L"y", -1);
  // With all four kinds there are five.
  ExpectRefused(LR"({NAME:"";NAME:"m";FILE:"f";P:"";TYPE:"0"}x)");
  Read(format, LR"({TYPE:"65535";TYPE:"2";P:"";FILE:"f"}x)", 1);
  EXPECT_EQ(format.GetType(), 2);
  ExpectRefused(LR"({NAME:"n";FILE:"f";P:"";TYPE:"65535";TYPE:"2"}x)");
}

TEST(StationeryFormat, OfATypeTheLowBitsCount) {
  const struct {
    const wchar_t* text;
    int type;
  } samples[] = {{L"3", 3},          {L"17", 17}, {L"-2", -2}, {L"65536", 0}, {L"65535", -1},
                 {L"32768", -32768}, {L"1x", 1},  {L"x", 0},   {L"", 0},      {L"99999999999", -1}};
  for (const auto& sample : samples) {
    CStationeryFormat format;
    Read(format, LR"({NAME:"n";FILE:"f";P:"";TYPE:")" + std::wstring(sample.text) + L"\"}x", 1);
    EXPECT_EQ(format.GetType(), sample.type) << testing::PrintToString(std::wstring(sample.text));
  }
}

TEST(StationeryFormat, AMarkBehindAnOddNumberOfBackslashesBelongsToTheValue) {
  const struct {
    const wchar_t *written, *name;
  } samples[] = {
      {LR"(a\"b)", LR"(a"b)"},   {LR"(a\\)", LR"(a\)"},  {LR"(\\\"b)", LR"(\"b)"}, {LR"(a\b)", LR"(a\b)"},
      {LR"(a\\\b)", LR"(a\\b)"}, {LR"(\"\")", LR"("")"}, {LR"(\\\\)", LR"(\\)"},   {LR"({;}\")", LR"({;}")"},
  };
  for (const auto& sample : samples) {
    CStationeryFormat format;
    EXPECT_TRUE(Read(format, LR"({NAME:")" + std::wstring(sample.written) + LR"(";FILE:"";P:"";TYPE:"0"}x)", 1) ==
                L"x");
    EXPECT_EQ(format.GetName(), sample.name);
  }
  ExpectRefused(LR"({NAME:"n";FILE:"f";TYPE:"0";P:"\"}x)");
}

TEST(StationeryFormat, AMarkInAFileBreaksTheEntry) {
  CStationeryFormat format;
  format.SetFile(LR"(a"b.pdf)");
  ExpectRefused(std::wstring(format.ToString().View()) + L"}");
}

TEST(StationeryFormat, KeysAreComparedExactly) {
  ExpectRefused(LR"({name:"n";FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"({NAME: "n";FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(LR"( {NAME:"n";FILE:"f";P:"";TYPE:"0"}x)");
  ExpectRefused(L"");
  ExpectRefused(L"{}");
  ExpectRefused(L"{{{");
  ExpectRefused(LR"({P:")");
}

TEST(StationeryFormat, LeavesNoPasswordBehind) {
  const FreedTextWatch watch(L"c0rrect-h0rse");
  {
    CStationeryFormat format;
    format.SetPassword(L"c0rrect-h0rse-b4ttery");
    CUString text = format.ToString();
    format.SetPassword(L"short");
    EXPECT_EQ(0, watch.Count());
    WipeText(text);  // is its taker's
  }
  EXPECT_EQ(0, watch.Count());
  {
    CUString text(LR"({NAME:"n";FILE:"f";P:"c0rrect-h0rse-b4ttery";TYPE:"0"}rest)");
    CStationeryFormat format;
    EXPECT_EQ(1, format.FromString(text));
    EXPECT_EQ(format.GetPassword(), L"c0rrect-h0rse-b4ttery");
    EXPECT_EQ(text, L"rest");
  }
  EXPECT_EQ(0, watch.Count());
  { const CUString text(L"c0rrect-h0rse"); }
  EXPECT_EQ(1, watch.Count());  // it does find what is left
}
