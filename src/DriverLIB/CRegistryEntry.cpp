#include <windows.h>

#include "DriverLIB/CRegistryEntry.h"

#include <cstdarg>
#include <cwchar>
#include <utility>

#include "DriverLIB/MessageText.h"
#include "DriverLIB/Trace.h"
#include "DriverLIB/UserHive.h"

namespace {

struct RootName {
  HKEY root;
  const wchar_t* name;
};

const RootName kRootNames[] = {
    {HKEY_CLASSES_ROOT, L"HKEY_CLASSES_ROOT"},
    {HKEY_CURRENT_USER, L"HKEY_CURRENT_USER"},
    {HKEY_LOCAL_MACHINE, L"HKEY_LOCAL_MACHINE"},
    {HKEY_USERS, L"HKEY_USERS"},
    {HKEY_PERFORMANCE_DATA, L"HKEY_PERFORMANCE_DATA"},
    {HKEY_CURRENT_CONFIG, L"HKEY_CURRENT_CONFIG"},
    {HKEY_DYN_DATA, L"HKEY_DYN_DATA"},
};

}  // namespace

// Opens the key for one operation, unless it is open in the right way already, and closes what it opened.
struct CRegistryEntry::OpenScope {
  OpenScope(CRegistryEntry& entry, bool forWrite)
      : entry_(entry), opened_(!entry.openKey_ || entry.openForWrite_ != forWrite) {
    ready = !opened_ || entry.Open(forWrite);
  }
  ~OpenScope() {
    if (opened_) entry_.CloseKeys();
  }
  OpenScope(const OpenScope&) = delete;
  OpenScope& operator=(const OpenScope&) = delete;

  bool ready;

 private:
  CRegistryEntry& entry_;
  bool opened_;
};

CRegistryEntry::CRegistryEntry(const wchar_t* key, const wchar_t* value, const wchar_t* defaultText)
    : keyName(key), valueName(value), defaultData(defaultText) {}

CRegistryEntry::~CRegistryEntry() { CloseKeys(); }

void CRegistryEntry::GetKeyName(CUString& name) const {
  const wchar_t* text = keyName.Text();
  if (text[0] == L'\\') text += keyName.Length() > 2 && text[1] == L'\\' ? 2 : 1;
  if (!company.IsEmpty() && *text)
    name.Format(L"Software\\%s\\%s", company.Text(), text);
  else
    name.Assign(text);
}

CRegistryEntry& CRegistryEntry::SetRoot(HKEY root) {
  CloseKeys();
  rootKey_ = root;
  return *this;
}

void CRegistryEntry::GetFullPathText(CUString& text) const {
  text.Assign(nullptr);
  for (const RootName& root : kRootNames)
    if (root.root == rootKey_) text.Assign(root.name);
  for (const CUString* part : {&keyName, &valueName}) {
    if (part->IsEmpty()) continue;
    text.Append(L"\\");
    text.Append(part->Text());
  }
}

