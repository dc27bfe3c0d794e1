// Calls into components of the product, which may have been built by another compiler than this library.
#pragma once

#include <array>
#include <cstdint>

// Thrown in place of what a component threw in the manner of another compiler or language: such an exception passes our
// handlers by, catch (...) too. What it held is lost.
struct ComponentException {};

// The arguments of a component's function: whole numbers and pointers, as the calling convention passes them. Those
// that the function does not take do no harm.
using ComponentArguments = std::array<uintptr_t, 4>;

// Calls the function and gives its answer. What this compiler's own code throws in it goes through as it is. Faults of
// the processor are nobody's exceptions: a component that has lost its memory ends the process where it happened, as
// it would without this.
int CallComponent(void* function, const ComponentArguments& arguments);

// Whether an exception of the system with that code was thrown by code of another compiler or language.
bool IsForeignException(uint32_t code);
