// What the machine can tell of text, pictures and screens: the measuring ports.
#pragma once

#include <functional>

#include "platform/ports.h"

class QWidget;

namespace pawnfield {

class QtTextMeasurer : public TextMeasurer {
 public:
  TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const override;
};

class QtPictureReader : public PictureReader {
 public:
  PixelSize Size(const std::string& path) const override;
};

class QtDisplays : public Displays {
 public:
  using WindowLookup = std::function<QWidget*(Form&)>;
  // The lookup gives a form's window, or null.
  explicit QtDisplays(WindowLookup windowOf) : windowOf_(std::move(windowOf)) {}
  std::vector<MonitorInfo> Enumerate() const override;
  void SetTopMost(Form& form, bool onTop) override;

 private:
  WindowLookup windowOf_;
};

class SeededRandom : public RandomSource {
 public:
  void Randomize() override;
  double Next() override;

 private:
  std::uint64_t state_ = 1;
};

}  // namespace pawnfield
