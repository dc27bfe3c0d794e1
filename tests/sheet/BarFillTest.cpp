// What a navigation bar is filled with, and its look.
#include <gtest/gtest.h>

#include "sheet/BarOwner.h"
#include "support/PrintText.h"

namespace {

class BarContents : public testing::Test {
 protected:
  BarContents() { owner.FillLikeASheet(); }

  const BarModel& Model() const { return owner.bar->Model(); }
  int OpenFolder() const { return Model().OpenFolder(); }

  BarOwner owner;
};

TEST_F(BarContents, IsAChildWindowWithTheGivenNumber) {
  EXPECT_EQ(owner.bar->Handle(), ::GetDlgItem(owner.window, BarOwner::kBarId));
  EXPECT_TRUE(owner.bar->Style() & WS_TABSTOP);
  EXPECT_EQ(owner.bar->Scale(200), owner.bar->FixedWidth());
}

TEST_F(BarContents, TheFirstFolderIsOpenAndGivesTheTitle) {
  EXPECT_EQ(0, OpenFolder());
  EXPECT_EQ(L"First", Model().Title());
}

TEST_F(BarContents, WhatIsAddedHasItsPlaceAtOnce) {
  owner.bar->AddFolder(L"Fourth", 0, 130);
  EXPECT_EQ(420 - 24, Model().Folder(3)->rect.top);
  EXPECT_FALSE(owner.bar->AddEntry(L"", 0, BarEntryKind::Plain, 1));  // no group in the new folder
  EXPECT_FALSE(owner.bar->AddGroup(L"", 0, 9));
}

TEST_F(BarContents, PicturesComeFromPairsElseFromIcons) {
  COutlook2Ctrl& bar = *owner.bar;
  bar.AddFolder(L"pair", 512, 1, 321, 322);
  bar.AddFolder(L"half a pair", 512, 1, 321, 0);
  bar.AddFolder(L"none", 0, 1);
  bar.AddFolder(L"missing", 0x4FFE, 1, 0x4FFE, 0x4FFF);
  EXPECT_TRUE(Model().Folder(3)->image);
  EXPECT_FALSE(Model().Folder(3)->icon);
  EXPECT_FALSE(Model().Folder(4)->image);
  EXPECT_TRUE(Model().Folder(4)->icon);
  ICONINFO icon{};
  ASSERT_TRUE(::GetIconInfo(static_cast<HICON>(Model().Folder(4)->icon.get()), &icon));
  BITMAP bitmap{};
  ::GetObjectW(icon.hbmColor, sizeof bitmap, &bitmap);
  EXPECT_EQ(bar.Scale(16), bitmap.bmWidth);
  ::DeleteObject(icon.hbmColor);
  ::DeleteObject(icon.hbmMask);
  EXPECT_FALSE(Model().Folder(5)->icon);
  EXPECT_FALSE(Model().Folder(6)->image);
  bar.AddGroup(L"", 0);
  bar.AddEntry(L"pair", 0, BarEntryKind::Plain, 1, -1, -1, 249, 250);
  EXPECT_TRUE(Model().Entry(6, 0, 0)->image);
}

LOGFONTW Describe(const GdiFont& font) {
  LOGFONTW description{};
  ::GetObjectW(font.Get(), sizeof description, &description);
  return description;
}

TEST_F(BarContents, FontsDeriveFromTheParentsOrTheDefault) {
  LOGFONTW parent{};
  parent.lfHeight = -17;
  parent.lfWeight = 300;
  ::wcscpy(parent.lfFaceName, L"Courier New");
  const GdiFont font(::CreateFontIndirectW(&parent));
  owner.font = font.Get();

  owner.bar->SetBarFonts(true);
  const BarFonts& fonts = owner.bar->Fonts();
  EXPECT_STREQ(L"Courier New", Describe(fonts.normal).lfFaceName);
  EXPECT_EQ(-17, Describe(fonts.normal).lfHeight);
  EXPECT_EQ(300, Describe(fonts.normal).lfWeight);
  EXPECT_FALSE(Describe(fonts.normal).lfUnderline);
  EXPECT_TRUE(Describe(fonts.underlined).lfUnderline);
  EXPECT_EQ(300, Describe(fonts.underlined).lfWeight);
  EXPECT_EQ(600, Describe(fonts.bold).lfWeight);
  EXPECT_EQ(-17, Describe(fonts.bold).lfHeight);
  EXPECT_EQ(600, Describe(fonts.title).lfWeight);
  EXPECT_EQ(owner.bar->Scale(20), Describe(fonts.title).lfHeight);

  owner.bar->SetBarFonts(false);
  LOGFONTW standard{};
  ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof standard, &standard);
  EXPECT_STREQ(standard.lfFaceName, Describe(owner.bar->Fonts().normal).lfFaceName);
  EXPECT_EQ(standard.lfHeight, Describe(owner.bar->Fonts().normal).lfHeight);
}

// A system colour that is another one for a while.
class ChangedSystemColor {
 public:
  ChangedSystemColor(INT element, COLORREF color) : element_(element), before_(::GetSysColor(element)) {
    ::SetSysColors(1, &element_, &color);
  }
  ~ChangedSystemColor() { ::SetSysColors(1, &element_, &before_); }

 private:
  INT element_;
  COLORREF before_;
};

TEST_F(BarContents, ColorsFollowTheSystem) {
  const COLORREF before = owner.bar->Colors().c;
  for (const UINT message : {WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_SETTINGCHANGE}) {
    const ChangedSystemColor change(COLOR_INACTIVECAPTION, RGB(12, 34, 56));
    owner.Settle();
    owner.bar->Send(message);
    EXPECT_EQ(RGB(12, 34, 56), owner.bar->Colors().c);
    EXPECT_EQ(owner.bar->ClientRect().bottom, owner.PendingPaint().bottom);
  }
  // Not every change is told.
  owner.bar->Invalidate();
  owner.Settle();
  EXPECT_EQ(before, owner.bar->Colors().c);
}

}  // namespace
