// Memory that is exhausted on demand, for code that asks with std::nothrow.
#pragma once

// While it lives, each allocation with std::nothrow after the first `granted` ones gives null.
class FailingNew {
 public:
  explicit FailingNew(int granted = 0);
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;
};
