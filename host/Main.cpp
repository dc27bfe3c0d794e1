// NemPdfUIHost: opens the settings sheet on a settings file and prints what the user changed. The example of a host.
#include <windows.h>

#include <string>

#include "Changes.h"
#include "CommandLine.h"
#include "ConfCheck.h"
#include "DialogSettings.h"
#include "SettingsFile.h"
#include "SystemFiles.h"
#include "Text.h"

namespace host {
namespace {

enum ExitCode { kDone = 0, kFailed = 1, kBadInput = 2 };

constexpr wchar_t kSampleName[] = L"(built-in sample)";

int Complain(ExitCode code, const std::wstring& text) {
  Print(Stream::Error, L"NemPdfUIHost: " + text + L"\n");
  return code;
}

// The sample settings, which the program carries as a resource.
std::string_view SampleFile() {
  const HRSRC resource = FindResourceW(nullptr, L"SAMPLE", RT_RCDATA);
  const HGLOBAL data = LoadResource(nullptr, resource);
  return {static_cast<const char*>(LockResource(data)), SizeofResource(nullptr, resource)};
}

// Reads the settings that the command line asks for. False when something is wrong with them, after saying what.
bool ReadSettings(const CommandLine& line, Settings& settings) {
  const std::wstring name = line.settingsFile.value_or(kSampleName);
  const std::optional<std::string> bytes =
      line.settingsFile ? ReadWholeFile(*line.settingsFile) : std::string(SampleFile());
  if (!bytes) {
    Print(Stream::Error, name + L": cannot be read: " + LastErrorText() + L"\n");
    return false;
  }
  const std::vector<FileProblem> problems = ParseSettings(*bytes, settings);
  for (const FileProblem& problem : problems)
    Print(Stream::Error, name + L":" + FormatNumber(problem.line) + L": " + problem.reason + L"\n");
  return problems.empty();
}

void ApplyOptions(const CommandLine& line, Settings& settings) {
  if (line.offerDocument) Assign(settings, NEMPDFUI_DOCUMENT, L"Used", {.number = 1});
  if (line.printer) Assign(settings, NEMPDFUI_GENERAL, L"PrinterName", {.text = *line.printer});
}

void PrintChanges(const Settings& before, const Settings& after) {
  const std::vector<std::wstring> changes = DescribeChanges(before, after);
  if (changes.empty()) Print(Stream::Output, L"no changes\n");
  for (const std::wstring& change : changes) Print(Stream::Output, change + L"\n");
}

int RunSheet(const CommandLine& line, const Settings& settings) {
  nempdf::Dialog dialog;
  StoreSettings(dialog, settings);
  const Settings before = LoadSettings(dialog);
  if (!dialog.DoModal()) {
    Print(Stream::Output, L"cancelled\n");
    return kDone;
  }
  const Settings after = LoadSettings(dialog);
  PrintChanges(before, after);
  if (line.writeFile && !WriteWholeFile(*line.writeFile, WriteSettings(after)))
    return Complain(kFailed, *line.writeFile + L": cannot be written: " + LastErrorText());
  return kDone;
}

// A file that cannot be read hides none of the others.
int CheckConfFiles(const std::vector<std::wstring>& names) {
  AdminSettings record;
  int code = kDone;
  for (const std::wstring& name : names) {
    const ConfReport report = CheckConfFile(name, record);
    if (!report.readable) {
      Print(Stream::Error, name + L": cannot be read: " + report.reason + L"\n");
      code = kBadInput;
      continue;
    }
    Print(Stream::Output, DescribeReport(name, report));
    if (!report.findings.empty() && code == kDone) code = kFailed;
  }
  return code;
}

int Run(std::span<const wchar_t* const> arguments) {
  const CommandLine line = ParseCommandLine(arguments);
  if (line.help) {
    Print(Stream::Output, UsageText());
    return kDone;
  }
  if (!line.problem.empty()) {
    Complain(kBadInput, line.problem);
    Print(Stream::Error, std::wstring(L"\n") + UsageText());
    return kBadInput;
  }
  if (line.checkConf) return CheckConfFiles(line.confFiles);
  Settings settings;
  if (!ReadSettings(line, settings)) return kBadInput;
  ApplyOptions(line, settings);
  try {
    return RunSheet(line, settings);
  } catch (const nempdf::Error& error) {
    const std::string_view text = error.what();
    return Complain(kFailed, {text.begin(), text.end()});
  }
}

}  // namespace
}  // namespace host

int wmain(int argc, wchar_t** argv) { return host::Run({argv + 1, static_cast<size_t>(argc - 1)}); }
