// Runs the test program itself a second time, for tests that need a fresh process: another language, another dpi, a
// hang or a crash on purpose.
#pragma once

#include <map>
#include <string>

struct ProcessResult {
  unsigned long exitCode = 0;
  std::string output;  // standard output and error together, lines end in LF
};

// `arguments` is the command line behind the program's name; `environment` is added to the present one.
ProcessResult RunSelf(const std::wstring& arguments, const std::map<std::wstring, std::wstring>& environment = {});

// The same with another program, of which `program` is the path.
ProcessResult RunProgram(const std::wstring& program, const std::wstring& arguments,
                         const std::map<std::wstring, std::wstring>& environment = {});

// The value of an environment variable, empty if it is not set.
std::wstring EnvironmentValue(const wchar_t* name);
