// Registry values of a test, set past the product's own registry class, and gone afterwards.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "DriverLIB/Identity.h"

// One value of a key; what stood there before is put back at the end.
class RegistryValue {
 public:
  RegistryValue(HKEY root, const wchar_t* key, const wchar_t* name) : root_(root), key_(key), name_(name) {
    before_ = Bytes(beforeType_);
    Delete();
  }
  ~RegistryValue() {
    Delete();
    if (before_) SetBytes(beforeType_, before_->data(), before_->size());
  }
  RegistryValue(const RegistryValue&) = delete;
  RegistryValue& operator=(const RegistryValue&) = delete;

  void Set(std::wstring_view text) {
    const std::wstring terminated(text);
    SetBytes(REG_SZ, terminated.c_str(), (terminated.size() + 1) * sizeof(wchar_t));
  }
  void SetBytes(DWORD type, const void* bytes, size_t size) {
    HKEY key = nullptr;
    RegCreateKeyExW(root_, key_.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_64KEY, nullptr, &key, nullptr);
    RegSetValueExW(key, name_.c_str(), 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(size));
    RegCloseKey(key);
  }
  void Delete() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root_, key_.c_str(), 0, KEY_ALL_ACCESS | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) return;
    RegDeleteValueW(key, name_.c_str());
    RegCloseKey(key);
  }

  // The raw content as it stands, nothing when there is no such value.
  std::optional<std::string> Bytes(DWORD& type) const {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root_, key_.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) return std::nullopt;
    std::string bytes(4096, '\0');
    DWORD size = static_cast<DWORD>(bytes.size());
    const LSTATUS result =
        RegQueryValueExW(key, name_.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
    RegCloseKey(key);
    if (result != ERROR_SUCCESS) return std::nullopt;
    bytes.resize(size);
    return bytes;
  }
  // As text, without a terminator; nothing when there is no such value.
  std::optional<std::wstring> Text() const {
    DWORD type = REG_NONE;
    const std::optional<std::string> bytes = Bytes(type);
    if (!bytes) return std::nullopt;
    std::wstring text(reinterpret_cast<const wchar_t*>(bytes->data()), bytes->size() / sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
  }

 private:
  HKEY root_;
  std::wstring key_;
  std::wstring name_;
  std::optional<std::string> before_;
  DWORD beforeType_ = REG_NONE;
};

// A value under the product's key.
struct ProductValue : RegistryValue {
  ProductValue(HKEY root, const wchar_t* name) : RegistryValue(root, kProductKey, name) {}
};

// A key of the test's own, gone with all below it before and after.
class RegistryTree {
 public:
  RegistryTree(HKEY root, const wchar_t* key) : root_(root), key_(key) { Delete(); }
  ~RegistryTree() { Delete(); }
  RegistryTree(const RegistryTree&) = delete;
  RegistryTree& operator=(const RegistryTree&) = delete;

  void Delete() { RegDeleteTreeW(root_, key_.c_str()); }

 private:
  HKEY root_;
  std::wstring key_;
};
