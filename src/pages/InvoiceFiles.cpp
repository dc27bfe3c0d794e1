#include "pages/InvoiceFiles.h"

namespace {

constexpr wchar_t kExtension[] = L"xml";
constexpr wchar_t kManual[] = L"NEMtagwell.pdf";

constexpr wchar_t ToSmallAscii(wchar_t character) {
  return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

}  // namespace

bool IsXmlFilename(WideView path) {
  const size_t point = path.rfind(L'.');
  if (point == WideView::npos) return false;
  CUString extension(path.substr(point + 1));
  for (int i = 0; i < extension.Length(); ++i) *(extension.Buffer() + i) = ToSmallAscii(extension[i]);
  return extension == kExtension;
}

CUString MarkedContentManual(WideView installFolder) {
  CUString path(installFolder);
  path += kManual;
  path.ReplaceStr(L"\\", L"\\\\");
  return path;
}
