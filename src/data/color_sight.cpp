#include "data/color_sight.h"

#include <algorithm>
#include <cmath>

namespace pawnfield {

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr double kWhole = 255;

double Channel(Color color, std::size_t index) { return static_cast<double>((color >> (8 * index)) & 0xFF); }

// Of a screen's value, the light that it gives.
double LightOf(double value) {
  const double share = value / kWhole;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

int ValueOf(double light) {
  const double share = std::clamp(light, 0.0, 1.0);
  const double curve = share <= 0.0031308 ? share * 12.92 : 1.055 * std::pow(share, 1 / 2.4) - 0.055;
  return static_cast<int>(std::lround(curve * kWhole));
}

Triple LightsOf(Color color) {
  return {LightOf(Channel(color, 0)), LightOf(Channel(color, 1)), LightOf(Channel(color, 2))};
}

Triple Times(const Matrix& matrix, const Triple& vector) {
  Triple result{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) result[row] += matrix[row][column] * vector[column];
  }
  return result;
}

// The matrices of Machado, Oliveira and Fernandes (2009) for a sight that lacks one kind of cone whole, over linear
// light.
const Matrix& MatrixOf(Sight sight) {
  static constexpr Matrix kUsual{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  static constexpr Matrix kNoRed{
      {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
  static constexpr Matrix kNoGreen{
      {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
  static constexpr Matrix kNoBlue{
      {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};
  switch (sight) {
    case Sight::NoRed:
      return kNoRed;
    case Sight::NoGreen:
      return kNoGreen;
    case Sight::NoBlue:
      return kNoBlue;
    case Sight::Usual:
      break;
  }
  return kUsual;
}

// In the space where equal steps look about equally large: lightness, green to red, blue to yellow.
Triple LabOf(Color color) {
  static constexpr Matrix kToXyz{{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};
  static constexpr Triple kWhitePoint{0.9505, 1, 1.089};
  Triple xyz = Times(kToXyz, LightsOf(color));
  for (std::size_t i = 0; i < 3; ++i) {
    const double share = xyz[i] / kWhitePoint[i];
    xyz[i] = share > 0.008856 ? std::cbrt(share) : 7.787 * share + 16.0 / 116;
  }
  return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

}  // namespace

double Luminance(Color color) {
  const Triple light = LightsOf(color);
  return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

double ContrastRatio(Color a, Color b) {
  constexpr double kStrayLight = 0.05;
  const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
  return (light + kStrayLight) / (dark + kStrayLight);
}

Color SeenBy(Sight sight, Color color) {
  const Triple seen = Times(MatrixOf(sight), LightsOf(color));
  return ValueOf(seen[0]) | (ValueOf(seen[1]) << 8) | (ValueOf(seen[2]) << 16);
}

double SeenDistance(Color a, Color b) {
  const Triple first = LabOf(a);
  const Triple second = LabOf(b);
  return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

Color Mixed(Color color, Color other, double share) {
  Color mixed = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const double value = Channel(color, i) + (Channel(other, i) - Channel(color, i)) * share;
    mixed |= static_cast<Color>(std::lround(value)) << (8 * i);
  }
  return mixed;
}

}  // namespace pawnfield
