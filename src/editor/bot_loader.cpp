#include "editor/bot_loader.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressDialog>

#include "editor/busy.h"
#include "editor/game_text_conversion.h"
#include "install/game_folder.h"
#include "session/bot_sources.h"
#include "session/load_from_package.h"
#include "support/files.h"

namespace fragsmith {

std::optional<LoadedBot> BotLoader::FromList(int kind,
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
  return FromPackage(kind, entry,
                     PackageFolder(PathFromBytes(state_.settings.Q3Baseq3)) /
                         PathFromGameText(entry.PK3File),
                     options, current);
}

std::optional<LoadedBot> BotLoader::FromPackage(
    int kind, const BotListEntry& entry, const std::filesystem::path& package,
    const OpenOptions& options, const Bot& current) {
  if (!state_.folder_state.WinZipFound) {
    state_.prompts.Show(
        {.title = "Sorry!",
         .text = "Loading bot files from Pk3-files requires WinZip and WinZip "
                 "command line support add-on. If have these then select the "
                 "WinZip directory from Program/Options",
         .icon = MessageIcon::kInformation});
    return std::nullopt;
  }
  QProgressDialog progress(QString(), QStringLiteral("Cancel"), 0, 0, &window_);
  // A name may hold what looks like markup.
  auto* const text = new QLabel(
      QStringLiteral("Loading %1...").arg(ToQString(entry.Name)), &progress);
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
       .LoType = kind == kWholeBotKind ? kWholeBot : kind,
       .withScript = options.loads_description && entry.HasBotScript,
       .loads_description = options.loads_description},
      current, tool, state_.temporary, state_.Environment());
  if (!loaded) {
    state_.prompts.Show(
        {.title = "Operation cancelled!",
         .text = "Bot " + Utf8FromGameText(entry.Name) + " not loaded.",
         .icon = MessageIcon::kInformation});
  }
  return loaded;
}

std::optional<LoadedBot> BotLoader::FromFile(int kind,
                                             const std::filesystem::path& path,
                                             const OpenOptions& options,
                                             const Bot& current) {
  if (kind == kWholeBotKind) {
    const std::optional<std::string> name = BotNameOfFile(path);
    if (!name) return std::nullopt;
    return LoadBotFromFolder(
        *name, path.parent_path(),
        {options.loads_with_layout, options.loads_description},
        state_.Environment());
  }
  LoadedBot loaded;
  loaded.bot = current;
  if (!LoadSingleFile(static_cast<BotFile>(kind), path, loaded,
                      state_.prompts)) {
    return std::nullopt;
  }
  return loaded;
}

}  // namespace fragsmith
