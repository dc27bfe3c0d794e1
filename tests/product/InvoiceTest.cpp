// What the pages of a sheet do to each other's values: format and invoice, format and stationery, the switch for
// attachments, and the colour space.
#include <windows.h>
// behind windows.h
#include <gtest/gtest.h>

#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"

namespace {

constexpr int kCockpitPage = 120, kWatermarkPage = 101, kColorsPage = 111, kZugferdPage = 112, kLinksPage = 113,
              kAttachmentsPage = 114, kFormFieldsPage = 115, kFormatPage = 118;
constexpr int kRestoreLink = 1444;
constexpr int kPlain17 = 4, kPdfA1b = 7, kPdfA3b = 12;  // rows of the versions
constexpr wchar_t kFiles[] = L"\"C:\\not there\\a.doc\"";

const ExpectedBox kInvoiceQuestion = {
    .title = L"Host",
    .text =
        L"The embedding of a ZUGFeRD file needs output as pdf/a3. Is it ok to change to disable the ZUGFeRD-embedding?",
    .icon = MB_ICONQUESTION};

SheetTask Show(Sheet& sheet, int page) {
  EXPECT_TRUE(sheet.SelectPage(page)) << page;
  co_await sheet.Settled();
  EXPECT_EQ(page, sheet.PageId());
}

SheetTask ShowTab(Sheet& sheet, int tab) {
  sheet.SelectTab(tab);
  co_await sheet.Settled();
  EXPECT_EQ(tab, sheet.CurrentTab());
}

SheetTask RestoreDefaults(Sheet& sheet) {
  co_await Show(sheet, kCockpitPage);
  sheet.ExpectBox({.title = L"Host",
                   .text = L"All settings will be set to default. Do you wish to continue?",
                   .icon = MB_ICONWARNING,
                   .button = IDYES});
  sheet.Control(kRestoreLink).Click();
  co_await sheet.Settled();
  EXPECT_EQ(1u, sheet.Boxes().size());
}

class PagesTogether : public testing::Test {
 protected:
  PagesTogether() {
    host.Set(1, L"Used", 1);
    for (const int set : {0, 1}) {
      host.Set(set, L"SaveFormatEPdfEnabled", 1);
      host.Set(set, L"SaveFormat", 1);
      host.Set(set, L"HyperlinkBorderWidth", 100);
    }
  }
  // On the basic settings; the body ends with a button.
  intptr_t Run(Sheet::Body body) {
    return RunSheet([this] { return host.DoModal(); },
                    [body = std::move(body)](Sheet& sheet) -> SheetTask {
                      co_await ShowTab(sheet, 0);
                      co_await body(sheet);
                    })
        .value;
  }

  HostDialog host;
};

}  // namespace

TEST_F(PagesTogether, AnInvoiceSetsPdfA3AndAnotherVersionTakesTheInvoiceBack) {
  host.Set(0, L"PdfVersion", 17);
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kFormatPage);
              EXPECT_EQ(kPlain17, sheet.Control(IDC_FORMAT_VERSION).SelectedRow());
              co_await Show(sheet, kZugferdPage);
              sheet.Control(IDC_ZUGFERD_CREATE).Click();
              co_await Show(sheet, kFormatPage);
              EXPECT_EQ(kPdfA3b, sheet.Control(IDC_FORMAT_VERSION).SelectedRow());
              ExpectedBox no = kInvoiceQuestion;
              no.button = IDCANCEL;
              sheet.ExpectBox(no);
              sheet.Control(IDC_FORMAT_VERSION).Select(kPlain17);
              EXPECT_EQ(kPdfA3b, sheet.Control(IDC_FORMAT_VERSION).SelectedRow());
              co_await Show(sheet, kZugferdPage);
              EXPECT_TRUE(sheet.Control(IDC_ZUGFERD_CREATE).IsChecked());
              co_await Show(sheet, kFormatPage);
              sheet.ExpectBox(kInvoiceQuestion);
              sheet.Control(IDC_FORMAT_VERSION).Select(kPlain17);
              co_await Show(sheet, kZugferdPage);
              EXPECT_FALSE(sheet.Control(IDC_ZUGFERD_CREATE).IsChecked());
              EXPECT_FALSE(sheet.Control(IDC_ZUGFERD_FROM_CONTENT).IsEnabled());
              sheet.PressOk();
            }));
  EXPECT_EQ(17, host.Long(0, L"PdfVersion"));
  EXPECT_EQ(0, host.Long(0, L"ZUGFeRD"));
}

