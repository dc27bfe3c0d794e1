#include "DriverLIB/NativeFormat.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>

namespace platform {

namespace {

enum class Size { kDefault, kShort, kLong, kLongLong };

// One specification, from "%" to the conversion.
struct Specification {
  bool left = false, zero = false, alternate = false, space = false, plus = false;
  int width = 0;
  int precision = -1;  // none
  Size size = Size::kDefault;
  wchar_t conversion = 0;

  char PadCharacter() const { return zero && !left ? '0' : ' '; }
};

template <class Character>
class Formatter {
 public:
  Formatter(Character* buffer, size_t capacity, FormatArguments& arguments)
      : buffer_(buffer), capacity_(capacity), arguments_(arguments) {}

  int Run(const Character* format) {
    while (*format && !failed_) {
      if (*format != '%') {
        Put(*format++);
      } else {
        const Specification specification = Parse(++format);
        if (specification.conversion) Convert(specification);
      }
    }
    buffer_[used_] = 0;
    return failed_ ? -1 : static_cast<int>(used_);
  }

 private:
  void Put(wchar_t character) {
    if (used_ + 1 >= capacity_ || (sizeof(Character) == 1 && character > 0xFF)) {
      failed_ = true;
    } else {
      buffer_[used_++] = static_cast<Character>(character);
    }
  }

  template <class Source>
  void Put(std::basic_string_view<Source> text) {
    for (const Source character : text) {
      if (failed_) return;
      Put(static_cast<wchar_t>(static_cast<std::make_unsigned_t<Source>>(character)));
    }
  }

  void Pad(char character, int count) {
    while (count-- > 0 && !failed_) Put(static_cast<wchar_t>(character));
  }

  template <class Source>
  void PutPadded(const Specification& specification, std::basic_string_view<Source> text) {
    const int padding = specification.width - static_cast<int>(text.size());
    if (!specification.left) Pad(specification.PadCharacter(), padding);
    Put(text);
    if (specification.left) Pad(' ', padding);
  }

  // Reads the specification behind a "%" and moves behind it. No conversion at the end of the format.
  Specification Parse(const Character*& format) {
    Specification specification;
    ParseFlags(format, specification);
    specification.width = ParseNumber(format);
    if (specification.width < 0) {
      specification.left = true;
      specification.width = -specification.width;
    }
    if (*format == '.') specification.precision = std::max(ParseNumber(++format), -1);
    specification.size = ParseSize(format);
    if (*format) specification.conversion = *format++;
    return specification;
  }

  static void ParseFlags(const Character*& format, Specification& specification) {
    for (;; ++format) {
      switch (*format) {
        case '-':
          specification.left = true;
          break;
        case '0':
          specification.zero = true;
          break;
        case '#':
          specification.alternate = true;
          break;
        case ' ':
          specification.space = true;
          break;
        case '+':
          specification.plus = true;
          break;
        default:
          return;
      }
    }
  }

  int ParseNumber(const Character*& format) {
    constexpr int kLimit = 1 << 20;
    if (*format == '*') {
      ++format;
      return std::clamp(arguments_.NextInt32(), -kLimit, kLimit);
    }
    int number = 0;
    for (; *format >= '0' && *format <= '9'; ++format) number = std::min(number * 10 + (*format - '0'), kLimit);
    return number;
  }

  static Size ParseSize(const Character*& format) {
    Size size = Size::kDefault;
    for (;; ++format) {
      switch (*format) {
        case 'h':
          size = Size::kShort;
          break;
        case 'l':
          size = size == Size::kLong ? Size::kLongLong : Size::kLong;
          break;
        case 'w':
          size = Size::kLong;
          break;
        case 'I':
          size = Size::kLongLong;
          if (format[1] == '3' && format[2] == '2') size = Size::kLong;
          if ((format[1] == '3' && format[2] == '2') || (format[1] == '6' && format[2] == '4')) format += 2;
          break;
        default:
          return size;
      }
    }
  }

  void Convert(const Specification& specification) {
    switch (specification.conversion) {
      case 'd':
      case 'i':
      case 'u':
      case 'o':
      case 'x':
      case 'X':
        return ConvertInteger(specification);
      case 'c':
      case 'C':
        return ConvertCharacter(specification);
      case 's':
      case 'S':
        return ConvertString(specification);
      case 'p':
        return ConvertPointer(specification);
      case 'e':
      case 'E':
      case 'f':
      case 'g':
      case 'G':
        return ConvertDouble(specification);
      case 'n':
        arguments_.NextPointer();
        return;  // nothing is ever written through an argument
      default:
        return Put(specification.conversion);
    }
  }

  int64_t NextInteger(Size size, bool isSigned) {
    switch (size) {
      case Size::kLongLong:
        return arguments_.NextInt64();
      case Size::kShort: {
        const int32_t value = arguments_.NextInt32();
        return isSigned ? int64_t{static_cast<int16_t>(value)} : int64_t{static_cast<uint16_t>(value)};
      }
      default: {
        const int32_t value = arguments_.NextInt32();
        return isSigned ? int64_t{value} : int64_t{static_cast<uint32_t>(value)};
      }
    }
  }

