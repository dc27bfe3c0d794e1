// All that the cockpit tracks, one row a field, and what a change of that field alone does.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "cockpit/CCockpitSettings.h"

namespace cockpit_test {

struct Field {
  int number;
  const char* name;
  bool hasDefault;
  const wchar_t* defaultText;  // of a number in decimal; paper A4
  int category;                // 0: takes part in no comparison
  const wchar_t* item;         // what the category reports
  double weight;
  const void* (*addressIn)(const CCockpitSettings&);
  std::wstring (*read)(const CCockpitSettings&);
  void (*change)(CCockpitSettings&);  // to a value that it has not had
};

template <auto Group, auto Member>
constexpr Field MakeField(int number, const char* name, const wchar_t* defaultText, int category,
                          const wchar_t* item = L"", double weight = 0) {
  return {number,
          name,
          defaultText != nullptr,
          defaultText,
          category,
          item,
          weight,
          [](const CCockpitSettings& settings) -> const void* { return &(settings.*Group.*Member); },
          [](const CCockpitSettings& settings) -> std::wstring {
            const auto& value = settings.*Group.*Member;
            if constexpr (std::is_integral_v<std::decay_t<decltype(value)>>) {
              CUString text;
              text.Format(L"%u", static_cast<unsigned>(value));
              return text.Text();
            } else {
              return value.Text();
            }
          },
          [](CCockpitSettings& settings) {
            auto& value = settings.*Group.*Member;
            if constexpr (std::is_integral_v<std::decay_t<decltype(value)>>)
              value = static_cast<std::decay_t<decltype(value)>>(value + 2);  // of the start action: the mail's bit
            else
              value += L"x";
          }};
}

#define NEMPDF_FIELD(number, group, values, member, ...) \
  MakeField<&CCockpitSettings::group, &values::member>(number, #group "." #member, __VA_ARGS__)

constexpr const wchar_t* kNoDefault = nullptr;

inline const Field kFields[] = {
    NEMPDF_FIELD(1, graphic, GraphicCockpitValues, compressMethod, L"4", 1, L"PDF size", 0.25),
    NEMPDF_FIELD(2, graphic, GraphicCockpitValues, jpegQuality, L"85", 1, L"PDF size", 0.25),
    NEMPDF_FIELD(3, graphic, GraphicCockpitValues, resolution, L"600", 1, L"PDF size", 0.25),
    NEMPDF_FIELD(4, graphic, GraphicCockpitValues, colorReduction, L"1", 1, L"PDF size", 0.25),
    NEMPDF_FIELD(5, paper, PaperCockpitValues, paperSize, L"9", 2, L"Page size", 0.25),
    NEMPDF_FIELD(6, paper, PaperCockpitValues, orientation, L"1", 2, L"Page orientationa", 0.25),
    NEMPDF_FIELD(7, paper, PaperCockpitValues, scaleWidth, L"100", 2, L"Scaling", 0.25),
    NEMPDF_FIELD(8, paper, PaperCockpitValues, scaleHeight, L"100", 2, L"Scaling", 0.25),
    NEMPDF_FIELD(9, paper, PaperCockpitValues, scale, L"100", 2, L"Scaling", 0.25),
    NEMPDF_FIELD(10, paper, PaperCockpitValues, marginCenter, L"1", 2, L"Margins", 0.25),
    NEMPDF_FIELD(11, paper, PaperCockpitValues, border, L"0", 2, L"Margins", 0.25),
    NEMPDF_FIELD(12, appearance, AppearanceCockpitValues, openLayout, L"0", 3, L"PDF opening appearance", 0.5),
    NEMPDF_FIELD(13, appearance, AppearanceCockpitValues, openSize, L"0", 3, L"PDF opening appearance", 0.5),
    NEMPDF_FIELD(14, appearance, AppearanceCockpitValues, openPageIndex, L"1", 3, L"PDF opening appearance", 0.5),
    NEMPDF_FIELD(15, appearance, AppearanceCockpitValues, openMode, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(16, appearance, AppearanceCockpitValues, nonFullScreenPageMode, L"0", 3, L"Reader opening appearance",
                 0.5),
    NEMPDF_FIELD(17, appearance, AppearanceCockpitValues, direction, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(18, appearance, AppearanceCockpitValues, hideToolbar, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(19, appearance, AppearanceCockpitValues, hideMenubar, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(20, appearance, AppearanceCockpitValues, centerWindow, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(21, appearance, AppearanceCockpitValues, fitWindow, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(22, appearance, AppearanceCockpitValues, displayDocTitle, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(23, appearance, AppearanceCockpitValues, hideWindowUI, L"0", 3, L"Reader opening appearance", 0.5),
    NEMPDF_FIELD(24, fonts, FontsCockpitValues, fontsEmbedded, L"3", 4, L"Fontembedding", 1),
    NEMPDF_FIELD(25, watermark, WatermarkCockpitValues, watermarkEnabled, L"0", 5, L"Watermark", 0.5),
    NEMPDF_FIELD(26, watermark, WatermarkCockpitValues, stationeryEnabled, L"0", 5, L"Stationary", 0.5),
    NEMPDF_FIELD(27, links, LinksCockpitValues, useHyperlinkRecognition, L"1", 6, L"Textlink recognition", 1),
    NEMPDF_FIELD(28, attachments, AttachmentsCockpitValues, embedFilenamesEnabled, L"0", 7, L"File attachment", 1),
    NEMPDF_FIELD(29, zugferd, ZugferdCockpitValues, zugferd, L"0", 14, L"ZUGFeRD", 1),
    NEMPDF_FIELD(30, zugferd, ZugferdCockpitValues, xml, L"", 0),
    NEMPDF_FIELD(31, zugferd, ZugferdCockpitValues, deleteAfterEmbedding, L"0", 0),
    NEMPDF_FIELD(32, zugferd, ZugferdCockpitValues, showAfterCreation, L"0", 0),
    NEMPDF_FIELD(33, zugferd, ZugferdCockpitValues, creationMethod, L"1", 0),
    NEMPDF_FIELD(34, bookmark, BookmarkCockpitValues, outlineStylesEnabled, L"0", 8, L"Bookmarks", 1),
    NEMPDF_FIELD(35, saving, SavingCockpitValues, saveAction, L"136", 9, L"Saving action", 1),
    NEMPDF_FIELD(36, saving, SavingCockpitValues, fileExistsAction, L"0", 9, L"Saving action", 1),
    NEMPDF_FIELD(37, format, FormatCockpitValues, pdfVersion, L"14", 10, L"PDF format", 0.5),
    NEMPDF_FIELD(38, format, FormatCockpitValues, saveFormat, L"0", 0),
    NEMPDF_FIELD(39, format, FormatCockpitValues, saveConversion, L"0", 10, L"Conversion engine", 0.5),
    NEMPDF_FIELD(40, action, ActionCockpitValues, startAction, L"1", 12, L"E-Mail", 1),
    NEMPDF_FIELD(41, colors, ColorsCockpitValues, colorspace, L"0", 13, L"Colorspace", 1),
    NEMPDF_FIELD(42, formFields, FormFieldsCockpitValues, showFormfields, L"0", 15, L"Form fields", 1),
    NEMPDF_FIELD(43, formFieldsColor, FormFieldsColorCockpitValues, useTextfieldBorder, L"0", 16, L"Textboxes",
                 1 / 3.0),
    NEMPDF_FIELD(44, formFieldsColor, FormFieldsColorCockpitValues, textfieldBorderColor, kNoDefault, 0),
    NEMPDF_FIELD(45, formFieldsColor, FormFieldsColorCockpitValues, useTextfieldBackColor, L"1", 16, L"Textboxes",
                 1 / 3.0),
    NEMPDF_FIELD(46, formFieldsColor, FormFieldsColorCockpitValues, textfieldBackColor, L"12632256", 16, L"Textboxes",
                 1 / 3.0),
    NEMPDF_FIELD(47, formFieldsColor, FormFieldsColorCockpitValues, useCheckboxBorder, L"1", 16, L"Checkboxes",
                 1 / 3.0),
    NEMPDF_FIELD(48, formFieldsColor, FormFieldsColorCockpitValues, checkboxBorderColor, L"0", 16, L"Checkboxes",
                 1 / 3.0),
    NEMPDF_FIELD(49, formFieldsColor, FormFieldsColorCockpitValues, useCheckboxBackColor, L"1", 16, L"Checkboxes",
                 1 / 3.0),
    NEMPDF_FIELD(50, formFieldsColor, FormFieldsColorCockpitValues, checkboxBackColor, L"12632256", 16, L"Checkboxes",
                 1 / 3.0),
    NEMPDF_FIELD(51, formFieldsColor, FormFieldsColorCockpitValues, useDropdownBorder, L"0", 16, L"Dropdown elements",
                 1 / 3.0),
    NEMPDF_FIELD(52, formFieldsColor, FormFieldsColorCockpitValues, dropdownBorderColor, kNoDefault, 0),
    NEMPDF_FIELD(53, formFieldsColor, FormFieldsColorCockpitValues, useDropdownBackColor, L"1", 16,
                 L"Dropdown elements", 1 / 3.0),
    NEMPDF_FIELD(54, formFieldsColor, FormFieldsColorCockpitValues, dropdownBackColor, L"12632256", 16,
                 L"Dropdown elements", 1 / 3.0),
    NEMPDF_FIELD(55, security, SecurityCockpitValues, ownerPasswordEnabled, L"0", 17,
                 L"Password for changing PDF Security", 1 / 3.0),
    NEMPDF_FIELD(56, security, SecurityCockpitValues, userPasswordEnabled, L"0", 17, L"Password for opening PDF",
                 1 / 3.0),
    NEMPDF_FIELD(57, security, SecurityCockpitValues, enhancedPdfPassword, L"0", 17,
                 L"Password options for editing e.pdf", 1 / 3.0),
    NEMPDF_FIELD(58, docInfo, DocInfoCockpitValues, title, L"", 18, L"Document informations", 1),
    NEMPDF_FIELD(59, docInfo, DocInfoCockpitValues, author, L"", 18, L"Document informations", 1),
    NEMPDF_FIELD(60, docInfo, DocInfoCockpitValues, subject, L"", 18, L"Document informations", 1),
    NEMPDF_FIELD(61, docInfo, DocInfoCockpitValues, keywords, L"", 18, L"Document informations", 1),
};

#undef NEMPDF_FIELD

}  // namespace cockpit_test
