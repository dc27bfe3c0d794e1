#include "Component.h"

EXPORT int NemEpdfGetVersion(uint32_t* version) {
  *version = 0x3050012;
  return 1;
}

COMMON_FUNCTIONS(NemEpdf)

NOTED_ONE(NemEpdfIsEPdf)
NOTED_ONE(NemEpdfIsEncryptedPdf)
NOTED_TWO(NemEpdfIsPasswordValid)
NOTED_TWO(NemEpdfGetEPdf)
NOTED_TWO(NemEpdfGetEmbeddedFile)
NOTED_TWO(NemEpdfGetEPdfInfo)
NOTED_TWO(NemEpdfGetEPdfSettings)
