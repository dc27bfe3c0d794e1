// Pictures of all pages.
#pragma once

#include <string>
#include <vector>

#include "driver/Sheet.h"

struct GalleryResult {
  std::vector<std::wstring> written;  // files
  std::vector<std::string> missing;   // pages that the sheet does not have, "formcolors" or "update (document)"
};

// Goes through all tabs and all entries of the navigation bar by mouse and writes a picture of the whole sheet for
// each page: "<directory>\<language>-<number>-<name>.png", on the second tab with "-document" behind the name. The
// sheet stays open. A cockpit with a marked row is a failure: the pictures are of the factory state.
SheetTask WriteGallery(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result);

// The cockpit of the first tab alone, as "<directory>\<language>-120-cockpit-changed.png". A row that is not marked is
// a failure, unless its page is one of those that were missing.
SheetTask WriteCockpit(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result);

// The pages with lists, filled, as "<directory>\<language>-<number>-<name>-filled.png", and the dialogs of their
// entries as "<directory>\<language>-<name>.png".
SheetTask WriteRowDialogs(Sheet& sheet, std::wstring directory, std::wstring language, GalleryResult& result);

// A dialog that is no page, as "<directory>\<language>-<name>.png". It stays open.
void WriteDialogPicture(const Sheet& dialog, const std::wstring& directory, const std::wstring& language,
                        const std::wstring& name, GalleryResult& result);
