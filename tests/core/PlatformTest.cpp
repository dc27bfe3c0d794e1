#include "DriverLIB/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstring>
#include <string>
#include <thread>

#include "DriverLIB/CEString.h"
#include "DriverLIB/CUString.h"
#include "support/TempFile.h"
#ifndef _WIN32
#include "DriverLIB/PlatformNative.h"
#endif

namespace {

template <size_t kCapacity = 256>
std::wstring Formatted(const wchar_t* format, ...) {
  wchar_t buffer[kCapacity];
  std::fill_n(buffer, kCapacity, L'?');
  va_list arguments;
  va_start(arguments, format);
  const int count = platform::FormatWide(buffer, kCapacity, format, arguments);
  va_end(arguments);
  const std::wstring text(buffer);
  EXPECT_EQ(text.size(), static_cast<size_t>(count));
  return text;
}

std::string FormattedNarrow(const char* format, ...) {
  char buffer[256];
  std::memset(buffer, '?', sizeof buffer);
  va_list arguments;
  va_start(arguments, format);
  const int count = platform::FormatNarrow(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  const std::string text(buffer);
  EXPECT_EQ(text.size(), static_cast<size_t>(count));
  return text;
}

int FormatInto(wchar_t* buffer, size_t capacity, const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int count = platform::FormatWide(buffer, capacity, format, arguments);
  va_end(arguments);
  return count;
}

int FormatIntoNarrow(char* buffer, size_t capacity, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const int count = platform::FormatNarrow(buffer, capacity, format, arguments);
  va_end(arguments);
  return count;
}

}  // namespace

// --- Formatting: the same on every platform --------------------------------------------------------------------------

TEST(PlatformFormat, TextAndCharactersInAWideFormat) {
  EXPECT_EQ(L"w|n|n|w|w", Formatted(L"%s|%S|%hs|%ls|%ws", L"w", "n", "n", L"w", L"w"));
  EXPECT_EQ(L"\x0416|C|h|l", Formatted(L"%c|%C|%hc|%lc", 0x416, 'C', 'h', L'l'));
  EXPECT_EQ(L"\x00E4|\x00FF", Formatted(L"%hs|%hs", "\xE4", "\xFF"));
  EXPECT_EQ(L"   ab|ab   |ab|  abc|", Formatted(L"%5s|%-5s|%.2s|%5.3s|%.0s", L"ab", L"ab", L"abcd", L"abcdef", L"x"));
  EXPECT_EQ(L"    a|b  |", Formatted(L"%5c|%-3c|", L'a', L'b'));
  EXPECT_EQ(L"(null)|(null)", Formatted(L"%s|%hs", static_cast<wchar_t*>(nullptr), static_cast<char*>(nullptr)));
}

TEST(PlatformFormat, ThePrecisionBoundsTheReading) {
  const wchar_t unterminated[] = {L'a', L'b', L'c'};
  EXPECT_EQ(L"abc", Formatted(L"%.3s", unterminated));
  EXPECT_EQ(L"ab", Formatted(L"%.*s", 2, unterminated));
}

TEST(PlatformFormat, WholeNumbers) {
  EXPECT_EQ(L"    7|7    |00007|+7| 7|007||  007",
            Formatted(L"%5d|%-5d|%05d|%+d|% d|%.3d|%.0d|%5.3d", 7, 7, 7, 7, 7, 7, 0, 7));
  EXPECT_EQ(L"-3|-3|4294967295|-2147483648", Formatted(L"%d|%i|%u|%d", -3, -3, -1, INT32_MIN));
  EXPECT_EQ(L" 0042|+0042|42   |-0042", Formatted(L"% 05d|%+05d|%-05d|%05d", 42, 42, 42, -42));
  EXPECT_EQ(L"-5000000000|5000000000|18446744073709551615",
            Formatted(L"%lld|%I64d|%I64u", -5000000000LL, 5000000000LL, ~0ULL));
  EXPECT_EQ(L"5|4464|4464", Formatted(L"%I32d|%hd|%hu", 5, 70000, 70000));
  EXPECT_EQ(L"-1|4294967295|ffffffff", Formatted(L"%ld|%lu|%lx", -1, -1, -1));  // long has 32 bits
}

TEST(PlatformFormat, HexadecimalAndOctalNumbers) {
  EXPECT_EQ(L"ff|FF|0xff|0XFF|0", Formatted(L"%x|%X|%#x|%#X|%#x", 255, 255, 255, 255, 0));
  EXPECT_EQ(L"0x02100004|00000abc", Formatted(L"%#8.8lx|%08x", 0x2100004, 0xABC));
  EXPECT_EQ(L"000ab|   000AB|      0xab|0xab      |0x000000ab",
            Formatted(L"%.5x|%8.5X|%#10x|%#-10x|%#010x", 0xAB, 0xAB, 0xAB, 0xAB, 0xAB));
  EXPECT_EQ(L"10|010|123456789abcdef", Formatted(L"%o|%#o|%llx", 8, 8, 0x123456789ABCDEFULL));
  EXPECT_EQ(L"0000000000ABCDEF", Formatted(L"%p", reinterpret_cast<void*>(0xABCDEF)));
}

TEST(PlatformFormat, FloatingPointNumbers) {
  EXPECT_EQ(L"1.500000|2.38|   3.142|2.0     |0.0001",
            Formatted(L"%f|%.2f|%8.3f|%-8.1f|%g", 1.5, 2.375, 3.14159, 2.0, 0.0001));
  EXPECT_EQ(L"001.3|-01.5|+1.5", Formatted(L"%05.1f|%05.1f|%+.1f", 1.28, -1.5, 1.5));
}

TEST(PlatformFormat, WidthsFromArguments) {
  EXPECT_EQ(L"    7|1   |2   ", Formatted(L"%*d|%-*d|%*d", 5, 7, 4, 1, -4, 2));
}

TEST(PlatformFormat, PercentSignsAndUnknownConversions) {
  EXPECT_EQ(L"100 %|y|abc", Formatted(L"100 %%|%y|abc%"));
  EXPECT_EQ(L"", Formatted(L""));
}

TEST(PlatformFormat, AWideResultThatIsTooLongIsCut) {
  wchar_t buffer[6];
  std::fill_n(buffer, 6, L'?');
  EXPECT_EQ(5, FormatInto(buffer, 6, L"abc%s", L"de"));
  EXPECT_STREQ(L"abcde", buffer);
  EXPECT_GT(0, FormatInto(buffer, 6, L"abc%s", L"def"));
  EXPECT_STREQ(L"abcde", buffer);
  EXPECT_GT(0, FormatInto(buffer, 1, L"%d", 12));
  EXPECT_STREQ(L"", buffer);
  EXPECT_GT(0, FormatInto(nullptr, 6, L"x"));
  EXPECT_GT(0, FormatInto(buffer, 0, L"x"));
}

TEST(PlatformFormat, NarrowFormats) {
  EXPECT_EQ("n|w|w|n|w|ff", FormattedNarrow("%s|%S|%ls|%hs|%C|%x", "n", L"w", L"w", "n", L'w', 255));
  EXPECT_EQ("  7|abc\xE4", FormattedNarrow("%3d|%s", 7, "abc\xE4"));
  char buffer[6];
  EXPECT_EQ(5, FormatIntoNarrow(buffer, 6, "abc%s", "de"));
  EXPECT_STREQ("abcde", buffer);
  EXPECT_GT(0, FormatIntoNarrow(buffer, 6, "abc%s", "def"));
  EXPECT_STREQ("abcde", buffer);
  EXPECT_GT(0, FormatIntoNarrow(buffer, 6, "a%S", L"\x0416"));  // has no place in narrow text
  EXPECT_STREQ("a", buffer);
}

// --- Text ------------------------------------------------------------------------------------------------------------

TEST(PlatformText, ConvertsTheAnsiCodePage) {
  wchar_t wide[8] = {};
  EXPECT_EQ(4, platform::NarrowToWide("a\xE4\x80z", 4, wide));
  EXPECT_STREQ(L"a\x00E4\x20ACz", wide);
  char narrow[8] = {};
  EXPECT_EQ(4, platform::WideToNarrow(wide, 4, nullptr, 0));
  EXPECT_EQ(4, platform::WideToNarrow(wide, 4, narrow, 8));
  EXPECT_STREQ("a\xE4\x80z", narrow);
}

TEST(PlatformText, WideningTakesAsManyBytesAsItIsTold) {
  wchar_t wide[5] = L"????";
  EXPECT_EQ(2, platform::NarrowToWide("abcd", 2, wide));
  EXPECT_STREQ(L"ab??", wide);
  EXPECT_EQ(0, platform::NarrowToWide("", 0, wide));
  EXPECT_STREQ(L"ab??", wide);
}

TEST(PlatformText, NarrowingStopsWhereTheRoomEnds) {
  char narrow[5] = "????";
  EXPECT_EQ(3, platform::WideToNarrow(L"abcd", 4, narrow, 3));
  EXPECT_STREQ("abc?", narrow);
  EXPECT_EQ(0, platform::WideToNarrow(L"abcd", 4, narrow, 0));
  EXPECT_EQ(0, platform::WideToNarrow(L"", 0, narrow, 5));
}

TEST(PlatformText, EveryByteSurvivesTheRoundTrip) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const char narrow = static_cast<char>(byte);
    wchar_t wide = 0;
    char back = 0;
    ASSERT_EQ(1, platform::NarrowToWide(&narrow, 1, &wide));
    ASSERT_EQ(1, platform::WideToNarrow(&wide, 1, &back, 1));
    EXPECT_EQ(narrow, back) << byte;
  }
}

