#include "inplace/keep_files.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "botfiles/header_comment.h"
#include "chat/vocabulary.h"
#include "game/lexer.h"
#include "inplace/bot_edits.h"
#include "inplace/file_reading.h"
#include "inplace/origin_files.h"
#include "inplace/save_in_place.h"
#include "inplace/splice.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// Texts of a file, and what is to stand in their place.
using Renames = std::map<std::string, std::string>;

/// A file on its way to a new name.
struct Kept {
  const BothReaders& readers;
  const Bot& bot;
  std::string bytes;
  /// It is written to where it lies: what it says of other bots stays.
  bool is_in_place = false;
};

/// The texts of a .c file that name another file of the bot or its chat.
Renames RenamesIn(const Kept& kept, const FileReading& reading) {
  Renames renames;
  const auto add = [&renames](const std::string& old, std::string text) {
    if (old != text) renames.insert_or_assign(old, std::move(text));
  };
  // Of the chat's name the game does not compare the case.
  const auto add_name = [&](const std::string& old) {
    const std::string text = kept.bot.Text(kChatNameField);
    if (!EqualIgnoringCase(old, text)) add(old, text);
  };
  const std::pair<int, ParameterId> fields[] = {
      {kGameWeaponWeights, kWeaponFileField},
      {kGameItemWeights, kItemFileField},
      {kGameChatFile, kChatFileField},
      {kGameChatName, kChatNameField}};
  for (const auto& [level, block] : reading.levels) {
    for (const auto& [number, field] : fields) {
      const auto value = block.values.find(number);
      if (value == block.values.end()) continue;
      const std::string text = kept.bot.Text(field);
      if (field == kChatNameField) {
        add_name(value->second.text);
      } else {
        add(value->second.text, InBots(text));
      }
    }
  }
  if (kept.readers.file().kind == BotFile::kChat) {
    add_name(ChatNameIn(kept.bytes));
  }
  return renames;
}

/// The bytes with other texts where a string of the game's is one of these.
/// Of a chat file only the name behind "chat" is meant.
std::string Renamed(std::string_view bytes, const Renames& renames,
                    bool is_chat) {
  std::vector<Splice> splices;
  GameLexer lexer(bytes);
  GameToken token;
  bool is_behind_chat = false;
  while (lexer.Next(token) == GameLexer::Outcome::kToken) {
    const auto found = renames.find(token.text);
    if (token.kind == GameToken::Kind::kString && found != renames.end() &&
        (!is_chat || is_behind_chat)) {
      splices.push_back({token.span, '"' + found->second + '"'});
    }
    is_behind_chat = token.Is("chat");
  }
  return Spliced(bytes, std::move(splices));
}

/// Facts that do not tell under which names the bot's files lie.
Facts OtherFacts(const FileReading& reading) {
  Facts facts = reading.facts;
  std::erase_if(facts, [](const auto& fact) {
    const FactKind kind = fact.first.kind;
    return kind == FactKind::kName || kind == FactKind::kDescription;
  });
  for (const auto& [level, block] : reading.levels) {
    for (const int number :
         {kGameWeaponWeights, kGameItemWeights, kGameChatFile, kGameChatName}) {
      facts.erase(LevelFact(level, number));
    }
  }
  return facts;
}

/// The bot's own part of a description, with the path of its character.
std::optional<std::string> DescriptionOf(const Kept& kept,
                                         const FileReading& reading) {
  const auto own =
      std::find_if(reading.descriptions.begin(), reading.descriptions.end(),
                   [&reading](const DescriptionSet& set) {
                     return set.span.begin < reading.block.end &&
                            reading.block.begin < set.span.end;
                   });
  if (own == reading.descriptions.end()) return std::nullopt;
  const auto character = own->values.find("aifile");
  if (character == own->values.end() || character->second.span.empty()) {
    return std::nullopt;
  }
  const TextSpan span = character->second.span;
  const bool is_part = !kept.is_in_place && reading.descriptions.size() > 1;
  const TextSpan part = is_part ? own->span : TextSpan{0, kept.bytes.size()};
  const std::string path = InBots(kept.bot.Text(kCharacteristicFileField));
  const bool is_quoted = kept.bytes[span.begin] == '"';
  std::string text = kept.bytes.substr(part.begin, span.begin - part.begin) +
                     (is_quoted ? '"' + path + '"' : path) +
                     kept.bytes.substr(span.end, part.end - span.end);
  const bool ends_open = !text.ends_with('\n') && !text.ends_with('\r');
  if (ends_open && is_part) {
    text += LineEndOf(kept.bytes, LineAround(kept.bytes, span.begin));
  }
  return text;
}

