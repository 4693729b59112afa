#ifndef FRAGSMITH_EDITOR_STATE_FACE_STORE_H_
#define FRAGSMITH_EDITOR_STATE_FACE_STORE_H_

#include <QByteArray>
#include <QCache>
#include <QPixmap>
#include <QString>
#include <map>

#include "editor/state/program_state.h"
#include "install/program/model_catalogue.h"
#include "install/program/skin_icon.h"

namespace fragsmith {

/// Why there is no icon, or that it is one.
QString DescribeIcon(IconKind kind);

/// The icon of a skin, or the picture that says why there is none.
struct Face {
  IconKind kind = IconKind::kNotFound;
  QPixmap picture;
};

/// The icons of skins that were read lately. Of many it forgets those that
/// were not looked at for longest.
class FaceStore {
 public:
  static constexpr int kMaxBytes = 64 * 1024 * 1024;

  explicit FaceStore(ProgramState& state, int max_bytes = kMaxBytes);

  /// Null where it was not read yet; good until the next is read.
  const Face* Find(const SkinEntry& skin) const;

  /// Has the unzip tool take it out of its package, which takes some hundredths
  /// of a second. Nothing is kept of one that was cancelled.
  void Read(const SkinEntry& skin, const KeepGoing& keep_going);

  /// What was not found may be there by now.
  void ForgetMissing();

 private:
  QByteArray KeyOf(const SkinEntry& skin) const;
  QPixmap FixedPicture(IconKind kind);

  ProgramState& state_;
  QCache<QByteArray, Face> faces_;
  std::map<IconKind, QPixmap> fixed_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_FACE_STORE_H_
