// The calling thread with an error state and a trace of its own, for tests that look at error codes and trace lines.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "DriverLIB/CError.h"

class TracedThread {
 public:
  TracedThread() {
    static int count = 0;
    const std::string name = testing::TempDir() + "nempdf_trace_" + std::to_string(++count) + ".log";
    threadError.Alloc();
    previous_ = threadError.Get();
    error_ = std::make_unique<CError>(L"Test", L"1.0", 1u, platform::CurrentThreadId(), L't',
                                      std::wstring(name.begin(), name.end()).c_str());
    threadError.Set(error_.get());
    const std::wstring_view opened = error_->trace->fileName.View();
    fileName_.assign(opened.begin(), opened.end());
    Lines();  // those that tell of the start
  }

  ~TracedThread() {
    threadError.Set(previous_);
    error_.reset();
    std::remove(fileName_.c_str());
  }

  TracedThread(const TracedThread&) = delete;
  TracedThread& operator=(const TracedThread&) = delete;

  CError& Error() { return *error_; }

  // The messages traced since the last call, without line number and time.
  std::vector<std::wstring> Lines() {
    std::ifstream file(fileName_, std::ios::binary);
    file.seekg(read_);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    read_ += static_cast<std::streamoff>(bytes.size());
    std::vector<std::wstring> lines;
    std::wstring line;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
      const auto character =
          static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) | static_cast<unsigned char>(bytes[i + 1]) << 8);
      if (character == L'\n') {
        const size_t head = std::wstring_view(L"dd.mm.yyyy hh:mm:ss ").size();
        const size_t number = line.find(L' ', line.find_first_not_of(L' ')) + 1;
        // What goes on after a line break of its own has no head.
        lines.push_back(number + head <= line.size() ? line.substr(number + head) : line);
        line.clear();
      } else if (character != L'\r') {
        line += character;
      }
    }
    return lines;
  }

 private:
  CError* previous_ = nullptr;
  std::unique_ptr<CError> error_;
  std::string fileName_;
  std::streamoff read_ = 0;
};
