#include "ui/PropertyAccess.h"

#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "support/TracedThread.h"

namespace {

using Lines = std::vector<std::wstring>;

// Every rule is looked at in both forms of the interface: the parameter is true for the wide one.
class PropertyAccess : public testing::TestWithParam<bool> {
 protected:
  PropertyAccess() { thread_.Lines(); }

  // A text as the form takes it. It lives as long as the test.
  const void* Name(const char* name) {
    if (!GetParam()) return name;
    return wide_.emplace_back(name, name + strlen(name)).c_str();
  }

  int Set(int32_t index, const char* name, const void* value) {
    return SetProperty(dialog_.get(), index, Name(name), GetParam(), value);
  }
  int SetNumber(int32_t index, const char* name, int32_t value) { return Set(index, name, &value); }
  int Get(int32_t index, const char* name, void* buffer, int32_t size) {
    return GetProperty(dialog_.get(), index, Name(name), GetParam(), buffer, size);
  }
  // The text's value; both forms deliver it wide.
  std::wstring GetText(int32_t index, const char* name) {
    wchar_t buffer[256];
    return Get(index, name, buffer, 256) ? std::wstring(buffer) : L"(failed)";
  }
  // The last error that was reported, and the trace of it.
  uint32_t LastCode() { return thread_.Error().lastCode; }

  std::deque<std::wstring> wide_;
  TracedThread thread_;
  std::unique_ptr<CDialogProperties> dialog_ = std::make_unique<CDialogProperties>();
};

INSTANTIATE_TEST_SUITE_P(Forms, PropertyAccess, testing::Bool(),
                         [](const auto& info) { return info.param ? "W" : "A"; });

// --- Numbers and texts -------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, NumbersTravelUnchanged) {
  for (const int32_t index : {0, 1})
    for (const int32_t value : {0, 85, -1, INT32_MIN, INT32_MAX}) {
      int32_t read = 4711;
      EXPECT_EQ(1, SetNumber(index, "GraphicJpegQuality", value));
      EXPECT_EQ(1, Get(index, "GraphicJpegQuality", &read, 4));
      EXPECT_EQ(value, read);
    }
}

TEST_P(PropertyAccess, EachPropertyOfEachSetIsReached) {
  for (const int32_t index : {-1, 0, 1}) {
    const CPropertySet& set = *dialog_->FindSet(index);
    for (auto position = set.First(); position;) {
      const CProperty* property = set.Next(position);
      const std::wstring_view wide = property->GetName().View();
      const std::string name(wide.begin(), wide.end());
      if (property->GetTypeName() == kLongTypeName) {
        EXPECT_EQ(1, SetNumber(index, name.c_str(), 17)) << name;
        EXPECT_EQ(17, property->GetLong()) << name;
      } else {
        EXPECT_EQ(1, Set(index, name.c_str(), Name("value"))) << name;
        EXPECT_TRUE(property->GetString() == L"value") << name;
        EXPECT_TRUE(GetText(index, name.c_str()) == L"value") << name;
      }
    }
  }
}

TEST_P(PropertyAccess, TheSetsAreIndependent) {
  EXPECT_EQ(1, SetNumber(0, "Scale", 50));
  EXPECT_EQ(1, SetNumber(1, "Scale", 60));
  EXPECT_EQ(50, dialog_->Scale[0].GetLong());
  EXPECT_EQ(60, dialog_->Scale[1].GetLong());
}

TEST_P(PropertyAccess, NullValueStoresZeroAndEmpty) {
  EXPECT_EQ(1, SetNumber(0, "Scale", 50));
  EXPECT_EQ(1, Set(0, "Scale", nullptr));
  EXPECT_EQ(0, dialog_->Scale[0].GetLong());
  EXPECT_EQ(1, Set(0, "Title", Name("text")));
  EXPECT_EQ(1, Set(0, "Title", nullptr));
  EXPECT_TRUE(GetText(0, "Title").empty());
}

