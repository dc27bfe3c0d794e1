#include "sheet/COutlook2Painter.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "driver/ImportPatch.h"
#include "sheet/COL2CCmdUI.h"
#include "support/Canvas.h"
#include "window/AlphaImage.h"

namespace {

constexpr SystemColors kSystem = {RGB(240, 240, 240), RGB(153, 180, 209), RGB(191, 205, 219), RGB(1, 2, 3),
                                  RGB(255, 255, 255), RGB(4, 5, 6),       RGB(0, 120, 215),   RGB(254, 254, 254)};
constexpr COLORREF kGround = RGB(255, 0, 255);  // what nobody draws
constexpr int kWidth = 149, kHeight = 420;

constexpr BarTarget FolderTarget(int folder) { return {BarHit::Folder, folder}; }
constexpr BarTarget EntryTarget(int folder, int group) { return {BarHit::Entry, folder, group, 0}; }

// Two folders; the second one is open and has three entries, without texts unless a test gives some.
class COutlook2PainterTest : public testing::Test {
 protected:
  COutlook2PainterTest() {
    model.AddFolder(L"", 0);
    model.AddFolder(L"", 0);
    for (int i = 0; i < 3; ++i) {
      model.AddGroup(L"", 0);
      model.AddEntry(L"", BarEntryKind::Plain, 100 + i);
    }
    model.Open(1);
    fonts.normal = DeriveFont(nullptr, [](LOGFONTW&) {});
    fonts.underlined = DeriveFont(nullptr, [](LOGFONTW& font) { font.lfUnderline = TRUE; });
    fonts.bold = DeriveFont(nullptr, [](LOGFONTW& font) { font.lfWeight = 600; });
    fonts.title = DeriveFont(nullptr, [](LOGFONTW& font) { font.lfHeight = 20; });
  }

  std::unique_ptr<Canvas> Draw(int width = kWidth, int height = kHeight, int dpi = 96) {
    auto canvas = std::make_unique<Canvas>(width, height, kGround, mirrored);
    model.Arrange(width, height, dpi);
    const BarView view{model, colors, fonts, {width, height}, hot, focus};
    COutlook2Painter(*canvas, view).DrawBar();
    return canvas;
  }
  COL2SubItem& Entry(int group) { return *model.Entry(EntryTarget(1, group)); }
  // The rows of a column show the gradient.
  void ExpectGradient(const Canvas& canvas, int x, int top, int bottom, ColorPair pair) {
    for (int y = top; y < bottom; ++y)
      ASSERT_EQ(GradientColor(pair.from, pair.to, y - top, bottom - top), canvas.At(x, y)) << x << ", " << y;
  }
  // The part of `rect` that differs from its ground colour.
  static RECT Ink(const Canvas& canvas, const RECT& rect, COLORREF ground) {
    RECT ink{};
    for (LONG y = rect.top; y < rect.bottom; ++y)
      for (LONG x = rect.left; x < rect.right; ++x)
        if (canvas.At(x, y) != ground) {
          const RECT pixel{x, y, x + 1, y + 1};
          ::UnionRect(&ink, &ink, &pixel);
        }
    return ink;
  }

  BarModel model;
  BarColors colors = MakeBarColors(kSystem, false);
  BarFonts fonts;
  bool mirrored = false;
  BarTarget hot, focus;
};

TEST_F(COutlook2PainterTest, DrawsEveryPixel) {
  const auto canvas = Draw();
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x) ASSERT_NE(kGround, canvas->At(x, y)) << x << ", " << y;
}

TEST_F(COutlook2PainterTest, TheTitleIsAGradientOverAllButFourOfItsRowsAndFiveOfItsColumns) {
  const auto canvas = Draw();
  for (const int x : {0, 70, kWidth - 6}) ExpectGradient(*canvas, x, 0, 31, colors.Title());
  for (int y = 31; y < 35; ++y) EXPECT_EQ(kSystem.face, canvas->At(50, y));
  for (int x = kWidth - 5; x < kWidth; ++x) EXPECT_EQ(kSystem.face, canvas->At(x, 15));
}

