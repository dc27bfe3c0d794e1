#include "sheet/COutlook2Ctrl.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "DriverLIB/MessageText.h"
#include "sheet/COL2CCmdUI.h"
#include "window/AlphaImage.h"

namespace {

constexpr int kIconSize = 16;  // at 96 dpi

POINT PointOf(const WindowMessage& message) { return {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)}; }

}  // namespace

COutlook2Ctrl::COutlook2Ctrl() : handCursor_(::LoadCursorW(nullptr, IDC_HAND)) {}

COutlook2Ctrl::~COutlook2Ctrl() { Destroy(); }

// --- Contents ------------------------------------------------------------------------------------------------------

template <class Element>
void COutlook2Ctrl::LoadPicture(Element& element, UINT iconId, UINT imageId, UINT maskId) const {
  if (imageId && maskId) {
    auto image = std::make_shared<AlphaImage>();
    if (image->Load(imageId, maskId, Dpi())) element.image = std::move(image);
  } else if (iconId) {
    const int size = Scale(kIconSize);
    const HANDLE icon = ::LoadImageW(static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(iconId), IMAGE_ICON,
                                     size, size, LR_DEFAULTCOLOR);
    if (icon) element.icon = OwnedHandle(icon, [](void* handle) { ::DestroyIcon(static_cast<HICON>(handle)); });
  }
}

void COutlook2Ctrl::AddFolder(WideView text, UINT iconId, int commandId, UINT imageId, UINT maskId) {
  LoadPicture(model_.AddFolder(text, commandId), iconId, imageId, maskId);
  Rearrange();
}

bool COutlook2Ctrl::AddGroup(WideView text, int flag, int folder) {
  if (!model_.AddGroup(text, flag, folder)) return false;
  Rearrange();
  return true;
}

bool COutlook2Ctrl::AddEntry(WideView text, UINT iconId, BarEntryKind kind, int commandId, int folder, int group,
                             UINT imageId, UINT maskId) {
  COL2SubItem* entry = model_.AddEntry(text, kind, commandId, folder, group);
  if (!entry) return false;
  LoadPicture(*entry, iconId, imageId, maskId);
  Rearrange();
  return true;
}

bool COutlook2Ctrl::AddWindow(CWnd window, int height, int folder, int group) {
  COL2SubItem* entry = model_.AddEntry({}, BarEntryKind::Plain, height, folder, group);
  if (!entry) return false;
  entry->window = window.Handle();
  ChangeStyle(0, WS_CLIPCHILDREN);
  Rearrange();
  return true;
}

// --- Use -----------------------------------------------------------------------------------------------------------

bool COutlook2Ctrl::ActivateById(int commandId) {
  const BarTarget target = model_.FindEntry(commandId);
  if (!target || !ClickEntry(target.folder, target.group, 0)) return false;
  OpenFolder(target.folder, true);
  return true;
}

bool COutlook2Ctrl::ClickEntry(int folder, int group, int entry) {
  COL2SubItem* clicked = model_.Entry({BarHit::Entry, folder, group, entry});
  if (!clicked) return false;
  // Both questions go to the owner, who may end the bar and its object: nothing of it may be touched then.
  const HWND window = Handle();
  const int commandId = clicked->commandId;
  const bool isSelected = IsSelected(*clicked);
  if (!::IsWindow(window)) return false;
  if (!isSelected && (!SendCommand(commandId) || !::IsWindow(window))) return false;
  Repaint(model_.Layout().area);
  return true;
}

// A click on the entry has nothing to send.
bool COutlook2Ctrl::IsSelected(COL2SubItem& entry) {
  if (!entry.HasCommand()) return true;  // a child window takes its clicks itself, and refuses none
  if (entry.kind == BarEntryKind::Link || entry.kind == BarEntryKind::Check) return false;
  // The answer is not kept: an entry that is refused shows what it showed before.
  return (Ask(entry) & COL2CCmdUI::kChecked) != 0;
}

// How the owner says that the entry stands, as bits of COL2CCmdUI.
int COutlook2Ctrl::Ask(COL2SubItem& entry) {
  const HWND window = Handle();
  COL2CCmdUI probe(entry);
  Parent().Send(kUpdateCommandMessage, static_cast<WPARAM>(entry.commandId),
                reinterpret_cast<LPARAM>(static_cast<CCmdUI*>(&probe)));
  if (probe.HasNewText() && ::IsWindow(window)) Repaint(entry.rect);
  return probe.Bits();
}

