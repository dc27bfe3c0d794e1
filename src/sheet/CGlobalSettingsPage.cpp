#include "sheet/CGlobalSettingsPage.h"

#include "DriverLIB/MessageText.h"
#include "resources/ResourceIds.h"
#include "sheet/BarContents.h"
#include "sheet/PageNumbers.h"

namespace {

constexpr int kBarId = 100;
constexpr int kBarLeft = 10;  // at 96 dpi

}  // namespace

void CGlobalSettingsPage::AddChild(std::unique_ptr<CNemUIPage> page) {
  if (!page) return;
  page->SetHost(*this);
  children_.push_back(std::move(page));
}

CNemUIPage* CGlobalSettingsPage::FindPage(int pageId) {
  for (CNemUIPage* page : tabs_.Pages())
    if (page->GetPageId() == pageId) return page;
  return nullptr;
}

bool CGlobalSettingsPage::ActivatePage(int pageId) {
  bar_.ActivateById(pageId);
  return true;
}

bool CGlobalSettingsPage::SelectPage(int pageId) {
  CNemUIPage* page = FindPage(pageId);
  const CNemUIPage* before = tabs_.CurrentPage();
  if (!page || !tabs_.SelectPage(*page)) return false;
  bar_.UpdateEntries();
  return tabs_.CurrentPage() != before;
}

void CGlobalSettingsPage::UpdatePageCommand(CCmdUI& probe, int pageId) {
  const CNemUIPage* page = FindPage(pageId);
  probe.SetCheck(page && page == tabs_.CurrentPage());
}

bool CGlobalSettingsPage::OnSetActive() { return tabs_.OnSetActive() && CNemUIPage::OnSetActive(); }

bool CGlobalSettingsPage::OnKillActive() { return tabs_.OnKillActive() && CNemUIPage::OnKillActive(); }

bool CGlobalSettingsPage::OnApply() { return tabs_.OnApply() && CNemUIPage::OnApply(); }

bool CGlobalSettingsPage::OnHelpInfo(const HELPINFO& help) {
  CNemUIPage* page = tabs_.CurrentPage();
  if (!page || !page->IsWindow()) return CNemUIPage::OnHelpInfo(help);
  HELPINFO record = help;
  page->Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&record));
  return true;
}

BOOL CGlobalSettingsPage::OnInitDialog() {
  EnterChildren();
  if (!CNemUIPage::OnInitDialog()) return FALSE;
  tabs_.Attach(*this, IDC_HOST_TAB);
  tabs_.SetUp(*this);
  bar_.Create(*this, kBarId, WS_TABSTOP);
  FillBar();
  PlaceBar();
  return TRUE;
}

void CGlobalSettingsPage::EnterChildren() {
  if (!tabs_.Pages().empty()) return;
  for (const int pageId : TabOrder())
    for (const auto& page : children_)
      if (page->GetPageId() == pageId) tabs_.AddPage(*page);
}

void CGlobalSettingsPage::FillBar() {
  bar_.SetBarFonts(true);
  for (const BarFolderRow& folder : BarFolders()) {
    bar_.AddFolder(MessageText(folder.textId), 0, folder.entries.front().pageId, folder.imageId, folder.maskId);
    for (const BarEntryRow& entry : folder.entries) {
      bar_.AddGroup(L"", 0);
      bar_.AddEntry(MessageText(entry.textId), 0, BarEntryKind::Plain, entry.pageId, -1, -1, entry.imageId,
                    entry.maskId);
    }
  }
}

void CGlobalSettingsPage::PlaceBar() {
  RECT area = tabs_.RectIn(*this);
  area.right = area.left;
  area.left = Scale(kBarLeft);
  bar_.Move(area);
  bar_.PlaceBehind(HWND_TOP);  // the bar comes first in the tab order, the page behind it
}

bool CGlobalSettingsPage::OnWindowMessage(WindowMessage& message) {
  const auto isPageId = [](int id) { return id >= kFirstPageId && id <= kLastPageId; };
  if (message.message == WM_COMMAND && message.lParam == reinterpret_cast<LPARAM>(bar_.Handle()) &&
      isPageId(message.CommandId())) {
    message.result = SelectPage(message.CommandId());
    return true;
  }
  if (message.message == kUpdateCommandMessage && isPageId(static_cast<int>(message.wParam))) {
    UpdatePageCommand(*reinterpret_cast<CCmdUI*>(message.lParam), static_cast<int>(message.wParam));
    return true;
  }
  return CNemUIPage::OnWindowMessage(message);
}
