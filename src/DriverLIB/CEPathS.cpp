#include "DriverLIB/CEPathS.h"

#include <algorithm>

#include "DriverLIB/CError.h"
#include "DriverLIB/ErrorCodes.h"
#include "DriverLIB/Platform.h"
#include "DriverLIB/Trace.h"

namespace {

constexpr int kModulePathCapacity = 260;
constexpr size_t kMaxPartLength = 255;  // of a directory, a name and an extension

struct PathParts {
  std::wstring_view drive, directory, name, extension;
};

PathParts SplitPath(std::wstring_view path) {
  PathParts parts;
  if (path.size() >= 2 && path[1] == L':') {
    parts.drive = path.substr(0, 2);
    path.remove_prefix(2);
  }
  const size_t directoryLength = path.find_last_of(L"\\/") + 1;  // 0 when there is no separator
  parts.directory = path.substr(0, directoryLength);
  path.remove_prefix(directoryLength);
  const size_t nameLength = std::min(path.rfind(L'.'), path.size());
  parts.name = path.substr(0, nameLength);
  parts.extension = path.substr(nameLength);
  if (std::max({parts.directory.size(), parts.name.size(), parts.extension.size()}) > kMaxPartLength) return {};
  return parts;
}

}  // namespace

CEPathString CEPathString::ModulePath(void* module) {
  wchar_t name[kModulePathCapacity];
  const int length = platform::ModuleFileName(module, name, kModulePathCapacity);
  return CEPathString(std::wstring_view(name, static_cast<size_t>(length)));
}

CUString CEPathString::GetDrive() const { return SplitPath(View()).drive; }

CUString CEPathString::GetDirectory() const { return SplitPath(View()).directory; }

CUString CEPathString::GetFileName() const { return SplitPath(View()).name; }

CUString CEPathString::GetExtension() const { return SplitPath(View()).extension; }

CUString CEPathString::GetDriveAndDirectory() const {
  const PathParts parts = SplitPath(View());
  return CUString(parts.drive) + parts.directory;
}

CUString CEPathString::GetNameAndExtension() const {
  const PathParts parts = SplitPath(View());
  return CUString(parts.name) + parts.extension;
}

void CEPathString::SetFileNameAndExt(WideView name) { *this = GetDriveAndDirectory() + name; }

int CEPathString::ReportFailure(const wchar_t* format, const wchar_t* argument) {
  constexpr const char* kSourceName = "..\\..\\DriverLIB\\CEPathS";
  constexpr int kSourceLine = 1065;  // fixed, so that the trace reads alike in every release

  lastSystemError_ = platform::LastError();
  if (!format || !*format) return 0;
  if (CError* error = CurrentError()) {
    SetError(error, kErrorPathOperation, kSourceName, kSourceLine, nullptr);
    TraceInfo(error, format, argument ? argument : L"", L"unbekannt");
  }
  return 0;
}
