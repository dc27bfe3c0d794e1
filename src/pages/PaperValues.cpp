#include "pages/PaperValues.h"

#include <algorithm>

namespace {

// Whole numbers of 32 bits reach so far: what is larger stops there, for a conversion that knows no larger one.
constexpr double kLargest = 2147483647;

int32_t CutOff(double number) { return static_cast<int32_t>(std::clamp(number, -kLargest, kLargest)); }

int32_t ToThousandths(double millimetres) { return CutOff(millimetres * 1000 + 0.5); }

}  // namespace

const PaperRow* FindStoredPaper(uint32_t fields, uint16_t number) {
  return fields & kPaperSizeField ? FindPaper(number) : nullptr;
}

const PaperRow& PaperOfSize(double width, double height) {
  const PaperRow* const paper = FindPaperOfSize(ToThousandths(width), ToThousandths(height));
  return paper ? *paper : *FindPaper(kPaperUserDefined);
}

bool IsLandscape(uint32_t fields, uint16_t orientation) {
  return (fields & kOrientationField) && orientation == kLandscapeOrientation;
}

uint32_t StoredFields(uint32_t fields, uint16_t paperNumber) {
  constexpr uint32_t kSize = kPaperLengthField | kPaperWidthField;
  fields &= ~kSize;
  if (paperNumber == kPaperUserDefined) fields |= kSize;
  return fields | kOrientationField | kPaperSizeField | kScaleField;
}

uint16_t ToStoredValue(double number) { return static_cast<uint16_t>(CutOff(number)); }

uint16_t ToTenths(double millimetres) { return ToStoredValue(millimetres * 10 + 0.5); }

double ToMillimetres(uint16_t tenths) { return tenths / 10.0; }
