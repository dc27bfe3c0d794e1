#include <windows.h>

#include "DriverLIB/UserHive.h"

#include <memory>
#include <new>

#include "DriverLIB/CUString.h"
#include "DriverLIB/Trace.h"

namespace {

constexpr DWORD kSidRevision = 1;
// The longest texts of revision and authority, and of a subauthority, generously.
constexpr uint32_t kSidHeadSize = 56;
constexpr uint32_t kSubAuthoritySize = 24;

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

UniqueHandle OpenToken() {
  HANDLE token = nullptr;
  if (!OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, &token) &&
      !OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
    TraceError("CRegistryEntry::OpenRootKey: OpenThreadToken or OpenProcessToken failed");
    return nullptr;
  }
  return UniqueHandle(token);
}

// A TOKEN_USER with its SID behind it; null after a trace line.
std::unique_ptr<BYTE[]> ReadTokenUser(HANDLE token) {
  DWORD size = 0;
  if (GetTokenInformation(token, TokenUser, nullptr, 0, &size) || GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
    TraceError("CRegistryEntry::OpenRootKey: for Write: OpenThreadToken or OpenProcessToken failed");
    return nullptr;
  }
  std::unique_ptr<BYTE[]> user(new (std::nothrow) BYTE[size]);
  if (!user) {
    TraceError("CRegistryEntry::OpenRootKey: new TOKEN_USER failed");
    return nullptr;
  }
  if (!GetTokenInformation(token, TokenUser, user.get(), size, &size)) {
    TraceError("CRegistryEntry::OpenRootKey: GetTokenInformation failed");
    return nullptr;
  }
  return user;
}

std::unique_ptr<wchar_t[]> TextualSidOf(PSID sid) {
  uint32_t size = 0;
  GetTextualSid(sid, nullptr, size);
  if (size == 0) {
    TraceError("CRegistryEntry::OpenRootKey: GetTextualSid with TextualSidLength failed");
    return nullptr;
  }
  std::unique_ptr<wchar_t[]> text(new (std::nothrow) wchar_t[size]);
  if (!text || !GetTextualSid(sid, text.get(), size)) {
    TraceError("CRegistryEntry::OpenRootKey: GetTextualSid failed");
    return nullptr;
  }
  return text;
}

void AppendAuthority(CUString& text, const SID_IDENTIFIER_AUTHORITY& authority) {
  const BYTE* bytes = authority.Value;
  CUString number;
  if (bytes[0] != 0 || bytes[1] != 0)
    number.Format(L"0x%02hx%02hx%02hx%02hx%02hx%02hx", bytes[0], bytes[1], bytes[2], bytes[3], bytes[4], bytes[5]);
  else
    number.Format(L"%lu", static_cast<DWORD>(bytes[2]) << 24 | bytes[3] << 16 | bytes[4] << 8 | bytes[5]);
  text.Append(number);
}

}  // namespace

HKEY OpenUserHive(REGSAM access) {
  const UniqueHandle token = OpenToken();
  if (!token) return nullptr;
  const std::unique_ptr<BYTE[]> user = ReadTokenUser(token.get());
  if (!user) return nullptr;
  const std::unique_ptr<wchar_t[]> sid = TextualSidOf(reinterpret_cast<const TOKEN_USER*>(user.get())->User.Sid);
  if (!sid) return nullptr;
  HKEY hive = nullptr;
  if (RegOpenKeyExW(HKEY_USERS, sid.get(), 0, access | KEY_WOW64_64KEY, &hive) != ERROR_SUCCESS) {
    TraceError("CRegistryEntry::OpenRootKey: RegOpenKeyEx failed");
    return nullptr;
  }
  return hive;
}

bool GetTextualSid(PSID sid, wchar_t* text, uint32_t& size) {
  if (!IsValidSid(sid)) return false;
  const DWORD subAuthorities = *GetSidSubAuthorityCount(sid);
  const uint32_t needed = kSidHeadSize + kSubAuthoritySize * subAuthorities;
  if (size < needed) {
    size = needed;
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return false;
  }
  CUString result;
  result.Format(L"S-%lu-", kSidRevision);
  AppendAuthority(result, *GetSidIdentifierAuthority(sid));
  for (DWORD i = 0; i < subAuthorities; ++i) {
    CUString number;
    number.Format(L"-%lu", *GetSidSubAuthority(sid, i));
    result.Append(number);
  }
  lstrcpynW(text, result.Text(), static_cast<int>(size));
  return true;
}
