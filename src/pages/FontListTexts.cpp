#include "pages/FontListTexts.h"

namespace {

constexpr wchar_t kListWithoutFonts[] = L" ";

bool Fits(const CUString& list) { return list.Length() < kFontListLimit; }

}  // namespace

FontListTexts FontListTexts::FromStored(const StoredFontList& stored) {
  FontListTexts texts;
  (stored.isEmbedList ? texts.embed : texts.neverEmbed) = stored.names;
  return texts;
}

StoredFontList FontListTexts::Stored() const {
  if (!neverEmbed.IsEmpty()) return {false, neverEmbed};
  if (!embed.IsEmpty()) return {true, embed};
  return {};
}

bool FontListTexts::ExceedTheRecord() const {
  constexpr int kTerminators = 2;
  return embed.Length() + neverEmbed.Length() + kTerminators >= kFontListLimit;
}

bool FontListTexts::AreBothTooLong() const { return !Fits(embed) && !Fits(neverEmbed); }

void FontListTexts::KeepOne() {
  CUString& kept = Fits(neverEmbed) ? neverEmbed : embed;
  CUString& dropped = Fits(neverEmbed) ? embed : neverEmbed;
  dropped = L"";
  if (kept.IsEmpty()) kept = kListWithoutFonts;
}
