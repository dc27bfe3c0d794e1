// The pages whose values make up the cockpit's record. The cockpit knows them by their numbers and by the interface
// CockpitPage alone; a page that does not offer it is passed over.
#pragma once

#include <span>

#include "cockpit/CCockpitSettings.h"
#include "sheet/CNemUIPage.h"

struct TrackedPage {
  int pageId;
  void (*collect)(CNemUIPage& page, CCockpitSettings& settings);
  void (*push)(CNemUIPage& page, const CCockpitSettings& settings);
};

// All eighteen, in the order of the record.
std::span<const TrackedPage> TrackedPages();
