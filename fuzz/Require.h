#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the fuzzer with the place of the rule that is broken; the fuzzer then keeps the input.
#define REQUIRE(condition)                                                         \
  do {                                                                             \
    if (!(condition)) {                                                            \
      std::fprintf(stderr, "%s:%d: broken: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                \
    }                                                                              \
  } while (false)
