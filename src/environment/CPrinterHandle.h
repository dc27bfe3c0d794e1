#pragma once

#include "environment/Spooler.h"

// An open printer, closed when the object goes. Null when there is no printer of that name, and for no name, which to
// the spooler is that of the computer.
class CPrinterHandle {
 public:
  explicit CPrinterHandle(const wchar_t* printerName) {
    if (!printerName || !*printerName || !spooler::OpenPrinterW(printerName, &handle_)) handle_ = nullptr;
  }
  ~CPrinterHandle() {
    if (handle_) spooler::ClosePrinter(handle_);
  }
  CPrinterHandle(const CPrinterHandle&) = delete;
  CPrinterHandle& operator=(const CPrinterHandle&) = delete;

  HANDLE Get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  HANDLE handle_ = nullptr;
};
