// What tests of the native build may tell the platform.
#pragma once

#include <cstdint>
#include <span>

namespace platform {

// An entry of the message table, in the notation of the platform's message compiler. A neutral language id, such as 9,
// serves all languages of that family, as the search of a resource does.
struct NativeMessage {
  uint32_t id;
  uint16_t language;
  const wchar_t* text;
};

// Switches to an ANSI code page with double-byte characters, which Windows has in East Asia, and back to 1252. In it a
// byte from 0x81 to 0x9F and the next one make up a character from 0x4E00 on; all other bytes stand for themselves.
void SetNativeDoubleByteCodePage(bool doubleByte);

// Sets the message table of all modules. The entries are borrowed until the next call.
void SetNativeMessages(std::span<const NativeMessage> messages);

}  // namespace platform
