#include "controls/CListBoxST.h"

#include <algorithm>

#include "controls/BufferedPainting.h"
#include "controls/ImageListDrawing.h"

namespace {

constexpr int kGap = 2;             // pixels at 96 dpi
constexpr int kMaxRowHeight = 255;  // a list box can have no higher rows

// Text that stands on the colour of a selection.
COLORREF SelectedTextColor() {
  if (IsHighContrast()) return ::GetSysColor(COLOR_HIGHLIGHTTEXT);
  return ~::GetSysColor(COLOR_WINDOWTEXT) & 0xFFFFFF;
}

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }
IntRect ToIntRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

int TextWidth(HDC dc, const CUString& text) {
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text.Text(), text.Length(), &size);
  return size.cx;
}

}  // namespace

// --- Rows -----------------------------------------------------------------------------------------------------------

int CListBoxST::AddItem(const wchar_t* text, int image, int indent, uint32_t value) {
  const ULONG_PTR key = ++lastKey_;
  Record& record = records_[key];
  record.image = image;
  record.indent = indent;
  record.value = value;
  const int row = AddString(text ? text : L"");
  if (row < 0)
    records_.erase(key);
  else
    Send(LB_SETITEMDATA, static_cast<WPARAM>(row), static_cast<LPARAM>(key));
  return row;
}

bool CListBoxST::DeleteItem(int row) { return IsWindow() && Send(LB_DELETESTRING, static_cast<WPARAM>(row)) >= 0; }

const CListBoxST::Record* CListBoxST::Find(int row) const {
  if (row < 0 || !IsWindow()) return nullptr;
  const LRESULT key = Send(LB_GETITEMDATA, static_cast<WPARAM>(row));
  if (key == LB_ERR) return nullptr;  // no such row; no key is that high
  static const Record kPlain;
  const auto found = records_.find(static_cast<ULONG_PTR>(key));
  return found == records_.end() ? &kPlain : &found->second;
}

// Changes the record of a row, which gets one if it has none yet.
template <class Change>
bool CListBoxST::ChangeRecord(int row, Change change) {
  if (row < 0 || row >= Count()) return false;
  auto key = static_cast<ULONG_PTR>(Send(LB_GETITEMDATA, static_cast<WPARAM>(row)));
  if (!records_.contains(key)) {
    key = ++lastKey_;
    records_.emplace(key, Record());
    Send(LB_SETITEMDATA, static_cast<WPARAM>(row), static_cast<LPARAM>(key));
  }
  change(records_[key]);
  const RECT rect = ItemRect(row);
  Invalidate(&rect);
  return true;
}

bool CListBoxST::SetItemData(int row, uint32_t value) {
  return ChangeRecord(row, [=](Record& record) { record.value = value; });
}

uint32_t CListBoxST::ItemData(int row) const {
  const Record* record = Find(row);
  return record ? record->value : 0;
}

bool CListBoxST::SetItemPointer(int row, void* pointer) {
  return ChangeRecord(row, [=](Record& record) { record.pointer = pointer; });
}

void* CListBoxST::ItemPointer(int row) const {
  const Record* record = Find(row);
  return record ? record->pointer : nullptr;
}

bool CListBoxST::SetItemImage(int row, int image) {
  return ChangeRecord(row, [=](Record& record) { record.image = image; });
}

int CListBoxST::ItemImage(int row) const {
  const Record* record = Find(row);
  return record ? record->image : -1;
}

bool CListBoxST::SetItemIndent(int row, int level) {
  return ChangeRecord(row, [=](Record& record) { record.indent = level; });
}

int CListBoxST::ItemIndent(int row) const {
  const Record* record = Find(row);
  return record ? record->indent : 0;
}

bool CListBoxST::EnableItem(int row, bool enable) {
  return ChangeRecord(
      row, [=](Record& record) { record.flags = enable ? record.flags & ~kDisabled : record.flags | kDisabled; });
}

bool CListBoxST::IsItemEnabled(int row) const {
  const Record* record = Find(row);
  return record && !(record->flags & kDisabled);
}

// --- Look -----------------------------------------------------------------------------------------------------------

void CListBoxST::SetHighlightMode(int mode) {
  if (mode < static_cast<int>(HighlightMode::Row) || mode > static_cast<int>(HighlightMode::Text)) return;
  highlight_ = static_cast<HighlightMode>(mode);
  Invalidate();
}

bool CListBoxST::SetImages(std::span<const ListPicture> pictures, SecondHalf secondHalf) {
  imageList_ = nullptr;
  images_.clear();
  bool complete = true;
  for (const ListPicture& picture : pictures)
    complete = images_.emplace_back().Load(picture.bitmapId, picture.maskId, Dpi()) && complete;
  if (!complete) images_.clear();
  secondHalf_ = secondHalf;
  if (images_.empty())
    SetImageSize(0, 0);
  else
    SetImageSize(Scale(images_.front().Width()), Scale(images_.front().Height()));
  return complete;
}

void CListBoxST::SetImageList(HIMAGELIST images) {
  images_.clear();
  imageList_ = images;
  secondHalf_ = SecondHalf::None;
  int width = 0, height = 0;
  if (images) ::ImageList_GetIconSize(images, &width, &height);
  SetImageSize(width, height);
}

