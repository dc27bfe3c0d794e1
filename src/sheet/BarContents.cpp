#include "sheet/BarContents.h"

#include "MessageIds.h"
#include "sheet/PageNumbers.h"

namespace {

constexpr BarEntryRow kCockpit[] = {
    {MSG_PAGE_COCKPIT, kCockpitPage, 321, 322},
};
constexpr BarEntryRow kFileSize[] = {
    {MSG_PAGE_GRAPHICAL_OPTIMIZATION, kGraphicPage, 251, 252},
};
constexpr BarEntryRow kLayout[] = {
    {MSG_PAGE_PAPER, kPaperPage, 263, 264},       {MSG_PAGE_DISPLAY, kAppearancePage, 235, 236},
    {MSG_PAGE_FONTS, kFontsPage, 269, 271},       {MSG_ENTRY_STATIONERY_PAPER, kWatermarkPage, 233, 234},
    {MSG_PAGE_LINKS, kLinksPage, 261, 262},       {MSG_PAGE_ATTACHMENTS, kAttachmentsPage, 343, 344},
    {MSG_PAGE_BOOKMARK, kBookmarkPage, 286, 287},
};
constexpr BarEntryRow kOutput[] = {
    {MSG_PAGE_SAVING, kSavingPage, 255, 256},     {MSG_PAGE_OUTPUT_FORMAT, kFormatPage, 284, 285},
    {MSG_PAGE_ACTIONS, kActionPage, 237, 238},    {MSG_PAGE_MAIL, kMailPage, 243, 244},
    {MSG_PAGE_COLORSPACE, kColorsPage, 239, 240}, {MSG_PAGE_ZUGFERD_INVOICE, kZugferdPage, 286, 287},
};
constexpr BarEntryRow kForm[] = {
    {MSG_PAGE_FIELDS, kFormFieldsPage, 245, 246},
    {MSG_PAGE_COLOR_SETTINGS, kFormFieldsColorPage, 239, 240},
};
constexpr BarEntryRow kSecurity[] = {
    {MSG_FOLDER_SECURITY, kSecurityPage, 267, 268},
    {MSG_PAGE_DOCUMENT_INFO, kDocInfoPage, 241, 242},
};
constexpr BarEntryRow kInfo[] = {
    {MSG_PAGE_INFO, kInfoPage, 257, 258},
    {MSG_PAGE_LANGUAGE, kLanguagePage, 319, 318},
    {MSG_PAGE_UPDATE, kUpdatePage, 328, 330},
    {MSG_PAGE_STATISTICS, kStatisticsPage, 257, 258},
};

constexpr BarFolderRow kFolders[] = {
    {MSG_PAGE_COCKPIT, 321, 322, kCockpit}, {MSG_FOLDER_FILE_SIZE, 249, 250, kFileSize},
    {MSG_FOLDER_LAYOUT, 253, 254, kLayout}, {MSG_FOLDER_OUTPUT, 284, 285, kOutput},
    {MSG_FOLDER_FORM, 247, 248, kForm},     {MSG_FOLDER_SECURITY, 265, 266, kSecurity},
    {MSG_PAGE_INFO, 257, 258, kInfo},
};

// A page that stands in for another one on the document tab comes behind all others, in this order too.
constexpr int kTabOrder[] = {kCockpitPage,         kGraphicPage,   kAppearancePage, kColorsPage,   kLinksPage,
                             kAttachmentsPage,     kZugferdPage,   kFontsPage,      kSecurityPage, kFormFieldsPage,
                             kFormFieldsColorPage, kFormatPage,    kBookmarkPage,   kUpdatePage,   kStatisticsPage,
                             kPaperPage,           kWatermarkPage, kDocInfoPage,    kActionPage,   kMailPage,
                             kSavingPage,          kLanguagePage,  kInfoPage};

}  // namespace

std::span<const BarFolderRow> BarFolders() { return kFolders; }

std::span<const int> TabOrder() { return kTabOrder; }
