// The administrator's files of real printers.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/Popups.h"
#include "environment/ConfFile.h"
#include "environment/CPrinterHandle.h"
#include "environment/PrinterQueries.h"
#include "environment/ReadAdminSettings.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"
#include "support/TempFile.h"
#include "support/TestPrinter.h"
#include "support/TracedThread.h"

namespace {

using Lines = std::vector<std::wstring>;

class ReadAdminSettingsTest : public testing::Test {
 protected:
  // Reads as the settings sheet does.
  bool Read(const TestPrinter& printer) {
    const CPrinterHandle handle(printer.Name().c_str());
    EXPECT_TRUE(handle);
    return ReadAdminSettings(handle.Get(), &record, printer.Name());
  }

  // What was traced, without the look-ups in the registry that a message box makes.
  Lines Traced() {
    Lines lines = thread.Lines();
    std::erase_if(lines, [](const std::wstring& line) { return line.starts_with(L"CRegistryEntry::"); });
    return lines;
  }

  LanguageScope english{kEnglish};
  TestDriver driver;
  TestPrinter printer{L"Invoices"};
  AdminSettings record;
  TracedThread thread;
};

ExpectedBox BadLineBox(const std::wstring& line) {
  return {.title = L"NEM pdf AddIn UI",
          .text = L"There was an error in the admin configuration file in line \"" + line + L"\".",
          .icon = MB_ICONERROR};
}

}  // namespace

// --- Printer and directory -------------------------------------------------------------------------------------------

TEST_F(ReadAdminSettingsTest, APrinterThatDoesNotExistHasNoHandle) {
  EXPECT_FALSE(CPrinterHandle(L"no such printer"));
  EXPECT_EQ(nullptr, CPrinterHandle(L"no such printer").Get());
}

