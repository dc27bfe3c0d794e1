#include "sheet/COL2CCmdUI.h"

#include <gtest/gtest.h>

namespace {

struct Probe {
  COL2SubItem entry;
  COL2CCmdUI probe;
  Probe() : entry{}, probe((entry.commandId = 108, entry.text = L"before", entry)) {}
};

TEST(COL2CCmdUI, CarriesTheIdOfItsEntry) { EXPECT_EQ(108, Probe().probe.Id()); }

TEST(COL2CCmdUI, AnOwnerThatCallsNothingLeavesNoBits) {
  Probe p;
  EXPECT_EQ(0, p.probe.Bits());
  EXPECT_FALSE(p.probe.HasNewText());
}

TEST(COL2CCmdUI, EnableSetsBit0WhateverItSays) {
  for (const bool enable : {true, false}) {
    Probe p;
    p.probe.Enable(enable);
    EXPECT_EQ(1, p.probe.Bits());
  }
}

TEST(COL2CCmdUI, SetCheckSetsBit1WhenTrue) {
  Probe p;
  p.probe.SetCheck(false);
  EXPECT_EQ(0, p.probe.Bits());
  p.probe.SetCheck(true);
  EXPECT_EQ(2, p.probe.Bits());
}

TEST(COL2CCmdUI, SetRadioSetsBit2WhenTrue) {
  Probe p;
  p.probe.SetRadio(false);
  EXPECT_EQ(0, p.probe.Bits());
  p.probe.SetRadio(true);
  EXPECT_EQ(4, p.probe.Bits());
}

TEST(COL2CCmdUI, BitsGather) {
  Probe p;
  p.probe.Enable(true);
  p.probe.SetCheck(true);
  p.probe.SetRadio(true);
  EXPECT_EQ(7, p.probe.Bits());
  EXPECT_EQ(0, p.entry.probeBits);  // kept by the bar, not by the probe
}

TEST(COL2CCmdUI, SetTextReplacesTheTextAtOnce) {
  Probe p;
  p.probe.SetText(L"before");
  EXPECT_FALSE(p.probe.HasNewText());
  p.probe.SetText(L"after");
  EXPECT_EQ(L"after", p.entry.text);
  EXPECT_TRUE(p.probe.HasNewText());
  p.probe.SetText(nullptr);
  EXPECT_TRUE(p.entry.text.IsEmpty());
}

}  // namespace
