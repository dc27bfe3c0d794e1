#include "pages/CNemUIMailPage.h"

#include "driver/Popups.h"
#include "LongText.h"
#include "MessageIds.h"
#include "pages/CActionPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"

namespace {

// A text of the mail: any length, and empty as well.
PropertyRow MailText(const wchar_t* property, int edit, const std::wstring& longest = kLongLine) {
  return Field(property, edit)
      .Stores({{L"first", L"first", L"first"},
               {L"", L"", L""},
               {L"a@example.com; \u00E4 \u0645", L"a@example.com; \u00E4 \u0645", L"a@example.com; \u00E4 \u0645"},
               {longest.c_str(), longest, longest.c_str()}})
      .Types({{L"someone", L"someone", L"someone"}, {L"", L"", L""}})
      .Given({{L"StartAction", 2}});
}

const PageTable kTable = {
    .name = "Mail",
    .pageId = kMailPage,
    .rows =
        {
            CheckBoxOfBit(L"StartAction", IDC_MAIL_SEND, 2)
                .LockedBy<&AdminSettings::StartActionMailCheck_Override>({IDC_MAIL_SEND})
                .Tracked<&MailCockpitValues::startAction>(),
            CheckBox(L"MailSendImmediate", IDC_MAIL_IMMEDIATELY)
                .Given({{L"StartAction", 2}})
                .LockedBy<&AdminSettings::MailSendImmediate_Override>({IDC_MAIL_IMMEDIATELY}),
            MailText(L"MailRecipient", IDC_MAIL_RECIPIENT)
                .LockedBy<&AdminSettings::MailRecipient_Override>({IDC_MAIL_RECIPIENT, IDC_MAIL_RECIPIENT_LABEL}),
            MailText(L"MailSubject", IDC_MAIL_SUBJECT)
                .LockedBy<&AdminSettings::MailSubject_Override>({IDC_MAIL_SUBJECT, IDC_MAIL_SUBJECT_LABEL}),
            MailText(L"MailNotetext", IDC_MAIL_NOTE, kLongText)
                .Stores({{L"one\r\ntwo\r\n", L"one\r\ntwo\r\n", L"one\r\ntwo\r\n"}})
                .LockedBy<&AdminSettings::MailNoteText_Override>({IDC_MAIL_NOTE, IDC_MAIL_NOTE_LABEL}),
        },
};
const PageTableEntry entry(kTable);

constexpr int kLabels[] = {IDC_MAIL_RECIPIENT_LABEL, IDC_MAIL_SUBJECT_LABEL, IDC_MAIL_NOTE_LABEL};
constexpr int kFields[] = {IDC_MAIL_IMMEDIATELY, IDC_MAIL_RECIPIENT, IDC_MAIL_SUBJECT, IDC_MAIL_NOTE};
constexpr PageDescription kDescription{IDD_MAIL_PAGE, 0, MSG_PAGE_MAIL, 104, 243, 244};

class MailPage : public testing::Test {
 protected:
  void ExpectFields(bool open) {
    for (const int id : kFields) EXPECT_EQ(open, test_.Control(id).IsEnabled()) << id;
    for (const int id : kLabels) EXPECT_TRUE(test_.Control(id).IsEnabled()) << id;
    EXPECT_TRUE(test_.Control(IDC_MAIL_SEND).IsEnabled());
  }

