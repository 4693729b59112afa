#ifndef FRAGSMITH_EDITOR_BOT_COMMANDS_H_
#define FRAGSMITH_EDITOR_BOT_COMMANDS_H_

#include <QWidget>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "editor/bot_loader.h"
#include "editor/current_bot.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/program_state.h"
#include "editor/recent_bots.h"
#include "session/disk_state.h"
#include "session/load_bot.h"
#include "session/save_bot.h"

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

  /// Loads what a path leads to: a characteristic file, the bot of a folder
  /// or package, or one that is chosen where there are several. The
  /// description is looked for where the game's layout has it when a file
  /// lies in one.
  void OpenPath(const std::filesystem::path& path);

  void OpenRecent(const RecentBot& bot);

  /// Writes the bot to where it was last written or loaded from, with the
  /// options of then; opens the dialog when there is no such place.
  void SaveAgain();

  /// Puts a bot that was never saved in the place of the current one. False
  /// when the user would rather keep that.
  bool TakeDraft(const Bot& bot);

  /// Lets the user choose and loads another bot, with what it is called; the
  /// current one stays as it is. Nothing when that came to nothing, told.
  std::optional<std::pair<Bot, QString>> LoadToCompare();

  /// Puts the values that the game reads in the place of those that the last
  /// load took otherwise.
  void TakeValuesAsGame();

  RecentBots& recent() { return recent_; }

 signals:
  /// A load came to its end; its notes are to be shown.
  void Loaded(const Notes& notes, bool has_plain_values);
  void StatusText(const QString& text);

 private:
  /// Where a bot was written, and how.
  struct Target {
    std::filesystem::path folder;
    SaveOptions options;
  };

  bool MayLoseChanges(const std::string& question);
  void ShowNewBot(Bot bot, const QString& name);
  std::optional<OpenChoice> AskForFiles(int kind, const BotList& bots);

  std::optional<LoadedBot> Load(int kind, const OpenChoice& choice);
  void frmOpenBot_GiveBot(int kind, const OpenChoice& choice);
  void OpenFolder(const std::filesystem::path& folder);
  void OpenPackage(const std::filesystem::path& package,
                   const std::string& wanted);
  void Take(int kind, std::optional<LoadedBot> loaded,
            const std::optional<RecentBot>& source);
  void Save(const Target& target);

  CurrentBot& current_;
  ProgramState& state_;
  QWidget& window_;
  BotLoader loader_;
  RecentBots recent_;
  /// The folder of the open dialog within this run; empty at its start.
  std::filesystem::path last_folder_;
  OpenOptions options_;
  LoadedBot last_load_;
  std::optional<Target> target_;
  DiskState on_disk_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_BOT_COMMANDS_H_