TEST(PlatformText, WhiteSpaceIsTheSameInBothClassesUpTo255) {
  for (int character = 0; character <= 0xFF; ++character) {
    const bool expected = character == ' ' || (character >= 9 && character <= 13);
    EXPECT_EQ(expected, platform::IsWideSpace(static_cast<wchar_t>(character))) << character;
    EXPECT_EQ(expected, platform::IsNarrowSpace(static_cast<wchar_t>(character))) << character;
  }
  EXPECT_TRUE(platform::IsWideSpace(0x2003));
  EXPECT_TRUE(platform::IsWideSpace(0x3000));
  EXPECT_FALSE(platform::IsWideSpace(0x200B));
  EXPECT_FALSE(platform::IsNarrowSpace(0x2003));
}

TEST(PlatformText, CaseOfLatinLetters) {
  for (wchar_t letter = L'a'; letter <= L'z'; ++letter) {
    const wchar_t capital = static_cast<wchar_t>(letter - 32);
    EXPECT_EQ(capital, platform::ToUpper(letter));
    EXPECT_EQ(capital, platform::ToUpper(capital));
    EXPECT_EQ(letter, platform::ToLower(capital));
    EXPECT_EQ(letter, platform::ToLower(letter));
  }
  for (const wchar_t other : {L'0', L'@', L'[', L'`', L'{', L'\0'}) {
    EXPECT_EQ(other, platform::ToUpper(other));
    EXPECT_EQ(other, platform::ToLower(other));
  }
}

