#include <memory>

#include "ControlDialog.h"
#include "controls/CFontPreview.h"
#include "controls/CFormFieldsPreview.h"
#include "PlatformSpy.h"
#include "support/Accessible.h"
#include "support/Canvas.h"

namespace {

constexpr int kId = 1327;
constexpr int kWidth = 200, kHeight = 60;
constexpr COLORREF kWhite = RGB(255, 255, 255), kRed = RGB(255, 0, 0), kGreen = RGB(0, 200, 0);
constexpr COLORREF kNone = 0xFFFFFFFF, kDefault = 0xFF000000;

// --- Font preview ---------------------------------------------------------------------------------------------------

class FontPage {
 public:
  explicit FontPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight) : page(layout) {
    page.ground = kMarkedGround;
    control = page.Add(L"BUTTON", L"", BS_OWNERDRAW, kId, {10, 10, 10 + kWidth, 10 + kHeight});
    preview.faceName = L"Tahoma";
    preview.pointSize = 12;
    EXPECT_TRUE(preview.Attach(page, kId));
  }
  Picture Look() const { return Paint(control); }
  RECT Ink() const { return Inked(Look(), kWhite); }

  ControlDialog page;
  CWnd control;
  CFontPreview preview;
};

// The fonts that were made since the last clear().
std::vector<LOGFONTW> madeFonts;
HFONT WINAPI NoteFont(const LOGFONTW* font) {
  madeFonts.push_back(*font);
  return RealFunction("gdi32.dll", "CreateFontIndirectW", &NoteFont)(font);
}

class FontSpy {
 public:
  FontSpy() {
    madeFonts.clear();
    PatchImport("gdi32.dll", "CreateFontIndirectW", reinterpret_cast<void*>(&NoteFont));
  }
  ~FontSpy() { RestoreImport("gdi32.dll", "CreateFontIndirectW"); }
};

TEST(CFontPreview, ShowsAnExampleAtFirst) {
  const CFontPreview preview;
  EXPECT_STREQ(L"Example", preview.sampleText.Text());
  EXPECT_FALSE(preview.bold || preview.italic || preview.underline);
}

TEST(CFontPreview, MakesTheFont) {
  const struct {
    double size;
    bool bold, italic, underline;
    int dpi, height, weight;
  } rows[] = {{12, false, false, false, 96, -16, 400},  {12.5, true, false, false, 96, -16, 700},
              {12.9, false, true, false, 96, -16, 400}, {9, false, false, true, 96, -12, 400},
              {72, true, true, true, 96, -96, 700},     {12, false, false, false, 192, -32, 400}};
  for (const auto& row : rows) {
    const DpiScope dpi(static_cast<UINT>(row.dpi));
    FontPage test;
    test.preview.pointSize = row.size;
    test.preview.bold = row.bold;
    test.preview.italic = row.italic;
    test.preview.underline = row.underline;
    const FontSpy spy;
    test.Look();
    ASSERT_EQ(1u, madeFonts.size());
    EXPECT_EQ(row.height, madeFonts[0].lfHeight) << row.size;
    EXPECT_EQ(row.weight, madeFonts[0].lfWeight) << row.size;
    EXPECT_EQ(row.italic, madeFonts[0].lfItalic != 0) << row.size;
    EXPECT_EQ(row.underline, madeFonts[0].lfUnderline != 0) << row.size;
    EXPECT_STREQ(L"Tahoma", madeFonts[0].lfFaceName);
  }
}

TEST(CFontPreview, CutsALongFaceName) {
  FontPage test;
  test.preview.faceName = std::wstring(100, L'x').c_str();
  const FontSpy spy;
  test.Look();
  ASSERT_EQ(1u, madeFonts.size());
  EXPECT_EQ(LF_FACESIZE - 1, lstrlenW(madeFonts[0].lfFaceName));
}

TEST(CFontPreview, DrawsCentredOnWhite) {
  FontPage test;
  test.preview.sampleText = L"HHHH";
  const Picture picture = test.Look();
  for (const int y : {0, kHeight - 1})
    for (const int x : {0, kWidth - 1}) EXPECT_EQ(PixelOf(kWhite), picture.At(x, y));
  const RECT ink = test.Ink();
  EXPECT_NEAR(ink.left, kWidth - ink.right, 3);
  EXPECT_NEAR(ink.top, kHeight - ink.bottom, 5);
}

