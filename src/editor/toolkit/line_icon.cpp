#include "editor/toolkit/line_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainterPath>
#include <QPalette>
#include <QStringList>
#include <algorithm>
#include <array>
#include <stdexcept>

namespace fragsmith {
namespace {

struct Drawing {
  LineIcon icon;
  /// On a field of 24 by 24, with y downwards: M and L are followed by a point,
  /// C by three, O by a circle's middle and radius, Z closes.
  const char* path;
};

constexpr double kField = 24;
constexpr double kLine = 1.6;

constexpr std::array kDrawings = {
    Drawing{LineIcon::kNew,
            "M 14 3 L 6 3 L 6 21 L 18 21 L 18 7 Z M 14 3 L 14 7 L 18 7 "
            "M 12 11 L 12 17 M 9 14 L 15 14"},
    Drawing{LineIcon::kLoad, "M 3 6 L 9 6 L 11 8 L 21 8 L 21 19 L 3 19 Z"},
    Drawing{LineIcon::kSaveAgain,
            "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 "
            "M 7 20 L 7 13 L 17 13 L 17 20"},
    Drawing{LineIcon::kMake,
            "M 12 3 L 20 7 L 20 17 L 12 21 L 4 17 L 4 7 Z "
            "M 4 7 L 12 11 L 20 7 M 12 11 L 12 21"},
    Drawing{LineIcon::kUndo,
            "M 9 5 L 4 10 L 9 15 M 4 10 L 14 10 C 18 10 20 12 20 14.5 "
            "C 20 17 18 19 14 19"},
    Drawing{LineIcon::kRedo,
            "M 15 5 L 20 10 L 15 15 M 20 10 L 10 10 C 6 10 4 12 4 14.5 "
            "C 4 17 6 19 10 19"},
    Drawing{LineIcon::kFind, "O 10 10 6 M 14.5 14.5 L 20.5 20.5"},
    Drawing{LineIcon::kTry, "M 7 4 L 19 12 L 7 20 Z"},
    Drawing{LineIcon::kPlayOut,
            "M 4 5 L 12 12 L 4 19 Z M 12 5 L 20 12 L 12 19 Z"},
    Drawing{LineIcon::kInstall,
            "M 12 3 L 12 14 M 7.5 10 L 12 14.5 L 16.5 10 "
            "M 4 15 L 4 20 L 20 20 L 20 15"},
    Drawing{LineIcon::kHelp,
            "O 12 12 9 M 9 10 C 9 8 10.5 7 12 7 C 13.5 7 15 8 15 9.8 "
            "C 15 11.8 12 11.8 12 14 M 12 16.8 L 12 17"},
    Drawing{LineIcon::kGeneral,
            "M 13 3 L 5 14 L 11 14 L 10 21 L 19 10 L 13 10 Z"},
    Drawing{LineIcon::kBehaviour,
            "O 15 4.5 2 M 6 11 L 9 8 L 14 9 L 11 14 L 14.5 16.5 L 13.5 21 "
            "M 11 14 L 9 18 L 5 18 M 14 9 L 16 12 L 19 12"},
    Drawing{LineIcon::kWeaponSkills,
            "O 12 12 6 M 12 3 L 12 9 M 12 15 L 12 21 M 3 12 L 9 12 "
            "M 15 12 L 21 12"},
    Drawing{LineIcon::kWeaponUsage,
            "M 3 7 L 21 7 L 21 11 L 13 11 L 12 14 L 9 14 L 8 18 L 4 18 "
            "L 5.5 11 L 3 11 Z"},
    Drawing{LineIcon::kWeaponPickup,
            "M 5 8 L 19 8 L 20 20 L 4 20 Z M 9 11 L 9 7 C 9 3 15 3 15 7 "
            "L 15 11"},
    Drawing{LineIcon::kItemPickup,
            "M 12 20 C 5 15 3 11.5 3 8.5 C 3 4 9.5 3 12 7.5 "
            "C 14.5 3 21 4 21 8.5 C 21 11.5 19 15 12 20 Z"},
    Drawing{LineIcon::kChatCharacteristics,
            "M 4 7 L 12 7 M 16 7 L 20 7 O 14 7 2 M 4 17 L 6 17 M 10 17 L 20 17 "
            "O 8 17 2"},
    Drawing{LineIcon::kChatTexts,
            "M 4 4 L 20 4 L 20 16 L 11 16 L 7 20 L 7 16 L 4 16 Z"},
};

QPainterPath PathOf(LineIcon icon) {
  const auto* const drawing =
      std::ranges::find(kDrawings, icon, &Drawing::icon);
  if (drawing == kDrawings.end()) throw std::out_of_range("no such icon");
  const QStringList words = QString::fromLatin1(drawing->path).split(u' ');
  QPainterPath path;
  auto word = words.begin();
  const auto number = [&word] { return (word++)->toDouble(); };
  const auto point = [&number] {
    const double x = number();
    return QPointF(x, number());
  };
  while (word != words.end()) {
    const QChar command = (word++)->front();
    if (command == u'M') {
      path.moveTo(point());
    } else if (command == u'L') {
      path.lineTo(point());
    } else if (command == u'C') {
      const QPointF first = point();
      const QPointF second = point();
      path.cubicTo(first, second, point());
    } else if (command == u'O') {
      const QPointF middle = point();
      const double radius = number();
      path.addEllipse(middle, radius, radius);
    } else {
      path.closeSubpath();
    }
  }
  return path;
}

class LineIconEngine : public QIconEngine {
 public:
  explicit LineIconEngine(LineIcon icon) : icon_(icon) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    const QPalette palette = QApplication::palette();
    DrawLineIcon(
        *painter, area, icon_,
        mode == QIcon::Selected
            ? palette.color(QPalette::HighlightedText)
            : palette.color(mode == QIcon::Disabled ? QPalette::Disabled
                                                    : QPalette::Active,
                            QPalette::WindowText));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect({}, size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new LineIconEngine(icon_); }

 private:
  LineIcon icon_;
};

}  // namespace

QIcon MakeLineIcon(LineIcon icon) { return QIcon(new LineIconEngine(icon)); }

void DrawLineIcon(QPainter& painter, const QRectF& area, LineIcon icon,
                  const QColor& color) {
  const double side = std::min(area.width(), area.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.center() - QPointF(side / 2, side / 2));
  painter.scale(side / kField, side / kField);
  painter.setPen(
      QPen(color, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(PathOf(icon));
  painter.restore();
}

}  // namespace fragsmith
