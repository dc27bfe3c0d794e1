// include/NemPdfUI.hpp over the real library; tests/core has one for its rules.
#include "NemPdfUI.hpp"

#include <windows.h>

#include <gtest/gtest.h>

#include <thread>

#include "driver/Bar.h"
#include "driver/SheetDriver.h"
#include "driver/Text.h"
#include "product/HeaderCpp.h"

namespace {

using nempdf::Dialog;
using nempdf::Kind;
using nempdf::Tab;
namespace general = nempdf::general;
namespace settings = nempdf::settings;

constexpr int kGraphicPage = 108;
constexpr int kUserDefined = 1142, kQuality = 1049;

TEST(Library, ServesAHostWrittenInCpp) { EXPECT_TRUE(RunHostInCpp()); }

// Every property of every set is given a value of its own, and all come back.
TEST(HostWrapper, EveryPropertyTravels) {
  Dialog dialog;
  const auto textOf = [](int32_t index, const nempdf::PropertyInfo& property) {
    return property.name + std::to_wstring(index);
  };
  int count = 0;
  for (const int32_t index : {NEMPDFUI_GENERAL, NEMPDFUI_SETTINGS, NEMPDFUI_DOCUMENT})
    for (const nempdf::PropertyInfo& property : nempdf::Properties(index))
      if (property.kind == Kind::Number)
        dialog.SetByName(index, property.name, ++count);
      else
        dialog.SetByName(index, property.name, textOf(index, property));
  count = 0;
  for (const int32_t index : {NEMPDFUI_GENERAL, NEMPDFUI_SETTINGS, NEMPDFUI_DOCUMENT})
    for (const nempdf::PropertyInfo& property : nempdf::Properties(index)) switch (property.kind) {
        case Kind::Number:
          EXPECT_EQ(++count, dialog.GetByName<Kind::Number>(index, property.name));
          break;
        case Kind::Text:
          EXPECT_EQ(textOf(index, property), dialog.GetByName<Kind::Text>(index, property.name));
          break;
        case Kind::Secret:
          EXPECT_TRUE(dialog.GetByName<Kind::Secret>(index, property.name) == textOf(index, property));
          break;
      }
  EXPECT_EQ(2 + 2 * 100, count);
}

TEST(HostWrapper, TheUsersChoiceComesBackAfterOkOnly) {
  Dialog dialog;
  dialog.Set(general::SheetTitle, L"Settings");
  dialog.Set(general::MsgBoxTitle, L"Host");
  dialog.Set(Tab::Basic, settings::GraphicResolution, 600);
  dialog.Set(Tab::Basic, settings::GraphicCompressMethod, 4);
  dialog.Set(Tab::Basic, settings::GraphicJpegQuality, 85);
  dialog.Set(Tab::Basic, settings::GraphicColorReduction, 1);
  const auto runAndPress = [&](int button) {
    bool accepted = false;
    RunSheet([&]() -> INT_PTR { return accepted = dialog.DoModal(); },
             [button](Sheet& sheet) -> SheetTask {
               EXPECT_EQ(L"Settings", WindowText(sheet.Window()));
               bool shown = false;
               co_await ClickPage(sheet, kGraphicPage, shown);
               CO_ASSERT_TRUE(shown);
               sheet.Control(kUserDefined).Click();
               sheet.Control(kQuality).Select(L"60% low - medium");
               co_await sheet.Settled();
               sheet.Press(button);
             });
    return accepted;
  };
  EXPECT_FALSE(runAndPress(IDCANCEL));
  EXPECT_EQ(85, dialog.Get(Tab::Basic, settings::GraphicJpegQuality));
  EXPECT_TRUE(runAndPress(IDOK));
  EXPECT_EQ(60, dialog.Get(Tab::Basic, settings::GraphicJpegQuality));
}

TEST(HostWrapper, ASheetThatIsOpenAlreadyCountsAsCancelled) {
  Dialog dialog;
  RunSheet([&]() -> INT_PTR { return dialog.DoModal(); },
           [&dialog](Sheet& sheet) -> SheetTask {
             EXPECT_FALSE(dialog.DoModal());
             sheet.Press(IDCANCEL);
             co_return;
           });
}

// A null pointer instead of a place for the version leaves an error with the thread, which takes its next call.
TEST(HostWrapper, AnErrorFromBeforeCostsNoValue) {
  Dialog dialog;
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  dialog.Set(Tab::Basic, settings::Scale, 7);
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  EXPECT_EQ(7, dialog.Get(Tab::Basic, settings::Scale));
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  dialog.Set(Tab::Basic, settings::Title, L"text");
  EXPECT_EQ(0, NemPdfUIGetVersion(nullptr));
  EXPECT_EQ(L"text", dialog.Get(Tab::Basic, settings::Title));
}

TEST(HostWrapper, AFreedObjectIsNoticed) {
  Dialog dialog;
  NemPdfUIHandle handle = dialog.Handle();
  ASSERT_EQ(1, NemPdfUIFreeDialog(&handle));
  try {
    dialog.Set(Tab::Basic, settings::Scale, 7);
    FAIL();
  } catch (const nempdf::Error& error) {
    EXPECT_EQ(nempdf::Reason::NoObject, error.GetReason()) << error.what();
  }
  try {
    (void)dialog.Get(Tab::Basic, settings::Title);
    FAIL();
  } catch (const nempdf::Error& error) {
    EXPECT_EQ(nempdf::Reason::NoObject, error.GetReason()) << error.what();
  }
}

// An object may be filled on one thread and used on another one, as long as they take turns.
TEST(HostWrapper, AnObjectMovesBetweenThreads) {
  Dialog dialog;
  dialog.Set(Tab::Document, settings::Title, L"text");
  std::wstring read;
  std::thread([&read, dialog = std::move(dialog)] { read = dialog.Get(Tab::Document, settings::Title); }).join();
  EXPECT_EQ(L"text", read);
}

TEST(HostWrapper, ShowsTheVersionDialog) {
  RunSheet(
      [] {
        nempdf::ShowVersion();
        return INT_PTR{1};
      },
      [](Sheet& sheet) -> SheetTask {
        sheet.PressOk();
        co_return;
      });
}

}  // namespace
