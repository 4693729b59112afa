// Plans for characteristics.

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include "botfiles/block_keys.h"
#include "botfiles/value_format.h"
#include "chat/vocabulary.h"
#include "game/skill_mix.h"
#include "inplace/attempt.h"
#include "inplace/number_style.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The keys of a block in the order in which our writer puts them.
constexpr auto kKeyOrder = [] {
  constexpr auto kCount = [] {
    int count = 0;
    for (const BlockKeys& part : kBlockKeys) {
      count += part.keys.last - part.keys.first + 1;
    }
    return static_cast<std::size_t>(count);
  }();
  std::array<int, kCount> order{};
  std::size_t at = 0;
  for (const BlockKeys& part : kBlockKeys) {
    for (const int index : part.keys) order.at(at++) = index;
  }
  return order;
}();

/// A characteristic and its value on their way into the blocks of a file.
class CharacteristicPlan {
 public:
  CharacteristicPlan(const PlanContext& context, ParameterId id)
      : context_(context),
        id_(id),
        value_(context.after.Parameter(id)),
        is_removal_(id.level() && kOptionalRange.Contains(id.index()) &&
                    !IsAboveZero(value_)),
        number_(context.readers.GameNumber(id.index())) {}

  Plan Make() {
    // The game's spans first: they are the tokens themselves.
    const std::vector<Level> levels = OwnLevels();
    bool has_value = !LastSpan(context_, id_).empty();
    for (const Level level : levels) {
      has_value = has_value || !GameSpan(level).empty();
    }
    plan_.refusal = RefusalFor(levels, has_value);
    if (!plan_.refusal.empty()) return std::move(plan_);
    if (is_removal_ && !has_value) {
      plan_.is_needless = true;
      return std::move(plan_);
    }
    for (std::size_t insertion = 0; insertion < kMaxInsertions; ++insertion) {
      if (std::optional<Attempt> attempt = AsGame(levels, insertion)) {
        plan_.attempts.push_back(*attempt);
        if (AddLastPlace(*attempt)) {
          plan_.attempts.push_back(std::move(*attempt));
        }
      }
    }
    if (has_value && IsOurs(LastSpan(context_, id_))) {
      plan_.attempts.push_back(AsOurs());
    }
    AddPadded(context_, id_, plan_);
    for (const Level level : levels) TellTwoPlaces(level);
    TellCalculated();
    if (!id_.level()) NoteOldValues(levels);
    return std::move(plan_);
  }

 private:
  /// Why the value cannot be edited at all; empty where it can.
  std::string RefusalFor(const std::vector<Level>& levels,
                         bool has_value) const {
    if (levels.empty()) {
      return has_value && !context_.reading.first_error.empty()
                 ? BrokenRefusal(context_.reading)
                 : Localized(
                       "The file has no block of this level that the "
                       "game reads.");
    }
    for (const Level level : levels) {
      if (!IsIncluded(level)) continue;
      return Localized(
          "At level %1 the game takes the value from a file that is included.",
          {std::to_string(NumberOf(level))});
    }
    // There may be more levels in a file that nobody could look at.
    const bool is_missing_one =
        context_.reading.errors.contains("include-missing");
    if (!id_.level() && is_missing_one) return BrokenRefusal(context_.reading);
    return {};
  }

  /// The game has the value, and not from this file.
  bool IsIncluded(Level level) const {
    if (!number_) return false;
    const auto& values = context_.reading.levels.at(level).values;
    const auto value = values.find(*number_);
    return value != values.end() && value->second.line == 0;
  }

  void TellTwoPlaces(Level level) {
    const TextSpan of_load = LastSpan(context_, id_);
    const TextSpan of_game = GameSpan(level);
    if (!id_.level() || of_load.empty() || of_game.empty()) return;
    // A value may also come out of a macro's line.
    const LineOfFile line = LineAround(context_.bytes, of_game.begin);
    if (Contains(TextAt(context_.bytes, line.text), BareKey(id_.index()))) {
      plan_.refusal = TwoPlacesRefusal(context_.bytes, of_game, of_load);
    }
  }

  void TellCalculated() {
    const std::string& plain = context_.reading.facts.at(PlainFact(id_));
    // Texts have a quotation mark in front.
    if (!plain.starts_with("\"$")) return;
    plan_.refusal = Localized(
        "The file has the game calculate it, and only a plain number can be "
        "changed. Write one there first, such as 0.5.");
  }

