// Reading of memory that may not be there.
#pragma once

#include <cstdint>

// The four bytes at `address`, which must be aligned; 0 if they cannot be read.
//
// A host's handle is a pointer that nobody vouches for: that of a freed object may lead to memory that the heap has
// given back. On Windows the read is guarded by an exception handler, which costs nothing as long as it succeeds.
uint32_t ProbeWord(const void* address);
