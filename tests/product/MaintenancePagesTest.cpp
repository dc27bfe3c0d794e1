// The pages of information and maintenance in the sheet: they have no property, and what they store the host does not
// see. Each stands on the first tab alone.
#include <windows.h>

#include <gtest/gtest.h>

#include <optional>

#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"
#include "support/InstalledProduct.h"
#include "support/LoadedUpdator.h"
#include "support/RegistryValue.h"

namespace {

constexpr int kGraphicPage = 108, kInfoPage = 106, kLanguagePage = 107, kUpdatePage = 121, kStatisticsPage = 123;

class MaintenancePages : public testing::Test {
 protected:
  // Opens the sheet on one page.
  SheetResult RunOn(int pageId, const Sheet::Body& body) {
    return RunSheet([this] { return host.DoModal(); },
                    [&](Sheet& sheet) -> SheetTask {
                      CO_ASSERT_TRUE(sheet.SelectPage(pageId));
                      co_await sheet.Settled();
                      EXPECT_EQ(pageId, sheet.PageId());
                      co_await body(sheet);
                    });
  }

  ProductValue language{HKEY_CURRENT_USER, L"LanguageID"};
  ProductValue schedule{HKEY_CURRENT_USER, L"UpdateType"};
  ProductValue machineTrace{HKEY_LOCAL_MACHINE, L"TraceFilename"}, userTrace{HKEY_CURRENT_USER, L"TraceFilename"};
  HostDialog host;
};

}  // namespace

TEST_F(MaintenancePages, HaveNoInstanceForTheDocument) {
  host.Set(NEMPDFUI_DOCUMENT, L"Used", 1);
  RunSheet([this] { return host.DoModal(); },
           [](Sheet& sheet) -> SheetTask {
             for (const int id : {kLanguagePage, kUpdatePage, kStatisticsPage}) EXPECT_FALSE(sheet.SelectPage(id));
             EXPECT_TRUE(sheet.SelectPage(kInfoPage));  // the placeholder
             EXPECT_TRUE(sheet.Control(IDC_NO_DOC_SETTINGS_LINK).Exists());
             sheet.PressCancel();
             co_return;
           });
}

// The value is stored when the page is left, and Cancel does not take it back. The rest of this process would speak
// German: English is chosen again.
TEST_F(MaintenancePages, TheLanguageIsStoredWhenThePageIsLeft) {
  const auto body = [this](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_LANGUAGE_GERMAN).Click();
    EXPECT_EQ(std::nullopt, language.Text());
    sheet.ExpectBox({.title = L"Host",
                     .text = L"Bitte öffnen Sie den Einstellungsdialog von NEM pdf vonder erneut, damit die neue "
                             L"Sprache überall verwendet wird",
                     .icon = MB_ICONINFORMATION});
    CO_ASSERT_TRUE(sheet.SelectPage(kGraphicPage));
    EXPECT_EQ(L"1031", language.Text());
    CO_ASSERT_TRUE(sheet.SelectPage(kLanguagePage));
    EXPECT_EQ(L"Deutsch", sheet.Control(IDC_LANGUAGE_GERMAN).Text());
    sheet.Control(IDC_LANGUAGE_ENGLISH).Click();
    sheet.ExpectBox({.title = L"Host",
                     .text = L"Please reopen the NEM pdf vonder settings dialog, so that the new language can be "
                             L"applied everywhere",
                     .icon = MB_ICONINFORMATION});
    CO_ASSERT_TRUE(sheet.SelectPage(kGraphicPage));
    sheet.PressCancel();
  };
  EXPECT_EQ(0, RunOn(kLanguagePage, body).value);
  EXPECT_EQ(L"1033", language.Text());
}

TEST_F(MaintenancePages, CancelAloneStoresNoLanguage) {
  const auto body = [](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_LANGUAGE_GERMAN).Click();
    sheet.PressCancel();
    co_return;
  };
  EXPECT_EQ(0, RunOn(kLanguagePage, body).value);
  EXPECT_EQ(std::nullopt, language.Text());
}

