#pragma once

#include <type_traits>

#include "DriverLIB/CEString.h"
#include "environment/ComponentCall.h"
#include "environment/ExportTable.h"
#include "environment/HDllBase.h"

// A component of the product that is bound at run time.
//
// A derived class holds one pointer for each function that the component exports. Load looks them up in order and
// stops at the first that is missing; the library then stays loaded, and what was found can be used.
class HDll : public HDllBase {
 public:
  // Loads `filename`, or the component's usual file when that is null or empty, from `directory`, which ends in a
  // separator; from where the platform finds it when that is null or empty. Once loaded, the object stays with its
  // file.
  virtual bool Load(int mode, const wchar_t* directory, const wchar_t* filename) = 0;

  // What the component calls itself, and its version. Empty here.
  virtual void GetName(CEString& name) const;
  virtual void GetVersionText(CEString& text) const;

 protected:
  bool LoadFile(const wchar_t* directory, const wchar_t* filename, const wchar_t* defaultFile);

  template <class Index>
  bool BindExports(const typename ExportTable<Index>::Names& names, ExportTable<Index>& exports) {
    auto pointer = exports.begin();
    for (const wchar_t* name : names)
      if (!GetProc(name, *pointer++)) return false;
    return true;
  }

  // Calls one of the component's functions, all of which answer with an int. 0 when it is not there. Whatever the
  // component throws can be caught here; the component has to be loaded until that is done.
  template <class... Arguments>
  int Call(void* function, Arguments... arguments) const {
    return IsLoaded() && function ? CallComponent(function, {AsArgument(arguments)...}) : 0;
  }

 private:
  template <class Argument>
  static uintptr_t AsArgument(Argument argument) {
    if constexpr (std::is_pointer_v<Argument>)
      return reinterpret_cast<uintptr_t>(argument);
    else
      return static_cast<uintptr_t>(argument);
  }
};
