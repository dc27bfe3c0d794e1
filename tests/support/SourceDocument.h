// A file of the project that a test compares with what it is made from; with the environment variable
// NEMPDF_UPDATE_DOCS set the test writes it anew.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

class SourceDocument {
 public:
  // `name` is relative to the project's folder, with "/".
  explicit SourceDocument(const char* name) : path_(std::string(NEMPDF_SOURCE_DIR "/") + name) {
#ifdef _WIN32
    // A Unix path of a cross-build: Wine shows that world as drive Z.
    if (path_.front() == '/') path_.insert(0, "Z:");
#endif
  }

  const std::string& Path() const { return path_; }

  // Empty when there is no such file.
  std::string Text() const {
    std::ifstream file(path_, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());  // a checkout may have added them
    return text;
  }

  // False when documents are to be compared only.
  bool Update(const std::string& text) const {
    if (!std::getenv("NEMPDF_UPDATE_DOCS")) return false;
    std::ofstream(path_, std::ios::binary) << text;
    return true;
  }

  // For the message of a failure.
  std::string Stale(const char* source) const {
    return path_ + " differs from " + source + ". Run this test with NEMPDF_UPDATE_DOCS=1 to write it anew.";
  }

 private:
  std::string path_;
};