TEST_F(COutlook2PainterTest, TheTitleTextIsCutWithAnEllipsisBeforeTheStrip) {
  model.AddFolder(L"A title that is much too long for the bar", 0);
  model.AddFolder(L"", 0);
  const auto title = [&](int folder) {
    model.Open(folder);
    const auto whole = Draw();
    auto part = std::make_unique<Canvas>(kWidth, 35, kGround);
    ::BitBlt(*part, 0, 0, kWidth, 35, *whole, 0, 0, SRCCOPY);
    return part;
  };
  const RECT text = title(2)->DifferenceFrom(*title(3));
  EXPECT_GE(text.left, 4);
  EXPECT_LE(text.left, 8);
  EXPECT_LE(text.right, kWidth - 5);
  EXPECT_GT(text.right, kWidth - 40);
  // In the middle of the gradient, but for what letters have below the line.
  EXPECT_NEAR(31, text.top + text.bottom, 6);
}

TEST_F(COutlook2PainterTest, FolderButtonsAreGradientsInADarkInset) {
  hot = FolderTarget(0);
  const auto canvas = Draw();
  for (int folder = 0; folder < 2; ++folder) {
    const IntRect rect = model.Folder(folder)->rect;
    ExpectGradient(*canvas, 100, rect.top + 1, rect.bottom - 1, colors.Folder(folder == 1, folder == 0));
    for (const int x : {rect.left, 100, rect.right - 1}) {
      EXPECT_EQ(colors.captionDark, canvas->At(x, rect.top));
      EXPECT_EQ(colors.captionDark, canvas->At(x, rect.bottom - 1));
    }
    EXPECT_EQ(colors.captionDark, canvas->At(rect.left, rect.top + 10));
    EXPECT_EQ(colors.captionDark, canvas->At(rect.right - 1, rect.top + 10));
    for (int x = rect.right; x < kWidth; ++x) EXPECT_EQ(kSystem.face, canvas->At(x, rect.top + 10));
  }
  hot = FolderTarget(1);
  ExpectGradient(*Draw(), 100, model.Folder(1)->rect.top + 1, model.Folder(1)->rect.bottom - 1, {colors.a, colors.a2});
  ExpectGradient(*Draw(), 100, model.Folder(0)->rect.top + 1, model.Folder(0)->rect.bottom - 1, {colors.c2, colors.c});
}

TEST_F(COutlook2PainterTest, ThreeRowsEndTheButtonsAtTheTop) {
  const auto canvas = Draw();
  const IntRect cap = model.Layout().cap;
  EXPECT_EQ(3, cap.Height());
  ExpectGradient(*canvas, 50, cap.top, cap.bottom, colors.Title());
}

TEST_F(COutlook2PainterTest, ASunkenFrameSurroundsTheArea) {
  const auto canvas = Draw();
  const IntRect area = model.Layout().area;
  const COLORREF shadow = ::GetSysColor(COLOR_3DSHADOW), light = ::GetSysColor(COLOR_3DHIGHLIGHT);
  EXPECT_EQ(shadow, canvas->At(50, area.top));
  EXPECT_EQ(shadow, canvas->At(0, 200));
  EXPECT_EQ(light, canvas->At(50, area.bottom - 1));
  EXPECT_EQ(light, canvas->At(area.right - 1, 200));
  EXPECT_EQ(kSystem.face, canvas->At(50, area.bottom - 2));
}

TEST_F(COutlook2PainterTest, LinesDivideNamelessGroups) {
  const auto canvas = Draw();
  const COLORREF line = ::GetSysColor(COLOR_3DDKSHADOW);
  ASSERT_NE(kSystem.face, line);
  EXPECT_EQ(line, canvas->At(50, model.Group(1, 1)->rect.top));
  EXPECT_EQ(kSystem.face, canvas->At(50, model.Group(1, 1)->rect.top - 1));
  EXPECT_EQ(kSystem.face, canvas->At(50, model.Group(1, 1)->rect.bottom));
}

TEST_F(COutlook2PainterTest, HeadersAreGradientsFromFaceToCaption) {
  model.AddGroup(L" ", 0);  // a text of nothing to be seen
  const auto canvas = Draw();
  const IntRect rect = model.Group(1, 3)->rect;
  EXPECT_EQ(18, rect.Height());
  ExpectGradient(*canvas, 50, rect.top, rect.bottom, {kSystem.face, kSystem.activeCaption});
}

