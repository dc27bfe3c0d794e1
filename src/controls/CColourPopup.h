// The palette that drops down from a colour picker: a default cell, 40 colours, a custom cell. It has the mouse and the
// keyboard for as long as it is open, and tells its picker what the user does (ColourMessages.h).
//
// It ends by a choice, by Esc, by a click outside, or by itself with the colour of before: when the mouse, the
// activation or its picker is taken from it, or when its picker can no longer be seen or used.
#pragma once

#include <memory>
#include <vector>

#include "controls/ColourDialog.h"
#include "controls/ColourMessages.h"
#include "controls/ColourPopupLayout.h"
#include "window/CAccessibility.h"
#include "window/CWnd.h"
#include "window/Gdi.h"

using GdiPalette = GdiObject<HPALETTE>;

struct ColourPopupSetup {
  CWnd picker;
  CUString name;  // for screen readers
  COLORREF colour = kNoColour;
  CUString defaultText;  // a cell without a text is not there
  CUString customText;
  std::shared_ptr<CustomColours> customColours;
};

// Whoever tells it something holds a pointer meanwhile: what it sends may end its picker.
class CColourPopup : public CWnd,
                     public CMessageTarget,
                     public std::enable_shared_from_this<CColourPopup>,
                     private CAccessibleSource {
 public:
  explicit CColourPopup(const ColourPopupSetup& setup);
  CColourPopup(const CColourPopup&) = delete;
  CColourPopup& operator=(const CColourPopup&) = delete;
  ~CColourPopup() override;

  // Shows the popup at its picker. False when there is no window, or when it has ended already.
  bool Open();
  // The picker is at its end: the popup ends without a word.
  void Abandon();

  const ColourPopupLayout& Layout() const { return layout_; }
  int HighlightedCell() const { return highlighted_; }
  int ChosenCell() const { return chosen_; }
  COLORREF ChosenColour() const { return chosenColour_; }

  // Highlights a cell and tells the picker. Nothing of the popup is to be trusted afterwards.
  void Highlight(int cell);
  // Ends the popup with ColourSelEndOk or ColourSelEndCancel.
  void End(UINT code);

  // Gives the window classes back; at the library's detach, when no window of them is left.
  static void UnregisterWindowClasses();

 protected:
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  static LRESULT CALLBACK WindowProcedure(HWND, UINT, WPARAM, LPARAM);
  static LRESULT CALLBACK WatchProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);

  void LayOut();
  bool CreatePopupWindow();
  void WatchPicker();
  void Unwatch();
  void Withdraw();
  void Destroy();

  bool OnKey(WPARAM key);
  void OnMouseMove(LPARAM point);
  void OnMouseUp(LPARAM point);
  void OnLeft();
  void OnWindowDestroyed();

  bool ChooseInDialog();
  HWND Root() const { return ::GetAncestor(setup_.picker.Handle(), GA_ROOT); }
  const CUString& TextOf(int cell) const;

  // ColourPopupDrawing.cpp
  void Draw(HDC dc) const;
  void DrawCell(HDC dc, int cell) const;
  void DrawSwatch(HDC dc, int cell) const;
  void InvalidateCell(int cell) const;
  void RealizePalette() const;

  HWND AccessibleWindow() const override { return Handle(); }
  int PartCount() const override { return layout_.Cells().Count(); }
  CUString PartName(int part) const override;
  int PartRole(int part) const override;
  int PartState(int part) const override;
  RECT PartRect(int part) const override;
  CUString PartAction(int part) const override;
  bool HasPartAction(int part) const override { return part != kSelf; }
  void DoPartAction(int part) override;
  int FocusedPart() const override { return layout_.Cells().PositionOf(highlighted_); }
  void FocusPart(int part) override { Highlight(layout_.Cells().CellAtPosition(part)); }

  ColourPopupSetup setup_;
  ColourPopupLayout layout_;
  int highlighted_ = kNoCell;
  int chosen_ = kNoCell;
  COLORREF chosenColour_;
  GdiFont font_;
  GdiPalette palette_;
  POINT mouse_{};                              // where it was last, on the screen
  std::vector<HWND> watched_;                  // the picker and what is around it
  bool ending_ = false;                        // also while the dialog for colours is open
  bool left_ = false;                          // the activation has gone elsewhere
  std::shared_ptr<CColourPopup> untilClosed_;  // itself, when it ends before its window
  bool dying_ = false;                         // the window is being destroyed
  CAccessibility accessibility_;
};
