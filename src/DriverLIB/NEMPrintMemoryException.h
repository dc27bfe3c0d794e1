#pragma once

// Thrown by the arrays when memory is exhausted, as a pointer to a new object that belongs to whoever catches it.
// Like std::bad_alloc it is caught where the work can go on without the memory (trace, queries, page values) and where
// an exception must not leave (window procedures). The exported functions let it pass.
class NEMPrintMemoryException {};
