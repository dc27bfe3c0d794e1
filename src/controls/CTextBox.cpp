#include "controls/CTextBox.h"

// behind Windows.h
#include <oleacc.h>

#include "controls/PageGround.h"
#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

namespace {

uint32_t MessageOf(bool whiteBackground, bool stylesFailed) {
  if (!whiteBackground) return MSG_NOTE_WORD_STYLES;
  return stylesFailed ? MSG_NOTE_STYLES_FAILED : MSG_NOTE_BOOKMARK_FORMATS;
}

}  // namespace

CTextBox::CTextBox(bool whiteBackground, bool stylesFailed)
    : CNoteBox(whiteBackground ? NoteStyle{9, FW_NORMAL, true} : NoteStyle{8, FW_LIGHT, false}),
      whiteBackground_(whiteBackground),
      text_(MessageText(MessageOf(whiteBackground, stylesFailed))) {}

void CTextBox::Draw(HDC dc, const RECT& client) const {
  if (!whiteBackground_) {
    DrawPageGround(*this, dc);
    DrawNote(dc, client, ::GetSysColor(COLOR_BTNTEXT));
    return;
  }
  const bool highContrast = IsHighContrast();
  const auto white = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
  ::FillRect(dc, &client, highContrast ? ::GetSysColorBrush(COLOR_WINDOW) : white);
  DrawNote(dc, client, highContrast ? ::GetSysColor(COLOR_WINDOWTEXT) : RGB(0, 0, 0), nullptr, DT_CENTER);
}

int CTextBox::PartRole(int) const { return ROLE_SYSTEM_STATICTEXT; }
