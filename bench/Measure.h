// Times of two things in turn, and their ratio.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

struct Comparison {
  double ours = 0, floor = 0;  // medians in microseconds

  double Ratio() const { return ours / floor; }
};

inline double Microseconds(const std::chrono::steady_clock::duration duration) {
  return std::chrono::duration<double, std::micro>(duration).count();
}

inline double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

template <class Function>
double TimeOf(Function function) {
  const auto start = std::chrono::steady_clock::now();
  function();
  return Microseconds(std::chrono::steady_clock::now() - start);
}

// Runs both in turn, so that the machine's moods meet both alike; the first round warms up and does not count. The
// functions give their own time in microseconds.
template <class Ours, class Floor>
Comparison Compare(int rounds, Ours ours, Floor floor) {
  std::vector<double> ourTimes, floorTimes;
  for (int round = 0; round <= rounds; ++round) {
    const double ourTime = ours(), floorTime = floor();
    if (round == 0) continue;
    ourTimes.push_back(ourTime);
    floorTimes.push_back(floorTime);
  }
  return {Median(ourTimes), Median(floorTimes)};
}
