#include "HostProcess.h"

#include <prsht.h>

#include <gtest/gtest.h>

namespace {

constexpr DWORD kPatienceMilliseconds = 30000;

HWND FindSheet(DWORD process) {
  HWND sheet = nullptr;
  while ((sheet = FindWindowExW(nullptr, sheet, L"#32770", nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(sheet, &owner);
    if (owner == process && IsWindowVisible(sheet)) return sheet;
  }
  return nullptr;
}

}  // namespace

HostRun RunProgram(const std::wstring& program, const std::wstring& arguments,
                   const std::function<void(HWND)>& withSheet) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  // New names for each run: a process that the system starts beside the host may hold its files open.
  static int runCount = 0;
  const std::wstring number = host::FormatNumber(GetCurrentProcessId()) + L"-" + host::FormatNumber(++runCount);
  const CTempFile outputFile(L"nempdf-host-output-" + number + L".txt");
  const CTempFile errorFile(L"nempdf-host-errors-" + number + L".txt");
  const auto create = [&](const CTempFile& file) {
    const HANDLE handle =
        CreateFileW(file.Name().c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
    EXPECT_NE(handle, INVALID_HANDLE_VALUE) << GetLastError();
    return handle;
  };
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = CreateFileW(L"NUL", GENERIC_READ, 0, &inherited, OPEN_EXISTING, 0, nullptr);
  startup.hStdOutput = create(outputFile);
  startup.hStdError = create(errorFile);

  HostRun run;
  std::wstring commandLine = L"\"" + program + L"\" " + arguments;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
    ADD_FAILURE() << "the host cannot be started: error " << GetLastError();
    return run;
  }
  const DWORD begin = GetTickCount();
  while (WaitForSingleObject(process.hProcess, 10) == WAIT_TIMEOUT) {
    if (const HWND sheet = run.opened ? nullptr : FindSheet(process.dwProcessId)) {
      run.opened = true;
      if (withSheet) withSheet(sheet);
    }
    if (GetTickCount() - begin > kPatienceMilliseconds) {
      ADD_FAILURE() << "the host does not end";
      TerminateProcess(process.hProcess, 99);
      WaitForSingleObject(process.hProcess, INFINITE);
    }
  }
  GetExitCodeProcess(process.hProcess, &run.exitCode);
  for (HANDLE handle : {process.hThread, process.hProcess, startup.hStdInput, startup.hStdOutput, startup.hStdError})
    CloseHandle(handle);
  run.output = outputFile.Content().value_or("(none)");
  run.errors = errorFile.Content().value_or("(none)");
  return run;
}

void PressOk(HWND sheet) { PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0); }
void PressCancel(HWND sheet) { PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0); }
