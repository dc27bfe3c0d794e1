#include "driver/Gallery.h"

#include "driver/Bar.h"
#include "driver/Pages.h"
#include "driver/Picture.h"
#include "driver/Text.h"

namespace {

constexpr int kDocumentTab = 1;

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
        result.missing.push_back(name + (tab == kDocumentTab ? " (document)" : ""));
        continue;
      }
      SendMessageW(sheet.Window(), WM_NCACTIVATE, TRUE, 0);  // its title as the user sees it, whoever is active
      const std::wstring file = directory + L"\\" + language + L"-" + std::to_wstring(page.id) + L"-" + ToWide(name) +
                                (tab == kDocumentTab ? L"-document.png" : L".png");
      HRESULT error = S_OK;
      EXPECT_TRUE(SavePng(Capture(sheet.Window()), file, &error)) << ToUtf8(file) << ": " << std::hex << error;
      result.written.push_back(file);
    }
  }
}
