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
               ? "Fragsmith does not know where the game is. Set its folder "
                 "with Program > Options first."
               : "There is no folder of the game's packages, such as baseq3, "
                 "in " +
                     Utf8FromPath(game) + ". Look at Program > Options.");
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
          "The game will not take the bot as it is: " + refusal +
              " Do you want to install it all the same?")) {
    emit StatusText(tr("Nothing was installed."));
    return;
  }
  const std::size_t others = OtherFilesIn(package, bot);
  if (is_there &&
      !state_.prompts.Confirm(std::string(kProgramTitle),
                              "There is a package " + name + " in " +
                                  shown_folder + " already. " +
                                  (others > 0 ? WhatGoes(others) + " " : "") +
                                  "Do you want to replace it?")) {
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
  const std::string done =
      name + " is in " + shown_folder +
      (is_there ? ", in the place of the one before." : ".");
  emit StatusText(QString::fromStdString(done));
  std::string text = done;
  if (!macros.empty()) {
    text +=
        "\n\nYour game has weight code of its own: the weights are in it "
        "under that code's names as well.";
  }
  if (!not_kept.empty()) {
    text += "\n\nThe files in it are as their author wrote them, but:";
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
    return "see the errors in the list of findings (F8).";
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
      text + "\n\nIn the game, open the console and type\n" + command,
      {"Close", "Copy " + command, "Try now"});
  if (choice == kCopy) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(command));
    emit StatusText(QString::fromStdString("Copied: " + command));
  } else if (choice == kTry) {
    emit TryWanted();
  }
}

}  // namespace fragsmith
