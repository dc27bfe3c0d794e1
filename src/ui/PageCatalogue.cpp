#include "ui/PageCatalogue.h"

#include "cockpit/CNemUICockpitPage.h"
#include "MessageIds.h"
#include "pages/CNemUIActionPage.h"
#include "pages/CNemUIAttachmentsPage.h"
#include "pages/CNemUIBookmarkPage.h"
#include "pages/CNemUIColorsPage.h"
#include "pages/CNemUIDocInfoPage.h"
#include "pages/CNemUIFormatPage.h"
#include "pages/CNemUIFormFieldsColorPage.h"
#include "pages/CNemUIFormFieldsPage.h"
#include "pages/CNemUIInfoPage.h"
#include "pages/CNemUILangPage.h"
#include "pages/CNemUILinksPage.h"
#include "pages/CNemUIMailPage.h"
#include "pages/CNemUINoDocSettingsPage.h"
#include "pages/CNemUIPaperPage.h"
#include "pages/CNemUIPdfAppearancePage.h"
#include "pages/CNemUIPdfFontsPage.h"
#include "pages/CNemUIPdfGraphicPage.h"
#include "pages/CNemUIPdfSecurityPage.h"
#include "pages/CNemUIProgramPage.h"
#include "pages/CNemUIStatisticsPage.h"
#include "pages/CNemUIUpdatePage.h"
#include "pages/CNemUIWatermarkPage.h"
#include "pages/CNemUIZugferdPage.h"
#include "resources/ResourceIds.h"
#include "sheet/PageNumbers.h"

namespace {

template <class Page>
std::unique_ptr<CNemUIPage> Make(SheetServices* sheet, const PageDescription& description, int settingsIndex) {
  return std::make_unique<Page>(sheet, description, settingsIndex);
}

// On the document tab a placeholder stands in for a page that has settings of new documents only. It has the page's
// caption, images and number, and a template of its own.
constexpr PageFactory kPlaceholder = Make<CNemUINoDocSettingsPage>;

constexpr PageCatalogueRow kPages[] = {
    {{IDD_PAPER_PAGE, 0, MSG_PAGE_PAPER, kPaperPage, 263, 264}, Make<CNemUIPaperPage>, Make<CNemUIPaperPage>},
    {{IDD_GRAPHIC_PAGE, 0, MSG_PAGE_GRAPHICAL_OPTIMIZATION, kGraphicPage, 251, 252},
     Make<CNemUIPdfGraphicPage>,
     Make<CNemUIPdfGraphicPage>},
    {{IDD_APPEARANCE_PAGE, 0, MSG_PAGE_DISPLAY, kAppearancePage, 235, 236},
     Make<CNemUIPdfAppearancePage>,
     Make<CNemUIPdfAppearancePage>},
    {{IDD_WATERMARK_PAGE, 0, MSG_PAGE_WATERMARK, kWatermarkPage, 233, 234},
     Make<CNemUIWatermarkPage>,
     Make<CNemUIWatermarkPage>},
    {{IDD_COLORSPACE_PAGE, 0, MSG_PAGE_COLORSPACE, kColorsPage, 239, 240},
     Make<CNemUIColorsPage>,
     Make<CNemUIColorsPage>},
    {{IDD_LINKS_PAGE, 0, MSG_PAGE_LINKS, kLinksPage, 261, 262}, Make<CNemUILinksPage>, Make<CNemUILinksPage>},
    {{IDD_ATTACHMENTS_PAGE, 0, MSG_PAGE_ATTACHMENTS, kAttachmentsPage, 343, 344},
     Make<CNemUIAttachmentsPage>,
     Make<CNemUIAttachmentsPage>},
    {{IDD_ZUGFERD_PAGE, 0, MSG_PAGE_ZUGFERD_INVOICE, kZugferdPage, 245, 246},
     Make<CNemUIZugferdPage>,
     Make<CNemUIZugferdPage>},
    {{IDD_FONTS_PAGE, 0, MSG_PAGE_FONTS, kFontsPage, 269, 271}, Make<CNemUIPdfFontsPage>, Make<CNemUIPdfFontsPage>},
    {{IDD_SECURITY_PAGE, 0, MSG_PAGE_PDF_SECURITY, kSecurityPage, 267, 268},
     Make<CNemUIPdfSecurityPage>,
     Make<CNemUIPdfSecurityPage>},
    {{IDD_FORM_FIELDS_PAGE, 0, MSG_PAGE_FIELDS, kFormFieldsPage, 245, 246},
     Make<CNemUIFormFieldsPage>,
     Make<CNemUIFormFieldsPage>},
    {{IDD_FORM_FIELDS_COLOR_PAGE, 0, MSG_PAGE_COLOR_SETTINGS, kFormFieldsColorPage, 239, 240},
     Make<CNemUIFormFieldsColorPage>,
     Make<CNemUIFormFieldsColorPage>},
    {{IDD_FORMAT_PAGE, 0, MSG_PAGE_OUTPUT_FORMAT, kFormatPage, 284, 285},
     Make<CNemUIFormatPage>,
     Make<CNemUIFormatPage>},
    {{IDD_BOOKMARK_PAGE, 0, MSG_PAGE_BOOKMARK, kBookmarkPage, 286, 287},
     Make<CNemUIBookmarkPage>,
     Make<CNemUIBookmarkPage>},
    {{IDD_COCKPIT_PAGE, 0, MSG_PAGE_COCKPIT, kCockpitPage, 321, 322}, Make<CNemUICockpitPage>, Make<CNemUICockpitPage>},
    {{IDD_DOCUMENT_INFO_PAGE, 0, MSG_PAGE_DOCUMENT_INFO, kDocInfoPage, 241, 242},
     Make<CNemUIDocInfoPage>,
     Make<CNemUIDocInfoPage>},
    {{IDD_ACTION_PAGE, 0, MSG_PAGE_ACTIONS, kActionPage, 237, 238}, Make<CNemUIActionPage>, kPlaceholder},
    {{IDD_MAIL_PAGE, 0, MSG_PAGE_MAIL, kMailPage, 243, 244}, Make<CNemUIMailPage>, kPlaceholder},
    {{IDD_SAVING_PAGE, 0, MSG_PAGE_SAVING, kSavingPage, 255, 256}, Make<CNemUIProgramPage>, kPlaceholder},
    {{IDD_INFO_PAGE, 0, MSG_PAGE_INFO, kInfoPage, 257, 258}, Make<CNemUIInfoPage>, kPlaceholder},
    {{IDD_LANGUAGE_PAGE, 0, MSG_PAGE_LANGUAGE, kLanguagePage, 319, 318}, Make<CNemUILangPage>, nullptr},
    {{IDD_UPDATE_PAGE, 0, MSG_PAGE_UPDATE, kUpdatePage, 328, 330}, Make<CNemUIUpdatePage>, nullptr},
    {{IDD_STATISTICS_PAGE, 0, MSG_PAGE_STATISTICS, kStatisticsPage, 257, 258}, Make<CNemUIStatisticsPage>, nullptr},
};

}  // namespace

PageCatalogue AllPages() { return kPages; }
