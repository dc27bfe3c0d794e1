#include <windows.h>

#include "DriverLIB/CRegistryEntry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "driver/ImportPatch.h"
#include "DriverLIB/MessageText.h"
#include "support/RegistryValue.h"
#include "support/TracedThread.h"

namespace {

constexpr wchar_t kKey[] = L"Software\\NemPdfRegistryTest";
using Messages = std::vector<std::wstring>;

std::wstring SystemText(uint32_t code) {
  CUString text;
  GetSystemErrorText(text, code);
  return text.Text();
}

struct Raw {
  DWORD type = REG_NONE;
  std::string bytes = "no value";
  bool operator==(const Raw&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Raw& raw) {
  return out << raw.type << " " << testing::PrintToString(raw.bytes);
}

std::vector<Raw> written;

LSTATUS WINAPI RefuseSetValue(HKEY, const wchar_t*, DWORD, DWORD, const BYTE*, DWORD) { return ERROR_ACCESS_DENIED; }
LSTATUS WINAPI RefuseEnumValue(HKEY, DWORD, wchar_t*, DWORD*, DWORD*, DWORD*, BYTE*, DWORD*) {
  return ERROR_ACCESS_DENIED;
}
LSTATUS WINAPI RefuseQueryInfo(HKEY, wchar_t*, DWORD*, DWORD*, DWORD*, DWORD*, DWORD*, DWORD*, DWORD*, DWORD*, DWORD*,
                               FILETIME*) {
  return ERROR_ACCESS_DENIED;
}

LSTATUS WINAPI NoteSetValue(HKEY, const wchar_t*, DWORD, DWORD type, const BYTE* data, DWORD size) {
  written.push_back({type, {reinterpret_cast<const char*>(data), size}});
  return ERROR_SUCCESS;
}

int closed;  // keys
const auto realCloseKey = RealFunction("advapi32.dll", "RegCloseKey", &RegCloseKey);

LSTATUS WINAPI CountClosing(HKEY key) {
  ++closed;
  return realCloseKey(key);
}

class CRegistryEntryTest : public testing::Test {
 protected:
  RegistryTree tree{HKEY_CURRENT_USER, kKey};
  CRegistryEntry entry{kKey, L"Value", L"the default"};

  static void Put(const wchar_t* name, DWORD type, const void* bytes, size_t size) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(size));
    RegCloseKey(key);
  }
  static void PutText(const wchar_t* name, std::wstring_view text) {
    Put(name, REG_SZ, std::wstring(text).c_str(), (text.size() + 1) * sizeof(wchar_t));
  }

  static Raw RawValue(const wchar_t* name) {
    HKEY key = nullptr;
    Raw raw;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return raw;
    std::string bytes(4096, '\0');
    DWORD size = 4096, type = REG_NONE;
    if (RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size) == ERROR_SUCCESS)
      raw = {type, bytes.substr(0, size)};
    RegCloseKey(key);
    return raw;
  }
  static bool KeyIsThere() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
  }
};

std::string Bytes16(std::wstring_view text) {
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

}  // namespace

TEST_F(CRegistryEntryTest, ConstructionOpensNothing) {
  EXPECT_EQ(nullptr, entry.OpenedKey());
  EXPECT_FALSE(entry.OpenedForWrite());
  EXPECT_EQ(0u, entry.status);
  EXPECT_STREQ(L"Success", entry.statusText.Text());
  EXPECT_TRUE(entry.company.IsEmpty());
  EXPECT_EQ(nullptr, entry.data.Buffer());
  EXPECT_FALSE(KeyIsThere());
}

// --- Reading -----------------------------------------------------------------------------------------------------

TEST_F(CRegistryEntryTest, ReadsText) {
  PutText(L"Value", L"Gr\u00FC\u00DFe");
  EXPECT_STREQ(L"Gr\u00FC\u00DFe", entry.ReadString());
  EXPECT_EQ(0u, entry.status);
  EXPECT_STREQ(L"Success", entry.statusText.Text());
}

