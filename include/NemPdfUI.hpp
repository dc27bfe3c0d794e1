// NemPdfUI.hpp: the settings dialogs of the NEM pdf vonder printer for hosts in C++20.
//
//     nempdf::Dialog dialog;
//     dialog.Set(nempdf::general::PrinterName, L"NEM pdf vonder");
//     dialog.Set(nempdf::Tab::Basic, nempdf::settings::GraphicJpegQuality, 85);
//     if (dialog.DoModal()) Use(dialog.Get(nempdf::Tab::Basic, nempdf::settings::GraphicJpegQuality));
//
// Everything here stands in this header and in NemPdfUISettings.hpp, over the functions of NemPdfUI.h, whose rules hold
// on: a host links the library's import library and nothing else. docs/hosts.md tells it all in order.
//
//
// Failures
//
// What cannot be done is thrown as nempdf::Error, with a reason and a text. It is an exception and no result: with the
// names of NemPdfUISettings.hpp nothing fails in a sound program but for lack of memory, yet a result would have to be
// asked about at each of a hundred settings, and C++20 has no type for "a value or an error" that hosts know. What the
// user decides is no failure: DoModal gives true or false. The library hands no error text out, so the text is made
// here: it names the property and what is wrong, and never a value. The trace of the library tells more.
//
// std::bad_alloc comes out of everything that gives or takes a text.
//
//
// Passwords
//
// A setting that holds one is read as a SecretText, which wipes its memory; only View and CStr lead to its characters.
#ifndef NEMPDFUI_HPP
#define NEMPDFUI_HPP

#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) < 202002L
#error "NemPdfUI.hpp needs C++20; NemPdfUI.h serves older hosts"
#endif

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "NemPdfUI.h"
#include "NemPdfUISettings.hpp"

namespace nempdf {

// The two tabs of the sheet, each with a set of settings of its own.
enum class Tab : std::int32_t { Basic = NEMPDFUI_SETTINGS, Document = NEMPDFUI_DOCUMENT };

// --- Failures ------------------------------------------------------------------------------------------------------

enum class Reason {
  NoObject,     // the Dialog has been moved from, or its object has been freed by its handle
  NotCreated,   // no memory for the dialog object, or the library cannot take up the thread
  TooOld,       // the library is older than this header: it may lack settings
  UnknownName,  // the set has no property of that name, or there is no such set
  WrongKind,    // a number was taken for a text or the other way round, or a password for a plain text
  ZeroInText,   // the library would end the text at its first zero
  Refused,      // the library does not set or deliver a property, though it has it
  NotShown,     // the sheet or dialog could not be opened
};

class Error : public std::runtime_error {
 public:
  Error(Reason reason, const std::string& text) : std::runtime_error("NemPdfUI: " + text), reason_(reason) {}

  Reason GetReason() const noexcept { return reason_; }

 private:
  Reason reason_;
};

// --- Version -------------------------------------------------------------------------------------------------------

// The library's version in the form of NEMPDFUI_VERSION; later ones are greater.
[[nodiscard]] inline std::uint32_t LibraryVersion() {
  std::uint32_t version = 0;
  if (NemPdfUIGetVersion(&version) != 1) throw Error(Reason::NotCreated, "the library cannot take up the thread");
  return version;
}

// Such as "2.10.4".
[[nodiscard]] inline std::string VersionText(std::uint32_t version) {
  const std::uint32_t minor = version >> 16 & 0xFF;  // two hexadecimal digits that are read as decimal ones
  return std::to_string(version >> 24) + "." + std::to_string((minor >> 4) * 10 + (minor & 0xF)) + "." +
         std::to_string(version & 0xFFFF);
}

// Shows the dialog with the versions of all components, until the user closes it. Throws NotShown when it does not come
// to that.
inline void ShowVersion() {
  if (NemPdfUIShowVersion() <= 0) throw Error(Reason::NotShown, "the version dialog could not be shown");
}

// --- Texts ---------------------------------------------------------------------------------------------------------

// A text that leaves nothing of itself in memory that is given back. It can be moved, not copied.
class SecretText {
 public:
  SecretText() noexcept = default;
  explicit SecretText(std::wstring_view text) {
    wchar_t* room = MakeRoom(text.size() + 1);
    text.copy(room, text.size());
    SetLength(text.size());
  }
  SecretText(SecretText&& other) noexcept { Swap(other); }
  SecretText& operator=(SecretText&& other) noexcept {
    SecretText taken(std::move(other));
    Swap(taken);
    return *this;
  }
  ~SecretText() { Wipe(); }

