#include "sheet/COutlook2View.h"

#include <utility>

#include "controls/FocusFrame.h"
#include "window/COMemDC.h"
#include "window/MemoryDC.h"

namespace {

constexpr int kTitleFontHeight = 20;  // at 96 dpi
constexpr int kBoldWeight = 600;
constexpr DWORD kSlideWait = 30;  // milliseconds after each step

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

}  // namespace

COutlook2View::COutlook2View() {
  InitBarColors();
  SetBarFonts(false);
}

// --- Look ----------------------------------------------------------------------------------------------------------

void COutlook2View::SetBarFonts(bool ofParent) {
  fontsOfParent_ = ofParent;
  const HFONT base = ofParent ? Parent().Font() : nullptr;
  const auto makeBold = [](LOGFONTW& font) { font.lfWeight = kBoldWeight; };
  fonts_.underlined = DeriveFont(base, [](LOGFONTW& font) { font.lfUnderline = TRUE; });
  fonts_.normal = DeriveFont(base, [](LOGFONTW&) {});
  fonts_.bold = DeriveFont(base, makeBold);
  fonts_.title = DeriveFont(fonts_.bold.Get(), [this](LOGFONTW& font) { font.lfHeight = Scale(kTitleFontHeight); });
  RepaintAll();
}

void COutlook2View::InitBarColors() {
  const SystemColors system{::GetSysColor(COLOR_3DFACE),          ::GetSysColor(COLOR_ACTIVECAPTION),
                            ::GetSysColor(COLOR_INACTIVECAPTION), ::GetSysColor(COLOR_CAPTIONTEXT),
                            ::GetSysColor(COLOR_WINDOW),          ::GetSysColor(COLOR_BTNTEXT),
                            ::GetSysColor(COLOR_HIGHLIGHT),       ::GetSysColor(COLOR_HIGHLIGHTTEXT)};
  colors_ = MakeBarColors(system, IsHighContrast());
}

// --- Elements ------------------------------------------------------------------------------------------------------

void COutlook2View::Rearrange() {
  const RECT client = ClientRect();
  model_.Arrange(client.right, client.bottom, Dpi());
  PlaceChildWindows();
  RepaintAll();
}

void COutlook2View::PlaceChildWindows() {
  for (const BarTarget& target : model_.EntriesOf(model_.OpenFolder())) {
    const COL2SubItem& entry = *model_.Entry(target);
    if (!entry.window) continue;
    const CWnd window(static_cast<HWND>(entry.window));
    if (entry.IsSeen()) window.Move(ToRect(entry.rect));
    window.Show(entry.IsSeen());
  }
}

void COutlook2View::HideChildWindows() {
  for (int folder = 0; model_.Folder(folder); ++folder)
    for (const BarTarget& target : model_.EntriesOf(folder)) {
      COL2SubItem& entry = *model_.Entry(target);
      if (!entry.window) continue;
      CWnd(static_cast<HWND>(entry.window)).Show(false);
      entry.rect = {};
    }
}

// Not for a window that is still to come: to the platform, none stands for all.
void COutlook2View::RepaintAll() const {
  if (IsWindow()) Invalidate(nullptr, false);
}

void COutlook2View::Repaint(const IntRect& rect) const {
  const RECT area = ToRect(rect);
  if (IsWindow() && !::IsRectEmpty(&area)) Invalidate(&area, false);
}

BarView COutlook2View::View() const {
  const RECT client = ClientRect();
  const BarTarget focused = ShowsFocus(*this) ? FocusedElement() : BarTarget();
  return {model_, colors_, fonts_, {client.right, client.bottom}, hot_, focused};
}

