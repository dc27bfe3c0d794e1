// How the time of a task grows with the number of its entries.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <iterator>
#include <limits>

// Seconds. Natively those that the processor spent on this program, which a busy machine hardly changes; Windows counts
// them in ticks far too long, so there they are those of the wall.
inline double SecondsNow() {
#ifdef _WIN32
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
#else
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#endif
}

template <class Work>
double TimeOf(Work work) {
  const double start = SecondsNow();
  work();
  return SecondsNow() - start;
}

// The best of some runs, in seconds. `task` takes the number of entries and gives the time that it took.
template <class Task>
double CostOf(Task task, int entries, int rounds) {
  double best = std::numeric_limits<double>::max();
  for (int round = 0; round < rounds; ++round) best = std::min(best, task(entries));
  return best;
}

// 32 times the entries cost some 32 times as much; a cost by the square would be 1024 times. The bound lies between.
// A busy machine disturbs, so it measures again as long as the bound is passed, which a cost by the square always does.
template <class Task>
bool GrowsWithItsEntries(Task task) {
  constexpr int kMostRounds = 6;
  double few = std::numeric_limits<double>::max(), many = few;
  for (int round = 0; round < kMostRounds; ++round) {
    few = std::min(few, CostOf(task, 625, 5));
    many = std::min(many, CostOf(task, 20000, 1));
    if (many < 120 * few) return true;
  }
  return false;
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
