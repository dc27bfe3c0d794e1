// Addresses on the maker's web site, whose name stands in the message table alone.
#pragma once

#include "DriverLIB/MessageText.h"
#include "MessageIds.h"

// A path that is the same in all languages.
inline CUString WebAddress(const wchar_t* path) { return MessageText(MSG_WEB_SITE) + path; }

// The video is offered in Germany: the ids of Austria and others do not have it, though their texts are the same. The
// language page may change the answer while a page stands.
inline bool OffersVideo() {
  constexpr uint16_t kGermanOfGermany = 0x0407;
  return GetUILanguage() == kGermanOfGermany;
}

// An address that is a message, with the web site as its insert.
inline CUString WebAddress(uint32_t messageId) { return MessageText(messageId, MessageText(MSG_WEB_SITE)); }
