#include "inplace/edit_in_place.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <utility>

#include "botfiles/value_format.h"
#include "chat/vocabulary.h"
#include "game/description_reader.h"
#include "inplace/attempt.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Of a value of a characteristic or weight file.
std::string OddValueRefusal(const Value& value) {
  const std::optional<double> number = ToNumber(value);
  if (number) {
    return *number < 0 ? Localized(
                             "The game's files have no negative numbers. "
                             "Use 0 or more.")
                       : std::string();
  }
  const std::string text = ToText(value);
  if (Contains(text, "\"")) {
    return Localized(
        "The game's files have no double quote within a text. Take it out.");
  }
  return Contains(text, "\\")
             ? Localized(
                   "The game takes a backslash in a text and the letter "
                   "behind it for one sign. Take it out.")
             : std::string();
}

/// Of the texts of a description.
std::string RefusedSign(ParameterId field, const Bot& after) {
  std::string text = ToText(after.Parameter(field));
  if (field == kFunNameField) text = FunNameForBox(text);
  if (field == kModelField) text += after.Text(kSkinField);
  const std::size_t sign = text.find_first_of(kThrownAway);
  if (sign != std::string::npos) {
    return Localized(
        "The game throws away a line with %1 in its value. Take it out.",
        {text.substr(sign, 1)});
  }
  if (field == kModelField && text.find_first_of(" \t") != std::string::npos) {
    return Localized(
        "No model and no skin of the game has a blank in its name. Take it "
        "out.");
  }
  return {};
}

/// Of a number that a load would round; empty for any other value.
std::string RefusedDigits(const Value& value) {
  constexpr std::size_t kMaxDigits = 3;
  const std::string text = FormatValue(value);
  const std::size_t point = text.find('.');
  const bool is_long = ToNumber(value) && point != std::string::npos &&
                       text.size() - point - 1 > kMaxDigits;
  return is_long ? Localized(
                       "A load reads three digits behind the point, no "
                       "more, and %1 has more. Round it.",
                       {text})
                 : std::string();
}

/// Why a load would not have the new value.
std::string NotLoaded(const FileChange& change, const Bot& after) {
  const auto* const id = std::get_if<ParameterId>(&change);
  std::string better =
      id == nullptr ? std::string() : RefusedDigits(after.Parameter(*id));
  if (!better.empty()) return better;
  return Localized("It would not be read from there when the bot is loaded.");
}

bool IsSame(ParameterId id, const Bot& before, const Bot& after) {
  const Value& left = before.Parameter(id);
  const Value& right = after.Parameter(id);
  if (id == kFunNameField) {
    return FunNameForBox(ToText(left)) == FunNameForBox(ToText(right));
  }
  if (id == kModelField || id == kSkinField) {
    return EqualIgnoringCase(ToText(left), ToText(right));
  }
  return FactOf(left) == FactOf(right);
}

bool HasSameLines(ChatTypeId type, const Bot& before, const Bot& after) {
  const auto written = [type](const Bot& bot) {
    std::vector<std::string> lines = bot.ChatLines(type);
    std::erase(lines, std::string());
    return lines;
  };
  return written(before) == written(after);
}

/// What the game would have no more for the skills between two levels; nothing
/// where it has all.
std::optional<std::string> NewlyUnmixed(const FileReading& before,
                                        const FileReading& after) {
  for (const auto& [key, fact] : after.facts) {
    if (key.kind == FactKind::kUnmixed && !before.facts.contains(key)) {
      return fact;
    }
  }
  return std::nullopt;
}

/// True where the game would have all that could tell of the change as it is.
bool IsUnread(const Attempt& attempt, const FileReading& before,
              const FileReading& after) {
  return !attempt.moving.empty() &&
         std::none_of(attempt.moving.begin(), attempt.moving.end(),
                      [&](const FactKey& key) {
                        return before.facts.at(key) != after.facts.at(key);
                      });
}

