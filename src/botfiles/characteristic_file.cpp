#include "botfiles/characteristic_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

#include "botfiles/block_keys.h"
#include "botfiles/character_words.h"
#include "botfiles/keyed_line.h"
#include "botfiles/left_out.h"
#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Writes the lines of one level's block.
class BlockWriter {
 public:
  BlockWriter(const Bot& bot, Level level, std::string& text)
      : bot_(bot), level_(level), text_(text) {}

  void Write() {
    EndLine();
    text_ += "skill " + std::to_string(NumberOf(level_));
    EndLine();
    text_ += '{';
    EndLine();

    for (const BlockKeys& part : kBlockKeys) {
      for (const int index : part.keys) WriteKey(index);
      if (part.ends_part) EndLine();
    }
    text_ += '}';
    EndLine();
  }

 private:
  const Value& LevelValue(int index) const {
    return bot_.Parameter(ParameterId(level_, index));
  }

  /// The value that the user sees, free of the float's own limits.
  Value WithDoublePrecision(int index) const {
    const Value& value = LevelValue(index);
    const std::optional<double> number = ToNumber(value);
    return number ? Value(*number) : value;
  }

  void EndLine() { text_ += kLineEnd; }

  void Entry(int index, const Value& value) {
    text_ += '\t';
    text_ += PaddedKey(index);
    text_ += FormatValue(value);
    EndLine();
  }

  void WriteKey(int index) {
    const ParameterId id(index);
    if (kOptionalRange.Contains(index)) {
      if (!IsAboveZero(LevelValue(index))) return;
      if (index == kFireThrottleIndex) EndLine();
    }
    if (index == kReactionTimeIndex) {
      Entry(index, WithDoublePrecision(index));
    } else if (kPerLevelRange.Contains(index)) {
      Entry(index, LevelValue(index));
    } else if (id == kChatFileField || id == kWeaponFileField ||
               id == kItemFileField) {
      Entry(index, InBots(bot_.Text(id)));
    } else {
      Entry(index, bot_.Parameter(id));
    }
  }

  const Bot& bot_;
  Level level_;
  std::string& text_;
};

constexpr std::string_view kSkill = "skill";

/// The level of a line that opens a block: "skill", digits, then nothing, a
/// blank, a TAB, "{" or "/". A text that merely holds the word is none. A
/// number too large for any level gives -1.
std::optional<int> SkillLevelOf(std::string_view line) {
  line = TrimBlanksAndTabs(line);
  if (!line.starts_with(kSkill)) return std::nullopt;
  line = TrimBlanksAndTabs(line.substr(kSkill.size()));
  const std::size_t end = line.find_first_not_of("0123456789");
  const std::string_view digits = line.substr(0, end);
  if (digits.empty()) return std::nullopt;
  if (end != std::string_view::npos &&
      !Contains(" \t{/", line.substr(end, 1))) {
    return std::nullopt;
  }
  int level = 0;
  const auto read =
      std::from_chars(digits.data(), digits.data() + digits.size(), level);
  return read.ec == std::errc() ? level : -1;
}

/// What is left of a line when all is taken off that the game passes over in
/// front of a block. Comments and a byte order mark are off already.
std::string_view WithoutBraces(std::string_view code) {
  const std::size_t start = code.find_first_not_of("} \t");
  return start == std::string_view::npos ? std::string_view()
                                         : code.substr(start);
}

std::optional<Level> KnownLevel(std::optional<int> number) {
  return number ? LevelOfNumber(*number) : std::nullopt;
}

/// Every key begins so, and one walk over a line is enough for them all.
constexpr std::string_view kStart = "CHARACTERISTIC_";
constexpr std::size_t kKeyCount = kChatRange.last + 1;

/// What tells most keys apart at once: by the byte there, a bit for each of the
/// keys that have it or end in front of it.
constexpr std::array<std::uint64_t, 256> KeysByLetter(std::size_t offset) {
  static_assert(kKeyCount <= 64);
  std::array<std::uint64_t, 256> keys{};
  for (std::size_t index = 0; index < kKeyCount; ++index) {
    const std::string_view key = BareKey(static_cast<int>(index));
    for (std::size_t letter = 0; letter < keys.size(); ++letter) {
      const bool is_possible =
          key.size() <= offset || key[offset] == static_cast<char>(letter);
      if (is_possible) keys.at(letter) |= std::uint64_t{1} << index;
    }
  }
  return keys;
}
constexpr std::size_t kLater = kStart.size() + 5;
constexpr auto kKeysByFirst = KeysByLetter(kStart.size());
constexpr auto kKeysByLater = KeysByLetter(kLater);

