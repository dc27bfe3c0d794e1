// A snapshot of the values that the cockpit tracks: one group of values a page. It is filled from the pages, compared
// with one in the factory state, and handed back to the pages to restore that state. It is stored nowhere.
#pragma once

#include "cockpit/CockpitValues.h"

class CCockpitSettings {
 public:
  // In the factory state, whose paper is A4 or Letter.
  explicit CCockpitSettings(bool isA4Default);

  // Back to the factory state. The border colours of text fields and dropdown lists have none, since nothing puts them
  // to use there: they stay as they are.
  void ResetToDefaults();

  GraphicCockpitValues graphic;
  PaperCockpitValues paper;
  AppearanceCockpitValues appearance;
  FontsCockpitValues fonts;
  WatermarkCockpitValues watermark;
  LinksCockpitValues links;
  AttachmentsCockpitValues attachments;
  ZugferdCockpitValues zugferd;
  BookmarkCockpitValues bookmark;
  SavingCockpitValues saving;
  FormatCockpitValues format;
  ActionCockpitValues action;  // the mail page's as well
  ColorsCockpitValues colors;
  FormFieldsCockpitValues formFields;
  FormFieldsColorCockpitValues formFieldsColor;
  SecurityCockpitValues security;
  DocInfoCockpitValues docInfo;

 private:
  bool isA4Default_;
};
