// include/NemPdfUI.hpp, the wrapper for hosts in C++: its rules, with the real properties behind it.
#include "NemPdfUI.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>

#include "core/FakeExports.h"
#include "support/FreedTextWatch.h"

namespace {

using nempdf::Dialog;
using nempdf::Error;
using nempdf::Kind;
using nempdf::Reason;
using nempdf::SecretText;
using nempdf::Tab;
namespace general = nempdf::general;
namespace settings = nempdf::settings;

// The failure of a call; nothing when it has none.
struct Failure {
  Reason reason;
  std::string text;
};

template <class Call>
std::optional<Failure> FailureOf(const Call& call) {
  try {
    call();
  } catch (const Error& error) {
    return Failure{error.GetReason(), error.what()};
  }
  return {};
}

template <class Call>
void ExpectFailure(Reason reason, const char* text, const Call& call) {
  const std::optional<Failure> failure = FailureOf(call);
  ASSERT_TRUE(failure) << text;
  EXPECT_EQ(static_cast<int>(reason), static_cast<int>(failure->reason)) << failure->text;
  EXPECT_EQ(text, failure->text);
}

class HostWrapper : public testing::Test {
 protected:
  HostWrapper() { fakeExports = {}; }
  ~HostWrapper() override { EXPECT_EQ(0, fakeExports.objectCount); }
};

// --- What does not compile -----------------------------------------------------------------------------------------

template <class... Arguments>
constexpr bool kCanSet = requires(Dialog dialog, Arguments... arguments) {
  dialog.Set(arguments...);
};
template <class... Arguments>
constexpr bool kCanGet = requires(const Dialog dialog, Arguments... arguments) {
  dialog.Get(arguments...);
};

using NumberOfTab = nempdf::Setting<Kind::Number>;
using TextOfTab = nempdf::Setting<Kind::Text>;
using SecretOfTab = nempdf::Setting<Kind::Secret>;
using GeneralText = nempdf::GeneralProperty<Kind::Text>;

static_assert(kCanSet<Tab, NumberOfTab, int> && kCanSet<Tab, TextOfTab, const wchar_t*>);
static_assert(kCanSet<Tab, SecretOfTab, std::wstring> && kCanSet<GeneralText, const wchar_t*>);
static_assert(!kCanSet<Tab, NumberOfTab, const wchar_t*> && !kCanSet<Tab, NumberOfTab, std::wstring>);
static_assert(!kCanSet<Tab, TextOfTab, int> && !kCanSet<Tab, SecretOfTab, int>);
static_assert(!kCanSet<Tab, TextOfTab, const char*> && !kCanSet<Tab, TextOfTab, std::wstring_view>);
static_assert(!kCanSet<NumberOfTab, int> && !kCanSet<Tab, GeneralText, const wchar_t*>);
static_assert(!kCanSet<int, NumberOfTab, int>);
static_assert(kCanGet<Tab, NumberOfTab> && kCanGet<GeneralText>);
static_assert(!kCanGet<NumberOfTab> && !kCanGet<Tab, GeneralText>);

static_assert(std::is_nothrow_move_constructible_v<Dialog> && std::is_nothrow_move_assignable_v<Dialog>);
static_assert(!std::is_copy_constructible_v<Dialog> && !std::is_copy_assignable_v<Dialog>);
static_assert(std::is_nothrow_move_constructible_v<SecretText> && std::is_nothrow_move_assignable_v<SecretText>);
static_assert(!std::is_copy_constructible_v<SecretText> && !std::is_copy_assignable_v<SecretText>);
static_assert(!std::is_convertible_v<SecretText, std::wstring> &&
              !std::is_convertible_v<SecretText, std::wstring_view>);

// A constant 0 would be a null pointer to a text.
static_assert(!std::is_constructible_v<nempdf::TextArgument, int>);

// --- The object ----------------------------------------------------------------------------------------------------

TEST_F(HostWrapper, FreesItsObject) {
  {
    const Dialog first, second;
    EXPECT_TRUE(first && second);
    EXPECT_NE(first.Handle(), second.Handle());
    EXPECT_EQ(2, fakeExports.objectCount);
  }
  EXPECT_EQ(0, fakeExports.objectCount);
}

TEST_F(HostWrapper, AMoveTakesTheObject) {
  Dialog first;
  first.Set(Tab::Basic, settings::Scale, 7);
  const NemPdfUIHandle handle = first.Handle();
  Dialog second(std::move(first));
  EXPECT_EQ(handle, second.Handle());
  EXPECT_FALSE(first);
  EXPECT_EQ(nullptr, first.Handle());
  EXPECT_EQ(7, second.Get(Tab::Basic, settings::Scale));
  EXPECT_EQ(1, fakeExports.objectCount);
}

TEST_F(HostWrapper, AnAssignmentFreesWhatWasThere) {
  Dialog first, second;
  const NemPdfUIHandle handle = first.Handle();
  second = std::move(first);
  EXPECT_EQ(handle, second.Handle());
  EXPECT_FALSE(first);
  EXPECT_EQ(1, fakeExports.objectCount);
  first = Dialog();
  EXPECT_TRUE(first);
  EXPECT_EQ(2, fakeExports.objectCount);
}

TEST_F(HostWrapper, AnAssignmentToItselfKeepsTheObject) {
  Dialog dialog;
  Dialog& same = dialog;
  dialog = std::move(same);
  EXPECT_TRUE(dialog);
  EXPECT_EQ(1, fakeExports.objectCount);
}

TEST_F(HostWrapper, WithoutItsObjectEverythingFails) {
  Dialog dialog;
  const Dialog taken(std::move(dialog));
  const auto expectNone = [](const auto& call) {
    ExpectFailure(Reason::NoObject, "NemPdfUI: the dialog object has been moved away", call);
  };
  expectNone([&] { dialog.Set(Tab::Basic, settings::Scale, 1); });
  expectNone([&] { dialog.Set(Tab::Basic, settings::Title, L"x"); });
  expectNone([&] { (void)dialog.Get(Tab::Basic, settings::Scale); });
  expectNone([&] { (void)dialog.Get(Tab::Basic, settings::Title); });
  expectNone([&] { (void)dialog.Get(Tab::Basic, settings::EncryptUserPassword); });
  expectNone([&] { dialog.SetByName(0, L"Scale", 1); });
  expectNone([&] { (void)dialog.GetByName<Kind::Number>(0, L"Scale"); });
  expectNone([&] { dialog.Reset(Tab::Basic); });
  expectNone([&] { (void)dialog.DoModal(); });
  EXPECT_EQ(0, fakeExports.propertyCalls) << "the library is not asked";
}

TEST_F(HostWrapper, AnObjectThatWasFreedByItsHandleIsNoticed) {
  Dialog dialog;
  dialog.Set(Tab::Basic, settings::Title, L"x");
  fakeExports.refusesHandles = true;
  const auto expectFreed = [](const auto& call) {
    ExpectFailure(Reason::NoObject, "NemPdfUI: the dialog object has been freed already", call);
  };
  expectFreed([&] { dialog.Set(Tab::Basic, settings::Scale, 1); });
  expectFreed([&] { (void)dialog.Get(Tab::Basic, settings::Scale); });
  expectFreed([&] { (void)dialog.Get(Tab::Basic, settings::Title); });
  expectFreed([&] { dialog.ResetGeneral(); });
}

TEST_F(HostWrapper, NeedsMemoryAndAThread) {
  fakeExports.hasMemory = false;
  ExpectFailure(Reason::NotCreated, "NemPdfUI: no memory for a dialog object", [] { Dialog(); });
  fakeExports = {};
  fakeExports.takesUpThreads = false;
  ExpectFailure(Reason::NotCreated, "NemPdfUI: the library cannot take up the thread", [] { Dialog(); });
}

TEST_F(HostWrapper, NeedsALibraryThatIsAsNew) {
  fakeExports.version = NEMPDFUI_VERSION + 1;
  EXPECT_FALSE(FailureOf([] { Dialog(); }));
  fakeExports.version = 0x2099999;
  ExpectFailure(Reason::TooOld, "NemPdfUI: the library is version 2.9.39321, the host needs 2.10.4 or later",
                [] { Dialog(); });
}

TEST_F(HostWrapper, ReadsVersions) {
  EXPECT_EQ(uint32_t{NEMPDFUI_VERSION}, nempdf::LibraryVersion());
  EXPECT_EQ("2.10.4", nempdf::VersionText(NEMPDFUI_VERSION));
  EXPECT_EQ("0.0.0", nempdf::VersionText(0));
  EXPECT_EQ("255.99.65535", nempdf::VersionText(0xFF99FFFF));
}

// --- The sheet -----------------------------------------------------------------------------------------------------

TEST_F(HostWrapper, TheSheetGivesWhatTheUserDecides) {
  Dialog dialog;
  NemPdfUIHandle shown = nullptr;
  fakeExports.whileModal = [&](NemPdfUIHandle handle) { shown = handle; };
  EXPECT_TRUE(dialog.DoModal());
  EXPECT_EQ(dialog.Handle(), shown);
  fakeExports.modalResult = 0;
  EXPECT_FALSE(dialog.DoModal());
  fakeExports.modalResult = -1;
  ExpectFailure(Reason::NotShown, "NemPdfUI: the sheet could not be shown", [&] { (void)dialog.DoModal(); });
}

TEST_F(HostWrapper, TheVersionDialogFailsAloud) {
  for (const int closed : {1, 2}) {
    fakeExports.versionResult = closed;
    EXPECT_FALSE(FailureOf([] { nempdf::ShowVersion(); }));
  }
  for (const int failed : {0, -1}) {
    fakeExports.versionResult = failed;
    ExpectFailure(Reason::NotShown, "NemPdfUI: the version dialog could not be shown", [] { nempdf::ShowVersion(); });
  }
}

// --- Values --------------------------------------------------------------------------------------------------------

TEST_F(HostWrapper, EachSetHasItsOwnValues) {
  Dialog dialog;
  dialog.Set(Tab::Basic, settings::Scale, 7);
  dialog.Set(Tab::Document, settings::Scale, -1);
  dialog.Set(Tab::Basic, settings::Title, L"basic");
  dialog.Set(Tab::Document, settings::Title, std::wstring(L"document"));
  dialog.Set(general::SheetTitle, L"general");
  dialog.Set(general::PasswordVisible, 1);
  EXPECT_EQ(7, dialog.Get(Tab::Basic, settings::Scale));
  EXPECT_EQ(-1, dialog.Get(Tab::Document, settings::Scale));
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Title) == L"basic");
  EXPECT_TRUE(dialog.Get(Tab::Document, settings::Title) == L"document");
  EXPECT_TRUE(dialog.Get(general::SheetTitle) == L"general");
  EXPECT_EQ(1, dialog.Get(general::PasswordVisible));
}

