#include "pages/OutlineTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "support/CostGrowth.h"
#include "support/PrintText.h"
#include "support/RandomText.h"
#include "support/TestMessages.h"
#include "support/WideNumber.h"

namespace {

using Names = std::vector<std::wstring>;
using Levels = std::vector<int>;

class Outline : public testing::Test {
 protected:
  Outline() { SetModuleInstance(messages_.Module()); }
  ~Outline() override { SetModuleInstance(former_); }

  int Read(WideView formats, WideView styles = nullptr, bool wordMode = false) {
    OutlineStyles used;
    ReadOutlineStyles(styles, used);
    formats_.RemoveAll();
    ReadOutlineFormats(formats, used, wordMode, formats_);
    return formats_.Count();
  }
  const CBookmarkFormat& At(int index) const { return *formats_.GetAt(index); }

  void* const former_ = ModuleInstance();
  const TestMessages messages_{
      {MSG_WORD_STYLE_HEADING_1, kEnglish, L"\u00DCberschrift 1%0"},
      {MSG_WORD_STYLE_HEADING_2, kEnglish, L"\u00DCberschrift 2%0"},
  };
  CBookmarkFormatArray formats_;
};

std::pair<Names, Levels> Styles(WideView text) {
  OutlineStyles styles;
  styles.names.Add(L"former");
  styles.levels.Add(intptr_t{9});
  ReadOutlineStyles(text, styles);
  std::pair<Names, Levels> result;
  for (int i = 0; i < styles.names.Count(); ++i) result.first.emplace_back(styles.names[i].View());
  for (int i = 0; i < styles.levels.Count(); ++i) result.second.push_back(static_cast<int>(styles.levels.GetAt(i)));
  return result;
}

CBookmarkFormat Format(const wchar_t* style, int used = 1, int level = 1) {
  CBookmarkFormat format;
  format.styleName = format.displayName = style;
  format.fontName = L"Arial";
  format.used = used;
  format.level = level;
  format.colour = CBookmarkFormat::kNoColour;
  return format;
}

CUString Entry(const CBookmarkFormat& format) {
  COutlineWriter writer;
  writer.Add(format);
  return writer.Formats();
}

}  // namespace

TEST_F(Outline, StylesAreNamesAndLevelsInTurn) {
  EXPECT_EQ(Styles(L"a;1;b;2"), std::pair(Names({L"a", L"b"}), Levels({1, 2})));
  EXPECT_EQ(Styles(L" a ; 1 ;\tb b\t;2;"), std::pair(Names({L"a", L"b b"}), Levels({1, 2})));
  EXPECT_EQ(Styles(L"a"), std::pair(Names({L"a"}), Levels()));
  EXPECT_EQ(Styles(L""), std::pair(Names(), Levels()));
  EXPECT_EQ(Styles(L"a;x;b;99999999999;c;-3"), std::pair(Names({L"a", L"b", L"c"}), Levels({0, INT32_MAX, -3})));
}

TEST_F(Outline, AnEmptyPartAddsNothing) {
  EXPECT_EQ(Styles(L"a;;b;2"), std::pair(Names({L"a", L"b"}), Levels({2})));
  EXPECT_EQ(Styles(L";1;b;2"), std::pair(Names({L"b"}), Levels({1, 2})));
  EXPECT_EQ(Styles(L";;;"), std::pair(Names(), Levels()));
  EXPECT_EQ(Styles(L"a; ;b"), std::pair(Names({L"a", L"b"}), Levels()));
}

TEST_F(Outline, ReadsAnEntry) {
  ASSERT_EQ(1, Read(L"{STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;0.0.255}};"));
  EXPECT_EQ(At(0).styleName, L"heading 2");
  EXPECT_EQ(At(0).displayName, L"\u00DCberschrift 2");
  EXPECT_EQ(At(0).kind, kBookmarkStandard);
  EXPECT_EQ(At(0).level, 2);
  EXPECT_EQ(At(0).fontName, L"Arial");
  EXPECT_EQ(At(0).fontSize, 14.0);
  EXPECT_EQ(At(0).bold, 1);
  EXPECT_EQ(At(0).italic, 1);
  EXPECT_EQ(At(0).underline, 0);
  EXPECT_EQ(At(0).colour, 0xFF0000u);
  EXPECT_EQ(At(0).used, 0);
}

TEST_F(Outline, WhiteSpaceAroundPartsGoes) {
  ASSERT_EQ(1, Read(L" {STYLE : a b ; 3 ; {FONT : Times New Roman ; 8.5 ; Underline ; 1.2.3 } } ;"));
  EXPECT_EQ(At(0).styleName, L"a b");
  EXPECT_EQ(At(0).level, 3);
  EXPECT_EQ(At(0).fontName, L"Times New Roman");
  EXPECT_EQ(At(0).fontSize, 8.5);
  EXPECT_EQ(At(0).underline, 1);
  EXPECT_EQ(At(0).colour, 0x030201u);
}

