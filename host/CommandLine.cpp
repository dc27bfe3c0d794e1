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

// --check-conf is a task of its own: nothing else goes with it.
void CheckConfOption(CommandLine& line) {
  if (line.offerDocument || line.printer || line.writeFile || line.settingsFile)
    SetProblem(line, L"--check-conf takes configuration files and nothing else");
  if (line.confFiles.empty()) SetProblem(line, L"--check-conf needs a file name");
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
    } else if (argument == L"--check-conf") {
      line.checkConf = true;
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
    } else if (line.checkConf) {
      line.confFiles.emplace_back(argument);
    } else {
      TakeOnce(line, line.settingsFile, argument, L"the settings file");
    }
  }
  if (line.checkConf) CheckConfOption(line);
  return line;
}

const wchar_t* UsageText() {
  return L"Opens the settings sheet of NEM pdf vonder and prints what the user changed.\n"
         L"\n"
         L"  NemPdfUIHost [settings file] [options]\n"
         L"  NemPdfUIHost --check-conf FILE...\n"
         L"\n"
         L"Without a settings file the built-in sample is taken.\n"
         L"\n"
         L"  --document      offer the tab \"e.pdf Document Properties\" too\n"
         L"  --printer NAME  show the settings of this printer\n"
         L"  --write FILE    after OK, write all settings to FILE, passwords included\n"
         L"  --help          print this text\n"
         L"\n"
         L"Exit code: 0 after OK or Cancel, 1 when something failed, 2 for a bad command line or settings file.\n"
         L"\n"
         L"With --check-conf no sheet is shown. The files are read as the administrator's configuration files of one\n"
         L"printer, in the order given: the printer's own file first, then NEMpdf.conf. All that is wrong in them is\n"
         L"printed. Exit code: 0 when all is well, 1 when not, 2 when a file cannot be read.\n";
}

}  // namespace host
