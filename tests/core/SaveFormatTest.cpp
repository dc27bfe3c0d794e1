// The save format: what a stored value means, which choice shows it, and what a choice makes of it.
#include "pages/SaveFormat.h"

#include <gtest/gtest.h>

namespace {

TEST(SaveFormat, WithoutEPdfOnlyAPdfIsLeft) {
  const struct {
    uint16_t stored, result;
  } rows[] = {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {0x100, 1}, {0x102, 1}, {0x103, 1}, {4, 4}, {0x106, 4}};
  for (const auto& row : rows)
    for (const bool globalTab : {true, false})
      EXPECT_EQ(row.result, NormalizeSaveFormat(row.stored, false, globalTab)) << row.stored << globalTab;
}

TEST(SaveFormat, WithEPdfTheValueStands) {
  for (const uint16_t stored : {1, 2, 3, 4, 0x100, 0x102, 0x103, 0xFFFE})
    for (const bool globalTab : {true, false}) EXPECT_EQ(stored, NormalizeSaveFormat(stored, true, globalTab));
}

TEST(SaveFormat, DocumentSettingsAlwaysHaveOne) {
  EXPECT_EQ(0, NormalizeSaveFormat(0, true, true));
  EXPECT_EQ(1, NormalizeSaveFormat(0, true, false));
}

TEST(SaveFormat, ChoiceThatShowsAValue) {
  EXPECT_EQ(SaveChoice::Ask, SaveChoiceOf(0));
  EXPECT_EQ(SaveChoice::Ask, SaveChoiceOf(0x100));
  EXPECT_EQ(SaveChoice::Ask, SaveChoiceOf(0x101));
  EXPECT_EQ(SaveChoice::Ask, SaveChoiceOf(0x102));
  EXPECT_EQ(SaveChoice::EPdf, SaveChoiceOf(2));
  EXPECT_EQ(SaveChoice::EPdf, SaveChoiceOf(3));
  EXPECT_EQ(SaveChoice::Pdf, SaveChoiceOf(1));
  EXPECT_EQ(SaveChoice::Pdf, SaveChoiceOf(4));
}

TEST(SaveFormat, ValueBehindAChoice) {
  const struct {
    uint16_t before, pdf, ePdf, ask;
  } rows[] = {{0, 1, 2, 0x102},         {1, 1, 3, 0x103},         {2, 1, 2, 0x102},
              {0x100, 1, 0x102, 0x102}, {0x102, 1, 0x102, 0x102}, {0x103, 1, 0x103, 0x103}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.pdf, WithSaveChoice(row.before, SaveChoice::Pdf)) << row.before;
    EXPECT_EQ(row.ePdf, WithSaveChoice(row.before, SaveChoice::EPdf)) << row.before;
    EXPECT_EQ(row.ask, WithSaveChoice(row.before, SaveChoice::Ask)) << row.before;
  }
}

}  // namespace
