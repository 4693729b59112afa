#include "editor/toolkit/menu_key.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>

namespace fragsmith {
namespace {

class MenuKey : public QObject {
 public:
  explicit MenuKey(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // The widget with the focus gets it first.
    auto* const focus = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || focus == nullptr) {
      return QObject::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F10 || key.modifiers() != Qt::ShiftModifier) {
      return QObject::eventFilter(watched, event);
    }
    const QPoint place =
        focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, place,
                           focus->mapToGlobal(place));
    QApplication::sendEvent(focus, &menu);
    return true;
  }
};

}  // namespace

void OpenMenusByShiftF10([[maybe_unused]] QObject* parent) {
#ifndef Q_OS_WIN
  new MenuKey(parent);
#endif
}

}  // namespace fragsmith
