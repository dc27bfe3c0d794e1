// The confirmation of passwords alone.
#include "pages/CPwdConfirmDialog.h"

#include <gtest/gtest.h>

#include "driver/ControlRef.h"
#include "driver/DialogAudit.h"
#include "driver/Popups.h"
#include "driver/Text.h"
#include "resources/ResourceIds.h"
#include "support/ControlPictures.h"
#include "support/FakeSheet.h"
#include "support/HelpSpy.h"

namespace {

constexpr uint16_t kGerman = 0x0407, kFrench = 0x040C, kArabic = 0x0401;

constexpr wchar_t kCaption[] = L"NEM pdf AddIn UI";
constexpr int kEdits[] = {1003, 1005, 1007};
constexpr int kGood[] = {1170, 1174, 1175}, kBad[] = {1171, 1176, 1177};

ControlRef Control(HWND dialog, int id, ControlRef::Location where = ControlRef::Location::current()) {
  return {GetDlgItem(dialog, id), id, where};
}

void Press(HWND dialog, int button) { Control(dialog, button).Click(); }

// Good and bad mark of an edit.
std::pair<bool, bool> Marks(HWND dialog, int index) {
  return {Control(dialog, kGood[index]).IsVisible(), Control(dialog, kBad[index]).IsVisible()};
}
constexpr std::pair kNoMark{false, false}, kGoodMark{true, false}, kBadMark{false, true};

class PwdConfirmDialog : public testing::Test {
 protected:
  INT_PTR Run(std::initializer_list<const wchar_t*> expected, std::function<void(HWND)> drive) {
    CPwdConfirmDialog dialog(L"C:\\help.chm");
    int index = 0;
    for (const wchar_t* each : expected) dialog.expected[index++] = CUString(each);
    popups_.ExpectDialog(std::move(drive));
    return dialog.DoModal(parent_.Window());
  }
  void ExpectRefusal() {
    popups_.ExpectBox(
        {.title = kCaption, .text = L"The entered passwords couldn't be confirmed.", .icon = MB_ICONINFORMATION});
  }

