// What the narrow string does beyond the wide one; CBasicStringTest.cpp has what both do.
#include "DriverLIB/CEString.h"

#include <gtest/gtest.h>

#include "support/PrintText.h"

TEST(CEString, AssignWideConvertsToTheAnsiCodePage) {
  CEString text("former");
  text.AssignWide(
      L"Gr\x00F6\x00DF"
      L"e \x20AC");
  EXPECT_EQ(
      "Gr\xF6\xDF"
      "e \x80",
      text);
  EXPECT_EQ(7, text.Length());
  text.AssignWide(L"\x0416");  // no place in the code page
  EXPECT_EQ("?", text);
  text.AssignWide(nullptr);
  EXPECT_EQ(0, text.Length());
  EXPECT_NE(nullptr, text.Buffer());
}

TEST(CEString, FormatTakesNarrowTextForS) {
  CEString text;
  EXPECT_EQ(11, text.Format("%s|%d|%04x", "text", 7, 0xAB));
  EXPECT_EQ("text|7|00ab", text);
}

TEST(CEString, TrimsNoCharactersOfTheUpperHalf) {
  CEString text(" \xA0 abc\xA0 \t");
  text.TrimBoth();
  EXPECT_EQ("\xA0 abc\xA0", text);
}
