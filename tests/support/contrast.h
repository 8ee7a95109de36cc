// How well colours can be told apart, as WCAG reckons it: from 1 to 21, 4.5 for text that is to be read.
#pragma once

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace zamo::test {

inline constexpr double kReadable = 4.5;
// Of a small letter, whose strokes are thinner than a dot.
inline constexpr double kVisible = 3;

inline double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// What is seen of a colour that lets the ground through.
inline QColor seenOn(const QColor& ground, const QColor& colour) {
  const double part = colour.alphaF();
  const auto mix = [part](double top, double bottom) { return top * part + bottom * (1 - part); };
  return QColor::fromRgbF(static_cast<float>(mix(colour.redF(), ground.redF())),
                          static_cast<float>(mix(colour.greenF(), ground.greenF())),
                          static_cast<float>(mix(colour.blueF(), ground.blueF())));
}

inline double contrast(const QColor& colour, const QColor& ground) {
  const double first = luminance(seenOn(ground, colour));
  const double second = luminance(ground);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// The greatest contrast of anything in the picture with the ground.
inline double contrastIn(const QImage& picture, const QColor& ground) {
  double greatest = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x)
      greatest = std::max(greatest, contrast(picture.pixelColor(x, y), ground));
  }
  return greatest;
}

}  // namespace zamo::test
