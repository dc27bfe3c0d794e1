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
  ~TempFile() { Delete(); }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  const wchar_t* Name() const { return wideName_.c_str(); }
  void Delete() { std::remove(name_.c_str()); }

  void Put(std::string_view bytes) {
    std::ofstream(name_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  bool Exists() const { return std::ifstream(name_).is_open(); }

  std::string Bytes() const {
    std::ifstream file(name_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  // The content as 16-bit little-endian text.
  std::wstring Text() const {
    const std::string bytes = Bytes();
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
