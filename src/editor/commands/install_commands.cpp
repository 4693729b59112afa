#include "editor/commands/install_commands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "game/game_lookup.h"
#include "inplace/game_macro_files.h"
#include "inplace/keep_files.h"
#include "install/program/game_folder.h"
#include "session/identity_rules.h"
#include "session/save_again.h"
#include "session/save_bot.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"

namespace fragsmith {
namespace fs = std::filesystem;

InstallCommands::InstallCommands(CurrentBot& current, BotChecker& checker,
                                 ProgramState& state, QObject* parent)
    : QObject(parent), current_(current), checker_(checker), state_(state) {}

void InstallCommands::Install() {
  const fs::path game = PathFromBytes(state_.settings.Q3Baseq3);
  const std::optional<fs::path> folder = FolderToInstallInto(game);
  if (!folder) {
    Refuse(game.empty()
               ? Localized("Fragsmith does not know where the game is. Set its "
                           "folder with Program > Options first.")
               : Localized("There is no folder of the game's packages, such as "
                           "baseq3, in %1. Look at Program > Options.",
                           {Utf8FromPath(game)}));
    return;
  }
  const Bot& bot = current_.bot();
  if (const std::optional<Message> refusal = NameRefusal(bot.Name())) {
    Refuse(refusal->text);
    return;
  }
  const fs::path package = *folder / PackageNameOf(bot);
  const std::string name = Utf8FromPath(package.filename());
  const std::string shown_folder = Utf8FromPath(*folder);
  const bool is_there = IsFile(package);
  if (const std::string refusal = GameRefusal();
      !refusal.empty() &&
      !state_.prompts.Confirm(
          std::string(kProgramTitle),
          Localized("The game will not take the bot as it is: %1", {refusal}) +
              " " + Localized("Do you want to install it all the same?"))) {
    emit StatusText(tr("Nothing was installed."));
    return;
  }
  const std::size_t others = OtherFilesIn(package, bot);
  if (is_there && !state_.prompts.Confirm(
                      std::string(kProgramTitle),
                      Localized("There is a package %1 in %2 already.",
                                {name, shown_folder}) +
                          " " + (others > 0 ? WhatGoes(others) + " " : "") +
                          Localized("Do you want to replace it?"))) {
    emit StatusText(tr("Nothing was installed."));
    return;
  }
  const Author author = AuthorOf(state_.settings);
  const IncludeLookup game_files =
      GameLookUp(PathFromBytes(state_.settings.Q3Baseq3));
  SavePlan kept =
      PlanOf(bot, {.folder = *folder,
                   .options = {.uses_layout = true, .makes_package = true}});
  bool is_cancelled = false;
  const Notes not_kept = KeepFilesUnderNewName(
      {bot, *current_.origin().home, author, game_files, state_.prompts}, kept,
      is_cancelled);
  if (is_cancelled) {
    emit StatusText(tr("Nothing was installed."));
    return;
  }
  MacrosByFile macros = OtherMacrosFor({}, game_files);
  std::erase_if(macros, [&kept](const auto& one) {
    return kept.contents.contains(one.first);
  });
  WriteGameMacros(macros, bot, author, current_.origin().home->files, kept);
  SavePlan plan;
  plan.package = package;
  plan.contents = std::move(kept.contents);
  NoPrompts silent;  // What became of it is told here.
  const SavedBot saved = SaveFiles(bot, plan, author, silent);
  if (saved.error) {
    Refuse(Describe(*saved.error));
    return;
  }
  const std::string done = Localized(
      is_there ? Localizable("%1 is in %2, in the place of the one before.")
               : Localizable("%1 is in %2."),
      {name, shown_folder});
  emit StatusText(QString::fromStdString(done));
  std::string text = done;
  if (!macros.empty()) {
    text += "\n\n" +
            Localized(
                "Your game has weight code of its own: the weights are in it "
                "under that code's names as well.");
  }
  if (!not_kept.empty()) {
    text += "\n\n" +
            Localized("The files in it are as their author wrote them, but:");
    for (const Note& note : not_kept.list()) {
      text += "\n- " + note.file + ": " + note.text;
    }
  }
  Offer(text);
}

std::string InstallCommands::GameRefusal() const {
  const auto is_error = [](const Finding& finding) {
    return finding.severity == Severity::kError;
  };
  if (std::ranges::any_of(checker_.findings(), is_error)) {
    return Localized("see the errors in the list of findings (F8).");
  }
  // A bot of the game's own packages is a second one of its name in another.
  const std::vector<Finding> alone = CheckBot(current_.bot(), checker_.game());
  const auto error = std::ranges::find_if(alone, is_error);
  return error == alone.end() ? std::string() : error->text;
}

void InstallCommands::Refuse(const std::string& text) {
  state_.prompts.Show({.title = std::string(kProgramTitle),
                       .text = text,
                       .icon = MessageIcon::kExclamation});
}

void InstallCommands::Offer(const std::string& text) {
  const std::string command =
      "/addbot " + Utf8FromGameText(current_.bot().Name()) + " 3";
  enum : std::size_t { kClose, kCopy, kTry };
  const std::size_t choice = state_.prompts.Choose(
      std::string(kProgramTitle),
      text + "\n\n" + Localized("In the game, open the console and type") +
          "\n" + command,
      {Localized("Close"), Localized("Copy %1", {command}),
       Localized("Try now")});
  if (choice == kCopy) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(command));
    emit StatusText(tr("Copied: %1").arg(QString::fromStdString(command)));
  } else if (choice == kTry) {
    emit TryWanted();
  }
}

}  // namespace fragsmith
