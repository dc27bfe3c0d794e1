#include "environment/ReadAdminSettings.h"

#include "DriverLIB/Identity.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/Trace.h"
#include "environment/ConfFile.h"
#include "environment/PrinterQueries.h"
#include "MessageIds.h"

namespace {

void ShowBadLine(const CUString& line) {
  MsgBoxById(::GetActiveWindow(), kComponentName, MSG_ADMIN_FILE_BAD_LINE, MB_ICONERROR, line);
}

void TakeFile(ConfFile& file, AdminSettings& record, const AdminKey* table) {
  if (!file.IsOpen()) return;
  if (!file.Parse(record, ShowBadLine, table)) TraceError("Error: ReadAdminSettings->Parse");
  if (!file.Validate(record)) TraceError("Error: ReadAdminSettings->Validate");
  if (!file.IsEof()) TraceError("Error: not completly parsed");
  file.Close();
}

}  // namespace

ConfFile::ConfFile(void* printerHandle, const wchar_t* name) : ConfFile(GetDriverDirectory(printerHandle), name) {}

bool ReadAdminSettings(HANDLE printerHandle, AdminSettings* record, WideView printerName, const AdminKey* table) {
  if (!printerHandle || !record) return false;
  ConfFile general(printerHandle, kGeneralConfFile);
  ConfFile printer(printerHandle, PrinterConfFileName(printerName).Text());
  if (!general.InitSettings(*record, table)) {
    TraceError("Wrong Init!");
    return false;
  }
  // Not the other way round: what the general file says goes over the printer's own.
  TakeFile(printer, *record, table);
  TakeFile(general, *record, table);
  return true;
}
