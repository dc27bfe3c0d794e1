// A host page as a whole: the order of its pages, and what its bar shows.
#include <gtest/gtest.h>

#include <memory>

#include "driver/Bar.h"
#include "driver/Pages.h"
#include "resources/ResourceIds.h"
#include "support/Accessible.h"
#include "support/Canvas.h"
#include "support/PrintText.h"
#include "TestSheet.h"

using namespace sheet_test;

namespace {

// --- Order ---------------------------------------------------------------------------------------------------------

std::vector<std::wstring> TitlesIn(HWND tabControl) {
  std::vector<std::wstring> titles;
  const int count = static_cast<int>(SendMessageW(tabControl, TCM_GETITEMCOUNT, 0, 0));
  for (int index = 0; index < count; ++index) {
    wchar_t text[100] = L"";
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 100;
    SendMessageW(tabControl, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    titles.push_back(text);
  }
  return titles;
}

// As the catalogue has them: the placeholders of the document tab stand behind all other pages.
std::vector<PageCatalogueRow> AllRows() {
  std::vector<PageCatalogueRow> rows;
  for (const int id :
       {100, 108, 109, 101, 111, 113, 114, 112, 110, 117, 115, 116, 118, 119, 120, 105, 102, 104, 103, 106})
    rows.push_back(Row(id));
  for (const int id : {107, 121, 123}) rows.push_back(Row(id, false));
  return rows;
}

TEST(HostPageOrder, TabControlHoldsThePagesInTheirOrder) {
  const std::vector<std::wstring> common = {
      L"Cockpit",        L"Graphical Optimization", L"Display", L"Colorspace",   L"Links",
      L"Attachments",    L"ZUGFeRD invoice",        L"Fonts",   L"PDF-Security", L"Fields",
      L"Color settings", L"Output format",          L"Bookmark"};
  const auto with = [&common](std::initializer_list<const wchar_t*> more) {
    std::vector<std::wstring> all = common;
    all.insert(all.end(), more.begin(), more.end());
    return all;
  };
  TestSheet test(AllRows());
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(with({L"Page", L"Watermark", L"Document Info", L"Actions", L"E-Mail", L"Saving", L"Info"}),
              TitlesIn(sheet.HostControl(IDC_HOST_TAB).Window()));
    sheet.SelectTab(0);
    co_await sheet.Settled();
    EXPECT_EQ(with({L"Update", L"Statistics", L"Page", L"Watermark", L"Document Info", L"Actions", L"E-Mail", L"Saving",
                    L"Language selection", L"Info"}),
              TitlesIn(sheet.HostControl(IDC_HOST_TAB).Window()));
    sheet.PressCancel();
  });
}

TEST(HostPageOrder, EveryEntryOfTheBarOpensItsPage) {
  TestSheet test(AllRows());
  test.Drive([&](Sheet& sheet) -> SheetTask {
    for (const PageInfo& page : BarPages()) {
      bool shown = false;
      co_await ClickPage(sheet, page.id, shown);
      EXPECT_EQ(page.id, test.CurrentId()) << page.name;
    }
    sheet.PressCancel();
  });
}

// --- What the bar shows --------------------------------------------------------------------------------------------

using Texts = std::vector<std::wstring>;

// The title, the entries of the open folder, and the folders.
Texts BarTexts(Sheet& sheet) {
  const Accessible bar(sheet.Bar().Window());
  Texts texts;
  for (LONG part = 0; part <= bar.Count(); ++part) texts.push_back(bar.Name(part));
  return texts;
}

// The places of the entries that are drawn as selected, counted from 1.
std::vector<LONG> SelectedEntries(Sheet& sheet) {
  const Accessible bar(sheet.Bar().Window());
  std::vector<LONG> selected;
  for (LONG part = 1; part <= bar.Count(); ++part)
    if (bar.State(part) & STATE_SYSTEM_SELECTED) selected.push_back(part);
  return selected;
}

struct FolderTexts {
  int pageId;  // of its pages, the last one that both tabs have
  std::wstring title;
  Texts entries;
};

