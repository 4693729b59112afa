#include "botfiles/character_words.h"

#include <cmath>
#include <utility>

#include "botfiles/game_text.h"
#include "model/characteristic_catalogue.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kKeyStart = "CHARACTERISTIC_";
constexpr std::string_view kSkill = "skill";
constexpr int kMaxLevel = 100;

std::optional<int> KeyNamed(std::string_view word) {
  if (!word.starts_with(kKeyStart)) return std::nullopt;
  for (int index = 0; index < kCatalogueSize; ++index) {
    if (BareKey(index) == word) return index;
  }
  return std::nullopt;
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
      open_key_->is_bare = !word.starts_with('"') && !IsNumericText(word);
      return EndKey(PlainValue(word));
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
  open_key_->value = std::move(value);
  found_.push_back(*std::exchange(open_key_, std::nullopt));
}

}  // namespace fragsmith
