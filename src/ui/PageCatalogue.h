// The roof: the one place that knows the classes of all pages.
#pragma once

#include "sheet/PageCatalogue.h"

PageCatalogue AllPages();
