#include "game/weight_reader.h"

#include <algorithm>
#include <string>

#include "chat/vocabulary.h"
#include "game/advice.h"
#include "game/limits.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Switches in switches; more than any file needs.
constexpr int kMaxDepth = 100;

class WeightReader {
 public:
  explicit WeightReader(GameSource& source) : source_(source) {}

  bool ReadWeight(GameWeight& weight) {
    weight_ = &weight;
    cases_.clear();
    GameToken token;
    if (!source_.ExpectString(token)) return false;
    weight.name = token.text;
    if (token.file == 0) weight.line = token.line;
    const bool has_brace = source_.Take("{");
    if (!source_.ReadAny(token)) return false;
    bool is_good = false;
    if (token.Is("switch")) {
      is_good = ReadSwitch(token);
    } else if (token.Is("return")) {
      is_good = ReadReturn();
    } else {
      Stumble(token);
    }
    return is_good && (!has_brace || source_.Expect("}"));
  }

  void Stumble(const GameToken& token) {
    if (source_.ComplainOfMacroValue()) return;
    source_.Complain(
        "weight-syntax", token,
        Localized("The game does not expect %1 here.", {Quoted(token.text)}) +
            " " + Advice(token));
  }

 private:
  /// A #define that lacks its beginning is the most frequent slip.
  std::string Advice(const GameToken& token) const {
    if (token.Is("define") || token.Is("include")) {
      return Localized("Write %1.", {"#" + token.text});
    }
    std::string_view line = TrimBlanksAndTabs(source_.LineOf(token));
    if (token.kind == GameToken::Kind::kName && line.starts_with(token.text)) {
      line = TrimBlanksAndTabs(line.substr(token.text.size()));
      if (line.find_first_of("0123456789") == 0) {
        return Localized("Write %1 in front of it.", {"#define"});
      }
    }
    return token.file == 0 ? Localized("Remove it.")
                           : AdviceForStray(token, "weight", source_.bytes());
  }

  bool ReadSwitch(const GameToken& begin) {
    GameToken token;
    if (++depth_ > kMaxDepth) {
      source_.Complain(
          "switch-too-deep", begin,
          Localized("More than %1 switches stand in one another here. Such a "
                    "file is not read any further; write it with fewer.",
                    {std::to_string(kMaxDepth)}));
      return false;
    }
    if (!source_.Expect("(") ||
        !source_.ExpectNumber(GameSource::Numbers::kWhole, token) ||
        !source_.Expect(")") || !source_.Expect("{") ||
        !source_.ReadAny(token)) {
      return false;
    }
    WeightReturn::Case reached;
    constexpr double kMaxInventory = 1e6;
    reached.inventory = static_cast<int>(std::min(token.number, kMaxInventory));
    bool has_default = false;
    do {
      cases_.push_back(reached);
      if (!ReadCase(token, has_default) || !source_.ReadAny(token)) {
        return false;
      }
      cases_.pop_back();
    } while (!token.Is("}"));
    if (!has_default) {
      source_.Warn(
          "switch-without-default", token,
          Localized(
              "This switch has no default: the weight is 0 where no case fits. "
              "Write a default: and a value unless that is meant."));
    }
    --depth_;
    return true;
  }

  bool ReadCase(const GameToken& begin, bool& has_default) {
    GameToken token;
    if (begin.Is("default")) {
      if (has_default) {
        source_.Complain(
            "default-twice", begin,
            Localized("This switch has a default already. Remove one."));
        return false;
      }
      has_default = true;
    } else if (!begin.Is("case")) {
      Stumble(begin);
      return false;
    } else if (!source_.ExpectNumber(GameSource::Numbers::kWhole, token)) {
      return false;
    } else {
      cases_.back().below = token.number;
    }
    if (!source_.Expect(":") || !source_.ReadAny(token)) return false;
    const bool has_brace = token.Is("{");
    if (has_brace && !source_.ReadAny(token)) return false;
    bool is_good = false;
    if (token.Is("return")) {
      is_good = ReadReturn();
    } else if (token.Is("switch")) {
      is_good = ReadSwitch(token);
    } else {
      Stumble(token);
    }
    return is_good && (!has_brace || source_.Expect("}"));
  }

