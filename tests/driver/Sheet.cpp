#include "driver/Sheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <stdexcept>

#include "driver/Input.h"
#include "driver/Pages.h"
#include "driver/Text.h"

namespace {

constexpr int kSheetTabControl = 0x3020;  // of every property sheet

HWND VisibleDialogIn(HWND parent) {
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    if (IsWindowVisible(child) && HasClass(child, L"#32770")) return child;
  for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    if (!IsWindowVisible(child)) continue;
    if (HWND dialog = VisibleDialogIn(child)) return dialog;
  }
  return nullptr;
}

HWND FindControl(HWND dialog, int id) {
  if (HWND control = GetDlgItem(dialog, id)) return control;
  struct Search {
    int id;
    HWND found;
  } search = {id, nullptr};
  EnumChildWindows(
      dialog,
      [](HWND child, LPARAM parameter) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(parameter);
        if (GetDlgCtrlID(child) != wanted.id) return TRUE;
        wanted.found = child;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// A coroutine that nobody awaits; its frame goes when it ends.
struct Detached {
  struct promise_type {
    Detached get_return_object() const noexcept { return {}; }
    std::suspend_never initial_suspend() const noexcept { return {}; }
    std::suspend_never final_suspend() const noexcept { return {}; }
    void return_void() const noexcept {}
    void unhandled_exception() const noexcept { std::terminate(); }
  };
};

Detached Carry(SheetTask task, std::function<void(std::exception_ptr)> finished) {
  std::exception_ptr exception;
  try {
    co_await task;
  } catch (...) {
    exception = std::current_exception();
  }
  finished(exception);
}

}  // namespace

void StartTask(SheetTask task, std::function<void(std::exception_ptr)> finished) {
  Carry(std::move(task), std::move(finished));
}

void ReportException(std::exception_ptr exception) {
  if (!exception) return;
  try {
    std::rethrow_exception(exception);
  } catch (const std::exception& caught) {
    ADD_FAILURE() << "The body threw: " << caught.what();
  } catch (...) {
    ADD_FAILURE() << "The body threw something that is no std::exception.";
  }
}

// --- Windows ----------------------------------------------------------------------------------------------------

HWND Sheet::TabControl() const { return GetDlgItem(window_, kSheetTabControl); }

bool Sheet::IsPropertySheet() const { return TabControl() && HasClass(TabControl(), WC_TABCONTROLW); }

HWND Sheet::HostPage() const {
  if (!IsPropertySheet()) return window_;
  return reinterpret_cast<HWND>(SendMessageW(window_, PSM_GETCURRENTPAGEHWND, 0, 0));
}

HWND Sheet::Page() const {
  const HWND host = HostPage();
  const HWND page = host ? VisibleDialogIn(host) : nullptr;
  return page ? page : host;
}

int Sheet::PageId() const {
  const PageInfo* page = FindPageByHelpId(GetWindowContextHelpId(Page()));
  return page ? page->id : 0;
}

ControlRef Sheet::Control(int id, Location where) const { return {FindControl(Page(), id), id, where}; }

ControlRef Sheet::HostControl(int id, Location where) const { return {GetDlgItem(HostPage(), id), id, where}; }

ControlRef Sheet::SheetControl(int id, Location where) const { return {GetDlgItem(window_, id), id, where}; }

ControlRef Sheet::Bar(Location where) const { return HostControl(kBarId, where); }

// --- Tabs and pages ---------------------------------------------------------------------------------------------

int Sheet::TabCount() const { return TabCtrl_GetItemCount(TabControl()); }

int Sheet::CurrentTab() const { return TabCtrl_GetCurSel(TabControl()); }

std::wstring Sheet::TabText(int tab) const {
  wchar_t text[256] = L"";
  TCITEMW item = {};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = ARRAYSIZE(text);
  TabCtrl_GetItem(TabControl(), tab, &item);
  return text;
}

void Sheet::SelectTab(int tab, Location where) const {
  RECT bounds = {};
  if (!IsPropertySheet() || !TabCtrl_GetItemRect(TabControl(), tab, &bounds)) {
    ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << "There is no tab " << tab;
    return;
  }
  const LPARAM point = MAKELPARAM((bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2);
  SendMessageW(TabControl(), WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(TabControl(), WM_LBUTTONUP, 0, point);
}

bool Sheet::SelectPage(int id) const {
  const HWND host = HostPage();
  return SendMessageW(host, WM_COMMAND, MAKEWPARAM(id, 0), reinterpret_cast<LPARAM>(GetDlgItem(host, kBarId))) != 0;
}

// --- Buttons of the sheet, keyboard -----------------------------------------------------------------------------

void Sheet::Press(int button, Location where) const { SheetControl(button, where).Click(); }

void Sheet::Close() const { PostMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0); }

void Sheet::Key(WORD key, std::initializer_list<WORD> modifiers) const { PostKey(popups_.Loop(), key, modifiers); }

void Sheet::Type(const std::wstring& text) const { PostText(popups_.Loop(), text); }

int Sheet::FocusedId() const {
  HWND focus = GetFocus();
  if (focus && HasClass(GetParent(focus), L"ComboBox")) focus = GetParent(focus);
  return GetDlgCtrlID(focus);
}

// --- Dialogs ----------------------------------------------------------------------------------------------------

void Sheet::ExpectDialog(Body body, Location where) {
  struct Run {
    Sheet dialog;
    Body body;
  };
  Popups& popups = popups_;
  popups.ExpectDialog(
      [&popups, body = std::move(body), where](HWND window) {
        auto run = std::make_shared<Run>(Run{Sheet(window, popups), body});
        SheetTask task = run->body(run->dialog);
        StartTask(std::move(task), [run, where](std::exception_ptr exception) {
          ReportException(exception);
          run->dialog.popups_.Loop().WhenIdle([run, where] {
            const HWND window = run->dialog.Window();
            const bool modal = !IsWindowEnabled(GetWindow(window, GW_OWNER));
            if (!IsWindow(window) || !IsWindowVisible(window) || !modal) return;
            ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                << "The body left the dialog open: " << DescribeWindow(window);
            DismissDialog(window);
          });
        });
      },
      where);
}
