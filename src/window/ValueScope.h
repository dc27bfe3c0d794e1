// A variable's other value for as long as this lives, however the block is left.
#pragma once

#include <utility>

template <class T>
class ValueScope {
 public:
  ValueScope(T& variable, T value) : variable_(variable), previous_(std::exchange(variable, value)) {}
  ~ValueScope() { variable_ = previous_; }
  ValueScope(const ValueScope&) = delete;
  ValueScope& operator=(const ValueScope&) = delete;

 private:
  T& variable_;
  T previous_;
};
