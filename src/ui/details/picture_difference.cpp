// SPDX-License-Identifier: MIT
#include "ui/details/picture_difference.h"

#include <algorithm>
#include <vector>
#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

namespace tarnwick {
namespace {

constexpr int kSquares = 64;  // a side
constexpr std::string_view kPng = "\x89PNG\r\n\x1a\n";
constexpr std::string_view kJpeg = "\xff\xd8\xff";

QString worded(const char* text) { return QCoreApplication::translate("tarnwick::SeenPicture", text); }

}  // namespace

SeenPicture pictureOf(std::string_view page) {
  const bool isPng = page.starts_with(kPng);
  SeenPicture seen{.isPicture = isPng || page.starts_with(kJpeg), .image = {}, .fault = {}};
  if (!seen.isPicture) {
    return seen;
  }
  QByteArray bytes = QByteArray::fromRawData(page.data(), static_cast<qsizetype>(page.size()));
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, isPng ? "png" : "jpeg");
  const QSize size = reader.size();
  if (size.isValid() && qint64{size.width()} * size.height() > kMostPixels) {
    seen.fault = worded(QT_TRANSLATE_NOOP("tarnwick::SeenPicture", "A picture of %1 × %2 is too large to be drawn."))
                     .arg(size.width())
                     .arg(size.height());
    return seen;
  }
  if (size.isValid()) {
    seen.image = reader.read().convertToFormat(QImage::Format_ARGB32);
  }
  if (seen.image.isNull()) {
    seen.fault = worded(QT_TRANSLATE_NOOP("tarnwick::SeenPicture", "The picture cannot be drawn: it is damaged."));
  }
  return seen;
}

PictureDifference differenceOf(const QImage& before, const QImage& after) {
  PictureDifference found;
  if (before.size() != after.size() || before.isNull()) {
    return found;
  }
  const int square = std::max({1, before.width() / kSquares, before.height() / kSquares});
  const int columns = (before.width() + square - 1) / square;
  std::vector<bool> differs(static_cast<std::size_t>(columns) * static_cast<std::size_t>(before.height() / square + 1));
  for (int y = 0; y < before.height(); ++y) {
    const auto* old = reinterpret_cast<const QRgb*>(before.constScanLine(y));
    const auto* now = reinterpret_cast<const QRgb*>(after.constScanLine(y));
    for (int x = 0; x < before.width(); ++x) {
      if (old[x] != now[x]) {
        ++found.pixels;
        const int at = y / square * columns + x / square;
        differs[static_cast<std::size_t>(at)] = true;
      }
    }
  }
  for (std::size_t i = 0; i < differs.size(); ++i) {
    if (differs[i]) {
      const int at = static_cast<int>(i);
      found.region += QRect(at % columns * square, at / columns * square, square, square);
    }
  }
  found.region &= before.rect();
  return found;
}

}  // namespace tarnwick
