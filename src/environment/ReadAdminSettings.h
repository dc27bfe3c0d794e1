#pragma once

#include <windows.h>

#include "environment/AdminSettings.h"

// Fills the record from the configuration files that lie beside the printer's driver: the printer's own, then the
// general one (ConfFile.h). A bad line shows a box, whose owner is the thread's active window. False when the handle or
// the record is null, or when the key table is wrong; missing files and bad lines are no failure.
bool ReadAdminSettings(HANDLE printerHandle, AdminSettings* record, WideView printerName,
                       const AdminKey* table = kAdminKeys);
