#include <windows.h>
// behind windows.h
#include <winspool.h>

#include "support/TestPrinter.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr wchar_t kEnvironment[] = L"Windows x64";
constexpr DWORD kDriverVersion = 3;  // of drivers that run in the user's process

// The structures of the spooler take texts that they do not change as changeable ones.
wchar_t* Changeable(const std::wstring& text) { return const_cast<wchar_t*>(text.c_str()); }
wchar_t* Changeable(const wchar_t* text) { return const_cast<wchar_t*>(text); }

void WriteFileAnew(const std::wstring& path, std::string_view bytes) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, file) << "error " << GetLastError();
  DWORD written = 0;
  EXPECT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
  EXPECT_EQ(bytes.size(), written);
  CloseHandle(file);
}

// Where the spooler takes the files of a new driver from.
std::wstring SourceDirectory() {
  wchar_t directory[MAX_PATH];
  DWORD size = 0;
  EXPECT_TRUE(GetPrinterDriverDirectoryW(nullptr, Changeable(kEnvironment), 1, reinterpret_cast<BYTE*>(directory),
                                         sizeof directory, &size));
  CreateDirectoryW(directory, nullptr);
  return std::wstring(directory) + L"\\";
}

std::wstring InstalledPath(const std::wstring& driverName) {
  std::vector<BYTE> buffer(1 << 16);
  DWORD size = 0, count = 0;
  EXPECT_TRUE(EnumPrinterDriversW(nullptr, Changeable(kEnvironment), 2, buffer.data(),
                                  static_cast<DWORD>(buffer.size()), &size, &count));
  const auto* drivers = reinterpret_cast<const DRIVER_INFO_2W*>(buffer.data());
  for (DWORD i = 0; i < count; ++i)
    if (driverName == drivers[i].pName) return drivers[i].pDriverPath;
  ADD_FAILURE() << "the spooler does not know the driver that it was given";
  return {};
}

}  // namespace

TestDriver::TestDriver(const wchar_t* name) : name_(name) {
  const std::wstring fileName = name_ + L".dll";
  sourceFile_ = SourceDirectory() + fileName;
  WriteFileAnew(sourceFile_, "no code in it");
  DRIVER_INFO_3W driver{};
  driver.cVersion = kDriverVersion;
  driver.pName = Changeable(name_);
  driver.pEnvironment = Changeable(kEnvironment);
  driver.pDriverPath = driver.pDataFile = driver.pConfigFile = Changeable(fileName);
  driver.pDefaultDataType = Changeable(L"RAW");
  EXPECT_TRUE(AddPrinterDriverW(nullptr, 3, reinterpret_cast<BYTE*>(&driver))) << "error " << GetLastError();
  const std::wstring path = InstalledPath(name_);
  directory_ = path.substr(0, path.rfind(L'\\') + 1);
}

TestDriver::~TestDriver() {
  EXPECT_TRUE(DeletePrinterDriverExW(nullptr, Changeable(kEnvironment), Changeable(name_), 0, 0));
  DeleteFileW((directory_ + name_ + L".dll").c_str());
  DeleteFileW(sourceFile_.c_str());
}

TestPrinter::TestPrinter(const std::wstring& name, const wchar_t* driverName) : name_(name) {
  PRINTER_INFO_2W printer{};
  printer.pPrinterName = Changeable(name_);
  printer.pPortName = Changeable(L"FILE:");
  printer.pDriverName = Changeable(driverName);
  printer.pPrintProcessor = Changeable(L"winprint");
  printer.pDatatype = Changeable(L"RAW");
  handle_ = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
  EXPECT_NE(nullptr, handle_) << "error " << GetLastError();
}

TestPrinter::~TestPrinter() {
  if (!handle_) return;
  EXPECT_TRUE(DeletePrinter(handle_));
  ClosePrinter(handle_);
}

DriverFile::DriverFile(const TestDriver& driver, const std::wstring& name, std::string_view bytes)
    : path_(driver.Directory() + name) {
  Put(bytes);
}

DriverFile::~DriverFile() { DeleteFileW(path_.c_str()); }

void DriverFile::Put(std::string_view bytes) const { WriteFileAnew(path_, bytes); }
