#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"

// A file path, or any part of one, as a CUString that can be split.
//
// The parts are those of the platform's path splitter: drive with colon, directory with its trailing separator, name,
// extension with its leading dot. The splitter reserves 3 characters for the drive and 256 each for the others,
// terminators included; a path with a longer part has no parts at all.
class CEPathString : public CUString {
 public:
  using CUString::CUString;
  using CUString::operator=;
  CEPathString() noexcept = default;
  CEPathString(const CUString& path) : CUString(path) {}

  // The file name of a loaded module, the program's own for null, cut at 259 characters.
  static CEPathString ModulePath(void* module);

  CUString GetDrive() const;
  CUString GetDirectory() const;
  CUString GetFileName() const;
  CUString GetExtension() const;
  CUString GetDriveAndDirectory() const;
  CUString GetNameAndExtension() const;

  // Replaces everything behind the directory.
  void SetFileNameAndExt(WideView name);

  // Keeps the system's last error and, when `format` says something, reports it to the thread's error state and
  // trace. `format` has two wide inserts: `argument` and the word for an unknown reason. Always returns 0, so that a
  // failure value can travel up.
  virtual int ReportFailure(const wchar_t* format, const wchar_t* argument);

  uint32_t LastSystemError() const { return lastSystemError_; }

 private:
  uint32_t lastSystemError_ = 0;
};
