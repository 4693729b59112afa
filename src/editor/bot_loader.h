#ifndef FRAGSMITH_EDITOR_BOT_LOADER_H_
#define FRAGSMITH_EDITOR_BOT_LOADER_H_

#include <QWidget>
#include <filesystem>
#include <optional>

#include "editor/dialogs/open_dialog.h"
#include "editor/program_state.h"
#include "install/bot_list.h"
#include "model/bot.h"
#include "session/load_bot.h"

namespace fragsmith {

/// The number of the open dialog for a whole bot.
inline constexpr int kWholeBotKind = 0;

/// Reads bots out of folders and packages for the window, with their boxes and
/// a progress window.
class BotLoader {
 public:
  /// The window is disabled while a package is worked on.
  BotLoader(ProgramState& state, QWidget& window)
      : state_(state), window_(window) {}

  /// A bot of the bot list, out of its package in the game's folder: the
  /// whole (0) or one of its files (1 to 4) into a copy of `current`.
  std::optional<LoadedBot> FromList(int kind, const BotListEntry& entry,
                                    const OpenOptions& options,
                                    const Bot& current);

  /// The same out of any package.
  std::optional<LoadedBot> FromPackage(int kind, const BotListEntry& entry,
                                       const std::filesystem::path& package,
                                       const OpenOptions& options,
                                       const Bot& current);

  /// A characteristic file and those beside it (0), or one file (1 to 4) into
  /// a copy of `current`. Nothing, without a box, when the name does not end
  /// as it has to.
  std::optional<LoadedBot> FromFile(int kind, const std::filesystem::path& path,
                                    const OpenOptions& options,
                                    const Bot& current);

 private:
  ProgramState& state_;
  QWidget& window_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_BOT_LOADER_H_
