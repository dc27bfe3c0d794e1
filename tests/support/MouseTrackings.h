// Who asks the system to be told when the mouse leaves.
#pragma once

#include "window/Windows.h"
// behind Windows.h
#include <gtest/gtest.h>

#include <vector>

#include "driver/ImportPatch.h"

// For its life the question is noted and goes no further: a test sends WM_MOUSELEAVE itself.
class MouseTrackings {
 public:
  explicit MouseTrackings(const char* library = "user32.dll", const char* function = "TrackMouseEvent")
      : library_(library), function_(function) {
    askers_.clear();
    EXPECT_GT(PatchImport(library_, function_, reinterpret_cast<void*>(&Note)), 0);
  }
  ~MouseTrackings() { RestoreImport(library_, function_); }
  MouseTrackings(const MouseTrackings&) = delete;
  MouseTrackings& operator=(const MouseTrackings&) = delete;

  // The windows that have asked, one entry a question; null for a question of another kind.
  const std::vector<HWND>& Askers() const { return askers_; }

 private:
  static BOOL WINAPI Note(TRACKMOUSEEVENT* tracking) {
    askers_.push_back(tracking->dwFlags == TME_LEAVE ? tracking->hwndTrack : nullptr);
    return TRUE;
  }

  inline static std::vector<HWND> askers_;
  const char* library_;
  const char* function_;
};
