// The message table of the native build, filled by tests.
#include <algorithm>
#include <string>
#include <string_view>

#include "DriverLIB/NativeFormat.h"
#include "DriverLIB/Platform.h"
#include "DriverLIB/PlatformNative.h"

namespace platform {

namespace {

std::span<const NativeMessage> nativeMessages;

// The search of a resource: the language itself, then the neutral language of its family.
const NativeMessage* FindMessage(uint32_t id, uint16_t language) {
  for (const uint16_t wanted : {language, static_cast<uint16_t>(language & 0x3FF)})
    for (const NativeMessage& message : nativeMessages)
      if (message.id == id && message.language == wanted) return &message;
  return nullptr;
}

// Expands what stands behind a "%" and a digit other than 0: the insert's number and, between "!", its format.
std::wstring ExpandInsert(std::wstring_view& rest, const uintptr_t* inserts) {
  size_t number = 0;
  while (!rest.empty() && rest.front() >= L'0' && rest.front() <= L'9' && number < 10) {
    number = number * 10 + static_cast<size_t>(rest.front() - L'0');
    rest.remove_prefix(1);
  }
  std::wstring format = L"%s";
  if (rest.starts_with(L'!')) {
    const size_t end = std::min(rest.find(L'!', 1), rest.size());
    format = L"%" + std::wstring(rest.substr(1, end - 1));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  if (number > kMaxMessageInserts) return {};
  SingleArgument argument(inserts[number - 1]);
  std::wstring expanded(0x10000, L'\0');
  FormatText(expanded.data(), expanded.size(), format.c_str(), argument);
  expanded.resize(expanded.find(L'\0'));
  return expanded;
}

std::wstring ExpandMessage(std::wstring_view rest, const uintptr_t* inserts) {
  std::wstring message;
  while (!rest.empty()) {
    const wchar_t character = rest.front();
    rest.remove_prefix(1);
    if (character != L'%' || rest.empty()) {
      message += character;
      continue;
    }
    const wchar_t escape = rest.front();
    if (escape >= L'1' && escape <= L'9') {
      message += ExpandInsert(rest, inserts);
      continue;
    }
    rest.remove_prefix(1);
    if (escape == L'0') break;
    switch (escape) {
      case L'n':
        message += L"\r\n";
        break;
      case L'r':
        message += L'\r';
        break;
      case L't':
        message += L'\t';
        break;
      case L'b':
        message += L' ';
        break;
      default:
        message += escape;
    }
  }
  return message;
}

}  // namespace

void SetNativeMessages(std::span<const NativeMessage> messages) { nativeMessages = messages; }

int FormatMessageText(void*, uint32_t id, uint16_t language, const uintptr_t* inserts, wchar_t* buffer, int capacity) {
  if (!buffer || capacity <= 0) return 0;
  const NativeMessage* message = FindMessage(id, language);
  const std::wstring text = message ? ExpandMessage(message->text, inserts) : std::wstring();
  const size_t length = text.copy(buffer, static_cast<size_t>(capacity - 1));
  buffer[length] = L'\0';
  return static_cast<int>(length);
}

}  // namespace platform
