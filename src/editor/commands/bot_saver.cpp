#include "editor/commands/bot_saver.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "checks/bot_location.h"
#include "checks/location_checks.h"
#include "editor/commands/save_questions.h"
#include "editor/toolkit/shown_path.h"
#include "game/game_lookup.h"
#include "inplace/described_bots.h"
#include "inplace/game_macro_files.h"
#include "inplace/keep_files.h"
#include "inplace/save_in_place.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

using Files = std::map<BotFile, fs::path>;

std::vector<fs::path> PathsOf(const Files& files) {
  std::vector<fs::path> paths;
  paths.reserve(files.size());
  for (const auto& [file, path] : files) paths.push_back(path);
  return paths;
}

std::string Names(const Files& files) {
  std::string text;
  for (const auto& [file, path] : files) {
    if (!text.empty()) text += ", ";
    text += Utf8FromPath(path.filename());
  }
  return text;
}

BotSaver::Outcome Said(const std::string& text) {
  return {.text = QString::fromStdString(text), .saved = {}};
}

/// Those of the plan that are not there yet.
Files NewOnes(const SavePlan& plan) {
  Files files = plan.files;
  std::erase_if(files, [](const auto& one) { return IsFile(one.second); });
  return files;
}

void LeaveAlone(Files& files, SavePlan& plan) {
  for (const auto& [file, path] : files) {
    plan.files.erase(file);
    plan.contents.erase(file);
  }
  plan.left_alone.merge(files);
  // One that is made would be half of this bot and half of another.
  plan.package.reset();
}

}  // namespace

BotSaver::Extras BotSaver::Offer() const {
  return {.keeps_files = HasFilesToKeep(current_.bot(), home()),
          .game_macros = !OtherMacrosFor(home().files, Game()).empty()};
}

BotSaver::Outcome BotSaver::SaveTo(const SaveTarget& target, Extras extras) {
  SavePlan plan = PlanOf(current_.bot(), target);
  Notes notes;
  if (extras.keeps_files && HasFilesToKeep(current_.bot(), home())) {
    bool is_cancelled = false;
    notes = KeepAuthorsFiles(current_.bot(), home(), Game(),
                             AskForNumber(state_.prompts, is_cancelled), plan);
    if (is_cancelled) return {};
  }
  if (extras.game_macros) {
    WriteGameMacros(OtherMacrosFor(home().files, Game()), current_.bot(),
                    AuthorOf(state_.settings), home().files, plan);
  }
  if (!MayWriteOver(plan, {}) || !MayDropFiles(plan) || !MayDropBots(plan) ||
      !MayReplaceOthers(plan) || !MayDescribeTwice(plan)) {
    return {};
  }
  Outcome outcome = Write(plan, false, true);
  if (!outcome.text.isEmpty() && !notes.empty()) TellNotKept(notes);
  if (outcome.saved) {
    home().target = target;
    home().left_package.reset();
    if (!target.options.makes_package) home().package.reset();
  }
  return outcome;
}

