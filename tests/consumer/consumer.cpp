#define NEMPDFUI_API __declspec(dllimport)
#include "NemPdfUI.h"

#include <cstdio>

int main() {
  uint32_t version = 0;
  if (NemPdfUIGetVersion(&version) != 1) return 1;
  std::printf("NemPdfUI %u.%x.%u from C++\n", static_cast<unsigned>(version >> 24),
              static_cast<unsigned>(version >> 16 & 0xFF), static_cast<unsigned>(version & 0xFFFF));
}
