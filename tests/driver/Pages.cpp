#include "driver/Pages.h"

namespace {

constexpr SIZE kPageSize = {275, 245};

constexpr PageInfo kPages[] = {
    {120, 1365, "cockpit", 0, 0, {275, 257}},  {108, 141, "graphic", 1, 0, kPageSize},
    {100, 144, "paper", 2, 0, kPageSize},      {109, 142, "appearance", 2, 1, kPageSize},
    {110, 138, "fonts", 2, 2, kPageSize},      {101, 139, "watermark", 2, 3, kPageSize},
    {113, 190, "links", 2, 4, kPageSize},      {114, 342, "attachments", 2, 5, kPageSize},
    {119, 194, "bookmark", 2, 6, kPageSize},   {103, 145, "saving", 3, 0, kPageSize},
    {118, 192, "format", 3, 1, kPageSize},     {102, 143, "action", 3, 2, kPageSize},
    {104, 189, "mail", 3, 3, kPageSize},       {111, 196, "colorspace", 3, 4, kPageSize},
    {112, 350, "zugferd", 3, 5, kPageSize},    {115, 181, "formfields", 4, 0, kPageSize},
    {116, 183, "formcolors", 4, 1, kPageSize}, {117, 140, "security", 5, 0, kPageSize},
    {105, 147, "docinfo", 5, 1, kPageSize},    {106, 146, "info", 6, 0, {275, 225}},
    {107, 1366, "language", 6, 1, kPageSize},  {121, 1367, "update", 6, 2, kPageSize},
    {123, 347, "statistics", 6, 3, kPageSize},
};

template <typename Predicate>
const PageInfo* Find(Predicate predicate) {
  for (const PageInfo& page : kPages)
    if (predicate(page)) return &page;
  return nullptr;
}

}  // namespace

std::span<const PageInfo> BarPages() { return kPages; }

const PageInfo* FindPageById(int id) {
  return Find([id](const PageInfo& page) { return page.id == id; });
}

const PageInfo* FindPageByHelpId(DWORD helpId) {
  return helpId == 0 ? nullptr : Find([helpId](const PageInfo& page) { return page.helpId == helpId; });
}
