// The property StartAction, which two pages share: each exchanges the bits that are its own (cockpit/CockpitValues.h).
#pragma once

#include <cstdint>

#include "cockpit/CockpitValues.h"
#include "ui/CDialogProperties.h"

// A stored value with a page's own bits in it.
constexpr int32_t WithStartActions(int32_t stored, uint16_t ownBits, uint16_t actions) {
  return (stored & ~int32_t{ownBits}) | (actions & ownBits);
}

inline uint16_t ReadStartActions(const CDialogProperties& properties, int settingsIndex, uint16_t ownBits) {
  return static_cast<uint16_t>(properties.StartAction[settingsIndex].GetLong() & ownBits);
}

inline void WriteStartActions(CDialogProperties& properties, int settingsIndex, uint16_t ownBits, uint16_t actions) {
  CProperty& stored = properties.StartAction[settingsIndex];
  stored.SetLong(WithStartActions(stored.GetLong(), ownBits, actions));
}
