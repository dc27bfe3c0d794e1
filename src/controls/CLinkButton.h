// A button in the look of a link: for what is done in place, where a link would lead elsewhere. A click is told to the
// parent as that of any button.
#pragma once

#include "controls/CDrawnButton.h"

class CLinkButton : public CDrawnButton {
 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void Draw(HDC dc, const RECT& client) override;
  void SetHover(bool hover);

  bool hover_ = false;
};
