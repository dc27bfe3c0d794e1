// What a page is, beside its class: one row of the page catalogue.
#pragma once

#include <cstdint>

struct PageDescription {
  uint32_t templateId = 0;  // dialog resource, and the key of its help topic
  uint32_t iconId = 0;      // icon of its tab in the sheet; 0 on child pages
  uint32_t titleId = 0;     // message id of its caption
  int pageId = 0;           // number that FindPage and ActivatePage take; 0 on a host
  // The page's picture and its mask. The navigation bar has numbers of its own for its entries (BarContents.cpp), which
  // may be another pair: the ZUGFeRD page is the one that has two.
  uint32_t imageId = 0;
  uint32_t maskId = 0;
};
