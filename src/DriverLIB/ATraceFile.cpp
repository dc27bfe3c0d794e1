#include "DriverLIB/ATraceFile.h"

#include <algorithm>
#include <iterator>
#include <new>

#include "DriverLIB/NEMPrintMemoryException.h"

namespace {

constexpr size_t kMaxMessage = 8192;  // characters; a longer message is cut
constexpr size_t kLineNumberSize = 16;
constexpr size_t kHeadSize = kLineNumberSize + kTimeStampSize;

class BusyMark {
 public:
  explicit BusyMark(bool& busy) : busy_(busy) { busy_ = true; }
  ~BusyMark() { busy_ = false; }
  BusyMark(const BusyMark&) = delete;
  BusyMark& operator=(const BusyMark&) = delete;

 private:
  bool& busy_;
};

// Appends the formatted text to the terminated text that ends at `end`, inside a buffer that ends at `bufferEnd`.
// Returns the new end.
wchar_t* AppendV(wchar_t* end, wchar_t* bufferEnd, const wchar_t* format, va_list arguments) {
  platform::FormatWide(end, static_cast<size_t>(bufferEnd - end), format, arguments);
  while (*end) ++end;
  return end;
}

wchar_t* Append(wchar_t* end, wchar_t* bufferEnd, const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  end = AppendV(end, bufferEnd, format, arguments);
  va_end(arguments);
  return end;
}

}  // namespace

void FormatTimeStamp(wchar_t (&stamp)[kTimeStampSize]) {
  const platform::LocalTime now = platform::GetLocalTime();
  Append(stamp, std::end(stamp), L"%02d.%02d.%04d %02d:%02d:%02d ", now.day, now.month, now.year, now.hour, now.minute,
         now.second);
}

CUString InsertInTraceName(const CUString& name, WideView infix) {
  const int dot = name.ReverseFind(L'.');
  const int stem = dot >= 0 ? dot : name.Length();
  return name.Left(stem) + infix + (name.Text() + stem);
}

ATraceFile::~ATraceFile() {
  try {
    CloseTrace();
  } catch (...) {
    // Out of memory while telling why the last line could not be written; the base closes the file.
  }
}

bool ATraceFile::OpenTrace(const wchar_t* name, uint32_t thread, wchar_t threadKind) {
  threadId = thread;
  kind = threadKind;
  configuredName.Assign(name);
  if (configuredName.IsEmpty()) return true;

  CUString infix;
  infix.Format(L"-%c%lu", kind, static_cast<unsigned long>(threadId));
  fileName = InsertInTraceName(configuredName, infix);

  lineCount = 0;
  warningCount = 0;
  errorCount = 0;
  return OpenAppend();
}

void ATraceFile::CloseTrace() {
  if (!IsOpen()) return;
  Info(L"Trace closed.");
  Close();
}

void ATraceFile::Info(const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  InfoV(format, arguments);
  va_end(arguments);
}

void ATraceFile::InfoV(const wchar_t* format, va_list arguments) { WriteMessage(format, arguments, nullptr); }

void ATraceFile::WarningV(const wchar_t* format, va_list arguments) { WriteMessage(format, arguments, &warningCount); }

void ATraceFile::ErrorV(const wchar_t* format, va_list arguments) { WriteMessage(format, arguments, &errorCount); }

void ATraceFile::WriteMessage(const wchar_t* format, va_list arguments, int32_t* counter) {
  if (!IsOpen() || (busy_ && !counter)) return;
  // A trace must not change what its caller is about to ask for.
  const uint32_t systemError = platform::LastError();

  // The message comes first, since the summary wants it bare; the head is then set in front of it.
  wchar_t line[kHeadSize + kMaxMessage + 3];  // 3: line end and terminator
  wchar_t* message = line + kHeadSize;
  wchar_t* end = AppendV(message, message + kMaxMessage + 1, format, arguments);
  if (counter) {
    ++*counter;
    AddToSummary(message);
  }
  if (!busy_) WriteNumbered(message, end);
  platform::SetLastError(systemError);
}

void ATraceFile::AddToSummary(const wchar_t* message) {
  wchar_t number[kLineNumberSize];
  Append(number, std::end(number), L" (%ld): ", static_cast<long>(lineCount));
  try {
    CUString entry(fileName);
    entry.Append(number);
    entry.Append(message);
    entry.Append(L" \r\n");
    summary.Add(entry);
  } catch (NEMPrintMemoryException* exhausted) {
    delete exhausted;  // the entry is lost, and the caller, who only wanted to tell something, goes on
  } catch (const std::bad_alloc&) {
  }
}

void ATraceFile::WriteNumbered(wchar_t* message, wchar_t* end) {
  const BusyMark mark(busy_);
  wchar_t stamp[kTimeStampSize];
  FormatTimeStamp(stamp);
  wchar_t lineNumberText[kLineNumberSize];
  wchar_t* numberEnd = Append(lineNumberText, std::end(lineNumberText), L"%4ld ", static_cast<long>(++lineCount));

  wchar_t* begin = std::copy_backward(stamp, std::find(stamp, std::end(stamp), L'\0'), message);
  begin = std::copy_backward(lineNumberText, numberEnd, begin);
  *end++ = L'\r';
  *end++ = L'\n';
  *end = L'\0';
  WriteText(begin, false);
}
