#include <windows.h>

#include "ui/ProbeWord.h"

namespace {

// Where a record of a failed access has its address.
constexpr int kAddressParameter = 1;

// The system takes a page's guard away before it tells of the access. It may be the guard below the stack of another
// thread, which could not grow any more without it, and would end the process there without a word.
void PutGuardBack(void* address) {
  MEMORY_BASIC_INFORMATION page;
  DWORD previous;
  if (::VirtualQuery(address, &page, sizeof page)) ::VirtualProtect(address, 1, page.Protect | PAGE_GUARD, &previous);
}

}  // namespace

// The filter of the read below: whatever is no failed access is not ours.
extern "C" LONG NemPdfFilterProbe(const EXCEPTION_POINTERS* exception, void*) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  switch (record.ExceptionCode) {
    case static_cast<DWORD>(STATUS_GUARD_PAGE_VIOLATION):
      PutGuardBack(reinterpret_cast<void*>(record.ExceptionInformation[kAddressParameter]));
      return EXCEPTION_EXECUTE_HANDLER;
    case static_cast<DWORD>(EXCEPTION_ACCESS_VIOLATION):
    case static_cast<DWORD>(EXCEPTION_IN_PAGE_ERROR):
    case static_cast<DWORD>(EXCEPTION_DATATYPE_MISALIGNMENT):
      return EXCEPTION_EXECUTE_HANDLER;
    default:
      return EXCEPTION_CONTINUE_SEARCH;
  }
}

// GCC has no __try, so the guarded read is written out: a function whose unwind data names one range, that of the
// read, with its filter and a label to go on at.
asm(R"(
    .text
    .p2align 4
    .globl  NemPdfProbeWord
    .def    NemPdfProbeWord; .scl 2; .type 32; .endef
    .seh_proc NemPdfProbeWord
NemPdfProbeWord:
    subq    $40, %rsp
    .seh_stackalloc 40
    .seh_endprologue
.Lprobe_read:
    movl    (%rcx), %eax
.Lprobe_done:
    nop
    addq    $40, %rsp
    ret
.Lprobe_failed:
    xorl    %eax, %eax
    addq    $40, %rsp
    ret
    .seh_handler __C_specific_handler, @except
    .seh_handlerdata
    .long   1
    .rva    .Lprobe_read
    .rva    .Lprobe_done
    .rva    NemPdfFilterProbe
    .rva    .Lprobe_failed
    .text
    .seh_endproc
)");

extern "C" uint32_t NemPdfProbeWord(const void* address);

uint32_t ProbeWord(const void* address) { return NemPdfProbeWord(address); }
