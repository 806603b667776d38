// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace tarnwick {

/// A text box that starts with a text that tells what to enter. A click into that text selects it, so that typing
/// replaces it; when the box is empty the text is shown in grey.
class PromptLineEdit final : public QLineEdit {
  Q_OBJECT

 public:
  explicit PromptLineEdit(QWidget* parent = nullptr);
  void setPrompt(const QString& prompt);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace tarnwick
