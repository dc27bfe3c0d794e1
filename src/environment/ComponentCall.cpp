#include "environment/ComponentCall.h"

#include <windows.h>

namespace {

// The three kinds of exceptions of GCC, whose own handlers take them.
constexpr uint32_t kGccThrow = 0x20474343, kGccUnwind = 0x21474343, kGccForced = 0x22474343;

// The parts of an exception's code.
constexpr uint32_t kSeverityShift = 30, kSeveritySuccess = 0, kSeverityInformational = 1;
constexpr uint32_t kCustomerBit = 0x20000000;
constexpr uint32_t kFacilityMask = 0x0FFF0000;  // 0: the system's kernel

}  // namespace

// The names of most compilers' exceptions have the customer's bit (0xE06D7363, 0xE0434352), some are no status at all
// (0x0EEDFADE, or the number of an error), and that of a function bound late has a facility (0xC06D007F). What is left
// are faults of the processor and of the heap (0xC0000005) and notes to a debugger (0x40010006, 0x406D1388).
bool IsForeignException(uint32_t code) {
  if (code == kGccThrow || code == kGccUnwind || code == kGccForced) return false;
  if (code & kCustomerBit) return true;
  const uint32_t severity = code >> kSeverityShift;
  if (severity == kSeverityInformational) return false;
  return severity == kSeveritySuccess || (code & kFacilityMask) != 0;
}

// The filter of the call below. It runs on top of the frames of what was thrown, before any of them is taken down.
extern "C" LONG NemPdfFilterComponent(const EXCEPTION_POINTERS* exception, void*) {
  return IsForeignException(exception->ExceptionRecord->ExceptionCode) ? EXCEPTION_EXECUTE_HANDLER
                                                                       : EXCEPTION_CONTINUE_SEARCH;
}

// GCC has no __try, so the guarded call is written out: a function whose unwind data names one range, that of the call,
// with its filter and a label to go on at. The range ends behind an instruction of its own, since the place of a call
// that threw is the one behind it. The address of the flag waits on the stack, behind the 32 bytes that the called
// function may use.
asm(R"(
    .text
    .p2align 4
    .globl  NemPdfCallGuarded
    .def    NemPdfCallGuarded; .scl 2; .type 32; .endef
    .seh_proc NemPdfCallGuarded
NemPdfCallGuarded:
    subq    $56, %rsp
    .seh_stackalloc 56
    .seh_endprologue
    movq    %r8, 40(%rsp)
    movq    %rcx, %rax
    movq    %rdx, %r10
    movq    (%r10), %rcx
    movq    8(%r10), %rdx
    movq    16(%r10), %r8
    movq    24(%r10), %r9
.Lcomponent_call:
    call    *%rax
    nop
.Lcomponent_done:
    addq    $56, %rsp
    ret
.Lcomponent_threw:
    movq    40(%rsp), %rax
    movb    $1, (%rax)
    xorl    %eax, %eax
    addq    $56, %rsp
    ret
    .seh_handler __C_specific_handler, @except
    .seh_handlerdata
    .long   1
    .rva    .Lcomponent_call
    .rva    .Lcomponent_done
    .rva    NemPdfFilterComponent
    .rva    .Lcomponent_threw
    .text
    .seh_endproc
)");

// Sets `threw` when the function ended by a foreign exception, and leaves it alone otherwise.
extern "C" int NemPdfCallGuarded(void* function, const uintptr_t* arguments, bool* threw);

int CallComponent(void* function, const ComponentArguments& arguments) {
  bool threw = false;
  const int answer = NemPdfCallGuarded(function, arguments.data(), &threw);
  if (threw) throw ComponentException{};
  return answer;
}
