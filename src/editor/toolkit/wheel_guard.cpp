#include "editor/toolkit/wheel_guard.h"

#include <QEvent>

namespace fragsmith {
namespace {

class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QComboBox& box) : QObject(&box), box_(box) {
    box.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || box_.hasFocus()) {
      return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
  }

 private:
  QComboBox& box_;
};

}  // namespace

void IgnoreWheelWithoutFocus(QComboBox& box) {
  // The wheel would give it the focus too.
  box.setFocusPolicy(Qt::StrongFocus);
  new WheelGuard(box);
}

}  // namespace fragsmith
