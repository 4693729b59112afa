#ifndef FRAGSMITH_EDITOR_COMMANDS_BOT_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_BOT_COMMANDS_H_

#include <QMenu>
#include <QWidget>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "editor/commands/bot_loader.h"
#include "editor/commands/bot_saver.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"
#include "editor/state/recent_bots.h"
#include "editor/toolkit/folder_places.h"
#include "game/bot_kinds.h"
#include "game/game_data.h"
#include "session/draft.h"
#include "session/load_bot.h"

namespace fragsmith {

/// A bot of the list of bots, by its place there, or one that lies elsewhere.
using BotSource = std::variant<std::size_t, RecentBot>;

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
  /// One that speaks lines of the game, where that is known.
  void CreateBotOfKind(BotKind kind, const GameData* game);

  /// Loads (0 a whole bot, 1 to 4 one file) or saves (5), by the number of
  /// the open dialog.
  void ShowOpenSaveForm(OpenKind kind);

  /// Loads what a path leads to: a characteristic file, the bot of a folder
  /// or package, or one that is chosen where there are several. The
  /// description is looked for where the game's layout has it when a file
  /// lies in one.
  void OpenPath(const std::filesystem::path& path);

  /// Loads a bot of the list of bots, by its place there.
  void OpenOfList(std::size_t bot);

  void OpenRecent(const RecentBot& bot);

  void Open(const BotSource& source);

  /// Loads a bot as a new one under another name, of no files yet.
  void Duplicate(const BotSource& source);

  /// Loads another bot; the current one stays as it is. Nothing when that came
  /// to nothing, told.
  std::optional<Bot> LoadAside(const BotSource& source);

  /// The recent bots as items; what is typed is stored first, by a function
  /// that is false when it is refused.
  void FillRecentBots(QMenu& menu, const std::function<bool()>& store_typing);

  /// Writes the bot to where it was last written or loaded from, with the
  /// options of then; opens the dialog when there is no such place. What it
  /// never read is not written over without a question.
  void SaveAgain();

  /// Puts a bot that was never saved in the place of the current one, with its
  /// origin. False when the user would rather keep that.
  bool TakeDraft(const Draft& draft);

  /// Lets the user choose and loads another bot, with what it is called; the
  /// current one stays as it is. Nothing when that came to nothing, told.
  std::optional<std::pair<Bot, QString>> LoadToCompare();

  /// Puts the values that the game reads in the place of those that the load
  /// of this bot took otherwise and that are still as it took them.
  void TakeValuesAsGame();

  /// Shows what saving again would change in the bot's files.
  void ShowChanges();

  /// The next box begins in the working folder.
  void ForgetLastFolder() { last_folder_.clear(); }

  RecentBots& recent() { return recent_; }

  /// Where the boxes of folders lead to.
  FolderPlaces Places() const;

 signals:
  /// A new bot is there.
  void Made();
  /// A load came to its end.
  void Loaded();
  /// A save came to its end, with what is to be known of it.
  void Saved(const Notes& notes);
  /// A bot of the list was not loaded: its package is not in the game.
  void PackageMissing();
  void StatusText(const QString& text);

 private:
  bool MayLoseChanges(const std::string& question);
  /// False when the user would rather keep what is there.
  bool ShowNewBot(Bot bot, const QString& name);
  std::optional<OpenChoice> AskForFiles(OpenKind kind, const BotList& bots);

  std::optional<LoadedBot> Load(const LoadedPart& part,
                                const OpenChoice& choice);
  void frmOpenBot_GiveBot(const LoadedPart& part, const OpenChoice& choice);
  void OpenFolder(const std::filesystem::path& folder);
  void TellNoBot(const std::filesystem::path& path);
  void OpenPackage(const std::filesystem::path& package,
                   const std::string& wanted);
  void Take(const LoadedPart& part, std::optional<LoadedBot> loaded,
            const std::optional<RecentBot>& source);
  void Tell(const BotSaver::Outcome& outcome);

  CurrentBot& current_;
  ProgramState& state_;
  QWidget& window_;
  BotLoader loader_;
  BotSaver saver_;
  RecentBots recent_;
  /// The folder of the open dialog within this run; empty at its start.
  std::filesystem::path last_folder_;
  OpenOptions options_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_BOT_COMMANDS_H_
