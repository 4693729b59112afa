#ifndef FRAGSMITH_EDITOR_CONTROLS_PLACES_BAR_H_
#define FRAGSMITH_EDITOR_CONTROLS_PLACES_BAR_H_

#include <QToolButton>
#include <QWidget>
#include <filesystem>

#include "editor/toolkit/folder_places.h"

namespace fragsmith {

/// Buttons that lead to folders: home, that of the game, the working folder
/// and, in a menu, recent ones. Those that are not there have none.
class PlacesBar : public QWidget {
  Q_OBJECT

 public:
  explicit PlacesBar(QWidget* parent);

  void SetPlaces(const FolderPlaces& places);

 signals:
  void Chosen(const std::filesystem::path& folder);

 private:
  QToolButton* AddButton(const char* name, const QString& text);
  void AddPlace(const char* name, const QString& text,
                const std::filesystem::path& folder);
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_CONTROLS_PLACES_BAR_H_
