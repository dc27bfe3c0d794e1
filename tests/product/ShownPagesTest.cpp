// Which pages of a sheet touch the host's values: those that were shown, at OK. Each page has a property whose value
// here is one that no page would store, so that writing it back is seen.
#include <gtest/gtest.h>

#include "driver/Pages.h"
#include "driver/SheetDriver.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"

namespace {

struct TouchedValue {
  int pageId;
  const wchar_t* property;
  int32_t host;                          // what the host gives
  int32_t shown;                         // what the page stores when it was shown
  int control;                           // what the user clicks on
  int32_t clicked;                       // what is stored then
  WPARAM keys[2] = {};                   // what he then presses
  const wchar_t* information = nullptr;  // the box that the click brings up
  bool hasPlaceholder = false;           // in place of the page on the document's tab
};

constexpr TouchedValue kValues[] = {
    {100, L"PaperMarginCenter", 7, 1, IDC_PAPER_CENTERED, 0},
    {109, L"HideToolbar", 7, 1, IDC_APPEARANCE_HIDE_TOOLBAR, 0},
    {.pageId = 110,
     .property = L"FontsEmbedded",
     .host = 7,
     .shown = 0,
     .control = IDC_FONTS_ALL,
     .clicked = 1,
     .information =
         L"Please observe the license conditions\r\nof the character fonts' licensor when using this option."},
    {111, L"Colorspace", 7, 1, IDC_COLORS_RGB, 0},
    {117, L"EncryptOwnerPasswordEnabled", 7, 1, IDC_SECURITY_OWNER, 0},
    {115, L"ShowFormfields", 7, 1, IDC_FORM_FIELDS_CONVERT, 0},
    // Above black stands the cell for no colour.
    {116, L"FormfieldUseTextfieldBorder", 7, 1, IDC_FORM_COLORS_TEXT_BORDER, 0, {VK_UP, VK_RETURN}},
    // These two share a bit set and keep what is none of theirs.
    {102, L"StartAction", 18, 18, IDC_ACTION_VIEWER, 19, {}, nullptr, true},
    {104, L"StartAction", 17, 17, IDC_MAIL_SEND, 19, {}, nullptr, true},
    {103, L"RegistryDevmode", 7, 3, IDC_SAVING_INSTANCES, 1, {}, nullptr, true},
    {113, L"UseHyperlinkRecognition", 7, 1, IDC_LINKS_RECOGNIZE, 0},
    {114, L"EmbedFilenamesEnabled", 7, 0, IDC_ATTACHMENTS_USE, 0},  // there is no file
    {119, L"OutlineStylesEnabled", 7, 1, IDC_BOOKMARK_USE, 0},
    // Without a stationery in the list there is none to use.
    {101, L"StationeryEnabled", 7, 0, IDC_STATIONERY_USE, 0},
};

class ShownPages : public testing::TestWithParam<TouchedValue> {
 protected:
  ShownPages() {
    host_.Set(NEMPDFUI_DOCUMENT, L"Used", 1);
    for (const int set : {0, 1}) {
      host_.Set(set, L"EncryptOwnerPassword", L"x");  // an empty one may not stand beside its switch
      host_.Set(set, L"FormFieldsEnabled", 1);        // opens their pages
      host_.Set(set, GetParam().property, GetParam().host);
    }
  }

  // The value of `set` after a run in which the user does this on its tab. The other set keeps its own.
  int32_t Run(int set, bool show, bool click, int button) {
    RunSheet([&] { return host_.DoModal(); },
             [&](Sheet& sheet) -> SheetTask {
               sheet.SelectTab(set);
               co_await sheet.Settled();
               if (show) {
                 EXPECT_TRUE(sheet.SelectPage(GetParam().pageId));
                 co_await sheet.Settled();
               }
               if (click && GetParam().information)
                 sheet.ExpectBox({.title = L"Host", .text = GetParam().information, .icon = MB_ICONINFORMATION});
               if (click) {
                 sheet.Control(GetParam().control).Click();
                 for (const WPARAM key : GetParam().keys)
                   if (key) SendMessageW(GetFocus(), WM_KEYDOWN, key, 1);
               }
               sheet.Press(button);
             });
    EXPECT_EQ(GetParam().host, host_.Long(1 - set, GetParam().property));
    return host_.Long(set, GetParam().property);
  }

  HostDialog host_;
};

std::string NameOf(const testing::TestParamInfo<TouchedValue>& info) { return FindPageById(info.param.pageId)->name; }

}  // namespace

TEST_P(ShownPages, APageThatWasNeverShownKeepsTheHostsValue) {
  for (const int set : {0, 1}) EXPECT_EQ(GetParam().host, Run(set, false, false, IDOK));
}

TEST_P(ShownPages, OkStoresWhatAShownPageMakesOfIt) { EXPECT_EQ(GetParam().shown, Run(0, true, false, IDOK)); }

TEST_P(ShownPages, OkStoresWhatAShownPageOfTheDocumentMakesOfIt) {
  EXPECT_EQ(GetParam().hasPlaceholder ? GetParam().host : GetParam().shown, Run(1, true, false, IDOK));
}

TEST_P(ShownPages, OkStoresTheUsersChoice) { EXPECT_EQ(GetParam().clicked, Run(0, true, true, IDOK)); }

TEST_P(ShownPages, CancelKeepsTheHostsValue) {
  for (const int set : {0, 1}) {
    EXPECT_EQ(GetParam().host, Run(set, true, false, IDCANCEL));
    if (set == 0 || !GetParam().hasPlaceholder) {
      EXPECT_EQ(GetParam().host, Run(set, true, true, IDCANCEL));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Pages, ShownPages, testing::ValuesIn(kValues), NameOf);

// A text is stored as it stands, so that only a change shows that its page has written it.
TEST(ShownPageOfTexts, OkAloneStoresWhatTheUserTypes) {
  for (const int set : {0, 1}) {
    for (const int button : {IDCANCEL, IDOK}) {
      HostDialog host;
      host.Set(NEMPDFUI_DOCUMENT, L"Used", 1);
      for (const int each : {0, 1}) host.Set(each, L"Title", L"Report");
      RunSheet([&] { return host.DoModal(); },
               [&](Sheet& sheet) -> SheetTask {
                 sheet.SelectTab(set);
                 co_await sheet.Settled();
                 EXPECT_TRUE(sheet.SelectPage(105));
                 co_await sheet.Settled();
                 sheet.Control(IDC_DOCUMENT_INFO_TITLE).SetText(L"Invoice");
                 sheet.Press(button);
               });
      EXPECT_EQ(button == IDOK ? L"Invoice" : L"Report", host.Text(set, L"Title"));
      EXPECT_EQ(L"Report", host.Text(1 - set, L"Title"));
    }
  }
}
