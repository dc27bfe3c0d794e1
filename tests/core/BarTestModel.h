// A navigation bar without a window, for the tests of its contents and of its layout.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "sheet/BarModel.h"

inline void PrintTo(const IntRect& rect, std::ostream* out) {
  *out << '{' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << '}';
}

inline void PrintTo(const BarTarget& target, std::ostream* out) {
  *out << static_cast<int>(target.hit) << '/' << target.folder << '/' << target.group << '/' << target.entry;
}

constexpr BarTarget FolderTarget(int folder) { return {BarHit::Folder, folder}; }
constexpr BarTarget GroupTarget(int folder, int group) { return {BarHit::Group, folder, group}; }
constexpr BarTarget EntryTarget(int folder, int group, int entry) { return {BarHit::Entry, folder, group, entry}; }

// Folders as the settings sheet has them: each entry in a nameless group of its own.
inline BarModel MakeSheetBar() {
  BarModel model;
  int command = 100;
  for (const int entries : {1, 1, 7, 6, 2, 2, 4}) {
    model.AddFolder(L"Folder", 0);
    for (int i = 0; i < entries; ++i) {
      model.AddGroup(L"", 0);
      model.AddEntry(L"Entry", BarEntryKind::Plain, command++);
    }
  }
  return model;
}
