// Where the product is installed, by the records of the platform's installer.
#pragma once

#include "DriverLIB/CUString.h"

// The packed upgrade code of this product.
void GetProductUpgradeCode(CUString& code);

// The folder of the product with that upgrade code, ending in one separator. Empty when no product has the code; just
// the separator when its folder is not recorded.
void GetInstallLocation(CUString& folder, const wchar_t* upgradeCode);

// The folder of this product.
void GetProductInstallLocation(CUString& folder);
