// A sheet without a window, for tests of single pages: what the pages read and write stands in `properties`.
#pragma once

#include <map>

#include "DriverLIB/MessageText.h"
#include "sheet/CNemUIPage.h"
#include "sheet/SheetServices.h"
#include "ui/CDialogProperties.h"

class FakeSheet final : public SheetServices {
 public:
  CDialogProperties properties;
  std::map<int, CNemUIPage*> pages;  // what FindPage gives
  int activatedPage = 0;

  CUString GetPrinterName() override { return properties.PrinterName.GetString(); }
  CUString GetHelpFilename() override { return properties.HelpFilename.GetString(); }
  CUString GetMsgBoxTitle() override { return properties.MsgBoxTitle.GetString(); }
  void SetPasswordVisible(int visible) override { properties.PasswordVisible.SetLong(visible); }
  int GetPasswordVisible() override { return properties.PasswordVisible.GetLong(); }
  bool ActivatePage(int pageId) override {
    activatedPage = pageId;
    return true;
  }
  CNemUIPage* FindPage(int pageId) override {
    const auto found = pages.find(pageId);
    return found == pages.end() ? nullptr : found->second;
  }
  AdminSettings* GetAdminSettings() override { return &properties.adminSettings; }
  CDialogProperties& Properties() override { return properties; }
};

// The parent of a page that is tested without a sheet: a plain visible window.
class PageParent {
 public:
  PageParent()
      : window_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 500, 480, nullptr, nullptr, nullptr,
                                nullptr)) {}
  ~PageParent() { DestroyWindow(window_); }
  PageParent(const PageParent&) = delete;
  PageParent& operator=(const PageParent&) = delete;
  HWND Window() const { return window_; }

 private:
  HWND window_;
};

// Runs the rest of a test in another UI language.
class LanguageScope {
 public:
  explicit LanguageScope(uint16_t language) : previous_(GetUILanguage()) { SetUILanguage(language); }
  ~LanguageScope() { SetUILanguage(previous_); }
  LanguageScope(const LanguageScope&) = delete;
  LanguageScope& operator=(const LanguageScope&) = delete;

 private:
  uint16_t previous_;
};
