#include "pages/CStatisticsPage.h"

#include "DriverLIB/CRegistryEntry.h"
#include "DriverLIB/Identity.h"
#include "pages/WebAddress.h"

namespace {

struct CounterRow {
  const wchar_t* value;
  int totalId, monthId;
};

constexpr CounterRow kCounters[] = {
    {L"GeneratedDocumentCount", IDC_STATISTICS_DOCUMENTS, IDC_STATISTICS_MONTH_DOCUMENTS},
    {L"GeneratedZugferdCount", IDC_STATISTICS_ZUGFERD, IDC_STATISTICS_MONTH_ZUGFERD},
    {L"GeneratedEpdfCount", IDC_STATISTICS_EPDF, IDC_STATISTICS_MONTH_EPDF},
    {L"GeneratedStationeryCount", IDC_STATISTICS_STATIONERY, IDC_STATISTICS_MONTH_STATIONERY},
    {L"GeneratedPasswordOwnerCount", IDC_STATISTICS_PASSWORD, IDC_STATISTICS_MONTH_PASSWORD},
};

struct LinkRow {
  int controlId;
  const wchar_t* path;
};

constexpr LinkRow kLinks[] = {
    {IDC_STATISTICS_ZUGFERD_LINK, L"/nem-zentoX"},
    {IDC_STATISTICS_EPDF_LINK, L"/nem-binderY"},
    {IDC_STATISTICS_STATIONERY_LINK, L"/briefpapier"},
};

constexpr int kUnusedControls[] = {
    IDC_STATISTICS_UNUSED_1, IDC_STATISTICS_UNUSED_2, IDC_STATISTICS_UNUSED_3,
    IDC_STATISTICS_UNUSED_4, IDC_STATISTICS_UNUSED_5, IDC_STATISTICS_UNUSED_6,
    IDC_STATISTICS_UNUSED_7, IDC_STATISTICS_UNUSED_8, IDC_STATISTICS_UNUSED_BUTTON,
};

// A counter has 16 bits. One that is missing counts 0.
uint16_t ReadCounter(const wchar_t* subkey, const wchar_t* value) {
  return static_cast<uint16_t>(CRegistryEntry((CUString(kProductKey) + L"\\" + subkey).Text(), value).ReadLong());
}

}  // namespace

BOOL CStatisticsPage::OnInitDialog() {
  if (!CNemUIPage::OnInitDialog()) return FALSE;
  ShowControls(kUnusedControls, false);
  for (const CounterRow& row : kCounters)
    for (const int number : {row.totalId, row.monthId}) Item(number).ReadLeftToRight();
  for (size_t i = 0; i < std::size(kLinks); ++i) {
    links_[i].Attach(*this, kLinks[i].controlId);
    links_[i].SetUrl(WebAddress(kLinks[i].path).Text());
    links_[i].SetUnderline(true);
  }
  return TRUE;
}

// In both directions: the numbers are those of this moment whenever the page is shown or left.
void CStatisticsPage::DoDataExchange(CDataExchange&) {
  for (const CounterRow& row : kCounters) {
    ::SetDlgItemInt(Handle(), row.totalId, ReadCounter(L"TotalData", row.value), FALSE);
    ::SetDlgItemInt(Handle(), row.monthId, ReadCounter(L"MonthlyData", row.value), FALSE);
  }
}
