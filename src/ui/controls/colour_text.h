// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <QColor>
#include <QPalette>

namespace tarnwick {

/// The program's colours, in the notation &H00BBGGRR: blue, green, red.
namespace colours {
inline constexpr std::string_view kUp = "&h9FDB73";
inline constexpr std::string_view kDown = "&h3030C0";
inline constexpr std::string_view kInactive = "&hA0A0A0";
inline constexpr std::string_view kUnpainted = "&hFFFFFF";
inline constexpr std::string_view kWarning = "&h43C3F6";
inline constexpr std::string_view kOffline = "&hE8CBB9";
inline constexpr std::string_view kProgress = "&h9FDB73";
inline constexpr std::string_view kRedDim = "&H0000A0";
inline constexpr std::string_view kRedBright = "&H0000FF";
inline constexpr std::string_view kYellowDim = "&H00A0A0";
inline constexpr std::string_view kYellowBright = "&H00FFFF";
inline constexpr std::string_view kGreenDim = "&H00A000";
inline constexpr std::string_view kGreenBright = "&H00FF00";
}  // namespace colours

/// The colour that `text` names: "&h9FDB73" is blue 9F, green DB, red 73. Leading zeros may be missing ("&hA0" is a
/// dark red). Black when the text is no such number.
QColor colourFromText(std::string_view text);

/// A colour as the hexadecimal digits of that notation, without prefix and without leading zeros.
std::string colourDigits(const QColor& colour);

/// `colour` with `amount` added to each of its parts, each kept within 0 to 255. The parts are read from the colour's
/// digits at positions 5, 3 and 1 (red, green, blue); no zeros are put in front, so a colour whose blue is below 16,
/// which no row has of itself, is read from shifted digits.
QColor brightened(const QColor& colour, int amount);

/// Whether a desktop of this palette is a dark one.
bool isDark(const QPalette& palette);

/// The ink of what stands back on a window of this palette.
QColor mutedInk(const QPalette& palette);

/// Black or white, whichever is easier to read on `background` (contrast ratio after WCAG 2.1).
QColor readableOn(const QColor& background);

/// The contrast ratio of two colours after WCAG 2.1, 1 to 21.
double contrastRatio(const QColor& one, const QColor& other);

}  // namespace tarnwick
