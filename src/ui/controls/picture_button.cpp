// SPDX-License-Identifier: MIT
#include "ui/controls/picture_button.h"

#include <QIcon>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tarnwick {
namespace {

constexpr int kDotsPerPixel = 2;
// What a button without a bitmap measures at least.
constexpr QSize kNominalSize{72, 56};
// As the word stands in the bitmaps that have one: the height of its font, its line, and how far it sinks when pressed.
constexpr int kWordHeight = 12;
constexpr int kSmallestWord = 8;
constexpr int kWordRoom = 66;
constexpr qreal kWordLine = 46.5;
constexpr qreal kSunk = 1.5;

}  // namespace

QPixmap loadPicture(const QString& file) {
  QImageReader reader(file);
  QPixmap picture = QPixmap::fromImage(reader.read());
  picture.setDevicePixelRatio(kDotsPerPixel);
  return picture;
}

PictureButton::PictureButton(const QString& text, QWidget* parent) : QAbstractButton(parent) {
  setText(text);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
}

void PictureButton::loadPictures(const QString& releasedFile, const QString& pressedFile, bool wordless) {
  wordless_ = wordless;
  released_ = loadPicture(releasedFile);
  pressed_ = loadPicture(pressedFile);
  updateGeometry();
  update();
}

const QPixmap& PictureButton::picture() const { return isDown() && !pressed_.isNull() ? pressed_ : released_; }

QSize PictureButton::sizeHint() const {
  if (!released_.isNull()) {
    return released_.deviceIndependentSize().toSize();
  }
  QStyleOptionButton option;
  option.initFrom(this);
  option.text = text();
  const QSize text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
  return style()->sizeFromContents(QStyle::CT_PushButton, &option, text, this).expandedTo(kNominalSize);
}

void PictureButton::paintEvent(QPaintEvent*) {
  if (picture().isNull()) {
    paintText();
    return;
  }
  QStylePainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  QPixmap shown = picture();
  if (!isEnabled()) {
    QStyleOption option;
    option.initFrom(this);
    const qreal ratio = shown.devicePixelRatio();
    shown = style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
    shown.setDevicePixelRatio(ratio);
    painter.setOpacity(0.5);
  }
  const QSizeF size = shown.deviceIndependentSize();
  painter.drawPixmap(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), shown);
  if (wordless_) {
    writeWord(painter);
  }
  painter.setOpacity(1);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().window().color();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

void PictureButton::writeWord(QPainter& painter) const {
  QFont font = painter.font();
  font.setBold(true);
  const auto widthAt = [&](int pixels) {
    font.setPixelSize(pixels);
    return QFontMetrics(font).horizontalAdvance(text());
  };
  int pixels = kWordHeight;
  while (pixels > kSmallestWord && widthAt(pixels) > kWordRoom) {
    --pixels;
  }
  font.setPixelSize(pixels);
  painter.setFont(font);
  painter.setPen(Qt::white);
  const qreal sunk = isDown() ? kSunk : 0;
  const int left = (width() - QFontMetrics(font).horizontalAdvance(text())) / 2;
  painter.drawText(QPointF(left, (height() - kNominalSize.height()) / 2.0 + kWordLine + sunk), text());
}

void PictureButton::paintText() {
  QStylePainter painter(this);
  QStyleOptionButton option;
  option.initFrom(this);
  option.text = text();
  option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
  painter.drawControl(QStyle::CE_PushButton, option);
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->accept();
    if (!event->isAutoRepeat()) {
      click();
    }
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace tarnwick
