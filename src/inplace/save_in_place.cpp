#include "inplace/save_in_place.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <variant>

#include "chat/vocabulary.h"
#include "inplace/described_bots.h"
#include "inplace/edit_in_place.h"
#include "inplace/keep_files.h"
#include "inplace/named_files.h"
#include "inplace/origin_files.h"
#include "session/bot_difference.h"
#include "session/bot_file.h"
#include "session/load_bot.h"
#include "session/save_again.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"
#include "support/text.h"
#include "support/unified_diff.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

enum class Answer { kCancel, kLeave, kWriteAnew };

/// The files that are saved to where they came from. Under another name the
/// bot has a description of its own, and so it has when no list describes it.
OriginFiles SavedInPlace(const BotHome& home, const SavePlan& plan) {
  OriginFiles files;
  const bool has_new_name = HasNewName(plan, home);
  for (const auto& [kind, file] : home.files) {
    if (!file.is_on_disk() || !IsFile(file.path)) continue;
    const auto target = plan.files.find(kind);
    const bool is_same =
        target != plan.files.end() && target->second == file.path;
    const bool is_its_list = !has_new_name && IsListOf(file, home);
    if (is_same || is_its_list) files.emplace(kind, file);
  }
  return files;
}

/// True for a file that a save of ours made and that writing it anew costs
/// nothing.
bool IsOurs(const FileEdit& edit, const SaveInPlace& save,
            bool changes_header) {
  const std::string& bytes = edit.old_bytes;
  return HeaderLineCount(bytes) > 0 && edit.losses.empty() &&
         AuthorLine(bytes) == AuthorLine(save.author) &&
         (changes_header || !HeaderSaysMore(bytes));
}

Answer Ask(const FileEdit& edit, Prompts& prompts) {
  constexpr std::size_t kMaxShown = 8;
  std::string text = Localized("'%1'", {edit.shown}) + ": " + edit.reason.what;
  if (!edit.losses.empty()) {
    text += "\n\n" + Localized("A file written anew would lose or change:");
    for (std::size_t at = 0; at < edit.losses.size() && at < kMaxShown; ++at) {
      text += "\n- " + edit.losses[at];
    }
    if (edit.losses.size() > kMaxShown) {
      text +=
          "\n- " + Localized("and %1 more.",
                             {std::to_string(edit.losses.size() - kMaxShown)});
    }
  }
  text +=
      "\n\n" +
      Localized(edit.origin.is_on_disk()
                    ? Localizable("The old file is kept as NAME.bak when it is "
                                  "written anew.")
                    : Localizable("The old file is kept beside the package as "
                                  "NAME.bak when it is written anew."));
  const std::vector<std::string> buttons = {Localized("Cancel"),
                                            edit.bytes.empty()
                                                ? Localized("Leave this file")
                                                : Localized("Edit it in place"),
                                            Localized("Write it anew")};
  return static_cast<Answer>(
      prompts.Choose(std::string(kProgramTitle), text, buttons));
}

/// The edits, with those of files of ours as they are written anew.
BotEdits EditsOf(const SaveInPlace& save, const OriginFiles& files,
                 const NumberChooser& chooser) {
  const Bot& before = *Before(save.home);
  BrokenFiles broken = save.broken;
  const std::string called = CalledBy(save.home.files);
  std::erase_if(broken, [&](const auto& file) {
    const auto origin = files.find(file.first);
    return origin == files.end() || IsList(origin->second, called);
  });
  BotEdits edits =
      EditBotFiles(files, before, save.bot, save.game, chooser, broken);
  const bool changes_header = !ChangesInNoFile(before, save.bot).empty();
  for (auto& [kind, edit] : edits.files) {
    // What was changed by hand so that the game cannot read it is asked about.
    const bool is_unchanged =
        edit.outcome == FileEdit::Outcome::kUnchanged ||
        (broken.contains(kind) && ChangesIn(kind, before, save.bot).empty());
    if ((is_unchanged && !changes_header) || IsList(edit.origin, called) ||
        !IsOurs(edit, save, changes_header)) {
      continue;
    }
    edit.outcome = FileEdit::Outcome::kEdited;
    edit.bytes = BytesOf(kind, save.bot, save.author);
    edit.made_from = nullptr;
    edit.notes = {};
    if (changes_header) edits.homeless.clear();
  }
  return edits;
}

