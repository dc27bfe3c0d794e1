// The navigation bar: one open folder with its entries, and the buttons of all folders below it.
//
// The bar knows nothing of pages. It sends its parent WM_COMMAND with an entry's id and the bar's handle, and takes the
// answer 0 for a refusal. How an entry stands it asks the parent by kUpdateCommandMessage.
//
// A click takes no focus: an edit of the page keeps it until the page is asked to be left. By keyboard the bar is one
// stop of Tab; Up, Down, Home and End move within it, Enter and Space click.
#pragma once

#include "sheet/COutlook2Accessibility.h"
#include "sheet/COutlook2View.h"

class COutlook2Ctrl : public COutlook2View {
 public:
  COutlook2Ctrl();
  ~COutlook2Ctrl() override;

  // --- Contents ----------------------------------------------------------------------------------------------------

  // Pictures are pairs of bitmap and mask by their resource numbers; without a pair the icon is loaded, 0 for none.
  void AddFolder(WideView text, UINT iconId, int commandId, UINT imageId = 0, UINT maskId = 0);
  // A folder or group of -1 is the last one. False when there is no such folder or group.
  bool AddGroup(WideView text, int flag, int folder = -1);
  bool AddEntry(WideView text, UINT iconId, BarEntryKind kind, int commandId, int folder = -1, int group = -1,
                UINT imageId = 0, UINT maskId = 0);
  // An entry whose place a child window of the bar takes. Its height is one at 96 dpi, or
  // COL2SubItem::kRemainingHeight. The window stays the caller's; what it tells its parent, the bar's parent is told.
  bool AddWindow(CWnd window, int height, int folder = -1, int group = -1);

  // --- Use ---------------------------------------------------------------------------------------------------------

  // Opens the folder of the first entry with this id and selects the first entry of its group. False when there is
  // none, or when the selection is refused.
  bool ActivateById(int commandId);
  // False when the owner refuses. The command may end the bar, and its object: false then, too.
  bool ClickEntry(int folder, int group, int entry);
  // What a click on a folder button or an entry does.
  bool Click(const BarTarget& target);
  void OpenFolder(int folder, bool animate);
  // Asks the owner how the entries of the open folder stand and repaints those that have changed. To be called after
  // each change of page.
  void UpdateEntries();

  BarTarget FocusedElement() const override;
  // Moves the keyboard's focus within the bar.
  void FocusElement(const BarTarget& target);

 protected:
  bool OnWindowMessage(WindowMessage& message) override;
  bool Probe(COL2SubItem& entry) override;

 private:
  void OnMouseMove(WindowMessage& message);
  void OnLeftButtonDown(WindowMessage& message);
  void OnMouseGone();
  void OnMouseLeft();
  bool OnSetCursor(WindowMessage& message);
  bool OnKeyDown(WPARAM key);
  LRESULT OnGetDialogCode(WPARAM, LPARAM lParam) const;
  void OnFocusChanged();

  template <class Element>
  void LoadPicture(Element& element, UINT iconId, UINT imageId, UINT maskId) const;
  bool IsSelected(COL2SubItem& entry);
  int Ask(COL2SubItem& entry);
  bool SendCommand(int commandId);
  HCURSOR CursorOn(const BarTarget& target) const;

  BarTarget keyboard_;  // where the keyboard's focus was put last
  HCURSOR handCursor_;
  COutlook2Accessibility source_{*this};
  CAccessibility accessibility_;
};
