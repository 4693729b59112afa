// Plans for the fields of a description.

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "botfiles/description_file.h"
#include "botfiles/game_text.h"
#include "chat/vocabulary.h"
#include "game/limits.h"
#include "inplace/attempt.h"
#include "session/identity_rules.h"
#include "support/code_page.h"
#include "support/game_blank.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// The order in which our writer puts them, with its padding.
constexpr std::array<std::string_view, 7> kPaddedKeys = {
    "name\t\t",   "model\t\t", "funname\t",  "color\t\t",
    "color1\t\t", "aifile\t",  "arenaLord\t"};

/// The key of the rail colour for the game.
constexpr std::string_view kReadColor = "color1";

constexpr std::string_view kDefaultSkin = "default";

std::string KeyOf(std::string_view padded) {
  return ToLower(padded.substr(0, padded.find('\t')));
}

std::string_view PaddedKeyOf(std::string_view key) {
  const auto* const found = std::find_if(
      kPaddedKeys.begin(), kPaddedKeys.end(),
      [key](std::string_view padded) { return KeyOf(padded) == key; });
  return *found;
}

/// The set of the game that describes this bot; nothing where it is not known,
/// as several stand in the same lines.
std::optional<std::size_t> OwnSet(const FileReading& reading) {
  std::optional<std::size_t> own;
  for (std::size_t at = 0; at < reading.descriptions.size(); ++at) {
    if (!Overlap(reading.descriptions[at].span, reading.block)) continue;
    if (own) return std::nullopt;
    own = at;
  }
  return own;
}

class DescriptionPlan {
 public:
  DescriptionPlan(const PlanContext& context, ParameterId field,
                  std::size_t set)
      : context_(context),
        field_(field),
        set_at_(set),
        set_(context.reading.descriptions[set]) {}

  Plan Make() {
    const std::string key = Key();
    const DescriptionSet::Value* const old = LastOf(key);
    const bool is_there = old != nullptr && !old->span.empty();
    const std::optional<std::string> text =
        NewText(is_there ? old->text : std::string());
    Attempt attempt;
    attempt.expected[DescriptionFact(set_at_, key)] = text;
    ExpectFields(attempt);
    if (is_there && old->text.ends_with('}')) {
      return {.attempts = {},
              .refusal = Localized(
                  "The game takes the brace behind the value for a part of it. "
                  "Put the brace into a line of its own first.")};
    }
    if (is_there) {
      attempt.splices.push_back(text ? Replacement(old->span, *text)
                                     : LineRemoval(old->span, key));
      Plan plan = {.attempts = {attempt}, .refusal = {}};
      if (text && HasCommentBeside(old->span)) {
        plan.refusal = Localized(
            "A load takes the comment in its line for a part of it. Put that "
            "into a line of its own first.");
        plan.notes.push_back(Localized(
            "The comment behind %1 stays. A load here takes it for a part of "
            "the text, as before; the game does not.",
            {QuotedName(field_)}));
      }
      if (text && key == kReadColor) {
        plan.notes.push_back(Localized(
            "The game reads color1, of which a load here takes the 1 for a "
            "part of the value, as before."));
      }
      if (plan.refusal.empty() && field_ == kNameField) {
        plan.refusal = SharedFilesRefusal();
      } else if (plan.refusal.empty()) {
        plan.refusal = OtherLineRefusal(key, !text);
      }
      if (text) {
        attempt.splices = {WithoutBlanks(old->span, *text)};
        plan.attempts.push_back(attempt);
      }
      if (text && field_ == kModelField && !Contains(*text, "/")) {
        // Behind another "/" in the line a load wants one of the model's own.
        const std::string with_skin = *text + "/" + std::string(kDefaultSkin);
        attempt.expected[DescriptionFact(set_at_, key)] = with_skin;
        attempt.splices = {Replacement(old->span, with_skin)};
        plan.attempts.push_back(std::move(attempt));
      }
      return plan;
    }
    if (std::string glued = GluedCommentRefusal(key); !glued.empty()) {
      return {.attempts = {}, .refusal = std::move(glued)};
    }
    if (!text) return {.attempts = {}, .refusal = {}, .is_needless = true};
    Plan plan = {.attempts = {}, .refusal = OtherLineRefusal(key, false)};
    if (old != nullptr) {
      // The key stands there alone.
      const std::size_t behind = old->key.end;
      attempt.splices = {{{behind, behind}, "\t" + InFile(*text)}};
      plan.attempts.push_back(attempt);
    }
    for (Splice& splice : NewLines(key, *text)) {
      attempt.splices = {std::move(splice)};
      plan.attempts.push_back(attempt);
    }
    return plan;
  }

