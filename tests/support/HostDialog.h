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
    for (const int set : {0, 1}) {
      Set(set, L"GraphicResolution", 600);
      Set(set, L"GraphicCompressMethod", 4);
      Set(set, L"GraphicJpegQuality", 85);
      Set(set, L"GraphicColorReduction", 1);
    }
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
  NemPdfUIHandle handle_ = nullptr;
};
