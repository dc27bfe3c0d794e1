#include "ui/ProbeWord.h"

#ifdef _WIN32

// GCC has no __try, so the guarded read is written out: a function whose unwind data names one range, that of the
// read, with the constant 1 (EXCEPTION_EXECUTE_HANDLER) for its filter and a label to go on at.
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
    .long   1
    .rva    .Lprobe_failed
    .text
    .seh_endproc
)");

extern "C" uint32_t NemPdfProbeWord(const void* address);

uint32_t ProbeWord(const void* address) { return NemPdfProbeWord(address); }

#else

uint32_t ProbeWord(const void* address) { return *static_cast<const uint32_t*>(address); }

#endif