  static std::string Digits(uint64_t value, unsigned base, bool upper) {
    const std::string_view alphabet = upper ? "0123456789ABCDEF" : "0123456789abcdef";
    std::string digits;
    for (; value > 0; value /= base) digits += alphabet[value % base];
    return {digits.rbegin(), digits.rend()};
  }

  void ConvertInteger(Specification specification) {
    const wchar_t conversion = specification.conversion;
    const bool isSigned = conversion == 'd' || conversion == 'i';
    const bool hexadecimal = conversion == 'x' || conversion == 'X';
    const int64_t value = NextInteger(specification.size, isSigned);
    const bool negative = isSigned && value < 0;
    const auto magnitude = negative ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);

    std::string prefix;
    if (isSigned) prefix = negative ? "-" : specification.plus ? "+" : specification.space ? " " : "";
    if (specification.alternate && hexadecimal && value != 0) prefix = conversion == 'x' ? "0x" : "0X";
    std::string digits = Digits(magnitude, hexadecimal ? 16 : conversion == 'o' ? 8 : 10, conversion == 'X');
    const auto least = static_cast<size_t>(specification.precision < 0 ? 1 : specification.precision);
    if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
    if (conversion == 'o' && specification.alternate && !digits.starts_with('0')) digits.insert(0, 1, '0');
    PutNumber(specification, prefix, digits, specification.precision < 0);
  }

  void PutNumber(Specification specification, const std::string& prefix, const std::string& digits, bool mayZeroPad) {
    const int length = static_cast<int>(prefix.size() + digits.size());
    const bool zeroPad = mayZeroPad && specification.PadCharacter() == '0';
    if (!specification.left && !zeroPad) Pad(' ', specification.width - length);
    Put(std::string_view(prefix));
    if (zeroPad) Pad('0', specification.width - length);
    Put(std::string_view(digits));
    if (specification.left) Pad(' ', specification.width - length);
  }

  // Whether a text or character argument is wide.
  static bool IsWide(const Specification& specification) {
    if (specification.size == Size::kShort) return false;
    if (specification.size != Size::kDefault) return true;
    const bool sameKind = specification.conversion == 's' || specification.conversion == 'c';
    return sameKind == (sizeof(Character) == sizeof(wchar_t));
  }

  void ConvertCharacter(const Specification& specification) {
    const int32_t value = arguments_.NextInt32();
    const auto character =
        IsWide(specification) ? static_cast<wchar_t>(value) : static_cast<wchar_t>(static_cast<unsigned char>(value));
    PutPadded(specification, std::wstring_view(&character, 1));
  }

  void ConvertString(const Specification& specification) {
    const void* text = arguments_.NextPointer();
    if (!text) {
      PutText(specification, "(null)");
    } else if (IsWide(specification)) {
      PutText(specification, static_cast<const wchar_t*>(text));
    } else {
      PutText(specification, static_cast<const char*>(text));
    }
  }

  // Looks no further into `text` than the precision allows: it need not be terminated then.
  template <class Source>
  void PutText(const Specification& specification, const Source* text) {
    size_t length = 0;
    while ((specification.precision < 0 || length < static_cast<size_t>(specification.precision)) && text[length])
      ++length;
    PutPadded(specification, std::basic_string_view<Source>(text, length));
  }

  void ConvertPointer(Specification specification) {
    std::string digits = Digits(reinterpret_cast<uintptr_t>(arguments_.NextPointer()), 16, true);
    digits.insert(0, 16 - digits.size(), '0');
    PutPadded(specification, std::string_view(digits));
  }

  void ConvertDouble(const Specification& specification) {
    const double value = arguments_.NextDouble();
    std::string format = "%";
    if (specification.plus) format += '+';
    if (specification.space) format += ' ';
    if (specification.alternate) format += '#';
    format += ".*";
    format += static_cast<char>(specification.conversion);
    const int precision = specification.precision < 0 ? 6 : specification.precision;
    std::string text(static_cast<size_t>(std::snprintf(nullptr, 0, format.c_str(), precision, value)), '\0');
    std::snprintf(text.data(), text.size() + 1, format.c_str(), precision, value);
    const size_t signLength = text.find_first_of("+- ") == 0 ? 1 : 0;
    PutNumber(specification, text.substr(0, signLength), text.substr(signLength), true);
  }

  Character* buffer_;
  size_t capacity_;
  size_t used_ = 0;
  bool failed_ = false;
  FormatArguments& arguments_;
};

}  // namespace

int FormatText(wchar_t* buffer, size_t capacity, const wchar_t* format, FormatArguments& arguments) {
  return Formatter<wchar_t>(buffer, capacity, arguments).Run(format);
}

int FormatText(char* buffer, size_t capacity, const char* format, FormatArguments& arguments) {
  return Formatter<char>(buffer, capacity, arguments).Run(format);
}

}  // namespace platform
