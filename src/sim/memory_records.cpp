#include "sim/memory_records.h"

namespace pawnfield {

std::vector<std::string> MemoryRecords::List() const {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : Files) names.push_back(name);
  return names;
}

std::string MemoryRecords::Read(const std::string& name) const {
  const auto file = Files.find(name);
  return file == Files.end() ? std::string() : file->second;
}

void MemoryRecords::ReadBeside(const std::string& name, std::function<void(const std::string& bytes)> take,
                               std::function<void()> done) {
  take(Read(name));
  done();
}

void MemoryRecords::Append(const std::string& name, const std::string& lines) {
  if (error_ == 0) {
    Files[name] += lines;
    return;
  }
  waiting_[name] += lines;
  if (OnFailed) OnFailed(RuntimeError(error_, "Disk full"));
}

void MemoryRecords::CutTo(const std::string& name, std::size_t bytes) {
  std::string& file = Files[name];
  if (bytes < file.size()) file.resize(bytes);
}

void MemoryRecords::Fail(int error) { error_ = error; }

void MemoryRecords::GiveBack() {
  error_ = 0;
  for (const auto& [name, lines] : waiting_) Files[name] += lines;
  waiting_.clear();
  if (OnBack) OnBack();
}

}  // namespace pawnfield
