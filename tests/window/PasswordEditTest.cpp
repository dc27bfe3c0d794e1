// Edits with a password: hidden and shown, and nothing left of it in their memory.
#include "window/PasswordEdit.h"

#include <gtest/gtest.h>

#include "driver/ControlRef.h"
#include "support/Accessible.h"
#include "support/PrintText.h"
#include "window/CDataExchange.h"

namespace {

constexpr int kEdit = 7;

class PasswordEdit : public testing::Test {
 protected:
  PasswordEdit() {
    parent_ =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 100, nullptr, nullptr, nullptr, nullptr);
    CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_PASSWORD, 0, 0, 200, 20, parent_,
                    reinterpret_cast<HMENU>(kEdit), nullptr, nullptr);
  }
  ~PasswordEdit() override { DestroyWindow(parent_); }

  CEdit Edit() const { return CEdit(GetDlgItem(parent_, kEdit)); }
  ControlRef Control() const { return {Edit().Handle(), kEdit, ControlRef::Location::current()}; }
  wchar_t Character() const { return static_cast<wchar_t>(Edit().Send(EM_GETPASSWORDCHAR)); }
  // Not what Undo brings back.
  CUString Undone() const {
    Edit().Send(EM_UNDO);
    return Edit().Text();
  }
  static CSecretText Secret(const wchar_t* text) {
    CSecretText secret;
    secret = CUString(text);
    return secret;
  }

  const ComScope com_;
  HWND parent_;
};

TEST_F(PasswordEdit, IsHiddenByAsterisksAndShown) {
  ShowPassword(Edit(), false);
  EXPECT_EQ(L'*', Character());
  EXPECT_TRUE(Edit().Style() & ES_PASSWORD);
  ShowPassword(Edit(), true);
  EXPECT_EQ(0, Character());
  EXPECT_FALSE(Edit().Style() & ES_PASSWORD);
}

TEST_F(PasswordEdit, IsPaintedAnewWhenItIsShown) {
  Edit().Redraw();
  ValidateRect(Edit().Handle(), nullptr);
  ShowPassword(Edit(), true);
  EXPECT_TRUE(GetUpdateRect(Edit().Handle(), nullptr, FALSE));
}

// Whether the platform hands a screen reader the text, and whether it calls it protected.
bool ReaderSees(HWND edit, const std::wstring& text, bool* isProtected) {
  IAccessible* object = nullptr;
  const auto find = SystemFunction<decltype(::AccessibleObjectFromWindow)>(L"oleacc.dll", "AccessibleObjectFromWindow");
  find(edit, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), reinterpret_cast<void**>(&object));
  EXPECT_NE(nullptr, object);
  if (!object) return false;
  BSTR value = nullptr;
  object->get_accValue(Accessible::Part(CHILDID_SELF), &value);
  const bool seen = value && text == value;
  static const auto free = SystemFunction<decltype(::SysFreeString)>(L"oleaut32.dll", "SysFreeString");
  free(value);
  VARIANT state{};
  object->get_accState(Accessible::Part(CHILDID_SELF), &state);
  *isProtected = Accessible::Number(state) & STATE_SYSTEM_PROTECTED;
  object->Release();
  return seen;
}

TEST_F(PasswordEdit, GivesItsTextToNoReaderWhileItIsHidden) {
  bool isProtected = false;
  ShowPassword(Edit(), false);
  SetPassword(Edit(), Secret(L"swordfish"));
  EXPECT_FALSE(ReaderSees(Edit().Handle(), L"swordfish", &isProtected));
  EXPECT_TRUE(isProtected);
  ShowPassword(Edit(), true);
  EXPECT_TRUE(ReaderSees(Edit().Handle(), L"swordfish", &isProtected));
  EXPECT_FALSE(isProtected);
  ShowPassword(Edit(), false);
  EXPECT_FALSE(ReaderSees(Edit().Handle(), L"swordfish", &isProtected));
}

TEST_F(PasswordEdit, TakesAPasswordOfAnyLength) {
  Edit().LimitText(31);
  for (const std::wstring& text : {std::wstring(L"a"), std::wstring(200, L'b'), std::wstring(31, L'c'), std::wstring(),
                                   std::wstring(32, L'd'), std::wstring(32, L'e')}) {
    SetPassword(Edit(), Secret(text.c_str()));
    EXPECT_EQ(text, Edit().Text().Text());
    EXPECT_EQ(31, Edit().Send(EM_GETLIMITTEXT));
  }
}

TEST_F(PasswordEdit, TheSamePasswordLeavesTheSelectionAlone) {
  SetPassword(Edit(), Secret(L"swordfish"));
  Edit().Send(EM_SETSEL, 2, 5);
  SetPassword(Edit(), Secret(L"swordfish"));
  EXPECT_EQ(MAKELONG(2, 5), Edit().Send(EM_GETSEL));
}

TEST_F(PasswordEdit, WipingLeavesNothingToUndo) {
  for (const wchar_t* text : {L"", L"swordfish", L"a password of more than thirty-one characters"}) {
    Edit().LimitText(50);
    Control().SetText(text);
    Control().SetText(L"x");  // the platform keeps the first for Undo
    WipePassword(Edit());
    EXPECT_EQ(L"", Edit().Text());
    EXPECT_EQ(L"", Undone());
    EXPECT_EQ(50, Edit().Send(EM_GETLIMITTEXT));
  }
}

TEST_F(PasswordEdit, AMissingEditIsPassedOver) {
  ShowPassword(CEdit(), true);
  SetPassword(CEdit(), Secret(L"x"));
  WipePassword(CEdit());
}

TEST_F(PasswordEdit, ExchangeCutsWhatIsTooLong) {
  CSecretText password = Secret(L"0123456789");
  CDataExchange loading(CWnd(parent_), false);
  loading.Password(kEdit, password, 4);
  EXPECT_EQ(L"0123456789", Edit().Text());
  EXPECT_TRUE(password == Secret(L"0123456789")) << "loading leaves the member alone";
  CDataExchange saving(CWnd(parent_), true);
  saving.Password(kEdit, password, 4);
  EXPECT_TRUE(password == Secret(L"0123"));
  CDataExchange failed(CWnd(parent_), true);
  failed.Fail(kEdit);
  Edit().SetText(L"9");
  failed.Password(kEdit, password, 4);
  EXPECT_TRUE(password == Secret(L"0123"));
}

}  // namespace
