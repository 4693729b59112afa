#include "editor/pages/line_order.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace fragsmith {

LineOrder::LineOrder(QListWidget& lines, QWidget* parent)
    : QWidget(parent), lines_(lines) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  up_ = AddButton("cmdLineUp", Qt::UpArrow, tr("Move line up"), "Alt+Up");
  down_ =
      AddButton("cmdLineDown", Qt::DownArrow, tr("Move line down"), "Alt+Down");
  double_ = AddButton("cmdDoubleLine", Qt::NoArrow, tr("Duplicate"), "Ctrl+D");
  connect(up_, &QToolButton::clicked, this, [this] { emit Moved(-1); });
  connect(down_, &QToolButton::clicked, this, [this] { emit Moved(1); });
  connect(double_, &QToolButton::clicked, this, &LineOrder::Doubled);
  lines.setDragDropMode(QAbstractItemView::InternalMove);
  lines.setDefaultDropAction(Qt::MoveAction);
  connect(lines.model(), &QAbstractItemModel::rowsMoved, this,
          [this](const QModelIndex& /*from*/, int from_row, int /*last*/,
                 const QModelIndex& /*to*/, int before) {
            ShowWhatCanBeDone();
            emit Dragged(from_row, before > from_row ? before - 1 : before);
          });
  // The list's own signals are silent while the page fills it.
  connect(lines.selectionModel(), &QItemSelectionModel::currentChanged, this,
          &LineOrder::ShowWhatCanBeDone);
  for (const auto change :
       {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(lines.model(), change, this, &LineOrder::ShowWhatCanBeDone);
  }
  connect(lines.model(), &QAbstractItemModel::modelReset, this,
          &LineOrder::ShowWhatCanBeDone);
  // A model that goes with its list says so when there is no list any more.
  connect(&lines, &QObject::destroyed, this,
          [this, model = lines.model(), selection = lines.selectionModel()] {
            model->disconnect(this);
            selection->disconnect(this);
          });
  ShowWhatCanBeDone();
}

QToolButton* LineOrder::AddButton(const char* name, Qt::ArrowType arrow,
                                  const QString& text, const char* keys) {
  auto* const button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setText(text);
  button->setAccessibleName(text);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoRaise(true);
  if (arrow != Qt::NoArrow) button->setArrowType(arrow);
  const QKeySequence sequence{QLatin1String(keys)};
  button->setToolTip(QStringLiteral("%1 (%2)").arg(
      text, sequence.toString(QKeySequence::NativeText)));
  auto* const shortcut = new QShortcut(sequence, &lines_);
  shortcut->setContext(Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
  layout()->addWidget(button);
  return button;
}

void LineOrder::ShowWhatCanBeDone() {
  const int line = lines_.currentRow();
  up_->setEnabled(line > 0);
  down_->setEnabled(line >= 0 && line + 1 < lines_.count());
  double_->setEnabled(line >= 0);
}

}  // namespace fragsmith
