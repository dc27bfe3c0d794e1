// A host written in C++. It is compiled with more warnings than the library, as errors, and behind <windows.h> with the
// two macros that Visual C++ has there: the header must bear that.
#include <windows.h>

#include <memory>
#include <span>
#include <stdexcept>
#include <string>
// behind the standard library, which here does not bear them itself
#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))

#include "NemPdfUI.hpp"
#include "NemPdfUI.hpp"  // twice does no harm
#include "product/HeaderCpp.h"

bool RunHostInCpp() {
  nempdf::Dialog first;
  nempdf::Dialog dialog(std::move(first));
  dialog.SetOwner(GetDesktopWindow());
  dialog.Set(nempdf::general::SheetTitle, L"Title");
  dialog.Set(nempdf::Tab::Basic, nempdf::settings::GraphicJpegQuality, 85);
  dialog.Set(nempdf::Tab::Document, nempdf::settings::EncryptUserPassword, std::wstring(L"secret"));
  dialog.SetByName(NEMPDFUI_SETTINGS, L"Author", L"Author");
  dialog.Reset(nempdf::Tab::Document);
  return dialog && !first && dialog.Get(nempdf::general::SheetTitle) == L"Title" &&
         dialog.Get(nempdf::Tab::Basic, nempdf::settings::GraphicJpegQuality) == 85 &&
         dialog.Get(nempdf::Tab::Document, nempdf::settings::EncryptUserPassword).IsEmpty() &&
         dialog.GetByName<nempdf::Kind::Text>(NEMPDFUI_SETTINGS, L"Author") == L"Author";
}
