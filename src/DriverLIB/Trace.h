// Lines for the calling thread's trace. All are silent no-ops, and format nothing, while the thread has no error state
// or no trace is open. None of them throws: a line that there is no memory for is left out.
//
// A narrow format is converted to wide and then acts as a wide one: "%s" in it expects wide text, "%hs" narrow.
#pragma once

class CError;

void TraceInfo(const char* format, ...);
void TraceWarning(const char* format, ...);
void TraceError(const char* format, ...);

// For callers that hold the thread's error state already; null is none.
void TraceInfo(CError* error, const wchar_t* format, ...);
void TraceWarning(CError* error, const wchar_t* format, ...);
void TraceError(CError* error, const wchar_t* format, ...);
