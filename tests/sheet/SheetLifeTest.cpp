// The modal run as its host sees it: values in and out, owners that die, sheets within sheets and side by side.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "driver/ImportPatch.h"
#include "DriverLIB/MessageBoxes.h"
#include "DriverLIB/ModuleState.h"
#include "DriverLIB/WindowThreadState.h"
#include "resources/ResourceIds.h"
#include "support/HostDialog.h"
#include "TestSheet.h"
#include "ui/PropertyAccess.h"

using namespace sheet_test;

namespace {

// The sheet whose loop runs on this thread.
CNemUISheet& RunningSheet() {
  return *static_cast<CNemUISheet*>(static_cast<CPropertySheet*>(CurrentWindowThreadState()->running));
}

class ModalRun : public testing::Test {
 protected:
  static SheetResult Drive(const HostDialog& host, const Sheet::Body& body) {
    return RunSheet([&host] { return host.DoModal(); }, body);
  }
  // Changes a value of each set, as pages do, and ends the sheet.
  static Sheet::Body ChangeAnd(const std::function<void(Sheet&)>& end) {
    return [end](Sheet& sheet) -> SheetTask {
      RunningSheet().SetPasswordVisible(1);
      RunningSheet().Properties().Scale[0].SetLong(50);
      RunningSheet().Properties().WatermarkFilename[1].SetString(L"mark.png");
      end(sheet);
      co_await sheet.Settled();
    };
  }
  static void ExpectChanged(const HostDialog& host, bool changed) {
    EXPECT_EQ(changed ? 1 : 0, host.Long(-1, L"PasswordVisible"));
    EXPECT_EQ(changed ? 50 : 100, host.Long(0, L"Scale"));
    EXPECT_EQ(changed ? L"mark.png" : L"", host.Text(1, L"WatermarkFilename"));
  }

