#include "DriverTestSheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>

#include "driver/DialogTemplate.h"

namespace driver_test {
namespace {

constexpr UINT kPosted = WM_APP + 20;
constexpr UINT_PTR kSlideTimer = 7;
constexpr int kSlideSteps = 4;

TestSheet& Owner(HWND dialog) { return *reinterpret_cast<TestSheet*>(GetWindowLongPtrW(dialog, GWLP_USERDATA)); }

const DialogTemplate& ChildTemplate() {
  static const DialogTemplate dialog = [] {
    DialogTemplate page(WS_CHILD | DS_CONTROL, {250, 180}, L"Child", WS_EX_CONTROLPARENT);
    page.Add(L"Button", kCheck, At(7, 7, 60, 10), L"Chec&k", BS_AUTOCHECKBOX | WS_TABSTOP);
    page.Add(L"Static", -1, At(7, 24, 40, 8), L"&Name:");
    page.Add(L"Edit", kEdit, At(50, 21, 60, 14), L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL);
    page.Add(L"ComboBox", kDropList, At(7, 40, 60, 100), L"", CBS_DROPDOWNLIST | WS_TABSTOP | WS_VSCROLL);
    page.Add(L"ComboBox", kDropDown, At(70, 40, 60, 60), L"", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_TABSTOP | WS_VSCROLL);
    page.Add(TRACKBAR_CLASSW, kSlider, At(7, 60, 80, 15), L"", WS_TABSTOP);
    page.Add(L"ScrollBar", kScrollBar, At(90, 60, 80, 10), L"", SBS_HORZ);
    page.Add(L"ListBox", kListBox, At(7, 80, 60, 30), L"", LBS_NOTIFY | WS_BORDER | WS_VSCROLL | WS_TABSTOP);
    page.Add(WC_LISTVIEWW, kListView, At(70, 80, 100, 40), L"",
             LVS_REPORT | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP);
    page.Add(L"Button", kBoxButton, At(180, 7, 60, 14), L"Bo&x", WS_TABSTOP);
    page.Add(L"Button", kTwoBoxesButton, At(180, 23, 60, 14), L"Two", WS_TABSTOP);
    page.Add(L"Button", kDialogButton, At(180, 39, 60, 14), L"Dialog", WS_TABSTOP);
    page.Add(L"Button", kSlideButton, At(180, 55, 60, 14), L"Slide", WS_TABSTOP);
    page.Add(L"Button", kDisabled, At(180, 71, 60, 14), L"Disabled", WS_TABSTOP | WS_DISABLED);
    page.Add(L"Button", kHidden, At(180, 87, 60, 14), L"Hidden", WS_TABSTOP | DialogTemplate::kHidden);
    page.Add(L"Button", kArabicBoxButton, At(180, 103, 60, 14), L"Arabic", WS_TABSTOP);
    page.Add(L"Button", kPostButton, At(180, 119, 60, 14), L"Post", WS_TABSTOP);
    page.Add(L"Button", kStubbornButton, At(180, 135, 60, 14), L"Stubborn", WS_TABSTOP);
    page.Add(L"Edit", kReadOnly, At(7, 125, 60, 14), L"fixed", WS_BORDER | ES_READONLY);
    return page;
  }();
  return dialog;
}

const DialogTemplate& HostTemplate() {
  static const DialogTemplate dialog = [] {
    DialogTemplate page(WS_CHILD | WS_CAPTION, {320, 190}, L"Host", WS_EX_CONTROLPARENT);
    page.Add(L"Static", 100, At(5, 5, 50, 180), L"bar", SS_NOTIFY);
    return page;
  }();
  return dialog;
}

const DialogTemplate& PopupTemplate() {
  static const DialogTemplate dialog = [] {
    DialogTemplate popup(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | WS_VISIBLE, {120, 60}, L"Own dialog");
    popup.Add(L"Edit", kEdit, At(7, 7, 60, 14), L"", WS_BORDER | WS_TABSTOP);
    popup.Add(L"Button", IDOK, At(7, 30, 50, 14), L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP);
    popup.Add(L"Button", IDCANCEL, At(60, 30, 50, 14), L"Cancel", WS_TABSTOP);
    return popup;
  }();
  return dialog;
}

INT_PTR CALLBACK PopupProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM parameter) {
  if (message == WM_INITDIALOG) SetWindowLongPtrW(dialog, GWLP_USERDATA, parameter);
  if (message == WM_COMMAND && LOWORD(wParam) == IDOK)
    return EndDialog(dialog, 1000 + static_cast<INT_PTR>(SendDlgItemMessageW(dialog, kEdit, WM_GETTEXTLENGTH, 0, 0)));
  if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL && !GetWindowLongPtrW(dialog, GWLP_USERDATA))
    EndDialog(dialog, IDCANCEL);
  return message == WM_INITDIALOG;
}