TEST_F(PagesTogether, TheHostReadsTheInvoiceWithItsVersion) {
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kZugferdPage);
              sheet.Control(IDC_ZUGFERD_CREATE).Click();
              sheet.Control(IDC_ZUGFERD_SHOW).Click();
              sheet.PressOk();
            }));
  EXPECT_EQ(106, host.Long(0, L"PdfVersion"));
  EXPECT_EQ(1, host.Long(0, L"ZUGFeRD"));
  EXPECT_EQ(1, host.Long(0, L"ZUGFeRDShowAfterCreation"));
  EXPECT_EQ(14, host.Long(1, L"PdfVersion"));
  EXPECT_EQ(0, host.Long(1, L"ZUGFeRD"));
}

TEST_F(PagesTogether, CancelTakesTheInvoiceAndItsVersionBack) {
  host.Set(0, L"ZUGFeRDMarkedContent", L"kept");
  EXPECT_EQ(0, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kZugferdPage);
              sheet.Control(IDC_ZUGFERD_CREATE).Click();
              sheet.PressCancel();
            }));
  EXPECT_EQ(14, host.Long(0, L"PdfVersion"));
  EXPECT_EQ(0, host.Long(0, L"ZUGFeRD"));
  EXPECT_EQ(L"kept", host.Text(0, L"ZUGFeRDMarkedContent"));
}

TEST_F(PagesTogether, AnInvoicePageThatWasNeverShownIsSwitchedOffAllTheSame) {
  host.Set(0, L"PdfVersion", 106).Set(0, L"ZUGFeRD", 1);
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kFormatPage);
              sheet.ExpectBox(kInvoiceQuestion);
              sheet.Control(IDC_FORMAT_VERSION).Select(kPlain17);
              sheet.PressOk();
            }));
  EXPECT_EQ(17, host.Long(0, L"PdfVersion"));
  EXPECT_EQ(0, host.Long(0, L"ZUGFeRD"));
}

TEST_F(PagesTogether, OnlyRestoringTakesTheFileOfAnInvoicePageThatWasShown) {
  host.Set(0, L"PdfVersion", 106).Set(0, L"ZUGFeRD", 1).Set(0, L"ZUGFeRDXml", L"C:\\host.xml");
  for (const bool restored : {false, true}) {
    EXPECT_EQ(1, Run([restored](Sheet& sheet) -> SheetTask {
                co_await Show(sheet, kZugferdPage);
                if (restored) co_await RestoreDefaults(sheet);
                sheet.PressOk();
              }));
    EXPECT_EQ(restored ? L"" : L"C:\\host.xml", host.Text(0, L"ZUGFeRDXml"));
  }
}

TEST_F(PagesTogether, APdfA1SwitchesAttachmentsOffOnBothPagesThatHoldTheSwitch) {
  for (const bool shownBefore : {false, true}) {
    host.Set(0, L"PdfVersion", 17).Set(0, L"EmbedFilenames", kFiles).Set(0, L"EmbedFilenamesEnabled", 1);
    EXPECT_EQ(
        1, Run([shownBefore](Sheet& sheet) -> SheetTask {
          if (shownBefore) {
            co_await Show(sheet, kLinksPage);
            co_await Show(sheet, kAttachmentsPage);
            EXPECT_TRUE(sheet.Control(IDC_ATTACHMENTS_LIST).IsEnabled());
          }
          co_await Show(sheet, kFormatPage);
          sheet.ExpectBox(
              {.title = L"Host",
               .text = L"Default settings for PDF/A-1 will be activated:\r\n\r\n-PDF version 1.4\r\n-enabled font "
                       L"embedding\r\n-no file attachments\r\n-no e.pdf conversion\r\n-no conversion of "
                       L"forms\r\n-no settings for PDF security\r\n-no password protection against opening "
                       L"files\r\n-restricted transparency of pictures (also watermarks)",
               .icon = MB_ICONINFORMATION});
          sheet.Control(IDC_FORMAT_VERSION).Select(kPdfA1b);
          if (shownBefore) {
            co_await Show(sheet, kAttachmentsPage);
            EXPECT_FALSE(sheet.Control(IDC_ATTACHMENTS_USE).IsEnabled());
            EXPECT_FALSE(sheet.Control(IDC_ATTACHMENTS_USE).IsChecked());
            co_await Show(sheet, kLinksPage);
          }
          sheet.PressOk();
        }));
    EXPECT_EQ(shownBefore ? 0 : 1, host.Long(0, L"EmbedFilenamesEnabled"))
        << "pages that were never shown write nothing";
    EXPECT_EQ(kFiles, host.Text(0, L"EmbedFilenames"));
  }
}

