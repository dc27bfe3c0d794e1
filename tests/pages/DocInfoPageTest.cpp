#include "controls/CImageStatic.h"
#include "DriverLIB/Identity.h"
#include "environment/HostApplication.h"
#include "LongText.h"
#include "pages/CDocInfoPage.h"
#include "PageTable.h"
#include "resources/ResourceIds.h"
#include "support/ControlPictures.h"
#include "support/HostProgramScope.h"
#include "support/PrintText.h"
#include "support/WordHost.h"

namespace {

constexpr int kPageId = kDocInfoPage;

using Values = DocInfoCockpitValues;

const PageTable kTable = {
    .name = "DocInfo",
    .pageId = kPageId,
    .rows =
        {
            Field(L"Title", IDC_DOCUMENT_INFO_TITLE)
                .Stores(
                    {{L"Report", L"Report", L"Report"}, {L"Q&A 100% ", L"Q&A 100% ", L"Q&A 100% "}, {L"", L"", L""}})
                .Types({{L"Invoice", L"Invoice", L"Invoice"}, {L"", L"", L""}})
                .LockedBy<&AdminSettings::Title_Override>({IDC_DOCUMENT_INFO_TITLE})
                .Tracked<&Values::title>(),
            Field(L"Author", IDC_DOCUMENT_INFO_AUTHOR)
                .Stores({{L"Miller & Sons", L"Miller & Sons", L"Miller & Sons"}, {L"", L"", L""}})
                .Types({{L"me", L"me", L"me"}, {L"", L"", L""}})
                .LockedBy<&AdminSettings::Author_Override>({IDC_DOCUMENT_INFO_AUTHOR})
                .Tracked<&Values::author>(),
            Field(L"Subject", IDC_DOCUMENT_INFO_SUBJECT)
                .Stores({{L"one\r\ntwo", L"one\r\ntwo", L"one\r\ntwo"}, {L"", L"", L""}})
                .Types({{L"three", L"three", L"three"}, {L"", L"", L""}})
                .LockedBy<&AdminSettings::Subject_Override>({IDC_DOCUMENT_INFO_SUBJECT})
                .Tracked<&Values::subject>(),
            Field(L"Keywords", IDC_DOCUMENT_INFO_KEYWORDS)
                .Stores({{L"a, b", L"a, b", L"a, b"}, {L"", L"", L""}})
                .Types({{L"c", L"c", L"c"}, {L"", L"", L""}})
                .LockedBy<&AdminSettings::Keywords_Override>({IDC_DOCUMENT_INFO_KEYWORDS})
                .Tracked<&Values::keywords>(),
        },
};
const PageTableEntry entry(kTable);

constexpr const wchar_t* kProperties[] = {L"Title", L"Author", L"Subject", L"Keywords"};
constexpr int kEdits[] = {1073, 1070, 1071, 1072};

class DocInfoPage : public testing::Test {
 protected:
  DocInfoPage() { NewPage(); }

  void NewPage() {
    test_ = std::make_unique<PageUnderTest>(kPageId);
    for (const wchar_t* property : kProperties) test_->Set(property, std::wstring(L"My ") + property);
  }
  bool Open() { return test_->Open(); }
  ControlRef Control(int id, ControlRef::Location where = ControlRef::Location::current()) {
    return test_->Control(id, where);
  }
  bool IsShown(int id) { return CWnd(Control(id).Window()).IsShown(); }
  std::vector<int> Enabled() { return test_->Enabled(kEdits); }

  std::unique_ptr<PageUnderTest> test_;
};

TEST_F(DocInfoPage, TextsOfAnyLengthCanBeTyped) {
  ASSERT_TRUE(Open());
  for (const int id : kEdits)
    EXPECT_LE(0x7FFFFFFEu, static_cast<UINT>(SendMessageW(Control(id).Window(), EM_GETLIMITTEXT, 0, 0))) << id;
  for (size_t i = 0; i < std::size(kEdits); ++i) {
    const bool hasLines = (GetWindowLongPtrW(Control(kEdits[i]).Window(), GWL_STYLE) & ES_MULTILINE) != 0;
    const std::wstring& longText = hasLines ? kLongText : kLongLine;
    NewPage();
    test_->Set(kProperties[i], longText);
    ASSERT_TRUE(Open());
    ASSERT_TRUE(test_->Save());
    EXPECT_TRUE(longText == test_->Value(kProperties[i])) << kEdits[i];
  }
}

TEST_F(DocInfoPage, EnterBreaksTheLineOfSubjectAndKeywords) {
  ASSERT_TRUE(Open());
  for (const int id : {1071, 1072}) {
    SendMessageW(Control(id).Window(), EM_SETSEL, 0, 2);
    SendMessageW(Control(id).Window(), WM_CHAR, L'\r', 0);
  }
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"\r\n Subject", test_->Value(L"Subject"));
  EXPECT_EQ(L"\r\n Keywords", test_->Value(L"Keywords"));
}

TEST_F(DocInfoPage, WhatItOnlyReadsIsNotWritten) {
  test_->Set(L"InternalUse", 0x10010);
  const auto before = test_->AllValues();
  ASSERT_TRUE(Open());
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(PageUnderTest::Values(), test_->ChangesSince(before)) << "not even the 16 bits of it";
}

// --- Programs ------------------------------------------------------------------------------------------------------

TEST_F(DocInfoPage, TheProgramsThatMakeTheDocumentAreTold) {
  ASSERT_TRUE(Open());
  const std::wstring host = GetHostApplicationName(true).Text();
  EXPECT_TRUE(host.starts_with(L"pages_tests.exe")) << testing::PrintToString(host);
  EXPECT_EQ(host + L" - NEM pdf vonder 2.10.4", Control(1074).Text());
  EXPECT_EQ(L"NEM pdf vonder", Control(1075).Text());
}