  bool ReadReturn() {
    source_.ForgetMacro();
    weight_->returns.push_back({cases_, {}, {}});
    if (source_.Take("balance")) {
      if (!source_.Expect("(") || !ReadValue() || !source_.Expect(",") ||
          !ReadValue() || !source_.Expect(",") || !ReadValue() ||
          !source_.Expect(")")) {
        return false;
      }
    } else if (!ReadValue()) {
      return false;
    }
    return source_.Expect(";");
  }

  bool ReadValue() {
    GameToken token;
    if (!source_.ReadAny(token)) return false;
    if (token.Is("-")) {
      source_.Warn("negative-weight", token,
                   Localized("The game drops the minus sign of this weight and "
                             "takes the number without it. Use 0 for a weapon "
                             "or an item that the bot should leave alone."));
      if (!source_.ReadAny(token)) return false;
    }
    if (token.kind == GameToken::Kind::kNumber) {
      // Of a balance the first one counts, the others are its bounds.
      std::optional<OwnNumber>& own = weight_->returns.back().own;
      if (!own) own = token.own;
      weight_->returns.back().values.push_back(token.number);
      return true;
    }
    if (token.kind == GameToken::Kind::kName) {
      source_.ComplainOfMacro(token);
    } else {
      if (source_.ComplainOfMacroValue()) return false;
      source_.Complain(
          "bad-weight", token,
          Localized(
              "The game needs a plain number but finds %1. Write a number.",
              {Quoted(token.text)}));
    }
    return false;
  }

  GameSource& source_;
  int depth_ = 0;
  GameWeight* weight_ = nullptr;
  std::vector<WeightReturn::Case> cases_;
};

/// Of weights of one name the game takes the first.
void TellTwice(GameSource& source, const GameToken& token,
               const std::vector<GameWeight>& weights) {
  const GameWeight& last = weights.back();
  const auto first = std::ranges::find(weights, last.name, &GameWeight::name);
  if (last.line == 0 || &*first == &last) return;
  source.Warn(
      "weight-twice", token,
      first->line > 0
          ? Localized("The weight %1 stands twice, first in line %2: the game "
                      "takes that one and passes over this. Remove the one "
                      "that is not meant.",
                      {Quoted(last.name), std::to_string(first->line)})
          : Localized("The weight %1 stands twice, first in a file that is "
                      "included above: the game takes that one and passes over "
                      "this. Remove the one that is not meant.",
                      {Quoted(last.name)}));
}

/// False where the game gives up.
bool ReadAll(GameSource& source, WeightsRead& read) {
  WeightReader reader(source);
  GameToken token;
  while (source.Read(token)) {
    if (!token.Is("weight")) {
      reader.Stumble(token);
      return false;
    }
    if (read.count == limits::kMaxWeights) {
      source.Warn("too-many-weights", token,
                  Localized("The game reads %1 weights and passes over the "
                            "rest. Remove those that the bot needs least.",
                            {std::to_string(limits::kMaxWeights)}));
      break;
    }
    if (!reader.ReadWeight(read.weights.emplace_back())) return false;
    ++read.count;
    TellTwice(source, token, read.weights);
  }
  return true;
}

}  // namespace

WeightsRead ReadGameWeights(const GameFile& file, const IncludeLookup& game,
                            Complaints& findings) {
  WeightsRead read;
  GameSource source(file, game, findings);
  read.is_loaded = ReadAll(source, read) && !source.is_endless();
  read.macros = source.OwnMacros();
  read.missing_macro = source.missing_macro();
  return read;
}

}  // namespace fragsmith
