/* What another component needs to be loaded at all. */
__declspec(dllexport) int NemTestHelp(void) { return 1; }
