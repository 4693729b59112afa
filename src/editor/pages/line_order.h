#ifndef FRAGSMITH_EDITOR_PAGES_LINE_ORDER_H_
#define FRAGSMITH_EDITOR_PAGES_LINE_ORDER_H_

#include <QListWidget>
#include <QToolButton>

namespace fragsmith {

/// Buttons that move the selected line of a list up and down and double it.
/// Their keys work in the list and do what they say, so the Tab key passes
/// them. The mouse drags the lines.
class LineOrder : public QWidget {
  Q_OBJECT

 public:
  explicit LineOrder(QListWidget& lines, QWidget* parent = nullptr);

 signals:
  /// By -1 or 1; there is such a place.
  void Moved(int step);
  void Doubled();
  /// The list has moved one of its lines to another row.
  void Dragged(int row, int to_row);

 private:
  QToolButton* AddButton(const char* name, Qt::ArrowType arrow,
                         const QString& text, const char* keys);
  void ShowWhatCanBeDone();

  QListWidget& lines_;
  QToolButton* up_;
  QToolButton* down_;
  QToolButton* double_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_LINE_ORDER_H_
