// The values of a dialog: named, typed objects that know how to copy themselves, how to deliver themselves into a
// caller's buffer and how to write themselves to the trace.
//
// The base knows more kinds of value than there are classes, so that a further kind can be added without a change of
// the callers: what a kind does not have, it inherits as an empty operation.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "DriverLIB/CUString.h"
#include "DriverLIB/CUStringArray.h"

class CPropertySet;

// What a host may do with a property. Copying between sets (Assign) asks for neither.
constexpr uint32_t kPropertyReadable = 1;
constexpr uint32_t kPropertyWritable = 2;
constexpr uint32_t kPropertyAccess = kPropertyReadable | kPropertyWritable;

// Names of the types, as GetTypeName gives them.
constexpr std::wstring_view kLongTypeName = L"Long";
constexpr std::wstring_view kStringTypeName = L"String";

// A string property accepts this as a buffer size that no real buffer has: hosts pass such sizes for "large enough".
constexpr int32_t kUnboundedSize = INT32_MAX / static_cast<int32_t>(sizeof(wchar_t));

class CProperty {
 public:
  CProperty(const CProperty&) = delete;
  CProperty& operator=(const CProperty&) = delete;
  virtual ~CProperty();

  // Gives a property that was built without a name its name and its rights, and enters it in `set`. The set does not
  // own it, and does not notice when it dies.
  void Bind(const wchar_t* name, CPropertySet& set, uint32_t access = kPropertyAccess);

  const CUString& GetName() const { return name_; }
  CPropertySet* GetOwner() const { return owner_; }
  bool IsReadable() const { return (access_ & kPropertyReadable) != 0; }
  bool IsWritable() const { return (access_ & kPropertyWritable) != 0; }

  // Writes name and value to the thread's trace.
  virtual void PrintValue() const = 0;

  // Delivers the value into a caller's buffer. Returns 1 when done; 0 with an error set if the property is not
  // readable, the buffer is too small or there is none, and then nothing is written. Each kind says what `size` counts.
  virtual int GetValue(void* buffer, int32_t size) const = 0;

  // Stores a value that is written as text. Returns 1 when done.
  virtual int SetValueText(const wchar_t*) { return 0; }

  // Stores the value that the pointer leads to; each kind says what that is. Returns 1 when done, 0 with an error set
  // if the property is not writable.
  virtual int SetValue(const void* value) = 0;

  // Takes over the value of another property of the same kind.
  virtual void Assign(const CProperty& other) = 0;

  // A new property with this name and value, entered in `set`; null when there is no memory for it.
  virtual std::unique_ptr<CProperty> Clone(CPropertySet& set) const = 0;

  // The value, for the kind that has it. A property that is no text gives its name as text, on purpose.
  virtual const CUString& GetString() const { return name_; }
  virtual int GetBool() const { return 0; }
  virtual int32_t GetLong() const { return 0; }
  virtual double GetDouble() const { return 0.0; }
  virtual int GetSize() const { return 0; }

  virtual void SetString(WideView) {}
  virtual void SetBool(int) {}
  virtual void SetLong(int32_t) {}
  virtual void SetDouble(double) {}
  virtual void SetSize(int) {}

  // Copies the list called "PropValues" or "PropValueDescription" to `array`. Any other name is no failure and leaves
  // `array` as it is. Returns 1.
  virtual int GetList(const wchar_t* name, CUStringArray& array) const;

  virtual std::wstring_view GetTypeName() const { return {}; }

 protected:
  CProperty() noexcept;  // to be bound later
  CProperty(const wchar_t* name, CPropertySet& set, uint32_t access);

  // True if a host may read or write; else sets the error of the given line.
  bool CheckReadable(int line) const;
  bool CheckWritable(int line) const;
  // Writes the trace line of a property that a host may not read. False if it may.
  bool PrintProtected() const;
  // The name for a trace line.
  const wchar_t* NameForTrace() const;

  // For a kind that knows them; the kinds of this library fill neither.
  CUStringArray values_;        // allowed values as text
  CUStringArray descriptions_;  // what they mean

 private:
  CUString name_;
  CPropertySet* owner_ = nullptr;
  uint32_t access_ = kPropertyAccess;
};

// A signed 32-bit number.
class CLongProperty final : public CProperty {
 public:
  CLongProperty() noexcept;
  CLongProperty(const wchar_t* name, CPropertySet& set, int32_t value = 0, uint32_t access = kPropertyAccess)
      : CProperty(name, set, access), value_(value) {}
  ~CLongProperty() override;

  void PrintValue() const override;
  // `size` counts bytes and must be at least 4. The buffer may stand at any address.
  int GetValue(void* buffer, int32_t size) const override;
  // Reads the text as a decimal number, as the C run-time does: up to the first character that is no digit, and
  // limited to what 32 bits hold.
  int SetValueText(const wchar_t* text) override;
  // `value` points to a signed 32-bit number at any address; null stores 0.
  int SetValue(const void* value) override;
  void Assign(const CProperty& other) override { SetLong(other.GetLong()); }
  std::unique_ptr<CProperty> Clone(CPropertySet& set) const override;
  int32_t GetLong() const override { return value_; }
  void SetLong(int32_t value) override { value_ = value; }
  std::wstring_view GetTypeName() const override { return kLongTypeName; }

 private:
  int32_t value_ = 0;
};

// A wide text. One that holds a password is marked as secret: it is not traced, and its characters are wiped when the
// text changes and when the property dies.
class CStringProperty final : public CProperty {
 public:
  CStringProperty() noexcept;
  CStringProperty(const wchar_t* name, CPropertySet& set, const wchar_t* value = nullptr,
                  uint32_t access = kPropertyAccess)
      : CProperty(name, set, access), value_(value) {}
  ~CStringProperty() override;

  void MarkSecret() { secret_ = true; }
  bool IsSecret() const { return secret_; }

  void PrintValue() const override;
  // `size` counts wide characters and must be at least the text's length plus 2, one more than the terminator needs.
  // If there is text, the last character of the buffer is set to zero too, but not with kUnboundedSize and above.
  int GetValue(void* buffer, int32_t size) const override;
  int SetValueText(const wchar_t* text) override { return SetValue(text); }
  // `value` points to the first character of a terminated wide text; null stores the empty text.
  int SetValue(const void* value) override;
  void Assign(const CProperty& other) override { SetString(other.GetString()); }
  std::unique_ptr<CProperty> Clone(CPropertySet& set) const override;
  const CUString& GetString() const override { return value_; }
  // A zero inside the text ends it.
  void SetString(WideView text) override;
  std::wstring_view GetTypeName() const override { return kStringTypeName; }

 private:
  void Store(WideView text);

  CUString value_;
  bool secret_ = false;
};