/// What is to be known of the files that are edited in place.
Notes NotesOf(const BotEdits& edits) {
  Notes notes;
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kEdited) continue;
    notes.Append(edit.notes);
  }
  return notes;
}

/// Whose backup it is; that of a file in a package lies beside the package.
fs::path BackedUpAs(const OriginFile& file) {
  if (file.is_on_disk()) return file.path;
  return file.path.parent_path() / PathFromGameText(NameAt(file));
}

/// Settles what is not editable; false when the user cancels.
bool Settle(const SaveInPlace& save, BotEdits& edits, InPlacePlan& result,
            std::vector<BotFile>& left) {
  for (auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kNotEditable) continue;
    switch (Ask(edit, save.prompts)) {
      case Answer::kCancel:
        result.is_cancelled = true;
        return false;
      case Answer::kLeave:
        if (save.broken.contains(kind)) result.left_broken.insert(kind);
        if (!edit.bytes.empty()) {
          edit.outcome = FileEdit::Outcome::kEdited;
          break;
        }
        if (!ChangesIn(kind, *Before(save.home), save.bot).empty()) {
          result.leaves_changes = true;
        }
        edit.outcome = FileEdit::Outcome::kUnchanged;
        left.push_back(kind);
        break;
      case Answer::kWriteAnew:
        // What cannot be read now cannot be kept either.
        if (const Result<std::string> old = BytesAt(edit.origin);
            !old && IsFile(edit.origin.path)) {
          save.prompts.Show({.title = std::string(kProgramTitle),
                             .text = Describe(old.error()),
                             .icon = MessageIcon::kExclamation});
          result.is_cancelled = true;
          return false;
        }
        edit.outcome = FileEdit::Outcome::kEdited;
        edit.bytes = BytesOf(kind, save.bot, save.author);
        edit.made_from = nullptr;
        edit.notes = {};
        result.backups.emplace(BackedUpAs(edit.origin), edit.old_bytes);
    }
  }
  return true;
}

/// A bot of another author keeps the files that it has: what it lacks is not
/// made up as long as nothing in it was edited.
void LeaveOutUnedited(const SaveInPlace& save, const OriginFiles& files,
                      SavePlan& plan) {
  const auto character = files.find(BotFile::kCharacteristics);
  if (character == files.end()) return;
  const Result<std::string> bytes =
      ReadFile(character->second.path, kMaxBotFileBytes);
  if (!bytes || HeaderLineCount(*bytes) > 0) return;
  std::erase_if(plan.files, [&](const auto& file) {
    return !save.home.files.contains(file.first) && !IsFile(file.second) &&
           ChangesIn(file.first, *Before(save.home), save.bot).empty();
  });
}

}  // namespace

const Bot* Before(const BotHome& home) {
  return home.saved ? home.saved.get() : home.loaded.get();
}

NumberChooser AskForNumber(Prompts& prompts, bool& is_cancelled) {
  return [&prompts, &is_cancelled](ParameterId weight,
                                   const std::vector<std::string>& numbers)
             -> std::optional<std::size_t> {
    if (is_cancelled) return std::nullopt;
    std::vector<std::string> buttons = {Localized("Cancel")};
    buttons.insert(buttons.end(), numbers.begin(), numbers.end());
    buttons.push_back(Localized("All of them"));
    const std::size_t answer = prompts.Choose(
        std::string(kProgramTitle),
        Localized("The weight code of the bot's file has several numbers for "
                  "%1. Which one do you want to change?",
                  {QuotedName(weight)}),
        buttons);
    is_cancelled = answer == 0;
    if (is_cancelled) return std::nullopt;
    return answer - 1;
  };
}

