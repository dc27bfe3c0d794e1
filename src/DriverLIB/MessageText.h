// The library's single road to text that a user reads: its message table, and the system's error texts.
#pragma once

#include <concepts>
#include <cstdint>

#include "DriverLIB/CUString.h"
#include "DriverLIB/Platform.h"

// The library's own module (an HMODULE), the source of all texts and templates. Written at process attach.
void* ModuleInstance();
void SetModuleInstance(void* module);

constexpr uint16_t kEnglish = 0x0409;

// The language of all texts, a language id. English until it is set at process attach; 0 leaves it unchanged.
uint16_t GetUILanguage();
void SetUILanguage(uint16_t language);

constexpr uint16_t PrimaryLanguage(uint16_t language) { return language & 0x3FF; }

// Arabic has many language ids; all of them read from right to left.
constexpr bool IsRightToLeft(uint16_t language) { return PrimaryLanguage(language) == 0x01; }

// The values that a message inserts for "%1!s!", "%2!d!" and so on: wide texts and whole numbers. An insert that the
// message wants and nobody passed is an empty text, so that the formatter never reads past its arguments. The texts
// must outlive the object.
class MessageInserts {
 public:
  template <typename... Values>
  explicit MessageInserts(const Values&... values) : slots_{ToSlot(values)...} {
    static_assert(sizeof...(Values) <= platform::kMaxMessageInserts);
    for (size_t i = sizeof...(Values); i < platform::kMaxMessageInserts; ++i) slots_[i] = ToSlot(L"");
  }

  const uintptr_t* Slots() const { return slots_; }

 private:
  static uintptr_t ToSlot(const wchar_t* text) { return reinterpret_cast<uintptr_t>(text ? text : L""); }
  static uintptr_t ToSlot(const CUString& text) { return ToSlot(text.Text()); }
  template <std::integral Number>
  static uintptr_t ToSlot(Number number) {
    return static_cast<uintptr_t>(static_cast<intptr_t>(number));
  }

  uintptr_t slots_[platform::kMaxMessageInserts];
};

// Writes message `id` of `module` in the UI language, at most `bufferChars` - 1 characters, terminated. An entry that
// a translator left open ("XX") and one that is missing come in English; one that exists in no language gives an empty
// text. False only without a buffer.
bool FormatMsgLang(void* module, wchar_t* buffer, int bufferChars, uint32_t id, const MessageInserts& inserts);

// The same into a string. It keeps room for kMessageCapacity characters; inserts may point into it.
constexpr int kMessageCapacity = 32768;
bool LoadMsgTextV(CUString& text, void* module, uint32_t id, const MessageInserts& inserts);

template <typename... Values>
bool LoadMsgText(CUString& text, void* module, uint32_t id, const Values&... values) {
  return LoadMsgTextV(text, module, id, MessageInserts(values...));
}

// A message of the library's own table, in a string that is no larger than its text: in `language` or else English.
CUString MessageTextIn(uint16_t language, uint32_t id, const MessageInserts& inserts = MessageInserts());

template <typename... Values>
CUString MessageText(uint32_t id, const Values&... values) {
  return MessageTextIn(GetUILanguage(), id, MessageInserts(values...));
}

// The platform's text for a system error in the user's language, at most 256 characters without a line break at their
// end, or "Kein Fehlertext".
void GetSystemErrorText(CUString& text, uint32_t code);
