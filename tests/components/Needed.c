/* What another component needs to be loaded at all. */
__declspec(dllexport) int NemTestNeeded(void) { return 1; }
