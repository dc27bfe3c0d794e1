// The narrow gate between the window-free code and the operating system.
//
// Everything that can be built without <windows.h> asks the platform for its services through these functions
// alone. PlatformWindows.cpp implements them for the product; PlatformNative.cpp, with NativeFormat and NativeMessages,
// for the sanitized build on Linux, where wchar_t is 16 bits wide as well (-fshort-wchar).
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

namespace platform {

// --- Text ------------------------------------------------------------------------------------------------------

// Converts `count` bytes of the ANSI code page to wide characters. `wide` has room for `count` characters, and no code
// page needs more. Returns the number of characters written; no terminator is added.
int NarrowToWide(const char* narrow, int count, wchar_t* wide);

// Converts `count` wide characters to the ANSI code page. Returns the number of bytes written, at most `capacity`: a
// character that does not fit whole is left out. No terminator is added. With a null `narrow` it returns the number
// of bytes needed.
int WideToNarrow(const wchar_t* wide, int count, char* narrow, int capacity);

// Upper and lower case by the run-time library's rules for the process's locale.
wchar_t ToUpper(wchar_t character);
wchar_t ToLower(wchar_t character);

// White space by the wide and by the narrow classification of the run-time library; they agree up to 0xFF.
bool IsWideSpace(wchar_t character);
bool IsNarrowSpace(wchar_t character);

// Formats as the platform's C run-time does: "%s" in a wide format is wide, "%hs" narrow. Writes at most `capacity`
// characters, terminator included, and always terminates. Returns the number of characters of the result, or a
// negative value when the result was cut.
int FormatWide(wchar_t* buffer, size_t capacity, const wchar_t* format, va_list arguments);
int FormatNarrow(char* buffer, size_t capacity, const char* format, va_list arguments);

// --- System errors ---------------------------------------------------------------------------------------------

constexpr uint32_t kErrorAlreadyExists = 183;

uint32_t LastError();
void SetLastError(uint32_t code);

// The platform's text for a system error in the user's language, at most `capacity` - 1 characters, terminated.
// Returns its length, 0 when there is none.
int SystemErrorText(uint32_t code, wchar_t* buffer, int capacity);

// --- Message table ---------------------------------------------------------------------------------------------

constexpr int kMaxMessageInserts = 9;

// Formats message `id` of `module` in exactly the language `language` with the given inserts, each a text pointer or
// a number in pointer width, always kMaxMessageInserts of them. Returns the length, 0 when there is no such message.
int FormatMessageText(void* module, uint32_t id, uint16_t language, const uintptr_t* inserts, wchar_t* buffer,
                      int capacity);

// --- Thread slots ----------------------------------------------------------------------------------------------

constexpr uint32_t kNoThreadSlot = 0xFFFFFFFF;

uint32_t AllocateThreadSlot();  // kNoThreadSlot when the platform has none left
bool FreeThreadSlot(uint32_t slot);
bool SetThreadSlot(uint32_t slot, void* value);
void* GetThreadSlot(uint32_t slot);
uint32_t CurrentThreadId();

// --- Files -----------------------------------------------------------------------------------------------------

using FileHandle = intptr_t;
constexpr FileHandle kInvalidFile = -1;

constexpr uint32_t kAccessRead = 0x80000000;
constexpr uint32_t kAccessWrite = 0x40000000;
constexpr uint32_t kShareRead = 1;
constexpr uint32_t kShareWrite = 2;
constexpr uint32_t kCreateAlways = 2;
constexpr uint32_t kOpenExisting = 3;
constexpr uint32_t kOpenAlways = 4;

constexpr uint32_t kSeekSet = 0;
constexpr uint32_t kSeekCurrent = 1;
constexpr uint32_t kSeekEnd = 2;

// Access, share and disposition are those of CreateFileW; the attributes are normal. kInvalidFile on failure, with
// the reason in LastError(), as for all functions of this group.
FileHandle OpenFile(const wchar_t* name, uint32_t access, uint32_t share, uint32_t disposition);
bool CloseFile(FileHandle file);
bool ReadFile(FileHandle file, void* buffer, uint32_t byteCount, uint32_t& bytesRead);
bool WriteFile(FileHandle file, const void* data, uint32_t byteCount, uint32_t& bytesWritten);
// The new position from the start of the file, or -1 with the reason in LastError().
int64_t SeekFile(FileHandle file, int64_t offset, uint32_t origin);
bool GetFileSize(FileHandle file, uint64_t& size);
// True for a file or a directory of that name.
bool PathExists(const wchar_t* name);
bool MakeDirectory(const wchar_t* name);  // not named CreateDirectory: that is a macro of <windows.h>
// The module's file name, at most `capacity` - 1 characters, terminated. Returns its length.
int ModuleFileName(void* module, wchar_t* buffer, int capacity);

// --- Clock -----------------------------------------------------------------------------------------------------

struct LocalTime {
  int year, month, day, hour, minute, second;
};
LocalTime GetLocalTime();

// --- System version --------------------------------------------------------------------------------------------

struct SystemVersion {
  uint32_t major, minor, build, platformId, productType, suiteMask, servicePackMajor, servicePackMinor;
};
// The real version, not the one that a program without a manifest is told. False when the query fails.
bool GetSystemVersion(SystemVersion& version);

}  // namespace platform
