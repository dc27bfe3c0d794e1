// The error state of a thread.
#pragma once

#include <cstdint>

#include "DriverLIB/ATraceFile.h"
#include "DriverLIB/CThreadVar.h"
#include "DriverLIB/CUString.h"
#include "DriverLIB/ErrorCodes.h"

// One object for each host thread that enters the library, with the thread's trace file. The first error wins and
// stays until it is reported; later ones show in the trace only.
class CError {
 public:
  // Opens the trace file derived from `traceFileName`, unless that is empty. A trace that cannot be opened leaves
  // kErrorTraceNotOpened in `code`. `kind` is the letter that the thread's file name carries.
  CError(const wchar_t* componentName, const wchar_t* versionText, uint32_t versionNumber, uint32_t threadId,
         wchar_t kind, const wchar_t* traceFileName);
  CError(const CError&) = delete;
  CError& operator=(const CError&) = delete;

  uint32_t code = 0;            // the current error, 0 for none
  CUString detail;              // a text that belongs to it
  uint32_t detailValue = 0;     // a number that belongs to it
  ATraceFile* trace = nullptr;  // null only while the object is being built
  uint32_t lastCode = 0;        // what ReportError last took away

 private:
  ATraceFile traceFile_;
};

// The calling thread's error state; null before the library has met the thread. CError objects are made and destroyed
// by InitThreadState and FreeThreadState alone.
extern CThreadVar<CError> threadError;
inline CError* CurrentError() { return threadError.Get(); }

// Raises error `code`, unless an earlier one stands, and traces it with the source file's name, its line and the
// optional detail. Does nothing without an error state. Always 0, so that a caller can return it.
int SetError(CError* error, uint32_t code, const char* sourceName, int line, const wchar_t* detail = nullptr);

// Hands the current error over: it moves to `lastCode`, and the state is free for the next. Always 0.
int ReportError(CError* error);

// Clears everything, the detail's text and buffer included.
void ResetError(CError* error);
