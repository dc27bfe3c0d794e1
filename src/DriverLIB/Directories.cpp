#include "DriverLIB/Directories.h"

#include <algorithm>

#include "DriverLIB/CUString.h"
#include "DriverLIB/Platform.h"
#include "DriverLIB/TextAlgorithms.h"

bool CreateDirectoryTree(WideView path) {
  CUString prefix;
  prefix.EnsureCapacity(text::CheckedLength(path.size() + 1, CUString::kMaxLength));
  std::wstring_view rest = path;
  if (const size_t root = rest.find(L":\\"); root != std::wstring_view::npos) {
    prefix = rest.substr(0, root + 2);
    rest.remove_prefix(root + 2);
  }
  while (!rest.empty()) {
    const size_t length = std::min(rest.find(L'\\'), rest.size());
    if (length > 0) {
      prefix.Append(rest.substr(0, length));
      prefix.Append(L"\\");
      if (!platform::MakeDirectory(prefix.Text()) && platform::LastError() != platform::kErrorAlreadyExists)
        return false;
    }
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  return true;
}
