// The save format: a bit set that says which kinds of file are made.
#pragma once

#include <cstdint>

constexpr uint16_t kSavePdf = 1;   // or one of the special formats
constexpr uint16_t kSaveEPdf = 2;  // for reprocessing in Word
constexpr uint16_t kSaveAsk = 0x100;

enum class SaveChoice { Pdf, EPdf, Ask };

// What a stored value means. Without the e.pdf format only a PDF is left; document settings always have a format.
constexpr uint16_t NormalizeSaveFormat(uint16_t format, bool ePdfEnabled, bool globalTab) {
  if (!ePdfEnabled) format = static_cast<uint16_t>(format & ~(kSaveEPdf | kSaveAsk));
  return format == 0 && (!ePdfEnabled || !globalTab) ? kSavePdf : format;
}

// The choice that shows a value. Nothing chosen yet means to ask.
constexpr SaveChoice SaveChoiceOf(uint16_t format) {
  if (format == 0 || (format & kSaveAsk)) return SaveChoice::Ask;
  return format & kSaveEPdf ? SaveChoice::EPdf : SaveChoice::Pdf;
}

// The value behind a choice. Choosing e.pdf leaves the bit for asking alone: whoever had chosen to be asked comes back
// to that at the next showing, and gets rid of it by way of PDF only.
constexpr uint16_t WithSaveChoice(uint16_t format, SaveChoice choice) {
  switch (choice) {
    case SaveChoice::Ask:
      return format | kSaveAsk | kSaveEPdf;
    case SaveChoice::EPdf:
      return format | kSaveEPdf;
    default:
      return kSavePdf;
  }
}
