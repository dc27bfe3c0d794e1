#include "pages/BookmarkNames.h"

#include <string>
#include <unordered_set>

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

namespace {

// Equal for names that differ in the case of their ASCII letters alone.
std::wstring KeyOf(const CUString& name) {
  std::wstring key(name.View());
  for (wchar_t& character : key)
    if (character >= L'A' && character <= L'Z') character += L'a' - L'A';
  return key;
}

}  // namespace

CUString FreeBookmarkName(const std::vector<CUString>& taken) {
  std::unordered_set<std::wstring> keys;
  for (const CUString& name : taken) keys.insert(KeyOf(name));
  for (int number = 1;; ++number) {
    CUString name = MessageText(MSG_BOOKMARK_NEW_NAME, number);
    if (!keys.contains(KeyOf(name))) return name;
  }
}
