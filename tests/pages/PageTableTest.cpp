// What all pages have in common, each by its table.
#include <algorithm>

#include "pages/CNoDocSettingsPage.h"
#include "PageTable.h"
#include "sheet/HelpTopics.h"
#include "support/HelpSpy.h"
#include "support/PrintText.h"

namespace {

using Kind = PropertyRow::Kind;
using Values = PageUnderTest::Values;

class PageTables : public testing::TestWithParam<PageTable> {
 protected:
  static const PageTable& Table() { return GetParam(); }
  // The sets that the page edits: a placeholder edits none.
  static std::vector<int> Sets() {
    std::vector<int> sets;
    for (const int set : {0, 1}) {
      FakeSheet sheet;
      const auto page = MakeCataloguePage(&sheet, Table().pageId, set);
      if (page && !dynamic_cast<CNoDocSettingsPage*>(page.get())) sets.push_back(set);
    }
    return sets;
  }
  // All properties of the page have their first value, and what opens the row's control.
  static void Prepare(PageUnderTest& test, const PropertyRow& row) {
    for (const PropertyRow& each : Table().rows) test.Set(each.property, each.stored.front().stored);
    for (const auto& [property, value] : row.given) test.Set(property, value);
  }
  // A value that the page keeps as it is and that is not the first.
  static const StoredCase* OtherValue(const PropertyRow& row) {
    const auto found = std::find_if(row.stored.begin() + 1, row.stored.end(),
                                    [](const StoredCase& each) { return each.stored == each.saved; });
    return found == row.stored.end() ? nullptr : &*found;
  }