TEST_F(CRegistryEntryTest, ALengthCountsTheStoredTerminator) {
  PutText(L"Value", L"abc");
  entry.ReadString();
  EXPECT_EQ(4, entry.data.Length());
  Put(L"Value", REG_SZ, L"abc#", 6);
  EXPECT_STREQ(L"abc", entry.ReadString());
  EXPECT_EQ(3, entry.data.Length());
}

TEST_F(CRegistryEntryTest, AShorterTextReplacesALongerOneWhole) {
  PutText(L"Value", L"a long text");
  entry.ReadString();
  Put(L"Value", REG_SZ, L"ab#", 4);
  EXPECT_STREQ(L"ab", entry.ReadString());
}

TEST_F(CRegistryEntryTest, AnOddByteIsDropped) {
  Put(L"Value", REG_SZ, "a\0b", 3);
  EXPECT_STREQ(L"a", entry.ReadString());
  EXPECT_EQ(1, entry.data.Length());
}

TEST_F(CRegistryEntryTest, AMissingKeyGivesTheDefault) {
  EXPECT_STREQ(L"the default", entry.ReadString());
  EXPECT_EQ(2u, entry.status);
  EXPECT_EQ(L"Open for Read: " + std::wstring(kKey) + L" not found, Error: " + SystemText(2), entry.statusText.Text());
}

TEST_F(CRegistryEntryTest, AMissingValueGivesTheDefault) {
  PutText(L"Other", L"x");
  EXPECT_STREQ(L"the default", entry.ReadString());
  EXPECT_EQ(2u, entry.status);
  EXPECT_EQ(std::wstring(kKey) + L"\\Value not found, using default the default: " + SystemText(2),
            entry.statusText.Text());
}

TEST_F(CRegistryEntryTest, AReadsOwnDefaultGoesFirst) {
  PutText(L"Other", L"x");
  entry.Read(L"own", CRegistryEntry::kNoIndex, false);
  EXPECT_STREQ(L"own", entry.data.Text());
  entry.Read(L"", CRegistryEntry::kNoIndex, false);
  EXPECT_STREQ(L"", entry.data.Text());
}

TEST_F(CRegistryEntryTest, AZeroLengthValueGivesTheDefaultWithCodeOne) {
  Put(L"Value", REG_SZ, nullptr, 0);
  EXPECT_STREQ(L"the default", entry.ReadString());
  EXPECT_EQ(1u, entry.status);
}

TEST_F(CRegistryEntryTest, AMissingValueWithoutDefaultIsNull) {
  PutText(L"Other", L"x");
  CRegistryEntry bare(kKey, L"Value");
  EXPECT_EQ(nullptr, bare.ReadString());
  EXPECT_TRUE(CUString(bare.ReadString()).IsEmpty());
  EXPECT_EQ(0, bare.ReadLong());
}

TEST_F(CRegistryEntryTest, ASuccessClearsTheStatus) {
  entry.ReadString();
  ASSERT_NE(0u, entry.status);
  PutText(L"Value", L"x");
  entry.ReadString();
  EXPECT_EQ(0u, entry.status);
  EXPECT_STREQ(L"Success", entry.statusText.Text());
}

TEST_F(CRegistryEntryTest, NumbersAreDecimalText) {
  struct {
    const wchar_t* text;
    int32_t number;
  } const rows[] = {{L"1031", 1031}, {L"-5", -5}, {L"12 apples", 12}, {L"apples", 0}, {L"", 0}, {L"0x10", 0}};
  for (const auto& row : rows) {
    PutText(L"Value", row.text);
    EXPECT_EQ(row.number, entry.ReadLong()) << testing::PrintToString(row.text);
  }
}

TEST_F(CRegistryEntryTest, ABinaryNumberIsReadAsTextAndWrong) {
  const DWORD number = 0x00320031;  // the characters "12"
  Put(L"Value", REG_DWORD, &number, sizeof number);
  EXPECT_EQ(12, entry.ReadLong());
  const DWORD five = 5;
  Put(L"Value", REG_DWORD, &five, sizeof five);
  EXPECT_EQ(0, entry.ReadLong());
}

TEST_F(CRegistryEntryTest, TheDefaultNumberServesAMissingValue) {
  CRegistryEntry number(kKey, L"Value", L"42");
  EXPECT_EQ(42, number.ReadLong());
}