  LanguageScope english_{kEnglish};
  PageParent parent_;
  Popups popups_;
};

TEST_F(PwdConfirmDialog, StartsHiddenAndUnconfirmed) {
  EXPECT_EQ(IDCANCEL, Run({L"one", L"two", L"three"}, [&](HWND dialog) {
              for (int i = 0; i < kPasswordCount; ++i) {
                EXPECT_EQ(L"", Control(dialog, kEdits[i]).Text());
                EXPECT_TRUE(Control(dialog, kEdits[i]).IsEnabled());
                EXPECT_EQ(L'*', SendDlgItemMessageW(dialog, kEdits[i], EM_GETPASSWORDCHAR, 0, 0));
                EXPECT_EQ(kBadMark, Marks(dialog, i));
              }
              EXPECT_FALSE(Control(dialog, 1172).IsChecked());
              EXPECT_TRUE(Control(dialog, 1003).HasFocus());
              EXPECT_EQ(L"Enter Password for &editing the e.pdf in MS\u00AE Word:",
                        Control(dialog, IDC_CONFIRM_EDITING_LABEL).Text());
              EXPECT_NE(0, SendMessageW(dialog, WM_GETICON, ICON_SMALL, 0));
              Press(dialog, IDCANCEL);
            }));
}

TEST_F(PwdConfirmDialog, StandsInTheMiddleOfItsParent) {
  Run({L"one"}, [&](HWND dialog) {
    RECT own, parent;
    GetWindowRect(dialog, &own);
    GetWindowRect(parent_.Window(), &parent);
    EXPECT_NEAR((own.left + own.right) / 2, std::max((parent.left + parent.right) / 2, (own.right - own.left) / 2), 1);
    EXPECT_NEAR((own.top + own.bottom) / 2, std::max((parent.top + parent.bottom) / 2, (own.bottom - own.top) / 2), 1);
    Press(dialog, IDCANCEL);
  });
}

TEST_F(PwdConfirmDialog, WhatIsNotExpectedIsDisabledAndHasNoMark) {
  for (int asked = 0; asked < kPasswordCount; ++asked) {
    const wchar_t* expected[kPasswordCount] = {L"", L"", L""};
    expected[asked] = L"one";
    EXPECT_EQ(IDOK, Run({expected[0], expected[1], expected[2]}, [&](HWND dialog) {
                for (int i = 0; i < kPasswordCount; ++i) {
                  EXPECT_EQ(i == asked, Control(dialog, kEdits[i]).IsEnabled()) << i;
                  EXPECT_EQ(i == asked ? kBadMark : kNoMark, Marks(dialog, i)) << i;
                }
                EXPECT_TRUE(Control(dialog, kEdits[asked]).HasFocus());
                Control(dialog, kEdits[asked]).SetText(L"one");
                Press(dialog, IDOK);
              }));
  }
}

TEST_F(PwdConfirmDialog, EachChangeIsJudged) {
  Run({L"one", L"two", L"three"}, [&](HWND dialog) {
    const std::pair<const wchar_t*, bool> texts[] = {{L"o", false},   {L"one", true}, {L"One", false}, {L"one ", false},
                                                     {L"two", false}, {L"one", true}, {L"", false}};
    for (const auto& [text, good] : texts) {
      Control(dialog, 1003).SetText(text);
      EXPECT_EQ(good ? kGoodMark : kBadMark, Marks(dialog, 0)) << ToUtf8(text);
      EXPECT_EQ(kBadMark, Marks(dialog, 1));
    }
    Control(dialog, 1005).SetText(L"two");
    EXPECT_EQ(kGoodMark, Marks(dialog, 1));
    Control(dialog, 1007).SetText(L"three");
    EXPECT_EQ(kGoodMark, Marks(dialog, 2));
    EXPECT_EQ(kBadMark, Marks(dialog, 0));
    Press(dialog, IDCANCEL);
  });
}

TEST_F(PwdConfirmDialog, OkTakesAllPasswordsAsExpected) {
  EXPECT_EQ(IDOK, Run({L"one", L"", L"three"}, [&](HWND dialog) {
              Control(dialog, 1003).SetText(L"one");
              Control(dialog, 1007).SetText(L"three");
              Press(dialog, IDOK);
            }));
}

TEST_F(PwdConfirmDialog, OkRefusesAnyOtherAndStays) {
  EXPECT_EQ(IDOK, Run({L"one", L"two"}, [&](HWND dialog) {
              Control(dialog, 1003).SetText(L"one");
              for (const wchar_t* wrong : {L"", L"Two", L"two ", L"tw"}) {
                Control(dialog, 1005).SetText(wrong);
                ExpectRefusal();
                Press(dialog, IDOK);
                EXPECT_TRUE(IsWindowVisible(dialog));
                EXPECT_TRUE(Control(dialog, 1005).HasFocus());
              }
              Control(dialog, 1005).SetText(L"two");
              Press(dialog, IDOK);
            }));
  EXPECT_EQ(4u, popups_.Boxes().size());
}

TEST_F(PwdConfirmDialog, OneCharacterTooManyIsWrong) {
  const std::wstring longest(31, L'x');
  EXPECT_EQ(IDCANCEL, Run({longest.c_str()}, [&](HWND dialog) {
              Control(dialog, 1003).SetText(longest + L"x");
              EXPECT_EQ(kBadMark, Marks(dialog, 0));
              ExpectRefusal();
              Press(dialog, IDOK);
              Press(dialog, IDCANCEL);
            }));
}

TEST_F(PwdConfirmDialog, PasswordsAreShownOnDemand) {
  Run({L"one", L"two", L"three"}, [&](HWND dialog) {
    for (const wchar_t character : {L'\0', L'*'}) {
      Control(dialog, 1172).Click();
      for (const int id : kEdits) EXPECT_EQ(character, SendDlgItemMessageW(dialog, id, EM_GETPASSWORDCHAR, 0, 0)) << id;
    }
    Press(dialog, IDCANCEL);
  });
}

TEST_F(PwdConfirmDialog, EachPictureStandsInItsControl) {
  Run({L"one", L"two", L"three"}, [&](HWND dialog) {
    ExpectPictures(CWnd(dialog), {{IDC_CONFIRM_PICTURE, Pictures::kKey}});
    for (const int id : kGood) ExpectPictures(CWnd(dialog), {{id, Pictures::kMarkGood}});
    for (const int id : kBad) ExpectPictures(CWnd(dialog), {{id, Pictures::kMarkBad}});
    Press(dialog, IDCANCEL);
  });
}

TEST_F(PwdConfirmDialog, HelpOpensTheFile) {
  HelpSpy spy;
  Run({L"one"}, [&](HWND dialog) {
    Press(dialog, IDHELP);
    EXPECT_EQ(L"C:\\help.chm", spy.TakePath());
    HELPINFO help{};
    help.cbSize = sizeof help;
    help.iCtrlId = 1175;  // has a topic elsewhere
    SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    EXPECT_EQ(L"C:\\help.chm", spy.TakePath());
    Press(dialog, IDCANCEL);
  });
}

TEST_F(PwdConfirmDialog, AHelpFileThatCannotBeOpenedIsTold) {
  HelpSpy spy;
  spy.succeeds = false;
  Run({L"one"}, [&](HWND dialog) {
    popups_.ExpectBox(
        {.title = kCaption, .text = L"The help file 'C:\\help.chm' cannot be found.", .icon = MB_ICONERROR});
    Press(dialog, IDHELP);
    Press(dialog, IDCANCEL);
  });
}

// The size is that of the template, and each text has room.
TEST_F(PwdConfirmDialog, IsSoundInEachLanguage) {
  for (const uint16_t language : {kEnglish, kGerman, kFrench, kArabic}) {
    const LanguageScope scope(language);
    Run({L"one", L"two", L"three"}, [&](HWND dialog) {
      EXPECT_EQ(Findings(), AuditPage(dialog, {.mirrored = language == kArabic, .size = {290, 139}})) << language;
      Press(dialog, IDCANCEL);
    });
  }
}

}  // namespace
