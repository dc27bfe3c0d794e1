// One exchange of a page's values with the cockpit, in either direction. The page names each tracked value in one line
// that serves both.
#pragma once

#include <type_traits>

class CockpitExchange {
 public:
  enum class Direction { kToCockpit, kToPage };

  explicit CockpitExchange(Direction direction) : direction_(direction) {}

  bool IsToPage() const { return direction_ == Direction::kToPage; }

  // A member of the page and the cockpit's field. What is fixed is handed out and not taken.
  template <class T>
  void Value(T& member, std::type_identity_t<T>& field, bool fixed = false) const {
    if (!IsToPage())
      field = member;
    else if (!fixed)
      member = field;
  }

  // The same with some bits of a set: the others stay as they are on both sides.
  template <class T>
  void Bits(T& member, std::type_identity_t<T>& field, std::type_identity_t<T> mask, bool fixed = false) const {
    if (!IsToPage())
      field = static_cast<T>((field & ~mask) | (member & mask));
    else if (!fixed)
      member = static_cast<T>((member & ~mask) | (field & mask));
  }

 private:
  const Direction direction_;
};
