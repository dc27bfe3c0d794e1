#include "window/CAccessibility.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <new>
#include <thread>
#include <vector>

#include "driver/ImportPatch.h"
#include "support/Accessible.h"
#include "window/CWnd.h"

namespace {

// A control of three parts, each 10 pixels high, in a window of the platform's plainest kind.
class TestControl final : public CAccessibleSource {
 public:
  explicit TestControl(bool mirrored = false) {
    window = ::CreateWindowExW(mirrored ? WS_EX_LAYOUTRTL : 0, L"STATIC", L"control", WS_POPUP | WS_VISIBLE, 40, 50,
                               100, 60, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowSubclass(window, Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
  }
  ~TestControl() { Destroy(); }
  void Destroy() {
    if (window) ::DestroyWindow(window);
    window = nullptr;
  }
  void RunPosted() const {
    for (MSG message; ::PeekMessageW(&message, window, 0, 0, PM_REMOVE);) ::DispatchMessageW(&message);
  }

  HWND AccessibleWindow() const override { return window; }
  int PartCount() const override { return parts; }
  CUString PartName(int part) const override {
    askedOn = ::GetCurrentThreadId();
    if (throws) throw std::bad_alloc();
    return part == kSelf ? L"whole" : part == 3 ? L"" : L"part";
  }
  int PartRole(int part) const override { return part == kSelf ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM; }
  int PartState(int part) const override { return part == selected ? STATE_SYSTEM_SELECTED : 0; }
  CUString PartValue(int part) const override { return part == 2 ? L"value" : L""; }
  RECT PartRect(int part) const override { return {5, 10 * part, 25, 10 * part + 10}; }
  CUString PartAction(int part) const override { return part == 1 ? L"Press" : L""; }
  bool HasPartAction(int part) const override { return part == 1 || part == 2; }
  void DoPartAction(int part) override { done = part; }
  int FocusedPart() const override { return focused; }
  void FocusPart(int part) override {
    focused = part;
    if (whenPartFocused) whenPartFocused();
  }

  HWND window;
  int parts = 3, selected = 2, focused = 1, done = 0;
  bool throws = false;
  std::function<void()> whenFocused, whenPartFocused;
  mutable DWORD askedOn = 0;
  CAccessibility accessibility;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto& self = *reinterpret_cast<TestControl*>(data);
    WindowMessage current{window, message, wParam, lParam};
    if (self.accessibility.OnMessage(self, current)) return current.result;
    if (message == WM_DESTROY) self.accessibility.Disconnect();
    if (message == WM_SETFOCUS && self.whenFocused) self.whenFocused();
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
};

class CAccessibilityTest : public testing::Test {
 protected:
  ComScope com;
  TestControl control;
};

TEST_F(CAccessibilityTest, AnswersForTheClientAreaOnly) {
  EXPECT_TRUE(Accessible(control.window));
  WindowMessage message{control.window, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_WINDOW)};
  EXPECT_FALSE(control.accessibility.OnMessage(control, message));
  message = {control.window, WM_PAINT, 0, 0};
  EXPECT_FALSE(control.accessibility.OnMessage(control, message));
}

TEST_F(CAccessibilityTest, TellsNameValueRoleAndActionOfEachPart) {
  const Accessible object(control.window);
  ASSERT_TRUE(object);
  EXPECT_EQ(3, object.Count());
  EXPECT_EQ(L"whole", object.Name(0));
  EXPECT_EQ(L"part", object.Name(1));
  EXPECT_EQ(L"value", object.Value(2));
  EXPECT_EQ(ROLE_SYSTEM_LIST, object.Role(0));
  EXPECT_EQ(ROLE_SYSTEM_LISTITEM, object.Role(3));
  EXPECT_EQ(L"Press", object.Action(1));
}

TEST_F(CAccessibilityTest, AnEmptyTextIsNone) {
  const Accessible object(control.window);
  BSTR text = nullptr;
  EXPECT_EQ(S_FALSE, object->get_accName(Accessible::Part(3), &text));
  EXPECT_EQ(nullptr, text);
  EXPECT_EQ(S_FALSE, object->get_accValue(Accessible::Part(1), &text));
}

TEST_F(CAccessibilityTest, StatesAreThoseOfTheControlAndOfItsWindow) {
  const Accessible object(control.window);
  EXPECT_EQ(STATE_SYSTEM_SELECTED, object.State(2));
  EXPECT_EQ(0, object.State(3));
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE, object.State(0));
  ::EnableWindow(control.window, FALSE);
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_UNAVAILABLE, object.State(0));
  ::EnableWindow(control.window, TRUE);
  ::ShowWindow(control.window, SW_HIDE);
  EXPECT_EQ(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_INVISIBLE, object.State(0));
}

