#include "Component.h"

EXPORT int NemEpdfGetVersion(uint32_t* version) {
  *version = 0x3050012;
  return 1;
}

COMMON_FUNCTIONS(NemEpdf)

NOTED_ONE(NemEpdfIsEPdf)
NOTED_ONE(NemEpdfIsEncryptedPdf)
NOTED_TWO(NemEpdfIsPasswordValid)

#define EXTRACTION(name)                                                            \
  EXPORT int name(const char* filename, const char* password, const char* target) { \
    Note(#name, filename, password);                                                \
    return Note(#name, password, target);                                           \
  }
EXTRACTION(NemEpdfGetEPdf)
EXTRACTION(NemEpdfGetEmbeddedFile)

#define QUESTION(name)                                                                  \
  EXPORT int name(const char* filename, const char* password, char* buffer, int size) { \
    Note(#name, filename, password);                                                    \
    return Answer(buffer, size, "info");                                                \
  }
QUESTION(NemEpdfGetEPdfInfo)
QUESTION(NemEpdfGetEPdfSettings)
