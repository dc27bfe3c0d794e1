#include "controls/CColourPopup.h"

// behind Windows.h
#include <oleacc.h>

#include <cstddef>
#include <iterator>
#include <utility>

#include "controls/BufferedPainting.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "window/CActivationContext.h"
#include "window/SystemMetrics.h"
#include "window/WindowClass.h"

namespace {

constexpr wchar_t kPlainClass[] = L"NemPdfUIColourPopup";
constexpr wchar_t kShadowClass[] = L"NemPdfUIColourPopupShadow";

HINSTANCE Module() { return static_cast<HINSTANCE>(ModuleInstance()); }

bool HasDropShadows() {
  BOOL shadows = FALSE;
  return ::SystemParametersInfoW(SPI_GETDROPSHADOW, 0, &shadows, 0) && shadows;
}

IntRect FromRect(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

RECT ToRect(const IntRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

IntRect ScreenAround(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
  return FromRect(info.rcWork);
}

std::optional<TextSize> Measure(HDC dc, const CUString& text) {
  if (text.IsEmpty()) return std::nullopt;
  SIZE size{};
  ::GetTextExtentPoint32W(dc, text.Text(), text.Length(), &size);
  return TextSize{size.cx, size.cy};
}

// For displays that have a palette: the colours are to be found in it.
GdiPalette MakePalette() {
  // As the platform's LOGPALETTE, whose array has one entry in its type and as many as it says in memory.
  struct {
    WORD version = 0x300, count = kPaletteSize;
    PALETTEENTRY entries[kPaletteSize] = {};
  } description;
  static_assert(offsetof(decltype(description), entries) == offsetof(LOGPALETTE, palPalEntry));
  PALETTEENTRY* entry = description.entries;
  for (const PaletteRow& row : kPalette)
    *entry++ = {static_cast<BYTE>(RedOf(row.colour)), static_cast<BYTE>(GreenOf(row.colour)),
                static_cast<BYTE>(BlueOf(row.colour)), 0};
  return GdiPalette(::CreatePalette(reinterpret_cast<const LOGPALETTE*>(&description)));
}

}  // namespace

CColourPopup::CColourPopup(const ColourPopupSetup& setup) : setup_(setup), chosenColour_(setup.colour) {}

CColourPopup::~CColourPopup() {
  ending_ = true;
  Unwatch();
  Destroy();
}

// --- Opening --------------------------------------------------------------------------------------------------------

void CColourPopup::LayOut() {
  const int dpi = setup_.picker.Dpi();
  font_ = MessageFont(dpi);
  const WindowDC dc(setup_.picker.Handle());
  const SelectScope font(dc, font_.Get());
  layout_ = ColourPopupLayout(MeasureColourPopup(SystemMetric(SM_CXEDGE, dpi), dpi), Measure(dc, setup_.defaultText),
                              Measure(dc, setup_.customText));
  highlighted_ = chosen_ = layout_.Cells().CellOf(setup_.colour);
}

bool CColourPopup::CreatePopupWindow() {
  const bool shadow = HasDropShadows();
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.style = shadow ? CS_DROPSHADOW : 0;
  description.lpfnWndProc = WindowProcedure;
  description.hInstance = Module();
  description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = shadow ? kShadowClass : kPlainClass;
  if (!RegisterWindowClass(description)) return false;

  const bool mirrored = setup_.picker.IsMirrored();
  const IntPoint place = PlaceColourPopup(layout_.Width(), layout_.Height(), FromRect(setup_.picker.WindowRect()),
                                          ScreenAround(setup_.picker.Handle()), mirrored);
  const CActivationScope look;
  ::CreateWindowExW(WS_EX_TOOLWINDOW | (mirrored ? WS_EX_LAYOUTRTL : 0), description.lpszClassName, setup_.name.Text(),
                    WS_POPUP, place.x, place.y, layout_.Width(), layout_.Height(), Root(), nullptr, Module(), this);
  return window_ != nullptr;
}

void CColourPopup::WatchPicker() {
  for (HWND window = setup_.picker.Handle(); window; window = ::GetAncestor(window, GA_PARENT)) {
    if (window == ::GetDesktopWindow()) break;
    // Noted first: a window that is watched and forgotten would outlive the popup with a pointer to it.
    watched_.push_back(window);
    if (!::SetWindowSubclass(window, WatchProcedure, reinterpret_cast<UINT_PTR>(this),
                             reinterpret_cast<DWORD_PTR>(this)))
      watched_.pop_back();
  }
}

void CColourPopup::Unwatch() {
  for (const HWND window : std::exchange(watched_, {}))
    ::RemoveWindowSubclass(window, WatchProcedure, reinterpret_cast<UINT_PTR>(this));
}

bool CColourPopup::Open() {
  const auto alive = shared_from_this();
  LayOut();
  palette_ = MakePalette();
  if (!CreatePopupWindow()) return false;
  WatchPicker();
  ::GetCursorPos(&mouse_);
  ::ShowWindow(window_, SW_SHOWNA);
  Focus();
  // It only looks as if the user had gone elsewhere.
  CWnd(Root()).Send(WM_NCACTIVATE, TRUE);
  if (ending_) return false;  // somebody has answered to that
  ::SetCapture(window_);
  return true;
}

// --- Ending ---------------------------------------------------------------------------------------------------------

void CColourPopup::End(UINT code) {
  if (ending_) return;
  ending_ = true;
  const auto alive = weak_from_this().lock();
  Withdraw();
  if (code == ColourSelEndOk && highlighted_ == kCustomCell && !ChooseInDialog()) code = ColourSelEndCancel;
  if (code == ColourSelEndCancel) chosenColour_ = setup_.colour;
  setup_.picker.Send(code, chosenColour_);
  // A window that goes while another one is being activated would call its owner instead: it waits for that to be over.
  if (left_ && Post(WM_CLOSE))
    untilClosed_ = alive;
  else
    Destroy();
}

// The dialog's owner is the window around the picker: it cannot be used meanwhile, and takes the dialog with it should
// it end.
bool CColourPopup::ChooseInDialog() {
  COLORREF colour = setup_.colour;
  const auto custom = setup_.customColours;
  if (!AskForColour(Root(), colour, *custom)) return false;
  chosenColour_ = colour;
  return true;
}

// The mouse and the keyboard are free, and nothing is to be seen, before anybody is told.
void CColourPopup::Withdraw() {
  Unwatch();
  if (::GetCapture() == window_) ::ReleaseCapture();
  const CWnd root(Root());
  if (HasFocus() && !left_ && !dying_ && ::IsWindowVisible(setup_.picker.Handle())) setup_.picker.Focus();
  if (!dying_)
    ::SetWindowPos(window_, nullptr, 0, 0, 0, 0,
                   SWP_HIDEWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
  root.Send(WM_NCACTIVATE, !left_ && ::GetActiveWindow() == root.Handle());
}

void CColourPopup::Abandon() {
  const auto alive = weak_from_this().lock();
  if (!std::exchange(ending_, true)) Withdraw();
  setup_.picker = CWnd();
  Destroy();
}

void CColourPopup::Destroy() {
  if (window_ && !dying_) ::DestroyWindow(window_);
}

// The user is on his way to another window, and must not be called back.
void CColourPopup::OnLeft() {
  if (ending_) return;
  left_ = true;
  End(ColourSelEndCancel);
}

// By its owner's end, if not by its own. The picker lets go of us, and there are messages to come yet.
void CColourPopup::OnWindowDestroyed() {
  dying_ = true;
  untilClosed_ = weak_from_this().lock();
  End(ColourSelEndCancel);
}

void CColourPopup::UnregisterWindowClasses() {
  ::UnregisterClassW(kPlainClass, Module());
  ::UnregisterClassW(kShadowClass, Module());
}

// --- Input ----------------------------------------------------------------------------------------------------------

void CColourPopup::Highlight(int cell) {
  if (ending_ || cell == kNoCell) return;
  InvalidateCell(highlighted_);
  highlighted_ = NormalizedCell(cell);
  InvalidateCell(highlighted_);
  COLORREF colour = setup_.colour;
  if (highlighted_ == kDefaultCell) colour = chosenColour_ = kNoColour;
  if (IsColourCell(highlighted_)) colour = chosenColour_ = kPalette[highlighted_].colour;
  NotifyAccessibleEvent(EVENT_OBJECT_FOCUS, window_, FocusedPart());
  setup_.picker.Send(ColourSelChange, colour);
}

bool CColourPopup::OnKey(WPARAM key) {
  const auto move = [this](CellStep step) { Highlight(layout_.Cells().Next(highlighted_, step)); };
  const bool mirrored = IsMirrored();
  switch (key) {
    case VK_UP:
      move(CellStep::Up);
      return true;
    case VK_DOWN:
      move(CellStep::Down);
      return true;
    case VK_LEFT:
      move(mirrored ? CellStep::Right : CellStep::Left);
      return true;
    case VK_RIGHT:
      move(mirrored ? CellStep::Left : CellStep::Right);
      return true;
    case VK_ESCAPE:
      End(ColourSelEndCancel);
      return true;
    case VK_RETURN:
    case VK_SPACE:
      End(ColourSelEndOk);
      return true;
    default:
      return false;
  }
}

void CColourPopup::OnMouseMove(LPARAM point) {
  POINT position{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  const int cell = layout_.CellAt({position.x, position.y});
  // When a window appears under it, the system reports the mouse anew though it stands still: the cell that the
  // keyboard is on would be lost.
  ::ClientToScreen(window_, &position);
  const POINT before = std::exchange(mouse_, position);
  if (position.x == before.x && position.y == before.y) return;
  if (cell != highlighted_) Highlight(cell);
}

void CColourPopup::OnMouseUp(LPARAM point) {
  const auto alive = weak_from_this().lock();
  const POINT position{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  const RECT client = ClientRect();
  const bool inside = ::PtInRect(&client, position);
  // A mouse that stood still has left the highlight to the keyboard: what the user clicks on counts.
  const int cell = inside ? layout_.CellAt({position.x, position.y}) : kNoCell;
  if (cell != highlighted_) Highlight(cell);
  End(inside ? ColourSelEndOk : ColourSelEndCancel);
}

bool CColourPopup::OnWindowMessage(WindowMessage& message) {
  if (accessibility_.OnMessage(*this, message)) return true;
  switch (message.message) {
    case WM_MOUSEMOVE:
      OnMouseMove(message.lParam);
      return true;
    case WM_LBUTTONUP:
      OnMouseUp(message.lParam);
      return true;
    case WM_KEYDOWN:
      return OnKey(message.wParam);
    case WM_GETDLGCODE:
      message.result = DLGC_WANTALLKEYS;  // should a host's loop take it for a part of its dialog
      return true;
    case WM_SETFOCUS:
      NotifyAccessibleEvent(EVENT_OBJECT_FOCUS, window_, FocusedPart());
      return false;
    case WM_ACTIVATE:
      if (LOWORD(message.wParam) == WA_INACTIVE) OnLeft();
      return false;
    case WM_ACTIVATEAPP:
      if (!message.wParam) OnLeft();
      return false;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(message.lParam) != Handle()) End(ColourSelEndCancel);
      return true;
    case WM_SYSCOMMAND:
      // The release of Alt, with which the popup may have been opened, would end it for a menu that is not there.
      return (message.wParam & 0xFFF0) == SC_KEYMENU;
    case WM_CANCELMODE:
      End(ColourSelEndCancel);
      return true;
    case WM_CLOSE:
      End(ColourSelEndCancel);
      if (untilClosed_) Destroy();
      return true;
    case WM_DESTROY:
      OnWindowDestroyed();
      return true;
    case WM_PALETTECHANGED:
      if (reinterpret_cast<HWND>(message.wParam) != Handle()) Invalidate();
      return true;
    case WM_PAINT:
      RealizePalette();
      [[fallthrough]];
    default:
      return AnswerPainting(message, [this](HDC dc) { Draw(dc); });
  }
}

LRESULT CALLBACK CColourPopup::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<CColourPopup*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_NCCREATE) {
    self = static_cast<CColourPopup*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    self->window_ = window;
  }
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->accessibility_.Disconnect();
    self->window_ = nullptr;
    const auto untilHere = std::exchange(self->untilClosed_, nullptr);
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  const auto alive = self->weak_from_this().lock();
  WindowMessage current{window, message, wParam, lParam};
  if (GuardMessage("CColourPopup", *self, current)) return current.result;
  return ::DefWindowProcW(window, message, wParam, lParam);
}

// The picker, and each window around it: when one cannot be used or seen any more, the popup has nothing to stand on.
LRESULT CALLBACK CColourPopup::WatchProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                              DWORD_PTR data) {
  const bool disabled = message == WM_ENABLE && !wParam;
  const bool hidden =
      message == WM_WINDOWPOSCHANGED && (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_HIDEWINDOW);
  // By way of a message, which lets no exception out.
  if (disabled || hidden) reinterpret_cast<CColourPopup*>(data)->Send(WM_CANCELMODE);
  if (message == WM_NCDESTROY) ::RemoveWindowSubclass(window, WatchProcedure, id);
  return ::DefSubclassProc(window, message, wParam, lParam);
}

// --- Screen readers -------------------------------------------------------------------------------------------------

const CUString& CColourPopup::TextOf(int cell) const {
  return cell == kDefaultCell ? setup_.defaultText : setup_.customText;
}

CUString CColourPopup::PartName(int part) const {
  if (part == kSelf) return setup_.name;
  const int cell = layout_.Cells().CellAtPosition(part);
  return IsColourCell(cell) ? ColourName(kPalette[cell].colour) : TextOf(cell);
}

int CColourPopup::PartRole(int part) const { return part == kSelf ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }

int CColourPopup::PartState(int part) const {
  if (part == kSelf) return 0;
  const int cell = layout_.Cells().CellAtPosition(part);
  return STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE | (cell == chosen_ ? STATE_SYSTEM_SELECTED : 0) |
         (cell == highlighted_ ? STATE_SYSTEM_HOTTRACKED : 0);
}

RECT CColourPopup::PartRect(int part) const { return ToRect(layout_.CellRect(layout_.Cells().CellAtPosition(part))); }

CUString CColourPopup::PartAction(int part) const {
  return part == kSelf ? CUString() : MessageText(MSG_COLOUR_CHOOSE_ACTION);
}

void CColourPopup::DoPartAction(int part) {
  const auto alive = weak_from_this().lock();
  Highlight(layout_.Cells().CellAtPosition(part));
  End(ColourSelEndOk);
}
