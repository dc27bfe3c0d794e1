#include "environment/HDll.h"

void HDll::GetName(CEString& name) const { name.Assign(nullptr); }

void HDll::GetVersionText(CEString& text) const { text.Assign(nullptr); }

bool HDll::LoadFile(const wchar_t* directory, const wchar_t* filename, const wchar_t* defaultFile) {
  CUString file(directory);
  file += filename && *filename ? filename : defaultFile;
  return LoadLibrary(file.Text());
}
