// How the time of a task grows with the number of its entries.
#pragma once

#include <algorithm>
#include <chrono>

template <class Work>
std::chrono::steady_clock::duration TimeOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::steady_clock::now() - start;
}

// The best of some runs, in seconds. `task` takes the number of entries and gives the time that it took.
template <class Task>
double CostOf(Task task, int entries, int rounds) {
  auto best = std::chrono::steady_clock::duration::max();
  for (int round = 0; round < rounds; ++round) best = std::min(best, task(entries));
  return std::chrono::duration<double>(best).count();
}

// 32 times the entries cost some 32 times as much; a cost by the square would be 1024 times. The bound lies between,
// since the machine may be busy.
template <class Task>
bool GrowsWithItsEntries(Task task) {
  return CostOf(task, 20000, 2) < 120 * CostOf(task, 625, 5);
}
