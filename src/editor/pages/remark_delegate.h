#ifndef FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_
#define FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_

#include <QStyledItemDelegate>

namespace fragsmith {

/// What stands behind the text of an entry, in the second colour.
inline constexpr int kRemarkRole = Qt::UserRole + 1;

/// Draws entries with their remarks, which begin below each other and end
/// where the view does.
class RemarkDelegate : public QStyledItemDelegate {
 public:
  /// The longest of the texts in front of the remarks.
  RemarkDelegate(QString longest, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  QString longest_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_
