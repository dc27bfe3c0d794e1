// The trace of one thread.
#pragma once

#include <cstdarg>
#include <cstdint>

#include "DriverLIB/AFile.h"
#include "DriverLIB/CUString.h"
#include "DriverLIB/CUStringArray.h"

// Writes "dd.mm.yyyy hh:mm:ss " of the local time, the stamp of traces and logs.
constexpr int kTimeStampSize = 32;  // characters, with the terminator
void FormatTimeStamp(wchar_t (&stamp)[kTimeStampSize]);

// The trace file name with `infix` put before its last dot, also one in a folder's name, or at its end.
CUString InsertInTraceName(const CUString& name, WideView infix);

// A file of 16-bit text without a byte-order mark; each line is its number, the time and a message, and one write.
// Formats are those of the platform's run-time: "%s" is wide text, "%hs" narrow. Nothing is formatted or counted
// while the file is closed.
class ATraceFile : public AFile {
 public:
  ATraceFile() = default;

  // Writes the last line and closes.
  ~ATraceFile() override;

  // Opens the thread's own file, named after `name` with `kind` and `thread` put before its extension, and goes on at
  // its end. An empty or null name means no trace, which is no failure.
  bool OpenTrace(const wchar_t* name, uint32_t thread, wchar_t threadKind);

  // Writes "Trace closed." and closes, if open.
  void CloseTrace();

  // Write a line. Warnings and errors are counted and kept in a summary too.
  void Info(const wchar_t* format, ...);
  void InfoV(const wchar_t* format, va_list arguments);
  void WarningV(const wchar_t* format, va_list arguments);
  void ErrorV(const wchar_t* format, va_list arguments);

  CUString configuredName;  // the name handed in; `fileName` is the one opened
  int32_t lineCount = 0;
  int32_t warningCount = 0;
  int32_t errorCount = 0;
  CUStringArray summary;  // one text for each warning and error since the trace was opened
  uint32_t threadId = 0;
  wchar_t kind = L't';

 private:
  // `counter` is that of the level, null for plain lines.
  void WriteMessage(const wchar_t* format, va_list arguments, int32_t* counter);
  void AddToSummary(const wchar_t* message);

  // Sets number and stamp in front of the message and the line end behind it; the caller leaves room for both.
  void WriteNumbered(wchar_t* message, wchar_t* end);

  bool busy_ = false;  // while a line is being written: a trace call from inside writes nothing
};
