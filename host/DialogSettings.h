// Settings on their way into a dialog object of the library and out of it.
#pragma once

#include "NemPdfUI.hpp"
#include "Settings.h"

namespace host {

// Gives the object these values; all others stay. Throws nempdf::Error.
void StoreSettings(nempdf::Dialog& dialog, const Settings& settings);

// All properties of all sets, in the library's order. Throws nempdf::Error.
Settings LoadSettings(const nempdf::Dialog& dialog);

}  // namespace host
