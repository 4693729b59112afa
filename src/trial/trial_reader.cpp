#include "trial/trial_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "game/game_path.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::size_t kMaxLastLines = 10;

/// A message of the engine by a part of it, and what it means.
struct Explanation {
  std::string_view words;
  std::string_view sentence;
};

/// Messages that come without a word of how bad they are.
struct BareMessage {
  Explanation explanation;
  Severity severity = Severity::kError;
  bool is_refusal = false;
};

constexpr std::array kBareMessages = {
    BareMessage{{"BotAISetupClient failed",
                 "The game does not add the bot, for the reasons above."},
                Severity::kError,
                true},
    BareMessage{
        {"Unable to add bot", "The game has no free place for another player."},
        Severity::kError,
        true},
    BareMessage{{"Can't use keys or values with",
                 "A value in the description file has a ; or \\ or \" in it. "
                 "The game throws that line away."},
                Severity::kWarning,
                false},
    BareMessage{{"Missing { in info file",
                 "The description file has something in front of its {. The "
                 "game ignores the file from there on."},
                Severity::kWarning,
                false},
    BareMessage{{"Unexpected end of info file",
                 "The description file lacks the } at its end. The game takes "
                 "it all the same."},
                Severity::kWarning,
                false},
    BareMessage{{"file too large",
                 "The description file is too large for the game, which "
                 "ignores it. Make it shorter."},
                Severity::kWarning,
                false},
    BareMessage{{"Max infos exceeded",
                 "The game knows as many bots as it can. The others are left "
                 "out."},
                Severity::kWarning,
                false},
    BareMessage{{"Info string length exceeded",
                 "The description is too long. What does not fit is lost."},
                Severity::kWarning,
                false},
};

/// Beginnings of lines after which no game is played.
constexpr std::array kDeadEnds = {
    Explanation{"Can't find map ",
                "The game has no map of this name. Choose another one."},
    Explanation{"VM_Create on game failed",
                "The game's module is missing. The data folder holds the game "
                "folder together with that; with Debian's OpenArena it is "
                "/usr/lib/openarena-server."},
    Explanation{"\"pak0.pk3\" is missing",
                "The engine finds no game there. Enter the data folder, the "
                "one above the game folder (with Debian's OpenArena "
                "/usr/lib/openarena-server), and the game folder, such as "
                "baseoa."},
};

/// The first whose words are in the message counts.
constexpr std::array kExplanations = {
    Explanation{"no aifile specified",
                "The description file does not say where the bot's character "
                "is. The game does not add the bot."},
    Explanation{"AAS not initialized",
                "The map has no file by which bots find their way (.aas), so "
                "no bot can play there. Choose another map."},
    Explanation{"couldn't find skill",
                "The character file has no block for this skill, or a mistake "
                "in it. The bot gets the game's default character."},
    Explanation{"couldn't load skill",
                "The game found no character for this skill and does not add "
                "the bot."},
    Explanation{"couldn't find chat",
                "The chat file has no chat of the name that the character "
                "file asks for."},
    Explanation{"couldn't load chat",
                "The game could not read the bot's chat and does not add the "
                "bot."},
    Explanation{"couldn't load weapon config",
                "The game could not read the weapon weights and does not add "
                "the bot."},
    Explanation{"couldn't load the weights",
                "The game could not read the weights and does not add the "
                "bot."},
    Explanation{"couldn't load weights",
                "The game could not read the weights and does not add the "
                "bot."},
    Explanation{"couldn't load", "The game does not find this file."},
    Explanation{"counldn't load", "The game does not find this file."},
    Explanation{"expected integer index",
                "The game does not know this characteristic. The bot gets the "
                "game's default character."},
    Explanation{"expected integer, float or string",
                "This value is neither a plain number nor a text in quotes. "
                "The bot gets the game's default character."},
    Explanation{"already initialized",
                "The same characteristic stands twice at one skill. The bot "
                "gets the game's default character."},
    Explanation{"is not initialized",
                "The game has no value for this characteristic at this skill "
                "and takes 0. Write it with a \".\" at all levels, or at "
                "none."},
    Explanation{"is not a string",
                "Here the game wants a text in quotes, not a number."},
    Explanation{"unknown definition",
                "The game does not know this word. It ignores the file."},
    Explanation{"newline inside string",
                "A text does not end on the line on which it begins: a quote "
                "is missing."},
    Explanation{"missing trailing quote",
                "A text has no quote at its end. The game cannot read the "
                "file."},
    Explanation{"unknown escape char",
                "A backslash stands where the game knows none. The text ends "
                "there."},
    Explanation{"can't read token",
                "The game cannot make sense of the file "
                "from here on."},
    Explanation{"couldn't read expected token",
                "The file ends too early, or an error above spoiled it."},
    Explanation{"invalid return value",
                "A weight is missing or is not a plain number. The game does "
                "not add the bot."},
    Explanation{"can't evaluate",
                "A weight is missing or is not a plain number. The game does "
                "not add the bot."},
    Explanation{"expected ;",
                "A weight is missing or is not a plain number. The game does "
                "not add the bot."},
    Explanation{"invalid name",
                "A weight is missing or is not a plain number. The game does "
                "not add the bot."},
    Explanation{"negative value set to zero",
                "The game ignores the sign of a weight."},
    Explanation{"redefinition of",
                "A weight stands twice in the file. The last one counts."},
    Explanation{"weapon number out of range",
                "None of the weapons that the bot carries has a weight above "
                "0. It aims badly."},
    Explanation{"expected type",
                "The chat file is not as the game wants it. The game does not "
                "add the bot."},
    Explanation{"expected ,",
                "Something is wrong in a chat line. The game does not add the "
                "bot."},
    Explanation{"unknown message component",
                "Something is wrong in a chat line. The game does not add the "
                "bot."},
    Explanation{"chat message too long",
                "A chat line is too long. The game does not add the bot."},
    Explanation{"unknown random string",
                "A chat line takes words from a list that this game does not "
                "have. The line is garbled when it is spoken."},
    Explanation{"too many expansions",
                "A chat line leads from one word list to the next without "
                "end."},
    Explanation{"out of range",
                "A chat line has a variable that the game does not know."},
    Explanation{" not found",
                "A file asks for another one that this game does not have."},
};

