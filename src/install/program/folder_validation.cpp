#include <string>

#include "install/program/game_folder.h"
#include "install/program/settings_file.h"
#include "support/files.h"

namespace fragsmith {
namespace {

void Warn(std::string title, std::string text, Prompts& prompts) {
  prompts.Show({.title = std::move(title),
                .text = std::move(text),
                .icon = MessageIcon::kExclamation});
}

}  // namespace

FolderState ValidateFolders(ProgramSettings& settings,
                            const std::filesystem::path& program_folder,
                            Prompts& prompts) {
  FolderState state;
  if (!settings.Q3Baseq3.empty() &&
      !HasGameProgram(PathFromBytes(settings.Q3Baseq3))) {
    Warn("Fragsmith: Quake3.exe missing",
         "Quake3.exe not found in '" + settings.Q3Baseq3 + "'", prompts);
    settings.Q3Baseq3.clear();
  }
  if (!settings.WorkDir.empty() && !IsFolder(PathFromBytes(settings.WorkDir))) {
    Warn("Fragsmith: Work directory missing",
         "Given working directory not found in '" + settings.WorkDir +
             "'. Using application directory.",
         prompts);
    settings.WorkDir.clear();
  }
  if (settings.WorkDir.empty()) {
    settings.WorkDir = BytesFromPath(program_folder);
  }
  state.WinZipFound =
      !settings.WinZipDir.empty() &&
      FindUnzipTool(PathFromBytes(settings.WinZipDir)).has_value();
  if (!settings.WinZipDir.empty() && !state.WinZipFound) {
    // The folder is kept, and so is the title, which is that of another box.
    Warn("Fragsmith: Work directory missing",
         "Winzip command line support executives not found in '" +
             settings.WinZipDir + "'. Pk3 bot loading disabled.",
         prompts);
  }
  // A folder without its tool still counts here: icons are then tried for
  // and not found.
  state.Pk3Ready = !settings.Q3Baseq3.empty() && !settings.WinZipDir.empty();
  state.ResetsIcon = !state.WinZipFound || !state.Pk3Ready;
  state.CurrentFolder = PathFromBytes(settings.WorkDir);
  return state;
}

}  // namespace fragsmith
