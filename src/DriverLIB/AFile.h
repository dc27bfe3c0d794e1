// The library's one file class, directly on the platform's file handles.
#pragma once

#include <cstdint>

#include "DriverLIB/CUString.h"
#include "DriverLIB/Platform.h"

// How a file is opened: the three values that the platform's open takes.
struct OpenFlags {
  uint32_t access;
  uint32_t share;
  uint32_t disposition;
};

enum class FileMode : uint32_t { Closed = 0, Read = 1, Write = 2, ReadWrite = 3 };

// A file, handled by name, with no buffer of its own. Every step is a virtual operation, so that a subclass can change
// how the file is opened, read or reported. All operations report failure by their result and none throws; `lastError`
// and `errorText` keep the last failure. An object belongs to one thread.
//
// Counts and sizes are bytes. `elementSize` is not multiplied in: `count` is the number of bytes.
class AFile {
 public:
  AFile() = default;
  explicit AFile(const wchar_t* name) : fileName(name) {}
  AFile(const AFile&) = delete;
  AFile& operator=(const AFile&) = delete;

  virtual ~AFile();

  // Open the file `fileName`, closing it first if it is open. Reading needs an existing file, which others may read
  // and write meanwhile; writing creates it or empties it; appending creates it when missing, keeps others from
  // writing, and stands at the end.
  virtual bool OpenRead();
  virtual bool OpenWrite();
  virtual bool OpenAppend();

  // Takes over the reading position of `other`: opens this file for reading and seeks there. Does nothing unless
  // `other` is open for reading. Always true.
  virtual bool Reopen(AFile& other);

  // Always true.
  virtual bool Close();

  // One read of at most `count` bytes.
  virtual bool Read(void* buffer, uint32_t elementSize, uint32_t count, uint32_t& bytesRead);
  // The same for a caller who does not ask how many bytes came.
  virtual bool ReadAll(void* buffer, uint32_t elementSize, uint32_t count);

  // One write; all bytes or failure. `bytesWritten` is `count` or 0.
  virtual bool Write(const void* data, uint32_t elementSize, uint32_t count, uint32_t& bytesWritten);

  // Writes the text as 16-bit characters, with a carriage return and a line feed behind it if asked.
  virtual bool WriteLine(const wchar_t* text, bool appendLineEnd);

  // Reads a line of 8-bit text, of at most `size` - 1 bytes, terminated, its line end made a single line feed.
  // `lineComplete` is false when the line was cut and goes on in the next call. False at the end of the file.
  virtual bool ReadLine(char* buffer, uint32_t size, bool& lineComplete);

  virtual bool SeekSet(int64_t offset);
  virtual bool SeekEnd(int64_t offset);
  virtual bool SeekCur(int64_t offset);

  // The file's size in bytes, 0 when it cannot be told. Opens a closed file for reading.
  virtual uint64_t GetSize();

  // True once a read has come back empty, until the file is closed or the position set.
  virtual bool IsEof();
  virtual bool IsOpen();

 protected:
  virtual OpenFlags OpenFlagsRead();
  virtual OpenFlags OpenFlagsWrite();
  virtual OpenFlags OpenFlagsAppend();

  // Fetches the system's last error into `lastError` and its text into `errorText`, which it returns.
  virtual const wchar_t* GetErrorText();

  // Every failure of the platform passes here, with a format of two texts: the file's name and the system's error.
  // This class shows nothing; a subclass may. Always false, so that a failure travels up.
  virtual bool ReportFileError(const wchar_t* format, const wchar_t* name, const wchar_t* error);

  virtual bool DoOpen(const OpenFlags& flags);
  virtual bool DoClose();
  virtual bool DoRead(void* buffer, uint32_t elementSize, uint32_t count, uint32_t& bytesRead);
  virtual bool DoWrite(const void* data, uint32_t elementSize, uint32_t count);
  virtual bool DoSeek(int64_t offset, uint32_t origin);
  virtual bool WriteText(const wchar_t* text, bool appendLineEnd);

  // Reads one line as ReadLine does, without looking at the end of the file. A `size` of 0 is true at once.
  virtual bool ReadRawLine(char* buffer, uint32_t size);

 public:
  // The position in bytes from the start, 0 when it cannot be told.
  virtual int64_t Tell();

  // Free for subclasses.
  virtual void Reserved();

  CUString fileName;       // what the next open uses
  uint32_t lastError = 0;  // of the last look-up of an error text
  CUString errorText;

 protected:
  platform::FileHandle handle_ = platform::kInvalidFile;
  bool eofSeen_ = false;
  FileMode mode_ = FileMode::Closed;

 private:
  bool Open(FileMode mode, OpenFlags (AFile::*flags)());
};

// True when there is a file or directory of that name. A null name is none.
bool FileExists(const wchar_t* name);
