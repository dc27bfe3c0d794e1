// Report lists on a page, and how a user works with them.
#pragma once

#include <memory>

#include "ControlDialog.h"
#include "controls/ListRowKeys.h"
#include "driver/Input.h"

constexpr int kReportId = 1290, kOtherId = 1291;
constexpr RECT kReportRect = {10, 10, 410, 160};

class ReportPage {
 public:
  explicit ReportPage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight) : page(layout) {
    control =
        CListCtrl(page.Add(WC_LISTVIEWW, L"", LVS_REPORT | LVS_SHOWSELALWAYS | WS_TABSTOP, kReportId, kReportRect));
    other = page.Add(L"BUTTON", L"Other", WS_TABSTOP, kOtherId, {10, 165, 100, 185});
    page.onMessage = [this](const WindowMessage& message) {
      if (message.message == WM_NOTIFY) notified.push_back(message.Notify().code);
    };
    other.Focus();
  }

  // The middle of a cell.
  POINT CellPoint(int row, int column) const {
    const RECT cell = control.CellRect(row, column);
    return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
  }
  // A point on the row's check box.
  POINT CheckPoint(int row) const {
    const RECT rect = control.RowRect(row);
    for (LONG x = 0; x < rect.right; ++x) {
      LVHITTESTINFO hit{};
      hit.pt = {x, (rect.top + rect.bottom) / 2};
      control.Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
      if (hit.flags == LVHT_ONITEMSTATEICON) return {x + 2, hit.pt.y};
    }
    ADD_FAILURE() << "no check box";
    return {};
  }
  void Click(POINT point, UINT down = WM_LBUTTONDOWN) const {
    const LPARAM at = MAKELPARAM(point.x, point.y);
    control.Send(down, MK_LBUTTON, at);
    control.Send(WM_LBUTTONUP, 0, at);
  }
  void Click(int row, int column) const { Click(CellPoint(row, column)); }

  // A key to the window that has the focus, by way of the dialog.
  void Press(WPARAM key, LPARAM data = 1, UINT message = WM_KEYDOWN) const {
    ::PostMessageW(::GetFocus(), message, key, data);
    RunDialog();
  }
  void Type(const wchar_t* text) const {
    for (; *text; ++text) Press(*text, 1, WM_CHAR);
  }
  void RunDialog() const {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (::IsDialogMessageW(page.Handle(), &message)) continue;
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    }
  }
  // A click on a column's head.
  void ClickHead(int column, int button = 0) const {
    const CWnd header(reinterpret_cast<HWND>(control.Send(LVM_GETHEADER)));
    NMHEADERW click{};
    click.hdr = {header.Handle(), static_cast<UINT_PTR>(header.Id()), static_cast<UINT>(HDN_ITEMCLICKW)};
    click.iItem = column;
    click.iButton = button;
    control.Send(WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
  }
  int Count(UINT code) const { return static_cast<int>(std::count(notified.begin(), notified.end(), code)); }
  // OK or Cancel of the dialog.
  bool WasCommanded(int id) const {
    for (const WindowMessage& message : page.Received(WM_COMMAND))
      if (message.CommandId() == id) return true;
    return false;
  }

  std::vector<UINT> notified;  // the page tells until its end
  ControlDialog page;
  CListCtrl control;
  CWnd other;
};
