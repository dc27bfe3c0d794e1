// The format page in the sheet: what the host gets back after OK, after Cancel, and from a page that was never shown.
#include <gtest/gtest.h>

#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"

namespace {

constexpr int kFormatPage = 118;

class FormatInSheet : public testing::Test {
 protected:
  FormatInSheet() {
    host.Set(1, L"Used", 1);
    for (const int set : {0, 1}) {
      host.Set(set, L"SaveFormatEPdfEnabled", 1);
      host.Set(set, L"SaveConversionEnabled", 1);
      SetFormat(set, 14, 1, 0);
    }
  }

  void SetFormat(int set, int version, int saveFormat, int saveConversion) {
    host.Set(set, L"PdfVersion", version);
    host.Set(set, L"SaveFormat", saveFormat);
    host.Set(set, L"SaveConversion", saveConversion);
  }
  void ExpectFormat(int set, int version, int saveFormat, int saveConversion) {
    EXPECT_EQ(version, host.Long(set, L"PdfVersion")) << set;
    EXPECT_EQ(saveFormat, host.Long(set, L"SaveFormat")) << set;
    EXPECT_EQ(saveConversion, host.Long(set, L"SaveConversion")) << set;
  }

  // Opens the sheet, on both tabs the page if it is to be shown, and presses a button.
  int Run(bool showPage, int button) {
    const auto body = [=](Sheet& sheet) -> SheetTask {
      for (const int tab : {0, 1}) {
        sheet.SelectTab(tab);
        co_await sheet.Settled();
        if (showPage) {
          CO_ASSERT_TRUE(sheet.SelectPage(kFormatPage));
        }
        co_await sheet.Settled();
      }
      sheet.Press(button);
    };
    return static_cast<int>(RunSheet([this] { return host.DoModal(); }, body).value);
  }

  HostDialog host;
};

}  // namespace

TEST_F(FormatInSheet, ShownPagesGiveBackWhatTheyWereGiven) {
  SetFormat(0, 99, 0x102, 1);
  SetFormat(1, 100, 0, 3);
  EXPECT_EQ(1, Run(true, IDOK));
  ExpectFormat(0, 99, 0x102, 1);
  ExpectFormat(1, 100, 0, 3);
}

TEST_F(FormatInSheet, PagesThatWereNeverShownGiveBackEverything) {
  SetFormat(0, -1, 0x10000, 0x1FFFF);
  SetFormat(1, 99, 0, 3);
  EXPECT_EQ(1, Run(false, IDOK));
  ExpectFormat(0, -1, 0x10000, 0x1FFFF);
  ExpectFormat(1, 99, 0, 3);
}

// An arrow key gives the next radio the focus first, while the one before it is still on.
TEST_F(FormatInSheet, ArrowKeysChooseAsTheMouseDoes) {
  SetFormat(0, 14, 0, 1);
  const auto body = [](Sheet& sheet) -> SheetTask {
    sheet.SelectTab(0);
    co_await sheet.Settled();
    CO_ASSERT_TRUE(sheet.SelectPage(kFormatPage));
    for (const int from : {IDC_FORMAT_ENGINE_RTF, IDC_FORMAT_SAVE_ASK}) {
      EXPECT_TRUE(sheet.Control(from).IsChecked());
      sheet.Control(from).Focus();
      sheet.Key(VK_UP);
      co_await sheet.Settled();
      EXPECT_EQ(from - 1, sheet.FocusedId());
      EXPECT_TRUE(sheet.Control(from - 1).IsChecked());
    }
    sheet.PressOk();
  };
  EXPECT_EQ(1, RunSheet([this] { return host.DoModal(); }, body).value);
  ExpectFormat(0, 14, 2, 0);
}

TEST_F(FormatInSheet, CancelLeavesTheHostsValues) {
  SetFormat(0, 14, 0, 0);
  const auto body = [](Sheet& sheet) -> SheetTask {
    sheet.SelectTab(0);
    co_await sheet.Settled();
    CO_ASSERT_TRUE(sheet.SelectPage(kFormatPage));
    sheet.Control(IDC_FORMAT_VERSION).Select(4);
    sheet.Control(IDC_FORMAT_SAVE_EPDF).Click();
    sheet.PressCancel();
  };
  EXPECT_EQ(0, RunSheet([this] { return host.DoModal(); }, body).value);
  ExpectFormat(0, 14, 0, 0);
}

TEST_F(FormatInSheet, TheHostReadsWhatTheUserHasChosen) {
  const auto body = [](Sheet& sheet) -> SheetTask {
    sheet.SelectTab(0);
    co_await sheet.Settled();
    CO_ASSERT_TRUE(sheet.SelectPage(kFormatPage));
    sheet.ExpectBox({.title = L"Host",
                     .text = L"This conversion engine is necessary if you are working with Windows 95, 98 or ME\r\n"
                             L"or if you are having problems converting links.\r\n"
                             L"Moreover this engine has advantages when converting forms.\r\n"
                             L"Please find more information in the manual.",
                     .icon = MB_ICONINFORMATION});
    sheet.Control(IDC_FORMAT_ENGINE_RTF).Click();
    sheet.Control(IDC_FORMAT_VERSION).Select(4);
    sheet.Control(IDC_FORMAT_SAVE_ASK).Click();
    sheet.SelectTab(1);
    co_await sheet.Settled();
    CO_ASSERT_TRUE(sheet.SelectPage(kFormatPage));
    sheet.Control(IDC_FORMAT_VERSION).Select(6);  // PDF/A is nothing for a document
    EXPECT_EQ(1, sheet.Control(IDC_FORMAT_VERSION).SelectedRow());
    sheet.Control(IDC_FORMAT_VERSION).Select(5);
    sheet.PressOk();
  };
  EXPECT_EQ(1, RunSheet([this] { return host.DoModal(); }, body).value);
  ExpectFormat(0, 17, 0x103, 1);
  ExpectFormat(1, 18, 1, 0);
}
