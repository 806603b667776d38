// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace tarnwick {

/// A button that is a picture: it shows one bitmap, and another one while it is pressed. It is released before its
/// action runs, however long that takes. Bitmaps hold twice as many dots as they take up on the screen, so that they
/// are sharp on dense screens too. A bitmap that cannot be read is no error: without the released one the button shows
/// its text, without the pressed one it shows the released one.
class PictureButton final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PictureButton(const QString& text, QWidget* parent = nullptr);

  /// Loads the two bitmaps; a missing file leaves its bitmap empty. Where they hold no word, the button
  /// writes its text into them, below the sign.
  void loadPictures(const QString& releasedFile, const QString& pressedFile, bool wordless = false);

  /// The bitmap that is shown now; a null one when the text is shown instead.
  const QPixmap& picture() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void paintText();
  void writeWord(QPainter& painter) const;

  bool wordless_ = false;
  QPixmap released_;
  QPixmap pressed_;
};

/// The bitmap of a file that holds two dots for each of the screen's; null when it cannot be read.
QPixmap loadPicture(const QString& file);

}  // namespace tarnwick
