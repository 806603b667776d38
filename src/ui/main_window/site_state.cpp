// SPDX-License-Identifier: MIT
#include "ui/main_window/site_state.h"

#include <QCoreApplication>
#include <QPen>

namespace tarnwick {
namespace {

QString translated(const char* word) { return QCoreApplication::translate("tarnwick::SiteState", word); }

/// Draws in a square of 14 units.
class Sketch {
 public:
  Sketch(QPainter& painter, const QRectF& box, const QColor& ink)
      : painter_(painter), box_(box), unit_(box.width() / 14) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(ink, 2 * unit_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  ~Sketch() { painter_.restore(); }
  Sketch(const Sketch&) = delete;
  Sketch& operator=(const Sketch&) = delete;

  void line(std::initializer_list<QPointF> points) {
    QPolygonF way;
    for (const QPointF& point : points) {
      way << at(point);
    }
    painter_.drawPolyline(way);
  }
  void circle(double radius) { painter_.drawEllipse(at({7, 7}), radius * unit_, radius * unit_); }
  void thin() {
    QPen pen = painter_.pen();
    pen.setWidthF(1.4 * unit_);
    painter_.setPen(pen);
  }

 private:
  QPointF at(const QPointF& point) const { return box_.topLeft() + point * unit_; }

  QPainter& painter_;
  QRectF box_;
  double unit_;
};

}  // namespace

QString wordOf(SiteState state, bool testing, int number, int confirm) {
  if (testing) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "testing …"));
  }
  switch (state) {
    case SiteState::up:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "up"));
    case SiteState::changed:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "changed"));
    case SiteState::noAnswer:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "no answer"));
    case SiteState::inactive:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "not active"));
    case SiteState::notAPage:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "not a page"));
    case SiteState::unconfirmed:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "%1 of %2")).arg(number).arg(confirm);
    case SiteState::known:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "known"));
    case SiteState::unsteady:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "unsteady"));
    case SiteState::certificate:
      return number == 1 ? translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "1 day"))
                         : translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "%1 days")).arg(number);
    case SiteState::slow:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "slow"));
    case SiteState::paused:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "paused"));
    case SiteState::offline:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "offline"));
    default:
      return translated(QT_TRANSLATE_NOOP("tarnwick::SiteState", "never"));
  }
}

void paintIcon(QPainter& painter, const QRectF& box, SiteState state, const QColor& ink) {
  Sketch sketch(painter, box, ink);
  switch (state) {
    case SiteState::up:  // a check mark
      sketch.line({{2, 7.5}, {5.5, 11}, {12, 3.5}});
      break;
    case SiteState::changed:  // a crossed equals sign
      sketch.line({{2, 5}, {12, 5}});
      sketch.line({{2, 9}, {12, 9}});
      sketch.line({{9.5, 2}, {4.5, 12}});
      break;
    case SiteState::noAnswer:  // a cross
      sketch.line({{3, 3}, {11, 11}});
      sketch.line({{11, 3}, {3, 11}});
      break;
    case SiteState::inactive:  // a dash
      sketch.line({{3, 7}, {11, 7}});
      break;
    case SiteState::notAPage:  // a page with an exclamation mark
      sketch.thin();
      sketch.line({{2.5, 1}, {8.5, 1}, {11.5, 4}, {11.5, 13}, {2.5, 13}, {2.5, 1}});
      sketch.line({{7, 4.5}, {7, 8.2}});
      sketch.line({{7, 10.6}, {7, 10.7}});
      break;
    case SiteState::unconfirmed:  // a triangle with an exclamation mark
      sketch.thin();
      sketch.line({{7, 1.5}, {13, 12.5}, {1, 12.5}, {7, 1.5}});
      sketch.line({{7, 5.5}, {7, 8.6}});
      sketch.line({{7, 10.7}, {7, 10.8}});
      break;
    case SiteState::known:  // a struck circle
      sketch.circle(5);
      sketch.line({{3.5, 10.5}, {10.5, 3.5}});
      break;
    case SiteState::unsteady:  // a zigzag
      sketch.line({{1.5, 9}, {4.5, 4}, {7, 10}, {9.5, 4}, {12.5, 9}});
      break;
    case SiteState::certificate:  // a padlock
      sketch.thin();
      sketch.line({{3, 6.5}, {11, 6.5}, {11, 12.5}, {3, 12.5}, {3, 6.5}});
      sketch.line({{4.8, 6.5}, {4.8, 4}, {5.6, 2.4}, {7, 1.8}, {8.4, 2.4}, {9.2, 4}, {9.2, 6.5}});
      sketch.line({{7, 8.8}, {7, 10.2}});
      break;
    case SiteState::slow:  // a clock
      sketch.thin();
      sketch.circle(5.5);
      sketch.line({{7, 3.8}, {7, 7}, {9.6, 8.4}});
      break;
    case SiteState::paused:  // two bars
      sketch.line({{4.5, 3}, {4.5, 11}});
      sketch.line({{9.5, 3}, {9.5, 11}});
      break;
    case SiteState::offline:  // a question mark
      sketch.line({{4, 4.6}, {4.6, 2.9}, {7, 2}, {9.4, 2.9}, {10, 4.8}, {9.2, 6.4}, {7, 7.6}, {7, 9}});
      sketch.line({{7, 12}, {7, 12.1}});
      break;
    default:  // an empty circle
      sketch.thin();
      sketch.circle(5);
  }
}

}  // namespace tarnwick
