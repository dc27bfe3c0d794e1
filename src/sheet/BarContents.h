// Folders and entries of the navigation bar, the same on every tab.
#pragma once

#include <cstdint>
#include <span>

struct BarEntryRow {
  uint32_t textId;
  int pageId;  // the entry's command: the page that it selects
  uint32_t imageId;
  uint32_t maskId;
};

struct BarFolderRow {
  uint32_t textId;
  uint32_t imageId;
  uint32_t maskId;
  std::span<const BarEntryRow> entries;
};

std::span<const BarFolderRow> BarFolders();

// Page numbers in the order in which the tab control holds the pages; the first that exists is shown first.
std::span<const int> TabOrder();
