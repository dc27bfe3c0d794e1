// When the product looks for a newer version, and what it does with one. The schedule is the user's, a value in the
// registry and no property; the updater, a component of its own, does the work.
#pragma once

#include "environment/Override.h"
#include "resources/ResourceIds.h"
#include "sheet/CNemUIPage.h"

class NemUpdateJob;

class CUpdatePage : public CNemUIPage {
 public:
  using CNemUIPage::CNemUIPage;

  // What an administrator has fixed.
  NumberOverride updateTypeOverride;
  BooleanOverride disableManualUpdate;

 protected:
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;

 private:
  void LoadSchedule();
  void SaveSchedule();
  void CheckUpdaterPresent();

  void OnSearchClicked();

  bool IsNewest();
  void SetJobProperties(NemUpdateJob& job);
  void UpdateUpdateControls();
  void ApplyUpdateOverrides();

  bool isUpdaterMissing_ = true;  // when the page was last filled or left
  bool isSearching_ = false;      // the updater may let the user's clicks through meanwhile
};
