// What the process holds of the machine, read at quiet moments of a long show, and whether that stays flat.
#pragma once

#include <string>
#include <vector>

namespace pawnfield {

struct Reading {
  // Kilobytes: memory in the machine's RAM, and what of it the program has asked for and not given back.
  long Resident = 0;
  long Heap = 0;
  int Handles = 0;
  int Threads = 0;
};

Reading ReadProcess();

class Gauge {
 public:
  // How far any later reading may lie above the first one that counts.
  explicit Gauge(const Reading& bound) : bound_(bound) {}

  // Reads the process and prints the line of that moment.
  void Read(const std::string& moment);
  // Prints whether all readings after the first tenth are within the bound of the one that ends it.
  bool ReportVerdict() const;

 private:
  Reading bound_;
  std::vector<Reading> readings_;
};

}  // namespace pawnfield