TEST(CFontPreview, DrawsInTheColour) {
  FontPage test;
  const struct { COLORREF colour, drawn; } rows[] = {{kRed, kRed}, {kGreen, kGreen}, {0, 0}, {kDefault, 0}};
  for (const auto& row : rows) {
    test.preview.colour = row.colour;
    EXPECT_GT(CountPixels(test.Look(), row.drawn), 5);
  }
}

TEST(CFontPreview, StaysOnOneLine) {
  FontPage test;
  test.preview.sampleText = L"first & second\nthird words that are more than one line can ever hold of them";
  const RECT ink = test.Ink();
  EXPECT_LT(ink.bottom - ink.top, 24);
  EXPECT_GT(ink.right - ink.left, kWidth * 3 / 4);
}

TEST(CFontPreview, LargerSizesAreLarger) {
  FontPage test;
  const RECT small = test.Ink();
  test.preview.pointSize = 24;
  const RECT large = test.Ink();
  EXPECT_GT(large.right - large.left, (small.right - small.left) * 3 / 2);
}

TEST(CFontPreview, HasSystemColorsInHighContrast) {
  const SystemColorScope colors({{COLOR_WINDOW, RGB(1, 2, 3)}, {COLOR_WINDOWTEXT, RGB(250, 251, 252)}});
  const HighContrastScope contrast;
  FontPage test;
  test.preview.colour = kRed;
  const Picture picture = test.Look();
  EXPECT_EQ(PixelOf(RGB(1, 2, 3)), picture.At(0, 0));
  EXPECT_GT(CountPixels(picture, RGB(250, 251, 252)), 5);
  EXPECT_EQ(0, CountPixels(picture, kRed));
}

TEST(CFontPreview, CannotBePressed) {
  FontPage test;
  EXPECT_EQ(HTTRANSPARENT, test.control.Send(WM_NCHITTEST, 0, 0));
  EXPECT_EQ(DLGC_STATIC, test.control.Send(WM_GETDLGCODE));
}

TEST(CFontPreview, IsATextForScreenReaders) {
  const ComScope com;
  FontPage test;
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(L"Example", reader.Name(0));
  EXPECT_EQ(ROLE_SYSTEM_STATICTEXT, reader.Role(0));
  EXPECT_TRUE(reader.State(0) & STATE_SYSTEM_READONLY);
}

// --- Form field preview ---------------------------------------------------------------------------------------------

class FieldPage {
 public:
  explicit FieldPage(FormFieldKind kind, ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight)
      : page(layout), preview(kind) {
    control = page.Add(L"STATIC", L"", 0, kId, {10, 10, 10 + kWidth, 10 + kHeight});
    EXPECT_TRUE(preview.Attach(page, kId));
  }
  Picture Look() const { return Paint(control); }

  ControlDialog page;
  CWnd control;
  CFormFieldsPreview preview;
};

constexpr FormFieldKind kKinds[] = {FormFieldKind::Text, FormFieldKind::CheckBox, FormFieldKind::Dropdown};
constexpr COLORREF kWindow = RGB(240, 245, 250);

TEST(CFormFieldsPreview, KindsHaveTheirNumbers) {
  EXPECT_EQ(0, static_cast<int>(FormFieldKind::Text));
  EXPECT_EQ(1, static_cast<int>(FormFieldKind::CheckBox));
  EXPECT_EQ(2, static_cast<int>(FormFieldKind::Dropdown));
}

TEST(CFormFieldsPreview, HasNoColoursAtFirst) {
  const CFormFieldsPreview preview(FormFieldKind::Text);
  EXPECT_EQ(kNone, preview.BorderColour());
  EXPECT_EQ(kNone, preview.BackgroundColour());
}

TEST(CFormFieldsPreview, TakesThePickersMarkForNone) {
  FieldPage test(FormFieldKind::Text);
  test.preview.SetColours(kRed, kGreen);
  EXPECT_EQ(kRed, test.preview.BorderColour());
  EXPECT_EQ(kGreen, test.preview.BackgroundColour());
  test.control.Redraw();
  test.preview.SetColours(kDefault, kDefault);
  EXPECT_EQ(kNone, test.preview.BorderColour());
  EXPECT_EQ(kNone, test.preview.BackgroundColour());
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
}