#ifndef _WIN32
namespace {

class DoubleByteCodePage : public testing::Test {
 protected:
  DoubleByteCodePage() { platform::SetNativeDoubleByteCodePage(true); }
  ~DoubleByteCodePage() override { platform::SetNativeDoubleByteCodePage(false); }
};

}  // namespace

TEST_F(DoubleByteCodePage, ANarrowTextKeepsItsByteCountAsLength) {
  CUString text(L"former text");
  text.AssignNarrow("a\x81\x42\x82\x43z");
  EXPECT_EQ(6, text.Length());
  EXPECT_EQ(std::wstring(L"a\x4E42\x4F43z\0\0", 6), std::wstring(text.View()));
  EXPECT_EQ(L'\0', text.Text()[6]);
  EXPECT_TRUE(text.Equals(L"a\x4E42\x4F43z"));
}

TEST_F(DoubleByteCodePage, AWideTextGetsAsManyBytesAsItHasCharacters) {
  CEString text;
  text.AssignWide(L"\x4E42\x4F43");
  EXPECT_TRUE(text.Equals("\x81\x42"));
  EXPECT_EQ(2, text.Length());
  text.AssignWide(L"a\x4E42");  // the character at the end does not fit whole
  EXPECT_TRUE(text.Equals("a"));
  EXPECT_EQ(1, text.Length());
}

TEST_F(DoubleByteCodePage, ConversionsCountWholeCharacters) {
  EXPECT_EQ(3, platform::WideToNarrow(L"\x4E42z", 2, nullptr, 0));
  wchar_t wide[4] = {};
  EXPECT_EQ(2, platform::NarrowToWide("\x81\x42z", 3, wide));
  EXPECT_STREQ(L"\x4E42z", wide);
}
#endif

// --- System errors ---------------------------------------------------------------------------------------------------

TEST(PlatformErrors, EachThreadKeepsItsLastError) {
  platform::SetLastError(1234);
  EXPECT_EQ(1234u, platform::LastError());
  // Starting and joining a thread may change our own: the other one works in between.
  std::atomic<int> step = 0;
  std::thread other([&step] {
    while (step != 1) std::this_thread::yield();
    platform::SetLastError(99);
    step = 2;
    while (step != 3) std::this_thread::yield();
    EXPECT_EQ(99u, platform::LastError());
  });
  platform::SetLastError(1234);
  step = 1;
  while (step != 2) {
  }
  EXPECT_EQ(1234u, platform::LastError());
  step = 3;
  other.join();
}

