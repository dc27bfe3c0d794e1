#include "driver/RowDialogs.h"

#include "driver/Bar.h"

namespace {

constexpr RowDialog kDialogs[] = {
    {"stationery", 101, 1291, 1067, 1344, {222, 211}},
    {"bookmark-format", 119, 1290, 1311, 1323, {236, 194}},
};

constexpr std::pair<const wchar_t*, const wchar_t*> kLists[] = {
    {L"StationeryInfos",
     L"{{NAME:\"Letter\";FILE:\"C:\\\\Paper\\\\letter.pdf\";P:\"\";TYPE:\"2\"}"
     L"{NAME:\"Invoice\";FILE:\"C:\\\\Paper\\\\invoice.pdf\";P:\"\";TYPE:\"0\"}}"},
    {L"OutlineStyles", L"heading 1;1;heading 2;2;Remark;5"},
    {L"OutlineFormats",
     L"{STYLE:heading 1;1;{FONT:Arial;16;Bold;0.0.0}};{STYLE:heading 2;2;{FONT:Arial;14;Bold;Italic;0.0.0}};"
     L"{STYLE:Remark;5;{FONT:Times New Roman;10.5;Italic;0.0.255}};{STYLE:Code;3;{FONT:Courier New;9}};"},
};

constexpr const wchar_t* kSwitches[] = {L"StationeryEnabled", L"OutlineStylesEnabled"};

}  // namespace

std::span<const RowDialog> RowDialogs() { return kDialogs; }
std::span<const std::pair<const wchar_t*, const wchar_t*>> FilledLists() { return kLists; }
std::span<const wchar_t* const> FilledListSwitches() { return kSwitches; }

SheetTask SelectFirstRow(Sheet& sheet, const RowDialog& row) {
  bool shown = sheet.PageId() == row.pageId;
  if (!shown) co_await ClickPage(sheet, row.pageId, shown);
  EXPECT_TRUE(shown) << row.name;
  sheet.Control(row.list).Select(0);
  co_await sheet.Settled();
}

SheetTask OpenRowDialog(Sheet& sheet, const RowDialog& row, HWND& dialog) {
  dialog = nullptr;
  co_await SelectFirstRow(sheet, row);
  sheet.ExpectDialog([&dialog](HWND window) { dialog = window; });
  sheet.Control(row.open).Click();
  co_await sheet.Settled();
}

SheetTask CancelRowDialog(Sheet& sheet, const RowDialog& row, HWND dialog) {
  ControlRef(GetDlgItem(dialog, row.cancel), row.cancel, ControlRef::Location::current()).Click();
  co_await sheet.Settled();
  EXPECT_FALSE(IsWindow(dialog)) << row.name;
}