  static std::wstring Shown(PageUnderTest& test, const PropertyRow& row) {
    if (row.kind == Kind::kUnshown) return L"";
    if (row.kind == Kind::kCheck) return test.Control(row.controls.front()).IsChecked() ? L"on" : L"off";
    if (row.kind != Kind::kRadios) return test.Control(row.controls.front()).Text();
    std::wstring shown;
    for (size_t i = 0; i < row.controls.size(); ++i)
      if (test.Control(row.controls[i]).IsChecked()) shown += std::to_wstring(i);
    return shown;
  }
  static std::map<int, bool> EnabledControls(PageUnderTest& test) {
    std::map<int, bool> enabled;
    for (HWND child = GetWindow(test.Page().Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      enabled[GetDlgCtrlID(child)] = IsWindowEnabled(child);
    return enabled;
  }
};

// One thing that the user does with a control, and what OK stores of it.
struct UserCase {
  std::function<void(PageUnderTest&)> act;
  std::wstring saved;
};

std::vector<UserCase> UserCases(const PropertyRow& row) {
  std::vector<UserCase> cases;
  const int control = row.controls.empty() ? 0 : row.controls.front();
  switch (row.kind) {
    case Kind::kChoice:
      for (int i = 0; i + 1 < static_cast<int>(row.stored.size()); ++i)
        cases.push_back({[=](PageUnderTest& test) { test.Control(control).Select(i); }, row.stored[i].saved});
      break;
    case Kind::kCheck:
      // It is off at first.
      cases.push_back({[=](PageUnderTest& test) { test.Control(control).Click(); }, row.stored[1].saved});
      cases.push_back({[=](PageUnderTest& test) {
                         test.Control(control).Click();
                         test.Control(control).Click();
                       },
                       row.stored[0].saved});
      break;
    case Kind::kRadios:
      for (size_t i = 0; i < row.controls.size(); ++i)
        cases.push_back(
            {[id = row.controls[i]](PageUnderTest& test) { test.Control(id).Click(); }, row.stored[i].saved});
      break;
    case Kind::kField:  // typed
    case Kind::kUnshown:
      break;
  }
  return cases;
}

}  // namespace

// Cockpit, information and maintenance have no settings of their own.
constexpr int kWithoutSettings[] = {106, 107, 120, 121, 123};

TEST(PageTableList, EveryPageOfTheCatalogueHasATable) {
  for (const PageCatalogueRow& row : AllPages()) {
    if (std::ranges::count(kWithoutSettings, row.description.pageId)) continue;
    EXPECT_TRUE(std::any_of(AllPageTables().begin(), AllPageTables().end(), [&](const PageTable& table) {
      return table.pageId == row.description.pageId;
    })) << row.description.pageId;
  }
}

// --- Values --------------------------------------------------------------------------------------------------------

TEST_P(PageTables, StoredValuesAreShownAndSavedAndNothingElseIsWritten) {
  ASSERT_FALSE(Sets().empty());
  for (const int set : Sets()) {
    for (const PropertyRow& row : Table().rows) {
      for (const StoredCase& value : row.stored) {
        // The rules are the same in both sets; there the first value and a wrong one show that it is the right set.
        if (set != Sets().front() && &value != &row.stored.front() && &value != &row.stored.back()) continue;
        SCOPED_TRACE(testing::PrintToString(row.property) + " " + testing::PrintToString(value.stored) + " in set " +
                     std::to_string(set));
        PageUnderTest test(Table().pageId, set);
        Prepare(test, row);
        test.Set(row.property, value.stored);
        const Values before = test.AllValues();
        ASSERT_TRUE(test.Open());
        EXPECT_EQ(value.shown, Shown(test, row));
        EXPECT_EQ(Values(), test.ChangesSince(before)) << "showing changes nothing";
        const Values expected = value.stored == value.saved ? Values() : Values{{{set, row.property}, value.saved}};
        for (int times = 0; times < 2; ++times) {
          ASSERT_TRUE(test.Save());
          EXPECT_EQ(expected, test.ChangesSince(before));
        }
      }
    }
  }
}

TEST_P(PageTables, ListsOfferTheirRowsInOrder) {
  for (const PropertyRow& row : Table().rows) {
    if (row.kind != Kind::kChoice) continue;
    PageUnderTest test(Table().pageId, Sets().front());
    Prepare(test, row);
    ASSERT_TRUE(test.Open());
    std::vector<std::wstring> texts;
    for (const StoredCase& value : row.stored) texts.push_back(value.shown);
    texts.pop_back();  // the one in no row
    EXPECT_EQ(texts, test.Control(row.controls.front()).Rows()) << testing::PrintToString(row.property);
  }
}

TEST_P(PageTables, WhatTheUserChoosesIsSaved) {
  for (const PropertyRow& row : Table().rows) {
    if (row.chosenByHand) continue;
    for (const UserCase& user : UserCases(row)) {
      SCOPED_TRACE(testing::PrintToString(row.property) + " to " + testing::PrintToString(user.saved));
      PageUnderTest test(Table().pageId, Sets().front());
      Prepare(test, row);
      ASSERT_TRUE(test.Open());
      user.act(test);
      ASSERT_TRUE(test.Save());
      EXPECT_EQ(user.saved, test.Value(row.property));
    }
  }
}

TEST_P(PageTables, WhatTheUserTypesIsSavedWithAndWithoutLeavingTheField) {
  for (const PropertyRow& row : Table().rows) {
    for (const TypedCase& typed : row.typed) {
      SCOPED_TRACE(testing::PrintToString(row.property) + " typed " + testing::PrintToString(typed.typed));
      for (const bool leaves : {false, true}) {
        PageUnderTest test(Table().pageId, Sets().front());
        Prepare(test, row);
        ASSERT_TRUE(test.Open());
        test.Control(row.controls.front()).Focus();
        test.Control(row.controls.front()).SetText(typed.typed);
        if (leaves) {
          test.TakeFocusAway();
          EXPECT_EQ(typed.left, Shown(test, row));
        }
        ASSERT_TRUE(test.Save());
        EXPECT_EQ(typed.saved, test.Value(row.property)) << (leaves ? "left" : "not left");
      }
    }
  }
}

TEST_P(PageTables, ListsWithoutASelectionFailTheSave) {
  for (const PropertyRow& row : Table().rows) {
    if (row.kind != Kind::kChoice) continue;
    PageUnderTest test(Table().pageId, Sets().front());
    Prepare(test, row);
    test.Set(row.property, row.stored[1].stored);
    ASSERT_TRUE(test.Open());
    SendMessageW(test.Control(row.controls.front()).Window(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    EXPECT_FALSE(test.Page().UpdateData(true)) << testing::PrintToString(row.property);
    // The member has the first row's value all the same.
    test.Page().WriteProperties();
    EXPECT_EQ(row.stored.front().saved, test.Value(row.property));
  }
}

// --- The property exchange -----------------------------------------------------------------------------------------

TEST_P(PageTables, PropertiesAreReadOnce) {
  PageUnderTest test(Table().pageId, Sets().front());
  for (const PropertyRow& row : Table().rows) test.Set(row.property, row.stored.front().stored);
  test.Page().ReadProperties();
  test.Page().WriteProperties();
  const Values before = test.AllValues();
  for (const PropertyRow& row : Table().rows)
    if (const StoredCase* other = OtherValue(row)) test.Set(row.property, other->stored);
  test.Page().ReadProperties();
  test.Page().WriteProperties();
  EXPECT_EQ(Values(), test.ChangesSince(before));
}

TEST_P(PageTables, WithoutASheetThePropertyExchangeFails) {
  const PageParent parent;
  const auto page = MakeCataloguePage(nullptr, Table().pageId, Sets().front());
  EXPECT_FALSE(page->UpdateDataSuper(false));
  EXPECT_FALSE(page->UpdateDataSuper(true));
  EXPECT_FALSE(page->Create(parent.Window()));
  EXPECT_FALSE(page->IsWindow());
}

// --- What an administrator has fixed -------------------------------------------------------------------------------

TEST_P(PageTables, AnOverrideLocksItsControlsAloneAndForGood) {
  for (const int set : Sets()) {
    for (const PropertyRow& row : Table().rows) {
      if (!row.lock) continue;
      SCOPED_TRACE(testing::PrintToString(row.property));
      const auto enabledWith = [&](bool lock, int activations) {
        PageUnderTest test(Table().pageId, set);
        Prepare(test, row);
        if (lock) row.lock(test.Admin());
        EXPECT_TRUE(test.Open());
        EXPECT_EQ(row.stored.front().shown, Shown(test, row)) << "the property's value shows, not the administrator's";
        for (int i = 0; i < activations; ++i) test.Page().OnSetActive();
        EXPECT_TRUE(test.Save());
        EXPECT_EQ(row.stored.front().saved, test.Value(row.property));
        return EnabledControls(test);
      };
      auto expected = enabledWith(false, 0);
      for (const int id : row.locked) {
        EXPECT_TRUE(expected[id]) << id << " is disabled anyway";
        expected[id] = false;
      }
      EXPECT_EQ(expected, enabledWith(true, 0));
      EXPECT_EQ(expected, enabledWith(true, 2));
    }
  }
}

// --- The cockpit ---------------------------------------------------------------------------------------------------

TEST_P(PageTables, TheCockpitReadsAPageThatWasNeverShown) {
  for (const int set : Sets()) {
    for (const PropertyRow& row : Table().rows) {
      if (!row.readByCockpit || !OtherValue(row)) continue;
      PageUnderTest test(Table().pageId, set);
      Prepare(test, row);
      test.Set(row.property, OtherValue(row)->stored);
      EXPECT_EQ(OtherValue(row)->stored, row.readByCockpit(test.Page())) << testing::PrintToString(row.property);
      EXPECT_FALSE(test.Page().IsWindow());
    }
  }
}

TEST_P(PageTables, TheCockpitSetsAndShowsWhatIsNotFixed) {
  for (const PropertyRow& row : Table().rows) {
    if (!row.writeByCockpit || !OtherValue(row)) continue;
    SCOPED_TRACE(testing::PrintToString(row.property));
    const StoredCase& other = *OtherValue(row);
    for (const bool open : {false, true}) {
      PageUnderTest test(Table().pageId, Sets().front());
      Prepare(test, row);
      const Values before = test.AllValues();
      if (open) {
        ASSERT_TRUE(test.Open());
      }
      row.writeByCockpit(test.Page(), other.stored);
      if (open) {
        EXPECT_EQ(other.shown, Shown(test, row));
      }
      test.Page().WriteProperties();
      EXPECT_EQ((Values{{{Sets().front(), row.property}, other.stored}}), test.ChangesSince(before))
          << (open ? "open" : "never shown");
    }
  }
}

TEST_P(PageTables, TheCockpitLeavesAloneWhatIsFixed) {
  for (const PropertyRow& fixed : Table().rows) {
    if (!fixed.lock || !fixed.writeByCockpit) continue;
    PageUnderTest test(Table().pageId, Sets().front());
    Prepare(test, fixed);
    fixed.lock(test.Admin());
    const Values before = test.AllValues();
    Values expected;
    for (const PropertyRow& row : Table().rows) {
      if (!row.writeByCockpit || !OtherValue(row)) continue;
      row.writeByCockpit(test.Page(), OtherValue(row)->stored);
      const auto place = std::pair(Sets().front(), row.property);
      if (&row != &fixed && before.at(place) != OtherValue(row)->stored) expected[place] = OtherValue(row)->stored;
    }
    test.Page().WriteProperties();
    EXPECT_EQ(expected, test.ChangesSince(before)) << testing::PrintToString(fixed.property);
  }
}

// --- Help ----------------------------------------------------------------------------------------------------------

TEST_P(PageTables, TheLinkAndThePageLeadToTheirTopics) {
  PageUnderTest test(Table().pageId, Sets().front());
  if (!Table().rows.empty()) Prepare(test, Table().rows.front());
  test.Sheet().properties.HelpFilename.SetString(L"help.chm");
  ASSERT_TRUE(test.Open());
  HelpSpy spy;
  const auto topicOf = [](uint32_t key) {
    const wchar_t* topic = FindHelpTopic(key, false);
    return topic ? std::wstring(L"help.chm") + topic : L"no topic of " + std::to_wstring(key);
  };
  const uint32_t pageKey = test.Page().Description().templateId;
  EXPECT_EQ(pageKey, GetWindowContextHelpId(test.Page().Handle()));
  test.Page().ShowHelpForControl(0, 0);
  EXPECT_EQ(FindHelpTopic(pageKey, false) ? topicOf(pageKey) : L"help.chm", spy.TakePath());
  if (!Table().helpLink) return;
  test.Control(Table().helpLink).Click();
  EXPECT_EQ(topicOf(Table().helpLink), spy.TakePath());
}

INSTANTIATE_TEST_SUITE_P(Pages, PageTables, testing::ValuesIn(AllPageTables()),
                         [](const auto& info) { return std::string(info.param.name); });