TEST(CFormFieldsPreview, GroundIsTheWindowsOrItsOwn) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  for (const FormFieldKind kind : kKinds) {
    FieldPage test(kind);
    for (const POINT point : {POINT{0, 0}, POINT{0, kHeight - 1}, POINT{kWidth - 1, 0}, POINT{100, 10}}) {
      test.preview.SetColours(kNone, kNone);
      EXPECT_EQ(PixelOf(kWindow), test.Look().At(point.x, point.y));
      test.preview.SetColours(kNone, kGreen);
      EXPECT_EQ(PixelOf(kGreen), test.Look().At(point.x, point.y));
    }
  }
}

TEST(CFormFieldsPreview, BorderIsAroundTheWhole) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  for (const FormFieldKind kind : kKinds) {
    FieldPage test(kind);
    for (const COLORREF background : {kNone, kGreen}) {
      test.preview.SetColours(kRed, background);
      const Picture picture = test.Look();
      for (int x = 0; x < kWidth; ++x)
        for (const int y : {0, 1, kHeight - 2, kHeight - 1}) ASSERT_EQ(PixelOf(kRed), picture.At(x, y)) << x;
      for (int y = 0; y < kHeight; ++y)
        for (const int x : {0, 1, kWidth - 2, kWidth - 1}) ASSERT_EQ(PixelOf(kRed), picture.At(x, y)) << y;
      const uint32_t ground = PixelOf(background == kNone ? kWindow : background);
      EXPECT_EQ(ground, picture.At(3, 3)) << "hollow";
      // One of the pen's three pixels lies outside.
      EXPECT_EQ(ground, picture.At(2, 2));
      EXPECT_EQ(ground, picture.At(2, kHeight - 3));
    }
  }
}

TEST(CFormFieldsPreview, TextStandsAtTheLeft) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  for (const FormFieldKind kind : {FormFieldKind::Text, FormFieldKind::Dropdown}) {
    FieldPage test(kind);
    const Picture text = Cut(test.Look(), {0, 0, kWidth - 20, kHeight});
    const RECT ink = Inked(text, kWindow);
    EXPECT_NEAR(5, ink.left, 2);
    EXPECT_NEAR(ink.top, kHeight - ink.bottom, 5) << "centred";
    EXPECT_LT(ink.right, 60);
    EXPECT_GT(CountPixels(text, 0), 10);
  }
}

// The texts that were drawn since the last clear().
std::vector<std::wstring> drawnTexts;
int WINAPI NoteText(HDC dc, LPCWSTR text, int length, RECT* rect, UINT format) {
  drawnTexts.emplace_back(text, static_cast<size_t>(length));
  return RealFunction("user32.dll", "DrawTextW", &NoteText)(dc, text, length, rect, format);
}

TEST(CFormFieldsPreview, TheSampleIsTheWordText) {
  PatchImport("user32.dll", "DrawTextW", reinterpret_cast<void*>(&NoteText));
  for (const FormFieldKind kind : kKinds) {
    FieldPage test(kind);
    drawnTexts.clear();
    test.Look();
    if (kind == FormFieldKind::CheckBox)
      EXPECT_TRUE(drawnTexts.empty());
    else
      EXPECT_EQ(std::vector<std::wstring>{L"Text"}, drawnTexts);
  }
  RestoreImport("user32.dll", "DrawTextW");
}

TEST(CFormFieldsPreview, FontIsTheNamedOne) {
  for (const int dpi : {96, 192}) {
    const DpiScope scope(static_cast<UINT>(dpi));
    const FontSpy spy;
    FieldPage test(FormFieldKind::Text);
    ASSERT_FALSE(madeFonts.empty());
    EXPECT_STREQ(L"Times New Roman", madeFonts.back().lfFaceName);
    EXPECT_EQ(20 * dpi / 96, madeFonts.back().lfHeight);
  }
}

TEST(CFormFieldsPreview, CrossGoesFromCornerToCorner) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  FieldPage test(FormFieldKind::CheckBox);
  const Picture picture = test.Look();
  const RECT ink = Inked(picture, kWindow);
  EXPECT_NEAR(5, ink.left, 1);
  EXPECT_NEAR(5, ink.top, 1);
  EXPECT_NEAR(kWidth - 5, ink.right, 1);
  EXPECT_NEAR(kHeight - 5, ink.bottom, 1);
  EXPECT_EQ(PixelOf(0), picture.At(kWidth / 2, kHeight / 2));
  for (int x = 20; x < kWidth - 20; ++x) {
    int black = 0;
    for (int y = 0; y < kHeight; ++y) black += picture.At(x, y) == PixelOf(0);
    EXPECT_GE(black, 2) << x;
    EXPECT_LE(black, 6) << x;
  }
  EXPECT_EQ(PixelOf(kWindow), picture.At(kWidth / 2, 10)) << "no other lines";
}

