// The modal run, with a stand-in for the platform's property sheet: what goes in, what comes out, who may come in
// meanwhile.
#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "driver/ImportPatch.h"
#include "DriverLIB/WindowThreadState.h"
#include "NemPdfUI.h"
#include "sheet/CNemUISheet.h"
#include "support/FailingMalloc.h"
#include "ui/PropertyAccess.h"

namespace {

constexpr char kUser[] = "user32.dll";
constexpr char kCommonControls[] = "comctl32.dll";

const HWND kHighWindow = reinterpret_cast<HWND>(static_cast<INT_PTR>(-2));

// What the stand-in is to do, and what it saw.
INT_PTR sheetResult = 0;
std::function<void(CDialogProperties&)> whileRunning;  // with the sheet's working copy
int runs = 0;
HWND ownerSeen = nullptr;
std::wstring captionSeen;
UINT pagesSeen = 0;

INT_PTR WINAPI SheetStandIn(const PROPSHEETHEADERW* header) {
  ++runs;
  ownerSeen = header->hwndParent;
  captionSeen = header->pszCaption;
  pagesSeen = header->nPages;
  auto* sheet = static_cast<CPropertySheet*>(CurrentWindowThreadState()->running);
  if (whileRunning) whileRunning(static_cast<CNemUISheet*>(sheet)->Properties());
  for (UINT i = 0; i < header->nPages; ++i) DestroyPropertySheetPage(header->phpage[i]);
  return sheetResult;
}

// Gives the first page and no second one, and counts what is given back.
int pagesWanted = 0, pagesDestroyed = 0;

HPROPSHEETPAGE WINAPI OnlyOnePage(const PROPSHEETPAGEW*) {
  return ++pagesWanted == 1 ? reinterpret_cast<HPROPSHEETPAGE>(INT_PTR{0x50414745}) : nullptr;
}

BOOL WINAPI CountDestroyed(HPROPSHEETPAGE) {
  ++pagesDestroyed;
  return TRUE;
}

BOOL WINAPI OnlyTheHighWindow(HWND window) { return window == kHighWindow; }

// Gives every property of the three sets that number or that text.
void Fill(CDialogProperties& dialog, int32_t number, const wchar_t* text) {
  for (const int32_t index : {-1, 0, 1}) {
    const CPropertySet& set = *dialog.FindSet(index);
    for (auto position = set.First(); position;) {
      CProperty* property = set.Next(position);
      property->SetLong(number);
      property->SetString(text);
    }
  }
}

void ExpectFilled(CDialogProperties& dialog, int32_t number, const wchar_t* text) {
  for (const int32_t index : {-1, 0, 1}) {
    const CPropertySet& set = *dialog.FindSet(index);
    for (auto position = set.First(); position;) {
      const CProperty* property = set.Next(position);
      const bool holds =
          property->GetTypeName() == kLongTypeName ? property->GetLong() == number : property->GetString() == text;
      EXPECT_TRUE(holds) << index << " " << testing::PrintToString(property->GetName().Text());
    }
  }
}

class NemUIDoModal : public testing::Test {
 protected:
  NemUIDoModal() {
    sheetResult = 0;
    whileRunning = nullptr;
    runs = 0;
    ownerSeen = nullptr;
    PatchImport(kCommonControls, "PropertySheetW", reinterpret_cast<void*>(SheetStandIn));
    NemPdfUICreateDialog(&handle_);
  }
  ~NemUIDoModal() override {
    RestoreImport(kCommonControls, "PropertySheetW");
    RestoreImport(kUser, "IsWindow");
    whileRunning = nullptr;
    NemPdfUIFreeDialog(&handle_);
  }

  CDialogProperties& Dialog() { return *DialogFromHandle(handle_); }

  HWND OwnerFor(int32_t value) {
    EXPECT_EQ(1, NemPdfUISetPropertyW(handle_, NEMPDFUI_GENERAL, L"HwndParent", &value));
    ownerSeen = reinterpret_cast<HWND>(INT_PTR{0x5A5A});
    NemPdfUIDoModal(handle_);
    return ownerSeen;
  }

