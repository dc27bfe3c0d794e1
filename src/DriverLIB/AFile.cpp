#include "DriverLIB/AFile.h"

#include <cstring>
#include <string_view>

#include "DriverLIB/MessageText.h"

namespace {

constexpr wchar_t kCannotOpen[] = L"Kann die Datei %s nicht \u00F6ffnen: %s.";
constexpr wchar_t kCannotClose[] = L"Kann die Datei %s nicht schlie\u00DFen: %s.";
constexpr wchar_t kCannotRead[] = L"Kann die Datei %s nicht lesen: %s.";
constexpr wchar_t kCannotWrite[] = L"Kann nicht in die Datei %s schreiben: %s.";
constexpr wchar_t kCannotSeek[] = L"Kann nicht in der Datei %s positionieren: %s.";

// Where a line ends in the bytes just read: its text reaches to `length`, the next line begins at `next`.
struct LineEnd {
  size_t length;
  size_t next;
  bool closed;  // whether a line feed goes behind the text
};

// A pair anywhere goes before a lone carriage return, and that before a lone line feed. With neither, the line is
// longer than the bytes or ends the file.
LineEnd FindLineEnd(std::string_view bytes, bool bufferFull) {
  if (const size_t pair = bytes.find("\r\n"); pair != bytes.npos) return {pair, pair + 2, true};
  if (const size_t lone = bytes.find('\r'); lone != bytes.npos) {
    // As the last byte of a full buffer it may be the first half of a pair, so it is left for the next read. A buffer
    // of this one byte would never get past it.
    const bool maybeHalf = bufferFull && lone + 1 == bytes.size() && lone > 0;
    return maybeHalf ? LineEnd{lone, lone, false} : LineEnd{lone, lone + 1, true};
  }
  if (const size_t feed = bytes.find('\n'); feed != bytes.npos) return {feed, feed + 1, true};
  return {bytes.size(), bytes.size(), false};
}

}  // namespace

AFile::~AFile() { AFile::Close(); }

bool AFile::Open(FileMode mode, OpenFlags (AFile::*flags)()) {
  if (fileName.IsEmpty()) return false;
  if (IsOpen() && !Close()) return false;
  if (!DoOpen((this->*flags)())) return false;
  mode_ = mode;
  return true;
}

bool AFile::OpenRead() { return Open(FileMode::Read, &AFile::OpenFlagsRead); }

bool AFile::OpenWrite() { return Open(FileMode::Write, &AFile::OpenFlagsWrite); }

bool AFile::OpenAppend() {
  if (!Open(FileMode::ReadWrite, &AFile::OpenFlagsAppend)) return false;
  SeekEnd(0);
  return true;
}

bool AFile::Reopen(AFile& other) {
  if (other.mode_ == FileMode::Read && OpenRead()) SeekSet(other.Tell());
  return true;
}

bool AFile::Close() {
  if (mode_ != FileMode::Closed) {
    DoClose();
    mode_ = FileMode::Closed;
  }
  return true;
}

bool AFile::Read(void* buffer, uint32_t elementSize, uint32_t count, uint32_t& bytesRead) {
  return DoRead(buffer, elementSize, count, bytesRead);
}

bool AFile::ReadAll(void* buffer, uint32_t elementSize, uint32_t count) {
  uint32_t bytesRead = 0;
  return Read(buffer, elementSize, count, bytesRead);
}

bool AFile::Write(const void* data, uint32_t elementSize, uint32_t count, uint32_t& bytesWritten) {
  const bool written = DoWrite(data, elementSize, count);
  bytesWritten = written ? count : 0;
  return written;
}

bool AFile::WriteLine(const wchar_t* text, bool appendLineEnd) { return WriteText(text, appendLineEnd); }

bool AFile::ReadLine(char* buffer, uint32_t size, bool& lineComplete) {
  lineComplete = false;
  std::memset(buffer, 0xFF, size);
  if (eofSeen_ || !ReadRawLine(buffer, size)) {
    if (eofSeen_ && size > 0) buffer[0] = 0;
    return false;
  }
  const size_t length = size > 0 ? std::strlen(buffer) : 0;
  lineComplete = length > 0 && buffer[length - 1] == '\n' ? true : IsEof();
  return true;
}

bool AFile::SeekSet(int64_t offset) { return DoSeek(offset, platform::kSeekSet); }

bool AFile::SeekEnd(int64_t offset) { return DoSeek(offset, platform::kSeekEnd); }

bool AFile::SeekCur(int64_t offset) { return DoSeek(offset, platform::kSeekCurrent); }

