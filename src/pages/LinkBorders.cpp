#include "pages/LinkBorders.h"

#include "MessageIds.h"

const ValueRow kLinkBorders[] = {
    {MSG_LINKS_BORDER_NONE, kNoLinkBorder, "None"}, {MSG_LINKS_BORDER_UNDERLINED, 1, "Underlined"},
    {MSG_LINKS_BORDER_RECTANGLE, 2, "Frame"},       {MSG_LINKS_BORDER_DASHED, 3, "DashedFrame"},
    {MSG_LINKS_BORDER_DOTTED, 4, "DottedFrame"},    {},
};

const LinkBorderWidth kLinkBorderWidths[kLinkBorderWidthCount] = {
    {L"\u00BD pt", 50},   {L"\u00BE pt", 75}, {L"1 pt", 100}, {L"1\u00BD pt", 150}, {L"2 pt", 200},
    {L"2\u00BD pt", 250}, {L"3 pt", 300},     {L"4 pt", 400}, {L"5 pt", 500},
};

int RowOfLinkBorderWidth(int32_t width) {
  for (int row = 0; row < kLinkBorderWidthCount; ++row)
    if (kLinkBorderWidths[row].width == width) return row;
  return 0;
}