  NemPdfUIHandle handle_ = nullptr;
};

TEST_F(NemUIDoModal, TheResultOfThePlatformComesBackAsItIs) {
  for (const int result : {1, 0, -1, 3, INT32_MAX}) {
    sheetResult = result;
    EXPECT_EQ(result, NemPdfUIDoModal(handle_));
  }
  EXPECT_EQ(5, runs);
}

TEST_F(NemUIDoModal, TheSheetStartsFromTheValuesOfTheObject) {
  Fill(Dialog(), 17, L"before");
  whileRunning = [](CDialogProperties& working) { ExpectFilled(working, 17, L"before"); };
  NemPdfUIDoModal(handle_);
  EXPECT_EQ(1, runs);
}

TEST_F(NemUIDoModal, AllThreeSetsComeBackWithEveryResultButZero) {
  for (const int result : {1, 0, -1, 3}) {
    Fill(Dialog(), 17, L"before");
    sheetResult = result;
    whileRunning = [](CDialogProperties& working) {
      Fill(working, 18, L"after");
      working.adminSettings.PdfVersion_Override = 14;
    };
    EXPECT_EQ(result, NemPdfUIDoModal(handle_));
    if (result != 0)
      ExpectFilled(Dialog(), 18, L"after");
    else
      ExpectFilled(Dialog(), 17, L"before");
    EXPECT_EQ(kUnsetNumber, Dialog().adminSettings.PdfVersion_Override);
  }
}

TEST_F(NemUIDoModal, TheAdministratorsRecordDoesNotComeAlong) {
  Dialog().adminSettings.PdfVersion_Override = 15;
  whileRunning = [](CDialogProperties& working) { EXPECT_EQ(kUnsetNumber, working.adminSettings.PdfVersion_Override); };
  NemPdfUIDoModal(handle_);
  EXPECT_EQ(1, runs);
}

TEST_F(NemUIDoModal, TheTitleIsTheCaptionAndUsedOfSetOneTheSecondPage) {
  NemPdfUISetPropertyW(handle_, NEMPDFUI_GENERAL, L"SheetTitle", L"Title of the host");
  for (const int32_t used : {0, 1}) {
    NemPdfUISetPropertyW(handle_, 1, L"Used", &used);
    NemPdfUIDoModal(handle_);
    EXPECT_EQ(L"Title of the host", captionSeen);
    EXPECT_EQ(1u + static_cast<UINT>(used), pagesSeen);
  }
}

TEST_F(NemUIDoModal, WithoutOneOfItsPagesTheSheetDoesNotRun) {
  const int32_t used = 1;
  NemPdfUISetPropertyW(handle_, 1, L"Used", &used);
  pagesWanted = pagesDestroyed = 0;
  sheetResult = 1;
  PatchImport(kCommonControls, "CreatePropertySheetPageW", reinterpret_cast<void*>(OnlyOnePage));
  PatchImport(kCommonControls, "DestroyPropertySheetPage", reinterpret_cast<void*>(CountDestroyed));
  EXPECT_EQ(0, NemPdfUIDoModal(handle_));
  RestoreImport(kCommonControls, "DestroyPropertySheetPage");
  RestoreImport(kCommonControls, "CreatePropertySheetPageW");
  EXPECT_EQ(0, runs);
  EXPECT_EQ(2, pagesWanted);
  EXPECT_EQ(1, pagesDestroyed);
}

TEST_F(NemUIDoModal, WhatIsThrownWithTheMemoryExhaustedPassesOnAndTheObjectIsFreeAgain) {
  for (const int granted : {0, 1, 20, 400}) {
    bool thrown = false;
    {
      const FailingMalloc exhausted(granted);
      try {
        NemPdfUIDoModal(handle_);
      } catch (const std::bad_alloc&) {
        thrown = true;
      }
    }
    EXPECT_TRUE(thrown) << granted;
    EXPECT_FALSE(Dialog().running) << granted;
  }
  EXPECT_EQ(0, runs);
  EXPECT_EQ(sheetResult, NemPdfUIDoModal(handle_));
  EXPECT_EQ(1, runs);
}

TEST_F(NemUIDoModal, TheThreadHasNoHookWhenNoWindowCame) {
  NemPdfUIDoModal(handle_);
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->creating);
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->creationHook);
  EXPECT_EQ(nullptr, CurrentWindowThreadState()->running);
}

TEST_F(NemUIDoModal, WhileItRunsTheObjectIsNeitherShownAgainNorFreed) {
  const NemPdfUIHandle handle = handle_;
  int shown = -2, freed = -2;
  whileRunning = [&](CDialogProperties&) {
    shown = NemPdfUIDoModal(handle_);
    freed = NemPdfUIFreeDialog(&handle_);
  };
  sheetResult = 1;
  EXPECT_EQ(1, NemPdfUIDoModal(handle_));
  EXPECT_EQ(0, shown);
  EXPECT_EQ(0, freed);
  EXPECT_EQ(handle, handle_);
  EXPECT_EQ(1, runs);

  whileRunning = nullptr;
  EXPECT_EQ(1, NemPdfUIDoModal(handle_));
  EXPECT_EQ(2, runs);
  EXPECT_EQ(1, NemPdfUIFreeDialog(&handle_));
  EXPECT_EQ(nullptr, handle_);
}

TEST_F(NemUIDoModal, TheOwnersHandleIsWidenedWithItsSign) {
  PatchImport(kUser, "IsWindow", reinterpret_cast<void*>(OnlyTheHighWindow));
  EXPECT_EQ(kHighWindow, OwnerFor(-2));
}

TEST_F(NemUIDoModal, AWindowThatDoesNotExistOwnsNothing) {
  for (const int32_t value : {0, -2, -1, 0x7FFFFFF0, INT32_MIN}) EXPECT_EQ(nullptr, OwnerFor(value)) << value;
}

TEST_F(NemUIDoModal, AWindowThatExistsOwnsTheSheet) {
  const HWND window = CreateWindowW(L"Static", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(nullptr, window);
  EXPECT_EQ(window, OwnerFor(static_cast<int32_t>(reinterpret_cast<INT_PTR>(window))));
  DestroyWindow(window);
}

}  // namespace
