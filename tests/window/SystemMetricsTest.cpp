#include "window/SystemMetrics.h"

#include <gtest/gtest.h>

namespace {

LOGFONTW Describe(const GdiFont& font) {
  LOGFONTW description{};
  ::GetObjectW(font.Get(), sizeof description, &description);
  return description;
}

TEST(SystemMetrics, AreTheSystemsAt96) {
  for (const int index : {SM_CXEDGE, SM_CYEDGE, SM_CXHTHUMB, SM_CYVTHUMB})
    EXPECT_EQ(::GetSystemMetrics(index), SystemMetric(index, 96)) << index;
}

TEST(SystemMetrics, GrowWithTheDpi) {
  for (const int index : {SM_CXHTHUMB, SM_CYVTHUMB})
    EXPECT_GT(SystemMetric(index, 192), SystemMetric(index, 96) * 3 / 2) << index;
}

TEST(MessageFont, IsTheSystemsAndGrowsWithTheDpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const LOGFONTW usual = Describe(MessageFont(96)), large = Describe(MessageFont(192));
  EXPECT_STREQ(metrics.lfMessageFont.lfFaceName, usual.lfFaceName);
  EXPECT_EQ(metrics.lfMessageFont.lfHeight, usual.lfHeight);
  EXPECT_NEAR(2 * usual.lfHeight, large.lfHeight, 1);
}

}  // namespace