constexpr std::array<std::string_view, 2> kErrorPrefixes = {"Error:", "Fatal:"};
constexpr std::string_view kWarningPrefix = "Warning:";

bool BeginsWith(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

/// The words of a line: without colours and what a server puts around that
/// which it sends to all players.
std::string WordsOf(std::string_view line) {
  constexpr std::string_view kBroadcast = "broadcast: print \"";
  constexpr std::string_view kBroadcastEnd = "\\n\"";
  if (BeginsWith(line, kBroadcast)) {
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

std::string_view SentenceFor(std::string_view line) {
  for (const Explanation& explanation : kExplanations) {
    if (Contains(line, explanation.words)) return explanation.sentence;
  }
  return {};
}

}  // namespace

std::string VerdictText(TrialVerdict verdict, const std::string& bot_name) {
  const std::string name = Utf8FromGameText(bot_name);
  switch (verdict) {
    case TrialVerdict::kEntered:
      return name + " entered the game.";
    case TrialVerdict::kOthersFiles:
      return name +
             " entered the game, but with files of another bot. Correct their "
             "names in the character file, the one that ends in _c.c.";
    case TrialVerdict::kWithDefault:
      return name +
             " entered the game, but with the game's default character in "
             "place of its own.";
    case TrialVerdict::kOtherBot:
      return name +
             " entered the game, but with the character of another bot. Either "
             "the game has a bot of this name already, which wins: take "
             "another name. Or the description names that file behind aifile: "
             "write the bot's own.";
    case TrialVerdict::kNotAdded:
      return "The game did not add " + name + ".";
    case TrialVerdict::kUnknown:
      break;
  }
  return "It is not known what the game makes of " + name + ".";
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
  const auto* const dead_end = std::find_if(
      kDeadEnds.begin(), kDeadEnds.end(),
      [&line](const Explanation& one) { return BeginsWith(line, one.words); });
  if (dead_end != kDeadEnds.end()) {
    Add(Severity::kError, line, dead_end->sentence);
    dead_end_ = TrialLine{Severity::kError, Utf8FromGameText(line),
                          std::string(dead_end->sentence)};
    is_over_ = true;
  } else if (BeginsWith(line, "loaded ")) {
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
        "The bot gets the game's default character in place of its own.");
  } else if (is_others && is_character) {
    Add(Severity::kError, line,
        "This is the character of another bot, which has the name or whose "
        "file the description names.");
  } else if (is_others && !has_others_character_) {
    Add(Severity::kWarning, line,
        "This is a file of another bot. The character file, the one that ends "
        "in _c.c, names it.");
  } else {
    Add(Severity::kHint, line, {});
  }
  has_chat_ = has_chat_ || is_chat;
  // Nothing can go wrong with the bot any more. Its entrance is told to the
  // players who are there, and a player of this game is not yet.
  if (has_chat_ && !is_dedicated_) End(TrialVerdict::kEntered);
}

void TrialReader::TakeComplaint(const std::string& line) {
  for (const BareMessage& message : kBareMessages) {
    if (!Contains(line, message.explanation.words)) continue;
    if (is_over_ && has_opponents_ && !IsOwn(line)) return;
    Add(message.severity, line, message.explanation.sentence);
    if (message.is_refusal) End(TrialVerdict::kNotAdded);
    return;
  }
  if (Contains(line, "Bot '") && Contains(line, "' not defined")) {
    // The bots are added one after the other, ours first.
    const bool is_own = !is_over_;
    Add(is_own ? Severity::kError : Severity::kWarning, line,
        is_own ? "The game did not read the bot's description file."
               : "The game has no bot of this name to play against.");
    if (is_own) End(TrialVerdict::kNotAdded);
    return;
  }
  const bool is_error = std::any_of(
      kErrorPrefixes.begin(), kErrorPrefixes.end(),
      [&line](std::string_view prefix) { return BeginsWith(line, prefix); });
  if (!is_error && !BeginsWith(line, kWarningPrefix)) return;
  // Later ones may be about the other bots.
  if (is_over_ && !IsOwn(line) && (has_opponents_ || Contains(line, "bots/"))) {
    return;
  }
  Add(is_error ? Severity::kError : Severity::kWarning, line,
      SentenceFor(line));
  if (BeginsWith(line, kErrorPrefixes.back()) ||
      Contains(line, "no aifile specified")) {
    End(TrialVerdict::kNotAdded);
  }
}

bool TrialReader::IsOwn(std::string_view line) const {
  return Contains(ToLower(line), "/" + file_name_ + "_") ||
         BeginsWith(line, name_ + " BotAISetupClient");
}

void TrialReader::Add(Severity severity, const std::string& line,
                      std::string_view sentence) {
  constexpr std::size_t kMaxLines = 200;
  if (seen_.size() >= kMaxLines || !seen_.insert(line).second) return;
  new_lines_.push_back(
      {severity, Utf8FromGameText(line), std::string(sentence)});
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
