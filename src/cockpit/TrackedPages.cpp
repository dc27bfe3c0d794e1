#include "cockpit/TrackedPages.h"

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
    Track<&CCockpitSettings::graphic>(108),         Track<&CCockpitSettings::paper>(100),
    Track<&CCockpitSettings::appearance>(109),      Track<&CCockpitSettings::fonts>(110),
    Track<&CCockpitSettings::watermark>(101),       Track<&CCockpitSettings::links>(113),
    Track<&CCockpitSettings::attachments>(114),     Track<&CCockpitSettings::zugferd>(112),
    Track<&CCockpitSettings::bookmark>(119),        Track<&CCockpitSettings::saving>(103),
    Track<&CCockpitSettings::format>(118),          Track<&CCockpitSettings::action>(102),
    Track<&CCockpitSettings::action>(104),  // mail: its bits of the same set
    Track<&CCockpitSettings::colors>(111),          Track<&CCockpitSettings::formFields>(115),
    Track<&CCockpitSettings::formFieldsColor>(116), Track<&CCockpitSettings::security>(117),
    Track<&CCockpitSettings::docInfo>(105),
};

}  // namespace

std::span<const TrackedPage> TrackedPages() { return kPages; }