/// A bit for each of the keys that the text, which begins as all do, may begin
/// with.
std::uint64_t PossibleKeys(std::string_view text) {
  const auto at = [text](std::size_t offset) {
    return static_cast<unsigned char>(text[offset]);
  };
  const std::uint64_t keys = kKeysByFirst[at(kStart.size())];
  return text.size() > kLater ? keys & kKeysByLater[at(kLater)] : keys;
}

/// The first catalogue entry, in the order of the catalogue, that stands
/// anywhere in the line. The two general aim keys are also the beginnings of
/// the weapon-specific ones and do not count there.
std::optional<int> KeyIn(std::string_view line) {
  // A bit for each key.
  std::uint64_t stands = 0;
  std::uint64_t is_continued = 0;
  for (std::size_t offset = line.find(kStart); offset != std::string_view::npos;
       offset = line.find(kStart, offset + kStart.size())) {
    const std::string_view rest = line.substr(offset);
    if (rest.size() == kStart.size()) break;
    for (std::uint64_t keys = PossibleKeys(rest); keys != 0; keys &= keys - 1) {
      const std::string_view key = BareKey(std::countr_zero(keys));
      if (!StartsWithKey(rest, key)) continue;
      const std::uint64_t bit = keys & (~keys + 1);
      stands |= bit;
      if (rest.substr(key.size()).starts_with('_')) is_continued |= bit;
    }
  }
  constexpr std::uint64_t kGeneralAim = 1U << 3U | 1U << 4U;
  stands &= ~(is_continued & kGeneralAim);
  if (stands == 0) return std::nullopt;
  return std::countr_zero(stands);
}

std::string PassedOverText(std::optional<int> level) {
  return level ? Localized(
                     "A bot holds the levels 1, 4 and 5 only: the values of "
                     "level %1 are passed over.",
                     {std::to_string(*level)})
               : Localized(
                     "Values before the first \"skill\" line belong to no "
                     "level and are passed over.");
}

/// Of the two one at least is there.
std::string OtherLevelText(std::optional<int> read,
                           std::optional<int> of_game) {
  if (!of_game) {
    return Localized(
        "The values from here on are read as those of level %1, but the game "
        "takes them for no level.",
        {std::to_string(read.value())});
  }
  if (!read) {
    return Localized(
        "The values from here on are read as those of no level, but the game "
        "takes them for level %1.",
        {std::to_string(*of_game)});
  }
  return Localized(
      "The values from here on are read as those of level %1, but the game "
      "takes them for level %2.",
      {std::to_string(*read), std::to_string(*of_game)});
}

/// One characteristic file on its way into a bot: line by line by the reading
/// rules, and beside it word by word as the game reads it.
class CharacterReader {
 public:
  CharacterReader(const std::string& file, ReadIdentity identity, Bot& bot)
      : identity_(identity),
        left_out_(file, {"chars.h"}),
        reader_(file, bot, report_),
        words_(left_out_) {}

  ReadReport Read(std::string_view bytes) {
    const std::size_t header_end = HeaderLineCount(bytes);
    LineReader lines(bytes);
    while (const std::optional<std::string_view> line = lines.Next()) {
      const std::string_view code = comments_.Strip(*line);
      const auto start = static_cast<std::size_t>(line->data() - bytes.data());
      const KeyedLine keyed = {lines.number(), *line, code, start};
      if (comments_.had_words() && keyed.number > header_end) {
        left_out_.AddComment(keyed.number);
      }
      // The game first: a line may begin a block for both.
      const auto& found = words_.TakeLine(code, keyed.number);
      TakeByRules(keyed);
      for (const CharacterWords::Found& value : found) TakeFound(value);
    }
    for (const CharacterWords::Found& value : words_.Finish()) TakeFound(value);
    if (!bare_.empty()) {
      reader_.AddNote(first_bare_,
                      Localized("Without quotes around these texts the game "
                                "does not read the file; a save puts them on: "
                                "%1.",
                                {bare_.Text()}));
    }
    reader_.Finish();
    left_out_.Tell(report_.notes);
    report_.missing_includes = left_out_.missing_includes();
    return std::move(report_);
  }

 private:
  void TakeByRules(const KeyedLine& line) {
    if (OpensLevel(line)) return;
    if (IsPassedOver(line.text)) return;
    const std::optional<int> key = KeyIn(line.text);
    if (!key) return;
    if (const std::optional<ParameterId> id = IdOf(*key, line.number)) {
      reader_.Take(line, *id, ToldOf(*id));
    }
  }

  /// A key that is the game's number for it says as plainly what is meant.
  void TakeNumbered(const CharacterWords::Found& found) {
    if (found.key >= kChatFileField.index()) return;
    if (const auto id = IdOf(found.key, found.line)) {
      reader_.TakeText(found.line, *id, found.word, ToldOf(*id));
    }
  }

