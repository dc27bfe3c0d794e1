// What a run of the sheet changed.
#pragma once

#include <string>
#include <vector>

#include "Settings.h"

namespace host {

// One line for each setting of `before` whose value is another one in `after`:
//   [0] GraphicJpegQuality: 85 -> 60
//   [0] Title: "" -> "Annual report"
//   [0] EncryptUserPassword: changed (not shown)
// Both lists name the same settings in the same order.
std::vector<std::wstring> DescribeChanges(const Settings& before, const Settings& after);

}  // namespace host
