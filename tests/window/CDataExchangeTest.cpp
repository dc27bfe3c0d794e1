// Each step of a control exchange in both directions, and what a failed step does.
#include "window/CDataExchange.h"

#include <gtest/gtest.h>

#include "driver/DialogTemplate.h"
#include "driver/Text.h"
#include "MessageIds.h"
#include "support/DecimalSignScope.h"
#include "support/FakeSheet.h"
#include "support/PrintText.h"
#include "window/CSubclassedControl.h"
#include "window/RadioTable.h"

namespace {

enum : int { kCheck = 100, kThreeState, kEdit, kStatic, kList, kDropDown, kRadio = 110, kLastRadio = 112 };

constexpr ValueRow kRows[] = {{MSG_PAGE_FONTS, 7}, {MSG_PAGE_LINKS, 0}, {MSG_PAGE_ACTIONS, -3}, {}};

DialogTemplate Template() {
  DialogTemplate dialog(WS_POPUP, {200, 150});
  dialog.Add(L"Button", kCheck, At(0, 0, 50, 10), L"", BS_AUTOCHECKBOX);
  dialog.Add(L"Button", kThreeState, At(0, 10, 50, 10), L"", BS_AUTO3STATE);
  dialog.Add(L"Edit", kEdit, At(0, 20, 50, 12), L"", ES_AUTOHSCROLL);
  dialog.Add(L"Static", kStatic, At(0, 40, 50, 12));
  dialog.Add(L"ComboBox", kList, At(0, 60, 80, 60), L"", CBS_DROPDOWNLIST);
  dialog.Add(L"ComboBox", kDropDown, At(0, 80, 80, 60), L"", CBS_DROPDOWN | CBS_AUTOHSCROLL);
  for (int id = kRadio; id <= kLastRadio; ++id)
    dialog.Add(L"Button", id, At(100, (id - kRadio) * 12, 50, 10), L"", BS_AUTORADIOBUTTON);
  return dialog;
}

class DataExchange : public testing::Test {
 protected:
  DataExchange() {
    dialog_ = CWnd(CreateDialogIndirectParamW(
        nullptr, Template().Get(), nullptr, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0));
    FillFromTable(CComboBox(dialog_.Item(kList)), kRows);
  }
  ~DataExchange() override { DestroyWindow(dialog_.Handle()); }

  CDataExchange Loading() { return {dialog_, false}; }
  CDataExchange Saving() { return {dialog_, true}; }
  LRESULT CheckOf(int id) { return dialog_.Item(id).Send(BM_GETCHECK); }
  void SetCheck(int id, int check) { dialog_.Item(id).Send(BM_SETCHECK, static_cast<WPARAM>(check)); }
  CUString TextOf(int id) { return dialog_.Item(id).Text(); }
  std::vector<int> CheckedRadios() {
    std::vector<int> checked;
    for (int id = kRadio; id <= kLastRadio; ++id)
      if (CheckOf(id) == BST_CHECKED) checked.push_back(id - kRadio);
    return checked;
  }
  int SelectedRow() { return CComboBox(dialog_.Item(kList)).Selection(); }
  void SelectRow(int row) { CComboBox(dialog_.Item(kList)).Select(row); }

