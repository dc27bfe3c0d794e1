#include "controls/ColourDialog.h"

#include "window/CActivationContext.h"
#include "window/SystemFunction.h"
// behind Windows.h
#include <commdlg.h>

namespace {

constexpr COLORREF kParts = 0xFFFFFF;  // without the mark of no colour

}  // namespace

bool AskForColour(HWND owner, COLORREF& colour, CustomColours& custom) {
  static const auto choose = SystemFunction<decltype(::ChooseColorW)>(L"comdlg32.dll", "ChooseColorW");
  if (!choose) return false;
  const CActivationScope look;
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.rgbResult = colour & kParts;
  dialog.lpCustColors = custom.fields.data();
  dialog.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
  if (!choose(&dialog)) return false;
  colour = dialog.rgbResult & kParts;
  return true;
}
