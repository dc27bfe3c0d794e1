// A text that holds a password leaves nothing of it in memory.
#include "DriverLIB/CSecretText.h"

#include <gtest/gtest.h>

namespace {

// The characters that a buffer holds, terminators and what is behind them included.
std::wstring Raw(const wchar_t* buffer, size_t count) { return {buffer, count}; }

TEST(CSecretText, TakesATextWithItsBuffer) {
  CUString given(L"swordfish");
  const wchar_t* buffer = given.Text();
  CSecretText secret;
  EXPECT_TRUE(secret.IsEmpty());
  secret = std::move(given);
  EXPECT_EQ(buffer, secret.Text());
  EXPECT_TRUE(given.IsEmpty());
  EXPECT_FALSE(secret.IsEmpty());
}

TEST(CSecretText, CopiesHaveBuffersOfTheirOwn) {
  CSecretText secret;
  secret = CUString(L"swordfish");
  CSecretText copy(secret), assigned;
  assigned = secret;
  EXPECT_TRUE(copy == secret);
  EXPECT_TRUE(assigned == secret);
  EXPECT_NE(copy.Text(), secret.Text());
  EXPECT_NE(assigned.Text(), secret.Text());
  assigned = *&assigned;
  EXPECT_TRUE(assigned == secret);
  assigned = CUString(L"Swordfish");
  EXPECT_FALSE(assigned == secret);
}

TEST(CSecretText, CuttingWipesWhatIsCutOff) {
  CSecretText secret;
  secret = CUString(L"swordfish");
  secret.CutTo(9);
  EXPECT_STREQ(L"swordfish", secret.Text());
  secret.CutTo(5);
  EXPECT_EQ(std::wstring(L"sword\0\0\0\0\0", 10), Raw(secret.Text(), 10));
  secret.CutTo(0);
  EXPECT_TRUE(secret.IsEmpty());
}

}  // namespace
