#ifndef FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_

#include <QObject>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <vector>

#include "checks/bot_location.h"
#include "checks/location_checks.h"
#include "editor/commands/bot_commands.h"
#include "editor/dialogs/library_dialog.h"
#include "editor/models/library_model.h"
#include "editor/state/current_bot.h"
#include "editor/state/face_store.h"
#include "editor/state/program_state.h"
#include "game/game_data.h"

namespace fragsmith {

/// The library of bots: those of the list, those in recent folders and those in
/// the working folder.
class LibraryCommands : public QObject {
  Q_OBJECT

 public:
  /// All of them outlive it.
  LibraryCommands(BotCommands& commands, CurrentBot& current,
                  ProgramState& state, FaceStore& faces, QWidget& window);

  /// Of the bots of the list only those that the game has; null for no game.
  void Show(const InstalledGame* game);

 signals:
  void CompareWanted(const fragsmith::Bot& other, const QString& title);
  /// Packages were removed: what is known of the game is not true any more.
  void PackagesRemoved(const QString& text);

 private:
  struct Entry {
    LibraryBot shown;
    BotSource source;
  };
  std::vector<Entry> Find(const GameData* game);
  std::optional<BotLocation> LocationOf(const Entry& entry) const;
  FindingCounts Check(const Entry& entry, const InstalledGame* game) const;
  frmLibrary::Removal Remove(const Entry& entry);
  void Do(frmLibrary::Action action, const BotSource& source);
  bool IsOpen(const std::filesystem::path& package) const;
  void AddBotsOfList(const GameData& game, std::vector<Entry>& entries) const;
  void AddBotsIn(const std::filesystem::path& folder,
                 std::vector<Entry>& entries) const;
  /// Shows what is known of the bot from a description.
  void Describe(const KnownBot& known, LibraryBot& bot) const;

  BotCommands& commands_;
  CurrentBot& current_;
  ProgramState& state_;
  FaceStore& faces_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_
