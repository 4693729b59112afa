#include "checks/file_character.h"

#include <algorithm>
#include <utility>

#include "support/code_page.h"

namespace fragsmith {
namespace {

constexpr std::string_view kDefaultPath = "bots/default_c.c";

/// Reads up to the "}" of the block. When the file ends before, or an error
/// ends it, the game keeps what it has.
bool ReadValues(GameSource& source, CharacterBlock& block) {
  GameToken key;
  while (source.ReadAny(key) && !key.Is("}")) {
    if (key.kind != GameToken::Kind::kNumber || !key.is_whole) {
      source.Complain("unknown-characteristic", key,
                      "The game knows no characteristic " + Quoted(key.text) +
                          " and throws this whole skill block away. Check the "
                          "spelling (capital letters count), that each key has "
                          "one value, and that the file begins with #include "
                          "\"chars.h\".");
      return false;
    }
    if (key.number > kMostCharacteristic) {
      source.Complain("unknown-characteristic", key,
                      "There is no characteristic of this number; the game "
                      "throws this whole skill block away. Remove the line.");
      return false;
    }
    const int number = static_cast<int>(key.number);
    if (block.values.contains(number)) {
      source.Complain("characteristic-twice", key,
                      "The same characteristic stands in this skill block a "
                      "second time, and the game throws the whole block away. "
                      "Remove one of the lines.");
      return false;
    }
    GameToken token;
    if (!source.ReadAny(token)) return false;
    CharacterValue value;
    value.line = token.file == 0 ? token.line : 0;
    if (token.kind == GameToken::Kind::kString) {
      value.kind = CharacterValue::Kind::kText;
      value.text = token.text;
    } else if (token.kind == GameToken::Kind::kNumber) {
      value.kind = token.is_whole ? CharacterValue::Kind::kWhole
                                  : CharacterValue::Kind::kFraction;
      value.number = token.number;
    } else {
      source.Complain(
          "bad-value", token,
          "A number without a sign, or a text in quotation marks, must stand "
          "behind each characteristic. The game finds " +
              Quoted(token.text) + " and throws this whole skill block away.");
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
  std::optional<std::string> bytes = game(kDefaultPath);
  if (!bytes) return std::nullopt;
  const GameFile file = {"botfiles/" + std::string(kDefaultPath),
                         std::string(kDefaultPath), std::move(*bytes)};
  FileFindings untold;
  std::optional<CharacterBlock> block =
      ReadCharacterBlock(file, level, game, untold);
  if (block) {
    for (auto& [number, value] : block->values) value.is_own = false;
  }
  return block;
}

}  // namespace

std::optional<CharacterBlock> ReadCharacterBlock(const GameFile& file,
                                                 std::optional<int> level,
                                                 const IncludeLookup& game,
                                                 FileFindings& findings) {
  GameSource source(file, game, findings);
  GameToken token;
  while (source.Read(token)) {
    if (!token.Is("skill")) {
      source.Complain("outside-block", token,
                      "The game finds " + Quoted(token.text) +
                          " outside a skill block and reads no further. Here "
                          "it expects skill, a number and {. Perhaps there is "
                          "a } too many above.");
      return std::nullopt;
    }
    // A fraction counts as its whole part.
    if (!source.ExpectNumber(GameSource::Numbers::kAny, token)) {
      return std::nullopt;
    }
    CharacterBlock block;
    block.level = static_cast<int>(std::min(token.number, 1e6));
    if (!source.Expect("{")) return std::nullopt;
    if (!level || block.level == *level) {
      if (!ReadValues(source, block)) return std::nullopt;
      return block;
    }
    if (!source.SkipBlock()) return std::nullopt;
  }
  return std::nullopt;
}

std::optional<CharacterLevel> LoadCharacterLevel(const GameFile* file,
                                                 int level,
                                                 const IncludeLookup& game,
                                                 FileFindings& findings) {
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
