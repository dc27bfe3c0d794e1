#include "sheet/COutlook2Accessibility.h"

#include <gtest/gtest.h>

#include "sheet/BarOwner.h"
#include "support/Accessible.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"

namespace {

// Parts: 1 to 3 the entries of the open folder, 4 to 6 the folders.
class COutlook2AccessibilityTest : public testing::Test {
 protected:
  COutlook2AccessibilityTest() {
    owner.FillLikeASheet();
    owner.bar->OpenFolder(1, false);
    owner.Select(111);
    owner.Settle();
  }
  void RunPosted() {
    for (MSG message; ::PeekMessageW(&message, owner.bar->Handle(), 0, 0, PM_REMOVE);) ::DispatchMessageW(&message);
  }

  ComScope com;
  BarOwner owner;
};

TEST_F(COutlook2AccessibilityTest, EntriesAndFoldersHaveNamesAndRoles) {
  const Accessible bar(owner.bar->Handle());
  ASSERT_TRUE(bar);
  EXPECT_EQ(6, bar.Count());
  EXPECT_EQ(ROLE_SYSTEM_LIST, bar.Role(0));
  const wchar_t* const names[] = {L"Second", L"Entry 110", L"Entry 111", L"Entry 112", L"First", L"Second", L"Third"};
  for (LONG part = 0; part <= 6; ++part) EXPECT_EQ(names[part], bar.Name(part));
  for (LONG part = 1; part <= 3; ++part) EXPECT_EQ(ROLE_SYSTEM_LISTITEM, bar.Role(part));
  for (LONG part = 4; part <= 6; ++part) EXPECT_EQ(ROLE_SYSTEM_PUSHBUTTON, bar.Role(part));
}

TEST_F(COutlook2AccessibilityTest, AWindowTextIsTheNameOfTheBar) {
  owner.bar->SetText(L"Pages");
  EXPECT_EQ(L"Pages", Accessible(owner.bar->Handle()).Name(0));
}

TEST_F(COutlook2AccessibilityTest, StatesTellTheCheckedEntryTheOpenFolderAndTheMouse) {
  const Accessible bar(owner.bar->Handle());
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE, bar.State(1));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_SELECTED, bar.State(2));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_COLLAPSED, bar.State(4));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_EXPANDED, bar.State(5));
  EXPECT_EQ(2, bar.Selection());
  owner.Mouse(WM_MOUSEMOVE, owner.FolderPoint(0));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_HOTTRACKED, bar.State(4));
  ::ReleaseCapture();
}

TEST_F(COutlook2AccessibilityTest, OtherKindsOfEntriesHaveTheirOwnRolesAndStates) {
  owner.Add(200, BarEntryKind::Radio);
  owner.Add(201, BarEntryKind::Check);
  owner.Add(202, BarEntryKind::Link);
  owner.bar->OpenFolder(2, false);
  owner.onProbe = [](CCmdUI& probe) {
    probe.SetRadio(probe.Id() == 200);
    probe.SetCheck(probe.Id() == 201);
  };
  owner.Settle();
  const Accessible bar(owner.bar->Handle());
  EXPECT_EQ(ROLE_SYSTEM_RADIOBUTTON, bar.Role(2));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_CHECKED, bar.State(2));
  EXPECT_EQ(ROLE_SYSTEM_CHECKBUTTON, bar.Role(3));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_CHECKED, bar.State(3));
  EXPECT_EQ(ROLE_SYSTEM_LINK, bar.Role(4));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_LINKED, bar.State(4));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE, bar.State(1));
}

TEST_F(COutlook2AccessibilityTest, TheFocusIsTheKeyboards) {
  const Accessible bar(owner.bar->Handle());
  ::SetFocus(owner.button);
  EXPECT_EQ(-1, bar.Focus());
  owner.bar->Focus();
  EXPECT_EQ(2, bar.Focus());
  owner.Press(VK_END);
  EXPECT_EQ(6, bar.Focus());
  EXPECT_TRUE(bar.State(6) & STATE_SYSTEM_FOCUSED);
  EXPECT_EQ(S_OK, bar->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(4)));
  EXPECT_EQ((BarTarget{BarHit::Folder, 0}), owner.bar->FocusedElement());
}

TEST_F(COutlook2AccessibilityTest, ElementsAreWhereTheyAreDrawn) {
  const Accessible bar(owner.bar->Handle());
  const RECT window = owner.bar->WindowRect();
  const IntRect folder = owner.bar->Model().Folder(2)->rect;
  const RECT place = bar.Location(6);
  EXPECT_EQ(window.left + folder.left, place.left);
  EXPECT_EQ(window.top + folder.top, place.top);
  EXPECT_EQ(window.left + folder.right, place.right);
  EXPECT_EQ(window.top + folder.bottom, place.bottom);
  const IntRect entry = owner.bar->Model().Entry(1, 1, 0)->rect;
  EXPECT_EQ(2, bar.HitTest({window.left + entry.left, window.top + entry.top}));
}

TEST_F(COutlook2AccessibilityTest, TheDefaultActionIsAClick) {
  const Accessible bar(owner.bar->Handle());
  EXPECT_EQ(S_OK, bar->accDoDefaultAction(Accessible::Part(3)));
  RunPosted();
  EXPECT_EQ(std::vector<int>{112}, owner.commands);
  EXPECT_EQ(S_OK, bar->accDoDefaultAction(Accessible::Part(6)));
  RunPosted();
  EXPECT_EQ((std::vector<int>{112, 120}), owner.commands);
  EXPECT_EQ(2, owner.bar->Model().OpenFolder());
  EXPECT_EQ(4, bar.Count());
  EXPECT_EQ(DISP_E_MEMBERNOTFOUND, bar->accDoDefaultAction(Accessible::Part(0)));
}

TEST_F(COutlook2AccessibilityTest, TheDefaultActionHasAWordInEachLanguage) {
  const std::pair<uint16_t, const wchar_t*> words[] = {{0x0409, L"Open"},
                                                       {0x0407,
                                                        L"\x00D6"
                                                        L"ffnen"},
                                                       {0x040C, L"Ouvrir"},
                                                       {0x0401, L"\x0641\x062A\x062D"}};
  const Accessible bar(owner.bar->Handle());
  for (const auto& [language, word] : words) {
    const LanguageScope scope(language);
    for (LONG part = 1; part <= 6; ++part) EXPECT_EQ(word, bar.Action(part)) << language;
    EXPECT_EQ(L"", bar.Action(0));
  }
}

TEST_F(COutlook2AccessibilityTest, AReaderMayOutliveTheBar) {
  const Accessible bar(owner.bar->Handle());
  owner.bar.reset();
  LONG count = 0;
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, bar->get_accChildCount(&count));
}

}  // namespace
