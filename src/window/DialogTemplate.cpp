#include "window/DialogTemplate.h"

#include "DriverLIB/MessageText.h"
#include "DriverLIB/Resources.h"

namespace {

// The head of an extended template: the version 1 and the mark 0xFFFF stand where an old one has its style.
struct ExtendedTemplateHead {
  WORD version;
  WORD signature;
  DWORD helpId;
  DWORD extendedStyle;
  DWORD style;
};

}  // namespace

bool IsRightToLeftLanguage() { return IsRightToLeft(GetUILanguage()); }

void MirrorDialogTemplate(DLGTEMPLATE* dialogTemplate) {
  auto* head = reinterpret_cast<ExtendedTemplateHead*>(dialogTemplate);
  if (head->version == 1 && head->signature == 0xFFFF)
    head->extendedStyle |= WS_EX_LAYOUTRTL;
  else
    dialogTemplate->dwExtendedStyle |= WS_EX_LAYOUTRTL;
}

std::vector<BYTE> LoadDialogTemplate(UINT id) {
  size_t size = 0;
  const auto* bytes = static_cast<const BYTE*>(
      LockResourceLang(static_cast<HMODULE>(ModuleInstance()), MAKEINTRESOURCEW(id), RT_DIALOG, 0, &size));
  if (!bytes || size < sizeof(ExtendedTemplateHead)) return {};
  std::vector<BYTE> copy(bytes, bytes + size);
  if (IsRightToLeftLanguage()) MirrorDialogTemplate(reinterpret_cast<DLGTEMPLATE*>(copy.data()));
  return copy;
}
