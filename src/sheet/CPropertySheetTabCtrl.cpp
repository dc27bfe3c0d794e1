#include "sheet/CPropertySheetTabCtrl.h"

#include <algorithm>
#include <utility>

namespace {

// All at 96 dpi.
constexpr int kItemWidth = 1;
constexpr int kItemHeight = 20;
constexpr int kInset = 2;

}  // namespace

void CPropertySheetTabCtrl::SetUp(const CWnd& host) {
  host_ = host;
  SetFont(host.Font());
  SetItemSize(Scale(kItemWidth), Scale(kItemHeight));
  for (const CNemUIPage* page : pages_) InsertItem(Count(), page->Title().Text());
  for (CNemUIPage* page : pages_)
    if (SelectPage(*page)) break;
}

int CPropertySheetTabCtrl::IndexOf(const CNemUIPage& page) const {
  const auto found = std::find(pages_.begin(), pages_.end(), &page);
  return found == pages_.end() ? -1 : static_cast<int>(found - pages_.begin());
}

bool CPropertySheetTabCtrl::SelectPage(CNemUIPage& page) {
  if (&page == current_ || IndexOf(page) < 0) return false;
  if (current_ && !current_->OnKillActive()) return false;
  // Each step may show a box, and the box may have outlived us.
  if (!IsWindow()) return false;
  const bool ready = (page.IsWindow() || CreateWindowOf(page)) && page.OnSetActive();
  if (!IsWindow()) return false;
  if (!ready) {
    if (current_) current_->OnSetActive();
    return false;
  }
  Show(page);
  return true;
}

void CPropertySheetTabCtrl::Show(CNemUIPage& page) {
  CNemUIPage* left = std::exchange(current_, &page);
  Select(IndexOf(page));
  page.Show(true);
  if (!left) return;
  // The focus goes first: a hidden window would keep it, and the keyboard with it. A page without a stop leaves it to
  // the hiding to find one.
  if (::IsChild(left->Handle(), ::GetFocus()))
    if (const HWND stop = ::GetNextDlgTabItem(page.Handle(), nullptr, FALSE)) ::SetFocus(stop);
  left->Show(false);
}

bool CPropertySheetTabCtrl::CreateWindowOf(CNemUIPage& page) {
  if (!page.Create(host_.Handle())) return false;
  // With controls that could not be filled it would fail each saving, and could never be left.
  if (!page.IsInitialized()) {
    page.Destroy();
    return false;
  }
  page.ChangeStyle(WS_BORDER | WS_DLGFRAME | WS_THICKFRAME, 0);
  page.ChangeExtendedStyle(WS_EX_CLIENTEDGE | WS_EX_WINDOWEDGE, WS_EX_CONTROLPARENT);
  page.Move(PageArea());
  return true;
}

// The tab control's client area, moved below its row of tabs, in the host's coordinates. In a mirrored host the offset
// counts from the right side, as all its coordinates do.
RECT CPropertySheetTabCtrl::PageArea() const {
  const RECT own = RectIn(host_);
  const RECT client = ClientRect();
  const int inset = Scale(kInset);
  RECT area;
  area.left = own.left + inset;
  area.top = own.top + inset + Scale(kItemHeight);
  area.right = area.left + client.right - 2 * inset;
  area.bottom = area.top + client.bottom - 2 * inset;
  return area;
}

bool CPropertySheetTabCtrl::OnSetActive() { return !current_ || current_->OnSetActive(); }

bool CPropertySheetTabCtrl::OnKillActive() { return !current_ || current_->OnKillActive(); }

bool CPropertySheetTabCtrl::OnApply() {
  bool applied = true;
  for (CNemUIPage* page : pages_)
    if (page->IsWindow()) applied &= page->OnApply();
  return applied;
}

bool CPropertySheetTabCtrl::OnWindowMessage(WindowMessage& message) {
  // The tabs are not the user's: clicks fall through.
  if (message.message != WM_NCHITTEST) return false;
  message.result = HTTRANSPARENT;
  return true;
}