std::string NotificationName(HWND control, int code) {
  wchar_t className[32] = L"";
  GetClassNameW(control, className, ARRAYSIZE(className));
  struct Name {
    const wchar_t* className;
    int code;
    const char* name;
  };
  static const Name kNames[] = {
      {L"Button", BN_CLICKED, "BN_CLICKED"},         {L"Edit", EN_CHANGE, "EN_CHANGE"},
      {L"Edit", EN_SETFOCUS, "EN_SETFOCUS"},         {L"Edit", EN_KILLFOCUS, "EN_KILLFOCUS"},
      {L"ComboBox", CBN_SELCHANGE, "CBN_SELCHANGE"}, {L"ComboBox", CBN_DROPDOWN, "CBN_DROPDOWN"},
      {L"ComboBox", CBN_CLOSEUP, "CBN_CLOSEUP"},     {L"ComboBox", CBN_SELENDOK, "CBN_SELENDOK"},
      {L"ComboBox", CBN_SETFOCUS, "CBN_SETFOCUS"},   {L"ComboBox", CBN_EDITCHANGE, "CBN_EDITCHANGE"},
      {L"ComboBox", CBN_KILLFOCUS, "CBN_KILLFOCUS"}, {L"ComboBox", CBN_SELENDCANCEL, "CBN_SELENDCANCEL"},
      {L"ListBox", LBN_SELCHANGE, "LBN_SELCHANGE"},
  };
  for (const Name& name : kNames)
    if (name.code == code && _wcsicmp(name.className, className) == 0) return name.name;
  return {};
}

void FillControls(HWND page) {
  for (int row = 0; row < 30; ++row) {
    const std::wstring text = L"row " + std::to_wstring(row);
    const auto parameter = reinterpret_cast<LPARAM>(text.c_str());
    SendDlgItemMessageW(page, kDropList, CB_ADDSTRING, 0, parameter);
    SendDlgItemMessageW(page, kDropDown, CB_ADDSTRING, 0, parameter);
    SendDlgItemMessageW(page, kListBox, LB_ADDSTRING, 0, parameter);
  }
  SendDlgItemMessageW(page, kDropDown, CB_SETCURSEL, 1, 0);
  SendDlgItemMessageW(page, kEdit, EM_LIMITTEXT, 4, 0);
  SendDlgItemMessageW(page, kSlider, TBM_SETRANGE, TRUE, MAKELPARAM(1, 5));
  SCROLLINFO scroll = {sizeof scroll, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 2499, 100, 600, 0};
  SetScrollInfo(GetDlgItem(page, kScrollBar), SB_CTL, &scroll, FALSE);
  const HWND list = GetDlgItem(page, kListView);
  ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
  LVCOLUMNW column = {};
  column.mask = LVCF_WIDTH;
  column.cx = 50;
  ListView_InsertColumn(list, 0, &column);
  ListView_InsertColumn(list, 1, &column);
  for (int row = 0; row < 3; ++row) {
    const std::wstring texts[] = {L"name " + std::to_wstring(row), L"file " + std::to_wstring(row)};
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(texts[0].c_str());
    ListView_InsertItem(list, &item);
    ListView_SetItemText(list, row, 1, const_cast<wchar_t*>(texts[1].c_str()));
  }
}

void OnButton(TestSheet& sheet, HWND page, int id) {
  switch (id) {
    case kBoxButton:
      sheet.lastBoxAnswer = MessageBoxW(page, kBoxText, kBoxTitle, MB_YESNOCANCEL | MB_ICONWARNING | MB_DEFBUTTON2);
      break;
    case kTwoBoxesButton:
      MessageBoxW(page, L"first", kBoxTitle, MB_OK | MB_ICONERROR);
      MessageBoxW(page, L"second", kBoxTitle, MB_OK);
      break;
    case kArabicBoxButton:
      MessageBoxW(page, kBoxText, kBoxTitle, MB_OK | MB_ICONINFORMATION | MB_RTLREADING | MB_RIGHT);
      break;
    case kDialogButton:
    case kStubbornButton:
      sheet.dialogAnswer = static_cast<int>(TestSheet::ShowDialog(id == kStubbornButton, page));
      break;
    case kSlideButton:
      SetTimer(page, kSlideTimer, 30, nullptr);
      break;
    case kPostButton:
      PostMessageW(page, kPosted, 3, 0);
      InvalidateRect(page, nullptr, TRUE);
      sheet.painted = false;
      break;
  }
}

void OnScroll(TestSheet& sheet, HWND page, WPARAM wParam, LPARAM lParam) {
  const auto control = reinterpret_cast<HWND>(lParam);
  const int id = GetDlgCtrlID(control), code = LOWORD(wParam);
  sheet.events.push_back("scroll code " + std::to_string(code) + " " + std::to_string(id));
  if (id != kScrollBar) return;
  if (code == SB_THUMBTRACK || code == SB_THUMBPOSITION) SetScrollPos(control, SB_CTL, HIWORD(wParam), TRUE);
  if (code == SB_LINEDOWN) SetScrollPos(control, SB_CTL, GetScrollPos(control, SB_CTL) + 1, TRUE);
  (void)page;
}

