// Edits with a number that the user may type with one decimal place.
#pragma once

#include "window/CWnd.h"
#include "window/MessageMap.h"

// What such an edit may hold. A number outside of the range, and a text of `room` characters or more, is replaced by
// `fallback` without a word.
struct NumberRule {
  int room = 0;
  double minimum = 0;
  double maximum = 0;
  double fallback = 0;
};

// Replaces what breaks the rule, and gives the number that then stands in the edit, rounded to one decimal place.
double CorrectNumber(const CWnd& dialog, int id, const NumberRule& rule);

// The row of a message table that corrects the edit when the keyboard leaves it.
template <const NumberRule& Rule>
constexpr MessageRow CorrectWhenLeft(int id) {
  return {WM_COMMAND, EN_KILLFOCUS, id, id, [](CMessageTarget&, WindowMessage& message) {
            CorrectNumber(CWnd(message.window), message.CommandId(), Rule);
            return true;
          }};
}

// Shows a number with no more decimal places than it has.
void ShowNumber(const CWnd& dialog, int id, double number);
