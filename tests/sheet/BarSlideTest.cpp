// The slide that opens a folder of the navigation bar.
#include <gtest/gtest.h>

#include "driver/ImportPatch.h"
#include "sheet/BarOwner.h"

namespace {

class BarSlideTest;
BarSlideTest* current = nullptr;

// Every wait of the slide is replaced by a look at the bar.
class BarSlideTest : public testing::TestWithParam<bool> {
 protected:
  BarSlideTest() : owner(GetParam()) {
    current = this;
    owner.FillLikeASheet();
    before = owner.Picture();
    PatchImport("kernel32.dll", "Sleep", reinterpret_cast<void*>(&Wait));
  }
  ~BarSlideTest() override {
    RestoreImport("kernel32.dll", "Sleep");
    current = nullptr;
  }

  struct Frame {
    DWORD wait;
    std::unique_ptr<Canvas> picture;
  };
  static void WINAPI Wait(DWORD milliseconds) { current->frames.push_back({milliseconds, current->owner.Picture()}); }

  BarOwner owner;
  std::unique_ptr<Canvas> before;
  std::vector<Frame> frames;
};

TEST_P(BarSlideTest, TheNewPictureMovesUpInEighths) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.bar->OpenFolder(1, true);
  const std::vector<SlideStep> steps = owner.bar->Model().SlideSteps();
  ASSERT_EQ(8u, steps.size());
  ASSERT_EQ(steps.size(), frames.size());
  owner.Settle();
  const auto after = owner.Picture();
  const RECT changed = after->DifferenceFrom(*before);
  ASSERT_FALSE(::IsRectEmpty(&changed));
  for (size_t i = 0; i < steps.size(); ++i) {
    EXPECT_EQ(30u, frames[i].wait);
    const Canvas& shown = *frames[i].picture;
    for (int x = 0; x < shown.Width(); x += 3) {
      for (int y = 0; y < steps[i].top; ++y) ASSERT_EQ(before->At(x, y), shown.At(x, y)) << i << ": " << x << ", " << y;
      for (int y = 0; y < steps[i].rows; ++y)
        ASSERT_EQ(after->At(x, y), shown.At(x, steps[i].top + y)) << i << ": " << x << ", " << y;
      for (int y = steps[i].top + steps[i].rows; y < shown.Height(); ++y) ASSERT_EQ(before->At(x, y), shown.At(x, y));
    }
  }
}

TEST_P(BarSlideTest, TheEndIsTheSameWithAndWithoutIt) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.bar->OpenFolder(1, true);
  owner.Settle();
  const auto slid = owner.Picture();
  EXPECT_EQ(1, owner.bar->Model().OpenFolder());
  EXPECT_EQ(L"Second", owner.bar->Model().Title());
  owner.bar->OpenFolder(0, false);
  owner.bar->OpenFolder(1, false);
  owner.Settle();
  const RECT difference = owner.Picture()->DifferenceFrom(*slid);
  EXPECT_TRUE(::IsRectEmpty(&difference));
}

TEST_P(BarSlideTest, NothingSlidesWhenItIsNotAskedFor) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.bar->OpenFolder(1, false);
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Never);
  owner.bar->OpenFolder(2, true);
  EXPECT_EQ(2, owner.bar->Model().OpenFolder());
  EXPECT_TRUE(frames.empty());
}

TEST_P(BarSlideTest, TheUsersSettingForTheSystemDecides) {
  BOOL saved = TRUE;
  ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &saved, 0);
  const auto set = [](BOOL on) {
    ::SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0, reinterpret_cast<void*>(static_cast<INT_PTR>(on)), 0);
  };
  owner.bar->SetSlide(COutlook2Ctrl::Slide::BySystem);
  set(FALSE);
  owner.bar->OpenFolder(1, true);
  EXPECT_TRUE(frames.empty());
  set(TRUE);
  owner.bar->OpenFolder(2, true);
  EXPECT_EQ(8u, frames.size());
  set(saved);
}

TEST_P(BarSlideTest, TheOpenFolderIsNotOpenedAgain) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.bar->OpenFolder(0, true);
  owner.bar->OpenFolder(3, true);
  owner.bar->OpenFolder(-1, true);
  EXPECT_TRUE(frames.empty());
  const RECT pending = owner.PendingPaint();
  EXPECT_TRUE(::IsRectEmpty(&pending));
}

TEST_P(BarSlideTest, ANarrowOrHiddenBarDoesNotSlide) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.bar->Move({10, 10, 14, 430});
  owner.bar->OpenFolder(1, true);
  EXPECT_EQ(1, owner.bar->Model().OpenFolder());
  owner.bar->Move({10, 10, 159, 430});
  ::ShowWindow(owner.window, SW_HIDE);
  owner.bar->OpenFolder(2, true);
  EXPECT_EQ(2, owner.bar->Model().OpenFolder());
  EXPECT_TRUE(frames.empty());
}

TEST_P(BarSlideTest, ClicksSlide) {
  owner.bar->SetSlide(COutlook2Ctrl::Slide::Always);
  owner.Click(owner.FolderPoint(1));
  EXPECT_EQ(8u, frames.size());
  owner.bar->ActivateById(120);
  EXPECT_EQ(16u, frames.size());
}

TEST_P(BarSlideTest, HotElementsAreDrawnInTheirPlaces) {
  owner.bar->OpenFolder(1, false);
  owner.Settle();
  const auto plain = owner.Picture();
  for (const BarTarget& target : owner.bar->Model().Targets()) {
    owner.Mouse(WM_MOUSEMOVE, BarOwner::Middle(owner.bar->Model().RectOf(target)));
    RECT box = owner.Picture()->DifferenceFrom(*plain);
    if (GetParam()) box = {plain->Width() - box.right, box.top, plain->Width() - box.left, box.bottom};
    const IntRect rect = owner.bar->Model().RectOf(target);
    const RECT place{rect.left, rect.top, rect.right, rect.bottom};
    RECT both;
    ::UnionRect(&both, &place, &box);
    EXPECT_FALSE(::IsRectEmpty(&box));
    EXPECT_TRUE(::EqualRect(&both, &place));
  }
  ::ReleaseCapture();
  const RECT nothing = owner.Picture()->DifferenceFrom(*plain);
  EXPECT_TRUE(::IsRectEmpty(&nothing));
}

INSTANTIATE_TEST_SUITE_P(LeftToRightAndMirrored, BarSlideTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "Mirrored" : "LeftToRight"; });

}  // namespace
