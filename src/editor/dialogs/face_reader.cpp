#include "editor/dialogs/face_reader.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace fragsmith {

FaceReader::FaceReader(FaceStore& faces, QAbstractItemView& view,
                       SkinOf skin_of)
    : QObject(&view), faces_(faces), view_(view), skin_of_(std::move(skin_of)) {
  // What was not found may be there by now.
  faces_.ForgetMissing();
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &FaceReader::ReadNext);
  // Whatever brings others into sight paints them.
  view.viewport()->installEventFilter(this);
}

bool FaceReader::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && !is_reading_) timer_.start();
  return QObject::eventFilter(watched, event);
}

const SkinEntry* FaceReader::Next() const {
  const QAbstractItemModel& rows = *view_.model();
  const QRect sight = view_.viewport()->rect();
  for (int row = 0; row < rows.rowCount(); ++row) {
    const QModelIndex index = rows.index(row, 0);
    const QRect area = view_.visualRect(index);
    if (area.top() > sight.bottom()) break;
    if (!area.intersects(sight)) continue;
    const SkinEntry* const skin = skin_of_(index);
    if (skin != nullptr && faces_.Find(*skin) == nullptr) return skin;
  }
  return nullptr;
}

void FaceReader::ReadNext() {
  if (is_reading_ || !view_.isVisible()) return;
  const SkinEntry* const skin = Next();
  if (skin == nullptr) return;
  // While the tool works, the events come to the dialog, which may be closed
  // by them; it lasts until its loop has come back here.
  is_reading_ = true;
  faces_.Read(*skin, [this] {
    QCoreApplication::processEvents();
    return view_.isVisible();
  });
  is_reading_ = false;
  // Painting goes on with the next.
  view_.viewport()->update();
}

}  // namespace fragsmith