TEST_F(HostWrapper, NumbersHaveAllTheirBits) {
  Dialog dialog;
  for (const int32_t number : {0, 1, -1, INT32_MIN, INT32_MAX}) {
    dialog.Set(Tab::Document, settings::HyperlinkBorderColor, number);
    EXPECT_EQ(number, dialog.Get(Tab::Document, settings::HyperlinkBorderColor));
  }
}

TEST_F(HostWrapper, TextsOfAnyLengthTravel) {
  Dialog dialog;
  // Around the sizes of room that are offered, which must have two characters more.
  for (const size_t length : {0u, 1u, 1021u, 1022u, 1023u, 1024u, 4094u, 4095u, 100000u}) {
    const std::wstring text(length, L'x');
    dialog.Set(Tab::Basic, settings::MailNotetext, text);
    EXPECT_TRUE(dialog.Get(Tab::Basic, settings::MailNotetext) == text) << length;
    dialog.Set(Tab::Basic, settings::StationeryInfos, text);
    EXPECT_TRUE(dialog.Get(Tab::Basic, settings::StationeryInfos) == text) << length;
  }
}

TEST_F(HostWrapper, AnotherTextLeavesNothingOfALongerOne) {
  Dialog dialog;
  dialog.Set(Tab::Basic, settings::Title, L"a longer text");
  dialog.Set(Tab::Basic, settings::Title, L"short");
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Title) == L"short");
  const wchar_t* none = nullptr;
  dialog.Set(Tab::Basic, settings::Title, none);
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Title).empty());
}

