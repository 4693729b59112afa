#ifndef FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_

#include <QObject>
#include <QWidget>
#include <vector>

#include "editor/commands/bot_commands.h"
#include "editor/models/library_model.h"
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
  LibraryCommands(BotCommands& commands, ProgramState& state, FaceStore& faces,
                  QWidget& window);

  /// Of the bots of the list only those that the game has; null for no game.
  void Show(const GameData* game);

 signals:
  void CompareWanted(const fragsmith::Bot& other, const QString& title);

 private:
  struct Entry {
    LibraryBot shown;
    BotSource source;
  };
  std::vector<Entry> Find(const GameData* game);
  void AddBotsOfList(const GameData& game, std::vector<Entry>& entries) const;
  void AddBotsIn(const std::filesystem::path& folder,
                 std::vector<Entry>& entries) const;
  /// Shows what is known of the bot from a description.
  void Describe(const KnownBot& known, LibraryBot& bot) const;

  BotCommands& commands_;
  ProgramState& state_;
  FaceStore& faces_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_LIBRARY_COMMANDS_H_
