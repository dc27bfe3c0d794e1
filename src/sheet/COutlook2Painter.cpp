#include "sheet/COutlook2Painter.h"

#include "sheet/COL2CCmdUI.h"
#include "window/AlphaImage.h"

namespace {

// At 96 dpi, from the element's corner.
constexpr int kTextLeft = 4;  // of title and headers
constexpr int kFolderInset = 1;
constexpr int kFolderPictureLeft = 4;
constexpr int kFolderPictureTop = 3;
constexpr int kPictureSize = 16;
constexpr int kFolderPictureWidth = 20;  // a narrower button has no picture
constexpr int kFolderTextLeft = 24;
constexpr int kEntryPictureLeft = 8;
constexpr int kEntryPictureSize = 14;
constexpr int kEntryPictureWidth = 25;
constexpr int kEntryTextLeft = 28;
constexpr int kMarkLeft = 8;
constexpr int kMarkTop = 2;
constexpr int kMarkSize = 12;
constexpr int kPressedOffset = 1;
constexpr int kFocusInset = 2;
constexpr int kFrame = 1;

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

int Width(const RECT& rect) { return rect.right - rect.left; }

RECT Square(int left, int top, int size) { return {left, top, left + size, top + size}; }

// A square in the middle of another one.
RECT Centered(const RECT& box, int size) {
  return Square(box.left + (Width(box) - size) / 2, box.top + (box.bottom - box.top - size) / 2, size);
}

}  // namespace

COutlook2Painter::COutlook2Painter(HDC dc, const BarView& view) : dc_(dc), view_(view), saved_(::SaveDC(dc)) {
  ::SetBkMode(dc, TRANSPARENT);
}

COutlook2Painter::~COutlook2Painter() { ::RestoreDC(dc_, saved_); }

void COutlook2Painter::DrawBar() {
  Fill({0, 0, view_.client.cx, view_.client.cy}, view_.colors.face);
  if (view_.client.cx <= Scale(BarModel::kNarrowest)) return;
  DrawTitle();
  DrawFolders();
  DrawArea();
}

void COutlook2Painter::DrawElement(const BarTarget& target) {
  if (target.hit == BarHit::Folder)
    DrawFolder(target.folder);
  else if (target.hit == BarHit::Entry)
    DrawEntry(target);
}

// --- Parts ---------------------------------------------------------------------------------------------------------

void COutlook2Painter::DrawTitle() {
  RECT rect = ToRect(view_.model.Layout().title);
  FillGradient(rect, view_.colors.Title());
  rect.left += Scale(kTextLeft);
  DrawLabel(view_.model.Title(), rect, view_.fonts.title.Get(), view_.colors.titleText);
}

void COutlook2Painter::DrawFolders() {
  for (int folder = static_cast<int>(view_.model.Folders().size()); folder-- > 0;) DrawFolder(folder);
  FillGradient(ToRect(view_.model.Layout().cap), view_.colors.Title());
}

void COutlook2Painter::DrawArea() {
  const BarModel& model = view_.model;
  const RECT area = ToRect(model.Layout().area);
  if (::IsRectEmpty(&area)) return;
  DrawFrame(area, Scale(kFrame));
  const int open = model.OpenFolder();
  const COL2Folder* folder = model.Folder(open);
  if (!folder) return;
  for (size_t group = 0; group < folder->groups.size(); ++group) {
    DrawGroup(folder->groups[group]);
    for (size_t entry = 0; entry < folder->groups[group].entries.size(); ++entry)
      DrawEntry({BarHit::Entry, open, static_cast<int>(group), static_cast<int>(entry)});
  }
}

void COutlook2Painter::DrawGroup(const COL2Item& group) {
  RECT rect = ToRect(group.rect);
  if (::IsRectEmpty(&rect)) return;
  if (group.text.IsEmpty()) {
    ::FillRect(dc_, &rect, ::GetSysColorBrush(COLOR_3DDKSHADOW));
    return;
  }
  FillGradient(rect, view_.colors.Header());
  rect.left += Scale(kTextLeft);
  DrawLabel(group.text, rect, view_.fonts.normal.Get(), view_.colors.captionText);
}

// --- Elements ------------------------------------------------------------------------------------------------------

void COutlook2Painter::DrawFolder(int index) {
  const COL2Folder& folder = *view_.model.Folder(index);
  RECT rect = ToRect(folder.rect);
  if (::IsRectEmpty(&rect)) return;
  const bool selected = index == view_.model.OpenFolder();
  const bool hot = view_.hot.hit == BarHit::Folder && view_.hot.folder == index;
  Fill(rect, view_.colors.captionDark);
  ::InflateRect(&rect, -Scale(kFolderInset), -Scale(kFolderInset));
  FillGradient(rect, view_.colors.Folder(selected, hot));
  if (Width(rect) >= Scale(kFolderPictureWidth))
    DrawPicture(folder, Square(rect.left + Scale(kFolderPictureLeft), rect.top + Scale(kFolderPictureTop),
                               Scale(kPictureSize)));
  RECT label = rect;
  label.left += Scale(kFolderTextLeft);
  DrawLabel(folder.text, label, view_.fonts.bold.Get(), view_.colors.FolderText(selected, hot));
  DrawFocus({BarHit::Folder, index}, rect);
}

