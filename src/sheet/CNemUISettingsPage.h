// What all glue classes share: they sit on a page's logic and connect it with the sheet and with the properties of one
// settings set. A glue class adds its table of bindings, and what the table cannot say.
#pragma once

#include <span>
#include <type_traits>

#include "sheet/CNemUIPage.h"
#include "sheet/PropertyBinding.h"
#include "sheet/SheetServices.h"

// The settings set of the tab for basic settings. What is one for both tabs stands in it.
constexpr int kBasicSettings = 0;

template <class Logic>
class CNemUISettingsPage : public Logic {
 public:
  using Binding = PropertyBinding<Logic>;
  using BindingTable = std::span<const Binding>;

  // Without a sheet the page has no properties, and its property exchange fails.
  CNemUISettingsPage(SheetServices* sheet, const PageDescription& description, int settingsIndex)
      : Logic(description), sheet_(sheet), settingsIndex_(settingsIndex) {
    this->globalTab = settingsIndex == kBasicSettings;
  }

  CUString GetHelpFilename() override { return sheet_ ? sheet_->GetHelpFilename() : CUString(); }
  CUString GetMsgBoxTitle() override { return sheet_ ? sheet_->GetMsgBoxTitle() : CUString(); }
  bool ActivatePage(int pageId) override { return sheet_ && sheet_->ActivatePage(pageId); }
  // On the page's own tab. The sheet would look on the one that is shown, and at OK the pages of both are saved.
  CNemUIPage* FindPage(int pageId) override {
    if (!sheet_) return nullptr;
    return this->Host() ? this->Host()->FindPage(pageId) : sheet_->FindPage(pageId);
  }

  bool ExchangeProperties(CDataExchange& exchange) override {
    if (!sheet_) return false;
    if (exchange.IsSaving())
      this->WriteProperties();
    else
      this->ReadProperties();
    return true;
  }

  void ReadProperties() override {
    if (!sheet_ || this->IsLoaded()) return;
    for (const Binding& binding : Bindings()) binding.read(*this, sheet_->Properties(), settingsIndex_);
    OnPropertiesRead();
    this->SetLoaded();
  }

  void WriteProperties() override {
    if (!sheet_) return;
    for (const Binding& binding : Bindings())
      if (binding.write) binding.write(*this, sheet_->Properties(), settingsIndex_);
    OnPropertiesWritten();
  }

 protected:
  virtual BindingTable Bindings() const = 0;
  // What the table cannot say; both run with a sheet.
  virtual void OnPropertiesRead() {}
  virtual void OnPropertiesWritten() {}

  // Another page sets a value of this one: the member, and its control; or the property while the page has not read
  // the member yet, which then is Logic::kNotRead.
  template <auto Member, auto Property>
  void TakeValue(int value) {
    if (!sheet_) return;
    auto& member = this->*Member;
    if (!this->IsLoaded() || member == Logic::kNotRead) {
      (sheet_->Properties().*Property)[settingsIndex_].SetLong(value);
      return;
    }
    member = static_cast<std::remove_reference_t<decltype(member)>>(value);
    if (this->IsWindow()) this->UpdateData(false);
  }

  SheetServices* Sheet() const { return sheet_; }
  int SettingsIndex() const { return settingsIndex_; }

 private:
  SheetServices* const sheet_;
  const int settingsIndex_;
};