  [[nodiscard]] std::wstring_view View() const noexcept { return {CStr(), length_}; }
  [[nodiscard]] const wchar_t* CStr() const noexcept { return room_ ? room_.get() : L""; }
  [[nodiscard]] bool IsEmpty() const noexcept { return length_ == 0; }

  friend bool operator==(const SecretText& left, const SecretText& right) noexcept {
    return left.View() == right.View();
  }
  friend bool operator==(const SecretText& left, std::wstring_view right) noexcept { return left.View() == right; }

 private:
  friend class Dialog;

  // Room for `size` characters, all zero; what was there before is wiped.
  wchar_t* MakeRoom(std::size_t size) {
    Wipe();
    length_ = size_ = 0;
    room_ = std::make_unique<wchar_t[]>(size);
    size_ = size;
    return room_.get();
  }

  void SetLength(std::size_t length) noexcept { length_ = length; }

  // Through a volatile pointer, or the compiler would leave out what nobody reads afterwards.
  void Wipe() noexcept {
    volatile wchar_t* room = room_.get();
    for (std::size_t i = 0; i < size_; ++i) room[i] = L'\0';
  }

  void Swap(SecretText& other) noexcept {
    std::swap(room_, other.room_);
    std::swap(size_, other.size_);
    std::swap(length_, other.length_);
  }

  std::unique_ptr<wchar_t[]> room_;
  std::size_t size_ = 0;    // of the room, in characters
  std::size_t length_ = 0;  // of the text
};

// What Dialog::Set takes for a text: it only looks at the host's. A null pointer is the empty text.
class TextArgument {
 public:
  TextArgument(const wchar_t* text) noexcept : text_(text) {}
  TextArgument(const std::wstring& text) : TextArgument(std::wstring_view(text)) {}
  TextArgument(const SecretText& text) : TextArgument(text.View()) {}
  TextArgument(int) = delete;  // 0 is a number, not a null pointer

  [[nodiscard]] const wchar_t* CStr() const noexcept { return text_; }

 private:
  explicit TextArgument(std::wstring_view terminated) : text_(terminated.data()) {
    if (terminated.find(L'\0') != terminated.npos)
      throw Error(Reason::ZeroInText, "a text with a zero in it would be cut there");
  }

