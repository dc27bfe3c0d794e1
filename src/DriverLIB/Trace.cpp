#include "DriverLIB/Trace.h"

#include <cstdarg>

#include "DriverLIB/CError.h"

namespace {

using Writer = void (ATraceFile::*)(const wchar_t* format, va_list arguments);

ATraceFile* OpenTraceOf(CError* error) {
  return error && error->trace && error->trace->IsOpen() ? error->trace : nullptr;
}

void WriteNarrow(ATraceFile& trace, Writer writer, const char* format, va_list arguments) {
  CUString wide;
  wide.AssignNarrow(format);
  (trace.*writer)(wide.Text(), arguments);
}

}  // namespace

void TraceInfo(const char* format, ...) {
  ATraceFile* trace = OpenTraceOf(CurrentError());
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(*trace, &ATraceFile::InfoV, format, arguments);
  va_end(arguments);
}

void TraceWarning(const char* format, ...) {
  ATraceFile* trace = OpenTraceOf(CurrentError());
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(*trace, &ATraceFile::WarningV, format, arguments);
  va_end(arguments);
}

void TraceError(const char* format, ...) {
  ATraceFile* trace = OpenTraceOf(CurrentError());
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(*trace, &ATraceFile::ErrorV, format, arguments);
  va_end(arguments);
}

void TraceInfo(CError* error, const wchar_t* format, ...) {
  ATraceFile* trace = OpenTraceOf(error);
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  trace->InfoV(format, arguments);
  va_end(arguments);
}

void TraceWarning(CError* error, const wchar_t* format, ...) {
  ATraceFile* trace = OpenTraceOf(error);
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  trace->WarningV(format, arguments);
  va_end(arguments);
}

void TraceError(CError* error, const wchar_t* format, ...) {
  ATraceFile* trace = OpenTraceOf(error);
  if (!trace) return;
  va_list arguments;
  va_start(arguments, format);
  trace->ErrorV(format, arguments);
  va_end(arguments);
}
