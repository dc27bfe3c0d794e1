// The cockpit with the real pages side by side, none of them ever shown unless a test says so: from a property to its
// row, and the factory state back into the properties.
#include "CockpitTest.h"

#include <iterator>

#include "sheet/BarContents.h"
#include "support/CockpitFields.h"
#include "support/PageUnderTest.h"

namespace cockpit_test {
namespace {

// The properties of the fields, in their order.
constexpr const wchar_t* kProperties[] = {
    L"GraphicCompressMethod",
    L"GraphicJpegQuality",
    L"GraphicResolution",
    L"GraphicColorReduction",
    L"PaperSize",
    L"Orientation",
    L"PaperScaleWidth",
    L"PaperScaleHeight",
    L"Scale",
    L"PaperMarginCenter",
    L"PaperBorder",
    L"OpenLayout",
    L"OpenSize",
    L"OpenPageIndex",
    L"OpenMode",
    L"NonFullScreenPageMode",
    L"Direction",
    L"HideToolbar",
    L"HideMenubar",
    L"CenterWindow",
    L"FitWindow",
    L"DisplayDocTitle",
    L"HideWindowUI",
    L"FontsEmbedded",
    L"WatermarkEnabled",
    L"StationeryEnabled",
    L"UseHyperlinkRecognition",
    L"EmbedFilenamesEnabled",
    L"ZUGFeRD",
    L"ZUGFeRDXml",
    L"ZUGFeRDDeleteAfterEmbedding",
    L"ZUGFeRDShowAfterCreation",
    L"ZUGFeRDCreationMethod",
    L"OutlineStylesEnabled",
    L"SaveAction",
    L"FileExistsAction",
    L"PdfVersion",
    L"SaveFormat",
    L"SaveConversion",
    L"StartAction",
    L"Colorspace",
    L"ShowFormfields",
    L"FormfieldUseTextfieldBorder",
    L"FormfieldTextfieldBorderColor",
    L"FormfieldUseTextfieldBackColor",
    L"FormfieldTextfieldBackColor",
    L"FormfieldUseCheckboxBorder",
    L"FormfieldCheckboxBorderColor",
    L"FormfieldUseCheckboxBackColor",
    L"FormfieldCheckboxBackColor",
    L"FormfieldUseDropdownBorder",
    L"FormfieldDropdownBorderColor",
    L"FormfieldUseDropdownBackColor",
    L"FormfieldDropdownBackColor",
    L"EncryptOwnerPasswordEnabled",
    L"EncryptUserPasswordEnabled",
    L"UseEncryptEnhancedPdfPassword",
    L"Title",
    L"Author",
    L"Subject",
    L"Keywords",
};
static_assert(std::size(kProperties) == std::size(kFields));

const Field& FieldOf(int number) { return kFields[number - 1]; }

// The document's tab has placeholders in their places.
const std::set<int> kOfBasicSettingsAlone = {102, 103, 104};

class CockpitAndPages : public CockpitRestore {
 protected:
  explicit CockpitAndPages(int set = 0) : CockpitRestore(set) {
    for (const int each : {0, 1}) sheet_.properties.SaveFormatEPdfEnabled[each].SetLong(1);
    SetProperties(0, factory_);
    SetProperties(1, factory_);
  }

  // New pages in place of all there are, as in a new sheet: each reads its properties once.
  void MakePages(int set = 0) {
    for (const Row& row : kRows) {
      sheet_.pages.erase(row.pageId);
      realPages_[row.pageId] = MakeCataloguePage(&sheet_, row.pageId, set);
      if (realPages_[row.pageId]) sheet_.pages[row.pageId] = realPages_[row.pageId].get();
    }
  }
  bool IsTracked(int category, int set) {
    const int pageId = kRows[category - 1].pageId;
    return set == 0 || !kOfBasicSettingsAlone.contains(pageId);
  }

  CProperty& Property(int number, int set) {
    CProperty* property = sheet_.properties.settingsSets[set].Get(kProperties[number - 1]);
    EXPECT_NE(nullptr, property) << number;
    return *property;
  }
  std::wstring Stored(int number, int set = 0) {
    const CProperty& property = Property(number, set);
    return property.GetTypeName() == kLongTypeName ? std::to_wstring(property.GetLong()) : property.GetString().Text();
  }
  void SetProperties(int set, const CCockpitSettings& values) {
    for (const Field& field : kFields) Property(field.number, set).SetValueText(field.read(values).c_str());
  }

