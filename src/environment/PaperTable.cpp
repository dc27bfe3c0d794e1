#include "environment/PaperTable.h"

#include "MessageIds.h"

const PaperRow kPaperTable[] = {
    {true, MSG_PAPER_LETTER, 215900, 279400, kPaperLetter},
    {true, MSG_PAPER_LEGAL, 215900, 355600, 5},
    {true, MSG_PAPER_EXECUTIVE, 184900, 266700, 7},  // not quite 7 1/4 inch, which is known to others and stays
    {true, MSG_PAPER_A0, 841000, 1189000, 255},
    {true, MSG_PAPER_A1, 594000, 841000, 254},
    {true, MSG_PAPER_A2, 420000, 594000, 66},
    {true, MSG_PAPER_A3, 297000, 420000, 8},
    {true, MSG_PAPER_A3_EXTRA_TRANSVERSE, 322000, 455000, 68},
    {true, MSG_PAPER_A4, 210000, 297000, kPaperA4},
    {true, MSG_PAPER_A5, 148000, 210000, 11},
    {true, MSG_PAPER_A6, 105000, 148000, 70},
    {true, MSG_PAPER_B4, 250000, 354000, 12},
    {true, MSG_PAPER_B5, 182000, 257000, 13},
    {true, MSG_PAPER_USER_DEFINED, 210000, 297000, kPaperUserDefined},
    {},
};

const PaperRow* PaperAt(int index, const PaperRow* table) {
  if (index < 0) return nullptr;
  for (; table->inUse; ++table, --index)
    if (index == 0) return table;
  return nullptr;
}

const PaperRow* FindPaper(uint16_t number, const PaperRow* table) {
  const PaperRow* found = nullptr;
  for (; table->inUse; ++table)
    if (table->messageId && table->number == number) found = table;
  return found;
}

const PaperRow* FindPaperOfSize(int32_t width, int32_t height, const PaperRow* table) {
  for (; table->inUse; ++table)
    if (table->width == width && table->height == height) return table;
  return nullptr;
}

const PaperRow& A4OrLetter(bool isA4, const PaperRow* table) {
  const PaperRow* const paper = FindPaper(isA4 ? kPaperA4 : kPaperLetter, table);
  return paper ? *paper : *table;
}
