// A configuration file of the administrator.
//
// Two files are read for a printer, both beside its driver: the printer's own, and the general one for all printers.
// The record is filled by the printer's file first and the general one second, so for a key that stands in both the
// general file wins.
#pragma once

#include "DriverLIB/AFile.h"
#include "environment/AdminSettings.h"

constexpr wchar_t kGeneralConfFile[] = L"NEMpdf.conf";

// The name of a printer's own file: the printer's name with "_" for each of  [ ] / \ = + < > : ; " , *  and ".conf".
CUString PrinterConfFileName(WideView printerName);

class ConfFile : public AFile {
 public:
  // Opens the file for reading. A missing one is traced and stays closed. An empty directory is the current one; any
  // other ends in a separator.
  ConfFile(WideView directory, WideView name);
  // The same in the directory of the printer's driver, for a HANDLE of the spooler. Needs the spooler, so it stands
  // with ReadAdminSettings.
  ConfFile(void* printerHandle, const wchar_t* name);
  ~ConfFile() override;

  // Told of a line that cannot be, as it stands in the file without the white space around it.
  using BadLineReport = void (*)(const CUString& line);

  // All overrides to their unset values, texts excepted. False when the key table is wrong.
  bool InitSettings(AdminSettings& record, const AdminKey* table = kAdminKeys);

  // Reads the open file into the record. True when its end was reached; false at a bad line, which is traced and
  // reported: the lines before it stand, those behind it are lost. A bad value is traced and passed over.
  bool Parse(AdminSettings& record, BadLineReport report, const AdminKey* table = kAdminKeys);

  // Takes back what breaks a rule (AdminValidation.h). Always true.
  bool Validate(AdminSettings& record);
};
