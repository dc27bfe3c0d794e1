#include "Component.h"

EXPORT int NemPrGetVersion(uint32_t* version) {
#ifdef MINOR_0
  *version = 0x2000004;
#else
  *version = 0x2100004;
#endif
  return 1;
}
EXPORT int NemPrGetVersionText(char* buffer, int size) { return Answer(buffer, size, "2.10.4 raw"); }

COMMON_FUNCTIONS(NemPr)

NOTED_ONE(NemPrPrint)
EXPORT int NemPrShowPrintDialog(void* owner) { return Note("NemPrShowPrintDialog", owner ? "owner" : 0, 0); }

#if !defined(MINOR_0) || defined(HAS_SECOND_FORM)
NOTED_ONE(NemPrLoad2)
NOTED_ONE(NemPrSave2)
NOTED_ONE(NemPrPrint2)
#endif

#ifndef MINOR_0
NOTED_ONE(NemPrLoad)
NOTED_ONE(NemPrSave)
EXPORT int NemPrShowPrintSetupDialog(void* owner) { return Note("NemPrShowPrintSetupDialog", owner ? "owner" : 0, 0); }
NOTED_ONE(NemMailSend)
#endif

EXPORT int NemPrJobCreate(void** job) { return CreateJob(job); }
EXPORT int NemPrJobFree(void** job) {
#ifdef JOB_FREE_RAISES
  RAISE_FOREIGN();
#endif
  FreeJob(job);
  return 1;
}

#define JOB_FUNCTION(name) \
  EXPORT int name(void* job, const char* filename) { return Note(#name, JobName(job), filename); }
JOB_FUNCTION(NemPrJobLoad)
JOB_FUNCTION(NemPrJobSave)
JOB_FUNCTION(NemPrJobPrint)
JOB_FUNCTION(NemPrJobConvert)
JOB_FUNCTION(NemPrJobMailSend)

EXPORT int NemPrJobSetProperty(void* job, const char* name, const char* value) {
  Note("NemPrJobSetProperty", JobName(job), name);
  return Note("NemPrJobSetProperty", name, value);
}
EXPORT int NemPrJobGetProperty(void* job, const char* name, char* buffer, int size) {
  return Answer(buffer, size, job == &theJob && !strcmp(name, "asked") ? "of the job" : "");
}
EXPORT int NemPrJobGetError(void* job, uint32_t* code) {
  *code = job == &theJob ? 77 : 0;
  return 1;
}
EXPORT int NemPrJobGetErrorText(void* job, char* buffer, int size) {
  return Answer(buffer, size, job == &theJob ? "error of the job" : "");
}
