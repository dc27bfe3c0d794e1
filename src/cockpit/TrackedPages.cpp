#include "cockpit/TrackedPages.h"

#include "sheet/PageNumbers.h"

namespace {

template <auto Group>
struct Travel;

// `Group` is the page's part of the record.
template <class Values, Values CCockpitSettings::*Group>
struct Travel<Group> {
  static void Collect(CNemUIPage& page, CCockpitSettings& settings) {
    if (auto* tracked = dynamic_cast<CockpitPage<Values>*>(&page)) tracked->GetCockpitValues(settings.*Group);
  }
  static void Push(CNemUIPage& page, const CCockpitSettings& settings) {
    if (auto* tracked = dynamic_cast<CockpitPage<Values>*>(&page)) tracked->SetCockpitValues(settings.*Group);
  }
};

template <auto Group>
constexpr TrackedPage Track(int pageId) {
  return {pageId, &Travel<Group>::Collect, &Travel<Group>::Push};
}

constexpr TrackedPage kPages[] = {
    Track<&CCockpitSettings::graphic>(kGraphicPage),
    Track<&CCockpitSettings::paper>(kPaperPage),
    Track<&CCockpitSettings::appearance>(kAppearancePage),
    Track<&CCockpitSettings::fonts>(kFontsPage),
    Track<&CCockpitSettings::watermark>(kWatermarkPage),
    Track<&CCockpitSettings::links>(kLinksPage),
    Track<&CCockpitSettings::attachments>(kAttachmentsPage),
    Track<&CCockpitSettings::zugferd>(kZugferdPage),
    Track<&CCockpitSettings::bookmark>(kBookmarkPage),
    Track<&CCockpitSettings::saving>(kSavingPage),
    Track<&CCockpitSettings::format>(kFormatPage),
    Track<&CCockpitSettings::action>(kActionPage),
    Track<&CCockpitSettings::action>(kMailPage),  // mail: its bits of the same set
    Track<&CCockpitSettings::colors>(kColorsPage),
    Track<&CCockpitSettings::formFields>(kFormFieldsPage),
    Track<&CCockpitSettings::formFieldsColor>(kFormFieldsColorPage),
    Track<&CCockpitSettings::security>(kSecurityPage),
    Track<&CCockpitSettings::docInfo>(kDocInfoPage),
};

}  // namespace

std::span<const TrackedPage> TrackedPages() { return kPages; }
