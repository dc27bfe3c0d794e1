// The gate over Windows and its C run-time library.
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <memory>

#include "DriverLIB/Platform.h"

namespace platform {

namespace {

HANDLE ToHandle(FileHandle file) { return reinterpret_cast<HANDLE>(file); }

int WideCharacterLength(const wchar_t* wide, int count) {
  return count > 1 && IS_SURROGATE_PAIR(wide[0], wide[1]) ? 2 : 1;
}

struct LocalMemory {
  void operator()(wchar_t* memory) const { ::LocalFree(memory); }
};

// FormatMessageW refuses a buffer that is too small; here the text is cut instead.
int FormatMessageCut(DWORD flags, void* source, DWORD id, DWORD language, wchar_t* buffer, int capacity,
                     va_list* inserts) {
  if (!buffer || capacity <= 0) return 0;
  buffer[0] = L'\0';
  DWORD length = ::FormatMessageW(flags, source, id, language, buffer, static_cast<DWORD>(capacity), inserts);
  if (length > 0) return static_cast<int>(length);
  buffer[0] = L'\0';
  if (const DWORD error = ::GetLastError(); error != ERROR_INSUFFICIENT_BUFFER && error != ERROR_MORE_DATA) return 0;
  wchar_t* memory = nullptr;
  length = ::FormatMessageW(flags | FORMAT_MESSAGE_ALLOCATE_BUFFER, source, id, language,
                            reinterpret_cast<wchar_t*>(&memory), 0, inserts);
  const std::unique_ptr<wchar_t, LocalMemory> whole(memory);
  length = std::min(length, static_cast<DWORD>(capacity - 1));
  std::copy_n(memory, length, buffer);
  buffer[length] = L'\0';
  return static_cast<int>(length);
}

}  // namespace

// --- Text ----------------------------------------------------------------------------------------------------------

int NarrowToWide(const char* narrow, int count, wchar_t* wide) {
  return count > 0 ? ::MultiByteToWideChar(CP_ACP, 0, narrow, count, wide, count) : 0;
}

int WideToNarrow(const wchar_t* wide, int count, char* narrow, int capacity) {
  if (count <= 0 || (narrow && capacity <= 0)) return 0;
  const int written = ::WideCharToMultiByte(CP_ACP, 0, wide, count, narrow, narrow ? capacity : 0, nullptr, nullptr);
  if (!narrow || written > 0) return written;
  int used = 0;
  for (int at = 0; at < count;) {
    const int length = WideCharacterLength(wide + at, count - at);
    const int added = used < capacity ? ::WideCharToMultiByte(CP_ACP, 0, wide + at, length, narrow + used,
                                                              capacity - used, nullptr, nullptr)
                                      : 0;
    if (added == 0) break;
    used += added;
    at += length;
  }
  return used;
}

wchar_t ToUpper(wchar_t character) { return static_cast<wchar_t>(std::towupper(character)); }

wchar_t ToLower(wchar_t character) { return static_cast<wchar_t>(std::towlower(character)); }

bool IsWideSpace(wchar_t character) {
  // The run-time library's two classifications differ in the no-break space; here the narrow one decides.
  return character <= 0xFF ? IsNarrowSpace(character) : std::iswspace(character) != 0;
}

bool IsNarrowSpace(wchar_t character) { return character <= 0xFF && std::isspace(character) != 0; }

// The functions with an underscore are the run-time library's own. mingw's C++ headers give those without one the
// other semantics, in which "%s" in a wide format is narrow. They do not terminate a text that fills the buffer, and
// give up in the middle at a character that has no place in the code page: so all that they leave is zero.
int FormatWide(wchar_t* buffer, size_t capacity, const wchar_t* format, va_list arguments) {
  if (!buffer || capacity == 0) return -1;
  std::fill_n(buffer, capacity, L'\0');
  return ::_vsnwprintf(buffer, capacity - 1, format, arguments);
}

int FormatNarrow(char* buffer, size_t capacity, const char* format, va_list arguments) {
  if (!buffer || capacity == 0) return -1;
  std::fill_n(buffer, capacity, '\0');
  return ::_vsnprintf(buffer, capacity - 1, format, arguments);
}

// --- System errors ---------------------------------------------------------------------------------------------------

uint32_t LastError() { return ::GetLastError(); }

void SetLastError(uint32_t code) { ::SetLastError(code); }

int SystemErrorText(uint32_t code, wchar_t* buffer, int capacity) {
  return FormatMessageCut(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                          MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), buffer, capacity, nullptr);
}

// --- Message table ---------------------------------------------------------------------------------------------------

int FormatMessageText(void* module, uint32_t id, uint16_t language, const uintptr_t* inserts, wchar_t* buffer,
                      int capacity) {
  return FormatMessageCut(FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_ARGUMENT_ARRAY, module, id, language, buffer,
                          capacity, reinterpret_cast<va_list*>(const_cast<uintptr_t*>(inserts)));
}

