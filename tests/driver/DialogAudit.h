// Looks at a live page as a careful reviewer does, and says what is wrong with it.
//
// The findings are sentences for a person. A sound page gives none.
#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

struct AuditOptions {
  bool mirrored = false;  // the page belongs to a language that is written from right to left
  int dpi = 96;
  SIZE size = {};                                         // of the page's template in dialog units
  std::wstring allowedDoubleKeys = {};                    // access keys, in capitals, that may stand on the page twice
  std::vector<std::pair<int, int>> allowedOverlaps = {};  // ids of controls that lie over each other on purpose
  std::vector<std::pair<int, int>> narrowColumns = {};    // lists and their columns whose titles may be cut
};

using Findings = std::vector<std::string>;

// All of the checks below, and the mirrored style of the page, its size, its font and its controls' ids.
Findings AuditPage(HWND page, const AuditOptions& options);

// The sheet around the page: mirrored style of sheet and host, the page's controls within the host.
Findings AuditSheet(HWND sheet, HWND host, HWND page, const AuditOptions& options);

// One line a control, id and class in their order: equal in all languages.
std::string InventoryOf(HWND page);

struct AuditedControl;
namespace audit {

using Controls = std::vector<AuditedControl>;

void CheckTexts(const Controls& controls, const AuditOptions& options, Findings& findings);
void CheckPlaces(HWND page, const Controls& controls, const AuditOptions& options, Findings& findings);
void CheckAccessKeys(const Controls& controls, const AuditOptions& options, Findings& findings);
void CheckOrder(const Controls& controls, Findings& findings);
void CheckNames(const Controls& controls, Findings& findings);

// The letter behind the '&', in capitals; 0 if there is none.
wchar_t AccessKeyOf(const AuditedControl& control);

}  // namespace audit
