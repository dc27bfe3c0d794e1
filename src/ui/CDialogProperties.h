// The object behind the handle: all properties of one dialog.
//
// Three sets stand in it: the general one, the settings of the tab "Basic Settings" (set 0) and those of the tab
// "e.pdf Document Properties" (set 1). The properties themselves are members; the members of the settings are arrays
// of two, an element for each set, so that code names a setting and its set in one go: `properties.Scale[1]`.
// All values start at 0 and empty: defaults are the host's business.
#pragma once

#include <cstdint>

#include "environment/AdminSettings.h"
#include "ui/CPropertySet.h"
#include "ui/Property.h"
#include "ui/SettingsCatalogue.h"

class CDialogProperties {
 public:
  static constexpr uint32_t kMagic = 0x4E455549;  // the bytes "IUEN"
  static constexpr int kSettingsSetCount = 2;

  CDialogProperties();
  CDialogProperties(const CDialogProperties&) = delete;
  CDialogProperties& operator=(const CDialogProperties&) = delete;
  // Wipes the magic, so that the handle is known as dead.
  ~CDialogProperties();

  // The set of an index of the interface: -1 is the general set, 0 and 1 are the settings sets. Null for any other.
  CPropertySet* FindSet(int32_t index);

#define NEMPDF_CLASS_Long CLongProperty
#define NEMPDF_CLASS_Text CStringProperty
#define NEMPDF_CLASS_Secret CStringProperty
#define NEMPDF_GENERAL_MEMBER(name, kind, page, meaning) NEMPDF_CLASS_##kind name{L## #name, generalSet};
#define NEMPDF_SETTING_MEMBER(name, kind, page, meaning) NEMPDF_CLASS_##kind name[kSettingsSetCount];

  uint32_t magic = 0;  // first, for the exports look at it before they know whose object it is
  CPropertySet generalSet;
  NEMPDF_GENERAL_PROPERTIES(NEMPDF_GENERAL_MEMBER)
  CPropertySet settingsSets[kSettingsSetCount];
  NEMPDF_SETTINGS(NEMPDF_SETTING_MEMBER)
  AdminSettings adminSettings;  // filled in the sheet's own object only

  // Set while the sheet of this object is on the screen: it must not be freed or run again then.
  bool running = false;

#undef NEMPDF_SETTING_MEMBER
#undef NEMPDF_GENERAL_MEMBER
#undef NEMPDF_CLASS_Secret
#undef NEMPDF_CLASS_Text
#undef NEMPDF_CLASS_Long

 private:
  void BindSettings(int index);
};