TEST_F(COutlook2PainterTest, ACheckedEntryIsPressedAndItsTextMoves) {
  Entry(1).text = L"I";
  const auto plain = Draw();
  const IntRect place = Entry(1).rect;
  const RECT inside{place.left + 2, place.top + 2, place.right - 2, place.bottom - 2};
  const RECT text = Ink(*plain, inside, kSystem.face);
  EXPECT_GE(text.left, place.left + 28);
  Entry(1).probeBits = COL2CCmdUI::kChecked;
  const auto pressed = Draw();
  RECT moved = Ink(*pressed, inside, kSystem.face);
  ::OffsetRect(&moved, -1, -1);
  EXPECT_TRUE(::EqualRect(&text, &moved));
  EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), pressed->At(50, place.top));
  EXPECT_EQ(::GetSysColor(COLOR_3DHIGHLIGHT), pressed->At(50, place.bottom - 1));
  for (const int bits : {COL2CCmdUI::kEnabled, COL2CCmdUI::kRadio}) {
    Entry(1).probeBits = bits;
    const RECT same = Draw()->DifferenceFrom(*plain);
    EXPECT_TRUE(::IsRectEmpty(&same));
  }
}

TEST_F(COutlook2PainterTest, AHotEntryIsUnderlined) {
  Entry(0).text = L"link";
  const auto plain = Draw();
  hot = EntryTarget(1, 0);
  const RECT line = Draw()->DifferenceFrom(*plain);
  EXPECT_FALSE(::IsRectEmpty(&line));
  EXPECT_LE(line.bottom - line.top, 2);
  EXPECT_GE(line.left, Entry(0).rect.left + 28);
}

TEST_F(COutlook2PainterTest, AnEntrysPictureStandsInABoxOfFourteen) {
  auto image = std::make_shared<AlphaImage>();
  ASSERT_TRUE(image->Load(321, 322, 96));
  Entry(0).image = image;
  const auto canvas = Draw();
  const IntRect place = Entry(0).rect;
  const RECT ink = Ink(*canvas, {place.left, place.top, place.right, place.bottom}, kSystem.face);
  EXPECT_GE(ink.left, place.left + 8);
  EXPECT_LE(ink.right, place.left + 22);
  EXPECT_GE(ink.top, place.top + 3);  // centred in the height of 21
  EXPECT_LE(ink.bottom, place.top + 18);
  EXPECT_GE(ink.right - ink.left, 10);
}

TEST_F(COutlook2PainterTest, AnEntrysIconFillsTheBoxAndNoMore) {
  std::vector<DWORD> red(16 * 16, 0xFFFF0000);
  std::vector<BYTE> opaque(16 * 2, 0);
  const GdiBitmap color(::CreateBitmap(16, 16, 1, 32, red.data())), mask(::CreateBitmap(16, 16, 1, 1, opaque.data()));
  ICONINFO description{TRUE, 0, 0, mask.Get(), color.Get()};
  Entry(0).icon =
      OwnedHandle(::CreateIconIndirect(&description), [](void* icon) { ::DestroyIcon(static_cast<HICON>(icon)); });
  const auto canvas = Draw();
  const IntRect place = Entry(0).rect;
  const RECT ink = Ink(*canvas, {place.left, place.top, place.right, place.bottom}, kSystem.face);
  const RECT box{place.left + 8, place.top + 3, place.left + 22, place.top + 17};
  EXPECT_TRUE(::EqualRect(&box, &ink)) << ink.left << ' ' << ink.top << ' ' << ink.right << ' ' << ink.bottom;
}

TEST_F(COutlook2PainterTest, NarrowElementsHaveNoPicture) {
  auto image = std::make_shared<AlphaImage>();
  ASSERT_TRUE(image->Load(321, 322, 96));
  const auto entryInk = [&](int width) {
    Entry(0).image = image;
    const auto with = Draw(width);
    Entry(0).image = nullptr;
    const RECT difference = with->DifferenceFrom(*Draw(width));
    return !::IsRectEmpty(&difference);
  };
  EXPECT_TRUE(entryInk(25 + 6));  // 4 beside the area, and its frame
  EXPECT_FALSE(entryInk(24 + 6));
  const auto folderInk = [&](int width) {
    model.AddFolder(L"", 0).image = image;
    const auto with = Draw(width);
    const IntRect rect = model.Folder(static_cast<int>(model.Folders().size()) - 1)->rect;
    bool ink = false;
    for (int y = rect.top + 1; y < rect.bottom - 1; ++y)
      for (int x = rect.left + 2; x < rect.right - 1; ++x) ink |= with->At(x, y) != with->At(rect.left + 1, y);
    return ink;
  };
  EXPECT_TRUE(folderInk(20 + 6));
  EXPECT_FALSE(folderInk(19 + 6));
}

