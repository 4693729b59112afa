#include "trial/trial_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "game/game_path.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"
#include "trial/engine_messages.h"

namespace fragsmith {
namespace {

constexpr std::size_t kMaxLastLines = 10;

constexpr std::array<std::string_view, 2> kErrorPrefixes = {"Error:", "Fatal:"};
constexpr std::string_view kWarningPrefix = "Warning:";

/// The words of a line: without colours and what a server puts around that
/// which it sends to all players.
std::string WordsOf(std::string_view line) {
  constexpr std::string_view kBroadcast = "broadcast: print \"";
  constexpr std::string_view kBroadcastEnd = "\\n\"";
  if (line.starts_with(kBroadcast)) {
    line.remove_prefix(kBroadcast.size());
    if (EndsWithIgnoringCase(line, kBroadcastEnd)) {
      line.remove_suffix(kBroadcastEnd.size());
    }
  }
  std::string words;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '^' && at + 1 < line.size() && line[at + 1] != '^') {
      ++at;
    } else {
      words += line[at];
    }
  }
  return words;
}

}  // namespace

std::string VerdictText(TrialVerdict verdict, const std::string& bot_name) {
  const std::string name = Utf8FromGameText(bot_name);
  switch (verdict) {
    case TrialVerdict::kEntered:
      return Localized("%1 entered the game.", {name});
    case TrialVerdict::kOthersFiles:
      return Localized(
          "%1 entered the game, but with files of another bot. Correct their "
          "names in the character file, the one that ends in _c.c.",
          {name});
    case TrialVerdict::kWithDefault:
      return Localized(
          "%1 entered the game, but with the game's default character in "
          "place of its own.",
          {name});
    case TrialVerdict::kOtherBot:
      return Localized(
          "%1 entered the game, but with the character of another bot. Either "
          "the game has a bot of this name already, which wins: take another "
          "name. Or the description names that file behind aifile: write the "
          "bot's own.",
          {name});
    case TrialVerdict::kNotAdded:
      return Localized("The game did not add %1.", {name});
    case TrialVerdict::kUnknown:
      break;
  }
  return Localized("It is not known what the game makes of %1.", {name});
}

TrialReader::TrialReader(const TrialSetup& setup, const std::string& bot_name,
                         const std::string& file_name)
    : name_(bot_name),
      file_name_(ToLower(file_name)),
      is_dedicated_(setup.is_dedicated),
      has_opponents_(!setup.opponents.empty()) {}

