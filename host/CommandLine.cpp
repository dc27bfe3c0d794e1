#include "CommandLine.h"

#include <string_view>

namespace host {
namespace {

struct ValueOption {
  std::wstring_view name, value;
  std::optional<std::wstring> CommandLine::*target;
};

constexpr ValueOption kValueOptions[] = {
    {L"--printer", L"a printer's name", &CommandLine::printer},
    {L"--write", L"a file name", &CommandLine::writeFile},
};

bool IsHelp(std::wstring_view argument) { return argument == L"--help" || argument == L"-h" || argument == L"/?"; }

void SetProblem(CommandLine& line, std::wstring problem) {
  if (line.problem.empty()) line.problem = std::move(problem);
}

void TakeOnce(CommandLine& line, std::optional<std::wstring>& target, std::wstring_view argument, const wchar_t* what) {
  if (target) return SetProblem(line, std::wstring(what) + L" is given twice");
  target = argument;
}

const ValueOption* FindValueOption(std::wstring_view argument) {
  for (const ValueOption& option : kValueOptions)
    if (option.name == argument) return &option;
  return nullptr;
}

}  // namespace

CommandLine ParseCommandLine(std::span<const wchar_t* const> arguments) {
  CommandLine line;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::wstring_view argument = arguments[i];
    if (IsHelp(argument)) {
      line.help = true;
    } else if (argument == L"--document") {
      line.offerDocument = true;
    } else if (const ValueOption* option = FindValueOption(argument)) {
      const std::wstring name(option->name);
      const std::wstring_view value = i + 1 < arguments.size() ? arguments[i + 1] : L"";
      if (value.empty() || value.starts_with(L"--")) {
        SetProblem(line, name + L" needs " + std::wstring(option->value));
      } else {
        TakeOnce(line, line.*option->target, value, name.c_str());
        ++i;
      }
    } else if (argument.starts_with(L'-')) {
      SetProblem(line, L"unknown option " + std::wstring(argument));
    } else if (argument.empty()) {
      SetProblem(line, L"an empty file name");
    } else {
      TakeOnce(line, line.settingsFile, argument, L"the settings file");
    }
  }
  return line;
}

const wchar_t* UsageText() {
  return L"Opens the settings sheet of NEM pdf vonder and prints what the user changed.\n"
         L"\n"
         L"  NemPdfUIHost [settings file] [options]\n"
         L"\n"
         L"Without a settings file the built-in sample is taken.\n"
         L"\n"
         L"  --document      offer the tab \"e.pdf Document Properties\" too\n"
         L"  --printer NAME  show the settings of this printer\n"
         L"  --write FILE    after OK, write all settings to FILE, passwords included\n"
         L"  --help          print this text\n"
         L"\n"
         L"Exit code: 0 after OK or Cancel, 1 when something failed, 2 for a bad command line or settings file.\n";
}

}  // namespace host
