#include "game/character_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "chat/vocabulary.h"
#include "game/advice.h"
#include "game/limits.h"
#include "model/file_names.h"
#include "model/game_characteristics.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

/// Tells what ends a block. Where a key further up has no value, the game took
/// the next key for it, and all that follows is a consequence.
class BlockFaults {
 public:
  explicit BlockFaults(GameSource& source) : source_(source) {}

  void Take(const GameToken& key, const GameToken& value) {
    last_key_ = key;
    last_value_ = value;
    if (without_value_ || !IsKey(key) || !IsKey(value)) return;
    without_value_ = key;
  }

  /// A number behind that of a key is the next key to the game.
  void TakeKey(const GameToken& key) {
    using Kind = GameToken::Kind;
    const bool is_in_number =
        key.kind == Kind::kNumber && key.macro.empty() && IsKey(last_key_) &&
        last_value_.kind == Kind::kNumber && key.file == last_value_.file &&
        key.line == last_value_.line;
    if (!in_number_ && is_in_number) in_number_ = {last_value_, key};
  }

  void Tell(std::string_view id, const GameToken& token, std::string text) {
    if (in_number_) {
      const auto& [value, behind] = *in_number_;
      return source_.Complain("not-one-value", behind,
                              TwoNumbersText(value, behind));
    }
    if (without_value_) return TellNoValue(*without_value_);
    source_.Complain(id, token, std::move(text));
  }

  void TellBadValue(const GameToken& key, const GameToken& value) {
    if (!in_number_ && (value.Is("}") || value.Is("skill"))) {
      return TellNoValue(without_value_.value_or(key));
    }
    const bool is_number_wanted = !IsGameText(static_cast<int>(key.number));
    std::string_view from = value.text;
    if (value.file == 0) from = source_.bytes().substr(value.span.begin);
    Tell("bad-value", value, BadValueText(value, is_number_wanted, from));
  }

 private:
  static bool IsKey(const GameToken& token) {
    return token.macro.starts_with("CHARACTERISTIC_");
  }

  void TellNoValue(const GameToken& key) {
    source_.Complain(
        "value-missing", key,
        Localized("There is no value behind %1, and the game throws this whole "
                  "skill block away. Write a number behind it, or a text in "
                  "quotation marks, or remove the line.",
                  {Quoted(key.macro.empty() ? key.text : key.macro)}));
  }

  GameSource& source_;
  GameToken last_key_;
  GameToken last_value_;
  std::optional<GameToken> without_value_;
  std::optional<std::pair<GameToken, GameToken>> in_number_;
};

/// Of a characteristic that stands in this line already, or in another file.
std::string TwiceText(int number, int first_line, int level) {
  const bool is_known =
      static_cast<std::size_t>(number) < kGameCharacteristics.size();
  const std::string name =
      is_known ? GameKeyName(number)
               : Localized("Characteristic %1", {std::to_string(number)});
  const std::string block = std::to_string(level);
  if (first_line > 0) {
    return Localized(
        "%1 stands twice in skill block %2 (first in line %3), and the game "
        "throws the whole block away. Remove one of the lines.",
        {name, block, std::to_string(first_line)});
  }
  return Localized(
      "%1 stands twice in skill block %2, and the game throws the whole block "
      "away. Remove one of the lines.",
      {name, block});
}

/// Reads up to the "}" of the block. When the file ends before, or an error
/// ends it, the game keeps what it has.
bool ReadValues(GameSource& source, CharacterBlock& block) {
  GameToken key;
  GameToken token;
  BlockFaults faults(source);
  while (source.ReadAny(key) && !key.Is("}")) {
    faults.TakeKey(key);
    if (key.kind != GameToken::Kind::kNumber || !key.is_whole) {
      Fault fault = UnknownKey(key, token, source.LineOf(key), block);
      faults.Tell(fault.id, key, std::move(fault.text));
      return false;
    }
    if (key.number > limits::kMaxCharacteristic) {
      faults.Tell(
          "characteristic-out-of-range", key,
          Localized(
              "There is no characteristic %1; the last one is number %2. The "
              "game throws this whole skill block away. Remove the line.",
              {Quoted(key.text), std::to_string(limits::kMaxCharacteristic)}));
      return false;
    }
    const int number = static_cast<int>(key.number);
    const auto known = block.values.find(number);
    if (known != block.values.end()) {
      faults.Tell("characteristic-twice", key,
                  TwiceText(number, known->second.line, block.level));
      return false;
    }
    if (!source.ReadAny(token)) return false;
    faults.Take(key, token);
    CharacterValue value;
    value.line = token.file == 0 ? token.line : 0;
    if (token.file == 0) value.span = token.span;
    if (token.kind == GameToken::Kind::kString) {
      value.kind = CharacterValue::Kind::kText;
      value.text = token.text;
    } else if (token.kind == GameToken::Kind::kNumber) {
      value.kind = token.is_whole ? CharacterValue::Kind::kWhole
                                  : CharacterValue::Kind::kFraction;
      value.number = token.number;
    } else {
      faults.TellBadValue(key, token);
      return false;
    }
    block.values.emplace(number, std::move(value));
  }
  return !source.is_endless();
}

