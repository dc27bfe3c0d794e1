// A settings sheet whose pages do what the test tells them, and note what happens to them.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "driver/SheetDriver.h"
#include "sheet/CNemUISettingsPage.h"
#include "sheet/CNemUISheet.h"
#include "support/FakeSheet.h"
#include "support/InvalidDataBox.h"

namespace sheet_test {

constexpr int kValueEdit = 1000;  // on each test page: the number that the page edits
constexpr int kNotesEdit = 1001;  // an edit of several lines

constexpr wchar_t kTitle[] = L"Host";  // of message boxes

using ::InvalidDataBox;
inline ExpectedBox InvalidDataBox() { return InvalidDataBox(kTitle); }

class TestPage;

// What a page does at a step beside what all pages do. An answer of false refuses or fails the step.
struct PageScript {
  std::function<bool(TestPage&)> onInit;  // before the base's start; false ends the dialog
  std::function<bool(TestPage&)> onSetActive;
  std::function<bool(TestPage&)> onKillActive;
  std::function<bool(TestPage&)> onSave;  // the control exchange, saving
  std::function<bool(TestPage&)> onLoad;  // the same, loading
  std::function<bool(TestPage&)> onRead;  // the property exchange
  std::function<bool(TestPage&)> onWrite;
};

class TestSheet;

class TestPage : public CNemUIPage {
 public:
  TestPage(SheetServices* sheet, const PageDescription& description, int settingsIndex);

  // The property is GraphicResolution on page 108 and Scale on all others.
  int value = 0;

  int SettingsIndex() const { return settingsIndex_; }
  SheetServices* Services() const { return sheet_; }
  CUString GetHelpFilename() override { return sheet_->GetHelpFilename(); }
  CUString GetMsgBoxTitle() override { return sheet_->GetMsgBoxTitle(); }
  bool ExchangeProperties(CDataExchange& exchange) override;
  void ReadProperties() override;
  void WriteProperties() override;
  bool OnSetActive() override;
  bool OnKillActive() override;
  bool OnApply() override;
  bool OnHelpInfo(const HELPINFO& help) override;

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;

 private:
  void Note(const char* what);
  CLongProperty& Property();
  PageScript& Script();

  SheetServices* const sheet_;
  const int settingsIndex_;
  TestSheet& test_;
};

template <class Page>
std::unique_ptr<CNemUIPage> MakePage(SheetServices* sheet, const PageDescription& description, int settingsIndex) {
  return std::make_unique<Page>(sheet, description, settingsIndex);
}

// A test page on both tabs, or on the first alone.
PageCatalogueRow Row(int pageId, bool onDocument = true);

// Cockpit, Graphical Optimization and Page on both tabs, Update on the first.
std::vector<PageCatalogueRow> UsualRows();

class TestSheet {
 public:
  explicit TestSheet(const std::vector<PageCatalogueRow>& rows = UsualRows());
  TestSheet(const TestSheet&) = delete;
  TestSheet& operator=(const TestSheet&) = delete;

  PageScript& Script(int settingsIndex, int pageId) { return scripts_[{settingsIndex, pageId}]; }
  // What happened so far, such as "0/108 save"; the steps of a page's start are "init", "read" and "load".
  std::vector<std::string> log;
  int Count(const std::string& event) const;
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  CDialogProperties& Properties() { return sheet_->Properties(); }
  CNemUISheet& Object() { return *sheet_; }
  CNemUIGlobalSettingsPage& Host() { return *sheet_->CurrentHost(); }
  TestPage& Page(int pageId) { return static_cast<TestPage&>(*Host().FindPage(pageId)); }
  // The number of the child page shown on the current tab.
  int CurrentId() { return Host().CurrentChild() ? Host().CurrentChild()->GetPageId() : 0; }

  INT_PTR Run(HWND owner = nullptr) { return sheet_->Run(owner); }
  SheetResult Drive(const Sheet::Body& body, HWND owner = nullptr) {
    return RunSheet([this, owner] { return Run(owner); }, body);
  }
  // With both tabs; the sheet opens on the second.
  TestSheet& OfferDocument() {
    Properties().Used[1].SetLong(1);
    return *this;
  }

 private:
  friend class TestPage;

  LanguageScope language_;
  std::map<std::pair<int, int>, PageScript> scripts_;
  std::unique_ptr<CNemUISheet> sheet_;
};

// While it lives, the platform says 1 of every sheet that has run, whatever came of it.
class PlatformSaysOne {
 public:
  PlatformSaysOne();
  ~PlatformSaysOne();
  PlatformSaysOne(const PlatformSaysOne&) = delete;
  PlatformSaysOne& operator=(const PlatformSaysOne&) = delete;
};

}  // namespace sheet_test
