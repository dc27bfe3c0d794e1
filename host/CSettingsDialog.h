// The dialog object of the library, as a C++ host likes to have it: freed when it goes, and its properties as values.
#pragma once

#include <optional>

#include "NemPdfUI.h"
#include "Settings.h"

namespace host {

class CSettingsDialog {
 public:
  CSettingsDialog();
  ~CSettingsDialog();
  CSettingsDialog(const CSettingsDialog&) = delete;
  CSettingsDialog& operator=(const CSettingsDialog&) = delete;

  // False when the library had no memory for the object; nothing else may be called then.
  bool IsValid() const { return handle_ != nullptr; }

  // False when the library refuses the setting.
  bool Set(const Setting& setting);

  // All properties of all sets, in the library's order; nothing when the library refuses one.
  std::optional<Settings> GetAll() const;

  // Shows the sheet until the user closes it: above 0 after OK, 0 after Cancel, below 0 when it failed.
  int DoModal();

 private:
  std::optional<Value> Get(int32_t set, const SettingInfo& info) const;

  NemPdfUIHandle handle_ = nullptr;
};

}  // namespace host
