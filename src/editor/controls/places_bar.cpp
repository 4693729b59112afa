#include "editor/controls/places_bar.h"

#include <QDir>
#include <QHBoxLayout>
#include <QMenu>
#include <algorithm>
#include <iterator>

#include "editor/toolkit/shown_path.h"
#include "support/files.h"

namespace fragsmith {
PlacesBar::PlacesBar(QWidget* parent) : QWidget(parent) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  SetPlaces({});
}

QToolButton* PlacesBar::AddButton(const char* name, const QString& text) {
  auto* const button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setText(text);
  button->setFocusPolicy(Qt::TabFocus);
  static_cast<QHBoxLayout&>(*layout()).addWidget(button);
  return button;
}

void PlacesBar::AddPlace(const char* name, const QString& text,
                         const std::filesystem::path& folder) {
  if (folder.empty() || !IsFolder(folder)) return;
  QToolButton* const button = AddButton(name, text);
  button->setToolTip(ShownPath(folder).toHtmlEscaped());
  connect(button, &QToolButton::clicked, this,
          [this, folder] { emit Chosen(folder); });
}

void PlacesBar::SetPlaces(const FolderPlaces& places) {
  qDeleteAll(findChildren<QToolButton*>());
  delete layout()->takeAt(layout()->count() - 1);
  AddPlace("cmdPlaceHome", tr("Home"),
           PathFromBytes(QDir::homePath().toStdString()));
  AddPlace("cmdPlaceGame", tr("Game folder"), places.game);
  AddPlace("cmdPlaceWorking", tr("Working folder"), places.working);
  std::vector<std::filesystem::path> recent;
  std::copy_if(places.recent.begin(), places.recent.end(),
               std::back_inserter(recent), IsFolder);
  if (!recent.empty()) {
    QToolButton* const button = AddButton("cmdPlaceRecent", tr("Recent"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(button);
    for (const std::filesystem::path& folder : recent) {
      QString text = ShownPath(folder);
      menu->addAction(text.replace(u'&', QStringLiteral("&&")),
                      [this, folder] { emit Chosen(folder); });
    }
    button->setMenu(menu);
  }
  static_cast<QHBoxLayout&>(*layout()).addStretch(1);
}

}  // namespace fragsmith
