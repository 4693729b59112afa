#include "editor/commands/game_commands.h"

#include <optional>
#include <utility>

#include "editor/dialogs/check_dialog.h"
#include "editor/dialogs/try_dialog.h"

namespace fragsmith {

GameCommands::GameCommands(CurrentBot& current, BotChecker& checker,
                           ProgramState& state, QWidget& window)
    : QObject(&window),
      current_(current),
      checker_(checker),
      state_(state),
      window_(window) {}

void GameCommands::TryInGame() {
  checker_.CheckNow();  // What has just been stored counts too.
  std::optional<BotLocation> on_disk = LocationOf(*current_.origin().home);
  frmTry(current_.bot(), checker_.findings(), std::move(on_disk),
         checker_.installed(), state_, &window_)
      .exec();
}

void GameCommands::CheckFiles(const FolderPlaces& places) {
  const std::optional<BotLocation> loaded = LocationOf(*current_.origin().home);
  if (loaded && *loaded != last_loaded_) {
    last_loaded_ = *loaded;
    last_folder_ = loaded->package.empty() ? loaded->folder
                                           : loaded->package.parent_path();
  }
  if (last_folder_.empty()) {
    last_folder_ = state_.FirstFolder(state_.folder_state.CurrentFolder);
  }
  frmCheck dialog(last_folder_, places, checker_.installed(), state_.prompts,
                  &window_);
  dialog.exec();
  last_folder_ = dialog.Folder();
}

}  // namespace fragsmith