TEST_P(PropertyAccess, MillionCharactersTravel) {
  const std::string narrow(1'000'000, 'x');
  const std::wstring wide(1'000'000, L'x');
  EXPECT_EQ(1, Set(0, "Title", GetParam() ? static_cast<const void*>(wide.c_str()) : narrow.c_str()));
  std::wstring buffer(1'000'002, L'#');
  EXPECT_EQ(1, Get(0, "Title", buffer.data(), 1'000'002));
  EXPECT_TRUE(buffer.substr(0, wide.size()) == wide);
  EXPECT_EQ(0, Get(0, "Title", buffer.data(), 1'000'001));
}

TEST_P(PropertyAccess, TextNeedsTwoMoreThanItsLength) {
  Set(0, "Title", Name("0123456789"));
  std::wstring buffer(32, L'#');
  EXPECT_EQ(0, Get(0, "Title", buffer.data(), 11));
  EXPECT_EQ(47u, LastCode());  // the first error stays the one
  EXPECT_EQ(std::wstring(32, L'#'), buffer);
  EXPECT_EQ(1, Get(0, "Title", buffer.data(), 12));
  EXPECT_EQ(std::wstring(L"0123456789\0\0####################", 32), buffer);
}

TEST_P(PropertyAccess, OddSizesAreRefusedOrServed) {
  Set(0, "Title", Name("abc"));
  for (const int32_t size : {0, -1, 1, 4, INT32_MIN}) {
    std::wstring buffer(16, L'#');
    EXPECT_EQ(0, Get(0, "Title", buffer.data(), size)) << size;
    EXPECT_EQ(std::wstring(16, L'#'), buffer) << size;
  }
  std::wstring buffer(16, L'#');
  EXPECT_EQ(1, Get(0, "Title", buffer.data(), INT32_MAX));
  EXPECT_EQ(std::wstring(L"abc\0############", 16), buffer);
  for (const int32_t size : {0, -1, 3, INT32_MIN}) {
    int32_t number = 77;
    EXPECT_EQ(0, Get(0, "Scale", &number, size)) << size;
    EXPECT_EQ(77, number);
  }
}

// --- Text in the A form ------------------------------------------------------------------------------------------

class NarrowAccess : public testing::Test {
 protected:
  TracedThread thread_;
  std::unique_ptr<CDialogProperties> dialog_ = std::make_unique<CDialogProperties>();
};

TEST_F(NarrowAccess, TextIsConvertedFromTheAnsiCodePage) {
  for (const std::string& text : {std::string("gr\xFC\xDF"), std::string(200, '\xE4'), std::string(63, 'x'),
                                  std::string(64, 'x'), std::string(65, 'x'), std::string(63, 'x') + "\xFC"}) {
    EXPECT_EQ(1, SetProperty(dialog_.get(), 0, "Title", false, text.c_str()));
    CUString expected;
    expected.AssignNarrow(text.c_str());
    EXPECT_EQ(std::wstring(expected.Text()), std::wstring(dialog_->Title[0].GetString().Text()));
  }
}

TEST_F(NarrowAccess, ANumberIsNoText) {
  const int32_t value = 0x41424344;
  EXPECT_EQ(1, SetProperty(dialog_.get(), 0, "Scale", false, &value));
  EXPECT_EQ(value, dialog_->Scale[0].GetLong());
}

TEST_F(NarrowAccess, ANameThatIsNotAsciiIsUnknown) {
  const int32_t value = 1;
  EXPECT_EQ(0, SetProperty(dialog_.get(), 0, "Scal\xE9", false, &value));
  EXPECT_EQ(99u, thread_.Error().lastCode);
}

TEST(WideAccess, KeepsOddSurrogates) {
  const TracedThread thread;
  CDialogProperties dialog;
  const wchar_t odd[] = {0xDC00, L'x', 0xD800, 0};
  EXPECT_EQ(1, SetProperty(&dialog, 0, L"Title", true, odd));
  wchar_t buffer[8];
  EXPECT_EQ(1, GetProperty(&dialog, 0, L"Title", true, buffer, 8));
  EXPECT_EQ(std::wstring(odd), std::wstring(buffer));
  EXPECT_EQ(0, SetProperty(&dialog, 0, odd + 1, true, odd));  // as a name: unknown
}