/// Why the attempt cannot stand; nothing where it can.
std::optional<std::string> FaultOf(const Attempt& attempt,
                                   const FileChange& change, const Bot& bot,
                                   const FileReading& before,
                                   const FileReading& after) {
  Facts wanted = before.facts;
  for (const auto& [key, fact] : attempt.expected) {
    if (fact) {
      wanted[key] = *fact;
    } else {
      wanted.erase(key);
    }
  }
  const auto has = [](const auto& list, const auto& one) {
    return std::find(list.begin(), list.end(), one) != list.end();
  };
  const auto is_free = [&](const FactKey& key) {
    return key.kind == FactKind::kUnmixed || has(attempt.free, key) ||
           has(attempt.free_kinds, key.kind);
  };
  const auto strip = [&is_free](Facts facts) {
    std::erase_if(facts, [&](const auto& fact) { return is_free(fact.first); });
    return facts;
  };
  const Facts left = strip(std::move(wanted));
  const Facts right = strip(after.facts);
  const auto fault_at = [&](const FactKey& key) -> std::string {
    if (!attempt.expected.contains(key)) {
      const std::string other = NameOfFact(key, before);
      if (other.empty()) {
        return Localized("Another value would change with it.");
      }
      return other == NameOf(change)
                 ? Localized(
                       "The line does not give it in a plain way. Write "
                       "it as key and number there first, without "
                       "comments between them.")
                 : Localized("Another value would change with it: %1.",
                             {other});
    }
    const bool is_ours = key.kind == FactKind::kRule ||
                         key.kind == FactKind::kRuleChat ||
                         key.kind == FactKind::kPlain;
    return is_ours ? NotLoaded(change, bot)
                   : Localized("The game would not read it from there.");
  };
  for (const auto& [key, fact] : left) {
    const auto found = right.find(key);
    if (found == right.end() || found->second != fact) return fault_at(key);
  }
  for (const auto& [key, fact] : right) {
    if (!left.contains(key)) return fault_at(key);
  }
  if (IsUnread(attempt, before, after)) {
    return Localized(
        "The game takes the weight from another file or number, and would not "
        "read this one.");
  }
  if (std::optional<std::string> fault = NewlyUnmixed(before, after)) {
    return fault;
  }
  for (const auto& [kind, count] : after.errors) {
    const auto known = before.errors.find(kind);
    if (known == before.errors.end() || known->second < count) {
      return Localized(
          "The game would find a fault in the file that it has not now.");
    }
  }
  return std::nullopt;
}

/// True for a value in the very line that the game stumbles over.
bool IsWhereItBreaks(const Attempt& attempt, std::string_view bytes,
                     const FileReading& reading) {
  return reading.first_error_line ==
         LineNumberAt(bytes, attempt.splices.front().span.begin);
}

/// Why a change that was tried in vain stays out, as its error.
Error RefusalOf(const FileChange& change, const PlanContext& context,
                std::string refusal) {
  if (refusal.empty()) refusal = Localized(kNoNeighbours);
  return {.what = Localized("%1 cannot be changed in place. %2",
                            {NameOf(change), refusal}),
          .file = context.readers.file().shown,
          .line = 0,
          .advice = {}};
}

/// Our reader takes a comment behind a number along, and has a text then.
void NoteComment(const FileReading& reading, std::string_view bytes,
                 const FileChange& change, const Bot& after, Plan& plan) {
  const auto* const changed = std::get_if<ParameterId>(&change);
  if (changed == nullptr) return;
  const ParameterId id = *changed;
  const Value& value = after.Parameter(id);
  const std::optional<TextSpan> span = reading.report.SpanOf(id);
  const Value& read = reading.bot.Parameter(id);
  if (!ToNumber(value) || ToNumber(read) || !span) return;
  plan.notes.push_back(Localized(
      "%1 is now %2 for the game, but a load reads \"%3\" from line %4. Put "
      "the comment in a line of its own.",
      {QuotedName(id), FormatValue(value), ShownText(ToText(read)),
       std::to_string(LineNumberAt(bytes, span->begin))}));
}

void TakeNotes(const Plan& plan, const std::string& shown, Notes* notes) {
  if (notes == nullptr) return;
  for (const std::string& note : plan.notes) notes->Add({shown, 0, note});
}

/// Given in the order of the file, as CommentsIn has them.
bool TouchesComment(const Attempt& attempt,
                    const std::vector<TextSpan>& comments) {
  return std::any_of(
      attempt.splices.begin(), attempt.splices.end(),
      [&comments](const Splice& splice) {
        const auto next = std::partition_point(
            comments.begin(), comments.end(), [&splice](TextSpan comment) {
              return comment.end <= splice.span.begin;
            });
        return next != comments.end() && Overlap(splice.span, *next);
      });
}

/// True for bytes that can be read as UTF-8 and have letters beyond ASCII.
bool LooksLikeUtf8(std::string_view bytes) {
  bool has_letters = false;
  for (std::size_t at = 0; at < bytes.size();) {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80) continue;
    const int more = std::countl_one(lead) - 1;
    if (more < 1 || more > 3) return false;
    for (int count = 0; count < more; ++count, ++at) {
      const bool continues =
          at < bytes.size() &&
          std::countl_one(static_cast<unsigned char>(bytes[at])) == 1;
      if (!continues) return false;
    }
    has_letters = true;
  }
  return has_letters;
}

Plan PlanFor(const PlanContext& context, const FileChange& change) {
  if (const auto* const type = std::get_if<ChatTypeId>(&change)) {
    return PlanChat(context, *type);
  }
  const ParameterId id = std::get<ParameterId>(change);
  std::string refusal =
      ValueRefusal(context.readers.file().kind, change, context.after);
  if (!refusal.empty()) {
    return {.attempts = {}, .refusal = std::move(refusal)};
  }
  switch (context.readers.file().kind) {
    case BotFile::kDescription:
      return PlanDescription(context, id);
    case BotFile::kCharacteristics:
      return PlanCharacteristic(context, id);
    default:
      return PlanWeight(context, id);
  }
}

}  // namespace

