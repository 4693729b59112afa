#include "inplace/bot_edits.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <variant>

#include "botfiles/characteristic_file.h"
#include "chat/vocabulary.h"
#include "game/description_reader.h"
#include "game/game_path.h"
#include "inplace/described_bots.h"
#include "inplace/game_values.h"
#include "inplace/game_weights.h"
#include "inplace/lines_there.h"
#include "inplace/named_files.h"
#include "inplace/origin_files.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "session/bot_difference.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct EditRules {
  const NumberChooser& chooser;
  const BrokenFiles& broken;
  bool takes_part;  ///< What is refused leaves all else to be edited.
};

/// An edit of the file as it was before the first one, where that is known and
/// the file is as the last one left it: what was taken back since then stands
/// as its author wrote it. False where it has to begin with what is there.
bool EditFromAuthors(const BothReaders& readers, const Bot& after,
                     FileEdit& edit) {
  const auto& from = edit.origin.before_edits;
  if (from == nullptr ||
      FingerprintOf(edit.old_bytes) != edit.origin.fingerprint) {
    return false;
  }
  Notes notes;
  Result<std::string> edited = EditInPlace(readers, from->bytes, from->bot,
                                           after, {}, {&notes, nullptr});
  if (!edited) return false;
  edit.notes = std::move(notes);
  edit.made_from = from;
  edit.bytes = *std::move(edited);
  return true;
}

/// Given the file's bytes as they are now.
void Edit(const BothReaders& readers, Result<std::string> old,
          const Bot& before, const Bot& after, const EditRules& rules,
          FileEdit& edit) {
  const auto refuse = [&edit](Error reason) {
    edit.outcome = FileEdit::Outcome::kNotEditable;
    edit.reason = std::move(reason);
  };
  if (!old) {
    refuse(old.error());
    return;
  }
  edit.old_bytes = *std::move(old);
  const bool is_changed =
      !ChangesIn(readers.file().kind, before, after).empty();
  if (is_changed && EditFromAuthors(readers, after, edit)) {
    if (edit.bytes != edit.old_bytes) {
      edit.outcome = FileEdit::Outcome::kEdited;
    }
  } else if (is_changed) {
    Result<std::string> edited =
        EditInPlace(readers, edit.old_bytes, before, after, rules.chooser,
                    {&edit.notes, rules.takes_part ? &edit.refused : nullptr});
    if (!edited) {
      refuse(edited.error());
    } else if (*edited != edit.old_bytes) {
      edit.outcome = FileEdit::Outcome::kEdited;
      edit.bytes = *std::move(edited);
      edit.made_from = std::make_shared<const AuthorsFile>(
          AuthorsFile{edit.old_bytes, before});
    }
  }
  const FileReading reading = readers.Read(edit.old_bytes);
  if (is_changed) {
    edit.origin.spellings.merge(SpellingsIn(edit.old_bytes, reading));
  }
  // A file written anew could not have such a value either.
  const BotFile kind = readers.file().kind;
  const bool is_hopeless = std::ranges::any_of(
      ChangesIn(kind, before, after), [&](const FileChange& change) {
        return !ValueRefusal(kind, change, after).empty();
      });
  if (is_hopeless) return;
  for (const Note& note : reading.report.notes.list()) {
    edit.losses.push_back(
        note.line == 0
            ? note.text
            : Localized("Line %1: %2", {std::to_string(note.line), note.text}));
  }
}

/// The bot with what a file says by now that another program has changed: edits
/// are to what is there.
Bot AsInFile(const BothReaders& readers, std::string_view bytes,
             const Bot& before) {
  Bot now = before;
  const FileReading reading = readers.Read(bytes);
  const auto take = [&](ParameterId id) {
    if (reading.report.Gives(id)) {
      now.Put(id, reading.bot.Parameter(id));
    }
  };
  for (const FileChange& change :
       ChangesIn(readers.file().kind, before, reading.bot)) {
    if (const auto* const type = std::get_if<ChatTypeId>(&change)) {
      CopyChatType(*type, reading.bot, now);
      continue;
    }
    take(std::get<ParameterId>(change));
    if (change == FileChange(kModelField)) take(kSkinField);
  }
  const BotFile kind = readers.file().kind;
  if (kind != BotFile::kWeaponWeights && kind != BotFile::kItemWeights) {
    return now;
  }
  for (const FoundWeight& found : UnreadWeights(kind, bytes, reading)) {
    now.Put(found.parameter, found.own.number);
  }
  return now;
}