const std::vector<FolderTexts> kFolderTexts = {
    {120, L"Cockpit", {L"Cockpit"}},
    {108, L"File size", {L"Graphical Optimization"}},
    {119, L"Layout", {L"Page", L"Display", L"Fonts", L"Stationery Paper", L"Links", L"Attachments", L"Bookmark"}},
    {112, L"Output", {L"Saving", L"Output format", L"Actions", L"E-Mail", L"Colorspace", L"ZUGFeRD invoice"}},
    {116, L"Form", {L"Fields", L"Color settings"}},
    {105, L"Security", {L"Security", L"Document Info"}},
    {106, L"Info", {L"Info", L"Language selection", L"Update", L"Statistics"}},
};

TEST(HostPageBar, IsTheSameOnBothTabsAndOpensTheFolderOfAnActivatedPage) {
  const ComScope com;
  TestSheet test(AllRows());
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    for (const int tab : {1, 0}) {
      sheet.SelectTab(tab);
      co_await sheet.Settled();
      for (const FolderTexts& folder : kFolderTexts) {
        Texts expected = {folder.title};
        expected.insert(expected.end(), folder.entries.begin(), folder.entries.end());
        for (const FolderTexts& each : kFolderTexts) expected.push_back(each.title);
        EXPECT_TRUE(test.Object().ActivatePage(folder.pageId));
        EXPECT_EQ(folder.pageId, test.CurrentId());
        EXPECT_EQ(expected, BarTexts(sheet)) << tab;
      }
    }
    sheet.PressCancel();
  });
}

TEST(HostPageBar, EntriesOfMissingPagesStandThereAndDoNothing) {
  const ComScope com;
  TestSheet test(AllRows());
  test.OfferDocument().Drive([&](Sheet& sheet) -> SheetTask {
    for (const int id : {106, 107, 121, 123}) {  // the last three have no instance on this tab
      bool shown = false;
      co_await ClickPage(sheet, id, shown);
      EXPECT_EQ(id == 106, shown) << id;
      EXPECT_EQ(106, test.CurrentId()) << id;
      EXPECT_EQ(std::vector<LONG>{1}, SelectedEntries(sheet)) << id;
      EXPECT_FALSE(sheet.SelectPage(id)) << id;
    }
    EXPECT_EQ(L"Statistics", Accessible(sheet.Bar().Window()).Name(4));
    sheet.PressCancel();
  });
}

std::unique_ptr<Canvas> PictureOf(CWnd window) {
  window.Redraw();
  const RECT client = window.ClientRect();
  auto picture = std::make_unique<Canvas>(client.right, client.bottom, RGB(255, 0, 255));
  const WindowDC dc(window.Handle());
  BitBlt(*picture, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
  return picture;
}

LRESULT CALLBACK AnswerFont(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR font) {
  return message == WM_GETFONT ? static_cast<LRESULT>(font) : DefSubclassProc(window, message, wParam, lParam);
}

// The bar takes its fonts anew when the dpi change; what it takes then is what it has taken at its start.
TEST(HostPageBar, WritesInTheFontOfItsHost) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    const CWnd host(sheet.HostPage()), bar(sheet.Bar().Window());
    const auto before = PictureOf(bar);
    bar.Send(WM_DPICHANGED_AFTERPARENT);
    const RECT same = PictureOf(bar)->DifferenceFrom(*before);
    EXPECT_TRUE(IsRectEmpty(&same));
    const GdiFont larger = DeriveFont(host.Font(), [](LOGFONTW& font) { font.lfHeight = -20; });
    SetWindowSubclass(host.Handle(), AnswerFont, 1, reinterpret_cast<DWORD_PTR>(larger.Get()));
    bar.Send(WM_DPICHANGED_AFTERPARENT);
    const RECT changed = PictureOf(bar)->DifferenceFrom(*before);
    EXPECT_FALSE(IsRectEmpty(&changed));
    RemoveWindowSubclass(host.Handle(), AnswerFont, 1);
    sheet.PressCancel();
    co_return;
  });
}

}  // namespace