void COutlook2View::Draw(HDC dc) {
  const RECT client = ClientRect();
  model_.Arrange(client.right, client.bottom, Dpi());
  // Children of a dialog are not told of every change of the system's colours, but they are repainted.
  InitBarColors();
  for (const BarTarget& target : model_.EntriesOf(model_.OpenFolder())) {
    COL2SubItem& entry = *model_.Entry(target);
    if (entry.IsSeen()) Probe(entry);
  }
  const BarView view = View();
  COutlook2Painter(dc, view).DrawBar();
}

// Straight into the window, and nothing else of it.
void COutlook2View::DrawElement(const BarTarget& target) {
  const RECT rect = ToRect(model_.RectOf(target));
  if (!target || ::IsRectEmpty(&rect) || !::IsWindowVisible(Handle())) return;
  if (COL2SubItem* entry = model_.Entry(target)) Probe(*entry);
  const WindowDC window(Handle());
  ::IntersectClipRect(window, rect.left, rect.top, rect.right, rect.bottom);
  const COMemDC surface(window);
  const BarView view = View();
  COutlook2Painter(surface, view).DrawElement(target);
}

void COutlook2View::SetHot(const BarTarget& target) {
  if (target == hot_) return;
  const BarTarget before = std::exchange(hot_, target);
  DrawElement(before);
  DrawElement(target);
}

void COutlook2View::ForgetHotEntry() {
  if (hot_.hit == BarHit::Entry) hot_ = {};
}

// --- Slide ---------------------------------------------------------------------------------------------------------

bool COutlook2View::Slides() const {
  if (!::IsWindowVisible(Handle()) || slide_ == Slide::Never) return false;
  if (slide_ == Slide::Always) return true;
  BOOL animation = TRUE;
  ::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animation, 0);
  return animation && !::GetSystemMetrics(SM_REMOTESESSION);
}

// The new content slides up from the bottom of the folder area.
void COutlook2View::AnimateFolder() {
  const std::vector<SlideStep> steps = model_.SlideSteps();
  if (steps.empty()) return;  // a narrow or low bar
  const RECT client = ClientRect();
  const WindowDC target(Handle());
  const MemoryDC image(target, client.right, client.bottom);
  if (!image) return;
  Draw(image);
  for (const SlideStep& step : steps) {
    ::BitBlt(target, 0, step.top, client.right, step.rows, image, 0, 0, SRCCOPY);
    ::GdiFlush();
    ::Sleep(kSlideWait);
  }
}

// --- Messages ------------------------------------------------------------------------------------------------------

void COutlook2View::OnPaint() {
  const PaintDC paint(Handle());
  const COMemDC surface(paint);
  Draw(surface);
}

void COutlook2View::OnPrintClient(WindowMessage& message) { Draw(reinterpret_cast<HDC>(message.wParam)); }

void COutlook2View::OnLookChanged() {
  InitBarColors();
  RepaintAll();
}

void COutlook2View::OnDpiChanged() {
  SetBarFonts(fontsOfParent_);
  Rearrange();
}

bool COutlook2View::OnWindowMessage(WindowMessage& message) {
  static constexpr MessageRow kMessages[] = {
      OnMessage<&COutlook2View::OnPaint>(WM_PAINT),
      OnMessage<&COutlook2View::OnPrintClient>(WM_PRINTCLIENT),
      OnMessage<&COutlook2View::OnEraseBackground>(WM_ERASEBKGND),
      OnMessage<&COutlook2View::Rearrange>(WM_SIZE),
      OnMessage<&COutlook2View::OnDpiChanged>(WM_DPICHANGED_AFTERPARENT),
      OnMessage<&COutlook2View::OnLookChanged>(WM_SYSCOLORCHANGE),
      OnMessage<&COutlook2View::OnLookChanged>(WM_THEMECHANGED),
      OnMessage<&COutlook2View::OnLookChanged>(WM_SETTINGCHANGE),
  };
  // Which cues are shown is kept by the default handling.
  if (message.message == WM_UPDATEUISTATE) RepaintAll();
  return DispatchMessages(kMessages, *this, message) || CControlBar::OnWindowMessage(message);
}