TEST_F(PagesTogether, TheLinksPageWritesNoOlderSwitchBack) {
  host.Set(0, L"EmbedFilenames", kFiles).Set(0, L"EmbedFilenamesEnabled", 1);
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kLinksPage);
              co_await Show(sheet, kAttachmentsPage);
              sheet.Control(IDC_ATTACHMENTS_USE).Click();
              co_await Show(sheet, kLinksPage);
              sheet.PressOk();
            }));
  EXPECT_EQ(0, host.Long(0, L"EmbedFilenamesEnabled"));
  EXPECT_EQ(kFiles, host.Text(0, L"EmbedFilenames"));
}

TEST_F(PagesTogether, RestoredDefaultsOutlastALinksPageThatWasShown) {
  host.Set(0, L"EmbedFilenames", kFiles).Set(0, L"EmbedFilenamesEnabled", 1);
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kLinksPage);
              co_await RestoreDefaults(sheet);
              sheet.PressOk();
            }));
  EXPECT_EQ(0, host.Long(0, L"EmbedFilenamesEnabled"));
}

TEST_F(PagesTogether, OnlyRestoringTakesTheColourSpaceOfAWatermarkPageThatWasShown) {
  host.Set(0, L"Colorspace", 1);
  for (const bool restored : {false, true}) {
    EXPECT_EQ(1, Run([restored](Sheet& sheet) -> SheetTask {
                co_await Show(sheet, kWatermarkPage);
                co_await Show(sheet, kColorsPage);
                sheet.Control(IDC_COLORS_RGB).Click();
                if (restored)
                  co_await RestoreDefaults(sheet);
                else
                  co_await Show(sheet, kCockpitPage);  // asks the pages for their values, and tells them none
                sheet.PressOk();
              }));
    EXPECT_EQ(restored ? 0 : 1, host.Long(0, L"Colorspace"));
  }
}

// The format page has read its properties long before: the cockpit asks all pages when the sheet opens.
TEST_F(PagesTogether, StationeryAsTheUserHasJustLeftItIsRemindedOfAtPdfA) {
  host.Set(0, L"PdfVersion", 100);
  host.Set(0, L"StationeryInfos", L"{{NAME:\"Letter\";FILE:\"C:\\\\Paper\\\\z.pdf\";P:\"\";TYPE:\"0\"}}");
  for (const bool isOn : {true, false}) {
    host.Set(0, L"StationeryEnabled", isOn ? 0 : 1);
    EXPECT_EQ(0, Run([isOn](Sheet& sheet) -> SheetTask {
                co_await Show(sheet, kWatermarkPage);
                sheet.Control(IDC_STATIONERY_USE).Click();
                EXPECT_EQ(isOn, sheet.Control(IDC_STATIONERY_USE).IsChecked());
                co_await Show(sheet, kFormatPage);
                if (isOn)
                  sheet.ExpectBox({.title = L"Host",
                                   .text = L"Please check, that the selected stationery paper is also in the PDF/A "
                                           L"format.\r\nOtherweise the output-PDF won't be PDF/A format compatible.",
                                   .icon = MB_ICONINFORMATION});
                sheet.Control(IDC_FORMAT_VERSION).Select(kPdfA1b);
                sheet.PressCancel();
              }));
  }
}

