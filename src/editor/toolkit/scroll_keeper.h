#ifndef FRAGSMITH_EDITOR_TOOLKIT_SCROLL_KEEPER_H_
#define FRAGSMITH_EDITOR_TOOLKIT_SCROLL_KEEPER_H_

#include <QAbstractItemView>
#include <QPersistentModelIndex>
#include <vector>

namespace fragsmith {

/// As long as it is there, rows may come and go above those that a view
/// shows; at its end the view shows the same ones. Where it was scrolled to
/// the top it stays there, so that what is new at the top is seen.
class ScrollKeeper {
 public:
  explicit ScrollKeeper(QAbstractItemView& view);
  ~ScrollKeeper();
  ScrollKeeper(const ScrollKeeper&) = delete;
  ScrollKeeper& operator=(const ScrollKeeper&) = delete;

 private:
  struct Seen {
    QPersistentModelIndex index;
    int top;
  };

  QAbstractItemView& view_;
  bool is_at_top_;
  bool is_current_seen_ = false;
  std::vector<Seen> seen_;  ///< The rows in sight, from the top.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_SCROLL_KEEPER_H_