// --- Thread slots ----------------------------------------------------------------------------------------------------

static_assert(kNoThreadSlot == TLS_OUT_OF_INDEXES);

uint32_t AllocateThreadSlot() { return ::TlsAlloc(); }

bool FreeThreadSlot(uint32_t slot) { return ::TlsFree(slot) != FALSE; }

bool SetThreadSlot(uint32_t slot, void* value) { return ::TlsSetValue(slot, value) != FALSE; }

void* GetThreadSlot(uint32_t slot) { return ::TlsGetValue(slot); }

uint32_t CurrentThreadId() { return ::GetCurrentThreadId(); }

// --- Files -----------------------------------------------------------------------------------------------------------

static_assert(kAccessRead == GENERIC_READ && kAccessWrite == GENERIC_WRITE);
static_assert(kShareRead == FILE_SHARE_READ && kShareWrite == FILE_SHARE_WRITE);
static_assert(kCreateAlways == CREATE_ALWAYS && kOpenExisting == OPEN_EXISTING && kOpenAlways == OPEN_ALWAYS);
static_assert(kSeekSet == FILE_BEGIN && kSeekCurrent == FILE_CURRENT && kSeekEnd == FILE_END);
static_assert(kErrorAlreadyExists == ERROR_ALREADY_EXISTS);

FileHandle OpenFile(const wchar_t* name, uint32_t access, uint32_t share, uint32_t disposition) {
  return reinterpret_cast<FileHandle>(
      ::CreateFileW(name, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool CloseFile(FileHandle file) { return ::CloseHandle(ToHandle(file)) != FALSE; }

bool ReadFile(FileHandle file, void* buffer, uint32_t byteCount, uint32_t& bytesRead) {
  DWORD count = 0;
  const bool done = ::ReadFile(ToHandle(file), buffer, byteCount, &count, nullptr) != FALSE;
  bytesRead = count;
  return done;
}

bool WriteFile(FileHandle file, const void* data, uint32_t byteCount, uint32_t& bytesWritten) {
  DWORD count = 0;
  const bool done = ::WriteFile(ToHandle(file), data, byteCount, &count, nullptr) != FALSE;
  bytesWritten = count;
  return done;
}

int64_t SeekFile(FileHandle file, int64_t offset, uint32_t origin) {
  LARGE_INTEGER distance, position;
  distance.QuadPart = offset;
  return ::SetFilePointerEx(ToHandle(file), distance, &position, origin) ? position.QuadPart : -1;
}

bool GetFileSize(FileHandle file, uint64_t& size) {
  LARGE_INTEGER bytes;
  if (!::GetFileSizeEx(ToHandle(file), &bytes)) return false;
  size = static_cast<uint64_t>(bytes.QuadPart);
  return true;
}

bool PathExists(const wchar_t* name) { return name && ::GetFileAttributesW(name) != INVALID_FILE_ATTRIBUTES; }

bool MakeDirectory(const wchar_t* name) { return ::CreateDirectoryW(name, nullptr) != FALSE; }

int ModuleFileName(void* module, wchar_t* buffer, int capacity) {
  if (!buffer || capacity <= 0) return 0;
  const DWORD length = ::GetModuleFileNameW(static_cast<HMODULE>(module), buffer, static_cast<DWORD>(capacity));
  const int kept = std::min(static_cast<int>(length), capacity - 1);  // a name that was cut fills the buffer
  buffer[kept] = L'\0';
  return kept;
}

// --- Clock -----------------------------------------------------------------------------------------------------------

LocalTime GetLocalTime() {
  SYSTEMTIME time;
  ::GetLocalTime(&time);
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

// --- System version --------------------------------------------------------------------------------------------------

bool GetSystemVersion(SystemVersion& version) {
  using RtlGetVersionFunction = LONG(WINAPI*)(OSVERSIONINFOEXW*);
  const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
  const auto rtlGetVersion =
      ntdll ? reinterpret_cast<RtlGetVersionFunction>(::GetProcAddress(ntdll, "RtlGetVersion")) : nullptr;
  OSVERSIONINFOEXW info = {};
  info.dwOSVersionInfoSize = sizeof info;
  if (!rtlGetVersion || rtlGetVersion(&info) != 0) return false;
  version = {.major = info.dwMajorVersion,
             .minor = info.dwMinorVersion,
             .build = info.dwBuildNumber,
             .platformId = info.dwPlatformId,
             .productType = info.wProductType,
             .suiteMask = info.wSuiteMask,
             .servicePackMajor = info.wServicePackMajor,
             .servicePackMinor = info.wServicePackMinor};
  return true;
}

}  // namespace platform