TEST_F(Outline, AMalformedEntryIsLeftOutAndItsNeighboursAreRead) {
  const std::wstring good = L"{STYLE:a;1;{FONT:Arial;10}};";
  for (const wchar_t* bad :
       {L"{style:b;1;{FONT:Arial;10}};", L"STYLE:b;1;{FONT:Arial;10}};", L"{STYLE;b;1;{FONT:Arial;10}};",
        L"{STYLE: ;1;{FONT:Arial;10}};", L"{STYLE:b; ;{FONT:Arial;10}};", L"{STYLE:b;1;{Font:Arial;10}};",
        L"{STYLE:b;1;{FONT: ;10}};", L"{STYLE:b;1;{FONT:Arial; }};", L"{STYLE:b;1;{FONT:Arial}};",
        L"{STYLE:b;{FONT:Arial;10}};", L"{STYLE:b;1;FONT:Arial;10}};", L"{STYLE:b}1;{FONT:Arial;10};",
        L"{STYLE:b;1;{FONT:Arial;;Bold}};", L"}};", L"x}y};"}) {
    ASSERT_EQ(2, Read(good + bad + good)) << testing::PrintToString(CUString(bad));
    EXPECT_EQ(At(1).styleName, L"a");
  }
}

TEST_F(Outline, EntriesEndAtTheSecondBraceAndOneCharacterBehindItIsSkipped) {
  EXPECT_EQ(2, Read(L"{STYLE:a;1;{FONT:Arial;10}}|{STYLE:b;1;{FONT:Arial;10}}"));
  EXPECT_EQ(0, Read(L"{STYLE:a;1;{FONT:Arial;10}"));
  EXPECT_EQ(1, Read(L"{STYLE:a;1;{FONT:Arial;10}};{STYLE:b;1;{FONT:Arial;10}"));
  EXPECT_EQ(0, Read(L""));
}

TEST_F(Outline, SizesMayHaveADecimalComma) {
  const struct {
    const wchar_t* text;
    double size;
  } samples[] = {{L"10,5", 10.5}, {L"10.5", 10.5}, {L"12", 12}, {L"x", 0}, {L"-3", -3}, {L"7pt", 7}, {L"1\u00E4", 1}};
  for (const auto& sample : samples) {
    ASSERT_EQ(1, Read(L"{STYLE:a;1;{FONT:Arial;" + std::wstring(sample.text) + L"}};"));
    EXPECT_EQ(At(0).fontSize, sample.size) << testing::PrintToString(CUString(sample.text));
  }
}

TEST_F(Outline, ColoursNeedAPointBehindTheirFirstCharacter) {
  constexpr uint32_t kNone = CBookmarkFormat::kNoColour;
  const struct {
    const wchar_t* text;
    uint32_t colour;
  } samples[] = {{L";1.2.3", 0x030201},
                 {L";256.257.-1", 0xFF0100},
                 {L";12.34", 0x220C},
                 {L";1.2.3.4", 0x030201},
                 {L";.1.2.3", kNone},
                 {L";255", kNone},
                 {L"", kNone},
                 {L";", kNone},
                 {L";a.b.c", 0},
                 {L";1.", 1},
                 {L";1..3", 0x030001},
                 {L";bold;1.2.3", kNone},
                 {L";1.2.3;Bold", 0x030201},
                 {L";;1.2.3", kNone}};
  for (const auto& sample : samples) {
    ASSERT_EQ(1, Read(L"{STYLE:a;1;{FONT:Arial;10" + std::wstring(sample.text) + L"}};"));
    EXPECT_EQ(At(0).colour, sample.colour) << testing::PrintToString(CUString(sample.text));
    EXPECT_EQ(At(0).bold, 0);
  }
}

TEST_F(Outline, WordsOfTheLookComeInAnyOrderAndNumber) {
  ASSERT_EQ(1, Read(L"{STYLE:a;1;{FONT:Arial;10;Underline;Bold;Bold}};"));
  EXPECT_EQ(At(0).underline, 1);
  EXPECT_EQ(At(0).bold, 1);
  EXPECT_EQ(At(0).italic, 0);
  EXPECT_EQ(At(0).colour, CBookmarkFormat::kNoColour);
}

