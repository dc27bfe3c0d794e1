// Stands in for the administrator's tool: appends its command line to the file that NEMPDF_ADMIN_RECORD names, as the
// last thing that it does.
#include <windows.h>

#include <cstdio>

int wmain() {
  wchar_t record[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(L"NEMPDF_ADMIN_RECORD", record, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return 2;
  FILE* const file = _wfopen(record, L"ab");
  if (!file) return 3;
  const wchar_t* const commandLine = GetCommandLineW();
  std::fwrite(commandLine, sizeof(wchar_t), wcslen(commandLine), file);
  return std::fclose(file);
}
