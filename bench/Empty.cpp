// A library that does nothing and imports from the same system libraries as the product.
#include "window/Windows.h"

extern "C" __declspec(dllexport) const void* const kImports[] = {
    reinterpret_cast<const void*>(&GetSysColor),   reinterpret_cast<const void*>(&BitBlt),
    reinterpret_cast<const void*>(&RegCloseKey),   reinterpret_cast<const void*>(&PropertySheetW),
    reinterpret_cast<const void*>(&IsThemeActive),
};

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, void*) { return TRUE; }
