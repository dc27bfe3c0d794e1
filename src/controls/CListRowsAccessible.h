// What a report list tells a screen reader: a row is spoken with the texts of all its cells. The system's own answer
// names a row after its first cell, which may hold a check box and no text.
#pragma once

#include "window/CAccessibility.h"
#include "window/Controls.h"

class CListRowsAccessible final : private CAccessibleSource {
 public:
  explicit CListRowsAccessible(const CListCtrl& list) : list_(list) {}
  virtual ~CListRowsAccessible() = default;

  bool OnMessage(WindowMessage& message) { return accessibility_.OnMessage(*this, message); }
  // At the window's end.
  void Disconnect() { accessibility_.Disconnect(); }

 private:
  HWND AccessibleWindow() const override { return list_.Handle(); }
  int PartCount() const override { return list_.Count(); }
  CUString PartName(int part) const override;
  int PartRole(int part) const override;
  int PartState(int part) const override;
  RECT PartRect(int part) const override { return list_.RowRect(part - 1); }
  int FocusedPart() const override { return list_.FocusedRow() + 1; }
  void FocusPart(int part) override { list_.SelectRow(part - 1); }

  const CListCtrl& list_;
  CAccessibility accessibility_;
};