TEST_F(CAccessibilityTest, OnePartHasTheFocusWhileTheWindowHasIt) {
  const Accessible object(control.window);
  ::SetFocus(nullptr);
  EXPECT_EQ(-1, object.Focus());
  EXPECT_EQ(0, object.State(1));
  ::SetFocus(control.window);
  EXPECT_EQ(1, object.Focus());
  EXPECT_EQ(STATE_SYSTEM_FOCUSED, object.State(1));
  EXPECT_EQ(0, object.State(3));
}

TEST_F(CAccessibilityTest, TheSelectedPartIsTheSelection) {
  const Accessible object(control.window);
  EXPECT_EQ(2, object.Selection());
  control.selected = 9;
  EXPECT_EQ(-1, object.Selection());
}

TEST_F(CAccessibilityTest, PartsHaveTheirPlaceOnTheScreen) {
  const Accessible object(control.window);
  RECT part = object.Location(2), whole = object.Location(0), window;
  ::GetWindowRect(control.window, &window);
  EXPECT_TRUE(::EqualRect(&window, &whole));
  EXPECT_EQ(window.left + 5, part.left);
  EXPECT_EQ(window.top + 20, part.top);
  EXPECT_EQ(20, part.right - part.left);
  EXPECT_EQ(10, part.bottom - part.top);
}

TEST_F(CAccessibilityTest, AMirroredControlTellsScreenCoordinates) {
  const TestControl mirrored(true);
  const Accessible object(mirrored.window);
  const RECT part = object.Location(1);
  EXPECT_EQ(40 + 100 - 25, part.left);
  EXPECT_EQ(40 + 100 - 5, part.right);
  EXPECT_EQ(1, object.HitTest({part.left, part.top}));
  EXPECT_EQ(1, object.HitTest({part.right - 1, part.top}));
  EXPECT_EQ(0, object.HitTest({part.right, part.top}));
}

TEST_F(CAccessibilityTest, HitTestFindsPartSelfOrNothing) {
  const Accessible object(control.window);
  EXPECT_EQ(1, object.HitTest({40 + 5, 50 + 10}));
  EXPECT_EQ(3, object.HitTest({40 + 24, 50 + 39}));
  EXPECT_EQ(0, object.HitTest({40 + 4, 50 + 10}));
  EXPECT_EQ(-1, object.HitTest({39, 60}));
}

TEST_F(CAccessibilityTest, NavigationFollowsTheOrderOfParts) {
  const Accessible object(control.window);
  EXPECT_EQ(1, object.Navigate(NAVDIR_FIRSTCHILD, 0));
  EXPECT_EQ(3, object.Navigate(NAVDIR_LASTCHILD, 0));
  EXPECT_EQ(2, object.Navigate(NAVDIR_NEXT, 1));
  EXPECT_EQ(2, object.Navigate(NAVDIR_DOWN, 1));
  EXPECT_EQ(1, object.Navigate(NAVDIR_PREVIOUS, 2));
  EXPECT_EQ(1, object.Navigate(NAVDIR_UP, 2));
  EXPECT_EQ(-1, object.Navigate(NAVDIR_NEXT, 3));
  EXPECT_EQ(-1, object.Navigate(NAVDIR_PREVIOUS, 1));
  EXPECT_EQ(-1, object.Navigate(NAVDIR_NEXT, 0));
  EXPECT_EQ(-1, object.Navigate(NAVDIR_FIRSTCHILD, 1));
  control.parts = 0;
  EXPECT_EQ(-1, object.Navigate(NAVDIR_FIRSTCHILD, 0));
}

TEST_F(CAccessibilityTest, AnActionIsDoneAfterTheReaderHasItsAnswer) {
  const Accessible object(control.window);
  EXPECT_EQ(S_OK, object->accDoDefaultAction(Accessible::Part(2)));
  EXPECT_EQ(0, control.done);
  control.RunPosted();
  EXPECT_EQ(2, control.done);
  EXPECT_EQ(DISP_E_MEMBERNOTFOUND, object->accDoDefaultAction(Accessible::Part(3)));
}

TEST_F(CAccessibilityTest, AnActionOfAPartThatIsGoneIsNotDone) {
  const Accessible object(control.window);
  object->accDoDefaultAction(Accessible::Part(2));
  control.parts = 1;
  control.RunPosted();
  EXPECT_EQ(0, control.done);
}