TEST_F(ReadAdminSettingsTest, TheDirectoryIsThatOfThePrintersDriver) {
  const CPrinterHandle handle(printer.Name().c_str());
  EXPECT_EQ(driver.Directory(), GetDriverDirectory(handle.Get()));
  EXPECT_TRUE(driver.Directory().ends_with(L"\\"));
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(ReadAdminSettingsTest, TheDriverRecordIsABlockForLocalFree) {
  const CPrinterHandle handle(printer.Name().c_str());
  const LocalBlock block = GetDriverInfo(handle.Get(), 2);
  ASSERT_NE(nullptr, block);
  EXPECT_GE(LocalSize(block.get()), sizeof(DRIVER_INFO_2W));
  EXPECT_STREQ(kTestDriverName, reinterpret_cast<const DRIVER_INFO_2W*>(block.get())->pName);
}

TEST_F(ReadAdminSettingsTest, AHandleWithoutDriverHasNoDirectory) {
  HANDLE server = nullptr;
  ASSERT_TRUE(spooler::OpenPrinterW(nullptr, &server));
  EXPECT_EQ(L"", GetDriverDirectory(server));
  const Lines lines = thread.Lines();
  ASSERT_EQ(1u, lines.size());
  EXPECT_EQ(0u, lines[0].find(L"GetDriverInfo2: GetPrinterDriver(1st) error=")) << lines[0].size();
  EXPECT_EQ(1, thread.Error().trace->errorCount);
  spooler::ClosePrinter(server);
}

TEST_F(ReadAdminSettingsTest, WithoutADirectoryTheCurrentOneCounts) {
  wchar_t before[MAX_PATH], temporary[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, before);
  GetTempPathW(MAX_PATH, temporary);
  const std::wstring own = std::wstring(temporary) + L"nempdf-conf";
  CreateDirectoryW(own.c_str(), nullptr);
  SetCurrentDirectoryW(own.c_str());
  {
    TempFile general("NEMpdf.conf"), printerFile("A_B.conf");
    general.Put("PdfVersion_Override = 17\r\n");
    printerFile.Put("Colorspace_Override = 1\r\n");
    HANDLE server = nullptr;
    ASSERT_TRUE(spooler::OpenPrinterW(nullptr, &server));
    EXPECT_TRUE(ReadAdminSettings(server, &record, L"A/B"));
    EXPECT_EQ(17, record.PdfVersion_Override);
    EXPECT_EQ(1, record.Colorspace_Override);
    spooler::ClosePrinter(server);
  }
  SetCurrentDirectoryW(before);
  RemoveDirectoryW(own.c_str());
}

TEST_F(ReadAdminSettingsTest, TheFileOfAHandleLiesBesideTheDriver) {
  const DriverFile general(driver, L"NEMpdf.conf", "");
  const CPrinterHandle handle(printer.Name().c_str());
  ConfFile file(handle.Get(), kGeneralConfFile);
  EXPECT_EQ(general.Path(), file.fileName);
  EXPECT_TRUE(file.IsOpen());
}

// --- The files -------------------------------------------------------------------------------------------------------

TEST_F(ReadAdminSettingsTest, NothingIsReadWithoutHandleOrRecord) {
  const DriverFile general(driver, L"NEMpdf.conf", "PdfVersion_Override = 17\r\n");
  record.PdfVersion_Override = 14;
  EXPECT_FALSE(ReadAdminSettings(nullptr, &record, printer.Name()));
  EXPECT_EQ(14, record.PdfVersion_Override);
  const CPrinterHandle handle(printer.Name().c_str());
  EXPECT_FALSE(ReadAdminSettings(handle.Get(), nullptr, printer.Name()));
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(ReadAdminSettingsTest, NothingIsReadByAWrongKeyTable) {
  const AdminKey table[] = {
      {L"Odd", static_cast<AdminEntry>(9), {}},
      {L"PdfVersion_Override", AdminEntry::Number, AdminField(&AdminSettings::PdfVersion_Override)},
      {nullptr, AdminEntry::End, {}},
  };
  const DriverFile own(driver, L"Invoices.conf", "PdfVersion_Override = 14\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "PdfVersion_Override = 17\r\n");
  const CPrinterHandle handle(printer.Name().c_str());
  EXPECT_FALSE(ReadAdminSettings(handle.Get(), &record, printer.Name(), table));
  EXPECT_EQ(-1, record.PdfVersion_Override);
  EXPECT_EQ((Lines{L"Unknown Entrytype!", L"Wrong Init!"}), thread.Lines());
  EXPECT_EQ(2, thread.Error().trace->errorCount);
}

TEST_F(ReadAdminSettingsTest, MissingFilesAreNoFailure) {
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ((Lines{L"Driver Conf file not found " + driver.Directory() + L"NEMpdf.conf",
                   L"Driver Conf file not found " + driver.Directory() + L"Invoices.conf"}),
            thread.Lines());
  EXPECT_EQ(0, thread.Error().trace->errorCount);
  EXPECT_EQ(0, thread.Error().trace->warningCount);
  EXPECT_EQ(-1, record.PdfVersion_Override);
}

TEST_F(ReadAdminSettingsTest, TheGeneralFileCountsForEveryPrinter) {
  const DriverFile general(driver, L"NEMpdf.conf", "PdfVersion_Override = 17\r\n");
  const TestPrinter other(L"Letters");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(17, record.PdfVersion_Override);
  record.PdfVersion_Override = -1;
  EXPECT_TRUE(Read(other));
  EXPECT_EQ(17, record.PdfVersion_Override);
}

TEST_F(ReadAdminSettingsTest, APrintersFileCountsForThatPrinter) {
  const DriverFile own(driver, L"Invoices.conf", "PdfVersion_Override = 14\r\n");
  const TestPrinter other(L"Letters");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(14, record.PdfVersion_Override);
  EXPECT_TRUE(Read(other));
  EXPECT_EQ(-1, record.PdfVersion_Override);  // the record starts anew
}

TEST_F(ReadAdminSettingsTest, TheGeneralFileWins) {
  const DriverFile own(driver, L"Invoices.conf", "PdfVersion_Override = 14\r\nAuthor_Override = Invoices\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "PdfVersion_Override = 17\r\nTitle_Override = All\r\n");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(17, record.PdfVersion_Override);
  EXPECT_EQ(L"Invoices", record.Author_Override);
  EXPECT_EQ(L"All", record.Title_Override);
  EXPECT_EQ(Lines{}, thread.Lines());
}

TEST_F(ReadAdminSettingsTest, ThePrintersFileIsValidatedBeforeTheGeneralOneIsRead) {
  const DriverFile own(driver, L"Invoices.conf", "SaveAction_Override = 24\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "DestinationDirectoryOrFilename_Override = C:\\Out\\\r\n");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(-1, record.SaveAction_Override);
  EXPECT_EQ(L"C:\\Out\\", record.DestinationDirectoryOrFilename_Override);
}

TEST_F(ReadAdminSettingsTest, WhatThePrintersFileSaysCountsForTheGeneralOne) {
  const DriverFile own(driver, L"Invoices.conf", "DestinationDirectoryOrFilename_Override = C:\\Out\\\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "SaveAction_Override = 24\r\n");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(24, record.SaveAction_Override);
}

TEST_F(ReadAdminSettingsTest, TheFilesAreClosedAfterwards) {
  const DriverFile own(driver, L"Invoices.conf", "PdfVersion_Override = 14\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "PdfVersion_Override = 17\r\n");
  EXPECT_TRUE(Read(printer));
  for (const DriverFile* file : {&own, &general}) {
    const HANDLE handle = CreateFileW(file->Path().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, handle);
    CloseHandle(handle);
  }
}

// --- The names of printers -------------------------------------------------------------------------------------------

class ReadAdminSettingsName : public ReadAdminSettingsTest, public testing::WithParamInterface<wchar_t> {};

TEST_P(ReadAdminSettingsName, HasAnUnderscoreInTheFile) {
  const TestPrinter named(std::wstring(L"A") + GetParam() + L"B");
  const DriverFile own(driver, L"A_B.conf", "PdfVersion_Override = 14\r\n");
  EXPECT_TRUE(Read(named));
  EXPECT_EQ(14, record.PdfVersion_Override);
}

INSTANTIATE_TEST_SUITE_P(Characters, ReadAdminSettingsName, testing::ValuesIn(std::wstring(L"[]/\\=+<>:;\",*")),
                         [](const auto& info) { return "Code" + std::to_string(info.param); });

TEST_F(ReadAdminSettingsTest, OtherCharactersStay) {
  const TestPrinter named(L"M\u00FCller & Co. (2. Stock)");
  const DriverFile own(driver, L"M\u00FCller & Co. (2. Stock).conf", "PdfVersion_Override = 14\r\n");
  EXPECT_TRUE(Read(named));
  EXPECT_EQ(14, record.PdfVersion_Override);
}

// --- Bad lines -------------------------------------------------------------------------------------------------------

TEST_F(ReadAdminSettingsTest, ABadLineShowsABoxAndEndsItsFile) {
  const DriverFile own(driver, L"Invoices.conf",
                       "PdfVersion_Override = 14\r\nGraphicJpegQuality_Override = 101\r\n  PdfVersion = 15 \r\n"
                       "Colorspace_Override = 1\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "Author_Override = \"Acme\"\r\n");
  Popups popups;
  popups.ExpectBox(BadLineBox(L"PdfVersion = 15"));
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(14, record.PdfVersion_Override);          // stands
  EXPECT_EQ(-1, record.GraphicJpegQuality_Override);  // is validated all the same
  EXPECT_EQ(-1, record.Colorspace_Override);          // is lost
  EXPECT_EQ(L"Acme", record.Author_Override);         // the other file is read as usual
  // In between the box asks the registry whether it is to be logged, which traces what is not there.
  Lines lines = thread.Lines();
  EXPECT_EQ(lines.size(), static_cast<size_t>(thread.Error().trace->errorCount)) << "all are of the error level";
  std::erase_if(lines, [](const std::wstring& line) { return line.rfind(L"CRegistryEntry::", 0) == 0; });
  EXPECT_EQ((Lines{L"Driver Conf bad line PdfVersion = 15!", L"Error: ReadAdminSettings->Parse",
                   L"Error: not completly parsed"}),
            lines);
}

TEST_F(ReadAdminSettingsTest, EachFileHasItsBox) {
  const DriverFile own(driver, L"Invoices.conf", "printer %s\r\n");
  const DriverFile general(driver, L"NEMpdf.conf", "general %1!s!\r\n");
  Popups popups;
  popups.ExpectBox(BadLineBox(L"printer %s"));
  popups.ExpectBox(BadLineBox(L"general %1!s!"));
  EXPECT_TRUE(Read(printer));
}

TEST_F(ReadAdminSettingsTest, TheBoxBelongsToTheActiveWindow) {
  const DriverFile general(driver, L"NEMpdf.conf", "bad\r\n");
  const PageParent active;
  SetActiveWindow(active.Window());
  ASSERT_EQ(active.Window(), GetActiveWindow());
  Popups popups;
  popups.ExpectBox(BadLineBox(L"bad"));
  EXPECT_TRUE(Read(printer));
  ASSERT_EQ(1u, popups.Boxes().size());
  EXPECT_EQ(active.Window(), popups.Boxes()[0].owner);
}

TEST_F(ReadAdminSettingsTest, TheBoxSpeaksTheUsersLanguage) {
  const LanguageScope german(0x0407);
  const DriverFile general(driver, L"NEMpdf.conf", "bad\r\n");
  Popups popups;
  popups.ExpectBox(
      {.title = L"NEM pdf AddIn UI", .text = MessageText(0xC0011139, L"bad").Text(), .icon = MB_ICONERROR});
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(std::wstring::npos, popups.Boxes()[0].text.find(L"There was an error"));
}

TEST_F(ReadAdminSettingsTest, BadValuesShowNothing) {
  const DriverFile general(driver, L"NEMpdf.conf",
                           "StartActionMailCheck_Override = yes\r\nGraphicResolution_Override = -5\r\n"
                           "PdfVersion_Override = 14\r\n");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(14, record.PdfVersion_Override);
  const std::wstring ownFile = driver.Directory() + L"Invoices.conf";
  EXPECT_EQ((Lines{L"Driver Conf file not found " + ownFile, L"Unknown BOOLValue StartActionMailCheck_Override = yes!",
                   L"Unknown non negative number Value -5!"}),
            thread.Lines());
}

TEST_F(ReadAdminSettingsTest, NoPasswordIsTraced) {
  const DriverFile own(driver, L"Invoices.conf", "EncryptUserPassword_Override = geheim\r\n");
  const DriverFile general(driver, L"NEMpdf.conf",
                           "EncryptOwnerPassword_Override = \"geheim\"\r\nStationeryInfos_Override = geheim\r\n");
  EXPECT_TRUE(Read(printer));
  EXPECT_EQ(L"geheim", record.EncryptOwnerPassword_Override);
  EXPECT_EQ(Lines{}, thread.Lines());
}