// --- Handles -----------------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, BadHandlesAreRefused) {
  alignas(16) unsigned char foreign[64] = "no dialog object";
  alignas(16) unsigned char crooked[64] = "xIUEN";  // the magic where no object can be
  const int32_t value = 1;
  for (const void* handle : {static_cast<const void*>(nullptr), static_cast<const void*>(foreign),
                             static_cast<const void*>(crooked + 1), reinterpret_cast<const void*>(uintptr_t{16})}) {
    EXPECT_EQ(nullptr, DialogFromHandle(handle));
    EXPECT_EQ(2, SetProperty(handle, 0, Name("Scale"), GetParam(), &value));
    EXPECT_EQ(2, SetProperty(handle, 0, nullptr, GetParam(), nullptr));
    EXPECT_EQ(0u, LastCode());
    EXPECT_TRUE(thread_.Lines().empty());
  }
  EXPECT_EQ(dialog_.get(), DialogFromHandle(dialog_.get()));
}

TEST_P(PropertyAccess, ADeadObjectIsRefused) {
  alignas(CDialogProperties) static unsigned char storage[sizeof(CDialogProperties)];
  auto* dialog = new (storage) CDialogProperties;
  const int32_t value = 1;
  EXPECT_EQ(1, SetProperty(storage, 0, Name("Scale"), GetParam(), &value));
  dialog->~CDialogProperties();
  EXPECT_EQ(2, SetProperty(storage, 0, Name("Scale"), GetParam(), &value));
}

TEST_P(PropertyAccess, ABadHandleLeavesAPendingErrorAlone) {
  thread_.Error().code = 29;
  EXPECT_EQ(2, SetProperty(nullptr, 0, Name("Scale"), GetParam(), nullptr));
  EXPECT_EQ(29u, thread_.Error().code);
}

TEST_P(PropertyAccess, ReadingWithABadHandleEndsAsAnUnknownName) {
  alignas(16) unsigned char foreign[64] = "no dialog object";
  for (const void* handle : {static_cast<const void*>(nullptr), static_cast<const void*>(foreign)}) {
    int32_t number = 77;
    thread_.Lines();
    EXPECT_EQ(0, GetProperty(handle, 0, Name("Scale"), GetParam(), &number, 4));
    EXPECT_EQ(99u, LastCode());
    EXPECT_EQ(77, number);
    EXPECT_EQ((Lines{L"Getting Property \"Scale\"", L"Error: GetProperty Scale failed",
                     L"Error: Setze Fehler 99(Scale) in ..\\NemUI(275)"}),
              thread_.Lines());
  }
}

// A handle at the very end of readable memory: nothing behind its four bytes is touched (the sanitizer watches).
TEST_P(PropertyAccess, ReadsFourBytesOfAForeignHandle) {
  const auto four = std::make_unique<uint32_t>(0x12345678);
  EXPECT_EQ(2, SetProperty(four.get(), 0, Name("Scale"), GetParam(), nullptr));
  int32_t number = 0;
  EXPECT_EQ(0, GetProperty(four.get(), 0, Name("Scale"), GetParam(), &number, 4));
}

// --- Names and indexes -------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, EachSetKnowsItsOwnNamesOnly) {
  const int32_t value = 1;
  const struct {
    int32_t index;
    const char* name;
  } unknown[] = {{0, "PrinterName"},
                 {1, "HwndParent"},
                 {-1, "Scale"},
                 {0, "scale"},
                 {0, "Nonsense"},
                 {5, "Scale"},
                 {-2, "HwndParent"},
                 {2, "Scale"},
                 {INT32_MIN, "Scale"},
                 {INT32_MAX, "Scale"},
                 {0, "EmbedFilenamesConfirmed"},
                 {0, "EmbedfilenamesEnabled"},
                 {0, "FormfieldsEnabled"},
                 {0, "ShowFormFields"}};
  for (const auto& [index, name] : unknown) {
    EXPECT_EQ(0, Set(index, name, &value)) << name << index;
    EXPECT_EQ(99u, LastCode());
    int32_t read[64];
    EXPECT_EQ(0, Get(index, name, read, 64)) << name << index;
    EXPECT_EQ(99u, LastCode());
    EXPECT_EQ(0u, thread_.Error().code);
  }
  for (const char* name : {"EmbedfilenamesConfirmed", "EmbedFilenamesEnabled", "FormFieldsEnabled", "ShowFormfields"})
    EXPECT_EQ(1, Set(0, name, &value)) << name;
}

