// A message table of the test's own.
#pragma once

#include "DriverLIB/PlatformNative.h"

#include <initializer_list>
#include <vector>

#ifdef _WIN32
#include <windows.h>

#include <cstring>
#include <map>
#include <string>
#include <string_view>
#endif

class TestMessages {
 public:
  using Message = platform::NativeMessage;

  TestMessages(std::initializer_list<Message> messages) : messages_(messages) { Build(); }
  ~TestMessages();
  TestMessages(const TestMessages&) = delete;
  TestMessages& operator=(const TestMessages&) = delete;

  // What to hand to the functions under test.
  void* Module() const { return module_; }

 private:
  void Build();

  std::vector<Message> messages_;
  void* module_ = nullptr;
};

#ifdef _WIN32

// The program's file is copied, its resources are replaced by the table, and the copy is mapped as data.
inline void TestMessages::Build() {
  std::map<uint16_t, std::map<uint32_t, std::wstring_view>> tables;
  for (const Message& message : messages_) tables[message.language][message.id] = message.text;

  wchar_t program[MAX_PATH];
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  constexpr wchar_t kCopy[] = L"test_messages.dll";
  CopyFileW(program, kCopy, FALSE);
  const HANDLE update = BeginUpdateResourceW(kCopy, TRUE);
  for (const auto& [language, table] : tables) {
    std::string blocks, entries;
    const auto append = [](std::string& target, auto value) {
      target.append(reinterpret_cast<const char*>(&value), sizeof value);
    };
    append(blocks, static_cast<uint32_t>(table.size()));
    const size_t head = sizeof(uint32_t) + table.size() * 3 * sizeof(uint32_t);
    for (const auto& [id, text] : table) {
      append(blocks, id);
      append(blocks, id);
      append(blocks, static_cast<uint32_t>(head + entries.size()));
      const size_t textBytes = ((text.size() + 1) * sizeof(wchar_t) + 3) & ~size_t{3};
      append(entries, static_cast<uint16_t>(2 * sizeof(uint16_t) + textBytes));
      append(entries, uint16_t{1});  // 16-bit text
      const size_t begin = entries.size();
      entries.resize(begin + textBytes);
      std::memcpy(entries.data() + begin, text.data(), text.size() * sizeof(wchar_t));
    }
    blocks += entries;
    UpdateResourceW(update, RT_MESSAGETABLE, MAKEINTRESOURCEW(1), language, blocks.data(),
                    static_cast<DWORD>(blocks.size()));
  }
  EndUpdateResourceW(update, FALSE);
  module_ = LoadLibraryExW(kCopy, nullptr, LOAD_LIBRARY_AS_DATAFILE);
}

inline TestMessages::~TestMessages() {
  FreeLibrary(static_cast<HMODULE>(module_));
  DeleteFileW(L"test_messages.dll");
}

#else

inline void TestMessages::Build() { platform::SetNativeMessages(messages_); }

inline TestMessages::~TestMessages() { platform::SetNativeMessages({}); }

#endif