 private:
  /// The last line of the key. Its value may be one that the game throws away.
  const DescriptionSet::Value* LastOf(const std::string& key) const {
    const auto value = set_.values.find(key);
    const auto thrown = set_.thrown_away.find(key);
    if (value == set_.values.end() && thrown == set_.thrown_away.end()) {
      return nullptr;
    }
    const bool is_thrown = thrown != set_.thrown_away.end() &&
                           (value == set_.values.end() ||
                            value->second.key.begin < thrown->second.key.begin);
    return is_thrown ? &thrown->second : &value->second;
  }

  /// Why a load does not have the value of the key from its line: it takes
  /// what stands behind the word in any line, up to the line's end. Empty where
  /// nothing is in the way.
  std::string OtherLineRefusal(const std::string& key, bool is_removal) const {
    const DescriptionSet::Value* const own = LastOf(key);
    const bool is_there = own != nullptr && !own->span.empty();
    TextSpan line;
    if (own != nullptr) line = LineAround(context_.bytes, own->key.begin).text;
    const bool shares_line =
        is_there &&
        (Contains(TextAt(context_.bytes, {own->span.end, line.end}), "}") ||
         std::ranges::any_of(set_.values, [&](const auto& other) {
           return other.first != key && Overlap(other.second.span, line);
         }));
    if (shares_line) {
      return Localized(
          "More than this value stands in its line, and a load takes all up to "
          "the line's end for it. Put each key and each brace into a line of "
          "its own first.");
    }
    if (!is_there && IsOneLine(context_.bytes, set_.span)) {
      return Localized(
          "The description stands in one line. Put each key and each brace "
          "into a line of its own first.");
    }
    std::optional<TextSpan> other;
    for (const auto& [field, read] : context_.reading.report.spans) {
      if (field != field_) continue;
      if (own == nullptr || !Overlap(read, line)) {
        other = read;
      } else if (!is_removal) {
        other.reset();
      }
    }
    if (!other) return {};
    const std::string number =
        std::to_string(LineNumberAt(context_.bytes, other->begin));
    const std::string_view other_line = TrimBlanksAndTabs(
        TextAt(context_.bytes, LineAround(context_.bytes, other->begin).text));
    if (EqualIgnoringCase(FirstToken(other_line), key)) {
      return Localized(
          "Its key stands in line %1, too, and that line would count then. "
          "Take it out first.",
          {number});
    }
    return Localized(
        is_removal
            ? Localizable("A load takes it from line %1 then, where its key "
                          "stands in another word. Take that line out first.")
            : Localizable("A load takes it from line %1, where its key stands "
                          "in another word. Take that line out, or put it "
                          "further up, first."),
        {number});
  }

  /// Why there is no line of the key for the game, though one is meant to be
  /// it; empty where there is none.
  std::string GluedCommentRefusal(const std::string& key) const {
    for (const auto& [word, value] : set_.values) {
      const bool is_glued =
          word.starts_with(key + "/*") || word.starts_with(key + "//");
      if (!is_glued) continue;
      return Localized(
          "In line %1 a comment stands right behind the key, and the game "
          "takes "
          "both for one word, \"%2\". Put a blank in front of the comment "
          "first.",
          {std::to_string(LineNumberAt(context_.bytes, value.key.begin)),
           ShownText(word)});
    }
    return {};
  }

