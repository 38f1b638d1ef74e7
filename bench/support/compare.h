#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

// Two ways of doing the same work, in turn, in one run.
namespace tarvane {

inline double Microseconds(const std::function<void()>& step) {
  const auto start = std::chrono::steady_clock::now();
  step();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

inline void PrintHeading(const char* ours, const char* theirs) {
  std::printf("| %-44s | %10s | %10s | %5s | %4s |\n", "medians in microseconds", ours, theirs, "ratio",
              "most");
}

// One line of figures; `limit` is the ratio that is meant to be kept.
inline void Compare(const char* what, double limit, int rounds, const std::function<void()>& ours,
                    const std::function<void()>& theirs) {
  std::vector<double> our_times;
  std::vector<double> their_times;
  ours();
  theirs();
  for (int i = 0; i < rounds; ++i) {
    our_times.push_back(Microseconds(ours));
    their_times.push_back(Microseconds(theirs));
  }
  const double our_median = Median(our_times);
  const double their_median = Median(their_times);
  std::printf("| %-44s | %10.1f | %10.1f | %5.2f | %4.2f |\n", what, our_median, their_median,
              our_median / their_median, limit);
}

// Ends the program where the two sides didn't do the same.
inline void Expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "not the same work: %s\n", what);
  std::exit(1);
}

}  // namespace tarvane
