// What the navigation bar tells a screen reader: a list of the entries of the open folder, followed by the buttons of
// the folders, of which one is expanded.
#pragma once

#include "sheet/BarModel.h"
#include "window/CAccessibility.h"

class COutlook2Ctrl;

class COutlook2Accessibility final : public CAccessibleSource {
 public:
  explicit COutlook2Accessibility(COutlook2Ctrl& bar) : bar_(bar) {}

  HWND AccessibleWindow() const override;
  int PartCount() const override;
  CUString PartName(int part) const override;
  int PartRole(int part) const override;
  int PartState(int part) const override;
  RECT PartRect(int part) const override;
  CUString PartAction(int part) const override;
  bool HasPartAction(int part) const override { return part != kSelf; }
  void DoPartAction(int part) override;
  int FocusedPart() const override;
  void FocusPart(int part) override;

  // The number of an element's part; kSelf when it is none.
  int PartOf(const BarTarget& target) const;

 private:
  BarTarget TargetOf(int part) const;

  COutlook2Ctrl& bar_;
};