TEST_F(HostWrapper, ATextWithAZeroInItIsNotCut) {
  Dialog dialog;
  dialog.Set(Tab::Basic, settings::Title, L"before");
  const std::wstring text(L"a\0b", 3);
  const char expected[] = "NemPdfUI: a text with a zero in it would be cut there";
  ExpectFailure(Reason::ZeroInText, expected, [&] { dialog.Set(Tab::Basic, settings::Title, text); });
  ExpectFailure(Reason::ZeroInText, expected, [&] { dialog.SetByName(0, L"Title", text); });
  ExpectFailure(Reason::ZeroInText, expected,
                [&] { dialog.Set(Tab::Basic, settings::EncryptUserPassword, SecretText(text)); });
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Title) == L"before");
}

TEST_F(HostWrapper, OwnersAreWindowHandles) {
  Dialog dialog;
  dialog.SetOwner(reinterpret_cast<const void*>(uintptr_t{0x1234}));
  EXPECT_EQ(0x1234, dialog.Get(general::HwndParent));
  dialog.SetOwner(reinterpret_cast<const void*>(~uintptr_t{0xF}));  // widened from 32 bits with their sign
  EXPECT_EQ(-16, dialog.Get(general::HwndParent));
  dialog.SetOwner(nullptr);
  EXPECT_EQ(0, dialog.Get(general::HwndParent));
}

