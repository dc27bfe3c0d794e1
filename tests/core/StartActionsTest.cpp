// The bits of StartAction that two pages share.
#include "pages/StartActions.h"

#include <gtest/gtest.h>

namespace {

TEST(StartActions, EachBitHasOneOwner) {
  EXPECT_EQ(13, kActionPageBits);
  EXPECT_EQ(2, kMailPageBits);
}

TEST(StartActions, APageStoresItsOwnBitsAndKeepsTheOthers) {
  EXPECT_EQ(2 | 5, WithStartActions(2, kActionPageBits, 5));
  EXPECT_EQ(2, WithStartActions(15, kActionPageBits, 0));
  EXPECT_EQ(13, WithStartActions(15, kMailPageBits, 0));
  EXPECT_EQ(15, WithStartActions(13, kMailPageBits, 2));
  EXPECT_EQ(8, WithStartActions(0, kActionPageBits, 8 | 2)) << "what is no own bit is not stored";
}

TEST(StartActions, BitsThatNobodyOwnsStay) {
  EXPECT_EQ(-1, WithStartActions(-1, kMailPageBits, 2));
  EXPECT_EQ(static_cast<int32_t>(0xFFFFFFFD), WithStartActions(-1, kMailPageBits, 0));
  EXPECT_EQ(0x10010 | 4, WithStartActions(0x10010 | 1, kActionPageBits, 4));
}

TEST(StartActions, TheOrderOfThePagesDoesNotMatter) {
  for (int32_t stored = 0; stored < 32; ++stored)
    for (uint16_t actions = 0; actions < 16; ++actions)
      EXPECT_EQ(WithStartActions(WithStartActions(stored, kActionPageBits, actions), kMailPageBits, actions),
                WithStartActions(WithStartActions(stored, kMailPageBits, actions), kActionPageBits, actions));
}

}  // namespace
