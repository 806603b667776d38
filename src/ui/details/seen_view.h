// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTextBrowser>

#include "ui/details/compared_pages.h"
#include "ui/details/picture_difference.h"

namespace tarnwick {

/// A text that loads nothing, whatever it names.
class QuietText final : public QTextBrowser {
  Q_OBJECT

 public:
  explicit QuietText(QWidget* parent = nullptr);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
};

/// Two pages about as a browser would show them, beside each other: simplified texts, or pictures with a frame around
/// what differs.
class SeenView final : public QWidget {
  Q_OBJECT

 public:
  explicit SeenView(QWidget* parent = nullptr);

  void showPages(const ComparedPages& pages);
  void clear();

 private:
  struct Half {
    QStackedWidget* stack;
    QuietText* text;
    QScrollArea* scroll;
    QLabel* picture;
  };

  Half makeHalf(const char* text, const char* picture, const QString& name);
  static void showText(const Half& half, std::string_view page);
  void showPicture(const Half& half, const SeenPicture& seen, const QRegion& differs) const;
  void tellPictures(const SeenPicture& before, const SeenPicture& after, qint64 pixels);

  QLabel* note_;
  Half before_;
  Half after_;
};

}  // namespace tarnwick
