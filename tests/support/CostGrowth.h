// How the time of a task grows with the number of its entries.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <iterator>

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

// How many times as long the task takes with twice the entries: the worst of some sizes up to 20,000. A busy machine
// disturbs, so it measures again as long as `bound` is passed, which a cost by the square always does.
template <class Task>
double CostOfDoubling(Task task, double bound) {
  constexpr int kSizes[] = {2500, 5000, 10000, 20000};
  constexpr int kFewestRounds = 2, kMostRounds = 20;
  double best[std::size(kSizes)], worst = 0;
  for (int round = 0; round < kMostRounds && (round < kFewestRounds || worst > bound); ++round) {
    worst = 0;
    for (size_t i = 0; i < std::size(kSizes); ++i) {
      const double cost = CostOf(task, kSizes[i], 1);
      best[i] = round == 0 ? cost : std::min(best[i], cost);
      if (i > 0) worst = std::max(worst, best[i] / best[i - 1]);
    }
  }
  return worst;
}
