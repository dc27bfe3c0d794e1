// A dialog object as a host holds it, with the values of the host's sample: the built-in defaults of the product.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "NemPdfUI.h"

class HostDialog {
 public:
  HostDialog() {
    EXPECT_EQ(1, NemPdfUICreateDialog(&handle_));
    Set(NEMPDFUI_GENERAL, L"SheetTitle", L"Settings");
    Set(NEMPDFUI_GENERAL, L"MsgBoxTitle", L"Host");
    for (const int set : {0, 1})
      for (const auto& [name, value] : kDefaults) Set(set, name, value);
  }
  ~HostDialog() { NemPdfUIFreeDialog(&handle_); }
  HostDialog(const HostDialog&) = delete;
  HostDialog& operator=(const HostDialog&) = delete;

  NemPdfUIHandle Handle() const { return handle_; }

  HostDialog& Set(int index, const wchar_t* name, int32_t value) {
    EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, index, name, &value));
    return *this;
  }
  HostDialog& Set(int index, const wchar_t* name, const wchar_t* value) {
    EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, index, name, value));
    return *this;
  }
  int32_t Long(int index, const wchar_t* name) const {
    int32_t value = INT32_MIN;
    EXPECT_EQ(1, NemPdfUIGetPropertyW(handle_, index, name, &value, sizeof value));
    return value;
  }
  std::wstring Text(int index, const wchar_t* name) const {
    std::vector<wchar_t> buffer(65536);
    EXPECT_EQ(1, NemPdfUIGetPropertyW(handle_, index, name, buffer.data(), static_cast<int32_t>(buffer.size())));
    return buffer.data();
  }

  int DoModal() const { return NemPdfUIDoModal(handle_); }

 private:
  // The factory values that the cockpit compares with, as far as they are not 0.
  static constexpr std::pair<const wchar_t*, int32_t> kDefaults[] = {
      {L"GraphicResolution", 600},
      {L"GraphicCompressMethod", 4},
      {L"GraphicJpegQuality", 85},
      {L"GraphicColorReduction", 1},
      {L"PaperSize", 1},  // Letter, the paper of the tests' country
      {L"Orientation", 1},
      {L"PaperScaleWidth", 100},
      {L"PaperScaleHeight", 100},
      {L"Scale", 100},
      {L"PaperMarginCenter", 1},
      {L"OpenPageIndex", 1},
      {L"FontsEmbedded", 3},
      {L"UseHyperlinkRecognition", 1},
      {L"ZUGFeRDCreationMethod", 1},
      {L"SaveAction", 136},
      {L"PdfVersion", 14},
      {L"StartAction", 1},
      {L"FormfieldUseTextfieldBackColor", 1},
      {L"FormfieldTextfieldBackColor", 0xC0C0C0},
      {L"FormfieldUseCheckboxBorder", 1},
      {L"FormfieldUseCheckboxBackColor", 1},
      {L"FormfieldCheckboxBackColor", 0xC0C0C0},
      {L"FormfieldUseDropdownBackColor", 1},
      {L"FormfieldDropdownBackColor", 0xC0C0C0},
  };

  NemPdfUIHandle handle_ = nullptr;
};
