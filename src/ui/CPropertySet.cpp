#include "ui/CPropertySet.h"

namespace {

constexpr uint32_t kEntriesPerBlock = 10;

}  // namespace

CPropertySet::CPropertySet(uint32_t hashTableSize) : properties_(kEntriesPerBlock) {
  properties_.InitHashTable(hashTableSize, false);
}

CProperty* CPropertySet::Get(const wchar_t* name) const {
  void* property = nullptr;
  return properties_.Lookup(name, property) ? static_cast<CProperty*>(property) : nullptr;
}

void CPropertySet::Add(CProperty& property) { properties_.SetAt(property.GetName().Text(), &property); }

CPropertySet::Position CPropertySet::First() const { return properties_.Count() ? CStr2Ptr::StartPosition() : nullptr; }

CProperty* CPropertySet::Next(Position& position) const {
  const wchar_t* name;
  void* property = nullptr;
  properties_.GetNextAssoc(position, name, property);
  return static_cast<CProperty*>(property);
}

void CPropertySet::CopyFrom(const CPropertySet& other) {
  if (!First()) return;
  for (Position position = other.First(); position;) {
    const CProperty* source = other.Next(position);
    if (CProperty* target = Get(source->GetName().Text())) target->Assign(*source);
  }
}