/// The default character, of the level or any; it is not the bot's, so what
/// is wrong with it is not told.
std::optional<CharacterBlock> ReadDefault(std::optional<int> level,
                                          const IncludeLookup& game) {
  std::optional<std::string> bytes = game(kDefaultCharacter);
  if (!bytes) return std::nullopt;
  const GameFile file = {InBotFiles(kDefaultCharacter),
                         std::string(kDefaultCharacter), std::move(*bytes)};
  Complaints untold;
  std::optional<CharacterBlock> block =
      ReadCharacterBlock(file, level, game, untold);
  if (block) {
    for (auto& [number, value] : block->values) value.is_own = false;
  }
  return block;
}

}  // namespace

bool IsGameText(int number) {
  // Name and gender are the first two.
  constexpr std::array kTexts = {
      0, 1, kGameWeaponWeights, kGameChatFile, kGameChatName, kGameItemWeights};
  return std::ranges::find(kTexts, number) != kTexts.end();
}

std::optional<CharacterBlock> ReadCharacterBlock(const GameFile& file,
                                                 std::optional<int> level,
                                                 const IncludeLookup& game,
                                                 Complaints& findings) {
  GameSource source(file, game, findings);
  GameToken token;
  while (source.Read(token)) {
    if (!token.Is("skill")) {
      if (source.ComplainOfLeak(token)) return std::nullopt;
      source.Complain(
          "outside-block", token,
          Localized("The game finds %1 outside a skill block and reads no "
                    "further. Here it expects skill, a number and {.",
                    {Quoted(token.text)}) +
              " " + AdviceForStray(token, "skill", source.bytes()));
      return std::nullopt;
    }
    const int line = token.file == 0 ? token.line : 0;
    // A fraction counts as its whole part.
    if (!source.ExpectNumber(GameSource::Numbers::kAny, token)) {
      return std::nullopt;
    }
    CharacterBlock block;
    block.level = static_cast<int>(std::min(token.number, 1e6));
    block.line = line;
    GameToken brace;
    if (!source.ExpectBrace(token, &brace)) return std::nullopt;
    if (brace.file == 0) block.open = brace.span;
    if (!level || block.level == *level) {
      if (!ReadValues(source, block)) return std::nullopt;
      return block;
    }
    if (!source.SkipBlock()) return std::nullopt;
  }
  return std::nullopt;
}

std::vector<BlockAt> CharacterBlocks(const GameFile& file,
                                     const IncludeLookup& game) {
  Complaints untold;
  GameSource source(file, game, untold);
  std::vector<BlockAt> blocks;
  GameToken skill;
  GameToken level;
  while (source.Read(skill) && skill.Is("skill") &&
         source.ExpectNumber(GameSource::Numbers::kAny, level) &&
         source.ExpectBrace(level)) {
    blocks.push_back({.level = static_cast<int>(std::min(level.number, 1e6)),
                      .line = skill.file == 0 ? skill.line : 0});
    if (!source.SkipBlock()) break;
  }
  return blocks;
}

std::optional<CharacterLevel> LoadCharacterLevel(const GameFile* file,
                                                 int level,
                                                 const IncludeLookup& game,
                                                 Complaints& findings) {
  const auto read_own = [&](std::optional<int> wanted) {
    return file == nullptr ? std::nullopt
                           : ReadCharacterBlock(*file, wanted, game, findings);
  };
  std::optional<CharacterBlock> fallback = ReadDefault(level, game);
  std::optional<CharacterBlock> own = read_own(level);
  CharacterOrigin origin = CharacterOrigin::kOwn;
  if (!own && fallback) return {{CharacterOrigin::kDefault, *fallback}};
  if (!own) {
    own = read_own(std::nullopt);
    origin = CharacterOrigin::kOwnOther;
  }
  if (!fallback) fallback = ReadDefault(std::nullopt, game);
  if (!own && fallback) return {{CharacterOrigin::kDefaultOther, *fallback}};
  if (!own) return std::nullopt;
  // What the block lacks comes from the default character.
  if (fallback) own->values.merge(fallback->values);
  return {{origin, std::move(*own)}};
}

std::vector<int> LevelsForSkill(double skill) {
  if (skill <= 1) return {1};
  if (skill < 4) return {1, 4};
  if (skill == 4) return {4};
  if (skill < 5) return {4, 5};
  return {5};
}

}  // namespace fragsmith
