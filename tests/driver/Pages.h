// The pages of the settings sheet as a test from outside knows them: by number and place in the navigation bar.
#pragma once

#include <windows.h>

#include <span>

struct PageInfo {
  int id;             // number of the page, and the command that its entry in the bar sends
  DWORD helpId;       // context help id of its window
  const char* name;   // English, for file names and messages
  int folder, entry;  // place in the bar, both from 0
  SIZE size;          // of its template, in dialog units
};

constexpr int kBarId = 100;  // the navigation bar, a child of each host page
constexpr int kBarFolderCount = 7;

// In the order of the bar. The table says where a page stands when it exists; which ones do, the sheet decides.
std::span<const PageInfo> BarPages();

const PageInfo* FindPageById(int id);
const PageInfo* FindPageByHelpId(DWORD helpId);  // null also for 0, which the placeholder pages have
