#pragma once

#include "environment/HDll.h"
#include "environment/PropertyTable.h"

// What all components of the office module have in common. Texts are 8-bit, sizes count bytes. An operation answers 0
// when the component fails, or has no such function, or is not loaded.
class TavexDll : public HDll {
 public:
  using ErrorCallback = void (*)(const char* text, void* userData);
  static constexpr int kErrorTextSize = 256;  // of FormatComponentError, in bytes

  virtual int SetProperty(const char* name, const char* value) = 0;
  virtual int GetProperty(const char* name, char* buffer, int size) = 0;
  virtual int GetLastError(uint32_t* code) = 0;
  virtual int GetLastErrorText(char* buffer, int size) = 0;
  virtual int GetErrorText(uint32_t code, char* buffer, int size) = 0;
  virtual const PropertyTableRow* GetPropertyTable() const = 0;  // null when the component has none
  virtual void GetShortName(CEString& name) const = 0;
  virtual int GetVersion(uint32_t* version) const = 0;

  // "2.10.4", or "n/a" when the component tells no version.
  void GetVersionText(CEString& text) const override;

  // Tells `callback`, which may be null, why the last call failed: by the system's error if there was one, else by
  // the component's. The component's code, with `base` added, goes into `code`. Always returns 0, so that a failure
  // can travel up.
  int FormatComponentError(uint32_t* code, ErrorCallback callback, void* userData, uint32_t base);

 private:
  CEString ComponentErrorText(uint32_t* code, uint32_t base);
};
