// The check of an administrator's configuration files: all that is wrong in them, where the settings dialog stops at
// the first bad line and ignores bad values without a word.
#pragma once

#include <string>
#include <vector>

#include "DriverLIB/AFile.h"
#include "environment/AdminSettings.h"

namespace host {

struct ConfFinding {
  int line;  // from 1; 0 for a value that an earlier file has set
  std::wstring text;
};

struct ConfReport {
  bool readable = false;
  std::wstring reason;                // why the file could not be read
  std::vector<ConfFinding> findings;  // in the order of their lines
  int overrideCount = 0;              // values that the file has stored in the end
};

// Reads the file into `record` as the library does, but past its bad lines, and validates the record. What earlier
// files have left in the record counts, as it does in the library: a printer's own file first, then the general one.
// No finding shows a value, which may be a password.
ConfReport CheckConfFile(const std::wstring& name, AdminSettings& record);

// The same for a file that is open and stands at its start.
ConfReport CheckConfFile(AFile& file, AdminSettings& record);

// The findings of a readable file, a line each, as "NAME:LINE: text"; one line also for a file without any.
std::wstring DescribeReport(const std::wstring& name, const ConfReport& report);

}  // namespace host
