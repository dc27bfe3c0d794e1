#include "window/CDataExchange.h"

#include "DriverLIB/MessageText.h"
#include "DriverLIB/Numbers.h"
#include "window/PasswordEdit.h"

void CDataExchange::Fail(int controlId) {
  FailAndGoOn(controlId);
  ended_ = true;
}

void CDataExchange::FailAndGoOn(int controlId) {
  if (failed_) return;
  failed_ = true;
  failedControl_ = controlId;
}

bool CDataExchange::IsChecked(int id) const { return CButton(dialog_.Item(id)).IsChecked(); }

void CDataExchange::SetChecked(int id, bool checked) const { CButton(dialog_.Item(id)).SetCheck(checked); }

void CDataExchange::SetNumber(int id, long value) const {
  CUString text;
  text.Format(L"%ld", value);
  dialog_.Item(id).SetText(text.Text());
}

long CDataExchange::NumberIn(int id) const { return ParseDecimal(dialog_.Item(id).Text().Text()); }

void CDataExchange::ShowRadio(int firstId, int lastId, int index) const {
  ::CheckRadioButton(dialog_.Handle(), firstId, lastId, firstId + index);
}

// Which one is on, from 0; -1 when none is.
int CDataExchange::ChosenRadio(int firstId, int lastId) const {
  for (int id = firstId; id <= lastId; ++id)
    if (IsChecked(id)) return id - firstId;
  return -1;
}

void CDataExchange::Text(int id, CUString& value) {
  if (IsLoading()) dialog_.Item(id).SetText(value.Text());
  if (IsSaving()) value = dialog_.Item(id).Text();
}

void CDataExchange::Password(int id, CSecretText& value, int maximum) {
  const CEdit edit(dialog_.Item(id));
  if (IsLoading()) SetPassword(edit, value);
  if (!IsSaving()) return;
  value = edit.Text();
  value.CutTo(maximum);
}

void CDataExchange::Text(int id, CUString& value, int limit) {
  if (IsLoading()) CEdit(dialog_.Item(id)).LimitText(limit);
  Text(id, value);
  if (!IsSaving() || value.Length() <= limit) return;
  value = value.Left(limit);
  FailAndGoOn(id);
}

void CDataExchange::MoveChoice(int id, const ValueRow* table, int32_t& value, NoSelection none) {
  const CComboBox combo(dialog_.Item(id));
  if (IsLoading()) {
    const bool filled = combo.Count() > 0 || FillFromTable(combo, table);
    if (!filled || !combo.Select(RowOfValue(table, value))) FailAndGoOn(id);
  }
  if (!IsSaving()) return;
  const int row = combo.Selection();
  value = table[row < 0 ? 0 : row].value;
  if (row >= 0) return;
  if (none == NoSelection::GoesOn)
    FailAndGoOn(id);
  else
    Fail(id);
}

bool FillFromTable(const CComboBox& combo, const ValueRow* table) {
  combo.Reset();
  for (int row = 0; row < RowCount(table); ++row)
    if (combo.AddString(MessageText(table[row].messageId).Text()) < 0) return false;
  return true;
}

std::optional<int32_t> SelectedValue(const CComboBox& combo, const ValueRow* table) {
  const int row = combo.Selection();
  if (row < 0) return std::nullopt;
  return table[row].value;
}
