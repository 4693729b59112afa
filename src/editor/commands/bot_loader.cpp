#include "editor/commands/bot_loader.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressDialog>

#include "editor/toolkit/busy.h"
#include "editor/toolkit/game_text_conversion.h"
#include "game/game_lookup.h"
#include "inplace/game_values.h"
#include "install/program/game_folder.h"
#include "session/bot_sources.h"
#include "session/load_from_package.h"
#include "support/files.h"

namespace fragsmith {

std::optional<LoadedBot> BotLoader::FromList(const LoadedPart& part,
                                             const BotListEntry& entry,
                                             const OpenOptions& options,
                                             const Bot& current) {
  if (state_.settings.Q3Baseq3.empty()) {
    state_.prompts.Show({.title = "Can't check folder",
                         .text = "Quake III Arena folder isn't set. Use "
                                 "'Program/Options' to set it.",
                         .icon = MessageIcon::kExclamation});
    return std::nullopt;
  }
  return FromPackage(part, entry,
                     PackageFolder(PathFromBytes(state_.settings.Q3Baseq3)) /
                         PathFromGameText(entry.PK3File),
                     options, current);
}

std::optional<LoadedBot> BotLoader::FromPackage(
    const LoadedPart& part, const BotListEntry& entry,
    const std::filesystem::path& package, const OpenOptions& options,
    const Bot& current) {
  if (!state_.folder_state.WinZipFound) {
    state_.prompts.Show(
        {.title = "Sorry!",
         .text = "Loading bot files from Pk3-files requires WinZip and WinZip "
                 "command line support add-on. If have these then select the "
                 "WinZip directory from Program/Options",
         .icon = MessageIcon::kInformation});
    return std::nullopt;
  }
  QProgressDialog progress(QString(),
                           QCoreApplication::translate("BotLoader", "Cancel"),
                           0, 0, &window_);
  // A name may hold what looks like markup.
  auto* const text =
      new QLabel(QCoreApplication::translate("BotLoader", "Loading %1...")
                     .arg(ToQString(entry.Name)),
                 &progress);
  text->setTextFormat(Qt::PlainText);
  text->setAlignment(Qt::AlignCenter);
  progress.setLabel(text);
  progress.setMinimumDuration(400);
  const Busy busy(window_);
  const UnzipTool tool = state_.Tool([&progress] {
    QCoreApplication::processEvents();
    return !progress.wasCanceled();
  });
  std::optional<LoadedBot> loaded = LoadBotFromPackage(
      {.package = package,
       .name = entry.Name,
       .LoType = part,
       .withScript = options.loads_description && entry.HasBotScript,
       .loads_description = options.loads_description},
      current, tool, state_.temporary, state_.Environment());
  if (!loaded) {
    state_.prompts.Show(
        {.title = "Operation cancelled!",
         .text = "Bot " + Utf8FromGameText(entry.Name) + " not loaded.",
         .icon = MessageIcon::kInformation});
  } else if (std::holds_alternative<WholeBot>(part)) {
    TakeFromGame(options, *loaded);
  }
  return loaded;
}

void BotLoader::TakeFromGame(const OpenOptions& options,
                             LoadedBot& loaded) const {
  TakeGameValues(loaded, options.loads_description, state_.lists.models,
                 GameLookUp(PathFromBytes(state_.settings.Q3Baseq3)));
}

std::optional<LoadedBot> BotLoader::FromFile(const LoadedPart& part,
                                             const std::filesystem::path& path,
                                             const OpenOptions& options,
                                             const Bot& current) {
  const auto* const one = std::get_if<BotFile>(&part);
  if (one == nullptr) {
    const std::optional<std::string> name = BotNameOfFile(path);
    if (!name) return std::nullopt;
    LoadedBot loaded = LoadBotFromFolder(
        *name, path.parent_path(),
        {options.loads_with_layout, options.loads_description},
        state_.Environment());
    TakeFromGame(options, loaded);
    return loaded;
  }
  LoadedBot loaded;
  loaded.bot = current;
  if (!LoadSingleFile(*one, path, loaded, state_.prompts)) {
    return std::nullopt;
  }
  return loaded;
}

}  // namespace fragsmith
