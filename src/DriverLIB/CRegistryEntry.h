// The library's only way into the registry.
#pragma once

#include <windows.h>

#include <cstdint>

#include "DriverLIB/CUString.h"

// One value under one key of one root, and the text that was read or will be written.
//
// Everything is text: numbers are stored and read as decimal text. A failed read never fails the caller: it yields the
// default and leaves the reason in `status`, `statusText` and the trace. HKEY_CURRENT_USER means the user of the
// calling thread's token at the moment of opening, found under HKEY_USERS, so that a thread that impersonates a user
// sees that user's values. All access is to the 64-bit view. Nothing throws or shows anything.
//
// A short-lived local object of one thread. Every operation that opens the key by itself closes it again, but for
// GetValueCount, which leaves it open for reading.
class CRegistryEntry {
 public:
  static constexpr int kNoIndex = -1;  // the value named `valueName`; from 0 up the values of the key are enumerated

  CRegistryEntry() = default;
  CRegistryEntry(const wchar_t* key, const wchar_t* value, const wchar_t* defaultText = nullptr);
  CRegistryEntry(const CRegistryEntry&) = delete;
  CRegistryEntry& operator=(const CRegistryEntry&) = delete;
  virtual ~CRegistryEntry();

  // The key's name below the root: without leading separators, and below the company's software key if `company` is
  // set.
  virtual void GetKeyName(CUString& name) const;

  // Stores `data`, as text without its terminator or as bytes, of which `data` counts as many as it has characters.
  // False unless it was stored; key and value need a name.
  virtual bool Write(bool binary);

  // Reads into `data`. A null default means `defaultData`. An index at or behind the end of the values empties both
  // `valueName` and `data`, which is no failure.
  virtual void Read(const wchar_t* defaultText, int index, bool binary);

  // Close all keys and take the new root.
  CRegistryEntry& SetRoot(HKEY root);
  void SetKey(const wchar_t* name) { keyName.Assign(name); }
  void SetValueName(const wchar_t* name) { valueName.Assign(name); }

  // Root, key and value as one path, for messages.
  void GetFullPathText(CUString& text) const;

  // An access mask of 0 means querying values, or all of writing. Writing creates the key.
  bool Open(bool forWrite, REGSAM access = 0);
  void CloseKeys();
  HKEY OpenedKey() const { return openKey_; }  // null while closed
  bool OpenedForWrite() const { return openForWrite_; }

  // Read as text, and return the content, the value's name or the content's number. The text is null when there is
  // none, and lives until the next operation.
  const wchar_t* ReadString(int index = kNoIndex);
  const wchar_t* ReadName(int index);
  int32_t ReadLong(int index = kNoIndex);

  // True when the value was stored.
  bool WriteString(const wchar_t* text);
  bool WriteLong(int32_t number);

  // True when the value was there and is deleted.
  bool DeleteValue();

  bool KeyExists();

  // The number of values of the key, 0 on any failure.
  uint32_t GetValueCount();

  // The content or the name of the value at `index`, empty when there is none. The entry stays as it is.
  void GetValueDataAt(CUString& text, int index);
  void GetValueNameAt(CUString& text, int index);

  // Whether both names are there.
  bool IsComplete() const { return !keyName.IsEmpty() && !valueName.IsEmpty(); }

  // Keep a system error and its text, the format taking wide texts. Always false.
  bool SetStatus(uint32_t code, const wchar_t* format, ...);

  CUString company;      // optional part of the key's name
  CUString keyName;      // the key below the root
  CUString valueName;    // empty for the key's default value
  CUString data;         // terminated text, or raw bytes; a read text's length may count the stored terminator
  CUString defaultData;  // what a failed read yields
  uint32_t status = ERROR_SUCCESS;
  CUString statusText{L"Success"};

 private:
  struct OpenScope;

  void ClearStatus();
  bool SetValueStatus(LSTATUS code, const wchar_t* format);
  bool OpenForReading() const { return openKey_ && !openForWrite_; }
  HKEY EffectiveRoot() const { return userRootKey_ ? userRootKey_ : rootKey_; }
  LSTATUS ReadNamed(bool binary);
  LSTATUS ReadAt(int index, bool binary);
  void TakeData(uint32_t byteCount, bool binary);
  void FreeNameAndData();

  HKEY rootKey_ = HKEY_CURRENT_USER;
  HKEY userRootKey_ = nullptr;  // the hive of the thread's user
  HKEY openKey_ = nullptr;
  bool openForWrite_ = false;
};
