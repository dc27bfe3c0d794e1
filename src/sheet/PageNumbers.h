// The numbers of the pages: what FindPage and ActivatePage take, and the commands of the navigation bar's entries.
#pragma once

constexpr int kPaperPage = 100;
constexpr int kWatermarkPage = 101;
constexpr int kActionPage = 102;
constexpr int kSavingPage = 103;
constexpr int kMailPage = 104;
constexpr int kDocInfoPage = 105;
constexpr int kInfoPage = 106;
constexpr int kLanguagePage = 107;
constexpr int kGraphicPage = 108;
constexpr int kAppearancePage = 109;
constexpr int kFontsPage = 110;
constexpr int kColorsPage = 111;
constexpr int kZugferdPage = 112;
constexpr int kLinksPage = 113;
constexpr int kAttachmentsPage = 114;
constexpr int kFormFieldsPage = 115;
constexpr int kFormFieldsColorPage = 116;
constexpr int kSecurityPage = 117;
constexpr int kFormatPage = 118;
constexpr int kBookmarkPage = 119;
constexpr int kCockpitPage = 120;
constexpr int kUpdatePage = 121;
constexpr int kStatisticsPage = 123;

// The commands of the bar are the numbers of this range.
constexpr int kFirstPageId = kPaperPage;
constexpr int kLastPageId = kStatisticsPage;
