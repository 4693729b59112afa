#ifndef FRAGSMITH_EDITOR_CONTROLS_FACE_DELEGATE_H_
#define FRAGSMITH_EDITOR_CONTROLS_FACE_DELEGATE_H_

#include <QStyledItemDelegate>

namespace fragsmith {

/// Draws an entry as a face with its lines of text below: the first as it is,
/// the second in the second colour. A face that is not there yet has its place.
class FaceDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Of each face alike.
  static constexpr int kSide = 64;

  QSize sizeHint(const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_FACE_DELEGATE_H_
