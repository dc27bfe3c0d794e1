#include "pages/CNemUIInfoPage.h"

#include "DriverLIB/Trace.h"
#include "environment/CPrinterHandle.h"
#include "environment/PrinterQueries.h"

namespace {

constexpr wchar_t kNoticeText[] = L"NoticeText";  // printer data

CUString NoticeOf(const wchar_t* printerName) {
  const CPrinterHandle printer(printerName);
  if (printer && IsValidPrinterHandle(printer.Get())) return GetPrinterDataText(printer.Get(), kNoticeText);
  TraceInfo("NemUIInfoPage::OnInitDialog: Invalid printer handle %d", ::HandleToLong(printer.Get()));
  return {};
}

}  // namespace

BOOL CNemUIInfoPage::OnInitDialog() {
  if (Sheet()) noticeText = NoticeOf(Sheet()->GetPrinterName().Text());
  return CInfoPage::OnInitDialog();
}