std::optional<BotSaver::Outcome> BotSaver::SaveAgain() {
  TakeUpEarlier(current_.bot(), home());
  std::optional<SavePlan> plan = PlanOfSaveAgain(current_.bot(), home());
  if (!plan) return SaveIntoPackage();
  if (!MayMakeAnew(*plan)) {
    // It is in no file any more.
    current_.SetChanged(true);
    return Outcome{};
  }
  const Author author = AuthorOf(state_.settings);
  const IncludeLookup game = Game();
  const SaveInPlace save = {current_.bot(), home(),         author,
                            game,           state_.prompts, Broken()};
  const InPlacePlan in_place = PlanInPlace(save, *plan);
  if (in_place.is_cancelled) return Outcome{};
  Notes not_kept;
  if (HasNewName(*plan, home())) {
    bool is_cancelled = false;
    not_kept = KeepFilesUnderNewName(save, *plan, is_cancelled);
    if (is_cancelled) return Outcome{};
  }
  const Unread unread = AskAboutUnread(*plan);
  if (unread == Unread::kCancelled) return Outcome{};
  Files agreed;
  const Unread others = AskAboutOthersEdits(*plan, agreed);
  if (others == Unread::kCancelled) return Outcome{};
  const bool leaves_changes = in_place.leaves_changes ||
                              unread == Unread::kLeft ||
                              others == Unread::kLeft;
  if (unread == Unread::kNoneLeft) AskAboutPackage(*plan);
  if (HasNewName(*plan, home()) && !MayDescribeTwice(*plan)) return Outcome{};
  if (plan->files.empty() && !plan->package) {
    if (leaves_changes || !in_place.left_broken.empty()) {
      if (!leaves_changes) current_.SetChanged(false);
      return Said(Localized("Nothing was written."));
    }
    current_.SetChanged(false);
    return Said(
        Localized("The files say all this already; nothing was written."));
  }
  if (!MayWriteOver(*plan, agreed)) return Outcome{};
  if (const Result<void> kept = WriteBackups(in_place); !kept) {
    Tell(kept.error());
    return Outcome{};
  }
  const Files made = NewOnes(*plan);
  Outcome outcome = Write(*plan, leaves_changes, false);
  const auto chat = home().files.find(BotFile::kChat);
  if (chat != home().files.end()) chat->second.spellings = in_place.spellings;
  for (const auto& [kind, before] : in_place.before_edits) {
    const auto file = home().files.find(kind);
    if (file != home().files.end()) file->second.before_edits = before;
  }
  if (outcome.text.isEmpty()) return outcome;
  outcome.notes = in_place.notes;
  if (!not_kept.empty()) TellNotKept(not_kept);
  if (!made.empty()) {
    outcome.text +=
        u' ' + QString::fromStdString(Localized("New: %1.", {Names(made)}));
  }
  // That what was not edited stays as it is goes without saying.
  for (const BotFile file : in_place.unchanged) plan->left_alone.erase(file);
  if (!plan->left_alone.empty()) {
    outcome.text +=
        u' ' + QString::fromStdString(
                   Localized("Left as it is: %1.", {Names(plan->left_alone)}));
  }
  return outcome;
}

BotSaver::Unread BotSaver::AskAboutUnread(SavePlan& plan) {
  Files unread =
      TakeOutUnread(plan, current_.bot(), home(), AuthorOf(state_.settings));
  if (unread.empty()) return Unread::kNoneLeft;
  const std::string others = unread.contains(BotFile::kDescription)
                                 ? BotsThatGo(plan, current_.bot())
                                 : std::string();
  enum : std::size_t { kCancel, kLeave, kReplace };
  const std::size_t choice = state_.prompts.Choose(
      std::string(kProgramTitle),
      NotRead(PathsOf(unread)) + " " +
          (others.empty() ? others : OtherBotsGo(others) + " ") +
          MayBeReplaced(unread.size()),
      {Localized("Cancel"), Localized("Save the rest"),
       Localized(unread.size() == 1 ? Localizable("Replace it")
                                    : Localizable("Replace them"))});
  if (choice == kCancel) return Unread::kCancelled;
  if (choice == kReplace) return Unread::kNoneLeft;
  LeaveAlone(unread, plan);
  return Unread::kLeft;
}

void BotSaver::AskAboutPackage(SavePlan& plan) {
  const auto is_own = [this](const fs::path& path) {
    return home().package && home().package->path == path;
  };
  if (plan.package) {
    if (is_own(*plan.package) || !IsFile(*plan.package)) return;
    plan.package.reset();  // That of another bot, until the user says so.
  }
  const std::optional<PackageBeside> beside =
      FindPackageBeside(plan, current_.bot());
  if (!beside || home().left_package == beside->path) return;
  if (is_own(beside->path) || MayRenew(*beside)) {
    plan.package = beside->path;
  } else {
    home().left_package = beside->path;
  }
}

bool BotSaver::MayDropFiles(const SavePlan& plan) {
  const std::size_t others =
      plan.package ? OtherFilesIn(*plan.package, current_.bot()) : 0;
  return others == 0 ||
         state_.prompts.Confirm(std::string(kProgramTitle),
                                IsThere(*plan.package) + " " +
                                    WhatGoes(others) + " " + MayBeReplaced(1));
}

bool BotSaver::MayDropBots(const SavePlan& plan) {
  const std::string others = BotsThatGo(plan, current_.bot());
  return others.empty() ||
         state_.prompts.Confirm(std::string(kProgramTitle),
                                IsThere(plan.files.at(BotFile::kDescription)) +
                                    " " + OtherBotsGo(others) + " " +
                                    MayBeReplaced(1));
}

bool BotSaver::MayReplaceOthers(const SavePlan& plan) {
  const std::vector<fs::path> others =
      NeverRead(plan, current_.bot(), home(), AuthorOf(state_.settings));
  return others.empty() ||
         state_.prompts.Confirm(
             std::string(kProgramTitle),
             NotRead(others) + " " + MayBeReplaced(others.size()));
}

