#include "support/FreedTextWatch.h"

#include <malloc.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>

namespace {

std::string_view watched;  // as bytes; empty while nobody watches
int found = 0;

size_t SizeOf(void* block) {
#ifdef _WIN32
  return _msize(block);
#else
  return malloc_usable_size(block);
#endif
}

void Free(void* block) noexcept {
  if (block && !watched.empty())
    found += std::string_view(static_cast<const char*>(block), SizeOf(block)).find(watched) != watched.npos;
  std::free(block);
}

}  // namespace

FreedTextWatch::FreedTextWatch(const wchar_t* secret) {
  watched = {reinterpret_cast<const char*>(secret), std::char_traits<wchar_t>::length(secret) * sizeof(wchar_t)};
  found = 0;
}

FreedTextWatch::~FreedTextWatch() { watched = {}; }

int FreedTextWatch::Count() const { return found; }

// In place of the run-time library's own. The strings of this library live in arrays.
void* operator new[](std::size_t size) {
  if (void* block = std::malloc(size ? size : 1)) return block;
  throw std::bad_alloc();
}

void operator delete[](void* block) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }
