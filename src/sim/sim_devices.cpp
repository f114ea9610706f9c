#include "sim/sim_devices.h"

#include <algorithm>
#include <sstream>

namespace pawnfield {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kLineHeight = 1.2;
constexpr const char* kPictureMark = "picture ";

int CharacterUnits(char c) {
  if (c == ' ') return 300;
  if (std::string("ijl.,:;!'|").find(c) != std::string::npos) return 250;
  if (std::string("mwMW@").find(c) != std::string::npos) return 850;
  return c >= 'A' && c <= 'Z' ? 650 : 550;
}

// Lays out one paragraph; returns its lines and widens widest, both by whole words.
int WrapParagraph(const std::string& paragraph, double limit, int& widest) {
  std::istringstream in(paragraph);
  int lines = 1;
  int used = 0;
  for (std::string word; in >> word;) {
    const int width = LinearTextMeasurer::Units(word);
    const int together = used == 0 ? width : used + CharacterUnits(' ') + width;
    if (used != 0 && together > limit) {
      ++lines;
      used = width;
    } else {
      used = together;
    }
    widest = std::max(widest, width);
  }
  return lines;
}

}  // namespace

int LinearTextMeasurer::Units(const std::string& text) {
  int units = 0;
  for (const char c : text) units += CharacterUnits(c);
  return units;
}

TextSize LinearTextMeasurer::Measure(const Font& font, const std::string& text, double wrapWidth) const {
  const double unit = font.Size * kTwipsPerPoint / 1000;
  int lines = 0;
  int widest = 0;
  std::istringstream in(text);
  for (std::string paragraph; std::getline(in, paragraph);) {
    if (!paragraph.empty() && paragraph.back() == '\r') paragraph.pop_back();
    lines += WrapParagraph(paragraph, wrapWidth / unit, widest);
  }
  if (text.empty() || text.back() == '\n') ++lines;
  return {std::max(wrapWidth, widest * unit), lines * kLineHeight * font.Size * kTwipsPerPoint};
}

LackedLetters LinearTextMeasurer::Lacked(const Font& font, const std::string& text) const {
  LackedLetters lacked;
  const auto lacks = FontLacks.find(font.Name);
  const auto add = [](std::string& to, char letter) {
    if (to.find(letter) == std::string::npos) to += letter;
  };
  for (const char c : text) {
    if (NoFontHas.find(c) != std::string::npos) {
      add(lacked.Missing, c);
    } else if (lacks != FontLacks.end() && lacks->second.find(c) != std::string::npos) {
      add(lacked.Borrowed, c);
    }
  }
  return lacked;
}

PixelSize SimPictures::Size(const std::string& path) const {
  if (!files_.CanOpen(path)) throw RuntimeError(kErrorFileNotFound, "File not found");
  const std::string bytes = files_.Read(path);
  PixelSize size;
  std::istringstream in(bytes.starts_with(kPictureMark) ? bytes.substr(std::string(kPictureMark).size()) : "");
  if (!(in >> size.Width >> size.Height)) throw RuntimeError(kErrorInvalidPicture, "Invalid picture");
  return size;
}

void SimPictures::Look(const std::string& path, std::function<void(const PictureFacts&)> then) {
  const auto tell = [this, path, then] {
    PictureFacts facts;
    try {
      facts.Size = Size(path);
    } catch (const RuntimeError& error) {
      facts.Error = error.Number();
    }
    then(facts);
  };
  if (Slow) {
    waiting_.emplace_back(tell);
  } else {
    tell();
  }
}

void SimPictures::Answer() {
  for (auto waiting = std::exchange(waiting_, {}); !waiting.empty(); waiting.pop_front()) waiting.front()();
}

std::string SimPictures::PictureBytes(int width, int height) {
  return kPictureMark + std::to_string(width) + " " + std::to_string(height);
}

bool SimProcesses::StartHelper(const std::string& name, const std::string& argument) {
  if (name != Helper) return false;
  HelperArguments.push_back(argument);
  return true;
}

void SimDisplays::Change(std::vector<MonitorInfo> monitors) {
  Monitors = std::move(monitors);
  if (changed_) changed_();
}

double SimRandom::Next() {
  if (!Scripted.empty()) {
    const double value = Scripted.front();
    Scripted.pop_front();
    return value;
  }
  state_ = state_ * 1664525u + 1013904223u;
  return static_cast<double>(state_ >> 8) / 16777216.0;
}

std::optional<int> SimPrinter::ChoosePrinter() { return Copies; }

void SimPrinter::Print(const PrintDocument& document, int copies) {
  if (Broken) throw RuntimeError(kErrorPrinter, "Printer error");
  for (int i = 0; i < copies; ++i) Printed.push_back(document);
}

}  // namespace pawnfield