TEST_F(COutlook2PainterTest, AFoldersPictureIsSixteenFromItsCorner) {
  std::vector<DWORD> red(16 * 16, 0xFF0000);
  const GdiBitmap bitmap(::CreateBitmap(16, 16, 1, 32, red.data()));
  model.AddFolder(L"", 0).image = std::make_shared<AlphaImage>(MakeAlphaImage(bitmap.Get(), nullptr));
  const auto canvas = Draw();
  const IntRect rect = model.Folder(2)->rect;
  const int left = rect.left + 1 + 4, top = rect.top + 1 + 3;
  EXPECT_EQ(RGB(255, 0, 0), canvas->At(left, top));
  EXPECT_EQ(RGB(255, 0, 0), canvas->At(left + 15, top + 15));
  EXPECT_NE(RGB(255, 0, 0), canvas->At(left - 1, top));
  EXPECT_NE(RGB(255, 0, 0), canvas->At(left, top - 1));
  EXPECT_NE(RGB(255, 0, 0), canvas->At(left + 16, top));
  EXPECT_NE(RGB(255, 0, 0), canvas->At(left, top + 16));
}

TEST_F(COutlook2PainterTest, RadioButtonsAndCheckBoxesHaveAMarkOfTwelve) {
  for (const BarEntryKind kind : {BarEntryKind::Radio, BarEntryKind::Check}) {
    Entry(1).kind = kind;
    const auto off = Draw();
    const IntRect place = Entry(1).rect;
    const RECT all{place.left, place.top, place.right, place.bottom};
    const RECT ink = Ink(*off, all, kSystem.face);
    const RECT box{place.left + 8, place.top + 2, place.left + 20, place.top + 14};
    RECT both;
    ::UnionRect(&both, &ink, &box);
    EXPECT_TRUE(::EqualRect(&both, &box)) << ink.left << ' ' << ink.top << ' ' << ink.right << ' ' << ink.bottom;
    EXPECT_GE(ink.right - ink.left, 10);
    Entry(1).probeBits = kind == BarEntryKind::Radio ? COL2CCmdUI::kRadio : COL2CCmdUI::kChecked;
    const RECT mark = Draw()->DifferenceFrom(*off);
    EXPECT_FALSE(::IsRectEmpty(&mark));
    Entry(1).probeBits = 0;
  }
}

// The states in which marks were drawn.
std::vector<UINT> markStates;
BOOL WINAPI NoteMark(HDC, RECT*, UINT, UINT state) {
  markStates.push_back(state);
  return TRUE;
}

TEST_F(COutlook2PainterTest, MarksAreHotAndCheckedAsTheirEntryIs) {
  const struct {
    BarEntryKind kind;
    UINT mark;
  } rows[] = {{BarEntryKind::Radio, DFCS_BUTTONRADIO}, {BarEntryKind::Check, DFCS_BUTTONCHECK}};
  ASSERT_GT(PatchImport("user32.dll", "DrawFrameControl", reinterpret_cast<void*>(&NoteMark)), 0);
  for (const auto& row : rows)
    for (const UINT hotState : {0, DFCS_HOT})
      for (const UINT checkedState : {0, DFCS_CHECKED}) {
        Entry(1).kind = row.kind;
        Entry(1).probeBits = checkedState ? COL2CCmdUI::kChecked : 0;
        hot = hotState ? EntryTarget(1, 1) : BarTarget();
        markStates.clear();
        Draw();
        EXPECT_EQ((std::vector<UINT>{row.mark | hotState | checkedState}), markStates);
      }
  RestoreImport("user32.dll", "DrawFrameControl");
}

TEST_F(COutlook2PainterTest, TextsHaveTheirColors) {
  const auto has = [&](COLORREF color) {
    const auto canvas = Draw();
    const IntRect place = Entry(0).rect;
    for (int y = place.top; y < place.bottom; ++y)
      for (int x = place.left + 26; x < place.right; ++x)
        if (canvas->At(x, y) == color) return true;
    return false;
  };
  Entry(0).text = L"HHHHHH";
  EXPECT_TRUE(has(kSystem.buttonText));
  Entry(0).kind = BarEntryKind::Link;
  EXPECT_TRUE(has(kSystem.captionText));
  EXPECT_FALSE(has(kSystem.buttonText));
  Entry(0).kind = BarEntryKind::Radio;
  EXPECT_TRUE(has(kSystem.window));
  Entry(0).kind = BarEntryKind::Check;
  EXPECT_TRUE(has(kSystem.window));
}

// Texts without smoothing, so that every pixel of them has their colour, in fonts that are all unlike each other.
class COutlook2PainterText : public COutlook2PainterTest {
 protected:
  static constexpr wchar_t kText[] = L"Text";

