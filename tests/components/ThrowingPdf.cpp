// A component whose version query throws.
#include <cstdint>

#define EXPORT extern "C" __declspec(dllexport)

EXPORT int NemPdfGetVersion(uint32_t*) { throw 1; }
EXPORT int NemPdfGetErrorText() { return 0; }
EXPORT int NemPdfSetProperty() { return 0; }
EXPORT int NemPdfGetProperty() { return 0; }
EXPORT int NemPdfGetLastError() { return 0; }
EXPORT int NemPdfGetLastErrorText() { return 0; }
EXPORT int NemPdfMerge() { return 0; }
EXPORT int NemPdfJoin() { return 0; }
