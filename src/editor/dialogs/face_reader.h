#ifndef FRAGSMITH_EDITOR_DIALOGS_FACE_READER_H_
#define FRAGSMITH_EDITOR_DIALOGS_FACE_READER_H_

#include <QAbstractItemView>
#include <QTimer>
#include <functional>

#include "editor/state/face_store.h"

namespace fragsmith {

/// Reads the faces that are in sight in a view, one by one behind the events.
/// The view draws what the store has.
class FaceReader : public QObject {
 public:
  /// The skin of a row of the view's model; null for none.
  using SkinOf = std::function<const SkinEntry*(const QModelIndex&)>;

  /// The store and the skins outlive the view.
  FaceReader(FaceStore& faces, QAbstractItemView& view, SkinOf skin_of);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ReadNext();
  /// The first in sight that was not read; null for none.
  const SkinEntry* Next() const;

  FaceStore& faces_;
  QAbstractItemView& view_;
  SkinOf skin_of_;
  QTimer timer_;
  bool is_reading_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_FACE_READER_H_
