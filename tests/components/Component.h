/* What the sibling libraries of the tests share. Each notes the calls that it gets, one line each, in the exported
   array `calls`. */
#ifndef COMPONENT_H_
#define COMPONENT_H_

#include <stdint.h>
#include <stdio.h>
#include <string.h>
#include <windows.h>

#define EXPORT __declspec(dllexport)

EXPORT char calls[4096];

/* Throws as code of another compiler does: by an exception of the system, under that compiler's own code. */
#define RAISE_FOREIGN() RaiseException(0xE06D7363, EXCEPTION_NONCONTINUABLE, 0, NULL)

static inline int Note(const char* name, const char* first, const char* second) {
  char line[256];
  snprintf(line, sizeof line, "%s(%s,%s)\n", name, first ? first : "", second ? second : "");
  strncat(calls, line, sizeof calls - strlen(calls) - 1);
  return 1;
}

static inline int Answer(char* buffer, int size, const char* text) {
  snprintf(buffer, (size_t)size, "%s", text);
  return 1;
}

static int theJob;
EXPORT int openJobs; /* created and not yet freed */

static inline const char* JobName(const void* job) { return job == &theJob ? "job" : "none"; }

static inline int CreateJob(void** job) {
#if defined(CREATE_FAILS)
  *job = 0;
  return 0;
#elif defined(CREATE_GIVES_NO_HANDLE)
  *job = 0;
  return 1;
#else
  *job = &theJob;
  ++openJobs;
  return 1;
#endif
}

static inline void FreeJob(void** job) {
  openJobs -= *job == &theJob;
  *job = 0;
}

/* An exported function that takes one text, or two. */
#define NOTED_ONE(name) \
  EXPORT int name(const char* text) { return Note(#name, text, 0); }
#define NOTED_TWO(name) \
  EXPORT int name(const char* first, const char* second) { return Note(#name, first, second); }

/* Functions that every component has, by the prefix of its exports. GetProperty answers with the property's name,
   the last error is 5, and only the error 5 has a text. */
#define COMMON_FUNCTIONS(prefix)                                                                                  \
  EXPORT int prefix##SetProperty(const char* name, const char* value) {                                           \
    return Note(#prefix "SetProperty", name, value);                                                              \
  }                                                                                                               \
  EXPORT int prefix##GetProperty(const char* name, char* buffer, int size) { return Answer(buffer, size, name); } \
  EXPORT int prefix##GetLastError(uint32_t* code) {                                                               \
    *code = 5;                                                                                                    \
    return 1;                                                                                                     \
  }                                                                                                               \
  EXPORT int prefix##GetLastErrorText(char* buffer, int size) { return Answer(buffer, size, "last"); }            \
  EXPORT int prefix##GetErrorText(uint32_t code, char* buffer, int size) {                                        \
    return code == 5 ? Answer(buffer, size, "fifth") : 0;                                                         \
  }

#endif
