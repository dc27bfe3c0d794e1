#include "pages/CBookmarkFormat.h"

#include <gtest/gtest.h>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "pages/CBookmarkFormatArray.h"
#include "support/PrintText.h"
#include "support/TestMessages.h"

namespace {

class BookmarkFormat : public testing::Test {
 protected:
  BookmarkFormat() { SetModuleInstance(messages_.Module()); }
  ~BookmarkFormat() override { SetModuleInstance(former_); }

  void* const former_ = ModuleInstance();
  const TestMessages messages_{
      {MSG_WORD_STYLE_HEADING_1, kEnglish, L"Titre 1%0"},    {MSG_WORD_STYLE_HEADING_2, kEnglish, L"Titre 2%0"},
      {MSG_WORD_STYLE_HEADING_3, kEnglish, L"Titre 3%0"},    {MSG_WORD_STYLE_HEADING_4, kEnglish, L"Titre 4%0"},
      {MSG_WORD_STYLE_MACRO, kEnglish, L"Texte de macro%0"}, {MSG_BOOKMARK_BOLD, kEnglish, L"Gras%0"},
      {MSG_BOOKMARK_ITALIC, kEnglish, L"Italique%0"},        {MSG_BOOKMARK_UNDERLINED, kEnglish, L"Soulign\u00E9%0"},
      {MSG_BOOKMARK_KIND_STANDARD, kEnglish, L"k1%0"},       {MSG_BOOKMARK_KIND_USER_DEFINED, kEnglish, L"k2%0"},
      {MSG_BOOKMARK_KIND_WORD_STANDARD, kEnglish, L"k3%0"},  {MSG_BOOKMARK_KIND_WORD_USER_DEFINED, kEnglish, L"k4%0"},
  };
};

struct NameSample {
  const wchar_t *styleText, *displayName;
  int kind;
};

void ExpectNames(std::initializer_list<NameSample> samples, bool wordMode) {
  for (const NameSample& sample : samples) {
    int32_t kind = 0;
    EXPECT_EQ(GetStyleDisplayName(sample.styleText, wordMode, kind), sample.displayName);
    EXPECT_EQ(kind, sample.kind) << testing::PrintToString(CUString(sample.styleText));
  }
}

}  // namespace

TEST_F(BookmarkFormat, BeginsAsTheUsersOwn) {
  const CBookmarkFormat format;
  EXPECT_EQ(1, format.used);
  EXPECT_TRUE(format.styleName.IsEmpty());
  EXPECT_TRUE(format.displayName.IsEmpty());
  EXPECT_EQ(1, format.level);
  EXPECT_TRUE(format.fontName.IsEmpty());
  EXPECT_EQ(10.0, format.fontSize);
  EXPECT_EQ(0, format.bold);
  EXPECT_EQ(0, format.italic);
  EXPECT_EQ(0, format.underline);
  EXPECT_EQ(0u, format.colour);
  EXPECT_EQ(kBookmarkUserDefined, format.kind);
}

TEST_F(BookmarkFormat, ACopyIsTheUsersOwnAndUsed) {
  CBookmarkFormat format;
  format.used = 0;
  format.kind = kBookmarkStandard;
  format.styleName = L"heading 1";
  format.displayName = L"name";
  format.level = 7;
  format.fontName = L"Arial";
  format.fontSize = 12.5;
  format.bold = format.italic = format.underline = 1;
  format.colour = 0x123456;
  const CBookmarkFormat copy = format.UserCopy();
  EXPECT_EQ(1, copy.used);
  EXPECT_EQ(kBookmarkUserDefined, copy.kind);
  EXPECT_EQ(copy.styleName, L"heading 1");
  EXPECT_EQ(copy.displayName, L"name");
  EXPECT_EQ(7, copy.level);
  EXPECT_TRUE(SameProperties(format, copy));
  EXPECT_EQ(0, format.used);
}