INT_PTR CALLBACK ChildProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrW(page, GWLP_USERDATA, lParam);
      SetWindowContextHelpId(page, kPageHelpId);
      FillControls(page);
      return FALSE;
    case WM_COMMAND: {
      TestSheet& sheet = Owner(page);
      const auto control = reinterpret_cast<HWND>(lParam);
      const std::string name = NotificationName(control, HIWORD(wParam));
      if (name.empty()) return FALSE;
      sheet.events.push_back(name + " " + std::to_string(LOWORD(wParam)));
      if (LOWORD(wParam) == kDropDown && HIWORD(wParam) == CBN_SELCHANGE) {
        wchar_t text[64];
        GetWindowTextW(control, text, ARRAYSIZE(text));
        sheet.editTextAtSelection = text;
      }
      if (name == "BN_CLICKED") OnButton(sheet, page, LOWORD(wParam));
      return TRUE;
    }
    case WM_NOTIFY: {
      const auto* change = reinterpret_cast<NMLISTVIEW*>(lParam);
      if (change->hdr.code == LVN_ITEMCHANGED && (change->uNewState & LVIS_SELECTED))
        Owner(page).events.push_back("LVN_ITEMCHANGED " + std::to_string(kListView));
      return FALSE;
    }
    case WM_HSCROLL:
      OnScroll(Owner(page), page, wParam, lParam);
      return TRUE;
    case WM_TIMER:
      if (++Owner(page).slideSteps == kSlideSteps) KillTimer(page, kSlideTimer);
      return TRUE;
    case WM_PAINT:
      Owner(page).painted = true;
      return FALSE;
    case kPosted:
      Owner(page).events.push_back("posted " + std::to_string(wParam));
      if (wParam > 1) PostMessageW(page, kPosted, wParam - 1, 0);
      return TRUE;
  }
  return FALSE;
}

INT_PTR OnNotify(HWND host, const NMHDR& header) {
  TestSheet& sheet = Owner(host);
  const int tab = static_cast<int>(SendMessageW(GetParent(host), PSM_HWNDTOINDEX, reinterpret_cast<WPARAM>(host), 0));
  switch (header.code) {
    case PSN_KILLACTIVE:
      sheet.events.push_back("kill active " + std::to_string(tab));
      SetWindowLongPtrW(host, DWLP_MSGRESULT, sheet.refuseKillActive);
      return TRUE;
    case PSN_APPLY:
      sheet.events.push_back("apply " + std::to_string(tab));
      SetWindowLongPtrW(host, DWLP_MSGRESULT, PSNRET_NOERROR);
      return TRUE;
    case PSN_HELP:
      sheet.events.push_back("help");
      return TRUE;
  }
  return FALSE;
}

INT_PTR CALLBACK HostProcedure(HWND host, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: {
      const LPARAM owner = reinterpret_cast<PROPSHEETPAGEW*>(lParam)->lParam;
      SetWindowLongPtrW(host, GWLP_USERDATA, owner);
      if (Owner(host).boxAtStart) MessageBoxW(nullptr, L"at start", kBoxTitle, MB_OK);
      const HWND child = CreateDialogIndirectParamW(nullptr, ChildTemplate().Get(), host, ChildProcedure, owner);
      SetWindowPos(child, HWND_BOTTOM, 100, 5, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(wParam) != kFirstPage && LOWORD(wParam) != kSecondPage) return FALSE;
      Owner(host).events.push_back("command " + std::to_string(LOWORD(wParam)));
      SetWindowLongPtrW(host, DWLP_MSGRESULT,
                        LOWORD(wParam) == kFirstPage && reinterpret_cast<HWND>(lParam) == GetDlgItem(host, 100));
      return TRUE;
    case WM_NOTIFY:
      return OnNotify(host, *reinterpret_cast<NMHDR*>(lParam));
  }
  return FALSE;
}

}  // namespace

INT_PTR TestSheet::Show() {
  const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
  PROPSHEETPAGEW pages[2] = {};
  for (PROPSHEETPAGEW& page : pages) {
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE | PSP_HASHELP;
    page.pResource = HostTemplate().Get();
    page.pszTitle = &page == pages ? L"Basic" : L"Document";
    page.pfnDlgProc = HostProcedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
  }
  PROPSHEETHEADERW header = {};
  header.dwSize = sizeof header;
  header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW | PSH_HASHELP;
  header.pszCaption = L"Driver test";
  header.nPages = ARRAYSIZE(pages);
  header.ppsp = pages;
  return PropertySheetW(&header);
}

INT_PTR TestSheet::ShowDialog(bool stubborn, HWND owner) {
  return DialogBoxIndirectParamW(nullptr, PopupTemplate().Get(), owner, PopupProcedure, stubborn);
}

int TestSheet::Count(const std::string& event) const {
  return static_cast<int>(std::count(events.begin(), events.end(), event));
}

std::vector<std::string> TestSheet::EventsOf(int id) const {
  const std::string suffix = " " + std::to_string(id);
  std::vector<std::string> result;
  for (const std::string& event : events)
    if (event.ends_with(suffix)) result.push_back(event.substr(0, event.size() - suffix.size()));
  return result;
}

}  // namespace driver_test
