// A box that a page shows over its controls: a text on a ground of its own, drawn by this object. Nobody can operate
// it.
#pragma once

#include "controls/CDrawnBox.h"
#include "window/Gdi.h"

class CNoteBox : public CDrawnBox {
 public:
  // Ends the window as well.
  ~CNoteBox() override;

  // Creates the window, in place of an earlier one, as a child of `parent`, on top of its other children, and shows it.
  // The rectangle is in client coordinates. False when there is no window.
  bool Create(const CWnd& parent, int id, const RECT& rect);

  void Destroy();

  // The text in the box.
  virtual const CUString& NoteText() const = 0;

 protected:
  struct NoteStyle {
    int points;
    int weight;
    bool italic;
  };
  explicit CNoteBox(const NoteStyle& style) : style_(style) {}

  // Draws the text in the box's font or another one, broken into lines. `format` is added to that.
  void DrawNote(HDC dc, RECT rect, COLORREF color, HFONT font = nullptr, UINT format = 0) const;

 private:
  CUString PartName(int) const override { return NoteText(); }

  const NoteStyle style_;
  GdiFont font_;
};
