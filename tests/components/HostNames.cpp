// Writes how the library calls its host, plain and friendly, into the file that the command line names.
#include <windows.h>

#include <cstdio>

#include "DriverLIB/CUString.h"
#include "environment/HostApplication.h"

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) return 2;
  FILE* const file = _wfopen(argv[1], L"wb");
  if (!file) return 3;
  for (const bool friendly : {false, true}) {
    const CUString name = GetHostApplicationName(friendly) + L"\n";
    std::fwrite(name.Text(), sizeof(wchar_t), static_cast<size_t>(name.Length()), file);
  }
  return std::fclose(file);
}