bool CRegistryEntry::Open(bool forWrite, REGSAM access) {
  CloseKeys();
  if (rootKey_ == HKEY_CURRENT_USER) userRootKey_ = OpenUserHive(forWrite ? KEY_WRITE : KEY_READ);
  CUString key;
  GetKeyName(key);
  if (access == 0) access = forWrite ? KEY_WRITE : KEY_QUERY_VALUE;
  access |= KEY_WOW64_64KEY;
  const LSTATUS result = forWrite ? RegCreateKeyExW(EffectiveRoot(), key.Text(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                    access, nullptr, &openKey_, nullptr)
                                  : RegOpenKeyExW(EffectiveRoot(), key.Text(), 0, access, &openKey_);
  if (result == ERROR_SUCCESS) {
    openForWrite_ = forWrite;
    return openKey_ != nullptr;
  }

  openKey_ = nullptr;
  CUString error;
  GetSystemErrorText(error, result);
  if (forWrite) {
    TraceError("CRegistryEntry::Open(): for Write: %s not found, Error: %s", key.Text(), error.Text());
    return SetStatus(result, L"Open for Write: %s not found, Error: %s", key.Text(), error.Text());
  }
  TraceError("CRegistryEntry::Open(): for Read: %s not found, Error: %s", key.Text(), error.Text());
  return SetStatus(result, L"Open for Read: %s not found, Error: %s", key.Text(), error.Text());
}

void CRegistryEntry::CloseKeys() {
  for (HKEY* key : {&openKey_, &userRootKey_})
    if (*key) RegCloseKey(std::exchange(*key, nullptr));
  openForWrite_ = false;
}

void CRegistryEntry::Read(const wchar_t* defaultText, int index, bool binary) {
  ClearStatus();
  const CUString fallback(defaultText ? defaultText : defaultData.Text());
  const OpenScope scope(*this, false);
  if (!scope.ready) {
    data = fallback;
    return;
  }
  const LSTATUS result = index < 0 ? ReadNamed(binary) : ReadAt(index, binary);
  if (result == ERROR_SUCCESS) return;

  data = fallback;
  CUString key;
  GetKeyName(key);
  CUString error;
  GetSystemErrorText(error, result);
  SetStatus(result, L"%s\\%s not found, using default %s: %s", key.Text(), valueName.Text(), data.Text(), error.Text());
  TraceError("CRegistryEntry::Read(): %s\\%s not found, using default %s: %s", key.Text(), valueName.Text(),
             data.Text(), error.Text());
}

LSTATUS CRegistryEntry::ReadNamed(bool binary) {
  DWORD size = 0;
  LSTATUS result = RegQueryValueExW(openKey_, valueName.Text(), nullptr, nullptr, nullptr, &size);
  if (result != ERROR_SUCCESS) return result;
  if (size == 0) return ERROR_INVALID_FUNCTION;
  data.EnsureCapacity(static_cast<int>(size));
  result =
      RegQueryValueExW(openKey_, valueName.Text(), nullptr, nullptr, reinterpret_cast<BYTE*>(data.Buffer()), &size);
  if (result == ERROR_SUCCESS) TakeData(size, binary);
  return result;
}

LSTATUS CRegistryEntry::ReadAt(int index, bool binary) {
  DWORD count = 0;
  DWORD maxName = 0;
  DWORD maxData = 0;
  LSTATUS result = RegQueryInfoKeyW(openKey_, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, &maxName,
                                    &maxData, nullptr, nullptr);
  if (result != ERROR_SUCCESS) return result;
  if (static_cast<DWORD>(index) >= count) {
    FreeNameAndData();
    return ERROR_SUCCESS;
  }
  DWORD nameLength = maxName + 1;
  DWORD dataSize = maxData + 2;
  valueName.EnsureCapacity(static_cast<int>(nameLength));
  data.EnsureCapacity(static_cast<int>(dataSize));
  result = RegEnumValueW(openKey_, index, valueName.Buffer(), &nameLength, nullptr, nullptr,
                         reinterpret_cast<BYTE*>(data.Buffer()), &dataSize);
  if (result != ERROR_SUCCESS) {
    FreeNameAndData();
    return result;
  }
  valueName.SetLength(static_cast<int>(nameLength));
  TakeData(dataSize, binary);
  return ERROR_SUCCESS;
}

void CRegistryEntry::TakeData(uint32_t byteCount, bool binary) {
  data.SetLength(static_cast<int>(binary ? byteCount : byteCount / sizeof(wchar_t)));
}

void CRegistryEntry::FreeNameAndData() {
  valueName = CUString();
  data = CUString();
}

const wchar_t* CRegistryEntry::ReadString(int index) {
  Read(nullptr, index, false);
  return data.Buffer();
}

const wchar_t* CRegistryEntry::ReadName(int index) {
  Read(nullptr, index, false);
  return valueName.Buffer();
}

int32_t CRegistryEntry::ReadLong(int index) {
  Read(nullptr, index, false);
  return static_cast<int32_t>(std::wcstol(data.Text(), nullptr, 10));
}

bool CRegistryEntry::Write(bool binary) {
  ClearStatus();
  if (!IsComplete()) return false;
  const OpenScope scope(*this, true);
  if (!scope.ready) return false;
  const DWORD size = static_cast<DWORD>(data.Length()) * (binary ? 1 : sizeof(wchar_t));
  const LSTATUS result = RegSetValueExW(openKey_, valueName.Text(), 0, binary ? REG_BINARY : REG_SZ,
                                        reinterpret_cast<const BYTE*>(data.Text()), size);
  return result == ERROR_SUCCESS || SetValueStatus(result, L"%s\\%s not found: %s");
}

bool CRegistryEntry::WriteString(const wchar_t* text) {
  data.Assign(text);
  return Write(false);
}

bool CRegistryEntry::WriteLong(int32_t number) {
  CUString text;
  text.Format(L"%d", number);
  return WriteString(text.Text());
}

bool CRegistryEntry::DeleteValue() {
  ClearStatus();
  if (!IsComplete()) return false;
  const OpenScope scope(*this, true);
  if (!scope.ready) return false;
  const LSTATUS result = RegDeleteValueW(openKey_, valueName.Text());
  return result == ERROR_SUCCESS || SetValueStatus(result, L"%s\\%s not deleted: %s");
}

bool CRegistryEntry::KeyExists() { return openKey_ || OpenScope(*this, false).ready; }

uint32_t CRegistryEntry::GetValueCount() {
  if (!OpenForReading() && !Open(false)) return 0;
  DWORD count = 0;
  const LSTATUS result = RegQueryInfoKeyW(openKey_, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count,
                                          nullptr, nullptr, nullptr, nullptr);
  return result == ERROR_SUCCESS ? count : 0;
}

void CRegistryEntry::GetValueDataAt(CUString& text, int index) {
  // Moved out and in again: a text without a buffer comes back without one.
  CUString savedName(valueName);
  CUString savedData(std::move(data));
  text.Assign(nullptr);
  if (KeyExists()) text.Assign(ReadString(index));
  valueName = std::move(savedName);
  data = std::move(savedData);
}

void CRegistryEntry::GetValueNameAt(CUString& text, int index) {
  CUString savedName(std::move(valueName));
  CUString savedData(data);
  text.Assign(nullptr);
  if (KeyExists()) text.Assign(ReadName(index));
  valueName = std::move(savedName);
  data = std::move(savedData);
}

void CRegistryEntry::ClearStatus() {
  status = ERROR_SUCCESS;
  statusText.Assign(L"Success");
}

bool CRegistryEntry::SetStatus(uint32_t code, const wchar_t* format, ...) {
  status = code;
  va_list arguments;
  va_start(arguments, format);
  statusText.FormatV(format, arguments);
  va_end(arguments);
  return false;
}

// The failures of writing and deleting name key, value and system text.
bool CRegistryEntry::SetValueStatus(LSTATUS code, const wchar_t* format) {
  CUString key;
  GetKeyName(key);
  CUString error;
  GetSystemErrorText(error, code);
  return SetStatus(code, format, key.Text(), valueName.Text(), error.Text());
}
