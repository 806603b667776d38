// SPDX-License-Identifier: MIT
#include "ui/history/history_picture.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <QBuffer>
#include <QDir>
#include <QPainter>

#include "history/history_text.h"
#include "ui/controls/boxes.h"

namespace tarnwick {
namespace {

constexpr double kScale = 2;
constexpr int kStripe = 560;
constexpr int kMargin = 12;
constexpr int kLine = 28;
constexpr int kLeastNames = 80;
constexpr int kMostNames = 300;
constexpr int kFigures = 80;

QString uptimeOf(const Stripe& stripe) { return QString::fromStdString(uptimeText(stripe.view.whole().uptime())); }

std::string asPng(const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return bytes.toStdString();
}

std::string asSvg(const QString& title, const std::vector<NamedStripe>& stripes) {
  constexpr qsizetype kMostLetters = 60;
  std::vector<StripeOfPicture> parts;
  parts.reserve(stripes.size());
  for (const auto& [name, stripe] : stripes) {
    const QString shown = name.size() > kMostLetters ? name.left(kMostLetters - 1) + QStringLiteral("…") : name;
    parts.push_back({shown.toStdString(), uptimeOf(stripe).toStdString(), stripe.view.cells});
  }
  return stripesAsSvg(title.toStdString(), parts);
}

void write(Program& program, const std::string& file, const QString& title, const std::vector<NamedStripe>& stripes) {
  const QString name = QString::fromStdString(file);
  std::string bytes;
  if (name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
    bytes = asPng(pictureOf(title, stripes));
  } else if (name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    bytes = asSvg(title, stripes);
  } else {
    throw std::runtime_error("The name of the file " + file +
                             " ends neither in .svg nor in .png, so its format is not known. Give it one of them.");
  }
  putFile(program, file, [&program, file, bytes = std::move(bytes)] {
    program.services().files.replace(file, [&](const ByteSink& sink) { sink(bytes); });
  });
}

}  // namespace

QImage pictureOf(const QString& title, const std::vector<NamedStripe>& stripes) {
  QFont font;
  QFont bold = font;
  bold.setBold(true);
  int names = kLeastNames;
  for (const NamedStripe& named : stripes) {
    names = std::clamp(QFontMetrics(font).horizontalAdvance(named.name) + 8, names, kMostNames);
  }
  const int width = names + kStripe + kFigures;
  QImage picture(QSize(width + 2 * kMargin, 2 * kMargin + kLine * (static_cast<int>(stripes.size()) + 1)) * kScale,
                 QImage::Format_RGB32);
  picture.setDevicePixelRatio(kScale);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setPen(Qt::black);
  painter.setFont(bold);
  painter.drawText(QRect(kMargin, kMargin, width, kLine), Qt::AlignLeft | Qt::AlignTop,
                   QFontMetrics(bold).elidedText(title, Qt::ElideMiddle, width));
  painter.setFont(font);
  int top = kMargin + kLine;
  for (const auto& [name, stripe] : stripes) {
    painter.drawText(QRect(kMargin, top, names, kStripeHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(font).elidedText(name, Qt::ElideMiddle, names - 8));
    painter.drawText(QRect(kMargin + width - kFigures, top, kFigures, kStripeHeight), Qt::AlignRight | Qt::AlignVCenter,
                     uptimeOf(stripe));
    paintStripe(painter, QRectF(kMargin + names, top, kStripe, kStripeHeight), stripe, false);
    top += kLine;
  }
  return picture;
}

void saveHistoryPicture(Program& program, QWidget& parent, const QString& title, std::vector<NamedStripe> stripes) {
  const QString filter = QObject::tr("Picture, for a web page") + QStringLiteral(" (*.svg)|*.svg|") +
                         QObject::tr("Picture, for a mail") + QStringLiteral(" (*.png)|*.png");
  program.services().prompts.chooseFile(
      {.folder = QDir::homePath().toStdString(), .filter = filter.toStdString(), .owner = &parent, .isNew = true},
      [&program, title, stripes = std::move(stripes)](const std::string& file) {
        program.faults().run([&] { write(program, file, title, stripes); });
      });
}

}  // namespace tarnwick
