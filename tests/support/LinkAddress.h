// Where a link of the library leads, as it tells a screen reader.
#pragma once

#include "driver/ControlRef.h"
#include "support/Accessible.h"

inline std::wstring LinkAddress(const ControlRef& link) {
  const ComScope com;
  const Accessible accessible(link.Window());
  return accessible ? accessible.Value(CHILDID_SELF) : L"no link";
}
