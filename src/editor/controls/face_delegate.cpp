#include "editor/controls/face_delegate.h"

#include <QPainter>
#include <QWidget>

namespace fragsmith {
namespace {

constexpr int kInside = 4;

}  // namespace

QSize FaceDelegate::sizeHint(const QStyleOptionViewItem& option,
                             const QModelIndex& /*index*/) const {
  constexpr int kLetters = 14;
  return {option.fontMetrics.averageCharWidth() * kLetters + 2 * kInside,
          kSide + 2 * option.fontMetrics.lineSpacing() + 3 * kInside};
}

void FaceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem ground = option;
  initStyleOption(&ground, index);
  // Behind the face, too.
  ground.showDecorationSelected = true;
  option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &ground,
                                        painter, option.widget);
  painter->save();
  const QRect inside =
      option.rect.adjusted(kInside, kInside, -kInside, -kInside);
  const QRect face(inside.center().x() - kSide / 2, inside.top(), kSide, kSide);
  const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
  if (icon.isNull()) {
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawRoundedRect(face.adjusted(0, 0, -1, -1), kInside, kInside);
  } else {
    icon.paint(painter, face);
  }
  const bool is_selected = (option.state & QStyle::State_Selected) != 0;
  const QVariant own = index.data(Qt::ForegroundRole);
  const QStringList lines = index.data(Qt::DisplayRole).toString().split(u'\n');
  QRect area(inside.left(), face.bottom() + kInside, inside.width(),
             option.fontMetrics.lineSpacing());
  for (const QString& line : lines) {
    const bool is_first = &line == &lines.front();
    painter->setPen(
        is_selected ? option.palette.color(QPalette::HighlightedText)
        : own.isValid() && is_first
            ? own.value<QBrush>().color()
            : option.palette.color(is_first ? QPalette::Text
                                            : QPalette::PlaceholderText));
    painter->drawText(
        area, Qt::AlignHCenter | Qt::AlignVCenter,
        option.fontMetrics.elidedText(line, Qt::ElideRight, area.width()));
    area.translate(0, area.height());
  }
  painter->restore();
}

}  // namespace fragsmith