TEST_F(HostWrapper, AResetIsOfOneSet) {
  Dialog dialog;
  const auto fill = [&] {
    for (const Tab tab : {Tab::Basic, Tab::Document}) dialog.Set(tab, settings::Title, L"text");
    dialog.Set(general::SheetTitle, L"text");
  };
  const auto texts = [&] {
    return dialog.Get(general::SheetTitle) + L"," + dialog.Get(Tab::Basic, settings::Title) + L"," +
           dialog.Get(Tab::Document, settings::Title);
  };
  fill();
  dialog.Reset(Tab::Basic);
  EXPECT_TRUE(texts() == L"text,,text");
  fill();
  dialog.Reset(Tab::Document);
  EXPECT_TRUE(texts() == L"text,text,");
  fill();
  dialog.ResetGeneral();
  EXPECT_TRUE(texts() == L",text,text");
}

// --- Errors of the library -----------------------------------------------------------------------------------------

// As after a trace file that could not be opened: the thread's first set or get function pays for it.
TEST_F(HostWrapper, AnErrorFromBeforeCostsNoValue) {
  Dialog dialog;
  fakeExports.errorsToAnswer = 1;
  dialog.Set(Tab::Basic, settings::Scale, 7);
  fakeExports.errorsToAnswer = 1;
  EXPECT_EQ(7, dialog.Get(Tab::Basic, settings::Scale));
  fakeExports.errorsToAnswer = 1;
  dialog.Set(Tab::Basic, settings::Title, L"text");
  fakeExports.errorsToAnswer = 1;
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Title) == L"text");
  fakeExports.errorsToAnswer = 1;
  dialog.Reset(Tab::Basic);
  EXPECT_EQ(0, dialog.Get(Tab::Basic, settings::Scale));
  EXPECT_EQ(0, fakeExports.errorsToAnswer);
}