std::string NameOf(const FileChange& change) {
  const auto* const type = std::get_if<ChatTypeId>(&change);
  return type != nullptr ? QuotedChatType(*type)
                         : QuotedName(std::get<ParameterId>(change));
}

std::vector<FileChange> ChangesIn(BotFile kind, const Bot& before,
                                  const Bot& after) {
  std::vector<FileChange> changes;
  const auto add = [&](ParameterId id) {
    if (!IsSame(id, before, after)) changes.emplace_back(id);
  };
  const auto add_range = [&add](IndexRange range) {
    for (const int index : range) add(ParameterId(index));
  };
  switch (kind) {
    case BotFile::kDescription:
      add(kNameField);
      if (!IsSame(kModelField, before, after) ||
          !IsSame(kSkinField, before, after)) {
        changes.emplace_back(kModelField);
      }
      for (const ParameterId id :
           {kFunNameField, kRailColorField, kArenaLordField}) {
        add(id);
      }
      break;
    case BotFile::kCharacteristics:
      add(kNameField);
      add(kGenderField);
      for (const Level level : kLevels) {
        for (const int index : kPerLevelRange) add({level, index});
      }
      add_range(kChatRange);
      break;
    case BotFile::kItemWeights:
      add_range(kItemWeightRange);
      break;
    case BotFile::kWeaponWeights:
      add_range(kWeaponWeightRange);
      break;
    case BotFile::kChat:
      for (const ChatTypeId type : kAllChatTypes) {
        if (!HasSameLines(type, before, after)) changes.emplace_back(type);
      }
      break;
  }
  return changes;
}

std::string ValueRefusal(BotFile kind, const FileChange& change,
                         const Bot& after) {
  const auto* const id = std::get_if<ParameterId>(&change);
  if (id == nullptr) return {};
  return kind == BotFile::kDescription ? RefusedSign(*id, after)
                                       : OddValueRefusal(after.Parameter(*id));
}

std::vector<ParameterId> ChangesInNoFile(const Bot& before, const Bot& after) {
  std::vector<ParameterId> changes;
  for (const ParameterId id :
       {kVersionMajorField, kVersionMinorField, kCommentField}) {
    if (!IsSame(id, before, after)) changes.push_back(id);
  }
  return changes;
}

Result<std::string> EditInPlace(const BothReaders& readers,
                                std::string_view bytes, const Bot& before,
                                const Bot& after, const NumberChooser& chooser,
                                EditTold told) {
  std::string edited(bytes);
  const std::vector<FileChange> changes =
      ChangesIn(readers.file().kind, before, after);
  if (changes.empty()) return edited;
  FileReading reading = readers.Read(edited);
  // Before a line goes out of one chat type and into another.
  ChatSpellings spellings = SpellingsIn(edited, reading);
  spellings.insert(readers.file().spellings.begin(),
                   readers.file().spellings.end());
  for (const FileChange& change : changes) {
    const PlanContext context = {readers, reading, edited,
                                 after,   chooser, spellings};
    Plan plan = PlanFor(context, change);
    std::string refusal = plan.refusal;
    bool is_done = plan.is_needless;
    const std::vector<TextSpan> comments = CommentsIn(edited);
    for (const Attempt& attempt : plan.attempts) {
      if (TouchesComment(attempt, comments)) {
        if (refusal.empty()) {
          refusal = Localized("A comment stands in its place.");
        }
        continue;
      }
      std::string tried = Spliced(edited, attempt.splices);
      FileReading read = readers.Read(tried);
      std::optional<std::string> fault =
          FaultOf(attempt, change, after, reading, read);
      if (!fault) {
        is_done = true;
        edited = std::move(tried);
        reading = std::move(read);
        break;
      }
      if (!refusal.empty()) continue;
      refusal = IsWhereItBreaks(attempt, edited, reading)
                    ? BrokenRefusal(reading)
                    : *std::move(fault);
    }
    if (is_done) {
      if (readers.file().kind != BotFile::kDescription) {
        NoteComment(reading, edited, change, after, plan);
      }
      TakeNotes(plan, readers.file().shown, told.notes);
      continue;
    }
    Error error = RefusalOf(change, context, std::move(refusal));
    if (told.refused == nullptr) return Failure(std::move(error));
    told.refused->push_back({change, std::move(error)});
  }
  if (told.notes != nullptr && LooksLikeUtf8(bytes) && !LooksLikeUtf8(edited)) {
    told.notes->Add(
        {readers.file().shown, 0,
         Localized("Letters were written in Windows-1252, in a file that was "
                   "in UTF-8 so far. The game knows no UTF-8 and has each of "
                   "its bytes as a letter. For letters as the file has them, "
                   "give them as they are shown here, such as %1 for %2.",
                   {"\u00C3\u00A9", "\u00E9"})});
  }
  return edited;
}

}  // namespace fragsmith
