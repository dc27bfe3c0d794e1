// One control exchange of a dialog, in either direction: loading fills the controls from the members, saving brings
// the controls' contents back. The dialog's DoDataExchange names each control in one line that serves both.
//
// The first step that fails ends the exchange, unless its line says otherwise: the steps behind it do nothing, and the
// dialog puts the focus on the control of the failed step.
#pragma once

#include <optional>
#include <type_traits>

#include "DriverLIB/CSecretText.h"
#include "window/Controls.h"
#include "window/NumberEdit.h"
#include "window/ValueTable.h"

// A list without a selected row fails a save. Whether the steps behind its own are still done:
enum class NoSelection { EndsExchange, GoesOn };

class CDataExchange {
 public:
  CDataExchange(CWnd dialog, bool saving) : dialog_(dialog), saving_(saving) {}

  bool IsSaving() const { return saving_ && !ended_; }
  bool IsLoading() const { return !saving_ && !ended_; }
  bool HasFailed() const { return failed_; }
  // The control that the user has to correct; 0 when none is named.
  int FailedControl() const { return failedControl_; }
  void Fail(int controlId);
  // The exchange has failed all the same, but the steps behind this one are still done.
  void FailAndGoOn(int controlId);

  // A check box and a member that is 0 or 1.
  template <class T>
  void Check(int id, T& value) {
    if (IsLoading()) SetChecked(id, value != 0);
    if (IsSaving()) value = static_cast<T>(IsChecked(id) ? 1 : 0);
  }

  // The same where the box says the opposite of the member.
  template <class T>
  void CheckInverted(int id, T& value) {
    bool shown = value == 0;
    Check(id, shown);
    if (IsSaving()) value = static_cast<T>(shown ? 0 : 1);
  }

  // A check box and a bit of a set; the other bits stay.
  template <class T>
  void CheckBit(int id, T& bits, std::type_identity_t<T> bit) {
    T set = (bits & bit) != 0;
    Check(id, set);
    if (IsSaving()) bits = static_cast<T>(set ? bits | bit : bits & ~bit);
  }

  // The radio buttons `firstId` to `lastId` and a member that counts from 0 which of them is on. None on stores `none`
  // where that is given, and fails otherwise.
  template <class T>
  void Radio(int firstId, int lastId, T& index, std::optional<std::type_identity_t<T>> none = {}) {
    if (IsLoading()) ShowRadio(firstId, lastId, static_cast<int>(index));
    if (!IsSaving()) return;
    if (const int chosen = ChosenRadio(firstId, lastId); chosen >= 0)
      index = static_cast<T>(chosen);
    else if (none)
      index = *none;
    else
      Fail(firstId);
  }

  // An edit, a static or a combo's edit field, and a text.
  void Text(int id, CUString& value);
  // An edit and a password, of which saving takes at most `maximum` characters: none of its copies is left behind.
  void Password(int id, CSecretText& value, int maximum = CUString::kMaxLength);

  // An edit in which at most `limit` characters can be typed. Of a longer text, which a host may have given, saving
  // takes what fits; then the exchange has failed and goes on.
  void Text(int id, CUString& value, int limit);

  // The same with a decimal number. A text without a number counts as 0.
  template <class T>
  void Number(int id, T& value) {
    if (IsLoading()) SetNumber(id, static_cast<long>(value));
    if (IsSaving()) value = static_cast<T>(NumberIn(id));
  }

  // The same with a number that has to keep to a rule: saving corrects it first, and drops its decimal place.
  template <class T>
  void Number(int id, const NumberRule& rule, T& value) {
    if (IsLoading()) SetNumber(id, static_cast<long>(value));
    if (IsSaving()) value = static_cast<T>(CorrectNumber(dialog_, id, rule));
  }

  // A combo with the rows of a value table, and the stored value. Loading fills a combo that is empty, and selects the
  // value's row, or the first; where that cannot be shown the loading has failed and goes on. Saving with no row
  // selected stores the first row's value and fails.
  template <class T>
  void Choice(int id, const ValueRow* table, T& value, NoSelection none = NoSelection::EndsExchange) {
    int32_t stored = static_cast<int32_t>(value);
    MoveChoice(id, table, stored, none);
    if (saving_) value = static_cast<T>(stored);
  }

 private:
  bool IsChecked(int id) const;
  void SetChecked(int id, bool checked) const;
  void SetNumber(int id, long value) const;
  long NumberIn(int id) const;
  void ShowRadio(int firstId, int lastId, int index) const;
  int ChosenRadio(int firstId, int lastId) const;
  void MoveChoice(int id, const ValueRow* table, int32_t& value, NoSelection none);

  CWnd dialog_;
  bool saving_;
  bool failed_ = false;
  bool ended_ = false;  // failed, and nothing more is done
  int failedControl_ = 0;
};

// Fills a combo with the texts of a value table, in its order. False when a row could not be inserted.
bool FillFromTable(const CComboBox& combo, const ValueRow* table);

// The stored value of the selected row; nothing without a selection.
std::optional<int32_t> SelectedValue(const CComboBox& combo, const ValueRow* table);
