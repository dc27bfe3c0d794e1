#include "pages/FontLists.h"

#include "DriverLIB/TextLists.h"

namespace {

constexpr wchar_t kStandardFonts[] =
    L"Arial;Arial Black;Comic Sans MS;Courier New;Estrangelo Edessa;Franklin Gothic Medium;Gautami;Georgia;Impact;"
    L"Latha;Lucida Console;Microsoft Sans Serif;Modern;MV Boli;Palatino Linotype;Symbol;Tahoma;Times New Roman;"
    L"Trebuchet MS;Tunga;Verdana;Webdings;Wingdings";

}  // namespace

bool FontLists::Has(WideView name) const { return numbers_.contains(std::wstring(name)); }

int FontLists::Add(WideView name, FontPermission permission) {
  const int font = Count();
  numbers_.emplace(name, font);
  fonts_.push_back({CUString(name), permission, FontList::Embed});
  return font;
}

void FontLists::Distribute(WideView names, FontList list) {
  for (Font& font : fonts_) font.list = OtherList(list);
  CUStringArray split;
  SplitList(names, split, kFontSeparator);
  for (int i = 0; i < split.Count(); ++i)
    if (const auto found = numbers_.find(std::wstring(split[i].View())); found != numbers_.end())
      Move(found->second, list);
}

void FontLists::DistributeStandardFonts() { Distribute(kStandardFonts, FontList::NeverEmbed); }

void FontLists::Distribute(const FontListTexts& texts) {
  if (texts.neverEmbed.IsEmpty() && !texts.embed.IsEmpty())
    Distribute(texts.embed, FontList::Embed);
  else
    Distribute(texts.neverEmbed, FontList::NeverEmbed);
}

void FontLists::ExcludeForbidden() {
  for (Font& font : fonts_)
    if (!MayBeEmbedded(font.permission)) font.list = FontList::NeverEmbed;
}
