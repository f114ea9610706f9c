// The records of the shows in memory.
#pragma once

#include <map>
#include <string>

#include "platform/ports.h"

namespace pawnfield {

class MemoryRecords : public RecordFiles {
 public:
  std::vector<std::string> List() const override;
  std::string Read(const std::string& name) const override;
  void ReadBeside(const std::string& name, std::function<void(const std::string& bytes)> take,
                  std::function<void()> done) override;
  void Append(const std::string& name, const std::string& lines) override;
  void CutTo(const std::string& name, std::size_t bytes) override;
  void Remove(const std::string& name) override { Files.erase(name); }
  void LookAtPlace(std::function<void(const RecordPlace& place)> then) override { then(Place); }
  void Flush() override {}

  // The disk takes nothing until it is given back; what waits goes to it then.
  void Fail(int error);
  void GiveBack();

  std::map<std::string, std::string> Files;
  RecordPlace Place{"C:\\Ostara Show Kit Data\\Pawnfield\\Shows", std::int64_t{40} << 30};

 private:
  int error_ = 0;
  std::map<std::string, std::string> waiting_;
};

}  // namespace pawnfield
