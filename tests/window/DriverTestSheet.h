// A small modal sheet on which the test driver is tried: two tabs, a child page within a host page, one control of
// each kind, and buttons that bring up boxes and dialogs.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver_test {

constexpr int kCheck = 1001, kEdit = 1002, kDropList = 1003, kDropDown = 1004, kSlider = 1005, kScrollBar = 1006,
              kBoxButton = 1010, kTwoBoxesButton = 1011, kDialogButton = 1012, kSlideButton = 1013, kDisabled = 1014,
              kHidden = 1015, kListBox = 1016, kListView = 1017, kArabicBoxButton = 1018, kReadOnly = 1019,
              kPostButton = 1020, kStubbornButton = 1021;
constexpr int kFirstPage = 108, kSecondPage = 109;  // both commands of the bar; the second is refused
constexpr DWORD kPageHelpId = 141;

constexpr wchar_t kBoxTitle[] = L"NEM test", kBoxText[] = L"Delete the profile \x201CX\x201D?";

// What happened in the sheet since it was made, in words: "CBN_SELCHANGE 1003", "apply 0", ...
class TestSheet {
 public:
  INT_PTR Show();
  // A plain dialog with an edit: 1000 and the length of its text after OK. A stubborn one takes no Cancel.
  static INT_PTR ShowDialog(bool stubborn = false, HWND owner = nullptr);

  bool Saw(const std::string& event) const { return Count(event) > 0; }
  int Count(const std::string& event) const;
  // The notifications of one control, in their order.
  std::vector<std::string> EventsOf(int id) const;

  std::vector<std::string> events;
  bool refuseKillActive = false;
  bool boxAtStart = false;
  int lastBoxAnswer = 0;
  int dialogAnswer = 0;
  int slideSteps = 0;
  bool painted = false;
  std::wstring editTextAtSelection;  // of kDropDown, when CBN_SELCHANGE came
};

}  // namespace driver_test
