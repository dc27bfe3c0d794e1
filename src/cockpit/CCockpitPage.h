// The cockpit: one row for each of the eighteen categories of settings. A row shows whether its category differs from
// the factory state and in what, and leads to the page of its settings. One link puts all of them back to that state.
//
// The page has no settings of its own: it reads the other pages, and tells them what to do.
#pragma once

#include <array>
#include <memory>

#include "cockpit/CCockpitDiff.h"
#include "cockpit/CCockpitLink.h"
#include "cockpit/CompareCategory.h"
#include "controls/CLinkButton.h"
#include "controls/CToolTipBox.h"
#include "sheet/CNemUIPage.h"

// One row of the page.
struct CCockpitRow {
  CCockpitDiff square;
  CCockpitLink link;
  CStatic text;  // what differs, in brackets
  CUString toolTip;
  int32_t toolTipLines = 0;
  int32_t toolTipWidth = 0;  // in characters
};

class CCockpitPage : public CNemUIPage {
 public:
  explicit CCockpitPage(const PageDescription& description);

  bool OnKillActive() override;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  bool OnWindowMessage(WindowMessage& message) override;

  // The user has restored the factory state since the page's start.
  bool HasRestored() const { return restored_; }

 private:
  void BindControls();
  void CollectValues();
  void PushValues();
  void UpdateAllRows();
  void UpdateRow(int32_t category, CCockpitRow& row);

  LRESULT OnLinkClicked(WPARAM controlId, LPARAM);
  void OnRestoreDefaults();

  void OnMouseMove(POINT point);
  void OnMouseLeave();
  void OnRowFocus(WPARAM controlId, LPARAM hasFocus);
  enum class NoteFor { Mouse, Keyboard };
  void OpenNote(const CCockpitRow& row, POINT point, NoteFor whom);
  void CloseNote() { note_.reset(); }

  std::array<CCockpitRow, kCockpitCategoryCount> rows_;  // in the order of the categories
  CLinkButton restore_;
  CCockpitSettings baseline_;
  CCockpitSettings current_;
  bool restored_ = false;
  bool push_ = false;  // the next saving exchange hands the record to the pages
  std::unique_ptr<CToolTipBox> note_;
  NoteFor noteFor_ = NoteFor::Mouse;
  POINT restingMouse_{};  // where the mouse was when the keyboard opened the note
};