void COutlook2Painter::DrawEntry(const BarTarget& target) {
  const COL2SubItem& entry = *view_.model.Entry(target);
  const RECT visible = ToRect(entry.rect);
  if (::IsRectEmpty(&visible) || entry.window) return;
  const int saved = ::SaveDC(dc_);
  ::IntersectClipRect(dc_, visible.left, visible.top, visible.right, visible.bottom);
  Fill(visible, view_.colors.face);
  // The last entry of a low bar may be cut: it is drawn as if it were whole.
  RECT rect = visible;
  rect.bottom = rect.top + view_.model.EntryHeight(*view_.model.Group(target.folder, target.group));
  switch (entry.kind) {
    case BarEntryKind::Plain:
      DrawPlainEntry(target, entry, rect);
      break;
    case BarEntryKind::Radio:
    case BarEntryKind::Check:
      DrawMarkedEntry(entry, rect, view_.hot == target);
      break;
    case BarEntryKind::Link: {
      RECT label = rect;
      label.left += Scale(kEntryTextLeft);
      DrawLabel(entry.text, label, view_.fonts.normal.Get(), view_.colors.linkText);
      break;
    }
  }
  DrawFocus(target, rect);
  ::RestoreDC(dc_, saved);
}

void COutlook2Painter::DrawPlainEntry(const BarTarget& target, const COL2SubItem& entry, const RECT& rect) {
  if (Width(rect) >= Scale(kEntryPictureWidth)) {
    const int size = Scale(kEntryPictureSize), height = rect.bottom - rect.top;
    const RECT box = Square(rect.left + Scale(kEntryPictureLeft), rect.top + (height - size) / 2, size);
    // A picture leaves its outer ring of pixels empty: unscaled, what there is to be seen of it fills the box. An icon
    // need not.
    DrawPicture(entry, entry.image ? Centered(box, Scale(kPictureSize)) : box);
  }
  RECT label = rect;
  label.left += Scale(kEntryTextLeft);
  if (entry.probeBits & COL2CCmdUI::kChecked) {
    DrawFrame(rect, Scale(kFrame));
    ::OffsetRect(&label, Scale(kPressedOffset), Scale(kPressedOffset));
  }
  const bool hot = view_.hot == target;
  DrawLabel(entry.text, label, (hot ? view_.fonts.underlined : view_.fonts.normal).Get(), view_.colors.buttonText);
}

void COutlook2Painter::DrawMarkedEntry(const COL2SubItem& entry, const RECT& rect, bool hot) {
  const bool radio = entry.kind == BarEntryKind::Radio;
  UINT state = radio ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
  if (entry.probeBits & (COL2CCmdUI::kChecked | COL2CCmdUI::kRadio)) state |= DFCS_CHECKED;
  if (hot) state |= DFCS_HOT;
  RECT mark = Square(rect.left + Scale(kMarkLeft), rect.top + Scale(kMarkTop), Scale(kMarkSize));
  ::DrawFrameControl(dc_, &mark, DFC_BUTTON, state);
  RECT label = rect;
  label.left += Scale(kEntryTextLeft);
  DrawLabel(entry.text, label, view_.fonts.normal.Get(), view_.colors.markText);
}

void COutlook2Painter::DrawFocus(const BarTarget& target, const RECT& rect) {
  if (!(view_.focus == target)) return;
  RECT inner = rect;
  ::InflateRect(&inner, -Scale(kFocusInset), -Scale(kFocusInset));
  ::SetTextColor(dc_, view_.colors.buttonText);
  ::SetBkColor(dc_, view_.colors.face);
  ::DrawFocusRect(dc_, &inner);
}

// --- Means ---------------------------------------------------------------------------------------------------------

template <class Element>
void COutlook2Painter::DrawPicture(const Element& element, const RECT& box) {
  if (element.image)
    element.image->Draw(dc_, box);
  else if (element.icon)
    ::DrawIconEx(dc_, box.left, box.top, static_cast<HICON>(element.icon.get()), Width(box), box.bottom - box.top, 0,
                 nullptr, DI_NORMAL | DI_NOMIRROR);
}

// A mirrored surface reads from right to left by itself: DT_RTLREADING would turn that round again.
void COutlook2Painter::DrawLabel(const CUString& text, RECT rect, HFONT font, ColorValue color) {
  const SelectScope selected(dc_, font);
  ::SetTextColor(dc_, color);
  ::DrawTextW(dc_, text.Text(), text.Length(), &rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void COutlook2Painter::Fill(const RECT& rect, ColorValue color) {
  ::SetDCBrushColor(dc_, color);
  ::FillRect(dc_, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

void COutlook2Painter::FillGradient(const RECT& rect, ColorPair colors) {
  const int rows = rect.bottom - rect.top;
  if (colors.from == colors.to) return Fill(rect, colors.from);
  for (int row = 0; row < rows; ++row)
    Fill({rect.left, rect.top + row, rect.right, rect.top + row + 1}, GradientColor(colors.from, colors.to, row, rows));
}

// Sunken: the light falls in from above.
void COutlook2Painter::DrawFrame(const RECT& rect, int thickness) {
  const HBRUSH shadow = ::GetSysColorBrush(COLOR_3DSHADOW), light = ::GetSysColorBrush(COLOR_3DHIGHLIGHT);
  const RECT sides[] = {{rect.left, rect.top, rect.right, rect.top + thickness},
                        {rect.left, rect.top, rect.left + thickness, rect.bottom},
                        {rect.left, rect.bottom - thickness, rect.right, rect.bottom},
                        {rect.right - thickness, rect.top, rect.right, rect.bottom}};
  ::FillRect(dc_, &sides[0], shadow);
  ::FillRect(dc_, &sides[1], shadow);
  ::FillRect(dc_, &sides[2], light);
  ::FillRect(dc_, &sides[3], light);
}
