// The installed fonts, each of which stands in one of two lists. All operations take a time that grows with the number
// of fonts and names, and no faster.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "DriverLIB/CUString.h"
#include "pages/FontListTexts.h"
#include "pages/InstalledFont.h"

enum class FontList { Embed, NeverEmbed };

constexpr FontList OtherList(FontList list) { return list == FontList::Embed ? FontList::NeverEmbed : FontList::Embed; }

class FontLists {
 public:
  struct Font {
    CUString name;
    FontPermission permission;
    FontList list;
  };

  // Names are compared exactly, here and below.
  bool Has(WideView name) const;
  // A font that is not there yet, into the list of fonts to embed. Its number.
  int Add(WideView name, FontPermission permission);
  int Count() const { return static_cast<int>(fonts_.size()); }
  const Font& operator[](int font) const { return fonts_[static_cast<size_t>(font)]; }

  void Move(int font, FontList to) { fonts_[static_cast<size_t>(font)].list = to; }
  // Afterwards `list` has the named fonts that exist, and the other one the rest. Names that do not exist count for
  // nothing.
  void Distribute(WideView names, FontList list);
  // The fonts that every system has are not embedded, all others are.
  void DistributeStandardFonts();
  // By the texts, of which that of fonts never to embed comes first. Without either all fonts are embedded.
  void Distribute(const FontListTexts& texts);
  // Fonts that may not be embedded are never embedded.
  void ExcludeForbidden();

 private:
  std::vector<Font> fonts_;
  std::unordered_map<std::wstring, int> numbers_;  // by name
};
