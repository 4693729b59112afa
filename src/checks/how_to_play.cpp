// What LocationCheck tells of how a bot comes into a game.

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "checks/location_checks.h"
#include "install/packages/package.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

void LocationCheck::AddHowToPlay(std::vector<Finding>& findings) const {
  const BotFileSet& files = on_disk_.files;
  if (!given_.is_packed() && !HasPackageBeside()) {
    findings.push_back(LooseFilesHint(on_disk_));
  }
  if (!files.description) return;
  const std::string name = NameToAdd(files);
  // A name may be a sign that is none, or run over the lines of its file.
  const bool has_name =
      std::ranges::any_of(name,
                          [](char one) { return one != '=' && one != ':'; }) &&
      !Contains(name, "\n");
  const bool is_refused =
      !has_name || std::ranges::any_of(findings, &Finding::keeps_out);
  findings.push_back(HowToAdd(
      has_name ? name : location_.name,
      FilePlace{.file = files.description->name, .kind = BotFile::kDescription},
      OpenedText()));
  std::string& text = findings.back().text;
  if (is_refused) {
    text = Localized("Once the errors are mended: %1", {text});
  } else if (files.character &&
             !EqualIgnoringCase(name, BotOfPath(files.character->game_path))) {
    text = Localized("In the game the bot is called %1, not as its files are.",
                     {Quoted(name)}) +
           " " + text;
  }
}

/// A package that was made with the files, and has them as they are.
bool LocationCheck::HasPackageBeside() const {
  const std::optional<GameFile>& character = on_disk_.files.character;
  if (!character) return false;
  const std::optional<std::filesystem::path> package =
      FindFile(LayoutRootOf(location_.folder).value_or(location_.folder),
               BotPackageName(location_.name));
  if (!package) return false;
  return std::ranges::all_of(kBotFileMembers, [&](const BotFileMember& row) {
    const std::optional<GameFile>& file = on_disk_.files.*row.member;
    if (!file) return true;
    const bool is_description = row.file == BotFile::kDescription;
    const std::string name =
        BytesFromPath(PathFromBytes(file->game_path).filename());
    const Result<std::string> packed = ReadPackageEntry(
        *package, is_description ? std::string(kScriptsPath) + name
                                 : InBotFiles(InBots(name)));
    return packed && *packed == file->bytes;
  });
}

/// " The game reads scripts/x.bot, botfiles/bots/x_c.c and
/// botfiles/bots/sarge_w.c (pak0.pk3)", with the package of those that are not
/// among the given.
std::string LocationCheck::OpenedText() const {
  std::vector<std::string> names;
  for (const std::string& path :
       FilesOpened(on_disk_.files,
                   [this](std::string_view name) { return LookUp(name); })) {
    std::string name = ShownText(path);
    if (!given_.Open(path)) name += " (" + PackageOf(path) + ")";
    if (std::find(names.begin(), names.end(), name) == names.end()) {
      names.push_back(std::move(name));
    }
  }
  return names.empty()
             ? ""
             : " " + Localized("The game reads %1.", {Enumeration(names)});
}

}  // namespace fragsmith
