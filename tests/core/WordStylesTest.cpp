#include "pages/WordStyles.h"

#include <gtest/gtest.h>

#include <set>

#include "MessageIds.h"

TEST(WordStyles, IdsRunInRowOrderWithOneLeftOut) {
  uint32_t id = 0xC00117D4;
  for (const WordStyle& style : kWordStyles) {
    if (id == 0xC0011805) ++id;
    EXPECT_EQ(style.messageId, id++);
  }
  EXPECT_EQ(id, 0xC001183Bu);
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