TEST_P(PropertyAccess, AFailedSetIsTracedAndNamesTheProperty) {
  const int32_t value = 1;
  EXPECT_EQ(0, Set(0, "Nonsense", &value));
  EXPECT_EQ((Lines{L"Error: SetProperty Nonsense failed", L"Error: Setze Fehler 99(Nonsense) in ..\\NemUI(207)"}),
            thread_.Lines());
  EXPECT_TRUE(thread_.Error().detail == L"Nonsense");
}

TEST_P(PropertyAccess, AFailedGetIsTracedAndNamesTheProperty) {
  int32_t number = 0;
  EXPECT_EQ(0, Get(0, "Nonsense", &number, 4));
  EXPECT_TRUE(thread_.Error().detail == L"Nonsense");
  EXPECT_EQ(0, Get(0, "Scale", &number, 3));
  EXPECT_EQ(47u, LastCode());
  EXPECT_EQ((Lines{L"Getting Property \"Nonsense\"", L"Error: GetProperty Nonsense failed",
                   L"Error: Setze Fehler 99(Nonsense) in ..\\NemUI(275)", L"Getting Property \"Scale\"",
                   L"Error: Setze Fehler 47 in ..\\Property(716)", L"Error: GetProperty Scale failed",
                   L"Error: Aktueller Fehler: 47. Weiterer Fehler 99(Scale) in ..\\NemUI(275)"}),
            thread_.Lines());
}

TEST_P(PropertyAccess, NamesOfAnyLengthAreLookedUp) {
  for (const int length : {62, 63, 64, 65, 1000, 1'000'000}) {
    const std::string name(static_cast<size_t>(length), 'n');
    int32_t number = 0;
    EXPECT_EQ(0, Set(0, name.c_str(), &number));
    EXPECT_EQ(length, thread_.Error().detail.Length());
    EXPECT_EQ(0, Get(0, name.c_str(), &number, 4));
  }
}

TEST_P(PropertyAccess, ReadingAsksForNameAndBuffer) {
  int32_t number = 77;
  EXPECT_EQ(0, GetProperty(dialog_.get(), 0, nullptr, GetParam(), &number, 4));
  EXPECT_EQ(29u, LastCode());
  EXPECT_EQ(0, GetProperty(dialog_.get(), 0, Name("Scale"), GetParam(), nullptr, 4));
  EXPECT_EQ(29u, LastCode());
  EXPECT_EQ((Lines{L"Error: Setze Fehler 29 in ..\\NemUI(220)", L"Error: Setze Fehler 29 in ..\\NemUI(220)"}),
            thread_.Lines());
  EXPECT_EQ(77, number);
}

TEST_P(PropertyAccess, ReadingAnEmptyNameIsUnknown) {
  int32_t number = 77;
  EXPECT_EQ(0, Get(0, "", &number, 4));
  EXPECT_EQ(99u, LastCode());
}

// --- The reset ---------------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, NullAndEmptyNamesResetTheSetOfTheIndex) {
  for (const bool null : {true, false})
    for (const int32_t reset : {-1, 0, 1}) {
      for (const int32_t index : {0, 1}) {
        SetNumber(index, "Scale", 50);
        Set(index, "Title", Name("text"));
      }
      SetNumber(-1, "HwndParent", 7);
      Set(-1, "PrinterName", Name("printer"));
      dialog_->adminSettings.PdfVersion_Override = 14;

      EXPECT_EQ(1, SetProperty(dialog_.get(), reset, null ? nullptr : Name(""), GetParam(), nullptr));
      for (const int32_t index : {0, 1}) {
        EXPECT_EQ(index == reset ? 0 : 50, dialog_->Scale[index].GetLong());
        EXPECT_EQ(index == reset, dialog_->Title[index].GetString().IsEmpty());
      }
      EXPECT_EQ(reset == -1 ? 0 : 7, dialog_->HwndParent.GetLong());
      EXPECT_EQ(reset == -1, dialog_->PrinterName.GetString().IsEmpty());
      EXPECT_EQ(14, dialog_->adminSettings.PdfVersion_Override);
    }
  EXPECT_TRUE(thread_.Lines().empty());
}