/// By what name a description speaks of the bot: several of a list may share
/// the files.
std::string CalledIn(const std::string& description, const Bot& bot,
                     const std::string& called) {
  Complaints untold;
  const std::vector<DescriptionSet> sets =
      ReadGameDescription({{}, {}, description}, untold);
  const bool has_name =
      std::ranges::any_of(sets, [&](const DescriptionSet& set) {
        return EqualIgnoringCase(set.Text("name"), bot.Name()) &&
               EqualIgnoringCase(set.Text("aifile"), CharacterPath(called));
      });
  return has_name ? bot.Name() : called;
}

/// The chats that the bot's character asks for, its own name last.
std::vector<std::string> ChatNamesOf(const OriginFiles& files,
                                     const std::string& called) {
  std::vector<std::string> names;
  for (NamedFile& name : NamesInCharacter(files, kChatNameField)) {
    names.push_back(std::move(name.text));
  }
  names.push_back(called);
  return names;
}

/// What reads one of the bot's files, given its bytes.
BothReaders ReadersOf(const OriginFiles& files, BotFile kind,
                      const std::string& bytes, const Bot& bot,
                      const IncludeLookup& game) {
  const OriginFile& origin = files.at(kind);
  FileOfBot file = {kind, ShownAt(origin), CalledBy(files), origin.spellings};
  if (kind == BotFile::kDescription) {
    file.called = CalledIn(bytes, bot, file.called);
  }
  if (kind == BotFile::kChat) {
    file.chat_names = ChatNamesOf(files, file.called);
  }
  return {std::move(file), LookUpBeside(origin, game)};
}

/// What is written has the values that it was to have, and for the game may be
/// no good all the same.
void NoteFault(const BothReaders& readers, FileEdit& edit) {
  const std::optional<Complaint> fault = readers.FaultInGame(edit.bytes);
  if (!fault) return;
  edit.notes.Add({fault->place.file,
                  static_cast<std::size_t>(std::max(fault->place.line, 0)),
                  Localized("The game does not take the file as it is, with "
                            "this edit or without: %1",
                            {fault->text})});
}

void Refuse(Error reason, FileEdit& edit) {
  edit.outcome = FileEdit::Outcome::kNotEditable;
  edit.reason = std::move(reason);
  edit.reason.file = edit.shown;
}

/// Where an edit would change another file of the bot too, or one that the game
/// does not read for it.
void RefuseOtherFile(const OriginFiles& files, BotFile kind, FileEdit& edit) {
  if (const std::string twin = OneWith(files, kind); !twin.empty()) {
    edit.bytes.clear();
    return Refuse(
        {.what = Localized("By a link this file and %1 are one, and an edit "
                           "would change both. Make two files of them first.",
                           {twin})},
        edit);
  }
  const std::string other = NamedInstead(files, kind);
  if (other.empty()) return;
  Refuse({.what = Localized("The game does not read this file for the bot, "
                            "whose characteristic file names %1.",
                            {Utf8FromGameText(other)}),
          .advice = Localized("Name this file there, or edit the one that it "
                              "names.")},
         edit);
}

BotEdits EditAll(const OriginFiles& files, const Bot& before, const Bot& after,
                 const IncludeLookup& game, const EditRules& rules) {
  BotEdits edits;
  const auto add_homeless = [&edits](const std::string& name) {
    const auto& known = edits.homeless;
    if (std::find(known.begin(), known.end(), name) == known.end()) {
      edits.homeless.push_back(name);
    }
  };
  for (const BotFile kind : kOwnFilesFirst) {
    const auto origin = files.find(kind);
    if (origin == files.end()) {
      for (const FileChange& change : ChangesIn(kind, before, after)) {
        // The name also stands in files that the bot has.
        if (change == FileChange(kNameField)) continue;
        add_homeless(NameOf(change));
      }
      continue;
    }
    FileEdit& edit = edits.files[kind];
    edit.origin = origin->second;
    edit.shown = ShownAt(origin->second);
    // Version and comment are in the head of our own files.
    const auto fault = rules.broken.find(kind);
    const bool is_broken = fault != rules.broken.end();
    Result<std::string> bytes = BytesAt(origin->second);
    const bool is_changed =
        bytes && FingerprintOf(*bytes) != origin->second.fingerprint;
    if (!is_changed && !is_broken && ChangesIn(kind, before, after).empty() &&
        ChangesInNoFile(before, after).empty()) {
      continue;
    }
    const BothReaders readers =
        ReadersOf(files, kind, bytes.value_or(std::string()), before, game);
    const Bot now = is_changed ? AsInFile(readers, *bytes, before) : before;
    const std::vector<FileChange> changes = ChangesIn(kind, now, after);
    Edit(readers, std::move(bytes), now, after, rules, edit);
    if (edit.outcome == FileEdit::Outcome::kEdited) {
      NoteOthers(files, kind, before.Name(), edit.shown, edit.notes);
      if (!is_broken) NoteFault(readers, edit);
    }
    if (!changes.empty()) RefuseOtherFile(files, kind, edit);
    if (is_broken && edit.outcome != FileEdit::Outcome::kNotEditable) {
      Refuse({.what = Localized("The game does not take this file as it is.") +
                      " " + fault->second},
             edit);
    }
  }
  for (const ParameterId id : ChangesInNoFile(before, after)) {
    add_homeless(QuotedName(id));
  }
  return edits;
}

}  // namespace

