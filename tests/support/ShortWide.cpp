// 16-bit stand-ins for the wide functions of libc that the standard library and GoogleTest call. libc's own ones take a
// wide character for 32 bits, so with -fshort-wchar they must never be reached.
#include <cstddef>

extern "C" {

size_t wcslen(const wchar_t* text) {
  const wchar_t* end = text;
  while (*end) ++end;
  return static_cast<size_t>(end - text);
}

int wcscmp(const wchar_t* left, const wchar_t* right) {
  for (; *left && *left == *right; ++left, ++right) {
  }
  return (*left > *right) - (*left < *right);
}

int wcscasecmp(const wchar_t* left, const wchar_t* right) {
  const auto lower = [](wchar_t character) {
    return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : int{character};
  };
  for (; *left && lower(*left) == lower(*right); ++left, ++right) {
  }
  return lower(*left) - lower(*right);
}

wchar_t* wcsstr(const wchar_t* text, const wchar_t* substring) {
  for (;; ++text) {
    size_t matched = 0;
    while (substring[matched] && text[matched] == substring[matched]) ++matched;
    if (!substring[matched]) return const_cast<wchar_t*>(text);
    if (!*text) return nullptr;
  }
}

int wmemcmp(const wchar_t* left, const wchar_t* right, size_t count) {
  for (; count; --count, ++left, ++right)
    if (*left != *right) return *left < *right ? -1 : 1;
  return 0;
}

wchar_t* wmemchr(const wchar_t* text, wchar_t character, size_t count) {
  for (; count; --count, ++text)
    if (*text == character) return const_cast<wchar_t*>(text);
  return nullptr;
}

wchar_t* wmemcpy(wchar_t* target, const wchar_t* source, size_t count) {
  for (size_t i = 0; i < count; ++i) target[i] = source[i];
  return target;
}

wchar_t* wmemmove(wchar_t* target, const wchar_t* source, size_t count) {
  if (target < source) return wmemcpy(target, source, count);
  while (count--) target[count] = source[count];
  return target;
}

wchar_t* wmemset(wchar_t* target, wchar_t character, size_t count) {
  for (size_t i = 0; i < count; ++i) target[i] = character;
  return target;
}

}  // extern "C"
