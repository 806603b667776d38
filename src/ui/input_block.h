#pragma once

#include <vector>
#include <QDialog>
#include <QPointer>

namespace tarnwick {

/// While it lives, some windows take no input, and a click on one of them brings `front` before it. Unlike a modal
/// dialog this leaves all other windows alone, and the main window can be closed, and so the program ended.
class InputBlock final : public QObject {
 public:
  /// Belongs to `front` and goes with it.
  InputBlock(QDialog& front, const std::vector<QWidget*>& blocked);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isBlocked(QObject* object) const;

  QDialog& front_;
  std::vector<QPointer<QWidget>> blocked_;
};

/// The windows above `dialog`: its parent's window, that one's parent's window, and so on.
std::vector<QWidget*> windowsAbove(const QDialog& dialog);

}  // namespace tarnwick
