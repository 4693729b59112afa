#ifndef FRAGSMITH_TRIAL_MATCH_LOG_H_
#define FRAGSMITH_TRIAL_MATCH_LOG_H_

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/parameter_id.h"

namespace fragsmith {

// The log of events that a server of the game writes, g_log. Texts are bytes
// as the game has them: names with their colours, Windows-1252.

enum class LogEventKind : std::uint8_t {
  kKill,   ///< `client` killed `victim`; `text` is the means, MOD_ROCKET.
  kItem,   ///< `client` took `text`, weapon_rocketlauncher.
  kSay,    ///< `client` said `text`.
  kAward,  ///< `client` got the award `text`, in the game's words.
  kExit,   ///< The match ended for the reason `text`.
  kScore,  ///< `client` ended with `number` points.
};

/// By this number the world kills, whoever falls.
inline constexpr int kWorldClient = 1022;

struct LogEvent {
  LogEventKind kind = LogEventKind::kExit;
  int seconds = 0;  ///< Of game time.
  int client = -1;  ///< -1 where it is nobody, or nobody knows.
  int victim = -1;
  int number = 0;
  std::string text = {};

  bool operator==(const LogEvent&) const = default;
};

using Counts = std::map<std::string, int, std::less<>>;

/// The sum of all of them.
int Sum(const Counts& counts);

/// What came of one player in a match.
struct PlayerRecord {
  std::string name;
  int score = 0;
  Counts kills;                  ///< Of others, by weapon.
  Counts deaths;                 ///< By others, by weapon.
  std::map<int, int> killed_by;  ///< Others, by their number.
  int suicides = 0;              ///< By its own weapon, or by wish.
  int falls = 0;                 ///< Killed by the world, in whatever way.
  Counts items;
  Counts awards;
  std::vector<std::string> said;  ///< In order, with repetitions.

  int Deaths() const { return Sum(deaths) + suicides + falls; }
};

/// The weapon of a means of death in plain words; the means itself where it is
/// none that we know.
std::string WeaponOfMeans(std::string_view means);

/// The same of a weapon by the weight of fighting with it.
std::string_view WeaponOfUsage(ParameterId usage);

/// What a log tells, as far as it has come.
struct MatchRecord {
  std::vector<LogEvent> events;         ///< In order of time.
  std::map<int, PlayerRecord> players;  ///< By their number.
  int seconds = 0;                      ///< Of game time, to the exit.
  bool has_exit = false;
  int scores = 0;        ///< How many players have their final score.
  bool is_over = false;  ///< The game has gone on to what comes next.

  /// The match was played to its end, and everybody's score is known.
  bool IsWhole() const {
    return has_exit && scores >= static_cast<int>(players.size());
  }

  /// Adds an event, and counts it for those whom it is about. One about
  /// players that are not there is passed over.
  void Add(LogEvent event);

 private:
  bool Count(const LogEvent& event);
  bool CountKill(const LogEvent& event);
};

/// Reads a log as it grows. Of several matches in a log the first that was
/// played to its end counts; lines that are odd are passed over.
class MatchLogReader {
 public:
  /// Takes a piece of any size; a line counts once its end is there.
  void Read(std::string_view bytes);

  const MatchRecord& record() const { return record_; }

 private:
  void TakeLine(std::string_view line);
  void TakeUserinfo(std::string_view rest);
  void TakeKill(std::string_view rest, int seconds);
  void TakeSaid(std::string_view rest, int seconds);
  void TakeOfClient(LogEventKind kind, std::string_view rest, int seconds);
  void TakeScore(std::string_view rest, int seconds);

  MatchRecord record_;
  std::string rest_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_MATCH_LOG_H_
