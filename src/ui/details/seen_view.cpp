// SPDX-License-Identifier: MIT
#include "ui/details/seen_view.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include "page_rules/simplified_page.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

// What is longer takes long to be laid out.
constexpr std::size_t kMostLaidOut = 200'000;

/// Follows the other one, as far as it goes.
void follow(QScrollBar* one, QScrollBar* other) {
  QObject::connect(one, &QScrollBar::valueChanged, other, &QScrollBar::setValue);
  QObject::connect(other, &QScrollBar::valueChanged, one, &QScrollBar::setValue);
}

QString percent(double share) { return QLocale().toString(share * 100, 'g', 2); }

}  // namespace

QuietText::QuietText(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setTabChangesFocus(true);
  setFrameShape(QFrame::NoFrame);
}

QVariant QuietText::loadResource(int, const QUrl&) { return QByteArray(); }

SeenView::SeenView(QWidget* parent)
    : QWidget(parent),
      note_(new QLabel(this)),
      before_(makeHalf("seenBefore", "pictureBefore", tr("The baseline, simplified"))),
      after_(makeHalf("seenAfter", "pictureAfter", tr("The latest page, simplified"))) {
  note_->setObjectName(QStringLiteral("seenNote"));
  note_->setTextFormat(Qt::PlainText);
  note_->setMargin(3);
  auto* halves = new QHBoxLayout;
  halves->setSpacing(1);
  halves->addWidget(before_.stack);
  halves->addWidget(after_.stack);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins({});
  lines->setSpacing(0);
  lines->addWidget(note_);
  lines->addLayout(halves, 1);
  follow(before_.text->verticalScrollBar(), after_.text->verticalScrollBar());
  follow(before_.scroll->verticalScrollBar(), after_.scroll->verticalScrollBar());
  follow(before_.scroll->horizontalScrollBar(), after_.scroll->horizontalScrollBar());
}

SeenView::Half SeenView::makeHalf(const char* text, const char* picture, const QString& name) {
  Half half{new QStackedWidget(this), nullptr, nullptr, nullptr};
  half.text = named(new QuietText(half.stack), text, name);
  half.scroll = new QScrollArea(half.stack);
  half.scroll->setFrameShape(QFrame::NoFrame);
  half.picture = named(new QLabel(half.scroll), picture, name);
  half.picture->setTextFormat(Qt::PlainText);
  half.picture->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  half.scroll->setWidget(half.picture);
  half.scroll->setWidgetResizable(true);
  half.stack->addWidget(half.text);
  half.stack->addWidget(half.scroll);
  return half;
}

void SeenView::clear() {
  for (const Half& half : {before_, after_}) {
    half.text->clear();
    half.picture->clear();
  }
}

void SeenView::showPages(const ComparedPages& pages) {
  const SeenPicture before = pictureOf(pages.before);
  const SeenPicture after = pictureOf(pages.after);
  if (!before.isPicture && !after.isPicture) {
    note_->setText(tr("Simplified: without pictures, scripts and the network."));
    showText(before_, pages.before);
    showText(after_, pages.after);
    return;
  }
  const PictureDifference differs = differenceOf(before.image, after.image);
  tellPictures(before, after, differs.pixels);
  before.isPicture ? showPicture(before_, before, differs.region) : showText(before_, pages.before);
  after.isPicture ? showPicture(after_, after, differs.region) : showText(after_, pages.after);
}

void SeenView::showText(const Half& half, std::string_view page) {
  const QString text = displayText(page.substr(0, kMostLaidOut));
  const std::string html = simplifiedPage(text.toStdString());
  const QString rest = page.size() > kMostLaidOut ? QStringLiteral("…") : QString();
  html.empty() ? half.text->setPlainText(text + rest) : half.text->setHtml(QString::fromStdString(html) + rest);
  half.stack->setCurrentWidget(half.text);
}

void SeenView::showPicture(const Half& half, const SeenPicture& seen, const QRegion& differs) const {
  half.stack->setCurrentWidget(half.scroll);
  if (seen.image.isNull()) {
    half.picture->setText(seen.fault);
    return;
  }
  QPixmap shown = QPixmap::fromImage(seen.image);
  QPainter painter(&shown);
  painter.setPen(QPen(QColor(0xD0, 0x10, 0x60), 2));
  for (const QRect& piece : differs) {
    painter.drawRect(piece.adjusted(-1, -1, 0, 0));
  }
  painter.end();
  half.picture->setPixmap(shown);
}

void SeenView::tellPictures(const SeenPicture& before, const SeenPicture& after, qint64 pixels) {
  if (before.image.isNull() || after.image.isNull()) {
    note_->setText(before.fault.isEmpty() ? after.fault : before.fault);
  } else if (before.image.size() != after.image.size()) {
    note_->setText(tr("%1 × %2 pixels became %3 × %4.")
                       .arg(before.image.width())
                       .arg(before.image.height())
                       .arg(after.image.width())
                       .arg(after.image.height()));
  } else if (pixels == 0) {
    note_->setText(tr("Each pixel is the same."));
  } else {
    const qint64 all = qint64{after.image.width()} * after.image.height();
    note_->setText(tr("%1 of %2 pixels differ (%3 %).")
                       .arg(QLocale().toString(pixels), QLocale().toString(all),
                            percent(static_cast<double>(pixels) / static_cast<double>(all))));
  }
}

}  // namespace tarnwick
