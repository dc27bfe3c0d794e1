// The pages of a host, as data. The table is handed in from the roof, the one place that knows all classes: the sheet
// and the host page know no page by its class.
#pragma once

#include <memory>
#include <span>

#include "sheet/CNemUIPage.h"
#include "sheet/SheetServices.h"

using PageFactory = std::unique_ptr<CNemUIPage> (*)(SheetServices* sheet, const PageDescription& description,
                                                    int settingsIndex);

struct PageCatalogueRow {
  PageDescription description;
  PageFactory onBasicSettings;       // null: the page has no instance there
  PageFactory onDocumentProperties;  // null likewise
};

// In the order of construction.
using PageCatalogue = std::span<const PageCatalogueRow>;
