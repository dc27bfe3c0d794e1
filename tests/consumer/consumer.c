#include <stdio.h>

#include "NemPdfUI.h"

int main(void) {
  NemPdfUIHandle dialog = NULL;
  int32_t quality = 85;
  uint32_t version = 0;
  if (!NemPdfUIGetVersion(&version) || version != NEMPDFUI_VERSION) return 1;
  if (!NemPdfUICreateDialog(&dialog) || !dialog) return 1;
  if (NemPdfUISetPropertyA(dialog, NEMPDFUI_SETTINGS, "GraphicJpegQuality", &quality) != 1) return 1;
  quality = 0;
  if (NemPdfUIGetPropertyA(dialog, NEMPDFUI_SETTINGS, "GraphicJpegQuality", &quality, sizeof quality) != 1) return 1;
  if (quality != 85 || !NemPdfUIFreeDialog(&dialog) || dialog) return 1;
  printf("NemPdfUI %u.%x.%u from C\n", (unsigned)(version >> 24), (unsigned)(version >> 16 & 0xFF),
         (unsigned)(version & 0xFFFF));
  return 0;
}
