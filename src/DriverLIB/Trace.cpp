#include "DriverLIB/Trace.h"

#include <cstdarg>

#include "DriverLIB/CError.h"
#include "DriverLIB/NEMPrintMemoryException.h"

namespace {

using Writer = void (ATraceFile::*)(const wchar_t* format, va_list arguments);

ATraceFile* OpenTraceOf(CError* error) {
  return error && error->trace && error->trace->IsOpen() ? error->trace : nullptr;
}

// Whoever traces tells of a failure that he has just caught, often at a border that nothing may be thrown over: a line
// for which there is no memory is left out.
template <class Step>
void RunForALine(Step step) noexcept {
  try {
    step();
  } catch (NEMPrintMemoryException* exhausted) {
    delete exhausted;
  } catch (...) {
  }
}

void WriteNarrow(Writer writer, const char* format, va_list arguments) {
  ATraceFile* trace = OpenTraceOf(CurrentError());
  if (!trace) return;
  RunForALine([&] {
    CUString wide;
    wide.AssignNarrow(format);
    (trace->*writer)(wide.Text(), arguments);
  });
}

void WriteWide(CError* error, Writer writer, const wchar_t* format, va_list arguments) {
  if (ATraceFile* trace = OpenTraceOf(error)) RunForALine([&] { (trace->*writer)(format, arguments); });
}

}  // namespace

void TraceInfo(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(&ATraceFile::InfoV, format, arguments);
  va_end(arguments);
}

void TraceWarning(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(&ATraceFile::WarningV, format, arguments);
  va_end(arguments);
}

void TraceError(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteNarrow(&ATraceFile::ErrorV, format, arguments);
  va_end(arguments);
}

void TraceInfo(CError* error, const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteWide(error, &ATraceFile::InfoV, format, arguments);
  va_end(arguments);
}

void TraceWarning(CError* error, const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteWide(error, &ATraceFile::WarningV, format, arguments);
  va_end(arguments);
}

void TraceError(CError* error, const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  WriteWide(error, &ATraceFile::ErrorV, format, arguments);
  va_end(arguments);
}