TEST_F(CRegistryEntryTest, ABinaryReadCountsBytes) {
  Put(L"Value", REG_BINARY, "\x01\x02\x03", 3);
  entry.Read(nullptr, CRegistryEntry::kNoIndex, true);
  EXPECT_EQ(3, entry.data.Length());
  EXPECT_EQ(std::string("\x01\x02\x03"), std::string(reinterpret_cast<const char*>(entry.data.Text()), 3));
}

TEST_F(CRegistryEntryTest, AnEmptyNameIsTheKeysDefaultValue) {
  PutText(L"", L"default value");
  entry.SetValueName(L"");
  EXPECT_STREQ(L"default value", entry.ReadString());
}

// --- Enumerating ---------------------------------------------------------------------------------------------------

TEST_F(CRegistryEntryTest, AnIndexEnumeratesTheValues) {
  PutText(L"First", L"1");
  PutText(L"A longer name", L"a longer text");
  std::vector<std::pair<std::wstring, std::wstring>> values;
  for (int i = 0;; ++i) {
    const std::wstring name = CUString(entry.ReadName(i)).Text();
    if (name.empty()) break;
    values.emplace_back(name, entry.data.Text());
  }
  std::sort(values.begin(), values.end());
  const decltype(values) expected = {{L"A longer name", L"a longer text"}, {L"First", L"1"}};
  EXPECT_EQ(expected, values);
}

TEST_F(CRegistryEntryTest, AnIndexSetsBothLengths) {
  Put(L"Only", REG_SZ, L"ab#", 4);
  entry.data.Assign(L"something longer");
  EXPECT_STREQ(L"ab", entry.ReadString(0));
  EXPECT_EQ(2, entry.data.Length());
  EXPECT_EQ(4, entry.valueName.Length());
  entry.Read(nullptr, 0, true);
  EXPECT_EQ(4, entry.data.Length()) << "in bytes";
}

TEST_F(CRegistryEntryTest, ANumberIsReadAtAnIndexToo) {
  PutText(L"Only", L"12");
  EXPECT_EQ(12, entry.ReadLong(0));
  EXPECT_STREQ(L"Only", entry.valueName.Text());
}

TEST_F(CRegistryEntryTest, TheEndOfTheValuesIsNoFailure) {
  PutText(L"Only", L"x");
  for (int index : {1, 2, 1000}) {
    entry.SetValueName(L"Value");
    entry.data.Assign(L"old");
    EXPECT_EQ(nullptr, entry.ReadString(index));
    EXPECT_EQ(nullptr, entry.valueName.Buffer());
    EXPECT_EQ(0u, entry.status);
  }
}

TEST_F(CRegistryEntryTest, AnIndexInAMissingKeyGivesTheDefault) {
  EXPECT_STREQ(L"the default", entry.ReadString(0));
  EXPECT_EQ(2u, entry.status);
}

TEST_F(CRegistryEntryTest, AFailureAtAnIndexGivesTheDefaultAndTakesTheName) {
  PutText(L"Only", L"x");
  TracedThread thread;
  ASSERT_GT(PatchImport("advapi32.dll", "RegEnumValueW", reinterpret_cast<void*>(RefuseEnumValue)), 0);
  EXPECT_STREQ(L"the default", entry.ReadString(0));
  RestoreImport("advapi32.dll", "RegEnumValueW");
  EXPECT_EQ(nullptr, entry.valueName.Buffer());
  EXPECT_EQ(5u, entry.status);
  const std::wstring text = std::wstring(kKey) + L"\\ not found, using default the default: " + SystemText(5);
  EXPECT_EQ(text, entry.statusText.Text());
  EXPECT_EQ(Messages({L"CRegistryEntry::Read(): " + text}), thread.Lines());
  EXPECT_EQ(nullptr, entry.OpenedKey());
}