TEST_F(Outline, AFormatThatStandsInTheStylesIsUsedAndHasItsLevel) {
  const wchar_t formats[] = L"{STYLE:a;2;{FONT:Arial;10}};{STYLE:b;3;{FONT:Arial;10}};{STYLE:A;4;{FONT:Arial;10}};";
  ASSERT_EQ(3, Read(formats, L"a;5"));
  EXPECT_EQ(At(0).used, 1);
  EXPECT_EQ(At(0).level, 5);
  EXPECT_EQ(At(1).used, 0);
  EXPECT_EQ(At(1).level, 3);
  EXPECT_EQ(At(2).used, 0);
  ASSERT_EQ(3, Read(formats, L"a;5;b;6;a;7"));  // the first of equal ones
  EXPECT_EQ(At(0).level, 5);
  EXPECT_EQ(At(1).level, 6);
  ASSERT_EQ(3, Read(formats, L"a;;b;6"));  // lists out of step
  EXPECT_EQ(At(0).level, 6);
  EXPECT_EQ(At(1).used, 1);
  EXPECT_EQ(At(1).level, 0);
}

TEST_F(Outline, AHeadingWithANameKeepsItsStyle) {
  ASSERT_EQ(1, Read(L"{STYLE:heading 1,My name;1;{FONT:Arial;10}};", L"heading 1,My name;4"));
  EXPECT_EQ(At(0).styleName, L"heading 1");
  EXPECT_EQ(At(0).displayName, L"My name");
  EXPECT_EQ(At(0).kind, kBookmarkStandard);
  EXPECT_EQ(At(0).used, 1);
  EXPECT_EQ(At(0).level, 4);
  COutlineWriter writer;
  writer.Add(At(0));
  EXPECT_EQ(writer.Styles(), L"heading 1,My name;4");
  EXPECT_EQ(writer.Formats(), L"{STYLE:heading 1,My name;4;{FONT:Arial;10}};");
  // The style is looked for with its name.
  ASSERT_EQ(1, Read(L"{STYLE:heading 1,My name;1;{FONT:Arial;10}};", L"heading 1;4"));
  EXPECT_EQ(At(0).used, 0);
}

TEST_F(Outline, AnotherStyleWithANameComesBackAsItWas) {
  const wchar_t text[] = L"{STYLE:any,name;3;{FONT:Arial;10}};";
  ASSERT_EQ(1, Read(text, L"any,name;3"));
  EXPECT_EQ(At(0).kind, kBookmarkStandard);
  EXPECT_EQ(At(0).styleName, L"any");
  EXPECT_EQ(At(0).displayName, L"name");
  COutlineWriter writer;
  writer.Add(At(0));
  EXPECT_EQ(writer.Styles(), L"any,name;3");
  EXPECT_EQ(writer.Formats(), text);
}

TEST_F(Outline, AHeadingUnderItsOwnNameIsWrittenWithoutIt) {
  CBookmarkFormat format = Format(L"heading 1");
  format.kind = kBookmarkStandard;
  format.displayName = L"\u00DCberschrift 1";
  EXPECT_EQ(Entry(format), L"{STYLE:heading 1;1;{FONT:Arial;10}};");
}

TEST_F(Outline, InWordModeTheWholeTextIsTheStyle) {
  ASSERT_EQ(2, Read(L"{STYLE:heading 1,alias;1;{FONT:Arial;10}};{STYLE:mine;1;{FONT:Arial;10}};", nullptr, true));
  EXPECT_EQ(At(0).styleName, L"heading 1,alias");
  EXPECT_EQ(At(0).displayName, L"\u00DCberschrift 1,alias");
  EXPECT_EQ(At(0).kind, kBookmarkWordStandard);
  EXPECT_EQ(At(1).kind, kBookmarkWordUserDefined);
  EXPECT_EQ(Entry(At(0)), L"{STYLE:heading 1,alias;1;{FONT:Arial;10}};");
}

TEST_F(Outline, WritesAnEntry) {
  CBookmarkFormat format = Format(L"s", 1, 2);
  EXPECT_EQ(Entry(format), L"{STYLE:s;2;{FONT:Arial;10}};");
  format.bold = format.italic = format.underline = 1;
  format.fontSize = 10.5;
  EXPECT_EQ(Entry(format), L"{STYLE:s;2;{FONT:Arial;10.5;Bold;Italic;Underline}};");
  format.bold = format.underline = 0;
  format.colour = 0;
  EXPECT_EQ(Entry(format), L"{STYLE:s;2;{FONT:Arial;10.5;Italic;0.0.0}};");
}

TEST_F(Outline, OnlyFormatsInUseStandInTheStyles) {
  COutlineWriter writer;
  EXPECT_EQ(writer.Styles(), L"");
  EXPECT_EQ(writer.Formats(), L"");
  writer.Add(Format(L"a", 0, 1));
  writer.Add(Format(L"b", 1, 2));
  writer.Add(Format(L"c", 1, 3));
  EXPECT_EQ(writer.Styles(), L"b;2;c;3");
  EXPECT_EQ(writer.Formats(), L"{STYLE:a;1;{FONT:Arial;10}};{STYLE:b;2;{FONT:Arial;10}};{STYLE:c;3;{FONT:Arial;10}};");
  EXPECT_TRUE(writer.AllStylesFit());
}