TEST(PlatformErrors, TextIsCutAndTerminated) {
  wchar_t buffer[256];
  const int length = platform::SystemErrorText(2, buffer, 256);
  ASSERT_LT(10, length);
  EXPECT_EQ(static_cast<size_t>(length), std::wstring(buffer).size());
  const std::wstring whole(buffer);
  EXPECT_EQ(5, platform::SystemErrorText(2, buffer, 6));
  EXPECT_EQ(whole.substr(0, 5), buffer);
  EXPECT_EQ(0, platform::SystemErrorText(0x1FFFFFFF, buffer, 256));
  EXPECT_STREQ(L"", buffer);
}

// --- Thread slots ----------------------------------------------------------------------------------------------------

TEST(PlatformSlots, EachThreadHasItsOwnValue) {
  const uint32_t slot = platform::AllocateThreadSlot();
  ASSERT_NE(platform::kNoThreadSlot, slot);
  EXPECT_EQ(nullptr, platform::GetThreadSlot(slot));
  int mine = 0, other = 0;
  EXPECT_TRUE(platform::SetThreadSlot(slot, &mine));
  uint32_t otherThread = 0;
  std::thread([&] {
    EXPECT_EQ(nullptr, platform::GetThreadSlot(slot));
    EXPECT_TRUE(platform::SetThreadSlot(slot, &other));
    EXPECT_EQ(&other, platform::GetThreadSlot(slot));
    otherThread = platform::CurrentThreadId();
  }).join();
  EXPECT_EQ(&mine, platform::GetThreadSlot(slot));
  EXPECT_NE(otherThread, platform::CurrentThreadId());
  EXPECT_TRUE(platform::FreeThreadSlot(slot));
}

// --- Files -----------------------------------------------------------------------------------------------------------

TEST(PlatformFiles, WritesSeeksAndReads) {
  TempFile temp("platform_test.bin");
  const platform::FileHandle file = platform::OpenFile(temp.Name(), platform::kAccessRead | platform::kAccessWrite,
                                                       platform::kShareRead, platform::kCreateAlways);
  ASSERT_NE(platform::kInvalidFile, file);
  uint32_t count = 0;
  EXPECT_TRUE(platform::WriteFile(file, "0123456789", 10, count));
  EXPECT_EQ(10u, count);
  uint64_t size = 0;
  EXPECT_TRUE(platform::GetFileSize(file, size));
  EXPECT_EQ(10u, size);
  EXPECT_EQ(3, platform::SeekFile(file, 3, platform::kSeekSet));
  EXPECT_EQ(5, platform::SeekFile(file, 2, platform::kSeekCurrent));
  EXPECT_EQ(8, platform::SeekFile(file, -2, platform::kSeekEnd));
  char bytes[4] = {};
  EXPECT_TRUE(platform::ReadFile(file, bytes, 4, count));
  EXPECT_EQ(2u, count);
  EXPECT_STREQ("89", bytes);
  EXPECT_TRUE(platform::ReadFile(file, bytes, 4, count));  // at the end there is nothing, which is no failure
  EXPECT_EQ(0u, count);
  EXPECT_EQ(-1, platform::SeekFile(file, -1, platform::kSeekSet));
  EXPECT_EQ(131u, platform::LastError());
  EXPECT_TRUE(platform::CloseFile(file));
}

TEST(PlatformFiles, DispositionsDecideAboutTheContent) {
  TempFile temp("platform_test.bin");
  const auto open = [&](uint32_t disposition) {
    return platform::OpenFile(temp.Name(), platform::kAccessRead | platform::kAccessWrite, platform::kShareRead,
                              disposition);
  };
  EXPECT_EQ(platform::kInvalidFile, open(platform::kOpenExisting));
  EXPECT_EQ(2u, platform::LastError());
  EXPECT_FALSE(platform::PathExists(temp.Name()));
  platform::FileHandle file = open(platform::kOpenAlways);
  ASSERT_NE(platform::kInvalidFile, file);
  platform::CloseFile(file);
  EXPECT_TRUE(platform::PathExists(temp.Name()));
  temp.Put("content");
  platform::CloseFile(open(platform::kOpenAlways));
  EXPECT_EQ("content", temp.Bytes());
  platform::CloseFile(open(platform::kOpenExisting));
  EXPECT_EQ("content", temp.Bytes());
  platform::CloseFile(open(platform::kCreateAlways));
  EXPECT_EQ("", temp.Bytes());
}