TEST_F(CRegistryEntryTest, AKeyThatDoesNotTellItsValuesGivesTheDefault) {
  PutText(L"Only", L"x");
  ASSERT_GT(PatchImport("advapi32.dll", "RegQueryInfoKeyW", reinterpret_cast<void*>(RefuseQueryInfo)), 0);
  EXPECT_STREQ(L"the default", entry.ReadString(0));
  EXPECT_STREQ(L"Value", entry.valueName.Text());
  EXPECT_EQ(5u, entry.status);
  EXPECT_EQ(0u, entry.GetValueCount());
  RestoreImport("advapi32.dll", "RegQueryInfoKeyW");
}

TEST_F(CRegistryEntryTest, NamesAndContentsAtAnIndexLeaveTextsThatWereNeverSetAlone) {
  PutText(L"Only", L"content");
  CRegistryEntry bare(kKey, nullptr);
  CUString text;
  for (int index : {0, 1}) {
    bare.GetValueNameAt(text, index);
    EXPECT_EQ(nullptr, bare.valueName.Buffer());
    EXPECT_EQ(nullptr, bare.data.Buffer());
    bare.GetValueDataAt(text, index);
    EXPECT_EQ(nullptr, bare.valueName.Buffer());
    EXPECT_EQ(nullptr, bare.data.Buffer());
  }
}

TEST_F(CRegistryEntryTest, NamesAndContentsAtAnIndexLeaveTheEntryAlone) {
  PutText(L"Only", L"content");
  entry.data.Assign(L"kept");
  CUString text(L"old");
  entry.GetValueNameAt(text, 0);
  EXPECT_STREQ(L"Only", text.Text());
  entry.GetValueDataAt(text, 0);
  EXPECT_STREQ(L"content", text.Text());
  entry.GetValueNameAt(text, 1);
  EXPECT_STREQ(L"", text.Text());
  entry.GetValueDataAt(text, 1);
  EXPECT_STREQ(L"", text.Text());
  EXPECT_STREQ(L"Value", entry.valueName.Text());
  EXPECT_STREQ(L"kept", entry.data.Text());
}

TEST_F(CRegistryEntryTest, NamesAndContentsOfAMissingKeyAreEmpty) {
  CUString text(L"old");
  entry.GetValueNameAt(text, 0);
  EXPECT_STREQ(L"", text.Text());
  text.Assign(L"old");
  entry.GetValueDataAt(text, 0);
  EXPECT_STREQ(L"", text.Text());
  EXPECT_STREQ(L"Value", entry.valueName.Text());
}

TEST_F(CRegistryEntryTest, ValuesAreCounted) {
  EXPECT_EQ(0u, entry.GetValueCount());
  PutText(L"a", L"1");
  PutText(L"b", L"1");
  EXPECT_EQ(2u, entry.GetValueCount());
}

// --- Writing -------------------------------------------------------------------------------------------------------

TEST_F(CRegistryEntryTest, WritesTextWithoutItsTerminator) {
  // The platform itself adds a terminator that follows the bytes in memory, so the call is looked at.
  ASSERT_GT(PatchImport("advapi32.dll", "RegSetValueExW", reinterpret_cast<void*>(NoteSetValue)), 0);
  EXPECT_TRUE(entry.WriteString(L"abc"));
  EXPECT_TRUE(entry.WriteLong(-1031));
  EXPECT_TRUE(entry.WriteString(L""));
  RestoreImport("advapi32.dll", "RegSetValueExW");
  const std::vector<Raw> expected = {{REG_SZ, Bytes16(L"abc")}, {REG_SZ, Bytes16(L"-1031")}, {REG_SZ, ""}};
  EXPECT_EQ(expected, std::exchange(written, {}));
}

TEST_F(CRegistryEntryTest, WhatIsWrittenIsReadAgain) {
  EXPECT_TRUE(entry.WriteString(L"abc"));
  EXPECT_STREQ(L"abc", entry.data.Text());
  EXPECT_STREQ(L"abc", CRegistryEntry(kKey, L"Value").ReadString());
  EXPECT_TRUE(entry.WriteLong(-1031));
  EXPECT_EQ(-1031, CRegistryEntry(kKey, L"Value").ReadLong());
}

