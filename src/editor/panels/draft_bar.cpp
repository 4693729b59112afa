#include "editor/panels/draft_bar.h"

#include <QLocale>
#include <filesystem>

#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/shown_path.h"

namespace fragsmith {
namespace {

/// The file, package or folder of the bot; empty where it has none.
std::filesystem::path PathOf(const BotHome& home) {
  if (home.target) return home.target->folder;
  const auto first = home.files.find(BotFile::kCharacteristics);
  if (first != home.files.end()) return first->second.path;
  return home.files.empty() ? std::filesystem::path()
                            : home.files.begin()->second.path;
}

}  // namespace

DraftBar::DraftBar(QWidget* parent) : ListBar(QStringLiteral("Draft"), parent) {
  connect(AddButton(tr("Restore it"), QStringLiteral("cmdTakeDraft")),
          &QPushButton::clicked, this, [this] {
            hide();
            emit TakeDraft();
          });
  connect(AddButton(tr("Discard it"), QStringLiteral("cmdDiscardDraft")),
          &QPushButton::clicked, this, [this] {
            hide();
            emit DiscardDraft();
          });
}

void DraftBar::Offer(const DraftKeeper::Found& found) {
  const std::filesystem::path path = PathOf(*found.draft.origin.home);
  const QString name = ToQString(found.draft.bot.Name());
  const QString when = QLocale().toString(found.kept, QLocale::ShortFormat);
  Say(path.empty()
          ? tr("The bot %1 was not saved when Fragsmith last ended. It was "
               "kept on %2; it has no files yet.")
                .arg(name, when)
          : tr("The bot %1 was not saved when Fragsmith last ended. It was "
               "kept on %2; it is from %3.")
                .arg(name, when, ShortPath(path)),
      found.notes);
}

}  // namespace fragsmith
