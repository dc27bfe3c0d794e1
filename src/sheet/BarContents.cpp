#include "sheet/BarContents.h"

#include "MessageIds.h"

namespace {

constexpr BarEntryRow kCockpit[] = {
    {MSG_PAGE_COCKPIT, 120, 321, 322},
};
constexpr BarEntryRow kFileSize[] = {
    {MSG_PAGE_GRAPHICAL_OPTIMIZATION, 108, 251, 252},
};
constexpr BarEntryRow kLayout[] = {
    {MSG_PAGE_PAPER, 100, 263, 264},    {MSG_PAGE_DISPLAY, 109, 235, 236},
    {MSG_PAGE_FONTS, 110, 269, 271},    {MSG_ENTRY_STATIONERY_PAPER, 101, 233, 234},
    {MSG_PAGE_LINKS, 113, 261, 262},    {MSG_PAGE_ATTACHMENTS, 114, 343, 344},
    {MSG_PAGE_BOOKMARK, 119, 286, 287},
};
constexpr BarEntryRow kOutput[] = {
    {MSG_PAGE_SAVING, 103, 255, 256},     {MSG_PAGE_OUTPUT_FORMAT, 118, 284, 285},
    {MSG_PAGE_ACTIONS, 102, 237, 238},    {MSG_PAGE_MAIL, 104, 243, 244},
    {MSG_PAGE_COLORSPACE, 111, 239, 240}, {MSG_PAGE_ZUGFERD_INVOICE, 112, 286, 287},
};
constexpr BarEntryRow kForm[] = {
    {MSG_PAGE_FIELDS, 115, 245, 246},
    {MSG_PAGE_COLOR_SETTINGS, 116, 239, 240},
};
constexpr BarEntryRow kSecurity[] = {
    {MSG_FOLDER_SECURITY, 117, 267, 268},
    {MSG_PAGE_DOCUMENT_INFO, 105, 241, 242},
};
constexpr BarEntryRow kInfo[] = {
    {MSG_PAGE_INFO, 106, 257, 258},
    {MSG_PAGE_LANGUAGE, 107, 319, 318},
    {MSG_PAGE_UPDATE, 121, 328, 330},
    {MSG_PAGE_STATISTICS, 123, 257, 258},
};

constexpr BarFolderRow kFolders[] = {
    {MSG_PAGE_COCKPIT, 321, 322, kCockpit}, {MSG_FOLDER_FILE_SIZE, 249, 250, kFileSize},
    {MSG_FOLDER_LAYOUT, 253, 254, kLayout}, {MSG_FOLDER_OUTPUT, 284, 285, kOutput},
    {MSG_FOLDER_FORM, 247, 248, kForm},     {MSG_FOLDER_SECURITY, 265, 266, kSecurity},
    {MSG_PAGE_INFO, 257, 258, kInfo},
};

// A page that stands in for another one on the document tab comes behind all others, in this order too.
constexpr int kTabOrder[] = {120, 108, 109, 111, 113, 114, 112, 110, 117, 115, 116, 118,
                             119, 121, 123, 100, 101, 105, 102, 104, 103, 107, 106};

}  // namespace

std::span<const BarFolderRow> BarFolders() { return kFolders; }

std::span<const int> TabOrder() { return kTabOrder; }
