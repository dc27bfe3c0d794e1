#include "PageTable.h"

namespace {

std::vector<PageTable>& Tables() {
  static std::vector<PageTable> tables;
  return tables;
}

PropertyRow Row(PropertyRow::Kind kind, const std::wstring& property, std::vector<int> controls) {
  PropertyRow row{};
  row.kind = kind;
  row.property = property;
  row.controls = std::move(controls);
  return row;
}

}  // namespace

PropertyRow Choice(const std::wstring& property, int combo, const std::vector<std::pair<std::wstring, int32_t>>& rows) {
  constexpr int32_t kInNoRow = 9999;
  PropertyRow row = Row(PropertyRow::Kind::kChoice, property, {combo});
  for (const auto& [text, value] : rows) row.stored.push_back({value, text, value});
  row.stored.push_back({kInNoRow, rows.front().first, rows.front().second});
  return row;
}

PropertyRow CheckBox(const std::wstring& property, int check) {
  PropertyRow row = Row(PropertyRow::Kind::kCheck, property, {check});
  row.stored = {{0, L"off", 0}, {1, L"on", 1}, {2, L"on", 1}, {-1, L"on", 1}};
  return row;
}

PropertyRow InvertedCheckBox(const std::wstring& property, int check) {
  PropertyRow row = Row(PropertyRow::Kind::kCheck, property, {check});
  row.stored = {{1, L"off", 1}, {0, L"on", 0}, {2, L"off", 1}, {-1, L"off", 1}};
  return row;
}

PropertyRow CheckBoxOfBit(const std::wstring& property, int check, int32_t bit) {
  PropertyRow row = Row(PropertyRow::Kind::kCheck, property, {check});
  for (const int32_t value : {0, bit, ~bit, -1, 0x10000, 0x10000 | bit})
    row.stored.push_back({value, value & bit ? L"on" : L"off", value});
  return row;
}

PropertyRow Radios(const std::wstring& property, const std::vector<int>& radios, int32_t first) {
  PropertyRow row = Row(PropertyRow::Kind::kRadios, property, radios);
  for (int i = 0; i < static_cast<int>(radios.size()); ++i)
    row.stored.push_back({first + i, std::to_wstring(i), first + i});
  return row;
}

PropertyRow Field(const std::wstring& property, int control) {
  return Row(PropertyRow::Kind::kField, property, {control});
}

PropertyRow Unshown(const std::wstring& property) { return Row(PropertyRow::Kind::kUnshown, property, {}); }

const std::vector<PageTable>& AllPageTables() { return Tables(); }

PageTableEntry::PageTableEntry(const PageTable& table) { Tables().push_back(table); }
