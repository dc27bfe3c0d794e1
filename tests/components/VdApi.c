#include "Component.h"

EXPORT int NemPdfVdAPIGetVersion(uint32_t* version) {
  *version = 0x1000000;
  return 1;
}

NOTED_ONE(NemPdfVdJobSetPropertyA)
NOTED_ONE(NemPdfVdJobSetPropertyW)
NOTED_ONE(NemPdfVdJobGetPropertyA)
NOTED_ONE(NemPdfVdJobGetPropertyW)
NOTED_ONE(NemPdfVdJobGetError)
NOTED_ONE(NemPdfVdJobGetErrorTextA)
NOTED_ONE(NemPdfVdJobCreate)
NOTED_ONE(NemPdfVdJobFree)
NOTED_ONE(NemPdfVdJobStart)
NOTED_ONE(NemPdfVdJobPrint)
NOTED_ONE(NemPdfVdJobWaitFor)
NOTED_ONE(NemPdfVdJobInitDevModeProperty)
NOTED_ONE(NemPdfVdJobShowDevModeProperty)
NOTED_ONE(NemPdfVdJobSaveDevModeProperty)
