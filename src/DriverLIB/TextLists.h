#pragma once

#include "DriverLIB/CUStringArray.h"

// Splits `text` at every `separator`, which may be longer than one character, into `array`, whose former elements
// go. Empty pieces are dropped. With an empty separator the whole text is one piece. `text` may belong to `array`.
void SplitList(WideView text, CUStringArray& array, WideView separator);

// The same for a list whose entries may stand in quotation marks and then hold separators: the text is cut behind
// each closing mark with its separator; a piece that begins or ends with a mark loses the marks at both ends and is
// one element, any other is split with SplitList.
void SplitQuotedList(WideView text, CUStringArray& array, WideView separator);
