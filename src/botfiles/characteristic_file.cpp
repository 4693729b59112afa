#include "botfiles/characteristic_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>

#include "botfiles/keyed_line.h"
#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Writes the lines of one level's block.
class BlockWriter {
 public:
  BlockWriter(const Bot& bot, int level, std::string& text)
      : bot_(bot), level_(level), text_(text) {}

  void Write() {
    EndLine();
    text_ += "skill " + std::to_string(level_);
    EndLine();
    text_ += '{';
    EndLine();

    Entry(kNameIndex, bot_.Parameter(kNameIndex));
    Entry(kGenderIndex, bot_.Parameter(kGenderIndex));
    Entry(kAttackSkillIndex, LevelValue(kAttackSkillIndex));
    FileEntry(kWeaponWeightsIndex);
    LevelEntries({3, 6});
    Entry(kReactionTimeIndex, WithDoublePrecision(kReactionTimeIndex));
    EndLine();
    FileEntry(kChatFileIndex);
    Entry(kChatNameIndex, bot_.Parameter(kChatNameIndex));
    for (int index = kChatRange.first; index <= kChatRange.last; ++index) {
      Entry(index, bot_.Parameter(index));
    }
    EndLine();
    LevelEntries({8, 11});
    EndLine();
    FileEntry(kItemWeightsIndex);
    LevelEntries({12, 15});
    EndLine();
    LevelEntries({16, 17});
    EndLine();
    for (int index = kOptionalRange.first; index < kFireThrottleIndex;
         ++index) {
      if (IsAboveZero(LevelValue(index))) Entry(index, LevelValue(index));
    }
    if (IsAboveZero(LevelValue(kFireThrottleIndex))) {
      EndLine();
      Entry(kFireThrottleIndex, LevelValue(kFireThrottleIndex));
    }
    text_ += '}';
    EndLine();
  }

 private:
  const Value& LevelValue(int index) const {
    return bot_.Parameter(LevelIndex(level_, index));
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

  void FileEntry(int index) { Entry(index, "bots/" + bot_.Text(index)); }

  void LevelEntries(IndexRange range) {
    for (int index = range.first; index <= range.last; ++index) {
      Entry(index, LevelValue(index));
    }
  }

  const Bot& bot_;
  int level_;
  std::string& text_;
};

/// The level of a line that opens a block: "skill", digits, then nothing, a
/// blank, a TAB, "{" or "/". A text that merely holds the word is none. A
/// number too large for any level gives -1.
std::optional<int> SkillLevelOf(std::string_view line) {
  constexpr std::string_view kWord = "skill";
  line = TrimBlanksAndTabs(line);
  if (!line.starts_with(kWord)) return std::nullopt;
  line = TrimBlanksAndTabs(line.substr(kWord.size()));
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

bool IsKnownLevel(std::optional<int> level) {
  return level && std::count(kSkillLevels.begin(), kSkillLevels.end(), *level);
}

/// Every key begins so, and one walk over a line is enough for them all.
constexpr std::string_view kStart = "CHARACTERISTIC_";
constexpr std::size_t kKeyCount = kChatRange.last + 1;

/// What tells most keys apart at once: the letter behind their beginning.
constexpr std::array<char, kKeyCount> kLetters = [] {
  std::array<char, kKeyCount> letters{};
  for (std::size_t index = 0; index < kKeyCount; ++index) {
    letters[index] = BareKey(static_cast<int>(index))[kStart.size()];
  }
  return letters;
}();

/// The first catalogue entry, in the order of the catalogue, that stands
/// anywhere in the line. The two general aim keys are also the beginnings of
/// the weapon-specific ones and do not count there.
std::optional<int> KeyIn(std::string_view line) {
  // A bit for each key.
  std::uint64_t stands = 0;
  std::uint64_t is_continued = 0;
  static_assert(kKeyCount <= 64);
  for (std::size_t place = line.find(kStart); place != std::string_view::npos;
       place = line.find(kStart, place + kStart.size())) {
    const std::string_view rest = line.substr(place);
    if (rest.size() == kStart.size()) break;
    for (std::size_t index = 0; index < kKeyCount; ++index) {
      if (kLetters[index] != rest[kStart.size()]) continue;
      const std::string_view key = BareKey(static_cast<int>(index));
      if (!StartsWithKey(rest, key)) continue;
      const std::uint64_t bit = std::uint64_t{1} << index;
      stands |= bit;
      if (rest.substr(key.size()).starts_with('_')) is_continued |= bit;
    }
  }
  constexpr std::uint64_t kGeneralAim = 1U << 3U | 1U << 4U;
  stands &= ~(is_continued & kGeneralAim);
  if (stands == 0) return std::nullopt;
  return std::countr_zero(stands);
}

std::string SkippedLevelText(std::optional<int> level) {
  return level ? "A bot holds the levels 1, 4 and 5 only: the values of this "
                 "block are passed over."
               : "Values before the first \"skill\" line belong to no level "
                 "and are passed over.";
}

}  // namespace

std::string WriteCharacteristicFile(const Bot& bot, const Author& author) {
  std::string text = HeaderComment(bot, author);
  text += kLineEnd;
  text += "#include \"chars.h\"";
  text += kLineEnd;
  for (const int level : kSkillLevels) BlockWriter(bot, level, text).Write();
  return text;
}

ReadReport ReadCharacteristicFile(std::string_view bytes,
                                  const std::string& file_name,
                                  ReadIdentity identity, Bot& bot) {
  if (identity == ReadIdentity::kYes) {
    (void)bot.SetParameter(kCommentField, std::string());
    (void)bot.SetParameter(kVersionMajorField, 0.0);
    (void)bot.SetParameter(kVersionMinorField, 0.0);
  }
  ReadReport report;
  ValueReader reader(file_name, bot, report);
  CommentStripper comments;
  std::optional<int> level;
  bool is_skip_noted = false;

  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    const std::string_view code = comments.Strip(*line);
    if (IsPassedOver(*line)) continue;
    if (const std::optional<int> opened = SkillLevelOf(*line)) {
      level = opened;
      is_skip_noted = false;
      continue;
    }
    const std::optional<int> key = KeyIn(*line);
    if (!key) continue;
    const KeyedLine keyed = {lines.number(), *line, code};
    if (*key <= kGenderIndex) {
      if (identity == ReadIdentity::kYes) reader.Take(keyed, *key, *key);
    } else if (!kPerLevelRange.Contains(*key)) {
      reader.Take(keyed, *key, *key);
    } else if (IsKnownLevel(level)) {
      reader.Take(keyed, *key, LevelIndex(*level, *key));
    } else if (!is_skip_noted) {
      reader.AddNote(lines.number(), SkippedLevelText(level));
      is_skip_noted = true;
    }
  }
  return report;
}

}  // namespace fragsmith