TEST_P(PropertyAccess, AnotherIndexIsNoResetButAWarning) {
  SetNumber(0, "Scale", 50);
  const Lines nothing = {L"Warning: Property \"(null)\" nicht verfuegbar (Set)"};
  for (const int32_t index : {5, 2, -2}) {
    EXPECT_EQ(1, SetProperty(dialog_.get(), index, nullptr, GetParam(), nullptr));
    EXPECT_EQ(nothing, thread_.Lines());
    EXPECT_EQ(1, SetProperty(dialog_.get(), index, Name(""), GetParam(), nullptr));
    EXPECT_EQ((Lines{L"Warning: Property \"\" nicht verfuegbar (Set)"}), thread_.Lines());
  }
  EXPECT_EQ(50, dialog_->Scale[0].GetLong());
  EXPECT_EQ(0u, LastCode());
}

TEST(WideAccess, ANameWhoseFirstByteIsZeroResets) {
  const TracedThread thread;
  CDialogProperties dialog;
  dialog.Scale[1].SetLong(50);
  EXPECT_EQ(1, SetProperty(&dialog, 1, L"\x0100name", true, nullptr));
  EXPECT_EQ(0, dialog.Scale[1].GetLong());
  EXPECT_EQ(0, SetProperty(&dialog, 5, L"\x0100name", true, nullptr));  // no set to reset: an unknown name
  EXPECT_EQ(0, SetProperty(&dialog, 1, L"\x0141name", true, nullptr));
}

// --- Pending errors ----------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, APendingErrorEndsTheCallOnce) {
  const int32_t value = 50;
  int32_t read = 77;
  thread_.Error().code = 29;
  EXPECT_EQ(0, Set(0, "Scale", &value));
  EXPECT_EQ(0, dialog_->Scale[0].GetLong());
  EXPECT_EQ(0u, thread_.Error().code);
  EXPECT_EQ(29u, LastCode());
  EXPECT_EQ(1, Set(0, "Scale", &value));
  EXPECT_EQ(0u, LastCode());

  thread_.Error().code = 1;
  EXPECT_EQ(0, Get(0, "Scale", &read, 4));
  EXPECT_EQ(77, read);
  EXPECT_EQ(1u, LastCode());
  EXPECT_EQ(1, Get(0, "Scale", &read, 4));
  EXPECT_EQ(50, read);
}

TEST_P(PropertyAccess, APendingErrorIsTheOneThatAReadingReports) {
  int32_t read = 77;
  const void* name = Name("Scale");
  const struct {
    const void *handle, *name;
    void* buffer;
    Lines lines;
  } rows[] = {
      {dialog_.get(), nullptr, &read, {L"Error: Aktueller Fehler: 1. Weiterer Fehler 29 in ..\\NemUI(220)"}},
      {dialog_.get(), name, nullptr, {L"Error: Aktueller Fehler: 1. Weiterer Fehler 29 in ..\\NemUI(220)"}},
      {nullptr, name, &read, {}},
  };
  for (const auto& row : rows) {
    thread_.Error().code = 1;
    EXPECT_EQ(0, GetProperty(row.handle, 0, row.name, GetParam(), row.buffer, 4));
    EXPECT_EQ(0u, thread_.Error().code);
    EXPECT_EQ(1u, LastCode());
    EXPECT_EQ(row.lines, thread_.Lines());
    EXPECT_EQ(77, read);
  }
}

