#include "environment/NemUpdateJob.h"

#include "DriverLIB/Trace.h"

namespace {

constexpr int kTextSize = 1024;  // of all texts that the updater gives, in characters

}  // namespace

constexpr ExportTable<NemUpdateJob::Export>::Names NemUpdateJob::kNames = {
    L"NemUpdatorJobCreate",
    L"NemUpdatorJobFree",
    L"NemUpdatorJobGetPropertyW",
    L"NemUpdatorJobSetPropertyW",
    L"NemUpdatorJobGetLastErrorTextW",
    L"NemUpdatorJobSearchForUpdate",
    L"NemUpdatorJobDownloadUpdate",
};

NemUpdateJob::~NemUpdateJob() {
  try {
    if (job_) Call(exports_[Export::kFree], &job_);
  } catch (...) {
    TraceError("~NemUpdateJob: exception of the updater");
  }
}

bool NemUpdateJob::Load(int, const wchar_t* directory, const wchar_t* filename) {
  if (IsLoaded()) return true;
  // The updater has no place but the product's folder.
  if (!directory || !*directory) {
    lastError = ERROR_PATH_NOT_FOUND;
    return false;
  }
  return LoadFile(directory, filename, L"NemUpdator64.dll") && BindExports(kNames, exports_) &&
         Call(exports_[Export::kCreate], &job_) && job_;
}

bool NemUpdateJob::SetProperty(const wchar_t* name, const wchar_t* value) {
  return job_ && Call(exports_[Export::kSetProperty], job_, name, value);
}

bool NemUpdateJob::SetLongProperty(const wchar_t* name, int32_t value) {
  CUString text;
  text.Format(L"%d", value);
  return SetProperty(name, text.Text());
}

bool NemUpdateJob::GetProperty(const wchar_t* name, CUString& value) {
  wchar_t text[kTextSize] = {};
  if (!job_ || !Call(exports_[Export::kGetProperty], job_, name, text, kTextSize)) return false;
  text[kTextSize - 1] = L'\0';
  value = text;
  return true;
}

bool NemUpdateJob::SearchForUpdate(int flag) { return job_ && Call(exports_[Export::kSearchForUpdate], job_, flag); }

bool NemUpdateJob::DownloadUpdate(int flag) { return job_ && Call(exports_[Export::kDownloadUpdate], job_, flag); }

CUString NemUpdateJob::GetLastErrorText() {
  wchar_t text[kTextSize] = {};
  if (!job_ || !Call(exports_[Export::kGetLastErrorText], job_, text, kTextSize)) return {};
  text[kTextSize - 1] = L'\0';
  return CUString(text);
}
