// A format page for tests of the pages that ask one: it gives the values that it was given.
#pragma once

#include "pages/FormatAccess.h"
#include "sheet/CNemUIPage.h"

class FakeFormatPage final : public CNemUIPage, public FormatAccess {
 public:
  FakeFormatPage() : CNemUIPage(PageDescription{}) {}
  CUString GetHelpFilename() override { return {}; }
  CUString GetMsgBoxTitle() override { return {}; }
  bool ExchangeProperties(CDataExchange&) override { return true; }
  int GetPdfVersion() override { return version; }
  void SetPdfVersion(int value) override { version = value; }
  int GetSaveFormat() override { return saveFormat; }

  int version = 14;
  int saveFormat = 1;
};