TEST_P(PropertyAccess, APendingErrorKeepsTheSetFromBeingReset) {
  SetNumber(0, "Scale", 50);
  thread_.Error().code = 29;
  EXPECT_EQ(0, SetProperty(dialog_.get(), 0, nullptr, GetParam(), nullptr));
  EXPECT_EQ(50, dialog_->Scale[0].GetLong());
}

TEST_P(PropertyAccess, ASuccessfulCallForgetsTheErrorBefore) {
  const int32_t value = 1;
  Set(0, "Nonsense", &value);
  EXPECT_EQ(1, Set(0, "Scale", &value));
  EXPECT_EQ(0u, LastCode());
  EXPECT_EQ(nullptr, thread_.Error().detail.Buffer());
}

// --- Rights ------------------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, AnUnwritablePropertyFailsAndKeepsItsValue) {
  CLongProperty fixed(L"Scale", dialog_->settingsSets[0], 9, kPropertyReadable);
  const int32_t value = 1;
  EXPECT_EQ(0, Set(0, "Scale", &value));
  EXPECT_EQ(3u, LastCode());
  EXPECT_EQ(9, fixed.GetLong());
}

TEST_P(PropertyAccess, AnUnreadablePropertyFailsWithItsCode) {
  CLongProperty hidden(L"Scale", dialog_->settingsSets[0], 9, kPropertyWritable);
  int32_t read = 77;
  EXPECT_EQ(0, Get(0, "Scale", &read, 4));
  EXPECT_EQ(2u, LastCode());
  EXPECT_EQ(77, read);
}

// --- Passwords ---------------------------------------------------------------------------------------------------

TEST_P(PropertyAccess, NoPasswordReachesTheTrace) {
  wchar_t buffer[64];
  for (const char* name : {"EncryptUserPassword", "EncryptOwnerPassword", "EncryptEnhancedPdfPassword"}) {
    EXPECT_EQ(1, Set(0, name, Name("hunter2")));
    EXPECT_EQ(1, Get(0, name, buffer, 64));
    EXPECT_EQ(0, Get(0, name, buffer, 3));
    EXPECT_EQ(0, Set(5, name, Name("hunter2")));
  }
  for (const CPropertySet& set : dialog_->settingsSets)
    for (auto position = set.First(); position;) set.Next(position)->PrintValue();
  for (const std::wstring& line : thread_.Lines()) EXPECT_EQ(std::wstring::npos, line.find(L"hunter"));
}

// --- Copying -----------------------------------------------------------------------------------------------------

TEST(CopyAllSets, TakesOverAllValuesButNotTheAdministrators) {
  CDialogProperties source, target;
  for (const int32_t index : {-1, 0, 1})
    for (auto position = source.FindSet(index)->First(); position;) {
      CProperty* property = source.FindSet(index)->Next(position);
      property->SetLong(index + 10);
      property->SetString(L"text");
    }
  source.adminSettings.PdfVersion_Override = 14;
  source.running = true;
  CopyAllSets(target, source);
  for (const int32_t index : {-1, 0, 1})
    for (auto position = target.FindSet(index)->First(); position;) {
      const CProperty* property = target.FindSet(index)->Next(position);
      const bool isNumber = property->GetTypeName() == kLongTypeName;
      EXPECT_TRUE(isNumber ? property->GetLong() == index + 10 : property->GetString() == L"text");
    }
  EXPECT_EQ(kUnsetNumber, target.adminSettings.PdfVersion_Override);
  EXPECT_FALSE(target.running);
}

// --- Without an error state --------------------------------------------------------------------------------------

TEST(PropertyAccessAlone, WorksWithoutAnErrorState) {
  CDialogProperties dialog;
  int32_t value = 50;
  EXPECT_EQ(1, SetProperty(&dialog, 0, L"Scale", true, &value));
  EXPECT_EQ(0, SetProperty(&dialog, 0, L"Nonsense", true, &value));
  EXPECT_EQ(0, GetProperty(&dialog, 0, L"Scale", true, nullptr, 4));
  EXPECT_EQ(1, GetProperty(&dialog, 0, L"Scale", true, &value, 4));
  EXPECT_EQ(50, value);
}

}  // namespace
