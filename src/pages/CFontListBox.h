// A list of fonts with what each one's maker allows: as a picture, and in words for screen readers. Sorted, and with a
// selection of several rows.
#pragma once

#include <vector>

#include "controls/CListBoxST.h"
#include "pages/InstalledFont.h"
#include "window/CAccessibility.h"

class CFontListBox : public CListBoxST, private CAccessibleSource {
 public:
  bool LoadPictures();
  // Adds a row that carries the number of a font. Its row, negative when it could not be added.
  int AddFont(const wchar_t* name, FontPermission permission, int font);
  int FontOf(int row) const { return static_cast<int>(ItemData(row)); }
  FontPermission PermissionIn(int row) const { return static_cast<FontPermission>(ItemImage(row)); }

  std::vector<int> SelectedRows() const;
  void SelectAll() const { Send(LB_SETSEL, TRUE, -1); }
  void Unselect(int row) const { Send(LB_SETSEL, FALSE, row); }

 protected:
  void OnDestroyed() override { accessibility_.Disconnect(); }
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  HWND AccessibleWindow() const override { return Handle(); }
  int PartCount() const override { return Count(); }
  CUString PartName(int part) const override;
  int PartRole(int part) const override;
  int PartState(int part) const override;
  RECT PartRect(int part) const override;
  int FocusedPart() const override;
  void FocusPart(int part) override;

  CAccessibility accessibility_;
};

// The list is not drawn while many rows change.
class ListRedrawScope {
 public:
  explicit ListRedrawScope(const CListBox& list) : list_(list) { list_.Send(WM_SETREDRAW, FALSE); }
  ~ListRedrawScope() {
    list_.Send(WM_SETREDRAW, TRUE);
    list_.Invalidate();
  }
  ListRedrawScope(const ListRedrawScope&) = delete;
  ListRedrawScope& operator=(const ListRedrawScope&) = delete;

 private:
  const CListBox& list_;
};
