// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class QCompleter;

namespace tarnwick {

/// A text box for a line of filter words. Offers the words, with what they find, for the one that is being typed.
class FilterEdit final : public QLineEdit {
  Q_OBJECT

 public:
  explicit FilterEdit(QWidget* parent = nullptr);

  /// Marks the line as one that nothing can be found by, and says why; an empty text takes that back.
  void setFault(const QString& why);

  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// The line was left by the keyboard: for the list.
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Where the word at the cursor begins, behind a "-".
  qsizetype wordBegin() const;
  void offerWords();
  void take(const QString& word);

  QCompleter* words_;
  QString fault_;
};

}  // namespace tarnwick
