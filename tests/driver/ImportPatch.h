// Puts a function of the test in place of one that the product imports.
#pragma once

// In every loaded module that is not part of the system, lets the import `function` of `library` ("user32.dll") lead
// to `replacement`. Modules that already do are left as they are, so the call may be repeated after more libraries
// have been loaded. A replacement must not call the function by name, because its own module is changed too: it
// takes the address from RealImport. Returns the number of places changed.
int PatchImport(const char* library, const char* function, void* replacement);

// Undoes that: the imports lead to the library again.
int RestoreImport(const char* library, const char* function);

// The library's own function, whatever has been patched.
void* RealImport(const char* library, const char* function);

template <typename Function>
Function* RealFunction(const char* library, const char* function, Function*) {
  return reinterpret_cast<Function*>(RealImport(library, function));
}