TEST_F(HostWrapper, WhatTheLibraryRefusesIsNamed) {
  Dialog dialog;
  fakeExports.refusesProperties = true;
  ExpectFailure(Reason::Refused, "NemPdfUI: the library refuses Scale in set 1",
                [&] { dialog.Set(Tab::Document, settings::Scale, 85); });
  ExpectFailure(Reason::Refused, "NemPdfUI: the library refuses EncryptUserPassword in set 0",
                [&] { dialog.Set(Tab::Basic, settings::EncryptUserPassword, L"hunter2"); });
  ExpectFailure(Reason::Refused, "NemPdfUI: the library refuses HwndParent in set -1",
                [&] { (void)dialog.Get(general::HwndParent); });
  ExpectFailure(Reason::Refused, "NemPdfUI: the library refuses everything in set 0",
                [&] { dialog.Reset(Tab::Basic); });
}

TEST_F(HostWrapper, ATextThatIsTooLongIsRefused) {
  Dialog dialog;
  std::wstring text((1 << 24) - 2, L'x');
  dialog.Set(Tab::Basic, settings::Keywords, text);
  EXPECT_TRUE(dialog.Get(Tab::Basic, settings::Keywords) == text);
  text += L'x';
  dialog.Set(Tab::Basic, settings::Keywords, text);
  ExpectFailure(Reason::Refused, "NemPdfUI: the library does not deliver Keywords in set 0",
                [&] { (void)dialog.Get(Tab::Basic, settings::Keywords); });
}

// --- Names at run time ---------------------------------------------------------------------------------------------

TEST_F(HostWrapper, EveryPropertyTravelsByItsName) {
  Dialog dialog;
  int32_t number = 0;
  for (const int32_t index : {NEMPDFUI_GENERAL, NEMPDFUI_SETTINGS, NEMPDFUI_DOCUMENT}) {
    for (const nempdf::PropertyInfo& property : nempdf::Properties(index)) {
      const std::wstring text(property.name);
      ++number;
      if (property.kind == Kind::Number) {
        dialog.SetByName(index, property.name, number);
        EXPECT_EQ(number, dialog.GetByName<Kind::Number>(index, property.name));
        continue;
      }
      dialog.SetByName(index, property.name, text);
      if (property.kind == Kind::Text)
        EXPECT_TRUE(dialog.GetByName<Kind::Text>(index, property.name) == text);
      else
        EXPECT_TRUE(dialog.GetByName<Kind::Secret>(index, property.name) == text);
    }
  }
  EXPECT_EQ(6 + 2 * 123, number);
}

TEST_F(HostWrapper, NamesNeedNoZeroAtTheirEnd) {
  Dialog dialog;
  dialog.SetByName(0, std::wstring_view(L"ScaleAndMore").substr(0, 5), 7);
  EXPECT_EQ(7, dialog.Get(Tab::Basic, settings::Scale));
}

TEST_F(HostWrapper, WrongNamesAndSetsAreRefused) {
  Dialog dialog;
  dialog.Set(Tab::Document, settings::Scale, 7);
  const auto expectUnknown = [&](int32_t index, std::wstring_view name, const char* text) {
    ExpectFailure(Reason::UnknownName, text, [&] { dialog.SetByName(index, name, 1); });
    ExpectFailure(Reason::UnknownName, text, [&] { dialog.SetByName(index, name, L"text"); });
    ExpectFailure(Reason::UnknownName, text, [&] { (void)dialog.GetByName<Kind::Number>(index, name); });
  };
  expectUnknown(0, L"Nonsense", "NemPdfUI: there is no property Nonsense in set 0");
  expectUnknown(1, L"scale", "NemPdfUI: there is no property scale in set 1");
  expectUnknown(-1, L"Scale", "NemPdfUI: there is no property Scale in set -1");
  expectUnknown(0, L"PrinterName", "NemPdfUI: there is no property PrinterName in set 0");
  expectUnknown(2, L"Scale", "NemPdfUI: there is no property Scale in set 2");
  expectUnknown(0,
                L"Gr\x00F6\x00DF"
                L"e\n",
                "NemPdfUI: there is no property Gr??e? in set 0");
  // To the library these would be orders to reset the set.
  expectUnknown(1, L"", "NemPdfUI: there is no property  in set 1");
  expectUnknown(1, L"\x0100", "NemPdfUI: there is no property ? in set 1");
  EXPECT_EQ(7, dialog.Get(Tab::Document, settings::Scale));
  EXPECT_EQ(nullptr, nempdf::FindProperty(0, L"Nonsense"));
  EXPECT_TRUE(nempdf::Properties(2).empty());
}

