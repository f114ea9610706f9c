// Every kind of file that the program writes, with the handler of the program that writes it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "rig.h"
#include "snapshot.h"

namespace pawnfield::faults {

struct Writer {
  std::string Kind;
  // The folder below the root that the files lie in, and the files.
  QString Folder;
  QStringList Files;
  // Replaces the files by those of that variant, 0 to kVariants - 1, which differ in content and size.
  std::function<void(Rig& rig, int variant)> Write;
  // The procedure that a refusal's message names, and the text of the message that stands in for it where the file
  // may not be written.
  std::string Procedure;
  std::string NoAccessText{};
  Judge JudgedBy = JudgeFiles;
  // A folder that has gone is made again, so that this is no refusal.
  bool RemakesFolder = false;
  // What a refusal says in words of its own, with the reason instead of a number; empty for the usual box.
  std::string Refusal{};
};

inline constexpr int kVariants = 16;

std::vector<Writer> AllWriters();

}  // namespace pawnfield::faults
