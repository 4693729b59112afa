#include "checks/file_weights.h"

#include "support/code_page.h"

namespace fragsmith {
namespace {

/// Switches in switches; more than any file needs.
constexpr int kMostDepth = 100;
/// The game passes over what stands behind so many weights.
constexpr int kMostWeights = 128;

class WeightReader {
 public:
  explicit WeightReader(GameSource& source) : source_(source) {}

  bool ReadWeight() {
    GameToken token;
    if (!source_.ExpectString(token)) return false;
    const bool has_brace = source_.Take("{");
    if (!source_.ReadAny(token)) return false;
    bool is_good = false;
    if (token.Is("switch")) {
      is_good = ReadSwitch();
    } else if (token.Is("return")) {
      is_good = ReadReturn();
    } else {
      Stumble(token);
    }
    return is_good && (!has_brace || source_.Expect("}"));
  }

  void Stumble(const GameToken& token) {
    source_.Complain("weight-syntax", token,
                     "The game does not expect " + Quoted(token.text) +
                         " here." + Advice(" Remove it."));
  }

 private:
  std::string Advice(std::string_view otherwise) const {
    if (source_.last_macro().empty()) return std::string(otherwise);
    return " The value of " + source_.last_macro() +
           " must be one plain number, without a ; behind it.";
  }

  bool ReadSwitch() {
    GameToken token;
    if (++depth_ > kMostDepth || !source_.Expect("(") ||
        !source_.ExpectNumber(GameSource::Numbers::kWhole, token) ||
        !source_.Expect(")") || !source_.Expect("{") ||
        !source_.ReadAny(token)) {
      return false;
    }
    bool has_default = false;
    do {
      if (!ReadCase(token, has_default) || !source_.ReadAny(token)) {
        return false;
      }
    } while (!token.Is("}"));
    if (!has_default) {
      source_.Warn("switch-without-default", token,
                   "This switch has no default: the weight is 0 where no case "
                   "fits.");
    }
    --depth_;
    return true;
  }

  bool ReadCase(const GameToken& begin, bool& has_default) {
    GameToken token;
    if (begin.Is("default")) {
      if (has_default) {
        source_.Complain("weight-syntax", begin,
                         "This switch has a default already. Remove one.");
        return false;
      }
      has_default = true;
    } else if (!begin.Is("case")) {
      Stumble(begin);
      return false;
    } else if (!source_.ExpectNumber(GameSource::Numbers::kWhole, token)) {
      return false;
    }
    if (!source_.Expect(":") || !source_.ReadAny(token)) return false;
    const bool has_brace = token.Is("{");
    if (has_brace && !source_.ReadAny(token)) return false;
    bool is_good = false;
    if (token.Is("return")) {
      is_good = ReadReturn();
    } else if (token.Is("switch")) {
      is_good = ReadSwitch();
    } else {
      Stumble(token);
    }
    return is_good && (!has_brace || source_.Expect("}"));
  }

  bool ReadReturn() {
    source_.ForgetMacro();
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
                   "The game drops the minus sign of this weight and takes "
                   "the number without it. Use 0 for a weapon or an item that "
                   "the bot should leave alone.");
      if (!source_.ReadAny(token)) return false;
    }
    if (token.kind == GameToken::Kind::kNumber) return true;
    if (token.kind == GameToken::Kind::kName) {
      source_.Complain("macro-missing", token,
                       "The game looks for a number for " +
                           ShownText(token.text) + " and finds none." +
                           " Write #define " + ShownText(token.text) +
                           " and a plain number in this file; capital letters "
                           "count.");
    } else {
      source_.Complain("bad-weight", token,
                       "The game needs a plain number but finds " +
                           Quoted(token.text) + "." + Advice(""));
    }
    return false;
  }

  GameSource& source_;
  int depth_ = 0;
};

}  // namespace

WeightsRead ReadGameWeights(const GameFile& file, const IncludeLookup& game,
                            FileFindings& findings) {
  WeightsRead read;
  GameSource source(file, game, findings);
  WeightReader reader(source);
  GameToken token;
  while (source.Read(token)) {
    if (!token.Is("weight")) {
      reader.Stumble(token);
      return read;
    }
    if (read.count == kMostWeights) {
      source.Warn("too-many-weights", token,
                  "The game reads 128 weights and passes over the rest.");
      break;
    }
    if (!reader.ReadWeight()) return read;
    ++read.count;
  }
  read.is_loaded = !source.is_endless();
  return read;
}

}  // namespace fragsmith
