#include "monkey/random_world.h"

#include <algorithm>

#include "platform/ports.h"

namespace pawnfield {

bool IsExpectedError(const std::string& text) {
  for (const char* told : {"Subscript out of range\r\nLocation: frmEditor\r\n", "Subscript out of range (remote",
                           "Procedure: SendC2CInfo\r\n", "Procedure: btnImportSoundFiles\r\n"}) {
    if (text.find(told) != std::string::npos) return true;
  }
  for (const int number : {kErrorFileNotFound, kErrorDiskFull, kErrorPathAccess, kErrorPathNotFound,
                           kErrorInvalidPicture, kErrorDeviceIo}) {
    if (text.find("Error Number: " + std::to_string(number) + "\r\n") != std::string::npos) return true;
  }
  return false;
}

bool MovesOn(const std::string& name) {
  static constexpr std::array kNames = {"btnStart",    "btnSelectGame", "btnQuestionCorrect", "btnQuestionIncorrect",
                                        "btnContinue", "btnPlayMode"};
  return name.starts_with("img") || name.starts_with("btnSelectPlayer") ||
         std::any_of(kNames.begin(), kNames.end(), [&](const char* one) { return name == one; });
}

std::string RandomSet(Chance& chance) {
  static constexpr std::array kEnds = {
      "T#Courier New#28#True#True#16777215#", "T#Comic Sans MS#8#False#False#65535#", "P", "S", "T", "X"};
  std::string bytes;
  const std::size_t count = chance.OneIn(4) ? chance.Below(102) : chance.Below(12);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string end = kEnds[chance.OneIn(2) ? 0 : chance.Below(kEnds.size())];
    std::string question = "Question " + std::to_string(i) + "?";
    if (end == "P") question = chance.OneIn(2) ? ".\\there.jpg" : ".\\missing.jpg";
    if (end == "S") question = chance.OneIn(2) ? ".\\there.wav" : "C:\\missing.wav";
    bytes += question + "\r\n" + "Answer" + "\r\n" + end + "\r\n";
  }
  return chance.OneIn(10) ? bytes.substr(0, bytes.size() / 2) : bytes;
}

}  // namespace pawnfield
