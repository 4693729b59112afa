#ifndef FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_
#define FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_

#include <QStyledItemDelegate>

namespace fragsmith {

/// What stands behind the text of an entry, in the second colour.
inline constexpr int kRemarkRole = Qt::UserRole + 1;
/// Whether the entry is of no use here. So is one that is disabled.
inline constexpr int kFaintRole = Qt::UserRole + 3;

/// Draws entries with their remarks, which begin below each other and end
/// where the view does. What is of no use is faint, but can be read.
class RemarkDelegate : public QStyledItemDelegate {
 public:
  /// The longest of the texts in front of the remarks.
  RemarkDelegate(QString longest, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option,
                       const QModelIndex& index) const override;

 private:
  QString longest_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_REMARK_DELEGATE_H_
