// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <QImage>
#include <QRegion>
#include <QString>

namespace tarnwick {

/// A page that is a picture, as far as it can be drawn.
struct SeenPicture {
  bool isPicture = false;  ///< PNG or JPEG, by its first bytes
  QImage image;            ///< none where it cannot be drawn
  QString fault;           ///< why
};
/// Reads PNG and JPEG, up to `kMostPixels`; the size is looked at before anything is unpacked.
SeenPicture pictureOf(std::string_view page);
inline constexpr int kMostPixels = 8'000'000;

/// Where two pictures of the same size differ, rounded to small squares, and in how many pixels.
struct PictureDifference {
  QRegion region;
  qint64 pixels = 0;
};
PictureDifference differenceOf(const QImage& before, const QImage& after);

}  // namespace tarnwick