bool COutlook2Ctrl::SendCommand(int commandId) {
  // The command may show a box, which would not get the mouse.
  if (::GetCapture() == Handle()) ::ReleaseCapture();
  return Parent().Send(WM_COMMAND, MAKEWPARAM(commandId, 0), reinterpret_cast<LPARAM>(Handle())) != 0;
}

bool COutlook2Ctrl::Click(const BarTarget& target) {
  switch (target.hit) {
    case BarHit::Folder:
      if (!ClickEntry(target.folder, 0, 0)) return false;
      OpenFolder(target.folder, true);
      return true;
    case BarHit::Entry:
      return ClickEntry(target.folder, target.group, target.entry);
    default:
      return false;
  }
}

void COutlook2Ctrl::OpenFolder(int folder, bool animate) {
  if (!model_.Folder(folder) || folder == model_.OpenFolder()) return;
  HideChildWindows();
  animate = animate && Slides();
  // The page that was selected shows itself before its folder slides up.
  if (animate) ::RedrawWindow(Parent().Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  model_.Open(folder);
  ForgetHotEntry();
  if (animate) AnimateFolder();
  Rearrange();
  NotifyAccessibleEvent(EVENT_OBJECT_REORDER, Handle(), CAccessibleSource::kSelf);
}

void COutlook2Ctrl::UpdateEntries() {
  for (const BarTarget& target : model_.EntriesOf(model_.OpenFolder())) {
    COL2SubItem& entry = *model_.Entry(target);
    if (!entry.IsProbed() || !Probe(entry)) continue;
    Repaint(entry.rect);
    NotifyAccessibleEvent(EVENT_OBJECT_STATECHANGE, Handle(), source_.PartOf(target));
  }
}

bool COutlook2Ctrl::Probe(COL2SubItem& entry) {
  if (!entry.HasCommand()) return false;
  const int bits = Ask(entry);
  return std::exchange(entry.probeBits, bits) != bits;
}

// --- Mouse ---------------------------------------------------------------------------------------------------------

HCURSOR COutlook2Ctrl::CursorOn(const BarTarget& target) const {
  const COL2SubItem* entry = model_.Entry(target);
  const bool isLink = entry && entry->HasCommand() && entry->kind == BarEntryKind::Link;
  return (target.hit == BarHit::Folder || isLink) && handCursor_ ? handCursor_ : ::LoadCursorW(nullptr, IDC_ARROW);
}

// The mouse is captured while it is over the bar: so the bar learns that it has left.
void COutlook2Ctrl::OnMouseMove(WindowMessage& message) {
  const POINT point = PointOf(message);
  const RECT client = ClientRect();
  if (!::PtInRect(&client, point)) {
    OnMouseLeft();
    return;
  }
  if (::GetCapture() != Handle()) {
    ::SetCapture(Handle());
    // A capture without a pressed button ends at another program's window, and nobody tells.
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
    ::TrackMouseEvent(&leaving);
  }
  const BarTarget target = HitTest(point);
  if (target.hit != BarHit::Group) SetHot(target);
  // A window that has captured the mouse is not asked for the cursor.
  ::SetCursor(CursorOn(target));
}

void COutlook2Ctrl::OnLeftButtonDown(WindowMessage& message) {
  const POINT point = PointOf(message);
  if (!model_.TakesClick({point.x, point.y}, ClientRect().right)) return;
  const BarTarget target = HitTest(point);
  if (target.hit != BarHit::Folder && target.hit != BarHit::Entry) return;
  // The keyboard goes on from here, though the focus stays where it is.
  Repaint(model_.RectOf(FocusedElement()));
  keyboard_ = target;
  Repaint(model_.RectOf(target));
  Click(target);
}

void COutlook2Ctrl::OnMouseGone() { SetHot({}); }

void COutlook2Ctrl::OnMouseLeft() {
  if (::GetCapture() == Handle()) ::ReleaseCapture();
  SetHot({});
}

bool COutlook2Ctrl::OnSetCursor(WindowMessage& message) {
  if (reinterpret_cast<HWND>(message.wParam) != Handle() || LOWORD(message.lParam) != HTCLIENT) return false;
  POINT point{};
  ::GetCursorPos(&point);
  ::SetCursor(CursorOn(HitTest(ScreenToClient(point))));
  message.result = TRUE;
  return true;
}

// --- Keyboard ------------------------------------------------------------------------------------------------------

BarTarget COutlook2Ctrl::FocusedElement() const {
  const std::vector<BarTarget> targets = model_.Targets();
  if (std::find(targets.begin(), targets.end(), keyboard_) != targets.end()) return keyboard_;
  const auto selected = std::find_if(targets.begin(), targets.end(), [this](const BarTarget& target) {
    const COL2SubItem* entry = model_.Entry(target);
    return entry && (entry->probeBits & COL2CCmdUI::kChecked);
  });
  if (selected != targets.end()) return *selected;
  return targets.empty() ? BarTarget() : targets.front();
}

void COutlook2Ctrl::FocusElement(const BarTarget& target) {
  // Whoever moves the focus by keyboard wants to see it.
  Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
  const BarTarget before = FocusedElement();
  keyboard_ = target;
  DrawElement(before);
  DrawElement(target);
  const COL2SubItem* entry = model_.Entry(target);
  if (entry && entry->window) CWnd(static_cast<HWND>(entry->window)).Focus();
  NotifyAccessibleEvent(EVENT_OBJECT_FOCUS, Handle(), source_.PartOf(target));
}

bool COutlook2Ctrl::OnKeyDown(WPARAM key) {
  const std::vector<BarTarget> targets = model_.Targets();
  if (targets.empty()) return false;
  const int last = static_cast<int>(targets.size()) - 1;
  const int focused = source_.PartOf(FocusedElement()) - 1;
  const auto focus = [&](int index) { FocusElement(targets[static_cast<size_t>(std::clamp(index, 0, last))]); };
  switch (key) {
    case VK_UP:
      focus(focused - 1);
      return true;
    case VK_DOWN:
      focus(focused + 1);
      return true;
    case VK_HOME:
      focus(0);
      return true;
    case VK_END:
      focus(last);
      return true;
    case VK_RETURN:
    case VK_SPACE:
      keyboard_ = targets[static_cast<size_t>(focused)];
      Click(targets[static_cast<size_t>(focused)]);
      return true;
    default:
      return false;
  }
}

// Enter is the bar's, not the dialog's default button's.
LRESULT COutlook2Ctrl::OnGetDialogCode(WPARAM, LPARAM lParam) const {
  const auto* message = reinterpret_cast<const MSG*>(lParam);
  const bool isEnter = message && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
  return DLGC_WANTARROWS | (isEnter ? DLGC_WANTMESSAGE : 0);
}

// --- Other messages ------------------------------------------------------------------------------------------------

void COutlook2Ctrl::OnFocusChanged() {
  Repaint(model_.RectOf(FocusedElement()));
  if (HasFocus()) NotifyAccessibleEvent(EVENT_OBJECT_FOCUS, Handle(), source_.FocusedPart());
}

bool COutlook2Ctrl::OnWindowMessage(WindowMessage& message) {
  static constexpr MessageRow kMessages[] = {
      OnMessage<&COutlook2Ctrl::OnMouseMove>(WM_MOUSEMOVE),
      OnMessage<&COutlook2Ctrl::OnLeftButtonDown>(WM_LBUTTONDOWN),
      OnMessage<&COutlook2Ctrl::OnLeftButtonDown>(WM_LBUTTONDBLCLK),  // a second click soon after the first
      OnMessage<&COutlook2Ctrl::OnMouseGone>(WM_CAPTURECHANGED),
      OnMessage<&COutlook2Ctrl::OnMouseLeft>(WM_MOUSELEAVE),
      OnMessage<&COutlook2Ctrl::OnGetDialogCode>(WM_GETDLGCODE),
  };
  if (accessibility_.OnMessage(source_, message)) return true;
  switch (message.message) {
    case WM_SETCURSOR:
      return OnSetCursor(message);
    case WM_KEYDOWN:
      return OnKeyDown(message.wParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      OnFocusChanged();
      return false;
    case WM_COMMAND:
    case WM_NOTIFY:
      // Of child windows: the owner knows them, the bar does not.
      message.result = Parent().Send(message.message, message.wParam, message.lParam);
      return true;
    case WM_DESTROY:
      accessibility_.Disconnect();
      return false;
    default:
      return DispatchMessages(kMessages, *this, message) || COutlook2View::OnWindowMessage(message);
  }
}