  /// What a bot has once may stand there with another value at each level.
  void NoteOldValues(const std::vector<Level>& levels) {
    std::set<std::string> values;
    std::string text;
    for (const Level level : levels) {
      const auto fact =
          number_ ? context_.reading.facts.find(LevelFact(level, *number_))
                  : context_.reading.facts.end();
      const bool has_value = fact != context_.reading.facts.end();
      // Texts have a quotation mark in front.
      std::string shown =
          has_value ? ShownText(fact->second) : Localized("no value");
      if (shown.starts_with('"')) shown += '"';
      if (!text.empty()) text += ", ";
      text +=
          Localized("%1 at level %2", {shown, std::to_string(NumberOf(level))});
      values.insert(std::move(shown));
    }
    if (values.size() < 2) return;
    plan_.notes.push_back(
        Localized("%1 is one value for all levels here. The file had %2; now "
                  "each of them has the new one.",
                  {QuotedName(id_), text}));
  }

  std::vector<Level> OwnLevels() const {
    std::vector<Level> levels;
    for (const auto& [level, block] : context_.reading.levels) {
      if (!id_.level() || id_.level() == level) levels.push_back(level);
    }
    return levels;
  }

  TextSpan GameSpan(Level level, std::optional<int> number) const {
    const auto block = context_.reading.levels.find(level);
    if (block == context_.reading.levels.end() || !number) return {};
    const auto value = block->second.values.find(*number);
    if (value == block->second.values.end()) return {};
    const TextSpan span = value->second.span;
    return IsOneLine(context_.bytes, span) ? span : TextSpan();
  }
  TextSpan GameSpan(Level level) const { return GameSpan(level, number_); }

  /// Whether the number there has a point for the game.
  std::optional<bool> HasPoint(Level level) const {
    const auto block = context_.reading.levels.find(level);
    if (block == context_.reading.levels.end() || !number_) return std::nullopt;
    const auto value = block->second.values.find(*number_);
    if (value == block->second.values.end() ||
        value->second.kind == CharacterValue::Kind::kText) {
      return std::nullopt;
    }
    return value->second.kind == CharacterValue::Kind::kFraction;
  }

  /// The value as it gets written at the levels. So that the game can mix them
  /// as before, whole numbers get a point where one beside them has it; that of
  /// a level above, too, which is not edited.
  std::map<Level, std::string> TextsFor(
      const std::vector<Level>& levels) const {
    std::map<Level, std::string> texts;
    if (is_removal_ || !ToNumber(value_)) return texts;
    for (const Level level : levels) {
      const TextSpan span = GameSpan(level);
      texts[level] = span.empty() ? FormatValue(value_)
                                  : InStyleOf(context_.bytes, span, value_);
    }
    const auto has_point = [&](Level level) {
      const auto text = texts.find(level);
      return text == texts.end() ? HasPoint(level)
                                 : std::optional(Contains(text->second, "."));
    };
    for (const auto& [lower, upper] : kMixedLevels) {
      const std::optional<bool> had = HasPoint(lower);
      if (had == true && HasPoint(upper) == false) continue;  // Lost before.
      if (texts.contains(lower) && had != false && HasPoint(upper) == true &&
          has_point(lower) == false) {
        texts[lower] += ".0";
      }
      if (has_point(lower) != true || has_point(upper) != false) continue;
      if (!texts.contains(upper)) {
        const std::string_view token = TextAt(context_.bytes, GameSpan(upper));
        if (token.empty() ||
            token.find_first_not_of("0123456789") != std::string_view::npos) {
          continue;
        }
        texts[upper] = token;
      }
      texts[upper] += ".0";
    }
    return texts;
  }

  Splice Replacement(TextSpan span) const {
    if (!is_removal_) return {span, InStyleOf(context_.bytes, span, value_)};
    // The key goes as well, which may be the game's number for it.
    const std::string_view before = context_.bytes.substr(0, span.begin);
    const std::size_t end = before.find_last_not_of(" \t") + 1;
    const std::size_t digits =
        before.substr(0, end).find_last_not_of("0123456789") + 1;
    if (digits < end) {
      span.begin = digits;
      return Removal(context_.bytes, span);
    }
    const std::string_view key = BareKey(id_.index());
    const std::size_t at = context_.bytes.rfind(key, span.begin);
    if (at != std::string_view::npos) span.begin = at;
    return Removal(context_.bytes, span);
  }

