#include "window/Gdi.h"

bool IsHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON);
}
