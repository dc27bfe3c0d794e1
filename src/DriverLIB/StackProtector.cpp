// What the compiler's stack protector needs at run time. The tool chain's own library draws its guard from the
// cryptographic provider before DllMain runs, which loads three system libraries and takes longer than all the rest of
// loading us; this one mixes what differs from process to process, as the platform's own start-up code does.
#include <windows.h>

#include <cstdint>

namespace {

// Spreads every bit of the input over all bits of the result.
constexpr uint64_t Mix(uint64_t value) {
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
  return value ^ (value >> 31);
}

constexpr uint64_t kLowestByte = 0xFF;

}  // namespace

extern "C" {

// Compared at the end of each protected function. Not 0 even before it is drawn.
uintptr_t __stack_chk_guard = 0x2B992DDFA232'0000;  // NOLINT(bugprone-reserved-identifier): the compiler's names

// Never returns: the stack is not to be trusted any more, so that neither handlers nor destructors may run.
[[noreturn]] void __stack_chk_fail() {
  asm volatile("int $0x29" : : "c"(FAST_FAIL_STACK_COOKIE_CHECK_FAILURE));  // the platform's fail-fast request
  __builtin_unreachable();
}

// Runs before DllMain or main and returns to code without protection only, since it changes the guard.
[[gnu::constructor, gnu::no_stack_protector]] void DrawStackGuard() {
  FILETIME time{};
  LARGE_INTEGER counter{};
  GetSystemTimeAsFileTime(&time);
  QueryPerformanceCounter(&counter);
  uint64_t guard = Mix(uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
  guard = Mix(guard ^ static_cast<uint64_t>(counter.QuadPart));
  guard = Mix(guard ^ (uint64_t{GetCurrentProcessId()} << 32 | GetCurrentThreadId()));
  guard = Mix(guard ^ reinterpret_cast<uintptr_t>(&time));               // the stack's place
  guard = Mix(guard ^ reinterpret_cast<uintptr_t>(&__stack_chk_guard));  // the module's place
  // A text that overruns its buffer ends with a zero: a zero in the guard's first byte stops one that would copy it.
  __stack_chk_guard = guard & ~kLowestByte;
}
}