  LanguageScope english_{kEnglish};
  CWnd dialog_;
};

TEST_F(DataExchange, KnowsItsDirection) {
  CDataExchange loading = Loading(), saving = Saving();
  EXPECT_TRUE(loading.IsLoading());
  EXPECT_FALSE(loading.IsSaving());
  EXPECT_TRUE(saving.IsSaving());
  EXPECT_FALSE(saving.IsLoading());
  EXPECT_FALSE(saving.HasFailed());
  EXPECT_EQ(0, saving.FailedControl());
}

TEST_F(DataExchange, AFailureMayLetTheExchangeGoOn) {
  CDataExchange exchange = Saving();
  exchange.FailAndGoOn(kEdit);
  EXPECT_TRUE(exchange.HasFailed());
  EXPECT_TRUE(exchange.IsSaving());
  exchange.FailAndGoOn(kList);
  exchange.Fail(kCheck);
  EXPECT_FALSE(exchange.IsSaving());
  EXPECT_EQ(kEdit, exchange.FailedControl()) << "the first one counts";
}

// --- Check boxes and radio buttons ---------------------------------------------------------------------------------

TEST_F(DataExchange, CheckBitShowsAndStoresOneBitAlone) {
  for (const uint16_t bits : {0b000, 0b010, 0b101, 0b111}) {
    uint16_t member = bits;
    CDataExchange loading = Loading();
    loading.CheckBit(kCheck, member, 2);
    EXPECT_EQ(bits & 2 ? BST_CHECKED : BST_UNCHECKED, CheckOf(kCheck)) << bits;
    EXPECT_EQ(bits, member);
    for (const int check : {BST_CHECKED, BST_UNCHECKED}) {
      SetCheck(kCheck, check);
      CDataExchange saving = Saving();
      saving.CheckBit(kCheck, member, 2);
      EXPECT_EQ(check == BST_CHECKED ? bits | 2 : bits & ~2, member) << bits;
    }
  }
  CDataExchange ended = Saving();
  ended.Fail(kEdit);
  uint16_t member = 2;
  ended.CheckBit(kCheck, member, 2);
  EXPECT_EQ(2, member);
}

TEST_F(DataExchange, CheckShowsAnyValueButZeroAsOn) {
  for (const auto& [value, check] :
       {std::pair{0, BST_UNCHECKED}, {1, BST_CHECKED}, {-1, BST_CHECKED}, {77, BST_CHECKED}}) {
    int member = value;
    CDataExchange exchange = Loading();
    exchange.Check(kCheck, member);
    EXPECT_EQ(check, CheckOf(kCheck)) << value;
    EXPECT_EQ(value, member) << "loading leaves the member alone";
  }
}

TEST_F(DataExchange, CheckStoresZeroOrOne) {
  uint8_t member = 77;
  for (const auto& [check, value] : {std::pair{BST_CHECKED, 1}, {BST_UNCHECKED, 0}}) {
    SetCheck(kCheck, check);
    CDataExchange exchange = Saving();
    exchange.Check(kCheck, member);
    EXPECT_EQ(value, member);
    EXPECT_EQ(check, CheckOf(kCheck));
  }
  SetCheck(kThreeState, BST_INDETERMINATE);
  member = 1;
  CDataExchange exchange = Saving();
  exchange.Check(kThreeState, member);
  EXPECT_EQ(0, member) << "neither on nor off is not on";
}

TEST_F(DataExchange, AnInvertedCheckSaysTheOpposite) {
  for (const int value : {0, 1, -1, 77}) {
    int member = value;
    CDataExchange exchange = Loading();
    exchange.CheckInverted(kCheck, member);
    EXPECT_EQ(value == 0 ? BST_CHECKED : BST_UNCHECKED, CheckOf(kCheck)) << value;
    EXPECT_EQ(value, member) << "loading leaves the member alone";
  }
  uint16_t member = 77;
  for (const auto& [check, value] : {std::pair{BST_CHECKED, 0}, {BST_UNCHECKED, 1}}) {
    SetCheck(kCheck, check);
    CDataExchange exchange = Saving();
    exchange.CheckInverted(kCheck, member);
    EXPECT_EQ(value, member);
  }
  CDataExchange failed = Saving();
  failed.Fail(kEdit);
  SetCheck(kCheck, BST_CHECKED);
  failed.CheckInverted(kCheck, member);
  EXPECT_EQ(1, member) << "steps behind a failed one do nothing";
}

TEST_F(DataExchange, RadioTurnsOnTheOneOfItsIndex) {
  for (int16_t index : {0, 2, 1}) {
    CDataExchange exchange = Loading();
    exchange.Radio(kRadio, kLastRadio, index);
    EXPECT_EQ(std::vector<int>{index}, CheckedRadios());
  }
}

TEST_F(DataExchange, RadioStoresTheIndexOfTheOneThatIsOn) {
  for (int on = 0; on <= kLastRadio - kRadio; ++on) {
    CheckRadioButton(dialog_.Handle(), kRadio, kLastRadio, kRadio + on);
    uint16_t index = 9;
    CDataExchange exchange = Saving();
    exchange.Radio(kRadio, kLastRadio, index);
    EXPECT_EQ(on, index);
    EXPECT_FALSE(exchange.HasFailed());
  }
}

TEST_F(DataExchange, RadioWithNoneOnFailsAndKeepsTheMember) {
  int index = 2;
  CDataExchange exchange = Saving();
  exchange.Radio(kRadio, kLastRadio, index);
  EXPECT_EQ(2, index);
  EXPECT_TRUE(exchange.HasFailed());
  EXPECT_EQ(kRadio, exchange.FailedControl());
}

TEST_F(DataExchange, RadiosInAnOrderOfTheirOwnStandInATable) {
  constexpr int kByValue[] = {kRadio + 1, kRadio + 2, kRadio};
  EXPECT_EQ(0, ShownRadio(dialog_, kByValue)) << "none is on";
  const std::pair<unsigned, int> values[] = {{0, 1}, {1, 2}, {2, 0}, {3, 1}, {0xFFFF, 1}};
  for (const auto& [value, on] : values) {
    ShowRadio(dialog_, kByValue, value);
    EXPECT_EQ(std::vector<int>{on}, CheckedRadios()) << value;
    EXPECT_EQ(value < 3 ? static_cast<int>(value) : 0, ShownRadio(dialog_, kByValue)) << value;
  }
}

TEST_F(DataExchange, RadioIndexOfNoButtonTurnsAllOff) {
  CheckRadioButton(dialog_.Handle(), kRadio, kLastRadio, kRadio);
  for (int index : {-1, 3}) {
    CDataExchange exchange = Loading();
    exchange.Radio(kRadio, kLastRadio, index);
    EXPECT_EQ(std::vector<int>(), CheckedRadios()) << index;
  }
}

TEST_F(DataExchange, RadioWithNoneOnStoresWhatStandsForIt) {
  uint16_t index = 2;
  CDataExchange exchange = Saving();
  exchange.Radio(kRadio, kLastRadio, index, 0xFFFF);
  EXPECT_EQ(0xFFFF, index);
  EXPECT_FALSE(exchange.HasFailed());
  CDataExchange loading = Loading();
  loading.Radio(kRadio, kLastRadio, index, 0xFFFF);
  EXPECT_EQ(std::vector<int>(), CheckedRadios());
  EXPECT_EQ(0xFFFF, index);
  SendMessageW(dialog_.Item(kRadio + 1).Handle(), BM_SETCHECK, BST_CHECKED, 0);
  CDataExchange saving = Saving();
  saving.Radio(kRadio, kLastRadio, index, 0xFFFF);
  EXPECT_EQ(1, index);
}

// --- Texts and numbers ---------------------------------------------------------------------------------------------

TEST_F(DataExchange, TextMovesBothWays) {
  for (const int id : {int{kEdit}, int{kStatic}, int{kDropDown}}) {
    for (const wchar_t* text : {L"Name", L"", L"\x0645 \xD83D\xDE00"}) {
      CUString member(text);
      CDataExchange loading = Loading();
      loading.Text(id, member);
      EXPECT_EQ(text, TextOf(id)) << id;
      CUString saved(L"before");
      CDataExchange saving = Saving();
      saving.Text(id, saved);
      EXPECT_EQ(text, saved) << id;
    }
  }
}

TEST_F(DataExchange, LongTextIsNotCut) {
  CUString member;
  for (int i = 0; i < 20'000; ++i) member.Append(i % 2 ? L"x" : L"y");
  dialog_.Item(kEdit).Send(EM_SETLIMITTEXT, 10);  // limits the typing only
  CDataExchange loading = Loading();
  loading.Text(kEdit, member);
  CUString saved;
  CDataExchange saving = Saving();
  saving.Text(kEdit, saved);
  EXPECT_EQ(member, saved);
}

TEST_F(DataExchange, NumberIsShownInDecimal) {
  for (const auto& [value, text] : {std::pair{0, L"0"}, {42, L"42"}, {-7, L"-7"}, {INT32_MAX, L"2147483647"}}) {
    int member = value;
    CDataExchange exchange = Loading();
    exchange.Number(kEdit, member);
    EXPECT_EQ(text, TextOf(kEdit));
  }
}

TEST_F(DataExchange, NumberIsReadAndTextWithoutOneCountsAsZero) {
  for (const auto& [text, value] : {std::pair{L"42", 42}, {L" 7 mm", 7}, {L"-12", -12}, {L"abc", 0}, {L"", 0}}) {
    dialog_.Item(kEdit).SetText(text);
    int16_t member = 99;
    CDataExchange exchange = Saving();
    exchange.Number(kEdit, member);
    EXPECT_EQ(value, member) << ToUtf8(text);
    EXPECT_FALSE(exchange.HasFailed());
  }
}

constexpr NumberRule kRule = {.room = 6, .minimum = 1, .maximum = 300.5, .fallback = 7.5};

struct RuleCase {
  const wchar_t *text, *corrected;
  double number;
};

TEST_F(DataExchange, CorrectNumberReplacesWhatBreaksTheRule) {
  for (const auto& [text, corrected, number] : {
           RuleCase{L"1", L"1", 1},
           {L"0.95", L"0.95", 1},  // rounded to one decimal place first
           {L"0.94", L"7.5", 7.5},
           {L"300.5", L"300.5", 300.5},
           {L"300.6", L"7.5", 7.5},
           {L" 12.34", L"7.5", 7.5},  // six characters
           {L"12.34", L"12.34", 12.3},
           {L"-5", L"7.5", 7.5},
           {L"", L"7.5", 7.5},
           {L"mm", L"7.5", 7.5},
       }) {
    dialog_.Item(kEdit).SetText(text);
    EXPECT_EQ(number, CorrectNumber(dialog_, kEdit, kRule)) << ToUtf8(text);
    EXPECT_EQ(corrected, TextOf(kEdit)) << ToUtf8(text);
    EXPECT_EQ(number, CorrectNumber(dialog_, kEdit, kRule)) << "again: " << ToUtf8(text);
  }
}

TEST_F(DataExchange, ShowNumberWritesNoMoreDecimalPlacesThanThereAre) {
  for (const auto& [number, text] : {std::pair{210.0, L"210"}, {99.5, L"99.5"}, {6553.5, L"6553.5"}, {0.0, L"0"}}) {
    ShowNumber(dialog_, kEdit, number);
    EXPECT_EQ(text, TextOf(kEdit));
    const DecimalSignScope slash('/');
    ShowNumber(dialog_, kEdit, number);
    EXPECT_EQ(text, TextOf(kEdit)) << "whatever the locale of the host";
  }
}

TEST_F(DataExchange, ANumberThatIsShownIsReadAgainUnderEveryLocale) {
  const DecimalSignScope comma(',');
  ShowNumber(dialog_, kEdit, 10.5);
  EXPECT_EQ(L"10.5", TextOf(kEdit));
  EXPECT_EQ(10.5, CorrectNumber(dialog_, kEdit, kRule));
}

TEST_F(DataExchange, NumberWithARuleShowsAnyAndStoresWhatKeepsIt) {
  uint16_t member = 40000;
  CDataExchange loading = Loading();
  loading.Number(kEdit, kRule, member);
  EXPECT_EQ(L"40000", TextOf(kEdit));
  EXPECT_EQ(40000, member);
  CDataExchange saving = Saving();
  saving.Number(kEdit, kRule, member);
  EXPECT_EQ(7, member) << "without its decimal place";
  EXPECT_EQ(L"7.5", TextOf(kEdit));
  EXPECT_FALSE(saving.HasFailed());
  dialog_.Item(kEdit).SetText(L"12.34");
  CDataExchange again = Saving();
  again.Number(kEdit, kRule, member);
  EXPECT_EQ(12, member);
}

// --- Choices -------------------------------------------------------------------------------------------------------

TEST_F(DataExchange, FillFromTableShowsTheTextsInTheirOrder) {
  const CComboBox combo(dialog_.Item(kList));
  for (int times = 0; times < 2; ++times) {
    ASSERT_EQ(3, combo.Count()) << "filling again does not double the rows";
    EXPECT_EQ(L"Fonts", combo.RowText(0));
    EXPECT_EQ(L"Links", combo.RowText(1));
    EXPECT_EQ(L"Actions", combo.RowText(2));
    FillFromTable(combo, kRows);
  }
}

TEST_F(DataExchange, ChoiceSelectsTheRowOfItsValueOrTheFirst) {
  for (const auto& [value, row] : {std::pair{7, 0}, {0, 1}, {-3, 2}, {5, 0}, {INT32_MIN, 0}}) {
    SelectRow(1);
    int member = value;
    CDataExchange exchange = Loading();
    exchange.Choice(kList, kRows, member);
    EXPECT_EQ(row, SelectedRow()) << value;
    EXPECT_EQ(value, member);
  }
}

TEST_F(DataExchange, ChoiceStoresTheValueOfTheSelectedRow) {
  for (const auto& [row, value] : {std::pair{0, 7}, {1, 0}, {2, -3}}) {
    SelectRow(row);
    int16_t member = 99;
    CDataExchange exchange = Saving();
    exchange.Choice(kList, kRows, member);
    EXPECT_EQ(value, member);
    EXPECT_FALSE(exchange.HasFailed());
  }
}

TEST_F(DataExchange, ChoiceWithoutASelectionStoresTheFirstRowAndFails) {
  SelectRow(-1);
  for (const NoSelection none : {NoSelection::EndsExchange, NoSelection::GoesOn}) {
    int member = 99;
    CDataExchange exchange = Saving();
    exchange.Choice(kList, kRows, member, none);
    EXPECT_EQ(7, member);
    EXPECT_TRUE(exchange.HasFailed());
    EXPECT_EQ(kList, exchange.FailedControl());
    EXPECT_EQ(none == NoSelection::GoesOn, exchange.IsSaving());
  }
  int member = 99;
  CDataExchange exchange = Saving();
  exchange.Choice(kList, kRows, member);
  EXPECT_FALSE(exchange.IsSaving()) << "it ends where nothing else is said";
}

TEST_F(DataExchange, ChoiceFillsAnEmptyComboOnce) {
  const CComboBox combo(dialog_.Item(kDropDown));
  ASSERT_EQ(0, combo.Count());
  int member = -3;
  for (int times = 0; times < 2; ++times) {
    CDataExchange exchange = Loading();
    exchange.Choice(kDropDown, kRows, member);
    EXPECT_FALSE(exchange.HasFailed());
    EXPECT_EQ(3, combo.Count());
    EXPECT_EQ(2, combo.Selection());
    EXPECT_EQ(L"Actions", combo.RowText(2));
  }
}

// A combo that refuses one message.
class RefusingCombo final : public CSubclassed<CComboBox> {
 public:
  explicit RefusingCombo(UINT refused) : refused_(refused) {}
  bool OnWindowMessage(WindowMessage& message) override {
    if (message.message != refused_) return false;
    message.result = CB_ERR;
    return true;
  }

 private:
  const UINT refused_;
};

TEST_F(DataExchange, ChoiceFailsWhenARowCannotBeInsertedOrSelected) {
  for (const UINT refused : {CB_ADDSTRING, CB_SETCURSEL}) {
    RefusingCombo combo(refused);
    ASSERT_TRUE(combo.Attach(dialog_, kDropDown));
    combo.Reset();
    EXPECT_EQ(refused != CB_ADDSTRING, FillFromTable(combo, kRows));
    int member = 0;
    CDataExchange exchange = Loading();
    exchange.Choice(kDropDown, kRows, member);
    EXPECT_TRUE(exchange.HasFailed()) << refused;
    EXPECT_EQ(kDropDown, exchange.FailedControl());
    EXPECT_TRUE(exchange.IsLoading()) << "the other controls are shown all the same";
  }
}

TEST_F(DataExchange, SelectedValueIsThatOfTheRow) {
  const CComboBox combo(dialog_.Item(kList));
  SelectRow(2);
  EXPECT_EQ(-3, SelectedValue(combo, kRows));
  SelectRow(-1);
  EXPECT_EQ(std::nullopt, SelectedValue(combo, kRows));
}

// --- Failure -------------------------------------------------------------------------------------------------------

TEST_F(DataExchange, FirstFailureEndsTheExchangeAndNamesItsControl) {
  CDataExchange exchange = Saving();
  exchange.Fail(kEdit);
  exchange.Fail(kCheck);
  EXPECT_EQ(kEdit, exchange.FailedControl());
  EXPECT_TRUE(exchange.HasFailed());
  EXPECT_FALSE(exchange.IsSaving());
  EXPECT_FALSE(exchange.IsLoading());
}

TEST_F(DataExchange, StepsBehindAFailureStoreNothing) {
  SetCheck(kCheck, BST_CHECKED);
  CheckRadioButton(dialog_.Handle(), kRadio, kLastRadio, kRadio + 1);
  dialog_.Item(kEdit).SetText(L"5");
  SelectRow(1);
  int check = 44, radio = 44, number = 44, choice = 44;
  CUString text(L"kept");
  CDataExchange exchange = Saving();
  exchange.Fail(kStatic);
  exchange.Check(kCheck, check);
  exchange.Radio(kRadio, kLastRadio, radio);
  exchange.Text(kEdit, text);
  exchange.Number(kEdit, number);
  exchange.Choice(kList, kRows, choice);
  EXPECT_EQ((std::vector<int>{44, 44, 44, 44}), (std::vector<int>{check, radio, number, choice}));
  EXPECT_EQ(L"kept", text);
  EXPECT_EQ(kStatic, exchange.FailedControl());
}

TEST_F(DataExchange, StepsBehindAFailureShowNothing) {
  dialog_.Item(kEdit).SetText(L"before");
  SelectRow(2);
  int value = 1, row = 0;
  CUString text(L"new");
  CDataExchange exchange = Loading();
  exchange.Fail(kStatic);
  exchange.Check(kCheck, value);
  exchange.Radio(kRadio, kLastRadio, value);
  exchange.Text(kEdit, text);
  exchange.Number(kEdit, value);
  exchange.Choice(kList, kRows, row);
  EXPECT_EQ(BST_UNCHECKED, CheckOf(kCheck));
  EXPECT_EQ(std::vector<int>(), CheckedRadios());
  EXPECT_EQ(L"before", TextOf(kEdit));
  EXPECT_EQ(2, SelectedRow());
}

TEST_F(DataExchange, ControlsThatAreMissingReadAsOffAndEmpty) {
  int check = 1, number = 9;
  CUString text(L"before");
  CDataExchange exchange = Saving();
  exchange.Check(999, check);
  exchange.Text(999, text);
  exchange.Number(999, number);
  EXPECT_EQ(0, check);
  EXPECT_EQ(L"", text);
  EXPECT_EQ(0, number);
}

// --- Texts with a limit --------------------------------------------------------------------------------------------

TEST_F(DataExchange, TextWithALimitTakesNoMoreTyping) {
  CUString member = L"abc";
  CDataExchange exchange = Loading();
  exchange.Text(kEdit, member, 5);
  EXPECT_EQ(L"abc", TextOf(kEdit));
  EXPECT_EQ(5, dialog_.Item(kEdit).Send(EM_GETLIMITTEXT));
}

TEST_F(DataExchange, TextWithALimitCutsWhatIsLongerFailsAndGoesOn) {
  for (const auto& [text, taken, fails] :
       {std::tuple{L"", L"", false}, {L"abcde", L"abcde", false}, {L"abcdef", L"abcde", true}}) {
    CUString member = L"old", behind = L"old";
    CDataExchange loading = Loading();
    CUString longText = text;
    loading.Text(kEdit, longText, 5);
    EXPECT_EQ(text, TextOf(kEdit)) << "it is shown whole";
    EXPECT_FALSE(loading.HasFailed());
    CDataExchange saving = Saving();
    saving.Text(kEdit, member, 5);
    EXPECT_EQ(taken, member);
    EXPECT_EQ(fails, saving.HasFailed());
    EXPECT_EQ(fails ? kEdit : 0, saving.FailedControl());
    saving.Text(kStatic, behind);
    EXPECT_EQ(L"", behind) << "the exchange goes on";
  }
}

}  // namespace
