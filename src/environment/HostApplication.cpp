#include "environment/HostApplication.h"

#include <windows.h>

#include <memory>

#include "DriverLIB/CEPathS.h"
#include "DriverLIB/SystemFunction.h"
#include "DriverLIB/Trace.h"
#include "environment/HostApplicationText.h"

namespace {

constexpr wchar_t kVersionLibrary[] = L"version.dll";
constexpr wchar_t kWordFileName[] = L"WINWORD.EXE";

}  // namespace

CUString GetFileVersion(const wchar_t* path) try {
  static const auto sizeOf =
      SystemFunction<decltype(::GetFileVersionInfoSizeW)>(kVersionLibrary, "GetFileVersionInfoSizeW");
  static const auto read = SystemFunction<decltype(::GetFileVersionInfoW)>(kVersionLibrary, "GetFileVersionInfoW");
  static const auto query = SystemFunction<decltype(::VerQueryValueW)>(kVersionLibrary, "VerQueryValueW");
  if (!sizeOf || !read || !query || !path || !*path) return {};

  DWORD unused = 0;
  const DWORD size = sizeOf(path, &unused);
  if (size == 0) return {};
  const auto record = std::make_unique<BYTE[]>(size);
  void* value = nullptr;
  UINT valueSize = 0;
  if (!read(path, 0, size, record.get()) || !query(record.get(), L"\\", &value, &valueSize) ||
      valueSize < sizeof(VS_FIXEDFILEINFO))
    return {};
  const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(value);
  CUString version;
  version.Format(L"%d.%d.%d.%d", HIWORD(info.dwFileVersionMS), LOWORD(info.dwFileVersionMS),
                 HIWORD(info.dwFileVersionLS), LOWORD(info.dwFileVersionLS));
  return version;
} catch (...) {
  TraceError("%hs: caught throwed exception", "GetFileVersion");
  return {};
}

CUString GetHostFileName() { return CEPathString::ModulePath(nullptr).GetNameAndExtension(); }

bool IsWordHost() { return GetHostFileName().EqualsNoCase(kWordFileName); }

CUString GetHostApplicationName(bool friendly) {
  const CEPathString program = CEPathString::ModulePath(nullptr);
  return HostApplicationText(program.GetNameAndExtension(), GetFileVersion(program.Text()), friendly);
}