TEST(CFormFieldsPreview, DropdownHasAButton) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  FieldPage test(FormFieldKind::Dropdown);
  const Picture picture = test.Look();
  const RECT ink = Inked(Cut(picture, {100, 0, kWidth, kHeight}), kWindow);
  EXPECT_EQ(kWidth - 100 - 2 - 15, ink.left);
  EXPECT_EQ(kWidth - 100 - 2, ink.right);
  EXPECT_EQ(2, ink.top);
  EXPECT_EQ(kHeight - 2, ink.bottom);
}

TEST(CFormFieldsPreview, TheButtonIsThatOfAScrollBarDownwards) {
  FieldPage test(FormFieldKind::Dropdown);
  const Picture look = test.Look();
  const Canvas expected(15, kHeight - 4, kMarkedGround);
  RECT button{0, 0, expected.Width(), expected.Height()};
  DrawFrameControl(expected, &button, DFC_SCROLL, DFCS_SCROLLDOWN);
  for (int y = 0; y < expected.Height(); ++y)
    for (int x = 0; x < expected.Width(); ++x)
      ASSERT_EQ(PixelOf(expected.At(x, y)), look.At(kWidth - 2 - 15 + x, 2 + y)) << x << ' ' << y;
}

TEST(CFormFieldsPreview, OnlyADropdownHasAButton) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  FieldPage test(FormFieldKind::Text);
  EXPECT_EQ(0, Inked(Cut(test.Look(), {100, 0, kWidth, kHeight}), kWindow).right);
}

TEST(CFormFieldsPreview, GrowsWithTheDpi) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  const DpiScope dpi(192);
  FieldPage test(FormFieldKind::Dropdown);
  test.preview.SetColours(kNone, kNone);
  const RECT ink = Inked(Cut(test.Look(), {100, 0, kWidth, kHeight}), kWindow);
  EXPECT_EQ(kWidth - 100 - 4 - 30, ink.left);
  EXPECT_EQ(4, ink.top);
}

TEST(CFormFieldsPreview, IsMirrored) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}});
  FieldPage test(FormFieldKind::Dropdown, ControlDialog::Layout::RightToLeft);
  const RECT ink = Inked(Cut(test.Look(), {0, 0, 100, kHeight}), kWindow);
  EXPECT_EQ(2, ink.left) << "the button is at the left";
}

TEST(CFormFieldsPreview, IsGreyWhenDisabled) {
  const SystemColorScope colors({{COLOR_WINDOW, kWindow}, {COLOR_GRAYTEXT, RGB(111, 112, 113)}});
  for (const FormFieldKind kind : {FormFieldKind::Text, FormFieldKind::CheckBox}) {
    FieldPage test(kind);
    test.control.Enable(false);
    const Picture picture = test.Look();
    EXPECT_GT(CountPixels(picture, RGB(111, 112, 113)), 10);
    EXPECT_EQ(0, CountPixels(picture, 0));
  }
}

TEST(CFormFieldsPreview, CanBeSeenInHighContrast) {
  const SystemColorScope colors({{COLOR_WINDOW, RGB(0, 0, 0)}, {COLOR_WINDOWTEXT, RGB(250, 251, 252)}});
  const HighContrastScope contrast;
  for (const FormFieldKind kind : {FormFieldKind::Text, FormFieldKind::CheckBox}) {
    FieldPage test(kind);
    EXPECT_GT(CountPixels(test.Look(), RGB(250, 251, 252)), 10);
    test.preview.SetColours(kNone, kGreen);
    EXPECT_GT(CountPixels(test.Look(), 0), 10) << "on a ground of its own as in the document";
  }
}

TEST(CFormFieldsPreview, SaysItsColours) {
  const ComScope com;
  FieldPage test(FormFieldKind::Text);
  const Accessible reader(test.control.Handle());
  ASSERT_TRUE(reader);
  EXPECT_EQ(L"Preview", reader.Name(0));
  EXPECT_EQ(ROLE_SYSTEM_GRAPHIC, reader.Role(0));
  EXPECT_EQ(L"Border: No Color, background: No Color", reader.Value(0));
  test.preview.SetColours(0x0000FF, 0x123456);
  EXPECT_EQ(L"Border: Red, background: User-defined (R: 86, G: 52, B: 18)", reader.Value(0));
}

}  // namespace