bool BotEdits::IsEditable() const {
  return homeless.empty() &&
         std::none_of(files.begin(), files.end(), [](const auto& file) {
           return file.second.outcome == FileEdit::Outcome::kNotEditable;
         });
}

bool BotEdits::IsWhole() const {
  return IsEditable() && std::ranges::all_of(files, [](const auto& file) {
           return file.second.refused.empty();
         });
}

bool BotEdits::HasEdits() const {
  return std::any_of(files.begin(), files.end(), [](const auto& file) {
    return file.second.outcome == FileEdit::Outcome::kEdited;
  });
}

BotEdits EditBotFiles(const OriginFiles& files, const Bot& before,
                      const Bot& after, const IncludeLookup& game,
                      const NumberChooser& chooser, const BrokenFiles& broken) {
  return EditAll(files, before, after, game,
                 {.chooser = chooser, .broken = broken, .takes_part = false});
}

BotEdits EditWhatCanBe(const OriginFiles& files, const Bot& before,
                       const Bot& after, const IncludeLookup& game) {
  const NumberChooser nobody;
  const BrokenFiles none;
  const EditRules rules = {
      .chooser = nobody, .broken = none, .takes_part = true};
  BotEdits edits = EditAll(files, before, after, game, rules);
  for (auto& [kind, edit] : edits.files) {
    const auto name = std::ranges::find(edit.refused, FileChange(kNameField),
                                        &RefusedChange::change);
    if (name == edit.refused.end()) continue;
    Bot named_as_before = after;
    named_as_before.Put(kNameField, before.Name());
    BotEdits others = EditAll(files, before, named_as_before, game, rules);
    others.files[kind].refused.push_back(std::move(*name));
    return others;
  }
  return edits;
}

namespace {

constexpr std::string_view kLineKept = Localizable(
    "%1 keeps a line that stands in the block \"%2\" and that the new list has "
    "not: no edit of a list takes anything from the block of another type. "
    "Remove them by hand where you want them gone.");
constexpr std::string_view kLinesKept = Localizable(
    "%1 keeps %3 lines that stand in the block \"%2\" and that the new list "
    "has not: no edit of a list takes anything from the block of another type. "
    "Remove them by hand where you want them gone.");

}  // namespace

Notes KeepLinesElsewhere(const OriginFiles& files, const Bot& before,
                         Bot& after, const IncludeLookup& game) {
  Notes notes;
  const auto origin = files.find(BotFile::kChat);
  const std::vector<FileChange> changes =
      ChangesIn(BotFile::kChat, before, after);
  if (origin == files.end() || changes.empty()) return notes;
  const Result<std::string> bytes = BytesAt(origin->second);
  if (!bytes) return notes;
  const FileReading reading =
      ReadersOf(files, BotFile::kChat, *bytes, before, game).Read(*bytes);
  for (const FileChange& change : changes) {
    const auto type = std::get<ChatTypeId>(change);
    const std::vector<LineThere> kept = AddLinesElsewhere(reading, type, after);
    if (kept.empty()) continue;
    notes.Add(
        {ShownAt(origin->second), 0,
         Localized(kept.size() == 1 ? kLineKept : kLinesKept,
                   {QuotedChatType(type), ShownText(kept.front().elsewhere),
                    std::to_string(kept.size())})});
  }
  return notes;
}

}  // namespace fragsmith
