#include "editor/controls/findings_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QToolTip>
#include <optional>

#include "editor/toolkit/scroll_keeper.h"

namespace fragsmith {

FindingsView::FindingsView(QWidget* parent)
    : QListView(parent),
      model_(new FindingsModel(this)),
      delegate_(new FindingDelegate(this)) {
  setItemDelegate(delegate_);
  setWordWrap(true);
  const int icon = fontMetrics().height();
  setIconSize(QSize(icon, icon));
  setMinimumHeight(5 * fontMetrics().lineSpacing());
  setWhatsThis(FindingsModel::FoldingHelp());
  setAccessibleDescription(FindingsModel::FoldingHelp() + u' ' +
                           tr("The space bar mends."));
  setModel(model_);
  connect(this, &QListView::doubleClicked, this, [this] { Fold(!IsFolded()); });
}

void FindingsView::ShowFindings(const std::vector<Finding>& findings) {
  ChangeRows([this, &findings] { model_->ShowFindings(findings); });
}

const Finding* FindingsView::Selected() const {
  const QModelIndex current = currentIndex();
  return current.isValid() ? &model_->At(current.row()) : nullptr;
}

std::size_t FindingsView::FoldableCount() const {
  const Finding* const selected = Selected();
  return selected == nullptr ? 0 : model_->FoldableCount(selected->id);
}

bool FindingsView::IsFolded() const {
  const Finding* const selected = Selected();
  return selected != nullptr && model_->IsFolded(selected->id);
}

void FindingsView::Fold(bool is_folded) {
  if (FoldableCount() == 0 || is_folded == IsFolded()) return;
  ChangeRows([this, is_folded] { model_->Fold(Selected()->id, is_folded); });
}

void FindingsView::ChangeRows(const std::function<void()>& change) {
  {
    const QSignalBlocker silence(this);
    const ScrollKeeper scroll(*this);
    std::optional<Finding> selected;
    if (const Finding* const now = Selected()) selected = *now;
    change();
    if (selected) {
      // Its row has gone where its kind was folded or unfolded.
      const QModelIndex current = currentIndex();
      selectionModel()->setCurrentIndex(
          current.isValid() ? current : model_->Find(*selected),
          QItemSelectionModel::ClearAndSelect);
    }
  }
  emit SelectionShown();
}

void FindingsView::currentChanged(const QModelIndex& current,
                                  const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  emit SelectionShown();
}

void FindingsView::rowsAboutToBeRemoved(const QModelIndex& parent, int start,
                                        int end) {
  // Its neighbour was not chosen, and other buttons would come with it.
  const int current = currentIndex().row();
  if (start <= current && current <= end) selectionModel()->clear();
  QListView::rowsAboutToBeRemoved(parent, start, end);
}

QModelIndex FindingsView::ButtonAt(const QPoint& point) const {
  const QModelIndex index = indexAt(point);
  if (!index.isValid() || itemDelegate() != delegate_) return {};
  QStyleOptionViewItem row;
  initViewItemOption(&row);
  row.rect = visualRect(index);
  return delegate_->ButtonIn(row, index).contains(point) ? index
                                                         : QModelIndex();
}

void FindingsView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = ButtonAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) {
    QListView::mousePressEvent(event);
    return;
  }
  setCurrentIndex(index);
  delegate_->SetPressed(index);
  viewport()->update();
}

void FindingsView::mouseReleaseEvent(QMouseEvent* event) {
  const QModelIndex pressed = delegate_->pressed();
  if (!pressed.isValid()) {
    QListView::mouseReleaseEvent(event);
    return;
  }
  delegate_->SetPressed({});
  viewport()->update();
  if (ButtonAt(event->position().toPoint()) == pressed) Press(pressed);
}

void FindingsView::PressSelected() {
  if (currentIndex().isValid()) Press(currentIndex());
}

void FindingsView::Press(const QModelIndex& index) {
  // The list is made anew by what follows.
  const Finding finding = model_->At(index.row());
  if (finding.mends.empty()) return;
  if (model_->IsRowFolded(index.row())) {
    emit MendKindPressed(finding.id);
  } else {
    emit MendPressed(finding);
  }
}

void FindingsView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The row below has come under the pointer by the first click.
  if (!ButtonAt(event->position().toPoint()).isValid()) {
    QListView::mouseDoubleClickEvent(event);
  }
}

bool FindingsView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex index = ButtonAt(help.pos());
    if (index.isValid() && !model_->IsRowFolded(index.row())) {
      QToolTip::showText(
          help.globalPos(),
          QString::fromStdString(model_->At(index.row()).mends.front().title),
          this);
      return true;
    }
  }
  return QListView::viewportEvent(event);
}

void FindingsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && itemDelegate() == delegate_) {
    PressSelected();
    return;
  }
  const bool is_fold = event->key() == Qt::Key_Left;
  if ((is_fold || event->key() == Qt::Key_Right) && FoldableCount() > 0) {
    Fold(is_fold);
    return;
  }
  QListView::keyPressEvent(event);
}

}  // namespace fragsmith