  /// Why the name of one of several bots with the same files has to stay.
  std::string SharedFilesRefusal() const {
    const std::string_view file = set_.Text("aifile");
    for (const DescriptionSet& other : context_.reading.descriptions) {
      if (&other == &set_ || !EqualIgnoringCase(other.Text("aifile"), file)) {
        continue;
      }
      return Localized(
          "\"%1\" has the same files, and without the old name a load takes "
          "that one's description for this bot's. Give it files of its own "
          "first.",
          {ShownText(other.Text("name"))});
    }
    return {};
  }

  std::string Key() const {
    switch (field_.index()) {
      case kNameField.index():
        return "name";
      case kFunNameField.index():
        return "funname";
      case kRailColorField.index():
        // The game looks for the one, our writer writes the other.
        return std::string(set_.values.contains(kReadColor) ? kReadColor
                                                            : "color");
      case kArenaLordField.index():
        return "arenalord";
      default:
        return "model";
    }
  }

  /// What is to stand behind the key; nothing where the line has to go.
  std::optional<std::string> NewText(const std::string& old) const {
    const Bot& bot = context_.after;
    std::string text;
    switch (field_.index()) {
      case kFunNameField.index():
        text = FunNameForBox(bot.FunName());
        break;
      case kRailColorField.index():
        text = bot.Text(kRailColorField);
        if (text == kNoRailColor) text.clear();
        break;
      case kArenaLordField.index():
        text = bot.Text(kArenaLordField);
        if (old.empty() && ToNumber(bot.Parameter(field_)) == 0.0) text.clear();
        break;
      case kNameField.index():
        text = bot.Name();
        break;
      default: {
        text = ModelFileName(TextOfHalf(kModelField));
        const std::string skin = TextOfHalf(kSkinField);
        if (ToLower(skin) != kDefaultSkin || Contains(old, "/")) {
          text += "/" + ModelFileName(skin);
        }
      }
    }
    if (text.empty()) return std::nullopt;
    return text;
  }

  bool IsEdited(ParameterId half) const {
    return !EqualIgnoringCase(context_.after.Text(half),
                              context_.reading.bot.Text(half));
  }

  /// Model or skin as it is to be. The one that was not edited is what the game
  /// has, whatever our reader makes of the line.
  std::string TextOfHalf(ParameterId half) const {
    const auto plain = context_.reading.report.plain_values.find(half);
    return IsEdited(half) || plain == context_.reading.report.plain_values.end()
               ? context_.after.Text(half)
               : ToText(plain->second);
  }

  static bool NeedsQuotes(std::string_view text) {
    // Outside of quotes the game ends a word at a letter beyond ASCII, too.
    return std::ranges::any_of(text, IsGameBlank) || Contains(text, "//") ||
           Contains(text, "/*");
  }

  static std::string InFile(const std::string& text) {
    return NeedsQuotes(text) ? '"' + text + '"' : text;
  }

  Splice Replacement(TextSpan span, const std::string& text) const {
    const bool is_quoted = context_.bytes[span.begin] == '"';
    return {span, is_quoted ? '"' + text + '"' : InFile(text)};
  }

  bool HasCommentBeside(TextSpan span) const {
    const TextSpan line = LineAround(context_.bytes, span.begin).text;
    return std::ranges::any_of(
        CommentsIn(context_.bytes),
        [line](TextSpan comment) { return Overlap(comment, line); });
  }