  /// Where a bot has the value of a key; nothing for one that is passed over.
  std::optional<ParameterId> IdOf(int key, std::size_t line) {
    if (key <= kGenderField.index() && identity_ == ReadIdentity::kNo) {
      return std::nullopt;
    }
    if (!kPerLevelRange.Contains(key)) return ParameterId(key);
    if (const auto level = KnownLevel(level_)) return {{*level, key}};
    if (!is_skip_noted_) {
      reader_.AddNote(line, PassedOverText(level_));
      is_skip_noted_ = true;
    }
    return std::nullopt;
  }

  IsTold ToldOf(ParameterId id) {
    return id.level() ? TellOtherLevel(words_.block()) : IsTold::kNo;
  }

  bool OpensLevel(const KeyedLine& line) {
    if (!Contains(line.text, kSkill)) return false;
    std::optional<int> opened = SkillLevelOf(line.text);
    if (!opened) {
      opened = SkillLevelOf(WithoutBraces(line.code));
      if (!opened) return false;
      reader_.AddNote(line.number,
                      Localized("As in the game, level %1 begins here, though "
                                "something stands in front of \"skill\". A "
                                "save leaves that out.",
                                {std::to_string(*opened)}));
    }
    level_ = opened;
    level_line_ = line.number;
    is_skip_noted_ = false;
    return true;
  }

  void TakeFound(const CharacterWords::Found& found) {
    if (found.is_numbered) TakeNumbered(found);
    TakeAsGame(found);
  }

  void TakeAsGame(const CharacterWords::Found& found) {
    const std::optional<Level> level = KnownLevel(found.block.level);
    if (level) reader_.Give({*level, found.key});
    const bool is_text = found.key <= kGenderField.index() ||
                         found.key >= kChatFileField.index();
    if (is_text && found.is_bare) {
      if (bare_.empty()) first_bare_ = found.line;
      bare_.Add(std::string(BareKey(found.key)));
    }
    if (found.key >= kChatFileField.index()) {
      return report_.names.push_back({std::string(BareKey(found.key)),
                                      found.line, ParameterId(found.key),
                                      ToText(found.value)});
    }
    if (found.key <= kGenderField.index() && identity_ == ReadIdentity::kNo)
      return;
    if (!kPerLevelRange.Contains(found.key)) {
      return reader_.TakeAsGame(found.line, ParameterId(found.key),
                                found.value);
    }
    const IsTold is_told = TellOtherLevel(found.block);
    if (!level || found.block.is_repeated) return;
    reader_.TakeAsGame(found.line, {*level, found.key}, found.value, is_told);
  }

  /// Tells once of each block whose level is another to the game.
  IsTold TellOtherLevel(const CharacterWords::Block& block) {
    const bool is_other = block.level != level_;
    if (!is_other && !block.is_repeated) return IsTold::kNo;
    const std::size_t line =
        is_other ? std::max(block.line, level_line_) : level_line_;
    if (std::exchange(told_line_, line) == line) return IsTold::kYes;
    reader_.AddNote(
        line,
        is_other
            ? OtherLevelText(level_, block.level)
            : Localized("There was a block of level %1 before. The values of "
                        "this one count here, but the game takes the first.",
                        {std::to_string(level_.value_or(0))}));
    return IsTold::kYes;
  }

  ReadIdentity identity_;
  ReadReport report_;
  LeftOut left_out_;
  ValueReader reader_;
  CharacterWords words_;
  CommentStripper comments_;
  std::optional<int> level_;
  std::size_t level_line_ = 0;
  std::size_t told_line_ = 0;
  bool is_skip_noted_ = false;
  NameList bare_;  ///< Keys of texts without quotes.
  std::size_t first_bare_ = 0;
};

}  // namespace

std::string WriteCharacteristicFile(const Bot& bot, const Author& author) {
  std::string text = HeaderComment(bot, author);
  text += kLineEnd;
  text += "#include \"chars.h\"";
  text += kLineEnd;
  for (const Level level : kLevels) BlockWriter(bot, level, text).Write();
  return text;
}

ReadReport ReadCharacteristicFile(std::string_view bytes,
                                  const std::string& file_name,
                                  ReadIdentity identity, Bot& bot) {
  if (identity == ReadIdentity::kYes) {
    bot.Put(kCommentField, std::string());
    bot.Put(kVersionMajorField, 0.0);
    bot.Put(kVersionMinorField, 0.0);
  }
  return CharacterReader(file_name, identity, bot)
      .Read(WithPlainBlanks(bytes, TextsInLine::kOne));
}

}  // namespace fragsmith