bool BotSaver::MayDescribeTwice(const SavePlan& plan) {
  const std::string twice = NameDescribedTwice(plan, current_.bot());
  return twice.empty() ||
         state_.prompts.Confirm(
             std::string(kProgramTitle),
             twice + " " + Localized("Do you want to save it so?"));
}

bool BotSaver::MayRenew(const PackageBeside& beside) {
  std::string text = Localized(
      "'%1' lies there too, and the game takes the bot out of it and "
      "not from the files. Do you want to make it anew?",
      {Utf8FromPath(beside.path)});
  if (beside.other_files > 0) text += " " + WhatGoes(beside.other_files);
  return state_.prompts.Confirm(std::string(kProgramTitle), text);
}

BotSaver::Unread BotSaver::AskAboutOthersEdits(SavePlan& plan, Files& agreed) {
  const Bot* const before = Before(home());
  if (before == nullptr) return Unread::kNoneLeft;
  SavePlan unedited = {.files = plan.files};
  std::erase_if(unedited.files, [&](const auto& file) {
    return !ChangesIn(file.first, *before, current_.bot()).empty();
  });
  const std::vector<fs::path> changed = ChangedByOthers(unedited, home());
  Files theirs = std::move(unedited.files);
  std::erase_if(theirs, [&changed](const auto& file) {
    return std::ranges::find(changed, file.second) == changed.end();
  });
  if (theirs.empty()) return Unread::kNoneLeft;
  enum : std::size_t { kCancel, kLeave, kOverwrite };
  const std::size_t choice = state_.prompts.Choose(
      std::string(kProgramTitle), EditedByOthersAlone(PathsOf(theirs)),
      {Localized("Cancel"), Localized("Save the rest"),
       Localized(theirs.size() == 1 ? Localizable("Overwrite it")
                                    : Localizable("Overwrite them"))});
  if (choice == kCancel) return Unread::kCancelled;
  if (choice == kOverwrite) {
    agreed = std::move(theirs);
    return Unread::kNoneLeft;
  }
  LeaveAlone(theirs, plan);
  return Unread::kLeft;
}

bool BotSaver::MayWriteOver(SavePlan plan, const Files& agreed) {
  std::erase_if(plan.files,
                [&](const auto& file) { return agreed.contains(file.first); });
  const std::vector<fs::path> changed = ChangedByOthers(plan, home());
  return changed.empty() || state_.prompts.Confirm(std::string(kProgramTitle),
                                                   MayBeOverwritten(changed));
}

bool BotSaver::MayMakeAnew(SavePlan& plan) {
  const std::vector<fs::path> gone = GoneSince(plan, home());
  const std::optional<fs::path> list = ListWithoutBot(plan, home());
  std::string text;
  if (!gone.empty()) {
    text =
        MayBeMadeAnew(gone, gone.size() == 1 && gone.front() == plan.package);
  }
  if (list) {
    if (!text.empty()) text += "\n\n";
    text += Localized(
        "'%1' does not describe the bot any more. Do you want to make '%2'?",
        {Utf8FromPath(*list),
         Utf8FromPath(plan.files.at(BotFile::kDescription))});
  }
  if (text.empty()) return true;
  if (!state_.prompts.Confirm(std::string(kProgramTitle), text)) return false;
  AddMissingFolders(plan);
  return true;
}

BotSaver::Outcome BotSaver::Write(const SavePlan& plan, bool leaves_changes,
                                  bool has_box) {
  NoPrompts silent;
  Prompts& boxes = has_box ? state_.prompts : silent;
  const SavedBot saved =
      SaveFiles(current_.bot(), plan, AuthorOf(state_.settings), boxes);
  if (!has_box && saved.counts_package && saved.error) Tell(*saved.error);
  if (saved.counts_package) ++state_.settings.Bots;
  Remember(saved, plan, home());
  RememberValues(saved, plan, leaves_changes);
  if (saved.files.size() < plan.files.size()) {
    TellHalfWritten(plan, saved);
    return {};
  }
  const fs::path& first = plan.files.contains(BotFile::kCharacteristics)
                              ? plan.files.at(BotFile::kCharacteristics)
                              : plan.left_alone.at(BotFile::kCharacteristics);
  const std::string where = Utf8FromPath(FolderOf(plan));
  const std::string text =
      saved.package && !has_box
          ? Localized("The bot was written to %1, with %2.",
                      {where, Utf8FromPath(saved.package->path.filename())})
          : Localized("The bot was written to %1.", {where});
  Outcome outcome = Said(text);
  // The game goes on with the old package.
  const bool is_package_left = !has_box && plan.package && !saved.package;
  if (!leaves_changes && !is_package_left) {
    outcome.saved = first;
    current_.SetChanged(false);
  }
  return outcome;
}

