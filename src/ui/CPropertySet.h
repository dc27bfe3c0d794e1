// A collection of properties under their names.
//
// Names are compared exactly, with case. The order of iteration is that of the hash table. A set does not own its
// properties: in CDialogProperties they are members of the same object.
#pragma once

#include <cstdint>

#include "DriverLIB/CStr2Ptr.h"
#include "DriverLIB/CUStringArray.h"
#include "ui/Property.h"

class CPropertySet {
 public:
  static constexpr uint32_t kHashTableSize = 29;  // of all sets of this library

  explicit CPropertySet(uint32_t hashTableSize = kHashTableSize);
  CPropertySet(const CPropertySet&) = delete;
  CPropertySet& operator=(const CPropertySet&) = delete;

  bool Contains(const wchar_t* name) const { return Get(name) != nullptr; }
  // The property of that name, or null.
  CProperty* Get(const wchar_t* name) const;
  // Enters a property under its own name, in place of another one of that name.
  void Add(CProperty& property);

  // Iteration; a null position is the end, and a set without entries has no first:
  //   for (auto position = set.First(); position;) Use(set.Next(position));
  using Position = CStr2Ptr::Position;
  Position First() const;
  CProperty* Next(Position& position) const;

  // Gives each property of this set the value of the other set's property of the same name. Names that only one of
  // the two holds are passed over. The rights of the properties do not count here.
  void CopyFrom(const CPropertySet& other);

 private:
  CStr2Ptr properties_;
  CUStringArray reserved_;  // no operation fills it
};