InPlacePlan PlanInPlace(const SaveInPlace& save, SavePlan& plan) {
  InPlacePlan result;
  if (Before(save.home) == nullptr) return result;
  const OriginFiles files = SavedInPlace(save.home, plan);
  LeaveOutUnedited(save, files, plan);
  BotEdits edits =
      EditsOf(save, files, AskForNumber(save.prompts, result.is_cancelled));
  std::vector<BotFile> left;
  if (result.is_cancelled || !Settle(save, edits, result, left)) return result;
  result.notes = NotesOf(edits);
  for (auto& [kind, edit] : edits.files) {
    if (kind == BotFile::kChat) result.spellings = edit.origin.spellings;
    result.before_edits[kind] = edit.outcome == FileEdit::Outcome::kEdited
                                    ? edit.made_from
                                    : edit.origin.before_edits;
    // Of a list the bot has no file of its own that a package could take.
    if (IsList(edit.origin, CalledBy(save.home.files))) {
      const bool is_anew = result.backups.erase(edit.origin.path) > 0;
      if (is_anew) continue;
      plan.files.erase(kind);
      if (edit.outcome == FileEdit::Outcome::kUnchanged) continue;
      plan.files.emplace(kind, edit.origin.path);
      plan.contents[kind] = std::move(edit.bytes);
    } else if (edit.outcome == FileEdit::Outcome::kUnchanged) {
      plan.files.erase(kind);
      plan.left_alone.emplace(kind, edit.origin.path);
      const bool is_left =
          std::find(left.begin(), left.end(), kind) != left.end();
      if (!is_left) result.unchanged.push_back(kind);
    } else {
      plan.contents[kind] = std::move(edit.bytes);
    }
  }
  // What is missing is in files that are made now; but no file of another
  // author has version and comment.
  const bool has_header_change =
      !ChangesInNoFile(*Before(save.home), save.bot).empty();
  if (has_header_change && !edits.homeless.empty() && plan.files.empty()) {
    result.leaves_changes = true;
  }
  return result;
}

Result<fs::path> KeepBackup(const fs::path& file, const std::string& bytes) {
  fs::path backup = file;
  backup += ".bak";
  for (int number = 2; IsFile(backup); ++number) {
    const Result<std::string> older = ReadFile(backup);
    if (older && *older == bytes) return backup;
    backup = file;
    backup += ".bak" + std::to_string(number);
  }
  const Result<void> done = SaveFile(backup, bytes);
  if (!done) return Failure(done.error());
  return backup;
}

Result<void> WriteBackups(const InPlacePlan& plan) {
  for (const auto& [path, bytes] : plan.backups) {
    const Result<fs::path> kept = KeepBackup(path, bytes);
    if (!kept) return Failure(kept.error());
  }
  return {};
}

bool IsInOwnPackage(const Bot& bot, const BotHome& home) {
  if (home.files.empty() || home.target) return false;
  const fs::path& package = home.files.begin()->second.path;
  return EqualIgnoringCase(BytesFromPath(package.filename()),
                           BytesFromPath(PackageNameOf(bot))) &&
         std::all_of(home.files.begin(), home.files.end(),
                     [&package](const auto& file) {
                       return !file.second.is_on_disk() &&
                              file.second.path == package;
                     });
}

namespace {

/// Asks about files that are not as this bot's load or save knows them.
bool MayEdit(const BotEdits& edits, Prompts& prompts) {
  std::string names;
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome == FileEdit::Outcome::kEdited &&
        FingerprintOf(edit.old_bytes) != edit.origin.fingerprint) {
      names += '\'' + edit.shown + "'\n";
    }
  }
  return names.empty() ||
         prompts.Confirm(std::string(kProgramTitle),
                         Localized("Changed since the bot was read or saved "
                                   "here:") +
                             "\n" + names +
                             Localized("Do you want to write what you changed "
                                       "all the same?"));
}

}  // namespace

