#include "DriverLIB/ControlNumbers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A window with one edit control.
class GetControlDoubleTest : public testing::Test {
 protected:
  static constexpr int kEdit = 1001;
  static constexpr double kUntouched = -77;

  GetControlDoubleTest()
      : window(CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr)),
        edit(CreateWindowExW(0, L"EDIT", nullptr, WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, window,
                             reinterpret_cast<HMENU>(INT_PTR{kEdit}), nullptr, nullptr)) {}
  ~GetControlDoubleTest() override { DestroyWindow(window); }

  double Read(const std::wstring& text, int limit, int digits) {
    SetWindowTextW(edit, text.c_str());
    double value = kUntouched;
    result = GetControlDouble(window, kEdit, value, limit, digits);
    return value;
  }

  HWND window;
  HWND edit;
  bool result = false;
};

}  // namespace

TEST_F(GetControlDoubleTest, ReadsANumber) {
  EXPECT_EQ(12.345, Read(L"12.345", 20, 0));
  EXPECT_TRUE(result);
  EXPECT_EQ(-1.5, Read(L" \t -1.5 mm", 20, 0));
  EXPECT_TRUE(result);
}

TEST_F(GetControlDoubleTest, AnEmptyTextGivesZero) {
  EXPECT_EQ(0, Read(L"", 20, 0));
  EXPECT_TRUE(result);
  EXPECT_EQ(0, Read(L"   ", 20, 2));
  EXPECT_TRUE(result);
  EXPECT_EQ(0, Read(L"", 1, 0));
  EXPECT_TRUE(result);
}

TEST_F(GetControlDoubleTest, RoundsUnlessDigitsIsZero) {
  EXPECT_EQ(2.375, Read(L"2.375", 20, 0));
  EXPECT_DOUBLE_EQ(2.38, Read(L"2.375", 20, 2));
  EXPECT_EQ(3, Read(L"2.5", 20, -1));
  EXPECT_EQ(-2, Read(L"-2.5", 20, -1));
}

TEST_F(GetControlDoubleTest, ATextThatFillsTheLimitIsRefused) {
  EXPECT_EQ(1234, Read(L"1234", 5, 0));
  EXPECT_TRUE(result);
  for (const wchar_t* text : {L"12345", L"123456", L"     "}) {
    EXPECT_EQ(kUntouched, Read(text, 5, 0));
    EXPECT_FALSE(result);
  }
}

TEST_F(GetControlDoubleTest, NoControlAndNoLimitAreRefused) {
  double value = kUntouched;
  EXPECT_FALSE(GetControlDouble(window, kEdit + 1, value, 20, 0));
  EXPECT_FALSE(GetControlDouble(nullptr, kEdit, value, 20, 0));
  EXPECT_FALSE(GetControlDouble(window, kEdit, value, 0, 0));
  EXPECT_FALSE(GetControlDouble(window, kEdit, value, -5, 0));
  EXPECT_EQ(kUntouched, value);
}

TEST_F(GetControlDoubleTest, TheTextGoesThroughTheAnsiCodePage) {
  EXPECT_EQ(15, Read(L"1\xFF15", 20, 0));  // a wide digit becomes a plain one there
  EXPECT_EQ(1, Read(L"1\x0416\x0035", 20, 0));
  EXPECT_EQ(0, Read(L"\x0661", 20, 0));  // an Arabic digit has no place in it
}
