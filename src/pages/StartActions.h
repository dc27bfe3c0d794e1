// The bits of StartAction. Two pages share the property: each owns some of them and leaves the others as they are.
#pragma once

#include <cstdint>

constexpr uint16_t kStartViewer = 1;
constexpr uint16_t kSendByMail = 2;
constexpr uint16_t kStartProgram = 4;
constexpr uint16_t kStartProgramBefore = 8;  // offered where TIFF files are made; kept and handed on

constexpr uint16_t kActionPageBits = kStartViewer | kStartProgram | kStartProgramBefore;
constexpr uint16_t kMailPageBits = kSendByMail;

// A stored value with a page's own bits in it.
constexpr int32_t WithStartActions(int32_t stored, uint16_t ownBits, uint16_t actions) {
  return (stored & ~int32_t{ownBits}) | (actions & ownBits);
}