TEST_F(CRegistryEntryTest, WritesAsManyBytesAsItHasCharacters) {
  Put(L"Value", REG_BINARY, "\x01\x02\x03", 3);
  entry.Read(nullptr, CRegistryEntry::kNoIndex, true);
  entry.SetValueName(L"Copy");
  EXPECT_TRUE(entry.Write(true));
  EXPECT_EQ((Raw{REG_BINARY, "\x01\x02\x03"}), RawValue(L"Copy"));
}

TEST_F(CRegistryEntryTest, WritingWithoutBothNamesDoesNothing) {
  entry.SetValueName(L"");
  EXPECT_FALSE(entry.IsComplete());
  EXPECT_FALSE(entry.WriteString(L"x"));
  EXPECT_EQ(0u, entry.status);
  EXPECT_FALSE(KeyIsThere());
  CRegistryEntry keyless(L"", L"Value");
  EXPECT_FALSE(keyless.WriteString(L"x"));
  EXPECT_FALSE(keyless.DeleteValue());
}

TEST_F(CRegistryEntryTest, AFailedWriteKeepsTheReasonAndTracesNothing) {
  TracedThread thread;
  ASSERT_GT(PatchImport("advapi32.dll", "RegSetValueExW", reinterpret_cast<void*>(RefuseSetValue)), 0);
  EXPECT_FALSE(entry.WriteString(L"x"));
  RestoreImport("advapi32.dll", "RegSetValueExW");
  EXPECT_EQ(5u, entry.status);
  EXPECT_EQ(std::wstring(kKey) + L"\\Value not found: " + SystemText(5), entry.statusText.Text());
  EXPECT_EQ(nullptr, entry.OpenedKey());
  EXPECT_FALSE(entry.DeleteValue());
  EXPECT_EQ(2u, entry.status);
  EXPECT_EQ(Messages(), thread.Lines());
}

TEST_F(CRegistryEntryTest, DeletesTheValue) {
  PutText(L"Value", L"x");
  EXPECT_TRUE(entry.DeleteValue());
  EXPECT_EQ("no value", RawValue(L"Value").bytes);
  EXPECT_FALSE(entry.DeleteValue());
  EXPECT_EQ(2u, entry.status);
  EXPECT_EQ(std::wstring(kKey) + L"\\Value not deleted: " + SystemText(2), entry.statusText.Text());
}

// --- Opening and closing -------------------------------------------------------------------------------------------

TEST_F(CRegistryEntryTest, OpeningForReadNeedsTheKey) {
  EXPECT_FALSE(entry.Open(false));
  EXPECT_EQ(nullptr, entry.OpenedKey());
  EXPECT_FALSE(KeyIsThere());
}

TEST_F(CRegistryEntryTest, OpeningForWriteCreatesTheKey) {
  EXPECT_FALSE(entry.KeyExists());
  EXPECT_TRUE(entry.Open(true));
  EXPECT_TRUE(entry.OpenedForWrite());
  entry.CloseKeys();
  EXPECT_TRUE(KeyIsThere());
  EXPECT_TRUE(entry.KeyExists());
  EXPECT_EQ(nullptr, entry.OpenedKey());  // asking closes again
}

TEST_F(CRegistryEntryTest, TheKeyIsOpenedByItsWholeName) {
  const std::wstring whole = std::wstring(kKey) + L"\\Sub";
  CRegistryEntry sub(L"\\Sub", L"Value");
  sub.company.Assign(L"NemPdfRegistryTest");
  EXPECT_TRUE(sub.WriteString(L"x"));
  EXPECT_STREQ(L"x", CRegistryEntry(whole.c_str(), L"Value").ReadString());
  EXPECT_STREQ(L"x", sub.ReadString());
  EXPECT_TRUE(sub.DeleteValue());
  EXPECT_FALSE(sub.DeleteValue());
  EXPECT_EQ(whole + L"\\Value not deleted: " + SystemText(2), sub.statusText.Text());
}

