#include "environment/ComponentText.h"

CEString ComponentVersionText(uint32_t version) {
  using Number = unsigned long;
  CEString text;
  text.Format("%lx.%lx.%lx", Number{version >> 24}, Number{version >> 16 & 0xFF}, Number{version & 0xFFFF});
  return text;
}
