#ifndef FRAGSMITH_TRIAL_TRIAL_READER_H_
#define FRAGSMITH_TRIAL_TRIAL_READER_H_

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "checks/finding.h"
#include "trial/game_trial.h"

namespace fragsmith {

/// What became of the bot.
enum class TrialVerdict : std::uint8_t {
  kUnknown,      ///< The engine did not come as far, or said nothing.
  kEntered,      ///< It plays as it was written.
  kOthersFiles,  ///< It plays, but by weights or chats of another bot.
  kWithDefault,  ///< It plays, but with the default character.
  kOtherBot,     ///< Another one plays in its place, or with its name.
  kNotAdded,
};

/// One sentence for the player.
std::string VerdictText(TrialVerdict verdict, const std::string& bot_name);

/// Something that the engine said about the bot.
struct TrialLine {
  Severity severity = Severity::kHint;  ///< kHint for what is in order.
  std::string text;                     ///< The engine's words, UTF-8.
  std::string sentence;                 ///< In plain words; may be empty.
};

/// Reads the output of an engine as it comes.
class TrialReader {
 public:
  /// The engine was started with the arguments of this setup. The bot's files
  /// may be called by another name than it is.
  TrialReader(const TrialSetup& setup, const std::string& bot_name,
              const std::string& file_name);

  /// Takes a piece of output of any size and gives what is new in it about the
  /// bot. Each line comes once, however often the engine repeats it.
  std::vector<TrialLine> Read(std::string_view bytes);

  /// What the engine printed last, about whatever it was: for when it ends and
  /// says nothing of the bot. A few lines, UTF-8.
  std::vector<std::string> LastLines() const;

  TrialVerdict verdict() const { return verdict_; }
  /// The verdict will not change any more.
  bool is_over() const { return is_over_; }
  /// Why the engine plays nothing at all, once it has said so.
  const std::optional<TrialLine>& dead_end() const { return dead_end_; }

 private:
  void TakeLine(std::string_view bytes);
  void TakeLoaded(const std::string& line);
  void TakeComplaint(const std::string& line);
  /// The sentence is a localizable one, or empty.
  void Add(Severity severity, const std::string& line,
           std::string_view sentence);
  void End(TrialVerdict verdict);
  bool IsOwn(std::string_view line) const;

  std::string name_;
  std::string file_name_;  ///< In lower case.
  bool is_dedicated_;
  bool has_opponents_;
  bool has_default_character_ = false;
  bool has_others_files_ = false;
  bool has_others_character_ = false;
  bool has_chat_ = false;
  bool is_over_ = false;
  TrialVerdict verdict_ = TrialVerdict::kUnknown;
  std::optional<TrialLine> dead_end_;
  std::deque<std::string> last_lines_;  ///< As they came.
  std::string rest_;                    ///< A line whose end has not come yet.
  std::set<std::string> seen_;
  std::vector<TrialLine> new_lines_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_TRIAL_READER_H_
