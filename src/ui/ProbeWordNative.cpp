#include "ui/ProbeWord.h"

uint32_t ProbeWord(const void* address) { return *static_cast<const uint32_t*>(address); }
