// Shows a form field of the document in its colours. It stands in place of an empty static text.
#pragma once

#include "window/CAccessibleControl.h"
#include "window/Gdi.h"

enum class FormFieldKind { Text = 0, CheckBox = 1, Dropdown = 2 };

class CFormFieldsPreview : public CAccessibleControl<CWnd> {
 public:
  static constexpr COLORREF kNone = 0xFFFFFFFF;

  explicit CFormFieldsPreview(FormFieldKind kind) : kind_(kind) {}

  COLORREF BorderColour() const { return borderColour_; }
  COLORREF BackgroundColour() const { return backgroundColour_; }
  // As they come from the pickers: their mark of no colour is none here.
  void SetColours(COLORREF border, COLORREF background);

 protected:
  void OnAttached() override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  COLORREF InkColour() const;
  void Draw(HDC dc) const;
  void DrawSample(HDC dc, RECT client) const;
  void DrawCross(HDC dc, const RECT& client) const;
  void DrawDropButton(HDC dc, const RECT& client) const;
  void DrawBorder(HDC dc, const RECT& client) const;

  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override;
  CUString PartValue(int) const override;

  const FormFieldKind kind_;
  COLORREF borderColour_ = kNone;
  COLORREF backgroundColour_ = kNone;
  GdiFont font_;
};