TEST_F(PagesTogether, TheLinksPageWritesNoOlderListBack) {
  enum class Ending { Ok, OtherTab, Restored };
  for (const Ending ending : {Ending::Ok, Ending::OtherTab, Ending::Restored}) {
    host.Set(0, L"EmbedFilenames", L"\"C:\\not there\\a.doc\";\"C:\\not there\\b.doc\"");
    host.Set(0, L"EmbedFilenamesEnabled", 1);
    EXPECT_EQ(1, Run([ending](Sheet& sheet) -> SheetTask {
                co_await Show(sheet, kLinksPage);
                co_await Show(sheet, kAttachmentsPage);
                SendMessageW(sheet.Control(IDC_ATTACHMENTS_LIST).Window(), LB_SETSEL, TRUE, 0);
                sheet.Control(IDC_ATTACHMENTS_REMOVE).Click();
                co_await Show(sheet, kLinksPage);
                if (ending == Ending::OtherTab) co_await ShowTab(sheet, 1);
                if (ending == Ending::Restored) co_await RestoreDefaults(sheet);
                sheet.PressOk();
              }));
    EXPECT_EQ(L"\"C:\\not there\\b.doc\"", host.Text(0, L"EmbedFilenames")) << static_cast<int>(ending);
  }
}

// --- Both tabs -----------------------------------------------------------------------------------------------------

TEST_F(PagesTogether, EachTabKeepsItsOwnSwitchForAttachments) {
  for (const int first : {0, 1}) {
    for (const int set : {0, 1})
      host.Set(set, L"EmbedFilenames", kFiles).Set(set, L"EmbedFilenamesEnabled", set ^ first);
    EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
                co_await Show(sheet, kAttachmentsPage);
                co_await ShowTab(sheet, 1);
                co_await Show(sheet, kLinksPage);
                sheet.PressOk();
              }));
    for (const int set : {0, 1}) EXPECT_EQ(set ^ first, host.Long(set, L"EmbedFilenamesEnabled")) << set << first;
  }
}

// PDF/A leaves the number of the switch as it is, another version stores 0 or 1.
TEST_F(PagesTogether, AtOkAPageObeysTheVersionOfItsOwnTab) {
  host.Set(0, L"PdfVersion", 106).Set(0, L"FormFieldsEnabled", 1).Set(0, L"ShowFormfields", 7);
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await Show(sheet, kFormFieldsPage);
              co_await ShowTab(sheet, 1);
              sheet.PressOk();
            }));
  EXPECT_EQ(7, host.Long(0, L"ShowFormfields"));
}

// Both tabs have the confirmation, and one of them offers it.
TEST_F(PagesTogether, TheDocumentsPagesLeaveTheConfirmationOfTheBasicSettings) {
  EXPECT_EQ(1, Run([](Sheet& sheet) -> SheetTask {
              co_await ShowTab(sheet, 1);
              co_await Show(sheet, kLinksPage);
              co_await Show(sheet, kAttachmentsPage);
              EXPECT_EQ(0, sheet.Control(IDC_ATTACHMENTS_CONFIRM).SelectedRow());
              co_await ShowTab(sheet, 0);
              co_await Show(sheet, kAttachmentsPage);
              sheet.Control(IDC_ATTACHMENTS_CONFIRM).Select(2);
              sheet.Control(IDC_ATTACHMENTS_SHOW).Click();
              co_await ShowTab(sheet, 1);
              EXPECT_EQ(kAttachmentsPage, sheet.PageId());
              EXPECT_EQ(2, sheet.Control(IDC_ATTACHMENTS_CONFIRM).SelectedRow());
              EXPECT_TRUE(sheet.Control(IDC_ATTACHMENTS_SHOW).IsChecked());
              sheet.PressOk();
            }));
  EXPECT_EQ(2, host.Long(0, L"EmbedfilenamesConfirmed"));
  EXPECT_EQ(1, host.Long(0, L"EmbedfilenamesOpen"));
  EXPECT_EQ(0, host.Long(1, L"EmbedfilenamesConfirmed"));
}