TEST_F(CRegistryEntryTest, TheOpenKeyFollowsTheOperation) {
  PutText(L"Value", L"x");
  ASSERT_TRUE(entry.Open(true));
  entry.ReadString();  // the other way: reopened, and closed behind it
  EXPECT_EQ(nullptr, entry.OpenedKey());

  ASSERT_TRUE(entry.Open(false));
  const HKEY reading = entry.OpenedKey();
  entry.ReadString();
  EXPECT_EQ(reading, entry.OpenedKey());
  EXPECT_TRUE(entry.WriteString(L"y"));
  EXPECT_EQ(nullptr, entry.OpenedKey());

  ASSERT_TRUE(entry.Open(true));
  const HKEY writing = entry.OpenedKey();
  EXPECT_TRUE(entry.WriteString(L"z"));
  EXPECT_EQ(writing, entry.OpenedKey());
  EXPECT_TRUE(entry.DeleteValue());
  EXPECT_EQ(writing, entry.OpenedKey());
}

TEST_F(CRegistryEntryTest, CountingLeavesTheKeyOpenForReading) {
  PutText(L"Value", L"x");
  EXPECT_EQ(1u, entry.GetValueCount());
  EXPECT_NE(nullptr, entry.OpenedKey());
  EXPECT_FALSE(entry.OpenedForWrite());
  ASSERT_TRUE(entry.Open(true));
  EXPECT_EQ(1u, entry.GetValueCount());
  EXPECT_FALSE(entry.OpenedForWrite());
}

TEST_F(CRegistryEntryTest, ANewRootClosesTheKey) {
  PutText(L"Value", L"x");
  ASSERT_TRUE(entry.Open(false));
  EXPECT_EQ(&entry, &entry.SetRoot(HKEY_LOCAL_MACHINE));
  EXPECT_EQ(nullptr, entry.OpenedKey());
  EXPECT_STREQ(L"the default", entry.ReadString());  // not there
}

TEST_F(CRegistryEntryTest, AnAccessMaskOfTheCallerIsTaken) {
  PutText(L"Value", L"x");
  ASSERT_TRUE(entry.Open(false, KEY_ENUMERATE_SUB_KEYS));
  entry.ReadString();
  EXPECT_EQ(5u, entry.status);  // querying values was not asked for
  ASSERT_TRUE(entry.Open(false, KEY_READ));
  EXPECT_STREQ(L"x", entry.ReadString());
}

// --- Names ---------------------------------------------------------------------------------------------------------

TEST(CRegistryEntryNames, KeyNameLosesLeadingSeparators) {
  struct {
    const wchar_t* company;
    const wchar_t* key;
    const wchar_t* name;
  } const rows[] = {
      {L"", L"Software\\x", L"Software\\x"},
      {L"", L"\\x", L"x"},
      {L"", L"\\\\x", L"x"},
      {L"", L"\\\\\\x", L"\\x"},
      {L"", L"\\\\", L"\\"},
      {L"", L"\\", L""},
      {L"", L"", L""},
      {L"C", L"x", L"Software\\C\\x"},
      {L"C", L"\\\\x", L"Software\\C\\x"},
      {L"C", L"", L""},
      {L"C", L"\\", L""},
  };
  for (const auto& row : rows) {
    CRegistryEntry entry(row.key, L"v");
    entry.company.Assign(row.company);
    CUString name(L"old");
    entry.GetKeyName(name);
    EXPECT_STREQ(row.name, name.Text()) << testing::PrintToString(row.key);
  }
}

TEST(CRegistryEntryNames, FullPathBeginsWithTheRootsName) {
  struct {
    HKEY root;
    const wchar_t* name;
  } const roots[] = {
      {HKEY_CLASSES_ROOT, L"HKEY_CLASSES_ROOT"},
      {HKEY_CURRENT_USER, L"HKEY_CURRENT_USER"},
      {HKEY_LOCAL_MACHINE, L"HKEY_LOCAL_MACHINE"},
      {HKEY_USERS, L"HKEY_USERS"},
      {HKEY_PERFORMANCE_DATA, L"HKEY_PERFORMANCE_DATA"},
      {HKEY_CURRENT_CONFIG, L"HKEY_CURRENT_CONFIG"},
      {HKEY_DYN_DATA, L"HKEY_DYN_DATA"},
  };
  for (const auto& root : roots) {
    CRegistryEntry entry(L"a\\b", L"c");
    entry.SetRoot(root.root);
    CUString path;
    entry.GetFullPathText(path);
    EXPECT_EQ(std::wstring(root.name) + L"\\a\\b\\c", path.Text());
  }
}

