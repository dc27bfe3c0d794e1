#include "NemPdfUI.hpp"

#include <cstdio>

int main() try {
  nempdf::Dialog dialog;
  dialog.Set(nempdf::Tab::Document, nempdf::settings::Title, L"Annual report");
  if (dialog.Get(nempdf::Tab::Document, nempdf::settings::Title) != L"Annual report") return 1;
  std::printf("NemPdfUI %s from C++20\n", nempdf::VersionText(nempdf::LibraryVersion()).c_str());
} catch (const nempdf::Error& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