std::vector<TrialLine> TrialReader::Read(std::string_view bytes) {
  // No line of interest is as long; what never ends is not kept.
  constexpr std::size_t kMaxLineBytes = 4096;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    if (rest_.size() < kMaxLineBytes) {
      rest_ += bytes.substr(0, std::min(end, kMaxLineBytes));
    }
    if (end < bytes.size()) {
      if (!rest_.empty() && rest_.back() == '\r') rest_.pop_back();
      TakeLine(rest_);
      last_lines_.push_back(std::exchange(rest_, {}));
      if (last_lines_.size() > kMaxLastLines) last_lines_.pop_front();
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return std::exchange(new_lines_, {});
}

std::vector<std::string> TrialReader::LastLines() const {
  constexpr std::size_t kMaxShown = 500;  // Bytes of a line.
  std::vector<std::string> lines;
  const auto add = [&lines](std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(Utf8FromGameText(line.substr(0, kMaxShown)));
  };
  std::for_each(last_lines_.begin(), last_lines_.end(), add);
  if (!rest_.empty()) add(rest_);
  return lines;
}

void TrialReader::TakeLine(std::string_view bytes) {
  const std::string line = WordsOf(bytes);
  if (const std::string_view dead_end = DeadEndSentence(line);
      !dead_end.empty()) {
    Add(Severity::kError, line, dead_end);
    dead_end_ = TrialLine{Severity::kError, Utf8FromGameText(line),
                          Localized(dead_end)};
    is_over_ = true;
  } else if (line.starts_with("loaded ")) {
    TakeLoaded(line);
  } else if (Contains(line, " entered the game")) {
    // The first that enters once the bot's files are read is the bot.
    if (is_over_ || !has_chat_) return;
    Add(Severity::kHint, line, {});
    End(TrialVerdict::kEntered);
  } else {
    TakeComplaint(line);
  }
}

void TrialReader::TakeLoaded(const std::string& line) {
  const bool is_default = Contains(line, "default skill ");
  const bool is_character = Contains(line, "skill ");
  const bool is_chat = !is_character && Contains(line, " from ");
  // The default character itself is read with every bot.
  if (Contains(line, kDefaultCharacter) ||
      !(Contains(line, "bots/") || is_character || is_chat)) {
    return;
  }
  if (is_over_) return;
  has_default_character_ = has_default_character_ || is_default;
  const std::string path = line.substr(line.rfind(' ') + 1);
  const std::string owner = BotOfPath(path);
  // Those of the default character come with it.
  const bool is_others =
      !has_default_character_ && !owner.empty() && owner != file_name_;
  has_others_files_ = has_others_files_ || is_others;
  has_others_character_ = has_others_character_ || (is_others && is_character);
  if (is_default) {
    Add(Severity::kError, line,
        Localizable(
            "The bot gets the game's default character in place of its own."));
  } else if (is_others && is_character) {
    Add(Severity::kError, line,
        Localizable("This is the character of another bot, which has the name "
                    "or whose file the description names."));
  } else if (is_others && !has_others_character_) {
    Add(Severity::kWarning, line,
        Localizable("This is a file of another bot. The character file, the "
                    "one that ends in _c.c, names it."));
  } else {
    Add(Severity::kHint, line, {});
  }
  has_chat_ = has_chat_ || is_chat;
  // Nothing can go wrong with the bot any more. Its entrance is told to the
  // players who are there, and a player of this game is not yet.
  if (has_chat_ && !is_dedicated_) End(TrialVerdict::kEntered);
}

void TrialReader::TakeComplaint(const std::string& line) {
  if (const BareMessage* const message = FindBareMessage(line)) {
    if (is_over_ && has_opponents_ && !IsOwn(line)) return;
    Add(message->severity, line, message->explanation.sentence);
    if (message->is_refusal) End(TrialVerdict::kNotAdded);
    return;
  }
  if (Contains(line, "Bot '") && Contains(line, "' not defined")) {
    // The bots are added one after the other, ours first.
    const bool is_own = !is_over_;
    Add(is_own ? Severity::kError : Severity::kWarning, line,
        is_own
            ? Localizable("The game did not read the bot's description file.")
            : Localizable("The game has no bot of this name to play against."));
    if (is_own) End(TrialVerdict::kNotAdded);
    return;
  }
  const bool is_error = std::any_of(
      kErrorPrefixes.begin(), kErrorPrefixes.end(),
      [&line](std::string_view prefix) { return line.starts_with(prefix); });
  if (!is_error && !line.starts_with(kWarningPrefix)) return;
  // Later ones may be about the other bots.
  if (is_over_ && !IsOwn(line) && (has_opponents_ || Contains(line, "bots/"))) {
    return;
  }
  Add(is_error ? Severity::kError : Severity::kWarning, line,
      SentenceFor(line));
  if (line.starts_with(kErrorPrefixes.back()) ||
      Contains(line, "no aifile specified")) {
    End(TrialVerdict::kNotAdded);
  }
}

bool TrialReader::IsOwn(std::string_view line) const {
  return Contains(ToLower(line), "/" + file_name_ + "_") ||
         line.starts_with(name_ + " BotAISetupClient");
}

void TrialReader::Add(Severity severity, const std::string& line,
                      std::string_view sentence) {
  constexpr std::size_t kMaxLines = 200;
  if (seen_.size() >= kMaxLines || !seen_.insert(line).second) return;
  new_lines_.push_back(
      {severity, Utf8FromGameText(line),
       sentence.empty() ? std::string() : Localized(sentence)});
}

void TrialReader::End(TrialVerdict verdict) {
  if (is_over_) return;
  is_over_ = true;
  verdict_ = verdict;
  if (verdict != TrialVerdict::kEntered) return;
  if (has_others_files_) verdict_ = TrialVerdict::kOthersFiles;
  if (has_others_character_) verdict_ = TrialVerdict::kOtherBot;
  if (has_default_character_) verdict_ = TrialVerdict::kWithDefault;
}

}  // namespace fragsmith