  /// At the spans where the game has the value, or a new line in each block
  /// that lacks it.
  std::optional<Attempt> AsGame(const std::vector<Level>& levels,
                                std::size_t insertion) const {
    Attempt attempt;
    bool inserts = false;
    std::map<Level, std::string> texts = TextsFor(levels);
    for (const Level level : levels) {
      const TextSpan span = GameSpan(level);
      const auto text = texts.extract(level);
      if (!span.empty()) {
        attempt.splices.push_back(text ? Splice{span, text.mapped()}
                                       : Replacement(span));
      } else {
        const std::vector<Splice> insertions =
            InsertionsIn(level, text ? text.mapped() : FormatValue(value_));
        if (insertion >= insertions.size()) return std::nullopt;
        attempt.splices.push_back(insertions[insertion]);
        inserts = true;
      }
      ExpectInGame(level, attempt);
    }
    if (attempt.splices.empty() || (!inserts && insertion > 0)) {
      return std::nullopt;
    }
    for (const auto& [level, text] : texts) {
      attempt.splices.push_back({GameSpan(level), text});
    }
    Expect(attempt);
    return attempt;
  }

  /// True for a place that an edit may write to though the game does not read
  /// it: behind its key, no comment and no line that it passes over.
  bool IsOurs(TextSpan token) const {
    const std::vector<TextSpan> comments = CommentsIn(context_.bytes);
    return !token.empty() && IsBehindKey(context_.bytes, id_, token) &&
           !IsInCondition(context_.bytes, token.begin) &&
           std::none_of(
               comments.begin(), comments.end(),
               [token](TextSpan comment) { return Overlap(token, comment); });
  }

  /// Of what a bot has once a load takes the last place, which may be in a
  /// block that the game does not read. False where nothing is to be added.
  bool AddLastPlace(Attempt& attempt) {
    const TextSpan last = LastSpan(context_, id_);
    const bool is_known = std::any_of(
        attempt.splices.begin(), attempt.splices.end(),
        [last](const Splice& splice) { return Overlap(last, splice.span); });
    if (id_.level() || last.empty() || is_known) return false;
    if (!IsOurs(last)) {
      const std::string line =
          std::to_string(LineNumberAt(context_.bytes, last.begin));
      plan_.refusal = Localized(
          IsInCondition(context_.bytes, last.begin)
              ? Localizable("A load takes the value from line %1, which the "
                            "game passes over. Change that line, or take it "
                            "out, first.")
              : Localizable(
                    "A load reads line %1 otherwise than the game does, "
                    "and takes that value. Take the line out, or write "
                    "it as a file made here has it, first."),
          {line});
      return false;
    }
    attempt.splices.push_back(Replacement(last));
    return true;
  }

  /// Where only our reader finds it.
  Attempt AsOurs() const {
    Attempt attempt;
    const TextSpan span = LastSpan(context_, id_);
    if (!span.empty()) attempt.splices.push_back(Replacement(span));
    Expect(attempt);
    for (const Level level : OwnLevels()) ExpectInGame(level, attempt);
    return attempt;
  }

  void ExpectInGame(Level level, Attempt& attempt) const {
    if (!number_) return;
    attempt.expected[LevelFact(level, *number_)] =
        is_removal_ ? std::nullopt : std::optional(FactOf(value_));
  }

  void Expect(Attempt& attempt) const {
    ExpectOurs(id_, FactOf(is_removal_ ? Bot().Parameter(id_) : value_),
               attempt);
  }

  std::vector<Splice> InsertionsIn(Level level, std::string_view value) const {
    Neighbours neighbours;
    const auto* const self =
        std::find(kKeyOrder.begin(), kKeyOrder.end(), id_.index());
    for (const auto* at = self; at != kKeyOrder.begin();) {
      --at;
      const TextSpan span = GameSpan(level, context_.readers.GameNumber(*at));
      if (!span.empty()) neighbours.before.push_back(span);
    }
    for (const auto* at = self; at != kKeyOrder.end(); ++at) {
      const TextSpan span = GameSpan(level, context_.readers.GameNumber(*at));
      if (!span.empty()) neighbours.behind.push_back(span);
    }
    const TextSpan open = context_.reading.levels.at(level).open;
    if (neighbours.before.empty() && neighbours.behind.empty() &&
        !open.empty()) {
      neighbours.before.push_back(open);
    }
    return Insertions(context_.bytes, neighbours, PaddedKey(id_.index()),
                      value);
  }

  const PlanContext& context_;
  ParameterId id_;
  const Value& value_;
  bool is_removal_;
  std::optional<int> number_;
  Plan plan_;
};

}  // namespace

Plan PlanCharacteristic(const PlanContext& context, ParameterId id) {
  return CharacteristicPlan(context, id).Make();
}

}  // namespace fragsmith
