// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace tarnwick {

/// A text that is a link: underlined, reached with the Tab key, followed by a click, by Space or by Enter.
class LinkButton final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit LinkButton(const QString& text, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tarnwick
