#include "controls/CDrawnButton.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/BufferedPainting.h"
#include "controls/LabelText.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"
#include "window/HeldKeys.h"

namespace {

// The dialog must not take Enter for its default button.
bool IsEnter(const MSG* message) {
  return message && (message->message == WM_KEYDOWN || message->message == WM_CHAR) && message->wParam == VK_RETURN;
}

}  // namespace

void CDrawnButton::Press() const {
  Parent().Send(WM_COMMAND, MAKEWPARAM(Id(), BN_CLICKED), reinterpret_cast<LPARAM>(Handle()));
}

bool CDrawnButton::OnReflected(WindowMessage& message) {
  return AnswerDrawItem(message, [this](HDC dc, const DRAWITEMSTRUCT& item) { Draw(dc, item.rcItem); });
}

bool CDrawnButton::OnWindowMessage(WindowMessage& message) {
  if (AnswerReader(message)) return true;
  switch (message.message) {
    case WM_GETDLGCODE:
      // No push button to the dialog: it would make it the default one, and take its style for that.
      message.result = DLGC_BUTTON;
      if (IsEnter(reinterpret_cast<const MSG*>(message.lParam))) message.result |= DLGC_WANTMESSAGE;
      return true;
    case WM_KEYDOWN:
      if (message.wParam != VK_RETURN) return false;
      if (!IsRepeatedKey(message.lParam)) Press();
      return true;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
      Invalidate();
      return false;
    default:
      return AnswerPainting(message, [this](HDC dc) { Draw(dc, ClientRect()); });
  }
}

// --- Screen readers -------------------------------------------------------------------------------------------------

CUString CDrawnButton::PartName(int) const { return WithoutMarks(Text()); }

int CDrawnButton::PartRole(int) const { return ROLE_SYSTEM_PUSHBUTTON; }

int CDrawnButton::PartState(int) const { return Send(BM_GETSTATE) & BST_PUSHED ? STATE_SYSTEM_PRESSED : 0; }

CUString CDrawnButton::PartAction(int) const { return MessageText(MSG_BUTTON_ACTION); }
