// SPDX-License-Identifier: MIT
#include "history/history_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace tarnwick {
namespace {

constexpr double kMostly = 95;

template <typename... Values>
std::string formatted(const char* format, Values... values) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

std::string escaped(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    if (c == '<' || c == '>' || c == '&' || c == '"') {
      safe += "&#" + std::to_string(static_cast<int>(c)) + ";";
    } else {
      safe += static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? ' ' : c;
    }
  }
  return safe;
}

}  // namespace

std::string_view colourOf(CellState state, bool dark) {
  switch (state) {
    case CellState::up:
      return dark ? "#2f8a5f" : "#2e9c62";
    case CellState::mostly:
      return dark ? "#d3b030" : "#dcb400";
    case CellState::partly:
      return dark ? "#e18a30" : "#e07b00";
    case CellState::down:
      return dark ? "#d14545" : "#c03030";
    case CellState::unknown:
      break;
  }
  return dark ? "#3b4149" : "#d3d8de";
}

CellState stateOf(const TimeSum& cell) {
  if (cell.known().count() == 0) {
    return CellState::unknown;
  }
  if (cell.down.count() == 0) {
    return CellState::up;
  }
  if (cell.up.count() == 0) {
    return CellState::down;
  }
  return *cell.uptime() >= kMostly ? CellState::mostly : CellState::partly;
}

std::string uptimeText(std::optional<double> uptime) {
  constexpr double kPlaces = 100;
  return uptime ? formatted("%.2f %%", std::floor(*uptime * kPlaces + 1e-9) / kPlaces) : "-";
}

std::string tookText(std::optional<std::chrono::milliseconds> took) {
  constexpr std::int64_t kLong = 10000;
  if (!took) {
    return "-";
  }
  return took->count() < kLong ? std::to_string(took->count()) + " ms"
                               : formatted("%.1f s", static_cast<double>(took->count()) / 1000);
}

std::string lengthText(std::chrono::seconds length) {
  using namespace std::chrono;
  const auto two = [](std::int64_t large, const char* unit, std::int64_t small, const char* part) {
    return std::to_string(large) + unit + (small > 0 ? " " + std::to_string(small) + part : "");
  };
  if (length < minutes(1)) {
    return std::to_string(length.count()) + " s";
  }
  if (length < hours(1)) {
    return std::to_string(floor<minutes>(length).count()) + " min";
  }
  if (length < days(1)) {
    return two(floor<hours>(length).count(), " h", floor<minutes>(length % hours(1)).count(), " min");
  }
  return two(floor<days>(length).count(), " d", floor<hours>(length % days(1)).count(), " h");
}

std::string_view blockOf(const TimeSum& cell) {
  switch (stateOf(cell)) {
    case CellState::up:
      return "\u2588";
    case CellState::mostly:
      return "\u2586";
    case CellState::partly:
      return "\u2584";
    case CellState::down:
      return "\u2581";
    case CellState::unknown:
      break;
  }
  return "\u00b7";
}

std::string stripesAsSvg(std::string_view title, const std::vector<StripeOfPicture>& stripes) {
  constexpr int kStripe = 560;
  constexpr int kFigure = 90;
  constexpr std::size_t kLetter = 7;
  std::size_t longest = 10;
  for (const StripeOfPicture& stripe : stripes) {
    longest = std::max(longest, stripe.label.size());
  }
  const int label = static_cast<int>(longest * kLetter);
  const int width = label + kStripe + kFigure;
  constexpr int kHeight = 22;
  constexpr int kStep = 32;
  constexpr int kTop = 34;
  const int height = kTop + kStep * static_cast<int>(stripes.size());
  std::string svg = formatted("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" ", width, height) +
                    formatted("viewBox=\"0 0 %d %d\" font-family=\"sans-serif\"", width, height);
  svg +=
      " font-size=\"13\">\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n<text x=\"4\" y=\"20\" "
      "font-weight=\"bold\">";
  svg += escaped(title) + "</text>\n";
  int y = kTop;
  for (const StripeOfPicture& stripe : stripes) {
    svg += formatted("<text x=\"4\" y=\"%d\">", y + 16) + escaped(stripe.label) + "</text>\n";
    const double cellWidth =
        static_cast<double>(kStripe) / static_cast<double>(std::max<std::size_t>(1, stripe.cells.size()));
    double x = label;
    for (const TimeSum& cell : stripe.cells) {
      svg += formatted("<rect x=\"%.2f\" y=\"%d\" width=\"%.2f\" height=\"%d\" fill=\"", x, y,
                       std::max(1.0, cellWidth - 1), kHeight) +
             std::string(colourOf(stateOf(cell))) + "\"/>\n";
      x += cellWidth;
    }
    svg += formatted("<text x=\"%d\" y=\"%d\" text-anchor=\"end\">", width - 4, y + 16) + escaped(stripe.uptime) +
           "</text>\n";
    y += kStep;
  }
  return svg + "</svg>\n";
}

}  // namespace tarnwick
