#include "Component.h"

#ifdef NEEDS_ANOTHER
__declspec(dllimport) int NemTestNeeded(void);
#endif

EXPORT int NemPdfGetVersion(uint32_t* version) {
#ifdef VERSION_RAISES
  RAISE_FOREIGN();
#endif
#ifdef NEEDS_ANOTHER
  if (!NemTestNeeded()) return 0;
#endif
#ifdef VERSION_FAILS
  (void)version;
  return 0;
#else
  *version = 0x2100004;
  return 1;
#endif
}

#ifdef LACKS_THIRD_EXPORT
EXPORT int NemPdfGetErrorText(uint32_t code, char* buffer, int size) {
  return code == 5 ? Answer(buffer, size, "fifth") : 0;
}
#else
COMMON_FUNCTIONS(NemPdf)
#endif

EXPORT int NemPdfMerge(const char* first, const char* second, const char* target) {
  Note("NemPdfMerge", first, second);
  return Note("NemPdfMerge", second, target);
}
EXPORT int NemPdfJoin(const char* first, const char* second, const char* target) {
  Note("NemPdfJoin", first, second);
  return Note("NemPdfJoin", second, target);
}