  const wchar_t* text_;
};

// What a property is set to and what it is read as.
template <Kind kind>
using Argument = std::conditional_t<kind == Kind::Number, std::int32_t, TextArgument>;
template <Kind kind>
using Result = std::conditional_t<kind == Kind::Number, std::int32_t,
                                  std::conditional_t<kind == Kind::Secret, SecretText, std::wstring>>;

// --- Properties by name --------------------------------------------------------------------------------------------

// All properties of a set, in the library's order: `index` is NEMPDFUI_GENERAL, NEMPDFUI_SETTINGS or NEMPDFUI_DOCUMENT.
// None for any other index.
[[nodiscard]] constexpr std::span<const PropertyInfo> Properties(std::int32_t index) noexcept {
  if (index == NEMPDFUI_GENERAL) return kGeneralProperties;
  if (index == NEMPDFUI_SETTINGS || index == NEMPDFUI_DOCUMENT) return kSettings;
  return {};
}

// Null when the set has no property of exactly this name.
[[nodiscard]] constexpr const PropertyInfo* FindProperty(std::int32_t index, std::wstring_view name) noexcept {
  for (const PropertyInfo& property : Properties(index))
    if (name == property.name) return &property;
  return nullptr;
}

// --- The dialog object ---------------------------------------------------------------------------------------------

// All values of one dialog, and the sheet that shows them. It owns the library's object and frees it when it goes; it
// can be moved, not copied. One thread at a time uses it; different ones may be used at the same time.
//
// A Dialog must outlive its sheet: if it goes while DoModal is running, by a message that the host handles meanwhile,
// the library keeps the object, which nobody can free any more.
class Dialog {
 public:
  // Throws NotCreated or TooOld. All numbers are 0, all texts empty.
  Dialog() {
    const std::uint32_t version = LibraryVersion();
    if (version < std::uint32_t{NEMPDFUI_VERSION})
      throw Error(Reason::TooOld, "the library is version " + VersionText(version) + ", the host needs " +
                                      VersionText(NEMPDFUI_VERSION) + " or later");
    if (NemPdfUICreateDialog(&handle_) != 1 || !handle_)
      throw Error(Reason::NotCreated, "no memory for a dialog object");
  }
  Dialog(Dialog&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Dialog& operator=(Dialog&& other) noexcept {
    Dialog taken(std::move(other));
    std::swap(handle_, taken.handle_);
    return *this;
  }
  ~Dialog() {
    if (handle_) NemPdfUIFreeDialog(&handle_);
  }

  // False when it has been moved from; all that follows throws NoObject then.
  explicit operator bool() const noexcept { return handle_ != nullptr; }

  // For the functions of NemPdfUI.h. It stays this object's: do not free it.
  [[nodiscard]] NemPdfUIHandle Handle() const noexcept { return handle_; }

  // Shows the sheet until the user closes it. True after OK, with the user's values in the object; false after Cancel,
  // with all as it was. The library gives false as well when it could not prepare the sheet, or is showing the sheet of
  // this object already; throws NotShown when the platform failed to show it.
  [[nodiscard]] bool DoModal() {
    RequireObject();
    const int result = NemPdfUIDoModal(handle_);
    if (result < 0) throw Error(Reason::NotShown, "the sheet could not be shown");
    return result > 0;
  }

  // Properties by the names of NemPdfUISettings.hpp, which fit their set and know their kind:
  //   dialog.Set(general::SheetTitle, L"PDF settings");
  //   std::wstring title = dialog.Get(Tab::Document, settings::Title);
  template <Kind kind>
  void Set(GeneralProperty<kind> property, const Argument<kind>& value) {
    Write(NEMPDFUI_GENERAL, property.name, value);
  }
  template <Kind kind>
  void Set(Tab tab, Setting<kind> setting, const Argument<kind>& value) {
    Write(static_cast<std::int32_t>(tab), setting.name, value);
  }
  template <Kind kind>
  [[nodiscard]] Result<kind> Get(GeneralProperty<kind> property) const {
    return Read<kind>(NEMPDFUI_GENERAL, property.name);
  }
  template <Kind kind>
  [[nodiscard]] Result<kind> Get(Tab tab, Setting<kind> setting) const {
    return Read<kind>(static_cast<std::int32_t>(tab), setting.name);
  }

  // The window that owns the sheet, an HWND: no more than 32 bits of a window handle count.
  void SetOwner(const void* window) {
    Set(general::HwndParent, static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window)));
  }

  // Puts a set back to 0 and empty texts.
  void ResetGeneral() { Reset(NEMPDFUI_GENERAL); }
  void Reset(Tab tab) { Reset(static_cast<std::int32_t>(tab)); }

  // Properties by names that are known at run time only, for hosts that keep settings in files. `index` is one of the
  // three of NemPdfUI.h. Throws UnknownName, or WrongKind when the property is of another kind.
  void SetByName(std::int32_t index, std::wstring_view name, std::int32_t number) {
    Write(index, NameOf(index, name, {Kind::Number, Kind::Number}), number);
  }
  void SetByName(std::int32_t index, std::wstring_view name, const TextArgument& text) {
    Write(index, NameOf(index, name, {Kind::Text, Kind::Secret}), text);
  }
  template <Kind kind>
  [[nodiscard]] Result<kind> GetByName(std::int32_t index, std::wstring_view name) const {
    return Read<kind>(index, NameOf(index, name, {kind, kind}));
  }

 private:
  // Nothing tells the length of a text beforehand, so more and more room is offered, up to 32 MB.
  static constexpr std::int32_t kFirstTextSize = 1024;
  static constexpr std::int32_t kLastTextSize = 1 << 24;
  static constexpr std::int32_t kTextGrowth = 4;

