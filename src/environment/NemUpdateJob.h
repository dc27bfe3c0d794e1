#pragma once

#include <cstdint>

#include "environment/ExportTable.h"
#include "environment/HDll.h"

// One job of the updater, the component that searches for a newer version of the product, downloads and installs it.
// Loading creates the job; the destructor frees it and then the component. Unlike the components of the office module
// the updater takes wide texts. An operation is false when the updater fails or is not loaded.
class NemUpdateJob : public HDll {
 public:
  ~NemUpdateJob() override;

  // `flag` has no meaning yet. Without a directory nothing is loaded.
  bool Load(int flag, const wchar_t* directory, const wchar_t* filename) override;

  bool SetProperty(const wchar_t* name, const wchar_t* value);
  // As decimal text.
  bool SetLongProperty(const wchar_t* name, int32_t value);
  // At most 1023 characters; `value` stays as it is on a failure.
  bool GetProperty(const wchar_t* name, CUString& value);

  bool SearchForUpdate(int flag);
  // Hands over to the updater's own dialog, which may close the windows of this process.
  bool DownloadUpdate(int flag);

  // Why the last operation failed, in the updater's words; empty when it has none.
  CUString GetLastErrorText();

 private:
  enum class Export {
    kCreate,
    kFree,
    kGetProperty,
    kSetProperty,
    kGetLastErrorText,
    kSearchForUpdate,
    kDownloadUpdate,
    kCount
  };
  static const ExportTable<Export>::Names kNames;

  ExportTable<Export> exports_;
  void* job_ = nullptr;
};
