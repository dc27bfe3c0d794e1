#include "window/CPropertyPage.h"

#include "DriverLIB/MessageText.h"
#include "window/CPropertySheet.h"
#include "window/DialogTemplate.h"

HPROPSHEETPAGE CPropertyPage::CreatePage(CPropertySheet& sheet) {
  template_ = LoadDialogTemplate(TemplateId());
  if (template_.empty()) return nullptr;
  platformSheet_ = &sheet;
  PROPSHEETPAGEW page{};
  page.dwSize = sizeof page;
  page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE | PSP_HASHELP;
  page.hInstance = static_cast<HINSTANCE>(ModuleInstance());
  page.pResource = reinterpret_cast<const DLGTEMPLATE*>(template_.data());
  page.pszTitle = TabCaption();
  page.pfnDlgProc = PageProcedure;
  page.lParam = reinterpret_cast<LPARAM>(this);
  if (TabIconId()) {
    // The platform's list of the tabs' pictures has this size, whatever the sheet's dpi.
    icon_ =
        static_cast<HICON>(::LoadImageW(page.hInstance, MAKEINTRESOURCEW(TabIconId()), IMAGE_ICON,
                                        ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    page.hIcon = icon_;
    if (icon_) page.dwFlags |= PSP_USEHICON;
  }
  return ::CreatePropertySheetPageW(&page);
}

INT_PTR CALLBACK CPropertyPage::PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* page = reinterpret_cast<CPropertyPage*>(reinterpret_cast<const PROPSHEETPAGEW*>(lParam)->lParam);
    page->BindWindow(window);
  }
  return Process(window, message, wParam, lParam);
}

bool CPropertyPage::IsFromPlatformSheet(const WindowMessage& message) const {
  return message.message == WM_NOTIFY && platformSheet_ && message.Notify().hwndFrom == platformSheet_->Handle();
}

bool CPropertyPage::OnWindowMessage(WindowMessage& message) {
  if (!IsFromPlatformSheet(message)) return CDialog::OnWindowMessage(message);
  switch (message.Notify().code) {
    case PSN_SETACTIVE:
      message.result = OnSetActive() ? 0 : -1;
      return true;
    case PSN_KILLACTIVE:
      message.result = platformSheet_->IsLeaving(*this) || OnKillActive() ? FALSE : TRUE;
      return true;
    case PSN_APPLY: {
      // A window that has gone meanwhile has left empty controls.
      const bool applied = OnApply() && IsWindow();
      platformSheet_->NoteApplied(applied);
      message.result = applied ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
      return true;
    }
    default:
      return CDialog::OnWindowMessage(message);
  }
}

bool CPropertyPage::OnHandlerFailed(WindowMessage& message) {
  if (!IsFromPlatformSheet(message)) return CDialog::OnHandlerFailed(message);
  switch (message.Notify().code) {
    case PSN_KILLACTIVE:
      message.result = TRUE;
      return true;
    case PSN_APPLY:
      platformSheet_->NoteApplied(false);
      message.result = PSNRET_INVALID_NOCHANGEPAGE;
      return true;
    default:
      return false;
  }
}
