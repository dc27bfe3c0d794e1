#pragma once

// Thrown by the arrays when memory is exhausted, as a pointer to a new object that belongs to whoever catches it.
// Callers do not catch it by type: it ends in the catch-all handlers of the functions that have one.
class NEMPrintMemoryException {};
