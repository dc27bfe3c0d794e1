// A file of the test's own in the current folder, gone before and after.
#pragma once

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

class TempFile {
 public:
  // A name without characters beyond ASCII.
  explicit TempFile(const std::string& name) : name_(name), wideName_(name.begin(), name.end()) { Delete(); }
  // One that is there already and is to go afterwards.
  struct Keep {};
  TempFile(const std::string& name, Keep) : name_(name), wideName_(name.begin(), name.end()) {}
  ~TempFile() { Delete(); }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  const wchar_t* Name() const { return wideName_.c_str(); }
  void Delete() { std::remove(name_.c_str()); }

  void Put(std::string_view bytes) {
    std::ofstream(name_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  bool Exists() const { return ExistsNamed(name_); }
  std::string Bytes() const { return BytesOf(name_); }
  // The content as 16-bit little-endian text.
  std::wstring Text() const { return TextOf(name_); }

  // Of any file.
  static bool ExistsNamed(const std::string& name) { return std::ifstream(name).is_open(); }
  static std::string BytesOf(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::wstring TextOf(const std::string& name) {
    const std::string bytes = BytesOf(name);
    std::wstring text;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2)
      text +=
          static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
    return text;
  }

 private:
  std::string name_;
  std::wstring wideName_;
};
