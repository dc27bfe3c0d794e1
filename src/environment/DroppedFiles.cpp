#include "environment/DroppedFiles.h"

#include <shellapi.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DriverLIB/SystemFunction.h"

namespace {

constexpr wchar_t kLibrary[] = L"shell32.dll";
constexpr UINT kAllFiles = 0xFFFFFFFF;  // asks for their number

struct RecordFreer {
  void operator()(HDROP record) const {
    if (const auto finish = SystemFunction<decltype(::DragFinish)>(kLibrary, "DragFinish")) finish(record);
  }
};

}  // namespace

DroppedFiles TakeDroppedFiles(WPARAM record) {
  DroppedFiles files;
  const std::unique_ptr<std::remove_pointer_t<HDROP>, RecordFreer> drop(reinterpret_cast<HDROP>(record));
  const auto query = SystemFunction<decltype(::DragQueryFileW)>(kLibrary, "DragQueryFileW");
  const auto pointOf = SystemFunction<decltype(::DragQueryPoint)>(kLibrary, "DragQueryPoint");
  if (!drop || !query || !pointOf) return files;
  pointOf(drop.get(), &files.point);
  const UINT count = query(drop.get(), kAllFiles, nullptr, 0);
  for (UINT i = 0; i < count; ++i) {
    std::wstring path(query(drop.get(), i, nullptr, 0), L'\0');
    query(drop.get(), i, path.data(), static_cast<UINT>(path.size()) + 1);
    files.paths.Add(path);
  }
  return files;
}
