#include "cockpit/CCockpitDiff.h"

#include "cockpit/RowFocus.h"
#include "controls/FocusFrame.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "window/Gdi.h"

namespace {

constexpr COLORREF kFrameColor = 0x3C3C3C;
constexpr int kFocusInset = 2;  // pixels at 96 dpi

}  // namespace

void CCockpitDiff::SetIntensity(double weight) {
  fillColor_ = SquareColor(weight);
  Invalidate();
}

void CCockpitDiff::SetDifferences(const CUString& differences) {
  if (differences_ == differences) return;
  differences_ = differences;
  NotifyAccessibleEvent(EVENT_OBJECT_NAMECHANGE, Handle(), CHILDID_SELF);
}

void CCockpitDiff::Draw(HDC dc, const RECT& client) {
  const bool highContrast = IsHighContrast();
  ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOW));
  if (fillColor_ != kNoFillColor) {
    const GdiBrush fill(::CreateSolidBrush(highContrast ? ::GetSysColor(COLOR_HIGHLIGHT) : fillColor_));
    ::FillRect(dc, &client, fill.Get());
  }
  const GdiBrush frame(::CreateSolidBrush(highContrast ? ::GetSysColor(COLOR_WINDOWTEXT) : kFrameColor));
  ::FrameRect(dc, &client, frame.Get());
  if (!ShowsFocus(*this)) return;
  RECT inside = client;
  ::InflateRect(&inside, -Scale(kFocusInset), -Scale(kFocusInset));
  DrawFocus(dc, inside);
}

bool CCockpitDiff::OnReflected(WindowMessage& message) {
  if (message.message != WM_COMMAND || message.Notification() != BN_CLICKED) return CDrawnButton::OnReflected(message);
  // The page may be left, and end us.
  if (link_) Parent().Send(kLinkClickedMessage, static_cast<WPARAM>(link_->Id()));
  return true;
}

bool CCockpitDiff::OnWindowMessage(WindowMessage& message) {
  TellRowFocus(*this, message);
  return CDrawnButton::OnWindowMessage(message);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CCockpitDiff::PartName(int) const {
  const CUString link = link_ ? link_->Text() : CUString();
  return differences_.IsEmpty() ? MessageText(MSG_COCKPIT_ROW_DEFAULT, link)
                                : MessageText(MSG_COCKPIT_ROW_CHANGED, link, differences_);
}

CUString CCockpitDiff::PartAction(int) const { return MessageText(MSG_LINK_ACTION); }
