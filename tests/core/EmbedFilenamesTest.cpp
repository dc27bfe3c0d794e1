#include "pages/EmbedFilenames.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/CostGrowth.h"
#include "support/PrintText.h"
#include "support/RandomText.h"

namespace {

using Texts = std::vector<std::wstring>;

Texts Read(WideView text) {
  CUStringArray paths;
  paths.Add(L"former");
  ReadEmbedFilenames(text, paths);
  Texts texts;
  for (int i = 0; i < paths.Count(); ++i) texts.emplace_back(paths[i].View());
  return texts;
}

CUString Write(const Texts& texts) {
  CUStringArray paths;
  for (const std::wstring& text : texts) paths.Add(text);
  return EmbedFilenamesText(paths);
}

}  // namespace

TEST(EmbedFilenames, PathsInMarksAndPlainOnesReadAlike) {
  EXPECT_EQ(Read(LR"("a";"b")"), (Texts{L"a", L"b"}));
  EXPECT_EQ(Read(L"a;b"), (Texts{L"a", L"b"}));
  EXPECT_EQ(Write(Read(L"a;b")), LR"("a";"b")");
  EXPECT_EQ(Read(LR"("C:\a b.doc";"C:\b.pdf")"), (Texts{LR"(C:\a b.doc)", LR"(C:\b.pdf)"}));
}

TEST(EmbedFilenames, APathInMarksMayHoldSeparators) {
  EXPECT_EQ(Read(LR"("C:\a;b.doc";"c")"), (Texts{LR"(C:\a;b.doc)", L"c"}));
  EXPECT_EQ(Read(LR"("a;b";c;d)"), (Texts{L"a;b", L"c", L"d"}));
}

TEST(EmbedFilenames, AMarkWithASeparatorBehindItAlwaysCloses) {
  // So a path that begins with a separator loses it; no whole path does.
  EXPECT_EQ(Read(Write({L";a"})), (Texts{L"a"}));
}

TEST(EmbedFilenames, EmptyPathsAreLeftOut) {
  EXPECT_EQ(Read(L""), Texts{});
  EXPECT_EQ(Read(L";;a;;b;"), (Texts{L"a", L"b"}));
  EXPECT_EQ(Read(LR"("";"a";"")"), (Texts{L"a"}));
}

TEST(EmbedFilenames, TheSamePathMayComeTwice) { EXPECT_EQ(Read(Write({L"a", L"a"})), (Texts{L"a", L"a"})); }

TEST(EmbedFilenames, WritesEachPathInMarks) {
  EXPECT_EQ(Write({}), L"");
  EXPECT_EQ(Write({L"a"}), LR"("a")");
  EXPECT_EQ(Write({L"a", L"b;c"}), LR"("a";"b;c")");
}

TEST(EmbedFilenames, TheListHasALimit) {
  CUStringArray paths;
  EXPECT_TRUE(EmbedFilenameFits(paths, std::wstring(758, L'x')));
  EXPECT_FALSE(EmbedFilenameFits(paths, std::wstring(759, L'x')));
  paths.Add(std::wstring(700, L'x'));
  EXPECT_TRUE(EmbedFilenameFits(paths, std::wstring(55, L'y')));  // 702 + 1 + 57
  EXPECT_FALSE(EmbedFilenameFits(paths, std::wstring(56, L'y')));
  EXPECT_EQ(1, paths.Count());
}

TEST(EmbedFilenames, AnyPathComesBack) {
  RandomText random(L";;;{}\\:. '");
  for (int round = 0; round < 400; ++round) {
    Texts texts;
    for (int count = random.Number(0, 6); count > 0; --count) texts.push_back(L"C:" + random.Next(12));
    const CUString text = Write(texts);
    EXPECT_EQ(Read(text), texts) << testing::PrintToString(text);
    EXPECT_EQ(Write(Read(text)), text);
  }
}

TEST(EmbedFilenames, NEntriesCostN) {
  EXPECT_TRUE(GrowsWithItsEntries([](int entries) {
    std::wstring text;
    for (int i = 0; i < entries; ++i) text += L"\"C:\\Documents\\attachment.pdf\";";
    return TimeOf([&] {
      CUStringArray paths;
      ReadEmbedFilenames(text, paths);
      EXPECT_EQ(entries, paths.Count());
      EXPECT_EQ(text.size() - 1, EmbedFilenamesText(paths).View().size());
    });
  }));
}