TEST_F(CAccessibilityTest, AnActionOfADisabledControlIsNotDone) {
  const Accessible object(control.window);
  object->accDoDefaultAction(Accessible::Part(2));
  ::EnableWindow(control.window, FALSE);
  control.RunPosted();
  EXPECT_EQ(0, control.done);
  object->accDoDefaultAction(Accessible::Part(2));
  ::EnableWindow(control.window, TRUE);
  control.RunPosted();
  EXPECT_EQ(2, control.done) << "what counts is the time of the action";
}

TEST_F(CAccessibilityTest, SelectFocusesAndActs) {
  const Accessible object(control.window);
  ::SetFocus(nullptr);
  EXPECT_EQ(S_OK, object->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(3)));
  EXPECT_EQ(control.window, ::GetFocus());
  EXPECT_EQ(3, control.focused);
  EXPECT_EQ(S_OK, object->accSelect(SELFLAG_TAKESELECTION, Accessible::Part(1)));
  control.RunPosted();
  EXPECT_EQ(1, control.done);
  EXPECT_EQ(E_INVALIDARG, object->accSelect(SELFLAG_EXTENDSELECTION, Accessible::Part(1)));
}

TEST_F(CAccessibilityTest, SelectDoesNothingToADisabledControl) {
  const Accessible object(control.window);
  ::EnableWindow(control.window, FALSE);
  ASSERT_EQ(1, control.focused);
  EXPECT_EQ(S_FALSE, object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Accessible::Part(2)));
  ::EnableWindow(control.window, TRUE);
  control.RunPosted();
  EXPECT_EQ(1, control.focused);
  EXPECT_EQ(0, control.done);
}

TEST_F(CAccessibilityTest, PartsAreNoObjectsOfTheirOwn) {
  const Accessible object(control.window);
  IDispatch* child = nullptr;
  EXPECT_EQ(S_FALSE, object->get_accChild(Accessible::Part(1), &child));
  EXPECT_EQ(nullptr, child);
}

TEST_F(CAccessibilityTest, TheParentIsTheWindowAround) {
  const Accessible object(control.window);
  IDispatch* parent = nullptr;
  EXPECT_EQ(S_OK, object->get_accParent(&parent));
  ASSERT_NE(nullptr, parent);
  parent->Release();
}

TEST_F(CAccessibilityTest, BadQuestionsAreRefused) {
  const Accessible object(control.window);
  VARIANT answer{};
  BSTR text = nullptr;
  EXPECT_EQ(E_INVALIDARG, object->get_accName(Accessible::Part(4), &text));
  EXPECT_EQ(E_INVALIDARG, object->get_accRole(Accessible::Part(-1), &answer));
  VARIANT empty{};
  EXPECT_EQ(E_INVALIDARG, object->get_accState(empty, &answer));
}

TEST_F(CAccessibilityTest, NoExceptionReachesTheReader) {
  const Accessible object(control.window);
  control.throws = true;
  BSTR text = nullptr;
  EXPECT_EQ(E_OUTOFMEMORY, object->get_accName(Accessible::Part(1), &text));
}

TEST_F(CAccessibilityTest, AReaderMayKeepTheObjectOfADeadControl) {
  const Accessible object(control.window);
  IAccessible* kept = object.operator->();
  control.Destroy();
  VARIANT answer{};
  LONG count = 7;
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, kept->get_accChildCount(&count));
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, kept->get_accRole(Accessible::Part(0), &answer));
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, kept->accDoDefaultAction(Accessible::Part(1)));
}

TEST_F(CAccessibilityTest, TheFocusMayEndTheControlOrItsParts) {
  for (const bool byPart : {false, true})
    for (const bool ends : {true, false}) {
      TestControl other;
      const Accessible object(other.window);
      ::SetFocus(nullptr);
      (byPart ? other.whenPartFocused : other.whenFocused) = [&] { ends ? other.Destroy() : void(other.parts = 1); };
      other.focused = 0;
      EXPECT_EQ(ends ? CO_E_OBJNOTCONNECTED : E_INVALIDARG,
                object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Accessible::Part(2)));
      EXPECT_EQ(byPart ? 2 : 0, other.focused) << "a part that is gone is not asked for";
      other.RunPosted();
      EXPECT_EQ(0, other.done);
    }
}

// --- Other threads --------------------------------------------------------------------------------------------------

