// The paper sizes of the paper page. The default paper, and with it the cockpit's, is one of them too.
#pragma once

#include <cstdint>

// Numbers of papers are those of a printer's device mode, but for A0 and A1: 255 and 254 are this system's own.
constexpr uint16_t kPaperLetter = 1;
constexpr uint16_t kPaperA4 = 9;
constexpr uint16_t kPaperUserDefined = 256;

struct PaperRow {
  bool inUse = false;      // false in the row that closes the table
  uint32_t messageId = 0;  // the name
  int32_t width = 0;       // thousandths of a millimetre, upright
  int32_t height = 0;
  uint16_t number = 0;
};

// 14 rows and the closing one. The row of the user-defined paper has the measures of A4.
extern const PaperRow kPaperTable[];

// The row at `index`, which is that of the page's list; null for -1 and behind the end.
const PaperRow* PaperAt(int index, const PaperRow* table = kPaperTable);

// The last row with that number among those that have a name, or null.
const PaperRow* FindPaper(uint16_t number, const PaperRow* table = kPaperTable);

// The first row of exactly that size, in thousandths of a millimetre, or null. 210 by 297 mm is A4.
const PaperRow* FindPaperOfSize(int32_t width, int32_t height, const PaperRow* table = kPaperTable);

// A4, or else Letter; the table's first row when it has none of that number.
const PaperRow& A4OrLetter(bool isA4, const PaperRow* table = kPaperTable);