TEST(CRegistryEntryNames, FullPathPassesOverEmptyParts) {
  CRegistryEntry entry;
  CUString path;
  entry.GetFullPathText(path);
  EXPECT_STREQ(L"HKEY_CURRENT_USER", path.Text());
  entry.SetValueName(L"v");
  entry.GetFullPathText(path);
  EXPECT_STREQ(L"HKEY_CURRENT_USER\\v", path.Text());
  entry.SetKey(L"k");
  entry.SetValueName(L"");
  entry.GetFullPathText(path);
  EXPECT_STREQ(L"HKEY_CURRENT_USER\\k", path.Text());
}

TEST(CRegistryEntryNames, SetStatusKeepsCodeAndText) {
  CRegistryEntry entry;
  EXPECT_FALSE(entry.SetStatus(87, L"%s-%d", L"text", 5));
  EXPECT_EQ(87u, entry.status);
  EXPECT_STREQ(L"text-5", entry.statusText.Text());
}

// --- Trace ---------------------------------------------------------------------------------------------------------

TEST_F(CRegistryEntryTest, FailuresAreTraced) {
  TracedThread thread;
  const std::wstring key = kKey;
  entry.ReadString();
  EXPECT_EQ(Messages({L"CRegistryEntry::Open(): for Read: " + key + L" not found, Error: " + SystemText(2)}),
            thread.Lines());
  PutText(L"Other", L"x");
  entry.ReadString();
  EXPECT_EQ(
      Messages({L"CRegistryEntry::Read(): " + key + L"\\Value not found, using default the default: " + SystemText(2)}),
      thread.Lines());
  EXPECT_EQ(2, thread.Error().trace->errorCount);
  entry.ReadString(7);
  entry.ReadString(0);
  EXPECT_EQ(Messages(), thread.Lines());
}

TEST_F(CRegistryEntryTest, AFailedOpenForWriteIsTraced) {
  TracedThread thread;
  const std::wstring tooLong(300, L'k');  // no key's name may be this long
  CRegistryEntry unwritable(tooLong.c_str(), L"Value");
  EXPECT_FALSE(unwritable.WriteString(L"x"));
  ASSERT_NE(0u, unwritable.status);
  const std::wstring text = tooLong + L" not found, Error: " + SystemText(unwritable.status);
  EXPECT_EQ(Messages({L"CRegistryEntry::Open(): for Write: " + text}), thread.Lines());
  EXPECT_EQ(1, thread.Error().trace->errorCount);
  EXPECT_EQ(L"Open for Write: " + text, unwritable.statusText.Text());
  EXPECT_FALSE(unwritable.Open(true));
  EXPECT_EQ(nullptr, unwritable.OpenedKey());
  EXPECT_FALSE(unwritable.OpenedForWrite());
}

TEST_F(CRegistryEntryTest, ReopeningClosesWhatWasOpen) {
  PutText(L"Value", L"x");
  ASSERT_TRUE(entry.Open(true));
  closed = 0;
  ASSERT_GT(PatchImport("advapi32.dll", "RegCloseKey", reinterpret_cast<void*>(&CountClosing)), 0);
  entry.ReadString();
  RestoreImport("advapi32.dll", "RegCloseKey");
  EXPECT_EQ(4, closed) << "the key and the user's hive, opened for writing and opened for reading";
}

TEST_F(CRegistryEntryTest, TheDestructorClosesWhatIsOpen) {
  PutText(L"Value", L"x");
  {
    CRegistryEntry inner(kKey, L"Value");
    ASSERT_TRUE(inner.Open(false));
    closed = 0;
    ASSERT_GT(PatchImport("advapi32.dll", "RegCloseKey", reinterpret_cast<void*>(&CountClosing)), 0);
  }
  RestoreImport("advapi32.dll", "RegCloseKey");
  EXPECT_EQ(2, closed) << "the key and the user's hive";
}
