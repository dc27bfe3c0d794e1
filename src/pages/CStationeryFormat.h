// One stationery of the user's list: a PDF file that the printer merges with the document.
//
// It travels as text, alone or in a list (StationeryList.h):
//   {NAME:"Re \"2\"";FILE:"C:\\Paper\\letter.pdf";P:"x";TYPE:"3"}
// Text and entry hold the file's password: it is wiped where the entry keeps it, and neither may be traced. Whoever
// takes a text from ToString wipes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "DriverLIB/CUString.h"

class CStationeryFormat {
 public:
  CStationeryFormat() = default;
  CStationeryFormat(const CStationeryFormat&) = delete;
  CStationeryFormat& operator=(const CStationeryFormat&) = delete;
  virtual ~CStationeryFormat();

  // The setters always return 1. SetFile names an entry without a name after its file: cut at the last dot, which is
  // looked for in the folders too, and behind the last backslash.
  virtual int SetFile(WideView file);
  virtual int SetName(WideView name);
  virtual int SetPassword(WideView password);
  virtual int SetType(int16_t type);

  virtual const CUString& GetFile() const { return file_; }
  virtual const CUString& GetPassword() const { return password_; }
  virtual const CUString& GetName() const { return name_; }
  // How it is merged, 0 to 3; any other number is kept as it is.
  virtual int16_t GetType() const { return type_; }

  virtual CUString ToString() const;
  // Reads one entry from the start of `text` and leaves in it what follows the entry. 0 when there is none: then entry
  // and text are as before.
  virtual int FromString(CUString& text);

  // The same on a view, for texts of many entries. An entry counts only if at least one character follows it: the next
  // entry, or the end of the list.
  bool Read(std::wstring_view& text);

  // The text's length, and the text itself behind what `text` holds, which must have room for it.
  size_t TextLength() const;
  void AppendTo(CUString& text) const;

 private:
  CUString file_, name_, password_;
  int16_t type_ = 0;
};
