// SPDX-License-Identifier: MIT
#include "ui/controls/filter_edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>

#include "finding/site_query.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kFewestCharacters = 12;

QStandardItemModel* modelOfWords(QObject* parent) {
  auto* model = new QStandardItemModel(parent);
  for (const FilterWord& word : filterWords()) {
    const QString written = displayText(word.word);
    auto* item = new QStandardItem;
    item->setData(QStringLiteral("%1   %2").arg(written, displayMessage(word.meaning)), Qt::DisplayRole);
    item->setData(written, Qt::UserRole);
    model->appendRow(item);
  }
  return model;
}

}  // namespace

FilterEdit::FilterEdit(QWidget* parent) : QLineEdit(parent), words_(new QCompleter(this)) {
  setClearButtonEnabled(true);
  words_->setModel(modelOfWords(words_));
  words_->setCompletionRole(Qt::UserRole);
  words_->setCaseSensitivity(Qt::CaseInsensitive);
  words_->setMaxVisibleItems(static_cast<int>(filterWords().size()));
  words_->setWidget(this);
  connect(words_, qOverload<const QString&>(&QCompleter::activated), this, &FilterEdit::take);
  connect(this, &QLineEdit::textEdited, this, &FilterEdit::offerWords);
}

QSize FilterEdit::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kFewestCharacters, QLineEdit::minimumSizeHint().height()};
}

void FilterEdit::setFault(const QString& why) {
  fault_ = why;
  setToolTip(plainToolTip(why));
  setAccessibleDescription(why);
  update();
}

qsizetype FilterEdit::wordBegin() const {
  const QString before = text().left(cursorPosition());
  const qsizetype begin = before.lastIndexOf(QLatin1Char(' ')) + 1;
  return begin < before.size() && before.at(begin) == QLatin1Char('-') ? begin + 1 : begin;
}

void FilterEdit::offerWords() {
  const qsizetype begin = wordBegin();
  const QString typed = text().mid(begin, cursorPosition() - begin);
  words_->setCompletionPrefix(typed);
  const bool isWhole = words_->completionCount() == 1 && words_->currentCompletion() == typed;
  if (typed.isEmpty() || isWhole || words_->completionCount() == 0) {
    words_->popup()->hide();
    return;
  }
  QRect place = cursorRect();
  place.setWidth(words_->popup()->sizeHintForColumn(0) + 2 * fontMetrics().height());
  words_->complete(place);
}

void FilterEdit::take(const QString& word) {
  const qsizetype begin = wordBegin();
  setSelection(static_cast<int>(begin), cursorPosition() - static_cast<int>(begin));
  // A word that wants a name behind it is not ended.
  insert(word.endsWith(QLatin1Char(':')) ? word : word + QLatin1Char(' '));
}

void FilterEdit::keyPressEvent(QKeyEvent* event) {
  const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool escapes = event->key() == Qt::Key_Escape;
  if (words_->popup()->isVisible() && (enters || escapes)) {
    event->ignore();  // they belong to the words that are offered
    return;
  }
  if (escapes && !text().isEmpty()) {
    clear();
  } else if (enters || escapes) {
    Q_EMIT left();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void FilterEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!fault_.isEmpty()) {
    QPainter painter(this);
    painter.setPen(QPen(colourFromText(colours::kWarning), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

}  // namespace tarnwick