TEST_F(BookmarkFormat, SamePropertiesCompareTheLookAlone) {
  const CBookmarkFormat format;
  const auto same = [&](auto change) {
    CBookmarkFormat other;
    change(other);
    return SameProperties(format, other);
  };
  EXPECT_TRUE(same([](CBookmarkFormat& other) { other.level = 2; }));
  EXPECT_TRUE(same([](CBookmarkFormat& other) { other.styleName = other.displayName = L"x"; }));
  EXPECT_TRUE(same([](CBookmarkFormat& other) { other.kind = kBookmarkStandard; }));
  EXPECT_TRUE(same([](CBookmarkFormat& other) { other.used = 0; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.fontName = L"x"; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.fontSize = 10.5; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.bold = 1; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.italic = 1; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.underline = 1; }));
  EXPECT_FALSE(same([](CBookmarkFormat& other) { other.colour = 1; }));
  CBookmarkFormat upper, lower;
  upper.fontName = L"ARIAL";
  lower.fontName = L"arial";
  EXPECT_FALSE(SameProperties(upper, lower));
}

TEST_F(BookmarkFormat, SizesHaveADecimalOnlyWithAFraction) {
  const struct {
    double size;
    const wchar_t* text;
  } samples[] = {{10, L"10"}, {10.5, L"10.5"}, {0.5, L"0.5"}, {999, L"999"}, {10.26, L"10.3"}, {0, L"0"}};
  for (const auto& sample : samples) {
    CBookmarkFormat format;
    format.fontSize = sample.size;
    EXPECT_EQ(format.GetSizeText(), sample.text);
  }
}

TEST_F(BookmarkFormat, ColoursAreRedGreenBlue) {
  CBookmarkFormat format;
  EXPECT_EQ(format.GetColourText(), L"0.0.0");
  format.colour = 0x00FF0201;
  EXPECT_EQ(format.GetColourText(), L"1.2.255");
  format.colour = CBookmarkFormat::kNoColour;
  EXPECT_EQ(format.GetColourText(), L"");
}

TEST_F(BookmarkFormat, TheFormatColumnNamesTheLook) {
  CBookmarkFormat format;
  format.fontName = L"Arial";
  EXPECT_EQ(format.GetFormatText(L"Noir"), L"Arial, 10, Noir");
  format.fontSize = 10.5;
  format.bold = format.italic = format.underline = 1;
  EXPECT_EQ(format.GetFormatText(L"Noir"), L"Arial, 10.5, Gras, Italique, Soulign\u00E9, Noir");
  format.bold = format.underline = 0;
  EXPECT_EQ(format.GetFormatText(L"Noir"), L"Arial, 10.5, Italique, Noir");
}

TEST_F(BookmarkFormat, TheDialogNamesTheUnitOfTheSizeToo) {
  CBookmarkFormat format;
  format.fontName = L"Arial";
  EXPECT_EQ(format.GetDescription(L"Noir"), L"Arial, 10pt, Noir");
  format.fontSize = 10.5;
  format.bold = format.italic = format.underline = 1;
  EXPECT_EQ(format.GetDescription(L"Noir"), L"Arial, 10.5pt, Gras, Italique, Soulign\u00E9, Noir");
}

TEST_F(BookmarkFormat, EachKindHasItsText) {
  const wchar_t* const texts[] = {L"", L"k1", L"k2", L"k3", L"k4", L""};
  CBookmarkFormat format;
  for (format.kind = 0; format.kind < 6; ++format.kind) EXPECT_EQ(format.GetKindText(), texts[format.kind]);
}

TEST_F(BookmarkFormat, OnlyARenamedHeadingHasItsNameInTheStyleText) {
  CBookmarkFormat format;
  format.styleName = L"heading 1";
  format.displayName = L"My name";
  EXPECT_EQ(format.GetStyleText(), L"heading 1");  // the user's own
  format.kind = kBookmarkStandard;
  EXPECT_EQ(format.GetStyleText(), L"heading 1,My name");
  format.displayName = L"Titre 1";
  EXPECT_EQ(format.GetStyleText(), L"heading 1");
  format.displayName = L"titre 1";
  EXPECT_EQ(format.GetStyleText(), L"heading 1,titre 1");
  format.kind = kBookmarkWordStandard;
  EXPECT_EQ(format.GetStyleText(), L"heading 1");
}