uint64_t AFile::GetSize() {
  uint64_t size = 0;
  if (!IsOpen() && !OpenRead()) return 0;
  if (platform::GetFileSize(handle_, size)) return size;
  const wchar_t* error = GetErrorText();
  ReportFileError(kCannotRead, fileName.Text(), error);
  return 0;
}

bool AFile::IsEof() { return eofSeen_; }

bool AFile::IsOpen() { return mode_ != FileMode::Closed; }

OpenFlags AFile::OpenFlagsRead() {
  return {platform::kAccessRead, platform::kShareRead | platform::kShareWrite, platform::kOpenExisting};
}

OpenFlags AFile::OpenFlagsWrite() { return {platform::kAccessWrite, platform::kShareRead, platform::kCreateAlways}; }

OpenFlags AFile::OpenFlagsAppend() {
  return {platform::kAccessRead | platform::kAccessWrite, platform::kShareRead, platform::kOpenAlways};
}

const wchar_t* AFile::GetErrorText() {
  lastError = platform::LastError();
  GetSystemErrorText(errorText, lastError);
  return errorText.Text();
}

bool AFile::ReportFileError(const wchar_t*, const wchar_t*, const wchar_t*) { return false; }

bool AFile::DoOpen(const OpenFlags& flags) {
  CUString name(fileName);
  handle_ = platform::OpenFile(name.Text(), flags.access, flags.share, flags.disposition);
  if (handle_ == platform::kInvalidFile) {
    name.ReplaceChar(L'/', L'\\');
    handle_ = platform::OpenFile(name.Text(), flags.access, flags.share, flags.disposition);
  }
  if (handle_ != platform::kInvalidFile) return true;
  const wchar_t* error = GetErrorText();
  return ReportFileError(kCannotOpen, fileName.Text(), error);
}

bool AFile::DoClose() {
  const bool closed = platform::CloseFile(handle_);
  eofSeen_ = false;
  handle_ = platform::kInvalidFile;
  if (closed) return true;
  const wchar_t* error = GetErrorText();
  return ReportFileError(kCannotClose, fileName.Text(), error);
}

bool AFile::DoRead(void* buffer, uint32_t, uint32_t count, uint32_t& bytesRead) {
  bytesRead = 0;
  if (platform::ReadFile(handle_, buffer, count, bytesRead)) {
    if (count > 0 && bytesRead == 0) eofSeen_ = true;
    return true;
  }
  const wchar_t* error = GetErrorText();
  return ReportFileError(kCannotRead, fileName.Text(), error);
}

bool AFile::DoWrite(const void* data, uint32_t, uint32_t count) {
  uint32_t bytesWritten = 0;
  if (platform::WriteFile(handle_, data, count, bytesWritten) && bytesWritten == count) return true;
  const wchar_t* error = GetErrorText();
  return ReportFileError(kCannotWrite, fileName.Text(), error);
}

bool AFile::DoSeek(int64_t offset, uint32_t origin) {
  eofSeen_ = false;
  if (platform::SeekFile(handle_, offset, origin) >= 0) return true;
  const wchar_t* error = GetErrorText();
  return ReportFileError(kCannotSeek, fileName.Text(), error);
}

bool AFile::WriteText(const wchar_t* text, bool appendLineEnd) {
  const std::wstring_view content = text ? text : L"";
  if (!DoWrite(content.data(), sizeof(wchar_t), static_cast<uint32_t>(content.size() * sizeof(wchar_t)))) return false;
  constexpr std::wstring_view kLineEnd = L"\r\n";
  return !appendLineEnd || DoWrite(kLineEnd.data(), sizeof(wchar_t), kLineEnd.size() * sizeof(wchar_t));
}

bool AFile::ReadRawLine(char* buffer, uint32_t size) {
  if (size == 0) return true;
  uint32_t bytesRead = 0;
  if (!DoRead(buffer, 1, size - 1, bytesRead)) return false;

  const LineEnd end = FindLineEnd({buffer, bytesRead}, bytesRead == size - 1);
  size_t length = end.length;
  if (end.closed) buffer[length++] = '\n';
  buffer[length] = 0;
  return end.next == bytesRead || SeekCur(static_cast<int64_t>(end.next) - static_cast<int64_t>(bytesRead));
}

int64_t AFile::Tell() {
  const int64_t position = platform::SeekFile(handle_, 0, platform::kSeekCurrent);
  return position >= 0 ? position : 0;
}

void AFile::Reserved() {}

bool FileExists(const wchar_t* name) { return name && platform::PathExists(name); }