void BotSaver::RememberValues(const SavedBot& saved, const SavePlan& plan,
                              bool leaves_changes) {
  std::vector<BotFile> left;
  for (const auto& [file, path] : plan.files) {
    const auto written = saved.files.find(file);
    const auto known = home().files.find(file);
    const bool is_done = written != saved.files.end() &&
                         known != home().files.end() &&
                         known->second == written->second;
    if (!is_done) left.push_back(file);
  }
  // Without changes that are left, these files say what the bot has.
  if (leaves_changes) {
    for (const auto& [file, path] : plan.left_alone) left.push_back(file);
  }
  const Bot* const before = Before(home());
  home().saved = std::make_shared<const Bot>(AsWritten(
      before != nullptr ? *before : current_.bot(), current_.bot(), left));
}

std::optional<BotSaver::Outcome> BotSaver::SaveIntoPackage() {
  if (!IsInOwnPackage(current_.bot(), home())) return std::nullopt;
  const std::filesystem::path package = home().files.begin()->second.path;
  if (!IsFile(package)) {
    Tell({.what = Localized("The package is not there any more."),
          .file = Utf8FromPath(package),
          .line = 0,
          .advice = Localized("Choose a folder for the bot's files.")});
    return std::nullopt;
  }
  const Author author = AuthorOf(state_.settings);
  const Result<std::optional<InPlacePlan>> saved = SaveIntoOwnPackage(
      {current_.bot(), home(), author, Game(), state_.prompts, Broken()},
      home());
  if (!saved) {
    Tell(saved.error());
    return Outcome{};
  }
  if (!*saved) return Outcome{};
  if (!(*saved)->leaves_changes) current_.SetChanged(false);
  Outcome outcome = Said(Localized("The bot was written into %1.",
                                   {ShownPath(package).toStdString()}));
  outcome.notes = (*saved)->notes;
  return outcome;
}

std::string BotSaver::Changes() {
  const Author author = AuthorOf(state_.settings);
  return ChangesToShow(
      {current_.bot(), home(), author, Game(), state_.prompts});
}

BrokenFiles BotSaver::Broken() const {
  // An edit changes what was edited. Who saves without one wants the files
  // good.
  if (current_.is_changed()) return {};
  const std::optional<BotLocation> location = LocationOf(home());
  if (!location) return {};
  const std::optional<InstalledGame> game =
      ReadInstalledGame(PathFromBytes(state_.settings.Q3Baseq3));
  const LocationCheck check(*location, !home().load_options.loads_description,
                            game ? &*game : nullptr);
  return check.BrokenOnes(current_.bot());
}

IncludeLookup BotSaver::Game() const {
  return GameLookUp(PathFromBytes(state_.settings.Q3Baseq3));
}

void BotSaver::TellNotKept(const Notes& notes) {
  std::string text = Localized(
      "The files are as their author wrote them, with your changes, but:");
  for (const Note& note : notes.list()) {
    text += "\n- " + (note.file.empty() ? "" : note.file + ": ") + note.text;
  }
  state_.prompts.Show({.title = std::string(kProgramTitle),
                       .text = std::move(text),
                       .icon = MessageIcon::kInformation});
}

void BotSaver::Tell(const Error& error) {
  state_.prompts.Show({.title = std::string(kProgramTitle),
                       .text = Describe(error),
                       .icon = MessageIcon::kExclamation});
}

void BotSaver::TellHalfWritten(const SavePlan& plan, const SavedBot& saved) {
  std::string text = Describe(*saved.error);
  if (!saved.files.empty()) {
    Files made;
    Files old = plan.files;
    for (const auto& [file, known] : saved.files) {
      made.emplace(file, known.path);
      old.erase(file);
    }
    text +=
        "\n\n" +
        Localized("The bot is saved in part only. New: %1. Not written: %2.",
                  {Names(made), Names(old)});
  }
  state_.prompts.Show({.title = std::string(kProgramTitle),
                       .text = std::move(text),
                       .icon = MessageIcon::kExclamation});
}

}  // namespace fragsmith
