#include "editor/state/face_store.h"

#include <QCoreApplication>
#include <QImage>
#include <memory>

#include "support/files.h"

namespace fragsmith {
namespace {

/// Twice the side that is shown, for screens of twice the scale.
constexpr int kMaxSide = 128;

QPixmap PixmapOf(const Picture& picture) {
  const QImage image(picture.pixels.data(), picture.width, picture.height,
                     qsizetype{picture.width} * 4, QImage::Format_RGBA8888);
  const bool is_large = picture.width > kMaxSide || picture.height > kMaxSide;
  return QPixmap::fromImage(is_large ? image.scaled(kMaxSide, kMaxSide,
                                                    Qt::KeepAspectRatio,
                                                    Qt::SmoothTransformation)
                                     : image.copy());
}

const char* IconText(IconKind kind) {
  switch (kind) {
    case IconKind::kNotInUse:
      return QT_TRANSLATE_NOOP(
          "FaceStore",
          "Icons are off: set the game and WinZip folders in Program/Options");
    case IconKind::kNoPackage:
      return QT_TRANSLATE_NOOP("FaceStore",
                               "The package of this skin is not in the game");
    case IconKind::kNotFound:
      return QT_TRANSLATE_NOOP("FaceStore",
                               "The icon of this skin was not found");
    case IconKind::kUserDefined:
      return QT_TRANSLATE_NOOP("FaceStore", "A skin that you entered yourself");
    case IconKind::kIcon:
      break;
  }
  return QT_TRANSLATE_NOOP("FaceStore", "The icon of this skin");
}

}  // namespace

QString DescribeIcon(IconKind kind) {
  return QCoreApplication::translate("FaceStore", IconText(kind));
}

FaceStore::FaceStore(ProgramState& state, int max_bytes)
    : state_(state), faces_(max_bytes) {}

QByteArray FaceStore::KeyOf(const SkinEntry& skin) const {
  QByteArray key;
  for (const std::string& part :
       {skin.IconFile, skin.PK3File, state_.settings.Q3Baseq3,
        state_.settings.WinZipDir}) {
    key += QByteArray::fromStdString(part) + '\n';
  }
  return key;
}

const Face* FaceStore::Find(const SkinEntry& skin) const {
  return faces_.object(KeyOf(skin));
}

void FaceStore::Read(const SkinEntry& skin, const KeepGoing& keep_going) {
  // What is read meanwhile may change the settings.
  const QByteArray key = KeyOf(skin);
  IconResult icon = {.kind = IconKind::kNotInUse, .picture = {}};
  if (state_.folder_state.Pk3Ready) {
    icon = ShowSkinIcon(skin.IconFile, skin.PK3File,
                        PathFromBytes(state_.settings.Q3Baseq3),
                        state_.Tool(keep_going), state_.temporary);
  }
  if (icon.kind != IconKind::kIcon && keep_going && !keep_going()) return;
  auto face = std::make_unique<Face>();
  face->kind = icon.kind;
  face->picture = icon.kind == IconKind::kIcon ? PixmapOf(icon.picture)
                                               : FixedPicture(icon.kind);
  const int cost = icon.kind == IconKind::kIcon
                       ? face->picture.width() * face->picture.height() * 4
                       : 1;
  faces_.insert(key, face.release(), cost);
}

QPixmap FaceStore::FixedPicture(IconKind kind) {
  const auto known = fixed_.find(kind);
  if (known != fixed_.end()) return known->second;
  const Result<Picture> picture =
      LoadFixedPicture(kind, {state_.folders.program, state_.folders.data});
  return fixed_.emplace(kind, picture ? PixmapOf(*picture) : QPixmap())
      .first->second;
}

void FaceStore::ForgetMissing() {
  for (const QByteArray& key : faces_.keys()) {
    if (faces_.object(key)->kind != IconKind::kIcon) faces_.remove(key);
  }
}

}  // namespace fragsmith
