/* A host written in C. It is compiled as strict C90, with warnings as errors: the header asks for nothing more. */
#include "NemPdfUI.h"
#include "NemPdfUI.h" /* twice does no harm */

#include "HeaderC.h"

/* Goes the way of a host, but for the sheet. Returns the number of the step that failed, 0 if none did. */
int RunHostInC(void) {
  NemPdfUIHandle dialog = NULL;
  uint32_t version = 0;
  int32_t quality = 85;
  wchar_t title[16];

  if (NemPdfUIGetVersion(&version) != 1 || version != NEMPDFUI_VERSION) return 1;
  if (NemPdfUICreateDialog(&dialog) != 1 || dialog == NULL) return 2;
  if (NemPdfUISetPropertyA(dialog, NEMPDFUI_SETTINGS, "GraphicJpegQuality", &quality) != 1) return 3;
  quality = 0;
  if (NemPdfUIGetPropertyW(dialog, NEMPDFUI_SETTINGS, L"GraphicJpegQuality", &quality, sizeof quality) != 1) return 4;
  if (quality != 85) return 5;
  if (NemPdfUISetPropertyW(dialog, NEMPDFUI_GENERAL, L"SheetTitle", L"Title") != 1) return 6;
  if (NemPdfUIGetPropertyA(dialog, NEMPDFUI_GENERAL, "SheetTitle", title, 16) != 1) return 7;
  if (wcscmp(title, L"Title") != 0) return 8;
  if (NemPdfUIFreeDialog(&dialog) != 1 || dialog != NULL) return 9;
  if (NemPdfUISetPropertyA(dialog, NEMPDFUI_DOCUMENT, "Scale", &quality) != NEMPDFUI_BAD_HANDLE) return 10;
  return 0;
}

/* The two functions with a dialog, for their types: these are theirs. */
extern int (*const doModalInC)(NemPdfUIHandle);
extern int (*const showVersionInC)(void);
int (*const doModalInC)(NemPdfUIHandle) = NemPdfUIDoModal;
int (*const showVersionInC)(void) = NemPdfUIShowVersion;
