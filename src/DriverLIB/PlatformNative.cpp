// The gate over Linux, for the sanitized build of the window-free code. It answers as Windows would, as far as that
// code can see: the ANSI code page is 1252, error numbers are those of Windows, and "\" separates directories.
// NativeMessages.cpp has the message table.
#include "DriverLIB/PlatformNative.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <iterator>
#include <string>
#include <string_view>

#include "DriverLIB/NativeFormat.h"
#include "DriverLIB/Platform.h"

namespace platform {

namespace {

thread_local uint32_t lastError = 0;

// Code page 1252 from 0x80 to 0x9F; everywhere else it is Latin-1.
constexpr wchar_t kCodePage1252[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t ToWide(unsigned char byte) { return byte >= 0x80 && byte <= 0x9F ? kCodePage1252[byte - 0x80] : byte; }

char ToNarrow(wchar_t character) {
  if (character < 0x80 || (character > 0x9F && character <= 0xFF)) return static_cast<char>(character);
  const wchar_t* found = std::find(std::begin(kCodePage1252), std::end(kCodePage1252), character);
  return found == std::end(kCodePage1252) ? '?' : static_cast<char>(0x80 + (found - kCodePage1252));
}

bool doubleByteCodePage = false;
constexpr unsigned kFirstLeadByte = 0x81, kLastLeadByte = 0x9F;
constexpr unsigned kFirstDoubleByteCharacter = 0x4E00;

bool IsLeadByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return doubleByteCodePage && value >= kFirstLeadByte && value <= kLastLeadByte;
}

bool IsDoubleByteCharacter(wchar_t character) {
  return doubleByteCodePage && character >= kFirstDoubleByteCharacter &&
         character < kFirstDoubleByteCharacter + ((kLastLeadByte - kFirstLeadByte + 1) << 8);
}

void AppendUtf8(std::string& text, uint32_t character) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    tail(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | (character >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (character >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

// A file's name for Linux: UTF-8, "/" for "\", and the root in place of a drive.
std::string NativeName(std::wstring_view name) {
  if (name.size() >= 2 && name[1] == L':') name.remove_prefix(2);
  std::string native;
  for (size_t i = 0; i < name.size(); ++i) {
    uint32_t character = name[i] == L'\\' ? L'/' : name[i];
    if ((character & 0xFC00) == 0xD800 && i + 1 < name.size() && (name[i + 1] & 0xFC00) == 0xDC00)
      character = 0x10000 + ((character & 0x3FF) << 10) + (name[++i] & 0x3FFu);
    AppendUtf8(native, character);
  }
  return native;
}

struct ErrorPair {
  int number;     // errno
  uint32_t code;  // of Windows
};
constexpr ErrorPair kErrors[] = {{0, 0},        {ENOENT, 2},      {ENOTDIR, 3},  {EMFILE, 4},
                                 {EACCES, 5},   {EPERM, 5},       {EISDIR, 5},   {EBADF, 6},
                                 {ENOMEM, 8},   {EROFS, 19},      {EINVAL, 87},  {ENOSPC, 112},
                                 {ESPIPE, 132}, {ENOTEMPTY, 145}, {EEXIST, 183}, {ENAMETOOLONG, 206}};
constexpr uint32_t kErrorGeneralFailure = 31;
constexpr uint32_t kErrorNegativeSeek = 131;

// Keeps the reason of a failed call, and passes its success on.
bool Done(bool success) {
  if (success) return true;
  const auto* found = std::ranges::find(kErrors, errno, &ErrorPair::number);
  lastError = found == std::end(kErrors) ? kErrorGeneralFailure : found->code;
  return false;
}

bool Fail(int number) {
  errno = number;
  return Done(false);
}

int CopyCut(std::wstring_view text, wchar_t* buffer, int capacity) {
  if (!buffer || capacity <= 0) return 0;
  const size_t length = text.copy(buffer, static_cast<size_t>(capacity - 1));
  buffer[length] = L'\0';
  return static_cast<int>(length);
}

std::wstring Widen(const char* text) {
  std::wstring wide;
  for (; *text; ++text) wide += ToWide(static_cast<unsigned char>(*text));
  return wide;
}

}  // namespace

// --- Text ----------------------------------------------------------------------------------------------------------

void SetNativeDoubleByteCodePage(bool doubleByte) { doubleByteCodePage = doubleByte; }

int NarrowToWide(const char* narrow, int count, wchar_t* wide) {
  int written = 0;
  for (int i = 0; i < count; ++i, ++written) {
    const auto byte = static_cast<unsigned char>(narrow[i]);
    const bool pair = IsLeadByte(narrow[i]) && i + 1 < count;
    if (pair) ++i;
    wide[written] = pair ? static_cast<wchar_t>(kFirstDoubleByteCharacter + ((byte - kFirstLeadByte) << 8) +
                                                static_cast<unsigned char>(narrow[i]))
                         : ToWide(byte);
  }
  return written;
}

int WideToNarrow(const wchar_t* wide, int count, char* narrow, int capacity) {
  int written = 0;
  for (int i = 0; i < count; ++i) {
    const int length = IsDoubleByteCharacter(wide[i]) ? 2 : 1;
    if (narrow && length > capacity - written) break;
    if (narrow && length == 2) {
      narrow[written] = static_cast<char>(kFirstLeadByte + ((wide[i] - kFirstDoubleByteCharacter) >> 8));
      narrow[written + 1] = static_cast<char>(wide[i] & 0xFF);
    } else if (narrow) {
      narrow[written] = ToNarrow(wide[i]);
    }
    written += length;
  }
  return written;
}

// The run-time library of Windows starts in the "C" locale, where only the Latin letters have two cases.
wchar_t ToUpper(wchar_t character) {
  return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - (L'a' - L'A')) : character;
}

wchar_t ToLower(wchar_t character) {
  return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + (L'a' - L'A')) : character;
}

bool IsWideSpace(wchar_t character) {
  if (character <= 0xFF) return IsNarrowSpace(character);
  return (character >= 0x2000 && character <= 0x200A) ||
         std::wstring_view(L"\x1680\x2028\x2029\x202F\x205F\x3000").find(character) != std::wstring_view::npos;
}

bool IsNarrowSpace(wchar_t character) { return (character >= 0x09 && character <= 0x0D) || character == L' '; }

int FormatWide(wchar_t* buffer, size_t capacity, const wchar_t* format, va_list arguments) {
  if (!buffer || capacity == 0) return -1;
  VariadicArguments values(arguments);
  return FormatText(buffer, capacity, format, values);
}

int FormatNarrow(char* buffer, size_t capacity, const char* format, va_list arguments) {
  if (!buffer || capacity == 0) return -1;
  VariadicArguments values(arguments);
  return FormatText(buffer, capacity, format, values);
}

// --- System errors ---------------------------------------------------------------------------------------------------

uint32_t LastError() { return lastError; }

void SetLastError(uint32_t code) { lastError = code; }

int SystemErrorText(uint32_t code, wchar_t* buffer, int capacity) {
  const auto* found = std::ranges::find(kErrors, code, &ErrorPair::code);
  return CopyCut(found == std::end(kErrors) ? std::wstring() : Widen(std::strerror(found->number)), buffer, capacity);
}

// --- Thread slots ----------------------------------------------------------------------------------------------------

uint32_t AllocateThreadSlot() {
  pthread_key_t key;
  return pthread_key_create(&key, nullptr) == 0 ? key : kNoThreadSlot;
}

bool FreeThreadSlot(uint32_t slot) { return pthread_key_delete(slot) == 0; }

bool SetThreadSlot(uint32_t slot, void* value) { return pthread_setspecific(slot, value) == 0; }

void* GetThreadSlot(uint32_t slot) { return pthread_getspecific(slot); }

uint32_t CurrentThreadId() { return static_cast<uint32_t>(::gettid()); }

// --- Files -----------------------------------------------------------------------------------------------------------

FileHandle OpenFile(const wchar_t* name, uint32_t access, uint32_t /*share*/, uint32_t disposition) {
  int flags = access == kAccessRead ? O_RDONLY : access == kAccessWrite ? O_WRONLY : O_RDWR;
  if (disposition != kOpenExisting) flags |= O_CREAT;
  if (disposition == kCreateAlways) flags |= O_TRUNC;
  const int file = ::open(NativeName(name).c_str(), flags | O_CLOEXEC, 0666);
  if (!Done(file >= 0)) return kInvalidFile;
  struct stat status;
  if (::fstat(file, &status) == 0 && S_ISDIR(status.st_mode)) {
    ::close(file);
    Fail(EISDIR);
    return kInvalidFile;
  }
  return file;
}

bool CloseFile(FileHandle file) { return Done(::close(static_cast<int>(file)) == 0); }

bool ReadFile(FileHandle file, void* buffer, uint32_t byteCount, uint32_t& bytesRead) {
  const ssize_t count = ::read(static_cast<int>(file), buffer, byteCount);
  bytesRead = count < 0 ? 0 : static_cast<uint32_t>(count);
  return Done(count >= 0);
}

bool WriteFile(FileHandle file, const void* data, uint32_t byteCount, uint32_t& bytesWritten) {
  const ssize_t count = ::write(static_cast<int>(file), data, byteCount);
  bytesWritten = count < 0 ? 0 : static_cast<uint32_t>(count);
  return Done(count >= 0);
}

int64_t SeekFile(FileHandle file, int64_t offset, uint32_t origin) {
  const int whence = origin == kSeekSet ? SEEK_SET : origin == kSeekCurrent ? SEEK_CUR : SEEK_END;
  const int64_t position = ::lseek(static_cast<int>(file), offset, whence);
  if (!Done(position >= 0) && errno == EINVAL) lastError = kErrorNegativeSeek;
  return position;
}

bool GetFileSize(FileHandle file, uint64_t& size) {
  struct stat status;
  if (!Done(::fstat(static_cast<int>(file), &status) == 0)) return false;
  size = static_cast<uint64_t>(status.st_size);
  return true;
}

bool PathExists(const wchar_t* name) {
  struct stat status;
  return name && Done(::stat(NativeName(name).c_str(), &status) == 0);
}

bool MakeDirectory(const wchar_t* name) {
  const std::string native = NativeName(name);
  return native == "/" ? Fail(EACCES) : Done(::mkdir(native.c_str(), 0777) == 0);
}

int ModuleFileName(void*, wchar_t* buffer, int capacity) {
  char name[4096];
  const ssize_t length = ::readlink("/proc/self/exe", name, sizeof name - 1);
  if (!Done(length >= 0)) return CopyCut({}, buffer, capacity);
  name[length] = '\0';
  return CopyCut(Widen(name), buffer, capacity);
}

// --- Clock -----------------------------------------------------------------------------------------------------------

LocalTime GetLocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm time = {};
  ::localtime_r(&now, &time);
  return {time.tm_year + 1900, time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec};
}

// --- System version --------------------------------------------------------------------------------------------------

bool GetSystemVersion(SystemVersion& version) {
  utsname system;
  if (!Done(::uname(&system) == 0)) return false;
  version = {};
  return std::sscanf(system.release, "%u.%u.%u", &version.major, &version.minor, &version.build) >= 2;
}

}  // namespace platform