TEST_F(BookmarkFormat, DisplayNamesOutsideWordMode) {
  ExpectNames({{L"heading 1", L"Titre 1", 1},
               {L"heading 2", L"Titre 2", 1},
               {L"heading 3", L"Titre 3", 1},
               {L"heading 4", L"heading 4", 2},
               {L"Heading 1", L"Heading 1", 2},
               {L"heading 1,My, name", L"My, name", 1},
               {L"any,name", L"name", 1},
               {L"heading 1,", L"Titre 1", 1},
               {L"any,", L"any", 2},
               {L",name", L"name", 1},
               {L"", L"", 2}},
              false);
}

TEST_F(BookmarkFormat, DisplayNamesInWordMode) {
  ExpectNames({{L"heading 1", L"Titre 1", 3},
               {L"heading 4", L"Titre 4", 3},
               {L"macro", L"Texte de macro", 3},
               {L"Macro", L"Macro", 4},
               {L"heading 1,My, name", L"Titre 1,My, name", 3},
               {L"any,name", L"any,name", 4},
               {L"any,", L"any", 4}},
              true);
}

TEST_F(BookmarkFormat, NamesThatWouldBreakTheTextsAreInvalid) {
  EXPECT_FALSE(IsValidBookmarkName(L""));
  EXPECT_FALSE(IsValidBookmarkName(nullptr));
  for (const wchar_t character : std::wstring_view(L",;.:{}()\""))
    EXPECT_FALSE(IsValidBookmarkName(std::wstring(L"a") + character + L"b")) << static_cast<int>(character);
  EXPECT_TRUE(IsValidBookmarkName(L"Style 1 - 'x' [y] \u05D0 \U0001F5CE \\/"));
}

TEST_F(BookmarkFormat, DefaultFormatsAreAddedWhereTheyAreMissing) {
  CBookmarkFormatArray formats;
  formats.AddDefaultFormats();
  const struct {
    const wchar_t *style, *name;
    int level;
    double size;
    int italic;
  } rows[] = {
      {L"heading 1", L"Titre 1", 1, 16, 0}, {L"heading 2", L"Titre 2", 2, 14, 1}, {L"heading 3", L"Titre 3", 3, 13, 0}};
  ASSERT_EQ(3, formats.Count());
  for (int i = 0; i < 3; ++i) {
    const CBookmarkFormat& format = *formats.GetAt(i);
    EXPECT_EQ(format.styleName, rows[i].style);
    EXPECT_EQ(format.displayName, rows[i].name);
    EXPECT_EQ(format.level, rows[i].level);
    EXPECT_EQ(format.fontName, L"Arial");
    EXPECT_EQ(format.fontSize, rows[i].size);
    EXPECT_EQ(format.bold, 1);
    EXPECT_EQ(format.italic, rows[i].italic);
    EXPECT_EQ(format.underline, 0);
    EXPECT_EQ(format.used, 0);
    EXPECT_EQ(format.kind, kBookmarkStandard);
    EXPECT_EQ(format.colour, 0u);
  }
  formats.AddDefaultFormats();
  EXPECT_EQ(3, formats.Count());
  formats.GetAt(1)->styleName = L"Heading 2";  // another style
  formats.AddDefaultFormats();
  ASSERT_EQ(4, formats.Count());
  EXPECT_EQ(formats.GetAt(3)->styleName, L"heading 2");
}

TEST_F(BookmarkFormat, TheArrayOwnsItsFormats) {
  CBookmarkFormatArray formats;
  EXPECT_EQ(0, formats.Add(std::make_unique<CBookmarkFormat>()));
  EXPECT_EQ(1, formats.Add(std::make_unique<CBookmarkFormat>()));
  formats.GetAt(1)->styleName = L"a";
  EXPECT_EQ(1, formats.FindStyle(L"a"));
  EXPECT_EQ(-1, formats.FindStyle(L"A"));
  EXPECT_EQ(nullptr, formats.GetAt(2));
  EXPECT_EQ(nullptr, formats.GetAt(-1));
  formats.RemoveAll();
  EXPECT_EQ(0, formats.Count());
  formats.Add(std::make_unique<CBookmarkFormat>());  // freed with the array
}