  Popups popups_;
  PageUnderTest test_{kMailPage};
};

TEST_F(MailPage, TheFieldsAreOpenWhileTheMailIsSent) {
  test_.Set(L"StartAction", 15);
  ASSERT_TRUE(test_.Open());
  ExpectFields(true);
  test_.Control(IDC_MAIL_SEND).Click();
  ExpectFields(false);
  test_.Control(IDC_MAIL_SEND).Click();
  ExpectFields(true);
}

TEST_F(MailPage, TheFieldsAreClosedAtFirstWithoutIt) {
  test_.Set(L"StartAction", 13);
  ASSERT_TRUE(test_.Open());
  ExpectFields(false);
}

TEST_F(MailPage, WhatIsFixedStaysClosedWhenTheMailIsChecked) {
  test_.Admin().MailSendImmediate_Override = 1;
  test_.Admin().MailRecipient_Override = L"a";
  test_.Admin().MailSubject_Override = L"b";
  test_.Admin().MailNoteText_Override = L"c";
  ASSERT_TRUE(test_.Open());
  test_.Control(IDC_MAIL_SEND).Click();
  for (const int id : kFields) EXPECT_FALSE(test_.Control(id).IsEnabled()) << id;
  for (const int id : kLabels) EXPECT_FALSE(test_.Control(id).IsEnabled()) << id;
  EXPECT_EQ(L"", test_.Control(IDC_MAIL_RECIPIENT).Text()) << "the property's value shows";
}

TEST_F(MailPage, AFixedCheckLeavesTheFieldsToWhatItShows) {
  test_.Set(L"StartAction", 2);
  test_.Admin().StartActionMailCheck_Override = 0;
  ASSERT_TRUE(test_.Open());
  EXPECT_FALSE(test_.Control(IDC_MAIL_SEND).IsEnabled());
  for (const int id : kFields) EXPECT_TRUE(test_.Control(id).IsEnabled()) << id;
}

TEST_F(MailPage, WithoutAFileThereIsNothingToSend) {
  for (const int32_t output : {1, 3, 0x10001}) {
    PageUnderTest test(kMailPage);
    test.Set(L"PrintOutput", output);
    test.Set(L"StartAction", 2);
    test.Set(L"MailSubject", L"kept");
    const auto before = test.AllValues();
    ASSERT_TRUE(test.Open());
    EXPECT_EQ(std::vector<int>(), EnabledChildren(test.Page().Handle()));
    EXPECT_TRUE(test.Save());
    EXPECT_EQ(PageUnderTest::Values(), test.ChangesSince(before));
  }
  test_.Set(L"PrintOutput", 2);
  test_.Set(L"StartAction", 2);
  ASSERT_TRUE(test_.Open());
  ExpectFields(true);
}

TEST_F(MailPage, NothingCanBeSetForADocument) {
  FakeSheet sheet;
  PageParent parent;
  sheet.properties.StartAction[1].SetLong(2);
  CNemUIMailPage page(&sheet, kDescription, 1);
  ASSERT_TRUE(page.Create(parent.Window()));
  EXPECT_EQ(std::vector<int>(), EnabledChildren(page.Handle()));
}

TEST_F(MailPage, AMailWithoutARecipientIsSaved) {
  test_.Set(L"StartAction", 2);
  ASSERT_TRUE(test_.Open());
  EXPECT_TRUE(test_.Page().OnKillActive());
  EXPECT_TRUE(popups_.Boxes().empty());
}

TEST_F(MailPage, KeepsTheBitsOfTheActionPageAndAllThatItDoesNotKnow) {
  test_.Set(L"StartAction", 1 | 2 | 16);
  ASSERT_TRUE(test_.Open());
  test_.Set(L"StartAction", 2 | 4 | 8 | 0x20000);  // another page has stored something meanwhile
  test_.Control(IDC_MAIL_SEND).Click();
  ASSERT_TRUE(test_.Save());
  EXPECT_EQ(std::to_wstring(4 | 8 | 0x20000), test_.Value(L"StartAction"));
}

TEST_F(MailPage, TheCockpitGetsAndSetsTheOneBit) {
  test_.Set(L"StartAction", 2 | 4);
  ASSERT_TRUE(test_.Open());
  auto& page = test_.As<CMailPage>();
  MailCockpitValues values{.startAction = 1};
  page.GetCockpitValues(values);
  EXPECT_EQ(1 | 2, values.startAction);
  page.SetCockpitValues({.startAction = 13});
  EXPECT_EQ(0, page.startAction);
  ExpectFields(false);
  values.startAction = 15;
  page.GetCockpitValues(values);
  EXPECT_EQ(13, values.startAction);
}

// Both pages of one sheet, in either order, store their bits side by side.
TEST_F(MailPage, BothPagesStoreTheirBits) {
  for (const bool mailFirst : {false, true}) {
    FakeSheet sheet;
    sheet.properties.StartAction[0].SetLong(16);
    const auto action = MakeCataloguePage(&sheet, kActionPage, 0), mail = MakeCataloguePage(&sheet, kMailPage, 0);
    action->ReadProperties();
    mail->ReadProperties();
    dynamic_cast<CActionPage&>(*action).SetCockpitValues({.startAction = 15});
    dynamic_cast<CMailPage&>(*mail).SetCockpitValues({.startAction = 15});
    (mailFirst ? *mail : *action).WriteProperties();
    (mailFirst ? *action : *mail).WriteProperties();
    EXPECT_EQ(31, sheet.properties.StartAction[0].GetLong());
  }
}

}  // namespace