/// The file under its new name; nothing where it would say something else.
std::optional<std::string> UnderNewName(const Kept& kept) {
  const BotFile kind = kept.readers.file().kind;
  const FileReading before = kept.readers.Read(kept.bytes);
  std::optional<std::string> text =
      kind == BotFile::kDescription
          ? DescriptionOf(kept, before)
          : Renamed(kept.bytes, RenamesIn(kept, before),
                    kind == BotFile::kChat);
  if (!text) return std::nullopt;
  const BothReaders readers(
      {kind, kept.readers.file().shown, kept.bot.Text(kChatNameField)},
      kept.readers.game());
  const FileReading after = readers.Read(*text);
  if (OtherFacts(after) != OtherFacts(before) ||
      after.errors != before.errors) {
    return std::nullopt;
  }
  return text;
}

enum class Target { kAsPlanned, kElsewhere };

Notes Keep(const Bot& bot, const BotHome& home, const IncludeLookup& game,
           const NumberChooser& chooser, Target target, SavePlan& plan) {
  Notes notes;
  const Bot& before = *Before(home);
  const std::string called = CalledBy(home.files);
  const BotEdits edits = EditBotFiles(home.files, before, bot, game, chooser);
  for (const auto& [kind, edit] : edits.files) {
    if (!plan.files.contains(kind)) continue;
    const auto refuse = [&notes, &edit = edit](const std::string& why) {
      notes.Add(
          {edit.shown, 0, Localized("The file was written anew.") + " " + why});
    };
    if (edit.origin.is_on_disk() && !IsFile(edit.origin.path)) {
      notes.Add({edit.shown, 0,
                 Localized("The file is not there any more. '%1' was made "
                           "without what its author wrote.",
                           {Utf8FromPath(plan.files.at(kind).filename())})});
      continue;
    }
    if (edit.outcome == FileEdit::Outcome::kNotEditable) {
      refuse(edit.reason.what);
      continue;
    }
    Result<std::string> bytes = edit.outcome == FileEdit::Outcome::kEdited
                                    ? Result<std::string>(edit.bytes)
                                    : BytesAt(edit.origin);
    if (!bytes) {
      refuse(bytes.error().what);
      continue;
    }
    const BothReaders readers({kind, edit.shown, called},
                              LookUpBeside(edit.origin, game));
    std::error_code reason;
    const bool is_in_place =
        target == Target::kAsPlanned && edit.origin.is_on_disk() &&
        fs::equivalent(edit.origin.path, plan.files.at(kind), reason);
    std::optional<std::string> text =
        UnderNewName({readers, bot, *std::move(bytes), is_in_place});
    if (text) {
      plan.contents.insert_or_assign(kind, *std::move(text));
    } else {
      refuse(Localized("Under its new name it would say something else."));
    }
  }
  for (const ParameterId id : ChangesInNoFile(before, bot)) {
    notes.Add({{},
               0,
               Localized("%1 has no place in the author's files.",
                         {QuotedName(id)})});
  }
  return notes;
}

}  // namespace

bool HasFilesToKeep(const Bot& bot, const BotHome& home) {
  if (home.loaded == nullptr) return false;
  const bool is_own_package = IsInOwnPackage(bot, home);
  return std::any_of(
      home.files.begin(), home.files.end(), [is_own_package](const auto& file) {
        const bool may_be_ours = file.second.is_on_disk() || is_own_package;
        if (!may_be_ours) return true;
        const Result<std::string> bytes = BytesAt(file.second);
        return bytes && HeaderLineCount(*bytes) == 0;
      });
}

Notes KeepAuthorsFiles(const Bot& bot, const BotHome& home,
                       const IncludeLookup& game, const NumberChooser& chooser,
                       SavePlan& plan) {
  return Keep(bot, home, game, chooser, Target::kAsPlanned, plan);
}

Notes KeepFilesUnderNewName(const SaveInPlace& save, SavePlan& plan,
                            bool& is_cancelled) {
  const BotHome& home = save.home;
  if (home.loaded == nullptr || home.files.empty()) return {};
  SavePlan kept = plan;
  const Notes notes =
      Keep(save.bot, home, save.game, AskForNumber(save.prompts, is_cancelled),
           Target::kElsewhere, kept);
  const Bot& before = *Before(home);
  const BotEdits edits =
      EditBotFiles(home.files, before, save.bot, save.game,
                   [](ParameterId, const std::vector<std::string>&)
                       -> std::optional<std::size_t> { return std::nullopt; });
  Notes told;
  for (const auto& [kind, edit] : edits.files) {
    const bool is_ours = HeaderLineCount(edit.old_bytes) > 0 &&
                         edit.losses.empty() &&
                         AuthorLine(edit.old_bytes) == AuthorLine(save.author);
    if (is_ours) continue;
    if (const auto bytes = kept.contents.find(kind);
        bytes != kept.contents.end()) {
      plan.contents.insert_or_assign(kind, bytes->second);
    }
    for (const Note& note : notes.list()) {
      if (note.file == edit.shown) told.Add(note);
    }
  }
  return told;
}

}  // namespace fragsmith
