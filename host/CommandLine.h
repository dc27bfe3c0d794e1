// The host's command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace host {

struct CommandLine {
  bool help = false;
  bool offerDocument = false;                // --document
  std::optional<std::wstring> printer;       // --printer NAME
  std::optional<std::wstring> writeFile;     // --write FILE
  std::optional<std::wstring> settingsFile;  // the one argument without dashes
  bool checkConf = false;                    // --check-conf
  std::vector<std::wstring> confFiles;       // the arguments without dashes behind it
  std::wstring problem;                      // why the line cannot be obeyed; empty for a good one
};

// `arguments` are those behind the program's name. --help wins over everything, problems included.
CommandLine ParseCommandLine(std::span<const wchar_t* const> arguments);

// How to call the program, some lines of text that end with a line feed.
const wchar_t* UsageText();

}  // namespace host
