// The administrator's files as the user of the settings sheet meets them: locked controls, and a box for a bad line.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"
#include "support/TestPrinter.h"

namespace {

constexpr int kGraphicPage = 108;

class Override : public testing::Test {
 protected:
  Override() {
    dialog.Set(NEMPDFUI_GENERAL, L"PrinterName", L"Invoices A/B");
    dialog.Set(0, L"GraphicJpegQuality", 86);  // no preset has it, so all lists are open
  }

  // Runs the sheet to its OK, noting which controls of the graphic page are open and what the quality shows.
  int Open(SheetDriver& sheetDriver) {
    open.clear();
    const auto body = [this](Sheet& sheet) -> SheetTask {
      if (sheet.PageId() != kGraphicPage) {
        CO_ASSERT_TRUE(sheet.SelectPage(kGraphicPage));
      }
      for (const int id : kControls)
        if (sheet.Control(id).IsEnabled()) open.push_back(id);
      quality = sheet.Control(IDC_GRAPHIC_QUALITY).Text();
      sheet.PressOk();
    };
    return static_cast<int>(sheetDriver.Run([this] { return dialog.DoModal(); }, body).value);
  }
  int Open() {
    SheetDriver sheetDriver;
    return Open(sheetDriver);
  }

  static constexpr int kControls[] = {IDC_GRAPHIC_BY_FILE_SIZE, IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR,
                                      IDC_GRAPHIC_COMPRESSION,  IDC_GRAPHIC_QUALITY,    IDC_GRAPHIC_QUALITY_BAR,
                                      IDC_GRAPHIC_COLOR_DEPTH};
  const std::vector<int> kAll{std::begin(kControls), std::end(kControls)};
  const std::vector<int> kWithoutQuality{IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_COMPRESSION,
                                         IDC_GRAPHIC_COLOR_DEPTH};

  TestDriver driver;
  TestPrinter printer{L"Invoices A/B"};
  HostDialog dialog;
  std::vector<int> open;
  std::wstring quality;
};

}  // namespace

TEST_F(Override, WithoutFilesNothingIsLocked) {
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kAll, open);
}

TEST_F(Override, AKeyOfTheGeneralFileLocksItsControls) {
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kWithoutQuality, open);
  EXPECT_EQ(L"86%", quality);  // the page shows the host's value, and the host gets it back
  EXPECT_EQ(86, dialog.Long(0, L"GraphicJpegQuality"));
}

TEST_F(Override, AKeyOfThePrintersFileLocksItsControls) {
  const DriverFile own(driver, L"Invoices A_B.conf", "GraphicJpegQuality_Override = 60\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kWithoutQuality, open);
}

TEST_F(Override, BothFilesCount) {
  const DriverFile own(driver, L"Invoices A_B.conf", "GraphicResolution_Override = 300\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_EQ((std::vector<int>{IDC_GRAPHIC_COMPRESSION, IDC_GRAPHIC_COLOR_DEPTH}), open);
}

TEST_F(Override, ADroppedValueLocksNothing) {
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 101\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kAll, open);
}

TEST_F(Override, AnotherPrintersFileLocksNothing) {
  const DriverFile other(driver, L"Letters.conf", "GraphicJpegQuality_Override = 60\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kAll, open);
}

TEST_F(Override, AChangedFileCountsAtTheNextOpening) {
  {
    const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
    EXPECT_EQ(1, Open());
    EXPECT_EQ(kWithoutQuality, open);
    general.Put("GraphicColorReduction_Override = 1\r\n");
    EXPECT_EQ(1, Open());
    EXPECT_EQ((std::vector<int>{IDC_GRAPHIC_RESOLUTION, IDC_GRAPHIC_RESOLUTION_BAR, IDC_GRAPHIC_COMPRESSION,
                                IDC_GRAPHIC_QUALITY, IDC_GRAPHIC_QUALITY_BAR}),
              open);
  }
  EXPECT_EQ(1, Open());
  EXPECT_EQ(kAll, open);
}

TEST_F(Override, BothTabsAreLocked) {
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  dialog.Set(1, L"Used", 1).Set(1, L"GraphicJpegQuality", 86);
  EXPECT_EQ(1, Open());  // on the document tab
  EXPECT_EQ(kWithoutQuality, open);
}

TEST_F(Override, ABadLineShowsABoxAndTheSheetOpensAllTheSame) {
  const DriverFile general(driver, L"NEMpdf.conf",
                           "GraphicJpegQuality_Override = 60\r\nGraphicQuality = 60\r\n"
                           "GraphicResolution_Override = 300\r\n");
  SheetDriver sheetDriver;
  sheetDriver.ExpectBox({.title = L"NEM pdf AddIn UI",
                         .text = L"There was an error in the admin configuration file in line "
                                 L"\"GraphicQuality = 60\".",
                         .icon = MB_ICONERROR});
  EXPECT_EQ(1, Open(sheetDriver));
  EXPECT_EQ(kWithoutQuality, open);  // the line in front of the bad one counts, the one behind it does not
}

TEST_F(Override, APrinterThatCannotBeOpenedLocksNothing) {
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  for (const wchar_t* name : {L"no such printer", L""}) {
    dialog.Set(NEMPDFUI_GENERAL, L"PrinterName", name);
    EXPECT_EQ(1, Open());
    EXPECT_EQ(kAll, open);
  }
}

TEST_F(Override, TheFileIsClosedAgain) {
  const DriverFile general(driver, L"NEMpdf.conf", "GraphicJpegQuality_Override = 60\r\n");
  EXPECT_EQ(1, Open());
  EXPECT_TRUE(DeleteFileW(general.Path().c_str()));
}

// Loading the library loads no spooler: it stands in none of the library's imports.
TEST(Spooler, IsNoImportOfTheLibrary) {
  const auto* base = reinterpret_cast<const BYTE*>(GetModuleHandleW(L"NemPdfUI64.dll"));
  ASSERT_NE(nullptr, base);
  const auto& headers =
      *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
  const DWORD imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  std::vector<std::string> libraries;
  for (const auto* entry = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); entry->Name; ++entry)
    libraries.emplace_back(reinterpret_cast<const char*>(base + entry->Name));
  EXPECT_FALSE(libraries.empty());
  for (const std::string& library : libraries) EXPECT_NE(0, lstrcmpiA("winspool.drv", library.c_str()));
}
