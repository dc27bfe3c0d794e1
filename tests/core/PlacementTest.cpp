// Where a centred window stands.
#include "window/Placement.h"

#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const IntPoint& point, std::ostream* stream) { *stream << '(' << point.x << ", " << point.y << ')'; }

namespace {

constexpr IntRect kArea{0, 0, 1000, 800};

struct PlacementCase {
  const char* rule;
  int width, height;
  IntRect reference;
  IntRect area;
  IntPoint place;
};

const PlacementCase kCases[] = {
    {"the middle of the reference", 100, 50, {200, 100, 400, 300}, kArea, {250, 175}},
    {"an odd size is halved downwards", 101, 51, {200, 100, 400, 300}, kArea, {250, 175}},
    {"an odd sum of the reference's edges is halved downwards", 100, 50, {200, 100, 401, 301}, kArea, {250, 175}},
    {"both halves are rounded by themselves", 101, 51, {200, 100, 401, 301}, kArea, {250, 175}},
    {"the area itself as reference", 100, 50, kArea, kArea, {450, 375}},
    {"a window as large as the area", 1000, 800, kArea, kArea, {0, 0}},
    {"one pixel more", 1001, 801, kArea, kArea, {0, 0}},
    {"a reference at the left upper corner", 200, 100, {0, 0, 50, 50}, kArea, {0, 0}},
    {"a reference left of and above the area", 200, 100, {-500, -400, -100, -100}, kArea, {0, 0}},
    {"a reference at the right lower corner", 200, 100, {950, 750, 1000, 800}, kArea, {800, 700}},
    {"a reference beyond the area", 200, 100, {1500, 900, 1700, 1000}, kArea, {800, 700}},
    {"an edge exactly at the area's is kept", 200, 100, {800, 700, 1000, 800}, kArea, {800, 700}},
    {"one pixel beyond is moved back", 200, 100, {802, 702, 1000, 800}, kArea, {800, 700}},
    {"larger than the area: begins at its edge", 1200, 900, {200, 100, 400, 300}, kArea, {0, 0}},
    {"larger, and the reference at the right", 1200, 900, {1800, 1800, 1900, 1900}, kArea, {0, 0}},
    {"wider only", 1200, 100, {200, 100, 400, 300}, kArea, {0, 150}},
    {"an area of a second monitor on the left", 100, 50, {-900, 100, -700, 300}, {-1000, 0, 0, 800}, {-850, 175}},
    {"halves of negative numbers go towards 0", 100, 50, {-901, 100, -700, 301}, {-1000, 0, 0, 800}, {-850, 175}},
    {"beyond the left monitor's right edge", 100, 50, {-20, 100, 0, 300}, {-1000, 0, 0, 800}, {-100, 175}},
    {"an area that does not begin at 0", 100, 50, {0, 0, 20, 20}, {40, 30, 500, 400}, {40, 30}},
    {"an empty reference", 100, 50, {300, 300, 300, 300}, kArea, {250, 275}},
};

TEST(Placement, CentresOnTheReferenceAndStaysInTheArea) {
  for (const PlacementCase& test : kCases)
    EXPECT_EQ(test.place, PlaceCentered(test.width, test.height, test.reference, test.area)) << test.rule;
}

TEST(Placement, RectanglesTellTheirSize) {
  constexpr IntRect rect{-10, 5, 30, 25};
  EXPECT_EQ(40, rect.Width());
  EXPECT_EQ(20, rect.Height());
}

TEST(PlaceBeside, StandsAtTheRightWhereThereIsRoomElseAtTheLeft) {
  EXPECT_EQ(400, PlaceBeside(600, {200, 100, 400, 300}, kArea)) << "up to the area's edge";
  EXPECT_EQ(-401, PlaceBeside(601, {200, 100, 400, 300}, kArea)) << "also where the left has no room";
  EXPECT_EQ(500, PlaceBeside(300, {800, 0, 1000, 10}, kArea));
}

}  // namespace
