// A button that shows a colour and drops down a palette to choose another one. It is an owner-drawn button of a
// template; its own text is its name for screen readers, and without one its label is.
//
// The parent hears of what happens by the messages of ColourMessages.h; ColourSelEndOk is the one to watch:
//
//   OnMessage<&CLinksPage::OnColourChosen>(ColourSelEndOk)
#pragma once

#include <optional>

#include "controls/CColourPopup.h"
#include "controls/ColourMessages.h"
#include "controls/ColourPickerLayout.h"
#include "window/CAccessibleControl.h"
#include "window/CDataExchange.h"

class CColourPicker : public CAccessibleControl<CButton> {
 public:
  CColourPicker();
  ~CColourPicker() override;

  COLORREF GetColour() const { return colour_; }
  void SetColour(COLORREF colour);

  // The texts of the default and the custom cell. The first is shown in place of no colour, too. A popup has no cell
  // without a text.
  void SetDefaultText(const wchar_t* text);
  void SetCustomText(const wchar_t* text) { customText_ = text; }

  // With it the picker takes each colour that is highlighted, and gives it back when the user cancels.
  void SetTrackSelection(bool track) { trackSelection_ = track; }
  // The swatch of no colour; at first it has the system's colour of button faces.
  void SetDefaultColour(COLORREF colour);
  // How it looks; all are on at first. Without the text of the colour there is the swatch alone.
  void SetStyle(bool flat, bool arrow, bool colourText);

  bool IsOpen() const { return open_; }
  // Null while none is open.
  std::shared_ptr<CColourPopup> Popup() const { return popup_; }
  // What a click does. It may end the picker, and its object.
  void Open();

 protected:
  void OnAttached() override;
  void OnDestroyed() override;
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  PickerMeasures Measures() const;
  void TakeSize() const;
  void ClosePopup();

  void OnHighlighted(COLORREF colour);
  void OnEnded(UINT code, COLORREF colour);
  bool Tell(UINT message, COLORREF colour);
  void SetHover(bool hover);
  void OnMouseMove();

  CUString Label() const;
  void Draw(HDC dc, const DRAWITEMSTRUCT& item) const;
  void DrawButton(HDC dc, RECT rect, UINT state) const;
  void DrawSwatch(HDC dc, const IntRect& rect, bool disabled) const;

  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override;
  CUString PartValue(int) const override;
  CUString PartAction(int) const override;
  bool HasPartAction(int) const override { return true; }
  void DoPartAction(int) override { Open(); }

  bool open_ = false;
  bool trackSelection_ = false;
  bool flat_ = true, arrow_ = true, colourText_ = true;
  bool hover_ = false;
  COLORREF colour_ = kNoColour;
  std::optional<COLORREF> defaultColour_;  // else the face of buttons, as it is when we draw
  CUString defaultText_;
  CUString customText_;
  std::shared_ptr<CustomColours> customColours_ = std::make_shared<CustomColours>();
  std::shared_ptr<CColourPopup> popup_;
};

// One line of a page's exchange: the picker's colour and a member.
template <class T>
void ExchangeColour(const CDataExchange& exchange, CColourPicker& picker, T& colour) {
  if (exchange.IsLoading()) picker.SetColour(static_cast<COLORREF>(colour));
  if (exchange.IsSaving()) colour = static_cast<T>(picker.GetColour());
}
