#include "pages/DestinationPath.h"

#include <gtest/gtest.h>

#include <string>

#include "support/PrintText.h"

namespace {

CUString Rejoined(const wchar_t* path) {
  const DestinationPath parts = SplitDestination(path);
  return JoinDestination(parts.directory, parts.file);
}

}  // namespace

TEST(DestinationPath, IsFolderAndName) {
  const DestinationPath parts = SplitDestination(LR"(C:\Out\a.pdf)");
  EXPECT_EQ(parts.directory, LR"(C:\Out\)");
  EXPECT_EQ(parts.file, L"a.pdf");
  const DestinationPath name = SplitDestination(L"a.b.pdf");
  EXPECT_EQ(name.directory, L"");
  EXPECT_EQ(name.file, L"a.b.pdf");
}

TEST(DestinationPath, AFolderGetsABackslash) {
  EXPECT_EQ(JoinDestination(LR"(C:\Out)", L"a.pdf"), LR"(C:\Out\a.pdf)");
  EXPECT_EQ(JoinDestination(LR"(C:\Out\)", L"a.pdf"), LR"(C:\Out\a.pdf)");
  EXPECT_EQ(JoinDestination(LR"(C:\Out)", L""), LR"(C:\Out\)");
  EXPECT_EQ(JoinDestination(L"", L"a.pdf"), L"a.pdf");
  EXPECT_EQ(JoinDestination(L"", L""), L"");
  EXPECT_EQ(JoinDestination(L"C:", L"a.pdf"), LR"(C:\a.pdf)");
}

TEST(DestinationPath, ComesBackAsItWas) {
  for (const wchar_t* path : {LR"(C:\Out\a.pdf)", LR"(\\server\share\a)", LR"(Out\)", L"a.pdf", L"", LR"(C:\)"})
    EXPECT_EQ(Rejoined(path), path);
}

TEST(ChosenFile, IsFolderWithoutSeparatorAndName) {
  const auto target = SplitChosenFile(LR"(C:\Out\a.pdf)", L"a.pdf");
  ASSERT_TRUE(target);
  EXPECT_EQ(target->directory, LR"(C:\Out)");
  EXPECT_EQ(target->file, L"a.pdf");
  EXPECT_EQ(SplitChosenFile(LR"(C:\a.pdf)", L"a.pdf")->directory, L"C:");
  EXPECT_EQ(SplitChosenFile(LR"(\server\share\a.pdf)", L"a.pdf")->directory, LR"(\server\share)");
}

TEST(ChosenFile, AFolderOfTheSameNameIsNotTakenForTheFile) {
  EXPECT_EQ(SplitChosenFile(LR"(C:\a.pdf\a.pdf)", L"a.pdf")->directory, LR"(C:\a.pdf)");
}

TEST(ChosenFile, TheNameHasToStandBehindAFolder) {
  EXPECT_FALSE(SplitChosenFile(L"a.pdf", L"a.pdf"));
  EXPECT_FALSE(SplitChosenFile(LR"(C:\Out\a.pdf)", L"b.pdf"));
  EXPECT_FALSE(SplitChosenFile(LR"(C:\Out\a.pdf)", L""));
  EXPECT_FALSE(SplitChosenFile(L"", L""));
}

TEST(PathText, AnEmptyOneIsValid) {
  EXPECT_TRUE(IsValidPathText(L"", PathTextRule::Strict));
  EXPECT_TRUE(IsValidPathText(nullptr, PathTextRule::Lenient));
}

TEST(PathText, EachCharacterIsJudgedByItsLowByte) {
  const std::wstring strict = L"<>:\"/\\|?*", lenient = L"<>\"|?*";
  for (int unit = 0; unit <= 0xFFFF; ++unit) {
    const auto low = static_cast<wchar_t>(unit & 0xFF);
    const auto valid = [&](const std::wstring& refused) {
      return unit >= 32 && low != 0 && refused.find(low) == std::wstring::npos;
    };
    const std::wstring text = L"a" + std::wstring(1, static_cast<wchar_t>(unit)) + L"b";
    ASSERT_EQ(valid(strict), IsValidPathText(text, PathTextRule::Strict)) << std::hex << unit;
    ASSERT_EQ(valid(lenient), IsValidPathText(text, PathTextRule::Lenient)) << std::hex << unit;
  }
}

TEST(PathText, AFolderHasColonAndSeparatorsAndANameDoesNot) {
  EXPECT_TRUE(IsValidPathText(LR"(C:\Out/x\)", PathTextRule::Lenient));
  EXPECT_FALSE(IsValidPathText(L"a:b", PathTextRule::Strict));
  EXPECT_FALSE(IsValidPathText(L"a\\b", PathTextRule::Strict));
  EXPECT_FALSE(IsValidPathText(L"a/b", PathTextRule::Strict));
  EXPECT_FALSE(IsValidPathText(L"\u0100", PathTextRule::Strict));   // low byte zero
  EXPECT_FALSE(IsValidPathText(L"\u013C", PathTextRule::Lenient));  // low byte of "<"
  EXPECT_TRUE(IsValidPathText(L"\u0101", PathTextRule::Strict));    // below 32 counts as a whole
  EXPECT_FALSE(IsValidPathText(L"a\tb", PathTextRule::Lenient));
}
