#ifndef FRAGSMITH_EDITOR_TOOLKIT_BUSY_H_
#define FRAGSMITH_EDITOR_TOOLKIT_BUSY_H_

#include <QWidget>

namespace fragsmith {

/// Disables the window for the time of its life, so that nothing is edited
/// while events are let through.
class Busy {
 public:
  explicit Busy(QWidget& window) : window_(window) {
    window_.setEnabled(false);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { window_.setEnabled(true); }

 private:
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_BUSY_H_