TEST_F(MaintenancePages, TheLanguageIsToldOnceAtOk) {
  const auto body = [](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_LANGUAGE_ENGLISH).Click();
    sheet.ExpectBox({.title = L"Host",
                     .text = L"Please reopen the NEM pdf vonder settings dialog, so that the new language can be "
                             L"applied everywhere",
                     .icon = MB_ICONINFORMATION});
    sheet.PressOk();
    co_return;
  };
  EXPECT_EQ(1, RunOn(kLanguagePage, body).value);
  EXPECT_EQ(L"1033", language.Text());
}

TEST_F(MaintenancePages, TheScheduleIsStoredWhenThePageIsLeftAndNotByCancelAlone) {
  const InstalledProduct product(ComponentFolder(L"newer"));
  const auto cancel = [](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_UPDATE_BETA).Click();
    sheet.PressCancel();
    co_return;
  };
  EXPECT_EQ(0, RunOn(kUpdatePage, cancel).value);
  EXPECT_EQ(std::nullopt, schedule.Text());
  const auto leave = [](Sheet& sheet) -> SheetTask {
    sheet.Control(IDC_UPDATE_BETA).Click();
    CO_ASSERT_TRUE(sheet.SelectPage(kGraphicPage));
    sheet.PressCancel();
  };
  EXPECT_EQ(0, RunOn(kUpdatePage, leave).value);
  EXPECT_EQ(L"16", schedule.Text());
}

TEST_F(MaintenancePages, TheUpdaterIsToldTheSheetAndItsOwner) {
  const InstalledProduct product(ComponentFolder(L"newer"));
  LoadedUpdator updator(L"newer");
  const HWND owner =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
  host.Set(NEMPDFUI_GENERAL, L"HwndParent", HandleToLong(owner));
  std::string windows;
  const auto body = [&](Sheet& sheet) -> SheetTask {
    const auto number = [](HWND window) { return std::to_string(reinterpret_cast<INT_PTR>(window)); };
    windows = "closewindows={" + number(sheet.Window()) + "};{" + number(owner) + "})";
    sheet.Control(IDC_UPDATE_SEARCH).Click();
    sheet.PressCancel();
    co_return;
  };
  RunOn(kUpdatePage, body);
  const std::string calls = updator.TakeCalls();
  EXPECT_NE(std::string::npos, calls.find(windows)) << calls << windows;
  DestroyWindow(owner);
}

TEST_F(MaintenancePages, StatisticsAreReadFromTheRegistry) {
  RegistryValue total(HKEY_CURRENT_USER, L"Software\\NEM software GmbH\\NEM pdf vonder\\TotalData",
                      L"GeneratedDocumentCount");
  total.Set(L"4711");
  const auto body = [](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(L"4711", sheet.Control(IDC_STATISTICS_DOCUMENTS).Text());
    EXPECT_EQ(L"0", sheet.Control(IDC_STATISTICS_MONTH_DOCUMENTS).Text());
    EXPECT_FALSE(sheet.Control(IDC_STATISTICS_UNUSED_BUTTON).IsVisible());
    sheet.PressOk();
    co_return;
  };
  EXPECT_EQ(1, RunOn(kStatisticsPage, body).value);
  total.Delete();
  RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\NEM software GmbH\\NEM pdf vonder\\TotalData");
}

TEST_F(MaintenancePages, TheLogoAsksWithTheTitleOfTheHost) {
  const auto body = [](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(L"2.10.4", sheet.Control(IDC_INFO_VERSION).Text());
    sheet.ExpectBox({.title = L"Host",
                     .text = L"Should the creation of trace files be activated?",
                     .icon = MB_ICONQUESTION,
                     .button = IDNO});
    sheet.Control(IDC_INFO_LOGO).Click();
    sheet.PressOk();
    co_return;
  };
  EXPECT_EQ(1, RunOn(kInfoPage, body).value);
}