  /// The same without the blanks around it, which the game passes over and a
  /// load may not.
  Splice WithoutBlanks(TextSpan span, const std::string& text) const {
    Splice splice = Replacement(span, text);
    const LineOfFile line = LineAround(context_.bytes, span.begin);
    const auto is_blank = [this](std::size_t at) {
      return context_.bytes[at] == ' ' || context_.bytes[at] == '\t';
    };
    while (splice.span.begin > line.text.begin &&
           is_blank(splice.span.begin - 1)) {
      --splice.span.begin;
    }
    while (splice.span.end < line.text.end && is_blank(splice.span.end)) {
      ++splice.span.end;
    }
    splice.text.insert(0, "\t");
    return splice;
  }

  Splice LineRemoval(TextSpan span, std::string_view key) const {
    const LineOfFile line = LineAround(context_.bytes, span.begin);
    const std::string before = ToLower(
        context_.bytes.substr(line.text.begin, span.begin - line.text.begin));
    const std::size_t at = before.rfind(key);
    if (at != std::string::npos) span.begin = line.text.begin + at;
    return Removal(context_.bytes, span);
  }

  std::vector<Splice> NewLines(std::string_view key,
                               const std::string& text) const {
    const std::string_view padded = PaddedKeyOf(key);
    Neighbours neighbours;
    bool is_before = true;
    for (const std::string_view other : kPaddedKeys) {
      is_before = is_before && other != padded;
      const auto value = set_.values.find(KeyOf(other));
      if (value == set_.values.end()) continue;
      const TextSpan span = value->second.span;
      if (span.empty()) continue;
      if (is_before) {
        neighbours.before.insert(neighbours.before.begin(), span);
      } else {
        neighbours.behind.push_back(span);
      }
    }
    // Of the two a load takes the later line.
    const auto spiral = set_.values.find("color2");
    if (field_ == kRailColorField && spiral != set_.values.end() &&
        !spiral->second.span.empty()) {
      neighbours.before.insert(neighbours.before.begin(), spiral->second.span);
    }
    return Insertions(context_.bytes, neighbours, padded, InFile(text));
  }

  void ExpectFields(Attempt& attempt) const {
    const Bot& bot = context_.after;
    const auto expect = [&](ParameterId field, std::string fact) {
      ExpectOurs(field, std::move(fact), attempt);
    };
    switch (field_.index()) {
      case kNameField.index():
        return;
      case kFunNameField.index():
        return expect(field_, FactOf(Value(FunNameForBox(bot.FunName()))));
      case kModelField.index():
        for (const ParameterId half : {kModelField, kSkinField}) {
          expect(half, ToLower(TextOfHalf(half)));
        }
        return;
      default:
        return expect(field_, FactOf(bot.Parameter(field_)));
    }
  }

  const PlanContext& context_;
  ParameterId field_;
  std::size_t set_at_;
  const DescriptionSet& set_;
};

}  // namespace

Plan PlanDescription(const PlanContext& context, ParameterId field) {
  const std::string limit = std::to_string(limits::kRefusedDescription);
  if (context.bytes.size() >= limits::kRefusedDescription) {
    return {.attempts = {},
            .refusal = Localized(
                "The file is too large: the game reads no description of %1 "
                "bytes or more. Shorten it.",
                {limit})};
  }
  const std::optional<std::size_t> set = OwnSet(context.reading);
  if (!set) {
    return {.attempts = {},
            .refusal = Localized(
                "The game reads no description of this bot there that stands "
                "in lines of its own.")};
  }
  Plan plan = DescriptionPlan(context, field, *set).Make();
  const auto is_too_large = [&context](const Attempt& attempt) {
    return Spliced(context.bytes, attempt.splices).size() >=
           limits::kRefusedDescription;
  };
  if (!plan.attempts.empty() &&
      std::ranges::all_of(plan.attempts, is_too_large)) {
    return {.attempts = {},
            .refusal = Localized(
                "With that the file would be too large: the game reads no "
                "description of %1 bytes or more. Shorten it.",
                {limit})};
  }
  return plan;
}

}  // namespace fragsmith
