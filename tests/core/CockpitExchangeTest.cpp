// The exchange of a page's values with the cockpit, and the marks of what an administrator has fixed.
#include "cockpit/CockpitExchange.h"

#include <gtest/gtest.h>

#include "DriverLIB/CUString.h"
#include "environment/Override.h"

namespace {

using Direction = CockpitExchange::Direction;

TEST(CockpitExchange, HandsOutTheMembersWhetherFixedOrNot) {
  const CockpitExchange exchange(Direction::kToCockpit);
  EXPECT_FALSE(exchange.IsToPage());
  for (const bool fixed : {false, true}) {
    uint16_t member = 7, field = 1;
    exchange.Value(member, field, fixed);
    EXPECT_EQ(7, member);
    EXPECT_EQ(7, field);
  }
  CUString member(L"own"), field(L"other");
  exchange.Value(member, field);
  EXPECT_EQ(L"own", field);
}

TEST(CockpitExchange, TakesWhatIsNotFixed) {
  const CockpitExchange exchange(Direction::kToPage);
  EXPECT_TRUE(exchange.IsToPage());
  uint16_t member = 7, fixed = 7, field = 1;
  exchange.Value(member, field);
  exchange.Value(fixed, field, true);
  EXPECT_EQ(1, member);
  EXPECT_EQ(7, fixed);
  EXPECT_EQ(1, field);
}

TEST(CockpitExchange, BitsLeaveTheOthersAloneOnBothSides) {
  for (const bool fixed : {false, true}) {
    uint16_t member = 0b0101, field = 0b1010;
    CockpitExchange(Direction::kToCockpit).Bits(member, field, 0b0011, fixed);
    EXPECT_EQ(0b0101, member);
    EXPECT_EQ(0b1001, field);
  }
  uint16_t member = 0b0101, fixed = 0b0101, field = 0b1010;
  const CockpitExchange toPage(Direction::kToPage);
  toPage.Bits(member, field, 0b0011);
  toPage.Bits(fixed, field, 0b0011, true);
  EXPECT_EQ(0b0110, member);
  EXPECT_EQ(0b0101, fixed);
  EXPECT_EQ(0b1010, field);
}

TEST(Override, StartsUnsetAsTheFieldsOfTheRecordDo) {
  const AdminSettings admin;
  EXPECT_FALSE(NumberOverride{admin.Colorspace_Override}.IsSet());
  EXPECT_FALSE(BooleanOverride{admin.GraphicColorReduction_Override}.IsSet());
  EXPECT_FALSE(TextOverride{admin.Title_Override}.IsSet());
  EXPECT_FALSE(NumberOverride().IsSet());
  EXPECT_FALSE(BooleanOverride().IsSet());
  EXPECT_FALSE(TextOverride().IsSet());
}

TEST(Override, EveryOtherValueIsSet) {
  for (const int32_t value : {0, 1, kUnsetBoolean, INT32_MIN, INT32_MAX})
    EXPECT_TRUE(NumberOverride{value}.IsSet()) << value;
  for (const int32_t value : {0, 1, kUnsetNumber}) EXPECT_TRUE(BooleanOverride{value}.IsSet()) << value;
  EXPECT_TRUE(TextOverride{L" "}.IsSet());
}

TEST(Override, EachFieldHasTheTypeOfItsKind) {
  EXPECT_TRUE((std::is_same_v<NumberOverride, OverrideOf<&AdminSettings::Colorspace_Override>::Type>));
  EXPECT_TRUE((std::is_same_v<BooleanOverride, OverrideOf<&AdminSettings::ZUGFeRD_Override>::Type>));
  EXPECT_TRUE((std::is_same_v<TextOverride, OverrideOf<&AdminSettings::Title_Override>::Type>));
}

}  // namespace