Result<std::optional<InPlacePlan>> SaveIntoOwnPackage(const SaveInPlace& save,
                                                      BotHome& home) {
  InPlacePlan result;
  if (Before(home) == nullptr) return std::optional(result);
  BotEdits edits = EditsOf(save, home.files,
                           AskForNumber(save.prompts, result.is_cancelled));
  std::vector<BotFile> left;
  if (result.is_cancelled || !Settle(save, edits, result, left) ||
      !MayEdit(edits, save.prompts)) {
    return std::optional<InPlacePlan>();
  }
  result.leaves_changes = result.leaves_changes || !edits.homeless.empty();
  result.notes = NotesOf(edits);
  const Result<void> kept = WriteBackups(result);
  if (!kept) return Failure(kept.error());
  const Result<void> written = WriteEdits(edits);
  if (!written) return Failure(written.error());
  for (const auto& [kind, edit] : edits.files) home.files[kind] = edit.origin;
  home.saved =
      std::make_shared<const Bot>(AsWritten(*Before(home), save.bot, left));
  return std::optional(result);
}

Bot AsWritten(const Bot& before, const Bot& after,
              const std::vector<BotFile>& left) {
  Bot bot = after;
  for (const BotFile kind : left) {
    for (const FileChange& change : ChangesIn(kind, before, after)) {
      if (const auto* const id = std::get_if<ParameterId>(&change)) {
        bot.Put(*id, before.Parameter(*id));
        if (*id == kModelField) {
          bot.Put(kSkinField, before.Parameter(kSkinField));
        }
      } else {
        CopyChatType(std::get<ChatTypeId>(change), before, bot);
      }
    }
  }
  return bot;
}

namespace {

/// Adds the files that the plan makes beside the edited ones, and takes out
/// what was edited and stands in these. What they leave out is told.
Notes AddNewFiles(const SaveInPlace& save, SavePlan plan, BotEdits& edits) {
  for (const auto& [kind, edit] : edits.files) plan.files.erase(kind);
  Notes notes;
  if (HasNewName(plan, save.home)) {
    bool is_cancelled = false;  // Nobody is asked.
    notes = KeepFilesUnderNewName(save, plan, is_cancelled);
  }
  TakeOutUnread(plan, save.bot, save.home, save.author);
  const auto settle = [&edits](const FileChange& change) {
    std::erase(edits.homeless, NameOf(change));
  };
  const Bot& before = *Before(save.home);
  for (const auto& [kind, path] : plan.files) {
    FileEdit& made = edits.files[kind];
    made.outcome = FileEdit::Outcome::kEdited;
    made.origin.path = path;
    made.old_bytes = ReadFile(path, kMaxBotFileBytes).value_or(std::string());
    const auto kept = plan.contents.find(kind);
    made.bytes = kept != plan.contents.end()
                     ? kept->second
                     : BytesOf(kind, save.bot, save.author);
    std::ranges::for_each(ChangesIn(kind, before, save.bot), settle);
    if (kept != plan.contents.end()) continue;
    // Version and comment are in the head of a file of ours.
    std::ranges::for_each(ChangesInNoFile(before, save.bot), settle);
  }
  return notes;
}

}  // namespace

std::string ChangesToShow(const SaveInPlace& save) {
  if (Before(save.home) == nullptr) return {};
  BotHome home = save.home;
  TakeUpEarlier(save.bot, home);
  NoPrompts silent;
  const SaveInPlace shown = {save.bot,  home,   save.author,
                             save.game, silent, save.broken};
  std::optional<SavePlan> plan = PlanOfSaveAgain(save.bot, home);
  const OriginFiles files = plan ? SavedInPlace(home, *plan) : home.files;
  BotEdits edits = EditsOf(shown, files, {});
  Notes notes;
  if (plan) {
    LeaveOutUnedited(shown, files, *plan);
    notes = AddNewFiles(shown, *std::move(plan), edits);
  }
  std::string text = DiffOf(edits);
  if (const Result<void> fits = CheckPackages(edits); !fits) {
    text += Describe(fits.error()) + "\n";
  }
  notes.Append(NotesOf(edits));
  for (const Note& note : notes.list()) {
    text += note.file + ": " + note.text + "\n";
  }
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kNotEditable) continue;
    text += edit.shown + ": " + edit.reason.what + "\n";
    for (const std::string& loss : edit.losses) {
      text += "  " + Localized("Written anew: %1", {loss}) + "\n";
    }
  }
  for (const std::string& name : edits.homeless) {
    text += Localized("%1 stands in none of the bot's files.", {name}) + "\n";
  }
  return text;
}

}  // namespace fragsmith
