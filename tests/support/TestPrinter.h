// Printers of a test's own in the real spooler: added and removed by the API, with files beside their driver.
//
//   const TestDriver driver;
//   const TestPrinter printer(L"Invoices A/B");
//   const DriverFile file(driver, L"NEMpdf.conf", "PdfVersion_Override = 14\r\n");
#pragma once

#include <string>
#include <string_view>

constexpr wchar_t kTestDriverName[] = L"NEM pdf vonder";

// A printer driver, gone with its file at the end. Printers that use it go before it.
class TestDriver {
 public:
  explicit TestDriver(const wchar_t* name = kTestDriverName);
  ~TestDriver();
  TestDriver(const TestDriver&) = delete;
  TestDriver& operator=(const TestDriver&) = delete;

  // Where the spooler keeps the driver's files, with a trailing backslash.
  const std::wstring& Directory() const { return directory_; }

 private:
  std::wstring name_;
  std::wstring sourceFile_;  // what the spooler was given to copy
  std::wstring directory_;
};

class TestPrinter {
 public:
  explicit TestPrinter(const std::wstring& name, const wchar_t* driverName = kTestDriverName);
  ~TestPrinter();
  TestPrinter(const TestPrinter&) = delete;
  TestPrinter& operator=(const TestPrinter&) = delete;

  // Open with all rights; closed when the printer goes.
  void* Handle() const { return handle_; }
  const std::wstring& Name() const { return name_; }

 private:
  std::wstring name_;
  void* handle_ = nullptr;
};

// A file in the driver's directory.
class DriverFile {
 public:
  DriverFile(const TestDriver& driver, const std::wstring& name, std::string_view bytes);
  ~DriverFile();
  DriverFile(const DriverFile&) = delete;
  DriverFile& operator=(const DriverFile&) = delete;

  void Put(std::string_view bytes) const;
  const std::wstring& Path() const { return path_; }

 private:
  std::wstring path_;
};