  // The value of the test that is not the field's default.
  std::wstring Changed(const Field& field) {
    CCockpitSettings changed(Settings::IsA4());
    field.change(changed);
    return field.number == kStartAction ? std::to_wstring(2 | 4 | 8) : field.read(changed);
  }
  void ChangeAllProperties(int set) {
    for (const Field& field : kFields) Property(field.number, set).SetValueText(Changed(field).c_str());
  }
  // On the tab of a set the user restores, and presses OK. `stillMarked` are the rows that stay marked, `kept` the
  // fields that stay beside those that do on every tab.
  void ExpectRestored(int set, const std::set<int>& stillMarked, const std::set<int>& kept) {
    for (const int each : {0, 1}) ChangeAllProperties(each);
    MakePages(set);
    Open();
    Restore(IDYES);
    EXPECT_EQ(stillMarked, MarkedRows());
    for (const Field& field : kFields)
      EXPECT_EQ(Changed(field), Stored(field.number, set)) << field.name << " before OK";
    ASSERT_TRUE(page_.UpdateDataSuper(true));
    for (const Field& field : kFields) {
      const bool restored = field.category != kPaperCategory && field.hasDefault && !kept.contains(field.number);
      EXPECT_EQ(restored ? field.read(factory_) : Changed(field), Stored(field.number, set)) << field.name;
      EXPECT_EQ(Changed(field), Stored(field.number, 1 - set)) << field.name << " of the other tab";
    }
  }

  // The same with all pages of the tab shown before: at OK each writes what its controls hold, one behind the other.
  // `others` are the fields that have another value then than the factory's.
  void ExpectRestoredWhenShown(int set, int pdfVersion, const std::map<int, std::wstring>& others) {
    ChangeAllProperties(set);
    sheet_.properties.PdfVersion[set].SetLong(pdfVersion);
    MakePages(set);
    for (const auto& [pageId, page] : realPages_) ASSERT_TRUE(page->Create(parent_.Window())) << pageId;
    Open();
    Restore(IDYES);
    for (const int pageId : TabOrder()) {
      CNemUIPage* page = sheet_.FindPage(pageId);
      EXPECT_TRUE(!page || page->OnApply()) << pageId;
    }
    for (const Field& field : kFields) {
      if (!field.hasDefault) continue;
      const auto other = others.find(field.number);
      EXPECT_EQ(other == others.end() ? field.read(factory_) : other->second, Stored(field.number, set)) << field.name;
    }
  }

