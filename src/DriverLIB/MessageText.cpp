#include "DriverLIB/MessageText.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

// Written at process attach only, before other threads can enter.
void* moduleInstance = nullptr;
// The user may choose another one while other threads show their sheets. Nothing else hangs on its value.
std::atomic<uint16_t> uiLanguage = kEnglish;

// The message in `language`. The table's languages are primary ones without a country, and whether a search for
// German as spoken in Germany finds plain German is the platform's choice, so both are asked for.
int FormatIn(uint16_t language, void* module, wchar_t* buffer, int bufferChars, uint32_t id,
             const MessageInserts& inserts) {
  const int length = platform::FormatMessageText(module, id, language, inserts.Slots(), buffer, bufferChars);
  const uint16_t primary = PrimaryLanguage(language);
  if (length > 0 || primary == language) return length;
  return platform::FormatMessageText(module, id, primary, inserts.Slots(), buffer, bufferChars);
}

bool IsLeftOpen(const wchar_t* text, int length) { return length == 2 && text[0] == L'X' && text[1] == L'X'; }

// The message in `language`, or else in English; empty when it has neither. `bufferChars` is at least 1.
void FormatInOrEnglish(uint16_t language, void* module, wchar_t* buffer, int bufferChars, uint32_t id,
                       const MessageInserts& inserts) {
  int length = FormatIn(language, module, buffer, bufferChars, id, inserts);
  if ((length <= 0 || IsLeftOpen(buffer, length)) && language != kEnglish)
    length = FormatIn(kEnglish, module, buffer, bufferChars, id, inserts);
  buffer[std::clamp(length, 0, bufferChars - 1)] = L'\0';
}

}  // namespace

void* ModuleInstance() { return moduleInstance; }

void SetModuleInstance(void* module) { moduleInstance = module; }

uint16_t GetUILanguage() { return uiLanguage.load(std::memory_order_relaxed); }

void SetUILanguage(uint16_t language) {
  if (language != 0) uiLanguage.store(language, std::memory_order_relaxed);
}

bool FormatMsgLang(void* module, wchar_t* buffer, int bufferChars, uint32_t id, const MessageInserts& inserts) {
  if (!buffer || bufferChars <= 0) return false;
  FormatInOrEnglish(GetUILanguage(), module, buffer, bufferChars, id, inserts);
  return true;
}

bool LoadMsgTextV(CUString& text, void* module, uint32_t id, const MessageInserts& inserts) {
  // A buffer of its own, since an insert may be the very text that is being replaced.
  CUString message;
  message.EnsureCapacity(kMessageCapacity);
  const bool loaded = FormatMsgLang(module, message.Buffer(), kMessageCapacity, id, inserts);
  message.ReleaseBuffer(-1);
  text = std::move(message);
  return loaded;
}

CUString MessageTextIn(uint16_t language, uint32_t id, const MessageInserts& inserts) {
  wchar_t buffer[1024];  // nearly every text fits
  constexpr int kSize = static_cast<int>(std::size(buffer));
  FormatInOrEnglish(language, moduleInstance, buffer, kSize, id, inserts);
  const std::wstring_view text = buffer;
  if (text.size() < kSize - 1) return CUString(text);
  CUString whole;
  whole.EnsureCapacity(kMessageCapacity);
  FormatInOrEnglish(language, moduleInstance, whole.Buffer(), kMessageCapacity, id, inserts);
  whole.ReleaseBuffer(-1);
  return CUString(whole.View());
}

void GetSystemErrorText(CUString& text, uint32_t code) {
  constexpr int kMaxLength = 256;
  wchar_t buffer[kMaxLength + 1];
  int length = platform::SystemErrorText(code, buffer, kMaxLength + 1);
  // The system ends its texts with a line break, which would tear a trace line in two.
  while (length > 0 && (buffer[length - 1] == L'\r' || buffer[length - 1] == L'\n')) --length;
  if (length > 0) buffer[length] = L'\0';
  text.Assign(length > 0 ? buffer : L"Kein Fehlertext");
}