  LanguageScope english_{kEnglish};
};

// --- Values --------------------------------------------------------------------------------------------------------

TEST_F(ModalRun, AllThreeSetsGoInAndComeBackWithOk) {
  HostDialog host;
  host.Set(-1, L"PrinterName", L"Printer").Set(0, L"Scale", 70).Set(1, L"WatermarkFilename", L"old.png");
  EXPECT_EQ(1, Drive(host, [&](Sheet& sheet) -> SheetTask {
                 EXPECT_EQ(L"Printer", std::wstring(RunningSheet().GetPrinterName().Text()));
                 EXPECT_EQ(70, RunningSheet().Properties().Scale[0].GetLong());
                 EXPECT_EQ(L"old.png",
                           std::wstring(RunningSheet().Properties().WatermarkFilename[1].GetString().Text()));
                 EXPECT_EQ(70, host.Long(0, L"Scale"));
                 co_await ChangeAnd([](Sheet& open) { open.PressOk(); })(sheet);
               }).value);
  ExpectChanged(host, true);
}

TEST_F(ModalRun, HostsObjectKeepsItsValuesUntilTheSheetHasReturned) {
  HostDialog host;
  Drive(host, [&](Sheet& sheet) -> SheetTask {
    RunningSheet().SetPasswordVisible(1);
    EXPECT_EQ(0, host.Long(-1, L"PasswordVisible"));
    sheet.PressOk();
    EXPECT_EQ(0, host.Long(-1, L"PasswordVisible"));
    co_return;
  });
  EXPECT_EQ(1, host.Long(-1, L"PasswordVisible"));
}

TEST_F(ModalRun, NothingComesBackWithCancelOrTheCloseBox) {
  for (const auto& end : {std::function<void(Sheet&)>([](Sheet& sheet) { sheet.PressCancel(); }),
                          std::function<void(Sheet&)>([](Sheet& sheet) { sheet.Close(); })}) {
    HostDialog host;
    EXPECT_EQ(0, Drive(host, ChangeAnd(end)).value);
    ExpectChanged(host, false);
  }
}

TEST_F(ModalRun, SecondRunStartsFromTheValuesThatStand) {
  HostDialog host;
  EXPECT_EQ(1, Drive(host, ChangeAnd([](Sheet& sheet) { sheet.PressOk(); })).value);
  EXPECT_EQ(0, Drive(host, [](Sheet& sheet) -> SheetTask {
                 EXPECT_EQ(50, RunningSheet().Properties().Scale[0].GetLong());
                 RunningSheet().Properties().Scale[0].SetLong(10);
                 sheet.PressCancel();
                 co_return;
               }).value);
  ExpectChanged(host, true);
}

TEST_F(ModalRun, UsedOfSetOneOffersTheDocumentTab) {
  for (const int used : {0, 1}) {
    HostDialog host;
    host.Set(1, L"Used", used);
    Drive(host, [used](Sheet& sheet) -> SheetTask {
      EXPECT_EQ(1 + used, sheet.TabCount());
      EXPECT_EQ(used, sheet.CurrentTab());
      sheet.PressCancel();
      co_return;
    });
  }
}

TEST_F(ModalRun, BadHandleGivesMinusOne) {
  EXPECT_EQ(-1, NemPdfUIDoModal(nullptr));
  alignas(8) char foreign[64] = "IUEM";
  EXPECT_EQ(-1, NemPdfUIDoModal(reinterpret_cast<NemPdfUIHandle>(foreign)));
}

// --- What the platform gives ---------------------------------------------------------------------------------------

INT_PTR platformResult = 0;
HWND platformOwner = nullptr;

INT_PTR WINAPI AnswerSheet(LPCPROPSHEETHEADERW header) {
  platformOwner = header->hwndParent;
  RunningSheet().SetPasswordVisible(1);
  for (UINT i = 0; i < header->nPages; ++i) DestroyPropertySheetPage(header->phpage[i]);
  return platformResult;
}

TEST_F(ModalRun, ResultOfThePlatformComesUnchangedAndAnyButZeroTakesTheValuesOver) {
  PatchImport("comctl32.dll", "PropertySheetW", reinterpret_cast<void*>(&AnswerSheet));
  for (const int result : {-1, 0, 1, 2, 3}) {
    HostDialog host;
    platformResult = result;
    EXPECT_EQ(result, host.DoModal());
    EXPECT_EQ(result != 0 ? 1 : 0, host.Long(-1, L"PasswordVisible")) << result;
  }
  RestoreImport("comctl32.dll", "PropertySheetW");
}

decltype(&IsWindow) realIsWindow = nullptr;
const auto kWideOwner = reinterpret_cast<HWND>(static_cast<INT_PTR>(static_cast<int32_t>(0x80001234)));

BOOL WINAPI KnowWideOwner(HWND window) { return window == kWideOwner || realIsWindow(window); }

TEST_F(ModalRun, OwnerIsWidenedWithItsSign) {
  realIsWindow = RealFunction("user32.dll", "IsWindow", &IsWindow);
  PatchImport("user32.dll", "IsWindow", reinterpret_cast<void*>(&KnowWideOwner));
  PatchImport("comctl32.dll", "PropertySheetW", reinterpret_cast<void*>(&AnswerSheet));
  HostDialog host;
  host.Set(-1, L"HwndParent", static_cast<int32_t>(0x80001234)).DoModal();
  EXPECT_EQ(kWideOwner, platformOwner);
  RestoreImport("comctl32.dll", "PropertySheetW");
  RestoreImport("user32.dll", "IsWindow");
}

// --- Owners --------------------------------------------------------------------------------------------------------

int32_t AsProperty(HWND window) { return static_cast<int32_t>(reinterpret_cast<INT_PTR>(window)); }

TEST_F(ModalRun, OwnerIsDisabledWhileTheSheetIsUp) {
  const PageParent owner;
  HostDialog host;
  host.Set(-1, L"HwndParent", AsProperty(owner.Window()));
  Drive(host, [&](Sheet& sheet) -> SheetTask {
    EXPECT_EQ(owner.Window(), GetWindow(sheet.Window(), GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(owner.Window()));
    sheet.PressCancel();
    co_return;
  });
  EXPECT_TRUE(IsWindowEnabled(owner.Window()));
}

TEST_F(ModalRun, OwnerThatIsNoWindowAnyMoreCountsAsNone) {
  HWND dead = nullptr;
  {
    const PageParent gone;
    dead = gone.Window();
  }
  for (const int32_t owner : {AsProperty(dead), -1, 1}) {
    HostDialog host;
    host.Set(-1, L"HwndParent", owner);
    EXPECT_EQ(1, Drive(host, [](Sheet& sheet) -> SheetTask {
                   EXPECT_EQ(nullptr, GetWindow(sheet.Window(), GW_OWNER));
                   sheet.PressOk();
                   co_return;
                 }).value);
  }
}

TEST_F(ModalRun, OwnerThatDiesTakesTheSheetAndNothingComesBack) {
  const PlatformSaysOne platform;
  for (const bool withBox : {false, true}) {
    auto owner = std::make_unique<PageParent>();
    HostDialog host;
    host.Set(-1, L"HwndParent", AsProperty(owner->Window()));
    SheetDriver driver;
    const SheetResult result = driver.Run([&] { return host.DoModal(); }, ChangeAnd([&](Sheet& sheet) {
                                            if (withBox) {
                                              // A box of a page is up when the owner dies.
                                              sheet.ExpectDialog([&owner](HWND) { owner.reset(); });
                                              HostDialog inner;
                                              inner.Set(-1, L"HwndParent", AsProperty(sheet.Window())).DoModal();
                                            }
                                            owner.reset();
                                            EXPECT_FALSE(sheet.IsOpen());
                                          }));
    EXPECT_EQ(0, result.value);
    ExpectChanged(host, false);
  }
}

// --- A run that is still on ----------------------------------------------------------------------------------------

TEST_F(ModalRun, ObjectOfARunningSheetCanNeitherBeFreedNorRunAgain) {
  NemPdfUIHandle handle = nullptr;
  ASSERT_EQ(1, NemPdfUICreateDialog(&handle));
  RunSheet([&] { return NemPdfUIDoModal(handle); },
           [&](Sheet& sheet) -> SheetTask {
             const NemPdfUIHandle before = handle;
             EXPECT_EQ(0, NemPdfUIFreeDialog(&handle));
             EXPECT_EQ(before, handle);
             EXPECT_EQ(0, NemPdfUIDoModal(handle));
             const int32_t scale = 5;
             EXPECT_EQ(1, NemPdfUISetPropertyW(handle, 0, L"Scale", &scale)) << "values may be set meanwhile";
             sheet.PressCancel();
             co_return;
           });
  EXPECT_EQ(1, NemPdfUIFreeDialog(&handle));
  EXPECT_EQ(nullptr, handle);
}

TEST_F(ModalRun, SheetRunsInsideAnotherOnesLoop) {
  HostDialog outer;
  outer.Set(1, L"Used", 1);
  EXPECT_EQ(1, Drive(outer, [&](Sheet& sheet) -> SheetTask {
                 CNemUISheet* const outerObject = &RunningSheet();
                 RunningSheet().Properties().Scale[0].SetLong(11);
                 HostDialog inner;
                 inner.Set(-1, L"HwndParent", AsProperty(sheet.Window())).Set(1, L"Used", 1);
                 const SheetResult result = Drive(inner, [&](Sheet& nested) -> SheetTask {
                   EXPECT_NE(outerObject, &RunningSheet());
                   EXPECT_FALSE(IsWindowEnabled(sheet.Window()));
                   nested.Key(VK_TAB, {VK_CONTROL});
                   co_await nested.Settled();
                   EXPECT_EQ(0, nested.CurrentTab());
                   EXPECT_EQ(1, sheet.CurrentTab()) << "the key is the inner sheet's alone";
                   RunningSheet().Properties().Scale[0].SetLong(22);
                   nested.PressOk();
                 });
                 EXPECT_EQ(1, result.value);
                 EXPECT_EQ(22, inner.Long(0, L"Scale"));
                 EXPECT_EQ(outerObject, &RunningSheet());
                 EXPECT_TRUE(IsWindowEnabled(sheet.Window()));
                 sheet.Key(VK_TAB, {VK_CONTROL});
                 co_await sheet.Settled();
                 EXPECT_EQ(0, sheet.CurrentTab()) << "the outer sheet has its keys back";
                 sheet.PressOk();
               }).value);
  EXPECT_EQ(11, outer.Long(0, L"Scale"));
}

TEST_F(ModalRun, BoxesOfAnInnerSheetCount) {
  TestSheet test;
  test.Drive([&](Sheet& sheet) -> SheetTask {
    const unsigned before = MessageBoxCount();
    HostDialog inner;
    Drive(inner, [](Sheet& nested) -> SheetTask {
      nested.ExpectBox({.title = L"Box", .text = L"Text"});
      MsgBox(nested.Window(), L"Box", L"Text", MB_OK);
      nested.PressCancel();
      co_return;
    });
    EXPECT_EQ(before + 1, MessageBoxCount()) << "who asks later whether somebody has spoken is told the truth";
    sheet.PressCancel();
    co_return;
  });
}

TEST_F(ModalRun, EightThreadsHaveASheetEachAtOnce) {
  constexpr int kThreads = 8;
  struct Host {
    std::thread thread;
    std::atomic<HWND> sheet = nullptr;
    int result = -7;
    int scale = 0;
  } hosts[kThreads];
  std::atomic<int> open = 0;
  for (int index = 0; index < kThreads; ++index)
    hosts[index].thread = std::thread([&, index] {
      HostDialog host;
      host.Set(0, L"Scale", 1000 + index).Set(1, L"Used", index % 2);
      hosts[index].result = static_cast<int>(SheetDriver(100)
                                                 .Run([&host] { return host.DoModal(); },
                                                      [&, index](Sheet& sheet) -> SheetTask {
                                                        hosts[index].sheet = sheet.Window();
                                                        ++open;
                                                        for (const Host& other : hosts)
                                                          if (other.sheet) PostMessageW(other.sheet, WM_NULL, 0, 0);
                                                        co_await sheet.Until([&open] { return open == kThreads; });
                                                        int32_t& scale = hosts[index].scale;
                                                        scale = RunningSheet().Properties().Scale[0].GetLong();
                                                        sheet.SelectPage(108);
                                                        co_await sheet.Settled();
                                                        RunningSheet().Properties().Scale[0].SetLong(scale + 1000);
                                                        sheet.PressOk();
                                                      })
                                                 .value);
      hosts[index].scale = host.Long(0, L"Scale");
      FreeThreadState();
    });
  for (Host& host : hosts) host.thread.join();
  for (int index = 0; index < kThreads; ++index) {
    EXPECT_EQ(1, hosts[index].result) << index;
    EXPECT_EQ(2000 + index, hosts[index].scale) << index;
  }
}

}  // namespace
