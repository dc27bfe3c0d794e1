#include "driver/SelfProcess.h"

#include <windows.h>

#include <vector>

namespace {

// The child inherits the environment of this process, so the additions stand here while it is started.
class AddedEnvironment {
 public:
  explicit AddedEnvironment(const std::map<std::wstring, std::wstring>& values) {
    for (const auto& [name, value] : values) {
      previous_[name] = EnvironmentValue(name.c_str());
      SetEnvironmentVariableW(name.c_str(), value.c_str());
    }
  }
  ~AddedEnvironment() {
    for (const auto& [name, value] : previous_)
      SetEnvironmentVariableW(name.c_str(), value.empty() ? nullptr : value.c_str());
  }
  AddedEnvironment(const AddedEnvironment&) = delete;
  AddedEnvironment& operator=(const AddedEnvironment&) = delete;

 private:
  std::map<std::wstring, std::wstring> previous_;
};

std::string ReadAll(HANDLE pipe) {
  std::string output;
  char buffer[4096];
  DWORD count = 0;
  while (ReadFile(pipe, buffer, sizeof buffer, &count, nullptr) && count > 0) output.append(buffer, count);
  std::erase(output, '\r');
  return output;
}

}  // namespace

std::wstring EnvironmentValue(const wchar_t* name) {
  wchar_t value[1024] = L"";
  const DWORD length = GetEnvironmentVariableW(name, value, ARRAYSIZE(value));
  return length < ARRAYSIZE(value) ? std::wstring(value, length) : std::wstring();
}

ProcessResult RunSelf(const std::wstring& arguments, const std::map<std::wstring, std::wstring>& environment) {
  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  return RunProgram(program, arguments, environment);
}

ProcessResult RunProgram(const std::wstring& program, const std::wstring& arguments,
                         const std::map<std::wstring, std::wstring>& environment) {
  const AddedEnvironment added(environment);
  std::wstring commandLine = L"\"" + program + L"\" " + arguments;

  SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
  HANDLE readEnd = nullptr, writeEnd = nullptr;
  CreatePipe(&readEnd, &writeEnd, &inheritable, 0);
  SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = writeEnd;
  startup.hStdError = writeEnd;
  PROCESS_INFORMATION process = {};
  ProcessResult result;
  const BOOL started = CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                      &startup, &process);
  CloseHandle(writeEnd);
  if (started) {
    result.output = ReadAll(readEnd);
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &result.exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  } else {
    result.exitCode = GetLastError();
    result.output = "The process could not be started.";
  }
  CloseHandle(readEnd);
  return result;
}
