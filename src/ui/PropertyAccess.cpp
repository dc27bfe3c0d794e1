#include "ui/PropertyAccess.h"

#include "DriverLIB/CError.h"
#include "DriverLIB/SecureWipe.h"
#include "DriverLIB/Trace.h"
#include "ui/ProbeWord.h"

namespace {

constexpr char kSource[] = "..\\NemUI";

// A text argument of a host, made wide. Wide text is used where it stands. Narrow text is converted, short ASCII text
// without the platform and without the heap: all property names are of that kind, and an ASCII byte means the same
// character in every ANSI code page.
class CTextArgument {
 public:
  CTextArgument(const void* text, bool wide) {
    if (wide)
      text_ = static_cast<const wchar_t*>(text);
    else if (text && !WidenAscii(static_cast<const char*>(text)))
      Convert(static_cast<const char*>(text));
  }
  CTextArgument(const CTextArgument&) = delete;
  CTextArgument& operator=(const CTextArgument&) = delete;

  const wchar_t* Text() const { return text_; }  // null if the host passed null
  bool IsEmpty() const { return !text_ || !*text_; }

 protected:
  void Wipe() {
    SecureWipe(short_, shortLength_ * sizeof(wchar_t));
    WipeText(long_);
  }

 private:
  bool WidenAscii(const char* text) {
    while (shortLength_ < kShortSize) {
      const auto byte = static_cast<unsigned char>(text[shortLength_]);
      if (byte >= 0x80) return false;
      short_[shortLength_] = byte;
      if (byte == 0) {
        text_ = short_;
        return true;
      }
      ++shortLength_;
    }
    return false;
  }

  void Convert(const char* text) {
    long_.AssignNarrow(text);
    text_ = long_.Text();
  }

  static constexpr size_t kShortSize = 64;

  const wchar_t* text_ = nullptr;
  wchar_t short_[kShortSize];
  size_t shortLength_ = 0;
  CUString long_;
};

// A value may be a password: what was made of it is wiped.
class CValueArgument final : public CTextArgument {
 public:
  explicit CValueArgument(const void* narrow) : CTextArgument(narrow, false) {}
  ~CValueArgument() { Wipe(); }
};

// An error that nobody has answered for yet ends the call; otherwise the call starts with a clean state.
bool BeginCall(CError* error) {
  if (!error) return true;
  if (error->code != kErrorNone) {
    ReportError(error);
    return false;
  }
  ResetError(error);
  return true;
}

int FailWithName(CError* error, const wchar_t* name, int line) {
  if (error) error->detail.Assign(name);
  SetError(error, kErrorInvalidPropertyName, kSource, line, name);
  return ReportError(error);
}

bool StartsWithZeroByte(const void* name) { return *static_cast<const char*>(name) == 0; }

// The object with all its values lives on the stack for a moment: some 30 kB.
void ResetSet(CDialogProperties& dialog, int32_t index) {
  CDialogProperties fresh;
  dialog.FindSet(index)->CopyFrom(*fresh.FindSet(index));
}

int AssignValue(const CPropertySet& set, const wchar_t* name, bool wide, const void* value) {
  CProperty* property = set.Get(name);
  if (!property) return 0;
  if (wide || property->GetTypeName() != kStringTypeName) return property->SetValue(value);
  return property->SetValue(CValueArgument(value).Text());
}

}  // namespace

CDialogProperties* DialogFromHandle(const void* handle) {
  // The first 64 kB are never an object's, and every object is aligned: that refuses most of what is no handle before
  // anything is read.
  const auto address = reinterpret_cast<uintptr_t>(handle);
  if (address < 0x10000 || address % alignof(CDialogProperties) != 0) return nullptr;
  if (ProbeWord(handle) != CDialogProperties::kMagic) return nullptr;
  return static_cast<CDialogProperties*>(const_cast<void*>(handle));
}

int SetProperty(const void* handle, int32_t index, const void* name, bool wide, const void* value) {
  CDialogProperties* dialog = DialogFromHandle(handle);
  if (!dialog) return kBadHandle;
  CError* error = CurrentError();
  if (!BeginCall(error)) return 0;

  CPropertySet* set = dialog->FindSet(index);
  if (set && (!name || StartsWithZeroByte(name))) {
    ResetSet(*dialog, index);
    return 1;
  }
  const CTextArgument wideName(name, wide);
  if (wideName.IsEmpty()) {
    TraceWarning(error, L"Warning: Property \"%s\" nicht verfuegbar (Set)", name ? wideName.Text() : L"(null)");
    return 1;
  }
  if (set && AssignValue(*set, wideName.Text(), wide, value)) return 1;
  TraceError(error, L"Error: SetProperty %s failed", wideName.Text());
  return FailWithName(error, wideName.Text(), 207);
}

int GetProperty(const void* handle, int32_t index, const void* name, bool wide, void* buffer, int32_t size) {
  CError* error = CurrentError();
  if (!name || !buffer) {
    SetError(error, kErrorInvalidFunctionArgument, kSource, 220);
    return ReportError(error);
  }
  // A bad handle is not answered by itself: it has no sets, so no name is found in it.
  CDialogProperties* dialog = DialogFromHandle(handle);
  if (!BeginCall(error)) return 0;

  const CTextArgument wideName(name, wide);
  TraceInfo(error, L"Getting Property \"%ls\"", wideName.Text());
  const CPropertySet* set = dialog ? dialog->FindSet(index) : nullptr;
  const CProperty* property = set ? set->Get(wideName.Text()) : nullptr;
  if (property && property->GetValue(buffer, size)) return 1;
  TraceError(error, L"Error: GetProperty %ls failed", wideName.Text());
  return FailWithName(error, wideName.Text(), 275);
}

void CopyAllSets(CDialogProperties& target, const CDialogProperties& source) {
  target.generalSet.CopyFrom(source.generalSet);
  for (int index = 0; index < CDialogProperties::kSettingsSetCount; ++index)
    target.settingsSets[index].CopyFrom(source.settingsSets[index]);
}
