// Which fonts the PDF holds: none, all, all but the standard ones, or those that the user selects from two lists.
#pragma once

#include "cockpit/CTrackedPage.h"
#include "controls/CImageStatic.h"
#include "environment/Override.h"
#include "pages/CFontListBox.h"
#include "pages/EnumerateFonts.h"
#include "pages/FontLists.h"
#include "pages/FontListTexts.h"
#include "resources/ResourceIds.h"

class CPdfFontsPage : public CTrackedPage<FontsCockpitValues> {
 public:
  using CTrackedPage::CTrackedPage;

  uint16_t mode = kNotRead;  // 0 no fonts, 1 all, 2 selected ones, 3 all but the standard fonts
  FontListTexts texts;

  // What an administrator has fixed.
  NumberOverride modeOverride;
  BooleanOverride listKindOverride;
  TextOverride listOverride;

  // Lists the fonts of a device, at the page's start. Tests and benches put fonts of their own there.
  std::function<void(HDC, const FontVisitor&)> enumerateFonts = EnumerateFonts;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  MessageTable Messages() const override;
  int HelpLinkId() const override { return IDC_FONTS_HELP_LINK; }
  void ExchangeCockpitValues(const CockpitExchange& exchange, FontsCockpitValues& values) override;

 private:
  void LoadControls();
  void SaveControls(CDataExchange& exchange);

  void OnModeClicked(WindowMessage& message);
  void OnExcludeAll();
  void OnExclude() { MoveSelected(FontList::NeverEmbed); }
  void OnEmbed() { MoveSelected(FontList::Embed); }
  void OnEmbedAll();

  void ListInstalledFonts();
  void AddFont(const InstalledFont& font);
  void MoveSelected(FontList to);
  bool UnselectForbidden();
  void FillLists();
  void ShowLists();
  void MoveRows(FontList list);
  void ReadLists();
  CUString NamesIn(const CFontListBox& list) const;
  void UpdateControls();
  void ApplyOverrides();

  CFontListBox& BoxOf(FontList list) { return list == FontList::Embed ? embedList_ : neverList_; }
  int ChosenRadio() const;
  bool MustEmbedAll();

  FontLists fonts_;
  CFontListBox embedList_, neverList_;
  CImageStatic pictures_[4];
  int radioInForce_ = IDC_FONTS_NONE;
  bool showsForcedRadio_ = false;  // the version demanded it when the controls were filled
};
