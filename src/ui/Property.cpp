#include "ui/Property.h"

#include <cstring>
#include <new>
#include <utility>

#include "DriverLIB/CError.h"
#include "DriverLIB/Numbers.h"
#include "DriverLIB/SecureWipe.h"
#include "DriverLIB/Trace.h"
#include "ui/CPropertySet.h"

namespace {

constexpr char kSource[] = "..\\Property";

constexpr std::wstring_view kValuesList = L"PropValues";
constexpr std::wstring_view kDescriptionsList = L"PropValueDescription";

// The longest text that a trace line shows whole, plus one.
constexpr int kTracedTextLimit = 450;

// What a secret looks like in the trace. Its length does not show either.
constexpr wchar_t kSecretInTrace[] = L"***";

// A string that has never held text is a missing one.
const wchar_t* TextForTrace(const CUString& text) { return text.Buffer() ? text.Buffer() : L"(null)"; }

}  // namespace

// --- CProperty ---------------------------------------------------------------------------------------------------

// Constructors and destructors stand out of line here and below: a dialog object is made of some 250 properties.
CProperty::CProperty() noexcept = default;
CProperty::CProperty(const wchar_t* name, CPropertySet& set, uint32_t access) { Bind(name, set, access); }
CProperty::~CProperty() = default;

void CProperty::Bind(const wchar_t* name, CPropertySet& set, uint32_t access) {
  name_.Assign(name);
  owner_ = &set;
  access_ = access;
  set.Add(*this);
}

int CProperty::GetList(const wchar_t* name, CUStringArray& array) const {
  const std::wstring_view wanted = WideView(name);
  const CUStringArray* list = nullptr;
  if (wanted == kValuesList) list = &values_;
  if (wanted == kDescriptionsList) list = &descriptions_;
  if (list) {
    array.RemoveAll();
    array.AddAll(*list);
  }
  return 1;
}

bool CProperty::CheckReadable(int line) const {
  return IsReadable() || SetError(CurrentError(), kErrorCannotReadProperty, kSource, line);
}

bool CProperty::CheckWritable(int line) const {
  return IsWritable() || SetError(CurrentError(), kErrorCannotChangeProperty, kSource, line);
}

bool CProperty::PrintProtected() const {
  if (IsReadable()) return false;
  TraceInfo("Protected Property = Kein Zugriff");
  return true;
}

const wchar_t* CProperty::NameForTrace() const { return TextForTrace(name_); }

// --- CLongProperty -----------------------------------------------------------------------------------------------

CLongProperty::CLongProperty() noexcept = default;
CLongProperty::~CLongProperty() = default;

void CLongProperty::PrintValue() const {
  if (!PrintProtected()) TraceInfo("Property %s = %d", NameForTrace(), value_);
}

int CLongProperty::GetValue(void* buffer, int32_t size) const {
  if (!CheckReadable(713)) return 0;
  if (size < static_cast<int32_t>(sizeof value_)) return SetError(CurrentError(), kErrorBufferTooSmall, kSource, 716);
  if (!buffer) return SetError(CurrentError(), kErrorInvalidFunctionArgument, kSource, 723);
  memcpy(buffer, &value_, sizeof value_);
  return 1;
}

int CLongProperty::SetValueText(const wchar_t* text) {
  const int32_t value = ParseDecimal(text);
  return SetValue(&value);
}

int CLongProperty::SetValue(const void* value) {
  if (!CheckWritable(743)) return 0;
  if (value)
    memcpy(&value_, value, sizeof value_);
  else
    value_ = 0;
  return 1;
}

std::unique_ptr<CProperty> CLongProperty::Clone(CPropertySet& set) const {
  return std::unique_ptr<CProperty>(new (std::nothrow) CLongProperty(GetName().Text(), set, value_));
}

// --- CStringProperty ---------------------------------------------------------------------------------------------

CStringProperty::CStringProperty() noexcept = default;

CStringProperty::~CStringProperty() {
  if (secret_) WipeText(value_);
}

void CStringProperty::PrintValue() const {
  if (PrintProtected()) return;
  if (secret_) {
    TraceInfo("Property %s = %s", NameForTrace(), kSecretInTrace);
  } else if (value_.Length() >= kTracedTextLimit) {
    TraceInfo("Property %s = %s...", NameForTrace(), value_.Left(kTracedTextLimit).Text());
  } else {
    TraceInfo("Property %s = %s", NameForTrace(), TextForTrace(value_));
  }
}

int CStringProperty::GetValue(void* buffer, int32_t size) const {
  if (!CheckReadable(430)) return 0;
  const std::wstring_view text = value_.View();
  if (static_cast<int64_t>(size) < static_cast<int64_t>(text.size()) + 2)
    return SetError(CurrentError(), kErrorBufferTooSmall, kSource, 434);
  if (!buffer) return SetError(CurrentError(), kErrorInvalidFunctionArgument, kSource, 455);
  const auto target = static_cast<wchar_t*>(buffer);
  memcpy(target, text.data(), text.size() * sizeof(wchar_t));
  target[text.size()] = 0;
  if (!text.empty() && size < kUnboundedSize) target[size - 1] = 0;
  return 1;
}

int CStringProperty::SetValue(const void* value) {
  if (!CheckWritable(469)) return 0;
  Store(static_cast<const wchar_t*>(value));
  return 1;
}

std::unique_ptr<CProperty> CStringProperty::Clone(CPropertySet& set) const {
  std::unique_ptr<CStringProperty> copy(new (std::nothrow) CStringProperty(GetName().Text(), set, value_.Text()));
  if (copy && secret_) copy->MarkSecret();
  return copy;
}

void CStringProperty::SetString(WideView text) { Store(text.substr(0, text.find(L'\0'))); }

void CStringProperty::Store(WideView text) {
  if (!secret_) {
    value_.Assign(text);
    return;
  }
  // The text may be our own, so it is copied before ours is wiped; and the copy has a buffer of its own size, so that
  // no end of a longer password stays behind it.
  CUString fresh(text);
  WipeText(value_);
  value_ = std::move(fresh);
}
