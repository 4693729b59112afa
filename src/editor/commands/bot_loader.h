#ifndef FRAGSMITH_EDITOR_COMMANDS_BOT_LOADER_H_
#define FRAGSMITH_EDITOR_COMMANDS_BOT_LOADER_H_

#include <QWidget>
#include <filesystem>
#include <optional>

#include "editor/dialogs/open_dialog.h"
#include "editor/state/program_state.h"
#include "install/program/bot_list.h"
#include "model/bot.h"
#include "session/load_bot.h"

namespace fragsmith {

/// Reads bots out of folders and packages for the window, with their boxes and
/// a progress window.
class BotLoader {
 public:
  /// The window is disabled while a package is worked on.
  BotLoader(ProgramState& state, QWidget& window)
      : state_(state), window_(window) {}

  /// A bot of the bot list, out of its package in the game's folder: the
  /// whole or one of its files into a copy of `current`.
  std::optional<LoadedBot> FromList(const LoadedPart& part,
                                    const BotListEntry& entry,
                                    const OpenOptions& options,
                                    const Bot& current);

  /// The same out of any package.
  std::optional<LoadedBot> FromPackage(const LoadedPart& part,
                                       const BotListEntry& entry,
                                       const std::filesystem::path& package,
                                       const OpenOptions& options,
                                       const Bot& current);

  /// A characteristic file and those beside it, or one file into a copy of
  /// `current`. Nothing, without a box, when the name does not end
  /// as it has to.
  std::optional<LoadedBot> FromFile(const LoadedPart& part,
                                    const std::filesystem::path& path,
                                    const OpenOptions& options,
                                    const Bot& current);

 private:
  /// What the files say in the way of a game that they were made for.
  void TakeFromGame(const OpenOptions& options, LoadedBot& loaded) const;

  ProgramState& state_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_BOT_LOADER_H_