  COutlook2PainterText() {
    fonts.normal = Hard(-11, 400, false);
    fonts.underlined = Hard(-11, 400, true);
    fonts.bold = Hard(-11, 600, false);
    fonts.title = Hard(20, 600, false);
  }
  static GdiFont Hard(int height, int weight, bool underlined) {
    return DeriveFont(nullptr, [=](LOGFONTW& font) {
      font.lfHeight = height;
      font.lfWeight = weight;
      font.lfUnderline = underlined;
      font.lfQuality = NONANTIALIASED_QUALITY;
    });
  }

  // Within `rect` the pictures differ by the text alone, which begins `left` from its left, in the middle of its
  // height.
  void ExpectText(const Canvas& without, const Canvas& with, const IntRect& rect, int left, const GdiFont& font,
                  COLORREF color) {
    const Canvas text(kWidth, kHeight, kGround);
    {
      const SelectScope selected(text, font.Get());
      ::SetBkMode(text, TRANSPARENT);
      RECT place{rect.left + left, rect.top, rect.right, rect.bottom};
      ::DrawTextW(text, kText, -1, &place, DT_SINGLELINE | DT_VCENTER);
    }
    int inked = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
      for (int x = rect.left; x < rect.right; ++x) {
        const bool ink = text.At(x, y) != kGround;
        inked += ink;
        ASSERT_EQ(ink ? color : without.At(x, y), with.At(x, y)) << x << ", " << y;
      }
    EXPECT_GT(inked, 20);
  }
};

TEST_F(COutlook2PainterText, TheTitleBeginsFourFromTheLeftInTheWindowColor) {
  model.AddFolder(L"", 0);
  model.AddFolder(kText, 0);
  model.Open(2);
  const auto without = Draw();
  model.Open(3);
  ExpectText(*without, *Draw(), model.Layout().title, 4, fonts.title, kSystem.window);
}

TEST_F(COutlook2PainterText, AFoldersTextIsBoldAndBeginsTwentyFourFromTheLeft) {
  COL2Folder& folder = model.AddFolder(L"", 0);
  const auto without = Draw();
  folder.text = kText;
  const auto with = Draw();
  const IntRect inside{folder.rect.left + 1, folder.rect.top + 1, folder.rect.right - 1, folder.rect.bottom - 1};
  ExpectText(*without, *with, inside, 24, fonts.bold, kSystem.buttonText);
}

TEST_F(COutlook2PainterText, AHeadersTextBeginsFourFromTheLeftInTheCaptionTextColor) {
  COL2Item& group = *model.AddGroup(L" ", 0);
  const auto without = Draw();
  group.text = kText;
  ExpectText(*without, *Draw(), group.rect, 4, fonts.normal, kSystem.captionText);
}

TEST_F(COutlook2PainterText, AnEntrysTextBeginsTwentyEightFromTheLeft) {
  struct Row {
    BarEntryKind kind;
    bool isHot;
    const GdiFont& font;
    COLORREF color;
  };
  const Row rows[] = {{BarEntryKind::Plain, false, fonts.normal, kSystem.buttonText},
                      {BarEntryKind::Plain, true, fonts.underlined, kSystem.buttonText},
                      {BarEntryKind::Radio, false, fonts.normal, kSystem.window},
                      {BarEntryKind::Check, true, fonts.normal, kSystem.window},
                      {BarEntryKind::Link, true, fonts.normal, kSystem.captionText}};
  for (const Row& row : rows) {
    Entry(0).kind = row.kind;
    hot = row.isHot ? EntryTarget(1, 0) : BarTarget();
    Entry(0).text = L"";
    const auto without = Draw();
    Entry(0).text = kText;
    ExpectText(*without, *Draw(), Entry(0).rect, 28, row.font, row.color);
  }
}

TEST_F(COutlook2PainterTest, AnAmpersandIsALetter) {
  const auto blank = Draw();
  Entry(0).text = L"&";
  const RECT ink = Draw()->DifferenceFrom(*blank);
  EXPECT_GE(ink.right - ink.left, 4);
  EXPECT_GE(ink.bottom - ink.top, 6);
}

TEST_F(COutlook2PainterTest, ABarOfFourPixelsIsItsGroundOnly) {
  for (const int dpi : {96, 192}) {
    const int width = 4 * dpi / 96;
    const auto canvas = Draw(width, 300, dpi);
    for (int y = 0; y < 300; ++y)
      for (int x = 0; x < width; ++x) ASSERT_EQ(kSystem.face, canvas->At(x, y));
  }
}

