#include "DriverLIB/NativeFormat.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>

namespace platform {

namespace {

enum class Size { kDefault, kShort, kLong, kLongLong };

// One directive, from "%" to the conversion.
struct Directive {
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
        const Directive directive = Parse(++format);
        if (directive.conversion) Convert(directive);
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
  void PutPadded(const Directive& directive, std::basic_string_view<Source> text) {
    const int padding = directive.width - static_cast<int>(text.size());
    if (!directive.left) Pad(directive.PadCharacter(), padding);
    Put(text);
    if (directive.left) Pad(' ', padding);
  }

  // Reads the directive behind a "%" and moves behind it. No conversion at the end of the format.
  Directive Parse(const Character*& format) {
    Directive directive;
    ParseFlags(format, directive);
    directive.width = ParseNumber(format);
    if (directive.width < 0) {
      directive.left = true;
      directive.width = -directive.width;
    }
    if (*format == '.') directive.precision = std::max(ParseNumber(++format), -1);
    directive.size = ParseSize(format);
    if (*format) directive.conversion = *format++;
    return directive;
  }

  static void ParseFlags(const Character*& format, Directive& directive) {
    for (;; ++format) {
      switch (*format) {
        case '-':
          directive.left = true;
          break;
        case '0':
          directive.zero = true;
          break;
        case '#':
          directive.alternate = true;
          break;
        case ' ':
          directive.space = true;
          break;
        case '+':
          directive.plus = true;
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

  void Convert(const Directive& directive) {
    switch (directive.conversion) {
      case 'd':
      case 'i':
      case 'u':
      case 'o':
      case 'x':
      case 'X':
        return ConvertInteger(directive);
      case 'c':
      case 'C':
        return ConvertCharacter(directive);
      case 's':
      case 'S':
        return ConvertString(directive);
      case 'p':
        return ConvertPointer(directive);
      case 'e':
      case 'E':
      case 'f':
      case 'g':
      case 'G':
        return ConvertDouble(directive);
      case 'n':
        arguments_.NextPointer();
        return;  // nothing is ever written through an argument
      default:
        return Put(directive.conversion);
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

  void ConvertInteger(Directive directive) {
    const wchar_t conversion = directive.conversion;
    const bool isSigned = conversion == 'd' || conversion == 'i';
    const bool hexadecimal = conversion == 'x' || conversion == 'X';
    const int64_t value = NextInteger(directive.size, isSigned);
    const bool negative = isSigned && value < 0;
    const auto magnitude = negative ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);

    std::string prefix;
    if (isSigned) prefix = negative ? "-" : directive.plus ? "+" : directive.space ? " " : "";
    if (directive.alternate && hexadecimal && value != 0) prefix = conversion == 'x' ? "0x" : "0X";
    std::string digits = Digits(magnitude, hexadecimal ? 16 : conversion == 'o' ? 8 : 10, conversion == 'X');
    const auto least = static_cast<size_t>(directive.precision < 0 ? 1 : directive.precision);
    if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
    if (conversion == 'o' && directive.alternate && !digits.starts_with('0')) digits.insert(0, 1, '0');
    PutNumber(directive, prefix, digits, directive.precision < 0);
  }

  void PutNumber(Directive directive, const std::string& prefix, const std::string& digits, bool mayZeroPad) {
    const int length = static_cast<int>(prefix.size() + digits.size());
    const bool zeroPad = mayZeroPad && directive.PadCharacter() == '0';
    if (!directive.left && !zeroPad) Pad(' ', directive.width - length);
    Put(std::string_view(prefix));
    if (zeroPad) Pad('0', directive.width - length);
    Put(std::string_view(digits));
    if (directive.left) Pad(' ', directive.width - length);
  }

  // Whether a text or character argument is wide.
  static bool IsWide(const Directive& directive) {
    if (directive.size == Size::kShort) return false;
    if (directive.size != Size::kDefault) return true;
    const bool sameKind = directive.conversion == 's' || directive.conversion == 'c';
    return sameKind == (sizeof(Character) == sizeof(wchar_t));
  }

  void ConvertCharacter(const Directive& directive) {
    const int32_t value = arguments_.NextInt32();
    const auto character =
        IsWide(directive) ? static_cast<wchar_t>(value) : static_cast<wchar_t>(static_cast<unsigned char>(value));
    PutPadded(directive, std::wstring_view(&character, 1));
  }

  void ConvertString(const Directive& directive) {
    const void* text = arguments_.NextPointer();
    if (!text) {
      PutText(directive, "(null)");
    } else if (IsWide(directive)) {
      PutText(directive, static_cast<const wchar_t*>(text));
    } else {
      PutText(directive, static_cast<const char*>(text));
    }
  }

  // Looks no further into `text` than the precision allows: it need not be terminated then.
  template <class Source>
  void PutText(const Directive& directive, const Source* text) {
    size_t length = 0;
    while ((directive.precision < 0 || length < static_cast<size_t>(directive.precision)) && text[length]) ++length;
    PutPadded(directive, std::basic_string_view<Source>(text, length));
  }

  void ConvertPointer(Directive directive) {
    std::string digits = Digits(reinterpret_cast<uintptr_t>(arguments_.NextPointer()), 16, true);
    digits.insert(0, 16 - digits.size(), '0');
    PutPadded(directive, std::string_view(digits));
  }

  void ConvertDouble(const Directive& directive) {
    const double value = arguments_.NextDouble();
    std::string format = "%";
    if (directive.plus) format += '+';
    if (directive.space) format += ' ';
    if (directive.alternate) format += '#';
    format += ".*";
    format += static_cast<char>(directive.conversion);
    const int precision = directive.precision < 0 ? 6 : directive.precision;
    std::string text(static_cast<size_t>(std::snprintf(nullptr, 0, format.c_str(), precision, value)), '\0');
    std::snprintf(text.data(), text.size() + 1, format.c_str(), precision, value);
    const size_t signLength = text.find_first_of("+- ") == 0 ? 1 : 0;
    PutNumber(directive, text.substr(0, signLength), text.substr(signLength), true);
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
