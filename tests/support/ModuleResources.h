// The resources of the running program, which has the library's linked in, as they lie in the file: without the
// platform's search for a language that is near enough.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace module_resources {

constexpr WORD kArabic = 1, kGerman = 7, kEnglish = 9, kFrench = 12;
constexpr WORD kTranslations[] = {kGerman, kFrench, kArabic};
inline const std::set<WORD> kLanguages = {kArabic, kGerman, kEnglish, kFrench};

inline std::set<WORD> Languages(LPCWSTR type, WORD name) {
  std::set<WORD> languages;
  const auto add = [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR set) -> BOOL {
    reinterpret_cast<std::set<WORD>*>(set)->insert(language);
    return TRUE;
  };
  EnumResourceLanguagesW(nullptr, type, MAKEINTRESOURCEW(name), add, reinterpret_cast<LONG_PTR>(&languages));
  return languages;
}

// The numbers of all resources of a type.
inline std::set<WORD> Names(LPCWSTR type) {
  std::set<WORD> names;
  const auto add = [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR set) -> BOOL {
    reinterpret_cast<std::set<WORD>*>(set)->insert(IS_INTRESOURCE(name) ? LOWORD(name) : 0);
    return TRUE;
  };
  EnumResourceNamesW(nullptr, type, add, reinterpret_cast<LONG_PTR>(&names));
  return names;
}

// The bytes of a resource in exactly that language; empty when there is none.
inline std::span<const BYTE> Bytes(LPCWSTR type, WORD name, WORD language) {
  if (!Languages(type, name).contains(language)) return {};
  HRSRC resource = FindResourceExW(nullptr, type, MAKEINTRESOURCEW(name), language);
  if (!resource) return {};
  const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(nullptr, resource)));
  return {bytes, SizeofResource(nullptr, resource)};
}

using Texts = std::map<uint32_t, std::wstring>;

// The entries of the message table, escapes and all.
inline Texts MessageTable(WORD language) {
  Texts texts;
  const BYTE* table = Bytes(RT_MESSAGETABLE, 1, language).data();
  if (!table) return texts;
  const auto* data = reinterpret_cast<const MESSAGE_RESOURCE_DATA*>(table);
  for (DWORD block = 0; block < data->NumberOfBlocks; ++block) {
    const MESSAGE_RESOURCE_BLOCK& range = data->Blocks[block];
    const BYTE* entry = table + range.OffsetToEntries;
    for (DWORD id = range.LowId; id <= range.HighId; ++id) {
      const auto* head = reinterpret_cast<const MESSAGE_RESOURCE_ENTRY*>(entry);
      texts[id] = reinterpret_cast<const wchar_t*>(head->Text);
      entry += head->Length;
    }
  }
  return texts;
}

struct Control {
  DWORD helpId, exStyle, style;
  short x, y, width, height;
  DWORD id;
  std::wstring className;
  std::wstring text;
};

struct Dialog {
  DWORD helpId, exStyle, style;
  short x, y, width, height;
  WORD pointSize, weight;
  BYTE italic, charset;
  std::wstring face;
  std::wstring text;
  std::vector<Control> controls;
};

// Reads an extended dialog template piece by piece.
class TemplateReader {
 public:
  explicit TemplateReader(std::span<const BYTE> bytes) : bytes_(bytes) {}

  Dialog Read() {
    Dialog dialog = {};
    Take<DWORD>();  // version and signature
    dialog.helpId = Take<DWORD>();
    dialog.exStyle = Take<DWORD>();
    dialog.style = Take<DWORD>();
    const WORD count = Take<WORD>();
    TakeRectangle(dialog);
    TakeName();  // menu
    TakeName();  // class
    dialog.text = TakeName();
    dialog.pointSize = Take<WORD>();
    dialog.weight = Take<WORD>();
    dialog.italic = Take<BYTE>();
    dialog.charset = Take<BYTE>();
    dialog.face = TakeName();
    for (WORD i = 0; i < count; ++i) dialog.controls.push_back(TakeControl());
    return dialog;
  }

 private:
  template <class T>
  T Take() {
    T value = {};
    if (position_ + sizeof value <= bytes_.size()) std::memcpy(&value, bytes_.data() + position_, sizeof value);
    position_ += sizeof value;
    return value;
  }

  template <class Box>
  void TakeRectangle(Box& box) {
    box.x = Take<short>();
    box.y = Take<short>();
    box.width = Take<short>();
    box.height = Take<short>();
  }

  // A text, or a number for which "#number" stands; the predefined window classes by their names.
  std::wstring TakeName() {
    std::wstring name;
    wchar_t first = Take<wchar_t>();
    if (first == 0xFFFF) {
      static constexpr const wchar_t* kClasses[] = {L"Button",  L"Edit",      L"Static",
                                                    L"ListBox", L"ScrollBar", L"ComboBox"};
      const WORD number = Take<WORD>();
      if (number >= 0x80 && number <= 0x85) return kClasses[number - 0x80];
      return L"#" + std::to_wstring(number);
    }
    for (; first; first = Take<wchar_t>()) name += first;
    return name;
  }

  Control TakeControl() {
    position_ = (position_ + 3) & ~size_t{3};
    Control control = {};
    control.helpId = Take<DWORD>();
    control.exStyle = Take<DWORD>();
    control.style = Take<DWORD>();
    TakeRectangle(control);
    control.id = Take<DWORD>();
    control.className = TakeName();
    control.text = TakeName();
    position_ += Take<WORD>();  // creation data
    return control;
  }

  std::span<const BYTE> bytes_;
  size_t position_ = 0;
};

// The template in exactly that language; one without controls when there is none.
inline Dialog ReadDialog(WORD id, WORD language) { return TemplateReader(Bytes(RT_DIALOG, id, language)).Read(); }

inline const Control* FindControl(const Dialog& dialog, DWORD id) {
  for (const Control& control : dialog.controls) {
    if (control.id == id) return &control;
  }
  return nullptr;
}

// The letter that the text's access key is, in capitals; 0 when it has none. "&&" is a sign, no key.
inline wchar_t AccessKey(const std::wstring& text) {
  for (size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    if (text[i + 1] != L'&') {
      return static_cast<wchar_t>(
          reinterpret_cast<ULONG_PTR>(CharUpperW(reinterpret_cast<LPWSTR>(ULONG_PTR{text[i + 1]}))));
    }
    ++i;
  }
  return 0;
}

}  // namespace module_resources
