#include "botfiles/character_words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <system_error>
#include <utility>

#include "botfiles/game_text.h"
#include "model/characteristic_catalogue.h"
#include "model/game_characteristics.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kKeyStart = "CHARACTERISTIC_";
constexpr std::string_view kSkill = "skill";
constexpr int kMaxLevel = 100;

constexpr std::size_t LengthOf(int key) { return BareKey(key).size(); }

/// All keys from short to long: few have the same length.
constexpr auto kKeysByLength = [] {
  std::array<int, kCatalogueSize> keys{};
  std::iota(keys.begin(), keys.end(), 0);
  std::ranges::sort(keys, {}, LengthOf);
  return keys;
}();

std::optional<int> KeyNamed(std::string_view word) {
  if (!word.starts_with(kKeyStart)) return std::nullopt;
  const auto* key =
      std::ranges::lower_bound(kKeysByLength, word.size(), {}, LengthOf);
  for (; key != kKeysByLength.end() && LengthOf(*key) == word.size(); ++key) {
    if (BareKey(*key) == word) return *key;
  }
  return std::nullopt;
}

/// The catalogue's index of the characteristics that the game knows by number;
/// -1 for one that the catalogue has not.
constexpr auto kIndexOfNumber = [] {
  std::array<int, kGameCharacteristics.size()> indexes{};
  indexes.fill(-1);
  for (int index = 0; index < kCatalogueSize; ++index) {
    if (!BareKey(index).starts_with(kKeyStart)) continue;
    const auto* const found =
        std::find(kGameCharacteristics.begin(), kGameCharacteristics.end(),
                  BareKey(index).substr(kKeyStart.size()));
    indexes.at(static_cast<std::size_t>(found - kGameCharacteristics.begin())) =
        index;
  }
  return indexes;
}();

/// The game takes a whole number for the key, octal behind a 0.
std::optional<int> KeyNumbered(std::string_view word) {
  std::size_t number = 0;
  const char* const end = word.data() + word.size();
  const int base = word.size() > 1 && word.front() == '0' ? 8 : 10;
  const auto read = std::from_chars(word.data(), end, number, base);
  if (read.ec != std::errc() || read.ptr != end ||
      number >= kIndexOfNumber.size() || kIndexOfNumber.at(number) < 0) {
    return std::nullopt;
  }
  return kIndexOfNumber.at(number);
}

bool IsBrace(std::string_view word) { return word == "{" || word == "}"; }

/// True for a word that can be no value.
bool IsNext(std::string_view word) {
  return IsBrace(word) || word == kSkill || word.starts_with(kKeyStart);
}

}  // namespace

const std::vector<CharacterWords::Found>& CharacterWords::TakeLine(
    std::string_view code, std::size_t line) {
  found_.clear();
  line_ = line;
  skips_value_ = false;
  code = TrimBlanksAndTabs(code);
  if (code.starts_with('#')) {
    left_out_.AddInclude(code, line);
    return found_;
  }
  while (true) {
    const std::string_view word = TakeWord(code);
    if (word.empty()) return found_;
    TakeWordOf(word);
  }
}

const std::vector<CharacterWords::Found>& CharacterWords::Finish() {
  found_.clear();
  if (open_key_) EndKey({});
  return found_;
}

void CharacterWords::TakeWordOf(std::string_view word) {
  if (open_key_) {
    if (!IsNext(word)) {
      Value value = PlainValue(word);
      open_key_->is_bare = std::holds_alternative<std::string>(value) &&
                           !word.starts_with('"') && !IsNumericText(word);
      open_key_->word = word;
      return EndKey(std::move(value));
    }
    EndKey({});
  }
  if (std::exchange(expects_level_, false)) {
    TakeLevel(word);
  } else if (std::exchange(skips_value_, false) && !IsNext(word)) {
    return;
  } else if (word == kSkill) {
    expects_level_ = true;
    block_.line = line_;
  } else if (const std::optional<int> key = KeyNamed(word)) {
    open_key_ = Found{.key = *key, .line = line_, .block = block_};
  } else if (const std::optional<int> number = KeyNumbered(word)) {
    open_key_ = Found{
        .key = *number, .line = line_, .is_numbered = true, .block = block_};
  } else if (!IsBrace(word)) {
    left_out_.AddName(word, line_);
    skips_value_ = true;
  }
}

void CharacterWords::TakeLevel(std::string_view word) {
  const std::optional<double> number = NumberFromText(word);
  std::optional<int>& level = block_.level;
  level.reset();
  if (number && std::fabs(*number) < kMaxLevel) {
    level = static_cast<int>(*number);
  }
  block_.is_repeated = level && !levels_.insert(*level).second;
}

void CharacterWords::EndKey(Value value) {
  // A number with nothing behind it is rather left from another value.
  const bool is_empty = std::holds_alternative<std::monostate>(value);
  if (open_key_->is_numbered && is_empty) {
    left_out_.AddName(number_, open_key_->line);
    open_key_.reset();
    return;
  }
  open_key_->value = std::move(value);
  found_.push_back(std::move(*open_key_));
  open_key_.reset();
}

}  // namespace fragsmith
