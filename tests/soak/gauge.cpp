#include "soak/gauge.h"

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace pawnfield {

namespace {

constexpr std::size_t kWarmUpParts = 10;

int CountEntries(const char* folder) {
  const std::filesystem::directory_iterator entries(folder);
  return static_cast<int>(std::distance(begin(entries), end(entries)));
}

long ResidentKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long kilobytes = 0;
    if (word == "VmRSS:" && status >> kilobytes) return kilobytes;
  }
  return 0;
}

bool StaysBelow(const char* what, long from, long most, long bound) {
  const bool flat = most - from <= bound;
  std::printf("%-16s %8ld after the first tenth, at most %8ld later: %+6ld, at most %+ld wanted: %s\n", what, from,
              most, most - from, bound, flat ? "flat" : "GROWS");
  return flat;
}

}  // namespace

Reading ReadProcess() {
  const struct mallinfo2 heap = mallinfo2();
  return {ResidentKilobytes(), static_cast<long>((heap.uordblks + heap.hblkhd) / 1024), CountEntries("/proc/self/fd"),
          CountEntries("/proc/self/task")};
}

void Gauge::Read(const std::string& moment) {
  const Reading reading = ReadProcess();
  readings_.push_back(reading);
  std::printf("%s: resident %ld kB, heap %ld kB, %d handles, %d threads\n", moment.c_str(), reading.Resident,
              reading.Heap, reading.Handles, reading.Threads);
  std::fflush(stdout);
}

bool Gauge::ReportVerdict() const {
  if (readings_.size() < 2) {
    std::printf("too few readings for a verdict\n");
    return false;
  }
  const std::size_t first = (readings_.size() + kWarmUpParts - 1) / kWarmUpParts - 1;
  Reading most = readings_[first];
  for (std::size_t i = first + 1; i < readings_.size(); ++i) {
    most.Resident = std::max(most.Resident, readings_[i].Resident);
    most.Heap = std::max(most.Heap, readings_[i].Heap);
    most.Handles = std::max(most.Handles, readings_[i].Handles);
    most.Threads = std::max(most.Threads, readings_[i].Threads);
  }
  const Reading& from = readings_[first];
  const bool flat[] = {StaysBelow("resident, kB", from.Resident, most.Resident, bound_.Resident),
                       StaysBelow("heap, kB", from.Heap, most.Heap, bound_.Heap),
                       StaysBelow("handles", from.Handles, most.Handles, bound_.Handles),
                       StaysBelow("threads", from.Threads, most.Threads, bound_.Threads)};
  return std::all_of(std::begin(flat), std::end(flat), [](bool one) { return one; });
}

}  // namespace pawnfield
