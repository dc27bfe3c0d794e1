// One settings page alone, on a sheet without a window, made as the sheet makes it: by its row of the page catalogue.
//
//   PageUnderTest test(kAppearancePage);
//   test.Set(L"OpenMode", 3);
//   ASSERT_TRUE(test.Open());
//   test.Control(IDC_APPEARANCE_MODE).Select(0);
//   ASSERT_TRUE(test.Save());
//   EXPECT_EQ(L"0", test.Value(L"OpenMode"));
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "driver/ControlRef.h"
#include "sheet/PageNumbers.h"
#include "support/FakeSheet.h"
#include "ui/PageCatalogue.h"

// Null when the tab has no such page.
inline std::unique_ptr<CNemUIPage> MakeCataloguePage(SheetServices* sheet, int pageId, int settingsIndex) {
  for (const PageCatalogueRow& row : AllPages()) {
    const PageFactory make = settingsIndex == 0 ? row.onBasicSettings : row.onDocumentProperties;
    if (row.description.pageId == pageId && make) return make(sheet, row.description, settingsIndex);
  }
  return nullptr;
}

// Those of a window's controls that are enabled.
template <class Ids>
std::vector<int> EnabledAmong(HWND window, const Ids& ids,
                              ControlRef::Location where = ControlRef::Location::current()) {
  std::vector<int> enabled;
  for (const int id : ids)
    if (ControlRef(GetDlgItem(window, id), id, where).IsEnabled()) enabled.push_back(id);
  return enabled;
}

inline std::vector<int> EnabledChildren(HWND window) {
  std::vector<int> enabled;
  for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    if (IsWindowEnabled(child)) enabled.push_back(GetDlgCtrlID(child));
  return enabled;
}

class PageUnderTest {
 public:
  explicit PageUnderTest(int pageId, int settingsIndex = 0) : pageId_(pageId), settingsIndex_(settingsIndex) {}

  // The administrator's record, which counts from the first reading of the page.
  AdminSettings& Admin() { return sheet_.properties.adminSettings; }
  FakeSheet& Sheet() { return sheet_; }
  CNemUIPage& Page() {
    if (!page_) page_ = MakeCataloguePage(&sheet_, pageId_, settingsIndex_);
    return *page_;
  }
  // The page's class, to call what only it has.
  template <class PageClass>
  PageClass& As() {
    return dynamic_cast<PageClass&>(Page());
  }

  // Properties of the page's set; numbers in decimal.
  void Set(const std::wstring& property, const std::wstring& value) { Find(property).SetValueText(value.c_str()); }
  void Set(const std::wstring& property, int32_t value) { Set(property, std::to_wstring(value)); }
  std::wstring Value(const std::wstring& property) { return TextOf(Find(property)); }
  // Properties of both sets, by set and name.
  using Values = std::map<std::pair<int, std::wstring>, std::wstring>;
  Values AllValues() {
    Values values;
    for (const int set : {0, 1}) {
      const CPropertySet& properties = sheet_.properties.settingsSets[set];
      for (auto position = properties.First(); position;) {
        const CProperty& property = *properties.Next(position);
        values[{set, property.GetName().Text()}] = TextOf(property);
      }
    }
    return values;
  }

  // Those that differ from what they were.
  Values ChangesSince(const Values& before) {
    Values changes;
    for (const auto& [place, value] : AllValues())
      if (before.at(place) != value) changes[place] = value;
    return changes;
  }

  bool Open() {
    if (!Page().Create(parent_.Window())) return false;
    page_->Show(true);
    return page_->IsInitialized();
  }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return {GetDlgItem(Page().Handle(), id), id, where};
  }
  template <class Ids>
  std::vector<int> Enabled(const Ids& ids, ControlRef::Location where = ControlRef::Location::current()) {
    return EnabledAmong(Page().Handle(), ids, where);
  }
  // The keyboard goes elsewhere, as when the user clicks on the bar.
  void TakeFocusAway() { SetFocus(parent_.Window()); }
  // What OK does: the controls' contents go into the properties.
  bool Save() { return Page().UpdateData(true) && Page().UpdateDataSuper(true); }

 private:
  static std::wstring TextOf(const CProperty& property) {
    return property.GetTypeName() == kLongTypeName ? std::to_wstring(property.GetLong())
                                                   : std::wstring(property.GetString().Text());
  }
  CProperty& Find(const std::wstring& name) {
    CProperty* property = sheet_.properties.settingsSets[settingsIndex_].Get(name.c_str());
    EXPECT_NE(nullptr, property) << "no property of this name";
    return *property;
  }

  const int pageId_, settingsIndex_;
  LanguageScope english_{kEnglish};
  FakeSheet sheet_;
  PageParent parent_;
  std::unique_ptr<CNemUIPage> page_;
};
