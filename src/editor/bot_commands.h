#ifndef FRAGSMITH_EDITOR_BOT_COMMANDS_H_
#define FRAGSMITH_EDITOR_BOT_COMMANDS_H_

#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "editor/current_bot.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/program_state.h"
#include "session/load_bot.h"

namespace fragsmith {

/// The commands that make, load and save the current bot, with their
/// questions and dialogs.
class BotCommands : public QObject {
  Q_OBJECT

 public:
  /// The window is the one that dialogs stand before and that is disabled
  /// while work goes on.
  BotCommands(CurrentBot& current, ProgramState& state, QWidget& window);

  void CreateZeroBot();
  void CreateAverageBot();
  /// On offer, but without effect: what random values would be sensible is
  /// nobody's knowledge yet.
  void CreateRandomBot() {}

  /// Loads (0 a whole bot, 1 to 4 one file) or saves (5), by the number of
  /// the open dialog.
  void ShowOpenSaveForm(int kind);

  /// Loads the bot of a characteristic file. The description is looked for
  /// where the game's layout has it when the file lies in one.
  void OpenFile(const std::filesystem::path& path);

  /// Puts the values that the game reads in the place of those that the last
  /// load took otherwise.
  void TakeValuesAsGame();

 signals:
  /// A load came to its end; its notes are to be shown.
  void Loaded(const Notes& notes, bool has_plain_values);
  void StatusText(const QString& text);

 private:
  bool MayLoseChanges(const std::string& question);
  void ShowNewBot(Bot bot);
  std::optional<OpenChoice> AskForFiles(int kind);

  void frmOpenBot_GiveBot(int kind, const OpenChoice& choice);
  std::optional<LoadedBot> LoadListed(int kind, const OpenChoice& choice);
  std::optional<LoadedBot> LoadChosenFile(int kind, const OpenChoice& choice);
  void Save(const OpenChoice& choice);

  CurrentBot& current_;
  ProgramState& state_;
  QWidget& window_;
  /// The folder of the open dialog within this run; empty at its start.
  std::filesystem::path last_folder_;
  OpenOptions options_;
  LoadedBot last_load_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_BOT_COMMANDS_H_
