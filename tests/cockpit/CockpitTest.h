// The cockpit page among stand-ins for the pages that it tracks.
#pragma once

#include "window/Windows.h"
// behind Windows.h
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "cockpit/CNemUICockpitPage.h"
#include "driver/ControlRef.h"
#include "driver/Popups.h"
#include "MessageIds.h"
#include "resources/ResourceIds.h"
#include "support/FakeSheet.h"

namespace cockpit_test {

constexpr PageDescription kCockpit{IDD_COCKPIT_PAGE, 0, MSG_PAGE_COCKPIT, 120, 321, 322};

// A row as it is laid down.
struct Row {
  int linkId;
  const wchar_t* caption;
  int pageId;
  int groupId;
};

constexpr Row kRows[] = {
    {1413, L"Graphical Optimization", 108, IDC_COCKPIT_FILE_SIZE_GROUP},
    {1414, L"Page", 100, IDC_COCKPIT_LAYOUT_GROUP},
    {1415, L"Display", 109, IDC_COCKPIT_LAYOUT_GROUP},
    {1412, L"Fonts", 110, IDC_COCKPIT_LAYOUT_GROUP},
    {1416, L"Stationery Paper", 101, IDC_COCKPIT_LAYOUT_GROUP},
    {1417, L"Links", 113, IDC_COCKPIT_LAYOUT_GROUP},
    {1470, L"Attachments", 114, IDC_COCKPIT_LAYOUT_GROUP},
    {1418, L"Bookmark", 119, IDC_COCKPIT_LAYOUT_GROUP},
    {1419, L"Saving", 103, IDC_COCKPIT_OUTPUT_GROUP},
    {1420, L"Output format", 118, IDC_COCKPIT_OUTPUT_GROUP},
    {1421, L"Actions", 102, IDC_COCKPIT_OUTPUT_GROUP},
    {1422, L"E-Mail", 104, IDC_COCKPIT_OUTPUT_GROUP},
    {1423, L"Colorspace", 111, IDC_COCKPIT_OUTPUT_GROUP},
    {1454, L"ZUGFeRD invoice", 112, IDC_COCKPIT_OUTPUT_GROUP},
    {1424, L"Fields", 115, IDC_COCKPIT_FORM_GROUP},
    {1425, L"Color settings", 116, IDC_COCKPIT_FORM_GROUP},
    {1426, L"Security", 117, IDC_COCKPIT_SECURITY_GROUP},
    {1427, L"Document Info", 105, IDC_COCKPIT_SECURITY_GROUP},
};

constexpr int SquareId(int category) { return IDC_COCKPIT_FIRST_SQUARE + category - 1; }
constexpr int LinkId(int category) { return kRows[category - 1].linkId; }
constexpr int TextId(int category) { return IDC_COCKPIT_FIRST_TEXT + category - 1; }

// What the pages of a test hold, and what was done to them.
struct Settings {
  CCockpitSettings values{IsA4()};
  std::set<int> fixed;  // pages that an administrator has fixed whole
  std::vector<std::string> log;

  // The default paper of this system.
  static bool IsA4();
};

// A page that the cockpit tracks, without settings of its own: they stand in the test's record.
template <class Values, Values CCockpitSettings::*Group, int Bits = 0>
class StandIn : public CNemUIPage, public CockpitPage<Values> {
 public:
  StandIn(int pageId, Settings& settings)
      : CNemUIPage({IDD_NO_DOC_SETTINGS_PAGE, 0, MSG_PAGE_INFO, pageId}), settings_(settings) {}

  CUString GetHelpFilename() override { return {}; }
  CUString GetMsgBoxTitle() override { return {}; }
  bool ExchangeProperties(CDataExchange&) override { return true; }
  void WriteProperties() override { Note("write"); }

  void GetCockpitValues(Values& values) override {
    Note("get");
    Take(values, settings_.values.*Group);
  }
  void SetCockpitValues(const Values& values) override {
    Note("set");
    if (!settings_.fixed.contains(GetPageId())) Take(settings_.values.*Group, values);
  }

 private:
  // A page that shares its values with another one moves its own bits alone.
  static void Take(Values& target, const Values& source) {
    if constexpr (Bits == 0)
      target = source;
    else
      target.startAction = static_cast<uint16_t>((target.startAction & ~Bits) | (source.startAction & Bits));
  }
  void Note(const char* what) { settings_.log.push_back(what + (' ' + std::to_string(GetPageId()))); }

  Settings& settings_;
};

// All eighteen, in the order of the record.
std::vector<std::unique_ptr<CNemUIPage>> MakeStandIns(Settings& settings);

class CockpitTest : public testing::Test {
 protected:
  // A cockpit of this set.
  explicit CockpitTest(int set = 0);

  void Open() { Open(page_); }
  void Open(CNemUICockpitPage& page);
  // As when the user comes back to the page.
  void Refresh() { ASSERT_TRUE(page_.UpdateData(false)); }

  CWnd Item(int id) const { return CWnd(page_.Handle()).Item(id); }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) const {
    return {Item(id).Handle(), id, where};
  }
  const CCockpitDiff& Square(int category) const;
  std::wstring RowText(int category) const { return Item(TextId(category)).Text().Text(); }
  std::set<int> MarkedRows() const;
  void ChangeAll();

  // The note that is shown, or null.
  const CToolTipBox* Note() const;
  void MoveMouse(int x, int y) const { page_.Send(WM_MOUSEMOVE, 0, MAKELPARAM(x, y)); }
  POINT MiddleOf(int id) const;

  LanguageScope english_{kEnglish};
  Settings settings_;
  FakeSheet sheet_;
  std::vector<std::unique_ptr<CNemUIPage>> pages_ = MakeStandIns(settings_);
  PageParent parent_;
  CNemUICockpitPage page_;
};

class CockpitRestore : public CockpitTest {
 protected:
  using CockpitTest::CockpitTest;

  // Asks for the factory state and answers the question.
  void Restore(int button);

  Popups popups_;
};

}  // namespace cockpit_test
