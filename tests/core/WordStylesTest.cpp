#include "pages/WordStyles.h"

#include <gtest/gtest.h>

#include <set>

#include "MessageIds.h"
#include "support/PrintText.h"

TEST(WordStyles, IdsRunInRowOrderWithOneLeftOut) {
  uint32_t id = 0xC00117D4;
  for (const WordStyle& style : kWordStyles) {
    if (id == 0xC0011805) ++id;
    EXPECT_EQ(style.messageId, id++);
  }
  EXPECT_EQ(id, 0xC001183Bu);
}

// As documents of Word have them, in every language.
TEST(WordStyles, KeysInRowOrder) {
  const wchar_t expected[] =
      L"normal;envelope address;envelope return;Body Text;heading 1;heading 2;heading 3;heading 4;heading 5;"
      L"heading 6;heading 7;heading 8;heading 9;index 1;index 2;index 3;index 4;index 5;index 6;index 7;index 8;"
      L"index 9;toc 1;toc 2;toc 3;toc 4;toc 5;toc 6;toc 7;toc 8;toc 9;Normal Indent;footnote text;comment text;"
      L"header;footer;index heading;caption;table of figures;footnote reference;comment reference;line number;"
      L"page number;endnote reference;endnote text;table of authorities;macro;toa heading;List;List Bullet;"
      L"List Number;List 2;List 3;List 4;List 5;List Bullet 2;List Bullet 3;List Bullet 4;List Bullet 5;"
      L"List Number 2;List Number 3;List Number 4;List Number 5;Title;Closing;Signature;Default Paragraph Font;"
      L"Body Text Indent;List Continue;List Continue 2;List Continue 3;List Continue 4;List Continue 5;"
      L"Message Header;Subtitle;Salutation;Date;Body Text First Indent;Body Text First Indent 2;Note Heading;"
      L"Body Text 2;Body Text 3;Body Text Indent 2;Body Text Indent 3;Block Text;Hyperlink;FollowedHyperlink;"
      L"Strong;Emphasis;Document Map;Plain Text;HTML Normal;HTML Acronym;HTML Address;HTML Cite;HTML Code;"
      L"HTML Definition;HTML Keyboard;HTML Preformatted;HTML Sample;HTML Typewriter;HTML Variable;";
  std::wstring keys;
  for (const WordStyle& style : kWordStyles) keys.append(style.key) += L';';
  EXPECT_TRUE(keys == expected) << testing::PrintToString(CUString(keys.c_str()));
}

TEST(WordStyles, KnownRows) {
  const struct {
    const wchar_t* key;
    uint32_t id;
  } rows[] = {{L"normal", 0xC00117D4}, {L"heading 1", 0xC00117D8},   {L"heading 3", 0xC00117DA},
              {L"List", 0xC0011804},   {L"List Bullet", 0xC0011806}, {L"HTML Variable", 0xC001183A}};
  for (const auto& row : rows) {
    const WordStyle* style = FindWordStyle(row.key);
    ASSERT_NE(nullptr, style);
    EXPECT_EQ(style->messageId, row.id);
  }
}

TEST(WordStyles, KeysDifferAndAreFoundExactly) {
  std::set<std::wstring_view> keys;
  for (const WordStyle& style : kWordStyles) {
    EXPECT_TRUE(keys.insert(style.key).second);
    EXPECT_EQ(FindWordStyle(style.key), &style);
  }
  EXPECT_EQ(nullptr, FindWordStyle(L"Heading 1"));
  EXPECT_EQ(nullptr, FindWordStyle(L"heading 10"));
  EXPECT_EQ(nullptr, FindWordStyle(L"body text"));
  EXPECT_EQ(nullptr, FindWordStyle(L""));
}
