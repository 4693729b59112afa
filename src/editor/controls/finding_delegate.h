#ifndef FRAGSMITH_EDITOR_CONTROLS_FINDING_DELEGATE_H_
#define FRAGSMITH_EDITOR_CONTROLS_FINDING_DELEGATE_H_

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace fragsmith {

/// Draws a finding, with a button below its text where it can be put right.
class FindingDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Where the button stands in the row; empty for a row without one.
  QRect ButtonIn(const QStyleOptionViewItem& row,
                 const QModelIndex& index) const;

  /// The row whose button is held down.
  void SetPressed(const QModelIndex& index) { pressed_ = index; }
  QModelIndex pressed() const { return pressed_; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

 private:
  QPersistentModelIndex pressed_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_FINDING_DELEGATE_H_