void CListBoxST::SetIndent(int pixels) {
  indent_ = pixels;
  Invalidate();
}

void CListBoxST::SetImageSize(int width, int height) {
  imageWidth_ = width;
  imageHeight_ = height;
  UpdateRowHeight();
  Invalidate();
}

// --- Measures -------------------------------------------------------------------------------------------------------

ListRowMeasures CListBoxST::Measures(int indent) const {
  return {imageWidth_, imageHeight_, Scale(kGap), Scale(indent_ * indent)};
}

int CListBoxST::RowHeight() const {
  const WindowDC dc(Handle());
  const SelectScope font(dc, Font());
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc, &metrics);
  return std::min<int>(ListRowHeight(Measures(0), metrics.tmHeight), kMaxRowHeight);
}

// The list box asks for the height only when it is created, and for each row that is added if rows can differ.
void CListBoxST::UpdateRowHeight() const {
  const int height = RowHeight();
  const int rows = Style() & LBS_OWNERDRAWVARIABLE ? Count() : 1;
  for (int row = 0; row < rows; ++row) Send(LB_SETITEMHEIGHT, static_cast<WPARAM>(row), MAKELPARAM(height, 0));
}

RECT CListBoxST::ItemRect(int row) const {
  RECT rect{};
  Send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
  return rect;
}

// --- Drawing --------------------------------------------------------------------------------------------------------

// Rows cover their own ground.
void CListBoxST::EraseBelowRows(HDC dc) const {
  RECT rest = ClientRect();
  if (const int rows = Count(); rows > 0) rest.top = std::max(rest.top, ItemRect(rows - 1).bottom);
  if (rest.top < rest.bottom) ::FillRect(dc, &rest, ::GetSysColorBrush(COLOR_WINDOW));
}

bool CListBoxST::ShowsFocus(UINT itemState) const {
  return (itemState & ODS_FOCUS) && !(itemState & ODS_NOFOCUSRECT) && !(Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS);
}

void CListBoxST::DrawImage(HDC dc, const IntRect& rect, const Record& record, bool disabled, bool selected) const {
  const int count = imageList_ ? ::ImageList_GetImageCount(imageList_) : static_cast<int>(images_.size());
  const ListImageChoice choice = ChooseListImage(record.image, count, secondHalf_, disabled, selected);
  if (choice.index < 0) return;
  if (imageList_)
    DrawListImage(imageList_, choice.index, dc, {rect.left, rect.top}, choice.drawGrey);
  else
    images_[static_cast<size_t>(choice.index)].Draw(dc, ToRect(rect), choice.drawGrey);
}

void CListBoxST::DrawRow(HDC dc, const DRAWITEMSTRUCT& item) const {
  ::FillRect(dc, &item.rcItem, ::GetSysColorBrush(COLOR_WINDOW));
  // An empty list that has the focus has a row without a number.
  const Record* found = Find(static_cast<int>(item.itemID));
  const Record record = found ? *found : Record();
  const CUString text = RowText(static_cast<int>(item.itemID));
  const bool disabled = (record.flags & kDisabled) || !IsEnabled();
  const bool selected = !disabled && (item.itemState & ODS_SELECTED);
  const SelectScope font(dc, Font());
  const ListRowParts parts =
      LayOutListRow(ToIntRect(item.rcItem), Measures(record.indent), TextWidth(dc, text), highlight_);
  const RECT highlight = ToRect(parts.highlight);
  if (selected) ::FillRect(dc, &highlight, ::GetSysColorBrush(COLOR_HIGHLIGHT));
  DrawImage(dc, parts.image, record, disabled, selected);
  RECT textRect = ToRect(parts.text);
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, disabled   ? ::GetSysColor(COLOR_GRAYTEXT)
                     : selected ? SelectedTextColor()
                                : ::GetSysColor(COLOR_WINDOWTEXT));
  ::DrawTextW(dc, text.Text(), text.Length(), &textRect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (!ShowsFocus(item.itemState)) return;
  ::SetTextColor(dc, RGB(0, 0, 0));
  ::SetBkColor(dc, RGB(255, 255, 255));
  ::DrawFocusRect(dc, &highlight);
}

// --- Messages -------------------------------------------------------------------------------------------------------

bool CListBoxST::OnReflected(WindowMessage& message) {
  switch (message.message) {
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
      DrawItemBuffered(item, [&](HDC dc) { DrawRow(dc, item); });
      break;
    }
    case WM_MEASUREITEM:
      reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)->itemHeight = static_cast<UINT>(RowHeight());
      break;
    case WM_DELETEITEM:
      records_.erase(reinterpret_cast<const DELETEITEMSTRUCT*>(message.lParam)->itemData);
      break;
    default:
      return false;
  }
  message.result = TRUE;
  return true;
}

bool CListBoxST::OnWindowMessage(WindowMessage& message) {
  switch (message.message) {
    case WM_ERASEBKGND:
      EraseBelowRows(reinterpret_cast<HDC>(message.wParam));
      message.result = TRUE;
      return true;
    case WM_SETFONT:
      message.result = DefaultHandling(message);
      UpdateRowHeight();
      return true;
    default:
      return false;
  }
}
