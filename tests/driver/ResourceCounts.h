// What the process holds of the system, to find leaks: count, open and close sheets, count again.
#pragma once

#include <cstddef>
#include <string>

struct ResourceCounts {
  int gdiObjects = 0;
  int windows = 0;       // all of the process, children and message-only windows included
  int handles = 0;       // kernel objects
  size_t heapBytes = 0;  // in use in all heaps of the process

  ResourceCounts operator-(const ResourceCounts& other) const;
};

// A first sheet loads libraries, caches and fonts that stay: count after it.
ResourceCounts Count();

std::string Describe(const ResourceCounts& counts);
