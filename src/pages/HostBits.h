// The bits of two properties by which the host says what is not the user's choice. They are input only.
#pragma once

#include <cstdint>

// PrintOutput.
// The host knows by itself what becomes of the document: where it is saved, what is started, who gets it by mail. There
// is no choice of an e.pdf either.
constexpr uint16_t kHostHandlesOutput = 1;
constexpr uint16_t kShowsDuplexAndBins = 2;

// InternalUse.
constexpr uint16_t kScopeLocked = 1;
// The host sets page layout and document information, and under Word the bookmarks.
constexpr uint16_t kHostSetsDocument = 2;
constexpr uint16_t kInstancesHidden = 4;
constexpr uint16_t kNotByApplication = 16;
