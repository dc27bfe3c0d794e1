#include "environment/TavexDll.h"

#include "environment/ComponentText.h"

void TavexDll::GetVersionText(CEString& text) const {
  uint32_t version = 0;
  text = GetVersion(&version) ? ComponentVersionText(version) : CEString("n/a");
}

int TavexDll::FormatComponentError(uint32_t* code, ErrorCallback callback, void* userData, uint32_t base) {
  const CEString text = ComponentErrorText(code, base);
  if (callback) callback(text.Text(), userData);
  return 0;
}

CEString TavexDll::ComponentErrorText(uint32_t* code, uint32_t base) {
  CEString text;
  if (lastError) {
    text.Format("Systemfehler %ld.\n", lastError);
    return text;
  }
  uint32_t componentCode = 0;
  if (!GetLastError(&componentCode)) return "Unbekannter Fehler. Fehlernummer unbekannt.\n";
  componentCode += base;
  if (code) *code = componentCode;
  char description[kErrorTextSize] = {};
  if (GetErrorText(componentCode, description, kErrorTextSize)) {
    description[kErrorTextSize - 1] = '\0';
    text.Format(" %d: %s\n", componentCode, description);
  } else {
    text.Format("Unbekannter Fehler %d.\n", componentCode);
  }
  return text;
}
