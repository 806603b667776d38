// SPDX-License-Identifier: MIT
#include "ui/controls/colour_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace tarnwick {
namespace {

int hexNumber(std::string_view digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return number;
}

// The two digits at `position`, counted from 1; fewer, or none, where the text is shorter.
int pieceAt(const std::string& digits, std::size_t position) {
  return position > digits.size() ? 0 : hexNumber(std::string_view(digits).substr(position - 1, 2));
}

double linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

QColor colourFromText(std::string_view text) {
  if (text.starts_with("&h") || text.starts_with("&H")) {
    text.remove_prefix(2);
  }
  const int number = hexNumber(text);
  return {number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF};
}

std::string colourDigits(const QColor& colour) {
  const int number = colour.blue() << 16 | colour.green() << 8 | colour.red();
  return QString::number(number, 16).toUpper().toStdString();
}

QColor brightened(const QColor& colour, int amount) {
  const std::string digits = colourDigits(colour);
  const auto part = [&](std::size_t position) {
    // The amount is limited first so that no sum overflows.
    return std::clamp(pieceAt(digits, position) + std::clamp(amount, -255, 255), 0, 255);
  };
  return {part(5), part(3), part(1)};
}

double contrastRatio(const QColor& one, const QColor& other) {
  const double a = luminance(one);
  const double b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor mutedInk(const QPalette& palette) { return isDark(palette) ? QColor(0xA9AEB4) : QColor(0x555555); }

QColor readableOn(const QColor& background) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return contrastRatio(black, background) >= contrastRatio(white, background) ? black : white;
}

}  // namespace tarnwick