  static constexpr std::int32_t kNoSet = -2;

  struct Kinds {
    Kind one, other;
  };

  void RequireObject() const {
    if (!handle_) throw Error(Reason::NoObject, "the dialog object has been moved away");
  }

  // The get functions do not say whether the handle is bad, the set functions do: with no name, and an index of no set,
  // they do nothing else.
  void RequireLivingObject() const {
    if (NemPdfUISetPropertyW(handle_, kNoSet, nullptr, nullptr) == NEMPDFUI_BAD_HANDLE)
      throw Error(Reason::NoObject, "the dialog object has been freed already");
  }

  // "Scale in set 0". Names that hosts make up may hold anything.
  static std::string Label(std::int32_t index, std::wstring_view name) {
    std::string label;
    for (const wchar_t character : name)
      label += character >= L' ' && character <= L'~' ? static_cast<char>(character) : '?';
    return label + " in set " + std::to_string(index);
  }

  // The catalogue's own name, which ends with a zero as the library needs it.
  static const wchar_t* NameOf(std::int32_t index, std::wstring_view name, Kinds kinds) {
    const PropertyInfo* property = FindProperty(index, name);
    if (!property) throw Error(Reason::UnknownName, "there is no property " + Label(index, name));
    if (property->kind != kinds.one && property->kind != kinds.other)
      throw Error(Reason::WrongKind, Label(index, name) + " is of another kind");
    return property->name;
  }

  // Calls a set or get function. An error that an earlier call on this thread has left behind takes the first call,
  // which then does nothing else: a second one tells it from a refusal.
  template <class Call>
  void Try(std::int32_t index, std::wstring_view name, const Call& call) const {
    RequireObject();
    if (call() == 1 || call() == 1) return;
    RequireLivingObject();
    throw Error(Reason::Refused, "the library refuses " + Label(index, name));
  }

  void WriteValue(std::int32_t index, const wchar_t* name, const void* value) {
    Try(index, name, [&] { return NemPdfUISetPropertyW(handle_, index, name, value); });
  }
  void Write(std::int32_t index, const wchar_t* name, std::int32_t number) { WriteValue(index, name, &number); }
  void Write(std::int32_t index, const wchar_t* name, const TextArgument& text) {
    WriteValue(index, name, text.CStr());
  }

  void Reset(std::int32_t index) {
    Try(index, L"everything", [&] { return NemPdfUISetPropertyW(handle_, index, nullptr, nullptr); });
  }

  template <Kind kind>
  Result<kind> Read(std::int32_t index, const wchar_t* name) const {
    Result<kind> value{};
    if constexpr (kind == Kind::Number) {
      ReadNumber(index, name, value);
    } else if constexpr (kind == Kind::Secret) {
      ReadText(index, name, [&](std::size_t size) { return value.MakeRoom(size); });
      value.SetLength(std::wstring_view(value.CStr()).size());
    } else {
      ReadText(index, name, [&](std::size_t size) {
        value.assign(size, L'\0');
        return value.data();
      });
      value.resize(value.find(L'\0'));
    }
    return value;
  }

  void ReadNumber(std::int32_t index, const wchar_t* name, std::int32_t& value) const {
    Try(index, name,
        [&] { return NemPdfUIGetPropertyW(handle_, index, name, &value, static_cast<std::int32_t>(sizeof value)); });
  }

  template <class MakeRoom>
  void ReadText(std::int32_t index, const wchar_t* name, const MakeRoom& makeRoom) const {
    RequireObject();
    for (std::int32_t size = kFirstTextSize;; size *= kTextGrowth) {
      wchar_t* room = makeRoom(static_cast<std::size_t>(size));
      if (NemPdfUIGetPropertyW(handle_, index, name, room, size) == 1) return;
      if (size == kFirstTextSize) RequireLivingObject();
      if (size >= kLastTextSize) throw Error(Reason::Refused, "the library does not deliver " + Label(index, name));
    }
  }

  NemPdfUIHandle handle_ = nullptr;
};

}  // namespace nempdf

#endif