TEST(PlatformFiles, FailuresLeaveTheirReason) {
  EXPECT_EQ(platform::kInvalidFile, platform::OpenFile(L".", platform::kAccessRead, 0, platform::kOpenExisting));
  EXPECT_EQ(5u, platform::LastError());
  EXPECT_FALSE(platform::MakeDirectory(L"."));
  EXPECT_EQ(platform::kErrorAlreadyExists, platform::LastError());
  EXPECT_TRUE(platform::PathExists(L"."));
  EXPECT_FALSE(platform::PathExists(nullptr));
}

TEST(PlatformFiles, ModuleFileNameIsCutAndTerminated) {
  wchar_t whole[1024], cut[6];
  const int length = platform::ModuleFileName(nullptr, whole, 1024);
  EXPECT_EQ(static_cast<size_t>(length), std::wstring(whole).size());
  EXPECT_EQ(5, platform::ModuleFileName(nullptr, cut, 6));
  EXPECT_EQ(std::wstring(whole).substr(0, 5), cut);
}

// --- Clock and system ------------------------------------------------------------------------------------------------

TEST(PlatformSystem, TheLocalTimeIsADate) {
  const platform::LocalTime now = platform::GetLocalTime();
  EXPECT_LE(2024, now.year);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12);
  EXPECT_TRUE(now.day >= 1 && now.day <= 31);
  EXPECT_TRUE(now.hour >= 0 && now.hour <= 23);
  EXPECT_TRUE(now.minute >= 0 && now.minute <= 59);
  EXPECT_TRUE(now.second >= 0 && now.second <= 60);
}

TEST(PlatformSystem, TheVersionIsKnown) {
  platform::SystemVersion version{};
  ASSERT_TRUE(platform::GetSystemVersion(version));
  EXPECT_LT(0u, version.major);
#ifdef _WIN32
  EXPECT_EQ(2u, version.platformId);
  EXPECT_LT(0u, version.build);
#endif
}

// --- Message table of the native build -------------------------------------------------------------------------------

#ifndef _WIN32
namespace {

class NativeMessagesTest : public testing::Test {
 protected:
  ~NativeMessagesTest() override { platform::SetNativeMessages({}); }

  std::wstring Message(uint32_t id, uint16_t language, uintptr_t first = 0, uintptr_t second = 0) {
    const uintptr_t inserts[platform::kMaxMessageInserts] = {first, second};
    wchar_t buffer[64] = L"?";
    const int length = platform::FormatMessageText(nullptr, id, language, inserts, buffer, 64);
    EXPECT_EQ(std::wstring(buffer).size(), static_cast<size_t>(length));
    return buffer;
  }
};

const platform::NativeMessage kMessages[] = {
    {1, 9, L"neutral%0 not this"},
    {1, 0x0409, L"exact%0"},
    {2, 7, L"Datei %1!s!: %2!d!%%%n%1%0"},
    {3, 9, L"%2!u!|%1!04x!|% |%.|%!%0"},
};

}  // namespace

TEST_F(NativeMessagesTest, FindsTheLanguageOrItsFamily) {
  EXPECT_EQ(L"", Message(1, 0x0409));
  platform::SetNativeMessages(kMessages);
  EXPECT_EQ(L"exact", Message(1, 0x0409));
  EXPECT_EQ(L"neutral", Message(1, 0x0809));
  EXPECT_EQ(L"", Message(1, 0x0407));
  EXPECT_EQ(L"", Message(9, 0x0409));
}

TEST_F(NativeMessagesTest, ExpandsInsertsAndEscapes) {
  platform::SetNativeMessages(kMessages);
  EXPECT_EQ(L"Datei a.pdf: -3%\r\na.pdf",
            Message(2, 0x0407, reinterpret_cast<uintptr_t>(L"a.pdf"), static_cast<uintptr_t>(-3)));
  EXPECT_EQ(L"7|00ff| |.|!", Message(3, 9, 255, 7));
}

TEST_F(NativeMessagesTest, CutsWhatDoesNotFit) {
  platform::SetNativeMessages(kMessages);
  const uintptr_t inserts[platform::kMaxMessageInserts] = {};
  wchar_t buffer[4];
  EXPECT_EQ(3, platform::FormatMessageText(nullptr, 1, 0x0409, inserts, buffer, 4));
  EXPECT_STREQ(L"exa", buffer);
}
#endif
