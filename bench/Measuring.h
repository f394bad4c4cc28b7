// Times, medians and memory of this process.
#pragma once

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

template <class Work>
double Milliseconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

/// Megabytes of "VmRSS" (now in memory) or "VmHWM" (most ever).
inline double Megabytes(std::string_view kind) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(kind)) return std::stod(line.substr(kind.size() + 1)) / 1024;
  }
  return 0;
}

/// Megabytes in use on the heap.
inline double Heap_Megabytes() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd) / (1024 * 1024);
}