// What a reader does on a thread of its own, as in a multithreaded apartment, while this one runs its messages.
void OnReadersThreads(const std::vector<std::function<void()>>& readers) {
  std::atomic<size_t> ended = 0;
  std::vector<std::thread> threads;
  for (const auto& reader : readers)
    threads.emplace_back([&] {
      reader();
      ++ended;
    });
  for (MSG message; ended < readers.size();) {
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_SENDMESSAGE);
  }
  for (std::thread& thread : threads) thread.join();
}

TEST_F(CAccessibilityTest, TheControlIsAskedOnItsOwnThread) {
  const Accessible object(control.window);
  ::SetFocus(nullptr);
  std::wstring name;
  LONG count = 0, focus = 0;
  HRESULT selected = E_FAIL;
  OnReadersThreads({[&] {
    name = object.Name(1);
    count = object.Count();
    selected = object->accSelect(SELFLAG_TAKEFOCUS, Accessible::Part(3));
    focus = object.Focus();
  }});
  EXPECT_EQ(::GetCurrentThreadId(), control.askedOn);
  EXPECT_EQ(L"part", name);
  EXPECT_EQ(3, count);
  EXPECT_EQ(S_OK, selected);
  EXPECT_EQ(3, focus);
  EXPECT_EQ(control.window, ::GetFocus());
}

TEST_F(CAccessibilityTest, ReadersOfSeveralThreadsGetTheirOwnAnswers) {
  const Accessible object(control.window);
  std::atomic<int> right = 0;
  const auto askFor = [&](LONG part, const wchar_t* name) {
    return [&right, &object, part, name] {
      for (int i = 0; i < 50; ++i) right += object.Name(part) == name;
    };
  };
  OnReadersThreads({askFor(0, L"whole"), askFor(1, L"part"), askFor(3, L"")});
  EXPECT_EQ(150, right);
}

TEST_F(CAccessibilityTest, OtherThreadsTooAreToldThatNobodyIsThere) {
  const Accessible object(control.window);
  control.Destroy();
  LONG count = 7;
  HRESULT answer = S_OK;
  OnReadersThreads({[&] { answer = object->get_accChildCount(&count); }});
  EXPECT_EQ(CO_E_OBJNOTCONNECTED, answer);
}

TEST_F(CAccessibilityTest, AQuestionThatNobodyAskedIsNone) {
  const Accessible object(control.window);
  ::SendMessageW(control.window, kAccessibleQuestionMessage, 1, 1);
  EXPECT_EQ(0u, control.askedOn);
}

// --- Lifetime -------------------------------------------------------------------------------------------------------

int pins = 0;
decltype(&::GetModuleHandleExW) realGetModuleHandle = nullptr;

BOOL WINAPI CountPins(DWORD flags, const wchar_t* module, HMODULE* handle) {
  if (!(flags & GET_MODULE_HANDLE_EX_FLAG_PIN)) return realGetModuleHandle(flags, module, handle);
  ++pins;
  HMODULE found = nullptr;
  const DWORD unpinned = flags & ~DWORD{GET_MODULE_HANDLE_EX_FLAG_PIN};
  EXPECT_TRUE(realGetModuleHandle(unpinned | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, module, &found));
  EXPECT_EQ(::GetModuleHandleW(nullptr), found) << "the module that holds the code";
  *handle = found;
  return TRUE;
}

TEST_F(CAccessibilityTest, AnObjectThatAReaderKeepsKeepsTheLibrary) {
  realGetModuleHandle = RealFunction("kernel32.dll", "GetModuleHandleExW", &::GetModuleHandleExW);
  PatchImport("kernel32.dll", "GetModuleHandleExW", reinterpret_cast<void*>(&CountPins));
  for (const bool keeps : {false, true}) {
    pins = 0;
    TestControl other;
    auto object = std::make_unique<Accessible>(other.window);
    EXPECT_TRUE(*object);
    if (!keeps) object.reset();
    EXPECT_EQ(0, pins);
    other.Destroy();
    EXPECT_EQ(keeps ? 1 : 0, pins);
  }
  RestoreImport("kernel32.dll", "GetModuleHandleExW");
}

TEST_F(CAccessibilityTest, EveryReaderGetsTheSameObject) {
  const Accessible first(control.window), second(control.window);
  EXPECT_EQ(first.operator->(), second.operator->());
  IUnknown* unknown = nullptr;
  EXPECT_EQ(S_OK, first->QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(&unknown)));
  unknown->Release();
  EXPECT_EQ(E_NOINTERFACE, first->QueryInterface(__uuidof(IStream), reinterpret_cast<void**>(&unknown)));
  EXPECT_EQ(nullptr, unknown);
}

}  // namespace