  static constexpr int kPaperCategory = 2, kStartAction = 40;
  // The factory's kind of file, in its bits.
  static inline const std::map<int, std::wstring> kStoredAtOk = {{38, L"258"}};
  const CCockpitSettings factory_{Settings::IsA4()};
  std::map<int, std::unique_ptr<CNemUIPage>> realPages_;
};

TEST_F(CockpitAndPages, ThePagesAreThere) {
  for (const int set : {0, 1}) {
    MakePages(set);
    for (const auto& [pageId, page] : realPages_) EXPECT_TRUE(page) << pageId;
  }
}

TEST_F(CockpitAndPages, AtTheDefaultsNothingIsMarked) {
  Open();
  for (const int set : {0, 1}) {
    MakePages(set);
    Refresh();
    EXPECT_EQ((std::set<int>{}), MarkedRows()) << set;
  }
}

TEST_F(CockpitAndPages, EachPropertyMarksItsRowOrNone) {
  Open();
  for (const int set : {0, 1})
    for (const Field& field : kFields) {
      CCockpitSettings changed = factory_;
      field.change(changed);
      SetProperties(set, changed);
      MakePages(set);
      Refresh();
      const bool marks = field.category != 0 && IsTracked(field.category, set);
      EXPECT_EQ(marks ? std::set<int>{field.category} : std::set<int>{}, MarkedRows()) << field.name << ' ' << set;
      for (int category = 1; category <= kCockpitCategoryCount; ++category)
        EXPECT_EQ(marks && category == field.category ? L"(" + std::wstring(field.item) + L")" : L"", RowText(category))
            << field.name << ' ' << set;
      SetProperties(set, factory_);
    }
}

// Of the bits of the start action two mark the one row, one the other, and one none.
TEST_F(CockpitAndPages, EachBitOfTheStartActionMarksItsRowOrNone) {
  const std::pair<int, std::set<int>> rows[] = {{0, {11}},   {1 | 2, {12}},     {1 | 4, {11}},
                                                {1 | 8, {}}, {2 | 4, {11, 12}}, {1 | 16, {}}};
  Open();
  for (const auto& [startAction, marked] : rows) {
    sheet_.properties.StartAction[0].SetLong(startAction);
    MakePages();
    Refresh();
    EXPECT_EQ(marked, MarkedRows()) << startAction;
  }
}

// --- Restoring ------------------------------------------------------------------------------------------------------

// The host's value, or the factory's, as the paper page keeps its properties and colours without a default stay.
TEST_F(CockpitAndPages, RestoringReachesThePropertiesOfAllPagesButPaper) { ExpectRestored(0, {}, {}); }

class CockpitAndPagesOfTheDocument : public CockpitAndPages {
 protected:
  CockpitAndPagesOfTheDocument() : CockpitAndPages(1) {}
};

// Saving, actions and mail have no page there; of the format page's values the version alone is the tab's own.
TEST_F(CockpitAndPagesOfTheDocument, RestoringReachesTheTabsOwnPropertiesAlone) {
  ExpectRestored(1, {10}, {35, 36, 38, 39, 40});
  EXPECT_EQ(L"(Conversion engine)", RowText(10));
}

// No page brings back what another one has restored, nor what the former version made it show.
TEST_F(CockpitAndPages, WhatIsRestoredOutlastsAllPagesThatWereShown) { ExpectRestoredWhenShown(0, 17, kStoredAtOk); }
TEST_F(CockpitAndPages, WhatIsRestoredOutlastsAllPagesOfAPdfA) { ExpectRestoredWhenShown(0, 101, kStoredAtOk); }

TEST_F(CockpitAndPagesOfTheDocument, WhatIsRestoredOutlastsAllPagesThatWereShown) {
  std::map<int, std::wstring> others;
  for (const int number : {35, 36, 38, 39, 40}) others[number] = Changed(FieldOf(number));
  ExpectRestoredWhenShown(1, 200, others);
}

// What fixes a field, and what then stands in the property at OK.
struct Fixed {
  int number;
  int32_t AdminSettings::*key;
  const wchar_t* kept = nullptr;  // the host's value when there is none
  CUString AdminSettings::*textKey = nullptr;
};

const Fixed kFixed[] = {
    {1, &AdminSettings::GraphicCompressMethod_Override},
    {2, &AdminSettings::GraphicJpegQuality_Override},
    {3, &AdminSettings::GraphicResolution_Override},
    {4, &AdminSettings::GraphicColorReduction_Override},
    {24, &AdminSettings::FontsEmbedded_Override},
    {25, &AdminSettings::WatermarkEnabled_Override},
    {26, &AdminSettings::StationeryEnabled_Override},
    {29, &AdminSettings::ZUGFeRD_Override},
    {30, nullptr, L"fixed", &AdminSettings::ZUGFeRDXml_Override},  // the administrator's file is the one that counts
    {31, &AdminSettings::ZUGFeRDDeleteAfterEmbedding_Override},
    {33, &AdminSettings::ZUGFeRDCreationMethod_Override},
    {35, &AdminSettings::SaveAction_Override},
    {36, &AdminSettings::FileExistsAction_Override},
    {37, &AdminSettings::PdfVersion_Override},
    {40, &AdminSettings::StartActionViewerCheck_Override, L"6"},  // 2 and 4; 8 is nobody's
    {40, &AdminSettings::StartActionMailCheck_Override, L"6"},
    {40, &AdminSettings::StartActionProgramCheck_Override, L"6"},
    {40, &AdminSettings::StartActionProgramBeforeCheck_Override, L"6"},  // fixes nothing: the bit is always stored
    {41, &AdminSettings::Colorspace_Override},
    {55, &AdminSettings::EncryptOwnerPasswordEnabled_Override},
    {56, &AdminSettings::EncryptUserPasswordEnabled_Override},
    {58, nullptr, nullptr, &AdminSettings::Title_Override},
    {59, nullptr, nullptr, &AdminSettings::Author_Override},
    {60, nullptr, nullptr, &AdminSettings::Subject_Override},
    {61, nullptr, nullptr, &AdminSettings::Keywords_Override},
};

TEST_F(CockpitAndPages, RestoringLeavesWhatIsFixed) {
  std::map<int, std::wstring> kept;
  std::set<int> marked = {11, 12};
  for (const Fixed& fixed : kFixed) {
    AdminSettings& admin = sheet_.properties.adminSettings;
    if (fixed.key)
      admin.*fixed.key = 0;
    else
      admin.*fixed.textKey = L"fixed";
    kept[fixed.number] = fixed.kept ? fixed.kept : Changed(FieldOf(fixed.number));
    if (FieldOf(fixed.number).category) marked.insert(FieldOf(fixed.number).category);
  }
  ChangeAllProperties(0);
  MakePages();
  Open();
  Restore(IDYES);
  EXPECT_EQ(marked, MarkedRows());
  EXPECT_EQ(L"(Default PDF reader, Additonal program)", RowText(11));
  EXPECT_EQ(L"(PDF format)", RowText(10)) << "the engine is nobody's";
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  for (const Field& field : kFields) {
    if (field.category == kPaperCategory || !field.hasDefault) continue;
    EXPECT_EQ(kept.contains(field.number) ? kept[field.number] : field.read(factory_), Stored(field.number))
        << field.name;
  }
}

// Of the layout the host does not even let the cockpit know.
TEST_F(CockpitAndPages, RestoringLeavesWhatTheHostKeepsToItself) {
  ChangeAllProperties(0);
  sheet_.properties.InternalUse[0].SetLong(2);
  MakePages();
  Open();
  EXPECT_EQ(L"(Margins)", RowText(2));
  Restore(IDYES);
  EXPECT_EQ((std::set<int>{18}), MarkedRows());
  ASSERT_TRUE(page_.UpdateDataSuper(true));
  for (int number = 58; number <= 61; ++number) EXPECT_EQ(Changed(FieldOf(number)), Stored(number)) << number;
}

}  // namespace
}  // namespace cockpit_test