TEST_F(COutlook2PainterTest, ACutEntryIsDrawnAsIfItWereWhole) {
  for (int group = 0; group < 3; ++group) Entry(group).text = L"Entry";
  const auto whole = Draw();
  const int cut = Entry(2).rect.top + 12;
  const auto low = Draw(kWidth, cut + 1 + 3 + 2 * 24);
  ASSERT_EQ(cut, Entry(2).rect.bottom);
  for (int y = Entry(2).rect.top; y < cut; ++y)
    for (int x = 1; x < 144; ++x) ASSERT_EQ(whole->At(x, y), low->At(x, y)) << x << ", " << y;
}

TEST_F(COutlook2PainterTest, MirroredEverythingStandsOnTheOtherSide) {
  const auto plain = Draw();
  mirrored = true;
  const auto other = Draw();
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x) ASSERT_EQ(plain->At(x, y), other->At(kWidth - 1 - x, y)) << x << ", " << y;
}

TEST_F(COutlook2PainterTest, MirroredTextsBeginAtTheRight) {
  Entry(0).text = L"Text";
  mirrored = true;
  const auto canvas = Draw();
  const IntRect place = Entry(0).rect;
  const RECT ink = Ink(*canvas, {kWidth - place.right, place.top, kWidth - place.left, place.bottom}, kSystem.face);
  EXPECT_LE(ink.right, kWidth - place.left - 28 + 1);
  EXPECT_GE(ink.right, kWidth - place.left - 28 - 4);
}

TEST_F(COutlook2PainterTest, DoubleTheDpiIsDoubleTheSize) {
  const auto canvas = Draw(2 * kWidth, 2 * kHeight, 192);
  ExpectGradient(*canvas, 100, 0, 62, colors.Title());
  EXPECT_EQ(kSystem.face, canvas->At(2 * kWidth - 10, 20));
  const IntRect rect = model.Folder(0)->rect;
  EXPECT_EQ(48, rect.Height());
  EXPECT_EQ(colors.captionDark, canvas->At(100, rect.top + 1));
  ExpectGradient(*canvas, 100, rect.top + 2, rect.bottom - 2, colors.Folder(false, false));
  EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), canvas->At(1, 300));
  EXPECT_EQ(kSystem.face, canvas->At(2, 400));
}

TEST_F(COutlook2PainterTest, HighContrastHasNoGradients) {
  colors = MakeBarColors(kSystem, true);
  const auto canvas = Draw();
  for (int y = 0; y < 31; ++y) EXPECT_EQ(kSystem.activeCaption, canvas->At(50, y));
  const IntRect open = model.Folder(1)->rect, closed = model.Folder(0)->rect;
  for (int y = 1; y < 23; ++y) {
    EXPECT_EQ(kSystem.highlight, canvas->At(100, open.top + y));
    EXPECT_EQ(kSystem.face, canvas->At(100, closed.top + y));
  }
}

TEST_F(COutlook2PainterTest, TheFocusIsDrawnWithinItsElement) {
  const auto plain = Draw();
  for (const BarTarget& target : {EntryTarget(1, 1), FolderTarget(0)}) {
    focus = target;
    const RECT box = Draw()->DifferenceFrom(*plain);
    const IntRect rect = model.RectOf(target);
    EXPECT_LT(rect.left, box.left);
    EXPECT_LT(rect.top, box.top);
    EXPECT_GT(rect.right, box.right);
    EXPECT_GT(rect.bottom, box.bottom);
    EXPECT_GT(box.right - box.left, rect.Width() - 10);
  }
}

TEST_F(COutlook2PainterTest, TheSurfaceIsLeftAsItWas) {
  const Canvas canvas(kWidth, kHeight, kGround);
  const HGDIOBJ font = ::GetCurrentObject(canvas, OBJ_FONT);
  ::SetTextColor(canvas, RGB(9, 8, 7));
  model.Arrange(kWidth, kHeight, 96);
  const BarView view{model, colors, fonts, {kWidth, kHeight}, hot, focus};
  { COutlook2Painter(canvas, view).DrawBar(); }
  EXPECT_EQ(font, ::GetCurrentObject(canvas, OBJ_FONT));
  EXPECT_EQ(RGB(9, 8, 7), ::GetTextColor(canvas));
  EXPECT_EQ(OPAQUE, ::GetBkMode(canvas));
}

}  // namespace
