#ifndef FRAGSMITH_EDITOR_CONTROLS_MAX_SELECT_H_
#define FRAGSMITH_EDITOR_CONTROLS_MAX_SELECT_H_

#include <QWidget>

class QButtonGroup;

namespace fragsmith {

/// Three option buttons that choose the maximum of a weight page: 400, which
/// is chosen at first, 600 or 1000.
class MaxSelect : public QWidget {
  Q_OBJECT

 public:
  explicit MaxSelect(QWidget* parent = nullptr);

  /// Chooses one of the maxima, as the program does: sends nothing. Another
  /// number changes nothing.
  void Select(int max);
  int Selected() const;

 signals:
  /// The user chose another maximum.
  void AdjustScale(int ScaleValue);

 private:
  QButtonGroup* buttons_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_MAX_SELECT_H_
