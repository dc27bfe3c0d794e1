// Pages talk to each other through narrow interfaces. This is the road to one.
#pragma once

#include "sheet/CNemUIPage.h"

// The page with this number on the tab of the asking page, by the interface that it offers. Null when there is no such
// page or it does not offer it: whoever asks passes over it.
template <class Access>
Access* FindPageAs(CNemUIPage& asking, int pageId) {
  return dynamic_cast<Access*>(asking.FindPage(pageId));
}
