#include "driver/Gallery.h"

#include <algorithm>

#include "driver/Bar.h"
#include "driver/Pages.h"
#include "driver/Picture.h"
#include "driver/RowDialogs.h"
#include "driver/Text.h"
#include "resources/ResourceIds.h"

namespace {

constexpr int kDocumentTab = 1;
constexpr char kOnDocumentTab[] = " (document)";  // behind the name of a page that is missing there
constexpr int kCockpit = 120;
constexpr int kCockpitRows = 18;

int MarkedRows(const Sheet& cockpit) {
  int marked = 0;
  for (int row = 0; row < kCockpitRows; ++row) marked += !cockpit.Control(IDC_COCKPIT_FIRST_TEXT + row).Text().empty();
  return marked;
}

void WritePicture(HWND window, const std::wstring& file, GalleryResult& result) {
  SendMessageW(window, WM_NCACTIVATE, TRUE, 0);  // its title as the user sees it, whoever is active
  HRESULT error = S_OK;
  EXPECT_TRUE(SavePng(Capture(window), file, &error)) << ToUtf8(file) << ": " << std::hex << error;
  result.written.push_back(file);
}

}  // namespace

SheetTask WriteGallery(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result) {
  for (int tab = 0; tab < sheet.TabCount(); ++tab) {
    sheet.SelectTab(tab);
    co_await sheet.Settled();
    CO_ASSERT_EQ(tab, sheet.CurrentTab());
    for (const PageInfo& page : BarPages()) {
      const std::string name = page.name;
      bool shown = false;
      co_await ClickPage(sheet, page.id, shown);
      if (!shown) {
        result.missing.push_back(name + (tab == kDocumentTab ? kOnDocumentTab : ""));
        continue;
      }
      if (page.id == kCockpit) {
        EXPECT_EQ(0, MarkedRows(sheet));
      }
      WritePicture(sheet.Window(),
                   directory + L"\\" + language + L"-" + std::to_wstring(page.id) + L"-" + ToWide(name) +
                       (tab == kDocumentTab ? L"-document.png" : L".png"),
                   result);
    }
  }
}

SheetTask WriteCockpit(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result) {
  sheet.SelectTab(0);
  co_await sheet.Settled();
  bool shown = sheet.PageId() == kCockpit;
  if (!shown) co_await ClickPage(sheet, kCockpit, shown);
  CO_ASSERT_TRUE(shown);
  const auto missing = std::count_if(result.missing.begin(), result.missing.end(),
                                     [](const std::string& page) { return !page.ends_with(kOnDocumentTab); });
  EXPECT_EQ(kCockpitRows - missing, MarkedRows(sheet));
  WritePicture(sheet.Window(), directory + L"\\" + language + L"-120-cockpit-changed.png", result);
}

SheetTask WriteRowDialogs(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result) {
  sheet.SelectTab(0);
  co_await sheet.Settled();
  for (const RowDialog& row : RowDialogs()) {
    const std::wstring prefix = directory + L"\\" + language + L"-";
    co_await SelectFirstRow(sheet, row);
    WritePicture(sheet.Window(),
                 prefix + std::to_wstring(row.pageId) + L"-" + ToWide(FindPageById(row.pageId)->name) + L"-filled.png",
                 result);
    HWND dialog = nullptr;
    co_await OpenRowDialog(sheet, row, dialog);
    CO_ASSERT_TRUE(IsWindow(dialog));
    WritePicture(dialog, prefix + ToWide(row.name) + L".png", result);
    co_await CancelRowDialog(sheet, row, dialog);
  }
}

void WriteDialogPicture(const Sheet& dialog, const std::wstring& directory, const std::wstring& language,
                        const std::wstring& name, GalleryResult& result) {
  WritePicture(dialog.Window(), directory + L"\\" + language + L"-" + name + L".png", result);
}