TEST_F(DocInfoPage, WithoutANameOfTheHostTheProductStandsAlone) {
  const HostProgramScope nameless(L"");
  ASSERT_TRUE(Open());
  EXPECT_EQ(L"NEM pdf vonder 2.10.4", Control(1074).Text());
}

TEST_F(DocInfoPage, AnOfficeProgramIsCalledByItsName) {
  if (!IsInWord()) return RunInWord();
  test_->Set(L"InternalUse", 2);
  ASSERT_TRUE(Open());
  EXPECT_TRUE(Control(1074).Text().starts_with(L"Microsoft\u00AE Word"))
      << testing::PrintToString(Control(1074).Text());
  EXPECT_TRUE(Control(1074).Text().ends_with(L" - NEM pdf vonder 2.10.4"));
  EXPECT_EQ(L"Change the document properties via application (WINWORD.EXE)", Control(1096).Text());
}

TEST_F(DocInfoPage, TheWordProcessorAloneClosesNothing) {
  if (!IsInWord()) return RunInWord();
  ASSERT_TRUE(Open());
  EXPECT_EQ(std::vector<int>(std::begin(kEdits), std::end(kEdits)), Enabled());
  EXPECT_FALSE(IsShown(1096));
}

TEST_F(DocInfoPage, OnePairOfLinesIsShown) {
  ASSERT_TRUE(Open());
  for (const int id : {1101, 1074, 1102, 1075}) EXPECT_TRUE(IsShown(id)) << id;
  for (const int id : {1103, 1105, 1104, 1106}) EXPECT_FALSE(IsShown(id)) << id;
}

TEST_F(DocInfoPage, TheVersionIsThatOfTheComponent) {
  EXPECT_TRUE(std::wstring_view(kVersionText).starts_with(std::wstring(kProductVersion) + L" "));
}

// --- Properties of the host ----------------------------------------------------------------------------------------

TEST_F(DocInfoPage, TextsThatTheHostSetsAreClosedAndThePageSaysSo) {
  for (const int use : {0, 1, 2, 3, 4, 16, 21, 0xFFFF}) {
    NewPage();
    test_->Set(L"InternalUse", use);
    ASSERT_TRUE(Open());
    const bool open = (use & 2) == 0;
    EXPECT_EQ(open ? std::vector<int>(std::begin(kEdits), std::end(kEdits)) : std::vector<int>(), Enabled()) << use;
    for (const int id : {1096, 1162}) EXPECT_EQ(!open, IsShown(id)) << use;
  }
  EXPECT_EQ(L"Change the document properties via application (pages_tests.exe)", Control(1096).Text());
  auto* const sign = dynamic_cast<CImageStatic*>(CSubclassedControl::FromHandle(Control(1162).Window()));
  EXPECT_TRUE(sign && sign->IsLoaded());
  ExpectPictures(test_->Page(), {{1162, Pictures::kSignWarning16}});
}

TEST_F(DocInfoPage, EachTabObeysTheHostInItsOwnSet) {
  for (const int set : {0, 1})
    for (const bool own : {false, true}) {
      PageUnderTest test(kPageId, set);
      for (const int each : {0, 1}) test.Sheet().properties.InternalUse[each].SetLong((each == set) == own ? 2 : 0);
      ASSERT_TRUE(test.Open());
      EXPECT_EQ(!own, test.Control(1073).IsEnabled()) << set;
    }
}

TEST_F(DocInfoPage, TextsThatTheHostSetsAreShownAndGoBack) {
  test_->Set(L"InternalUse", 2);
  const auto before = test_->AllValues();
  ASSERT_TRUE(Open());
  EXPECT_EQ(L"My Title", Control(1073).Text());
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(PageUnderTest::Values(), test_->ChangesSince(before));
}

TEST_F(DocInfoPage, TheCockpitSeesThemAndSetsNone) {
  for (const int use : {2, 3}) {
    NewPage();
    test_->Set(L"InternalUse", use);
    const auto before = test_->AllValues();
    ASSERT_TRUE(Open());
    Values values;
    test_->As<CDocInfoPage>().GetCockpitValues(values);
    EXPECT_EQ(L"My Title", values.title);
    EXPECT_EQ(L"My Keywords", values.keywords);
    test_->As<CDocInfoPage>().SetCockpitValues({});
    EXPECT_EQ(L"My Title", Control(1073).Text());
    test_->Page().WriteProperties();
    EXPECT_EQ(PageUnderTest::Values(), test_->ChangesSince(before));
  }
}

TEST_F(DocInfoPage, ALockHoldsUnderTheHostsPropertiesToo) {
  test_->Set(L"InternalUse", 2);
  test_->Admin().Author_Override = L"Miller";
  ASSERT_TRUE(Open());
  EXPECT_EQ(std::vector<int>(), Enabled());
  EXPECT_EQ(L"My Author", Control(1070).Text());
}

TEST_F(DocInfoPage, ALockedTitleStaysWhenTheCockpitRestores) {
  test_->Admin().Title_Override = L"Fixed";
  ASSERT_TRUE(Open());
  test_->As<CDocInfoPage>().SetCockpitValues({});
  EXPECT_EQ(L"My Title", Control(1073).Text());
  EXPECT_EQ(L"", Control(1070).Text());
  EXPECT_FALSE(Control(1073).IsEnabled());
  ASSERT_TRUE(test_->Save());
  EXPECT_EQ(L"My Title", test_->Value(L"Title"));
  EXPECT_EQ(L"", test_->Value(L"Keywords"));
}

}  // namespace
