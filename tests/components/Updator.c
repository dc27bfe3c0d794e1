/* The updater. What it finds is fixed when it is built. */
#include "Component.h"

#include <wchar.h>

static int NoteWide(const char* name, void* job, const wchar_t* first, const wchar_t* second) {
  char line[256];
  snprintf(line, sizeof line, "%ls=%ls", first, second);
  return Note(name, JobName(job), line);
}

static int NoteFlag(const char* name, void* job, int flag) {
  return Note(name, JobName(job), flag == 1 ? "1" : "another");
}

static int AnswerWide(wchar_t* buffer, int size, const wchar_t* text) {
  for (int i = 0; i < size; ++i) {
    buffer[i] = text[i];
    if (!text[i]) return 1;
  }
  return 1; /* too long: no terminator */
}

/* A text that goes on behind the end of every buffer of the library. */
static inline int AnswerLong(wchar_t* buffer, int size) {
  wchar_t text[2 * 1024];
  for (int i = 0; i < 2 * 1024; ++i) text[i] = L'x';
  return AnswerWide(buffer, size, text);
}

EXPORT int NemUpdatorJobCreate(void** job) { return CreateJob(job); }

EXPORT int NemUpdatorJobFree(void** job) {
  FreeJob(job);
#if defined(FREE_RAISES)
  RAISE_FOREIGN();
#endif
  return Note("NemUpdatorJobFree", 0, 0);
}

EXPORT int NemUpdatorJobGetPropertyW(void* job, const wchar_t* name, wchar_t* buffer, int size) {
  NoteWide("NemUpdatorJobGetPropertyW", job, name, L"");
  if (!wcscmp(name, L"missing")) return 0;
  if (!wcscmp(name, L"long")) return AnswerLong(buffer, size);
#if defined(ANSWERS_NOTHING)
  return 0;
#elif defined(IS_NEWER)
  return AnswerWide(buffer, size, L"2.11.0");
#else
  return AnswerWide(buffer, size, L"");
#endif
}

EXPORT int NemUpdatorJobSetPropertyW(void* job, const wchar_t* name, const wchar_t* value) {
  return NoteWide("NemUpdatorJobSetPropertyW", job, name, value);
}

EXPORT int NemUpdatorJobGetLastErrorTextW(void* job, wchar_t* buffer, int size) {
  NoteWide("NemUpdatorJobGetLastErrorTextW", job, L"", L"");
#if defined(HAS_NO_ERROR_TEXT)
  AnswerWide(buffer, size, L"not to be seen");
  return 0;
#elif defined(HAS_LONG_ERROR_TEXT)
  return AnswerLong(buffer, size);
#else
  return AnswerWide(buffer, size, L"no road to the server");
#endif
}

EXPORT int NemUpdatorJobSearchForUpdate(void* job, int flag) {
  NoteFlag("NemUpdatorJobSearchForUpdate", job, flag);
#if defined(SEARCH_RAISES)
  RAISE_FOREIGN();
#endif
#if defined(PUMPS_MESSAGES)
  MSG message;
  while (PeekMessageW(&message, 0, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
#endif
#if defined(SEARCH_FAILS)
  return 0;
#else
  return 7; /* anything but 0 */
#endif
}

#if !defined(LACKS_LAST_EXPORT)
EXPORT int NemUpdatorJobDownloadUpdate(void* job, int flag) {
  NoteFlag("NemUpdatorJobDownloadUpdate", job, flag);
  return 0; /* the user has stopped it */
}
#endif
