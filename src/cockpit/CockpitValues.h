// How the values of a page travel to the cockpit and back: one small struct a page, and one interface. The structs
// stand in the order of the cockpit's record, their fields in the order of the record's fields.
#pragma once

#include <cstdint>

struct GraphicCockpitValues {
  uint16_t compressMethod = 0;
  uint16_t jpegQuality = 0;
  uint16_t resolution = 0;
  uint16_t colorReduction = 0;
};

// A page that the cockpit tracks.
template <class Values>
class CockpitPage {
 public:
  // Reads the page's properties if that has not been done, and hands out its values.
  virtual void GetCockpitValues(Values& values) = 0;
  // Takes the values, except those that an administrator has fixed, and shows them if the page has a window.
  virtual void SetCockpitValues(const Values& values) = 0;

 protected:
  ~CockpitPage() = default;
};