TEST_F(HostWrapper, ValuesOfAnotherKindAreRefused) {
  Dialog dialog;
  const auto expectWrong = [](const char* text, const auto& call) { ExpectFailure(Reason::WrongKind, text, call); };
  expectWrong("NemPdfUI: Scale in set 0 is of another kind", [&] { dialog.SetByName(0, L"Scale", L"text"); });
  expectWrong("NemPdfUI: Title in set 1 is of another kind", [&] { dialog.SetByName(1, L"Title", 1); });
  expectWrong("NemPdfUI: EncryptUserPassword in set 0 is of another kind",
              [&] { dialog.SetByName(0, L"EncryptUserPassword", 1); });
  expectWrong("NemPdfUI: Scale in set 0 is of another kind", [&] { (void)dialog.GetByName<Kind::Text>(0, L"Scale"); });
  expectWrong("NemPdfUI: Title in set 0 is of another kind",
              [&] { (void)dialog.GetByName<Kind::Number>(0, L"Title"); });
  // A password does not come out as an ordinary text by mistake.
  expectWrong("NemPdfUI: EncryptUserPassword in set 0 is of another kind",
              [&] { (void)dialog.GetByName<Kind::Text>(0, L"EncryptUserPassword"); });
}

// --- Passwords -----------------------------------------------------------------------------------------------------

TEST(HostSecretText, MovesAndCompares) {
  SecretText text(L"hunter2");
  EXPECT_TRUE(text == L"hunter2");
  EXPECT_FALSE(text == L"hunter");
  SecretText taken(std::move(text));
  EXPECT_TRUE(taken.View() == L"hunter2");
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_TRUE(std::wstring_view(text.CStr()).empty()) << "never null";
  EXPECT_FALSE(taken == text);
  text = std::move(taken);
  EXPECT_TRUE(text == SecretText(L"hunter2"));
  EXPECT_TRUE(taken.IsEmpty());
}

TEST(HostSecretText, LeavesNothingInFreedMemory) {
  const wchar_t password[] = L"correct horse";
  const FreedTextWatch watch(password);
  SecretText text(password);
  text = SecretText(L"another");
  text = SecretText(password);
  {
    const SecretText taken(std::move(text));
    EXPECT_TRUE(taken == password);
  }
  EXPECT_EQ(0, watch.Count());
}

TEST(HostSecretText, TheWatchSeesWhatIsLeft) {
  const wchar_t password[] = L"correct horse";
  const FreedTextWatch watch(password);
  auto room = std::make_unique<wchar_t[]>(64);
  for (size_t i = 0; password[i]; ++i) room[i] = password[i];
  room.reset();
  EXPECT_EQ(1, watch.Count());
}

TEST_F(HostWrapper, APasswordThatWasReadLeavesNothingInFreedMemory) {
  const wchar_t password[] = L"correct horse";
  std::wstring list(5000, L'x');
  list += password;
  Dialog dialog;
  const FreedTextWatch watch(password);
  dialog.Set(Tab::Basic, settings::EncryptOwnerPassword, password);
  dialog.Set(Tab::Basic, settings::StationeryInfos, list);
  {
    const SecretText read = dialog.Get(Tab::Basic, settings::EncryptOwnerPassword);
    EXPECT_TRUE(read == password);
    const SecretText readList = dialog.Get(Tab::Basic, settings::StationeryInfos);
    EXPECT_TRUE(readList == list);
    dialog.Set(Tab::Document, settings::EncryptOwnerPassword, read);
  }
  EXPECT_TRUE(dialog.Get(Tab::Document, settings::EncryptOwnerPassword) == password);
  { const Dialog gone(std::move(dialog)); }
  EXPECT_EQ(0, watch.Count());
}

}  // namespace
