// The comparison behind the cockpit: where two records differ, category by category.
#pragma once

#include "cockpit/CCockpitSettings.h"

constexpr int32_t kCockpitCategoryCount = 18;

// Compares the fields of one category, 1 to 18. Returns its weight: how much of the category differs, from 0.0 to 1.0.
//
// `label` and `detail` are handed in empty. They receive the texts of what differs: in `label` one behind the other,
// set off by commas, in `detail` each on a line of its own behind a dash. `width` is the length of the longest of these
// lines, 0 when there is none.
//
// `lineCount` is their number. Categories of a single item leave it as it is when that does not differ; numbers 7 and
// 14 are set all the same. Any other category number only clears `width`.
double CompareCategory(const CCockpitSettings& baseline, const CCockpitSettings& current, int32_t category,
                       CUString& label, CUString& detail, int32_t& lineCount, int32_t& width);