TEST_F(Outline, APairThatIsTooLongIsLeftOutOfTheStylesAlone) {
  const auto fits = [](size_t length) {
    COutlineWriter writer;
    writer.Add(Format(std::wstring(length, L'x').c_str()));
    EXPECT_EQ(!writer.AllStylesFit(), writer.Styles().IsEmpty());
    EXPECT_FALSE(writer.Formats().IsEmpty());
    return writer.AllStylesFit();
  };
  EXPECT_TRUE(fits(247));
  EXPECT_FALSE(fits(248));
  // Behind a first pair of 100 and ";1", the separator counts as well: 102 + 1 + 144 + 3 is 250.
  for (const size_t length : {144u, 145u}) {
    COutlineWriter writer;
    writer.Add(Format(std::wstring(100, L'x').c_str()));
    writer.Add(Format(std::wstring(length, L'y').c_str()));
    EXPECT_EQ(writer.AllStylesFit(), length == 144);
    writer.Add(Format(L"z", 0));  // a format that is not in use says nothing
    EXPECT_EQ(writer.AllStylesFit(), length == 144);
  }
  // A later, shorter one may still fit.
  COutlineWriter writer;
  writer.Add(Format(std::wstring(248, L'x').c_str()));
  writer.Add(Format(L"short", 1, 3));
  EXPECT_EQ(writer.Styles(), L"short;3");
  EXPECT_FALSE(writer.AllStylesFit());
}

TEST_F(Outline, AnyValidFormatComesBack) {
  RandomText random(L"'\\/-_ <>|?*[]~#aB1");
  const auto name = [&] {
    CUString text(random.Next(10));
    text.TrimBoth();
    return text.IsEmpty() ? CUString(L"x") : text;
  };
  for (int round = 0; round < 400; ++round) {
    const bool wordMode = round % 2;
    COutlineWriter writer;
    std::vector<CBookmarkFormat> written;
    for (int count = random.Number(1, 6); count > 0; --count) {
      CBookmarkFormat format;
      // Different styles, so that each is found by its own name.
      format.styleName = name() + WideNumber(count);
      format.displayName = GetStyleDisplayName(format.styleName, wordMode, format.kind);
      ASSERT_TRUE(IsValidBookmarkName(format.styleName));
      if (!wordMode && random.Number(0, 3) == 0) {
        format.styleName = L"heading " + WideNumber(count);
        format.kind = kBookmarkStandard;
        format.displayName = name();
      }
      format.used = random.Number(0, 1);
      format.level = random.Number(1, 9);
      format.fontName = name();
      format.fontSize = random.Number(2, 1998) / 2.0;
      format.bold = random.Number(0, 1);
      format.italic = random.Number(0, 1);
      format.underline = random.Number(0, 1);
      format.colour = random.Number(0, 2) ? static_cast<uint32_t>(random.Number(0, 0xFFFFFF)) : format.kNoColour;
      writer.Add(format);
      written.push_back(format);
    }
    SCOPED_TRACE(testing::PrintToString(writer.Formats()));
    if (!writer.AllStylesFit()) continue;
    ASSERT_EQ(static_cast<int>(written.size()), Read(writer.Formats(), writer.Styles(), wordMode));
    COutlineWriter again;
    for (int i = 0; i < formats_.Count(); ++i) {
      const CBookmarkFormat& expected = written[static_cast<size_t>(i)];
      EXPECT_EQ(At(i).styleName, expected.styleName);
      EXPECT_EQ(At(i).displayName, expected.displayName);
      EXPECT_EQ(At(i).used, expected.used);
      EXPECT_EQ(At(i).level, expected.level);
      EXPECT_EQ(At(i).kind, expected.kind);
      EXPECT_TRUE(SameProperties(At(i), expected));
      again.Add(At(i));
    }
    EXPECT_EQ(again.Styles(), writer.Styles());
    EXPECT_EQ(again.Formats(), writer.Formats());
  }
}

TEST_F(Outline, NEntriesCostN) {
  EXPECT_TRUE(GrowsWithItsEntries([](int entries) {
    std::wstring styles, formats;
    for (int i = 0; i < entries; ++i) {
      styles += L"Style " + WideNumber(i) + L";2;";
      formats += L"{STYLE:Style " + WideNumber(i) + L";1;{FONT:Arial;10.5;Bold;Italic;1.2.3}};";
    }
    return TimeOf([&] {
      OutlineStyles used;
      CBookmarkFormatArray read;
      ReadOutlineStyles(styles, used);
      ReadOutlineFormats(formats, used, false, read);
      ASSERT_EQ(entries, read.Count());
      EXPECT_EQ(2, read.GetAt(entries - 1)->level);
      COutlineWriter writer;
      for (int i = 0; i < entries; ++i) writer.Add(*read.GetAt(i));
    });
  }));
}
