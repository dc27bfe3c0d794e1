// Formatting with the semantics of the Windows run-time library, for the native build: "%s" is of the format's own
// kind, "%hs" narrow, "%ls" wide, "%S" of the other kind, "%ld" has 32 bits, "%p" 16 digits.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdint>

namespace platform {

// Where a formatter takes its values from, one after the other.
class FormatArguments {
 public:
  virtual ~FormatArguments() = default;
  virtual int32_t NextInt32() = 0;
  virtual int64_t NextInt64() = 0;
  virtual double NextDouble() = 0;
  virtual const void* NextPointer() = 0;
};

class VariadicArguments : public FormatArguments {
 public:
  explicit VariadicArguments(va_list arguments) { va_copy(arguments_, arguments); }
  VariadicArguments(const VariadicArguments&) = delete;
  VariadicArguments& operator=(const VariadicArguments&) = delete;
  ~VariadicArguments() override { va_end(arguments_); }

  int32_t NextInt32() override { return va_arg(arguments_, int32_t); }
  int64_t NextInt64() override { return va_arg(arguments_, int64_t); }
  double NextDouble() override { return va_arg(arguments_, double); }
  const void* NextPointer() override { return va_arg(arguments_, const void*); }

 private:
  va_list arguments_;
};

// One value in pointer width, for every directive that asks.
class SingleArgument : public FormatArguments {
 public:
  explicit SingleArgument(uintptr_t value) : value_(value) {}

  int32_t NextInt32() override { return static_cast<int32_t>(value_); }
  int64_t NextInt64() override { return static_cast<int64_t>(value_); }
  double NextDouble() override { return 0; }
  const void* NextPointer() override { return reinterpret_cast<const void*>(value_); }

 private:
  uintptr_t value_;
};

// Writes at most `capacity` characters, at least 1, terminator included, and always terminates. Returns the number of
// characters, negative when the result was cut or holds a wide character that has no place in narrow text.
int FormatText(wchar_t* buffer, size_t capacity, const wchar_t* format, FormatArguments& arguments);
int FormatText(char* buffer, size_t capacity, const char* format, FormatArguments& arguments);

}  // namespace platform
